#pragma once

#include "store/FixedRecord.h"

#include <QString>

#include <cstddef>

/// The records that posted invoices leave, and the names of their files. An invoice number fills
/// 20 bytes in some of them and 30 or 60 in others; the reports read them at these widths.

inline const QString soldItemsFile = QStringLiteral("/SoldItems.txt");
inline const QString journalFile = QStringLiteral("/InvoiceSalesJournal.txt");
inline const QString taxRecordsFile = QStringLiteral("/TaxRecords.txt");

/// Record of SoldItems.txt: an item line of an invoice.
struct SoldItemRecord {
    FixedText<60> Description;
    LittleDate SaleDate;
    FixedText<20> InvoiceNo;
    LittleInt16 Units;
};

static_assert(sizeof(SoldItemRecord) == 90);
static_assert(offsetof(SoldItemRecord, Description) == 0);
static_assert(offsetof(SoldItemRecord, SaleDate) == 60);
static_assert(offsetof(SoldItemRecord, InvoiceNo) == 68);
static_assert(offsetof(SoldItemRecord, Units) == 88);

/// Record of InvoiceSalesJournal.txt: an invoice. The delivery charge shows only in the grand
/// total.
struct JournalRecord {
    FixedText<45> AccountName;
    FixedText<20> AccountNo;
    FixedText<20> InvoiceNo;
    LittleDate InvoiceDate;
    LittleCurrency SubTotal;
    LittleCurrency Tax;
    LittleCurrency Discount;
    LittleCurrency GrandTotal;
};

static_assert(sizeof(JournalRecord) == 125);
static_assert(offsetof(JournalRecord, AccountName) == 0);
static_assert(offsetof(JournalRecord, AccountNo) == 45);
static_assert(offsetof(JournalRecord, InvoiceNo) == 65);
static_assert(offsetof(JournalRecord, InvoiceDate) == 85);
static_assert(offsetof(JournalRecord, SubTotal) == 93);
static_assert(offsetof(JournalRecord, Tax) == 101);
static_assert(offsetof(JournalRecord, Discount) == 109);
static_assert(offsetof(JournalRecord, GrandTotal) == 117);

/// Record of TaxRecords.txt: a tax above zero of an invoice, all in text.
struct TaxRecord {
    FixedText<20> TaxHeading;
    /// Short date text.
    FixedText<15> TaxDate;
    /// The invoice number.
    FixedText<30> Reference;
    /// Plain number text.
    FixedText<10> Amount;
};

static_assert(sizeof(TaxRecord) == 75);
static_assert(offsetof(TaxRecord, TaxHeading) == 0);
static_assert(offsetof(TaxRecord, TaxDate) == 20);
static_assert(offsetof(TaxRecord, Reference) == 35);
static_assert(offsetof(TaxRecord, Amount) == 65);

/// Record of an account's file in NXActiveAccounts: a balance carried over, or a charge.
struct LedgerEntry {
    FixedText<45> AccountName;
    FixedText<25> AccountNo;
    /// Short date text.
    FixedText<15> EntryDate;
    /// "Previous Balance" in the first record, the invoice number in the others.
    FixedText<60> Description;
    /// Currency text in the first record, plain number text in the others.
    FixedText<10> Amount;
};

static_assert(sizeof(LedgerEntry) == 155);
static_assert(offsetof(LedgerEntry, AccountName) == 0);
static_assert(offsetof(LedgerEntry, AccountNo) == 45);
static_assert(offsetof(LedgerEntry, EntryDate) == 70);
static_assert(offsetof(LedgerEntry, Description) == 85);
static_assert(offsetof(LedgerEntry, Amount) == 145);
