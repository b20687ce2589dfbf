#include "schedule/AddedItems.h"

#include "schedule/InvoiceTotals.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

const QString noQuantity = u"0"_s;

} // namespace

AddedItems::AddedItems(ScheduleBoard& scheduleBoard, SalesItemLists& itemLists,
                       DeliverySlipRoutines& slipRoutines, const LiveSettings& liveSettings,
                       Operator& person)
    : board(scheduleBoard), items(itemLists), slips(slipRoutines), settings(liveSettings),
      user(person) {}

const QString& AddedItems::Product(int row, AddItemColumn column) const {
    return items.fgAddItems.Text(row, int(column));
}

void AddedItems::SetProduct(int row, AddItemColumn column, const QString& text) {
    items.fgAddItems.SetText(row, int(column), text);
}

void AddedItems::Open() {
    fraAddItems = true;
    fgAddItems = true;
    txtQuantity = noQuantity;
    const auto cell = [this](int row, SlipItemColumn column) {
        return board.fgItems.Text(row, int(column));
    };
    for (int line = 1; line <= board.fgItems.DataRows(); ++line) {
        const int row = items.fgAddItems.FindRow(int(AddItemColumn::Description),
                                                 cell(line, SlipItemColumn::Description));
        if (row == 0)
            continue;
        SetProduct(row, AddItemColumn::Quantity, cell(line, SlipItemColumn::Units));
        SetProduct(row, AddItemColumn::ItemTotal, cell(line, SlipItemColumn::LineTotal));
    }
}

void AddedItems::Close() {
    fraAddItems = false;
}

void AddedItems::ClickProduct(int row, AddItemColumn column) {
    // Neither the heading nor the blank row of an empty list is a product.
    if (row < 1 || Product(row, AddItemColumn::Description).isEmpty())
        return;
    items.fgAddItems.SetCurrent(row, int(column));
    const bool isMarked = !Product(row, AddItemColumn::Select).isEmpty();
    if (column == AddItemColumn::Select && isMarked) {
        ClearProduct(row);
    } else if (column == AddItemColumn::Select) {
        if (txtQuantity != noQuantity)
            txtQuantity = Product(row, AddItemColumn::Quantity);
        EnterMark(row);
    } else if (column == AddItemColumn::Quantity) {
        txtQuantity = Product(row, AddItemColumn::Quantity);
        if (txtQuantity.isEmpty())
            txtQuantity = noQuantity;
        EnterMark(row);
    }
}

void AddedItems::EnterMark(int row) {
    SetProduct(row, AddItemColumn::Select, SelectionMark());
    fgAddItems = false;
}

void AddedItems::ClearProduct(int row) {
    if (!Product(row, AddItemColumn::Quantity).isEmpty() &&
        user.MsgBox(u"Do you want to Clear this Item?"_s, Buttons::YesNo, u"Clear Item"_s) ==
            Answer::No)
        return;
    for (const auto column :
         {AddItemColumn::Select, AddItemColumn::Quantity, AddItemColumn::ItemTotal})
        SetProduct(row, column, {});
}

void AddedItems::EnterQuantity() {
    const int row = items.fgAddItems.CurrentRow();
    if (row < 1)
        return;
    if (!IsNumeric(txtQuantity)) {
        user.Beep();
        txtQuantity = noQuantity;
        return;
    }
    if (txtQuantity == noQuantity) {
        if (settings.AlarmOn)
            user.Beep();
        if (settings.PromptsOn)
            user.MsgBox(u" Enter a Quantity"_s);
    }
    fgAddItems = true;
    SetProduct(row, AddItemColumn::Quantity, txtQuantity);
    SetProduct(row, AddItemColumn::ItemTotal,
               ItemTotal(Product(row, AddItemColumn::SellPrice), txtQuantity));
    txtQuantity = noQuantity;
}

void AddedItems::CancelItem() {
    ClickProduct(items.fgAddItems.CurrentRow(), AddItemColumn(items.fgAddItems.CurrentColumn()));
    fgAddItems = true;
}

void AddedItems::AddToSlip() {
    const auto setLine = [this](int line, SlipItemColumn column, const QString& text) {
        board.fgItems.SetText(line, int(column), text);
    };
    for (int row = 1; row <= items.fgAddItems.DataRows(); ++row) {
        const int line = board.fgItems.FindRow(int(SlipItemColumn::Description),
                                               Product(row, AddItemColumn::Description));
        if (line == 0)
            continue;
        setLine(line, SlipItemColumn::Units, Product(row, AddItemColumn::Quantity));
        setLine(line, SlipItemColumn::LineTotal, Product(row, AddItemColumn::ItemTotal));
        SetProduct(row, AddItemColumn::Select, {});
    }
    for (int row = 1; row <= items.fgAddItems.DataRows(); ++row) {
        if (!Product(row, AddItemColumn::Select).isEmpty())
            AppendProduct(row);
    }
    items.fgAddItems.ClearGrid();
    items.RefreshInventoriedItemLists();
    fraAddItems = false;
    RecalcSlipTotals(board.fgItems, settings, board.optTax, board.fraSlip);
    SaveIsEnabled = true;
}

void AddedItems::AppendProduct(int row) {
    const int line = board.fgItems.Rows();
    board.fgItems.SetRows(line + 1);
    const std::pair<SlipItemColumn, AddItemColumn> cells[] = {
        {SlipItemColumn::Units, AddItemColumn::Quantity},
        {SlipItemColumn::Description, AddItemColumn::Description},
        {SlipItemColumn::UnitPrice, AddItemColumn::SellPrice},
        {SlipItemColumn::LineTotal, AddItemColumn::ItemTotal}};
    for (const auto& [to, from] : cells)
        board.fgItems.SetText(line, int(to), Product(row, from));
}

void AddedItems::SaveSlip() {
    const int entry = board.fgSchedule.CurrentRow();
    slips.SplitSlip(slips.Table.Text(SlipLine::SlipNumber, entry), entry, board.fgItems,
                    board.fraSlip.lblGrandtotal);
    board.fgSchedule.ClearGrid();
    slips.LoadSlips(true);
    SaveIsEnabled = false;
}
