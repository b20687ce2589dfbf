#include "customers/CustomerScreen.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString noName = u"The Account Name Cannot be Blank"_s;
/// Milliseconds; some ticks of the fastest clock.
constexpr int someTicks = 900;

} // namespace

class AutoAdvanceScreen : public CustomerScreen {
protected:
    QSlider* Slider1() { return Find<QSlider>(screen, u"Slider1"_s); }
    QTimer* Timer1() { return screens.Find(screen)->findChild<QTimer*>(u"Timer1"_s); }
    QString Caption() { return Button(u"cmdNav(9)"_s)->text(); }
    /// Turns it on with the fastest clock.
    void TurnOn() {
        Slider1()->setValue(250);
        Click(screen, u"cmdNav(9)"_s);
    }
    bool WaitFor(const QString& account) {
        return QTest::qWaitFor([&] { return Shown(0) == account; }, 3000);
    }
};

TEST_F(AutoAdvanceScreen, StartsOffAtTwoAndAHalfSeconds) {
    OpenThree();
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    EXPECT_EQ(Button(u"cmdNav(9)"_s)->toolTip(), u"Increments Customer Record at set rate"_s);
    EXPECT_FALSE(Timer1()->isActive());
    EXPECT_EQ(Timer1()->interval(), 2500);
    EXPECT_EQ(Slider1()->minimum(), 250);
    EXPECT_EQ(Slider1()->maximum(), 5000);
    EXPECT_EQ(Slider1()->value(), 2500);
}

TEST_F(AutoAdvanceScreen, ClickTurnsItOnAndOff) {
    OpenThree();
    Click(screen, u"cmdNav(9)"_s);
    EXPECT_EQ(Caption(), u"Auto Advance On"_s);
    EXPECT_TRUE(Timer1()->isActive());
    Click(screen, u"cmdNav(9)"_s);
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    EXPECT_FALSE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, EachTickSavesTheRecordAndMovesOnAndWrapsAtTheEnd) {
    OpenThree();
    TurnOn();
    Enter(2, u"1 New Road"_s);
    EXPECT_TRUE(WaitFor(u"1002"_s));
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
    EXPECT_TRUE(WaitFor(u"77"_s));
    EXPECT_TRUE(WaitFor(u"4471"_s));
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(3, 69));
}

TEST_F(AutoAdvanceScreen, SliderSetsTheIntervalWhetherItRunsOrNot) {
    OpenThree();
    Slider1()->setValue(400);
    EXPECT_EQ(Timer1()->interval(), 400);
    Click(screen, u"cmdNav(9)"_s);
    EXPECT_EQ(Timer1()->interval(), 400);
    Slider1()->setValue(5000);
    EXPECT_EQ(Timer1()->interval(), 5000);
    EXPECT_TRUE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, SliderMovesByKeys) {
    OpenThree();
    Slider1()->setFocus();
    Press(Slider1(), Qt::Key_Right);
    EXPECT_EQ(Timer1()->interval(), 2600);
    Press(Slider1(), Qt::Key_End);
    EXPECT_EQ(Timer1()->interval(), 5000);
    Press(Slider1(), Qt::Key_Home);
    EXPECT_EQ(Timer1()->interval(), 250);
}

TEST_F(AutoAdvanceScreen, DoubleClickOnFasterMakesTheIntervalLonger) {
    OpenThree();
    QWidget* faster = Control(u"Label2(36)"_s);
    QTest::mouseDClick(faster, Qt::LeftButton);
    EXPECT_EQ(Slider1()->value(), 2600);
    EXPECT_EQ(Timer1()->interval(), 2600);
    Slider1()->setValue(4900);
    QTest::mouseDClick(faster, Qt::LeftButton);
    EXPECT_EQ(Slider1()->value(), 4900);
}

TEST_F(AutoAdvanceScreen, DoubleClickOnSlowerMakesTheIntervalShorter) {
    OpenThree();
    QWidget* slower = Control(u"Label2(35)"_s);
    QTest::mouseDClick(slower, Qt::LeftButton);
    EXPECT_EQ(Slider1()->value(), 2400);
    Slider1()->setValue(350);
    QTest::mouseDClick(slower, Qt::LeftButton);
    EXPECT_EQ(Slider1()->value(), 350);
}

TEST_F(AutoAdvanceScreen, SingleClickOnAWordChangesNothing) {
    OpenThree();
    QTest::mouseClick(Control(u"Label2(36)"_s), Qt::LeftButton);
    EXPECT_EQ(Slider1()->value(), 2500);
}

TEST_F(AutoAdvanceScreen, NewCustomerStopsIt) {
    OpenThree();
    Click(screen, u"cmdNav(9)"_s);
    Click(screen, u"cmdNew"_s);
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    EXPECT_FALSE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, NewCustomerByTheMenuLeavesItOn) {
    OpenThree();
    Click(screen, u"cmdNav(9)"_s);
    Item(u"mnuAdd"_s)->trigger();
    EXPECT_EQ(Caption(), u"Auto Advance On"_s);
    EXPECT_TRUE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, LeavingButtonsAndCancelStopIt) {
    OpenThree();
    for (const QString& button : {u"cmdCustomer(0)"_s, u"cmdCustomer(1)"_s}) {
        Click(screen, u"cmdNav(9)"_s);
        Click(screen, button);
        EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
        EXPECT_FALSE(Timer1()->isActive());
        Open(2);
    }
    Click(screen, u"cmdNav(9)"_s);
    Item(u"mnuAdd"_s)->trigger();
    Click(screen, u"cmdCustomer(13)"_s);
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    EXPECT_FALSE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, SearchForNobodyStopsIt) {
    OpenThree(7);
    Click(screen, u"cmdNav(9)"_s);
    Click(screen, u"Command1(0)"_s);
    Type(Control(u"txtSearchfor"_s), u"no such name"_s);
    user.ExpectMessage(u"No Customer Record meets this Criteria"_s, u"Customer not Found"_s);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    EXPECT_FALSE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, InvalidRecordIsToldAtEachTickUntilItIsPutRight) {
    OpenThree();
    TurnOn();
    Text(1)->clear();
    int told = 0;
    user.WhileMessageIsOpen = [&] { ++told; };
    user.ExpectMessage(noName);
    user.ExpectMessage(noName);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == 2; }, 3000));
    EXPECT_EQ(Focused(), u"txtCustomer(1)"_s);
    Type(Text(1), u"Put Right"_s);
    EXPECT_TRUE(WaitFor(u"1002"_s));
    EXPECT_EQ(CustomerOnDisk(1).mid(20, 10), "Put Right ");
    EXPECT_EQ(Caption(), u"Auto Advance On"_s);
}

TEST_F(AutoAdvanceScreen, InvalidRecordIsToldUntilItIsSwitchedOff) {
    OpenThree();
    TurnOn();
    Text(1)->clear();
    int told = 0;
    user.WhileMessageIsOpen = [&] { ++told; };
    user.ExpectMessage(noName);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == 1; }, 3000));
    user.ExpectMessage(u"The Name Field Must be at least 2 Characters\nThis is okay if Cancelling "
                       u"a New Entry\nClick Cancel AddNew Again"_s,
                       u"No Name Entered"_s);
    user.ExpectMessage(noName);
    Click(screen, u"cmdCustomer(0)"_s);
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    QTest::qWait(someTicks);
    EXPECT_EQ(told, 3);
    EXPECT_EQ(Shown(0), u"4471"_s);
}

TEST_F(AutoAdvanceScreen, TicksDoNotStackMessages) {
    OpenThree();
    TurnOn();
    Text(1)->clear();
    int told = 0;
    user.ExpectMessage(noName);
    user.WhileMessageIsOpen = [&] {
        ++told;
        // A second message would be one too many.
        QTest::qWait(someTicks);
        EXPECT_EQ(told, 1);
        office.customers.Advance.IsOn = false;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == 1; }, 3000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Caption() == u"Auto Advance Off"_s; }));
}

TEST_F(AutoAdvanceScreen, CustomerStaysUnderAMessageOfSomethingElse) {
    OpenThree();
    TurnOn();
    QDialog message(screens.Find(screen));
    message.open();
    QTest::qWait(someTicks);
    EXPECT_EQ(Shown(0), u"4471"_s);
    message.close();
    EXPECT_TRUE(WaitFor(u"1002"_s));
}

TEST_F(AutoAdvanceScreen, CustomerStaysUnderAnOpenMenu) {
    OpenThree();
    TurnOn();
    QMenu* menu = screens.Find(screen)->findChild<QMenuBar*>()->actions().first()->menu();
    menu->popup(screens.Find(screen)->mapToGlobal(QPoint(5, 25)));
    QTest::qWait(someTicks);
    EXPECT_EQ(Shown(0), u"4471"_s) << "or the entry chosen would work on another one";
    menu->close();
    EXPECT_TRUE(WaitFor(u"1002"_s));
}

TEST_F(AutoAdvanceScreen, YesToTheExitQuestionOfATickEndsTheTicks) {
    OpenThree();
    TurnOn();
    Text(0)->clear();
    Text(6)->clear();
    user.ExpectMessage(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    user.ExpectQuestion(u"Would you like to exit\nwithout creating a Customer?"_s, u"No Customer"_s,
                        Answer::Yes);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !screens.Find(screen); }, 3000));
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    QTest::qWait(someTicks);
    Open(2);
    EXPECT_EQ(Caption(), u"Auto Advance Off"_s);
    EXPECT_FALSE(Timer1()->isActive());
}

TEST_F(AutoAdvanceScreen, TickHidesTheSearchAndKeepsTheList) {
    OpenThree();
    TurnOn();
    Click(screen, u"Command1(0)"_s);
    EXPECT_TRUE(Control(u"fraSearch"_s)->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Control(u"fraSearch"_s)->isVisible(); }, 3000));
    Click(screen, u"Command1(3)"_s);
    const QString before = Where();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Where() != before; }, 3000));
    EXPECT_TRUE(Control(u"fraCustomersFound"_s)->isVisible());
}
