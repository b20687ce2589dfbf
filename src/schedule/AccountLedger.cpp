#include "schedule/AccountLedger.h"

#include "schedule/InvoiceRecords.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int invoiceNumberWidth = 20;
constexpr int amountWidth = 10;

QString LedgerFile(const QString& account) {
    return u"/NXActiveAccounts/"_s + TrimBlanks(account) + u".txt"_s;
}

LedgerEntry EntryOf(const QString& account, const QString& name, QDate date) {
    LedgerEntry entry{};
    entry.AccountName = name;
    entry.AccountNo = account;
    entry.EntryDate = ShortDateText(date);
    return entry;
}

} // namespace

AccountLedger::AccountLedger(BasicDiskRoutines& diskRoutines, const Clock& machineClock)
    : disk(diskRoutines), clock(machineClock) {}

void AccountLedger::WriteReceivable(const SlipCaptions& slip) {
    const QString invoiceNo = TrimBlanks(slip.lblInvoice).left(invoiceNumberWidth);
    const QString amount = NumberText(ToCurrency(slip.lblGrandtotal, u"the grand total"_s));
    PostLedgerEntry(slip.lblAcctNo, slip.lblCustomer[0], amount.left(amountWidth), invoiceNo,
                    clock.Today());
    BackupLedger(slip.lblAcctNo);
}

void AccountLedger::PostLedgerEntry(const QString& account, const QString& name,
                                    const QString& amountText, const QString& description,
                                    QDate date) {
    const QString file = LedgerFile(account);
    if (!disk.FileExists(file))
        CreateLedger(account, name);
    LedgerEntry entry = EntryOf(account, name, date);
    entry.Description = description;
    entry.Amount = amountText;
    AppendRecord(disk, file, entry);
}

void AccountLedger::CreateLedger(const QString& account, const QString& name) {
    LedgerEntry entry = EntryOf(account, name, clock.Today());
    entry.Description = u"Previous Balance"_s;
    entry.Amount = ZeroCurrencyText();
    disk.OpenRandom(LedgerFile(account), sizeof(LedgerEntry));
    WriteRecord(disk, disk.DiskFile, 1, entry);
    disk.CloseAllFiles();
}

void AccountLedger::BackupLedger(const QString& account) {
    const QString copy = u"/Backup"_s + LedgerFile(account);
    disk.KillFile(copy);
    disk.CopyDataFile(LedgerFile(account), copy);
}
