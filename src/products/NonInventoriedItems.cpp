#include "products/NonInventoriedItems.h"

#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

const QString itemsFile = u"/NonInventoriedItems.txt"_s;

enum Column { Description, OnHand, ReorderAmount, ReorderPoint, RecordNumber };

} // namespace

NonInventoriedItems::NonInventoriedItems(BasicDiskRoutines& diskRoutines)
    : fgNonItem({u"Description"_s, u"On-Hand"_s, u"Reorder"_s, u"When At"_s, u"Rec #"_s}),
      disk(diskRoutines) {
    for (const Column column : {OnHand, ReorderAmount, ReorderPoint})
        fgNonItem.AlignRight(column);
}

void NonInventoriedItems::Load() {
    if (disk.FileExists(itemsFile))
        LoadNonInventoriedItems();
    enabled.entry = false;
}

void NonInventoriedItems::LoadNonInventoriedItems() {
    enabled.modify = false;
    const qint16 count = disk.RecordCount(itemsFile, sizeof(NonInventoriedItem));
    const GridModel::Refill refill(fgNonItem);
    const QString currentNumber = fgNonItem.CurrentRow() > 0
                                      ? fgNonItem.Text(fgNonItem.CurrentRow(), RecordNumber)
                                      : QString();
    disk.OpenRandom(itemsFile, sizeof(NonInventoriedItem));
    fgNonItem.SetRows(count + 1);
    for (int number = 1; number <= count; ++number)
        FillRow(number, ReadRecord<NonInventoriedItem>(disk, disk.DiskFile, number), number);
    disk.CloseAllFiles();
    enabled.grid = true;
    // On the stock, and as text; this is meant.
    fgNonItem.SortAsText(OnHand);
    fgNonItem.SetCurrent(fgNonItem.FindRow(RecordNumber, currentNumber), OnHand);
}

void NonInventoriedItems::FillRow(int row, const NonInventoriedItem& item, int recordNumber) {
    fgNonItem.SetText(row, Description, item.Description.Trimmed());
    fgNonItem.SetText(row, OnHand, QString::number(item.OnHand.Value()));
    fgNonItem.SetText(row, ReorderAmount, QString::number(item.ReorderAmount.Value()));
    fgNonItem.SetText(row, ReorderPoint, QString::number(item.ReorderPoint.Value()));
    fgNonItem.SetText(row, RecordNumber, QString::number(recordNumber));
}

void NonInventoriedItems::fgNonItem_Click(int row) {
    if (row > 0)
        enabled.modify = true;
}

ItemFocus NonInventoriedItems::AddNew() {
    EditingExisting = false;
    enabled.entry = true;
    Clear();
    return ItemFocus::Description;
}

ItemFocus NonInventoriedItems::Modify() {
    const int row = fgNonItem.CurrentRow();
    if (row < 1)
        return ItemFocus::Grid;
    enabled.entry = true;
    EditingExisting = true;
    entry.txtDescription = fgNonItem.Text(row, Description);
    entry.txtOnHandNon = fgNonItem.Text(row, OnHand);
    entry.txtReorderAmountNon = fgNonItem.Text(row, ReorderAmount);
    entry.txtReorderAtNon = fgNonItem.Text(row, ReorderPoint);
    return ItemFocus::Description;
}

ItemFocus NonInventoriedItems::Save() {
    if (entry.txtDescription.isEmpty())
        return ItemFocus::Description;
    if (!IsNumeric(entry.txtOnHandNon)) {
        // The operator sees the zero and saves again.
        entry.txtOnHandNon = u"0"_s;
        return ItemFocus::Stays;
    }
    if (EditingExisting && fgNonItem.CurrentRow() < 1)
        return ItemFocus::Grid;
    LeaveCount(entry.txtReorderAmountNon);
    LeaveCount(entry.txtReorderAtNon);
    const qint16 onHand = ToInt16(entry.txtOnHandNon, u"the units on hand"_s);
    if (!EditingExisting)
        AddRow();
    const int row = fgNonItem.CurrentRow();
    fgNonItem.SetText(row, Description, entry.txtDescription);
    fgNonItem.SetText(row, OnHand, QString::number(onHand));
    fgNonItem.SetText(row, ReorderAmount, entry.txtReorderAmountNon);
    fgNonItem.SetText(row, ReorderPoint, entry.txtReorderAtNon);
    WriteRow(row);
    Clear();
    enabled.entry = false;
    LoadNonInventoriedItems();
    return ItemFocus::Stays;
}

void NonInventoriedItems::AddRow() {
    // A record number beyond 32,767 is an overflow, before anything has changed.
    const qint16 newRecordNumber =
        ToInt16(double(disk.RecordCount(itemsFile, sizeof(NonInventoriedItem))) + 1,
                u"the number of a new record of NonInventoriedItems.txt"_s);
    const int row = fgNonItem.Rows();
    fgNonItem.SetRows(row + 1);
    fgNonItem.SetCurrent(row, fgNonItem.CurrentColumn());
    fgNonItem.SetText(row, RecordNumber, QString::number(newRecordNumber));
}

void NonInventoriedItems::WriteRow(int row) {
    const qint32 recordNumber = ToInt32(fgNonItem.Text(row, RecordNumber));
    disk.OpenRandom(itemsFile, sizeof(NonInventoriedItem));
    NonInventoriedItem record{};
    record.Description = fgNonItem.Text(row, Description);
    record.OnHand = ToInt16(fgNonItem.Text(row, OnHand), u"the units on hand"_s);
    record.ReorderAmount = ToInt16(fgNonItem.Text(row, ReorderAmount), u"the units to reorder"_s);
    record.ReorderPoint =
        ToInt16(fgNonItem.Text(row, ReorderPoint), u"the units at which to reorder"_s);
    WriteRecord(disk, disk.DiskFile, recordNumber, record);
    disk.CloseAllFiles();
}

void NonInventoriedItems::Clear() {
    entry = {};
}

void NonInventoriedItems::Cancel() {
    enabled.entry = false;
    Clear();
    enabled.grid = false;
}
