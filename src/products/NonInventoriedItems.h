#pragma once

#include "platform/GridModel.h"
#include "products/ItemFields.h"
#include "products/SalesItemLists.h"
#include "store/BasicDiskRoutines.h"

/// The items without a price as the products screen keeps them: the only writer of
/// NonInventoriedItems.txt. As with the priced ones, the grid is the editing model. There is no
/// way to delete one.
class NonInventoriedItems {
public:
    explicit NonInventoriedItems(BasicDiskRoutines& diskRoutines);

    GridModel fgNonItem;

    /// The texts of fraUnInventoried's entry fields, as typed; the description is
    /// txtDescription(0).
    struct Entry {
        QString txtDescription;
        QString txtOnHandNon;
        QString txtReorderAmountNon;
        QString txtReorderAtNon;
    } entry;

    /// Which controls can be used; `entry` stands for Save and the description.
    struct Enabled {
        bool modify = false;
        bool entry = false;
        bool grid = true;
    } enabled;

    /// True during Modify, false during Add New.
    bool EditingExisting = false;

    /// What creating the screen loads: the items, if there is a file of them.
    void Load();
    /// Fills the grid from the file, in the order of the stock as text. The item that was current
    /// stays so.
    void LoadNonInventoriedItems();

    void fgNonItem_Click(int row);

    ItemFocus AddNew();
    /// The grid stays open, unlike that of the priced items: what is saved goes to the row that is
    /// current then.
    ItemFocus Modify();
    /// Stops without a word where an entry is missing. A count that is no number, or that its
    /// field of the record can't hold, is a failure, and the file stays as it is.
    ItemFocus Save();
    void Clear();
    /// Also closes the grid, until it is loaded again.
    void Cancel();

private:
    void FillRow(int row, const NonInventoriedItem& item, int recordNumber);
    void AddRow();
    void WriteRow(int row);

    BasicDiskRoutines& disk;
};
