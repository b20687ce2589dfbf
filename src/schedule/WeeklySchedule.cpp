#include "schedule/WeeklySchedule.h"

#include "slips/SlipFrequency.h"
#include "store/Calendar.h"
#include "store/Conversions.h"
#include "store/DeliveryTimes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsInQuarter = 3;
constexpr int monthsInYear = 12;

/// Within one year it sorts by date. Across New Year it doesn't, since it has no leading zeros: 5
/// January 2027 has 20275, which comes before the 2026200 of 19 July 2026. It is meant so.
QString DateSortKey(QDate date) {
    return QString::number(date.year()) + QString::number(date.dayOfYear());
}

int MonthsOf(WeeklySchedule::Preset preset) {
    switch (preset) {
    case WeeklySchedule::Preset::NextMonth:
        return 1;
    case WeeklySchedule::Preset::NextQuarter:
        return monthsInQuarter;
    case WeeklySchedule::Preset::NextYear:
        return monthsInYear;
    case WeeklySchedule::Preset::Today:
        break;
    }
    return 0;
}

} // namespace

WeeklySchedule::WeeklySchedule(DeliverySlipRoutines& slipRoutines, const LiveSettings& liveSettings,
                               const Clock& machineClock, Operator& person)
    : fgWeekly({u"Delivery No"_s, u"Account No"_s, u"Account Name"_s, u"Delivery Date"_s, u"Time"_s,
                u"Vehicle"_s, u"Frequency"_s, u"JDate"_s, u"Time"_s, u"Rec"_s}),
      slips(slipRoutines), settings(liveSettings), clock(machineClock), user(person) {}

QString WeeklySchedule::Cell(int row, WeeklyColumn column) const {
    return fgWeekly.Text(row, int(column));
}

void WeeklySchedule::SetCell(int row, WeeklyColumn column, const QString& text) {
    fgWeekly.SetText(row, int(column), text);
}

int WeeklySchedule::Deliveries() const {
    // A row without an entry is the empty one that a grid without deliveries keeps.
    const bool isEmpty = fgWeekly.DataRows() == 0 || Cell(1, WeeklyColumn::Entry).isEmpty();
    return isEmpty ? 0 : fgWeekly.DataRows();
}

void WeeklySchedule::Load() {
    ckVehicle = false;
    DTStarting = clock.Today();
    DTEnding = MonthsLater(DTStarting, 1);
    ClearWeeklyGrid();
    LoadSlips();
}

void WeeklySchedule::Refresh() {
    LoadSlips();
    if (IsLoaded)
        LoadGrid();
}

void WeeklySchedule::LoadSlips() {
    const BusyPointer busy(user);
    slips.LoadSlips(false);
}

void WeeklySchedule::ApplyPreset(Preset preset) {
    DTStarting = clock.Today();
    DTEnding = MonthsLater(DTStarting, MonthsOf(preset));
    LoadGrid();
}

bool WeeklySchedule::ChangeStarting(QDate date) {
    return ChangeDate(DTStarting, date);
}

bool WeeklySchedule::ChangeEnding(QDate date) {
    return ChangeDate(DTEnding, date);
}

bool WeeklySchedule::ChangeDate(QDate& field, QDate date) {
    const QDate today = clock.Today();
    field = std::max(date, today);
    if (date >= today)
        return true;
    if (settings.AlarmOn)
        user.Beep();
    if (settings.PromptsOn)
        user.MsgBox(u"Your Date Selection was Invalid"_s, Buttons::Ok, u"Invalid Date"_s);
    return false;
}

void WeeklySchedule::ChooseVehicle(const QString& vehicle) {
    lstVehicles = vehicle;
    ClearWeeklyGrid();
}

/// What has been picked goes with the rows.
void WeeklySchedule::ClearWeeklyGrid() {
    fgWeekly.ClearGrid();
    IsLoaded = false;
    RemoveIsEnabled = false;
    RescheduleIsEnabled = false;
    fraReschedule = {};
}

void WeeklySchedule::LoadGrid() {
    ClearWeeklyGrid();
    LoadWeeklyGrid();
    IsLoaded = true;
}

void WeeklySchedule::LoadWeeklyGrid() {
    const GridModel::Refill refill(fgWeekly);
    const std::vector<Counted> counted = CountedSlips();
    // A range without deliveries keeps one empty row.
    fgWeekly.SetRows(std::max(int(counted.size()), 1) + 1);
    int row = 0;
    for (const Counted& slip : counted)
        FillRow(++row, slip);
    fgWeekly.SortAsNumbers(int(WeeklyColumn::TimeSortKey), LeadingNumber);
    fgWeekly.SortAsNumbers(int(WeeklyColumn::DateSortKey), LeadingNumber);
    fgWeekly.SetCurrent(1, int(WeeklyColumn::DeliveryNo));
}

std::vector<WeeklySchedule::Counted> WeeklySchedule::CountedSlips() const {
    std::vector<Counted> counted;
    for (int entry = 1; entry <= slips.SlipCount; ++entry) {
        // The date comes first: a slip whose date is no date stops the load, whatever its vehicle.
        const QDate date = ToDate(slips.Table.View(SlipLine::Date, entry), [&] {
            return u"the delivery date of slip "_s + slips.Table.Text(SlipLine::SlipNumber, entry);
        });
        if (date >= DTStarting && date <= DTEnding && CountsVehicle(entry))
            counted.push_back({entry, date});
    }
    return counted;
}

bool WeeklySchedule::CountsVehicle(int entry) const {
    return !ckVehicle || slips.Table.View(SlipLine::Vehicle, entry) == lstVehicles;
}

void WeeklySchedule::FillRow(int row, const Counted& slip) {
    const auto line = [&](SlipLine which) { return slips.Table.Text(which, slip.entry); };
    const QString time = line(SlipLine::Time);
    SetCell(row, WeeklyColumn::DeliveryNo, line(SlipLine::SlipNumber));
    SetCell(row, WeeklyColumn::AccountNo, line(SlipLine::Account));
    SetCell(row, WeeklyColumn::AccountName, line(SlipLine::CustomerName));
    SetCell(row, WeeklyColumn::DeliveryDate, ShortDateText(slip.date));
    SetCell(row, WeeklyColumn::Time, time);
    SetCell(row, WeeklyColumn::Vehicle, line(SlipLine::Vehicle));
    SetCell(row, WeeklyColumn::Frequency, FrequencyLabel(line(SlipLine::Frequency)));
    SetCell(row, WeeklyColumn::DateSortKey, DateSortKey(slip.date));
    SetCell(row, WeeklyColumn::TimeSortKey, TimeSortKey(time));
    SetCell(row, WeeklyColumn::Entry, QString::number(slip.entry));
}

void WeeklySchedule::PickRow(int row, int column) {
    const bool isPicked = row > 0 && WeeklyColumn(column) == WeeklyColumn::DeliveryNo &&
                          !Cell(row, WeeklyColumn::DeliveryNo).isEmpty();
    RemoveIsEnabled = isPicked;
    RescheduleIsEnabled = isPicked;
}

bool WeeklySchedule::Confirm(const QString& question) {
    return user.MsgBox(question, Buttons::YesNo, u"Confirm Delete"_s) == Answer::Yes;
}

void WeeklySchedule::RemoveDelivery() {
    // Also for an operator who says No: he picks the row again.
    RemoveIsEnabled = false;
    const int entry = ToInt16(Cell(fgWeekly.CurrentRow(), WeeklyColumn::Entry));
    const auto line = [&](SlipLine which) { return slips.Table.Text(which, entry); };
    const QString slipNo = line(SlipLine::SlipNumber);
    if (!Confirm(u"This will DELETE or RESCHEDULE (if Recurring) Slip No "_s + slipNo +
                 u"\nClick Yes to Delete"_s) ||
        !Confirm(u"Are you sure?"_s))
        return;
    slips.ProcessPastSlip(slipNo, line(SlipLine::Date), line(SlipLine::Recurring),
                          line(SlipLine::Frequency));
    LoadSlips();
    LoadGrid();
}

void WeeklySchedule::OpenReschedule() {
    const auto cell = [&](WeeklyColumn column) { return Cell(fgWeekly.CurrentRow(), column); };
    fraReschedule = {.IsShown = true,
                     .lblDelivery = cell(WeeklyColumn::DeliveryNo),
                     .lblAccount = cell(WeeklyColumn::AccountNo),
                     .lblAccountName = cell(WeeklyColumn::AccountName),
                     .lblVehicle = cell(WeeklyColumn::Vehicle),
                     .dtReschedule = {},
                     .lstTime = cell(WeeklyColumn::Time),
                     .lstRescheduleVehicles = cell(WeeklyColumn::Vehicle)};
    ChangeRescheduleDate(ToDate(cell(WeeklyColumn::DeliveryDate)));
}

void WeeklySchedule::ChangeRescheduleDate(QDate date) {
    fraReschedule.dtReschedule = std::max(date, clock.Today());
}

void WeeklySchedule::SaveDelivery() {
    const ReschedulePanel panel = fraReschedule;
    if (slips.IsSlotFree(panel.dtReschedule, panel.lstTime, panel.lstRescheduleVehicles)) {
        const int row = fgWeekly.CurrentRow();
        SetCell(row, WeeklyColumn::DeliveryDate, ShortDateText(panel.dtReschedule));
        SetCell(row, WeeklyColumn::Time, panel.lstTime);
        SetCell(row, WeeklyColumn::Vehicle, panel.lstRescheduleVehicles);
        // With `keep`, time and vehicle stay in the file as they were. It is meant so.
        slips.RewriteSlipHeader(Cell(row, WeeklyColumn::DeliveryNo), true,
                                Cell(row, WeeklyColumn::DeliveryDate),
                                Cell(row, WeeklyColumn::Time), Cell(row, WeeklyColumn::Vehicle));
        Load();
    }
    CloseReschedule();
    RescheduleIsEnabled = false;
}

void WeeklySchedule::CloseReschedule() {
    fraReschedule.IsShown = false;
}
