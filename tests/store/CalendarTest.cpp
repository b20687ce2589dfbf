#include "store/Calendar.h"

#include "platform/RegionalFormats.h"
#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

// In March 2026 the 6th is a Friday, the 7th a Saturday and the 8th a Sunday.
const QDate thursday(2026, 3, 5);
const QDate friday(2026, 3, 6);
const QDate saturday(2026, 3, 7);
const QDate sunday(2026, 3, 8);
const QDate monday(2026, 3, 9);
const QDate tuesday(2026, 3, 10);

QDate Skipped(QDate date, qint16 workWeek) {
    return SkipNonWorkDay(date, workWeek);
}

class CalendarTest : public testing::Test {
protected:
    CalendarTest() {
        RegionalFormats::SetCurrent({QLocale(u"en_US"_s), QLocale(u"en_US"_s)});
        folder.MakeFolder(u"Backup"_s);
    }

    void Holidays(const QByteArray& lines) const { folder.Write(u"Holidays.txt"_s, lines); }

    void ExpectHolidayMessage(const QString& date) {
        user.ExpectMessage(date +
                           u" is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    }

    QDate Next(QDate date) {
        const QDate returned = calendar.NextAvailableWorkDay(date);
        EXPECT_EQ(returned, date);
        return date;
    }

    TestFolder folder;
    ScriptedOperator user;
    BasicDiskRoutines disk{folder.Path()};
    qint16 workWeek = MondayToFriday;
    Calendar calendar{disk, user, workWeek};
};

} // namespace

TEST_F(CalendarTest, WeekdaysRunFromOneForSunday) {
    EXPECT_EQ(WeekdayNumber(sunday), 1);
    EXPECT_EQ(WeekdayNumber(monday), 2);
    EXPECT_EQ(WeekdayNumber(friday), 6);
    EXPECT_EQ(WeekdayNumber(saturday), 7);
    EXPECT_EQ(WeekdayName(1), u"Sunday"_s);
    EXPECT_EQ(WeekdayName(4), u"Wednesday"_s);
    EXPECT_EQ(WeekdayName(7), u"Saturday"_s);
}

TEST_F(CalendarTest, WorkWeekCodesAreTheOnesInTheFiles) {
    EXPECT_EQ(MondayToFriday, 5);
    EXPECT_EQ(MondayToSaturday, 61);
    EXPECT_EQ(SundayToFriday, 62);
    EXPECT_EQ(AllDays, 7);
}

TEST_F(CalendarTest, MondayToFridaySkipsSaturdayAndSunday) {
    EXPECT_EQ(Skipped(saturday, 5), monday);
    EXPECT_EQ(Skipped(sunday, 5), monday);
    EXPECT_EQ(Skipped(friday, 5), friday);
    EXPECT_EQ(Skipped(monday, 5), monday);
}

TEST_F(CalendarTest, MondayToSaturdaySkipsSunday) {
    EXPECT_EQ(Skipped(saturday, 61), saturday);
    EXPECT_EQ(Skipped(sunday, 61), monday);
}

TEST_F(CalendarTest, SundayToFridaySkipsSaturday) {
    EXPECT_EQ(Skipped(saturday, 62), sunday);
    EXPECT_EQ(Skipped(sunday, 62), sunday);
}

TEST_F(CalendarTest, AnyOtherCodeSkipsNothing) {
    for (const qint16 code : {qint16(7), qint16(0), qint16(6), qint16(-1), qint16(60)}) {
        EXPECT_EQ(Skipped(saturday, code), saturday) << code;
        EXPECT_EQ(Skipped(sunday, code), sunday) << code;
    }
}

TEST_F(CalendarTest, SkipChangesTheDateInPlaceAndReturnsIt) {
    QDate date = saturday;
    QDate& returned = SkipNonWorkDay(date, 5);
    EXPECT_EQ(date, monday);
    EXPECT_EQ(&returned, &date);
}

TEST_F(CalendarTest, WithoutAHolidayFileNoMessageShows) {
    EXPECT_EQ(Next(friday), friday);
    EXPECT_EQ(Next(saturday), monday);
    EXPECT_FALSE(folder.Has(u"Holidays.txt"_s));
}

TEST_F(CalendarTest, DateThatIsNoHolidayGoesThroughTheWeekdaySkip) {
    Holidays("#2026-12-25#\r\n");
    EXPECT_EQ(Next(thursday), thursday);
    EXPECT_EQ(Next(saturday), monday);
}

TEST_F(CalendarTest, EmptyHolidayFileHoldsNoHoliday) {
    Holidays("");
    EXPECT_EQ(Next(saturday), monday);
}

TEST_F(CalendarTest, HolidayIsToldAndADayIsAdded) {
    Holidays("#2026-12-25#\r\n#2026-03-09#\r\n#2026-07-04#\r\n");
    ExpectHolidayMessage(u"3/9/2026"_s);
    EXPECT_EQ(Next(monday), tuesday);
}

TEST_F(CalendarTest, HolidayLineWithATimeOfDayEqualsNoDate) {
    Holidays("#2026-03-09 08:30:00#\r\n#2026-03-10 00:00:01#\r\n");
    EXPECT_EQ(Next(monday), monday);
    EXPECT_EQ(Next(tuesday), tuesday);
}

TEST_F(CalendarTest, HolidayLineWithTheTimeOfMidnightIsTheHoliday) {
    Holidays("#2026-03-09 00:00:00#\r\n");
    ExpectHolidayMessage(u"3/9/2026"_s);
    EXPECT_EQ(Next(monday), tuesday);
}

TEST_F(CalendarTest, HolidayMessageShowsTheRegionalDate) {
    RegionalFormats::SetCurrent({QLocale(u"de_DE"_s), QLocale(u"de_DE"_s)});
    Holidays("#2026-03-09#\r\n");
    ExpectHolidayMessage(u"09.03.2026"_s);
    EXPECT_EQ(Next(monday), tuesday);
}

TEST_F(CalendarTest, HolidayFileComesBackFromBackup) {
    folder.Write(u"Backup/Holidays.txt"_s, "#2026-03-09#\r\n");
    ExpectHolidayMessage(u"3/9/2026"_s);
    EXPECT_EQ(Next(monday), tuesday);
    EXPECT_EQ(folder.Read(u"Holidays.txt"_s), "#2026-03-09#\r\n");
}

TEST_F(CalendarTest, ThreeHolidaysInARowGiveThreeMessages) {
    Holidays("#2026-03-11#\r\n#2026-03-09#\r\n#2026-03-10#\r\n");
    ExpectHolidayMessage(u"3/9/2026"_s);
    ExpectHolidayMessage(u"3/10/2026"_s);
    ExpectHolidayMessage(u"3/11/2026"_s);
    EXPECT_EQ(Next(monday), QDate(2026, 3, 12));
}

TEST_F(CalendarTest, ThreeHolidaysBeforeAWeekendLandBehindIt) {
    Holidays("#2026-03-04#\r\n#2026-03-05#\r\n#2026-03-06#\r\n");
    ExpectHolidayMessage(u"3/4/2026"_s);
    ExpectHolidayMessage(u"3/5/2026"_s);
    ExpectHolidayMessage(u"3/6/2026"_s);
    EXPECT_EQ(Next(QDate(2026, 3, 4)), monday);
}

TEST_F(CalendarTest, FridayHolidayMovesToSaturdayAndThenToMonday) {
    Holidays("#2026-03-06#\r\n");
    ExpectHolidayMessage(u"3/6/2026"_s);
    EXPECT_EQ(Next(friday), monday);
}

TEST_F(CalendarTest, WeekdaySkipMayLandOnAHolidayAndStaysThere) {
    Holidays("#2026-03-09#\r\n");
    EXPECT_EQ(Next(saturday), monday);
}

TEST_F(CalendarTest, SundayHolidayIsNotMetByASaturday) {
    Holidays("#2026-03-08#\r\n");
    EXPECT_EQ(Next(saturday), monday);
}

TEST_F(CalendarTest, WithAllDaysOnlyHolidaysMoveADate) {
    workWeek = AllDays;
    Holidays("#2026-03-07#\r\n");
    EXPECT_EQ(Next(sunday), sunday);
    ExpectHolidayMessage(u"3/7/2026"_s);
    EXPECT_EQ(Next(saturday), sunday);
}

TEST_F(CalendarTest, WorkWeekIsReadAtEachCall) {
    EXPECT_EQ(Next(saturday), monday);
    workWeek = MondayToSaturday;
    EXPECT_EQ(Next(saturday), saturday);
    workWeek = SundayToFriday;
    EXPECT_EQ(Next(saturday), sunday);
}

TEST_F(CalendarTest, EachCheckTakesAFurtherFileNumberUntilTheNextCloseOfAll) {
    Holidays("#2026-03-09#\r\n#2026-03-10#\r\n");
    ExpectHolidayMessage(u"3/9/2026"_s);
    ExpectHolidayMessage(u"3/10/2026"_s);
    Next(monday);
    EXPECT_EQ(disk.DiskFile, 3);
    disk.CloseAllFiles();
    Next(friday);
    EXPECT_EQ(disk.DiskFile, 1);
}

TEST_F(CalendarTest, HolidayFileThatHoldsNoDatesIsAFailure) {
    Holidays("#2026-12-25#\r\nChristmas\r\n");
    QDate date = monday;
    const RuntimeFailure failure = FailureOf([&] { calendar.NextAvailableWorkDay(date); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(), u"Reading Holidays.txt failed: \"Christmas\" is not a date."_s);
    EXPECT_EQ(date, monday);
}

TEST_F(CalendarTest, ReadingStopsAtTheMatchingDate) {
    Holidays("#2026-03-09#\r\nChristmas\r\n");
    QDate date = monday;
    ExpectHolidayMessage(u"3/9/2026"_s);
    EXPECT_EQ(FailureOf([&] { calendar.NextAvailableWorkDay(date); }).Kind(),
              FailureKind::TypeMismatch);
    EXPECT_EQ(date, tuesday);
}

TEST_F(CalendarTest, WalkEndsOnlyWithTheCalendar) {
    workWeek = AllDays;
    EXPECT_EQ(Next(QDate(9999, 12, 31)), QDate(9999, 12, 31));
    Holidays("#9999-12-31#\r\n");
    ExpectHolidayMessage(u"12/31/9999"_s);
    QDate date(9999, 12, 31);
    EXPECT_EQ(FailureOf([&] { calendar.NextAvailableWorkDay(date); }).Kind(),
              FailureKind::Overflow);
}

TEST_F(CalendarTest, DateArithmeticEndsWithTheYear9999) {
    EXPECT_EQ(DaysLater(QDate(9999, 12, 30), 1), QDate(9999, 12, 31));
    EXPECT_EQ(MonthsLater(QDate(9999, 11, 30), 1), QDate(9999, 12, 30));
    for (const RuntimeFailure& failure : {FailureOf([] { DaysLater(QDate(9999, 12, 31), 1); }),
                                          FailureOf([] { MonthsLater(QDate(9999, 12, 1), 1); })}) {
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
        EXPECT_EQ(failure.Sentence(),
                  u"Finding a delivery date failed: the calendar ends on 31 December 9999."_s);
    }
}

TEST_F(CalendarTest, MonthsLaterKeepsTheDayOrFallsToTheLastOfTheMonth) {
    EXPECT_EQ(MonthsLater(QDate(2026, 1, 15), 1), QDate(2026, 2, 15));
    EXPECT_EQ(MonthsLater(QDate(2026, 1, 31), 1), QDate(2026, 2, 28));
    EXPECT_EQ(MonthsLater(QDate(2028, 1, 31), 1), QDate(2028, 2, 29));
    EXPECT_EQ(MonthsLater(QDate(2026, 12, 31), 1), QDate(2027, 1, 31));
}

TEST_F(CalendarTest, StepBeyondTheCalendarEndsTheProgramOnEveryRoad) {
    EXPECT_EQ(LastDateOfCalendar(), QDate(9999, 12, 31));
    EXPECT_THROW(DaysLater(LastDateOfCalendar(), 1), EndingFailure);
    EXPECT_THROW(MonthsLater(LastDateOfCalendar(), 1), EndingFailure);
}
