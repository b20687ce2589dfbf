#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// The one serial port of the program, as the rules of the telephone see it: a number, and a line
/// that is open or not. What does not work on an operation is a RuntimeFailure of kind
/// DeviceFailure, which leaves the port as it was.
class SerialPort : public QObject {
    Q_OBJECT

public:
    ~SerialPort() override;

    static constexpr qint16 firstPort = 1;
    static constexpr qint16 lastPort = 16;

    /// From firstPort to lastPort.
    virtual qint16 CommPort() const = 0;
    /// Fails for any other number, and while the port is open.
    virtual void SetCommPort(qint16 number) = 0;

    virtual bool PortOpen() const = 0;
    virtual void Open() = 0;
    /// What has been sent still goes out. A closed port stays closed.
    virtual void Close() = 0;

    /// Fails on a closed port.
    virtual void Output(const QByteArray& bytes) = 0;
    /// How many bytes have come in and are waiting; none on a closed port.
    virtual qsizetype InBufferCount() const = 0;
    /// Takes all that are waiting.
    virtual QByteArray Input() = 0;
    /// Sets the count of waiting bytes to zero and forgets the bytes.
    virtual void ClearInput() = 0;

Q_SIGNALS:
    /// Bytes have come in.
    void Received();
};

/// The device that a port number stands for, from firstPort to lastPort: four each of the machine's
/// own ports, modems on USB, adapters on USB, and modems by radio.
QString SerialDevice(qint16 port);
