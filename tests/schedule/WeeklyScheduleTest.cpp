#include "schedule/WeeklySchedule.h"

#include "support/OfficeTest.h"
#include "support/SampleSlips.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

using Preset = WeeklySchedule::Preset;

namespace {

const QString confirmTitle = u"Confirm Delete"_s;
const QString sure = u"Are you sure?"_s;

QString FirstQuestion(const QString& slipNo) {
    return u"This will DELETE or RESCHEDULE (if Recurring) Slip No "_s + slipNo +
           u"\nClick Yes to Delete"_s;
}

} // namespace

/// The range view over slips that the test writes, on Monday, 9 March 2026.
class WeeklyScheduleTest : public OfficeTest {
protected:
    void StoreSlip(const SampleSlip& slip) const { WriteSlip(folder, slip); }

    void Open() { schedule.Load(); }

    void OpenRange(QDate starting, QDate ending) {
        Open();
        schedule.DTStarting = starting;
        schedule.DTEnding = ending;
        schedule.LoadGrid();
    }

    QStringList Column(WeeklyColumn column) const {
        QStringList cells;
        for (int row = 1; row <= schedule.fgWeekly.DataRows(); ++row)
            cells += schedule.Cell(row, column);
        return cells;
    }
    QStringList Numbers() const { return Column(WeeklyColumn::DeliveryNo); }

    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < schedule.fgWeekly.Columns(); ++column)
            cells += schedule.fgWeekly.Text(row, column);
        return cells;
    }

    /// What a click on the row's delivery number does.
    void Pick(int row) {
        schedule.fgWeekly.SetCurrent(row, 0);
        schedule.PickRow(row, 0);
    }

    void ExpectBothQuestions(const QString& slipNo) {
        user.ExpectQuestion(FirstQuestion(slipNo), confirmTitle, Answer::Yes);
        user.ExpectQuestion(sure, confirmTitle, Answer::Yes);
    }

    void ExpectNothingPicked() const {
        EXPECT_FALSE(schedule.RemoveIsEnabled);
        EXPECT_FALSE(schedule.RescheduleIsEnabled);
        EXPECT_FALSE(schedule.fraReschedule.IsShown);
    }

    const QStringList emptyRow = QStringList(10, QString());
    WeeklySchedule& schedule = office.weekly;
};

TEST_F(WeeklyScheduleTest, LoadSetsTheNextMonthAllVehiclesAndAnEmptyGrid) {
    StoreSlip({.number = u"1"_s});
    schedule.ckVehicle = true;
    Open();
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 3, 9));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 4, 9));
    EXPECT_FALSE(schedule.ckVehicle);
    EXPECT_FALSE(schedule.IsLoaded);
    EXPECT_EQ(schedule.fgWeekly.Rows(), 2);
    EXPECT_EQ(Row(1), emptyRow);
    EXPECT_EQ(schedule.Deliveries(), 0);
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, LoadReadsTheSlipsAndAsksNothingAboutPastOnes) {
    StoreSlip({.number = u"1"_s, .date = u"3/2/2026"_s});
    StoreSlip({.number = u"2"_s});
    const auto before = folder.Contents();
    Open();
    EXPECT_EQ(office.slips.SlipCount, 2);
    EXPECT_EQ(office.slips.Table.Text(SlipLine::Date, 1), u"3/2/2026"_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(WeeklyScheduleTest, HourglassShowsWhileTheSlipsAreRead) {
    Open();
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(WeeklyScheduleTest, SlipFileCutInTheMiddleStopsTheLoad) {
    folder.Write(HeaderName(u"1"_s), "1\r\n3/16/2026\r\n08:30am\r\n");
    const RuntimeFailure failure = FailureOf([&] { Open(); });
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/1.txt"_s));
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(WeeklyScheduleTest, GridHasItsHeadings) {
    EXPECT_EQ(Row(0), (QStringList{u"Delivery No"_s, u"Account No"_s, u"Account Name"_s,
                                   u"Delivery Date"_s, u"Time"_s, u"Vehicle"_s, u"Frequency"_s,
                                   u"JDate"_s, u"Time"_s, u"Rec"_s}));
}

TEST_F(WeeklyScheduleTest, RowShowsTheSlipAndItsKeys) {
    StoreSlip({.number = u"20260013"_s, .date = u"3/2/2026"_s});
    StoreSlip({.number = u"20260014"_s, .customer = u"Baker, Ann"_s, .account = u"4472"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(schedule.fgWeekly.Rows(), 2);
    EXPECT_EQ(Row(1),
              (QStringList{u"20260014"_s, u"4472"_s, u"Baker, Ann"_s, u"3/16/2026"_s, u"08:30am"_s,
                           u"Flatbed Truck"_s, u"Weekly"_s, u"202675"_s, u"230am"_s, u"2"_s}));
    EXPECT_TRUE(schedule.IsLoaded);
    EXPECT_EQ(schedule.Deliveries(), 1);
}

TEST_F(WeeklyScheduleTest, GermanRowShowsTheDateInItsForm) {
    UseLocale("de_DE.UTF-8");
    StoreSlip({.number = u"1"_s, .date = u"16.03.2026"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::DeliveryDate), u"16.03.2026"_s);
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::DateSortKey), u"202675"_s);
}

TEST_F(WeeklyScheduleTest, DateIsRenderedAnewWhateverItsFormInTheFile) {
    StoreSlip({.number = u"1"_s, .date = u"2026-03-16"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::DeliveryDate), u"3/16/2026"_s);
}

TEST_F(WeeklyScheduleTest, FrequencyIsThatOfTheCodeAlsoWhereTheSlipIsOneTime) {
    StoreSlip({.number = u"1"_s, .frequency = {}});
    StoreSlip({.number = u"2"_s, .recurring = u"False"_s, .frequency = u"0000003"_s});
    StoreSlip({.number = u"3"_s, .frequency = u"0100100"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(Column(WeeklyColumn::Frequency),
              (QStringList{u"One Time"_s, u"Monthly"_s, u"Multiple Days"_s}));
}

TEST_F(WeeklyScheduleTest, DateKeyHasNoLeadingZeros) {
    StoreSlip({.number = u"1"_s, .date = u"1/5/2027"_s});
    StoreSlip({.number = u"2"_s, .date = u"12/31/2028"_s});
    OpenRange({2026, 3, 9}, {2028, 12, 31});
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::DateSortKey), u"20275"_s);
    EXPECT_EQ(schedule.Cell(2, WeeklyColumn::DateSortKey), u"2028366"_s);
}

TEST_F(WeeklyScheduleTest, BothEndsOfTheRangeAreIncluded) {
    for (const char* date : {"3/15/2026", "3/16/2026", "3/18/2026", "3/19/2026"}) {
        const QString text = QString::fromLatin1(date);
        StoreSlip({.number = text.section(u'/', 1, 1), .date = text});
    }
    OpenRange({2026, 3, 16}, {2026, 3, 18});
    EXPECT_EQ(Numbers(), (QStringList{u"16"_s, u"18"_s}));
    schedule.DTEnding = {2026, 3, 16};
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), QStringList{u"16"_s});
}

TEST_F(WeeklyScheduleTest, EmptyRangeLeavesOneEmptyRowWhereNothingCanBePicked) {
    StoreSlip({.number = u"1"_s});
    OpenRange({2026, 4, 1}, {2026, 4, 9});
    EXPECT_EQ(schedule.fgWeekly.Rows(), 2);
    EXPECT_EQ(Row(1), emptyRow);
    EXPECT_EQ(schedule.Deliveries(), 0);
    EXPECT_TRUE(schedule.IsLoaded);
    Pick(1);
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, RangeThatEndsBeforeItStartsIsEmpty) {
    StoreSlip({.number = u"1"_s});
    OpenRange({2026, 3, 17}, {2026, 3, 15});
    EXPECT_EQ(Numbers(), QStringList{QString()});
}

TEST_F(WeeklyScheduleTest, NoSlipsAtAllLeaveAnEmptyGrid) {
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(Row(1), emptyRow);
}

TEST_F(WeeklyScheduleTest, DeliveriesStandInTheOrderOfDateThenTime) {
    StoreSlip({.number = u"1"_s, .time = u"06:45pm"_s, .date = u"3/16/2026"_s});
    StoreSlip({.number = u"2"_s, .time = u"07:00am"_s, .date = u"4/8/2026"_s});
    StoreSlip({.number = u"3"_s, .time = u"05:00pm"_s, .date = u"3/16/2026"_s});
    StoreSlip({.number = u"4"_s, .time = u"08:00am"_s, .date = u"3/16/2026"_s});
    StoreSlip({.number = u"5"_s, .time = u"01:00pm"_s, .date = u"3/10/2026"_s});
    StoreSlip({.number = u"6"_s, .time = u"07.15am"_s, .date = u"3/16/2026"_s});
    StoreSlip({.number = u"7"_s, .time = u"10:30am"_s, .date = u"3/16/2026"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), (QStringList{u"5"_s, u"6"_s, u"4"_s, u"7"_s, u"3"_s, u"1"_s, u"2"_s}));
    EXPECT_EQ(Column(WeeklyColumn::Entry),
              (QStringList{u"5"_s, u"6"_s, u"4"_s, u"7"_s, u"3"_s, u"1"_s, u"2"_s}));
}

TEST_F(WeeklyScheduleTest, DeliveriesOfOneSlotKeepTheOrderOfTheirFiles) {
    for (const char* number : {"12", "5", "30"})
        StoreSlip({.number = QString::fromLatin1(number)});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), (QStringList{u"12"_s, u"30"_s, u"5"_s}));
}

TEST_F(WeeklyScheduleTest, AcrossNewYearAnEarlyDayOfTheLaterYearStandsAheadOfALateOneOfTheEarlier) {
    // Day 200 of 2026, days 5 and 200 of 2027, day 99 of 2026.
    StoreSlip({.number = u"1"_s, .date = u"7/19/2026"_s});
    StoreSlip({.number = u"2"_s, .date = u"1/5/2027"_s});
    StoreSlip({.number = u"3"_s, .date = u"7/19/2027"_s});
    StoreSlip({.number = u"4"_s, .date = u"4/9/2026"_s});
    OpenRange({2026, 3, 9}, {2027, 12, 31});
    EXPECT_EQ(Column(WeeklyColumn::DateSortKey),
              (QStringList{u"20275"_s, u"202699"_s, u"2026200"_s, u"2027200"_s}));
    EXPECT_EQ(Numbers(), (QStringList{u"2"_s, u"4"_s, u"1"_s, u"3"_s}));
}

TEST_F(WeeklyScheduleTest, TimeOutsideTheDeliveryDayStandsFirst) {
    StoreSlip({.number = u"1"_s, .time = u"07:00am"_s});
    StoreSlip({.number = u"2"_s, .time = u"12:00pm"_s});
    StoreSlip({.number = u"3"_s, .time = u"noon"_s});
    StoreSlip({.number = u"4"_s, .time = {}});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(Column(WeeklyColumn::TimeSortKey),
              (QStringList{u"00pm"_s, u"n"_s, QString(), u"100am"_s}));
}

TEST_F(WeeklyScheduleTest, LongRangeShowsEveryDelivery) {
    for (int i = 0; i < 400; ++i)
        StoreSlip({.number = QString::number(1000 + i),
                   .date = QDate(2026, 3, 9).addDays(i % 30).toString(u"M/d/yyyy"_s)});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(schedule.Deliveries(), 400);
    EXPECT_EQ(schedule.fgWeekly.Rows(), 401);
    EXPECT_EQ(schedule.fgWeekly.CurrentRow(), 1);
}

TEST_F(WeeklyScheduleTest, FilterByVehicleCountsThatVehicleOnly) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van 2"_s});
    StoreSlip({.number = u"3"_s, .vehicle = u"Van 22"_s});
    StoreSlip({.number = u"4"_s, .vehicle = u"van 2"_s});
    Open();
    schedule.ckVehicle = true;
    schedule.ChooseVehicle(u"Van 2"_s);
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), QStringList{u"2"_s});
}

TEST_F(WeeklyScheduleTest, ChosenVehicleWithoutTheTickCountsForNothing) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van 2"_s});
    Open();
    schedule.ChooseVehicle(u"Van 2"_s);
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s}));
}

TEST_F(WeeklyScheduleTest, FilterWithNoVehicleChosenCountsDeliveriesWithoutOne) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = {}});
    Open();
    schedule.ckVehicle = true;
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), QStringList{u"2"_s});
}

TEST_F(WeeklyScheduleTest, ChoosingAVehicleClearsTheGridAndWhatWasPicked) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChooseVehicle(u"Flatbed Truck"_s);
    EXPECT_EQ(schedule.fgWeekly.Rows(), 2);
    EXPECT_EQ(Row(1), emptyRow);
    EXPECT_FALSE(schedule.IsLoaded);
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, SlipWhoseDateIsNoDateStopsTheLoadWhateverItsVehicle) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"77"_s, .date = u"soon"_s, .vehicle = u"Van 2"_s});
    Open();
    schedule.ckVehicle = true;
    schedule.lstVehicles = u"Flatbed Truck"_s;
    const RuntimeFailure failure = FailureOf([&] { schedule.LoadGrid(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(),
              u"The text \"soon\" is not a date (the delivery date of slip 77)."_s);
}

TEST_F(WeeklyScheduleTest, DateOfAnotherRegionIsNoDate) {
    UseLocale("de_DE.UTF-8");
    StoreSlip({.number = u"1"_s, .date = u"3/16/2026"_s});
    Open();
    EXPECT_EQ(FailureOf([&] { schedule.LoadGrid(); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(WeeklyScheduleTest, PresetsReachFromTodayByCalendarAddition) {
    struct Step {
        QDate today;
        Preset preset;
        QDate ending;
    };
    const Step steps[] = {
        {{2026, 3, 9}, Preset::Today, {2026, 3, 9}},
        {{2026, 3, 9}, Preset::NextMonth, {2026, 4, 9}},
        {{2026, 3, 9}, Preset::NextQuarter, {2026, 6, 9}},
        {{2026, 3, 9}, Preset::NextYear, {2027, 3, 9}},
        {{2026, 1, 31}, Preset::NextMonth, {2026, 2, 28}},
        {{2028, 1, 31}, Preset::NextMonth, {2028, 2, 29}},
        {{2026, 1, 31}, Preset::NextQuarter, {2026, 4, 30}},
        {{2026, 11, 30}, Preset::NextQuarter, {2027, 2, 28}},
        {{2026, 12, 31}, Preset::NextMonth, {2027, 1, 31}},
        {{2028, 2, 29}, Preset::NextYear, {2029, 2, 28}},
        {{2027, 2, 28}, Preset::NextYear, {2028, 2, 28}},
    };
    Open();
    for (const Step& step : steps) {
        clock.Date = step.today;
        schedule.ApplyPreset(step.preset);
        EXPECT_EQ(schedule.DTStarting, step.today);
        EXPECT_EQ(schedule.DTEnding, step.ending);
    }
}

TEST_F(WeeklyScheduleTest, LoadOnTheLastOfJanuaryEndsOnTheLastOfFebruary) {
    clock.Date = {2026, 1, 31};
    Open();
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 1, 31));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 2, 28));
}

TEST_F(WeeklyScheduleTest, PresetBeyondTheCalendarsEndIsAnOverflow) {
    clock.Date = {9999, 11, 15};
    schedule.Load();
    EXPECT_EQ(FailureOf([&] { schedule.ApplyPreset(Preset::NextQuarter); }).Kind(),
              FailureKind::Overflow);
}

TEST_F(WeeklyScheduleTest, PresetLoadsTheGrid) {
    StoreSlip({.number = u"1"_s, .date = u"3/9/2026"_s});
    StoreSlip({.number = u"2"_s, .date = u"3/10/2026"_s});
    StoreSlip({.number = u"3"_s, .date = u"4/10/2026"_s});
    StoreSlip({.number = u"4"_s, .date = u"6/10/2026"_s});
    Open();
    schedule.ApplyPreset(Preset::Today);
    EXPECT_EQ(Numbers(), QStringList{u"1"_s});
    schedule.ApplyPreset(Preset::NextMonth);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s}));
    schedule.ApplyPreset(Preset::NextQuarter);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    schedule.ApplyPreset(Preset::NextYear);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
}

TEST_F(WeeklyScheduleTest, PresetKeepsTheFilterByVehicle) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van 2"_s});
    Open();
    schedule.ckVehicle = true;
    schedule.ChooseVehicle(u"Van 2"_s);
    schedule.ApplyPreset(Preset::NextYear);
    EXPECT_EQ(Numbers(), QStringList{u"2"_s});
}

TEST_F(WeeklyScheduleTest, DateBeforeTodayBecomesTodayWithABeepAndAMessage) {
    Open();
    user.ExpectMessage(u"Your Date Selection was Invalid"_s, u"Invalid Date"_s);
    EXPECT_FALSE(schedule.ChangeStarting({2026, 3, 8}));
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 1);
    user.ExpectMessage(u"Your Date Selection was Invalid"_s, u"Invalid Date"_s);
    EXPECT_FALSE(schedule.ChangeEnding({2025, 12, 31}));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(WeeklyScheduleTest, DateBeforeTodayWithPromptsOffIsCorrectedWithoutAWord) {
    Open();
    office.settings.PromptsOn = false;
    EXPECT_FALSE(schedule.ChangeStarting({2026, 3, 8}));
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(WeeklyScheduleTest, DateBeforeTodayWithAlarmsOffIsToldWithoutABeep) {
    Open();
    office.settings.AlarmOn = false;
    user.ExpectMessage(u"Your Date Selection was Invalid"_s, u"Invalid Date"_s);
    EXPECT_FALSE(schedule.ChangeEnding({2026, 3, 8}));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(WeeklyScheduleTest, TodayAndLaterDatesAreTakenAndLeaveTheGrid) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_TRUE(schedule.ChangeStarting({2026, 3, 9}));
    EXPECT_TRUE(schedule.ChangeStarting({2026, 5, 1}));
    EXPECT_TRUE(schedule.ChangeEnding({2026, 4, 1}));
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 5, 1));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 4, 1));
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(Numbers(), QStringList{u"1"_s});
}

TEST_F(WeeklyScheduleTest, ClickInColumnZeroOfADeliveryPicksIt) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    ExpectNothingPicked();
    schedule.PickRow(1, 0);
    EXPECT_TRUE(schedule.RemoveIsEnabled);
    EXPECT_TRUE(schedule.RescheduleIsEnabled);
}

TEST_F(WeeklyScheduleTest, ClickElsewhereTakesThePickBack) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    const std::pair<int, int> places[] = {{1, 1}, {1, 6}, {0, 0}, {0, 3}};
    for (const auto& [row, column] : places) {
        schedule.PickRow(1, 0);
        schedule.PickRow(row, column);
        EXPECT_FALSE(schedule.RemoveIsEnabled) << row << ',' << column;
        EXPECT_FALSE(schedule.RescheduleIsEnabled) << row << ',' << column;
    }
}

TEST_F(WeeklyScheduleTest, LoadingTheGridTakesThePickBack) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.LoadGrid();
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, NoToTheFirstQuestionLeavesTheDeliveryAndClosesTheButton) {
    StoreSlip({.number = u"20260014"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    const auto before = folder.Contents();
    user.ExpectQuestion(FirstQuestion(u"20260014"_s), confirmTitle, Answer::No);
    schedule.RemoveDelivery();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_FALSE(schedule.RemoveIsEnabled);
    EXPECT_TRUE(schedule.RescheduleIsEnabled);
    EXPECT_EQ(Numbers(), QStringList{u"20260014"_s});
}

TEST_F(WeeklyScheduleTest, NoToTheSecondQuestionLeavesTheDeliveryToo) {
    StoreSlip({.number = u"20260014"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    const auto before = folder.Contents();
    user.ExpectQuestion(FirstQuestion(u"20260014"_s), confirmTitle, Answer::Yes);
    user.ExpectQuestion(sure, confirmTitle, Answer::No);
    schedule.RemoveDelivery();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_FALSE(schedule.RemoveIsEnabled);
}

TEST_F(WeeklyScheduleTest, OneTimeDeliveryIsDeletedAndTheGridLoadedAnew) {
    office.settings.ckDelete = 1;
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .time = u"07:00am"_s, .recurring = u"False"_s, .frequency = {}});
    StoreSlip({.number = u"3"_s});
    Open();
    schedule.LoadGrid();
    EXPECT_EQ(Numbers(), (QStringList{u"2"_s, u"1"_s, u"3"_s}));
    auto expected = folder.Contents();
    expected.erase(HeaderName(u"2"_s));
    expected.erase(ItemName(u"2"_s));
    Pick(1);
    ExpectBothQuestions(u"2"_s);
    user.ExpectMessage(u"Delivery Slip 2 scheduled for 3/16/2026 has been Deleted"_s);
    schedule.RemoveDelivery();
    EXPECT_EQ(folder.Contents(), expected);
    EXPECT_EQ(Numbers(), (QStringList{u"1"_s, u"3"_s}));
    EXPECT_EQ(Column(WeeklyColumn::Entry), (QStringList{u"1"_s, u"2"_s}));
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, OneTimeDeliveryStaysAfterBothQuestionsWhenDeletionIsOff) {
    office.settings.ckDelete = 0;
    StoreSlip({.number = u"1"_s, .recurring = u"False"_s, .frequency = {}});
    Open();
    schedule.LoadGrid();
    const auto before = folder.Contents();
    Pick(1);
    ExpectBothQuestions(u"1"_s);
    schedule.RemoveDelivery();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Numbers(), QStringList{u"1"_s});
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, RecurringDeliveryIsDeletedOnYesWhateverTheSetting) {
    office.settings.ckDelete = 0;
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    ExpectBothQuestions(u"1"_s);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 1 scheduled for 3/16/2026 has been Deleted"_s);
    schedule.RemoveDelivery();
    EXPECT_FALSE(folder.Has(HeaderName(u"1"_s)));
    EXPECT_FALSE(folder.Has(ItemName(u"1"_s)));
    EXPECT_EQ(Row(1), emptyRow);
    EXPECT_TRUE(schedule.IsLoaded);
}

TEST_F(WeeklyScheduleTest, RecurringDeliveryComesBackRescheduledOnNo) {
    folder.Write(HeaderName(u"1"_s), SlipHeaderBytes("1", "3/16/2026", "True", "0000001"));
    Open();
    schedule.LoadGrid();
    auto expected = folder.Contents();
    // A week on.
    expected[HeaderName(u"1"_s)] = SlipHeaderBytes("1", "3/23/2026", "True", "0000001");
    Pick(1);
    ExpectBothQuestions(u"1"_s);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::No);
    user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    schedule.RemoveDelivery();
    EXPECT_EQ(folder.Contents(), expected);
    EXPECT_EQ(Column(WeeklyColumn::DeliveryDate), QStringList{u"3/23/2026"_s});
}

TEST_F(WeeklyScheduleTest, RecurringDeliveryMovedOutOfTheRangeLeavesTheGrid) {
    StoreSlip({.number = u"1"_s, .frequency = u"0000006"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    ExpectBothQuestions(u"1"_s);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::No);
    user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    schedule.RemoveDelivery();
    EXPECT_EQ(Row(1), emptyRow);
}

TEST_F(WeeklyScheduleTest, RemovalKeepsTheRange) {
    office.settings.ckDelete = 1;
    StoreSlip({.number = u"1"_s, .recurring = u"False"_s});
    OpenRange({2026, 3, 16}, {2026, 8, 1});
    Pick(1);
    ExpectBothQuestions(u"1"_s);
    user.ExpectMessage(u"Delivery Slip 1 scheduled for 3/16/2026 has been Deleted"_s);
    schedule.RemoveDelivery();
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 3, 16));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 8, 1));
}

TEST_F(WeeklyScheduleTest, RemovalAsksNothingAboutDeliveriesThatArePast) {
    office.settings.ckDelete = 1;
    StoreSlip({.number = u"1"_s, .date = u"3/2/2026"_s});
    StoreSlip({.number = u"2"_s, .recurring = u"False"_s, .frequency = {}});
    Open();
    schedule.LoadGrid();
    auto expected = folder.Contents();
    expected.erase(HeaderName(u"2"_s));
    expected.erase(ItemName(u"2"_s));
    Pick(1);
    ExpectBothQuestions(u"2"_s);
    user.ExpectMessage(u"Delivery Slip 2 scheduled for 3/16/2026 has been Deleted"_s);
    schedule.RemoveDelivery();
    EXPECT_EQ(folder.Contents(), expected);
    EXPECT_EQ(office.slips.Table.Text(SlipLine::Date, 1), u"3/2/2026"_s);
}

TEST_F(WeeklyScheduleTest, RemoveButtonIsClosedWhileItsQuestionsAreOpen) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    std::vector<bool> wasEnabled;
    user.WhileMessageIsOpen = [&] { wasEnabled.push_back(schedule.RemoveIsEnabled); };
    user.ExpectQuestion(FirstQuestion(u"1"_s), confirmTitle, Answer::Yes);
    user.ExpectQuestion(sure, confirmTitle, Answer::No);
    schedule.RemoveDelivery();
    EXPECT_EQ(wasEnabled, (std::vector<bool>{false, false}));
}

TEST_F(WeeklyScheduleTest, RecurringDeliveryWhoseFileHasGoneCannotBeMoved) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    folder.Remove(HeaderName(u"1"_s));
    ExpectBothQuestions(u"1"_s);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::No);
    EXPECT_EQ(FailureOf([&] { schedule.RemoveDelivery(); }).Kind(), FailureKind::FileNotFound);
}

TEST_F(WeeklyScheduleTest, PanelOpensWithWhatTheRowHolds) {
    StoreSlip({.number = u"1"_s, .time = u"07:00am"_s});
    StoreSlip({.number = u"2"_s,
               .customer = u"Baker, Ann"_s,
               .time = u"05:00pm"_s,
               .date = u"3/20/2026"_s,
               .vehicle = u"Van 2"_s,
               .account = u"4472"_s});
    Open();
    schedule.LoadGrid();
    Pick(2);
    schedule.OpenReschedule();
    const ReschedulePanel& panel = schedule.fraReschedule;
    EXPECT_TRUE(panel.IsShown);
    EXPECT_EQ(panel.lblDelivery, u"2"_s);
    EXPECT_EQ(panel.lblAccount, u"4472"_s);
    EXPECT_EQ(panel.lblAccountName, u"Baker, Ann"_s);
    EXPECT_EQ(panel.dtReschedule, QDate(2026, 3, 20));
    EXPECT_EQ(panel.lstTime, u"05:00pm"_s);
    EXPECT_EQ(panel.lstRescheduleVehicles, u"Van 2"_s);
    EXPECT_EQ(panel.lblVehicle, u"Van 2"_s);
}

TEST_F(WeeklyScheduleTest, PanelsDateIsTodayAtTheEarliest) {
    StoreSlip({.number = u"1"_s, .date = u"3/9/2026"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    clock.Date = {2026, 3, 11};
    schedule.OpenReschedule();
    EXPECT_EQ(schedule.fraReschedule.dtReschedule, QDate(2026, 3, 11));
    schedule.ChangeRescheduleDate({2026, 3, 10});
    EXPECT_EQ(schedule.fraReschedule.dtReschedule, QDate(2026, 3, 11));
    schedule.ChangeRescheduleDate({2026, 3, 12});
    EXPECT_EQ(schedule.fraReschedule.dtReschedule, QDate(2026, 3, 12));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(WeeklyScheduleTest, SavedDeliveryHasItsNewDateOnDiskButNeitherTimeNorVehicle) {
    folder.Write(HeaderName(u"1"_s), SlipHeaderBytes("1", "3/16/2026", "True", "0000001"));
    folder.Write(HeaderName(u"2"_s), SlipHeaderBytes("2", "3/17/2026"));
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    schedule.fraReschedule.lstTime = u"05:00pm"_s;
    schedule.fraReschedule.lstRescheduleVehicles = u"Van 2"_s;
    auto expected = folder.Contents();
    expected[HeaderName(u"1"_s)] =
        "1\r\n3/20/2026\r\n08:30am\r\nTrue\r\n0000001\r\nFlatbed Truck\r\n4471\r\n"
        "Corner Grocery\r\nPrepared 3/9/2026\r\nBack door\r\n\"Corner Grocery\"\r\n"
        "\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62704\"\r\n"
        "\"Corner Grocery, store 2\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n\"Springfield\"\r\n"
        "\"IL\"\r\n\"62705\"\r\n";
    schedule.SaveDelivery();
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(WeeklyScheduleTest, GermanDeliveryIsSavedInTheGermanForm) {
    UseLocale("de_DE.UTF-8");
    folder.Write(HeaderName(u"1"_s), SlipHeaderBytes("1", "16.03.2026"));
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 4, 1});
    auto expected = folder.Contents();
    expected[HeaderName(u"1"_s)] = SlipHeaderBytes("1", "01.04.2026");
    schedule.SaveDelivery();
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(WeeklyScheduleTest, SaveKeepsEveryByteOfTheOtherLines) {
    const QByteArray odd =
        "1\r\n3/16/2026\r\n07:15 am \r\nTrue\r\n\r\n Caf\xe9 van, 2\r\n\r\n"
        "\x80uro \"Caf\xe9\"\r\n\x93quoted\x94\r\n\r\n\"A, B\"\r\n\"\"\r\n\"\"\r\n"
        "\"\"\r\n\"\"\r\n\"\"\r\nnot quoted\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
        "\"end \"\r\n";
    folder.Write(HeaderName(u"1"_s), odd);
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    schedule.SaveDelivery();
    EXPECT_EQ(folder.Read(HeaderName(u"1"_s)), QByteArray(odd).replace("3/16/2026", "3/20/2026"));
}

TEST_F(WeeklyScheduleTest, SaveRunsTheLoadWorkAgain) {
    StoreSlip({.number = u"1"_s});
    OpenRange({2026, 3, 10}, {2026, 8, 1});
    schedule.ckVehicle = true;
    schedule.lstVehicles = u"Flatbed Truck"_s;
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    schedule.SaveDelivery();
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 3, 9));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 4, 9));
    EXPECT_FALSE(schedule.ckVehicle);
    EXPECT_EQ(Row(1), emptyRow);
    EXPECT_FALSE(schedule.IsLoaded);
    EXPECT_EQ(office.slips.Table.Text(SlipLine::Date, 1), u"3/20/2026"_s);
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, SaveAsksNothingAboutDeliveriesThatArePast) {
    folder.Write(HeaderName(u"1"_s), SlipHeaderBytes("1", "3/2/2026", "True", "0000001"));
    folder.Write(HeaderName(u"2"_s), SlipHeaderBytes("2", "3/16/2026"));
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    auto expected = folder.Contents();
    expected[HeaderName(u"2"_s)] = SlipHeaderBytes("2", "3/20/2026");
    schedule.SaveDelivery();
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(WeeklyScheduleTest, NextLoadAfterASaveShowsTheStoredTimeAndVehicle) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    schedule.fraReschedule.lstTime = u"05:00pm"_s;
    schedule.fraReschedule.lstRescheduleVehicles = u"Van 2"_s;
    schedule.SaveDelivery();
    schedule.LoadGrid();
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::DeliveryDate), u"3/20/2026"_s);
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::Time), u"08:30am"_s);
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::Vehicle), u"Flatbed Truck"_s);
}

TEST_F(WeeklyScheduleTest, SlotThatIsTakenRefusesNothing) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .date = u"3/20/2026"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    schedule.SaveDelivery();
    EXPECT_EQ(office.slips.Table.Text(SlipLine::Date, 1), u"3/20/2026"_s);
}

TEST_F(WeeklyScheduleTest, SaveMovesADeliveryToANonWorkDayAndHolidayAsItIsTold) {
    folder.Write(u"Holidays.txt"_s, "#2026-03-21#\r\n");
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    // A Saturday.
    schedule.ChangeRescheduleDate({2026, 3, 21});
    schedule.SaveDelivery();
    EXPECT_EQ(office.slips.Table.Text(SlipLine::Date, 1), u"3/21/2026"_s);
}

TEST_F(WeeklyScheduleTest, SaveWithNothingChangedWritesTheSameBytesAnew) {
    folder.Write(HeaderName(u"1"_s), SlipHeaderBytes("1", "3/16/2026"));
    Open();
    schedule.LoadGrid();
    const auto before = folder.Contents();
    QFile header(folder.PathOf(HeaderName(u"1"_s)));
    ASSERT_TRUE(header.open(QIODevice::ReadWrite));
    const QDateTime longAgo = QDate(2020, 1, 1).startOfDay();
    ASSERT_TRUE(header.setFileTime(longAgo, QFileDevice::FileModificationTime));
    header.close();
    Pick(1);
    schedule.OpenReschedule();
    schedule.SaveDelivery();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_GT(QFileInfo(folder.PathOf(HeaderName(u"1"_s))).lastModified(), longAgo);
}

TEST_F(WeeklyScheduleTest, ClosedPanelLeavesTheDiskAndThePick) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    const auto before = folder.Contents();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    schedule.CloseReschedule();
    EXPECT_FALSE(schedule.fraReschedule.IsShown);
    EXPECT_TRUE(schedule.RescheduleIsEnabled);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(schedule.Cell(1, WeeklyColumn::DeliveryDate), u"3/16/2026"_s);
}

TEST_F(WeeklyScheduleTest, SlipWhoseFileHasGoneCannotBeRescheduled) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    folder.Remove(HeaderName(u"1"_s));
    const RuntimeFailure failure = FailureOf([&] { schedule.SaveDelivery(); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/1.txt"_s));
}

TEST_F(WeeklyScheduleTest, FullDiskLeavesTheSlipAsItWas) {
    folder.Write(HeaderName(u"1"_s), SlipHeaderBytes("1", "3/16/2026"));
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    {
        const FullDisk full(100);
        EXPECT_EQ(FailureOf([&] { schedule.SaveDelivery(); }).Kind(), FailureKind::DiskFull);
    }
    EXPECT_EQ(folder.Read(HeaderName(u"1"_s)), SlipHeaderBytes("1", "3/16/2026"));
}

TEST_F(WeeklyScheduleTest, OtherSlipsDateThatIsNoDateStopsTheSlotTestBeforeAnythingIsWritten) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    StoreSlip({.number = u"0"_s, .date = u"soon"_s});
    office.slips.LoadSlips(false);
    Pick(1);
    schedule.OpenReschedule();
    schedule.ChangeRescheduleDate({2026, 3, 20});
    const auto before = folder.Contents();
    EXPECT_EQ(FailureOf([&] { schedule.SaveDelivery(); }).Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(WeeklyScheduleTest, ComingBackShowsTheSlipsAsTheyAreNow) {
    for (const char* number : {"1", "2", "3"})
        StoreSlip({.number = QString::fromLatin1(number)});
    OpenRange({2026, 3, 16}, {2026, 3, 16});
    Pick(2);
    office.disk.KillFile(u"/TesselDelivery/Deliveries/1.txt"_s);
    schedule.Refresh();
    EXPECT_EQ(Numbers(), (QStringList{u"2"_s, u"3"_s}));
    EXPECT_EQ(Column(WeeklyColumn::Entry), (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(schedule.DTStarting, QDate(2026, 3, 16));
    EXPECT_EQ(schedule.DTEnding, QDate(2026, 3, 16));
    ExpectNothingPicked();
}

TEST_F(WeeklyScheduleTest, ComingBackAsksNothingAboutDeliveriesThatArePast) {
    StoreSlip({.number = u"1"_s, .date = u"3/2/2026"_s});
    Open();
    schedule.LoadGrid();
    const auto before = folder.Contents();
    schedule.Refresh();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(WeeklyScheduleTest, ComingBackClosesThePanelOfADeliveryThatWasBeingMoved) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.LoadGrid();
    Pick(1);
    schedule.OpenReschedule();
    schedule.Refresh();
    ExpectNothingPicked();
    EXPECT_EQ(Numbers(), QStringList{u"1"_s});
}

TEST_F(WeeklyScheduleTest, ComingBackToAGridThatWasNotLoadedLeavesItEmpty) {
    StoreSlip({.number = u"1"_s});
    Open();
    schedule.Refresh();
    EXPECT_EQ(Row(1), emptyRow);
    EXPECT_FALSE(schedule.IsLoaded);
}
