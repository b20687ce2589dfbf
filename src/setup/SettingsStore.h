#pragma once

#include "setup/LiveSettings.h"
#include "store/BasicDiskRoutines.h"

/// Reads and writes the settings files. A missing file is a normal state with its own defaults; a
/// file that is cut short or holds a value of the wrong type is a failure that stops the program.
class SettingsStore {
public:
    SettingsStore(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings);

    /// What creating the setup screen loads, in the order in which the files depend on each other:
    /// the colour flag of PrintColors.txt is overruled by DeliverySettings.txt.
    void LoadAll();

    /// MyBusinessData.txt.
    void LoadBusinessData();
    void SaveBusinessData();
    /// Prompts.txt. Saving is the only step that takes AlarmOn and PromptsOn from the check boxes.
    void LoadPrompts();
    void SavePrompts();
    /// PrintColors.txt.
    void LoadPrintColors();
    void SavePrintColors();
    /// TaxSettings.txt.
    void LoadTaxSettings();
    void SaveTaxSettings();
    /// CompanyLogo.txt.
    void LoadCompanyLogo();
    void SaveCompanyLogo();
    /// LogoSettings.txt. A size over 2,880 twips is read as 1,440.
    void LoadLogoSettings();
    void SaveLogoSettings();
    /// DeliverySettings.txt.
    void LoadDeliverySettings();
    /// Writes DeliverySettings.txt and reads it back. A delivery charge that is no number fails.
    void SaveAppSettings();
    /// WorkDays.txt. An unknown code is read as Monday to Friday.
    void LoadWorkDays();
    void SaveWorkDay();
    /// Settings.txt. Loading overrules what Prompts.txt and WorkDays.txt put in the shared values,
    /// and leaves what the screen's check boxes and options show as it is.
    void LoadSettings();
    void SaveSettings();

private:
    BasicDiskRoutines& disk;
    LiveSettings& settings;
};
