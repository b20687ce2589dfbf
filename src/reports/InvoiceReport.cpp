#include "reports/InvoiceReport.h"

#include "reports/DateTexts.h"
#include "schedule/InvoiceRecords.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

enum InvoiceColumn {
    InvoiceNoColumn,
    DateColumn,
    AccountNoColumn,
    AccountNameColumn,
    SubTotalColumn,
    DiscountColumn,
    TaxColumn,
    GrandTotalColumn,
};

// Inches.
constexpr float businessY = 0.4F;
constexpr float invoiceX = 0.5F;
constexpr float accountNoX = 1.25F;
constexpr float accountNameX = 2.4F;
constexpr float subTotalX = 4.1F;
constexpr float discountX = 5.2F;
constexpr float taxX = 6.4F;
constexpr float totalX = 7.35F;
constexpr float sumsX = 4.5F;

// Twips: where amounts end.
constexpr double subTotalEnd = 6768;
constexpr double discountEnd = 8352;
constexpr double taxEnd = 9648;
constexpr double totalEnd = 11088;

constexpr int bodySize = 10;

/// Lines from the last invoice to the last sum: two empty ones with a rule between them, and the
/// sums.
constexpr int totalLines = 7;

} // namespace

InvoiceReport::InvoiceReport(BasicDiskRoutines& diskRoutines, CustomerFiles& customerFiles,
                             ReportPrinter& reportPrinter, const LiveSettings& liveSettings,
                             const Clock& machineClock, Operator& person)
    : ReportFrame(diskRoutines, machineClock, person),
      fgSales({u"Invoice No"_s, u"Invoice Date"_s, u"Account No"_s, u"Account Name"_s,
               u"Sub-total"_s, u"Discount"_s, u"Tax"_s, u"Grand Total"_s}),
      customers(customerFiles), page(reportPrinter), settings(liveSettings) {
    for (int column = 0; column < fgSales.Columns(); ++column) {
        if (column != AccountNameColumn)
            fgSales.AlignCentre(column);
    }
}

void InvoiceReport::Open() {
    const QString account = SelectedAccount();
    const QStringList accounts = customers.AccountNumbers();
    lstAccounts.setStringList(accounts);
    selectedAccount = -1;
    if (chosen == SingleAccount && !accounts.isEmpty())
        selectedAccount = std::max(int(accounts.indexOf(account)), 0);
    LoadDefaultRange();
}

QString InvoiceReport::SelectedAccount() const {
    return TrimBlanks(lstAccounts.index(selectedAccount).data().toString());
}

void InvoiceReport::LoadGrid() {
    const BusyPointer busy(user);
    const qint16 count = disk.RecordCount(journalFile, sizeof(JournalRecord));
    const GridModel::Refill refill(fgSales);
    fgSales.ClearGrid();
    fgSales.SetRows(RowsFor(count));
    sums.fill({});
    const QString account = SelectedAccount();
    DateTexts dates;
    int listed = 0;
    int outside = 0;
    // Opening would make a missing file.
    if (count > 0)
        disk.OpenRandom(journalFile, sizeof(JournalRecord));
    for (int number = 1; number <= count; ++number) {
        const auto record = ReadRecord<JournalRecord>(disk, disk.DiskFile, number);
        const QDate date = record.InvoiceDate.Value();
        if (!IsInRange(date))
            ++outside;
        else if (chosen == AllAccounts || record.AccountNo.Trimmed() == account)
            AddRow(++listed, record, dates.TextOf(date));
    }
    disk.CloseAllFiles();
    // An invoice of another account takes no row off, on purpose.
    fgSales.SetRows(RowsFor(count - outside));
    for (size_t i = 0; i < lblTotal.size(); ++i)
        lblTotal[i] = CurrencyText(sums[i]);
}

void InvoiceReport::AddRow(int row, const JournalRecord& record, const QString& date) {
    fgSales.SetText(row, InvoiceNoColumn, record.InvoiceNo.Trimmed());
    fgSales.SetText(row, DateColumn, date);
    fgSales.SetText(row, AccountNoColumn, record.AccountNo.Trimmed());
    fgSales.SetText(row, AccountNameColumn, record.AccountName.Trimmed());
    const std::array<Currency, amounts> values = {record.SubTotal.Value(), record.Discount.Value(),
                                                  record.Tax.Value(), record.GrandTotal.Value()};
    for (int i = 0; i < amounts; ++i) {
        fgSales.SetText(row, SubTotalColumn + i, CurrencyText(values[size_t(i)]));
        sums[size_t(i)] += values[size_t(i)];
    }
}

void InvoiceReport::SelectAccount(int row) {
    selectedAccount = row;
    fgSales.ClearGrid();
}

void InvoiceReport::ChooseAccounts(AccountOption option) {
    chosen = option;
    fgSales.ClearGrid();
    if (option == SingleAccount && lstAccounts.rowCount() > 0)
        selectedAccount = 0;
}

void InvoiceReport::Print() {
    const BusyPointer busy(user);
    page.Begin(u"General Sales Report"_s, DTPicker1, [this] { PrintPageHeading(); });
    PrintRows();
    PrintTotals();
    page.Routines().SetPrintFont(bodySize, false, false);
    page.End();
}

void InvoiceReport::PrintPageHeading() {
    page.PrintSharedHeading({u"General Sales Report"_s,
                             StartText(),
                             EndText(),
                             businessY,
                             {{invoiceX, u"Invoice"_s},
                              {accountNoX, u"Account No"_s},
                              {accountNameX, u"Account Name"_s},
                              {subTotalX, u"SubTotal"_s},
                              {discountX, u"Discount"_s},
                              {taxX, u"Tax"_s},
                              {totalX, u"Total"_s}}});
}

void InvoiceReport::PrintRows() {
    PrinterRoutines& printer = page.Routines();
    PrinterSurface& surface = page.Surface();
    printer.SetPrintFont(bodySize, false, false);
    for (int row = 1; row <= fgSales.DataRows(); ++row) {
        page.MakeRoomFor(fgSales.Text(row, InvoiceNoColumn));
        printer.PrintAt(invoiceX, fgSales.Text(row, InvoiceNoColumn));
        printer.PrintAt(accountNoX, fgSales.Text(row, AccountNoColumn));
        printer.PrintAt(accountNameX, fgSales.Text(row, AccountNameColumn));
        surface.PrintEndingAt(subTotalEnd, fgSales.Text(row, SubTotalColumn));
        surface.PrintEndingAt(discountEnd, fgSales.Text(row, DiscountColumn));
        surface.PrintEndingAt(taxEnd, fgSales.Text(row, TaxColumn));
        surface.PrintEndingAt(totalEnd, fgSales.Text(row, GrandTotalColumn));
        surface.PrintLine();
    }
}

void InvoiceReport::PrintTotals() {
    PrinterSurface& surface = page.Surface();
    const std::array<QString, amounts> captions = {u"Goods Sub Total"_s, u"Discounts Offered"_s,
                                                   u"Tax Collected"_s, u"Sales Total"_s};
    page.Routines().SetPrintFont(bodySize, true, false);
    // Totals that no longer fit go on the next page rather than off the paper.
    page.MakeRoomFor(captions[0], totalLines);
    surface.PrintLine();
    page.PrintRule();
    surface.PrintLine();
    for (size_t i = 0; i < captions.size(); ++i) {
        page.Routines().PrintAt(sumsX, captions[i]);
        surface.PrintEndingAt(totalEnd, lblTotal[i]);
        surface.PrintLine();
    }
}

RangeDeletion InvoiceReport::DeleteRange() {
    return DeleteRangeOf<JournalRecord>(
        journalFile,
        u"This will delete all Sales Records \nfrom "_s + StartText() + u"to "_s + EndText(),
        u"Delete Sales Records"_s,
        [](const JournalRecord& record, int) { return record.InvoiceDate.Value(); });
}

bool InvoiceReport::DeleteAllRecords() {
    if (user.MsgBox(u"This will delete all Sales Records "_s, Buttons::YesNo,
                    u"Delete ALL Sales Records"_s) != Answer::Yes)
        return false;
    disk.DeleteWithBackup(journalFile);
    return true;
}
