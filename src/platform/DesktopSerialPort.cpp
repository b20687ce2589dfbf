#include "platform/DesktopSerialPort.h"

#include <QFile>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <sys/ioctl.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// As much as waits for a reader. A modem that reports calls nobody asks for is not to fill the
/// memory; what comes in beyond it waits in the device, and is lost there in the end.
constexpr qint64 inputBufferSize = 1024;
/// A byte takes ten bits on the line, at 9600 bits a second.
constexpr std::chrono::microseconds timeOfByte = 1042us;
/// Longer than any command but one with an absurd number takes.
constexpr std::chrono::milliseconds longestLeave = 100ms;

/// The device has bytes that it has not sent yet.
bool HoldsOutput(const QSerialPort& port) {
    int count = 0;
    return ::ioctl(port.handle(), TIOCOUTQ, &count) == 0 && count > 0;
}

} // namespace

DesktopSerialPort::DesktopSerialPort(const Devices& devices) : deviceOf(devices) {
    port.setReadBufferSize(inputBufferSize);
    connect(&port, &QSerialPort::readyRead, this, &SerialPort::Received);
    connect(&port, &QSerialPort::errorOccurred, this, &DesktopSerialPort::CloseWhenGone);
}

RuntimeFailure DesktopSerialPort::FailureOf(const QString& operation, const QString& reason) const {
    return {FailureKind::DeviceFailure,
            u"%1 serial port %2 failed: %3."_s.arg(operation).arg(number).arg(reason)};
}

void DesktopSerialPort::SetCommPort(qint16 newNumber) {
    if (port.isOpen())
        throw FailureOf(u"Leaving"_s, u"it is open"_s);
    if (newNumber < firstPort || newNumber > lastPort)
        throw RuntimeFailure(FailureKind::DeviceFailure,
                             u"There is no serial port %1."_s.arg(newNumber));
    number = newNumber;
}

void DesktopSerialPort::Open() {
    const QString device = deviceOf(number);
    // The toolkit would leave a lock file for a device that isn't there, and take it away again.
    if (!QFile::exists(device))
        throw FailureOf(u"Opening"_s, u"there is no such device"_s);
    port.setPortName(device);
    ++opening;
    if (!port.open(QIODevice::ReadWrite))
        throw FailureOf(u"Opening"_s, port.errorString());
}

void DesktopSerialPort::Close() {
    if (!port.isOpen())
        return;
    LetOutputLeave();
    port.close();
}

/// Closing sets the line back to what it was before, which would garble what is still going out;
/// and it would wait for long for a device that does not take its bytes.
void DesktopSerialPort::LetOutputLeave() {
    const auto left =
        std::min<std::chrono::nanoseconds>(outputLeaves.remainingTimeAsDuration(), longestLeave);
    if (left > 0s)
        QThread::usleep(static_cast<unsigned long>(
            std::chrono::duration_cast<std::chrono::microseconds>(left).count()));
    if (port.bytesToWrite() > 0 || HoldsOutput(port))
        port.clear(QSerialPort::Output);
}

void DesktopSerialPort::Output(const QByteArray& bytes) {
    if (!port.isOpen())
        throw FailureOf(u"Sending to"_s, u"it is not open"_s);
    if (port.write(bytes) != bytes.size())
        throw FailureOf(u"Sending to"_s, port.errorString());
    port.flush();
    outputLeaves = QDeadlineTimer(
        outputLeaves.remainingTimeAsDuration() + bytes.size() * timeOfByte, Qt::PreciseTimer);
}

qsizetype DesktopSerialPort::InBufferCount() const {
    return port.isOpen() ? qsizetype(port.bytesAvailable()) : 0;
}

QByteArray DesktopSerialPort::Input() {
    return port.isOpen() ? port.readAll() : QByteArray();
}

void DesktopSerialPort::ClearInput() {
    if (!port.isOpen())
        return;
    port.clear(QSerialPort::Input);
    // A full buffer had stopped the reading; this lets it go on.
    port.readAll();
}

void DesktopSerialPort::CloseWhenGone(QSerialPort::SerialPortError error) {
    if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError)
        return;
    // Not at once: the toolkit is in the middle of reading or writing. By then another port may be
    // open, which has nothing to do with the error.
    QMetaObject::invokeMethod(
        this,
        [this, failed = opening] {
            if (failed == opening && port.isOpen())
                port.close();
        },
        Qt::QueuedConnection);
}
