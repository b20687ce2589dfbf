#include "store/DeliveryTimes.h"

#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DeliveryTimesTest, ListHoldsFortyFourQuarterHoursInOrder) {
    DeliveryTimes times;
    times.BuildTimeLists();
    const QStringList expected = {
        u"07:00am"_s, u"07.15am"_s, u"07:30am"_s, u"07:45am"_s, u"08:00am"_s, u"08.15am"_s,
        u"08:30am"_s, u"08:45am"_s, u"09:00am"_s, u"09.15am"_s, u"09:30am"_s, u"09:45am"_s,
        u"10:00am"_s, u"10.15am"_s, u"10:30am"_s, u"10:45am"_s, u"11:00am"_s, u"11.15am"_s,
        u"11:30am"_s, u"11:45am"_s, u"01:00pm"_s, u"01.15pm"_s, u"01:30pm"_s, u"01:45pm"_s,
        u"02:00pm"_s, u"02.15pm"_s, u"02:30pm"_s, u"02:45pm"_s, u"03:00pm"_s, u"03.15pm"_s,
        u"03:30pm"_s, u"03:45pm"_s, u"04:00pm"_s, u"04.15pm"_s, u"04:30pm"_s, u"04:45pm"_s,
        u"05:00pm"_s, u"05.15pm"_s, u"05:30pm"_s, u"05:45pm"_s, u"06:00pm"_s, u"06.15pm"_s,
        u"06:30pm"_s, u"06:45pm"_s};
    EXPECT_EQ(times.stringList(), expected);
    EXPECT_EQ(times.rowCount(), 44);
}

TEST(DeliveryTimesTest, QuarterPastHasAPointAndNoColon) {
    DeliveryTimes times;
    times.BuildTimeLists();
    EXPECT_EQ(times.stringList().at(1), u"07.15am"_s);
    EXPECT_FALSE(times.stringList().contains(u"07:15am"_s));
}

TEST(DeliveryTimesTest, FirstSelectionIsEightInTheMorning) {
    DeliveryTimes times;
    times.BuildTimeLists();
    EXPECT_EQ(times.stringList().at(DeliveryTimes::firstSelection), u"08:00am"_s);
}

TEST(DeliveryTimesTest, BuildingAgainClearsTheListFirst) {
    DeliveryTimes times;
    times.BuildTimeLists();
    times.BuildTimeLists();
    EXPECT_EQ(times.rowCount(), 44);
}

TEST(DeliveryTimesTest, ListIsEmptyUntilItIsBuilt) {
    EXPECT_EQ(DeliveryTimes().rowCount(), 0);
}

TEST(DeliveryTimesTest, SortRankIsTheHoursPlaceInTheDeliveryDay) {
    EXPECT_EQ(TimeSortRank(u"07"_s), u"1"_s);
    EXPECT_EQ(TimeSortRank(u"08"_s), u"2"_s);
    EXPECT_EQ(TimeSortRank(u"09"_s), u"3"_s);
    EXPECT_EQ(TimeSortRank(u"10"_s), u"4"_s);
    EXPECT_EQ(TimeSortRank(u"11"_s), u"5"_s);
    EXPECT_EQ(TimeSortRank(u"01"_s), u"6"_s);
    EXPECT_EQ(TimeSortRank(u"02"_s), u"7"_s);
    EXPECT_EQ(TimeSortRank(u"03"_s), u"8"_s);
    EXPECT_EQ(TimeSortRank(u"04"_s), u"9"_s);
    EXPECT_EQ(TimeSortRank(u"05"_s), u"10"_s);
    EXPECT_EQ(TimeSortRank(u"06"_s), u"11"_s);
}

TEST(DeliveryTimesTest, SortKeyIsTheRankAndTheTimeFromItsFourthCharacter) {
    EXPECT_EQ(TimeSortKey(u"08:30am"_s), u"230am"_s);
    EXPECT_EQ(TimeSortKey(u"07.15am"_s), u"115am"_s);
    EXPECT_EQ(TimeSortKey(u"06:45pm"_s), u"1145pm"_s);
    EXPECT_EQ(TimeSortKey(u"12:30pm"_s), u"30pm"_s);
    EXPECT_EQ(TimeSortKey(u"07"_s), u"1"_s);
    EXPECT_EQ(TimeSortKey({}), QString());
}

TEST(DeliveryTimesTest, SortRankOfAnyOtherTextIsEmpty) {
    for (const QString& hour : {u"12"_s, u""_s, u"7"_s, u"00"_s, u"07:"_s, u" 7"_s, u"ab"_s})
        EXPECT_EQ(TimeSortRank(hour), QString()) << hour.toStdString();
}
