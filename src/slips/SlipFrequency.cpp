#include "slips/SlipFrequency.h"

#include "store/Calendar.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsInQuarter = 3;
constexpr int monthsInYear = 12;

struct FixedFrequency {
    QString code;
    QString label;
    int days;
    int months;
};

const std::array<FixedFrequency, 7>& FixedFrequencies() {
    // "Bi-Monthly" means every two weeks in this business.
    static const std::array<FixedFrequency, 7> frequencies = {{
        {u"0000000"_s, u"Daily"_s, 1, 0},
        {u"0000001"_s, u"Weekly"_s, daysOfWeek, 0},
        {u"0000002"_s, u"Bi-Monthly"_s, 2 * daysOfWeek, 0},
        {u"0000003"_s, u"Monthly"_s, 0, 1},
        {u"0000004"_s, u"Quarterly"_s, 0, monthsInQuarter},
        {u"0000005"_s, u"Semi-Annually"_s, 0, 2 * monthsInQuarter},
        {u"0000006"_s, u"Annually"_s, 0, monthsInYear},
    }};
    return frequencies;
}

const FixedFrequency* FixedFrequencyOf(const QString& code) {
    const auto& all = FixedFrequencies();
    const auto* found = std::find_if(all.begin(), all.end(), [&](const FixedFrequency& frequency) {
        return frequency.code == code;
    });
    return found == all.end() ? nullptr : found;
}

QDate NextTickedWeekday(const QString& code, QDate today) {
    // Without a ticked day the walk stops at nothing but the calendar's end, and so starts there.
    const bool hasTickedDay = QStringView(code).left(daysOfWeek).contains(u'1');
    QDate date = hasTickedDay ? today : LastDateOfCalendar();
    for (int weekday = WeekdayNumber(date);; weekday = weekday % daysOfWeek + 1) {
        if (weekday <= code.size() && code[weekday - 1] == u'1')
            return date;
        date = DaysLater(date, 1);
    }
}

} // namespace

QString FrequencyLabel(const QString& code) {
    if (code.isEmpty())
        return u"One Time"_s;
    const FixedFrequency* fixed = FixedFrequencyOf(code);
    return fixed ? fixed->label : u"Multiple Days"_s;
}

QDate NextOccurrence(QDate date, const QString& code, QDate today) {
    const FixedFrequency* fixed = FixedFrequencyOf(code);
    if (!fixed)
        return NextTickedWeekday(code, today);
    return fixed->days > 0 ? DaysLater(date, fixed->days) : MonthsLater(date, fixed->months);
}

QDate AdjustToSameWeekday(QDate oldDate, QDate newDate) {
    const int oldWeekday = WeekdayNumber(oldDate);
    const int newWeekday = WeekdayNumber(newDate);
    if (newWeekday > oldWeekday)
        return DaysLater(newDate, oldWeekday - newWeekday - 1);
    if (newWeekday < oldWeekday)
        return DaysLater(newDate, oldWeekday);
    return newDate;
}
