#pragma once

#include "platform/Clock.h"
#include "platform/Operator.h"
#include "store/BasicDiskRoutines.h"
#include "store/FixedRecord.h"

#include <QDate>
#include <QString>

#include <algorithm>
#include <array>

/// Places in the array DTPicker1.
enum class RangeBound { Start = 0, End = 1 };

/// Places in the array cmdIncome.
enum class RangePreset { LastMonth = 0, MonthToDate = 1, YearToDate = 2, Eternity = 3 };

/// What a delete by range has come to: nothing was deleted, records were, or no record is left and
/// the file has gone.
enum class RangeDeletion { None, Done, NothingLeft };

/// What the three reports on posted invoices have in common: a range of dates with its presets and
/// checks, and the delete of the records in that range.
class ReportFrame {
public:
    virtual ~ReportFrame() = default;
    ReportFrame(const ReportFrame&) = delete;
    ReportFrame& operator=(const ReportFrame&) = delete;

    /// The dates that the pickers show. Loading and deleting go by them.
    std::array<QDate, 2> DTPicker1;
    /// The range as it was last found good; a date that is refused leaves it as it was.
    QDate RangeStart;
    QDate RangeEnd;

    /// What the screen runs each time it is shown, and again after a delete.
    virtual void Open() { LoadDefaultRange(); }
    void LoadDefaultRange();
    /// Sets the range and loads the grid; last month loads it twice.
    void ApplyPreset(RangePreset preset);
    /// The operator picks a date. The grid stays as it is.
    void PickDate(RangeBound bound, QDate date);
    void CheckDateChange(RangeBound bound);
    /// Keeps the start from being later than the end.
    void CheckRange();

    virtual void LoadGrid() = 0;

protected:
    ReportFrame(BasicDiskRoutines& diskRoutines, const Clock& machineClock, Operator& person);

    /// The start of the range that the screen opens with.
    virtual QDate DefaultStart() const;

    QDate& Picked(RangeBound bound) { return DTPicker1[size_t(bound)]; }
    QDate Picked(RangeBound bound) const { return DTPicker1[size_t(bound)]; }
    /// The rows of a grid with so many records: below the heading one row always stays.
    static int RowsFor(int records) { return std::max(records, 1) + 1; }
    QString StartText() const;
    QString EndText() const;
    /// Both bounds belong to the range. No valid date, as a damaged record may hold, lies in none.
    bool IsInRange(QDate date) const;

    /// The two questions in front of every delete by range.
    bool MayDelete(const QString& text, const QString& title);

    /// Rewrites the file, and its copy in Backup, without the records in the range; returns how
    /// many stay. Between the delete of the old file and the rename of the new one there is no
    /// copy. What an earlier TemporaryFile.txt holds beyond the records that stay becomes part of
    /// the file. `dateOf` gives the date of a record and its number; more than 32,767 records are
    /// an overflow.
    template <typename Record, typename DateOf>
    int RemoveRange(const QString& name, DateOf&& dateOf) {
        const BusyPointer busy(user);
        const qint16 count = disk.RecordCount(name, sizeof(Record));
        disk.OpenRandom(name, sizeof(Record));
        disk.OpenRandomSecond(temporaryFile, sizeof(Record));
        int kept = 0;
        for (int number = 1; number <= count; ++number) {
            const auto record = ReadRecord<Record>(disk, disk.DiskFile, number);
            if (!IsInRange(dateOf(record, number)))
                WriteRecord(disk, disk.DiskFile2, ++kept, record);
        }
        disk.CloseAllFiles();
        disk.ReplaceFromTemporary(name);
        disk.CopyDataFile(name, QStringLiteral("/Backup") + name);
        return kept;
    }

    /// The delete by range that looks for the file first and leaves an empty one behind when no
    /// record stays.
    template <typename Record, typename DateOf>
    RangeDeletion DeleteRangeOf(const QString& name, const QString& text, const QString& title,
                                DateOf&& dateOf) {
        if (!disk.FileExists(name))
            return RangeDeletion::None;
        disk.DeleteWithBackup(temporaryFile);
        if (!MayDelete(text, title))
            return RangeDeletion::None;
        RemoveRange<Record>(name, dateOf);
        // Normally finds nothing: the file has been renamed.
        disk.DeleteWithBackup(temporaryFile);
        Open();
        return RangeDeletion::Done;
    }

    BasicDiskRoutines& disk;
    const Clock& clock;
    Operator& user;

private:
    void TakeToday();
    void TakeFirstDay(int month, int year);
    void TakeMonthToDate();
    void TakeLastMonth();

    static const QString temporaryFile;
};
