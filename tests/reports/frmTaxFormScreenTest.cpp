#include "platform/Grid.h"
#include "reports/ReportScreenTest.h"

#include <QLabel>
#include <QRadioButton>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

const QString taxRecords = u"TaxRecords.txt"_s;

} // namespace

class TaxFormScreen : public ReportScreenTest {
protected:
    TaxFormScreen() : ReportScreenTest(ScreenName::frmTaxForm) {
        office.settings.cboTaxHeading1 = u"State Tax"_s;
        office.settings.cboTaxHeading2 = u"County & City"_s;
        office.settings.ckApply2ndTax = 1;
        folder.Write(taxRecords, TaxBytes("State Tax", "3/2/2026", "1", "6.25") +
                                     TaxBytes("County & City", "3/2/2026", "1", "1.5") +
                                     TaxBytes("State Tax", "2/2/2026", "2", "3"));
    }

    QString Total(int index) {
        return Find<QLineEdit>(report, u"txtTotal(%1)"_s.arg(index))->text();
    }

    int Rows() { return Find<Grid>(report, u"fgTax"_s)->model()->rowCount(); }

    QString Cell(int row, int column) {
        return Find<Grid>(report, u"fgTax"_s)->model()->index(row - 1, column).data().toString();
    }
};

TEST_F(TaxFormScreen, OpensWithTheMonthToDateAndBothTaxes) {
    screens.Show(report);
    EXPECT_EQ(screens.Find(report)->windowTitle(), u"Tax Report"_s);
    EXPECT_EQ(Range(), u"3/1/2026 - 3/9/2026"_s);
    EXPECT_TRUE(Find<QRadioButton>(report, u"optTax(2)"_s)->isChecked());
    EXPECT_EQ(Rows(), 2);
    EXPECT_EQ(Cell(1, 3), u"$6.25"_s);
    EXPECT_EQ(Total(0), u"$6.25"_s);
    EXPECT_EQ(Total(1), u"$1.50"_s);
}

TEST_F(TaxFormScreen, CaptionsAndTipsAreAsGiven) {
    screens.Show(report);
    const QStringList captions = {u"&Menu"_s, u"&Load Grid"_s, u"&Print Report"_s,
                                  u"&Delete Records for this Range"_s};
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(CaptionOf(u"cmdTax(%1)"_s.arg(i)), captions[i]);
    EXPECT_EQ(TipOf(u"cmdIncome(3)"_s), u"Generates a Report for all time"_s);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(TipOf(u"txtTotal(%1)"_s.arg(i)),
                  u"Displays the Total Amount of tax collected for this date range"_s);
}

TEST_F(TaxFormScreen, HeadingsOfTheSetupShowToTheLetter) {
    screens.Show(report);
    EXPECT_EQ(CaptionOf(u"optTax(0)"_s), u"State Tax"_s);
    // An ampersand of a heading is no mark of a key.
    EXPECT_EQ(CaptionOf(u"optTax(1)"_s), u"County && City"_s);
    EXPECT_EQ(CaptionOf(u"optTax(2)"_s), u"Both"_s);
    EXPECT_EQ(Find<QLabel>(report, u"Label1(2)"_s)->text(), u"State Tax Collected"_s);
    EXPECT_EQ(Find<QLabel>(report, u"Label1(3)"_s)->text(), u"County && City Collected"_s);
    EXPECT_EQ(Cell(2, 0), u"County & City"_s);
}

TEST_F(TaxFormScreen, WithoutASecondTaxItsControlsAreClosed) {
    office.settings.ckApply2ndTax = 0;
    screens.Show(report);
    EXPECT_EQ(CaptionOf(u"optTax(1)"_s), u"2nd Tax"_s);
    EXPECT_FALSE(IsEnabled(u"optTax(1)"_s));
    EXPECT_FALSE(IsEnabled(u"txtTotal(1)"_s));
    EXPECT_FALSE(Find<QLabel>(report, u"Label1(3)"_s)->isVisible());
    EXPECT_EQ(Rows(), 1);
}

TEST_F(TaxFormScreen, WithASecondTaxItsControlsAreOpen) {
    screens.Show(report);
    EXPECT_TRUE(IsEnabled(u"optTax(1)"_s));
    EXPECT_TRUE(IsEnabled(u"txtTotal(1)"_s));
    EXPECT_TRUE(Find<QLabel>(report, u"Label1(3)"_s)->isVisible());
}

TEST_F(TaxFormScreen, OptionCountsFromTheNextLoadOn) {
    screens.Show(report);
    Click(report, u"optTax(1)"_s);
    EXPECT_EQ(Rows(), 2);
    Click(report, u"cmdTax(1)"_s);
    EXPECT_EQ(Rows(), 1);
    EXPECT_EQ(Cell(1, 0), u"County & City"_s);
    EXPECT_EQ(Total(0), u"$0.00"_s);
    EXPECT_EQ(Total(1), u"$1.50"_s);
    Click(report, u"optTax(0)"_s);
    Click(report, u"cmdIncome(3)"_s);
    EXPECT_EQ(Rows(), 2);
    EXPECT_EQ(Total(0), u"$9.25"_s);
}

TEST_F(TaxFormScreen, PrintPrintsWhatIsLoaded) {
    screens.Show(report);
    Click(report, u"cmdTax(2)"_s);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Find(u"Total State Tax Collected "_s).bold, true);
    EXPECT_EQ(Rows(), 2);
}

TEST_F(TaxFormScreen, PrinterThatFailsEndsTheProgram) {
    screens.Show(report);
    printer.FailingText = 3;
    Click(report, u"cmdTax(2)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::PrinterFailure);
}

TEST_F(TaxFormScreen, DamagedRecordEndsTheProgramAsTheScreenOpens) {
    folder.Write(taxRecords, TaxBytes("State Tax", "someday", "1", "6.25"));
    screens.Show(menu);
    Click(menu, u"lblSub(7)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::TypeMismatch);
}

TEST_F(TaxFormScreen, DeleteOfEveryRecordStaysOnTheScreen) {
    screens.Show(report);
    Click(report, u"cmdIncome(2)"_s);
    EXPECT_EQ(Rows(), 3);
    user.ExpectQuestion(u"This will delete all Tax Records \nfrom 1/1/2026to 3/9/2026"_s,
                        u"Delete Tax Records"_s, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    Click(report, u"cmdTax(3)"_s);
    EXPECT_TRUE(IsShown(report));
    EXPECT_EQ(Range(), u"3/1/2026 - 3/9/2026"_s);
    EXPECT_EQ(Rows(), 1);
    EXPECT_EQ(Cell(1, 0), QString());
    EXPECT_EQ(Total(0), u"$0.00"_s);
    EXPECT_EQ(folder.Read(taxRecords), QByteArray());
    EXPECT_TRUE(folder.Has(u"Backup/TaxRecords.txt"_s));
}

TEST_F(TaxFormScreen, DeleteWithoutAFileSaysNothing) {
    folder.Remove(taxRecords);
    screens.Show(report);
    Click(report, u"cmdTax(3)"_s);
    EXPECT_TRUE(IsShown(report));
    EXPECT_FALSE(folder.Has(taxRecords));
}

TEST_F(TaxFormScreen, MenuDestroysTheScreenAndTheNextOneTakesTheHeadingsAnew) {
    screens.Show(report);
    Click(report, u"optTax(0)"_s);
    Click(report, u"cmdTax(0)"_s);
    EXPECT_TRUE(IsShown(menu));
    EXPECT_EQ(screens.Find(report), nullptr);
    office.settings.cboTaxHeading1 = u"VAT Tax"_s;
    office.settings.ckApply2ndTax = 0;
    screens.Show(report);
    EXPECT_EQ(CaptionOf(u"optTax(0)"_s), u"VAT Tax"_s);
    EXPECT_EQ(CaptionOf(u"optTax(1)"_s), u"2nd Tax"_s);
    EXPECT_TRUE(Find<QRadioButton>(report, u"optTax(2)"_s)->isChecked());
    // The records of the heading that was renamed are cut off.
    EXPECT_EQ(Cell(1, 0), QString());
}

TEST_F(TaxFormScreen, TotalsCanNotBeTypedInto) {
    screens.Show(report);
    auto* total = Find<QLineEdit>(report, u"txtTotal(0)"_s);
    total->setFocus();
    Type(total, u"99"_s);
    EXPECT_EQ(total->text(), u"$6.25"_s);
}

TEST_F(TaxFormScreen, CloseBoxAsksForTheEnd) {
    screens.Show(report);
    CloseByUser(report);
    EXPECT_EQ(exitRequests, 1);
}
