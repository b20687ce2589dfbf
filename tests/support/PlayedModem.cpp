#include "support/PlayedModem.h"

#include "support/TextOutput.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace {

/// Nothing is changed or said back on the way.
void MakeRaw(int terminal) {
    termios settings{};
    EXPECT_EQ(::tcgetattr(terminal, &settings), 0);
    ::cfmakeraw(&settings);
    EXPECT_EQ(::tcsetattr(terminal, TCSANOW, &settings), 0);
}

} // namespace

std::vector<PlayedModem::Piece> PlayedModem::Ok(const QByteArray& command) {
    return {{{}, command + "\r\r\nOK\r\n"}};
}

std::vector<PlayedModem::Piece> PlayedModem::Silence(const QByteArray&) {
    return {};
}

PlayedModem::PlayedModem(const Answers& answers) : answersOf(answers) {
    line = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_GE(line, 0);
    EXPECT_EQ(::grantpt(line), 0);
    EXPECT_EQ(::unlockpt(line), 0);
    char name[64] = {};
    EXPECT_EQ(::ptsname_r(line, name, sizeof name), 0);
    device = QString::fromLatin1(name);
    otherEnd = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    MakeRaw(otherEnd);
    EXPECT_EQ(::pipe2(stop, O_CLOEXEC), 0);
    player = std::thread([this] { Run(); });
}

PlayedModem::~PlayedModem() {
    Vanish();
    ::close(stop[0]);
    ::close(stop[1]);
}

void PlayedModem::Vanish() {
    if (!player.joinable())
        return;
    EXPECT_EQ(::write(stop[1], "x", 1), 1);
    player.join();
    ::close(line);
    ::close(otherEnd);
}

void PlayedModem::SetAnswers(const Answers& answers) {
    const std::lock_guard lock(guard);
    answersOf = answers;
}

QByteArray PlayedModem::Heard() const {
    const std::lock_guard lock(guard);
    return heard;
}

void PlayedModem::Say(const QByteArray& bytes) const {
    [[maybe_unused]] const ssize_t taken = ::write(line, bytes.constData(), size_t(bytes.size()));
}

void PlayedModem::Run() {
    for (;;) {
        pollfd ends[] = {{line, POLLIN, 0}, {stop[0], POLLIN, 0}};
        ::poll(ends, 2, -1);
        if (ends[1].revents != 0)
            return;
        char bytes[4096];
        const ssize_t count = ::read(line, bytes, sizeof bytes);
        if (count > 0)
            Hear(QByteArray(bytes, count));
    }
}

void PlayedModem::Hear(const QByteArray& bytes) {
    {
        const std::lock_guard lock(guard);
        heard += bytes;
    }
    unfinished += bytes;
    for (qsizetype end; (end = unfinished.indexOf('\r')) >= 0;) {
        const QByteArray command = unfinished.left(end);
        unfinished.remove(0, end + 1);
        if (!Answer(command))
            return;
    }
}

/// False when the modem vanishes in the middle of it.
bool PlayedModem::Answer(const QByteArray& command) {
    Answers answers;
    {
        const std::lock_guard lock(guard);
        answers = answersOf;
    }
    for (const Piece& piece : answers(command)) {
        if (IsStoppedWithin(piece.pause))
            return false;
        Say(piece.bytes);
    }
    return true;
}

bool PlayedModem::IsStoppedWithin(std::chrono::milliseconds time) const {
    pollfd end = {stop[0], POLLIN, 0};
    return ::poll(&end, 1, int(time.count())) > 0;
}
