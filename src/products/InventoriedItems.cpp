#include "products/InventoriedItems.h"

#include "store/Conversions.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString itemsFile = u"/NXInventoriedItems.txt"_s;
const QString temporaryFile = u"/Inventory.TMP"_s;

} // namespace

struct InventoriedItems::LoadedItem {
    SalesItem record;
    int recordNumber;
    QString description;
    QString category;
};

InventoriedItems::InventoriedItems(BasicDiskRoutines& diskRoutines, Operator& person)
    : fgItems({u"Description"_s, u"Category"_s, u"Cost (Unit)"_s, u"Price"_s, u"On-Hand"_s,
               u"Disc Price"_s, u"Disc Qty"_s, u"Reorder"_s, u"When At"_s, u"Rec #"_s}),
      disk(diskRoutines), user(person) {
    for (const ItemColumn column : {ItemColumn::UnitCost, ItemColumn::SellPrice, ItemColumn::OnHand,
                                    ItemColumn::DiscountPrice, ItemColumn::DiscountQty,
                                    ItemColumn::ReorderAmount, ItemColumn::ReorderPoint})
        fgItems.AlignRight(int(column));
}

QStringList InventoriedItems::SortChoices() {
    return {u"Description"_s, u"Category"_s, u"Cost"_s, u"Price"_s, u"On-Hand"_s};
}

QString InventoriedItems::Cell(int row, ItemColumn column) const {
    return fgItems.Text(row, int(column));
}

void InventoriedItems::SetCell(int row, ItemColumn column, QString text) {
    fgItems.SetText(row, int(column), std::move(text));
}

/// Empty when the heading is current.
QString InventoriedItems::CurrentRecordNumber() const {
    const int row = fgItems.CurrentRow();
    return row > 0 ? Cell(row, ItemColumn::RecordNumber) : QString();
}

/// Keeps the operator's item current when its row has moved.
void InventoriedItems::SelectRecord(const QString& recordNumber, int column) {
    fgItems.SetCurrent(fgItems.FindRow(int(ItemColumn::RecordNumber), recordNumber), column);
}

void InventoriedItems::Load() {
    Categories.Clear();
    enabled.printReport = disk.FileExists(itemsFile);
    if (enabled.printReport)
        LoadSalesItems();
    ApplySortChoice = false;
    enabled.entry = false;
}

void InventoriedItems::LoadSalesItems() {
    enabled.modify = false;
    // A row that the operator has picked may be another item's now.
    enabled.deleteItem = false;
    FillGrid(ReadItems());
}

std::vector<InventoriedItems::LoadedItem> InventoriedItems::ReadItems() {
    const qint16 itemCount = disk.RecordCount(itemsFile, sizeof(SalesItem));
    disk.OpenRandom(itemsFile, sizeof(SalesItem));
    std::vector<LoadedItem> items;
    items.reserve(size_t(itemCount));
    QStringList categories;
    categories.reserve(itemCount);
    for (int number = 1; number <= itemCount; ++number) {
        const auto record = ReadRecord<SalesItem>(disk, disk.DiskFile, number);
        // A grid that shows one category takes no new items.
        enabled.addNew = !ckCategory;
        const QString category = record.Category.Trimmed();
        if (ckCategory && category != entry.cboCategory)
            continue;
        items.push_back({record, number, record.Description.Trimmed(), category});
        categories += category;
        enabled.grid = true;
    }
    disk.CloseAllFiles();
    Categories.Add(categories);
    return items;
}

/// In the order of the categories, and on the chosen column if it is to be applied: the amounts
/// and the stock by value, all else as text. Equals keep the order that they have.
std::vector<const InventoriedItems::LoadedItem*>
InventoriedItems::InGridOrder(const std::vector<LoadedItem>& items) const {
    std::vector<const LoadedItem*> order;
    order.reserve(items.size());
    for (const LoadedItem& item : items)
        order.push_back(&item);
    const auto sortBy = [&order](auto&& valueOf) {
        std::stable_sort(order.begin(), order.end(),
                         [&](const LoadedItem* one, const LoadedItem* other) {
                             return valueOf(*one) < valueOf(*other);
                         });
    };
    sortBy([](const LoadedItem& item) -> const QString& { return item.category; });
    switch (ApplySortChoice ? ItemColumn(lstSortBy) : ItemColumn::Category) {
    case ItemColumn::Description:
        sortBy([](const LoadedItem& item) -> const QString& { return item.description; });
        break;
    case ItemColumn::UnitCost:
        sortBy([](const LoadedItem& item) { return item.record.UnitCost.Value(); });
        break;
    case ItemColumn::SellPrice:
        sortBy([](const LoadedItem& item) { return item.record.SellPrice.Value(); });
        break;
    case ItemColumn::OnHand:
        sortBy([](const LoadedItem& item) { return item.record.OnHand.Value(); });
        break;
    default:
        break;
    }
    return order;
}

void InventoriedItems::FillGrid(const std::vector<LoadedItem>& items) {
    const GridModel::Refill refill(fgItems);
    const QString currentNumber = CurrentRecordNumber();
    fgItems.SetRows(int(items.size()) + 1);
    int row = 0;
    for (const LoadedItem* item : InGridOrder(items))
        FillRow(++row, *item);
    SelectRecord(currentNumber, ApplySortChoice ? lstSortBy : int(ItemColumn::Category));
}

void InventoriedItems::FillRow(int row, const LoadedItem& item) {
    const SalesItem& record = item.record;
    SetCell(row, ItemColumn::Description, item.description);
    SetCell(row, ItemColumn::Category, item.category);
    SetCell(row, ItemColumn::UnitCost, CurrencyText(record.UnitCost.Value()));
    SetCell(row, ItemColumn::SellPrice, CurrencyText(record.SellPrice.Value()));
    SetCell(row, ItemColumn::OnHand, QString::number(record.OnHand.Value()));
    SetCell(row, ItemColumn::DiscountPrice, CurrencyText(record.DiscountPrice.Value()));
    SetCell(row, ItemColumn::DiscountQty, QString::number(record.DiscountQty.Value()));
    SetCell(row, ItemColumn::ReorderAmount, QString::number(record.ReorderAmount.Value()));
    SetCell(row, ItemColumn::ReorderPoint, QString::number(record.ReorderPoint.Value()));
    SetCell(row, ItemColumn::RecordNumber, QString::number(item.recordNumber));
}

void InventoriedItems::ckCategory_Click(bool isChecked) {
    ckCategory = isChecked;
    ApplySortChoice = isChecked;
}

void InventoriedItems::ckByCategory_Click(bool isChecked) {
    ckByCategory = isChecked;
    // Clearing the box leaves the choice in force, on purpose.
    ApplySortChoice = ApplySortChoice || isChecked;
}

void InventoriedItems::fgItems_Click(int row) {
    if (row < 1)
        return;
    enabled.deleteItem = true;
    enabled.modify = true;
}

ItemFocus InventoriedItems::ReloadOrSort() {
    if (ckByCategory) {
        SortRows();
        ckByCategory = false;
        return ItemFocus::Stays;
    }
    if (ckCategory && entry.cboCategory.isEmpty()) {
        user.MsgBox(u"Select a Category"_s);
        return ItemFocus::Category;
    }
    if (disk.FileExists(itemsFile))
        LoadSalesItems();
    return ItemFocus::Stays;
}

/// As text also where the column holds amounts, unlike the order of a load; this is meant.
void InventoriedItems::SortRows() {
    const GridModel::Refill refill(fgItems);
    const QString currentNumber = CurrentRecordNumber();
    fgItems.SortAsText(lstSortBy);
    SelectRecord(currentNumber, lstSortBy);
}

ItemFocus InventoriedItems::AddNew() {
    EditingExisting = false;
    enabled.entry = true;
    Clear();
    return ItemFocus::Description;
}

ItemFocus InventoriedItems::Modify() {
    const int row = fgItems.CurrentRow();
    if (row < 1)
        return ItemFocus::Grid;
    enabled.entry = true;
    EditingExisting = true;
    entry.txtDescription = Cell(row, ItemColumn::Description);
    // The category retained between items goes to this item when it is saved; this is meant.
    if (!ckClearItem)
        entry.cboCategory = Cell(row, ItemColumn::Category);
    entry.txtCost = Cell(row, ItemColumn::UnitCost);
    entry.sellPrice = Cell(row, ItemColumn::SellPrice);
    entry.txtOnHand = Cell(row, ItemColumn::OnHand);
    entry.discountPrice = Cell(row, ItemColumn::DiscountPrice);
    entry.txtDiscountQty = Cell(row, ItemColumn::DiscountQty);
    entry.txtReorderAmount = Cell(row, ItemColumn::ReorderAmount);
    entry.txtReorderAt = Cell(row, ItemColumn::ReorderPoint);
    enabled.grid = false;
    return ItemFocus::Description;
}

ItemFocus InventoriedItems::Save() {
    Categories.Add({entry.cboCategory});
    if (entry.txtDescription.isEmpty())
        return ItemFocus::Description;
    if (entry.sellPrice.isEmpty())
        return ItemFocus::SellPrice;
    if (entry.discountPrice.isEmpty())
        return ItemFocus::DiscountPrice;
    if (!IsNumeric(entry.txtOnHand)) {
        // The operator sees the zero and saves again.
        entry.txtOnHand = u"0"_s;
        return ItemFocus::Stays;
    }
    // A load in the meantime may have left out the item that is being modified.
    if (EditingExisting && fgItems.CurrentRow() < 1)
        return ItemFocus::Grid;
    if (entry.txtCost.isEmpty())
        entry.txtCost = ZeroCurrencyText();
    LeaveCount(entry.txtReorderAmount);
    LeaveCount(entry.txtReorderAt);
    enabled.grid = true;
    if (!EditingExisting)
        AddRow();
    CopyEntryToRow(fgItems.CurrentRow());
    WriteRow(fgItems.CurrentRow());
    ckByCategory = false;
    ckCategory = false;
    ApplySortChoice = false;
    Clear();
    enabled.entry = false;
    LoadSalesItems();
    return ItemFocus::Stays;
}

void InventoriedItems::AddRow() {
    // A record number beyond 32,767 is an overflow, before anything has changed.
    const qint16 newRecordNumber =
        ToInt16(double(disk.RecordCount(itemsFile, sizeof(SalesItem))) + 1,
                u"the number of a new record of NXInventoriedItems.txt"_s);
    const int row = fgItems.Rows();
    fgItems.SetRows(row + 1);
    fgItems.SetCurrent(row, fgItems.CurrentColumn());
    SetCell(row, ItemColumn::RecordNumber, QString::number(newRecordNumber));
}

void InventoriedItems::CopyEntryToRow(int row) {
    SetCell(row, ItemColumn::Description, entry.txtDescription);
    SetCell(row, ItemColumn::Category, entry.cboCategory);
    SetCell(row, ItemColumn::UnitCost, entry.txtCost);
    SetCell(row, ItemColumn::SellPrice, entry.sellPrice);
    SetCell(row, ItemColumn::OnHand, entry.txtOnHand);
    SetCell(row, ItemColumn::DiscountPrice, entry.discountPrice);
    SetCell(row, ItemColumn::DiscountQty, entry.txtDiscountQty);
    SetCell(row, ItemColumn::ReorderAmount, entry.txtReorderAmount);
    SetCell(row, ItemColumn::ReorderPoint, entry.txtReorderAt);
}

/// The stock gets an amount's zero and the discount price a count's; either is a zero.
void InventoriedItems::FillEmptyCells(int row) {
    for (int column = int(ItemColumn::UnitCost); column <= int(ItemColumn::ReorderPoint);
         ++column) {
        if (fgItems.Text(row, column).isEmpty())
            fgItems.SetText(row, column,
                            column <= int(ItemColumn::OnHand) ? ZeroCurrencyText() : u"0"_s);
    }
}

void InventoriedItems::WriteRow(int row) {
    const qint32 recordNumber = ToInt32(Cell(row, ItemColumn::RecordNumber));
    disk.OpenRandom(itemsFile, sizeof(SalesItem));
    FillEmptyCells(row);
    SalesItem record{};
    record.Description = Cell(row, ItemColumn::Description);
    record.Category = Cell(row, ItemColumn::Category);
    record.UnitCost = ToCurrency(Cell(row, ItemColumn::UnitCost), u"the cost per unit"_s);
    record.SellPrice = ToCurrency(Cell(row, ItemColumn::SellPrice), u"the sell price"_s);
    record.OnHand = ToInt16(Cell(row, ItemColumn::OnHand), u"the units on hand"_s);
    record.DiscountPrice =
        ToCurrency(Cell(row, ItemColumn::DiscountPrice), u"the quantity discount price"_s);
    record.DiscountQty =
        ToInt32(Cell(row, ItemColumn::DiscountQty), u"the units for a quantity discount"_s);
    record.ReorderAmount = ToInt16(Cell(row, ItemColumn::ReorderAmount), u"the units to reorder"_s);
    record.ReorderPoint =
        ToInt16(Cell(row, ItemColumn::ReorderPoint), u"the units at which to reorder"_s);
    WriteRecord(disk, disk.DiskFile, recordNumber, record);
    disk.CloseAllFiles();
}

void InventoriedItems::Delete() {
    const int row = fgItems.CurrentRow();
    if (row < 1 || user.MsgBox(u"This will DELETE the Selected Sales Item"_s, Buttons::YesNo,
                               u"Delete Sales Item"_s) != Answer::Yes)
        return;
    // The only row counts as the last item also when the grid shows one category; this is meant.
    if (fgItems.DataRows() == 1) {
        disk.DeleteWithBackup(itemsFile);
        fgItems.SetRows(1);
        enabled.modify = false;
        enabled.addNew = true;
    } else {
        RemoveRecord(ToInt32(Cell(row, ItemColumn::RecordNumber)));
        Clear();
        fgItems.RemoveRow(row);
    }
    EndModify();
    enabled.deleteItem = false;
}

/// Without its item, a modification would be saved over the next one.
void InventoriedItems::EndModify() {
    if (!enabled.entry || !EditingExisting)
        return;
    enabled.entry = false;
    enabled.grid = true;
}

void InventoriedItems::RemoveRecord(qint32 removed) {
    disk.KillFile(temporaryFile);
    const qint16 count = disk.RecordCount(itemsFile, sizeof(SalesItem));
    disk.OpenRandom(itemsFile, sizeof(SalesItem));
    disk.OpenRandomSecond(temporaryFile, sizeof(SalesItem));
    qint32 kept = 0;
    for (qint32 number = 1; number <= count; ++number) {
        if (number != removed)
            WriteRecord(disk, disk.DiskFile2, ++kept,
                        ReadRecord<SalesItem>(disk, disk.DiskFile, number));
    }
    disk.CloseAllFiles();
    disk.DeleteWithBackup(itemsFile);
    disk.RenameDataFile(temporaryFile, itemsFile);
}

void InventoriedItems::Clear() {
    const QString category = ckClearItem ? entry.cboCategory : QString();
    entry = {};
    entry.cboCategory = category;
}

void InventoriedItems::Cancel() {
    enabled.entry = false;
    Clear();
    enabled.grid = true;
}

void InventoriedItems::ClearPrices() {
    entry.sellPrice = ZeroCurrencyText();
    entry.discountPrice = ZeroCurrencyText();
}
