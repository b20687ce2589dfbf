#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <sys/resource.h>

/// A fresh data folder, with a blank and an accent in its path. Names are relative, with "/".
class TestFolder {
public:
    TestFolder();

    QString Path() const;
    QString PathOf(const QString& name) const;

    void Write(const QString& name, const QByteArray& bytes) const;
    /// Fails the test when the file can't be read.
    QByteArray Read(const QString& name) const;
    bool Has(const QString& name) const;
    void MakeFolder(const QString& name) const;
    void Remove(const QString& name) const;
    /// Everything below the folder, folders with a closing "/", in name order.
    QStringList Everything() const;
    /// The bytes of every file below the folder, to compare before and after.
    std::map<QString, QByteArray> Contents() const;

private:
    QTemporaryDir directory;
};

/// Gives up the rights of the super-user for the rest of the test's process, so that permissions
/// count. The folder stays the test's own.
void DropRootRights(const TestFolder& folder);

/// While it lives, no file can grow beyond `bytes`, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(unsigned bytes);
    ~FullDisk();
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before{};
};
