#include "setup/HolidayList.h"

#include "platform/RuntimeFailure.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString holidaysFile = u"/Holidays.txt"_s;
const QString timeForm = u"HH:mm:ss"_s;

QDateTime Midnight(QDate date) {
    return {date, QTime(0, 0), Qt::UTC};
}

/// The short date text, with the time of day only if the value carries one. The program writes
/// none; a file may hold one, and it must not be lost: such an entry is no holiday of that day.
QString EntryText(const QDateTime& value) {
    const QString day = ShortDateText(value.date());
    return value == Midnight(value.date()) ? day : day + u' ' + value.time().toString(timeForm);
}

QDateTime EntryDate(const QString& entry) {
    const QString where = u"the holidays list"_s;
    if (IsDate(entry))
        return Midnight(ToDate(entry, where));
    const qsizetype dayLength = entry.size() - timeForm.size();
    return {ToDate(entry.left(dayLength), where), QTime::fromString(entry.mid(dayLength), timeForm),
            Qt::UTC};
}

/// The count of the entries looked at has eight bits.
void CountOn(quint8& count) {
    if (count == std::numeric_limits<quint8>::max())
        throw RuntimeFailure(
            FailureKind::Overflow,
            u"Looking for a date in the holidays list failed: it holds more than 255 dates."_s);
    ++count;
}

} // namespace

HolidayList::HolidayList(BasicDiskRoutines& diskRoutines, const Clock& machineClock,
                         Operator& person)
    : disk(diskRoutines), clock(machineClock), user(person) {}

void HolidayList::Open() {
    lstHolidays.setStringList({});
    if (disk.FileExists(holidaysFile))
        LoadHolidays();
    WriteHolidays();
}

void HolidayList::LoadHolidays() {
    QStringList entries;
    disk.OpenForInput(holidaysFile);
    TextReader reader(disk);
    while (!reader.AtEnd()) {
        const QDateTime value = reader.Date();
        if (value.date() >= clock.Today())
            entries += EntryText(value);
    }
    disk.CloseAllFiles();
    lstHolidays.setStringList(entries);
}

void HolidayList::WriteHolidays() {
    QList<RecordLine> lines;
    for (const QString& entry : lstHolidays.stringList())
        lines += RecordLine().Date(EntryDate(entry));
    RewriteFile(disk, holidaysFile, lines);
}

bool HolidayList::IsInList(QDate date) {
    bool isInList = false;
    quint8 count = 0;
    // The search goes on behind a match, so a date that stands in the file twice beeps twice.
    for (const QString& entry : lstHolidays.stringList()) {
        if (EntryDate(entry) == Midnight(date)) {
            user.Beep();
            isInList = true;
        }
        CountOn(count);
    }
    return isInList;
}

void HolidayList::MonthView1_DateClick(QDate date) {
    if (date < clock.Today())
        user.Beep();
    else if (!IsInList(date))
        Add(ShortDateText(date));
}

void HolidayList::Add(const QString& entry) {
    const int row = lstHolidays.rowCount();
    lstHolidays.insertRow(row);
    lstHolidays.setData(lstHolidays.index(row), entry);
}

void HolidayList::Save() {
    WriteHolidays();
    user.MsgBox(u"The Holiday List has been Saved"_s);
}

void HolidayList::Redo() {
    if (user.MsgBox(u"This will DELETE all Holidays"_s, Buttons::YesNo, u"Clear Holiday List"_s) !=
        Answer::Yes)
        return;
    lstHolidays.setStringList({});
    disk.DeleteWithBackup(holidaysFile);
}

QModelIndex HolidayList::EntryOf(QDate date) const {
    const qsizetype row = lstHolidays.stringList().indexOf(ShortDateText(date));
    return lstHolidays.index(int(row));
}

QList<QDate> HolidayList::Days() const {
    QList<QDate> days;
    for (const QString& entry : lstHolidays.stringList()) {
        if (IsDate(entry))
            days += ToDate(entry);
    }
    return days;
}
