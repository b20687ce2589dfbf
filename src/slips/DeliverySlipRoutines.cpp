#include "slips/DeliverySlipRoutines.h"

#include "platform/RuntimeFailure.h"
#include "slips/SlipFrequency.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

#include <QStringBuilder>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString deliveriesFolder = u"/TesselDelivery/Deliveries"_s;
const QString temporaryHeader = u"/TesselDelivery/Deliveries/TempFile.txt"_s;
const QString temporaryItems = u"/TesselDelivery/DeliveryItems/TempFile.txt"_s;
const QString counterFile = u"/NQDeliveryNo.txt"_s;

constexpr QStringView lineEnd = u"\r\n";

QString DateLineOf(const QString& fileName) {
    return u"reading the delivery date in TesselDelivery/Deliveries/"_s + fileName;
}

/// The number in the counter file, or 0 when it holds none that is good. The file's form is the
/// same in every region.
qint32 CounterValue(const QString& text) {
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    // The conversion also takes the words "inf" and "nan", which are no numbers here.
    return isNumber && std::isfinite(number) ? ToInt32(number, u"reading NQDeliveryNo.txt"_s) : 0;
}

} // namespace

QString SlipTable::Text(SlipLine line, int entry) const {
    return View(line, entry).toString();
}

QStringView SlipTable::View(SlipLine line, int entry) const {
    if (entry < 1 || size_t(entry) > entries.size())
        throw RuntimeFailure(FailureKind::Subscript,
                             u"The slip table has no entry %1."_s.arg(entry));
    const auto& [text, ends] = entries[size_t(entry) - 1];
    const auto place = size_t(line) - 1;
    const qsizetype start = place == 0 ? 0 : ends[place - 1] + lineEnd.size();
    return QStringView(text).sliced(start, ends[place] - start);
}

void SlipTable::Set(int entry, const QString& lines) {
    if (size_t(entry) == entries.size() + 1)
        entries.emplace_back();
    auto& [text, ends] = entries.at(size_t(entry) - 1);
    text = lines;
    qsizetype start = 0;
    for (qint32& end : ends) {
        const qsizetype found = text.indexOf(lineEnd, start);
        end = qint32(found < 0 ? text.size() : found);
        start = end + lineEnd.size();
    }
}

void SlipTable::Reserve(int count) {
    entries.reserve(size_t(count));
}

DeliverySlipRoutines::DeliverySlipRoutines(BasicDiskRoutines& diskRoutines,
                                           Calendar& deliveryCalendar,
                                           const LiveSettings& liveSettings,
                                           const Clock& machineClock, Operator& person)
    : disk(diskRoutines), calendar(deliveryCalendar), settings(liveSettings), clock(machineClock),
      user(person) {}

QString DeliverySlipRoutines::HeaderFile(QStringView slipNo) {
    return deliveriesFolder % u"/" % slipNo % u".txt";
}

QString DeliverySlipRoutines::ItemFile(const QString& slipNo) {
    return u"/TesselDelivery/DeliveryItems/"_s + slipNo + u".txt"_s;
}

void DeliverySlipRoutines::LoadDeliveryNo() {
    NextSlipNumber = 0;
    if (disk.FileExists(counterFile)) {
        disk.OpenForInput(counterFile);
        NextSlipNumber = CounterValue(TextReader(disk).Text());
        disk.CloseAllFiles();
    }
    if (NextSlipNumber == 0)
        NextSlipNumber = FirstNumberOfYear(clock.Today());
    SaveDeliveryNo(NextSlipNumber);
}

void DeliverySlipRoutines::UpdateDeliveryCounter() {
    if (NextSlipNumber == std::numeric_limits<qint32>::max())
        throw RuntimeFailure(FailureKind::Overflow,
                             u"Advancing the slip number in NQDeliveryNo.txt failed: "
                             u"2,147,483,647 is the last number."_s);
    ++NextSlipNumber;
    SaveDeliveryNo(NextSlipNumber);
}

void DeliverySlipRoutines::SaveDeliveryNo(qint32 value) {
    RewriteFile(disk, counterFile, {RecordLine().Number(value)});
}

void DeliverySlipRoutines::LoadSlips(bool processPast) {
    disk.KillFile(temporaryHeader);
    const std::vector<QString> names = disk.ListFiles(deliveriesFolder, u"*.txt"_s);
    if (names.size() >= size_t(std::numeric_limits<qint16>::max()))
        throw RuntimeFailure(FailureKind::Overflow,
                             u"Listing the folder TesselDelivery/Deliveries failed: it holds more "
                             u"than 32,766 slips."_s);
    SlipCount = qint16(names.size());
    ReadHeaders(names);
    if (processPast)
        ProcessPastSlips(names);
}

void DeliverySlipRoutines::ReadHeaders(const std::vector<QString>& names) {
    Table.Reserve(SlipCount);
    for (int entry = 1; entry <= SlipCount; ++entry) {
        disk.OpenForInput(deliveriesFolder % u'/' % names[size_t(entry) - 1]);
        Table.Set(entry, TextReader(disk).WholeLines(slipTableLines));
        disk.CloseAllFiles();
    }
}

void DeliverySlipRoutines::ProcessPastSlips(const std::vector<QString>& names) {
    const QDate today = clock.Today();
    for (int entry = 1; entry <= SlipCount; ++entry) {
        const auto where = [&] { return DateLineOf(names[size_t(entry) - 1]); };
        if (ToDate(Table.View(SlipLine::Date, entry), where) < today)
            ProcessPastSlip(
                Table.Text(SlipLine::SlipNumber, entry), Table.Text(SlipLine::Date, entry),
                Table.Text(SlipLine::Recurring, entry), Table.Text(SlipLine::Frequency, entry));
    }
}

void DeliverySlipRoutines::WriteSlipHeader(const SlipHeader& header) {
    disk.KillFile(temporaryHeader);
    disk.OpenForOutput(temporaryHeader);
    TextWriter writer(disk);
    for (const QString& line : header.table)
        writer.Plain(TrimBlanks(line));
    for (const QString& line : header.soldTo)
        writer.Quoted(TrimBlanks(line));
    for (const QString& line : header.deliverTo)
        writer.Quoted(TrimBlanks(line));
}

/// Closes all files first, and so the header, which its writer has left open.
void DeliverySlipRoutines::WriteSlipItems(const GridModel& grid, const QString& slipNo,
                                          qint16 count, const QString& total) {
    disk.KillFile(temporaryItems);
    disk.OpenForOutput(temporaryItems);
    TextWriter writer(disk);
    writer.Plain(slipNo);
    writer.Plain(QString::number(count));
    for (int row = 1; row <= count; ++row) {
        for (int column = 0; column < slipItemColumns; ++column)
            writer.Plain(grid.Text(row, column));
    }
    writer.Quoted(total.isEmpty() ? ZeroCurrencyText() : total);
    disk.CloseAllFiles();
}

void DeliverySlipRoutines::StoreSlip(const SlipHeader& header, const GridModel& grid, qint16 count,
                                     const QString& total) {
    const QString number = TrimBlanks(header.table[0]);
    ReplaceSlip(number, [&] {
        WriteSlipHeader(header);
        WriteSlipItems(grid, number, count, total);
    });
}

void DeliverySlipRoutines::ReplaceSlip(const QString& number,
                                       const std::function<void()>& writeAside) {
    try {
        writeAside();
        // The header comes last: the folder of headers is the list of slips, and an item file that
        // belongs to none of them does no harm.
        disk.KillFile(ItemFile(number));
        disk.RenameDataFile(temporaryItems, ItemFile(number));
        disk.KillFile(HeaderFile(number));
        disk.RenameDataFile(temporaryHeader, HeaderFile(number));
    } catch (const RuntimeFailure&) {
        PassOver([&] { disk.CloseAllFiles(); });
        PassOver([&] { disk.KillFile(temporaryHeader); });
        PassOver([&] { disk.KillFile(temporaryItems); });
        throw;
    }
}

void DeliverySlipRoutines::RewriteSlipHeader(const QString& slipNo, bool keep,
                                             const QString& newDate, const QString& newTime,
                                             const QString& newFifthLine) {
    disk.KillFile(temporaryHeader);
    disk.OpenForInput(HeaderFile(slipNo));
    TextReader reader(disk);
    TextWriter writer(disk, disk.OpenForOutputBeside(temporaryHeader));
    for (int number = 1; number <= slipTableLines; ++number) {
        const QString old = reader.WholeLine();
        const auto line = SlipLine(number);
        if (line == SlipLine::Date)
            writer.Plain(newDate);
        else if (line == SlipLine::Time && !keep)
            writer.Plain(newTime);
        else if (line == SlipLine::Frequency && !keep)
            writer.Plain(newFifthLine);
        else
            writer.Plain(old);
    }
    for (int i = 0; i < slipAddressLines; ++i)
        writer.Plain(reader.WholeLine());
    disk.CloseAllFiles();
    disk.KillFile(HeaderFile(slipNo));
    disk.RenameDataFile(temporaryHeader, HeaderFile(slipNo));
    disk.KillFile(temporaryHeader);
}

void DeliverySlipRoutines::SplitSlip(const QString& oldSlipNo, int entry, const GridModel& items,
                                     const QString& total) {
    LoadDeliveryNo();
    const QString newSlipNo = QString::number(NextSlipNumber);
    const QString date = Table.Text(SlipLine::Date, entry);
    const QString recurringText = Table.Text(SlipLine::Recurring, entry);
    const QString frequency = Table.Text(SlipLine::Frequency, entry);
    const qint16 count = ToInt16(double(items.DataRows()), u"the number of item lines"_s);
    ReplaceSlip(newSlipNo, [&] {
        CopyHeaderAsOneTime(oldSlipNo, newSlipNo, entry);
        WriteSlipItems(items, newSlipNo, count, total);
    });
    ProcessPastSlip(oldSlipNo, date, recurringText, frequency);
    UpdateDeliveryCounter();
}

/// Leaves both files open: the item file's writer, which follows, closes them.
void DeliverySlipRoutines::CopyHeaderAsOneTime(const QString& oldSlipNo, const QString& newSlipNo,
                                               int entry) {
    TextWriter writer(disk, disk.OpenForOutputBeside(temporaryHeader));
    for (int number = 1; number <= slipTableLines; ++number) {
        const auto line = SlipLine(number);
        if (line == SlipLine::SlipNumber)
            writer.Plain(newSlipNo);
        else if (line == SlipLine::Recurring)
            writer.Plain(BooleanWord(false));
        else if (line == SlipLine::Reference)
            writer.Plain(u"Updated "_s + ShortDateText(clock.Today()));
        else
            writer.Plain(Table.Text(line, entry));
    }
    disk.OpenForInput(HeaderFile(oldSlipNo));
    TextReader reader(disk);
    reader.SkipLines(slipTableLines);
    for (int i = 0; i < slipAddressLines; ++i)
        writer.Plain(reader.WholeLine());
}

bool DeliverySlipRoutines::IsSlotFree(QDate date, const QString& time,
                                      const QString& vehicle) const {
    for (int entry = 1; entry <= SlipCount; ++entry) {
        const QString fileName = Table.Text(SlipLine::SlipNumber, entry) + u".txt"_s;
        if (ToDate(Table.Text(SlipLine::Date, entry), DateLineOf(fileName)) == date &&
            TrimBlanks(Table.Text(SlipLine::Time, entry)) == time &&
            TrimBlanks(Table.Text(SlipLine::Vehicle, entry)) == vehicle)
            return true;
    }
    return true;
}

QString DeliverySlipRoutines::NextDeliveryDate(const QString& date, const QString& frequency) {
    const QDate today = clock.Today();
    QDate from = ToDate(date, u"the delivery date of a slip"_s);
    QDate next = NextOccurrence(from, frequency, today);
    while (next < today) {
        from = next;
        next = NextOccurrence(from, frequency, today);
    }
    constexpr double lastFrequencyWithoutCorrection = 2;
    if (settings.ckOnDay == 1 && LeadingNumber(frequency) > lastFrequencyWithoutCorrection)
        next = AdjustToSameWeekday(from, next);
    return ShortDateText(calendar.NextAvailableWorkDay(next));
}

void DeliverySlipRoutines::ProcessPastSlip(const QString& slipNo, const QString& date,
                                           const QString& recurringText, const QString& frequency) {
    if (recurringText != "False"_L1) {
        const Answer answer = user.MsgBox(u"Would you like to DELETE the Recurring Slip?"_s,
                                          Buttons::YesNo, u"Delete a Recurring Slip"_s);
        if (answer == Answer::No)
            MoveToNextDate(slipNo, date, frequency);
        else
            DeleteSlip(slipNo, date);
    } else if (settings.ckDelete == 1) {
        DeleteSlip(slipNo, date);
    }
}

void DeliverySlipRoutines::MoveToNextDate(const QString& slipNo, const QString& date,
                                          const QString& frequency) {
    RewriteSlipHeader(slipNo, true, NextDeliveryDate(date, frequency), {}, {});
    user.MsgBox(u"The Recurring Delivery Slip has been Rescheduled"_s);
}

void DeliverySlipRoutines::DeleteSlip(const QString& slipNo, const QString& date) {
    disk.KillFile(HeaderFile(slipNo));
    disk.KillFile(ItemFile(slipNo));
    user.MsgBox(u"Delivery Slip "_s + slipNo + u" scheduled for "_s + date +
                u" has been Deleted"_s);
}
