#include "store/Calendar.h"

#include "platform/RuntimeFailure.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int sunday = 1;
constexpr int saturday = 7;

QDate WithinCalendar(QDate date) {
    if (!date.isValid() || date > LastDateOfCalendar())
        throw EndingFailure(
            FailureKind::Overflow,
            u"Finding a delivery date failed: the calendar ends on 31 December 9999."_s);
    return date;
}

} // namespace

int WeekdayNumber(QDate date) {
    return date.dayOfWeek() % 7 + 1;
}

QString WeekdayName(int weekday) {
    static const std::array<QString, 7> names = {u"Sunday"_s,    u"Monday"_s,   u"Tuesday"_s,
                                                 u"Wednesday"_s, u"Thursday"_s, u"Friday"_s,
                                                 u"Saturday"_s};
    return names.at(size_t(weekday - 1));
}

QDate LastDateOfCalendar() {
    return {9999, 12, 31};
}

QDate DaysLater(QDate date, int days) {
    return WithinCalendar(date.addDays(days));
}

QDate MonthsLater(QDate date, int months) {
    return WithinCalendar(date.addMonths(months));
}

qint32 FirstNumberOfYear(QDate today) {
    constexpr int numbersInYear = 10'000;
    return today.year() * numbersInYear + 1;
}

QDate& SkipNonWorkDay(QDate& date, qint16 workWeek) {
    switch (workWeek) {
    case MondayToFriday:
        if (WeekdayNumber(date) == saturday)
            date = DaysLater(date, 2);
        if (WeekdayNumber(date) == sunday)
            date = DaysLater(date, 1);
        break;
    case MondayToSaturday:
        if (WeekdayNumber(date) == sunday)
            date = DaysLater(date, 1);
        break;
    case SundayToFriday:
        if (WeekdayNumber(date) == saturday)
            date = DaysLater(date, 1);
        break;
    default:
        break;
    }
    return date;
}

Calendar::Calendar(BasicDiskRoutines& diskRoutines, Operator& person, const qint16& workWeek)
    : disk(diskRoutines), user(person), currentWorkWeek(workWeek) {}

bool Calendar::IsHoliday(QDate date) {
    const QString holidays = u"/Holidays.txt"_s;
    if (!disk.FileExists(holidays))
        return false;
    disk.OpenForInput(holidays);
    TextReader reader(disk);
    const QDateTime midnight(date, QTime(0, 0), Qt::UTC);
    while (!reader.AtEnd()) {
        if (reader.Date() == midnight)
            return true;
    }
    return false;
}

QDate& Calendar::NextAvailableWorkDay(QDate& date) {
    while (IsHoliday(date)) {
        user.MsgBox(ShortDateText(date) +
                    u" is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
        date = DaysLater(date, 1);
    }
    return SkipNonWorkDay(date, currentWorkWeek);
}
