#include "reports/TaxesCollectedReport.h"

#include "schedule/InvoiceRecords.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

enum TaxColumn { NameColumn, ReferenceColumn, DateColumn, AmountColumn };

// Inches.
constexpr float businessY = 0.5F;
constexpr float taxX = 1.0F;
constexpr float dateX = 2.5F;
constexpr float referenceX = 3.5F;
constexpr float amountHeadingX = 6.5F;
constexpr float totalX = 3.5F;

// Twips. The totals end to the left of the amounts, and are meant to.
constexpr double amountEnd = 10800;
constexpr double totalEnd = 9000;

constexpr int bodySize = 10;

QString Where(const QString& field, int number) {
    return u"the %1 in record %2 of TaxRecords.txt"_s.arg(field).arg(number);
}

} // namespace

TaxesCollectedReport::TaxesCollectedReport(BasicDiskRoutines& diskRoutines,
                                           ReportPrinter& reportPrinter,
                                           const LiveSettings& liveSettings,
                                           const Clock& machineClock, Operator& person)
    : ReportFrame(diskRoutines, machineClock, person),
      fgTax({u"Tax"_s, u"Reference  (Invoice No)"_s, u"Date"_s, u"Amount Collected"_s}),
      optTax{u"Tax1"_s, u"2nd Tax"_s, u"Both"_s}, totalHeadings{u"Total This Period"_s,
                                                                u"Total This Period"_s},
      page(reportPrinter), settings(liveSettings) {
    fgTax.AlignCentre(DateColumn);
    fgTax.AlignRight(AmountColumn);
}

void TaxesCollectedReport::Open() {
    optTax[FirstTax] = settings.cboTaxHeading1;
    totalHeadings[FirstTax] = settings.cboTaxHeading1 + u" Collected"_s;
    isSecondTaxApplied = settings.ckApply2ndTax == 1;
    // Without a second tax its option keeps the caption it is made with, which no record carries.
    if (isSecondTaxApplied) {
        optTax[SecondTax] = settings.cboTaxHeading2;
        totalHeadings[SecondTax] = settings.cboTaxHeading2 + u" Collected"_s;
    }
    LoadDefaultRange();
}

bool TaxesCollectedReport::IsListed(const QString& tax, const QString& filter) const {
    return (filter == "Both"_L1 || filter == tax) &&
           (tax == optTax[FirstTax] || tax == optTax[SecondTax]);
}

QDate TaxesCollectedReport::DateOf(const TaxRecord& record, int number) {
    return dates.DateOf(record.TaxDate.Trimmed(), [number] { return Where(u"date"_s, number); });
}

void TaxesCollectedReport::LoadGrid() {
    const BusyPointer busy(user);
    collected.fill(0);
    txtTotal.fill(ZeroCurrencyText());
    const QString filter = optTax[chosen];
    const qint16 count = disk.RecordCount(taxRecordsFile, sizeof(TaxRecord));
    const GridModel::Refill refill(fgTax);
    fgTax.ClearGrid();
    fgTax.SetRows(RowsFor(count));
    int listed = 0;
    // Opening would make a missing file.
    if (count > 0)
        disk.OpenRandom(taxRecordsFile, sizeof(TaxRecord));
    for (int number = 1; number <= count; ++number) {
        const auto record = ReadRecord<TaxRecord>(disk, disk.DiskFile, number);
        const QDate date = DateOf(record, number);
        const QString tax = record.TaxHeading.Trimmed();
        if (IsInRange(date) && IsListed(tax, filter))
            AddRow(++listed, tax, record, date, number);
    }
    disk.CloseAllFiles();
    fgTax.SetRows(RowsFor(listed));
    if (listed > 0)
        fgTax.SetCurrent(listed, DateColumn);
    for (size_t tax = 0; tax < txtTotal.size(); ++tax) {
        if (collected[tax] > 0)
            txtTotal[tax] = CurrencyText(double(collected[tax]));
    }
}

void TaxesCollectedReport::AddRow(int row, const QString& tax, const TaxRecord& record, QDate date,
                                  int number) {
    const QString amount = record.Amount.Trimmed();
    const QString where = Where(u"amount"_s, number);
    fgTax.SetText(row, NameColumn, tax);
    fgTax.SetText(row, ReferenceColumn, record.Reference.Trimmed());
    fgTax.SetText(row, DateColumn, dates.TextOf(date));
    fgTax.SetText(row, AmountColumn, CurrencyText(amount, where));
    // Where both headings are the same text, all of it goes to the second tax.
    collected[tax == optTax[SecondTax] ? SecondTax : FirstTax] += ToSingle(amount, where);
}

void TaxesCollectedReport::Print() {
    const BusyPointer busy(user);
    page.Begin(u"Tax Collection Report"_s, DTPicker1, [this] { PrintPageHeading(); });
    PrintRows();
    PrintTotals();
    page.End();
}

void TaxesCollectedReport::PrintPageHeading() {
    page.PrintSharedHeading({u"Tax Collection Report"_s,
                             StartText(),
                             EndText(),
                             businessY,
                             {{taxX, u"Tax"_s},
                              {dateX, u"Date"_s},
                              {referenceX, u"Reference"_s},
                              {amountHeadingX, u"Amount Collected"_s}}});
}

void TaxesCollectedReport::PrintRows() {
    PrinterRoutines& printer = page.Routines();
    PrinterSurface& surface = page.Surface();
    printer.SetPrintFont(bodySize, false, false);
    for (int row = 1; row <= fgTax.DataRows(); ++row) {
        page.MakeRoomFor(fgTax.Text(row, NameColumn));
        printer.PrintAt(taxX, fgTax.Text(row, NameColumn));
        printer.PrintAt(dateX, fgTax.Text(row, DateColumn));
        printer.PrintAt(referenceX, fgTax.Text(row, ReferenceColumn));
        surface.PrintEndingAt(amountEnd, fgTax.Text(row, AmountColumn));
        surface.PrintLine();
    }
}

void TaxesCollectedReport::PrintTotals() {
    const bool hasSecond = collected[SecondTax] > 0;
    page.Routines().SetPrintFont(bodySize, true, false);
    page.Surface().PrintLine();
    // Totals that no longer fit go on the next page rather than off the paper.
    page.MakeRoomFor(txtTotal[FirstTax], hasSecond ? 2 : 1);
    PrintTotal(FirstTax);
    if (hasSecond)
        PrintTotal(SecondTax);
}

void TaxesCollectedReport::PrintTotal(int tax) {
    PrinterSurface& surface = page.Surface();
    page.Routines().PrintAt(totalX, u"Total "_s + optTax[size_t(tax)] + u" Collected "_s);
    surface.PrintEndingAt(totalEnd, txtTotal[size_t(tax)]);
    surface.PrintLine();
}

RangeDeletion TaxesCollectedReport::DeleteRange() {
    return DeleteRangeOf<TaxRecord>(
        taxRecordsFile,
        u"This will delete all Tax Records \nfrom "_s + StartText() + u"to "_s + EndText(),
        u"Delete Tax Records"_s,
        [this](const TaxRecord& record, int number) { return DateOf(record, number); });
}
