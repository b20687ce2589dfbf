#include "slips/SlipFrequency.h"

#include "support/OfficeTest.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

// March 2026 begins on a Sunday.
const QDate wednesday(2026, 3, 11);

struct FrequencyRow {
    const char* name;
    QString code;
    QString label;
    /// One step from Saturday, 31 January 2026.
    QDate afterEndOfJanuary;
};

void PrintTo(const FrequencyRow& row, std::ostream* out) {
    *out << row.name;
}

class FixedFrequencyTest : public testing::TestWithParam<FrequencyRow> {};

class WeekdayPairTest : public testing::Test {
protected:
    /// The first day of that weekday (1 to 7) in the week of Sunday, 8 March 2026.
    static QDate OldDay(int weekday) { return QDate(2026, 3, 7 + weekday); }
    /// The same in the week of Sunday, 12 April 2026.
    static QDate NewDay(int weekday) { return QDate(2026, 4, 11 + weekday); }
};

} // namespace

TEST_P(FixedFrequencyTest, LabelIsThatOfTheTable) {
    EXPECT_EQ(FrequencyLabel(GetParam().code), GetParam().label);
}

TEST_P(FixedFrequencyTest, StepIsThatOfTheTable) {
    EXPECT_EQ(NextOccurrence(QDate(2026, 1, 31), GetParam().code, wednesday),
              GetParam().afterEndOfJanuary);
}

INSTANTIATE_TEST_SUITE_P(
    FrequencyTable, FixedFrequencyTest,
    testing::Values(FrequencyRow{"Daily", u"0000000"_s, u"Daily"_s, QDate(2026, 2, 1)},
                    FrequencyRow{"Weekly", u"0000001"_s, u"Weekly"_s, QDate(2026, 2, 7)},
                    FrequencyRow{"BiMonthly", u"0000002"_s, u"Bi-Monthly"_s, QDate(2026, 2, 14)},
                    FrequencyRow{"Monthly", u"0000003"_s, u"Monthly"_s, QDate(2026, 2, 28)},
                    FrequencyRow{"Quarterly", u"0000004"_s, u"Quarterly"_s, QDate(2026, 4, 30)},
                    FrequencyRow{"SemiAnnually", u"0000005"_s, u"Semi-Annually"_s,
                                 QDate(2026, 7, 31)},
                    FrequencyRow{"Annually", u"0000006"_s, u"Annually"_s, QDate(2027, 1, 31)}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(SlipFrequencyTest, EmptyCodeIsLabelledOneTime) {
    EXPECT_EQ(FrequencyLabel(QString()), u"One Time"_s);
    EXPECT_EQ(FrequencyLabel(u""_s), u"One Time"_s);
}

TEST(SlipFrequencyTest, EveryOtherCodeIsLabelledMultipleDays) {
    for (const QString& code : {u"0100100"_s, u"0000010"_s, u"1111111"_s, u"0000007"_s, u"000000"_s,
                                u"0000003 "_s, u" 0000003"_s, u"3"_s, u"True"_s, u"False"_s})
        EXPECT_EQ(FrequencyLabel(code), u"Multiple Days"_s) << code.toStdString();
}

TEST(SlipFrequencyTest, SaturdayAloneIsWeekly) {
    EXPECT_EQ(FrequencyLabel(u"0000001"_s), u"Weekly"_s);
    EXPECT_EQ(NextOccurrence(QDate(2026, 3, 10), u"0000001"_s, wednesday), QDate(2026, 3, 17));
}

TEST(SlipFrequencyTest, NoTickedDayIsDaily) {
    EXPECT_EQ(NextOccurrence(QDate(2026, 3, 10), u"0000000"_s, wednesday), QDate(2026, 3, 11));
}

TEST(SlipFrequencyTest, FridayAloneIsAPatternOfWeekdays) {
    EXPECT_EQ(NextOccurrence(QDate(2026, 1, 2), u"0000010"_s, wednesday), QDate(2026, 3, 13));
}

TEST(SlipFrequencyTest, LeapYearGivesJanuaryThe31stTheLeapDay) {
    EXPECT_EQ(NextOccurrence(QDate(2028, 1, 31), u"0000003"_s, wednesday), QDate(2028, 2, 29));
}

TEST(SlipFrequencyTest, YearAfterALeapDayIsTheLastOfFebruary) {
    EXPECT_EQ(NextOccurrence(QDate(2028, 2, 29), u"0000006"_s, wednesday), QDate(2029, 2, 28));
}

TEST(SlipFrequencyTest, PatternWalksFromTodayWhateverTheSlipsDate) {
    for (const QDate date : {QDate(2020, 1, 1), QDate(2026, 3, 11), QDate(2030, 12, 31)})
        EXPECT_EQ(NextOccurrence(date, u"0100100"_s, wednesday), QDate(2026, 3, 12));
}

TEST(SlipFrequencyTest, TodayIsTheAnswerWhenItsWeekdayIsTicked) {
    EXPECT_EQ(NextOccurrence(QDate(2026, 3, 4), u"0001000"_s, wednesday), wednesday);
}

TEST(SlipFrequencyTest, EachPositionIsAWeekdaySundayFirst) {
    const QDate sunday(2026, 3, 8);
    const std::vector<QString> patterns = {u"1000000"_s, u"0100000"_s, u"0010000"_s,
                                           u"0001000"_s, u"0000100"_s, u"0000010"_s};
    for (size_t day = 0; day < patterns.size(); ++day)
        EXPECT_EQ(NextOccurrence(sunday, patterns[day], sunday), QDate(2026, 3, 8 + int(day)));
    // Saturday alone is taken by Weekly; beside another day it is the seventh position.
    EXPECT_EQ(NextOccurrence(sunday, u"1000001"_s, QDate(2026, 3, 9)), QDate(2026, 3, 14));
}

TEST(SlipFrequencyTest, WalkGoesFromSaturdayRoundToSunday) {
    EXPECT_EQ(NextOccurrence(wednesday, u"1000000"_s, wednesday), QDate(2026, 3, 15));
    EXPECT_EQ(NextOccurrence(wednesday, u"0010000"_s, wednesday), QDate(2026, 3, 17));
}

TEST(SlipFrequencyTest, CodeWithoutAOneRunsIntoTheEndOfTheCalendar) {
    for (const QString& code : {u"True"_s, u"False"_s, u"0000007"_s, QString(), u"00000001"_s}) {
        const RuntimeFailure failure =
            FailureOf([&] { NextOccurrence(QDate(2026, 3, 9), code, wednesday); });
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow) << code.toStdString();
        EXPECT_EQ(failure.Sentence(),
                  u"Finding a delivery date failed: the calendar ends on 31 December 9999."_s);
    }
}

TEST(SlipFrequencyTest, StepBeyondTheCalendarsLastDayFails) {
    EXPECT_EQ(NextOccurrence(QDate(9999, 12, 30), u"0000000"_s, wednesday), QDate(9999, 12, 31));
    for (const QString& code : {u"0000000"_s, u"0000001"_s, u"0000003"_s, u"0000006"_s})
        EXPECT_EQ(FailureOf([&] { NextOccurrence(QDate(9999, 12, 31), code, wednesday); }).Kind(),
                  FailureKind::Overflow)
            << code.toStdString();
}

TEST_F(WeekdayPairTest, EqualWeekdaysStay) {
    for (int weekday = 1; weekday <= 7; ++weekday)
        EXPECT_EQ(AdjustToSameWeekday(OldDay(weekday), NewDay(weekday)), NewDay(weekday));
}

TEST_F(WeekdayPairTest, LaterWeekdayMovesBackOneDayMoreThanTheDistance) {
    // One row an old weekday, one column a new one; Sunday first.
    const std::vector<std::vector<int>> offsets = {
        {0, -2, -3, -4, -5, -6, -7}, {0, 0, -2, -3, -4, -5, -6}, {0, 0, 0, -2, -3, -4, -5},
        {0, 0, 0, 0, -2, -3, -4},    {0, 0, 0, 0, 0, -2, -3},    {0, 0, 0, 0, 0, 0, -2}};
    for (int from = 1; from <= 6; ++from) {
        for (int to = from + 1; to <= 7; ++to) {
            const int offset = offsets[size_t(from) - 1][size_t(to) - 1];
            EXPECT_EQ(AdjustToSameWeekday(OldDay(from), NewDay(to)), NewDay(to).addDays(offset))
                << from << " to " << to;
        }
    }
}

TEST_F(WeekdayPairTest, EarlierWeekdayMovesForwardByTheOldWeekdaysNumber) {
    for (int from = 2; from <= 7; ++from) {
        for (int to = 1; to < from; ++to)
            EXPECT_EQ(AdjustToSameWeekday(OldDay(from), NewDay(to)), NewDay(to).addDays(from))
                << from << " to " << to;
    }
}

TEST_F(WeekdayPairTest, MondayToThursdayGivesTheSundayBefore) {
    EXPECT_EQ(AdjustToSameWeekday(QDate(2026, 3, 9), QDate(2026, 4, 9)), QDate(2026, 4, 5));
}

TEST_F(WeekdayPairTest, FridayToTuesdayGivesTheMondayAfter) {
    EXPECT_EQ(AdjustToSameWeekday(QDate(2026, 3, 13), QDate(2026, 4, 14)), QDate(2026, 4, 20));
}
