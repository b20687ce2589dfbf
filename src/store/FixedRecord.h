#pragma once

#include "platform/CodePage.h"
#include "store/BasicDiskRoutines.h"
#include "store/Conversions.h"
#include "store/Currency.h"

#include <QDate>
#include <QString>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <type_traits>
#include <vector>

/// The fields of a fixed record. A record is a struct of these and nothing else, so that it is its
/// own bytes on disk: all have alignment 1, and a value-initialised one is all zero bytes.

/// Text in the files' code page, blank-filled on the right, cut at the width on assignment.
template <size_t Width>
struct FixedText {
    std::array<char, Width> bytes;

    FixedText& operator=(const QString& text) {
        std::fill(bytes.begin() + EncodeInto(bytes.data(), Width, text), bytes.end(), ' ');
        return *this;
    }

    /// All characters, blanks and NUL characters included.
    QString Whole() const { return FromCodePage({bytes.data(), qsizetype(Width)}); }
    /// As readers take it: without leading and trailing blanks. A field that was never assigned
    /// holds NUL characters, which are no blanks.
    QString Trimmed() const {
        const char* start = bytes.data();
        const char* end = start + Width;
        while (start < end && *start == ' ')
            ++start;
        while (end > start && end[-1] == ' ')
            --end;
        return FromCodePage({start, end - start});
    }
};

template <typename Integer>
struct LittleInteger {
    std::array<char, sizeof(Integer)> bytes;

    LittleInteger& operator=(Integer value) {
        qToLittleEndian(value, bytes.data());
        return *this;
    }
    Integer Value() const { return qFromLittleEndian<Integer>(bytes.data()); }
};

using LittleInt16 = LittleInteger<qint16>;
using LittleInt32 = LittleInteger<qint32>;

/// A Boolean takes 16 bits; true is -1.
struct LittleBoolean {
    LittleInt16 flag;

    LittleBoolean& operator=(bool value) {
        flag = qint16(value ? -1 : 0);
        return *this;
    }
    bool Value() const { return flag.Value() != 0; }
};

struct LittleCurrency {
    LittleInteger<qint64> count;

    LittleCurrency& operator=(Currency amount) {
        count = amount.TenThousandths();
        return *this;
    }
    Currency Value() const { return Currency::OfTenThousandths(count.Value()); }
};

/// A double that counts days since 30 December 1899; the dates of this program carry no time.
struct LittleDate {
    LittleInteger<quint64> days;

    static QDate Start() { return {1899, 12, 30}; }

    LittleDate& operator=(QDate date) {
        days = std::bit_cast<quint64>(double(Start().daysTo(date)));
        return *this;
    }
    /// No valid date when a damaged record holds a count outside the years 100 to 9999.
    QDate Value() const {
        constexpr double firstDay = -657434;
        constexpr double endOfDays = 2958466;
        const auto count = std::bit_cast<double>(days.Value());
        return count >= firstDay && count < endOfDays ? Start().addDays(qint64(count)) : QDate();
    }
};

template <typename Record>
Record ReadRecord(BasicDiskRoutines& disk, qint16 fileNumber, qint32 recordNumber) {
    static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);
    Record record{};
    disk.ReadRecord(fileNumber, recordNumber, &record, sizeof(Record));
    return record;
}

/// Records 1 to `count`, for files that are read whole.
template <typename Record>
std::vector<Record> ReadRecords(BasicDiskRoutines& disk, qint16 fileNumber, qint16 count) {
    static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);
    std::vector<Record> records(static_cast<size_t>(count));
    disk.ReadRecords(fileNumber, 1, count, records.data(), sizeof(Record));
    return records;
}

/// Calls `visit(number, record)` for the records 1 to `count`, one after the other. They are read
/// in blocks: asking the system for each would take longer than what is done with most of them.
template <typename Record, typename Visit>
void VisitRecords(BasicDiskRoutines& disk, qint16 fileNumber, qint32 count, Visit&& visit) {
    static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);
    constexpr qint32 recordsInBlock = 128;
    std::vector<Record> block(recordsInBlock);
    for (qint32 first = 1; first <= count; first += recordsInBlock) {
        const qint32 size = std::min(recordsInBlock, count - first + 1);
        disk.ReadRecords(fileNumber, first, qint16(size), block.data(), sizeof(Record));
        for (qint32 i = 0; i < size; ++i)
            visit(first + i, block[size_t(i)]);
    }
}

template <typename Record>
void WriteRecord(BasicDiskRoutines& disk, qint16 fileNumber, qint32 recordNumber,
                 const Record& record) {
    static_assert(std::is_trivially_copyable_v<Record> && alignof(Record) == 1);
    disk.WriteRecord(fileNumber, recordNumber, &record, sizeof(Record));
}

/// Adds a record behind the last of a file, which is made when it is missing, and closes all files.
/// The record's number has 16 bits: behind 32,767 records it is an overflow.
template <typename Record>
void AppendRecord(BasicDiskRoutines& disk, const QString& name, const Record& record) {
    const qint16 last = disk.RecordCount(name, sizeof(Record));
    const qint16 number = ToInt16(last + 1.0, QStringLiteral("adding to ") + Shown(name));
    disk.OpenRandom(name, sizeof(Record));
    WriteRecord(disk, disk.DiskFile, number, record);
    disk.CloseAllFiles();
}
