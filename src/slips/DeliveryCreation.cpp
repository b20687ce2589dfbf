#include "slips/DeliveryCreation.h"

#include "slips/SlipFrequency.h"
#include "store/Conversions.h"
#include "store/TextLines.h"
#include "store/VerifyDataRoutines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The frequency code of an entry of lstFrequency; not for its last, the multiple week days.
QString CodeOfPlace(int place) {
    return u"000000"_s + QString::number(place);
}

} // namespace

DeliveryCreation::DeliveryCreation(DeliveryForm& deliveryForm, const DeliveryParts& deliveryParts,
                                   const LiveSettings& liveSettings, const Clock& machineClock,
                                   Operator& person)
    : form(deliveryForm), parts(deliveryParts), settings(liveSettings), clock(machineClock),
      user(person) {}

const QStringList& DeliveryCreation::Frequencies() {
    static const QStringList frequencies = [] {
        QStringList labels;
        for (int place = 0; place < int(Frequency::MultipleWeekDays); ++place)
            labels += FrequencyLabel(CodeOfPlace(place));
        return labels << u"Multiple Week Days"_s;
    }();
    return frequencies;
}

void DeliveryCreation::Load() {
    parts.templates.RefreshList();
    form.lstTime = DeliveryTimes::firstSelection;
    form.DTShip = clock.Today();
    parts.calendar.NextAvailableWorkDay(form.DTShip);
}

void DeliveryCreation::Activate() {
    parts.itemLists.RefreshAll();
    form.lstItems = -1;
    form.leastDate = clock.Today();
    form.SlipIsRecurring = false;
    if (parts.fleet.Names.rowCount() > 0)
        lstVehicles_Click(0);
    StartNewSlip();
    DisableDaysOff();
    form.HideAllPanels();
    form.fraSetup = true;
    FillCustomer();
}

void DeliveryCreation::StartNewSlip() {
    ReloadNumber();
    form.DTShip = clock.Today();
    parts.calendar.NextAvailableWorkDay(form.DTShip);
    parts.items.ClearInvoice();
    parts.items.EnablePosting();
    parts.templates.SetPanelState();
}

/// The codes for six days are the other way round than where a date is moved on: with Monday to
/// Saturday it is the Saturday that can't be ticked, and Sunday can.
void DeliveryCreation::DisableDaysOff() {
    bool& sunday = form.ckMultiEnabled.front();
    bool& saturday = form.ckMultiEnabled.back();
    if (settings.WorkWeek == MondayToFriday || settings.WorkWeek == SundayToFriday)
        sunday = false;
    if (settings.WorkWeek == MondayToFriday || settings.WorkWeek == MondayToSaturday)
        saturday = false;
}

void DeliveryCreation::FillCustomer() {
    const DeliveryCustomer& customer = parts.customer;
    form.lblAcctNo = customer.AccountNumber;
    form.lblCustomer = {customer.Name, customer.Address1, customer.Address2,
                        customer.City, customer.State,    customer.PostalCode};
    form.txtShipto = form.lblCustomer;
    form.attention.clear();
    form.Focus = DeliveryFocus::Attention;
}

void DeliveryCreation::ReloadNumber() {
    parts.slips.LoadDeliveryNo();
    form.txtDeliveryNo = QString::number(parts.slips.NextSlipNumber);
}

void DeliveryCreation::EnterNewNumber() {
    form.txtDeliveryNo.clear();
    form.Focus = DeliveryFocus::SlipNumber;
}

ushort DeliveryCreation::txtDeliveryNo_KeyPress(ushort key, const QString& text) {
    // A point is unusual in a number of slips, even where it is let through.
    if (key == u'.')
        user.Beep();
    const ushort passed = FilterNoSpecial(key, text, user);
    return passed == 0 ? passed : FilterNumericKey(passed, text, user);
}

void DeliveryCreation::txtDeliveryNo_LostFocus() {
    if (!form.txtDeliveryNo.isEmpty())
        return;
    ReloadNumber();
    user.MsgBox(u"The Delivery Number has been reloaded"_s);
}

void DeliveryCreation::PrepareReference() {
    if (form.txtReference.isEmpty())
        form.txtReference = u"Prepared "_s + ShortDateText(clock.Today());
}

void DeliveryCreation::txtReference_LostFocus() {
    PrepareReference();
}

void DeliveryCreation::optRecurring_Click(RecurringOption option) {
    form.optRecurring = option;
    const bool isRecurring = option == RecurringOption::Recurring;
    form.lstFrequencyEnabled = isRecurring;
    if (isRecurring)
        lstFrequency_Click(int(Frequency::Weekly));
    form.lblShipping = isRecurring ? u"1st Delivery Date"_s : u"Delivery Date"_s;
    // The frequency stays; for a one-time slip nobody reads it.
    form.SlipIsRecurring = isRecurring;
}

void DeliveryCreation::lstFrequency_Click(int place) {
    form.lstFrequency = place;
    form.fraMulti = place == int(Frequency::MultipleWeekDays);
    if (form.fraMulti)
        form.ckMulti.fill(false);
    else
        form.SlipFrequency = CodeOfPlace(place);
}

void DeliveryCreation::AcceptDays() {
    form.fraMulti = false;
    MoveToFirstTickedDay();
    form.SlipFrequency.clear();
    for (const bool isTicked : form.ckMulti)
        form.SlipFrequency += isTicked ? u'1' : u'0';
    form.Focus = DeliveryFocus::ShipDate;
}

/// Without a ticked day the date ends a week later, and no beep tells of its arrival.
void DeliveryCreation::MoveToFirstTickedDay() {
    const auto ticked = std::find(form.ckMulti.begin(), form.ckMulti.end(), true);
    const auto weekday = ticked - form.ckMulti.begin() + 1;
    for (int step = 0; step < daysOfWeek; ++step) {
        if (WeekdayNumber(form.DTShip) == weekday) {
            user.Beep();
            return;
        }
        form.DTShip = DaysLater(form.DTShip, 1);
    }
}

void DeliveryCreation::DTShip_Click() {
    if (form.DTShip >= clock.Today())
        return;
    DateIsInvalid(user);
    parts.calendar.NextAvailableWorkDay(form.DTShip);
}

void DeliveryCreation::DTShip_Change(QDate date) {
    if (date < clock.Today())
        DateIsInvalid(user);
    form.DTShip = std::max(date, form.leastDate);
    parts.calendar.NextAvailableWorkDay(form.DTShip);
}

void DeliveryCreation::DTShip_CloseUp() {
    parts.calendar.NextAvailableWorkDay(form.DTShip);
}

void DeliveryCreation::lstVehicles_Click(int place) {
    form.lstVehicles = place;
    if (!form.ckProduct)
        parts.items.ApplyVehicle();
}

void DeliveryCreation::SameAsSoldTo() {
    form.txtShipto = form.lblCustomer;
}

void DeliveryCreation::ClearDeliverTo() {
    form.txtShipto.fill({});
    form.Focus = DeliveryFocus::ShipToName;
}

bool DeliveryCreation::CheckDeliveryNumber() {
    if (!form.txtDeliveryNo.isEmpty())
        return true;
    user.MsgBox(u"You have not entered an Delivery Number"_s);
    form.Focus = DeliveryFocus::SlipNumber;
    return false;
}

bool DeliveryCreation::CheckCustomerData() {
    bool isComplete = true;
    if (form.lblCustomer.front().isEmpty()) {
        user.MsgBox(u"Something is Wrong with your Customer Data"_s);
        isComplete = false;
    }
    if (form.txtShipto.front().isEmpty()) {
        user.MsgBox(u"You have not entered Deliver to Data"_s);
        form.Focus = DeliveryFocus::ShipToName;
        isComplete = false;
    }
    return isComplete;
}

/// What the option shows counts here, and not the slip's own flag.
void DeliveryCreation::TellFirstDelivery() {
    if (form.optRecurring == RecurringOption::Recurring)
        user.MsgBox(u" The 1st Delivery will be made on "_s + ShortDateText(form.DTShip) +
                    u"\nand will re-occurr "_s + Frequencies().value(form.lstFrequency));
}

void DeliveryCreation::Continue() {
    if (!CheckDeliveryNumber() || !CheckCustomerData())
        return;
    TellFirstDelivery();
    PrepareReference();
    parts.templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate] = true;
    mnuItems_Click();
    if (parts.itemLists.ProductNames.rowCount() == 1) {
        form.lstItems = 0;
        form.Focus = DeliveryFocus::Units;
    }
}

void DeliveryCreation::LoadTemplate() {
    parts.items.LoadTemplate();
    Continue();
}

void DeliveryCreation::mnuAccount_Click() {
    form.fraCustomer = !form.fraCustomer;
    if (form.fraCustomer)
        form.fraItems = form.fraSetup = false;
}

void DeliveryCreation::mnuSetup_Click() {
    form.HideAllPanels();
    form.fraSetup = true;
    form.Focus = DeliveryFocus::Attention;
}

void DeliveryCreation::mnuItems_Click() {
    form.HideAllPanels();
    form.fraItems = true;
    form.Focus = DeliveryFocus::Items;
}

void DeliveryCreation::ReDo() {
    parts.items.ClearInvoice();
    mnuSetup_Click();
}

SlipHeader DeliveryCreation::Header() const {
    SlipHeader header;
    header[SlipLine::SlipNumber] = form.txtDeliveryNo;
    header[SlipLine::Date] = ShortDateText(form.DTShip);
    header[SlipLine::Time] = parts.times.stringList().value(form.lstTime);
    header[SlipLine::Recurring] = BooleanWord(form.SlipIsRecurring);
    header[SlipLine::Frequency] = form.SlipFrequency;
    header[SlipLine::Vehicle] = parts.fleet.Names.stringList().value(form.lstVehicles);
    header[SlipLine::Account] = form.lblAcctNo;
    header[SlipLine::CustomerName] = form.lblCustomer.front();
    header[SlipLine::Reference] = form.txtReference;
    header[SlipLine::Attention] = form.attention;
    header.soldTo = form.lblCustomer;
    header.deliverTo = form.txtShipto;
    return header;
}

bool DeliveryCreation::Store() {
    if (parts.items.SlipItemCount < 1) {
        user.MsgBox(u"The Delivery contains no Items"_s, Buttons::Ok, u"No Items Entered"_s);
        return false;
    }
    parts.slips.StoreSlip(Header(), parts.items.fgDelivery, parts.items.SlipItemCount,
                          form.txtTotal);
    parts.slips.UpdateDeliveryCounter();
    Exit();
    return true;
}

void DeliveryCreation::Exit() {
    parts.items.ClearInvoice();
    form.txtDeliveryNo.clear();
    parts.settingsStore.SaveAppSettings();
}
