#include "telephone/Modem.h"

#include "platform/RuntimeFailure.h"
#include "store/TextLines.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString phoneFile = u"/Phone.txt"_s;
constexpr qint16 portWithoutModem = 1;
/// So many bytes waiting count as an answer.
constexpr qsizetype leastAnswer = 2;
/// A modem needs a few milliseconds to hear the command and to say it back, and an adapter on USB
/// keeps bytes for up to 16. Sixteen times this is what silent ports take of the start.
constexpr std::chrono::milliseconds timeToAnswer = 25ms;

} // namespace

Modem::Modem(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings, SerialPort& serialPort)
    : disk(diskRoutines), settings(liveSettings), port(serialPort) {}

void Modem::SetUpModem() {
    ProbeModem();
    settings.PhoneDaisyChained = false;
    if (disk.FileExists(phoneFile)) {
        disk.OpenForInput(phoneFile);
        TextReader reader(disk);
        settings.PhoneDaisyChained = reader.Boolean();
        settings.ComPort = reader.Int16();
        disk.CloseAllFiles();
    }
    settings.ckPhone = settings.PhoneDaisyChained;
    SavePhoneSettings();
}

void Modem::ProbeModem() {
    if (FindModem()) {
        PassOver([this] { port.Close(); });
        settings.ComPort = port.CommPort();
    } else {
        // Meant so: the next text takes its place before anyone can read it.
        Text1 = u"Modem Not Detected Or In Use."_s;
        settings.ComPort = portWithoutModem;
    }
    PassOver([this] { port.SetCommPort(settings.ComPort); });
    ShowPort();
    if (!port.PortOpen())
        PassOver([this] { port.Open(); });
    PassOver([this] { port.ClearInput(); });
    // Whether Caller ID is in use or not.
    Send("AT#CID=1\r");
    if (settings.CallerIdOn)
        settings.lblCallid = true;
}

void Modem::ShowPort() {
    const QString number = QString::number(settings.ComPort);
    Text1 = u"Your Modem Comm Port Is %1."_s.arg(number);
    Label2 = u"COM Port # "_s + number;
    settings.txtModemPort = number;
}

/// Leaves the port of the modem open and all others closed. A port that is open already is not
/// asked.
bool Modem::FindModem() {
    for (qint16 number = SerialPort::firstPort; number <= SerialPort::lastPort; ++number) {
        PassOver([this, number] { port.SetCommPort(number); });
        if (!port.PortOpen() && AnswersOnPort())
            return true;
    }
    return false;
}

bool Modem::AnswersOnPort() {
    if (!PassOver([this] { port.Open(); }))
        return false;
    Send("AT\r");
    LetEventsRun();
    if (port.InBufferCount() >= leastAnswer)
        return true;
    PassOver([this] { port.Close(); });
    return false;
}

/// One pass of the event loop, which ends with the answer. A modem that has not answered by its end
/// is not found.
void Modem::LetEventsRun() {
    QEventLoop pass;
    QTimer::singleShot(timeToAnswer, Qt::PreciseTimer, &pass, &QEventLoop::quit);
    QObject::connect(&port, &SerialPort::Received, &pass, [this, &pass] {
        if (port.InBufferCount() >= leastAnswer)
            pass.quit();
    });
    pass.exec();
}

void Modem::Send(const QByteArray& command) {
    PassOver([this, &command] { port.Output(command); });
}

void Modem::SavePhoneSettings() {
    settings.PhoneDaisyChained = settings.ckPhone;
    RewriteFile(
        disk, phoneFile,
        {RecordLine().Boolean(settings.PhoneDaisyChained), RecordLine().Number(settings.ComPort)});
}
