#pragma once

#include "platform/Operator.h"
#include "store/BasicDiskRoutines.h"

#include <QDate>

/// Codes of the work week, as WorkDays.txt and Settings.txt hold them. Any other value means that
/// all seven days are work days.
enum WorkWeekCode : qint16 {
    MondayToFriday = 5,
    MondayToSaturday = 61,
    SundayToFriday = 62,
    AllDays = 7,
};

constexpr int daysOfWeek = 7;
/// 1 for Sunday to 7 for Saturday, as all weekday rules of the program count.
int WeekdayNumber(QDate date);
/// "Sunday" to "Saturday" for 1 to 7.
QString WeekdayName(int weekday);

/// 31 December 9999.
QDate LastDateOfCalendar();
/// The date `days` later. A step beyond the calendar's last date is a failure of kind Overflow that
/// ends the program on every road, even where failures are passed over.
QDate DaysLater(QDate date, int days);
/// The same for calendar months: the day of the month stays, or falls to the target month's last.
QDate MonthsLater(QDate date, int months);

/// Where a series of numbers begins that has none yet: 20260001 in 2026.
qint32 FirstNumberOfYear(QDate today);

/// Moves a date that is no work day forward to one; holidays play no part.
QDate& SkipNonWorkDay(QDate& date, qint16 workWeek);

/// Which dates can take a delivery. A date is never refused, it is pushed forward.
class Calendar {
public:
    /// `workWeek` is read at each call, since the setting may change at any time.
    Calendar(BasicDiskRoutines& diskRoutines, Operator& person, const qint16& workWeek);

    /// Moves the date in place, and returns it. Tells the operator of each holiday passed over,
    /// whatever the prompt setting. Holidays are looked at first and weekdays last, so a date that
    /// the weekday step moves onto a holiday stays there.
    ///
    /// A Holidays.txt that doesn't read as dates is a failure. Uses DiskFile, so no caller may be
    /// reading from it.
    QDate& NextAvailableWorkDay(QDate& date);

private:
    bool IsHoliday(QDate date);

    BasicDiskRoutines& disk;
    Operator& user;
    const qint16& currentWorkWeek;
};
