#pragma once

#include "platform/Operator.h"
#include "schedule/PrinterRoutines.h"
#include "schedule/ScheduleBoard.h"

/// Prints the driver's list for the board's vehicle and date: a heading, then a block for each
/// marked delivery with both addresses, the charge and the goods.
class DeliverySchedulePrinter {
public:
    DeliverySchedulePrinter(ScheduleBoard& scheduleBoard, PrinterRoutines& printerRoutines,
                            const LiveSettings& liveSettings, Operator& person);

    /// One job, on the printer as it was prepared. Leaves the last slip printed in the board's slip
    /// panel.
    void PrintDeliverySchedule();

private:
    void PrintScheduleHeading(const QString& title);
    void PrintScheduleEntries();
    void PrintScheduleEntry(const QString& slipNo, const QString& chargeText);
    void PrintAddresses(const QString& chargeText);
    void PrintScheduleItemHeadings();
    void PrintItemLine(int row);
    void PrintRule();
    void NewSchedulePage();
    void NewSchedulePageIfNearBottom();

    ScheduleBoard& board;
    PrinterRoutines& printer;
    PrinterSurface& surface;
    const LiveSettings& settings;
    Operator& user;
};
