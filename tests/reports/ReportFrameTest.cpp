#include "reports/ReportFrame.h"

#include "reports/ReportTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString invalid = u"Your Calendar Selection is Invalid"_s;

/// A report that only remembers which ranges it loaded.
class LoadLog : public ReportFrame {
public:
    explicit LoadLog(Office& office)
        : ReportFrame(office.disk, office.machine.clock, office.machine.user) {}

    QStringList Loads;

    void LoadGrid() override { Loads += RangeText(); }
    QString RangeText() const {
        return DTPicker1[0].toString(Qt::ISODate) + u" to "_s + DTPicker1[1].toString(Qt::ISODate);
    }
    QString CheckedText() const {
        return RangeStart.toString(Qt::ISODate) + u" to "_s + RangeEnd.toString(Qt::ISODate);
    }
};

} // namespace

class ReportFrameTest : public OfficeTest {
protected:
    /// The range that a preset leaves on a day, from a start that was picked before; it must be
    /// found good without a word.
    QString RangeOf(RangePreset preset, QDate today, QDate start = {}) {
        clock.Date = today;
        report.LoadDefaultRange();
        if (start.isValid())
            report.PickDate(RangeBound::Start, start);
        report.Loads.clear();
        report.ApplyPreset(preset);
        EXPECT_EQ(report.CheckedText(), report.RangeText());
        EXPECT_EQ(report.Loads.value(report.Loads.size() - 1), report.RangeText());
        EXPECT_EQ(user.Beeps, 0);
        return report.RangeText();
    }

    LoadLog report{office};
};

TEST_F(ReportFrameTest, RangeOpensWithTheMonthToDateAndLoads) {
    report.Open();
    EXPECT_EQ(report.RangeText(), u"2026-03-01 to 2026-03-09"_s);
    EXPECT_EQ(report.CheckedText(), u"2026-03-01 to 2026-03-09"_s);
    EXPECT_EQ(report.Loads, QStringList{u"2026-03-01 to 2026-03-09"_s});
}

TEST_F(ReportFrameTest, OpeningAgainTakesTheRangeBack) {
    report.Open();
    report.PickDate(RangeBound::Start, {2026, 1, 5});
    report.Open();
    EXPECT_EQ(report.RangeText(), u"2026-03-01 to 2026-03-09"_s);
    EXPECT_EQ(report.CheckedText(), u"2026-03-01 to 2026-03-09"_s);
}

TEST_F(ReportFrameTest, LastMonthInJanuaryIsDecemberOfLastYear) {
    for (const int day : {1, 15, 31})
        EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2027, 1, day}), u"2026-12-01 to 2026-12-31"_s);
}

TEST_F(ReportFrameTest, LastMonthOnTheFirstOfMarchInALeapYearEndsOnTheTwentyNinth) {
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2028, 3, 1}), u"2028-02-01 to 2028-02-29"_s);
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2027, 3, 1}), u"2027-02-01 to 2027-02-28"_s);
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2000, 3, 1}), u"2000-02-01 to 2000-02-29"_s);
}

TEST_F(ReportFrameTest, LastMonthOnTheLastOfALongMonthIsTheWholeShortOneBefore) {
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2026, 3, 31}), u"2026-02-01 to 2026-02-28"_s);
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2026, 12, 31}), u"2026-11-01 to 2026-11-30"_s);
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2028, 2, 29}), u"2028-01-01 to 2028-01-31"_s);
}

TEST_F(ReportFrameTest, LastMonthLoadsTheMonthToDateFirst) {
    RangeOf(RangePreset::LastMonth, {2026, 3, 9});
    EXPECT_EQ(report.Loads,
              (QStringList{u"2026-03-01 to 2026-03-09"_s, u"2026-02-01 to 2026-02-28"_s}));
}

TEST_F(ReportFrameTest, OtherPresetsLoadOnce) {
    for (const RangePreset preset :
         {RangePreset::MonthToDate, RangePreset::YearToDate, RangePreset::Eternity}) {
        RangeOf(preset, {2026, 3, 9});
        EXPECT_EQ(report.Loads.size(), 1);
    }
}

TEST_F(ReportFrameTest, MonthToDateBeginsOnTheFirst) {
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2026, 1, 31}), u"2026-01-01 to 2026-01-31"_s);
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2028, 3, 1}), u"2028-03-01 to 2028-03-01"_s);
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2026, 12, 31}), u"2026-12-01 to 2026-12-31"_s);
}

TEST_F(ReportFrameTest, YearToDateBeginsOnNewYear) {
    EXPECT_EQ(RangeOf(RangePreset::YearToDate, {2026, 1, 31}), u"2026-01-01 to 2026-01-31"_s);
    EXPECT_EQ(RangeOf(RangePreset::YearToDate, {2028, 3, 1}), u"2028-01-01 to 2028-03-01"_s);
    EXPECT_EQ(RangeOf(RangePreset::YearToDate, {2026, 12, 31}), u"2026-01-01 to 2026-12-31"_s);
    EXPECT_EQ(RangeOf(RangePreset::YearToDate, {2027, 1, 1}), u"2027-01-01 to 2027-01-01"_s);
}

TEST_F(ReportFrameTest, EternityBeginsWithTheYear2000) {
    EXPECT_EQ(RangeOf(RangePreset::Eternity, {2026, 1, 31}), u"2000-01-01 to 2026-01-31"_s);
    EXPECT_EQ(RangeOf(RangePreset::Eternity, {2028, 2, 29}), u"2000-01-01 to 2028-02-29"_s);
}

TEST_F(ReportFrameTest, PresetsPassOverDaysThatTheirMonthLacks) {
    // The month is set while the picker still stands on the old day.
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2028, 2, 29}, {2028, 1, 31}),
              u"2028-02-01 to 2028-02-29"_s);
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2027, 2, 28}, {2024, 12, 31}),
              u"2027-02-01 to 2027-02-28"_s);
    EXPECT_EQ(RangeOf(RangePreset::YearToDate, {2028, 3, 1}, {2028, 2, 29}),
              u"2028-01-01 to 2028-03-01"_s);
    EXPECT_EQ(RangeOf(RangePreset::Eternity, {2028, 3, 1}, {2028, 2, 29}),
              u"2000-01-01 to 2028-03-01"_s);
    EXPECT_EQ(RangeOf(RangePreset::LastMonth, {2028, 3, 31}, {2028, 1, 31}),
              u"2028-02-01 to 2028-02-29"_s);
}

TEST_F(ReportFrameTest, PresetsPassOverDatesInTheFutureWithoutAWord) {
    // 31 January with the month set to March is 31 March, which is yet to come.
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2026, 3, 1}, {2026, 1, 31}),
              u"2026-03-01 to 2026-03-01"_s);
    EXPECT_EQ(RangeOf(RangePreset::MonthToDate, {2026, 12, 30}, {2026, 10, 31}),
              u"2026-12-01 to 2026-12-30"_s);
}

TEST_F(ReportFrameTest, PresetsOneAfterTheOtherGoByTodayAlone) {
    RangeOf(RangePreset::LastMonth, {2027, 1, 31});
    report.ApplyPreset(RangePreset::LastMonth);
    EXPECT_EQ(report.RangeText(), u"2026-12-01 to 2026-12-31"_s);
    report.ApplyPreset(RangePreset::MonthToDate);
    EXPECT_EQ(report.RangeText(), u"2027-01-01 to 2027-01-31"_s);
}

TEST_F(ReportFrameTest, EndDateTomorrowIsRefusedAndBecomesToday) {
    report.LoadDefaultRange();
    report.PickDate(RangeBound::End, {2026, 3, 4});
    office.settings.AlarmOn = false;
    user.ExpectMessage(invalid);
    report.PickDate(RangeBound::End, {2026, 3, 10});
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(report.RangeText(), u"2026-03-01 to 2026-03-09"_s);
    // The range found good stays as it was.
    EXPECT_EQ(report.CheckedText(), u"2026-03-01 to 2026-03-04"_s);
}

TEST_F(ReportFrameTest, StartDateInTheFutureBecomesTodayWithoutALookAtTheEnd) {
    report.LoadDefaultRange();
    report.PickDate(RangeBound::End, {2026, 3, 4});
    user.ExpectMessage(invalid);
    report.PickDate(RangeBound::Start, {2030, 1, 1});
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(report.RangeText(), u"2026-03-09 to 2026-03-04"_s);
    EXPECT_EQ(report.CheckedText(), u"2026-03-01 to 2026-03-04"_s);
}

TEST_F(ReportFrameTest, TodayIsNoDateInTheFuture) {
    report.LoadDefaultRange();
    report.PickDate(RangeBound::End, {2026, 3, 8});
    report.PickDate(RangeBound::End, {2026, 3, 9});
    report.PickDate(RangeBound::Start, {2026, 3, 9});
    EXPECT_EQ(report.CheckedText(), u"2026-03-09 to 2026-03-09"_s);
}

TEST_F(ReportFrameTest, StartLaterThanTheEndIsRefusedOnceAndBecomesTheEnd) {
    report.LoadDefaultRange();
    report.PickDate(RangeBound::End, {2026, 3, 4});
    user.ExpectMessage(invalid);
    report.PickDate(RangeBound::Start, {2026, 3, 5});
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(report.RangeText(), u"2026-03-04 to 2026-03-04"_s);
    EXPECT_EQ(report.CheckedText(), u"2026-03-04 to 2026-03-04"_s);
}

TEST_F(ReportFrameTest, EndBeforeTheStartTakesTheStartWithIt) {
    report.LoadDefaultRange();
    user.ExpectMessage(invalid);
    report.PickDate(RangeBound::End, {2026, 2, 27});
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(report.RangeText(), u"2026-02-27 to 2026-02-27"_s);
    EXPECT_EQ(report.CheckedText(), u"2026-02-27 to 2026-02-27"_s);
}

TEST_F(ReportFrameTest, EndKeptBehindARefusedDateIsWhatTheStartIsCheckedAgainst) {
    report.LoadDefaultRange();
    report.PickDate(RangeBound::End, {2026, 3, 4});
    user.ExpectMessage(invalid);
    report.PickDate(RangeBound::End, {2026, 3, 10});
    // The picker shows the 9th, and the range still ends on the 4th: no check can mend that.
    user.ExpectMessage(invalid);
    user.ExpectMessage(invalid);
    report.PickDate(RangeBound::Start, {2026, 3, 6});
    EXPECT_EQ(report.RangeText(), u"2026-03-09 to 2026-03-09"_s);
}

TEST_F(ReportFrameTest, PickedDateLoadsNothing) {
    report.LoadDefaultRange();
    report.Loads.clear();
    report.PickDate(RangeBound::Start, {2026, 2, 1});
    report.PickDate(RangeBound::End, {2026, 2, 10});
    EXPECT_EQ(report.Loads, QStringList());
}
