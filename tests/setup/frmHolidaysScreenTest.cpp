#include "platform/MonthView.h"
#include "setup/frmHolidays.h"
#include "support/Days.h"
#include "support/ScreenTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTextCharFormat>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName menu = ScreenName::frmStartup;
constexpr ScreenName holidays = ScreenName::frmHolidays;

const QString holidaysFile = u"Holidays.txt"_s;

const QString toMenu = u"cmdHolidays(0)"_s;
const QString save = u"cmdHolidays(1)"_s;
const QString redo = u"cmdHolidays(2)"_s;

/// Looks at the screens and at the file at the moment of a message.
class WatchingOperator : public ScriptedOperator {
public:
    Screens* Watched = nullptr;
    const TestFolder* Folder = nullptr;
    bool ListWasUp = false;
    bool MenuWasUp = false;
    QByteArray BytesThen;

    Answer MsgBox(const QString& text, Buttons buttons, const QString& title) override {
        ListWasUp = Watched->Find(holidays) && Watched->Find(holidays)->isVisible();
        MenuWasUp = Watched->Find(menu) && Watched->Find(menu)->isVisible();
        BytesThen = Folder->Read(holidaysFile);
        return ScriptedOperator::MsgBox(text, buttons, title);
    }
};

} // namespace

class HolidaysScreen : public ScreenTest {
protected:
    HolidaysScreen() { WriteMasterFiles(); }

    void ShowWith(const QByteArray& bytes) {
        folder.Write(holidaysFile, bytes);
        screens.Show(holidays);
    }

    MonthView* Calendar() { return Find<MonthView>(holidays, u"MonthView1"_s); }
    QListView* List() { return Find<QListView>(holidays, u"lstHolidays"_s); }

    QStringList Entries() {
        QStringList entries;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            entries += List()->model()->index(row, 0).data().toString();
        return entries;
    }
};

TEST_F(HolidaysScreen, TitleTextsAndToolTips) {
    screens.Show(holidays);
    EXPECT_EQ(screens.Find(holidays)->windowTitle(), u"Block Holidays"_s);
    const QStringList texts = TextsIn(screens.Find(holidays));
    for (const QString& text : {u"Block Holidays"_s, u"Click on a Date to Mark it as a Holiday"_s,
                                u"Continue until ALL Holidays are entered"_s,
                                u"Click Redo to Start over"_s, u"Holidays List"_s})
        EXPECT_EQ(texts.count(text), 1) << text.toStdString();
    EXPECT_EQ(Calendar()->toolTip(), u"Click to add a date to  the list"_s);
    EXPECT_EQ(List()->toolTip(), u"Displays selected Holidays"_s);
    const auto* cmdMenu = Find<QAbstractButton>(holidays, toMenu);
    EXPECT_EQ(cmdMenu->text(), u"&Menu"_s);
    EXPECT_EQ(cmdMenu->toolTip(), u"Return to Main Menu"_s);
    const auto* cmdSave = Find<QAbstractButton>(holidays, save);
    EXPECT_EQ(cmdSave->text(), u"&Save Holidays List"_s);
    EXPECT_EQ(cmdSave->toolTip(), u"Saves these date and prevents work scheduling on them"_s);
    const auto* cmdRedo = Find<QAbstractButton>(holidays, redo);
    EXPECT_EQ(cmdRedo->text(), u"&Redo"_s);
    EXPECT_EQ(cmdRedo->toolTip(), u"Clears the list, start over"_s);
}

TEST_F(HolidaysScreen, MenuRoutineOpensIt) {
    screens.Show(menu);
    QTest::mouseClick(Find<QWidget>(menu, u"lblSub(3)"_s), Qt::LeftButton);
    EXPECT_TRUE(IsShown(holidays));
    EXPECT_FALSE(IsShown(menu));
    EXPECT_EQ(office.MenuChoice, 3);
}

TEST_F(HolidaysScreen, ShowingSetsTheCalendarToTodayAndListsTheDates) {
    ShowWith("#2026-03-08#\r\n#2026-12-25#\r\n#2026-07-04#\r\n");
    EXPECT_EQ(Calendar()->selectedDate(), QDate(2026, 3, 9));
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026"_s, u"7/4/2026"_s}));
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2026-07-04#\r\n");
}

TEST_F(HolidaysScreen, ShowingAgainOpensTheListAnew) {
    screens.Show(holidays);
    ClickDay(*Calendar(), {2026, 3, 17});
    Calendar()->setCurrentPage(2030, 1);
    clock.Date = {2026, 3, 10};
    folder.Write(holidaysFile, "#2026-03-09#\r\n#2026-12-25#\r\n");
    screens.Show(holidays);
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
    EXPECT_EQ(Calendar()->selectedDate(), QDate(2026, 3, 10));
    EXPECT_EQ(Calendar()->monthShown(), 3);
    EXPECT_EQ(Calendar()->yearShown(), 2026);
}

TEST_F(HolidaysScreen, ClickedDaysAreListedInTheOrderOfClicking) {
    screens.Show(holidays);
    ClickDay(*Calendar(), {2026, 3, 17});
    ClickDay(*Calendar(), {2026, 3, 9});
    ClickDay(*Calendar(), {2026, 4, 3});
    EXPECT_EQ(Entries(), (QStringList{u"3/17/2026"_s, u"3/9/2026"_s, u"4/3/2026"_s}));
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(folder.Read(holidaysFile), "");
}

TEST_F(HolidaysScreen, SameDayClickedTwiceIsOneEntryAndABeep) {
    office.settings.AlarmOn = false;
    screens.Show(holidays);
    ClickDay(*Calendar(), {2026, 3, 9});
    ClickDay(*Calendar(), {2026, 3, 9});
    EXPECT_EQ(Entries(), QStringList{u"3/9/2026"_s});
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(HolidaysScreen, YesterdayBeepsAndIsNotListed) {
    screens.Show(holidays);
    ClickDay(*Calendar(), {2026, 3, 8});
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(HolidaysScreen, KeyboardMarksADay) {
    screens.Show(holidays);
    QWidget* keys = screens.Find(holidays)->focusWidget();
    EXPECT_EQ(keys, DaysOf(*Calendar()));
    Press(keys, Qt::Key_Right);
    Press(keys, Qt::Key_Space);
    Press(keys, Qt::Key_Down);
    Press(keys, Qt::Key_Return);
    Press(keys, Qt::Key_Return);
    EXPECT_EQ(Entries(), (QStringList{u"3/10/2026"_s, u"3/17/2026"_s}));
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(HolidaysScreen, TabGoesFromTheCalendarToTheListAndTheButtons) {
    screens.Show(holidays);
    Screen* screen = screens.Find(holidays);
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        Press(screen->focusWidget(), Qt::Key_Tab);
        visited += screen->focusWidget()->objectName();
    }
    EXPECT_EQ(visited, (QStringList{u"lstHolidays"_s, toMenu, redo, save}));
}

TEST_F(HolidaysScreen, ListedDatesAreTintedInTheCalendar) {
    ShowWith("#2026-12-25#\r\n");
    const auto isTinted = [this](QDate date) {
        return Calendar()->dateTextFormat(date).hasProperty(QTextFormat::BackgroundBrush);
    };
    EXPECT_TRUE(isTinted({2026, 12, 25}));
    EXPECT_FALSE(isTinted({2026, 3, 17}));
    ClickDay(*Calendar(), {2026, 3, 17});
    EXPECT_TRUE(isTinted({2026, 3, 17}));
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    Click(holidays, redo);
    EXPECT_FALSE(isTinted({2026, 12, 25}));
    EXPECT_FALSE(isTinted({2026, 3, 17}));
}

TEST_F(HolidaysScreen, SaveWritesTellsAndGoesBackToTheMenu) {
    ShowWith("#2026-12-25#\r\n");
    ClickDay(*Calendar(), {2026, 3, 17});
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    Click(holidays, save);
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2026-03-17#\r\n");
    EXPECT_TRUE(IsShown(menu));
    EXPECT_EQ(screens.Find(holidays), nullptr);
}

TEST_F(HolidaysScreen, SaveTellsBehindTheWritingAndBeforeItGoesToTheMenu) {
    WatchingOperator watcher;
    Office watched(folder.Path(), {clock, watcher, printer, browser, pictures});
    Screens itsScreens(watched);
    watcher.Watched = &itsScreens;
    watcher.Folder = &folder;
    itsScreens.Show(holidays);
    const Screen* screen = itsScreens.Find(holidays);
    ClickDay(*screen->findChild<MonthView*>(u"MonthView1"_s), {2026, 3, 17});
    watcher.ExpectMessage(u"The Holiday List has been Saved"_s);
    QTest::mouseClick(screen->findChild<QAbstractButton*>(save), Qt::LeftButton);
    watcher.ExpectNothingLeft();
    EXPECT_EQ(watcher.BytesThen, "#2026-03-17#\r\n");
    EXPECT_TRUE(watcher.ListWasUp);
    EXPECT_FALSE(watcher.MenuWasUp);
    EXPECT_EQ(itsScreens.Find(holidays), nullptr);
    EXPECT_TRUE(itsScreens.Find(menu)->isVisible());
}

TEST_F(HolidaysScreen, MessagesAndBeepsComeWithPromptsAndAlarmOff) {
    office.settings.PromptsOn = false;
    office.settings.AlarmOn = false;
    screens.Show(holidays);
    ClickDay(*Calendar(), {2026, 3, 8});
    EXPECT_EQ(user.Beeps, 1);
    ClickDay(*Calendar(), {2026, 3, 17});
    EXPECT_EQ(user.Beeps, 1);
    ClickDay(*Calendar(), {2026, 3, 17});
    EXPECT_EQ(user.Beeps, 2);
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    Click(holidays, redo);
    EXPECT_EQ(Entries(), QStringList());
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    Click(holidays, save);
    EXPECT_EQ(folder.Read(holidaysFile), "");
}

TEST_F(HolidaysScreen, MenuLeavesTheFileWithoutTheClickedDateAndAsksNothing) {
    ShowWith("#2026-12-25#\r\n");
    ClickDay(*Calendar(), {2026, 3, 17});
    Click(holidays, toMenu);
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n");
    EXPECT_TRUE(IsShown(menu));
    EXPECT_EQ(screens.Find(holidays), nullptr);
    screens.Show(holidays);
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
}

TEST_F(HolidaysScreen, RedoAnsweredNoLeavesEverything) {
    ShowWith("#2026-12-25#\r\n");
    ClickDay(*Calendar(), {2026, 3, 17});
    const auto before = folder.Contents();
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::No);
    Click(holidays, redo);
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026"_s, u"3/17/2026"_s}));
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_TRUE(IsShown(holidays));
}

TEST_F(HolidaysScreen, RedoAnsweredYesStartsOverAtOnce) {
    ShowWith("#2026-12-25#\r\n");
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    Click(holidays, redo);
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_FALSE(folder.Has(holidaysFile));
    EXPECT_TRUE(IsShown(holidays));
    ClickDay(*Calendar(), {2026, 3, 17});
    EXPECT_EQ(Entries(), QStringList{u"3/17/2026"_s});
}

TEST_F(HolidaysScreen, EntryOfTheListCannotBeRemovedOrChanged) {
    ShowWith("#2026-12-25#\r\n");
    const QRect entry = List()->visualRect(List()->model()->index(0, 0));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, entry.center());
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, entry.center());
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F2, Qt::Key_Return})
        Press(List(), key);
    EXPECT_EQ(List()->findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
}

TEST_F(HolidaysScreen, ThreeHundredDatesAreReachedByScrollingAndTheNextClickFails) {
    QByteArray bytes;
    for (int i = 0; i < 300; ++i)
        bytes += QDate(2027, 1, 1).addDays(i).toString(u"'#'yyyy-MM-dd'#'").toLatin1() + "\r\n";
    ShowWith(bytes);
    EXPECT_EQ(Entries().size(), 300);
    ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(holidays)));
    List()->setFocus();
    Press(List(), Qt::Key_End);
    const QRect last = List()->visualRect(List()->model()->index(299, 0));
    EXPECT_TRUE(List()->viewport()->rect().contains(last));
    ClickDay(*Calendar(), {2026, 3, 17});
    ASSERT_EQ(Failures().size(), size_t(1));
    EXPECT_EQ(Failures().front().Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Read(holidaysFile), bytes);
}

TEST_F(HolidaysScreen, NewestDateIsScrolledIntoSight) {
    QByteArray bytes;
    for (int i = 0; i < 200; ++i)
        bytes += QDate(2027, 1, 1).addDays(i).toString(u"'#'yyyy-MM-dd'#'").toLatin1() + "\r\n";
    ShowWith(bytes);
    ClickDay(*Calendar(), {2026, 3, 17});
    const QRect newest = List()->visualRect(List()->model()->index(200, 0));
    EXPECT_TRUE(List()->viewport()->rect().contains(newest));
}

TEST_F(HolidaysScreen, DateThatIsListedAlreadyIsScrolledIntoSight) {
    QByteArray bytes;
    for (int i = 0; i < 200; ++i)
        bytes += QDate(2026, 4, 1).addDays(i).toString(u"'#'yyyy-MM-dd'#'").toLatin1() + "\r\n";
    ShowWith(bytes);
    List()->scrollToBottom();
    const auto isInSight = [this](int row) {
        return List()->viewport()->rect().contains(
            List()->visualRect(List()->model()->index(row, 0)));
    };
    ASSERT_FALSE(isInSight(2));
    ClickDay(*Calendar(), {2026, 4, 3});
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_TRUE(isInSight(2));
    // A day that can't be listed leaves the list where it is.
    Calendar()->setCurrentPage(2026, 3);
    ClickDay(*Calendar(), {2026, 3, 2});
    EXPECT_EQ(user.Beeps, 2);
    EXPECT_TRUE(isInSight(2));
}

TEST_F(HolidaysScreen, LineThatIsNoDateEndsInAFailureThatNamesTheFile) {
    folder.Write(holidaysFile, "Christmas\r\n");
    screens.Show(menu);
    QTest::mouseClick(Find<QWidget>(menu, u"lblSub(3)"_s), Qt::LeftButton);
    ASSERT_EQ(Failures().size(), size_t(1));
    EXPECT_EQ(Failures().front().Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(Failures().front().Sentence(),
              u"Reading Holidays.txt failed: \"Christmas\" is not a date."_s);
    EXPECT_EQ(folder.Read(holidaysFile), "Christmas\r\n");
}

TEST_F(HolidaysScreen, CloseBoxAsksForTheEnd) {
    screens.Show(holidays);
    CloseByUser(holidays);
    EXPECT_EQ(exitRequests, 1);
}

TEST_F(HolidaysScreen, WholeScreenFitsASmallDesktop) {
    screens.Show(holidays);
    Screen* screen = screens.Find(holidays);
    EXPECT_LE(screen->minimumSizeHint().width(), 1024);
    screen->resize(1024, 768);
    QCoreApplication::processEvents();
    for (const QString& name : {u"MonthView1"_s, u"lstHolidays"_s, toMenu, save, redo}) {
        const auto* control = Find<QWidget>(holidays, name);
        const QRect place(control->mapTo(screen, QPoint()), control->size());
        EXPECT_TRUE(screen->rect().contains(place)) << name.toStdString();
    }
}
