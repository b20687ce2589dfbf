#include "platform/Grid.h"
#include "platform/RoutineLabel.h"
#include "startup/frmStartup.h"
#include "support/SampleSlips.h"
#include "support/ScreenTest.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName menu = ScreenName::frmStartup;
constexpr ScreenName vehicles = ScreenName::frmVehicle;

} // namespace

class StartupScreen : public ScreenTest {
protected:
    RoutineLabel* Routine(int index) {
        return Find<RoutineLabel>(menu, u"lblSub(%1)"_s.arg(index));
    }

    /// The indexes of the routines that are open.
    QList<int> Open() {
        QList<int> open;
        for (int i = 0; i < 10; ++i) {
            if (Routine(i)->isEnabled())
                open += i;
        }
        return open;
    }

    bool PanelIsShown() { return Find<QWidget>(menu, u"fraNoCustomerFound"_s)->isVisible(); }
    void Trigger(const QString& item) { Find<QAction>(menu, item)->trigger(); }
};

TEST_F(StartupScreen, RoutinesCarryTheirCaptions) {
    WriteMasterFiles();
    screens.Show(menu);
    EXPECT_EQ(screens.Find(menu)->windowTitle(), u"Delivery Scheduling Main Menu"_s);
    const QStringList captions = {u"&Print Delivery Schedules / Invoices"_s,
                                  u"View &Scheduled Deliveries"_s,
                                  u"Create/Modify C&ustomer Data"_s,
                                  u"Create a &Holidays List"_s,
                                  u"Create Delivery &Vehicles"_s,
                                  u"S&chedule a Delivery"_s,
                                  u"Create/Modify &Deliverable Products"_s,
                                  u"&Taxes Collected Report"_s,
                                  u"&Item Sales Report"_s,
                                  u"Invoice &Report"_s};
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(Routine(i)->text(), captions[i]);
    EXPECT_EQ(Find<QLabel>(menu, u"Label1(6)"_s)->text(), u"(Reschedule and Delete)"_s);
}

TEST_F(StartupScreen, AllMasterFilesOpenAllRoutines) {
    WriteMasterFiles();
    screens.Show(menu);
    EXPECT_EQ(Open(), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_FALSE(PanelIsShown());
}

TEST_F(StartupScreen, NewUserIsSentToTheProductsFirst) {
    user.ExpectMessage(u"Create at least One Deliverable Product Now"_s);
    screens.Show(menu);
    EXPECT_EQ(office.MenuChoice, 6);
    EXPECT_EQ(Open(), (QList<int>{6, 7, 8, 9}));
    EXPECT_FALSE(IsShown(menu));
    EXPECT_TRUE(IsShown(ScreenName::frmServices));
}

TEST_F(StartupScreen, WithProductsTheVehiclesComeNext) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    user.ExpectMessage(u"Create at least One Delivery Vehicle Now"_s);
    screens.Show(menu);
    EXPECT_EQ(office.MenuChoice, 4);
    EXPECT_EQ(Open(), (QList<int>{4, 7, 8, 9}));
    EXPECT_FALSE(IsShown(menu));
    EXPECT_TRUE(IsShown(ScreenName::frmVehicle));
}

TEST_F(StartupScreen, WithProductsAndVehiclesTheCustomerPanelStands) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Write(u"Vehicles.txt"_s, {});
    screens.Show(menu);
    EXPECT_TRUE(PanelIsShown());
    EXPECT_EQ(Open(), (QList<int>{2, 7, 8, 9}));
}

TEST_F(StartupScreen, VehiclesDeletedOnAWorkingSystemAreAskedForAtTheNextActivation) {
    WriteMasterFiles();
    screens.Show(menu);
    folder.Remove(u"Vehicles.txt"_s);
    folder.Write(u"TesselDelivery/Deliveries/1.txt"_s, "1\r\n");
    user.ExpectMessage(u"Create at least One Delivery Vehicle Now"_s);
    screens.Show(menu);
    EXPECT_EQ(Open(), (QList<int>{4, 7, 8, 9}));
    EXPECT_TRUE(IsShown(ScreenName::frmVehicle));
}

TEST_F(StartupScreen, MasterFilesInBackupCount) {
    for (const QString& name :
         {u"NXInventoriedItems.txt"_s, u"Vehicles.txt"_s, u"CustomerData.txt"_s}) {
        WriteMasterFiles();
        folder.Remove(name);
        folder.Write(u"Backup/"_s + name, "kept");
        screens.Show(menu);
        EXPECT_EQ(Open().size(), 10) << name.toStdString();
        EXPECT_EQ(folder.Read(name), "kept");
    }
}

TEST_F(StartupScreen, CustomerPanelGoesWhenTheFileHasCome) {
    WriteMasterFiles();
    folder.Remove(u"CustomerData.txt"_s);
    screens.Show(menu);
    EXPECT_TRUE(PanelIsShown());
    folder.Write(u"CustomerData.txt"_s, {});
    screens.Show(menu);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_EQ(Open().size(), 10);
}

TEST_F(StartupScreen, HeadingsStandOverTheRoutines) {
    WriteMasterFiles();
    screens.Show(menu);
    const QStringList texts = TextsIn(screens.Find(menu));
    for (const QString& text :
         {u"Delivery Scheduling Routines"_s, u"Delivery Routines"_s, u"Data File Routines"_s,
          u"Reports"_s, u"Click on a Routine to Run it"_s})
        EXPECT_EQ(texts.count(text), 1) << text.toStdString();
}

TEST_F(StartupScreen, CustomerPanelTellsItsTexts) {
    WriteMasterFiles();
    screens.Show(menu);
    EXPECT_EQ(TextsIn(Find<QWidget>(menu, u"fraNoCustomerFound"_s)),
              (QStringList{u"No Customers Found"_s, u"Your Customer file  was not Found"_s,
                           u"Click Goto and create Customer Records"_s,
                           u"This is Normal the 1st time you use the Program"_s}));
    EXPECT_EQ(Find<QAbstractButton>(menu, u"cmdGoto"_s)->text(), u"Goto"_s);
    EXPECT_EQ(Find<QAbstractButton>(menu, u"cmdCancel"_s)->text(), u"Cancel"_s);
}

TEST_F(StartupScreen, ClosedRoutineSaysWhyInItsToolTip) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Write(u"Vehicles.txt"_s, {});
    screens.Show(menu);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Routine(i)->toolTip().isEmpty(), Routine(i)->isEnabled()) << i;
    EXPECT_FALSE(Routine(0)->isEnabled());
    WriteMasterFiles();
    screens.Show(menu);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Routine(i)->toolTip(), QString()) << i;
}

TEST_F(StartupScreen, CancelOfTheCustomerPanelOpensVehiclesAndProducts) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Write(u"Vehicles.txt"_s, {});
    screens.Show(menu);
    Click(menu, u"cmdCancel"_s);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_EQ(Open(), (QList<int>{2, 4, 6, 7, 8, 9}));
}

TEST_F(StartupScreen, GotoOpensTheItemSalesReport) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Write(u"Vehicles.txt"_s, {});
    screens.Show(menu);
    Click(menu, u"cmdGoto"_s);
    EXPECT_EQ(office.MenuChoice, 8);
    EXPECT_TRUE(IsShown(ScreenName::frmSalesReport));
    EXPECT_FALSE(IsShown(menu));
}

TEST_F(StartupScreen, EnterOnAFocusedButtonClicksIt) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Write(u"Vehicles.txt"_s, {});
    screens.Show(menu);
    auto* cmdGoto = Find<QAbstractButton>(menu, u"cmdGoto"_s);
    cmdGoto->setFocus();
    Press(cmdGoto, Qt::Key_Return);
    EXPECT_EQ(office.MenuChoice, 8);
    EXPECT_TRUE(IsShown(ScreenName::frmSalesReport));
}

TEST_F(StartupScreen, CreateItemShowsTheSetupScreenOnItsFirstTabAndHidesTheMenu) {
    WriteMasterFiles();
    screens.Create(ScreenName::frmSetup);
    Find<QTabWidget>(ScreenName::frmSetup, u"tabInfo"_s)->setCurrentIndex(3);
    screens.Show(menu);
    Trigger(u"mnuCreate"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmSetup));
    EXPECT_EQ(Find<QTabWidget>(ScreenName::frmSetup, u"tabInfo"_s)->currentIndex(), 0);
    EXPECT_FALSE(IsShown(menu));
}

TEST_F(StartupScreen, ClickOnARoutineHidesTheMenuAndShowsItsScreen) {
    WriteMasterFiles();
    screens.Show(menu);
    office.MenuChoice = 9;
    Click(menu, u"lblSub(0)"_s);
    EXPECT_EQ(office.MenuChoice, 0);
    EXPECT_FALSE(IsShown(menu));
    EXPECT_TRUE(IsShown(ScreenName::frmPrintSchedules));
}

TEST_F(StartupScreen, ProductsRoutineShowsTheProducts) {
    WriteMasterFiles();
    screens.Show(menu);
    Click(menu, u"lblSub(6)"_s);
    EXPECT_EQ(office.MenuChoice, 6);
    EXPECT_FALSE(IsShown(menu));
    EXPECT_TRUE(IsShown(ScreenName::frmServices));
}

TEST_F(StartupScreen, ComingBackLeavesTheFocusOnTheRoutineLastUsed) {
    WriteMasterFiles();
    screens.Show(menu);
    Click(menu, u"lblSub(6)"_s);
    screens.GoFrom(ScreenName::frmServices, menu);
    EXPECT_EQ(screens.Find(menu)->focusWidget(), Routine(6));
}

TEST_F(StartupScreen, ReportRoutinesShowTheirScreens) {
    WriteMasterFiles();
    const std::pair<int, ScreenName> reports[] = {{7, ScreenName::frmTaxForm},
                                                  {8, ScreenName::frmSalesReport},
                                                  {9, ScreenName::frmInvoiceReport}};
    for (const auto& [i, report] : reports) {
        screens.Show(menu);
        Click(menu, u"lblSub(%1)"_s.arg(i));
        EXPECT_EQ(office.MenuChoice, i);
        EXPECT_FALSE(IsShown(menu));
        EXPECT_TRUE(IsShown(report));
        screens.Hide(report);
    }
}

TEST_F(StartupScreen, ReportsOpenWithoutMasterFiles) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Write(u"Vehicles.txt"_s, {});
    screens.Show(menu);
    Click(menu, u"lblSub(9)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmInvoiceReport));
}

TEST_F(StartupScreen, ScheduledDeliveriesRoutineShowsTheRangeView) {
    WriteMasterFiles();
    screens.Show(menu);
    Click(menu, u"lblSub(1)"_s);
    EXPECT_EQ(office.MenuChoice, 1);
    EXPECT_FALSE(IsShown(menu));
    EXPECT_TRUE(IsShown(ScreenName::frmWeekly));
}

TEST_F(StartupScreen, VehiclesRoutineShowsTheVehicleScreen) {
    WriteMasterFiles();
    screens.Show(menu);
    Click(menu, u"lblSub(4)"_s);
    EXPECT_EQ(office.MenuChoice, 4);
    EXPECT_FALSE(IsShown(menu));
    EXPECT_TRUE(IsShown(ScreenName::frmVehicle));
}

TEST_F(StartupScreen, FirstRunGoesFromProductsToVehiclesToCustomers) {
    user.ExpectMessage(u"Create at least One Deliverable Product Now"_s);
    screens.Show(menu);
    EXPECT_EQ(Open(), (QList<int>{6, 7, 8, 9}));
    ASSERT_TRUE(IsShown(ScreenName::frmServices));

    folder.Write(u"NXInventoriedItems.txt"_s, {});
    user.ExpectMessage(u"Create at least One Delivery Vehicle Now"_s);
    screens.Show(menu);
    ASSERT_TRUE(IsShown(vehicles));

    // Back without a vehicle: the menu asks for one again.
    user.ExpectMessage(u"Create at least One Delivery Vehicle Now"_s);
    Click(vehicles, u"cmdServices(0)"_s);
    EXPECT_FALSE(folder.Has(u"Vehicles.txt"_s));
    EXPECT_FALSE(IsShown(menu));
    ASSERT_TRUE(IsShown(vehicles));

    Type(Find<QLineEdit>(vehicles, u"txtDescription"_s), u"Van 1"_s);
    Click(vehicles, u"ckMixed"_s);
    Click(vehicles, u"cmdServices(13)"_s);
    Click(vehicles, u"cmdServices(0)"_s);
    EXPECT_TRUE(folder.Has(u"Vehicles.txt"_s));
    EXPECT_FALSE(IsShown(vehicles));
    EXPECT_TRUE(IsShown(menu));
    EXPECT_TRUE(PanelIsShown());
    EXPECT_EQ(Open(), (QList<int>{2, 7, 8, 9}));
    EXPECT_FALSE(folder.Has(u"CustomerData.txt"_s));
}

TEST_F(StartupScreen, DeletingTheLastVehicleLeadsBackToTheVehicles) {
    WriteMasterFiles();
    folder.Remove(u"Vehicles.txt"_s);
    WriteVehicles(office, {u"Van 1"_s});
    screens.Show(menu);
    EXPECT_EQ(Open().size(), 10);
    Click(menu, u"lblSub(4)"_s);
    ClickCell(Find<Grid>(vehicles, u"fgItems"_s), 1, 0);
    user.ExpectQuestion(u"This will DELETE the Selected Vehicle"_s, u"Delete Sales Item"_s,
                        Answer::Yes);
    Click(vehicles, u"cmdServices(10)"_s);
    user.ExpectMessage(u"Create at least One Delivery Vehicle Now"_s);
    Click(vehicles, u"cmdServices(0)"_s);
    EXPECT_EQ(Open(), (QList<int>{4, 7, 8, 9}));
    EXPECT_TRUE(IsShown(vehicles));
}

TEST_F(StartupScreen, MaintenanceAndDeliveryBothOpenTheCustomersAndSayWhich) {
    WriteMasterFiles();
    for (const int i : {2, 5}) {
        screens.Show(menu);
        Click(menu, u"lblSub(%1)"_s.arg(i));
        EXPECT_EQ(office.MenuChoice, i);
        EXPECT_TRUE(IsShown(ScreenName::frmCustomer));
        EXPECT_FALSE(IsShown(menu));
        screens.Hide(ScreenName::frmCustomer);
    }
}

TEST_F(StartupScreen, DoubleClickOnTheNoteActsAsRoutineOne) {
    WriteMasterFiles();
    screens.Show(menu);
    QTest::mouseDClick(Find<QLabel>(menu, u"Label1(6)"_s), Qt::LeftButton);
    EXPECT_EQ(office.MenuChoice, 1);
    EXPECT_TRUE(IsShown(ScreenName::frmWeekly));
    EXPECT_FALSE(IsShown(menu));
}

TEST_F(StartupScreen, SingleClickOnTheNoteDoesNothing) {
    WriteMasterFiles();
    screens.Show(menu);
    QTest::mouseClick(Find<QLabel>(menu, u"Label1(6)"_s), Qt::LeftButton);
    EXPECT_TRUE(IsShown(menu));
}

TEST_F(StartupScreen, RoutineRunsByItsKey) {
    WriteMasterFiles();
    screens.Show(menu);
    ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(menu)));
    QTest::keyClick(screens.Find(menu), Qt::Key_P, Qt::AltModifier);
    // A key press holds the button down for a moment.
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsShown(ScreenName::frmPrintSchedules); }));
}

TEST_F(StartupScreen, ExitAndTheCloseBoxAskForTheEnd) {
    WriteMasterFiles();
    screens.Show(menu);
    Trigger(u"mnuExit"_s);
    EXPECT_EQ(exitRequests, 1);
    CloseByUser(menu);
    EXPECT_EQ(exitRequests, 2);
}

TEST_F(StartupScreen, OnlyTheUsersCloseOfAScreenAsksForTheEnd) {
    WriteMasterFiles();
    int requests = 0;
    for (const ScreenName name :
         {ScreenName::frmSplash, menu, ScreenName::frmPrintSchedules, vehicles}) {
        screens.Show(name);
        screens.Find(name)->close();
        EXPECT_FALSE(IsShown(name));
        EXPECT_EQ(exitRequests, requests);
        screens.Show(name);
        CloseByUser(name);
        EXPECT_TRUE(IsShown(name));
        EXPECT_EQ(exitRequests, ++requests);
    }
}

TEST_F(StartupScreen, MenuBarCarriesItsCaptions) {
    WriteMasterFiles();
    screens.Show(menu);
    const std::pair<QString, QString> items[] = {{u"mnuCreate"_s, u"Create/Modify"_s},
                                                 {u"mnuExit"_s, u"Exit"_s},
                                                 {u"mnuHelp"_s, u"Help"_s},
                                                 {u"mnuDeluxe"_s, u"Checks, Envelopes"_s},
                                                 {u"mnuDepositSlips"_s, u"Deposit Slips"_s},
                                                 {u"mnuPPaper"_s, u"Plain Paper"_s},
                                                 {u"mnuPPPaper"_s, u"Perfed Paper"_s},
                                                 {u"mnuGraytex"_s, u"Proposal Sets"_s},
                                                 {u"mnuAddress"_s, u"Mailing Labels"_s},
                                                 {u"mnuLabels"_s, u"Shipping Labels"_s}};
    for (const auto& [name, caption] : items)
        EXPECT_EQ(Find<QAction>(menu, name)->text(), caption);
    EXPECT_EQ(Find<QMenu>(menu, u"mnuFiles"_s)->title(), u" Files"_s);
    EXPECT_EQ(Find<QMenu>(menu, u"mnuOrder"_s)->title(), u"Order Forms"_s);
    EXPECT_EQ(Find<QMenu>(menu, u"mnuDeluxeForms"_s)->title(), u"Deluxe Business Forms"_s);
}

TEST_F(StartupScreen, OrderItemsAskBeforeTheyOpenASupplier) {
    WriteMasterFiles();
    screens.Show(menu);
    struct Item {
        QString name;
        QString title;
        QString question;
    };
    const Item items[] = {
        {u"mnuPPaper"_s, u"Order Paper"_s,
         u"Use Plain Paper for Reports (etc)\nClick Yes to connect to a Supplier"_s},
        {u"mnuPPPaper"_s, u"Order Paper"_s,
         u"Perforated Response Paper is used to create\nInvoices with a remittance Slip\nClick Yes "
         u"to connect to a Supplier"_s},
        {u"mnuGraytex"_s, u"Order Graytex Forms"_s,
         u"Proposal Sets are ready-made Forms\nConnect to Graytex Now"_s},
        {u"mnuAddress"_s, u"Order Paper"_s,
         u"30 to a Page Mailing Labels\nClick Yes to connect to a Supplier"_s},
        {u"mnuLabels"_s, u"Order Labels"_s,
         u"2 X 4 Shipping Labels\nClick YES to Connect to a Supplier"_s},
    };
    for (const Item& item : items) {
        browser.Addresses.clear();
        user.ExpectQuestion(item.question, item.title, Answer::No);
        Trigger(item.name);
        EXPECT_TRUE(browser.Addresses.isEmpty());
        user.ExpectQuestion(item.question, item.title, Answer::Yes);
        Trigger(item.name);
        EXPECT_EQ(browser.Addresses.size(), 1);
    }
}

TEST_F(StartupScreen, ChecksAndDepositSlipsOpenWithoutAQuestion) {
    WriteMasterFiles();
    screens.Show(menu);
    Trigger(u"mnuDeluxe"_s);
    Trigger(u"mnuDepositSlips"_s);
    EXPECT_EQ(browser.Addresses.size(), 2);
    EXPECT_NE(browser.Addresses[0], browser.Addresses[1]);
}

TEST_F(StartupScreen, HelpOpensTheManualThatCameWithTheProgram) {
    WriteMasterFiles();
    screens.Show(menu);
    Trigger(u"mnuHelp"_s);
    ASSERT_EQ(browser.Addresses.size(), 1);
    EXPECT_TRUE(QFile::exists(QUrl(browser.Addresses[0]).toLocalFile()))
        << browser.Addresses[0].toStdString();
}

TEST_F(StartupScreen, OpenUpdatePageOpensAnAddressAndEndsTheProgram) {
    WriteMasterFiles();
    screens.Show(menu);
    static_cast<frmStartup*>(screens.Find(menu))->OpenUpdatePage();
    EXPECT_EQ(browser.Addresses.size(), 1);
    EXPECT_EQ(exitRequests, 1);
}
