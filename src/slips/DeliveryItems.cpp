#include "slips/DeliveryItems.h"

#include "slips/DeliverySlipRoutines.h"
#include "store/Conversions.h"
#include "store/VerifyDataRoutines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int units = int(SlipItemColumn::Units);
constexpr int description = int(SlipItemColumn::Description);
constexpr int unitPrice = int(SlipItemColumn::UnitPrice);
constexpr int lineTotal = int(SlipItemColumn::LineTotal);

constexpr qint16 fullSlip = 100;
constexpr int rowsAfterDeletion = 101;
constexpr int headingAndEmptyRow = 2;

enum PostButton : size_t { NonPricedButton, ItemButton };

} // namespace

DeliveryItems::DeliveryItems(DeliveryForm& deliveryForm, const SalesItemLists& itemLists,
                             VehicleFleet& vehicleFleet, DeliveryTemplates& deliveryTemplates,
                             const LiveSettings& liveSettings, Operator& person)
    : fgDelivery({u"Units"_s, u"Description"_s, u"Unit Price"_s, u"Line Total"_s}),
      form(deliveryForm), items(itemLists), fleet(vehicleFleet), templates(deliveryTemplates),
      settings(liveSettings), user(person) {}

void DeliveryItems::ClearInvoice() {
    fgDelivery.ClearGrid();
    fgDelivery.SetCurrent(1, units);
    SlipItemCount = 0;
    form.txtUnits.clear();
    form.txtReference.clear();
    form.txtTotal = ZeroCurrencyText();
    SlipTotal = {};
}

void DeliveryItems::EnablePosting() {
    cmdPost.fill(true);
}

QString DeliveryItems::Vehicle() const {
    return fleet.Names.stringList().value(form.lstVehicles);
}

void DeliveryItems::ApplyVehicle() {
    LoadCapacity = 0;
    for (const VehicleRecord& vehicle : fleet.ReadVehicles()) {
        if (vehicle.Name.Trimmed() != Vehicle())
            continue;
        const QString capacity = vehicle.Capacity.Trimmed();
        if (!form.ckCapacity)
            LoadCapacity =
                IsNumeric(capacity) ? ToSingle(capacity, u"the capacity in Vehicles.txt"_s) : 0.0F;
        // Also for a vehicle that carries one product, which has no units.
        form.Label4 =
            vehicle.Mixed.Value() ? u"Enter Quantity"_s : u"Enter "_s + vehicle.Units.Trimmed();
    }
}

void DeliveryItems::CallTo(DeliveryFocus field) {
    if (settings.AlarmOn)
        user.Beep();
    form.Focus = field;
}

bool DeliveryItems::IsPositive(const QString& text, DeliveryFocus field) {
    if (ToInt16(text, u"the units to deliver"_s) >= 1)
        return true;
    user.MsgBox(u"Enter Units to Deliver"_s);
    form.Focus = field;
    return false;
}

bool DeliveryItems::FitsVehicle(QString& text, DeliveryFocus field) {
    if (form.ckCapacity || LoadCapacity == 0.0F ||
        ToSingle(text, u"the units to deliver"_s) <= LoadCapacity)
        return true;
    user.MsgBox(text + u" exceeds the load capacity\nof "_s + Vehicle() +
                u"\nEnter a lower delivery amount"_s);
    text = u"0"_s;
    form.Focus = field;
    return false;
}

void DeliveryItems::PostItem() {
    if (!IsPositive(form.txtUnits, DeliveryFocus::Units) ||
        !FitsVehicle(form.txtUnits, DeliveryFocus::Units))
        return;
    const QString item = items.ProductNames.stringList().value(form.lstItems);
    if (item.isEmpty()) {
        CallTo(DeliveryFocus::Items);
        return;
    }
    const QString price = items.ProductPrices.stringList().value(form.lstItems);
    const QString where = u"the price of "_s + item;
    AddLine(form.txtUnits, item, CurrencyText(price, where),
            CurrencyText(ToDouble(price, where) * ToDouble(form.txtUnits)));
    FinishPost(ItemButton);
    RecalculateTotal();
}

void DeliveryItems::PostNonPriced() {
    if (form.cboNonPricedDescription.isEmpty()) {
        CallTo(DeliveryFocus::NonPricedDescription);
        return;
    }
    if (!IsPositive(form.txtNonPriced, DeliveryFocus::NonPricedUnits) ||
        !FitsVehicle(form.txtNonPriced, DeliveryFocus::NonPricedUnits))
        return;
    AddLine(form.txtNonPriced, form.cboNonPricedDescription, ZeroCurrencyText(),
            ZeroCurrencyText());
    FinishPost(NonPricedButton);
    form.Focus = DeliveryFocus::NonPricedDescription;
}

void DeliveryItems::AddLine(const QString& lineUnits, const QString& lineDescription,
                            const QString& price, const QString& total) {
    const int row = SlipItemCount + 1;
    fgDelivery.SetText(row, units, lineUnits);
    fgDelivery.SetText(row, description, lineDescription);
    fgDelivery.SetText(row, unitPrice, price);
    fgDelivery.SetText(row, lineTotal, total);
}

void DeliveryItems::FinishPost(size_t button) {
    ++SlipItemCount;
    fgDelivery.SetRows(fgDelivery.Rows() + 1);
    fgDelivery.SetCurrent(fgDelivery.CurrentRow() + 1, fgDelivery.CurrentColumn());
    if (SlipItemCount == fullSlip) {
        user.Beep();
        user.MsgBox(u"The Slip is full"_s);
        // The other button stays enabled, and can take the slip past its hundred lines.
        cmdPost[button] = false;
    }
    form.txtUnits.clear();
    const int listed = items.ProductNames.rowCount();
    form.lstItems = listed > 0 ? 0 : -1;
    // Where there is nothing to choose, the units are what comes next.
    form.Focus = listed == 1 ? DeliveryFocus::Units : DeliveryFocus::Items;
}

void DeliveryItems::LeaveNonPriced() {
    form.fraNonPriced = false;
    form.fraItems = true;
    form.Focus = DeliveryFocus::Items;
}

void DeliveryItems::ShowNonPriced() {
    form.HideAllPanels();
    form.fraNonPriced = true;
    form.cboNonPricedDescription.clear();
    form.txtNonPriced = u"0"_s;
    form.Focus = DeliveryFocus::NonPricedDescription;
}

void DeliveryItems::cboNonPricedDescription_Click() {
    form.txtNonPriced.clear();
    form.Focus = DeliveryFocus::NonPricedUnits;
}

void DeliveryItems::txtUnits_LostFocus() {
    if (form.txtUnits.isEmpty() || IsNumeric(form.txtUnits))
        return;
    form.txtUnits = u"0"_s;
    form.Focus = DeliveryFocus::Units;
    user.Beep();
}

void DeliveryItems::RecalculateTotal() {
    SlipTotal = {};
    for (int row = 1; row <= SlipItemCount; ++row)
        SlipTotal += ToCurrency(fgDelivery.Text(row, lineTotal));
    form.txtTotal = CurrencyText(SlipTotal);
}

void DeliveryItems::EditUnits(ushort key) {
    const int row = fgDelivery.CurrentRow();
    if (row < 1 || fgDelivery.CurrentColumn() != units || fgDelivery.Text(row, units).isEmpty())
        return;
    if (key == backspaceKey) {
        fgDelivery.SetText(row, units, {});
        fgDelivery.SetText(row, lineTotal, ZeroCurrencyText());
    } else if (const ushort digit = FilterDigitKey(key)) {
        fgDelivery.SetText(row, units, fgDelivery.Text(row, units) + QChar(digit));
        // It is the old line total that is multiplied, and not the unit price.
        fgDelivery.SetText(row, lineTotal,
                           CurrencyText(ToDouble(fgDelivery.Text(row, units)) *
                                        ToDouble(fgDelivery.Text(row, lineTotal))));
    }
}

bool DeliveryItems::HasItem() const {
    const int row = fgDelivery.CurrentRow();
    return row >= 1 && !fgDelivery.Text(row, description).isEmpty();
}

void DeliveryItems::DeleteItem() {
    if (!HasItem())
        return;
    const int row = fgDelivery.CurrentRow();
    if (user.MsgBox(u"Delete item "_s + fgDelivery.Text(row, description) + u" from Invoice?"_s,
                    Buttons::YesNo, u"Item Deletion"_s) != Answer::Yes)
        return;
    const GridModel::Refill refill(fgDelivery);
    fgDelivery.RemoveRow(row);
    --SlipItemCount;
    // A slip can go past its hundred lines. No line of such a slip is cut off, and the next post
    // finds its empty row.
    fgDelivery.SetRows(std::max(rowsAfterDeletion, SlipItemCount + headingAndEmptyRow));
}

void DeliveryItems::LoadTemplate() {
    ClearInvoice();
    SlipItemCount = templates.LoadTemplate(fgDelivery);
    RecalculateTotal();
}
