#include "platform/FolderLock.h"

#include "support/OfficeTest.h"

#include <QFile>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int lockWasHeld = 10;
constexpr int lockWasRefused = 11;

/// A process that this test started, ended and waited for at the latest when the test ends.
class ChildProcess {
public:
    template <typename Work>
    explicit ChildProcess(Work&& work) : id(::fork()) {
        if (id == 0)
            ::_exit(work());
    }
    ~ChildProcess() { Kill(); }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    int ExitCode() {
        int status = 0;
        EXPECT_EQ(::waitpid(std::exchange(id, -1), &status, 0) > 0, true);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    void Kill() {
        if (id <= 0)
            return;
        ::kill(id, SIGKILL);
        ::waitpid(std::exchange(id, -1), nullptr, 0);
    }

private:
    pid_t id;
};

/// One end of it tells when the other has spoken or gone.
struct Pipe {
    Pipe() { EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0); }
    ~Pipe() {
        ::close(ends[0]);
        CloseWriter();
    }
    void CloseWriter() {
        if (ends[1] >= 0)
            ::close(std::exchange(ends[1], -1));
    }
    void Tell() const { EXPECT_EQ(::write(ends[1], "x", 1), 1); }
    /// Bytes that came, 0 when the other end has gone.
    ssize_t Wait() const {
        char byte = 0;
        return ::read(ends[0], &byte, 1);
    }

    std::array<int, 2> ends{};
};

int TryLock(const QString& path) {
    return FolderLock(path).IsHeld() ? lockWasHeld : lockWasRefused;
}

class FolderLockTest : public testing::Test {
protected:
    TestFolder folder;
};

} // namespace

TEST_F(FolderLockTest, FreeFolderIsLocked) {
    EXPECT_TRUE(FolderLock(folder.Path()).IsHeld());
}

TEST_F(FolderLockTest, LockLeavesNoFile) {
    {
        const FolderLock lock(folder.Path());
        EXPECT_EQ(folder.Everything(), QStringList());
    }
    EXPECT_EQ(folder.Everything(), QStringList());
}

TEST_F(FolderLockTest, SecondLockIsRefusedUntilTheFirstEnds) {
    auto first = std::make_unique<FolderLock>(folder.Path());
    EXPECT_FALSE(FolderLock(folder.Path()).IsHeld());
    EXPECT_FALSE(FolderLock(folder.Path()).IsHeld());
    EXPECT_TRUE(first->IsHeld());
    first.reset();
    EXPECT_TRUE(FolderLock(folder.Path()).IsHeld());
}

TEST_F(FolderLockTest, FolderIsTheSameByAnyPath) {
    ASSERT_TRUE(QFile::link(folder.Path(), folder.PathOf(u"link"_s)));
    const FolderLock lock(folder.Path());
    EXPECT_FALSE(FolderLock(folder.Path() + u"/."_s).IsHeld());
    EXPECT_FALSE(FolderLock(folder.PathOf(u"link"_s)).IsHeld());
}

TEST_F(FolderLockTest, TwoFoldersAreLockedApart) {
    const TestFolder other;
    const FolderLock lock(folder.Path());
    EXPECT_TRUE(FolderLock(other.Path()).IsHeld());
    folder.MakeFolder(u"Backup"_s);
    EXPECT_TRUE(FolderLock(folder.PathOf(u"Backup"_s)).IsHeld());
}

TEST_F(FolderLockTest, AnotherProcessIsRefused) {
    const FolderLock lock(folder.Path());
    ChildProcess other([&] { return TryLock(folder.Path()); });
    EXPECT_EQ(other.ExitCode(), lockWasRefused);
}

TEST_F(FolderLockTest, AnotherProcessTakesAFreeFolder) {
    ChildProcess other([&] { return TryLock(folder.Path()); });
    EXPECT_EQ(other.ExitCode(), lockWasHeld);
}

TEST_F(FolderLockTest, DeathOfTheHolderFreesTheFolder) {
    const Pipe pipe;
    ChildProcess holder([&] {
        const FolderLock lock(folder.Path());
        pipe.Tell();
        ::pause();
        return 0;
    });
    ASSERT_EQ(pipe.Wait(), 1);
    EXPECT_FALSE(FolderLock(folder.Path()).IsHeld());
    holder.Kill();
    EXPECT_TRUE(FolderLock(folder.Path()).IsHeld());
    EXPECT_EQ(folder.Everything(), QStringList());
}

TEST_F(FolderLockTest, ProgramThatTheHolderStartsDoesNotKeepTheLock) {
    auto lock = std::make_unique<FolderLock>(folder.Path());
    Pipe pipe;
    ChildProcess started([&] {
        ::execl("/bin/sleep", "sleep", "60", static_cast<char*>(nullptr));
        pipe.Tell();
        return 1;
    });
    // The child's end of the pipe closes by itself when the other program takes its place.
    pipe.CloseWriter();
    ASSERT_EQ(pipe.Wait(), 0);
    lock.reset();
    EXPECT_TRUE(FolderLock(folder.Path()).IsHeld());
}

TEST_F(FolderLockTest, FolderThatCannotBeOpenedIsAFailureThatNamesIt) {
    folder.Write(u"File.txt"_s, "x");
    for (const QString& name : {u"Missing"_s, u"File.txt"_s}) {
        const QString path = folder.PathOf(name);
        const RuntimeFailure failure = FailureOf([&] { const FolderLock lock(path); });
        const QString start = u"Opening the data folder "_s + path + u" failed: "_s;
        EXPECT_EQ(failure.Sentence().left(start.size()), start);
    }
}

TEST_F(FolderLockTest, UnwritableFolderIsLockedAllTheSame) {
    DropRootRights(folder);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.Path()).constData(), 0500), 0);
    EXPECT_TRUE(FolderLock(folder.Path()).IsHeld());
    ASSERT_EQ(::chmod(QFile::encodeName(folder.Path()).constData(), 0700), 0);
}
