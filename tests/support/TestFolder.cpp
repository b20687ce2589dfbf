#include "support/TestFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TestFolder::TestFolder() : directory(QDir::tempPath() + u"/Tessel Gesch\u00e4ft XXXXXX"_s) {
    EXPECT_TRUE(directory.isValid());
}

QString TestFolder::Path() const {
    return directory.path();
}

QString TestFolder::PathOf(const QString& name) const {
    return directory.filePath(name);
}

void TestFolder::Write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(PathOf(name)).path());
    QFile file(PathOf(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << name.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray TestFolder::Read(const QString& name) const {
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

bool TestFolder::Has(const QString& name) const {
    return QFileInfo::exists(PathOf(name));
}

void TestFolder::MakeFolder(const QString& name) const {
    EXPECT_TRUE(QDir().mkpath(PathOf(name)));
}

void TestFolder::Remove(const QString& name) const {
    EXPECT_TRUE(QFile::remove(PathOf(name)));
}

QStringList TestFolder::Everything() const {
    const QDir root(Path());
    QStringList names;
    QDirIterator entries(Path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = root.relativeFilePath(entries.next());
        names += entries.fileInfo().isDir() ? name + u'/' : name;
    }
    names.sort();
    return names;
}

std::map<QString, QByteArray> TestFolder::Contents() const {
    std::map<QString, QByteArray> contents;
    for (const QString& name : Everything()) {
        // Pipes and devices have no content of their own.
        if (QFileInfo(PathOf(name)).isFile())
            contents[name] = Read(name);
    }
    return contents;
}

void DropRootRights(const TestFolder& folder) {
    if (::geteuid() != 0)
        return;
    constexpr uid_t nobody = 65534;
    QDirIterator entries(folder.Path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        ASSERT_EQ(::chown(QFile::encodeName(entries.next()).constData(), nobody, nobody), 0);
    ASSERT_EQ(::chown(QFile::encodeName(folder.Path()).constData(), nobody, nobody), 0);
    ASSERT_EQ(::setresuid(nobody, nobody, nobody), 0);
    // The change of user shuts out the leak check at the end of the process; let it in again.
    ASSERT_EQ(::prctl(PR_SET_DUMPABLE, 1), 0);
}

FullDisk::FullDisk(unsigned bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit limit = before;
    limit.rlim_cur = bytes;
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

FullDisk::~FullDisk() {
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
}
