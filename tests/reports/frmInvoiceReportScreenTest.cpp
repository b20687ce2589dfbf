#include "customers/SampleCustomers.h"
#include "platform/Grid.h"
#include "reports/ReportScreenTest.h"

#include <QLabel>
#include <QListView>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

const QString journal = u"InvoiceSalesJournal.txt"_s;

} // namespace

class InvoiceReportScreen : public ReportScreenTest {
protected:
    InvoiceReportScreen() : ReportScreenTest(ScreenName::frmInvoiceReport) {
        folder.Write(u"CustomerData.txt"_s, SampleCustomer{.account = "4471"}.Bytes() +
                                                SampleCustomer{.account = "12"}.Bytes());
        folder.Write(journal, JournalBytes{}.Record() +
                                  JournalBytes{.account = "12", .invoiceNo = "20260002"}.Record() +
                                  JournalBytes{.day = firstOfMarch - 1}.Record());
    }

    QListView* Accounts() { return Find<QListView>(report, u"lstAccounts"_s); }

    void ClickAccount(int row) {
        QListView* list = Accounts();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualRect(list->model()->index(row, 0)).center());
    }

    QStringList Totals() {
        QStringList totals;
        for (int i = 0; i < 4; ++i)
            totals += Find<QLabel>(report, u"lblTotal(%1)"_s.arg(i))->text();
        return totals;
    }

    QStringList InvoiceNumbers() {
        QStringList numbers;
        for (const QString& row : RowsOf(office.invoiceReport.fgSales))
            numbers += row.section(u'|', 0, 0);
        return numbers;
    }

    const QStringList bothInvoices = {u"20260001"_s, u"20260002"_s};
};

TEST_F(InvoiceReportScreen, OpensWithTheMonthToDateOfAllAccountsAndThePrintButtonInHand) {
    screens.Show(report);
    EXPECT_EQ(screens.Find(report)->windowTitle(), u"Invoice Report"_s);
    EXPECT_EQ(Range(), u"3/1/2026 - 3/9/2026"_s);
    EXPECT_TRUE(Find<QRadioButton>(report, u"optAcct(0)"_s)->isChecked());
    EXPECT_FALSE(Accounts()->isEnabled());
    EXPECT_EQ(Accounts()->model()->rowCount(), 2);
    EXPECT_EQ(InvoiceNumbers(), bothInvoices);
    EXPECT_EQ(Totals(), (QStringList{u"$200.00"_s, u"$0.00"_s, u"$12.50"_s, u"$212.50"_s}));
    ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(report)));
    EXPECT_TRUE(Find<QWidget>(report, u"cmdSales(3)"_s)->hasFocus());
}

TEST_F(InvoiceReportScreen, CaptionsAndTipsAreAsGiven) {
    screens.Show(report);
    const QStringList captions = {u"&Menu"_s, u"&Load Grid"_s,
                                  u"&Delete Records     (by Date Range)"_s, u"&Print Report"_s,
                                  u"Delete &ALL Records"_s};
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(CaptionOf(u"cmdSales(%1)"_s.arg(i)), captions[i]);
    EXPECT_EQ(TipOf(u"fgSales"_s), u"Displays Invoice Details"_s);
    EXPECT_EQ(CaptionOf(u"optAcct(0)"_s), u"Display All Accounts"_s);
    EXPECT_EQ(TipOf(u"optAcct(0)"_s), u"Search for All Accounts"_s);
    EXPECT_EQ(CaptionOf(u"optAcct(1)"_s), u"Display Single Account"_s);
    EXPECT_EQ(TipOf(u"optAcct(1)"_s), u"Search for a Single Account"_s);
    const QStringList texts = TextsIn(screens.Find(report));
    for (const QString& text : {u"Sub-Total"_s, u"Discounts Offered"_s, u"Tax"_s, u"Total"_s})
        EXPECT_EQ(texts.count(text), 1) << text.toStdString();
}

TEST_F(InvoiceReportScreen, TipOfEternityIsThatOfTheCurrentYear) {
    screens.Show(report);
    EXPECT_EQ(TipOf(u"cmdIncome(2)"_s), u"Generates a Report for Current Year"_s);
    EXPECT_EQ(TipOf(u"cmdIncome(3)"_s), u"Generates a Report for Current Year"_s);
}

TEST_F(InvoiceReportScreen, SingleAccountEmptiesTheGridAndOpensTheList) {
    screens.Show(report);
    Click(report, u"optAcct(1)"_s);
    EXPECT_TRUE(Accounts()->isEnabled());
    EXPECT_EQ(Accounts()->currentIndex().data().toString(), u"4471"_s);
    EXPECT_TRUE(Accounts()->selectionModel()->isSelected(Accounts()->currentIndex()));
    EXPECT_EQ(InvoiceNumbers(), QStringList{QString()});
    EXPECT_EQ(Totals()[3], u"$212.50"_s);
    Click(report, u"cmdSales(1)"_s);
    EXPECT_EQ(InvoiceNumbers(), (QStringList{u"20260001"_s, QString()}));
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
}

TEST_F(InvoiceReportScreen, ClickOnAnAccountEmptiesTheGridUntilTheNextLoad) {
    screens.Show(report);
    Click(report, u"optAcct(1)"_s);
    Click(report, u"cmdSales(1)"_s);
    ClickAccount(1);
    EXPECT_EQ(InvoiceNumbers(), QStringList{QString()});
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
    Click(report, u"cmdSales(1)"_s);
    EXPECT_EQ(InvoiceNumbers(), (QStringList{u"20260002"_s, QString()}));
    // Also one on the account that is already chosen.
    ClickAccount(1);
    EXPECT_EQ(InvoiceNumbers(), QStringList{QString()});
}

TEST_F(InvoiceReportScreen, AccountIsChosenByKeyAsWell) {
    screens.Show(report);
    Click(report, u"optAcct(1)"_s);
    Accounts()->setFocus();
    Press(Accounts(), Qt::Key_Down);
    Click(report, u"cmdSales(1)"_s);
    EXPECT_EQ(InvoiceNumbers(), (QStringList{u"20260002"_s, QString()}));
}

TEST_F(InvoiceReportScreen, AllAccountsEmptiesTheGridAndClosesTheList) {
    screens.Show(report);
    Click(report, u"optAcct(1)"_s);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"optAcct(0)"_s);
    EXPECT_FALSE(Accounts()->isEnabled());
    EXPECT_EQ(InvoiceNumbers(), QStringList{QString()});
    Click(report, u"cmdSales(1)"_s);
    EXPECT_EQ(InvoiceNumbers(), bothInvoices);
}

TEST_F(InvoiceReportScreen, AccountIsKeptFromOneShowingToTheNext) {
    screens.Show(report);
    Click(report, u"optAcct(1)"_s);
    ClickAccount(1);
    Click(report, u"cmdSales(0)"_s);
    EXPECT_TRUE(IsShown(menu));
    folder.Write(u"CustomerData.txt"_s, SampleCustomer{.account = "99"}.Bytes() +
                                            SampleCustomer{.account = "98"}.Bytes() +
                                            SampleCustomer{.account = "12"}.Bytes());
    screens.Show(report);
    EXPECT_EQ(Accounts()->currentIndex().data().toString(), u"12"_s);
    EXPECT_TRUE(Accounts()->isEnabled());
    EXPECT_EQ(InvoiceNumbers(), (QStringList{u"20260002"_s, QString()}));
}

TEST_F(InvoiceReportScreen, PresetsLoad) {
    screens.Show(report);
    Click(report, u"cmdIncome(0)"_s);
    EXPECT_EQ(Range(), u"2/1/2026 - 2/28/2026"_s);
    EXPECT_EQ(Totals()[3], u"$106.25"_s);
    Click(report, u"cmdIncome(2)"_s);
    EXPECT_EQ(Totals()[3], u"$318.75"_s);
}

TEST_F(InvoiceReportScreen, PrintPrintsWhatIsLoadedAsOftenAsAsked) {
    screens.Show(report);
    Click(report, u"cmdSales(3)"_s);
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(printer.Jobs, 2);
}

TEST_F(InvoiceReportScreen, PrinterThatFailsEndsTheProgram) {
    screens.Show(report);
    printer.FailsAtEndOfJob = true;
    Click(report, u"cmdSales(3)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::PrinterFailure);
}

TEST_F(InvoiceReportScreen, DeleteByRangeStaysOnTheScreen) {
    screens.Show(report);
    user.ExpectQuestion(u"This will delete all Sales Records \nfrom 3/1/2026to 3/9/2026"_s,
                        u"Delete Sales Records"_s, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    Click(report, u"cmdSales(2)"_s);
    EXPECT_TRUE(IsShown(report));
    EXPECT_EQ(InvoiceNumbers(), QStringList{QString()});
    EXPECT_EQ(Totals()[3], u"$0.00"_s);
    EXPECT_EQ(folder.Read(journal), JournalBytes{.day = firstOfMarch - 1}.Record());
    EXPECT_EQ(folder.Read(u"Backup/InvoiceSalesJournal.txt"_s), folder.Read(journal));
}

TEST_F(InvoiceReportScreen, DeleteAllLeadsBackToTheMenuAndLeavesNothing) {
    screens.Show(report);
    folder.Write(u"Backup/InvoiceSalesJournal.txt"_s, "an older copy");
    user.ExpectQuestion(u"This will delete all Sales Records "_s, u"Delete ALL Sales Records"_s,
                        Answer::Yes);
    Click(report, u"cmdSales(4)"_s);
    EXPECT_FALSE(IsShown(report));
    EXPECT_TRUE(IsShown(menu));
    EXPECT_FALSE(folder.Has(journal));
    EXPECT_FALSE(folder.Has(u"Backup/InvoiceSalesJournal.txt"_s));
    screens.Show(report);
    EXPECT_EQ(InvoiceNumbers(), QStringList{QString()});
}

TEST_F(InvoiceReportScreen, NoToDeleteAllStaysOnTheScreen) {
    screens.Show(report);
    user.ExpectQuestion(u"This will delete all Sales Records "_s, u"Delete ALL Sales Records"_s,
                        Answer::No);
    Click(report, u"cmdSales(4)"_s);
    EXPECT_TRUE(IsShown(report));
    EXPECT_EQ(InvoiceNumbers(), bothInvoices);
}

TEST_F(InvoiceReportScreen, CloseBoxAsksForTheEnd) {
    screens.Show(report);
    CloseByUser(report);
    EXPECT_EQ(exitRequests, 1);
}
