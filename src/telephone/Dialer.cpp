#include "telephone/Dialer.h"

#include "platform/CodePage.h"
#include "platform/RuntimeFailure.h"
#include "store/Conversions.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString longDistance = u"1-"_s;
constexpr qsizetype leastReply = 2;
/// The bytes of a reply come about a millisecond apart. A look at each of them would take its OK
/// apart, and only a look that finds both letters knows it.
constexpr std::chrono::milliseconds timeBetweenLooks = 50ms;

/// A line break in a number would make a second command of what follows, and one in a file a second
/// line.
QString WithoutControls(QString text) {
    text.removeIf([](QChar character) { return character.category() == QChar::Other_Control; });
    return text;
}

} // namespace

Dialer::Dialer(BasicDiskRoutines& diskRoutines, const LiveSettings& liveSettings,
               SerialPort& serialPort, Operator& person)
    : Entries(diskRoutines), settings(liveSettings), port(serialPort), user(person) {
    nextLook.setSingleShot(true);
    nextLook.setInterval(timeBetweenLooks);
    connect(&nextLook, &QTimer::timeout, this, &Dialer::ReadReply);
    connect(&port, &SerialPort::Received, this, [this] {
        if (State == CallState::Dialing && !nextLook.isActive())
            nextLook.start();
    });
}

void Dialer::SetRecipient(const QString& name, const QString& number) {
    lblName = name;
    lblNumber = number;
}

void Dialer::Load() {
    ResetStatus();
    CancelEntry();
    SelectedSlot = 0;
    SavedName.clear();
    SavedNumber.clear();
    if (!port.PortOpen())
        PassOver([this] { OpenPort(); });
    Entries.Load();
}

/// The box of the setup screen takes any text. With one that is no port nothing is opened.
void Dialer::OpenPort() {
    port.SetCommPort(ToInt16(settings.txtModemPort, u"the modem port of the setup screen"_s));
    port.Open();
}

void Dialer::ResetStatus() {
    State = CallState::Ready;
    nextLook.stop();
    IsEntryChosen = false;
    lblStatus = u"Ready to Dial......"_s;
}

void Dialer::ckDial1_Click(bool isTicked) {
    if (isTicked)
        lblNumber.prepend(longDistance);
    else if (lblNumber.startsWith(longDistance))
        lblNumber.remove(0, longDistance.size());
}

bool Dialer::cmdDialer_Click(size_t slot) {
    SelectedSlot = slot;
    SavedName = lblName;
    SavedNumber = lblNumber;
    IsEntryChosen = !Entries.SpeedName[slot].isEmpty();
    if (IsEntryChosen)
        SetRecipient(Entries.SpeedName[slot], Entries.SpeedNumber[slot]);
    else
        fraSpeedDial = true;
    return IsEntryChosen;
}

void Dialer::SaveEntry() {
    Entries.SpeedName[SelectedSlot] = WithoutControls(txtDialer[Name]);
    Entries.SpeedNumber[SelectedSlot] = WithoutControls(txtDialer[Number]);
    Entries.Save();
    CancelEntry();
}

void Dialer::CancelEntry() {
    txtDialer.fill({});
    fraSpeedDial = false;
}

void Dialer::DeleteEntry() {
    QString& name = Entries.SpeedName[SelectedSlot];
    const Answer answer =
        user.MsgBox(u"This will delete SpeedDial entry  "_s + name + u"\nAre you Sure"_s,
                    Buttons::YesNo, u"Delete Speed Dial"_s);
    if (answer == Answer::No) {
        IsEntryChosen = false;
        return;
    }
    name.clear();
    Entries.SpeedNumber[SelectedSlot].clear();
    Entries.Save();
    Entries.Load();
}

void Dialer::RestoreRecipient() {
    SetRecipient(SavedName, SavedNumber);
}

void Dialer::SaveRecipientAsEntry() {
    txtDialer = {lblName, lblNumber};
    SaveEntry();
}

void Dialer::cmdNewDial_Click() {
    State = CallState::Dialing;
    lblStatus = u"Dialing..... "_s + lblNumber;
    PassOver([this] { port.ClearInput(); });
    // The semicolon keeps the modem listening for commands after it has dialed.
    Send("ATDT" + ToCodePage(WithoutControls(lblNumber)) + ";\r");
}

/// Each reply takes the place of the one before, so an OK that comes in two parts is none.
void Dialer::ReadReply() {
    if (State != CallState::Dialing || port.InBufferCount() < leastReply)
        return;
    const QByteArray ModemReply = port.Input();
    if (!ModemReply.contains("OK"))
        return;
    State = CallState::WaitingForReceiver;
    lblStatus = u"Pickup Receiver - Then Click Hangup"_s;
    Q_EMIT Dialed();
}

void Dialer::cmdCancel_Click() {
    ResetStatus();
    HangUp();
}

void Dialer::HangUp() {
    State = CallState::Ready;
    nextLook.stop();
    Send("ATH\r");
    PassOver([this] { port.Close(); });
}

void Dialer::Send(const QByteArray& command) {
    PassOver([this, &command] { port.Output(command); });
}
