#pragma once

#include "platform/RuntimeFailure.h"
#include "platform/SerialPort.h"

/// A machine without serial ports: nothing opens.
class NoSerialPort : public SerialPort {
public:
    /// It holds nothing, so one does for all.
    static NoSerialPort& Only() {
        static NoSerialPort only;
        return only;
    }

    qint16 CommPort() const override { return firstPort; }
    void SetCommPort(qint16) override {}
    bool PortOpen() const override { return false; }
    void Open() override { Refuse(); }
    void Close() override {}
    void Output(const QByteArray&) override { Refuse(); }
    qsizetype InBufferCount() const override { return 0; }
    QByteArray Input() override { return {}; }
    void ClearInput() override {}

private:
    [[noreturn]] static void Refuse() {
        throw RuntimeFailure(FailureKind::DeviceFailure,
                             QStringLiteral("This machine has no serial port."));
    }
};
