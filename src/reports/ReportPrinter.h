#pragma once

#include "platform/Clock.h"
#include "schedule/PrinterRoutines.h"
#include "setup/LiveSettings.h"

#include <QDate>
#include <QString>

#include <array>
#include <functional>
#include <vector>

/// What stands at an X in inches.
struct ReportColumn {
    float x;
    QString text;
};

/// The page heading that the tax and the invoice report share.
struct SharedHeading {
    QString title;
    /// Short date texts.
    QString start;
    QString end;
    /// Of the business heading, in inches.
    float businessY;
    std::vector<ReportColumn> columns;
};

/// The pages of a report: upright letter paper, a heading on each page, and a new page when the one
/// in hand is full. It tells of a printer failure by failing; who prints says what becomes of it.
class ReportPrinter {
public:
    ReportPrinter(PrinterRoutines& printerRoutines, const LiveSettings& liveSettings,
                  const Clock& machineClock);

    /// Prepares the printer and prints the heading of the first page; `title` and `range` name the
    /// job.
    void Begin(const QString& title, const std::array<QDate, 2>& range,
               std::function<void()> pageHeading);
    void End();

    /// To be called before a line: when the line would reach the bottom of the page, it goes on
    /// under the heading of a new one, in the font in hand.
    void MakeRoomFor(const QString& text);
    /// The same for some lines that belong together.
    void MakeRoomFor(const QString& text, int lines);

    void PrintSharedHeading(const SharedHeading& heading);
    /// 100 twips below the pen, from edge to edge; the right end lies off the paper, as always.
    void PrintRule();
    void PrintToday(float x, float y);
    /// Goes to where the lines of a page begin.
    void GoToFirstLine();

    PrinterRoutines& Routines() { return printer; }
    PrinterSurface& Surface() { return surface; }

private:
    PrinterRoutines& printer;
    PrinterSurface& surface;
    const LiveSettings& settings;
    const Clock& clock;
    std::function<void()> printHeading;
};
