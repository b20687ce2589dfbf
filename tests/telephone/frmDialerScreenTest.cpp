#include "customers/CustomerScreen.h"
#include "startup/StartUp.h"
#include "support/PlayedPorts.h"

#include <QCheckBox>
#include <QClipboard>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QToolButton>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr ScreenName customerScreen = ScreenName::frmCustomer;
constexpr ScreenName dialerScreen = ScreenName::frmDialer;
const QString speedFile = u"SpeedNumbers.txt"_s;
const QString ready = u"Ready to Dial......"_s;
const QString pickUp = u"Pickup Receiver - Then Click Hangup"_s;

} // namespace

/// The customer screen in front, on a machine with a modem on port 3 that the start has found.
class DialerScreen : protected PlayedPorts, public CustomerScreen {
protected:
    DialerScreen() : CustomerScreen(port) {
        devices = {{3, modem.Device()}};
        office.settings.txtModemPort = u"3"_s;
        OpenPort(3);
    }

    /// The dialer for the customer who is in front.
    void Call() {
        Click(customerScreen, u"Image1(1)"_s);
        ASSERT_TRUE(IsShown(dialerScreen));
    }
    void OpenAndCall() {
        OpenThree();
        Call();
    }
    void OpenWithEntries() {
        folder.Write(speedFile, "Ann\r\n1\r\nBen & Co\r\n2\r\nCyd\r\n3\r\nDan\r\n4\r\n");
        OpenAndCall();
    }

    template <typename Of = QWidget>
    Of* On(const QString& name) {
        return Find<Of>(dialerScreen, name);
    }
    void ClickOn(const QString& name) { Click(dialerScreen, name); }
    QString LabelText(const QString& name) { return On<QLabel>(name)->text(); }
    QString ButtonText(const QString& name) { return On<QAbstractButton>(name)->text(); }
    bool IsEnabled(const QString& name) { return On(name)->isEnabled(); }
    QString FocusedOn() {
        const QWidget* focus = screens.Find(dialerScreen)->focusWidget();
        return focus ? focus->objectName() : QString();
    }
    void EnterIn(int field, const QString& text) {
        auto* box = On<EntryField>(u"txtDialer(%1)"_s.arg(field));
        box->setFocus();
        box->selectAll();
        Type(box, text);
    }
    QStringList Captions() {
        QStringList captions;
        for (int slot = 0; slot < 10; ++slot)
            captions += ButtonText(u"cmdDialer(%1)"_s.arg(slot));
        while (!captions.isEmpty() && captions.last().isEmpty())
            captions.removeLast();
        return captions;
    }
    /// The close box, with what the end of the program does to the screen.
    void CloseProgram() {
        CloseByUser(dialerScreen);
        EXPECT_EQ(exitRequests, 1);
        screens.Destroy(dialerScreen);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool Shows(const QString& status) {
        return QTest::qWaitFor([&] { return LabelText(u"lblStatus"_s) == status; });
    }

    PlayedModem modem;
};

TEST_F(DialerScreen, StartFindsTheModemAndACustomerIsCalledFromHisScreen) {
    port.Close();
    WriteCustomers({SampleCustomer{}});
    Main(office, screens);
    EXPECT_TRUE(HasHeard(modem, "AT\rAT#CID=1\r"));
    screens.Destroy(ScreenName::frmSplash);
    Open(2);
    Call();
    EXPECT_EQ(LabelText(u"Text1"_s), u"Your Modem Comm Port Is 3."_s);
    EXPECT_EQ(LabelText(u"Label2(3)"_s), u"COM Port # 3"_s);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(Shows(pickUp));
    ClickOn(u"cmdCancel"_s);
    EXPECT_TRUE(HasHeard(modem, "AT\rAT#CID=1\rATDT217-555-0199;\rATH\r"));
    EXPECT_FALSE(IsShown(dialerScreen));
    EXPECT_TRUE(IsShown(customerScreen));
}

TEST_F(DialerScreen, ControlsCarryTheirCaptionsAndToolTips) {
    OpenAndCall();
    EXPECT_EQ(screens.Find(dialerScreen)->windowTitle(), u"Call ..............."_s);
    const std::pair<QString, QString> captions[] = {
        {u"cmdNewDial"_s, u"&Dial"_s},
        {u"cmdCancel"_s, u"Pick up the receiver then &Click to Talk"_s},
        {u"cmdHangup"_s, u"D&isconnect/Cancel"_s},
        {u"cmdHelp"_s, u"Show Help"_s},
        {u"ckDial1"_s, u"Dial a Prefix  1-"_s},
        {u"cmdSpeedDialer(0)"_s, u"&Save"_s},
        {u"cmdSpeedDialer(1)"_s, u"Ca&ncel"_s},
        {u"cmdSpeedDialer(2)"_s, u"Delete Selected Speed Dial &No"_s},
        {u"cmdSpeedDialer(3)"_s, u"&Restore Original Call Recipient"_s},
        {u"cmdSpeedDialer(4)"_s, u"&Load Current Player"_s}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(ButtonText(name), caption);
    EXPECT_EQ(On<Card>(u"fraSpeedDial"_s)->Heading()->text(), u"Add Speed Dial Name and No."_s);
    EXPECT_EQ(On<Card>(u"fraHelp"_s)->Heading()->text(), u"Help!"_s);
    EXPECT_EQ(On(u"lblName"_s)->toolTip(), u"Customer that you are Calling"_s);
    EXPECT_EQ(On(u"lblStatus"_s)->toolTip(), u"Dailing Status"_s);
    EXPECT_EQ(On(u"ckDial1"_s)->toolTip(), u"Click for Long Distance Calls"_s);
}

TEST_F(DialerScreen, OpensModallyOverTheCustomerAndReady) {
    OpenAndCall();
    Screen* dialer = screens.Find(dialerScreen);
    EXPECT_EQ(dialer->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(dialer->windowHandle()->transientParent(),
              screens.Find(customerScreen)->windowHandle());
    EXPECT_TRUE(IsShown(customerScreen));
    EXPECT_EQ(LabelText(u"lblName"_s), u"Corner Grocery"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"217-555-0199"_s);
    EXPECT_EQ(LabelText(u"where"_s), u"Corner Grocery"_s);
    EXPECT_EQ(LabelText(u"lblStatus"_s), ready);
    EXPECT_TRUE(IsEnabled(u"cmdNewDial"_s));
    EXPECT_FALSE(IsEnabled(u"cmdCancel"_s));
    EXPECT_FALSE(IsEnabled(u"cmdSpeedDialer(2)"_s));
    EXPECT_FALSE(On(u"fraSpeedDial"_s)->isVisible());
    EXPECT_FALSE(On(u"fraHelp"_s)->isVisible());
    EXPECT_EQ(FocusedOn(), u"cmdNewDial"_s);
}

TEST_F(DialerScreen, PersonIsCalledByHisFullName) {
    OpenThree();
    Click(customerScreen, u"cmdNav(2)"_s);
    Call();
    EXPECT_EQ(LabelText(u"lblName"_s), u"Mr/Mrs Ann Lee"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"217-555-0199"_s);
}

TEST_F(DialerScreen, NameAndNumberAreThoseOnTheScreenAndAreNotSaved) {
    OpenThree();
    const QByteArray before = CustomerOnDisk(1);
    Enter(1, u"Corner Shop"_s);
    Enter(6, u"555-0123"_s);
    Call();
    EXPECT_EQ(LabelText(u"lblName"_s), u"Corner Shop"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"555-0123"_s);
    EXPECT_EQ(CustomerOnDisk(1), before);
}

TEST_F(DialerScreen, CallGoesFromReadyOverDialingToTheReceiverAndEndsWithTheScreen) {
    modem.SetAnswers([](const QByteArray& command) {
        return command == "ATH" ? PlayedModem::Silence(command)
                                : std::vector<PlayedModem::Piece>{{300ms, "\r\nOK\r\n"}};
    });
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    EXPECT_EQ(LabelText(u"lblStatus"_s), u"Dialing..... 217-555-0199"_s);
    EXPECT_FALSE(IsEnabled(u"cmdNewDial"_s));
    EXPECT_FALSE(IsEnabled(u"cmdCancel"_s));
    EXPECT_TRUE(Shows(pickUp));
    EXPECT_TRUE(IsEnabled(u"cmdCancel"_s));
    EXPECT_FALSE(IsEnabled(u"cmdNewDial"_s));
    EXPECT_EQ(FocusedOn(), u"cmdCancel"_s);
    ClickOn(u"cmdCancel"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\rATH\r"));
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(screens.Find(dialerScreen), nullptr);
    EXPECT_TRUE(IsShown(customerScreen));
}

TEST_F(DialerScreen, HangUpInTheMiddleOfDialingEndsTheCallAndTheScreen) {
    modem.SetAnswers(PlayedModem::Silence);
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    QTest::qWait(100);
    EXPECT_EQ(LabelText(u"lblStatus"_s), u"Dialing..... 217-555-0199"_s);
    ClickOn(u"cmdHangup"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\rATH\r"));
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(screens.Find(dialerScreen), nullptr);
    modem.Say("\r\nOK\r\n");
    QTest::qWait(200);
    EXPECT_TRUE(IsShown(customerScreen));
}

TEST_F(DialerScreen, NextCallIsReadyAgainAndGoesOut) {
    OpenAndCall();
    ClickOn(u"ckDial1"_s);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(Shows(pickUp));
    ClickOn(u"cmdCancel"_s);
    Click(customerScreen, u"cmdNav(3)"_s);
    Call();
    EXPECT_EQ(LabelText(u"lblStatus"_s), ready);
    EXPECT_EQ(LabelText(u"lblName"_s), u"Anvil Works"_s);
    EXPECT_FALSE(On<QCheckBox>(u"ckDial1"_s)->isChecked());
    EXPECT_TRUE(port.PortOpen());
    // The screen before goes only now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(Shows(pickUp));
    EXPECT_TRUE(HasHeard(modem, "ATDT1-217-555-0199;\rATH\rATDT217-555-0199;\r"));
}

TEST_F(DialerScreen, ScreenBeforeThatGoesLateLeavesTheNextCallAlone) {
    modem.SetAnswers(PlayedModem::Silence);
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    ClickOn(u"cmdHangup"_s);
    Call();
    ClickOn(u"cmdNewDial"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(LabelText(u"lblStatus"_s), u"Dialing..... 217-555-0199"_s);
    EXPECT_TRUE(port.PortOpen());
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\rATH\rATDT217-555-0199;\r"));
}

TEST_F(DialerScreen, ProgramThatEndsInTheMiddleOfDialingHangsUp) {
    modem.SetAnswers(PlayedModem::Silence);
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    CloseProgram();
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\rATH\r"));
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(DialerScreen, ProgramThatEndsBeforeTheDialHangsUp) {
    OpenAndCall();
    CloseProgram();
    EXPECT_TRUE(HasHeard(modem, "ATH\r"));
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(DialerScreen, ProgramThatEndsBeforeTheReceiverIsInHandHangsUp) {
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(Shows(pickUp));
    CloseProgram();
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\rATH\r"));
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(DialerScreen, WithoutAModemTheStatusStaysAtDialingUntilTheHangUp) {
    port.Close();
    devices.clear();
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    QTest::qWait(300);
    EXPECT_EQ(LabelText(u"lblStatus"_s), u"Dialing..... 217-555-0199"_s);
    ClickOn(u"cmdHangup"_s);
    EXPECT_EQ(screens.Find(dialerScreen), nullptr);
    EXPECT_EQ(modem.Heard(), QByteArray());
    EXPECT_TRUE(Failures().empty());
}

TEST_F(DialerScreen, PrefixIsTickedAndCleared) {
    OpenAndCall();
    ClickOn(u"ckDial1"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"1-217-555-0199"_s);
    ClickOn(u"ckDial1"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"217-555-0199"_s);
}

TEST_F(DialerScreen, WholeCallByKeys) {
    OpenAndCall();
    QWidget* dialer = screens.Find(dialerScreen);
    ASSERT_TRUE(QTest::qWaitFor([dialer] { return QApplication::activeWindow() == dialer; }));
    QTest::keyClick(dialer, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(Shows(pickUp));
    QTest::keyClick(dialer, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\rATH\r"));
    EXPECT_EQ(screens.Find(dialerScreen), nullptr);
}

TEST_F(DialerScreen, SecondPressOfEnterAfterTheDialHangsNothingUp) {
    modem.SetAnswers(PlayedModem::Silence);
    OpenAndCall();
    Press(On(u"cmdNewDial"_s), Qt::Key_Return);
    Press(On(FocusedOn()), Qt::Key_Return);
    Press(On(FocusedOn()), Qt::Key_Return);
    EXPECT_TRUE(IsShown(dialerScreen));
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\r"));
}

TEST_F(DialerScreen, EscapeLeavesTheFieldsFirstAndThenTheScreen) {
    OpenAndCall();
    ClickOn(u"cmdDialer(4)"_s);
    Press(On(u"txtDialer(0)"_s), Qt::Key_Escape);
    EXPECT_FALSE(On(u"fraSpeedDial"_s)->isVisible());
    EXPECT_TRUE(IsShown(dialerScreen));
    Press(screens.Find(dialerScreen), Qt::Key_Escape);
    EXPECT_TRUE(HasHeard(modem, "ATH\r"));
    EXPECT_EQ(screens.Find(dialerScreen), nullptr);
}

TEST_F(DialerScreen, HelpTogglesWithItsCaption) {
    OpenAndCall();
    ClickOn(u"cmdHelp"_s);
    EXPECT_TRUE(On(u"fraHelp"_s)->isVisible());
    EXPECT_EQ(ButtonText(u"cmdHelp"_s), u"Hide Help"_s);
    ClickOn(u"cmdHelp"_s);
    EXPECT_FALSE(On(u"fraHelp"_s)->isVisible());
    EXPECT_EQ(ButtonText(u"cmdHelp"_s), u"Show Help"_s);
}

// Speed dial.

TEST_F(DialerScreen, EntriesStandOnTheirButtonsWithTheirNamesToTheLetter) {
    OpenWithEntries();
    EXPECT_EQ(Captions(), (QStringList{u"Ann"_s, u"Ben && Co"_s, u"Cyd"_s, u"Dan"_s}));
    EXPECT_EQ(On(u"cmdDialer(1)"_s)->toolTip(), u"Ben & Co, 2"_s);
    EXPECT_EQ(On(u"cmdDialer(1)"_s)->accessibleName(), u"Speed dial 2: Ben & Co"_s);
    EXPECT_EQ(On(u"cmdDialer(9)"_s)->accessibleName(), u"Speed dial 10: empty"_s);
}

TEST_F(DialerScreen, EmptyButtonOpensTheFieldsWithTheFocusInTheName) {
    OpenWithEntries();
    ClickOn(u"cmdDialer(6)"_s);
    EXPECT_TRUE(On(u"fraSpeedDial"_s)->isVisible());
    EXPECT_EQ(FocusedOn(), u"txtDialer(0)"_s);
    EXPECT_FALSE(IsEnabled(u"cmdSpeedDialer(2)"_s));
}

TEST_F(DialerScreen, EntryIsTypedAndSavedWithEnter) {
    OpenWithEntries();
    ClickOn(u"cmdDialer(6)"_s);
    EnterIn(0, u"Büro Süd"_s);
    EnterIn(1, u"03581 555 0199"_s);
    Press(On(u"txtDialer(1)"_s), Qt::Key_Return);
    EXPECT_FALSE(On(u"fraSpeedDial"_s)->isVisible());
    EXPECT_EQ(ButtonText(u"cmdDialer(6)"_s), u"Büro Süd"_s);
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nBen & Co\r\n2\r\nCyd\r\n3\r\nDan\r\n4\r\n"
                                      "B\xfcro S\xfc"
                                      "d\r\n03581 555 0199\r\n");
    EXPECT_EQ(modem.Heard(), QByteArray());
}

TEST_F(DialerScreen, EntryIsSavedWithItsButton) {
    OpenAndCall();
    ClickOn(u"cmdDialer(0)"_s);
    EnterIn(0, u"Ann"_s);
    EnterIn(1, u"1"_s);
    ClickOn(u"cmdSpeedDialer(0)"_s);
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\n");
    EXPECT_EQ(Captions(), QStringList{u"Ann"_s});
    ClickOn(u"cmdDialer(1)"_s);
    EXPECT_EQ(On<EntryField>(u"txtDialer(0)"_s)->text(), QString());
    EXPECT_EQ(On<EntryField>(u"txtDialer(1)"_s)->text(), QString());
}

TEST_F(DialerScreen, FocusGoesToTheButtonOfTheEntryWhenItIsSavedCancelledOrLoaded) {
    OpenAndCall();
    const QString ends[] = {u"cmdSpeedDialer(0)"_s, u"cmdSpeedDialer(1)"_s, u"cmdSpeedDialer(4)"_s};
    for (int slot = 5; const QString& end : ends) {
        const QString button = u"cmdDialer(%1)"_s.arg(slot++);
        ClickOn(button);
        EnterIn(0, u"Ann"_s);
        ClickOn(end);
        EXPECT_EQ(FocusedOn(), button) << end.toStdString();
    }
    ClickOn(u"cmdDialer(9)"_s);
    Press(On(u"txtDialer(0)"_s), Qt::Key_Escape);
    EXPECT_EQ(FocusedOn(), u"cmdDialer(9)"_s);
    ClickOn(u"cmdDialer(8)"_s);
    EnterIn(1, u"1"_s);
    Press(On(u"txtDialer(1)"_s), Qt::Key_Return);
    EXPECT_EQ(FocusedOn(), u"cmdDialer(8)"_s);
    EXPECT_EQ(modem.Heard(), QByteArray());
}

TEST_F(DialerScreen, FocusGoesToTheButtonOfTheEntryWhenItsDeletionIsRefusedAndStaysWhenItIsDone) {
    OpenWithEntries();
    for (const auto& [answer, focused] : {std::pair(Answer::No, u"cmdDialer(1)"_s),
                                          std::pair(Answer::Yes, u"cmdSpeedDialer(2)"_s)}) {
        ClickOn(u"cmdDialer(1)"_s);
        user.ExpectQuestion(u"This will delete SpeedDial entry  Ben & Co\nAre you Sure"_s,
                            u"Delete Speed Dial"_s, answer);
        On(u"cmdSpeedDialer(2)"_s)->setFocus();
        Press(On(u"cmdSpeedDialer(2)"_s), Qt::Key_Space);
        EXPECT_EQ(FocusedOn(), focused);
    }
}

TEST_F(DialerScreen,
       FocusStaysOnTheReceiverWhenTheAnswerComesDuringTheQuestionAndTheDeletionIsRefused) {
    modem.SetAnswers(PlayedModem::Silence);
    OpenWithEntries();
    ClickOn(u"cmdDialer(1)"_s);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT2;\r"));
    user.WhileMessageIsOpen = [this] {
        modem.Say("\r\nOK\r\n");
        EXPECT_TRUE(Shows(pickUp));
    };
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben & Co\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::No);
    On(u"cmdSpeedDialer(2)"_s)->setFocus();
    Press(On(u"cmdSpeedDialer(2)"_s), Qt::Key_Space);
    EXPECT_FALSE(IsEnabled(u"cmdSpeedDialer(2)"_s));
    EXPECT_EQ(FocusedOn(), u"cmdCancel"_s);
}

TEST_F(DialerScreen, CancelledEntryIsBlankTheNextTime) {
    OpenAndCall();
    ClickOn(u"cmdDialer(0)"_s);
    EnterIn(0, u"Ann"_s);
    EnterIn(1, u"1"_s);
    ClickOn(u"cmdSpeedDialer(1)"_s);
    EXPECT_FALSE(On(u"fraSpeedDial"_s)->isVisible());
    EXPECT_FALSE(folder.Has(speedFile));
    ClickOn(u"cmdDialer(0)"_s);
    EXPECT_EQ(On<EntryField>(u"txtDialer(0)"_s)->text(), QString());
}

TEST_F(DialerScreen, OneWhoIsBeingCalledIsLoadedAsAnEntry) {
    OpenAndCall();
    ClickOn(u"ckDial1"_s);
    ClickOn(u"cmdDialer(3)"_s);
    ClickOn(u"cmdSpeedDialer(4)"_s);
    EXPECT_EQ(ButtonText(u"cmdDialer(3)"_s), u"Corner Grocery"_s);
    EXPECT_EQ(folder.Read(speedFile), "Corner Grocery\r\n1-217-555-0199\r\n");
    EXPECT_FALSE(On(u"fraSpeedDial"_s)->isVisible());
}

TEST_F(DialerScreen, EntryIsCalledAndTheRecipientRestored) {
    OpenWithEntries();
    ClickOn(u"cmdDialer(1)"_s);
    EXPECT_EQ(LabelText(u"lblName"_s), u"Ben & Co"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"2"_s);
    EXPECT_TRUE(IsEnabled(u"cmdSpeedDialer(2)"_s));
    ClickOn(u"cmdSpeedDialer(3)"_s);
    EXPECT_EQ(LabelText(u"lblName"_s), u"Corner Grocery"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"217-555-0199"_s);
    ClickOn(u"cmdDialer(3)"_s);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT4;\r"));
}

TEST_F(DialerScreen, DeletedEntryClosesUp) {
    OpenWithEntries();
    ClickOn(u"cmdDialer(1)"_s);
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben & Co\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::Yes);
    ClickOn(u"cmdSpeedDialer(2)"_s);
    EXPECT_EQ(Captions(), (QStringList{u"Ann"_s, u"Cyd"_s, u"Dan"_s}));
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nCyd\r\n3\r\nDan\r\n4\r\n");
}

TEST_F(DialerScreen, DeleteIsClosedByANo) {
    OpenWithEntries();
    ClickOn(u"cmdDialer(1)"_s);
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben & Co\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::No);
    ClickOn(u"cmdSpeedDialer(2)"_s);
    EXPECT_FALSE(IsEnabled(u"cmdSpeedDialer(2)"_s));
    EXPECT_EQ(Captions().size(), 4);
}

TEST_F(DialerScreen, FieldsLeftOpenBelongToTheEntryChosenNext) {
    OpenWithEntries();
    ClickOn(u"cmdDialer(7)"_s);
    ClickOn(u"cmdDialer(0)"_s);
    EXPECT_TRUE(On(u"fraSpeedDial"_s)->isVisible());
    EnterIn(0, u"Anna"_s);
    EnterIn(1, u"11"_s);
    ClickOn(u"cmdSpeedDialer(0)"_s);
    EXPECT_EQ(Captions(), (QStringList{u"Anna"_s, u"Ben && Co"_s, u"Cyd"_s, u"Dan"_s}));
    EXPECT_EQ(folder.Read(speedFile), "Anna\r\n11\r\nBen & Co\r\n2\r\nCyd\r\n3\r\nDan\r\n4\r\n");
}

TEST_F(DialerScreen, AnotherEntryCanBeChosenWhileTheModemDials) {
    modem.SetAnswers(PlayedModem::Silence);
    OpenWithEntries();
    ClickOn(u"cmdNewDial"_s);
    ClickOn(u"cmdDialer(3)"_s);
    EXPECT_EQ(LabelText(u"lblNumber"_s), u"4"_s);
    EXPECT_EQ(LabelText(u"lblStatus"_s), u"Dialing..... 217-555-0199"_s);
    EXPECT_FALSE(IsEnabled(u"cmdNewDial"_s));
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0199;\r"));
}

TEST_F(DialerScreen, IncomingCallShowsNowhere) {
    OpenAndCall();
    const QStringList before = TextsIn(screens.Find(dialerScreen));
    modem.Say("\r\nRING\r\n\r\nNMBR = 2175550100\r\n\r\nOK\r\n");
    EXPECT_TRUE(QTest::qWaitFor([this] { return port.InBufferCount() > 30; }));
    QTest::qWait(200);
    EXPECT_EQ(TextsIn(screens.Find(dialerScreen)), before);
    EXPECT_TRUE(IsEnabled(u"cmdNewDial"_s));
    EXPECT_FALSE(IsEnabled(u"cmdCancel"_s));
    EXPECT_EQ(modem.Heard(), QByteArray());
}

TEST_F(DialerScreen, WindowLayoutIsKeptUnderTheNameOfTheDispatcher) {
    OpenThree();
    QSettings layouts(QSettings::IniFormat, QSettings::UserScope, u"tessel-delivery"_s,
                      u"window-layout"_s);
    layouts.clear();
    layouts.sync();
    Call();
    ClickOn(u"cmdHangup"_s);
    layouts.sync();
    EXPECT_EQ(layouts.allKeys(), QStringList{u"TesselDispatcher"_s});
}

TEST_F(DialerScreen, AnswerThatComesWhileAnEntryIsTypedLeavesWhatIsTyped) {
    modem.SetAnswers([](const QByteArray&) {
        return std::vector<PlayedModem::Piece>{{300ms, "\r\nOK\r\n"}};
    });
    OpenAndCall();
    ClickOn(u"cmdNewDial"_s);
    ClickOn(u"cmdDialer(0)"_s);
    EnterIn(0, u"Ann"_s);
    EXPECT_TRUE(Shows(pickUp));
    EXPECT_EQ(On<EntryField>(u"txtDialer(0)"_s)->text(), u"Ann"_s);
}

// Bad input.

TEST_F(DialerScreen, PastedLineBreakMakesNeitherASecondCommandNorASecondLine) {
    OpenAndCall();
    ClickOn(u"cmdDialer(0)"_s);
    EnterIn(0, u"Ann"_s);
    QApplication::clipboard()->setText(u"555-0100\rATH\r\nATDT900;"_s);
    On(u"txtDialer(1)"_s)->setFocus();
    QTest::keyClick(On(u"txtDialer(1)"_s), Qt::Key_V, Qt::ControlModifier);
    ClickOn(u"cmdSpeedDialer(0)"_s);
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n555-0100 ATH  ATDT900;\r\n");
    ClickOn(u"cmdDialer(0)"_s);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT555-0100 ATH  ATDT900;;\r"));
}

TEST_F(DialerScreen, BareCarriageReturnInTheFileMakesNoSecondCommand) {
    folder.Write(speedFile, "Ann\r\n555\rATH\r\n");
    OpenAndCall();
    ClickOn(u"cmdDialer(0)"_s);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT555ATH;\r"));
}

TEST_F(DialerScreen, EntryOfAThousandCharactersLeavesTheScreenItsSize) {
    OpenAndCall();
    const Screen* dialer = screens.Find(dialerScreen);
    const int width = dialer->minimumSizeHint().width();
    ClickOn(u"cmdHangup"_s);
    const QByteArray number(1000, '7');
    folder.Write(speedFile, QByteArray(1000, 'n') + "\r\n" + number + "\r\n");
    Call();
    ClickOn(u"cmdDialer(0)"_s);
    EXPECT_EQ(LabelText(u"lblName"_s), QString(1000, u'n'));
    EXPECT_EQ(screens.Find(dialerScreen)->minimumSizeHint().width(), width);
    ClickOn(u"cmdNewDial"_s);
    EXPECT_TRUE(HasHeard(modem, "ATH\rATDT" + number + ";\r"));
}

TEST_F(DialerScreen, FileWithAnOddNumberOfLinesEndsTheProgramAtTheCall) {
    folder.Write(speedFile, "Ann\r\n1\r\nBen\r\n");
    OpenThree();
    Click(customerScreen, u"Image1(1)"_s);
    ASSERT_EQ(Failures().size(), 1u);
    EXPECT_EQ(Failures().front().Kind(), FailureKind::ReadPastEnd);
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nBen\r\n");
}

TEST_F(DialerScreen, ElevenEntriesEndTheProgramAtTheCall) {
    QByteArray bytes;
    for (int pair = 0; pair < 11; ++pair)
        bytes += "Ann\r\n1\r\n";
    folder.Write(speedFile, bytes);
    OpenThree();
    Click(customerScreen, u"Image1(1)"_s);
    ASSERT_EQ(Failures().size(), 1u);
    EXPECT_EQ(Failures().front().Kind(), FailureKind::Subscript);
}

TEST_F(DialerScreen, PortOfTheSetupScreenThatIsNoneOpensNothingAndEndsNothing) {
    port.Close();
    for (const QString& text : {u"three"_s, u""_s, u"17"_s, u"40000"_s}) {
        office.settings.txtModemPort = text;
        OpenThree();
        Call();
        EXPECT_FALSE(port.PortOpen());
        ClickOn(u"cmdHangup"_s);
    }
    EXPECT_TRUE(Failures().empty());
    EXPECT_EQ(modem.Heard(), QByteArray());
}

TEST_F(DialerScreen, PortTabOfTheSetupScreenShowsTheModemAndTheDialerUsesWhatIsEnteredThere) {
    port.Close();
    office.modem.SetUpModem();
    screens.Show(ScreenName::frmSetup);
    auto* box = Find<EntryField>(ScreenName::frmSetup, u"txtModemPort"_s);
    EXPECT_EQ(box->text(), u"3"_s);
    box->setText(u"9"_s);
    port.Close();
    const PlayedModem other;
    devices[9] = other.Device();
    OpenAndCall();
    EXPECT_EQ(port.CommPort(), 9);
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(DialerScreen, CustomersDoNotAdvanceBehindTheDialer) {
    OpenThree();
    Find<QSlider>(customerScreen, u"Slider1"_s)->setValue(250);
    Click(customerScreen, u"cmdNav(9)"_s);
    Call();
    QTest::qWait(700);
    EXPECT_EQ(Shown(0), u"4471"_s);
}
