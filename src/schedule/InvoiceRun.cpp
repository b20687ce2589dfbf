#include "schedule/InvoiceRun.h"

#include "platform/RuntimeFailure.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

InvoiceRun::InvoiceRun(ScheduleBoard& scheduleBoard, NXPrint& invoicePrinter,
                       PrinterSurface& printerSurface, InvoicePosting& invoicePosting,
                       AccountLedger& accountLedger, DeliverySlipRoutines& slipRoutines,
                       const Clock& machineClock, Operator& person)
    : board(scheduleBoard), printer(invoicePrinter), surface(printerSurface),
      posting(invoicePosting), ledger(accountLedger), slips(slipRoutines), clock(machineClock),
      user(person) {}

void InvoiceRun::PrintOneInvoice(bool isPopulated, const std::function<void()>& returnToMenu) {
    if (PrintUntilCorrect(isPopulated) && isPopulated) {
        Post();
        PassOver([this] { ProcessSlip(); });
    }
    PassOver(returnToMenu);
}

bool InvoiceRun::PrintUntilCorrect(bool isPopulated) {
    const auto isYes = [this](const QString& question, const QString& title) {
        return user.MsgBox(question, Buttons::YesNo, title) == Answer::Yes;
    };
    do {
        PrintPage(isPopulated);
        if (isYes(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s))
            return true;
    } while (isYes(u"Would you like to Retry Printing this Invoice"_s, u"Print Retry"_s));
    return false;
}

void InvoiceRun::PrintPage(bool isPopulated) {
    const BusyPointer busy(user);
    printer.PrintInvoice({.number = isPopulated ? board.fraSlip.lblInvoice : QString(),
                          .slip = board.fraSlip,
                          .fgItems = board.fgItems,
                          .vehicle = board.lstVehicles,
                          .deliveryDate = board.DTPicker1,
                          .isPopulated = isPopulated});
    // What didn't get out must not be the first page of the retry.
    if (!PassOver([this] { surface.EndJob(); }))
        PassOver([this] { surface.AbandonJob(); });
}

/// In this order: what fails is skipped, and all bear the number that the last two move on.
void InvoiceRun::Post() {
    PassOver([this] {
        posting.PostSoldItems(board.fgItems, board.fgItems.DataRows(), board.fraSlip.lblInvoice);
    });
    PassOver([this] { PostJournal(); });
    PassOver([this] { ledger.WriteReceivable(board.fraSlip); });
    PassOver([this] { PostTaxRecords(); });
    PassOver([this] { board.AdvanceInvoiceNumber(); });
    PassOver([this] { board.LoadInvoiceNumber(); });
}

void InvoiceRun::PostJournal() {
    const SlipCaptions& slip = board.fraSlip;
    const Currency noDiscount;
    posting.PostJournal(slip.lblCustomer[0], slip.lblAcctNo, TrimBlanks(slip.lblInvoice),
                        ToCurrency(slip.lblTotal),
                        ToCurrency(slip.lblTax1) + ToCurrency(slip.lblTax2),
                        ToCurrency(slip.lblGrandtotal), noDiscount, clock.Today());
}

void InvoiceRun::PostTaxRecords() {
    const SlipCaptions& slip = board.fraSlip;
    posting.PostTaxRecords(ToCurrency(slip.lblTax1), ToCurrency(slip.lblTax2), slip.lblTaxHeading1,
                           slip.lblTaxHeading2, slip.lblInvoice);
}

/// The charge stands where the recurring flag belongs, and the flag where the frequency does. It is
/// meant: every delivery that has been invoiced is treated as recurring, so that the operator is
/// always asked what becomes of its slip.
void InvoiceRun::ProcessSlip() {
    const int row = board.fgSchedule.CurrentRow();
    slips.ProcessPastSlip(board.Cell(row, ScheduleColumn::SlipNo), ShortDateText(board.DTPicker1),
                          board.Cell(row, ScheduleColumn::DeliveryCharge),
                          board.Cell(row, ScheduleColumn::Recurring));
}
