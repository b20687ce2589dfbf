#include "reports/ReportPrinter.h"

#include "store/Conversions.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Inches.
constexpr float firstLineX = 1.0F;
constexpr float firstLineY = 2.5F;
constexpr float businessX = 0.75F;
constexpr float dateX = 7.0F;
constexpr float dateY = 0.5F;
constexpr float columnsY = 2.0F;

// Twips.
constexpr double ruleStart = 720;
constexpr double ruleEnd = 13680;
constexpr double ruleGap = 100;

constexpr quint32 black = 0;

constexpr int titleSize = 14;
constexpr int rangeSize = 8;
constexpr int businessSize = 12;
constexpr int columnSize = 10;

} // namespace

ReportPrinter::ReportPrinter(PrinterRoutines& printerRoutines, const LiveSettings& liveSettings,
                             const Clock& machineClock)
    : printer(printerRoutines), surface(printerRoutines.Surface()), settings(liveSettings),
      clock(machineClock) {}

void ReportPrinter::Begin(const QString& title, const std::array<QDate, 2>& range,
                          std::function<void()> pageHeading) {
    surface.JobName =
        u"%1 %2 to %3"_s.arg(title, range[0].toString(Qt::ISODate), range[1].toString(Qt::ISODate));
    printer.PreparePrinter(Orientation::Portrait, settings.ckColor != 0);
    printHeading = std::move(pageHeading);
    printHeading();
}

void ReportPrinter::End() {
    surface.EndJob();
}

void ReportPrinter::MakeRoomFor(const QString& text) {
    MakeRoomFor(text, 1);
}

void ReportPrinter::MakeRoomFor(const QString& text, int lines) {
    if (surface.CurrentY + lines * surface.TextHeight(text) < surface.PageHeight())
        return;
    const int size = surface.FontSize;
    const bool isBold = surface.FontBold;
    surface.NewPage();
    printHeading();
    printer.SetPrintFont(size, isBold, false);
    GoToFirstLine();
}

void ReportPrinter::PrintSharedHeading(const SharedHeading& heading) {
    surface.PrintLine();
    printer.SetPrintFont(titleSize, true, false);
    surface.PrintCentred(heading.title);
    printer.SetPrintFont(rangeSize, true, false);
    // The middle is that of this sample, whatever dates stand in its place.
    surface.CurrentX =
        (surface.PageWidth() - surface.TextWidth(u"from 2/11/2003 to 2/33/2003"_s)) / 2;
    surface.PrintLine(u"from "_s + heading.start + u" to "_s + heading.end);
    printer.SetPrintFont(rangeSize, false, false);
    printer.PrintBusinessHeading(businessX, heading.businessY, businessSize);
    PrintToday(dateX, dateY);
    printer.SetPrintFont(columnSize, true, false);
    printer.PositionAt(0, columnsY);
    for (const ReportColumn& column : heading.columns)
        printer.PrintAt(column.x, column.text);
    surface.PrintLine();
    PrintRule();
    GoToFirstLine();
}

void ReportPrinter::PrintRule() {
    surface.CurrentY += ruleGap;
    surface.Line(ruleStart, surface.CurrentY, ruleEnd, surface.CurrentY, black);
}

void ReportPrinter::PrintToday(float x, float y) {
    printer.PositionAt(x, y);
    surface.PrintLine(ShortDateText(clock.Today()));
}

void ReportPrinter::GoToFirstLine() {
    printer.PositionAt(firstLineX, firstLineY);
}
