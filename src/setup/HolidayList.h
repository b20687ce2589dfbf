#pragma once

#include "platform/Clock.h"
#include "platform/Operator.h"
#include "store/BasicDiskRoutines.h"

#include <QDate>
#include <QList>
#include <QStringListModel>

/// The dates on which no delivery may be scheduled, as they are being put together: the working
/// copy of Holidays.txt, which the rule for the next work day reads from the disk each time.
class HolidayList {
public:
    HolidayList(BasicDiskRoutines& diskRoutines, const Clock& machineClock, Operator& person);

    /// The dates as short date text, in the order of the file and then of the clicks.
    QStringListModel lstHolidays;

    /// Takes the dates of Holidays.txt that are not past, in file order, and writes them back at
    /// once: merely looking at the list purges the past ones from the file, and creates an empty
    /// file when there was none. A line that is no date is a failure and leaves the file alone.
    void Open();

    /// Adds a date. One before today, or one that is in the list, is answered by a beep instead,
    /// whatever the alarm setting. With 256 dates or more in the list it is a failure of kind
    /// Overflow.
    void MonthView1_DateClick(QDate date);

    /// Writes Holidays.txt and tells so.
    void Save();
    /// Asks, then empties the list and deletes Holidays.txt at once, without waiting for a save.
    void Redo();

    /// Where a date stands in lstHolidays; nowhere is an index that is not valid.
    QModelIndex EntryOf(QDate date) const;

    /// The days that the list blocks, in its order.
    QList<QDate> Days() const;

private:
    void LoadHolidays();
    void WriteHolidays();
    /// Beeps at each entry that is that date.
    bool IsInList(QDate date);
    void Add(const QString& entry);

    BasicDiskRoutines& disk;
    const Clock& clock;
    Operator& user;
};
