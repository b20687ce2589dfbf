#pragma once

#include "platform/Clock.h"
#include "platform/GridModel.h"
#include "store/BasicDiskRoutines.h"
#include "store/Currency.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <QStringListModel>

/// Writes what an invoice leaves for the reports: SoldItems.txt, InvoiceSalesJournal.txt and
/// TaxRecords.txt, each made by its first record. Stock is not touched: it is counted by hand.
class InvoicePosting {
public:
    /// `productNames` are the names of the priced products.
    InvoicePosting(BasicDiskRoutines& diskRoutines, const QStringListModel& productNames,
                   const Clock& machineClock);

    /// A record for each of the item lines 1 to `lineCount` and each product of its name: none for
    /// a product without a price, two for a name that stands twice in the list. Units lose their
    /// fraction by rounding half to even; units that are no 16-bit number are a failure, with the
    /// lines above posted.
    void PostSoldItems(const GridModel& fgItems, int lineCount, const QString& invoiceNo);
    /// Fails with an overflow when the journal has 32,767 records.
    void PostJournal(const QString& name, const QString& account, const QString& invoiceNo,
                     Currency subTotal, Currency tax, Currency grandTotal, Currency discount,
                     QDate date);
    /// A record, dated today, for each of the two taxes that is above zero.
    void PostTaxRecords(Currency tax1, Currency tax2, const QString& heading1,
                        const QString& heading2, const QString& invoiceNo);
    /// Fails with an overflow when there are 32,767 tax records.
    void PostTaxRecord(const QString& heading, const QString& invoiceNo, QDate date,
                       const QString& amountText);

    /// Counter.txt: one line of the two. No screen calls for it and nothing reads the file; its
    /// form is kept.
    void SaveCounter(const QString& text, qint16 number);

private:
    qint32 NextSoldItem();
    /// How often each name stands in the list of products, counted anew when that has changed:
    /// gone through for each invoice, thousands of names would cost more than all its records.
    const QHash<QString, int>& ProductCounts();

    BasicDiskRoutines& disk;
    const QStringListModel& lstSalesItems;
    const Clock& clock;
    /// The list that the counts are of.
    QStringList countedProducts;
    QHash<QString, int> productCounts;
};
