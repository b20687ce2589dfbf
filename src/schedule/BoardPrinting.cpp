#include "schedule/BoardPrinting.h"

#include "schedule/PrintErrors.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

BoardPrinting::BoardPrinting(ScheduleBoard& scheduleBoard, PrinterRoutines& printerRoutines,
                             DeliverySchedulePrinter& deliverySchedulePrinter,
                             InvoiceRun& theInvoiceRun, DeliverySlipRoutines& slipRoutines,
                             const LiveSettings& liveSettings, Operator& person)
    : board(scheduleBoard), printer(printerRoutines), schedulePrinter(deliverySchedulePrinter),
      invoiceRun(theInvoiceRun), slips(slipRoutines), settings(liveSettings), user(person) {}

void BoardPrinting::Print(const Choices& choices, const Reactions& reactions) {
    HandlePrintErrors(printer.Surface(), user, [&] { PrintMarked(choices, reactions); });
}

void BoardPrinting::PrintMarked(const Choices& choices, const Reactions& reactions) {
    board.RebuildWorkSchedule();
    if (board.lstWorkSchedule.rowCount() == 0) {
        user.MsgBox(u"No Deliveries for %1 on %2 have been Selected"_s.arg(
                        board.lstVehicles, ShortDateText(board.DTPicker1)),
                    Buttons::Ok, u"No Deliveries"_s);
        return;
    }
    PreparePrinter();
    if (choices.ckPrintWorkSchedule)
        schedulePrinter.PrintDeliverySchedule();
    if (!choices.ckMInvoices)
        return;
    PreparePrinter();
    PrintInvoices(choices.ckPopulated, reactions);
    OfferToRemove(reactions.deselectAll);
}

void BoardPrinting::PreparePrinter() {
    printer.PreparePrinter(Orientation::Portrait, settings.ckColor != 0);
}

/// The slip is that of the current row every time; the marks only say how often. It is meant: one
/// delivery is marked and invoiced at a time, and its row is the current one.
void BoardPrinting::PrintInvoices(bool isPopulated, const Reactions& reactions) {
    for (int row = 1; row <= board.fgSchedule.DataRows(); ++row) {
        if (board.Cell(row, ScheduleColumn::Select).isEmpty())
            continue;
        board.LoadSlipPanel(board.Cell(board.fgSchedule.CurrentRow(), ScheduleColumn::SlipNo));
        reactions.showSlip();
        invoiceRun.PrintOneInvoice(isPopulated, reactions.returnToMenu);
    }
}

void BoardPrinting::OfferToRemove(const std::function<void()>& deselectAll) {
    const Answer answer = user.MsgBox(u"Would you like to Remove\nDeliveries from the Grid"_s,
                                      Buttons::YesNo, u"Remove Items"_s);
    if (answer == Answer::No)
        return;
    deselectAll();
    slips.LoadSlips(true);
}
