#include "schedule/WeeklySchedulePrinter.h"

#include "schedule/PrintErrors.h"
#include "store/Conversions.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Inches.
/// The title's, clear of the edge that a printer can't reach.
constexpr float titleTop = 0.2F;
constexpr float headingTop = 0.5F;
constexpr float columnsTop = 1.6F;
constexpr float rowsTop = 1.75F;
constexpr float leftColumn = 1.0F;
constexpr float rangeLabels = 4.0F;
constexpr float rangeDates = 5.25F;
constexpr float reportDate = 7.0F;

// Twips.
constexpr double bottomMargin = 1080;
constexpr double rowGap = 72;

constexpr int titleSize = 14;
constexpr int businessSize = 12;
constexpr int bodySize = 10;

constexpr int rowsInGroup = 5;

} // namespace

WeeklySchedulePrinter::WeeklySchedulePrinter(const WeeklySchedule& weeklySchedule,
                                             PrinterRoutines& printerRoutines,
                                             const LiveSettings& liveSettings,
                                             const Clock& machineClock, Operator& person)
    : schedule(weeklySchedule), printer(printerRoutines), surface(printerRoutines.Surface()),
      settings(liveSettings), clock(machineClock), user(person) {}

void WeeklySchedulePrinter::PrintWeeklySchedule() {
    HandlePrintErrors(surface, user, [this] { PrintPages(); });
}

void WeeklySchedulePrinter::PrintPages() {
    const BusyPointer busy(user);
    surface.JobName = u"Scheduled deliveries %1 to %2"_s.arg(
        schedule.DTStarting.toString(Qt::ISODate), schedule.DTEnding.toString(Qt::ISODate));
    printer.PreparePrinter(Orientation::Landscape, settings.ckColor != 0);
    PrintWeeklyHeading(u"Scheduled Deliveries by Date Range"_s);
    // The misspelt title is the one of all pages but the first. It is meant so.
    PrintWeeklyRows(u"Scheduled Delveries by Date Range"_s);
    surface.EndJob();
}

void WeeklySchedulePrinter::PrintWeeklyHeading(const QString& title) {
    printer.SetPrintColor(PrintColor::Text);
    printer.SetPrintFont(titleSize, true, true);
    printer.PositionAt(0, titleTop);
    surface.PrintCentred(title);
    printer.SetPrintFont(titleSize, true, false);
    printer.PositionAt(reportDate, headingTop);
    surface.PrintLine(u"Report Date "_s + ShortDateText(clock.Today()));
    printer.PrintBusinessHeading(leftColumn, headingTop, businessSize);
    PrintRange();
    PrintWeeklyColumns();
}

/// The labels are plain: the font is the one that the business heading has ended in.
void WeeklySchedulePrinter::PrintRange() {
    printer.PositionAt(0, headingTop);
    printer.PrintLineAt(rangeLabels, u"Starting Date "_s);
    printer.PrintLineAt(rangeLabels, u"Ending Date "_s);
    printer.SetPrintFont(bodySize, true, false);
    printer.PositionAt(0, headingTop);
    printer.PrintLineAt(rangeDates, ShortDateText(schedule.DTStarting));
    printer.PrintLineAt(rangeDates, ShortDateText(schedule.DTEnding));
}

void WeeklySchedulePrinter::PrintWeeklyColumns() {
    printer.SetPrintFont(bodySize, true, true);
    printer.PositionAt(0, columnsTop);
    printer.PrintAt(leftColumn, u"Delivery No."_s);
    printer.PrintAt(2.2F, u"Account No"_s);
    printer.PrintAt(3.75F, u"Account Name"_s);
    printer.PrintAt(5.5F, u"Delivery Date"_s);
    printer.PrintAt(6.7F, u"Time Scheduled"_s);
    printer.PrintLineAt(8.2F, u"Vehicle"_s);
    printer.SetPrintFont(bodySize, false, false);
}

void WeeklySchedulePrinter::PrintWeeklyRows(const QString& title) {
    printer.PositionAt(leftColumn, rowsTop);
    for (int row = 1; row <= schedule.fgWeekly.DataRows(); ++row) {
        if (surface.CurrentY + bottomMargin >= surface.PageHeight())
            NewWeeklyPage(title);
        PrintWeeklyRow(row);
        if (row % rowsInGroup == 0)
            surface.PrintLine();
    }
}

void WeeklySchedulePrinter::PrintWeeklyRow(int row) {
    constexpr std::pair<float, WeeklyColumn> places[] = {
        {1.1F, WeeklyColumn::DeliveryNo},   {2.2F, WeeklyColumn::AccountNo},
        {3.75F, WeeklyColumn::AccountName}, {5.6F, WeeklyColumn::DeliveryDate},
        {6.9F, WeeklyColumn::Time},         {8.1F, WeeklyColumn::Vehicle}};
    surface.CurrentY += rowGap;
    for (const auto& [x, column] : places)
        printer.PrintAt(x, schedule.Cell(row, column));
    surface.PrintLine();
}

void WeeklySchedulePrinter::NewWeeklyPage(const QString& title) {
    surface.NewPage();
    PrintWeeklyHeading(title);
    printer.PositionAt(leftColumn, rowsTop);
}
