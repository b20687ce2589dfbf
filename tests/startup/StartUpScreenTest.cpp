#include "platform/FolderLock.h"
#include "startup/StartUp.h"
#include "support/SampleSlips.h"
#include "support/SampleVehicles.h"
#include "support/ScreenTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString question = u"Would you like to DELETE the Recurring Slip?"_s;
const QString questionTitle = u"Delete a Recurring Slip"_s;
const QString moved = u"The Recurring Delivery Slip has been Rescheduled"_s;

/// A record of a priced item at $4.10.
QByteArray PricedItemBytes(const QByteArray& name) {
    return name.leftJustified(50, ' ') + QByteArray(20, ' ') + QByteArray(8, '\0') +
           QByteArray("\x28\xa0\0\0\0\0\0\0", 8) + QByteArray(18, '\0');
}

QByteArray NonPricedItemBytes(const QByteArray& name) {
    return name.leftJustified(50, ' ') + QByteArray(6, '\0');
}

/// Looks at the screens at the moment of the first message.
class WatchingOperator : public ScriptedOperator {
public:
    Screens* Watched = nullptr;
    bool SplashWasUp = false;
    bool BoardWasMade = false;
    bool MenuWasMade = false;

    Answer MsgBox(const QString& text, Buttons buttons, const QString& title) override {
        SplashWasUp = Watched->Find(ScreenName::frmSplash)->isVisible();
        BoardWasMade = Watched->Find(ScreenName::frmPrintSchedules) != nullptr;
        MenuWasMade = Watched->Find(ScreenName::frmStartup) != nullptr;
        return ScriptedOperator::MsgBox(text, buttons, title);
    }
};

} // namespace

class StartUpSequence : public ScreenTest {
protected:
    QStringList AddItemNames() const {
        const GridModel& grid = office.items.fgAddItems;
        constexpr int descriptionColumn = 2;
        QStringList names;
        for (int row = 1; row <= grid.DataRows(); ++row)
            names += grid.Text(row, descriptionColumn);
        return names;
    }
    /// The customer screen is made, and there is no customer.
    void ExpectNoCustomers() {
        user.ExpectMessage(u"Your Customer File is Empty\nCreate your First Customer Now"_s,
                           u"Create Customers"_s);
    }
};

TEST_F(StartUpSequence, EmptyFolderGetsItsFoldersAndNoFileButTheModemsPort) {
    ExpectNoCustomers();
    Main(office, screens);
    const QStringList folders = {u"2026/"_s,
                                 u"AuxFiles/"_s,
                                 u"Backup/"_s,
                                 u"Backup/NXActiveAccounts/"_s,
                                 u"Backup/tessel-delivery/"_s,
                                 u"NXActiveAccounts/"_s,
                                 u"Phone.txt"_s,
                                 u"Templates/"_s,
                                 u"Templates/Deliveries/"_s,
                                 u"TesselDelivery/"_s,
                                 u"TesselDelivery/Deliveries/"_s,
                                 u"TesselDelivery/DeliveryItems/"_s};
    EXPECT_EQ(folder.Everything(), folders);
    EXPECT_TRUE(IsShown(ScreenName::frmSplash));
    EXPECT_FALSE(IsShown(ScreenName::frmStartup));
    EXPECT_EQ(office.deliveryTimes.rowCount(), 44);
    EXPECT_EQ(office.items.ProductNames.rowCount(), 0);
}

TEST_F(StartUpSequence, ThreePastRecurringSlipsAskThreeQuestionsAndMoveOn) {
    for (const QString& number : {u"1"_s, u"2"_s, u"3"_s})
        WriteSlip(folder, {.number = number, .date = u"3/3/2026"_s});
    for (int i = 0; i < 3; ++i) {
        user.ExpectQuestion(question, questionTitle, Answer::No);
        user.ExpectMessage(moved);
    }
    ExpectNoCustomers();
    Main(office, screens);
    for (const QString& number : {u"1"_s, u"2"_s, u"3"_s})
        EXPECT_TRUE(
            folder.Read(HeaderName(number)).startsWith(number.toLatin1() + "\r\n3/10/2026\r\n"));
}

TEST_F(StartUpSequence, SettingsFileOverrulesTheOtherTwo) {
    folder.Write(u"Settings.txt"_s, "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    folder.Write(u"WorkDays.txt"_s, "5\r\n");
    folder.Write(u"Prompts.txt"_s, "#TRUE#,#TRUE#\r\n");
    ExpectNoCustomers();
    Main(office, screens);
    EXPECT_EQ(office.settings.WorkWeek, 7);
    EXPECT_EQ(office.settings.shownWorkWeek, 5);
    EXPECT_FALSE(office.settings.AlarmOn);
    EXPECT_FALSE(office.settings.PromptsOn);
    EXPECT_TRUE(office.settings.ckPrompts);
}

TEST_F(StartUpSequence, VehiclesAndItemsAreThereWhenTheMenuComes) {
    folder.Write(u"Vehicles.txt"_s, VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    folder.Write(u"NXInventoriedItems.txt"_s, PricedItemBytes("Milk"));
    folder.Write(u"NonInventoriedItems.txt"_s,
                 NonPricedItemBytes("Leaflet") + NonPricedItemBytes("Crate"));
    ExpectNoCustomers();
    ASSERT_EQ(office.fleet.Names.rowCount(), 0);
    Main(office, screens);
    EXPECT_EQ(office.fleet.Names.stringList(), QStringList{u"Van 2"_s});
    EXPECT_EQ(office.items.ProductNames.stringList(), QStringList{u"Milk"_s});
    EXPECT_EQ(office.items.ProductPrices.stringList(), QStringList{u"$4.10"_s});
    EXPECT_EQ(office.items.NonPricedNames.stringList(), (QStringList{u"Leaflet"_s, u"Crate"_s}));
    EXPECT_EQ(AddItemNames(), (QStringList{u"Milk"_s, u"Leaflet"_s, u"Crate"_s}));
}

TEST_F(StartUpSequence, VehicleScreenIsMadeUnseenBehindTheMenuAndLoadsTheVehicles) {
    ExpectNoCustomers();
    Main(office, screens);
    EXPECT_NE(screens.Find(ScreenName::frmVehicle), nullptr);
    EXPECT_FALSE(IsShown(ScreenName::frmVehicle));
    EXPECT_EQ(office.fleet.CapacityUnits.rowCount(), 9);
}

TEST_F(StartUpSequence, TooManyVehiclesStopBehindTheMenu) {
    ExpectNoCustomers();
    folder.Write(u"Vehicles.txt"_s, QByteArray(137 * 256, ' '));
    const RuntimeFailure failure = FailureOf([&] { Main(office, screens); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"Reading Vehicles.txt failed: it holds more than 255 vehicles."_s);
    EXPECT_NE(screens.Find(ScreenName::frmStartup), nullptr);
    EXPECT_EQ(screens.Find(ScreenName::frmVehicle), nullptr);
}

TEST_F(StartUpSequence, ItemFilesLostButInBackupAreBroughtBackAndLoaded) {
    folder.Write(u"Backup/NXInventoriedItems.txt"_s, PricedItemBytes("Milk"));
    folder.Write(u"Backup/NonInventoriedItems.txt"_s, NonPricedItemBytes("Leaflet"));
    ExpectNoCustomers();
    Main(office, screens);
    EXPECT_EQ(folder.Read(u"NXInventoriedItems.txt"_s), PricedItemBytes("Milk"));
    EXPECT_EQ(folder.Read(u"NonInventoriedItems.txt"_s), NonPricedItemBytes("Leaflet"));
    EXPECT_EQ(office.items.ProductNames.stringList(), QStringList{u"Milk"_s});
    EXPECT_EQ(AddItemNames(), (QStringList{u"Milk"_s, u"Leaflet"_s}));
}

TEST_F(StartUpSequence, EmptyCustomerFileIsToldOverTheTitleScreenBeforeTheMenuIsMade) {
    WatchingOperator watcher;
    Office watched(folder.Path(), {clock, watcher, printer, browser, pictures});
    Screens itsScreens(watched);
    watcher.Watched = &itsScreens;
    watcher.ExpectMessage(u"Your Customer File is Empty\nCreate your First Customer Now"_s,
                          u"Create Customers"_s);
    Main(watched, itsScreens);
    EXPECT_TRUE(watcher.SplashWasUp);
    EXPECT_TRUE(watcher.BoardWasMade);
    EXPECT_FALSE(watcher.MenuWasMade);
    ASSERT_NE(itsScreens.Find(ScreenName::frmCustomer), nullptr);
    EXPECT_FALSE(itsScreens.Find(ScreenName::frmCustomer)->isVisible());
}

TEST_F(StartUpSequence, StartRebuildsTheFilesThatBelongToTheCustomers) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(2 * 328, ' '));
    Main(office, screens);
    EXPECT_EQ(folder.Read(u"ContractInfo.txt"_s), QByteArray(2 * 386, '\0'));
    EXPECT_EQ(folder.Read(u"CycleInfo.txt"_s), QByteArray(2 * 69, '\0'));
}

TEST_F(StartUpSequence, QuestionsComeOverTheTitleScreenBehindTheBoardAndBeforeTheMenuIsMade) {
    folder.Write(u"CustomerData.txt"_s, {});
    WriteSlip(folder, {.number = u"7"_s, .date = u"3/6/2026"_s, .recurring = u"False"_s});
    WatchingOperator watcher;
    Office watched(folder.Path(), {clock, watcher, printer, browser, pictures});
    Screens itsScreens(watched);
    watcher.Watched = &itsScreens;
    watcher.ExpectMessage(u"Delivery Slip 7 scheduled for 3/6/2026 has been Deleted"_s);
    Main(watched, itsScreens);
    EXPECT_TRUE(watcher.SplashWasUp);
    EXPECT_TRUE(watcher.BoardWasMade);
    EXPECT_FALSE(watcher.MenuWasMade);
}

TEST_F(StartUpSequence, BrokenSettingsFileStopsBeforeAnyFolderIsMade) {
    TestFolder bare;
    bare.Write(u"Settings.txt"_s, "8\r\n");
    bare.Write(u"TaxSettings.txt"_s, "\"Sales Tax\"\r\n");
    Office stopped(bare.Path(), {clock, user, printer, browser, pictures});
    Screens itsScreens(stopped);
    const RuntimeFailure failure = FailureOf([&] { Main(stopped, itsScreens); });
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(failure.Sentence().contains(u"TaxSettings.txt"_s));
    EXPECT_EQ(bare.Everything(),
              (QStringList{u"Phone.txt"_s, u"Settings.txt"_s, u"TaxSettings.txt"_s}));
}

TEST_F(StartUpSequence, CutSettingsFileStopsBehindTheFoldersAndBeforeTheBoardIsMade) {
    TestFolder bare;
    bare.Write(u"Settings.txt"_s, "8\r\n");
    Office stopped(bare.Path(), {clock, user, printer, browser, pictures});
    Screens itsScreens(stopped);
    const RuntimeFailure failure = FailureOf([&] { Main(stopped, itsScreens); });
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(failure.Sentence().contains(u"Settings.txt"_s)) << failure.what();
    EXPECT_EQ(bare.Everything(),
              (QStringList{u"2026/"_s, u"AuxFiles/"_s, u"Backup/"_s, u"Backup/NXActiveAccounts/"_s,
                           u"Backup/tessel-delivery/"_s, u"NXActiveAccounts/"_s, u"Phone.txt"_s,
                           u"Settings.txt"_s, u"Templates/"_s, u"Templates/Deliveries/"_s,
                           u"TesselDelivery/"_s, u"TesselDelivery/Deliveries/"_s,
                           u"TesselDelivery/DeliveryItems/"_s}));
    EXPECT_TRUE(itsScreens.Find(ScreenName::frmSplash)->isVisible());
    EXPECT_EQ(itsScreens.Find(ScreenName::frmPrintSchedules), nullptr);
}

TEST_F(StartUpSequence, FileInTheWayOfTheSlipFoldersStopsUnderTheTitleScreen) {
    TestFolder bare;
    bare.Write(u"TesselDelivery"_s, "a file");
    Office stopped(bare.Path(), {clock, user, printer, browser, pictures});
    Screens itsScreens(stopped);
    const RuntimeFailure failure = FailureOf([&] { Main(stopped, itsScreens); });
    EXPECT_EQ(failure.Kind(), FailureKind::PathNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries"_s)) << failure.what();
    EXPECT_TRUE(itsScreens.Find(ScreenName::frmSplash)->isVisible());
    EXPECT_EQ(itsScreens.Find(ScreenName::frmPrintSchedules), nullptr);
    EXPECT_EQ(bare.Read(u"TesselDelivery"_s), "a file");
}

TEST_F(StartUpSequence, SecondCopyOnTheSameFolderIsToldAndMayNotRun) {
    const FolderLock first(folder.Path());
    user.ExpectMessage(u"Tessel Delivery is already Running!\nLook for it on the Task Bar"_s);
    EXPECT_FALSE(CheckSingleInstance(FolderLock(folder.Path()), user));
    user.ExpectNothingLeft();
}

TEST_F(StartUpSequence, OnlyCopyRunsWithoutAMessage) {
    EXPECT_TRUE(CheckSingleInstance(FolderLock(folder.Path()), user));
}
