#pragma once

#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "products/CategoryList.h"
#include "products/ItemFields.h"
#include "products/SalesItemLists.h"
#include "store/BasicDiskRoutines.h"

#include <vector>

/// Columns of the products screen's fgItems.
enum class ItemColumn {
    Description,
    Category,
    UnitCost,
    SellPrice,
    OnHand,
    DiscountPrice,
    DiscountQty,
    ReorderAmount,
    ReorderPoint,
    RecordNumber,
};

/// The texts of fraInventoried's entry fields, as typed; the prices are txtCharge(1) and
/// txtCharge(2).
struct SalesItemEntry {
    QString txtDescription;
    QString cboCategory;
    QString txtCost;
    QString sellPrice;
    QString discountPrice;
    QString txtDiscountQty;
    QString txtOnHand;
    QString txtReorderAmount;
    QString txtReorderAt;
};

/// The priced items as the products screen keeps them: the only writer of NXInventoriedItems.txt.
/// The grid is the editing model; what is saved goes into its row, and the record is made from the
/// row. So an amount is saved with the decimals that the grid shows.
class InventoriedItems {
public:
    InventoriedItems(BasicDiskRoutines& diskRoutines, Operator& person);

    GridModel fgItems;
    CategoryList Categories;
    SalesItemEntry entry;

    /// "Retain Current Category between Items".
    bool ckClearItem = false;
    /// "Load only Current Category when re-loading grid".
    bool ckCategory = false;
    /// "Sort Items in grid by".
    bool ckByCategory = false;
    /// Index into SortChoices, which is also the column to sort on.
    int lstSortBy = 0;
    static QStringList SortChoices();

    /// Which controls can be used; `entry` stands for Save, the description and both prices.
    struct Enabled {
        bool addNew = true;
        bool modify = false;
        bool deleteItem = false;
        /// Whether there was a file of items when the screen was loaded, whatever came of it since.
        bool printReport = true;
        bool entry = false;
        bool grid = true;
    } enabled;

    /// True during Modify, false during Add New.
    bool EditingExisting = false;
    /// Whether loading sorts on lstSortBy rather than on the category.
    bool ApplySortChoice = false;

    /// What creating the screen loads: the items, if there is a file of them.
    void Load();
    /// Fills the grid from the file: all items, or with ckCategory those of the category in the
    /// entry field. The item that was current stays so if it is still there.
    void LoadSalesItems();

    void ckCategory_Click(bool isChecked);
    void ckByCategory_Click(bool isChecked);
    void fgItems_Click(int row);

    ItemFocus ReloadOrSort();
    ItemFocus AddNew();
    ItemFocus Modify();
    /// Stops without a word where an entry is missing. A count or price that is no number, or that
    /// its field of the record can't hold, is a failure, and the file stays as it is.
    ItemFocus Save();
    /// Asks first. Rows behind the deleted one keep their old record numbers until the grid is
    /// loaded again, and so stand for the record that now has that number.
    void Delete();
    void Clear();
    void Cancel();
    void ClearPrices();

private:
    struct LoadedItem;

    std::vector<LoadedItem> ReadItems();
    std::vector<const LoadedItem*> InGridOrder(const std::vector<LoadedItem>& items) const;
    void FillGrid(const std::vector<LoadedItem>& items);
    void FillRow(int row, const LoadedItem& item);
    QString Cell(int row, ItemColumn column) const;
    QString CurrentRecordNumber() const;
    void SelectRecord(const QString& recordNumber, int column);
    void SortRows();
    void SetCell(int row, ItemColumn column, QString text);
    void AddRow();
    void CopyEntryToRow(int row);
    void FillEmptyCells(int row);
    void WriteRow(int row);
    void RemoveRecord(qint32 removed);
    void EndModify();

    BasicDiskRoutines& disk;
    Operator& user;
};
