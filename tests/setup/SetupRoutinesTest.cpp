#include "setup/SetupRoutines.h"

#include "support/OfficeTest.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The files in the order in which a save writes them.
const QStringList& SavedFiles() {
    static const QStringList names = {u"MyBusinessData.txt"_s, u"DeliverySettings.txt"_s,
                                      u"Settings.txt"_s,       u"LogoSettings.txt"_s,
                                      u"Phone.txt"_s,          u"WorkDays.txt"_s,
                                      u"TaxSettings.txt"_s,    u"PrintColors.txt"_s,
                                      u"Prompts.txt"_s};
    return names;
}

/// Each with the bytes that LoadAll takes, in the order in which it reads them.
const std::vector<std::pair<QString, QByteArray>>& LoadedFiles() {
    static const std::vector<std::pair<QString, QByteArray>> files = {
        {u"MyBusinessData.txt"_s, "\"A\",\"\",\"\",\"\",\"\",\"\",\"1\",\"\",\"\"\r\n"},
        {u"Phone.txt"_s, "#FALSE#\r\n1\r\n"},
        {u"Prompts.txt"_s, "#TRUE#,#TRUE#\r\n"},
        {u"PrintColors.txt"_s, "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"},
        {u"TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n"},
        {u"CompanyLogo.txt"_s, "\"logo.bmp\"\r\n"},
        {u"LogoSettings.txt"_s, "1440,1440\r\n"},
        {u"DeliverySettings.txt"_s, "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$0.00\"\r\n"},
        {u"WorkDays.txt"_s, "5\r\n"}};
    return files;
}

} // namespace

class SetupRoutinesTest : public OfficeTest {
protected:
    LiveSettings& live = office.settings;

    /// What a save wants, and a logo, without which there is no size to save.
    static void FillIn(LiveSettings& settings) {
        settings.txtBusiness[0] = u"Corner Dairy"_s;
        settings.txtBusiness[6] = u"217-555-0199"_s;
        settings.logo = {nullptr, 1500, 1500};
    }

    void ExpectRefusal() {
        const auto before = folder.Contents();
        user.ExpectMessage(u"Name and Telephone are Required"_s, u"Missing Name or Telphone"_s);
        EXPECT_FALSE(office.setup.SaveAll());
        user.ExpectNothingLeft();
        EXPECT_EQ(folder.Contents(), before);
    }
};

// The order.

TEST_F(SetupRoutinesTest, SaveWritesItsFilesInTheirOrder) {
    for (qsizetype failing = 0; failing < SavedFiles().size(); ++failing) {
        const TestFolder own;
        Office itsOffice(own.Path(), {clock, user, printer, browser, pictures});
        itsOffice.setup.LoadAll();
        FillIn(itsOffice.settings);
        for (const QString& name : SavedFiles())
            own.Write(name, "old");
        // A folder of the file's name can neither be deleted nor written as a file.
        own.Remove(SavedFiles()[failing]);
        own.MakeFolder(SavedFiles()[failing]);
        const RuntimeFailure failure = FailureOf([&] { itsOffice.setup.SaveAll(); });
        EXPECT_TRUE(failure.Sentence().contains(SavedFiles()[failing])) << failure.what();
        for (qsizetype i = 0; i < SavedFiles().size(); ++i) {
            if (i == failing)
                continue;
            EXPECT_EQ(own.Read(SavedFiles()[i]) != "old", i < failing)
                << SavedFiles()[i].toStdString() << " when " << SavedFiles()[failing].toStdString()
                << " fails";
        }
    }
}

TEST_F(SetupRoutinesTest, LoadReadsItsFilesInTheirOrder) {
    pictures.Files[u"logo.bmp"_s] = {1500, 1500};
    for (const auto& [name, bytes] : LoadedFiles())
        folder.Write(name, {});
    for (const auto& [name, bytes] : LoadedFiles()) {
        const RuntimeFailure failure = FailureOf([&] { office.setup.LoadAll(); });
        EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
        EXPECT_TRUE(failure.Sentence().contains(name))
            << name.toStdString() << ": " << failure.what();
        folder.Write(name, bytes);
    }
    EXPECT_NO_THROW(office.setup.LoadAll());
}

TEST_F(SetupRoutinesTest, LoadDoesNotReadTheSettingsFile) {
    folder.Write(u"Settings.txt"_s, "no settings");
    EXPECT_NO_THROW(office.setup.LoadAll());
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "no settings");
}

TEST_F(SetupRoutinesTest, SaveReadsTheDeliverySettingsBack) {
    FillIn(live);
    live.txtGradulated = {u"1000"_s, u"2.5"_s};
    live.txtDeliveryCharge = u"12.5"_s;
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$2.50"_s);
    EXPECT_EQ(live.txtDeliveryCharge, u"$12.50"_s);
}

TEST_F(SetupRoutinesTest, SaveTakesTheBoxesIntoTheBusinessData) {
    FillIn(live);
    EXPECT_EQ(live.BusinessData[0], QString());
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(live.BusinessData[0], u"Corner Dairy"_s);
    EXPECT_EQ(live.BusinessData[6], u"217-555-0199"_s);
}

TEST_F(SetupRoutinesTest, SettingsAreWrittenBeforeTheFlagsComeFromTheirBoxes) {
    FillIn(live);
    live.ckAlarms = false;
    live.ckPrompts = false;
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(folder.Read(u"Prompts.txt"_s), "#FALSE#,#FALSE#\r\n");
    EXPECT_FALSE(live.AlarmOn);
    EXPECT_FALSE(live.PromptsOn);
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SetupRoutinesTest, SaveWritesNoLogoFileAndWithoutALogoNoSize) {
    FillIn(live);
    live.logo = {};
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_FALSE(folder.Has(u"CompanyLogo.txt"_s));
    EXPECT_FALSE(folder.Has(u"LogoSettings.txt"_s));
    FillIn(live);
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_FALSE(folder.Has(u"CompanyLogo.txt"_s));
    EXPECT_EQ(folder.Read(u"LogoSettings.txt"_s), "1440,1440\r\n");
}

TEST_F(SetupRoutinesTest, SaveWithAnUntickedTaxLeavesItsRateStored) {
    FillIn(live);
    live.cboRate1 = u"6.25"_s;
    live.cboRate2 = u"5,0"_s;
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(u"TaxSettings.txt"_s), "\"Sales Tax\",\"Tax\",\"6.25\",\"5,0\",0,0\r\n");
}

// What stops a save.

TEST_F(SetupRoutinesTest, SaveWithoutNameOrTelephoneIsRefusedAndSavesNothing) {
    FillIn(live);
    live.txtBusiness[0].clear();
    ExpectRefusal();
    FillIn(live);
    live.txtBusiness[6].clear();
    ExpectRefusal();
    live.txtBusiness[0].clear();
    ExpectRefusal();
}

TEST_F(SetupRoutinesTest, MissingNameIsToldBeforeTheCopiesAreLookedAt) {
    live.cboCopies = u"x"_s;
    live.PrintCopies = 3;
    ExpectRefusal();
    EXPECT_EQ(live.PrintCopies, 3);
}

TEST_F(SetupRoutinesTest, BlankIsAName) {
    live.txtBusiness[0] = u" "_s;
    live.txtBusiness[6] = u" "_s;
    EXPECT_TRUE(office.setup.SaveAll());
}

TEST_F(SetupRoutinesTest, NameAndTelephoneAloneAreEnough) {
    live.txtBusiness[0] = u"A"_s;
    live.txtBusiness[6] = u"1"_s;
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(u"MyBusinessData.txt"_s),
              "\"A\",\"\",\"\",\"\",\"\",\"\",\"1\",\"\",\"\"\r\n");
}

TEST_F(SetupRoutinesTest, CopiesFromNothingTo255AreSaved) {
    FillIn(live);
    for (const char* copies : {"0", "1", "5", "17", "255"}) {
        live.cboCopies = QString::fromLatin1(copies);
        EXPECT_TRUE(office.setup.SaveAll());
        EXPECT_EQ(folder.Read(u"PrintColors.txt"_s),
                  QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n") + copies + "\r\n");
    }
}

TEST_F(SetupRoutinesTest, CopiesThatAreNoByteFailWithNothingSaved) {
    FillIn(live);
    EXPECT_TRUE(office.setup.SaveAll());
    live.txtBusiness[0] = u"Another"_s;
    const auto before = folder.Contents();
    const std::pair<QString, FailureKind> rows[] = {
        {u"256"_s, FailureKind::Overflow},   {u"-1"_s, FailureKind::Overflow},
        {u"9E99"_s, FailureKind::Overflow},  {u"9E999"_s, FailureKind::Overflow},
        {u"x"_s, FailureKind::TypeMismatch}, {QString(), FailureKind::TypeMismatch},
        {u" "_s, FailureKind::TypeMismatch}, {u"3x"_s, FailureKind::TypeMismatch}};
    for (const auto& [copies, kind] : rows) {
        live.cboCopies = copies;
        const RuntimeFailure failure = FailureOf([&] { office.setup.SaveAll(); });
        EXPECT_EQ(failure.Kind(), kind) << copies.toStdString();
        EXPECT_TRUE(failure.Sentence().contains(u"(the number of print copies)"_s))
            << failure.what();
        EXPECT_EQ(live.PrintCopies, 3);
        EXPECT_EQ(live.BusinessData[0], u"Corner Dairy"_s);
        EXPECT_EQ(folder.Contents(), before);
    }
}

/// Only files that can be the longest of those up to them can be the first that finds no room.
TEST_F(SetupRoutinesTest, FullDiskAmidASaveFailsByNameAndLeavesTheLaterFiles) {
    struct Row {
        QString name;
        void (*lengthen)(LiveSettings& settings);
        unsigned room;
    };
    const Row rows[] = {
        {u"MyBusinessData.txt"_s, [](LiveSettings&) {}, 29},
        {u"DeliverySettings.txt"_s,
         [](LiveSettings& settings) { settings.txtGradulated[0] = QString(400, u'x'); }, 200},
        {u"Settings.txt"_s,
         [](LiveSettings& settings) {
             settings.txtGradulated.fill({});
             settings.ReservedSetting = -32768;
             settings.WorkWeek = -32768;
             settings.AlarmOn = false;
             settings.PromptsOn = false;
         },
         42},
        {u"TaxSettings.txt"_s,
         [](LiveSettings& settings) { settings.cboTaxHeading1 = QString(400, u'x'); }, 200},
        {u"PrintColors.txt"_s,
         [](LiveSettings& settings) { settings.DocumentFont = QString(400, u'x'); }, 200},
    };
    for (const Row& row : rows) {
        const TestFolder own;
        Office itsOffice(own.Path(), {clock, user, printer, browser, pictures});
        itsOffice.setup.LoadAll();
        LiveSettings& settings = itsOffice.settings;
        settings.txtBusiness[0] = u"A"_s;
        settings.txtBusiness[6] = u"1"_s;
        settings.logo = {nullptr, 1500, 1500};
        EXPECT_TRUE(itsOffice.setup.SaveAll());
        const auto before = own.Contents();
        row.lengthen(settings);
        const RuntimeFailure failure = FailureOf([&] {
            const FullDisk disk(row.room);
            itsOffice.setup.SaveAll();
        });
        EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
        EXPECT_EQ(failure.Sentence(), u"Writing "_s + row.name + u" failed: File too large."_s);
        const auto after = own.Contents();
        for (qsizetype i = SavedFiles().indexOf(row.name) + 1; i < SavedFiles().size(); ++i)
            EXPECT_EQ(after.at(SavedFiles()[i]), before.at(SavedFiles()[i]))
                << SavedFiles()[i].toStdString() << " when " << row.name.toStdString() << " fails";
    }
}

TEST_F(SetupRoutinesTest, InternationalBusinessHasItsStyleFromTheStart) {
    folder.Write(u"MyBusinessData.txt"_s,
                 "\"Molkerei\",\"Weg 1\",\"\",\"01067 Dresden\",\"Sachsen\",\"\",\"0351 1\",\"\","
                 "\"\"\r\n");
    office.setup.LoadAll();
    EXPECT_EQ(office.settings.cmdAddress, u"International Style Address"_s);
    office.setup.LoadAll();
    EXPECT_EQ(office.settings.cmdAddress, u"International Style Address"_s);
}

TEST_F(SetupRoutinesTest, StyleThatNothingDecidesIsTheUsaStyleAtTheStart) {
    folder.Write(u"MyBusinessData.txt"_s,
                 "\"\",\"\",\"\",\"\",\"\",\"SW1A 1AA\",\"\",\"\",\"\"\r\n");
    office.setup.LoadAll();
    EXPECT_EQ(office.settings.cmdAddress, u"USA Style Address"_s);
    EXPECT_EQ(office.settings.txtBusiness[5], u"SW1A 1AA"_s);
}
