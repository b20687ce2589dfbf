#include "reports/ItemSalesReport.h"

#include "reports/DateTexts.h"
#include "schedule/InvoiceRecords.h"
#include "schedule/PrintErrors.h"
#include "store/Conversions.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultDays = 30;

enum LineColumn { NameColumn, DateColumn, InvoiceColumn, UnitsColumn };
enum TotalColumn { ProductColumn, SoldColumn };

// Inches.
constexpr float leftX = 1.0F;
constexpr float dateX = 3.0F;
constexpr float invoiceX = 4.5F;
constexpr float todayX = 7.0F;
constexpr float todayY = 0.75F;
constexpr float businessY = 0.5F;
constexpr float sectionY = 2.0F;

/// Twips: where units end.
constexpr double unitsEnd = 9360;

constexpr int titleSize = 14;
constexpr int sectionSize = 12;
constexpr int bodySize = 10;

/// The height of the headings above the totals, in lines of body size.
constexpr int totalHeadingLines = 4;

} // namespace

ItemSalesReport::ItemSalesReport(BasicDiskRoutines& diskRoutines,
                                 const QStringListModel& productNames, ReportPrinter& reportPrinter,
                                 const LiveSettings& liveSettings, const Clock& machineClock,
                                 Operator& person)
    : ReportFrame(diskRoutines, machineClock, person),
      fgSalesItems({u"Description"_s, u"Date"_s, u"Invoice Number"_s, u"Units Sold"_s}),
      fgTotals({u"Item Name"_s, u"Units Sold"_s}), lstSalesItems(productNames), page(reportPrinter),
      settings(liveSettings) {
    for (const int column : {DateColumn, InvoiceColumn, UnitsColumn})
        fgSalesItems.AlignCentre(column);
    fgTotals.AlignRight(SoldColumn);
    ResetAll();
}

QDate ItemSalesReport::DefaultStart() const {
    return clock.Today().addDays(-defaultDays);
}

QString ItemSalesReport::Title() const {
    return u"Item Sales Report for "_s + settings.BusinessData[0];
}

void ItemSalesReport::ResetAll() {
    selected.clear();
    fgSalesItems.ClearGrid();
    fgTotals.ClearGrid();
}

QStringList ItemSalesReport::SelectedNames() const {
    const QStringList products = lstSalesItems.stringList();
    QStringList names;
    names.reserve(selected.size());
    for (const int row : selected)
        names += TrimBlanks(products.at(row));
    return names;
}

void ItemSalesReport::LoadGrid() {
    if (selected.isEmpty())
        return;
    const BusyPointer busy(user);
    RangeStart = Picked(RangeBound::Start);
    RangeEnd = Picked(RangeBound::End);
    const QStringList names = SelectedNames();
    FillLines(ReadLines(names));
    FillTotals(names);
}

std::vector<ItemSalesReport::Line> ItemSalesReport::ReadLines(const QStringList& names) {
    // The file is measured before it is opened: opening would make a missing one.
    const qint32 count = ToInt32(double(disk.FileLength(soldItemsFile)) / sizeof(SoldItemRecord),
                                 u"counting the records of SoldItems.txt"_s);
    QHash<QString, int> times;
    for (const QString& name : names)
        ++times[name];
    DateTexts dates;
    std::vector<Line> lines;
    disk.OpenRandom(soldItemsFile, sizeof(SoldItemRecord));
    for (qint32 number = 1; number <= count; ++number) {
        const auto record = ReadRecord<SoldItemRecord>(disk, disk.DiskFile, number);
        const QDate date = record.SaleDate.Value();
        if (!IsInRange(date))
            continue;
        const auto sold = times.constFind(record.Description.Trimmed());
        if (sold == times.constEnd())
            continue;
        const Line line{sold.key(), dates.TextOf(date), record.InvoiceNo.Trimmed(),
                        record.Units.Value()};
        lines.insert(lines.end(), size_t(*sold), line);
    }
    disk.CloseAllFiles();
    return lines;
}

void ItemSalesReport::FillLines(std::vector<Line> lines) {
    const GridModel::Refill refill(fgSalesItems);
    fgSalesItems.ClearGrid();
    fgSalesItems.SetRows(int(lines.size()) + 2);
    int row = 1;
    for (Line& line : lines) {
        fgSalesItems.SetText(row, NameColumn, std::move(line.name));
        fgSalesItems.SetText(row, DateColumn, std::move(line.date));
        fgSalesItems.SetText(row, InvoiceColumn, std::move(line.invoiceNo));
        fgSalesItems.SetText(row, UnitsColumn, QString::number(line.units));
        ++row;
        isPrintEnabled = true;
    }
    fgSalesItems.SetCurrent(row, NameColumn);
}

void ItemSalesReport::FillTotals(const QStringList& names) {
    QHash<QString, qint16> units;
    for (int row = 1; row < fgSalesItems.DataRows(); ++row) {
        const QString& name = fgSalesItems.Text(row, NameColumn);
        qint16& total = units[name];
        total = ToInt16(double(total) + ToDouble(fgSalesItems.Text(row, UnitsColumn)),
                        u"adding up the units of "_s + name);
    }
    const GridModel::Refill refill(fgTotals);
    fgTotals.ClearGrid();
    fgTotals.SetRows(int(names.size()) + 1);
    int row = 0;
    for (const QString& name : names) {
        const auto sold = units.constFind(name);
        if (sold == units.constEnd())
            continue;
        fgTotals.SetText(++row, ProductColumn, name);
        fgTotals.SetText(row, SoldColumn, QString::number(*sold));
    }
    fgTotals.SetRows(RowsFor(row));
    fgTotals.SetCurrent(fgTotals.CurrentRow(), ProductColumn);
}

void ItemSalesReport::Print() {
    HandlePrintErrors(page.Surface(), user, [this] { PrintReport(); });
}

void ItemSalesReport::PrintReport() {
    const BusyPointer busy(user);
    page.Begin(u"Item Sales Report"_s, DTPicker1, [this] { PrintPageHeading(); });
    PrintLines();
    PrintTotals();
    page.End();
    isPrintEnabled = false;
}

void ItemSalesReport::PrintPageHeading() {
    PrinterRoutines& printer = page.Routines();
    PrinterSurface& surface = page.Surface();
    surface.PrintLine();
    printer.SetPrintFont(titleSize, true, false);
    surface.PrintCentred(u"Item Sales Report"_s);
    printer.SetPrintFont(bodySize, false, false);
    page.PrintToday(todayX, todayY);
    printer.PrintBusinessHeading(leftX, businessY, sectionSize);
    surface.PrintLine();
    printer.SetPrintFont(sectionSize, true, false);
    surface.PrintCentred(u"Report Date Range: "_s + StartText() + u" to "_s + EndText());
    PrintSectionHeading();
}

void ItemSalesReport::PrintSectionHeading() {
    PrinterRoutines& printer = page.Routines();
    PrinterSurface& surface = page.Surface();
    printer.SetPrintFont(sectionSize, true, false);
    printer.PositionAt(leftX, sectionY);
    surface.PrintLine(u"Item Sales by Invoice"_s);
    printer.SetPrintFont(bodySize, true, false);
    surface.PrintLine();
    printer.PrintAt(leftX, u"Inventoried Item Name"_s);
    printer.PrintAt(dateX, u"Invoice Date"_s);
    printer.PrintAt(invoiceX, u"Invoice No."_s);
    surface.PrintEndingAt(unitsEnd, u"Units Sold"_s);
    surface.PrintLine();
}

void ItemSalesReport::PrintLines() {
    PrinterRoutines& printer = page.Routines();
    PrinterSurface& surface = page.Surface();
    printer.SetPrintFont(bodySize, false, false);
    page.GoToFirstLine();
    for (int row = 1; row <= fgSalesItems.DataRows(); ++row) {
        page.MakeRoomFor(fgSalesItems.Text(row, DateColumn));
        printer.PrintAt(leftX, fgSalesItems.Text(row, NameColumn));
        printer.PrintAt(dateX, fgSalesItems.Text(row, DateColumn));
        printer.PrintAt(invoiceX, fgSalesItems.Text(row, InvoiceColumn));
        surface.PrintEndingAt(unitsEnd, fgSalesItems.Text(row, UnitsColumn));
        surface.PrintLine();
    }
}

void ItemSalesReport::PrintTotals() {
    PrinterRoutines& printer = page.Routines();
    PrinterSurface& surface = page.Surface();
    const QString heading = u"Total Items Sold (This Date Range)"_s;
    surface.PrintLine();
    // Headings that no longer fit go on the next page rather than off the paper.
    page.MakeRoomFor(heading, totalHeadingLines);
    printer.SetPrintFont(sectionSize, true, false);
    printer.PrintLineAt(leftX, heading);
    surface.PrintLine();
    printer.SetPrintFont(bodySize, true, false);
    printer.PrintLineAt(leftX, u"Item Name"_s);
    printer.SetPrintFont(bodySize, false, false);
    for (int row = 1; row <= fgTotals.DataRows(); ++row) {
        page.MakeRoomFor(fgTotals.Text(row, ProductColumn));
        printer.PrintAt(leftX, fgTotals.Text(row, ProductColumn));
        surface.PrintEndingAt(unitsEnd, fgTotals.Text(row, SoldColumn));
        surface.PrintLine();
    }
}

RangeDeletion ItemSalesReport::DeleteRange() {
    if (!MayDelete(u"This will delete ALL Sales Item Records dated\n"_s + StartText() +
                       u" through "_s + EndText() + u"\nClick Yess to Delete"_s,
                   u"Delete Sales Records"_s))
        return RangeDeletion::None;
    const int kept = RemoveRange<SoldItemRecord>(
        soldItemsFile, [](const SoldItemRecord& record, int) { return record.SaleDate.Value(); });
    if (kept == 0) {
        disk.DeleteWithBackup(soldItemsFile);
        return RangeDeletion::NothingLeft;
    }
    Open();
    return RangeDeletion::Done;
}
