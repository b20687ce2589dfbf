#pragma once

#include "platform/Screen.h"
#include "products/SalesItemLists.h"

class AddedItems;
class EntryField;
class Grid;
class Operator;
class QPushButton;

/// The board's panel on which goods are added to one delivery: the products, and in their place the
/// entry of a quantity. A class of its own to keep the board's screen to the board.
class AddItemsPanel : public Card {
    Q_OBJECT

public:
    /// `products` is the grid that the rules mark and fill.
    AddItemsPanel(AddedItems& addedItems, GridModel& products, Operator& person);

    /// Its places in the array cmdPrint.
    enum Button {
        AddToSlip = 9,
        CloseWithoutAdding = 10,
        AddToGrid = 11,
        CancelAddItem = 13,
    };

    /// Opens the panel on the slip that the board shows.
    void Open();

Q_SIGNALS:
    /// The items of the slip and their totals have changed.
    void Added();
    /// The panel has been hidden, with or without adding.
    void Closed();

private:
    QPushButton* MakeButton(Button index, const QString& caption);
    QWidget* MakeProducts();
    QWidget* MakeQuantityEntry();

    void ShowState();
    void FocusOnEntry();

    void fgAddItems_KeyPress(ushort key);
    void cmdPrint_Click(Button index);

    AddedItems& added;
    GridModel& products;
    Operator& user;

    Grid* fgAddItems = nullptr;
    QWidget* quantityEntry = nullptr;
    QLabel* productName = nullptr;
    EntryField* txtQuantity = nullptr;
};
