#include "products/InventoryPrinter.h"

#include "schedule/PrintErrors.h"
#include "store/Conversions.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {

// Inches.
constexpr float headingLeft = 1.0F;
constexpr float businessTop = 0.65F;
constexpr float titleTop = 0.4F;
constexpr float locationLeft = 5.75F;
/// On paper upright this is beside the page, and the date stays there.
constexpr float dateLeft = 9.0F;
constexpr float columnsTop = 2.0F;
constexpr float descriptionLeft = 1.0F;

constexpr int titleSize = 12;
constexpr int bodySize = 10;

struct ColumnHeading {
    float left;
    QString text;
};
const ColumnHeading reportColumns[] = {{1.0F, u"Description"_s}, {3.5F, u"Unit Cost"_s},
                                       {4.5F, u"Sell Price"_s},  {5.5F, u"On-Hand"_s},
                                       {6.5F, u"Disc Price"_s},  {7.75F, u"Disc Qty"_s},
                                       {8.5F, u"Reorder Qty"_s}, {9.75F, u"When At"_s}};
const ColumnHeading tallyColumns[] = {
    {1.0F, u"Description"_s}, {4.0F, u"On-Hand Count"_s}, {6.0F, u"Reorder When At"_s}};

/// A cell of the report and where it ends, in twips.
struct ReportCell {
    ItemColumn column;
    double end;
};
constexpr ReportCell reportCells[] = {
    {ItemColumn::UnitCost, 5760},      {ItemColumn::SellPrice, 7200},
    {ItemColumn::OnHand, 8496},        {ItemColumn::DiscountPrice, 10080},
    {ItemColumn::DiscountQty, 11664},  {ItemColumn::ReorderAmount, 12960},
    {ItemColumn::ReorderPoint, 14400},
};

// Twips.
constexpr double countStart = 5760;
constexpr double reorderPointEnd = 9360;
/// To be filled in by hand.
const QString countToFillIn = u"_______________"_s;

/// Rows between two blank lines.
constexpr int rowsInGroup = 5;
/// Text lines that must be left on a page for it to be gone on with.
constexpr int linesNeeded = 5;

QString TitleOf(InventoryKind kind) {
    return kind == InventoryKind::Report ? u"Inventory Report"_s : u"Inventory Tally Sheet"_s;
}

std::span<const ColumnHeading> ColumnsOf(InventoryKind kind) {
    if (kind == InventoryKind::Report)
        return reportColumns;
    return tallyColumns;
}

} // namespace

InventoryPrinter::InventoryPrinter(BasicDiskRoutines& diskRoutines,
                                   const InventoriedItems& inventoriedItems,
                                   const TallyLocations& tallyLocations,
                                   PrinterRoutines& printerRoutines,
                                   const LiveSettings& liveSettings, const Clock& machineClock,
                                   Operator& person)
    : disk(diskRoutines), items(inventoriedItems), locations(tallyLocations),
      printer(printerRoutines), surface(printerRoutines.Surface()), settings(liveSettings),
      clock(machineClock), user(person) {}

void InventoryPrinter::PrintInventory(InventoryKind kind) {
    HandlePrintErrors(
        surface, user,
        [this, kind] {
            surface.JobName = JobName(kind);
            printer.AskForPrinter();
            const BusyPointer busy(user);
            if (kind == InventoryKind::Report)
                PrintReport();
            else
                PrintTallySheets();
        },
        u"The Inventory will not be Printed"_s);
}

QString InventoryPrinter::JobName(InventoryKind kind) const {
    return TitleOf(kind) + u' ' + clock.Today().toString(Qt::ISODate);
}

void InventoryPrinter::SetPage(Orientation orientation) {
    printer.PreparePaper(orientation, settings.ckColor != 0);
    printer.SetPrintColor(PrintColor::Text);
}

void InventoryPrinter::PrintReport() {
    SetPage(Orientation::Landscape);
    PrintPageHeader(InventoryKind::Report, {});
    PrintRows(InventoryKind::Report, {}, [this](int row) { PrintReportLine(row); });
    surface.EndJob();
}

void InventoryPrinter::PrintTallySheets() {
    SetPage(Orientation::Portrait);
    for (const QString& location : locations.txtTally) {
        if (!location.isEmpty())
            PrintTallySheet(location);
    }
}

void InventoryPrinter::PrintTallySheet(const QString& location) {
    surface.JobName = JobName(InventoryKind::TallySheet) + u' ' + location;
    PrintPageHeader(InventoryKind::TallySheet, location);
    PrintRows(InventoryKind::TallySheet, location, [this](int row) { PrintTallyLine(row); });
    surface.EndJob();
}

void InventoryPrinter::PrintPageHeader(InventoryKind kind, const QString& location) {
    if (disk.FileExists(u"/MyBusinessData.txt"_s))
        printer.PrintBusinessHeading(headingLeft, businessTop, bodySize);
    printer.SetPrintFont(titleSize, false, false);
    printer.PositionAt(0, titleTop);
    surface.PrintCentred(TitleOf(kind));
    if (!location.isEmpty()) {
        printer.PositionAt(locationLeft, titleTop);
        surface.Print(u"Location: "_s + location);
    }
    printer.SetPrintFont(bodySize, false, false);
    printer.PositionAt(dateLeft, titleTop);
    surface.Print(u"Date "_s + ShortDateText(clock.Today()));
    printer.PositionAt(0, columnsTop);
    for (const ColumnHeading& heading : ColumnsOf(kind))
        printer.PrintAt(heading.left, heading.text);
    surface.PrintLine();
    surface.PrintLine();
}

bool InventoryPrinter::IsPageFull() const {
    return surface.CurrentY + linesNeeded * surface.TextHeight(u"ABC"_s) > surface.PageHeight();
}

template <typename PrintLine>
void InventoryPrinter::PrintRows(InventoryKind kind, const QString& location,
                                 PrintLine&& printLine) {
    int rowsOfGroup = 0;
    for (int row = 1; row <= items.fgItems.DataRows(); ++row) {
        if (IsPageFull()) {
            surface.NewPage();
            PrintPageHeader(kind, location);
            rowsOfGroup = 0;
        }
        printLine(row);
        surface.PrintLine();
        if (++rowsOfGroup == rowsInGroup) {
            surface.PrintLine();
            rowsOfGroup = 0;
        }
    }
}

const QString& InventoryPrinter::Cell(int row, ItemColumn column) const {
    return items.fgItems.Text(row, int(column));
}

void InventoryPrinter::PrintReportLine(int row) {
    printer.PrintAt(descriptionLeft, Cell(row, ItemColumn::Description));
    for (const ReportCell& cell : reportCells)
        surface.PrintEndingAt(cell.end, Cell(row, cell.column));
}

void InventoryPrinter::PrintTallyLine(int row) {
    printer.PrintAt(descriptionLeft, Cell(row, ItemColumn::Description));
    surface.CurrentX = countStart;
    surface.Print(countToFillIn);
    surface.PrintEndingAt(reorderPointEnd, Cell(row, ItemColumn::ReorderPoint));
}
