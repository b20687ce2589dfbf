#pragma once

#include "platform/Clock.h"
#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "setup/LiveSettings.h"
#include "store/BasicDiskRoutines.h"
#include "store/Calendar.h"

#include <QDate>
#include <QString>

#include <array>
#include <functional>
#include <vector>

/// Header lines of a slip file that the slip table holds, numbered as in the file.
enum class SlipLine {
    SlipNumber = 1,
    Date,
    Time,
    Recurring,
    Frequency,
    Vehicle,
    Account,
    CustomerName,
    Reference,
    Attention,
};
constexpr int slipTableLines = 10;
/// Quoted lines behind them: six of the sold-to address, six of the deliver-to address.
constexpr int slipAddressLines = 12;
/// Columns of the grids that hold a slip's items, fgDelivery and fgItems.
enum class SlipItemColumn { Units, Description, UnitPrice, LineTotal };
constexpr int slipItemColumns = 4;

/// All slips in the folder, by header line and entry; entries count from 1. It is a picture taken
/// by LoadSlips, stale until the next one.
class SlipTable {
public:
    QString Text(SlipLine line, int entry) const;
    /// For looking at every slip there is; good until the table is rebuilt.
    QStringView View(SlipLine line, int entry) const;
    /// Sets an entry, or adds it behind the last. `lines` are the ten lines as they stand in the
    /// slip's file.
    void Set(int entry, const QString& lines);
    /// Makes room for entries 1 to `count` without adding any.
    void Reserve(int count);

private:
    /// A slip's lines as one text with a CR LF between them, and where each of them ends in it.
    /// They lie close together because the board goes through all slips each time it is filled.
    struct Entry {
        QString text;
        std::array<qint32, slipTableLines> ends{};
    };
    std::vector<Entry> entries;
};

/// What a slip's header file holds: the ten table lines and the two addresses (name, street,
/// apartment, city, state, zip).
struct SlipHeader {
    std::array<QString, slipTableLines> table;
    std::array<QString, 6> soldTo;
    std::array<QString, 6> deliverTo;

    QString& operator[](SlipLine line) { return table[size_t(line) - 1]; }
};

/// The scheduled deliveries. One delivery is two small text files named by its slip number; the
/// folder is the list of them, and a delivery that is done is deleted or moved to its next date.
class DeliverySlipRoutines {
public:
    DeliverySlipRoutines(BasicDiskRoutines& diskRoutines, Calendar& deliveryCalendar,
                         const LiveSettings& liveSettings, const Clock& machineClock,
                         Operator& person);

    /// The number to offer for the next slip; NQDeliveryNo.txt holds it.
    qint32 NextSlipNumber = 0;
    void LoadDeliveryNo();
    void UpdateDeliveryCounter();
    void SaveDeliveryNo(qint32 value);

    SlipTable Table;
    /// At most 32,766: the count is 16 bits wide and goes one too far while the folder is listed.
    qint16 SlipCount = 0;

    /// Rebuilds the table from the folder, in name order. With `processPast`, each slip dated
    /// before today goes through ProcessPastSlip; the table then still shows it as it was.
    void LoadSlips(bool processPast);

    /// Stores a slip, replacing the one of that number: its header file, the 22 lines without
    /// blanks at their ends, and its item file, from rows 1 to `count` of a grid, columns 0 to 3:
    /// units, description, unit price, line total. An empty total counts as 0. Both are written
    /// aside and take their places once they are whole, so a failure leaves the slips on disk as
    /// they were: half a header would stop every later start of the program.
    void StoreSlip(const SlipHeader& header, const GridModel& grid, qint16 count,
                   const QString& total);
    /// Changes lines of a slip in place: the date always; with `keep` false also the time and the
    /// fifth line. All else stays to the byte.
    void RewriteSlipHeader(const QString& slipNo, bool keep, const QString& newDate,
                           const QString& newTime, const QString& newFifthLine);
    /// Stores a one-time copy of a slip with other items under the next number, and goes on with
    /// the old slip as with one whose delivery has passed. The copy's first ten lines, and what
    /// becomes of the old slip, are told by an entry of the table: it is the row of the board's
    /// grid, also where grid and table differ in order. The addresses come from the old slip's
    /// file. `total` is the grand total on the board. A slip that has the next number is replaced.
    /// A failure before both files of the copy are whole leaves no part of it behind.
    void SplitSlip(const QString& oldSlipNo, int entry, const GridModel& items,
                   const QString& total);
    /// The answer is True in every case: nothing refuses a second delivery in the same slot.
    bool IsSlotFree(QDate date, const QString& time, const QString& vehicle) const;

    /// The slip's next date: today or later before the weekday correction and the move to a work
    /// day, of which the correction can lead before today.
    QString NextDeliveryDate(const QString& date, const QString& frequency);
    /// What becomes of a slip whose delivery has passed: a recurring one is deleted or moved on as
    /// the operator says, a one-time one is deleted if the settings say so. `recurringText` is
    /// anything but "False" for a recurring slip.
    void ProcessPastSlip(const QString& slipNo, const QString& date, const QString& recurringText,
                         const QString& frequency);

    static QString HeaderFile(QStringView slipNo);
    static QString ItemFile(const QString& slipNo);

private:
    // These two write under the temporary names.
    void WriteSlipHeader(const SlipHeader& header);
    void WriteSlipItems(const GridModel& grid, const QString& slipNo, qint16 count,
                        const QString& total);
    /// `writeAside` writes both files of a slip under temporary names; they take the places of
    /// those of the slip of that number once they are whole.
    void ReplaceSlip(const QString& number, const std::function<void()>& writeAside);
    void ReadHeaders(const std::vector<QString>& names);
    void ProcessPastSlips(const std::vector<QString>& names);
    void CopyHeaderAsOneTime(const QString& oldSlipNo, const QString& newSlipNo, int entry);
    void MoveToNextDate(const QString& slipNo, const QString& date, const QString& frequency);
    void DeleteSlip(const QString& slipNo, const QString& date);

    BasicDiskRoutines& disk;
    Calendar& calendar;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
};
