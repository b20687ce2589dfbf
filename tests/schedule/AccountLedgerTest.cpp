#include "schedule/AccountLedger.h"

#include "schedule/InvoiceBytes.h"
#include "support/OfficeTest.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QString ledgerFile = u"NXActiveAccounts/4471.txt"_s;
const QString copyFile = u"Backup/NXActiveAccounts/4471.txt"_s;

constexpr int mostRecords = 32'767;

} // namespace

class AccountLedgerTest : public OfficeTest {
protected:
    AccountLedgerTest() {
        slip.lblCustomer[0] = u"Corner Grocery"_s;
        slip.lblAcctNo = u"4471"_s;
        slip.lblGrandtotal = u"$20.79"_s;
        slip.lblInvoice = u"20260001"_s;
    }

    FailureKind KindOfFailure() {
        return FailureOf([this] { ledger.WriteReceivable(slip); }).Kind();
    }

    AccountLedger& ledger = office.accountLedger;
    SlipCaptions slip;
    const QByteArray opening =
        LedgerBytes("Corner Grocery", "4471", "3/9/2026", "Previous Balance", "$0.00");
    const QByteArray charge =
        LedgerBytes("Corner Grocery", "4471", "3/9/2026", "20260001", "20.79");
};

TEST_F(AccountLedgerTest, FirstInvoiceGivesThePreviousBalanceAndTheCharge) {
    ledger.WriteReceivable(slip);
    const QByteArray expected = "Corner Grocery                               "                // 45
                                "4471                     "                                    // 25
                                "3/9/2026       "                                              // 15
                                "Previous Balance                                            " // 60
                                "$0.00     "                                                   // 10
                                "Corner Grocery                               "
                                "4471                     "
                                "3/9/2026       "
                                "20260001                                                    "
                                "20.79     ";
    EXPECT_EQ(expected.size(), 310);
    EXPECT_EQ(folder.Read(ledgerFile), expected);
    EXPECT_EQ(folder.Read(copyFile), expected);
}

TEST_F(AccountLedgerTest, EntriesOfARegionWithTheCommaHaveItsAmountsAndDate) {
    UseLocale("de_DE");
    slip.lblGrandtotal = u"1.250,50\u00a0\u20ac"_s;
    ledger.WriteReceivable(slip);
    EXPECT_EQ(
        folder.Read(ledgerFile),
        LedgerBytes("Corner Grocery", "4471", "09.03.2026", "Previous Balance", "0,00\xa0\x80") +
            LedgerBytes("Corner Grocery", "4471", "09.03.2026", "20260001", "1250,5"));
}

TEST_F(AccountLedgerTest, LaterInvoiceAddsOneEntryAndRefreshesTheCopy) {
    ledger.WriteReceivable(slip);
    clock.Date = {2026, 4, 1};
    slip.lblInvoice = u"20260002"_s;
    slip.lblGrandtotal = u"$5.00"_s;
    ledger.WriteReceivable(slip);
    const QByteArray expected =
        opening + charge + LedgerBytes("Corner Grocery", "4471", "4/1/2026", "20260002", "5");
    EXPECT_EQ(folder.Read(ledgerFile), expected);
    EXPECT_EQ(folder.Read(copyFile), expected);
}

TEST_F(AccountLedgerTest, LostLedgerComesBackFromItsCopyAndTheEntryGoesBehind) {
    const QByteArray old =
        LedgerBytes("Corner Grocery", "4471", "1/5/2025", "Previous Balance", "$0.00") +
        LedgerBytes("Corner Grocery", "4471", "1/5/2025", "20250007", "3.5");
    folder.Write(copyFile, old);
    ledger.WriteReceivable(slip);
    EXPECT_EQ(folder.Read(ledgerFile), old + charge);
    EXPECT_EQ(folder.Read(copyFile), old + charge);
}

TEST_F(AccountLedgerTest, AccountInTheFileNameHasNoBlanksAtItsEnds) {
    slip.lblAcctNo = u" 4471 "_s;
    ledger.WriteReceivable(slip);
    EXPECT_EQ(folder.Read(ledgerFile),
              LedgerBytes("Corner Grocery", " 4471 ", "3/9/2026", "Previous Balance", "$0.00") +
                  LedgerBytes("Corner Grocery", " 4471 ", "3/9/2026", "20260001", "20.79"));
    EXPECT_TRUE(folder.Has(copyFile));
}

TEST_F(AccountLedgerTest, InvoiceNumberIsTrimmedAndCutToTwentyCharacters) {
    slip.lblInvoice = u"  1234567890123456789012  "_s;
    ledger.WriteReceivable(slip);
    EXPECT_EQ(folder.Read(ledgerFile).mid(155 + 85, 60), Field("12345678901234567890", 60));
}

TEST_F(AccountLedgerTest, AmountIsAPlainNumberCutToTenCharacters) {
    const std::pair<QString, QByteArray> amounts[] = {
        {u"$1,250.00"_s, "1250"},
        {u"$12.50"_s, "12.5"},
        {u"$0.00"_s, "0"},
        {u"($3.20)"_s, "-3.2"},
        {u"1234567.89"_s, "1234567.89"},
        {u"12345678.91"_s, "12345678.9"},
        {u"922337203685477.5807"_s, "9223372036"},
        {u"999999999999.9999"_s, "9999999999"},
    };
    for (const auto& [caption, amount] : amounts) {
        folder.Write(ledgerFile, opening);
        slip.lblGrandtotal = caption;
        ledger.WriteReceivable(slip);
        EXPECT_EQ(folder.Read(ledgerFile).mid(155 + 145), Field(amount, 10))
            << caption.toStdString();
    }
}

TEST_F(AccountLedgerTest, NameAndAccountAreCutAtTheirWidths) {
    slip.lblCustomer[0] = QString(46, u'n');
    slip.lblAcctNo = QString(26, u'7');
    ledger.WriteReceivable(slip);
    EXPECT_EQ(folder.Read(u"NXActiveAccounts/"_s + QString(26, u'7') + u".txt"_s).left(70),
              QByteArray(45, 'n') + QByteArray(25, '7'));
}

TEST_F(AccountLedgerTest, GrandTotalThatIsNoAmountChangesNothing) {
    const std::pair<QString, FailureKind> captions[] = {
        {QString(), FailureKind::TypeMismatch},
        {u"abc"_s, FailureKind::TypeMismatch},
        {u"922337203685477.5808"_s, FailureKind::Overflow}};
    const auto before = folder.Contents();
    for (const auto& [caption, kind] : captions) {
        slip.lblGrandtotal = caption;
        EXPECT_EQ(KindOfFailure(), kind) << caption.toStdString();
        EXPECT_EQ(folder.Contents(), before) << caption.toStdString();
    }
}

TEST_F(AccountLedgerTest, MissingFolderIsAFailureAndMakesNoFile) {
    ASSERT_TRUE(QDir(folder.Path()).rmdir(u"NXActiveAccounts"_s));
    const QStringList before = folder.Everything();
    EXPECT_EQ(KindOfFailure(), FailureKind::PathNotFound);
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(AccountLedgerTest, AccountThatCanNotBeAFileNameIsAFailureAndMakesNoFile) {
    const QStringList before = folder.Everything();
    const std::pair<QString, FailureKind> accounts[] = {
        {u"44/71"_s, FailureKind::PathNotFound},
        {u"44\\71"_s, FailureKind::PathNotFound},
        {u"../4471"_s, FailureKind::BadFileName},
        {QString(300, u'4'), FailureKind::BadFileName},
        {u"44\0"_s + u"71"_s, FailureKind::BadFileName}};
    for (const auto& [account, kind] : accounts) {
        slip.lblAcctNo = account;
        EXPECT_EQ(KindOfFailure(), kind) << account.toStdString();
        EXPECT_EQ(folder.Everything(), before) << account.toStdString();
    }
}

TEST_F(AccountLedgerTest, FolderInThePlaceOfTheLedgerIsAFailure) {
    folder.MakeFolder(ledgerFile);
    EXPECT_EQ(KindOfFailure(), FailureKind::PermissionDenied);
}

TEST_F(AccountLedgerTest, CopyThatCanNotBeMadeLeavesTheLedgerWritten) {
    ASSERT_TRUE(QDir(folder.Path()).rmdir(u"Backup/NXActiveAccounts"_s));
    EXPECT_EQ(KindOfFailure(), FailureKind::PathNotFound);
    EXPECT_EQ(folder.Read(ledgerFile), opening + charge);
}

TEST_F(AccountLedgerTest, LedgerOf32767EntriesTakesNoMore) {
    const QByteArray full(mostRecords * 155, 'x');
    folder.Write(ledgerFile, full);
    EXPECT_EQ(KindOfFailure(), FailureKind::Overflow);
    EXPECT_TRUE(folder.Read(ledgerFile) == full);
    EXPECT_FALSE(folder.Has(copyFile));
}

TEST_F(AccountLedgerTest, EmptyLedgerFileGetsNoPreviousBalance) {
    folder.Write(ledgerFile, {});
    ledger.WriteReceivable(slip);
    EXPECT_EQ(folder.Read(ledgerFile), charge);
}

TEST_F(AccountLedgerTest, EntryBearsTheDateThatItIsGivenAndTheOpeningBearsToday) {
    ledger.PostLedgerEntry(u"4471"_s, u"Corner Grocery"_s, u"-5"_s, u"Payment"_s, {2026, 2, 28});
    EXPECT_EQ(folder.Read(ledgerFile),
              opening + LedgerBytes("Corner Grocery", "4471", "2/28/2026", "Payment", "-5"));
    EXPECT_FALSE(folder.Has(copyFile));
}
