#include "reports/InvoiceReport.h"

#include "customers/SampleCustomers.h"
#include "reports/ReportTest.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString journal = u"InvoiceSalesJournal.txt"_s;
const QString copy = u"Backup/InvoiceSalesJournal.txt"_s;
const QString question = u"This will delete all Sales Records \nfrom 3/1/2026to 3/9/2026"_s;
const QString questionTitle = u"Delete Sales Records"_s;

QByteArray BytesOf(const std::vector<JournalBytes>& records) {
    QByteArray bytes;
    for (const JournalBytes& record : records)
        bytes += record.Record();
    return bytes;
}

} // namespace

class InvoiceReportTest : public OfficeTest {
protected:
    void OpenWith(const std::vector<JournalBytes>& records) {
        folder.Write(journal, BytesOf(records));
        report.Open();
    }

    void WriteCustomers(const std::vector<QByteArray>& accounts) const {
        QByteArray bytes;
        for (const QByteArray& account : accounts)
            bytes += SampleCustomer{.account = account}.Bytes();
        folder.Write(u"CustomerData.txt"_s, bytes);
    }

    QStringList Rows() const { return RowsOf(report.fgSales); }
    QStringList Totals() const { return {report.lblTotal.begin(), report.lblTotal.end()}; }

    void ExpectDeleteQuestions() {
        user.ExpectQuestion(question, questionTitle, Answer::Yes);
        user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    }

    const QString emptyRow = u"|||||||"_s;
    const QStringList noTotals = {u"$0.00"_s, u"$0.00"_s, u"$0.00"_s, u"$0.00"_s};
    InvoiceReport& report = office.invoiceReport;
};

TEST_F(InvoiceReportTest, RecordsAreReadAtTheirOffsets) {
    EXPECT_EQ(JournalBytes{}.Record().size(), 125);
    OpenWith({{.discount = 5'0000}});
    EXPECT_EQ(Rows(), QStringList{u"20260001|3/9/2026|4471|Corner Grocery|$100.00|$5.00|$6.25|"
                                  u"$106.25"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$100.00"_s, u"$5.00"_s, u"$6.25"_s, u"$106.25"_s}));
}

TEST_F(InvoiceReportTest, GridHasItsHeadingsAndAlignments) {
    QStringList headings;
    for (int column = 0; column < report.fgSales.Columns(); ++column) {
        headings += report.fgSales.Text(0, column);
        const int alignment =
            report.fgSales.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
            int(Qt::AlignHorizontal_Mask);
        EXPECT_EQ(alignment, int(column == 3 ? Qt::AlignLeft : Qt::AlignHCenter)) << column;
    }
    EXPECT_EQ(headings,
              (QStringList{u"Invoice No"_s, u"Invoice Date"_s, u"Account No"_s, u"Account Name"_s,
                           u"Sub-total"_s, u"Discount"_s, u"Tax"_s, u"Grand Total"_s}));
}

TEST_F(InvoiceReportTest, RangeOpensWithTheMonthToDateForAllAccounts) {
    report.Open();
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 3, 1));
    EXPECT_EQ(report.DTPicker1[1], QDate(2026, 3, 9));
    EXPECT_EQ(report.chosen, InvoiceReport::AllAccounts);
}

TEST_F(InvoiceReportTest, BothBoundsBelongToTheRange) {
    OpenWith({{.invoiceNo = "1", .day = firstOfMarch - 1},
              {.invoiceNo = "2", .day = firstOfMarch},
              {.invoiceNo = "3", .day = ninthOfMarch},
              {.invoiceNo = "4", .day = ninthOfMarch + 1}});
    EXPECT_EQ(Rows(),
              (QStringList{u"2|3/1/2026|4471|Corner Grocery|$100.00|$0.00|$6.25|$106.25"_s,
                           u"3|3/9/2026|4471|Corner Grocery|$100.00|$0.00|$6.25|$106.25"_s}));
    EXPECT_EQ(Totals(), (QStringList{u"$200.00"_s, u"$0.00"_s, u"$12.50"_s, u"$212.50"_s}));
}

TEST_F(InvoiceReportTest, EternityLeavesOutWhatIsOlderThanTheYear2000) {
    OpenWith({{.invoiceNo = "1", .day = firstOf2000 - 1}, {.invoiceNo = "2", .day = firstOf2000}});
    report.ApplyPreset(RangePreset::Eternity);
    EXPECT_EQ(Rows(), QStringList{u"2|1/1/2000|4471|Corner Grocery|$100.00|$0.00|$6.25|$106.25"_s});
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
}

TEST_F(InvoiceReportTest, SumsAreOfCurrencyValuesAndDoNotDrift) {
    std::vector<JournalBytes> records(1000, {.subTotal = 1, .grandTotal = 100'000'000'000'0001});
    OpenWith(records);
    EXPECT_EQ(Totals()[0], u"$0.10"_s);
    EXPECT_EQ(Totals()[3], u"$100,000,000,000,000.10"_s);
}

TEST_F(InvoiceReportTest, SumBeyondACurrencyValueIsAnOverflow) {
    folder.Write(journal,
                 BytesOf({{.grandTotal = std::numeric_limits<qint64>::max()}, {.grandTotal = 1}}));
    EXPECT_EQ(FailureOf([this] { report.Open(); }).Kind(), FailureKind::Overflow);
}

TEST_F(InvoiceReportTest, DamagedDateIsInNoRange) {
    QByteArray bytes = JournalBytes{}.Record();
    bytes.replace(85, 8, QByteArray(8, '\xff'));
    folder.Write(journal, bytes);
    report.Open();
    EXPECT_EQ(Rows(), QStringList{emptyRow});
}

TEST_F(InvoiceReportTest, JournalWithoutRecordsShowsOneEmptyRow) {
    OpenWith({});
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    EXPECT_EQ(Totals(), noTotals);
}

TEST_F(InvoiceReportTest, MissingJournalIsAnEmptyReportAndIsNotMade) {
    const auto before = folder.Contents();
    report.Open();
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    EXPECT_EQ(Totals(), noTotals);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceReportTest, LostJournalComesBackOutOfBackup) {
    folder.Write(copy, JournalBytes{}.Record());
    report.Open();
    EXPECT_EQ(Rows().value(0).left(8), u"20260001"_s);
    EXPECT_EQ(folder.Read(journal), JournalBytes{}.Record());
}

TEST_F(InvoiceReportTest, CutRecordCountsFromHalfItsLengthOn) {
    const QByteArray record = JournalBytes{}.Record();
    folder.Write(journal, record + record.left(62));
    report.Open();
    EXPECT_EQ(Rows().size(), 1);
    // Its amounts are lost.
    folder.Write(journal, record + record.left(93));
    report.LoadGrid();
    EXPECT_EQ(Rows()[1], u"20260001|3/9/2026|4471|Corner Grocery|$0.00|$0.00|$0.00|$0.00"_s);
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
}

TEST_F(InvoiceReportTest, LoadTakes32767RecordsAndNotOneMore) {
    OpenWith(std::vector<JournalBytes>(32'767));
    EXPECT_EQ(Rows().size(), 32'767);
    EXPECT_EQ(Totals()[3], u"$3,481,493.75"_s);
    folder.Write(journal, JournalBytes{}.Record().repeated(32'768));
    EXPECT_EQ(FailureOf([this] { report.LoadGrid(); }).Kind(), FailureKind::Overflow);
}

TEST_F(InvoiceReportTest, DatesAndAmountsAreInTheRegionalForm) {
    UseLocale("de_DE.UTF-8");
    OpenWith({{.name = "Gr\xf6\xdfmann", .subTotal = 1'234'5000, .grandTotal = -1'0000}});
    EXPECT_EQ(Rows(), QStringList{u"20260001|09.03.2026|4471|Größmann|1.234,50\u00a0€|0,00\u00a0€|"
                                  u"6,25\u00a0€|-1,00\u00a0€"_s});
}

// Accounts.

TEST_F(InvoiceReportTest, AccountsAreListedInFileOrderAndAnewEachTime) {
    WriteCustomers({"4471", "12", "0099"});
    report.Open();
    EXPECT_EQ(report.lstAccounts.stringList(), (QStringList{u"4471"_s, u"12"_s, u"0099"_s}));
    WriteCustomers({"12"});
    report.Open();
    EXPECT_EQ(report.lstAccounts.stringList(), QStringList{u"12"_s});
}

TEST_F(InvoiceReportTest, ListStaysEmptyWithoutCustomers) {
    const auto before = folder.Contents();
    report.Open();
    EXPECT_EQ(report.lstAccounts.rowCount(), 0);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceReportTest, ListingAccountsLeavesTheCustomerInHandAlone) {
    WriteCustomers({"4471", "12"});
    office.customerFiles.ReadCustomer(1);
    report.Open();
    EXPECT_EQ(office.customerFiles.Customer.AcctNo.Trimmed(), u"4471"_s);
}

TEST_F(InvoiceReportTest, SingleAccountSelectsTheFirstAndEmptiesTheGrid) {
    WriteCustomers({"4471", "12"});
    OpenWith({{}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    EXPECT_EQ(report.selectedAccount, 0);
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
}

TEST_F(InvoiceReportTest, OneAccountListsItsInvoicesAndLeavesAnEmptyRowForEachOther) {
    WriteCustomers({"4471", "12"});
    OpenWith({{.account = "12", .invoiceNo = "1"},
              {.invoiceNo = "2"},
              {.account = "12", .invoiceNo = "3", .day = firstOf2000},
              {.account = "012", .invoiceNo = "4"},
              {.account = " 12", .invoiceNo = "5", .grandTotal = 1'0000}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.SelectAccount(1);
    report.LoadGrid();
    EXPECT_EQ(Rows(), (QStringList{u"1|3/9/2026|12|Corner Grocery|$100.00|$0.00|$6.25|$106.25"_s,
                                   u"5|3/9/2026|12|Corner Grocery|$100.00|$0.00|$6.25|$1.00"_s,
                                   emptyRow, emptyRow}));
    EXPECT_EQ(Totals(), (QStringList{u"$200.00"_s, u"$0.00"_s, u"$12.50"_s, u"$107.25"_s}));
}

TEST_F(InvoiceReportTest, AccountWithoutInvoicesLeavesAnEmptyRowForEachInvoiceOfTheRange) {
    WriteCustomers({"99"});
    OpenWith({{}, {}, {.day = firstOf2000}, {}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.LoadGrid();
    EXPECT_EQ(Rows(), (QStringList{emptyRow, emptyRow, emptyRow}));
    EXPECT_EQ(Totals(), noTotals);
}

TEST_F(InvoiceReportTest, ClickOnAnAccountEmptiesTheGridAndKeepsTheTotals) {
    WriteCustomers({"4471", "12"});
    OpenWith({{}, {}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.LoadGrid();
    ASSERT_EQ(Rows().size(), 2);
    report.SelectAccount(1);
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    EXPECT_EQ(Totals()[3], u"$212.50"_s);
}

TEST_F(InvoiceReportTest, AllAccountsAgainEmptiesTheGridAndListsAllAtTheNextLoad) {
    WriteCustomers({"12"});
    OpenWith({{}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.LoadGrid();
    report.ChooseAccounts(InvoiceReport::AllAccounts);
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    report.LoadGrid();
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
}

TEST_F(InvoiceReportTest, SingleAccountWithoutCustomersListsInvoicesWithoutAnAccount) {
    OpenWith({{.account = "", .invoiceNo = "1"}, {.invoiceNo = "2"}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    EXPECT_EQ(report.selectedAccount, -1);
    report.LoadGrid();
    EXPECT_EQ(Rows(),
              (QStringList{u"1|3/9/2026||Corner Grocery|$100.00|$0.00|$6.25|$106.25"_s, emptyRow}));
}

TEST_F(InvoiceReportTest, OpeningAgainKeepsTheAccountWhereverItStandsNow) {
    WriteCustomers({"4471", "12"});
    report.Open();
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.SelectAccount(1);
    WriteCustomers({"7", "8", "12"});
    report.Open();
    EXPECT_EQ(report.selectedAccount, 2);
    WriteCustomers({"7", "8"});
    report.Open();
    EXPECT_EQ(report.selectedAccount, 0);
}

// Print.

class InvoiceReportPrintTest : public InvoiceReportTest {
protected:
    InvoiceReportPrintTest() {
        office.settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    }

    static QStringList HeadOf(int page) {
        const QStringList head = {u"4720,240 14b General Sales Report"_s,
                                  u"5040,576 8b from 3/1/2026 to 3/9/2026"_s,
                                  u"1080,576 12b Tessel Gravel"_s,
                                  u"1080,864 10 1 Quarry Road"_s,
                                  u"1080,1104 10 Building 2"_s,
                                  u"1080,1344 10 Springfield, IL. 62701"_s,
                                  u"1080,1584 10 Telephone: 555-0100"_s,
                                  u"1080,1824 10 555-0101"_s,
                                  u"1080,2064 10 Tax 99"_s,
                                  u"10080,720 10 3/9/2026"_s,
                                  u"720,2880 10b Invoice"_s,
                                  u"1800,2880 10b Account No"_s,
                                  u"3456,2880 10b Account Name"_s,
                                  u"5904,2880 10b SubTotal"_s,
                                  u"7488,2880 10b Discount"_s,
                                  u"9216,2880 10b Tax"_s,
                                  u"10584,2880 10b Total"_s};
        QStringList drawn;
        for (const QString& text : head)
            drawn += u"%1: "_s.arg(page) + text;
        return drawn;
    }

    QStringList TextsOfPage(int page) const {
        return printer.DrawnTexts().filter(QString::number(page) + u": "_s);
    }
};

TEST_F(InvoiceReportPrintTest, PageHasItsHeadTheInvoicesAndTheSums) {
    OpenWith(
        {{.discount = 5'0000}, {.name = "Ann Miller", .account = "12", .invoiceNo = "20260002"}});
    report.Print();
    EXPECT_EQ(printer.DrawnTexts(),
              HeadOf(1) + QStringList({u"1: 720,3600 10 20260001"_s,
                                       u"1: 1800,3600 10 4471"_s,
                                       u"1: 3456,3600 10 Corner Grocery"_s,
                                       u"1: 6068,3600 10 $100.00"_s,
                                       u"1: 7852,3600 10 $5.00"_s,
                                       u"1: 9148,3600 10 $6.25"_s,
                                       u"1: 10388,3600 10 $106.25"_s,
                                       u"1: 720,3840 10 20260002"_s,
                                       u"1: 1800,3840 10 12"_s,
                                       u"1: 3456,3840 10 Ann Miller"_s,
                                       u"1: 6068,3840 10 $100.00"_s,
                                       u"1: 7852,3840 10 $0.00"_s,
                                       u"1: 9148,3840 10 $6.25"_s,
                                       u"1: 10388,3840 10 $106.25"_s,
                                       u"1: 6480,4660 10b Goods Sub Total"_s,
                                       u"1: 10388,4660 10b $200.00"_s,
                                       u"1: 6480,4900 10b Discounts Offered"_s,
                                       u"1: 10588,4900 10b $5.00"_s,
                                       u"1: 6480,5140 10b Tax Collected"_s,
                                       u"1: 10488,5140 10b $12.50"_s,
                                       u"1: 6480,5380 10b Sales Total"_s,
                                       u"1: 10388,5380 10b $212.50"_s}));
    ASSERT_EQ(printer.Lines.size(), 2U);
    for (const auto& rule : printer.Lines) {
        EXPECT_EQ(rule.x1, 720);
        EXPECT_EQ(rule.x2, 13680);
        EXPECT_EQ(rule.y1, rule.y2);
        EXPECT_EQ(rule.color, 0U);
    }
    EXPECT_EQ(printer.Lines[0].y1, 3220);
    EXPECT_EQ(printer.Lines[1].y1, 4420);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Orientations, std::vector{Orientation::Portrait});
    EXPECT_EQ(printer.JobName, u"General Sales Report 2026-03-01 to 2026-03-09"_s);
    EXPECT_FALSE(printer.FontBold);
}

TEST_F(InvoiceReportPrintTest, EmptyRowsOfOtherAccountsPrintAsEmptyLines) {
    WriteCustomers({"99"});
    OpenWith({{}, {}, {}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.LoadGrid();
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 17 + 8);
    // Three empty lines, one more, and the rule between two.
    EXPECT_EQ(printer.Find(u"Goods Sub Total"_s).y, 3600 + 3 * 240 + 240 + 100 + 240);
    EXPECT_EQ(printer.Find(u"$0.00"_s).y, printer.Find(u"Goods Sub Total"_s).y);
}

TEST_F(InvoiceReportPrintTest, InvoicesGoOnUnderTheHeadOfTheNextPageInPlainType) {
    OpenWith(std::vector<JournalBytes>(51));
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 17 + 50 * 7);
    EXPECT_EQ(TextsOfPage(1).last(), u"1: 10388,15360 10 $106.25"_s);
    EXPECT_EQ(TextsOfPage(2).mid(0, 24),
              HeadOf(2) + QStringList({u"2: 720,3600 10 20260001"_s, u"2: 1800,3600 10 4471"_s,
                                       u"2: 3456,3600 10 Corner Grocery"_s,
                                       u"2: 6068,3600 10 $100.00"_s, u"2: 7852,3600 10 $0.00"_s,
                                       u"2: 9148,3600 10 $6.25"_s, u"2: 10388,3600 10 $106.25"_s}));
    EXPECT_EQ(TextsOfPage(2).size(), 17 + 7 + 8);
    EXPECT_EQ(printer.Lines.size(), 3U);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InvoiceReportPrintTest, ThreePagesHaveTheirHeadOnEach) {
    OpenWith(std::vector<JournalBytes>(110));
    report.Print();
    EXPECT_EQ(TextsOfPage(2).size(), 17 + 50 * 7);
    EXPECT_EQ(TextsOfPage(3).mid(0, 17), HeadOf(3));
    EXPECT_EQ(TextsOfPage(3).size(), 17 + 10 * 7 + 8);
}

TEST_F(InvoiceReportPrintTest, SumsGoOnTheNextPageRatherThanOffThePaper) {
    // Behind 45 invoices the pen stands at 14400, too low for the sums.
    OpenWith(std::vector<JournalBytes>(45));
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 17 + 45 * 7);
    EXPECT_EQ(TextsOfPage(2).mid(0, 19),
              HeadOf(2) + QStringList({u"2: 6480,4180 10b Goods Sub Total"_s,
                                       u"2: 10188,4180 10b $4,500.00"_s}));
}

TEST_F(InvoiceReportPrintTest, SumsThatFitStayOnThePage) {
    OpenWith(std::vector<JournalBytes>(43));
    report.Print();
    EXPECT_EQ(TextsOfPage(2), QStringList());
    EXPECT_EQ(printer.Find(u"Sales Total"_s).y, 3600 + 43 * 240 + 240 + 100 + 4 * 240);
}

TEST_F(InvoiceReportPrintTest, FailureOfThePrinterIsNotHandled) {
    OpenWith({{}});
    printer.FailsAtEndOfJob = true;
    EXPECT_EQ(FailureOf([this] { report.Print(); }).Kind(), FailureKind::PrinterFailure);
}

TEST_F(InvoiceReportPrintTest, ColourFlagGoesToThePrinter) {
    office.settings.ckColor = 1;
    OpenWith({{}});
    report.Print();
    office.settings.ckColor = 0;
    report.Print();
    EXPECT_EQ(printer.Colors, (std::vector{true, false}));
}

// Delete by range, and of all.

TEST_F(InvoiceReportTest, DeleteTakesTheRangeOutAndKeepsTheRestInOrder) {
    const JournalBytes before{.invoiceNo = "1", .day = firstOfMarch - 1};
    const JournalBytes after{.account = "12", .invoiceNo = "4", .day = ninthOfMarch + 1};
    OpenWith({before, {.day = firstOfMarch}, {.account = "99"}, after});
    folder.Write(copy, "an older copy");
    folder.Write(u"TemporaryFile.txt"_s, QByteArray(1250, 'x'));
    folder.Write(u"Backup/TemporaryFile.txt"_s, "left over");
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(journal), BytesOf({before, after}));
    EXPECT_EQ(folder.Read(copy), BytesOf({before, after}));
    EXPECT_FALSE(folder.Has(u"TemporaryFile.txt"_s));
    EXPECT_FALSE(folder.Has(u"Backup/TemporaryFile.txt"_s));
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    EXPECT_EQ(Totals(), noTotals);
}

TEST_F(InvoiceReportTest, DeleteGoesByTheRangeAndNotByTheAccount) {
    WriteCustomers({"99"});
    OpenWith({{}, {.account = "99"}});
    report.ChooseAccounts(InvoiceReport::SingleAccount);
    report.LoadGrid();
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(journal), QByteArray());
}

TEST_F(InvoiceReportTest, DeleteOfEveryRecordLeavesAnEmptyJournalAndItsCopy) {
    OpenWith({{}, {}});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_TRUE(folder.Has(journal));
    EXPECT_TRUE(folder.Has(copy));
    EXPECT_EQ(folder.Read(journal), QByteArray());
    EXPECT_EQ(folder.Read(copy), QByteArray());
}

TEST_F(InvoiceReportTest, DeleteLeavesTheDefaultRange) {
    OpenWith({{.day = firstOf2000}, {.invoiceNo = "2"}});
    report.ApplyPreset(RangePreset::Eternity);
    report.PickDate(RangeBound::End, {2026, 3, 8});
    user.ExpectQuestion(u"This will delete all Sales Records \nfrom 1/1/2000to 3/8/2026"_s,
                        questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(journal), BytesOf({{.invoiceNo = "2"}}));
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 3, 1));
    EXPECT_EQ(report.DTPicker1[1], QDate(2026, 3, 9));
    EXPECT_EQ(Rows().size(), 1);
}

TEST_F(InvoiceReportTest, DeleteWithoutAJournalDoesNothingWithoutAWord) {
    report.Open();
    const auto before = folder.Contents();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceReportTest, NoToEitherQuestionDeletesNothing) {
    OpenWith({{}});
    const auto before = folder.Contents();
    user.ExpectQuestion(question, questionTitle, Answer::No);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::No);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceReportTest, DeleteOfMoreThan32767RecordsIsAnOverflowAndDeletesNothing) {
    report.Open();
    folder.Write(journal, JournalBytes{}.Record().repeated(32'768));
    const auto before = folder.Contents();
    ExpectDeleteQuestions();
    EXPECT_EQ(FailureOf([this] { report.DeleteRange(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceReportTest, DeleteAllAsksOnceAndRemovesJournalAndCopyWhateverTheRange) {
    OpenWith({{.day = firstOf2000}, {}});
    folder.Write(copy, "an older copy");
    user.ExpectQuestion(u"This will delete all Sales Records "_s, u"Delete ALL Sales Records"_s,
                        Answer::Yes);
    EXPECT_TRUE(report.DeleteAllRecords());
    EXPECT_FALSE(folder.Has(journal));
    EXPECT_FALSE(folder.Has(copy));
    report.Open();
    EXPECT_EQ(Rows(), QStringList{emptyRow});
    EXPECT_EQ(Totals(), noTotals);
    EXPECT_FALSE(folder.Has(journal));
}

TEST_F(InvoiceReportTest, NoToDeleteAllDeletesNothing) {
    OpenWith({{}});
    folder.Write(copy, "an older copy");
    const auto before = folder.Contents();
    user.ExpectQuestion(u"This will delete all Sales Records "_s, u"Delete ALL Sales Records"_s,
                        Answer::No);
    EXPECT_FALSE(report.DeleteAllRecords());
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Rows().size(), 1);
}

TEST_F(InvoiceReportTest, DeleteAllWithoutAJournalAsksAllTheSame) {
    report.Open();
    user.ExpectQuestion(u"This will delete all Sales Records "_s, u"Delete ALL Sales Records"_s,
                        Answer::Yes);
    EXPECT_TRUE(report.DeleteAllRecords());
}
