#pragma once

#include "platform/Picture.h"
#include "setup/LiveSettings.h"
#include "store/BasicDiskRoutines.h"

/// Reads and writes the settings files. A missing file is a normal state with its own defaults; a
/// file that is cut short or holds a value of the wrong type is a failure that stops the program.
class SettingsStore {
public:
    SettingsStore(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings,
                  const PictureFiles& pictureFiles);

    /// MyBusinessData.txt, into the business data and the boxes that show it. Saving takes the
    /// boxes over.
    void LoadBusinessData();
    void SaveBusinessData();
    /// Prompts.txt. Saving is the only step that takes AlarmOn and PromptsOn from the check boxes.
    void LoadPrompts();
    void SavePrompts();
    /// PrintColors.txt. Its colour flag is overruled when DeliverySettings.txt is loaded.
    void LoadPrintColors();
    void SavePrintColors();
    /// TaxSettings.txt.
    void LoadTaxSettings();
    void SaveTaxSettings();
    /// CompanyLogo.txt and the picture that it names. A picture that has gone is no logo; a file
    /// that is no picture is a failure of kind BadPicture. Saving writes the size as well.
    void LoadCompanyLogo();
    void SaveCompanyLogo();
    /// Deletes CompanyLogo.txt; the size stays on disk.
    void DeleteCompanyLogo();
    /// LogoSettings.txt. A size over 2,880 twips is read as 1,440. Without a logo there is nothing
    /// to save.
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
    const PictureFiles& pictures;
};
