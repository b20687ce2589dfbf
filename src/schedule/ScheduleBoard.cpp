#include "schedule/ScheduleBoard.h"

#include "platform/Keys.h"
#include "platform/RuntimeFailure.h"
#include "slips/SlipFrequency.h"
#include "store/Conversions.h"
#include "store/DeliveryTimes.h"
#include "store/TextLines.h"
#include "store/VerifyDataRoutines.h"

#include <limits>

using namespace Qt::StringLiterals;

QString SelectionMark() {
    return u" \u00ab"_s;
}

bool IsAbsence(const QString& text) {
    for (const QString& word : {u"Vacation"_s, u"Holiday"_s, u"Personal Day"_s, u"Sick Day"_s}) {
        if (text.contains(word))
            return true;
    }
    return false;
}

ScheduleBoard::ScheduleBoard(BasicDiskRoutines& diskRoutines, DeliverySlipRoutines& slipRoutines,
                             Calendar& deliveryCalendar, const LiveSettings& liveSettings,
                             const Clock& machineClock, Operator& person)
    : fgSchedule({u"Select"_s, u"Customer"_s, u"Account No"_s, u"Delivery Slip No"_s, u"Time"_s,
                  u"Delivery Charge"_s, u"Recurring"_s, u"Frequency"_s, QString()}),
      fgItems({u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}),
      disk(diskRoutines), slips(slipRoutines), calendar(deliveryCalendar), settings(liveSettings),
      clock(machineClock), user(person), invoiceNumber(diskRoutines, machineClock) {}

QString ScheduleBoard::Cell(int row, ScheduleColumn column) const {
    return fgSchedule.Text(row, int(column));
}

void ScheduleBoard::SetCell(int row, ScheduleColumn column, const QString& text) {
    fgSchedule.SetText(row, int(column), text);
}

void ScheduleBoard::Initform(const QString& firstVehicle) {
    lstWorkSchedule.setStringList({});
    fgSchedule.SetRows(1);
    QDate today = clock.Today();
    ChangeDate(calendar.NextAvailableWorkDay(today));
    if (!firstVehicle.isEmpty())
        ChooseVehicle(firstVehicle);
    fraSlip = {};
    fraSlip.lblTotal = ZeroCurrencyText();
    fraSlip.lblCharge = ZeroCurrencyText();
    LoadInvoiceNumber();
    SetTaxOptions(settings, optTax);
    txtDeliveryCharge =
        settings.ckDeliveryCharge == 1 ? settings.txtDeliveryCharge : ZeroCurrencyText();
    fraSlip.lblTax1 = ZeroCurrencyText();
    fraSlip.lblTax2 = ZeroCurrencyText();
}

void ScheduleBoard::ChangeDate(QDate date) {
    if (date < clock.Today()) {
        date = clock.Today();
        if (settings.AlarmOn)
            user.Beep();
        if (settings.PromptsOn)
            user.MsgBox(u"Date has been Reset to Next Available Work Day"_s, Buttons::Ok,
                        u"Invalid Date"_s);
    }
    DTPicker1 = calendar.NextAvailableWorkDay(date);
    LoadScheduleGrid();
}

void ScheduleBoard::ChooseVehicle(const QString& vehicle) {
    lstVehicles = vehicle;
    LoadScheduleGrid();
}

bool ScheduleBoard::IsOnBoard(int entry) const {
    // The date comes first: a slip whose date is no date stops the board, whatever its vehicle.
    const QDate date = ToDate(slips.Table.View(SlipLine::Date, entry), [&] {
        return u"the delivery date of slip "_s + slips.Table.Text(SlipLine::SlipNumber, entry);
    });
    return date == DTPicker1 && slips.Table.View(SlipLine::Vehicle, entry) == lstVehicles;
}

int ScheduleBoard::AddRow(int row, int entry, const QString& charge) {
    const auto line = [&](SlipLine which) { return slips.Table.Text(which, entry); };
    SetCell(row, ScheduleColumn::Customer, line(SlipLine::CustomerName));
    SetCell(row, ScheduleColumn::AccountNo, line(SlipLine::Account));
    SetCell(row, ScheduleColumn::SlipNo, line(SlipLine::SlipNumber));
    SetCell(row, ScheduleColumn::Time, line(SlipLine::Time));
    SetCell(row, ScheduleColumn::DeliveryCharge, charge);
    SetCell(row, ScheduleColumn::Recurring, line(SlipLine::Recurring));
    SetCell(row, ScheduleColumn::Frequency, FrequencyLabel(line(SlipLine::Frequency)));
    SetCell(row, ScheduleColumn::TimeSortKey, TimeSortKey(line(SlipLine::Time)));
    fgSchedule.SetRows(row + 2);
    return row + 1;
}

void ScheduleBoard::LoadScheduleGrid() {
    const GridModel::Refill refill(fgSchedule);
    fgSchedule.ClearGrid();
    const QString noCharge = ZeroCurrencyText();
    int row = 1;
    for (int entry = 1; entry <= slips.SlipCount; ++entry) {
        disk.CheckOpens(
            DeliverySlipRoutines::HeaderFile(slips.Table.View(SlipLine::SlipNumber, entry)));
        if (IsOnBoard(entry))
            row = AddRow(row, entry, noCharge);
    }
    // A day without deliveries keeps one empty row.
    if (row > 1)
        fgSchedule.SetRows(row);
    fgSchedule.SetCurrent(fgSchedule.DataRows(), int(ScheduleColumn::TimeSortKey));
    fgSchedule.SortAsNumbers(int(ScheduleColumn::TimeSortKey), LeadingNumber);
}

bool ScheduleBoard::ToggleMark(int row) {
    if (fgSchedule.DataRows() > std::numeric_limits<quint8>::max())
        throw RuntimeFailure(FailureKind::Overflow,
                             u"Marking a delivery failed: the day has more than 255 deliveries."_s);
    for (int other = 1; other <= fgSchedule.DataRows(); ++other) {
        if (other != row)
            SetCell(other, ScheduleColumn::Select, {});
    }
    if (!Cell(row, ScheduleColumn::Select).isEmpty()) {
        SetCell(row, ScheduleColumn::Select, {});
        return false;
    }
    SetCell(row, ScheduleColumn::Select, SelectionMark());
    SelectedSlip = Cell(row, ScheduleColumn::SlipNo);
    return true;
}

void ScheduleBoard::SelectAll() {
    for (int row = 1; row <= fgSchedule.DataRows(); ++row)
        SetCell(row, ScheduleColumn::Select, SelectionMark());
    RebuildWorkSchedule();
}

void ScheduleBoard::DeselectAll() {
    for (int row = 1; row <= fgSchedule.DataRows(); ++row)
        SetCell(row, ScheduleColumn::Select, {});
    lstWorkSchedule.setStringList({});
}

void ScheduleBoard::RebuildWorkSchedule() {
    QStringList customers;
    for (int row = 1; row <= fgSchedule.DataRows(); ++row) {
        if (!Cell(row, ScheduleColumn::Select).isEmpty())
            customers += Cell(row, ScheduleColumn::Customer);
    }
    lstWorkSchedule.setStringList(customers);
}

ScheduleBoard::ChargeEntry ScheduleBoard::EnterCharge() {
    const int row = fgSchedule.CurrentRow();
    if (row < 1)
        return ChargeEntry::NoRow;
    if (Cell(row, ScheduleColumn::SlipNo).isEmpty()) {
        user.MsgBox(u"You have not selected a Delivery from the Grid"_s);
        return ChargeEntry::NoDelivery;
    }
    if (!IsNumeric(txtDeliveryCharge)) {
        user.Beep();
        return ChargeEntry::NoAmount;
    }
    txtDeliveryCharge = CurrencyText(txtDeliveryCharge);
    SetCell(row, ScheduleColumn::DeliveryCharge, txtDeliveryCharge);
    fraSlip.lblCharge = txtDeliveryCharge;
    UpdateGrandTotal(fraSlip);
    return ChargeEntry::Entered;
}

void ScheduleBoard::ClearCharge() {
    txtDeliveryCharge = ZeroCurrencyText();
}

void ScheduleBoard::MultiplyCells(int row) {
    const QString slipNo = Cell(row, ScheduleColumn::SlipNo);
    const QString time = Cell(row, ScheduleColumn::Time);
    if (IsNumeric(slipNo) && IsNumeric(time))
        SetCell(row, ScheduleColumn::DeliveryCharge,
                CurrencyText(ToDouble(slipNo) * ToDouble(time)));
    else
        user.Beep();
}

ScheduleBoard::CursorMove ScheduleBoard::EditCell(ushort key) {
    const int row = fgSchedule.CurrentRow();
    const auto column = ScheduleColumn(fgSchedule.CurrentColumn());
    if (row < 1)
        return CursorMove::None;
    const bool takesDigits = column == ScheduleColumn::SlipNo || column == ScheduleColumn::Time;
    if (key == backspaceKey) {
        QString text = Cell(row, column);
        text.chop(1);
        SetCell(row, column, text);
    } else if (key == enterKey) {
        MultiplyCells(row);
        if (takesDigits)
            return column == ScheduleColumn::SlipNo ? CursorMove::Right : CursorMove::Left;
    } else if (takesDigits) {
        if (const ushort digit = FilterDigitKey(key))
            SetCell(row, column, Cell(row, column) + QChar(digit));
    }
    return CursorMove::None;
}

void ScheduleBoard::LoadSlipPanel(const QString& slipNo) {
    for (int row = 1; row <= fgSchedule.DataRows(); ++row) {
        if (Cell(row, ScheduleColumn::SlipNo) != slipNo)
            continue;
        fraSlip.lblTime = Cell(row, ScheduleColumn::Time);
        fraSlip.lblAcctNo = Cell(row, ScheduleColumn::AccountNo);
        fraSlip.lblCharge = Cell(row, ScheduleColumn::DeliveryCharge);
        break;
    }
    LoadAddresses(slipNo);
    LoadSlipItems(slipNo);
    fraSlip.fraTax = IsTaxApplied(settings);
    if (fraSlip.fraTax)
        CalculateTaxes(ToCurrency(fraSlip.lblTotal), settings, optTax, fraSlip);
    UpdateGrandTotal(fraSlip);
}

void ScheduleBoard::LoadAddresses(const QString& slipNo) {
    disk.OpenForInput(DeliverySlipRoutines::HeaderFile(slipNo));
    TextReader reader(disk);
    reader.SkipLines(slipTableLines);
    for (QString& line : fraSlip.lblCustomer)
        line = reader.Text();
    for (QString& line : fraSlip.txtShipto)
        line = reader.Text();
    disk.CloseAllFiles();
}

void ScheduleBoard::LoadSlipItems(const QString& slipNo) {
    const QString name = DeliverySlipRoutines::ItemFile(slipNo);
    disk.OpenForInput(name);
    TextReader reader(disk);
    reader.Text();
    const qint16 count = reader.Int16();
    if (count < 0)
        throw RuntimeFailure(FailureKind::Overflow,
                             u"Reading %1 failed: %2 is no number of item lines."_s.arg(
                                 name.mid(1), QString::number(count)));
    {
        const GridModel::Refill refill(fgItems);
        fgItems.SetRows(count + 1);
        // By fields, as the file is read: a comma in a description or an amount shifts what
        // follows by one place.
        for (int row = 1; row <= count; ++row) {
            for (int column = 0; column < slipItemColumns; ++column)
                fgItems.SetText(row, column, reader.Text());
        }
    }
    fraSlip.lblTotal = CurrencyText(reader.Text(), u"the total in "_s + name.mid(1));
    disk.CloseAllFiles();
}

void ScheduleBoard::LoadInvoiceNumber() {
    fraSlip.lblInvoice = QString::number(invoiceNumber.LoadInvoiceNumber());
}

void ScheduleBoard::AdvanceInvoiceNumber() {
    invoiceNumber.AdvanceInvoiceNumber(fraSlip.lblInvoice);
}

QString ScheduleBoard::PanelCaption() const {
    const int entry = fgSchedule.CurrentRow();
    const bool isInTable = entry >= 1 && entry <= slips.SlipCount;
    return u"Delivery Slip "_s +
           (isInTable ? slips.Table.Text(SlipLine::SlipNumber, entry) : QString());
}
