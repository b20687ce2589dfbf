#pragma once

#include "platform/SerialPort.h"
#include "support/PlayedModem.h"

#include <map>

/// Serial ports whose devices live in the test's own event loop, for rules that hang on when a byte
/// comes. As the loop's clock is the only one, bytes and timers come in the same order on a busy
/// machine as on an idle one.
///
/// As with a real device, what has come in and nobody has read is still there when the port is
/// closed and opened again.
class LoopPort : public SerialPort {
public:
    /// What is behind each number; the others can't be opened.
    std::map<qint16, PlayedModem::Answers> Devices;
    /// How long the program stands still in each opening.
    std::chrono::milliseconds TimeToOpen{0};

    /// All that has been sent to a port.
    QByteArray Heard(qint16 port) const;
    /// On the port that is open.
    void Say(const QByteArray& bytes);

    qint16 CommPort() const override { return number; }
    void SetCommPort(qint16 newNumber) override;
    bool PortOpen() const override { return isOpen; }
    void Open() override;
    void Close() override { isOpen = false; }
    /// A whole command with its carriage return.
    void Output(const QByteArray& bytes) override;
    qsizetype InBufferCount() const override;
    QByteArray Input() override;
    void ClearInput() override;

private:
    qint16 number = firstPort;
    bool isOpen = false;
    std::map<qint16, QByteArray> heard;
    std::map<qint16, QByteArray> unread;
};

/// A fixture has it as a base before the office, which looks for a modem when it is made.
class LoopPorts {
protected:
    LoopPort port;
};
