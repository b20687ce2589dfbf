#pragma once

#include "platform/SerialPort.h"
#include "setup/LiveSettings.h"
#include "store/BasicDiskRoutines.h"

#include <chrono>

/// The port that the modem is on, and whether a telephone hangs on its line; kept in Phone.txt.
///
/// Nothing is ever read of what the modem reports about calls: Caller ID ends at switching it on.
class Modem {
public:
    Modem(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings, SerialPort& serialPort);

    /// Looks for the modem, then reads Phone.txt and writes it anew. A port from the file replaces
    /// the one that was found, but not the one on show, nor the one that is left open. A telephone
    /// in the file ticks its check box; without one a box that is ticked stays so, and is saved.
    /// With 16 ports that open and keep silent it takes about 0.4 seconds.
    void SetUpModem();
    /// Takes over whether a telephone is there from its check box, and writes Phone.txt.
    void SavePhoneSettings();

    /// What the dialer says of the modem and its port.
    QString Text1;
    QString Label2;

private:
    void ProbeModem();
    bool FindModem();
    bool AnswersOnPort(std::chrono::milliseconds timeToAnswer);
    void LetEventsRun(std::chrono::milliseconds timeToAnswer);
    void ShowPort();
    /// A failure of the port is passed over.
    void Send(const QByteArray& command);

    BasicDiskRoutines& disk;
    LiveSettings& settings;
    SerialPort& port;
};
