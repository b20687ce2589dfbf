#pragma once

#include "platform/RuntimeFailure.h"
#include "platform/SerialPort.h"

#include <QDeadlineTimer>
#include <QSerialPort>

#include <functional>

/// The machine's serial ports, at 9600 bits a second, 8 data bits, no parity, 1 stop bit. A device
/// that goes away while its port is open closes the port.
class DesktopSerialPort : public SerialPort {
public:
    /// The device of a port, from SerialPort::firstPort to lastPort; empty for none.
    using Devices = std::function<QString(qint16 port)>;

    explicit DesktopSerialPort(const Devices& devices = SerialDevice);

    qint16 CommPort() const override { return number; }
    void SetCommPort(qint16 newNumber) override;
    bool PortOpen() const override { return port.isOpen(); }
    void Open() override;
    void Close() override;
    void Output(const QByteArray& bytes) override;
    qsizetype InBufferCount() const override;
    QByteArray Input() override;
    void ClearInput() override;

private:
    void LetOutputLeave();
    void CloseWhenGone(QSerialPort::SerialPortError error);
    RuntimeFailure FailureOf(const QString& operation, const QString& reason) const;

    Devices deviceOf;
    qint16 number = firstPort;
    QSerialPort port;
    /// Which opening it is, a failed one included.
    int opening = 0;
    /// When the bytes sent last will have left the machine.
    QDeadlineTimer outputLeaves{0};
};
