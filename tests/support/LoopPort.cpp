#include "support/LoopPort.h"

#include "platform/RuntimeFailure.h"

#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

QByteArray LoopPort::Heard(qint16 port) const {
    const auto found = heard.find(port);
    return found == heard.end() ? QByteArray() : found->second;
}

void LoopPort::Say(const QByteArray& bytes) {
    ASSERT_TRUE(isOpen);
    unread[number] += bytes;
    Q_EMIT Received();
}

void LoopPort::SetCommPort(qint16 newNumber) {
    if (isOpen)
        throw RuntimeFailure(FailureKind::DeviceFailure, u"The port is open."_s);
    number = newNumber;
}

void LoopPort::Open() {
    if (!Devices.contains(number))
        throw RuntimeFailure(FailureKind::DeviceFailure, u"There is no device."_s);
    std::this_thread::sleep_for(TimeToOpen);
    isOpen = true;
}

void LoopPort::Output(const QByteArray& bytes) {
    if (!isOpen)
        throw RuntimeFailure(FailureKind::DeviceFailure, u"The port is not open."_s);
    heard[number] += bytes;
    std::chrono::milliseconds time{0};
    for (const PlayedModem::Piece& piece : Devices[number](bytes.chopped(1))) {
        time += piece.pause;
        QTimer::singleShot(time, Qt::PreciseTimer, this, [this, port = number, said = piece.bytes] {
            if (isOpen && number == port)
                Say(said);
        });
    }
}

qsizetype LoopPort::InBufferCount() const {
    const auto found = unread.find(number);
    return isOpen && found != unread.end() ? found->second.size() : 0;
}

QByteArray LoopPort::Input() {
    return isOpen ? std::exchange(unread[number], {}) : QByteArray();
}

void LoopPort::ClearInput() {
    if (isOpen)
        unread[number].clear();
}
