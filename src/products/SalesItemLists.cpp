#include "products/SalesItemLists.h"

#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

const QString inventoriedFile = u"/NXInventoriedItems.txt"_s;
const QString nonInventoriedFile = u"/NonInventoriedItems.txt"_s;

} // namespace

SalesItemLists::SalesItemLists(BasicDiskRoutines& diskRoutines)
    : fgAddItems({u"Sel"_s, u"Qty"_s, u"Description"_s, u"Sell Price"_s, u"Item Total"_s}),
      disk(diskRoutines) {}

void SalesItemLists::RefreshAll() {
    RefreshInventoriedItemLists();
    RefreshNonInventoriedItemLists();
}

void SalesItemLists::RefreshInventoriedItemLists() {
    if (!disk.FileExists(inventoriedFile))
        return;
    const qint16 count = disk.RecordCount(inventoriedFile, sizeof(SalesItem));
    QStringList names;
    QStringList prices;
    const GridModel::Refill refill(fgAddItems);
    disk.OpenRandom(inventoriedFile, sizeof(SalesItem));
    fgAddItems.SetRows(2);
    for (int row = 1; row <= count; ++row) {
        const auto item = ReadRecord<SalesItem>(disk, disk.DiskFile, row);
        names += item.Description.Trimmed();
        prices += CurrencyText(item.SellPrice.Value());
        fgAddItems.SetText(row, int(AddItemColumn::Description), names.last());
        fgAddItems.SetText(row, int(AddItemColumn::SellPrice), prices.last());
        fgAddItems.SetRows(row + 2);
    }
    if (count > 0)
        fgAddItems.SetRows(count + 1);
    SelectLastAddItem();
    disk.CloseAllFiles();
    ProductNames.setStringList(names);
    ProductPrices.setStringList(prices);
}

void SalesItemLists::RefreshNonInventoriedItemLists() {
    if (!disk.FileExists(nonInventoriedFile))
        return;
    const qint16 count = disk.RecordCount(nonInventoriedFile, sizeof(NonInventoriedItem));
    QStringList names;
    const GridModel::Refill refill(fgAddItems);
    disk.OpenRandom(nonInventoriedFile, sizeof(NonInventoriedItem));
    for (int record = 1; record <= count; ++record) {
        const auto item = ReadRecord<NonInventoriedItem>(disk, disk.DiskFile, record);
        names += item.Description.Trimmed();
        const int row = fgAddItems.Rows();
        fgAddItems.SetRows(row + 1);
        fgAddItems.SetText(row, int(AddItemColumn::Description), names.last());
        fgAddItems.SetText(row, int(AddItemColumn::SellPrice), ZeroCurrencyText());
        fgAddItems.SetText(row, int(AddItemColumn::ItemTotal), ZeroCurrencyText());
        SelectLastAddItem();
    }
    disk.CloseAllFiles();
    NonPricedNames.setStringList(names);
}

void SalesItemLists::SelectLastAddItem() {
    fgAddItems.SetCurrent(fgAddItems.DataRows(), fgAddItems.CurrentColumn());
}
