#pragma once

#include "platform/Clock.h"
#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "schedule/InvoiceNumber.h"
#include "schedule/InvoiceTotals.h"
#include "schedule/SlipCaptions.h"
#include "setup/LiveSettings.h"
#include "slips/DeliverySlipRoutines.h"
#include "store/Calendar.h"

#include <QDate>
#include <QStringListModel>

/// Columns of fgSchedule.
enum class ScheduleColumn {
    Select,
    Customer,
    AccountNo,
    SlipNo,
    Time,
    DeliveryCharge,
    Recurring,
    Frequency,
    TimeSortKey,
};

/// What stands in column 0 of a marked row.
QString SelectionMark();

/// Whether an entry of a work schedule tells of an absence rather than of work.
bool IsAbsence(const QString& text);

/// The dispatcher's day: the slips of one vehicle on one date, which of them are marked, and the
/// slip whose contents are looked at. It is the working copy behind the board's screen; of what is
/// entered here, nothing reaches a slip's files.
class ScheduleBoard {
public:
    ScheduleBoard(BasicDiskRoutines& diskRoutines, DeliverySlipRoutines& slipRoutines,
                  Calendar& deliveryCalendar, const LiveSettings& liveSettings,
                  const Clock& machineClock, Operator& person);

    /// The date shown, and the vehicle picked; no vehicle until one is.
    QDate DTPicker1;
    QString lstVehicles;
    GridModel fgSchedule;
    /// Customer names of the marked rows.
    QStringListModel lstWorkSchedule;
    /// The charge to enter, as typed.
    QString txtDeliveryCharge;
    SlipCaptions fraSlip;
    /// "Units", "Product Description", "Unit Cost", "Item Total".
    GridModel fgItems;
    TaxOptions optTax;
    /// The slip number of the row last marked.
    QString SelectedSlip;

    QString Cell(int row, ScheduleColumn column) const;

    /// Empties the board, goes to the next work day and the first vehicle (none when empty), and
    /// sets what the settings give. Writes the invoice number back.
    void Initform(const QString& firstVehicle);
    /// A date before today becomes today, and any date the next available work day.
    void ChangeDate(QDate date);
    void ChooseVehicle(const QString& vehicle);
    /// Refills fgSchedule, in time order, with all charges at zero. A slip of the table whose file
    /// has gone is a failure.
    void LoadScheduleGrid();

    /// Marks a row alone, or takes its mark away. True when it is marked now. A grid of more than
    /// 255 rows is an overflow.
    bool ToggleMark(int row);
    void SelectAll();
    void DeselectAll();
    void RebuildWorkSchedule();

    enum class ChargeEntry { NoRow, NoDelivery, NoAmount, Entered };
    /// Enters txtDeliveryCharge to the current row.
    ChargeEntry EnterCharge();
    void ClearCharge();

    enum class CursorMove { None, Left, Right };
    /// A key pressed in fgSchedule edits the current cell as it stands, whatever it holds.
    CursorMove EditCell(ushort key);

    /// Fills fraSlip and fgItems from the slip's two files.
    void LoadSlipPanel(const QString& slipNo);
    /// Fills fraSlip.lblInvoice. Writes the number back.
    void LoadInvoiceNumber();
    /// The number shown stays until the next LoadInvoiceNumber.
    void AdvanceInvoiceNumber();
    /// "Delivery Slip " and the slip table's entry at the position of the grid's current row. The
    /// table is in folder order and the grid in time order, so it need not be the row's slip; no
    /// number when there is no such entry.
    QString PanelCaption() const;

private:
    int AddRow(int row, int entry, const QString& charge);
    bool IsOnBoard(int entry) const;
    void SetCell(int row, ScheduleColumn column, const QString& text);
    void LoadAddresses(const QString& slipNo);
    void LoadSlipItems(const QString& slipNo);
    void MultiplyCells(int row);

    BasicDiskRoutines& disk;
    DeliverySlipRoutines& slips;
    Calendar& calendar;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
    InvoiceNumber invoiceNumber;
};
