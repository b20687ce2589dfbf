#pragma once

#include "setup/LiveSettings.h"
#include "store/BasicDiskRoutines.h"

/// The port that the modem is on, and whether a telephone hangs on its line; kept in Phone.txt.
class Modem {
public:
    Modem(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings);

    /// Looks for the modem, then reads Phone.txt and writes it anew. A port from the file replaces
    /// the one that was found, but not the one on show.
    void SetUpModem();
    /// Takes over whether a telephone is there from its check box, and writes Phone.txt.
    void SavePhoneSettings();

private:
    void ProbeModem();

    BasicDiskRoutines& disk;
    LiveSettings& settings;
};
