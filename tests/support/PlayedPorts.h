#pragma once

#include "platform/DesktopSerialPort.h"
#include "support/PlayedModem.h"

#include <QTest>

#include <map>

/// The machine's serial ports, with the devices that a test gives them; at first there are none.
/// A fixture has it as a base before the office, which looks for a modem when it is made.
class PlayedPorts {
protected:
    std::map<qint16, QString> devices;
    DesktopSerialPort port{[this](qint16 number) {
        const auto device = devices.find(number);
        return device == devices.end() ? QString() : device->second;
    }};

    void OpenPort(qint16 number) {
        port.SetCommPort(number);
        port.Open();
    }
    /// The modem comes to have heard these bytes, and no others.
    static bool HasHeard(const PlayedModem& modem, const QByteArray& bytes) {
        return QTest::qWaitFor([&] { return modem.Heard() == bytes; });
    }
};
