#include "setup/SettingsStore.h"

#include "support/OfficeTest.h"

#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A settings file as its format says: each field's bytes with the separator behind it.
struct SettingsFile {
    QString name;
    std::vector<QByteArray> fields;
    QByteArray separator;
    void (SettingsStore::*load)();
    void (SettingsStore::*save)();

    QByteArray Bytes(const std::vector<QByteArray>& values) const {
        QByteArray bytes;
        for (size_t i = 0; i + 1 < values.size(); ++i)
            bytes += values[i] + separator;
        return bytes + values.back() + "\r\n";
    }
    QByteArray Bytes() const { return Bytes(fields); }
    QByteArray With(size_t field, const QByteArray& value) const {
        std::vector<QByteArray> values = fields;
        values[field] = value;
        return Bytes(values);
    }
};

const SettingsFile businessData = {u"MyBusinessData.txt"_s,
                                   {"\"Corner Dairy\"", "\"12 Mill Road\"", "\"\"",
                                    "\"Springfield\"", "\"IL\"", "\"62704\"", "\"217-555-0199\"",
                                    "\"\"", "\"FEIN 00-0000000\""},
                                   ",",
                                   &SettingsStore::LoadBusinessData,
                                   &SettingsStore::SaveBusinessData};
const SettingsFile settingsTxt = {u"Settings.txt"_s,
                                  {"9", "61", "#FALSE#", "#TRUE#", "#TRUE#"},
                                  "\r\n",
                                  &SettingsStore::LoadSettings,
                                  &SettingsStore::SaveSettings};
const SettingsFile deliverySettings = {
    u"DeliverySettings.txt"_s,
    {"1", "0", "1", "0", "1", "1", "#FALSE#", "#TRUE#", "\"$1,000.00\"", "\"$2.50\"", "\"$12.50\""},
    ",",
    &SettingsStore::LoadDeliverySettings,
    &SettingsStore::SaveAppSettings};
const SettingsFile taxSettings = {
    u"TaxSettings.txt"_s,
    {"\"Sales Tax\"", "\"County Tax\"", "\"6.25\"", "\"1,5\"", "1", "0"},
    ",",
    &SettingsStore::LoadTaxSettings,
    &SettingsStore::SaveTaxSettings};
const SettingsFile printColors = {u"PrintColors.txt"_s,
                                  {"16711680", "255", "\"Courier New\"", "#FALSE#", "2"},
                                  "\r\n",
                                  &SettingsStore::LoadPrintColors,
                                  &SettingsStore::SavePrintColors};
const SettingsFile prompts = {u"Prompts.txt"_s,
                              {"#TRUE#", "#FALSE#"},
                              ",",
                              &SettingsStore::LoadPrompts,
                              &SettingsStore::SavePrompts};
const SettingsFile workDays = {
    u"WorkDays.txt"_s, {"62"}, ",", &SettingsStore::LoadWorkDays, &SettingsStore::SaveWorkDay};
const SettingsFile companyLogo = {u"CompanyLogo.txt"_s,
                                  {"\"/home/dairy/Logo, gr\xfcn.bmp\""},
                                  ",",
                                  &SettingsStore::LoadCompanyLogo,
                                  &SettingsStore::SaveCompanyLogo};
const SettingsFile logoSettings = {u"LogoSettings.txt"_s,
                                   {"1500.5", "2880"},
                                   ",",
                                   &SettingsStore::LoadLogoSettings,
                                   &SettingsStore::SaveLogoSettings};

const std::vector<SettingsFile>& AllFiles() {
    static const std::vector<SettingsFile> files = {businessData, settingsTxt, deliverySettings,
                                                    taxSettings,  printColors, prompts,
                                                    workDays,     companyLogo, logoSettings};
    return files;
}

} // namespace

class SettingsStoreTest : public OfficeTest {
protected:
    SettingsStore& store = office.settingsStore;
    LiveSettings& live = office.settings;

    void Load(const SettingsFile& file) { (store.*file.load)(); }
    void Save(const SettingsFile& file) { (store.*file.save)(); }

    /// A program's start as far as the settings are concerned.
    void Restart() {
        live = LiveSettings();
        office.setup.LoadAll();
        store.LoadSettings();
    }

    /// Values that are the default nowhere, the same as in the files above.
    void SetEverything() {
        live.txtBusiness = {u"Corner Dairy"_s, u"12 Mill Road"_s, QString(),
                            u"Springfield"_s,  u"IL"_s,           u"62704"_s,
                            u"217-555-0199"_s, QString(),         u"FEIN 00-0000000"_s};
        live.ReservedSetting = 9;
        live.WorkWeek = 61;
        live.AlarmOn = false;
        live.PromptsOn = true;
        live.CallerIdOn = true;
        live.ckPrompts = true;
        live.ckAlarms = false;
        live.ckColor = 1;
        live.ckDelete = 0;
        live.ckApplyGraduated = 1;
        live.ckOnDay = 0;
        live.ckPopulateInvoices = 1;
        live.ckDeliveryCharge = 1;
        live.optPlain = false;
        live.optReturn = true;
        live.txtGradulated = {u"$1,000.00"_s, u"$2.50"_s};
        live.txtDeliveryCharge = u"12.5"_s;
        live.cboTaxHeading1 = u"Sales Tax"_s;
        live.cboTaxHeading2 = u"County Tax"_s;
        live.cboRate1 = u"6.25"_s;
        live.cboRate2 = u"1,5"_s;
        live.ckApply1stTax = 1;
        live.ckApply2ndTax = 0;
        live.BorderColor = 0xff0000;
        live.TextColor = 0x0000ff;
        live.DocumentFont = u"Courier New"_s;
        live.PrintInColorFlag = false;
        live.PrintCopies = 2;
        live.logoFile = u"/home/dairy/Logo, gr\u00fcn.bmp"_s;
        live.logo = {nullptr, 1500, 1500};
        live.logoWidth = 1500.5F;
        live.logoHeight = 2880;
    }

    void SaveEverything() {
        for (const SettingsFile& file : AllFiles())
            Save(file);
    }

    /// The values of the eight files that the setup screen loads, when all are missing.
    void ExpectDefaults() const {
        EXPECT_EQ(live.BusinessData, (std::array<QString, 9>()));
        EXPECT_EQ(live.WorkWeek, 5);
        EXPECT_EQ(live.shownWorkWeek, 5);
        EXPECT_TRUE(live.AlarmOn);
        EXPECT_TRUE(live.PromptsOn);
        EXPECT_TRUE(live.ckPrompts);
        EXPECT_TRUE(live.ckAlarms);
        EXPECT_EQ(live.ckColor, 0);
        EXPECT_EQ(live.ckDelete, 1);
        EXPECT_EQ(live.ckApplyGraduated, 0);
        EXPECT_EQ(live.ckOnDay, 1);
        EXPECT_EQ(live.ckPopulateInvoices, 0);
        EXPECT_EQ(live.ckDeliveryCharge, 0);
        EXPECT_TRUE(live.optPlain);
        EXPECT_FALSE(live.optReturn);
        EXPECT_EQ(live.txtGradulated[0], u"$0.00"_s);
        EXPECT_EQ(live.txtGradulated[1], u"$0.00"_s);
        EXPECT_EQ(live.txtDeliveryCharge, u"$0.00"_s);
        EXPECT_EQ(live.cboTaxHeading1, u"Sales Tax"_s);
        EXPECT_EQ(live.cboTaxHeading2, u"Tax"_s);
        EXPECT_EQ(live.cboRate1, u"4.0"_s);
        EXPECT_EQ(live.cboRate2, u"4.0"_s);
        EXPECT_EQ(live.ckApply1stTax, 0);
        EXPECT_EQ(live.ckApply2ndTax, 0);
        EXPECT_EQ(live.BorderColor, 0);
        EXPECT_EQ(live.TextColor, 0);
        EXPECT_EQ(live.CurrentPrintColor, 0U);
        EXPECT_EQ(live.DocumentFont, u"Arial"_s);
        EXPECT_TRUE(live.PrintInColorFlag);
        EXPECT_EQ(live.PrintCopies, 3);
        EXPECT_EQ(live.logoFile, QString());
        EXPECT_EQ(live.logoWidth, 1440);
        EXPECT_EQ(live.logoHeight, 1440);
    }

    void ExpectTheEightFilesWithoutAmounts() const {
        EXPECT_EQ(folder.Read(u"MyBusinessData.txt"_s),
                  "\"Corner Dairy\",\"12 Mill Road\",\"\",\"Springfield\",\"IL\",\"62704\","
                  "\"217-555-0199\",\"\",\"FEIN 00-0000000\"\r\n");
        EXPECT_EQ(folder.Read(u"Settings.txt"_s), "9\r\n61\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n");
        EXPECT_EQ(folder.Read(u"TaxSettings.txt"_s),
                  "\"Sales Tax\",\"County Tax\",\"6.25\",\"1,5\",1,0\r\n");
        EXPECT_EQ(folder.Read(u"PrintColors.txt"_s),
                  "16711680\r\n255\r\n\"Courier New\"\r\n#FALSE#\r\n2\r\n");
        EXPECT_EQ(folder.Read(u"Prompts.txt"_s), "#TRUE#,#FALSE#\r\n");
        EXPECT_EQ(folder.Read(u"WorkDays.txt"_s), "61\r\n");
        EXPECT_EQ(folder.Read(u"CompanyLogo.txt"_s), "\"/home/dairy/Logo, gr\xfcn.bmp\"\r\n");
        EXPECT_EQ(folder.Read(u"LogoSettings.txt"_s), "1500.5,2880\r\n");
    }

    RuntimeFailure FailureOfLoading(const SettingsFile& file, const QByteArray& bytes) {
        folder.Write(file.name, bytes);
        return FailureOf([&] { Load(file); });
    }
};

// Defaults.

TEST_F(SettingsStoreTest, FolderWithoutFilesStartsWithTheDefaults) {
    Restart();
    ExpectDefaults();
    EXPECT_EQ(live.ReservedSetting, 8);
    EXPECT_FALSE(live.CallerIdOn);
    EXPECT_FALSE(live.ckCallerID);
    EXPECT_EQ(live.cmdAddress, u"USA Style Address"_s);
}

TEST_F(SettingsStoreTest, LoadingMakesNoFile) {
    const QStringList before = folder.Everything();
    Restart();
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(SettingsStoreTest, MissingFilesPutTheirDefaultsInThePlaceOfWhatWasThere) {
    SetEverything();
    live.shownWorkWeek = 62;
    live.CurrentPrintColor = 0xff0000;
    office.setup.LoadAll();
    ExpectDefaults();
    // Settings.txt is no part of what the setup screen loads.
    EXPECT_EQ(live.ReservedSetting, 9);
    EXPECT_TRUE(live.CallerIdOn);
}

TEST_F(SettingsStoreTest, ZeroAmountsAreInTheRegionsCurrencyForm) {
    UseLocale("de_DE");
    Restart();
    EXPECT_EQ(live.txtGradulated[0], u"0,00\u00a0\u20ac"_s);
    EXPECT_EQ(live.txtGradulated[1], u"0,00\u00a0\u20ac"_s);
    EXPECT_EQ(live.txtDeliveryCharge, u"0,00\u00a0\u20ac"_s);
}

// The files, byte for byte.

TEST_F(SettingsStoreTest, NineFilesOfAUnitedStatesOffice) {
    SetEverything();
    SaveEverything();
    ExpectTheEightFilesWithoutAmounts();
    EXPECT_EQ(folder.Read(u"DeliverySettings.txt"_s),
              "1,0,1,0,1,1,#FALSE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
}

TEST_F(SettingsStoreTest, NineFilesOfAGermanOffice) {
    UseLocale("de_DE");
    SetEverything();
    live.txtGradulated = {u"1.000,00\u00a0\u20ac"_s, u"2,5"_s};
    live.txtDeliveryCharge = u"1234,5"_s;
    SaveEverything();
    ExpectTheEightFilesWithoutAmounts();
    EXPECT_EQ(folder.Read(u"DeliverySettings.txt"_s),
              "1,0,1,0,1,1,#FALSE#,#TRUE#,\"1.000,00\xa0\x80\",\"2,5\",\"1.234,50\xa0\x80\"\r\n");
}

TEST_F(SettingsStoreTest, DefaultsAreSavedAsTheyStand) {
    Restart();
    SaveEverything();
    EXPECT_EQ(folder.Read(u"MyBusinessData.txt"_s),
              "\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(folder.Read(u"DeliverySettings.txt"_s),
              "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    EXPECT_EQ(folder.Read(u"TaxSettings.txt"_s), "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    EXPECT_EQ(folder.Read(u"PrintColors.txt"_s), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    EXPECT_EQ(folder.Read(u"Prompts.txt"_s), "#TRUE#,#TRUE#\r\n");
    EXPECT_EQ(folder.Read(u"WorkDays.txt"_s), "5\r\n");
    EXPECT_EQ(folder.Read(u"CompanyLogo.txt"_s), "\"\"\r\n");
    EXPECT_FALSE(folder.Has(u"LogoSettings.txt"_s));
}

TEST_F(SettingsStoreTest, EveryFieldIsReadIntoItsValue) {
    for (const SettingsFile& file : AllFiles())
        folder.Write(file.name, file.Bytes());
    Restart();
    EXPECT_EQ(live.BusinessData[0], u"Corner Dairy"_s);
    EXPECT_EQ(live.BusinessData[1], u"12 Mill Road"_s);
    EXPECT_EQ(live.BusinessData[2], QString());
    EXPECT_EQ(live.BusinessData[3], u"Springfield"_s);
    EXPECT_EQ(live.BusinessData[4], u"IL"_s);
    EXPECT_EQ(live.BusinessData[5], u"62704"_s);
    EXPECT_EQ(live.BusinessData[6], u"217-555-0199"_s);
    EXPECT_EQ(live.BusinessData[7], QString());
    EXPECT_EQ(live.BusinessData[8], u"FEIN 00-0000000"_s);
    EXPECT_EQ(live.ReservedSetting, 9);
    EXPECT_EQ(live.WorkWeek, 61);
    EXPECT_EQ(live.shownWorkWeek, 62);
    EXPECT_FALSE(live.AlarmOn);
    EXPECT_TRUE(live.PromptsOn);
    EXPECT_TRUE(live.CallerIdOn);
    EXPECT_TRUE(live.ckPrompts);
    EXPECT_FALSE(live.ckAlarms);
    EXPECT_EQ(live.ckColor, 1);
    EXPECT_EQ(live.ckDelete, 0);
    EXPECT_EQ(live.ckApplyGraduated, 1);
    EXPECT_EQ(live.ckOnDay, 0);
    EXPECT_EQ(live.ckPopulateInvoices, 1);
    EXPECT_EQ(live.ckDeliveryCharge, 1);
    EXPECT_FALSE(live.optPlain);
    EXPECT_TRUE(live.optReturn);
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$2.50"_s);
    EXPECT_EQ(live.txtDeliveryCharge, u"$12.50"_s);
    EXPECT_EQ(live.cboTaxHeading1, u"Sales Tax"_s);
    EXPECT_EQ(live.cboTaxHeading2, u"County Tax"_s);
    EXPECT_EQ(live.cboRate1, u"6.25"_s);
    EXPECT_EQ(live.cboRate2, u"1,5"_s);
    EXPECT_EQ(live.ckApply1stTax, 1);
    EXPECT_EQ(live.ckApply2ndTax, 0);
    EXPECT_EQ(live.BorderColor, 0xff0000);
    EXPECT_EQ(live.TextColor, 0x0000ff);
    EXPECT_EQ(live.CurrentPrintColor, 0xff0000U);
    EXPECT_EQ(live.DocumentFont, u"Courier New"_s);
    EXPECT_FALSE(live.PrintInColorFlag);
    EXPECT_EQ(live.PrintCopies, 2);
    EXPECT_EQ(live.logoFile, u"/home/dairy/Logo, gr\u00fcn.bmp"_s);
    EXPECT_EQ(live.logoWidth, 1500.5F);
    EXPECT_EQ(live.logoHeight, 2880);
}

TEST_F(SettingsStoreTest, SixFlagsOfTheDeliverySettingsStandInTheirOrder) {
    quint8 LiveSettings::*const flags[] = {
        &LiveSettings::ckColor, &LiveSettings::ckDelete,           &LiveSettings::ckApplyGraduated,
        &LiveSettings::ckOnDay, &LiveSettings::ckPopulateInvoices, &LiveSettings::ckDeliveryCharge};
    const SettingsFile& file = deliverySettings;
    const std::vector<QByteArray> unticked = {
        "0", "0", "0", "0", "0", "0", "#FALSE#", "#FALSE#", "\"$0.00\"", "\"$0.00\"", "\"$0.00\""};
    for (size_t ticked = 0; ticked < 6; ++ticked) {
        std::vector<QByteArray> fields = unticked;
        fields[ticked] = "1";
        folder.Write(file.name, file.Bytes(fields));
        Load(file);
        for (size_t i = 0; i < 6; ++i)
            EXPECT_EQ(live.*flags[i], i == ticked ? 1 : 0) << ticked << ' ' << i;
        EXPECT_FALSE(live.optPlain);
        EXPECT_FALSE(live.optReturn);
        Save(file);
        EXPECT_EQ(folder.Read(file.name), file.Bytes(fields));
    }
}

TEST_F(SettingsStoreTest, TaxFlagsStandInTheirOrder) {
    folder.Write(taxSettings.name, "\"A\",\"B\",\"1\",\"2\",0,1\r\n");
    Load(taxSettings);
    EXPECT_EQ(live.ckApply1stTax, 0);
    EXPECT_EQ(live.ckApply2ndTax, 1);
    Save(taxSettings);
    EXPECT_EQ(folder.Read(taxSettings.name), "\"A\",\"B\",\"1\",\"2\",0,1\r\n");
}

TEST_F(SettingsStoreTest, RateIsStoredWithItsComma) {
    for (const char* locale : {"en_US", "de_DE"}) {
        UseLocale(locale);
        Restart();
        live.cboRate1 = u"5,0"_s;
        live.cboRate2 = u"5.0"_s;
        Save(taxSettings);
        EXPECT_EQ(folder.Read(taxSettings.name), "\"Sales Tax\",\"Tax\",\"5,0\",\"5.0\",0,0\r\n");
        live.cboRate1.clear();
        Load(taxSettings);
        EXPECT_EQ(live.cboRate1, u"5,0"_s);
        folder.Remove(taxSettings.name);
    }
}

TEST_F(SettingsStoreTest, ReadersDoNotCareAboutLineBreaks) {
    folder.Write(settingsTxt.name, "9,61,#FALSE#,#TRUE#,#TRUE#\r\n");
    folder.Write(prompts.name, " #FALSE#\r\n  #TRUE#");
    Restart();
    EXPECT_EQ(live.ReservedSetting, 9);
    EXPECT_EQ(live.WorkWeek, 61);
    EXPECT_TRUE(live.CallerIdOn);
    EXPECT_FALSE(live.ckPrompts);
    EXPECT_TRUE(live.ckAlarms);
}

TEST_F(SettingsStoreTest, ReservedSettingIsKeptAndRewrittenUnchanged) {
    folder.Write(settingsTxt.name, "-32768\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    Restart();
    Save(settingsTxt);
    EXPECT_EQ(folder.Read(settingsTxt.name), "-32768\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsStoreTest, ColoursTakeThirtyTwoBits) {
    folder.Write(printColors.name, "2147483647\r\n-2147483648\r\n\"Arial\"\r\n#TRUE#\r\n255\r\n");
    Load(printColors);
    EXPECT_EQ(live.BorderColor, 2147483647);
    EXPECT_EQ(live.TextColor, -2147483647 - 1);
    EXPECT_EQ(live.PrintCopies, 255);
    Save(printColors);
    EXPECT_EQ(folder.Read(printColors.name),
              "2147483647\r\n-2147483648\r\n\"Arial\"\r\n#TRUE#\r\n255\r\n");
}

// What is deleted before a file is written, and what Backup brings back.

TEST_F(SettingsStoreTest, SixFilesTakeTheirBackupCopyWithThem) {
    SetEverything();
    for (const SettingsFile& file :
         {deliverySettings, settingsTxt, workDays, printColors, taxSettings, companyLogo}) {
        folder.Write(file.name, "old");
        folder.Write(u"Backup/"_s + file.name, "older");
        Save(file);
        EXPECT_FALSE(folder.Has(u"Backup/"_s + file.name)) << file.name.toStdString();
    }
}

TEST_F(SettingsStoreTest, ThreeFilesLeaveTheirBackupCopy) {
    SetEverything();
    for (const SettingsFile& file : {prompts, businessData, logoSettings}) {
        folder.Write(file.name, QByteArray(900, 'x'));
        folder.Write(u"Backup/"_s + file.name, "older");
        Save(file);
        EXPECT_EQ(folder.Read(u"Backup/"_s + file.name), "older") << file.name.toStdString();
        EXPECT_EQ(folder.Read(file.name), file.Bytes()) << file.name.toStdString();
    }
}

TEST_F(SettingsStoreTest, TwoFilesAreReplacedInPlaceAndTheOthersMadeAnew) {
    SetEverything();
    live.WorkWeek = 62;
    for (const SettingsFile& file : AllFiles()) {
        folder.Write(file.name, "old");
        // A second name of the same file shows whether the file was replaced or written into.
        const QByteArray path = folder.PathOf(file.name).toUtf8();
        const QByteArray secondName = folder.PathOf(file.name + u".link"_s).toUtf8();
        ASSERT_EQ(::link(path.constData(), secondName.constData()), 0);
        Save(file);
        const bool inPlace = file.name == businessData.name || file.name == logoSettings.name;
        EXPECT_EQ(folder.Read(file.name + u".link"_s) != "old", inPlace) << file.name.toStdString();
    }
}

TEST_F(SettingsStoreTest, EveryFileIsBroughtBackFromBackup) {
    for (const SettingsFile& file : AllFiles())
        folder.Write(u"Backup/"_s + file.name, file.Bytes());
    Restart();
    for (const SettingsFile& file : AllFiles()) {
        EXPECT_EQ(folder.Read(file.name), file.Bytes());
        EXPECT_EQ(folder.Read(u"Backup/"_s + file.name), file.Bytes());
    }
    EXPECT_EQ(live.BusinessData[0], u"Corner Dairy"_s);
    EXPECT_EQ(live.WorkWeek, 61);
    EXPECT_EQ(live.shownWorkWeek, 62);
    EXPECT_EQ(live.ckDelete, 0);
    EXPECT_EQ(live.cboRate1, u"6.25"_s);
    EXPECT_EQ(live.DocumentFont, u"Courier New"_s);
    EXPECT_FALSE(live.ckAlarms);
    EXPECT_EQ(live.logoFile, u"/home/dairy/Logo, gr\u00fcn.bmp"_s);
    EXPECT_EQ(live.logoHeight, 2880);
}

TEST_F(SettingsStoreTest, SavingClosesAllFiles) {
    SetEverything();
    folder.Write(u"other.txt"_s, "x");
    for (const SettingsFile& file : AllFiles()) {
        office.disk.OpenForInput(u"/other.txt"_s);
        const qint16 other = office.disk.DiskFile;
        Save(file);
        EXPECT_EQ(FailureOf([&] { office.disk.InputOn(other); }).Kind(), FailureKind::FileNotOpen)
            << file.name.toStdString();
    }
}

TEST_F(SettingsStoreTest, LoadingLeavesNoFileOpen) {
    for (const SettingsFile& file : AllFiles()) {
        folder.Write(file.name, file.Bytes());
        office.disk.DiskFile = 0;
        Load(file);
        EXPECT_NE(office.disk.DiskFile, 0) << file.name.toStdString();
        EXPECT_EQ(FailureOf([&] { office.disk.InputOn(office.disk.DiskFile); }).Kind(),
                  FailureKind::FileNotOpen)
            << file.name.toStdString();
    }
}

// The two copies of a setting.

TEST_F(SettingsStoreTest, SettingsFileOverrulesSharedValuesAndLeavesWhatTheScreenShows) {
    folder.Write(workDays.name, "5\r\n");
    folder.Write(prompts.name, "#TRUE#,#FALSE#\r\n");
    folder.Write(settingsTxt.name, "8\r\n7\r\n#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n");
    Restart();
    EXPECT_EQ(live.WorkWeek, 7);
    EXPECT_EQ(live.shownWorkWeek, 5);
    EXPECT_TRUE(live.AlarmOn);
    EXPECT_FALSE(live.ckAlarms);
    EXPECT_FALSE(live.PromptsOn);
    EXPECT_TRUE(live.ckPrompts);
}

TEST_F(SettingsStoreTest, WithoutTheSettingsFileTheOtherTwoRule) {
    folder.Write(workDays.name, "61\r\n");
    folder.Write(prompts.name, "#FALSE#,#TRUE#\r\n");
    Restart();
    EXPECT_EQ(live.ReservedSetting, 8);
    EXPECT_EQ(live.WorkWeek, 61);
    EXPECT_FALSE(live.PromptsOn);
    EXPECT_TRUE(live.AlarmOn);
    EXPECT_FALSE(live.CallerIdOn);
}

TEST_F(SettingsStoreTest, WorkWeekOfTheSettingsFileRulesTheDatesAndTheNextSaveWritesItToBoth) {
    folder.Write(workDays.name, "5\r\n");
    folder.Write(settingsTxt.name, "8\r\n7\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    Restart();
    QDate saturday(2026, 3, 14);
    EXPECT_EQ(office.calendar.NextAvailableWorkDay(saturday), QDate(2026, 3, 14));
    EXPECT_EQ(live.shownWorkWeek, 5);
    Save(settingsTxt);
    Save(workDays);
    EXPECT_EQ(folder.Read(settingsTxt.name), "8\r\n7\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(folder.Read(workDays.name), "7\r\n");
}

TEST_F(SettingsStoreTest, ChangedCheckBoxReachesTheSettingsFileOneSaveLate) {
    Restart();
    live.ckPrompts = false;
    live.ckAlarms = false;
    Save(settingsTxt);
    EXPECT_TRUE(live.PromptsOn);
    EXPECT_TRUE(live.AlarmOn);
    Save(prompts);
    EXPECT_FALSE(live.PromptsOn);
    EXPECT_FALSE(live.AlarmOn);
    EXPECT_EQ(folder.Read(settingsTxt.name), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(folder.Read(prompts.name), "#FALSE#,#FALSE#\r\n");
    Save(settingsTxt);
    Save(prompts);
    EXPECT_EQ(folder.Read(settingsTxt.name), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    Restart();
    EXPECT_FALSE(live.PromptsOn);
    EXPECT_FALSE(live.AlarmOn);
}

TEST_F(SettingsStoreTest, UntickedPromptsSavedOnceShowUntickedButRuleAgainAfterARestart) {
    Restart();
    live.ckPrompts = false;
    Save(settingsTxt);
    Save(prompts);
    EXPECT_FALSE(live.PromptsOn);
    Restart();
    EXPECT_FALSE(live.ckPrompts);
    EXPECT_TRUE(live.PromptsOn);
    EXPECT_TRUE(live.ckAlarms);
    EXPECT_TRUE(live.AlarmOn);
}

TEST_F(SettingsStoreTest, PromptsStandBeforeAlarmInOneFileAndBehindItInTheOther) {
    Restart();
    live.ckPrompts = false;
    Save(prompts);
    EXPECT_EQ(folder.Read(prompts.name), "#FALSE#,#TRUE#\r\n");
    Save(settingsTxt);
    EXPECT_EQ(folder.Read(settingsTxt.name), "8\r\n5\r\n#TRUE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsStoreTest, CallerIdSurvivesWhileItsBoxStartsUnticked) {
    folder.Write(settingsTxt.name, "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
    Restart();
    EXPECT_TRUE(live.CallerIdOn);
    EXPECT_FALSE(live.ckCallerID);
    Save(settingsTxt);
    EXPECT_EQ(folder.Read(settingsTxt.name), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
}

// Work days, colours, logo, amounts.

TEST_F(SettingsStoreTest, EveryWorkWeekCodeIsReadAndShown) {
    for (const qint16 code : {qint16(5), qint16(61), qint16(62), qint16(7)}) {
        const QByteArray bytes = QByteArray::number(code) + "\r\n";
        folder.Write(workDays.name, bytes);
        Load(workDays);
        EXPECT_EQ(live.WorkWeek, code);
        EXPECT_EQ(live.shownWorkWeek, code);
        Save(workDays);
        EXPECT_EQ(folder.Read(workDays.name), bytes);
    }
}

TEST_F(SettingsStoreTest, UnknownWorkWeekIsFiveAndTheNextSaveWritesFive) {
    for (const QByteArray& bytes : {QByteArray("6\r\n"), QByteArray("0\r\n"), QByteArray("-7\r\n"),
                                    QByteArray("32767\r\n")}) {
        live.WorkWeek = 62;
        folder.Write(workDays.name, bytes);
        Restart();
        EXPECT_EQ(live.WorkWeek, 5) << bytes.toStdString();
        EXPECT_EQ(live.shownWorkWeek, 5);
        Save(workDays);
        EXPECT_EQ(folder.Read(workDays.name), "5\r\n");
    }
}

TEST_F(SettingsStoreTest, UnknownWorkWeekIsSavedAsFiveToTheSettingsFileToo) {
    folder.Write(workDays.name, "6\r\n");
    Restart();
    Save(settingsTxt);
    EXPECT_EQ(folder.Read(settingsTxt.name), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsStoreTest, UnknownWorkWeekInTheSettingsFileIsNotCorrected) {
    folder.Write(settingsTxt.name, "8\r\n6\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    Restart();
    EXPECT_EQ(live.WorkWeek, 6);
}

TEST_F(SettingsStoreTest, ColourFlagIsOverruledByTheDeliverySettings) {
    folder.Write(printColors.name, "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    Load(printColors);
    EXPECT_EQ(live.ckColor, 1);
    office.setup.LoadAll();
    EXPECT_EQ(live.ckColor, 0);
    folder.Write(printColors.name, "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n3\r\n");
    folder.Write(deliverySettings.name, deliverySettings.Bytes());
    Load(printColors);
    EXPECT_EQ(live.ckColor, 0);
    office.setup.LoadAll();
    EXPECT_EQ(live.ckColor, 1);
}

TEST_F(SettingsStoreTest, ColourFlagStaysAtItsFirstValueWhateverTheBoxShows) {
    Restart();
    live.ckColor = 0;
    Save(printColors);
    EXPECT_EQ(folder.Read(printColors.name), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    folder.Write(printColors.name, "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n3\r\n");
    Restart();
    live.ckColor = 1;
    Save(printColors);
    EXPECT_EQ(folder.Read(printColors.name), "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n3\r\n");
}

TEST_F(SettingsStoreTest, PrintDialogTakesTheCopiesWhenTheyAreReadAndNotWhenTheyAreSaved) {
    Load(printColors);
    EXPECT_EQ(live.printDialogCopies, 3);
    folder.Write(printColors.name, printColors.Bytes());
    Load(printColors);
    EXPECT_EQ(live.printDialogCopies, 2);
    EXPECT_EQ(live.cboCopies, u"2"_s);
    live.PrintCopies = 5;
    Save(printColors);
    EXPECT_EQ(live.printDialogCopies, 2);
    Load(printColors);
    EXPECT_EQ(live.printDialogCopies, 5);
}

TEST_F(SettingsStoreTest, LogoSizeAbove2880IsReadAs1440WidthAndHeightApart) {
    const std::vector<std::tuple<QByteArray, float, float>> rows = {
        {"3000,2000\r\n", 1440.0F, 2000.0F},
        {"2000,3000\r\n", 2000.0F, 1440.0F},
        {"2880,2880\r\n", 2880.0F, 2880.0F},
        {"2880.5,2881\r\n", 1440.0F, 1440.0F}};
    for (const auto& [bytes, width, height] : rows) {
        folder.Write(logoSettings.name, bytes);
        Load(logoSettings);
        EXPECT_EQ(live.logoWidth, width) << bytes.toStdString();
        EXPECT_EQ(live.logoHeight, height) << bytes.toStdString();
    }
}

TEST_F(SettingsStoreTest, LogoSizeHasAPointInEveryRegion) {
    UseLocale("de_DE");
    folder.Write(logoSettings.name, "1440.5,1500.25\r\n");
    Load(logoSettings);
    EXPECT_EQ(live.logoWidth, 1440.5F);
    EXPECT_EQ(live.logoHeight, 1500.25F);
    folder.Write(logoSettings.name, "\"1440.5\",\"900\"\r\n");
    Load(logoSettings);
    EXPECT_EQ(live.logoWidth, 1440.5F);
    EXPECT_EQ(live.logoHeight, 900);
}

TEST_F(SettingsStoreTest, AmountsEndAsCurrencyTextWhenLoaded) {
    folder.Write(deliverySettings.name,
                 "0,1,0,1,0,0,#TRUE#,#FALSE#,\"1000\",\"2.505\",\"12.5\"\r\n");
    Load(deliverySettings);
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$2.51"_s);
    EXPECT_EQ(live.txtDeliveryCharge, u"$12.50"_s);
}

TEST_F(SettingsStoreTest, SavingShowsWhatTheFileHolds) {
    Restart();
    live.txtGradulated = {u"1000"_s, u"2.5"_s};
    live.txtDeliveryCharge = u"12.5"_s;
    store.SaveAppSettings();
    EXPECT_EQ(folder.Read(deliverySettings.name),
              "0,1,0,1,0,0,#TRUE#,#FALSE#,\"1000\",\"2.5\",\"$12.50\"\r\n");
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$2.50"_s);
    EXPECT_EQ(live.txtDeliveryCharge, u"$12.50"_s);
}

TEST_F(SettingsStoreTest, GraduatedAmountThatIsNoNumberIsKeptAsItStands) {
    folder.Write(deliverySettings.name, "0,1,0,1,0,0,#TRUE#,#FALSE#,\"abc\",\"\",\"$0.00\"\r\n");
    Load(deliverySettings);
    EXPECT_EQ(live.txtGradulated[0], u"abc"_s);
    EXPECT_EQ(live.txtGradulated[1], QString());
    Save(deliverySettings);
    EXPECT_EQ(folder.Read(deliverySettings.name),
              "0,1,0,1,0,0,#TRUE#,#FALSE#,\"abc\",\"\",\"$0.00\"\r\n");
}

TEST_F(SettingsStoreTest, DeliveryChargeThatIsNoNumberFailsAtLoadingAndAtSaving) {
    const RuntimeFailure loading = FailureOfLoading(
        deliverySettings, "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"abc\"\r\n");
    EXPECT_EQ(loading.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(loading.Sentence(),
              u"The text \"abc\" is not a number (reading field 11 of DeliverySettings.txt)."_s);
    folder.Remove(deliverySettings.name);
    Restart();
    live.txtDeliveryCharge = QString();
    const RuntimeFailure saving = FailureOf([&] { store.SaveAppSettings(); });
    EXPECT_EQ(saving.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(saving.Sentence(), u"The text \"\" is not a number (writing the delivery charge to "
                                 "DeliverySettings.txt)."_s);
}

TEST_F(SettingsStoreTest, DeliveryChargeThatIsNoNumberLeavesTheFileAndItsCopyAsTheyWere) {
    Restart();
    folder.Write(deliverySettings.name, deliverySettings.Bytes());
    folder.Write(u"Backup/DeliverySettings.txt"_s, "older");
    live.txtDeliveryCharge = u"twelve"_s;
    EXPECT_EQ(FailureOf([&] { store.SaveAppSettings(); }).Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(folder.Read(deliverySettings.name), deliverySettings.Bytes());
    EXPECT_EQ(folder.Read(u"Backup/DeliverySettings.txt"_s), "older");
}

TEST_F(SettingsStoreTest, AmountsOfAnotherRegionFailAtTheDeliveryChargeAlone) {
    UseLocale("de_DE");
    const RuntimeFailure failure = FailureOfLoading(
        deliverySettings, "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(),
              u"The text \"$0.00\" is not a number (reading field 11 of DeliverySettings.txt)."_s);
    folder.Write(deliverySettings.name,
                 "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$1,000.00\",\"$2.50\",\"12,5\"\r\n");
    Load(deliverySettings);
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$2.50"_s);
    EXPECT_EQ(live.txtDeliveryCharge, u"12,50\u00a0\u20ac"_s);
}

TEST_F(SettingsStoreTest, AmountBeyondTheCurrencyRangeFailsByName) {
    const QByteArray start = "0,1,0,1,0,0,#TRUE#,#FALSE#,";
    for (const char* amounts :
         {"\"9E30\",\"$0.00\",\"$0.00\"\r\n", "\"$0.00\",\"9E30\",\"$0.00\"\r\n",
          "\"$0.00\",\"$0.00\",\"9E30\"\r\n"}) {
        const RuntimeFailure failure = FailureOfLoading(deliverySettings, start + amounts);
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow) << amounts;
        EXPECT_TRUE(failure.Sentence().contains(u"DeliverySettings.txt"_s)) << failure.what();
    }
}

TEST_F(SettingsStoreTest, BusinessDataIsTakenAsItStands) {
    live.txtBusiness[0] = u" Gr\u00fcn, Wei\u00df & Co \u20ac \u4e2d "_s;
    Save(businessData);
    EXPECT_EQ(folder.Read(businessData.name), "\" Gr\xfcn, Wei\xdf & Co \x80 ? \",\"\",\"\",\"\","
                                              "\"\",\"\",\"\",\"\",\"\"\r\n");
    Load(businessData);
    EXPECT_EQ(live.BusinessData[0], u" Gr\u00fcn, Wei\u00df & Co \u20ac ? "_s);
}

TEST_F(SettingsStoreTest, QuoteInABusinessTextIsWrittenAsItIsAndShiftsTheFieldsOnReading) {
    live.txtBusiness = {
        u"12\" Pipes"_s, u"1 Quarry Road"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s,
        u"8"_s};
    Save(businessData);
    EXPECT_EQ(folder.Read(businessData.name), "\"12\" Pipes\",\"1 Quarry Road\",\"2\",\"3\",\"4\","
                                              "\"5\",\"6\",\"7\",\"8\"\r\n");
    Load(businessData);
    EXPECT_EQ(live.BusinessData,
              (std::array<QString, 9>{u"12"_s, u"Pipes\""_s, u"1 Quarry Road"_s, u"2"_s, u"3"_s,
                                      u"4"_s, u"5"_s, u"6"_s, u"7"_s}));
}

// Bad input.

TEST_F(SettingsStoreTest, FileCutAtAnyFieldFailsByName) {
    for (const SettingsFile& file : AllFiles()) {
        QByteArray bytes;
        for (size_t whole = 0; whole < file.fields.size(); ++whole) {
            const RuntimeFailure failure = FailureOfLoading(file, bytes);
            EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd)
                << file.name.toStdString() << ' ' << whole;
            EXPECT_EQ(failure.Sentence(),
                      u"Reading "_s + file.name +
                          u" failed: the file ends before all of its values were read."_s);
            bytes += file.fields[whole];
            if (whole + 1 < file.fields.size()) {
                // Cut before the separator as well as behind it.
                EXPECT_EQ(FailureOfLoading(file, bytes).Kind(), FailureKind::ReadPastEnd)
                    << file.name.toStdString() << ' ' << whole;
                bytes += file.separator;
            }
        }
        folder.Write(file.name, bytes);
        EXPECT_NO_THROW(Load(file)) << file.name.toStdString();
    }
}

TEST_F(SettingsStoreTest, FileCutAtAnyByteBeforeItsLastFieldFailsByNameAndStaysAsItIs) {
    for (const SettingsFile& file : AllFiles()) {
        const QByteArray whole = file.Bytes();
        const qsizetype startOfLast = whole.size() - 2 - file.fields.back().size();
        for (qsizetype length = 0; length <= startOfLast; ++length) {
            const RuntimeFailure failure = FailureOfLoading(file, whole.left(length));
            EXPECT_TRUE(failure.Kind() == FailureKind::ReadPastEnd ||
                        failure.Kind() == FailureKind::TypeMismatch)
                << file.name.toStdString() << ' ' << length;
            EXPECT_TRUE(failure.Sentence().startsWith(u"Reading "_s + file.name)) << failure.what();
            EXPECT_EQ(folder.Read(file.name), whole.left(length));
        }
    }
}

TEST_F(SettingsStoreTest, FileCutWithinItsLastFieldIsReadAsFarAsItGoesOrFails) {
    for (const SettingsFile& file : AllFiles()) {
        const QByteArray whole = file.Bytes();
        const qsizetype endOfLast = whole.size() - 2;
        const qsizetype startOfLast = endOfLast - file.fields.back().size();
        for (qsizetype length = startOfLast + 1; length <= whole.size(); ++length) {
            folder.Write(file.name, whole.left(length));
            const bool isFlag = file.fields.back().startsWith('#');
            // A delivery charge of which only the quote or the currency sign is left is no number.
            const bool isNoAmount = file.name == deliverySettings.name && length < startOfLast + 3;
            if ((isFlag && length < endOfLast) || isNoAmount)
                EXPECT_EQ(FailureOf([&] { Load(file); }).Kind(), FailureKind::TypeMismatch)
                    << file.name.toStdString() << ' ' << length;
            else
                EXPECT_NO_THROW(Load(file)) << file.name.toStdString() << ' ' << length;
            EXPECT_EQ(folder.Read(file.name), whole.left(length));
        }
    }
}

TEST_F(SettingsStoreTest, ThousandFieldsBehindTheLastAreIgnoredAndGoneWithTheNextSave) {
    QByteArray more;
    for (int i = 0; i < 1000; ++i)
        more += "\"more\",7,#TRUE#\r\n";
    pictures.Files[u"/home/dairy/Logo, gr\u00fcn.bmp"_s] = {1500, 1500};
    for (const SettingsFile& file : AllFiles()) {
        for (const QByteArray& between : {QByteArray(), QByteArray(",")}) {
            const QByteArray whole = file.Bytes();
            folder.Write(file.name, whole.chopped(between.isEmpty() ? 0 : 2) + between + more);
            Load(file);
            Save(file);
            EXPECT_EQ(folder.Read(file.name), whole) << file.name.toStdString();
        }
    }
}

TEST_F(SettingsStoreTest, TextFieldTakesEveryValue) {
    for (const char* value : {"abc", "7", "#TRUE#", "", "-1.5"}) {
        for (size_t i = 0; i < businessData.fields.size(); ++i) {
            folder.Write(businessData.name, businessData.With(i, value));
            Load(businessData);
            EXPECT_EQ(live.BusinessData[i], QString::fromLatin1(value)) << i << ' ' << value;
        }
        folder.Write(taxSettings.name, taxSettings.With(2, value));
        Load(taxSettings);
        EXPECT_EQ(live.cboRate1, QString::fromLatin1(value)) << value;
    }
}

TEST_F(SettingsStoreTest, ValueOfTheWrongTypeFailsByName) {
    for (const SettingsFile& file : AllFiles()) {
        for (size_t i = 0; i < file.fields.size(); ++i) {
            if (file.fields[i].startsWith('"'))
                continue; // A text field takes every value.
            for (const char* wrong : {"\"abc\"", "", "1x", "#2026-03-09#", "True", "nan"}) {
                const RuntimeFailure failure = FailureOfLoading(file, file.With(i, wrong));
                EXPECT_TRUE(failure.Kind() == FailureKind::TypeMismatch ||
                            failure.Kind() == FailureKind::Overflow)
                    << file.name.toStdString() << ' ' << i << ' ' << wrong;
                EXPECT_TRUE(failure.Sentence().startsWith(u"Reading "_s + file.name))
                    << failure.what();
            }
        }
    }
}

TEST_F(SettingsStoreTest, BooleanAndNumberCannotStandForEachOther) {
    for (const SettingsFile& file : AllFiles()) {
        for (size_t i = 0; i < file.fields.size(); ++i) {
            if (file.fields[i].startsWith('"'))
                continue;
            const QByteArray other = file.fields[i].startsWith('#') ? "1" : "#TRUE#";
            EXPECT_EQ(FailureOfLoading(file, file.With(i, other)).Kind(), FailureKind::TypeMismatch)
                << file.name.toStdString() << ' ' << i;
        }
    }
}

TEST_F(SettingsStoreTest, NumberOutsideItsTypeFailsByName) {
    struct Row {
        const SettingsFile& file;
        size_t field;
        QByteArray value;
    };
    const std::vector<Row> rows = {
        {settingsTxt, 0, "32768"},       {settingsTxt, 1, "-32769"}, {deliverySettings, 0, "256"},
        {deliverySettings, 5, "-1"},     {taxSettings, 4, "70000"},  {printColors, 0, "2147483648"},
        {printColors, 1, "-2147483649"}, {printColors, 4, "256"},    {workDays, 0, "32768"}};
    for (const Row& row : rows) {
        const RuntimeFailure failure =
            FailureOfLoading(row.file, row.file.With(row.field, row.value));
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow) << row.value.toStdString();
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading "_s + row.file.name)) << failure.what();
    }
}

TEST_F(SettingsStoreTest, TaxFlagsAreSixteenBitNumbers) {
    const QByteArray edges = "\"A\",\"B\",\"1\",\"2\",32767,-32768\r\n";
    folder.Write(taxSettings.name, edges);
    Load(taxSettings);
    EXPECT_EQ(live.ckApply1stTax, 32'767);
    EXPECT_EQ(live.ckApply2ndTax, -32'768);
    Save(taxSettings);
    EXPECT_EQ(folder.Read(taxSettings.name), edges);
    for (const size_t field : {size_t(4), size_t(5)}) {
        for (const char* value : {"32768", "-32769"})
            EXPECT_EQ(FailureOfLoading(taxSettings, taxSettings.With(field, value)).Kind(),
                      FailureKind::Overflow)
                << field << ' ' << value;
    }
}

TEST_F(SettingsStoreTest, UnreadableFileFailsByName) {
    DropRootRights(folder);
    for (const SettingsFile& file : AllFiles()) {
        folder.Write(file.name, file.Bytes());
        ASSERT_EQ(::chmod(folder.PathOf(file.name).toUtf8().constData(), 0), 0);
        const RuntimeFailure failure = FailureOf([&] { Load(file); });
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(failure.Sentence(),
                  u"Opening "_s + file.name + u" for reading failed: Permission denied."_s);
    }
}

TEST_F(SettingsStoreTest, UnwritableFolderFailsByNameAndKeepsTheFile) {
    SetEverything();
    DropRootRights(folder);
    for (const SettingsFile& file : AllFiles()) {
        folder.Write(file.name, "old");
        ASSERT_EQ(::chmod(folder.PathOf(file.name).toUtf8().constData(), 0444), 0);
    }
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    for (const SettingsFile& file : AllFiles()) {
        const RuntimeFailure failure = FailureOf([&] { Save(file); });
        const bool inPlace = file.name == businessData.name || file.name == logoSettings.name;
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(failure.Sentence(),
                  inPlace ? u"Opening "_s + file.name + u" for writing failed: Permission denied."_s
                          : u"Deleting "_s + file.name + u" failed: Permission denied."_s);
        EXPECT_EQ(folder.Read(file.name), "old");
    }
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(SettingsStoreTest, FullDiskFailsByName) {
    SetEverything();
    for (const SettingsFile& file : AllFiles()) {
        const RuntimeFailure failure = FailureOf([&] {
            const FullDisk disk(2);
            Save(file);
        });
        EXPECT_EQ(failure.Kind(), FailureKind::DiskFull) << file.name.toStdString();
        EXPECT_EQ(failure.Sentence(), u"Writing "_s + file.name + u" failed: File too large."_s);
    }
}
