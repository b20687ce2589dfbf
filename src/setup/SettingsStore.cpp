#include "setup/SettingsStore.h"

#include "store/Calendar.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString businessDataFile = u"/MyBusinessData.txt"_s;
const QString settingsFile = u"/Settings.txt"_s;
const QString deliverySettingsFile = u"/DeliverySettings.txt"_s;
const QString taxSettingsFile = u"/TaxSettings.txt"_s;
const QString printColorsFile = u"/PrintColors.txt"_s;
const QString promptsFile = u"/Prompts.txt"_s;
const QString workDaysFile = u"/WorkDays.txt"_s;
const QString companyLogoFile = u"/CompanyLogo.txt"_s;
const QString logoSettingsFile = u"/LogoSettings.txt"_s;

constexpr float largestLogoSize = 2880;

float LogoSize(float size) {
    return size > largestLogoSize ? defaultLogoSize : size;
}

/// An amount box shows currency text; what is no number is left for the box to show as it is.
QString AmountBoxText(const QString& text) {
    return IsNumeric(text) ? CurrencyText(text, u"reading DeliverySettings.txt"_s) : text;
}

} // namespace

SettingsStore::SettingsStore(BasicDiskRoutines& diskRoutines, LiveSettings& liveSettings,
                             const PictureFiles& pictureFiles)
    : disk(diskRoutines), settings(liveSettings), pictures(pictureFiles) {}

void SettingsStore::LoadBusinessData() {
    settings.BusinessData.fill({});
    if (disk.FileExists(businessDataFile)) {
        disk.OpenForInput(businessDataFile);
        TextReader reader(disk);
        for (QString& field : settings.BusinessData)
            field = reader.Text();
        disk.CloseAllFiles();
    }
    settings.txtBusiness = settings.BusinessData;
}

void SettingsStore::SaveBusinessData() {
    settings.BusinessData = settings.txtBusiness;
    RecordLine line;
    for (const QString& field : settings.BusinessData)
        line.Text(field);
    WriteRecordLines(disk, businessDataFile, {line});
}

void SettingsStore::LoadPrompts() {
    settings.PromptsOn = true;
    settings.AlarmOn = true;
    if (disk.FileExists(promptsFile)) {
        disk.OpenForInput(promptsFile);
        TextReader reader(disk);
        settings.PromptsOn = reader.Boolean();
        settings.AlarmOn = reader.Boolean();
        disk.CloseAllFiles();
    }
    settings.ckPrompts = settings.PromptsOn;
    settings.ckAlarms = settings.AlarmOn;
}

void SettingsStore::SavePrompts() {
    settings.PromptsOn = settings.ckPrompts;
    settings.AlarmOn = settings.ckAlarms;
    // Only the file itself goes: a copy in Backup stays.
    disk.KillFile(promptsFile);
    WriteRecordLines(disk, promptsFile,
                     {RecordLine().Boolean(settings.PromptsOn).Boolean(settings.AlarmOn)});
}

void SettingsStore::LoadPrintColors() {
    if (disk.FileExists(printColorsFile)) {
        disk.OpenForInput(printColorsFile);
        TextReader reader(disk);
        settings.BorderColor = reader.Int32();
        settings.TextColor = reader.Int32();
        settings.DocumentFont = reader.Text();
        settings.PrintInColorFlag = reader.Boolean();
        settings.PrintCopies = reader.Byte();
        disk.CloseAllFiles();
    } else {
        settings.BorderColor = 0;
        settings.TextColor = 0;
        settings.DocumentFont = u"Arial"_s;
        settings.PrintInColorFlag = true;
        settings.PrintCopies = 3;
    }
    settings.cboCopies = QString::number(settings.PrintCopies);
    settings.printDialogCopies = settings.PrintCopies;
    settings.ckColor = settings.PrintInColorFlag ? 1 : 0;
    settings.CurrentPrintColor = quint32(settings.BorderColor);
}

void SettingsStore::SavePrintColors() {
    RewriteFile(disk, printColorsFile,
                {RecordLine().Number(settings.BorderColor), RecordLine().Number(settings.TextColor),
                 RecordLine().Text(settings.DocumentFont),
                 RecordLine().Boolean(settings.PrintInColorFlag),
                 RecordLine().Number(settings.PrintCopies)});
}

void SettingsStore::LoadTaxSettings() {
    if (!disk.FileExists(taxSettingsFile)) {
        settings.cboTaxHeading1 = u"Sales Tax"_s;
        settings.cboTaxHeading2 = u"Tax"_s;
        settings.cboRate1 = u"4.0"_s;
        settings.cboRate2 = u"4.0"_s;
        settings.ckApply1stTax = 0;
        settings.ckApply2ndTax = 0;
        return;
    }
    disk.OpenForInput(taxSettingsFile);
    TextReader reader(disk);
    settings.cboTaxHeading1 = reader.Text();
    settings.cboTaxHeading2 = reader.Text();
    settings.cboRate1 = reader.Text();
    settings.cboRate2 = reader.Text();
    settings.ckApply1stTax = reader.Int16();
    settings.ckApply2ndTax = reader.Int16();
    disk.CloseAllFiles();
}

void SettingsStore::SaveTaxSettings() {
    RewriteFile(disk, taxSettingsFile,
                {RecordLine()
                     .Text(settings.cboTaxHeading1)
                     .Text(settings.cboTaxHeading2)
                     .Text(settings.cboRate1)
                     .Text(settings.cboRate2)
                     .Number(settings.ckApply1stTax)
                     .Number(settings.ckApply2ndTax)});
}

void SettingsStore::LoadCompanyLogo() {
    settings.logoFile.clear();
    settings.logo = {};
    if (!disk.FileExists(companyLogoFile))
        return;
    disk.OpenForInput(companyLogoFile);
    settings.logoFile = TextReader(disk).Text();
    disk.CloseAllFiles();
    if (pictures.Exists(settings.logoFile))
        settings.logo = pictures.Load(settings.logoFile);
}

void SettingsStore::SaveCompanyLogo() {
    RewriteFile(disk, companyLogoFile, {RecordLine().Text(settings.logoFile)});
    SaveLogoSettings();
}

void SettingsStore::DeleteCompanyLogo() {
    disk.DeleteWithBackup(companyLogoFile);
}

void SettingsStore::LoadLogoSettings() {
    settings.logoWidth = defaultLogoSize;
    settings.logoHeight = defaultLogoSize;
    if (!disk.FileExists(logoSettingsFile)) {
        SaveLogoSettings();
        return;
    }
    disk.OpenForInput(logoSettingsFile);
    TextReader reader(disk);
    settings.logoWidth = LogoSize(reader.Single());
    settings.logoHeight = LogoSize(reader.Single());
    disk.CloseAllFiles();
}

void SettingsStore::SaveLogoSettings() {
    if (settings.logo.IsEmpty())
        return;
    WriteRecordLines(disk, logoSettingsFile,
                     {RecordLine().Single(settings.logoWidth).Single(settings.logoHeight)});
}

void SettingsStore::LoadDeliverySettings() {
    const QString zero = ZeroCurrencyText();
    if (!disk.FileExists(deliverySettingsFile)) {
        settings.ckColor = 0;
        settings.ckDelete = 1;
        settings.ckApplyGraduated = 0;
        settings.ckOnDay = 1;
        settings.ckPopulateInvoices = 0;
        settings.ckDeliveryCharge = 0;
        settings.optPlain = true;
        settings.optReturn = false;
        settings.txtGradulated = {zero, zero};
        settings.txtDeliveryCharge = zero;
        return;
    }
    disk.OpenForInput(deliverySettingsFile);
    TextReader reader(disk);
    settings.ckColor = reader.Byte();
    settings.ckDelete = reader.Byte();
    settings.ckApplyGraduated = reader.Byte();
    settings.ckOnDay = reader.Byte();
    settings.ckPopulateInvoices = reader.Byte();
    settings.ckDeliveryCharge = reader.Byte();
    settings.optPlain = reader.Boolean();
    settings.optReturn = reader.Boolean();
    // The two are options of one choice: switching the second on switches the first off.
    if (settings.optReturn)
        settings.optPlain = false;
    for (QString& amount : settings.txtGradulated)
        amount = AmountBoxText(reader.Text());
    settings.txtDeliveryCharge =
        CurrencyText(reader.Text(), u"reading field 11 of DeliverySettings.txt"_s);
    disk.CloseAllFiles();
}

void SettingsStore::SaveAppSettings() {
    RewriteFile(
        disk, deliverySettingsFile,
        {RecordLine()
             .Number(settings.ckColor)
             .Number(settings.ckDelete)
             .Number(settings.ckApplyGraduated)
             .Number(settings.ckOnDay)
             .Number(settings.ckPopulateInvoices)
             .Number(settings.ckDeliveryCharge)
             .Boolean(settings.optPlain)
             .Boolean(settings.optReturn)
             .Text(settings.txtGradulated[0])
             .Text(settings.txtGradulated[1])
             .Text(CurrencyText(settings.txtDeliveryCharge,
                                u"writing the delivery charge to DeliverySettings.txt"_s))});
    LoadDeliverySettings();
}

void SettingsStore::LoadWorkDays() {
    settings.WorkWeek = MondayToFriday;
    if (disk.FileExists(workDaysFile)) {
        disk.OpenForInput(workDaysFile);
        const qint16 code = TextReader(disk).Int16();
        disk.CloseAllFiles();
        if (code == MondayToSaturday || code == SundayToFriday || code == AllDays)
            settings.WorkWeek = code;
    }
    settings.shownWorkWeek = settings.WorkWeek;
}

void SettingsStore::SaveWorkDay() {
    RewriteFile(disk, workDaysFile, {RecordLine().Number(settings.WorkWeek)});
}

void SettingsStore::LoadSettings() {
    if (!disk.FileExists(settingsFile))
        return;
    disk.OpenForInput(settingsFile);
    TextReader reader(disk);
    settings.ReservedSetting = reader.Int16();
    settings.WorkWeek = reader.Int16();
    settings.AlarmOn = reader.Boolean();
    settings.PromptsOn = reader.Boolean();
    settings.CallerIdOn = reader.Boolean();
    disk.CloseAllFiles();
    // The modem was set up before this was known.
    if (settings.CallerIdOn)
        settings.lblCallid = true;
}

void SettingsStore::SaveSettings() {
    RewriteFile(disk, settingsFile,
                {RecordLine().Number(settings.ReservedSetting),
                 RecordLine().Number(settings.WorkWeek), RecordLine().Boolean(settings.AlarmOn),
                 RecordLine().Boolean(settings.PromptsOn),
                 RecordLine().Boolean(settings.CallerIdOn)});
}
