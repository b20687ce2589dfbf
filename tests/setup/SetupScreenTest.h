#pragma once

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

constexpr ScreenName setup = ScreenName::frmSetup;
constexpr ScreenName menu = ScreenName::frmStartup;
constexpr ScreenName splash = ScreenName::frmSplash;
constexpr ScreenName board = ScreenName::frmPrintSchedules;

enum Tab { BusinessInfo, SetupHelp, Options, Logo };
enum SubTab { Printing, Taxation, PhoneAndModem, WorkDays, DeliveriesInvoicing, Assistance };

inline const QString quit = u"cmdQuit"_s;
inline const QString charge = u"txtDeliveryCharge"_s;
inline const QString limit = u"txtGradulated(0)"_s;
inline const QString surcharge = u"txtGradulated(1)"_s;
inline const QString usa = u"USA Style Address"_s;
inline const QString international = u"International Style Address"_s;

inline const QString businessFile = u"MyBusinessData.txt"_s;
inline const QString settingsFile = u"Settings.txt"_s;
inline const QString deliveryFile = u"DeliverySettings.txt"_s;
inline const QString taxFile = u"TaxSettings.txt"_s;
inline const QString colorsFile = u"PrintColors.txt"_s;
inline const QString promptsFile = u"Prompts.txt"_s;
inline const QString workDaysFile = u"WorkDays.txt"_s;
inline const QString logoFile = u"CompanyLogo.txt"_s;
inline const QString logoSizeFile = u"LogoSettings.txt"_s;
inline const QString phoneFile = u"Phone.txt"_s;

/// The files of a business that is set up, US formats, with values that are the default nowhere.
inline const std::map<QString, QByteArray>& BusinessFiles() {
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

inline const QString logoPath = u"/home/dairy/Logo, gr\u00fcn.bmp"_s;
inline const QString pictureFilter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

/// One picture, at the path above.
class OnePicture : public PictureFiles {
public:
    bool Exists(const QString& path) const override { return path == logoPath; }
    Picture Load(const QString&) const override {
        return {std::make_shared<QImage>(100, 100, QImage::Format_RGB32), 1500, 1500};
    }
};

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
