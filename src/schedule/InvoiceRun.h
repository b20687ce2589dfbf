#pragma once

#include "platform/Operator.h"
#include "schedule/AccountLedger.h"
#include "schedule/InvoicePosting.h"
#include "schedule/NXPrint.h"
#include "schedule/ScheduleBoard.h"
#include "slips/DeliverySlipRoutines.h"

#include <functional>

/// One invoice from the paper to the records: it is printed until the operator finds it right, and
/// only then does it count.
class InvoiceRun {
public:
    /// `slipRoutines` takes care of the delivery that has been invoiced.
    InvoiceRun(ScheduleBoard& scheduleBoard, NXPrint& invoicePrinter,
               PrinterSurface& printerSurface, InvoicePosting& invoicePosting,
               AccountLedger& accountLedger, DeliverySlipRoutines& slipRoutines,
               const Clock& machineClock, Operator& person);

    /// Prints the slip in the board's panel and, when it is populated and the operator says that it
    /// is right, posts it and hands the slip of the grid's current row on. A blank invoice posts
    /// nothing. `returnToMenu` follows whatever happens.
    ///
    /// A statement that fails is passed over in silence and the next one runs. The one failure that
    /// gets out is the EndingFailure of a slip that is to be kept: it would be moved to a date
    /// behind the end of the calendar.
    void PrintOneInvoice(bool isPopulated, const std::function<void()>& returnToMenu);

private:
    bool PrintUntilCorrect(bool isPopulated);
    void PrintPage(bool isPopulated);
    void Post();
    void PostJournal();
    void PostTaxRecords();
    void ProcessSlip();

    ScheduleBoard& board;
    NXPrint& printer;
    PrinterSurface& surface;
    InvoicePosting& posting;
    AccountLedger& ledger;
    DeliverySlipRoutines& slips;
    const Clock& clock;
    Operator& user;
};
