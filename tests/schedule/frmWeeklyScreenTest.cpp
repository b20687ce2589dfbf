#include "platform/DatePicker.h"
#include "platform/Grid.h"
#include "schedule/frmWeekly.h"
#include "support/SampleSlips.h"
#include "support/ScreenTest.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QWindow>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName weekly = ScreenName::frmWeekly;

const QString confirmTitle = u"Confirm Delete"_s;

} // namespace

class WeeklyScreen : public ScreenTest {
protected:
    WeeklyScreen() {
        office.deliveryTimes.BuildTimeLists();
        WriteVehicles(office, {u"Flatbed Truck"_s, u"Van 2"_s});
    }

    /// Slips 1 to 3 in the order of the grid, on 10, 16 and 20 March; 4 is beyond the month.
    void WriteBusiness() const {
        WriteSlip(folder, {.number = u"1"_s, .date = u"3/10/2026"_s, .vehicle = u"Van 2"_s});
        WriteSlip(folder, {.number = u"2"_s,
                           .customer = u"Baker, Ann"_s,
                           .time = u"05:00pm"_s,
                           .recurring = u"False"_s,
                           .frequency = {},
                           .account = u"4472"_s});
        WriteSlip(folder, {.number = u"3"_s, .date = u"3/20/2026"_s});
        WriteSlip(folder, {.number = u"4"_s, .date = u"5/20/2026"_s});
    }

    void Open() {
        screens.Show(weekly);
        grid = Find<Grid>(weekly, u"fgWeekly"_s);
        QCoreApplication::processEvents();
    }
    void OpenLoaded() {
        WriteBusiness();
        Open();
        Click(weekly, u"cmdweekly(3)"_s);
    }
    /// With the reschedule panel open for slip 2.
    void OpenPanel() {
        OpenLoaded();
        ClickCell(grid, 2, 0);
        Click(weekly, u"cmdweekly(8)"_s);
    }

    QString Cell(int row, int column) const { return office.weekly.fgWeekly.Text(row, column); }
    QStringList Numbers() const {
        QStringList numbers;
        for (int row = 1; row <= office.weekly.fgWeekly.DataRows(); ++row)
            numbers += Cell(row, 0);
        return numbers;
    }
    QPushButton* Button(int index) {
        return Find<QPushButton>(weekly, u"cmdweekly(%1)"_s.arg(index));
    }
    DatePicker* Date(const QString& name) { return Find<DatePicker>(weekly, name); }
    QListView* List(const QString& name) { return Find<QListView>(weekly, name); }
    QString Chosen(const QString& list) {
        return List(list)->selectionModel()->selectedIndexes().value(0).data().toString();
    }
    QCheckBox* FilterBox() { return Find<QCheckBox>(weekly, u"ckVehicle"_s); }
    QLabel* AllVehicles() { return Find<QLabel>(weekly, u"Label1(9)"_s); }
    QString Caption(const QString& name) { return Find<QLabel>(weekly, name)->text(); }
    bool PanelIsShown() { return Find<QWidget>(weekly, u"fraReschedule"_s)->isVisible(); }
    QWidget* Focused() const { return screens.Find(weekly)->focusWidget(); }

    void TypeDate(const QString& name, const QString& text, Qt::Key last = Qt::Key_Return) {
        Date(name)->setFocus();
        Date(name)->selectAll();
        Type(Date(name), text);
        Press(Date(name), last);
    }
    void PasteOver(const QString& date) {
        Date(date)->setFocus();
        Date(date)->selectAll();
        QTest::keyClick(Date(date), Qt::Key_V, Qt::ControlModifier);
    }
    void ClickEntry(const QString& name, int row) {
        QListView* list = List(name);
        list->scrollTo(list->model()->index(row, 0));
        const QRect place = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }
    void ExpectInvalidDate() {
        user.ExpectMessage(u"Your Date Selection was Invalid"_s, u"Invalid Date"_s);
    }
    void ExpectQuestions(const QString& slipNo, Answer first, Answer second = Answer::No) {
        user.ExpectQuestion(u"This will DELETE or RESCHEDULE (if Recurring) Slip No "_s + slipNo +
                                u"\nClick Yes to Delete"_s,
                            confirmTitle, first);
        if (first == Answer::Yes)
            user.ExpectQuestion(u"Are you sure?"_s, confirmTitle, second);
    }
    /// Over the grid, as the machine tells the window of it; away from the operator is up.
    void TurnWheel(int angle) {
        QWidget* window = screens.Find(weekly);
        const QPointF place = grid->viewport()->mapTo(window, QPointF(10, 10));
        QWheelEvent wheel(place, window->mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window->windowHandle(), &wheel);
    }
    /// Tab, as often as it takes to reach a control.
    void TabTo(const QWidget* control) {
        for (int presses = 0; Focused() != control; ++presses) {
            ASSERT_LT(presses, 40) << "No Tab leads to " << control->objectName().toStdString();
            Press(Focused(), Qt::Key_Tab);
        }
    }

    Grid* grid = nullptr;
};

TEST_F(WeeklyScreen, OpensOnTheNextMonthWithAnEmptyGridAndTheFocusOnToday) {
    WriteBusiness();
    Open();
    EXPECT_EQ(Date(u"DTStarting"_s)->Date(), QDate(2026, 3, 9));
    EXPECT_EQ(Date(u"DTEnding"_s)->Date(), QDate(2026, 4, 9));
    EXPECT_EQ(office.weekly.fgWeekly.Rows(), 2);
    EXPECT_EQ(Cell(1, 0), QString());
    EXPECT_FALSE(FilterBox()->isChecked());
    EXPECT_TRUE(AllVehicles()->isVisible());
    EXPECT_FALSE(List(u"lstVehicles"_s)->isEnabled());
    EXPECT_FALSE(PanelIsShown());
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_FALSE(Button(8)->isEnabled());
    EXPECT_EQ(Focused(), Button(1));
    EXPECT_EQ(office.slips.SlipCount, 4);
}

TEST_F(WeeklyScreen, ControlsCarryTheirTexts) {
    Open();
    EXPECT_EQ(screens.Find(weekly)->windowTitle(), u"View Scheduled Deliveries"_s);
    const QStringList captions = {
        u"&Return to Menu"_s,     u"Today"_s,         u"Remove Delivery"_s, u"&Load Grid"_s,
        u"&Print Schedule"_s,     u"Next Year"_s,     u"Next Month"_s,      u"Next Qtr"_s,
        u"Reschedule Delivery"_s, u"Save Delivery"_s, u"Exit w/o Saving"_s};
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(Button(i)->text(), captions[i]);
    EXPECT_EQ(FilterBox()->text(), u"Check to Filter by Vehicle"_s);
    EXPECT_EQ(AllVehicles()->text(), u"All Vehicles will be Displayed"_s);
    EXPECT_EQ(List(u"lstVehicles"_s)->toolTip(), u"Displays all Vehicles"_s);
    const QStringList labels = TextsIn(screens.Find(weekly));
    for (const QString& text :
         {u"1st Date (inclusive)"_s, u"Last date (inclusive)"_s, u"Rescheduling a Delivery"_s})
        EXPECT_EQ(labels.count(text), 1) << text.toStdString();
}

TEST_F(WeeklyScreen, KeyColumnsAreHidden) {
    Open();
    for (int column = 0; column < 10; ++column)
        EXPECT_EQ(grid->isColumnHidden(column), column >= 7) << column;
}

TEST_F(WeeklyScreen, EntriesOfAListStandOneBelowTheOther) {
    Open();
    const QListView* list = List(u"lstVehicles"_s);
    const QModelIndex first = list->model()->index(0, 0);
    const QModelIndex second = list->model()->index(1, 0);
    EXPECT_EQ(list->visualRect(second).top(), list->visualRect(first).bottom() + 1);
    EXPECT_GT(list->visualRect(first).height(), list->fontMetrics().height());
}

TEST_F(WeeklyScreen, LoadGridShowsTheRange) {
    OpenLoaded();
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(Caption(u"where"_s), u"Deliveries: 3"_s);
}

TEST_F(WeeklyScreen, RangeTypedIsLoaded) {
    WriteBusiness();
    Open();
    TypeDate(u"DTStarting"_s, u"3/16/2026"_s);
    TypeDate(u"DTEnding"_s, u"5/20/2026"_s);
    EXPECT_EQ(Numbers(), QStringList{QString()});
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"2"_s, u"3"_s, u"4"_s}));
}

TEST_F(WeeklyScreen, EmptyRangeLeavesAnEmptyGridWhereNothingCanBePicked) {
    WriteBusiness();
    Open();
    Click(weekly, u"cmdweekly(1)"_s);
    EXPECT_EQ(Numbers(), QStringList{QString()});
    EXPECT_EQ(Caption(u"where"_s), u"Deliveries: 0"_s);
    ClickCell(grid, 1, 0);
    Press(grid, Qt::Key_Space);
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_FALSE(Button(8)->isEnabled());
}

TEST_F(WeeklyScreen, PresetsSetTheRangeAndLoadIt) {
    WriteBusiness();
    Open();
    struct Preset {
        int button;
        QDate ending;
        int deliveries;
    };
    const Preset presets[] = {
        {1, {2026, 3, 9}, 0}, {6, {2026, 4, 9}, 3}, {7, {2026, 6, 9}, 4}, {5, {2027, 3, 9}, 4}};
    for (const auto& [button, ending, deliveries] : presets) {
        TypeDate(u"DTStarting"_s, u"3/12/2026"_s);
        Click(weekly, u"cmdweekly(%1)"_s.arg(button));
        EXPECT_EQ(Date(u"DTStarting"_s)->Date(), QDate(2026, 3, 9));
        EXPECT_EQ(Date(u"DTEnding"_s)->Date(), ending);
        EXPECT_EQ(office.weekly.Deliveries(), deliveries) << button;
    }
}

TEST_F(WeeklyScreen, DateTypedBeforeTodayIsToldAndReturnsToToday) {
    Open();
    for (const QString& name : {u"DTStarting"_s, u"DTEnding"_s}) {
        user.Beeps = 0;
        ExpectInvalidDate();
        TypeDate(name, u"3/8/2026"_s);
        user.ExpectNothingLeft();
        EXPECT_EQ(Date(name)->text(), u"3/9/2026"_s);
        EXPECT_EQ(Focused(), Date(name));
        EXPECT_EQ(user.Beeps, 1);
    }
}

TEST_F(WeeklyScreen, FieldTakesTheFocusBackFromTheControlThatFollows) {
    Open();
    for (const QString& name : {u"DTStarting"_s, u"DTEnding"_s}) {
        ExpectInvalidDate();
        TypeDate(name, u"3/8/2026"_s, Qt::Key_Tab);
        EXPECT_EQ(Date(name)->text(), u"3/9/2026"_s);
        EXPECT_EQ(Focused(), Date(name));
    }
}

TEST_F(WeeklyScreen, DateTypedBeforeTodayWithPromptsAndAlarmsOffIsCorrectedWithoutAWord) {
    Open();
    office.settings.PromptsOn = false;
    office.settings.AlarmOn = false;
    TypeDate(u"DTStarting"_s, u"3/8/2026"_s);
    EXPECT_EQ(Date(u"DTStarting"_s)->text(), u"3/9/2026"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(WeeklyScreen, DatePastedBeforeTodayIsCorrectedAsWell) {
    Open();
    QApplication::clipboard()->setText(u"12/31/2025"_s);
    for (const QString& name : {u"DTStarting"_s, u"DTEnding"_s}) {
        PasteOver(name);
        EXPECT_EQ(Date(name)->text(), u"12/31/2025"_s);
        ExpectInvalidDate();
        Press(Date(name), Qt::Key_Return);
        EXPECT_EQ(Date(name)->text(), u"3/9/2026"_s);
        EXPECT_EQ(Focused(), Date(name));
    }
}

TEST_F(WeeklyScreen, DateOfAnotherRegionBeforeTodayIsCorrectedAsWell) {
    UseLocale("de_DE.UTF-8");
    Open();
    ExpectInvalidDate();
    TypeDate(u"DTStarting"_s, u"08.03.2026"_s);
    EXPECT_EQ(Date(u"DTStarting"_s)->text(), u"09.03.2026"_s);
    QApplication::clipboard()->setText(u"31.12.2025"_s);
    PasteOver(u"DTEnding"_s);
    ExpectInvalidDate();
    Press(Date(u"DTEnding"_s), Qt::Key_Return);
    EXPECT_EQ(Date(u"DTEnding"_s)->text(), u"09.03.2026"_s);
}

TEST_F(WeeklyScreen, TextThatIsNoDateIsTakenBackWithABeepUnlessAlarmsAreOff) {
    Open();
    int beeps = 0;
    for (const QString& text : {u"soon"_s, u"2/30/2026"_s, u"3/9/26"_s, u"\u00e9\u4e00"_s}) {
        QApplication::clipboard()->setText(text);
        PasteOver(u"DTStarting"_s);
        Press(Date(u"DTStarting"_s), Qt::Key_Return);
        EXPECT_EQ(Date(u"DTStarting"_s)->text(), u"3/9/2026"_s);
        EXPECT_EQ(user.Beeps, ++beeps);
    }
    office.settings.AlarmOn = false;
    TypeDate(u"DTStarting"_s, u"soon"_s);
    EXPECT_EQ(user.Beeps, beeps);
}

TEST_F(WeeklyScreen, StepBeforeTodayIsTold) {
    Open();
    ExpectInvalidDate();
    Press(Date(u"DTStarting"_s), Qt::Key_Down);
    EXPECT_EQ(Date(u"DTStarting"_s)->text(), u"3/9/2026"_s);
}

TEST_F(WeeklyScreen, CalendarOfTheFirstDateBeginsToday) {
    Open();
    Press(Date(u"DTStarting"_s), Qt::Key_F4);
    const auto* calendar = Find<QCalendarWidget>(weekly, u"calendar"_s);
    EXPECT_EQ(calendar->minimumDate(), QDate(2026, 3, 9));
}

TEST_F(WeeklyScreen, CalendarOfTheLastDateReachesBackBeforeToday) {
    Open();
    Press(Date(u"DTEnding"_s), Qt::Key_F4);
    const auto* calendar = Find<QCalendarWidget>(weekly, u"calendar"_s);
    EXPECT_LT(calendar->minimumDate(), QDate(2026, 3, 8));
}

TEST_F(WeeklyScreen, ButtonPressedByItsKeyWorksOnTheDateThatIsTyped) {
    WriteBusiness();
    Open();
    Date(u"DTStarting"_s)->setFocus();
    Date(u"DTStarting"_s)->selectAll();
    Type(Date(u"DTStarting"_s), u"3/17/2026"_s);
    QTest::keyClick(Date(u"DTStarting"_s), Qt::Key_L, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(office.weekly.IsLoaded, true, 2000);
    EXPECT_EQ(Numbers(), QStringList{u"3"_s});
}

TEST_F(WeeklyScreen, ButtonPressedByItsKeyCorrectsADateBeforeToday) {
    WriteBusiness();
    Open();
    Date(u"DTStarting"_s)->setFocus();
    Date(u"DTStarting"_s)->selectAll();
    Type(Date(u"DTStarting"_s), u"3/1/2026"_s);
    ExpectInvalidDate();
    QTest::keyClick(Date(u"DTStarting"_s), Qt::Key_L, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(office.weekly.IsLoaded, true, 2000);
    EXPECT_EQ(Date(u"DTStarting"_s)->text(), u"3/9/2026"_s);
    EXPECT_EQ(office.weekly.Deliveries(), 3);
}

TEST_F(WeeklyScreen, TickOpensTheVehiclesAndHidesTheLabel) {
    Open();
    FilterBox()->click();
    EXPECT_TRUE(List(u"lstVehicles"_s)->isEnabled());
    EXPECT_FALSE(AllVehicles()->isVisible());
    FilterBox()->click();
    EXPECT_FALSE(List(u"lstVehicles"_s)->isEnabled());
    EXPECT_TRUE(AllVehicles()->isVisible());
}

TEST_F(WeeklyScreen, TickLeavesTheGrid) {
    OpenLoaded();
    FilterBox()->click();
    EXPECT_EQ(Numbers().size(), 3);
}

TEST_F(WeeklyScreen, ClickOnAVehicleClearsTheGridAndTheNextLoadFilters) {
    OpenLoaded();
    FilterBox()->click();
    ClickEntry(u"lstVehicles"_s, 1);
    EXPECT_EQ(Numbers(), QStringList{QString()});
    EXPECT_EQ(Caption(u"where"_s), QString());
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_EQ(Numbers(), QStringList{u"1"_s});
    ClickEntry(u"lstVehicles"_s, 1);
    EXPECT_EQ(Numbers(), QStringList{QString()});
}

TEST_F(WeeklyScreen, ColumnsFitTheDeliveriesAfterAClickOnAVehicle) {
    OpenLoaded();
    const int fitting = grid->columnWidth(int(WeeklyColumn::Vehicle));
    FilterBox()->click();
    ClickEntry(u"lstVehicles"_s, 0);
    EXPECT_LT(grid->columnWidth(int(WeeklyColumn::Vehicle)), fitting);
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_EQ(grid->columnWidth(int(WeeklyColumn::Vehicle)), fitting);
}

TEST_F(WeeklyScreen, SmallWindowHasAllColumnsOfLongNamesToo) {
    WriteSlip(folder, {.number = u"9"_s, .customer = u"Hoskins and Daughters Masonry"_s});
    OpenLoaded();
    screens.Find(weekly)->resize(964, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(screens.Find(weekly)->size(), QSize(964, 700));
    EXPECT_FALSE(grid->horizontalScrollBar()->isVisible());
    EXPECT_GE(grid->columnWidth(int(WeeklyColumn::AccountName)),
              grid->horizontalHeader()->sectionSizeHint(int(WeeklyColumn::AccountName)));
}

TEST_F(WeeklyScreen, EmptyGridShowsItsHintAloneThoughARowIsCurrent) {
    OpenLoaded();
    Click(weekly, u"cmdweekly(1)"_s);
    ASSERT_EQ(office.weekly.fgWeekly.CurrentRow(), 1);
    const QRect row = grid->visualRect(grid->model()->index(0, 0));
    const QImage shown = grid->viewport()->grab(row).toImage();
    const QColor ground = shown.pixelColor(shown.width() / 2, shown.height() / 2);
    EXPECT_EQ(ground, grid->palette().color(QPalette::Base));
}

TEST_F(WeeklyScreen, UntickingShowsAllVehiclesAgain) {
    OpenLoaded();
    FilterBox()->click();
    ClickEntry(u"lstVehicles"_s, 1);
    FilterBox()->click();
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_EQ(Numbers().size(), 3);
}

TEST_F(WeeklyScreen, NoVehicleIsChosenAnyMoreWhenTheVehiclesAreReadAnew) {
    OpenPanel();
    FilterBox()->click();
    ClickEntry(u"lstVehicles"_s, 1);
    Click(weekly, u"cmdweekly(3)"_s);
    ClickCell(grid, 1, 0);
    Click(weekly, u"cmdweekly(8)"_s);
    ASSERT_EQ(Chosen(u"lstVehicles"_s), u"Van 2"_s);
    ASSERT_EQ(Chosen(u"lstRescheduleVehicles"_s), u"Van 2"_s);
    WriteVehicles(office, {u"Bus"_s, u"Tanker"_s, u"Van 2"_s});
    EXPECT_EQ(List(u"lstVehicles"_s)->model()->rowCount(), 3);
    EXPECT_EQ(Chosen(u"lstVehicles"_s), QString());
    EXPECT_EQ(Chosen(u"lstRescheduleVehicles"_s), QString());
    EXPECT_EQ(office.weekly.lstVehicles, QString());
    EXPECT_EQ(Numbers(), QStringList{u"1"_s}) << "no click has cleared the grid";
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_EQ(Numbers(), QStringList{QString()});
}

TEST_F(WeeklyScreen, ClickInColumnZeroOpensTheTwoButtonsAndOneElsewhereClosesThem) {
    OpenLoaded();
    ClickCell(grid, 2, 0);
    EXPECT_TRUE(Button(2)->isEnabled());
    EXPECT_TRUE(Button(8)->isEnabled());
    ClickCell(grid, 2, 2);
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_FALSE(Button(8)->isEnabled());
}

TEST_F(WeeklyScreen, EnterAndSpaceAreTheKeyboardsClickOnARow) {
    OpenLoaded();
    for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
        ClickCell(grid, 1, 3);
        EXPECT_FALSE(Button(8)->isEnabled());
        Press(grid, Qt::Key_Down);
        Press(grid, key);
        EXPECT_TRUE(Button(2)->isEnabled());
        EXPECT_TRUE(Button(8)->isEnabled());
        EXPECT_EQ(office.weekly.fgWeekly.CurrentRow(), 2);
    }
}

TEST_F(WeeklyScreen, OtherKeysInTheGridPickNothing) {
    OpenLoaded();
    ClickCell(grid, 1, 3);
    Type(grid, u"x1"_s);
    EXPECT_FALSE(Button(8)->isEnabled());
}

TEST_F(WeeklyScreen, DisabledButtonsSayWhatToDo) {
    OpenLoaded();
    for (const int button : {2, 8})
        EXPECT_EQ(Button(button)->toolTip(), u"Click a Delivery No in the list first"_s);
    ClickCell(grid, 1, 0);
    for (const int button : {2, 8})
        EXPECT_EQ(Button(button)->toolTip(), QString());
}

TEST_F(WeeklyScreen, RemoveButtonIsClosedAfterANoAndOpensWithTheNextClick) {
    OpenLoaded();
    ClickCell(grid, 2, 0);
    ExpectQuestions(u"2"_s, Answer::No);
    Click(weekly, u"cmdweekly(2)"_s);
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_TRUE(Button(8)->isEnabled());
    EXPECT_EQ(Focused(), grid);
    ClickCell(grid, 2, 0);
    EXPECT_TRUE(Button(2)->isEnabled());
}

TEST_F(WeeklyScreen, RemoveButtonIsClosedWhileItsQuestionsAreOpen) {
    OpenLoaded();
    ClickCell(grid, 2, 0);
    std::vector<bool> wasEnabled;
    user.WhileMessageIsOpen = [&] { wasEnabled.push_back(Button(2)->isEnabled()); };
    ExpectQuestions(u"2"_s, Answer::Yes, Answer::No);
    Click(weekly, u"cmdweekly(2)"_s);
    EXPECT_EQ(wasEnabled, (std::vector<bool>{false, false}));
}

TEST_F(WeeklyScreen, RemovedDeliveryLeavesTheGridAndTheDisk) {
    office.settings.ckDelete = 1;
    OpenLoaded();
    ClickCell(grid, 2, 0);
    ExpectQuestions(u"2"_s, Answer::Yes, Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 2 scheduled for 3/16/2026 has been Deleted"_s);
    Click(weekly, u"cmdweekly(2)"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"3"_s}));
    EXPECT_FALSE(folder.Has(HeaderName(u"2"_s)));
    EXPECT_FALSE(folder.Has(ItemName(u"2"_s)));
    EXPECT_EQ(Caption(u"where"_s), u"Deliveries: 2"_s);
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_FALSE(Button(8)->isEnabled());
}

TEST_F(WeeklyScreen, PanelShowsTheDeliveryOfTheRow) {
    OpenPanel();
    EXPECT_TRUE(PanelIsShown());
    EXPECT_EQ(Caption(u"lblDelivery"_s), u"2"_s);
    EXPECT_EQ(Caption(u"lblAccount"_s), u"4472"_s);
    EXPECT_EQ(Caption(u"lblAccountName"_s), u"Baker, Ann"_s);
    EXPECT_EQ(Caption(u"lblVehicle"_s), u"Flatbed Truck"_s);
    EXPECT_EQ(Date(u"dtReschedule"_s)->Date(), QDate(2026, 3, 16));
    EXPECT_EQ(Chosen(u"lstTime"_s), u"05:00pm"_s);
    EXPECT_EQ(Chosen(u"lstRescheduleVehicles"_s), u"Flatbed Truck"_s);
    EXPECT_EQ(Focused(), Date(u"dtReschedule"_s));
    EXPECT_FALSE(grid->isEnabled());
}

TEST_F(WeeklyScreen, TimeOfThePanelIsInSight) {
    OpenPanel();
    const QListView* times = List(u"lstTime"_s);
    EXPECT_EQ(times->model()->rowCount(), 44);
    EXPECT_TRUE(times->viewport()->rect().contains(times->visualRect(times->currentIndex())));
}

TEST_F(WeeklyScreen, TimeAndVehicleThatAreNotInTheListsAreNotChosenThere) {
    WriteSlip(folder, {.number = u"1"_s, .time = u"07:15am"_s, .vehicle = u"Old Van"_s});
    Open();
    Click(weekly, u"cmdweekly(3)"_s);
    ClickCell(grid, 1, 0);
    Click(weekly, u"cmdweekly(8)"_s);
    EXPECT_EQ(Caption(u"lblVehicle"_s), u"Old Van"_s);
    EXPECT_EQ(Chosen(u"lstTime"_s), QString());
    EXPECT_EQ(Chosen(u"lstRescheduleVehicles"_s), QString());
    TypeDate(u"dtReschedule"_s, u"3/20/2026"_s);
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_TRUE(folder.Read(HeaderName(u"1"_s)).startsWith("1\r\n3/20/2026\r\n07:15am\r\n"));
}

TEST_F(WeeklyScreen, PanelsDateBeforeTodayBecomesTodayInSilence) {
    OpenPanel();
    TypeDate(u"dtReschedule"_s, u"3/1/2026"_s);
    EXPECT_EQ(Date(u"dtReschedule"_s)->text(), u"3/9/2026"_s);
    QApplication::clipboard()->setText(u"12/31/2025"_s);
    PasteOver(u"dtReschedule"_s);
    Press(Date(u"dtReschedule"_s), Qt::Key_Return);
    EXPECT_EQ(Date(u"dtReschedule"_s)->text(), u"3/9/2026"_s);
    EXPECT_EQ(user.Beeps, 0);
    Press(Date(u"dtReschedule"_s), Qt::Key_F4);
    EXPECT_EQ(Find<QCalendarWidget>(weekly, u"calendar"_s)->minimumDate(), QDate(2026, 3, 9));
}

TEST_F(WeeklyScreen, SavedDeliveryKeepsItsTimeAndVehicleOnDisk) {
    OpenPanel();
    TypeDate(u"dtReschedule"_s, u"3/25/2026"_s);
    ClickEntry(u"lstTime"_s, 0);
    ClickEntry(u"lstRescheduleVehicles"_s, 1);
    auto expected = folder.Contents();
    expected[HeaderName(u"2"_s)].replace("2\r\n3/16/2026\r\n05:00pm\r\n",
                                         "2\r\n3/25/2026\r\n05:00pm\r\n");
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_EQ(folder.Contents(), expected);
    EXPECT_TRUE(expected[HeaderName(u"2"_s)].contains("Flatbed Truck"));
}

TEST_F(WeeklyScreen, SaveResetsTheScreenAsItWasOpened) {
    OpenPanel();
    FilterBox()->click();
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_EQ(Numbers(), QStringList{QString()});
    EXPECT_FALSE(FilterBox()->isChecked());
    EXPECT_TRUE(AllVehicles()->isVisible());
    EXPECT_EQ(Date(u"DTStarting"_s)->Date(), QDate(2026, 3, 9));
    EXPECT_EQ(Date(u"DTEnding"_s)->Date(), QDate(2026, 4, 9));
    EXPECT_FALSE(Button(8)->isEnabled());
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_EQ(Focused(), Button(1));
}

TEST_F(WeeklyScreen, SaveTakesADateThatIsStillBeingTyped) {
    OpenPanel();
    Date(u"dtReschedule"_s)->selectAll();
    Type(Date(u"dtReschedule"_s), u"3/25/2026"_s);
    Button(9)->click();
    EXPECT_TRUE(folder.Read(HeaderName(u"2"_s)).startsWith("2\r\n3/25/2026\r\n"));
}

TEST_F(WeeklyScreen, DateBeforeTodayThatIsStillBeingTypedIsSavedAsToday) {
    OpenPanel();
    Date(u"dtReschedule"_s)->selectAll();
    Type(Date(u"dtReschedule"_s), u"3/1/2026"_s);
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_TRUE(folder.Read(HeaderName(u"2"_s)).startsWith("2\r\n3/9/2026\r\n"));
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_FALSE(PanelIsShown());
}

TEST_F(WeeklyScreen, SaveOverATextThatIsNoDateBeepsAndSavesNothingBeforeTheNextPress) {
    OpenPanel();
    const auto before = folder.Contents();
    int beeps = 0;
    const auto enter = [this](const QString& text) {
        Date(u"dtReschedule"_s)->setFocus();
        Date(u"dtReschedule"_s)->selectAll();
        Type(Date(u"dtReschedule"_s), text);
    };
    const std::function<void()> presses[] = {[this] { Click(weekly, u"cmdweekly(9)"_s); },
                                             [this] { Button(9)->click(); }};
    for (const auto& press : presses) {
        enter(u"3/32/2026"_s);
        press();
        EXPECT_EQ(user.Beeps, ++beeps);
        EXPECT_TRUE(PanelIsShown());
        EXPECT_EQ(Date(u"dtReschedule"_s)->text(), u"3/16/2026"_s);
        EXPECT_EQ(Focused(), Date(u"dtReschedule"_s));
        EXPECT_EQ(folder.Contents(), before);
    }
    enter(u"3/25/2026"_s);
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_TRUE(folder.Read(HeaderName(u"2"_s)).startsWith("2\r\n3/25/2026\r\n"));
}

TEST_F(WeeklyScreen, TextThatIsNoDateAndIsLeftForAnotherFieldHoldsNoSaveUp) {
    OpenPanel();
    TypeDate(u"dtReschedule"_s, u"soon"_s, Qt::Key_Tab);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Date(u"dtReschedule"_s)->text(), u"3/16/2026"_s);
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_FALSE(PanelIsShown());
}

TEST_F(WeeklyScreen, TextThatIsNoDateIsNotSavedWithAlarmsOffEither) {
    OpenPanel();
    office.settings.AlarmOn = false;
    const auto before = folder.Contents();
    Date(u"dtReschedule"_s)->selectAll();
    Type(Date(u"dtReschedule"_s), u"soon"_s);
    Click(weekly, u"cmdweekly(9)"_s);
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_TRUE(PanelIsShown());
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(WeeklyScreen, ExitWithoutSavingClosesThePanelAndChangesNothing) {
    OpenPanel();
    const auto before = folder.Contents();
    TypeDate(u"dtReschedule"_s, u"3/25/2026"_s);
    Click(weekly, u"cmdweekly(10)"_s);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(Cell(2, 3), u"3/16/2026"_s);
    EXPECT_TRUE(Button(8)->isEnabled());
    EXPECT_EQ(Focused(), grid);
    Click(weekly, u"cmdweekly(8)"_s);
    EXPECT_EQ(Date(u"dtReschedule"_s)->Date(), QDate(2026, 3, 16));
}

TEST_F(WeeklyScreen, LoadClosesThePanel) {
    OpenPanel();
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_FALSE(Button(8)->isEnabled());
}

TEST_F(WeeklyScreen, VehicleChosenClosesThePanel) {
    OpenPanel();
    FilterBox()->click();
    ClickEntry(u"lstVehicles"_s, 0);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_TRUE(grid->isEnabled());
}

TEST_F(WeeklyScreen, PrintPrintsTheGrid) {
    OpenLoaded();
    Click(weekly, u"cmdweekly(4)"_s);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Find(u"Baker, Ann"_s).x, 5400);
}

TEST_F(WeeklyScreen, PrinterThatFailsIsToldAndTheScreenGoesOn) {
    OpenLoaded();
    printer.FailingText = 3;
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    Click(weekly, u"cmdweekly(4)"_s);
    EXPECT_TRUE(Failures().empty());
    EXPECT_TRUE(IsShown(weekly));
}

TEST_F(WeeklyScreen, SlipWhoseDateIsNoDateStopsTheProgram) {
    WriteSlip(folder, {.number = u"1"_s, .date = u"soon"_s});
    Open();
    Click(weekly, u"cmdweekly(3)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::TypeMismatch);
}

TEST_F(WeeklyScreen, ReturnToMenuHidesTheScreenAndShowsTheMenu) {
    WriteMasterFiles();
    Open();
    Click(weekly, u"cmdweekly(0)"_s);
    EXPECT_FALSE(IsShown(weekly));
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
}

TEST_F(WeeklyScreen, ComingBackKeepsTheRangeAndShowsTheSlipsAsTheyAreNow) {
    WriteMasterFiles();
    OpenLoaded();
    TypeDate(u"DTEnding"_s, u"3/16/2026"_s);
    Click(weekly, u"cmdweekly(3)"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s}));
    ClickCell(grid, 2, 0);
    Click(weekly, u"cmdweekly(0)"_s);
    office.disk.KillFile(u"/TesselDelivery/Deliveries/1.txt"_s);
    screens.Show(weekly);
    EXPECT_EQ(Date(u"DTEnding"_s)->Date(), QDate(2026, 3, 16));
    EXPECT_EQ(Numbers(), QStringList{u"2"_s});
    EXPECT_FALSE(Button(2)->isEnabled());
}

TEST_F(WeeklyScreen, ComingBackClosesThePanelOfADeliveryThatWasBeingMoved) {
    WriteMasterFiles();
    OpenPanel();
    Click(weekly, u"cmdweekly(0)"_s);
    screens.Show(weekly);
    EXPECT_FALSE(PanelIsShown());
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_FALSE(Button(2)->isEnabled());
    EXPECT_FALSE(Button(8)->isEnabled());
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(WeeklyScreen, CloseBoxAsksForTheEndOfTheProgram) {
    Open();
    CloseByUser(weekly);
    EXPECT_EQ(exitRequests, 1);
    EXPECT_TRUE(IsShown(weekly));
}

TEST_F(WeeklyScreen, WheelScrollsTheGridBothWays) {
    for (int i = 0; i < 60; ++i)
        WriteSlip(folder, {.number = QString::number(600 + i)});
    Open();
    Click(weekly, u"cmdweekly(3)"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid->verticalScrollBar()->value(), 0);
    TurnWheel(-240);
    const int lower = grid->verticalScrollBar()->value();
    EXPECT_GT(lower, 0);
    TurnWheel(-240);
    EXPECT_GT(grid->verticalScrollBar()->value(), lower);
    TurnWheel(240);
    EXPECT_EQ(grid->verticalScrollBar()->value(), lower);
    TurnWheel(2400);
    EXPECT_EQ(grid->verticalScrollBar()->value(), 0);
}

TEST_F(WeeklyScreen, TabGoesFromTheRangeOverTheGridToTheButtons) {
    OpenLoaded();
    ClickCell(grid, 1, 0);
    Date(u"DTStarting"_s)->setFocus();
    QStringList order;
    do {
        order += Focused()->objectName();
        Press(Focused(), Qt::Key_Tab);
    } while (Focused() != Date(u"DTStarting"_s) && order.size() < 30);
    EXPECT_EQ(order,
              (QStringList{u"DTStarting"_s, u"DTEnding"_s, u"cmdweekly(1)"_s, u"cmdweekly(6)"_s,
                           u"cmdweekly(7)"_s, u"cmdweekly(5)"_s, u"ckVehicle"_s, u"fgWeekly"_s,
                           u"cmdweekly(0)"_s, u"cmdweekly(2)"_s, u"cmdweekly(8)"_s,
                           u"cmdweekly(4)"_s, u"cmdweekly(3)"_s}));
}

TEST_F(WeeklyScreen, DeliveryIsRescheduledWithoutTheMouse) {
    WriteBusiness();
    Open();
    TabTo(Button(6));
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Numbers().size(), 3);
    TabTo(grid);
    Press(grid, Qt::Key_Down);
    Press(grid, Qt::Key_Return);
    TabTo(Button(8));
    Press(Focused(), Qt::Key_Return);
    ASSERT_EQ(Focused(), Date(u"dtReschedule"_s));
    EXPECT_EQ(Caption(u"lblDelivery"_s), u"2"_s);
    Date(u"dtReschedule"_s)->selectAll();
    Type(Focused(), u"3/25/2026"_s);
    Press(Focused(), Qt::Key_Tab);
    EXPECT_EQ(Focused(), List(u"lstTime"_s));
    Press(Focused(), Qt::Key_Down);
    EXPECT_EQ(Chosen(u"lstTime"_s), u"05.15pm"_s);
    Press(Focused(), Qt::Key_Tab);
    EXPECT_EQ(Focused(), List(u"lstRescheduleVehicles"_s));
    Press(Focused(), Qt::Key_Tab);
    EXPECT_EQ(Focused(), Button(9));
    Press(Focused(), Qt::Key_Return);
    EXPECT_TRUE(folder.Read(HeaderName(u"2"_s)).startsWith("2\r\n3/25/2026\r\n05:00pm\r\n"));
    EXPECT_FALSE(PanelIsShown());
}

TEST_F(WeeklyScreen, DeliveryOfOneVehicleIsRemovedAndTheRestPrintedWithoutTheMouse) {
    office.settings.ckDelete = 1;
    WriteBusiness();
    Open();
    TabTo(FilterBox());
    Press(Focused(), Qt::Key_Space);
    Press(Focused(), Qt::Key_Tab);
    ASSERT_EQ(Focused(), List(u"lstVehicles"_s));
    Press(Focused(), Qt::Key_Space);
    EXPECT_EQ(Chosen(u"lstVehicles"_s), u"Flatbed Truck"_s);
    TabTo(Button(3));
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Numbers(), (QStringList{u"2"_s, u"3"_s}));
    TabTo(grid);
    Press(grid, Qt::Key_Space);
    TabTo(Button(2));
    ExpectQuestions(u"2"_s, Answer::Yes, Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 2 scheduled for 3/16/2026 has been Deleted"_s);
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Numbers(), QStringList{u"3"_s});
    TabTo(Button(4));
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(printer.Jobs, 1);
}
