#pragma once

#include "platform/Clock.h"
#include "platform/Operator.h"
#include "schedule/PrinterRoutines.h"
#include "schedule/WeeklySchedule.h"

/// Prints the range view's grid as a list on landscape paper, for looking ahead away from the
/// screen.
class WeeklySchedulePrinter {
public:
    WeeklySchedulePrinter(const WeeklySchedule& weeklySchedule, PrinterRoutines& printerRoutines,
                          const LiveSettings& liveSettings, const Clock& machineClock,
                          Operator& person);

    /// The press of the print button. What goes wrong is told as a print error.
    void PrintWeeklySchedule();

private:
    void PrintPages();
    void PrintWeeklyHeading(const QString& title);
    void PrintRange();
    void PrintWeeklyColumns();
    void PrintWeeklyRows(const QString& title);
    void PrintWeeklyRow(int row);
    void NewWeeklyPage(const QString& title);

    const WeeklySchedule& schedule;
    PrinterRoutines& printer;
    PrinterSurface& surface;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
};
