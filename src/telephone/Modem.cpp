#include "telephone/Modem.h"

#include "platform/RuntimeFailure.h"
#include "store/TextLines.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString phoneFile = u"/Phone.txt"_s;
constexpr qint16 portWithoutModem = 1;
/// So many bytes waiting count as an answer.
constexpr qsizetype leastAnswer = 2;
/// What silent ports may take of the start, all together.
constexpr std::chrono::milliseconds timeToSearch = 400ms;
/// A modem needs 6 milliseconds or so to hear the command and to begin to say it back. An adapter
/// on USB may keep the bytes for another 16.
constexpr std::chrono::milliseconds shortestPass = 22ms;
constexpr std::chrono::milliseconds longestPass = 50ms;

/// A port's share of what is left for the search. Most machines have few ports, and those that
/// don't open leave their time to the others.
std::chrono::milliseconds TimeToAnswer(qint16 port, const QDeadlineTimer& endOfSearch) {
    const qint64 left = endOfSearch.remainingTime() / (SerialPort::lastPort - port + 1);
    return std::clamp(std::chrono::milliseconds(left), shortestPass, longestPass);
}

} // namespace

Modem::Modem(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings, SerialPort& serialPort)
    : disk(diskRoutines), settings(liveSettings), port(serialPort) {}

void Modem::SetUpModem() {
    ProbeModem();
    if (!disk.FileExists(phoneFile)) {
        settings.ckPhone = false;
        settings.PhoneDaisyChained = false;
    } else {
        disk.OpenForInput(phoneFile);
        TextReader reader(disk);
        settings.PhoneDaisyChained = reader.Boolean();
        settings.ComPort = reader.Int16();
        disk.CloseAllFiles();
        // Meant so: a box that is ticked already keeps its tick, and the save takes it over.
        if (settings.PhoneDaisyChained)
            settings.ckPhone = true;
    }
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
    const QDeadlineTimer endOfSearch(timeToSearch, Qt::PreciseTimer);
    for (qint16 number = SerialPort::firstPort; number <= SerialPort::lastPort; ++number) {
        PassOver([this, number] { port.SetCommPort(number); });
        if (!port.PortOpen() && AnswersOnPort(TimeToAnswer(number, endOfSearch)))
            return true;
    }
    return false;
}

bool Modem::AnswersOnPort(std::chrono::milliseconds timeToAnswer) {
    if (!PassOver([this] { port.Open(); }))
        return false;
    Send("AT\r");
    LetEventsRun(timeToAnswer);
    if (port.InBufferCount() >= leastAnswer)
        return true;
    PassOver([this] { port.Close(); });
    return false;
}

/// One pass of the event loop, which ends with the answer. A modem that has not answered by its end
/// is not found.
void Modem::LetEventsRun(std::chrono::milliseconds timeToAnswer) {
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
