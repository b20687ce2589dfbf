#pragma once

#include "platform/GridModel.h"
#include "store/BasicDiskRoutines.h"
#include "store/FixedRecord.h"

#include <QStringListModel>

#include <cstddef>

/// Record of NXInventoriedItems.txt: a priced product with stock.
struct SalesItem {
    FixedText<50> Description;
    FixedText<20> Category;
    LittleCurrency UnitCost;
    LittleCurrency SellPrice;
    LittleInt16 OnHand;
    LittleCurrency DiscountPrice;
    LittleInt32 DiscountQty;
    LittleInt16 ReorderAmount;
    LittleInt16 ReorderPoint;
};

static_assert(sizeof(SalesItem) == 104);
static_assert(offsetof(SalesItem, Category) == 50);
static_assert(offsetof(SalesItem, UnitCost) == 70);
static_assert(offsetof(SalesItem, SellPrice) == 78);
static_assert(offsetof(SalesItem, OnHand) == 86);
static_assert(offsetof(SalesItem, DiscountPrice) == 88);
static_assert(offsetof(SalesItem, DiscountQty) == 96);
static_assert(offsetof(SalesItem, ReorderAmount) == 100);
static_assert(offsetof(SalesItem, ReorderPoint) == 102);

/// Record of NonInventoriedItems.txt: an item without a price.
struct NonInventoriedItem {
    FixedText<50> Description;
    LittleInt16 OnHand;
    LittleInt16 ReorderAmount;
    LittleInt16 ReorderPoint;
};

static_assert(sizeof(NonInventoriedItem) == 56);
static_assert(offsetof(NonInventoriedItem, OnHand) == 50);
static_assert(offsetof(NonInventoriedItem, ReorderAmount) == 52);
static_assert(offsetof(NonInventoriedItem, ReorderPoint) == 54);

/// Columns of fgAddItems.
enum class AddItemColumn { Select, Quantity, Description, SellPrice, ItemTotal };

/// The lists by which all screens but the products screen know the items. They are filled from the
/// files when a refresh routine runs, and not in between.
class SalesItemLists {
public:
    explicit SalesItemLists(BasicDiskRoutines& diskRoutines);

    /// Both refresh routines, in the order that puts the priced items first in fgAddItems.
    void RefreshAll();
    /// Nothing happens when the file is missing: the lists stay as they are.
    void RefreshInventoriedItemLists();
    /// The same; only appends to fgAddItems.
    void RefreshNonInventoriedItemLists();

    /// Names of the priced items, and in step with them their sell prices as currency text.
    QStringListModel ProductNames;
    QStringListModel ProductPrices;
    /// Names of the items without a price.
    QStringListModel NonPricedNames;
    /// Columns: "Sel", "Qty", "Description", "Sell Price", "Item Total".
    GridModel fgAddItems;

private:
    void SelectLastAddItem();

    BasicDiskRoutines& disk;
};
