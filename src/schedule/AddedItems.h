#pragma once

#include "platform/Operator.h"
#include "products/SalesItemLists.h"
#include "schedule/ScheduleBoard.h"
#include "setup/LiveSettings.h"
#include "slips/DeliverySlipRoutines.h"

#include <QString>

/// The adding of goods to one delivery on the board: which products are marked, the quantity being
/// entered, and the storing of the slip that comes of it. What is entered here stands in the
/// products' grid, and goes to the items of the slip panel when the operator says so.
class AddedItems {
public:
    AddedItems(ScheduleBoard& scheduleBoard, SalesItemLists& itemLists,
               DeliverySlipRoutines& slipRoutines, const LiveSettings& liveSettings,
               Operator& person);

    /// Whether the panel shows.
    bool fraAddItems = false;
    /// Whether the products show. While a quantity is entered they don't.
    bool fgAddItems = true;
    QString txtQuantity;
    /// From the adding of items to the storing of the slip.
    bool SaveIsEnabled = false;

    /// Shows the panel and gives the products that are on the slip their quantities and totals. Of
    /// what an earlier use has left in the products' grid, nothing is taken away.
    void Open();
    void Close();

    /// A click on a product: in the first column it marks the row or clears it, in the quantity's
    /// column it marks it. A row that gets marked goes on to the entry of its quantity.
    void ClickProduct(int row, AddItemColumn column);
    /// Enters txtQuantity to the current row, with its total. A quantity of 0 is told of and
    /// entered all the same; one that is no number, as an empty one, is refused with a beep.
    void EnterQuantity();
    /// Runs the last click on a product once more, and shows the products again.
    void CancelItem();

    /// Takes the quantities of all products to the lines of the slip that have the same
    /// description, and adds a line for every other marked product. A line of which the quantity
    /// was cleared has no total then, and fails the sum. The products are read anew; those without
    /// a price come back with the next refresh of all lists.
    void AddToSlip();
    /// Stores the items of the slip panel as a new one-time slip, and processes the slip at the
    /// position of the grid's current row in the slip table. The board is empty then until a date
    /// or vehicle is chosen.
    void SaveSlip();

private:
    const QString& Product(int row, AddItemColumn column) const;
    void SetProduct(int row, AddItemColumn column, const QString& text);
    void EnterMark(int row);
    void ClearProduct(int row);
    void AppendProduct(int row);

    ScheduleBoard& board;
    SalesItemLists& items;
    DeliverySlipRoutines& slips;
    const LiveSettings& settings;
    Operator& user;
};
