#include "platform/SerialPort.h"

using namespace Qt::StringLiterals;

SerialPort::~SerialPort() = default;

QString SerialDevice(qint16 port) {
    constexpr int portsOfAKind = 4;
    static const QString kinds[] = {u"/dev/ttyS%1"_s, u"/dev/ttyACM%1"_s, u"/dev/ttyUSB%1"_s,
                                    u"/dev/rfcomm%1"_s};
    const int place = port - SerialPort::firstPort;
    return kinds[place / portsOfAKind].arg(place % portsOfAKind);
}
