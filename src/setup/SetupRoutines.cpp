#include "setup/SetupRoutines.h"

#include "setup/AddressStyle.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

SetupRoutines::SetupRoutines(SettingsStore& settingsStore, Modem& theModem,
                             LiveSettings& liveSettings, Operator& person)
    : store(settingsStore), modem(theModem), settings(liveSettings), user(person) {}

void SetupRoutines::LoadAll() {
    store.LoadBusinessData();
    DeriveAddressStyle(settings);
    modem.SetUpModem();
    store.LoadPrompts();
    store.LoadPrintColors();
    store.LoadTaxSettings();
    store.LoadCompanyLogo();
    store.LoadLogoSettings();
    store.LoadDeliverySettings();
    store.LoadWorkDays();
}

bool SetupRoutines::SaveAll() {
    if (settings.txtBusiness[0].isEmpty() || settings.txtBusiness[6].isEmpty()) {
        user.MsgBox(u"Name and Telephone are Required"_s, Buttons::Ok,
                    u"Missing Name or Telphone"_s);
        return false;
    }
    settings.PrintCopies = ToByte(settings.cboCopies, u"the number of print copies"_s);
    store.SaveBusinessData();
    store.SaveAppSettings();
    // Before SavePrompts takes the two flags from their check boxes: a change of them reaches
    // Settings.txt only with the second save of a run.
    store.SaveSettings();
    store.SaveLogoSettings();
    modem.SavePhoneSettings();
    store.SaveWorkDay();
    store.SaveTaxSettings();
    store.SavePrintColors();
    store.SavePrompts();
    return true;
}
