#pragma once

#include "platform/Operator.h"
#include "schedule/DeliverySchedulePrinter.h"
#include "schedule/InvoiceRun.h"
#include "schedule/PrinterRoutines.h"
#include "schedule/ScheduleBoard.h"
#include "slips/DeliverySlipRoutines.h"

#include <functional>

/// The press of the board's print button: the schedule of the marked deliveries, and their
/// invoices. Printing, asking and posting follow each other here, and it is here that a printing
/// error ends.
class BoardPrinting {
public:
    BoardPrinting(ScheduleBoard& scheduleBoard, PrinterRoutines& printerRoutines,
                  DeliverySchedulePrinter& deliverySchedulePrinter, InvoiceRun& theInvoiceRun,
                  DeliverySlipRoutines& slipRoutines, const LiveSettings& liveSettings,
                  Operator& person);

    /// What is ticked.
    struct Choices {
        bool ckPrintWorkSchedule = false;
        bool ckMInvoices = false;
        bool ckPopulated = false;
    };
    /// What the press sets off on the screen.
    struct Reactions {
        /// The slip panel holds another slip; its invoice number is to be seen.
        std::function<void()> showSlip;
        std::function<void()> returnToMenu;
        std::function<void()> deselectAll;
    };
    void Print(const Choices& choices, const Reactions& reactions);

private:
    void PrintMarked(const Choices& choices, const Reactions& reactions);
    void PrintInvoices(bool isPopulated, const Reactions& reactions);
    void OfferToRemove(const std::function<void()>& deselectAll);
    void PreparePrinter();

    ScheduleBoard& board;
    PrinterRoutines& printer;
    DeliverySchedulePrinter& schedulePrinter;
    InvoiceRun& invoiceRun;
    DeliverySlipRoutines& slips;
    const LiveSettings& settings;
    Operator& user;
};
