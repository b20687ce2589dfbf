#pragma once

#include "platform/Operator.h"
#include "platform/SerialPort.h"
#include "setup/LiveSettings.h"
#include "telephone/SpeedNumbers.h"

#include <QTimer>

#include <array>

enum class CallState { Ready, Dialing, WaitingForReceiver };

/// A telephone call for the operator, and the speed dial entries. The modem only dials: when it has
/// the number through, the operator lifts the receiver of the telephone behind it, and the modem
/// hangs up and leaves the line to the telephone.
///
/// A failure of the port is passed over throughout. All that shows of one is that the status stays
/// where it is.
class Dialer : public QObject {
    Q_OBJECT

public:
    /// Places in the array txtDialer.
    enum Field { Name = 0, Number = 1 };

    Dialer(BasicDiskRoutines& diskRoutines, const LiveSettings& liveSettings,
           SerialPort& serialPort, Operator& person);

    /// Whom the next call is for.
    void SetRecipient(const QString& name, const QString& number);
    /// Makes the dialer ready for a call and loads the speed dial entries. A closed port is opened
    /// by the number of the setup screen.
    void Load();

    // What the dialer shows.
    QString lblName;
    /// What is dialed.
    QString lblNumber;
    QString lblStatus;
    CallState State = CallState::Ready;
    SpeedNumbers Entries;
    /// The button clicked last, 0 to 9.
    size_t SelectedSlot = 0;
    /// The fields for a new entry, and whether they are open.
    std::array<QString, 2> txtDialer;
    bool fraSpeedDial = false;
    /// An entry is chosen that can be deleted.
    bool IsEntryChosen = false;

    /// Puts the prefix of long distance calls in front of the number, or takes it away, whoever
    /// has put it there.
    void ckDial1_Click(bool isTicked);
    /// Chooses an entry without dialing it. False for an empty one: its fields are open now.
    bool cmdDialer_Click(size_t slot);

    // The buttons of speed dial; the first and the last leave out what the file can't hold.
    void SaveEntry();
    void CancelEntry();
    void DeleteEntry();
    /// Also before any entry has been chosen, which leaves nobody to call.
    void RestoreRecipient();
    void SaveRecipientAsEntry();

    /// Sends the number, and waits for as long as it takes for the modem to say OK. Meanwhile
    /// events run as ever.
    void cmdNewDial_Click();
    /// The operator has the receiver in his hand.
    void cmdCancel_Click();
    /// Makes the modem hang up, and closes the port; the next Load opens it again.
    void HangUp();

Q_SIGNALS:
    /// The modem has the number through.
    void Dialed();

private:
    void OpenPort();
    void ResetStatus();
    void ReadReply();
    /// A failure of the port is passed over.
    void Send(const QByteArray& command);

    const LiveSettings& settings;
    SerialPort& port;
    Operator& user;
    /// The recipient before an entry was chosen.
    QString SavedName;
    QString SavedNumber;
    QTimer nextLook;
};
