#pragma once

#include "platform/Operator.h"
#include "setup/SettingsStore.h"
#include "telephone/Modem.h"

/// The two moments when all settings move at once, each in an order that matters: the start of the
/// program, and the setup screen's save.
class SetupRoutines {
public:
    SetupRoutines(SettingsStore& settingsStore, Modem& theModem, LiveSettings& liveSettings,
                  Operator& person);

    /// In the order in which the files depend on each other. Settings.txt is not among them: the
    /// start of the program reads it later, over these.
    void LoadAll();

    /// False, with a message and nothing saved, when name or telephone is missing. A number of
    /// copies that is none from 0 to 255 is a failure, also with nothing saved.
    bool SaveAll();

private:
    SettingsStore& store;
    Modem& modem;
    LiveSettings& settings;
    Operator& user;
};
