#include "schedule/InvoicePosting.h"

#include "schedule/InvoiceRecords.h"
#include "slips/DeliverySlipRoutines.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

using namespace Qt::StringLiterals;

InvoicePosting::InvoicePosting(BasicDiskRoutines& diskRoutines,
                               const QStringListModel& productNames, const Clock& machineClock)
    : disk(diskRoutines), lstSalesItems(productNames), clock(machineClock) {}

qint32 InvoicePosting::NextSoldItem() {
    if (!disk.FileExists(soldItemsFile))
        return 1;
    return ToInt32(double(disk.FileLength(soldItemsFile)) / sizeof(SoldItemRecord) + 1,
                   u"counting the records of SoldItems.txt"_s);
}

const QHash<QString, int>& InvoicePosting::ProductCounts() {
    const QStringList products = lstSalesItems.stringList();
    if (!products.isSharedWith(countedProducts)) {
        productCounts.clear();
        for (const QString& product : products)
            ++productCounts[TrimBlanks(product)];
        countedProducts = products;
    }
    return productCounts;
}

void InvoicePosting::PostSoldItems(const GridModel& fgItems, int lineCount,
                                   const QString& invoiceNo) {
    qint64 number = NextSoldItem();
    disk.OpenRandom(soldItemsFile, sizeof(SoldItemRecord));
    const QHash<QString, int>& counts = ProductCounts();
    const QString where = u"the units of an item line"_s;
    SoldItemRecord record{};
    record.SaleDate = clock.Today();
    record.InvoiceNo = invoiceNo;
    for (int row = 1; row <= lineCount; ++row) {
        const QString description = TrimBlanks(fgItems.Text(row, int(SlipItemColumn::Description)));
        const int products = counts.value(description);
        record.Description = description;
        for (int product = 1; product <= products; ++product) {
            record.Units = ToInt16(fgItems.Text(row, int(SlipItemColumn::Units)), where);
            WriteRecord(disk, disk.DiskFile, ToInt32(double(number++)), record);
        }
    }
    disk.CloseAllFiles();
}

void InvoicePosting::PostJournal(const QString& name, const QString& account,
                                 const QString& invoiceNo, Currency subTotal, Currency tax,
                                 Currency grandTotal, Currency discount, QDate date) {
    JournalRecord record{};
    record.AccountName = name;
    record.AccountNo = account;
    record.InvoiceNo = invoiceNo;
    record.InvoiceDate = date;
    record.SubTotal = subTotal;
    record.Tax = tax;
    record.Discount = discount;
    record.GrandTotal = grandTotal;
    AppendRecord(disk, journalFile, record);
}

void InvoicePosting::PostTaxRecords(Currency tax1, Currency tax2, const QString& heading1,
                                    const QString& heading2, const QString& invoiceNo) {
    if (tax1 > Currency())
        PostTaxRecord(heading1, invoiceNo, clock.Today(), NumberText(tax1));
    if (tax2 > Currency())
        PostTaxRecord(heading2, invoiceNo, clock.Today(), NumberText(tax2));
}

void InvoicePosting::PostTaxRecord(const QString& heading, const QString& invoiceNo, QDate date,
                                   const QString& amountText) {
    TaxRecord record{};
    record.TaxHeading = heading;
    record.TaxDate = ShortDateText(date);
    record.Reference = invoiceNo;
    record.Amount = amountText;
    AppendRecord(disk, taxRecordsFile, record);
}

void InvoicePosting::SaveCounter(const QString& text, qint16 number) {
    RewriteFile(disk, u"/Counter.txt"_s, {RecordLine().Text(text).Number(number)});
}
