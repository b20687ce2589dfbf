#include "platform/GuardedApplication.h"
#include "setup/AddressStyle.h"
#include "setup/frmSetup.h"
#include "startup/StartUp.h"
#include "support/SampleSlips.h"
#include "support/ScreenTest.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/qtestspontaneevent.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName setup = ScreenName::frmSetup;
constexpr ScreenName menu = ScreenName::frmStartup;
constexpr ScreenName splash = ScreenName::frmSplash;
constexpr ScreenName board = ScreenName::frmPrintSchedules;

enum Tab { BusinessInfo, SetupHelp, Options, Logo };
enum SubTab { Printing, Taxation, PhoneAndModem, WorkDays, DeliveriesInvoicing, Assistance };

const QString quit = u"cmdQuit"_s;
const QString charge = u"txtDeliveryCharge"_s;
const QString limit = u"txtGradulated(0)"_s;
const QString surcharge = u"txtGradulated(1)"_s;
const QString usa = u"USA Style Address"_s;
const QString international = u"International Style Address"_s;

const QString businessFile = u"MyBusinessData.txt"_s;
const QString settingsFile = u"Settings.txt"_s;
const QString deliveryFile = u"DeliverySettings.txt"_s;
const QString taxFile = u"TaxSettings.txt"_s;
const QString colorsFile = u"PrintColors.txt"_s;
const QString promptsFile = u"Prompts.txt"_s;
const QString workDaysFile = u"WorkDays.txt"_s;
const QString logoFile = u"CompanyLogo.txt"_s;
const QString logoSizeFile = u"LogoSettings.txt"_s;
const QString phoneFile = u"Phone.txt"_s;

/// The files of a business that is set up, US formats, with values that are the default nowhere.
const std::map<QString, QByteArray>& BusinessFiles() {
    static const std::map<QString, QByteArray> files = {
        {businessFile,
         "\"Corner Dairy\",\"12 Mill Road\",\"Rear\",\"Springfield\",\"IL\",\"62704\","
         "\"217-555-0199\",\"fax\",\"FEIN 00-0000000\"\r\n"},
        {settingsFile, "9\r\n61\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n"},
        {deliveryFile, "1,0,1,0,1,1,#FALSE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n"},
        {taxFile, "\"VAT Tax\",\"Tax Surcharge\",\"6.25\",\"5,0\",1,1\r\n"},
        {colorsFile, "16711680\r\n255\r\n\"Courier New\"\r\n#FALSE#\r\n2\r\n"},
        {promptsFile, "#FALSE#,#FALSE#\r\n"},
        {workDaysFile, "61\r\n"},
        {phoneFile, "#TRUE#\r\n5\r\n"}};
    return files;
}

const QString logoPath = u"/home/dairy/Logo, gr\u00fcn.bmp"_s;
const QString pictureFilter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

/// One picture, at the path above.
class OnePicture : public PictureFiles {
public:
    bool Exists(const QString& path) const override { return path == logoPath; }
    Picture Load(const QString&) const override {
        return {std::make_shared<QImage>(100, 100, QImage::Format_RGB32), 1500, 1500};
    }
};

} // namespace

/// One run of the program on the test's folder after another.
class SetupScreen : public ScreenTest {
protected:
    struct Run {
        Run(const TestFolder& folder, const Machine& machine)
            : office(folder.Path(), machine), screens(office) {}
        Office office;
        Screens screens;
    };

    SetupScreen() { WriteMasterFiles(); }

    /// From the start of the program to the title screen.
    void Start() {
        run.reset();
        run = std::make_unique<Run>(folder, Machine{clock, user, printer, browser, picture});
        QObject::connect(&run->screens, &Screens::ExitRequested, [this] { ++exits; });
        Main(run->office, run->screens);
    }

    /// And on by the title's picture into the setup screen.
    void StartSetup() {
        Start();
        ClickOn(splash, u"Image1(0)"_s);
        WaitForSetup();
    }

    void WriteBusinessFiles() const {
        for (const auto& [name, bytes] : BusinessFiles())
            folder.Write(name, bytes);
    }

    /// What the window's close box does.
    void CloseSetup() {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(run->screens.Find(setup), &event);
    }

    void WaitForSetup() { ASSERT_TRUE(QTest::qWaitForWindowActive(run->screens.Find(setup))); }

    LiveSettings& Live() { return run->office.settings; }

    template <typename Control>
    Control* On(ScreenName screen, const QString& name) {
        auto* control = run->screens.Find(screen)->template findChild<Control*>(name);
        EXPECT_NE(control, nullptr) << name.toStdString();
        return control;
    }
    template <typename Control>
    Control* On(const QString& name) {
        return On<Control>(setup, name);
    }

    void ClickOn(ScreenName screen, const QString& button) {
        QTest::mouseClick(On<QAbstractButton>(screen, button), Qt::LeftButton);
    }
    void ClickOn(const QString& button) { ClickOn(setup, button); }
    /// The clickable part of a box or option is at its left.
    void Tick(const QString& box) {
        auto* control = On<QAbstractButton>(box);
        ASSERT_TRUE(control->isVisible()) << box.toStdString();
        QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, control->height() / 2));
    }

    bool Shows(ScreenName screen) const {
        const Screen* found = run->screens.Find(screen);
        return found && found->isVisible();
    }

    QTabWidget* Tabs() { return On<QTabWidget>(u"tabInfo"_s); }
    QTabWidget* SubTabs() { return On<QTabWidget>(u"SSTab2"_s); }
    static void ClickTab(QTabWidget* tabs, int index) {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs->tabBar()->tabRect(index).center());
        EXPECT_EQ(tabs->currentIndex(), index);
    }
    void GoTo(Tab tab) { ClickTab(Tabs(), tab); }
    void GoTo(SubTab subTab) {
        GoTo(Options);
        ClickTab(SubTabs(), subTab);
    }

    static QString Business(int index) { return u"txtBusiness(%1)"_s.arg(index); }
    QLineEdit* BusinessBox(int index) { return On<QLineEdit>(Business(index)); }
    QString Text(const QString& box) { return On<QLineEdit>(box)->text(); }
    QString Caption(const QString& label) { return On<QLabel>(label)->text(); }
    QComboBox* List(const QString& name) { return On<QComboBox>(name); }
    bool IsTicked(const QString& name) { return On<QAbstractButton>(name)->isChecked(); }
    bool IsVisible(const QString& name) { return On<QWidget>(name)->isVisible(); }

    void ClickInto(const QString& box) {
        auto* control = On<QWidget>(box);
        ASSERT_TRUE(control->isVisible()) << box.toStdString();
        QTest::mouseClick(control, Qt::LeftButton);
    }
    /// Puts a text in the place of what stands in a box, by the keyboard.
    void Enter(const QString& box, const QString& text) {
        ClickInto(box);
        Replace(On<QLineEdit>(box), text);
    }
    void EnterInList(const QString& list, const QString& text) {
        QLineEdit* field = List(list)->lineEdit();
        ASSERT_TRUE(field->isVisible()) << list.toStdString();
        QTest::mouseClick(field, Qt::LeftButton);
        Replace(field, text);
    }
    /// Accents as well, which a keyboard of their region has.
    static void TypeAny(QWidget* control, const QString& text) {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, control, Qt::Key(character.toUpper().unicode()),
                                QString(character), Qt::NoModifier);
    }
    static void Replace(QLineEdit* field, const QString& text) {
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        TypeAny(field, text);
    }
    void Paste(const QString& box, const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(On<QWidget>(box), Qt::Key_V, Qt::ControlModifier);
    }

    void EnterNameAndTelephone() {
        GoTo(BusinessInfo);
        Enter(Business(0), u"Corner Dairy"_s);
        Enter(Business(6), u"217-555-0199"_s);
    }

    /// The save, which leads to the menu.
    void Save() {
        ClickOn(quit);
        EXPECT_FALSE(Shows(setup));
        EXPECT_TRUE(Shows(menu));
    }
    /// And back by the menu.
    void Reopen() {
        On<QAction>(menu, u"mnuCreate"_s)->trigger();
        WaitForSetup();
    }

    QByteArray Saved(const QString& name) const { return folder.Read(name); }

    void ExpectFailure(FailureKind kind, const QString& part) {
        ASSERT_FALSE(Failures().empty());
        EXPECT_EQ(Failures().front().Kind(), kind);
        EXPECT_TRUE(Failures().front().Sentence().contains(part)) << Failures().front().what();
    }
    void ExpectNoFailure() { EXPECT_TRUE(Failures().empty()) << Failures().front().what(); }

    OnePicture picture;
    std::unique_ptr<Run> run;
    int exits = 0;
};

// What stands on the screen.

TEST_F(SetupScreen, TitleTabsAndTheirCaptions) {
    StartSetup();
    EXPECT_EQ(run->screens.Find(setup)->windowTitle(), u"Tessel Delivery Setup"_s);
    const QStringList tabs = {u"Business Info"_s, u"Setup Help"_s, u"Options"_s, u"Logo"_s};
    ASSERT_EQ(Tabs()->count(), tabs.size());
    for (int i = 0; i < tabs.size(); ++i)
        EXPECT_EQ(Tabs()->tabText(i), tabs[i]);
    const QStringList subTabs = {u"Printing"_s,
                                 u"Taxation"_s,
                                 u"Phone and Modem"_s,
                                 u"Work Days"_s,
                                 u"Deliveries/Invoicing"_s,
                                 u"Program Assistance"_s};
    ASSERT_EQ(SubTabs()->count(), subTabs.size());
    for (int i = 0; i < subTabs.size(); ++i)
        EXPECT_EQ(SubTabs()->tabText(i), subTabs[i]);
}

TEST_F(SetupScreen, EachTabHoldsItsControls) {
    StartSetup();
    struct Place {
        QWidget* tab;
        QStringList controls;
    };
    QStringList business = {u"cmdAddress"_s, u"Image4"_s, u"Image5"_s};
    for (int i = 0; i < 9; ++i)
        business += Business(i);
    const Place places[] = {
        {Tabs()->widget(BusinessInfo), business},
        {Tabs()->widget(Options), {u"SSTab2"_s}},
        {SubTabs()->widget(Printing),
         {u"lblFont"_s, u"txtData"_s, u"txtBorders"_s, u"ckColor"_s, u"cboCopies"_s, u"optPlain"_s,
          u"optReturn"_s}},
        {SubTabs()->widget(Taxation),
         {u"cboTaxHeading1"_s, u"cboRate1"_s, u"ckApply1stTax"_s, u"cboTaxHeading2"_s,
          u"cboRate2"_s, u"ckApply2ndTax"_s, u"ckApplyGraduated"_s, u"cmdGraduatedTax(0)"_s,
          u"fraGraduated"_s, limit, surcharge, u"cmdGraduatedTax(1)"_s, u"cmdGraduatedTax(2)"_s,
          u"ckServices"_s, u"ckSalesItems"_s, u"ckLabor"_s}},
        {SubTabs()->widget(PhoneAndModem),
         {u"ckCallerID"_s, u"ckPhone"_s, u"txtModemPort"_s, u"lblCallid"_s}},
        {SubTabs()->widget(WorkDays),
         {u"fraWDOptions"_s, u"optMF"_s, u"optMS"_s, u"optSF"_s, u"optSS"_s, u"ckOnDay"_s}},
        {SubTabs()->widget(DeliveriesInvoicing),
         {u"ckPopulateInvoices"_s, u"ckDeliveryCharge"_s, charge, u"ckDelete"_s}},
        {SubTabs()->widget(Assistance), {u"fraAlarms"_s, u"ckAlarms"_s, u"ckPrompts"_s}}};
    for (const Place& place : places) {
        for (const QString& name : place.controls)
            EXPECT_NE(place.tab->findChild<QWidget*>(name), nullptr) << name.toStdString();
    }
}

TEST_F(SetupScreen, ControlsCarryTheirCaptions) {
    StartSetup();
    const std::pair<QString, QString> captions[] = {
        {quit, u"&Save Settings / Return to Menu"_s},
        {u"Image1(0)"_s, u"Advance Tab  >"_s},
        {u"Image1(1)"_s, u"Advance Sub Tab  >"_s},
        {u"ckServices"_s, u"Tax Services"_s},
        {u"ckSalesItems"_s, u"Tax Sales Items"_s},
        {u"ckLabor"_s, u"Tax Labor"_s},
        {u"ckApplyGraduated"_s, u"Apply Graduated Tax Scheme"_s},
        {u"cmdGraduatedTax(0)"_s, u"View/Create a Graduated Tax Scheme"_s},
        {u"cmdGraduatedTax(1)"_s, u"Save Graduated Tax Scheme and Close Window"_s},
        {u"cmdGraduatedTax(2)"_s, u"Clear/Redo"_s},
        {u"ckCallerID"_s, u"Using Caller ID"_s},
        {u"ckPhone"_s, u"A Phone is Daisy-Chained  downstream from the Computer"_s},
        {u"optMF"_s, u"Monday thru Friday"_s},
        {u"optMS"_s, u"Monday thru Saturday"_s},
        {u"optSF"_s, u"Sunday thru Friday"_s},
        {u"optSS"_s, u"Sunday thru Saturday"_s},
        {u"ckOnDay"_s, u"Delivery Rescheduling"_s},
        {u"ckPopulateInvoices"_s, u"Print Populated Invoices"_s},
        {u"ckDeliveryCharge"_s, u"Add a Delivery Charge to invoices"_s},
        {u"ckDelete"_s, u"Automatically DELETE deliveries Past Date"_s},
        {u"ckAlarms"_s, u"Sound Alarm on Errors"_s},
        {u"ckPrompts"_s, u"Show Prompts and Confirmations"_s}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(On<QAbstractButton>(name)->text(), caption);
    const QStringList labels = {
        u"Company Name"_s,  u"Address 1"_s,       u"Address 2"_s, u"City"_s,
        u"State"_s,         u"Postal Zip Code"_s, u"Telephone"_s, u"Fax No,email or Web"_s,
        u"FEIN, VAT, ABN"_s};
    for (int i = 0; i < labels.size(); ++i)
        EXPECT_EQ(Caption(u"lblAddress(%1)"_s.arg(i)), labels[i]);
}

TEST_F(SetupScreen, NotesStandBesideTheirControls) {
    StartSetup();
    const std::pair<QWidget*, QStringList> places[] = {
        {On<QWidget>(u"fraGraduated"_s),
         {u"Graduated Tax Levels"_s, u"Apply Primary Tax Rate to all Sales up to  a Total of:"_s,
          u"Apply Secondary Tax Rate when exceeded"_s, u"when Primary Amount is exceeded"_s,
          u"Apply a Surcharge of:"_s}},
        {On<QWidget>(u"fraWDOptions"_s), {u"Allow Deliveries These Days"_s}},
        {SubTabs()->widget(WorkDays),
         {u"Example: Ticked always on Monday"_s, u"Unticked always on the 3rd"_s}},
        {SubTabs()->widget(DeliveriesInvoicing),
         {u"(Set to 0 if charge may vary)"_s,
          u"The invoice will contain all products on the delivery slip"_s,
          u"The total and taxes will be calculated automatically"_s,
          u"Unticked, the invoices will only be headed up"_s,
          u"Invoice Numbers are not used, Inventory is NOT updated"_s, u"Sale is not recorderd"_s}},
        {On<QWidget>(u"fraAlarms"_s), {u"Program Assistance"_s}}};
    for (const auto& [part, notes] : places) {
        const QStringList texts = TextsIn(part);
        for (const QString& note : notes)
            EXPECT_EQ(texts.count(note), 1) << note.toStdString();
    }
}

TEST_F(SetupScreen, ToolTips) {
    StartSetup();
    const std::pair<QString, QString> tips[] = {
        {quit, u"Returns to Main Menu"_s},
        {u"Image1(0)"_s, u"Toggles the Tab Selection"_s},
        {u"Image1(1)"_s, u"Toggles the Sub-Tab Selection"_s},
        {u"cmdAddress"_s, u"Toggle Address Style (USA or Intl)"_s},
        {u"Image4"_s, u"Clear All business Data"_s},
        {u"Image5"_s, u"Reload Business Data"_s},
        {u"cmdGraduatedTax(0)"_s, u"International Users only"_s},
        {u"fraGraduated"_s, u"A specialized Tax system"_s},
        {limit, u"Max amount of primary rate"_s},
        {surcharge, u"Flat surcharge when 1st total is exceeded"_s},
        {u"ckApplyGraduated"_s, u"A specialized Tax System used in some countries"_s}};
    for (const auto& [name, tip] : tips)
        EXPECT_EQ(On<QWidget>(name)->toolTip(), tip) << name.toStdString();
}

TEST_F(SetupScreen, ListsHoldTheirEntriesInOrderAndAllowFreeEntry) {
    StartSetup();
    const QStringList rates = {u"4.0"_s, u"5.0"_s, u"6.0"_s, u"7.0"_s,
                               u"5,0"_s, u"6,0"_s, u"7,0"_s};
    const QStringList headings = {u"Sales Tax"_s, u"County Tax"_s,     u"Tax"_s, u"Taxes"_s,
                                  u"VAT Tax"_s,   u"Provincial Tax"_s, u"GST"_s};
    const std::pair<QString, QStringList> lists[] = {
        {u"cboRate1"_s, rates},
        {u"cboRate2"_s, rates},
        {u"cboTaxHeading1"_s, headings},
        {u"cboTaxHeading2"_s, headings + QStringList(u"Tax Surcharge"_s)},
        {u"cboCopies"_s, {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}}};
    for (const auto& [name, entries] : lists) {
        QStringList texts;
        for (int i = 0; i < List(name)->count(); ++i)
            texts += List(name)->itemText(i);
        EXPECT_EQ(texts, entries) << name.toStdString();
        EXPECT_TRUE(List(name)->isEditable()) << name.toStdString();
    }
}

// Going from tab to tab.

TEST_F(SetupScreen, SteppersGoOnAndFromTheLastTabToTheFirst) {
    StartSetup();
    for (const int tab : {1, 2, 3, 0, 1}) {
        ClickOn(u"Image1(0)"_s);
        EXPECT_EQ(Tabs()->currentIndex(), tab);
        EXPECT_EQ(SubTabs()->currentIndex(), 0);
    }
    GoTo(Options);
    for (const int tab : {1, 2, 3, 4, 5, 0, 1}) {
        ClickOn(u"Image1(1)"_s);
        EXPECT_EQ(SubTabs()->currentIndex(), tab);
        EXPECT_EQ(Tabs()->currentIndex(), Options);
    }
}

TEST_F(SetupScreen, SubTabIsResetAtEachShowingWhileTheTabStays) {
    StartSetup();
    GoTo(Assistance);
    run->screens.Hide(setup);
    run->screens.Show(setup);
    EXPECT_EQ(Tabs()->currentIndex(), Options);
    EXPECT_EQ(SubTabs()->currentIndex(), Printing);
}

TEST_F(SetupScreen, MenuOpensItOnItsFirstTab) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Save();
    Reopen();
    EXPECT_TRUE(Shows(setup));
    EXPECT_FALSE(Shows(menu));
    EXPECT_EQ(Tabs()->currentIndex(), BusinessInfo);
    EXPECT_EQ(SubTabs()->currentIndex(), Printing);
}

// The road from the title screen and on.

TEST_F(SetupScreen, SetupIsMadeUnseenAtTheStartAndFolderWithoutFilesShowsTheWelcomePanel) {
    Start();
    EXPECT_NE(run->screens.Find(setup), nullptr);
    EXPECT_FALSE(Shows(setup));
    ClickOn(splash, u"cmdContinue"_s);
    EXPECT_TRUE(On<QWidget>(splash, u"fraWelcome"_s)->isVisible());
    EXPECT_FALSE(Shows(menu));
    ClickOn(splash, u"Image1(1)"_s);
    EXPECT_TRUE(Shows(setup));
    EXPECT_EQ(run->screens.Find(splash), nullptr);
}

TEST_F(SetupScreen, AfterAFullSaveAndARestartContinueGoesStraightToTheMenu) {
    StartSetup();
    EnterNameAndTelephone();
    Save();
    Start();
    ClickOn(splash, u"cmdContinue"_s);
    EXPECT_TRUE(Shows(menu));
    EXPECT_EQ(run->screens.Find(splash), nullptr);
}

TEST_F(SetupScreen, CloseBoxEndsTheProgramWithoutSaving) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    Enter(Business(0), u"Another"_s);
    GoTo(WorkDays);
    Tick(u"optSS"_s);
    CloseSetup();
    EXPECT_EQ(exits, 1);
    run.reset();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SetupScreen, CloseBoxInAnEmptyAmountBoxIsOneEndOfTheProgramAndNoFailure) {
    WriteBusinessFiles();
    StartSetup();
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    const auto before = folder.Contents();
    CloseSetup();
    EXPECT_EQ(exits, 1);
    run.reset();
    EXPECT_EQ(exits, 1);
    ExpectNoFailure();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SetupScreen, EndOfTheProgramInAnEmptyAmountBoxIsNoFailure) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    run.reset();
    ExpectNoFailure();
}

// Defaults.

TEST_F(SetupScreen, FolderWithoutFilesShowsTheDefaults) {
    StartSetup();
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(BusinessBox(i)->text(), QString()) << i;
    EXPECT_EQ(On<QAbstractButton>(u"cmdAddress"_s)->text(), usa);
    const QStringList ticked = {u"ckDelete"_s,  u"ckOnDay"_s,  u"ckAlarms"_s,
                                u"ckPrompts"_s, u"optPlain"_s, u"optMF"_s};
    for (const QString& name : ticked)
        EXPECT_TRUE(IsTicked(name)) << name.toStdString();
    const QStringList unticked = {u"ckColor"_s,
                                  u"ckApplyGraduated"_s,
                                  u"ckPopulateInvoices"_s,
                                  u"ckDeliveryCharge"_s,
                                  u"optReturn"_s,
                                  u"ckApply1stTax"_s,
                                  u"ckApply2ndTax"_s,
                                  u"ckCallerID"_s,
                                  u"ckPhone"_s,
                                  u"optMS"_s,
                                  u"optSF"_s,
                                  u"optSS"_s};
    for (const QString& name : unticked)
        EXPECT_FALSE(IsTicked(name)) << name.toStdString();
    EXPECT_EQ(List(u"cboTaxHeading1"_s)->currentText(), u"Sales Tax"_s);
    EXPECT_EQ(List(u"cboTaxHeading2"_s)->currentText(), u"Tax"_s);
    EXPECT_EQ(List(u"cboRate1"_s)->currentText(), u"4.0"_s);
    EXPECT_EQ(List(u"cboRate2"_s)->currentText(), u"4.0"_s);
    EXPECT_EQ(List(u"cboCopies"_s)->currentText(), u"3"_s);
    EXPECT_EQ(Text(charge), u"$0.00"_s);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_EQ(Text(u"txtModemPort"_s), u"1"_s);
    EXPECT_EQ(Caption(u"lblFont"_s), u"Arial"_s);
    EXPECT_EQ(On<QLineEdit>(u"txtBorders"_s)->accessibleDescription(), u"#000000"_s);
    EXPECT_EQ(On<QLineEdit>(u"txtData"_s)->accessibleDescription(), u"#000000"_s);
    GoTo(PhoneAndModem);
    EXPECT_FALSE(IsVisible(u"lblCallid"_s));
    GoTo(Taxation);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    EXPECT_EQ(Live().WorkWeek, 5);
    EXPECT_TRUE(Live().AlarmOn);
    EXPECT_TRUE(Live().PromptsOn);
    EXPECT_FALSE(Live().CallerIdOn);
    EXPECT_EQ(Live().logoWidth, 1440);
    EXPECT_EQ(Live().logoHeight, 1440);
    EXPECT_EQ(Live().logoFile, QString());
}

TEST_F(SetupScreen, DefaultsSavedWithNameAndTelephone) {
    StartSetup();
    EnterNameAndTelephone();
    Save();
    EXPECT_EQ(Saved(businessFile),
              "\"Corner Dairy\",\"\",\"\",\"\",\"\",\"\",\"217-555-0199\",\"\",\"\"\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(Saved(deliveryFile), "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    EXPECT_EQ(Saved(taxFile), "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    EXPECT_EQ(Saved(colorsFile), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    EXPECT_EQ(Saved(promptsFile), "#TRUE#,#TRUE#\r\n");
    EXPECT_EQ(Saved(workDaysFile), "5\r\n");
    EXPECT_EQ(Saved(phoneFile), "#FALSE#\r\n1\r\n");
    EXPECT_FALSE(folder.Has(logoFile));
    EXPECT_FALSE(folder.Has(logoSizeFile));
}

// All files after values entered by hand.

class FullSetup : public SetupScreen {
protected:
    void EnterBusiness() {
        const QStringList business = {u"Gr\u00fcn Dairy"_s, u"12 Mill Road"_s, u"Rear"_s,
                                      u"Springfield"_s,     u"IL"_s,           u"62704"_s,
                                      u"217-555-0199"_s,    u"fax@dairy"_s,    u"FEIN 1"_s};
        for (int i = 0; i < business.size(); ++i)
            Enter(Business(i), business[i]);
    }

    void EnterPrintLook() {
        user.ExpectFontDialog(u"Arial"_s, u"Courier New"_s);
        user.ExpectColorDialog(0, 0x0000ff);
        user.ExpectColorDialog(0x0000ff, 0xff0000);
        GoTo(Printing);
        ClickOn(u"cmdChange(2)"_s);
        ClickOn(u"cmdChange(1)"_s);
        ClickOn(u"cmdChange(0)"_s);
        Tick(u"ckColor"_s);
        EnterInList(u"cboCopies"_s, u"7"_s);
        Tick(u"optReturn"_s);
    }

    void EnterTaxes(const QString& typedLimit, const QString& typedSurcharge) {
        GoTo(Taxation);
        EnterInList(u"cboTaxHeading1"_s, u"VAT"_s);
        EnterInList(u"cboTaxHeading2"_s, u"Tax Surcharge"_s);
        EnterInList(u"cboRate1"_s, u"6"_s);
        EnterInList(u"cboRate2"_s, u"5,"_s);
        Tick(u"ckApply1stTax"_s);
        Tick(u"ckApply2ndTax"_s);
        Tick(u"ckApplyGraduated"_s);
        ClickOn(u"cmdGraduatedTax(0)"_s);
        Type(On<QWidget>(limit), typedLimit);
        Enter(surcharge, typedSurcharge);
        ClickOn(u"cmdGraduatedTax(1)"_s);
    }

    void EnterOptions(const QString& typedCharge) {
        GoTo(PhoneAndModem);
        Tick(u"ckCallerID"_s);
        Tick(u"ckPhone"_s);
        GoTo(WorkDays);
        Tick(u"optSF"_s);
        Tick(u"ckOnDay"_s);
        GoTo(DeliveriesInvoicing);
        Tick(u"ckPopulateInvoices"_s);
        Tick(u"ckDeliveryCharge"_s);
        ClickInto(charge);
        Type(On<QWidget>(charge), typedCharge);
        Tick(u"ckDelete"_s);
        GoTo(Assistance);
        Tick(u"ckAlarms"_s);
    }

    void StoreLogo() {
        user.ExpectFileDialog(pictureFilter, logoPath);
        user.ExpectMessage(u"Your Logo has been Stored"_s);
        GoTo(Logo);
        ClickOn(u"cmdLogo(0)"_s);
        ClickOn(u"UpDown3(up)"_s);
        ClickOn(u"cmdLogo(1)"_s);
    }

    /// A value other than the default into every control, amounts as a person of the region types
    /// them, and the save.
    void EnterEverythingAndSave(const QString& typedLimit, const QString& typedSurcharge,
                                const QString& typedCharge) {
        StartSetup();
        EnterBusiness();
        EnterPrintLook();
        EnterTaxes(typedLimit, typedSurcharge);
        EnterOptions(typedCharge);
        StoreLogo();
        Save();
        ExpectNoFailure();
    }

    void ExpectTheFilesWithoutAmounts() const {
        EXPECT_EQ(Saved(businessFile),
                  "\"Gr\xfcn Dairy\",\"12 Mill Road\",\"Rear\",\"Springfield\",\"IL\",\"62704\","
                  "\"217-555-0199\",\"fax@dairy\",\"FEIN 1\"\r\n");
        EXPECT_EQ(Saved(settingsFile), "8\r\n62\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
        EXPECT_EQ(Saved(taxFile), "\"VAT\",\"Tax Surcharge\",\"6\",\"5,\",1,1\r\n");
        EXPECT_EQ(Saved(colorsFile), "16711680\r\n255\r\n\"Courier New\"\r\n#TRUE#\r\n7\r\n");
        EXPECT_EQ(Saved(promptsFile), "#TRUE#,#FALSE#\r\n");
        EXPECT_EQ(Saved(workDaysFile), "62\r\n");
        EXPECT_EQ(Saved(logoFile), "\"/home/dairy/Logo, gr\xfcn.bmp\"\r\n");
        EXPECT_EQ(Saved(logoSizeFile), "1490,1440\r\n");
        EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n1\r\n");
    }

    void ExpectEverythingOnTheControls(const QString& shownLimit, const QString& shownSurcharge,
                                       const QString& shownCharge) {
        const QStringList business = {u"Gr\u00fcn Dairy"_s, u"12 Mill Road"_s, u"Rear"_s,
                                      u"Springfield"_s,     u"IL"_s,           u"62704"_s,
                                      u"217-555-0199"_s,    u"fax@dairy"_s,    u"FEIN 1"_s};
        for (int i = 0; i < business.size(); ++i)
            EXPECT_EQ(BusinessBox(i)->text(), business[i]);
        EXPECT_EQ(On<QAbstractButton>(u"cmdAddress"_s)->text(), usa);
        for (const char* name :
             {"ckColor", "optReturn", "ckApply1stTax", "ckApply2ndTax", "ckApplyGraduated",
              "ckPhone", "optSF", "ckPopulateInvoices", "ckDeliveryCharge", "ckPrompts"})
            EXPECT_TRUE(IsTicked(QString::fromLatin1(name))) << name;
        for (const char* name : {"optPlain", "optMF", "optMS", "optSS", "ckOnDay", "ckDelete",
                                 "ckAlarms", "ckCallerID"})
            EXPECT_FALSE(IsTicked(QString::fromLatin1(name))) << name;
        EXPECT_EQ(Caption(u"lblFont"_s), u"Courier New"_s);
        EXPECT_EQ(On<QLineEdit>(u"txtBorders"_s)->accessibleDescription(), u"#0000ff"_s);
        EXPECT_EQ(On<QLineEdit>(u"txtData"_s)->accessibleDescription(), u"#ff0000"_s);
        EXPECT_EQ(List(u"cboCopies"_s)->currentText(), u"7"_s);
        EXPECT_EQ(List(u"cboTaxHeading1"_s)->currentText(), u"VAT"_s);
        EXPECT_EQ(List(u"cboTaxHeading2"_s)->currentText(), u"Tax Surcharge"_s);
        EXPECT_EQ(List(u"cboRate1"_s)->currentText(), u"6"_s);
        EXPECT_EQ(List(u"cboRate2"_s)->currentText(), u"5,"_s);
        EXPECT_EQ(Text(limit), shownLimit);
        EXPECT_EQ(Text(surcharge), shownSurcharge);
        EXPECT_EQ(Text(charge), shownCharge);
        EXPECT_FALSE(Live().logo.IsEmpty());
        EXPECT_EQ(Live().logoWidth, 1490);
    }
};

TEST_F(FullSetup, AllFilesOfAUnitedStatesOffice) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    ExpectTheFilesWithoutAmounts();
    EXPECT_EQ(Saved(deliveryFile),
              "1,0,1,0,1,1,#FALSE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
}

TEST_F(FullSetup, AllFilesOfAGermanOffice) {
    UseLocale("de_DE");
    EnterEverythingAndSave(u"1000"_s, u"2,5"_s, u"1234"_s);
    ExpectTheFilesWithoutAmounts();
    EXPECT_EQ(Saved(deliveryFile), "1,0,1,0,1,1,#FALSE#,#TRUE#,\"1.000,00\xa0\x80\","
                                   "\"2,50\xa0\x80\",\"1.234,00\xa0\x80\"\r\n");
}

TEST_F(FullSetup, EverythingStandsAsSavedAfterARestart) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    StartSetup();
    ExpectEverythingOnTheControls(u"$1,000.00"_s, u"$2.50"_s, u"$12.50"_s);
    EXPECT_EQ(Live().WorkWeek, 62);
    EXPECT_TRUE(Live().CallerIdOn);
    GoTo(PhoneAndModem);
    EXPECT_TRUE(IsVisible(u"lblCallid"_s));
}

TEST_F(FullSetup, EverythingStandsAsSavedAfterAGermanRestart) {
    UseLocale("de_DE");
    EnterEverythingAndSave(u"1000"_s, u"2,5"_s, u"1234"_s);
    StartSetup();
    ExpectEverythingOnTheControls(u"1.000,00\u00a0\u20ac"_s, u"2,50\u00a0\u20ac"_s,
                                  u"1.234,00\u00a0\u20ac"_s);
}

TEST_F(FullSetup, EverythingStandsAsSavedAfterComingBackByTheMenu) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    Reopen();
    GoTo(PhoneAndModem);
    EXPECT_TRUE(IsTicked(u"ckCallerID"_s));
    Tick(u"ckCallerID"_s);
    ExpectEverythingOnTheControls(u"$1,000.00"_s, u"$2.50"_s, u"$12.50"_s);
}

TEST_F(FullSetup, SaveWithNothingChangedAfterARestartLevelsTheAlarmInMemoryAndASecondOnDisk) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    StartSetup();
    EXPECT_TRUE(Live().AlarmOn);
    const auto before = folder.Contents();
    Save();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_FALSE(Live().AlarmOn);
    Reopen();
    Save();
    auto levelled = before;
    levelled[settingsFile] = "8\r\n62\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n";
    EXPECT_EQ(folder.Contents(), levelled);
}

TEST_F(FullSetup, SaveWithNothingEnteredWritesWhatWasThere) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    Save();
    EXPECT_EQ(folder.Contents(), before);
}

// The check at the save.

TEST_F(SetupScreen, SaveWithoutNameOrTelephoneIsRefusedAndTheScreenStays) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    for (const int missing : {0, 6}) {
        Enter(Business(missing), QString());
        user.ExpectMessage(u"Name and Telephone are Required"_s, u"Missing Name or Telphone"_s);
        ClickOn(quit);
        user.ExpectNothingLeft();
        EXPECT_TRUE(Shows(setup));
        EXPECT_FALSE(Shows(menu));
        EXPECT_EQ(folder.Contents(), before);
        Enter(Business(missing), u"217"_s);
    }
    Save();
}

TEST_F(SetupScreen, SaveByItsKey) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(DeliveriesInvoicing);
    ClickInto(charge);
    Type(On<QWidget>(charge), u"7"_s);
    QTest::keyClick(On<QWidget>(charge), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shows(menu); }));
    EXPECT_EQ(Saved(deliveryFile), "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$7.00\"\r\n");
    // The box was left before the save: only that writes the amount in it anew.
    EXPECT_EQ(Text(charge), u"$7.00"_s);
}

TEST_F(SetupScreen, SaveByItsKeyFromAnEmptyAmountBoxFailsWithNothingSaved) {
    WriteBusinessFiles();
    StartSetup();
    Enter(Business(0), u"Another"_s);
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    const auto before = folder.Contents();
    ExpectNoFailure();
    // The program ends in the middle of the click, at the first failure; what is on disk then
    // counts. Only the test goes on.
    std::map<QString, QByteArray> atTheFailure;
    auto* application = qobject_cast<GuardedApplication*>(qApp);
    const auto take = application->OnFailure;
    application->OnFailure = [&](const RuntimeFailure& failure) {
        if (Failures().empty())
            atTheFailure = folder.Contents();
        take(failure);
    };
    QTest::keyClick(On<QWidget>(charge), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Failures().empty(); }));
    application->OnFailure = take;
    ExpectFailure(FailureKind::TypeMismatch, u"(the delivery charge of the setup screen)"_s);
    EXPECT_EQ(atTheFailure, before);
}

TEST_F(SetupScreen, CopiesTypedFromNothingTo255AreSaved) {
    StartSetup();
    EnterNameAndTelephone();
    for (const char* copies : {"0", "255"}) {
        GoTo(Printing);
        EnterInList(u"cboCopies"_s, QString::fromLatin1(copies));
        Save();
        EXPECT_EQ(Saved(colorsFile),
                  QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n") + copies + "\r\n");
        EXPECT_EQ(Live().PrintCopies, QByteArray(copies).toInt());
        Reopen();
        EXPECT_EQ(List(u"cboCopies"_s)->currentText(), QString::fromLatin1(copies));
    }
}

TEST_F(SetupScreen, CopiesTypedThatAreNoByteFailWithNothingSaved) {
    WriteBusinessFiles();
    StartSetup();
    Enter(Business(0), u"Another"_s);
    const auto before = folder.Contents();
    const std::pair<QString, FailureKind> rows[] = {{u"256"_s, FailureKind::Overflow},
                                                    {u"-1"_s, FailureKind::Overflow},
                                                    {u"x"_s, FailureKind::TypeMismatch},
                                                    {QString(), FailureKind::TypeMismatch}};
    for (const auto& [copies, kind] : rows) {
        Failures().clear();
        GoTo(Printing);
        EnterInList(u"cboCopies"_s, copies);
        ClickOn(quit);
        ExpectFailure(kind, u"the number of print copies"_s);
        EXPECT_TRUE(Shows(setup));
        EXPECT_EQ(folder.Contents(), before) << copies.toStdString();
    }
}

// A double quote in a text ends its field for the next reader.

TEST_F(SetupScreen, DoubleQuoteInARateIsSavedAndStopsTheNextStart) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Taxation);
    EnterInList(u"cboRate1"_s, u"5\""_s);
    Save();
    ExpectNoFailure();
    EXPECT_EQ(Saved(taxFile), "\"Sales Tax\",\"Tax\",\"5\"\",\"4.0\",0,0\r\n");
    // The second rate runs from the quote left over to the next one, and the first of the two
    // numbers is what follows it.
    const RuntimeFailure failure = FailureOf([&] { Start(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(), u"Reading TaxSettings.txt failed: \"4.0\"\" is not a number."_s);
}

TEST_F(SetupScreen, DoubleQuoteInAHeadingShiftsTheFieldsBehindIt) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"A\"B"_s);
    Tick(u"ckApply1stTax"_s);
    Save();
    EXPECT_EQ(Saved(taxFile), "\"A\"B\",\"Tax\",\"4.0\",\"4.0\",1,0\r\n");
    StartSetup();
    EXPECT_EQ(Live().cboTaxHeading1, u"A"_s);
    EXPECT_EQ(Live().cboTaxHeading2, u"B\""_s);
    EXPECT_EQ(Live().cboRate1, u"Tax"_s);
    EXPECT_EQ(Live().cboRate2, u"4.0"_s);
    EXPECT_EQ(Live().ckApply1stTax, 4);
    EXPECT_EQ(Live().ckApply2ndTax, 1);
    ExpectNoFailure();
}

// Files that can't be read or written.

TEST_F(SetupScreen, UnreadableFileStopsTheStartByName) {
    DropRootRights(folder);
    for (const auto& [name, bytes] : BusinessFiles()) {
        WriteBusinessFiles();
        const QByteArray path = folder.PathOf(name).toUtf8();
        ASSERT_EQ(::chmod(path.constData(), 0), 0);
        const RuntimeFailure failure = FailureOf([&] { Start(); });
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(failure.Sentence(),
                  u"Opening "_s + name + u" for reading failed: Permission denied."_s);
        ASSERT_EQ(::chmod(path.constData(), 0644), 0);
    }
}

TEST_F(SetupScreen, EmptyFileStopsTheStartByNameAndTheOthersStay) {
    for (const auto& [name, bytes] : BusinessFiles()) {
        WriteBusinessFiles();
        folder.Write(name, {});
        const auto before = folder.Contents();
        const RuntimeFailure failure = FailureOf([&] { Start(); });
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading "_s + name)) << failure.what();
        for (const auto& [other, content] : before)
            EXPECT_EQ(folder.Read(other), content) << other.toStdString();
    }
}

TEST_F(SetupScreen, UnwritableFolderStopsTheSaveByNameWithNothingChanged) {
    WriteBusinessFiles();
    DropRootRights(folder);
    StartSetup();
    Enter(Business(0), u"Another"_s);
    const auto before = folder.Contents();
    const QByteArray path = folder.Path().toUtf8();
    for (const auto& [name, bytes] : BusinessFiles())
        ASSERT_EQ(::chmod(folder.PathOf(name).toUtf8().constData(), 0444), 0);
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    ClickOn(quit);
    ExpectFailure(FailureKind::PermissionDenied, u"Opening MyBusinessData.txt for writing"_s);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_TRUE(Shows(setup));
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(SetupScreen, FullDiskStopsTheSaveByName) {
    WriteBusinessFiles();
    StartSetup();
    {
        const FullDisk disk(2);
        ClickOn(quit);
    }
    ExpectFailure(FailureKind::DiskFull, u"Writing MyBusinessData.txt failed"_s);
    EXPECT_TRUE(Shows(setup));
    std::map<QString, QByteArray> others = BusinessFiles();
    others.erase(businessFile);
    for (const auto& [name, bytes] : others)
        EXPECT_EQ(Saved(name), bytes) << name.toStdString();
}

// The address style.

class AddressScreen : public SetupScreen {
protected:
    void StartWith(const QByteArray& business) {
        folder.Write(businessFile, business);
        StartSetup();
    }

    QString Style() { return On<QAbstractButton>(u"cmdAddress"_s)->text(); }

    void ExpectStyle(bool isUsa) {
        EXPECT_EQ(Style(), isUsa ? usa : international);
        EXPECT_EQ(Live().cmdAddress, isUsa ? usa : international);
        EXPECT_EQ(IsVisible(u"lblPostal"_s), isUsa);
        EXPECT_EQ(Caption(u"lblAddress(3)"_s), isUsa ? u"City"_s : u"Address 3"_s);
        EXPECT_EQ(Caption(u"lblAddress(4)"_s), isUsa ? u"State"_s : u"Address 4"_s);
        EXPECT_EQ(IsVisible(u"lblAddress(5)"_s), isUsa);
        EXPECT_EQ(BusinessBox(5)->isEnabled(), isUsa);
    }

    /// What the state box takes when so much is typed into it empty.
    qsizetype StateTakes() {
        Enter(Business(4), QString(60, u'x'));
        return Text(Business(4)).size();
    }
};

const QByteArray usaBusiness =
    "\"Corner Dairy\",\"12 Mill Road\",\"\",\"Springfield\",\"IL\",\"62704\",\"217\",\"\",\"\"\r\n";
const QByteArray internationalBusiness =
    "\"Corner Dairy\",\"12 Mill "
    "Road\",\"\",\"Springfield\",\"Illinois\",\"\",\"217\",\"\",\"\"\r\n";

TEST_F(AddressScreen, NameAndNumericPostalCodeShowTheUsaStyle) {
    StartWith(usaBusiness);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"62704"_s);
    EXPECT_EQ(run->screens.Find(setup)->focusWidget(), BusinessBox(5));
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, NameAndEmptyPostalCodeShowTheInternationalStyle) {
    StartWith(internationalBusiness);
    ExpectStyle(false);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    EXPECT_EQ(StateTakes(), 55);
}

TEST_F(AddressScreen, EmptySystemShowsTheUsaStyle) {
    StartSetup();
    ExpectStyle(true);
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, EachClickFlipsTextsWidthsAndLengths) {
    StartWith(usaBusiness);
    const int cityNarrow = BusinessBox(3)->width();
    const int stateNarrow = BusinessBox(4)->width();
    const int wide = BusinessBox(0)->width();
    EXPECT_LT(stateNarrow, cityNarrow);
    EXPECT_LT(cityNarrow, wide);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(false);
    EXPECT_EQ(Text(Business(5)), QString());
    QCoreApplication::sendPostedEvents();
    QApplication::processEvents();
    EXPECT_EQ(BusinessBox(3)->width(), wide);
    EXPECT_EQ(BusinessBox(4)->width(), wide);
    EXPECT_EQ(StateTakes(), 55);
    Enter(Business(4), u"IL"_s);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"62704"_s);
    EXPECT_TRUE(BusinessBox(5)->hasFocus());
    QApplication::processEvents();
    EXPECT_EQ(BusinessBox(3)->width(), cityNarrow);
    EXPECT_EQ(BusinessBox(4)->width(), stateNarrow);
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, WidthsOfCityAndStateFollowTheStyle) {
    StartWith(usaBusiness);
    // City to address as 3,150 to 5,385; the state has room for two capitals.
    const int address = BusinessBox(0)->width();
    EXPECT_NEAR(BusinessBox(3)->width(), address * 3150.0 / 5385.0, 1.0);
    const int capitals = BusinessBox(4)->fontMetrics().horizontalAdvance(u"WW"_s);
    EXPECT_GT(BusinessBox(4)->width(), capitals);
    EXPECT_LT(BusinessBox(4)->width(), 3 * capitals);
    ClickOn(u"cmdAddress"_s);
    QApplication::processEvents();
    EXPECT_EQ(BusinessBox(0)->width(), address);
    EXPECT_EQ(BusinessBox(3)->width(), address);
    EXPECT_EQ(BusinessBox(4)->width(), address);
}

TEST_F(AddressScreen, PastedStateIsCutAtItsLengthToo) {
    StartWith(usaBusiness);
    Enter(Business(4), QString());
    Paste(Business(4), u"Illinois"_s);
    EXPECT_EQ(Text(Business(4)), u"Il"_s);
    EXPECT_EQ(Live().txtBusiness[4], u"Il"_s);
}

TEST_F(AddressScreen, LongerStateIsNeverCutByTheFlipAndCanOnlyBecomeShorter) {
    StartWith(internationalBusiness);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    EXPECT_EQ(Live().txtBusiness[4], u"Illinois"_s);
    ClickInto(Business(4));
    Press(BusinessBox(4), Qt::Key_End);
    Type(BusinessBox(4), u"x"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    Press(BusinessBox(4), Qt::Key_Backspace);
    Type(BusinessBox(4), u"x"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinoi"_s);
    for (int i = 0; i < 6; ++i)
        Press(BusinessBox(4), Qt::Key_Backspace);
    Type(BusinessBox(4), u"Lxx"_s);
    EXPECT_EQ(Text(Business(4)), u"IL"_s);
}

TEST_F(AddressScreen, TypingAmidTheStateLeavesTheCursor) {
    StartWith(internationalBusiness);
    ClickInto(Business(4));
    Press(BusinessBox(4), Qt::Key_Home);
    Type(BusinessBox(4), u"New "_s);
    EXPECT_EQ(Text(Business(4)), u"New Illinois"_s);
    ClickOn(u"cmdAddress"_s);
    ClickInto(Business(4));
    Press(BusinessBox(4), Qt::Key_Home);
    for (int i = 0; i < 4; ++i)
        Press(BusinessBox(4), Qt::Key_Delete);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
}

TEST_F(AddressScreen, FlipToInternationalLosesThePostalCodeAtTheSave) {
    StartWith(usaBusiness);
    ClickOn(u"cmdAddress"_s);
    Enter(Business(4), u"Illinois"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    Save();
    EXPECT_EQ(Saved(businessFile), internationalBusiness);
    Reopen();
    ExpectStyle(false);
    StartSetup();
    ExpectStyle(false);
}

TEST_F(AddressScreen, FlipThereAndBackBeforeTheSaveKeepsThePostalCode) {
    StartWith(usaBusiness);
    ClickOn(u"cmdAddress"_s);
    ClickOn(u"cmdAddress"_s);
    Save();
    EXPECT_EQ(Saved(businessFile), usaBusiness);
}

TEST_F(AddressScreen, PostalCodeTypedInAndSavedShowsTheUsaStyleFromThenOn) {
    StartWith(internationalBusiness);
    ClickOn(u"cmdAddress"_s);
    Enter(Business(5), u"K1A 0B1"_s);
    Save();
    Reopen();
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"K1A 0B1"_s);
}

TEST_F(AddressScreen, WithoutANameAndWithAPostalCodeThatIsNoNumberEachShowingFlips) {
    StartWith("\"\",\"\",\"\",\"\",\"\",\"K1A 0B1\",\"217\",\"\",\"\"\r\n");
    ExpectStyle(false);
    EXPECT_EQ(Text(Business(5)), QString());
    run->screens.Hide(setup);
    run->screens.Show(setup);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"K1A 0B1"_s);
    run->screens.Hide(setup);
    run->screens.Show(setup);
    ExpectStyle(false);
}

TEST_F(AddressScreen, PrintedHeadingFollowsTheStyleAtOnce) {
    StartWith(usaBusiness);
    run->office.printer.PrintBusinessHeading(1, 1, 14);
    printer.Find(u"Springfield, IL. 62704"_s);
    printer.Texts.clear();
    ClickOn(u"cmdAddress"_s);
    run->office.printer.PrintBusinessHeading(1, 1, 14);
    printer.Find(u"Springfield"_s);
    printer.Find(u"IL"_s);
}

// Clearing and reloading.

TEST_F(AddressScreen, ClearAsksFirstAndEmptiesAllNineBoxesButNotTheFile) {
    const QString question = u"Do you want to reset (clear)all Business Data?"_s;
    const QString title = u"Reset Business Data"_s;
    StartWith(usaBusiness);
    const auto before = folder.Contents();
    user.ExpectQuestion(question, title, Answer::No);
    ClickOn(u"Image4"_s);
    EXPECT_EQ(Text(Business(0)), u"Corner Dairy"_s);
    user.ExpectQuestion(question, title, Answer::Yes);
    ClickOn(u"Image4"_s);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(Text(Business(i)), QString()) << i;
        EXPECT_EQ(Live().txtBusiness[size_t(i)], QString()) << i;
    }
    EXPECT_TRUE(BusinessBox(0)->hasFocus());
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Live().BusinessData[0], u"Corner Dairy"_s);
}

TEST_F(AddressScreen, ClearEmptiesAStateLongerThanTwoCharactersToo) {
    StartWith(internationalBusiness);
    ClickOn(u"cmdAddress"_s);
    user.ExpectQuestion(u"Do you want to reset (clear)all Business Data?"_s,
                        u"Reset Business Data"_s, Answer::Yes);
    ClickOn(u"Image4"_s);
    EXPECT_EQ(Text(Business(4)), QString());
    EXPECT_EQ(Live().txtBusiness[4], QString());
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, ReloadBringsBackTheFile) {
    StartWith(usaBusiness);
    for (int i = 0; i < 9; ++i)
        Enter(Business(i), u"x"_s);
    ClickOn(u"Image5"_s);
    const QStringList business = {u"Corner Dairy"_s, u"12 Mill Road"_s, QString(),
                                  u"Springfield"_s,  u"IL"_s,           u"62704"_s,
                                  u"217"_s,          QString(),         QString()};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(Text(Business(i)), business[i]) << i;
}

TEST_F(AddressScreen, ReloadBringsBackAStateOfAnyLengthWhole) {
    StartWith(usaBusiness);
    Enter(Business(4), u"x"_s);
    folder.Write(businessFile, internationalBusiness);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    folder.Write(businessFile, usaBusiness);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(4)), u"IL"_s);
    EXPECT_EQ(Live().txtBusiness[4], u"IL"_s);
}

TEST_F(AddressScreen, ReloadWithoutAFileEmptiesTheBoxes) {
    StartSetup();
    Enter(Business(0), u"Corner Dairy"_s);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(0)), QString());
    EXPECT_FALSE(folder.Has(businessFile));
}

TEST_F(AddressScreen, ReloadAfterTheFileHasGoneEmptiesBoxesAndData) {
    StartWith(usaBusiness);
    folder.Remove(businessFile);
    Enter(Business(2), u"Rear"_s);
    ClickOn(u"Image5"_s);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(Text(Business(i)), QString()) << i;
        EXPECT_EQ(Live().BusinessData[size_t(i)], QString()) << i;
        EXPECT_EQ(Live().txtBusiness[size_t(i)], QString()) << i;
    }
    EXPECT_FALSE(folder.Has(businessFile));
    ExpectNoFailure();
}

TEST_F(AddressScreen, ReloadBringsBackAFileOfWhichOnlyTheBackupIsLeft) {
    StartWith(usaBusiness);
    folder.Remove(businessFile);
    folder.Write(u"Backup/MyBusinessData.txt"_s, internationalBusiness);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(0)), u"Corner Dairy"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    EXPECT_EQ(Text(Business(5)), QString());
    EXPECT_EQ(Live().BusinessData[4], u"Illinois"_s);
    EXPECT_EQ(Saved(businessFile), internationalBusiness);
}

TEST_F(AddressScreen, ReloadInTheInternationalStyleShowsTheFileAndKeepsTheStyle) {
    StartWith(usaBusiness);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(false);
    Enter(Business(3), u"x"_s);
    Enter(Business(4), u"Illinois"_s);
    ClickOn(u"Image5"_s);
    ExpectStyle(false);
    const QStringList business = {u"Corner Dairy"_s, u"12 Mill Road"_s, QString(),
                                  u"Springfield"_s,  u"IL"_s,           u"62704"_s,
                                  u"217"_s,          QString(),         QString()};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(Text(Business(i)), business[i]) << i;
    EXPECT_EQ(StateTakes(), 55);
}

TEST_F(AddressScreen, ReloadOfADamagedFileFailsByName) {
    StartWith(usaBusiness);
    folder.Write(businessFile, "\"Corner\"");
    ClickOn(u"Image5"_s);
    ExpectFailure(FailureKind::ReadPastEnd, u"Reading MyBusinessData.txt failed"_s);
}

// Every setting from its control to the live value, and to its reader where there is one.

class SettingsTable : public SetupScreen {
protected:
    /// Ticks an unticked box, or the other way round, and back.
    template <typename Flag>
    void ExpectLive(SubTab tab, const QString& box, const Flag& value) {
        StartSetup();
        GoTo(tab);
        const bool before = IsTicked(box);
        EXPECT_EQ(value(), before) << box.toStdString();
        Tick(box);
        EXPECT_EQ(IsTicked(box), !before) << box.toStdString();
        EXPECT_EQ(value(), !before) << box.toStdString();
        Press(On<QWidget>(box), Qt::Key_Space);
        EXPECT_EQ(value(), before) << box.toStdString();
    }

    /// The board as it starts in this run.
    void OpenBoard() {
        run->screens.Show(board);
        ASSERT_TRUE(QTest::qWaitForWindowActive(run->screens.Find(board)));
    }
};

TEST_F(SettingsTable, EachCheckBoxReachesItsSettingAtOnce) {
    ExpectLive(Printing, u"ckColor"_s, [this] { return Live().ckColor == 1; });
    ExpectLive(Taxation, u"ckApply1stTax"_s, [this] { return Live().ckApply1stTax == 1; });
    ExpectLive(Taxation, u"ckApply2ndTax"_s, [this] { return Live().ckApply2ndTax == 1; });
    ExpectLive(Taxation, u"ckApplyGraduated"_s, [this] { return Live().ckApplyGraduated == 1; });
    ExpectLive(PhoneAndModem, u"ckPhone"_s, [this] { return Live().ckPhone; });
    ExpectLive(PhoneAndModem, u"ckCallerID"_s, [this] { return Live().CallerIdOn; });
    ExpectLive(WorkDays, u"ckOnDay"_s, [this] { return Live().ckOnDay == 1; });
    ExpectLive(DeliveriesInvoicing, u"ckPopulateInvoices"_s,
               [this] { return Live().ckPopulateInvoices == 1; });
    ExpectLive(DeliveriesInvoicing, u"ckDeliveryCharge"_s,
               [this] { return Live().ckDeliveryCharge == 1; });
    ExpectLive(DeliveriesInvoicing, u"ckDelete"_s, [this] { return Live().ckDelete == 1; });
    ExpectLive(Assistance, u"ckAlarms"_s, [this] { return Live().ckAlarms; });
    ExpectLive(Assistance, u"ckPrompts"_s, [this] { return Live().ckPrompts; });
}

TEST_F(SettingsTable, EachTextReachesItsSettingAtOnce) {
    StartSetup();
    for (int i = 0; i < 9; ++i) {
        Enter(Business(i), QString::number(i));
        EXPECT_EQ(Live().txtBusiness[size_t(i)], QString::number(i));
        EXPECT_EQ(Live().BusinessData[size_t(i)], QString());
    }
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"gst"_s);
    EnterInList(u"cboTaxHeading2"_s, u"County"_s);
    EnterInList(u"cboRate1"_s, u"5"_s);
    EnterInList(u"cboRate2"_s, u"7,"_s);
    EXPECT_EQ(Live().cboTaxHeading1, u"gst"_s);
    EXPECT_EQ(Live().cboTaxHeading2, u"County"_s);
    EXPECT_EQ(Live().cboRate1, u"5"_s);
    EXPECT_EQ(Live().cboRate2, u"7,"_s);
    GoTo(Printing);
    EnterInList(u"cboCopies"_s, u"12"_s);
    EXPECT_EQ(Live().cboCopies, u"12"_s);
    EXPECT_EQ(Live().PrintCopies, 3);
    GoTo(PhoneAndModem);
    Enter(u"txtModemPort"_s, u"4"_s);
    EXPECT_EQ(Live().txtModemPort, u"4"_s);
    EXPECT_EQ(Live().ComPort, 1);
}

TEST_F(SettingsTable, EntryOfAListIsChosenByKeyFromTheOneOnShow) {
    WriteBusinessFiles();
    StartSetup();
    GoTo(Taxation);
    for (const auto& [name, next] : {std::pair(u"cboTaxHeading1"_s, u"Provincial Tax"_s),
                                     std::pair(u"cboRate2"_s, u"6,0"_s)}) {
        List(name)->setFocus();
        Press(List(name), Qt::Key_Down);
        EXPECT_EQ(List(name)->currentText(), next);
    }
    EXPECT_EQ(Live().cboTaxHeading1, u"Provincial Tax"_s);
    EXPECT_EQ(Live().cboRate2, u"6,0"_s);
    GoTo(Printing);
    List(u"cboCopies"_s)->setFocus();
    Press(List(u"cboCopies"_s), Qt::Key_Down);
    EXPECT_EQ(Live().cboCopies, u"3"_s);
}

TEST_F(SettingsTable, EntryTypedWithEnterStaysAsTypedAndJoinsNoList) {
    StartSetup();
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"vat tax"_s);
    Press(List(u"cboTaxHeading1"_s)->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(Live().cboTaxHeading1, u"vat tax"_s);
    EXPECT_EQ(List(u"cboTaxHeading1"_s)->count(), 7);
}

TEST_F(SettingsTable, BoxesWithoutEffectCannotBeTicked) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    GoTo(Taxation);
    for (const QString& name : {u"ckServices"_s, u"ckSalesItems"_s, u"ckLabor"_s}) {
        EXPECT_FALSE(On<QWidget>(name)->isEnabled()) << name.toStdString();
        Tick(name);
        EXPECT_FALSE(IsTicked(name)) << name.toStdString();
    }
    EXPECT_EQ(folder.Contents(), before);
    Save();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SettingsTable, WorkWeekOptionSetsTheCodeAtOnceForAllDates) {
    StartSetup();
    GoTo(WorkDays);
    struct Row {
        QString option;
        qint16 code;
        QDate fromSaturday;
        QDate fromSunday;
    };
    const Row rows[] = {{u"optMS"_s, 61, {2026, 3, 14}, {2026, 3, 16}},
                        {u"optSF"_s, 62, {2026, 3, 15}, {2026, 3, 15}},
                        {u"optSS"_s, 7, {2026, 3, 14}, {2026, 3, 15}},
                        {u"optMF"_s, 5, {2026, 3, 16}, {2026, 3, 16}}};
    const auto before = folder.Contents();
    for (const Row& row : rows) {
        Tick(row.option);
        EXPECT_EQ(Live().WorkWeek, row.code);
        QDate saturday(2026, 3, 14);
        QDate sunday(2026, 3, 15);
        EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(saturday), row.fromSaturday);
        EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(sunday), row.fromSunday);
        for (const Row& other : rows)
            EXPECT_EQ(IsTicked(other.option), other.option == row.option);
    }
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SettingsTable, WorkWeekOptionByArrowKey) {
    StartSetup();
    GoTo(WorkDays);
    On<QWidget>(u"optMF"_s)->setFocus();
    Press(On<QWidget>(u"optMF"_s), Qt::Key_Down);
    EXPECT_TRUE(IsTicked(u"optMS"_s));
    EXPECT_EQ(Live().WorkWeek, 61);
}

TEST_F(SettingsTable, UnknownWorkWeekShowsMondayToFridayAndTheNextSaveWritesFive) {
    WriteBusinessFiles();
    folder.Write(workDaysFile, "6\r\n");
    folder.Remove(settingsFile);
    StartSetup();
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    EXPECT_EQ(Live().WorkWeek, 5);
    Save();
    EXPECT_EQ(Saved(workDaysFile), "5\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, WorkWeekOfTheSettingsFileRulesWhileTheOtherIsShown) {
    WriteBusinessFiles();
    folder.Write(workDaysFile, "5\r\n");
    folder.Write(settingsFile, "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    QDate saturday(2026, 3, 14);
    EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(saturday), QDate(2026, 3, 14));
    Save();
    EXPECT_EQ(Saved(workDaysFile), "7\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, ClickOnTheWorkWeekAlreadyShownMakesItTheOneThatRules) {
    WriteBusinessFiles();
    folder.Write(workDaysFile, "5\r\n");
    folder.Write(settingsFile, "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_EQ(Live().WorkWeek, 7);
    GoTo(WorkDays);
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    Tick(u"optMF"_s);
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    EXPECT_EQ(Live().WorkWeek, 5);
    QDate saturday(2026, 3, 14);
    EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(saturday), QDate(2026, 3, 16));
    Save();
    EXPECT_EQ(Saved(workDaysFile), "5\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, UntickedPromptsSavedOnceShowUntickedAndRuleAgainAfterARestart) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Tick(u"ckPrompts"_s);
    EXPECT_TRUE(Live().PromptsOn);
    Save();
    EXPECT_FALSE(Live().PromptsOn);
    EXPECT_EQ(Saved(promptsFile), "#FALSE#,#TRUE#\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_FALSE(IsTicked(u"ckPrompts"_s));
    EXPECT_TRUE(Live().PromptsOn);
}

TEST_F(SettingsTable, SecondSaveInTheSameRunLevelsTheTwoFiles) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Tick(u"ckPrompts"_s);
    Tick(u"ckAlarms"_s);
    Save();
    Reopen();
    Save();
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_FALSE(Live().PromptsOn);
    EXPECT_FALSE(Live().AlarmOn);
    EXPECT_FALSE(IsTicked(u"ckPrompts"_s));
    EXPECT_FALSE(IsTicked(u"ckAlarms"_s));
}

TEST_F(SettingsTable, AlarmAndPromptsRuleTheBoardOnlyFromTheSaveOn) {
    WriteVehicles(office, {u"Van 2"_s});
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Tick(u"ckPrompts"_s);
    Tick(u"ckAlarms"_s);
    ScheduleBoard& rules = run->office.board;
    OpenBoard();
    user.ExpectMessage(u"Date has been Reset to Next Available Work Day"_s, u"Invalid Date"_s);
    rules.ChangeDate({2026, 3, 2});
    EXPECT_EQ(user.Beeps, 1);
    run->screens.Hide(board);
    run->screens.Show(setup);
    WaitForSetup();
    Save();
    rules.ChangeDate({2026, 3, 2});
    EXPECT_EQ(user.Beeps, 1);
    user.ExpectNothingLeft();
}

TEST_F(SettingsTable, CallerIdStartsUntickedWithItsLabelAndFollowsTheClicks) {
    WriteBusinessFiles();
    folder.Write(settingsFile, "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
    StartSetup();
    GoTo(PhoneAndModem);
    EXPECT_FALSE(IsTicked(u"ckCallerID"_s));
    EXPECT_TRUE(IsVisible(u"lblCallid"_s));
    EXPECT_TRUE(Live().CallerIdOn);
    Tick(u"ckCallerID"_s);
    EXPECT_TRUE(IsTicked(u"ckCallerID"_s));
    EXPECT_TRUE(Live().CallerIdOn);
    Tick(u"ckCallerID"_s);
    EXPECT_FALSE(Live().CallerIdOn);
    Save();
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, CallerIdTickedShowsItsLabelOnlyAfterARestart) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(PhoneAndModem);
    Tick(u"ckCallerID"_s);
    EXPECT_FALSE(IsVisible(u"lblCallid"_s));
    Save();
    StartSetup();
    GoTo(PhoneAndModem);
    EXPECT_TRUE(IsVisible(u"lblCallid"_s));
}

TEST_F(SettingsTable, PhoneReachesItsFileOnlyWithTheSave) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(PhoneAndModem);
    Tick(u"ckPhone"_s);
    EXPECT_EQ(Saved(phoneFile), "#FALSE#\r\n1\r\n");
    Save();
    EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n1\r\n");
    StartSetup();
    EXPECT_TRUE(IsTicked(u"ckPhone"_s));
}

TEST_F(SettingsTable, PortOfTheFileIsKeptWhileTheOneFoundIsShown) {
    WriteBusinessFiles();
    StartSetup();
    EXPECT_EQ(Text(u"txtModemPort"_s), u"1"_s);
    EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n5\r\n");
    Save();
    EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n5\r\n");
}

TEST_F(SettingsTable, PaperIsOneOfTwo) {
    StartSetup();
    GoTo(Printing);
    for (int i = 0; i < 2; ++i) {
        Tick(u"optReturn"_s);
        EXPECT_TRUE(Live().optReturn);
        EXPECT_FALSE(Live().optPlain);
        EXPECT_TRUE(IsTicked(u"optReturn"_s));
        EXPECT_FALSE(IsTicked(u"optPlain"_s));
    }
    Tick(u"optPlain"_s);
    EXPECT_FALSE(Live().optReturn);
    EXPECT_TRUE(Live().optPlain);
    EXPECT_TRUE(IsTicked(u"optPlain"_s));
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
}

TEST_F(SettingsTable, FileWithBothPapersOnShowsAndSavesTheRemittanceSlipAlone) {
    WriteBusinessFiles();
    folder.Write(deliveryFile, "1,0,1,0,1,1,#TRUE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
    StartSetup();
    EXPECT_TRUE(IsTicked(u"optReturn"_s));
    EXPECT_FALSE(IsTicked(u"optPlain"_s));
    EXPECT_TRUE(Live().optReturn);
    EXPECT_FALSE(Live().optPlain);
    Save();
    EXPECT_EQ(Saved(deliveryFile),
              "1,0,1,0,1,1,#FALSE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
}

TEST_F(SettingsTable, FileWithNeitherPaperOnShowsAndSavesNeither) {
    const QByteArray neither = "1,0,1,0,1,1,#FALSE#,#FALSE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n";
    WriteBusinessFiles();
    folder.Write(deliveryFile, neither);
    StartSetup();
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
    EXPECT_FALSE(IsTicked(u"optPlain"_s));
    Save();
    EXPECT_EQ(Saved(deliveryFile), neither);
    Reopen();
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
    EXPECT_FALSE(IsTicked(u"optPlain"_s));
    GoTo(Printing);
    Tick(u"optPlain"_s);
    EXPECT_TRUE(IsTicked(u"optPlain"_s));
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
}

TEST_F(SettingsTable, NameOfAFontIsShownAsItStands) {
    WriteBusinessFiles();
    const QString name = u"<b>Courier</b> <i>New</i> &amp;"_s;
    folder.Write(colorsFile, "0\r\n0\r\n\"<b>Courier</b> <i>New</i> &amp;\"\r\n#TRUE#\r\n3\r\n");
    StartSetup();
    const auto* lblFont = On<QLabel>(u"lblFont"_s);
    EXPECT_EQ(lblFont->text(), name);
    // Marks that were obeyed would take no room.
    EXPECT_GE(lblFont->sizeHint().width(), lblFont->fontMetrics().horizontalAdvance(name));
}

TEST_F(SettingsTable, PrintedTextsTakeFontAndColoursAtOnce) {
    StartSetup();
    GoTo(Printing);
    user.ExpectFontDialog(u"Arial"_s, u"Courier New"_s);
    user.ExpectColorDialog(0, 0x123456);
    user.ExpectColorDialog(0x123456, 0x654321);
    ClickOn(u"cmdChange(2)"_s);
    ClickOn(u"cmdChange(0)"_s);
    ClickOn(u"cmdChange(1)"_s);
    PrinterRoutines& routines = run->office.printer;
    routines.PreparePrinter(Orientation::Portrait, false);
    EXPECT_EQ(printer.FontName, u"Courier New"_s);
    routines.SetPrintColor(PrintColor::Border);
    EXPECT_EQ(printer.ForeColor, 0U);
    Tick(u"ckColor"_s);
    routines.SetPrintColor(PrintColor::Border);
    EXPECT_EQ(printer.ForeColor, 0x123456U);
    routines.SetPrintColor(PrintColor::Text);
    EXPECT_EQ(Live().CurrentPrintColor, 0x654321U);
}

TEST_F(SettingsTable, ChargeOfTheBoardStartsWithTheAmountWhenTicked) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    ClickInto(charge);
    Type(On<QWidget>(charge), u"12.5"_s);
    Tick(u"ckDeliveryCharge"_s);
    OpenBoard();
    EXPECT_EQ(On<QLineEdit>(board, charge)->text(), u"$12.50"_s);
}

TEST_F(SettingsTable, ChargeOfTheBoardStartsAtZeroWhenUnticked) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    ClickInto(charge);
    Type(On<QWidget>(charge), u"12.5"_s);
    OpenBoard();
    EXPECT_EQ(On<QLineEdit>(board, charge)->text(), u"$0.00"_s);
}

TEST_F(SettingsTable, PopulatedInvoicesOfTheBoardStartAsSetUp) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    Tick(u"ckPopulateInvoices"_s);
    OpenBoard();
    EXPECT_TRUE(On<QAbstractButton>(board, u"ckPopulated"_s)->isChecked());
}

TEST_F(SettingsTable, TaxOptionsOfTheBoardStartAsSetUp) {
    struct Row {
        QStringList ticked;
        int option;
    };
    const Row rows[] = {{{u"ckApply1stTax"_s}, 0},
                        {{u"ckApply2ndTax"_s}, 1},
                        {{u"ckApply1stTax"_s, u"ckApply2ndTax"_s}, 2}};
    for (const Row& row : rows) {
        StartSetup();
        GoTo(Taxation);
        for (const QString& box : row.ticked)
            Tick(box);
        OpenBoard();
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(On<QAbstractButton>(board, u"optTax(%1)"_s.arg(i))->isChecked(),
                      i == row.option)
                << row.option << ' ' << i;
    }
}

TEST_F(SettingsTable, HeadingsAndRatesReachTheInvoiceTotals) {
    StartSetup();
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"VAT"_s);
    EnterInList(u"cboTaxHeading2"_s, u"City Tax"_s);
    EnterInList(u"cboRate1"_s, u"10"_s);
    EnterInList(u"cboRate2"_s, u"1,5"_s);
    Tick(u"ckApply1stTax"_s);
    Tick(u"ckApply2ndTax"_s);
    TaxOptions options;
    SetTaxOptions(Live(), options);
    SlipCaptions captions;
    CalculateTaxes(Currency::OfTenThousandths(2000000), Live(), options, captions);
    EXPECT_EQ(captions.lblTaxHeading1, u"VAT"_s);
    EXPECT_EQ(captions.lblTaxHeading2, u"City Tax"_s);
    EXPECT_EQ(captions.lblTax1, u"$20.00"_s);
    // The comma ends the number.
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
}

TEST_F(SettingsTable, GraduatedSchemeReachesTheInvoiceTotals) {
    StartSetup();
    GoTo(Taxation);
    EnterInList(u"cboRate2"_s, u"5"_s);
    Tick(u"ckApply1stTax"_s);
    Tick(u"ckApplyGraduated"_s);
    ClickOn(u"cmdGraduatedTax(0)"_s);
    Type(On<QWidget>(limit), u"100"_s);
    Enter(surcharge, u"3"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    TaxOptions options;
    SetTaxOptions(Live(), options);
    SlipCaptions captions;
    CalculateTaxes(Currency::OfTenThousandths(2000000), Live(), options, captions);
    EXPECT_EQ(captions.lblTax1, u"$10.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$3.00"_s);
}

TEST_F(SettingsTable, ReschedulingFollowsItsBoxAtOnce) {
    StartSetup();
    GoTo(WorkDays);
    Tick(u"optSS"_s);
    // Monthly, from Monday, 9 March to Thursday, 9 April, which the correction takes to Sunday.
    EXPECT_EQ(run->office.slips.NextDeliveryDate(u"3/9/2026"_s, u"0000003"_s), u"4/5/2026"_s);
    Tick(u"ckOnDay"_s);
    EXPECT_EQ(run->office.slips.NextDeliveryDate(u"3/9/2026"_s, u"0000003"_s), u"4/9/2026"_s);
}

TEST_F(SettingsTable, PastDeliveriesFollowTheirBoxAtOnce) {
    StartSetup();
    WriteSlip(folder, {.number = u"7"_s, .date = u"3/6/2026"_s, .recurring = u"False"_s});
    GoTo(DeliveriesInvoicing);
    Tick(u"ckDelete"_s);
    run->office.slips.ProcessPastSlip(u"7"_s, u"3/6/2026"_s, u"False"_s, {});
    EXPECT_TRUE(folder.Has(HeaderName(u"7"_s)));
    Tick(u"ckDelete"_s);
    user.ExpectMessage(u"Delivery Slip 7 scheduled for 3/6/2026 has been Deleted"_s);
    run->office.slips.ProcessPastSlip(u"7"_s, u"3/6/2026"_s, u"False"_s, {});
    EXPECT_FALSE(folder.Has(HeaderName(u"7"_s)));
}

TEST_F(SettingsTable, SavingWithAnUntickedTaxLeavesItsRateStored) {
    WriteBusinessFiles();
    StartSetup();
    GoTo(Taxation);
    Tick(u"ckApply1stTax"_s);
    Tick(u"ckApply2ndTax"_s);
    Save();
    EXPECT_EQ(Saved(taxFile), "\"VAT Tax\",\"Tax Surcharge\",\"6.25\",\"5,0\",0,0\r\n");
}

// Amount boxes.

class AmountBoxes : public SetupScreen {
protected:
    void OpenCharge() {
        StartSetup();
        GoTo(DeliveriesInvoicing);
        ClickInto(charge);
    }
    void OpenPanel() {
        StartSetup();
        GoTo(Taxation);
        ClickOn(u"cmdGraduatedTax(0)"_s);
    }
    QLineEdit* Box(const QString& name) { return On<QLineEdit>(name); }
};

TEST_F(AmountBoxes, KeyDownEmptiesABoxAtZeroSoThatOneTypesOverIt) {
    OpenCharge();
    Type(Box(charge), u"7"_s);
    EXPECT_EQ(Text(charge), u"7"_s);
    Type(Box(charge), u"5.25"_s);
    EXPECT_EQ(Text(charge), u"75.25"_s);
    Tick(u"ckDelete"_s);
    EXPECT_EQ(Text(charge), u"$75.25"_s);
    EXPECT_EQ(Live().txtDeliveryCharge, u"$75.25"_s);
    ClickInto(charge);
    Press(Box(charge), Qt::Key_End);
    EXPECT_EQ(Text(charge), u"$75.25"_s);
    ExpectNoFailure();
}

TEST_F(AmountBoxes, AnyKeyEmptiesABoxAtZeroButOnesThatLeadAwayDoNot) {
    OpenCharge();
    Press(Box(charge), Qt::Key_Shift);
    EXPECT_EQ(Text(charge), u"$0.00"_s);
    Press(Box(charge), Qt::Key_Tab);
    EXPECT_EQ(Text(charge), u"$0.00"_s);
    ExpectNoFailure();
    ClickInto(charge);
    Press(Box(charge), Qt::Key_Left);
    EXPECT_EQ(Text(charge), QString());
}

TEST_F(AmountBoxes, KeyThatIsRefusedEmptiesTheBoxAllTheSame) {
    OpenCharge();
    Type(Box(charge), u"x"_s);
    EXPECT_EQ(Text(charge), QString());
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(AmountBoxes, ChargeRefusesLettersLeadingZeroAndASecondPoint) {
    OpenCharge();
    Type(Box(charge), u"0"_s);
    EXPECT_EQ(Text(charge), QString());
    EXPECT_EQ(user.Beeps, 1);
    TypeAny(Box(charge), u"1x0-,$\u00e9"_s);
    EXPECT_EQ(Text(charge), u"10"_s);
    EXPECT_EQ(user.Beeps, 6);
    Type(Box(charge), u".5.5"_s);
    EXPECT_EQ(Text(charge), u"10.55"_s);
    EXPECT_EQ(user.Beeps, 6);
    Press(Box(charge), Qt::Key_Backspace);
    EXPECT_EQ(Text(charge), u"10.5"_s);
}

TEST_F(AmountBoxes, PastedChargeGoesThroughTheFilterUpToTheFirstRefusal) {
    OpenCharge();
    Paste(charge, u"12.5 dollars"_s);
    EXPECT_EQ(Text(charge), u"12.5"_s);
    EXPECT_EQ(user.Beeps, 1);
    Replace(Box(charge), QString());
    Paste(charge, u"\u4e2d\u20ac\u00e9"_s);
    EXPECT_EQ(Text(charge), QString());
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(AmountBoxes, LeavingTheChargeWritesItAsCurrency) {
    OpenCharge();
    const std::pair<QString, QString> rows[] = {
        {u"1234.565"_s, u"$1,234.57"_s}, {u"5"_s, u"$5.00"_s}, {u".5"_s, u"$0.50"_s}};
    for (const auto& [typed, shown] : rows) {
        Enter(charge, typed);
        Press(Box(charge), Qt::Key_Tab);
        EXPECT_EQ(Text(charge), shown);
        EXPECT_EQ(Live().txtDeliveryCharge, shown);
    }
    ExpectNoFailure();
}

TEST_F(AmountBoxes, LeavingTheChargeWritesItAsTheRegionsCurrency) {
    UseLocale("de_DE");
    OpenCharge();
    Type(Box(charge), u"1234"_s);
    Tick(u"ckDelete"_s);
    EXPECT_EQ(Text(charge), u"1.234,00\u00a0\u20ac"_s);
}

TEST_F(AmountBoxes, LeavingTheChargeEmptyOrWithoutANumberFails) {
    for (const QString& typed : {QString(), u"."_s}) {
        Failures().clear();
        OpenCharge();
        Enter(charge, typed);
        Press(Box(charge), Qt::Key_Tab);
        ExpectFailure(FailureKind::TypeMismatch, u"(the delivery charge of the setup screen)"_s);
    }
}

TEST_F(AmountBoxes, ChargeBeyondTheCurrencyRangeFailsOnLeaving) {
    OpenCharge();
    Type(Box(charge), QString(30, u'9'));
    Tick(u"ckDelete"_s);
    ExpectFailure(FailureKind::Overflow, u"(the delivery charge of the setup screen)"_s);
}

TEST_F(AmountBoxes, EnterInAChargeOfZeroMovesOnAndLeavesIt) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        OpenCharge();
        EXPECT_EQ(Text(charge), u"$0.00"_s);
        Press(Box(charge), key);
        EXPECT_TRUE(On<QWidget>(u"ckDelete"_s)->hasFocus());
        EXPECT_EQ(Text(charge), u"$0.00"_s);
        EXPECT_EQ(Live().txtDeliveryCharge, u"$0.00"_s);
    }
    EXPECT_EQ(user.Beeps, 0);
    ExpectNoFailure();
}

TEST_F(AmountBoxes, ChargeIsLeftWhenTheTabIsTurned) {
    OpenCharge();
    Type(Box(charge), u"7"_s);
    GoTo(Assistance);
    EXPECT_EQ(Live().txtDeliveryCharge, u"$7.00"_s);
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    GoTo(Assistance);
    ExpectFailure(FailureKind::TypeMismatch, u"the delivery charge"_s);
}

TEST_F(AmountBoxes, SaveFromWithinAnEmptyChargeFailsWithNothingSaved) {
    WriteBusinessFiles();
    OpenCharge();
    const auto before = folder.Contents();
    Enter(charge, QString());
    Failures().clear();
    QTest::mousePress(On<QWidget>(quit), Qt::LeftButton);
    ExpectFailure(FailureKind::TypeMismatch, u"the delivery charge of the setup screen"_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(AmountBoxes, MessageOverTheScreenDoesNotLeaveTheCharge) {
    OpenCharge();
    Enter(charge, QString());
    QWidget message;
    message.show();
    message.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&message));
    ExpectNoFailure();
}

// The graduated tax panel.

TEST_F(AmountBoxes, ButtonShowsThePanelAndGoesToTheLimit) {
    StartSetup();
    GoTo(Taxation);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    ClickOn(u"cmdGraduatedTax(0)"_s);
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
    EXPECT_TRUE(Box(limit)->hasFocus());
}

TEST_F(AmountBoxes, GraduatedBoxesEmptyTheirZeroAndFilterNothing) {
    OpenPanel();
    for (const QString& box : {limit, surcharge}) {
        ClickInto(box);
        EXPECT_EQ(Text(box), u"$0.00"_s);
        TypeAny(Box(box), u"0a.b.c\u00e9"_s);
        EXPECT_EQ(Text(box), u"0a.b.c\u00e9"_s);
    }
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(Live().txtGradulated[0], u"0a.b.c\u00e9"_s);
}

TEST_F(AmountBoxes, EnterInAGraduatedBoxOfZeroMovesOnAndLeavesIt) {
    OpenPanel();
    EXPECT_TRUE(Box(limit)->hasFocus());
    Press(Box(limit), Qt::Key_Return);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_TRUE(Box(surcharge)->hasFocus());
    Press(Box(surcharge), Qt::Key_Enter);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_TRUE(On<QWidget>(quit)->hasFocus());
    EXPECT_EQ(Live().txtGradulated[0], u"$0.00"_s);
    EXPECT_EQ(Live().txtGradulated[1], u"$0.00"_s);
    EXPECT_TRUE(Shows(setup));
    EXPECT_EQ(user.Beeps, 0);
    ExpectNoFailure();
}

TEST_F(AmountBoxes, LeavingAGraduatedBoxLeavesItsText) {
    OpenPanel();
    Type(Box(limit), u"7"_s);
    ClickInto(surcharge);
    EXPECT_EQ(Text(limit), u"7"_s);
    Press(Box(surcharge), Qt::Key_Left);
    EXPECT_EQ(Text(surcharge), QString());
    ClickInto(limit);
    EXPECT_EQ(Text(surcharge), QString());
    ExpectNoFailure();
}

TEST_F(AmountBoxes, CloseFormatsBothAndHidesThePanelAndWritesNothing) {
    OpenPanel();
    Tick(u"ckApplyGraduated"_s);
    const auto before = folder.Contents();
    ClickInto(limit);
    Type(Box(limit), u"1250"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"$2.5"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_EQ(Text(limit), u"$1,250.00"_s);
    EXPECT_EQ(Text(surcharge), u"$2.50"_s);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    EXPECT_TRUE(IsTicked(u"ckApplyGraduated"_s));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(AmountBoxes, CloseWithALimitOfZeroUnticksTheScheme) {
    OpenPanel();
    Tick(u"ckApplyGraduated"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_FALSE(IsTicked(u"ckApplyGraduated"_s));
    EXPECT_EQ(Live().ckApplyGraduated, 0);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(AmountBoxes, LettersInTheSurchargeWithAValidLimitKeepThePanelOpen) {
    OpenPanel();
    Type(Box(limit), u"1000"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"abc"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_EQ(Text(limit), u"$1,000.00"_s);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_TRUE(Box(surcharge)->hasFocus());
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
}

TEST_F(AmountBoxes, LettersInTheLimitLeaveTheSurchargeAsItIs) {
    OpenPanel();
    Type(Box(limit), u"abc"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"xyz"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_EQ(Text(surcharge), u"xyz"_s);
    EXPECT_TRUE(Box(limit)->hasFocus());
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
}

TEST_F(AmountBoxes, ClearSetsBothToZeroAndGoesToTheLimit) {
    OpenPanel();
    Type(Box(limit), u"1000"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"abc"_s);
    ClickOn(u"cmdGraduatedTax(2)"_s);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_TRUE(Box(limit)->hasFocus());
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
    EXPECT_EQ(Live().txtGradulated[0], u"$0.00"_s);
}

TEST_F(AmountBoxes, GraduatedTextIsSavedAsItStandsAndShownAsCurrency) {
    OpenPanel();
    Type(Box(limit), u"1000"_s);
    EnterNameAndTelephone();
    Save();
    EXPECT_EQ(Saved(deliveryFile), "0,1,0,1,0,0,#TRUE#,#FALSE#,\"1000\",\"$0.00\",\"$0.00\"\r\n");
    Reopen();
    EXPECT_EQ(Text(limit), u"$1,000.00"_s);
}

TEST_F(AmountBoxes, GraduatedAmountOutOfRangeFailsAtTheClose) {
    OpenPanel();
    Type(Box(limit), u"9E30"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    ExpectFailure(FailureKind::Overflow, u"(the graduated tax scheme)"_s);
}
