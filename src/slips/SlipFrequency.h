#pragma once

#include <QDate>
#include <QString>

/// The frequency code on line 5 of a slip: seven characters. Seven fixed codes, "0000000" to
/// "0000006", stand for steps on the calendar; any other code has a "1" for each delivery day of
/// the week, Sunday first. The fixed codes are looked at first, so a ticked Saturday alone, which
/// gives "0000001", is Weekly.

/// "One Time" for an empty code, "Daily" to "Annually" for the fixed ones, else "Multiple Days".
QString FrequencyLabel(const QString& code);

/// The next occurrence after `date`. A pattern of weekdays starts its walk at `today`, whatever the
/// date, and today itself can be the answer. A code without any "1" runs into the end of the
/// calendar (see DaysLater).
QDate NextOccurrence(QDate date, const QString& code, QDate today);

/// The weekday correction of a step that lands on another weekday. The two offsets do not lead back
/// to the old weekday in general: together with the move to the next work day they keep a Monday
/// delivery of a Monday-to-Friday business on Mondays.
QDate AdjustToSameWeekday(QDate oldDate, QDate newDate);
