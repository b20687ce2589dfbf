#include "reports/TaxesCollectedReport.h"

#include "reports/ReportTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString taxRecords = u"TaxRecords.txt"_s;
const QString copy = u"Backup/TaxRecords.txt"_s;
const QString question = u"This will delete all Tax Records \nfrom 3/1/2026to 3/9/2026"_s;
const QString questionTitle = u"Delete Tax Records"_s;

QByteArray State(const QByteArray& date, const QByteArray& reference, const QByteArray& amount) {
    return TaxBytes("State Tax", date, reference, amount);
}

QByteArray County(const QByteArray& date, const QByteArray& reference, const QByteArray& amount) {
    return TaxBytes("County Tax", date, reference, amount);
}

} // namespace

class TaxesCollectedReportTest : public OfficeTest {
protected:
    TaxesCollectedReportTest() {
        office.settings.cboTaxHeading1 = u"State Tax"_s;
        office.settings.cboTaxHeading2 = u"County Tax"_s;
        office.settings.ckApply2ndTax = 1;
    }

    void OpenWith(const QByteArray& bytes) {
        folder.Write(taxRecords, bytes);
        report.Open();
    }

    void Choose(TaxesCollectedReport::Option option) {
        report.chosen = option;
        report.LoadGrid();
    }

    QStringList Rows() const { return RowsOf(report.fgTax); }
    QStringList Totals() const { return {report.txtTotal[0], report.txtTotal[1]}; }

    void ExpectDeleteQuestions() {
        user.ExpectQuestion(question, questionTitle, Answer::Yes);
        user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    }

    TaxesCollectedReport report{office.disk, office.reportPrinter, office.settings, clock, user};
};

TEST_F(TaxesCollectedReportTest, RecordsAreReadAtTheirOffsets) {
    const QByteArray record = State("3/5/2026", "20260001", "6.25");
    EXPECT_EQ(record.size(), 75);
    OpenWith(record);
    EXPECT_EQ(Rows(), QStringList{u"State Tax|20260001|3/5/2026|$6.25"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$6.25"_s, u"$0.00"_s}));
}

TEST_F(TaxesCollectedReportTest, GridHasItsHeadingsAndAlignments) {
    QStringList headings;
    QList<int> alignments;
    for (int column = 0; column < report.fgTax.Columns(); ++column) {
        headings += report.fgTax.Text(0, column);
        alignments +=
            report.fgTax.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
            int(Qt::AlignHorizontal_Mask);
    }
    EXPECT_EQ(headings, (QStringList{u"Tax"_s, u"Reference  (Invoice No)"_s, u"Date"_s,
                                     u"Amount Collected"_s}));
    EXPECT_EQ(alignments, (QList<int>{int(Qt::AlignLeft), int(Qt::AlignLeft), int(Qt::AlignHCenter),
                                      int(Qt::AlignRight)}));
}

TEST_F(TaxesCollectedReportTest, OptionsAndTotalsTakeTheHeadingsOfTheSetup) {
    report.Open();
    EXPECT_EQ(report.optTax[0], u"State Tax"_s);
    EXPECT_EQ(report.optTax[1], u"County Tax"_s);
    EXPECT_EQ(report.optTax[2], u"Both"_s);
    EXPECT_EQ(report.totalHeadings[0], u"State Tax Collected"_s);
    EXPECT_EQ(report.totalHeadings[1], u"County Tax Collected"_s);
    EXPECT_TRUE(report.isSecondTaxApplied);
}

TEST_F(TaxesCollectedReportTest, WithoutASecondTaxItsOptionKeepsTheCaptionItIsMadeWith) {
    office.settings.ckApply2ndTax = 0;
    report.Open();
    EXPECT_EQ(report.optTax[0], u"State Tax"_s);
    EXPECT_EQ(report.optTax[1], u"2nd Tax"_s);
    EXPECT_FALSE(report.isSecondTaxApplied);
}

TEST_F(TaxesCollectedReportTest, RangeOpensWithTheMonthToDate) {
    report.Open();
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 3, 1));
    EXPECT_EQ(report.DTPicker1[1], QDate(2026, 3, 9));
}

TEST_F(TaxesCollectedReportTest, BothListsAllRecordsWithASumForEachTax) {
    OpenWith(State("3/1/2026", "1", "6.25") + County("3/1/2026", "1", "1.5") +
             State("3/9/2026", "2", "0.92") + County("3/9/2026", "2", "12"));
    EXPECT_EQ(Rows(),
              (QStringList{u"State Tax|1|3/1/2026|$6.25"_s, u"County Tax|1|3/1/2026|$1.50"_s,
                           u"State Tax|2|3/9/2026|$0.92"_s, u"County Tax|2|3/9/2026|$12.00"_s}));
    EXPECT_EQ(Totals(), (QStringList{u"$7.17"_s, u"$13.50"_s}));
    EXPECT_EQ(report.fgTax.CurrentRow(), 4);
    EXPECT_EQ(report.fgTax.CurrentColumn(), 2);
}

TEST_F(TaxesCollectedReportTest, OptionOfOneTaxListsItsRecordsAlone) {
    OpenWith(State("3/2/2026", "1", "6.25") + County("3/2/2026", "1", "1.5") +
             State("3/2/2026", "2", "1"));
    Choose(TaxesCollectedReport::FirstTax);
    EXPECT_EQ(Rows(),
              (QStringList{u"State Tax|1|3/2/2026|$6.25"_s, u"State Tax|2|3/2/2026|$1.00"_s}));
    EXPECT_EQ(Totals(), (QStringList{u"$7.25"_s, u"$0.00"_s}));
    Choose(TaxesCollectedReport::SecondTax);
    EXPECT_EQ(Rows(), QStringList{u"County Tax|1|3/2/2026|$1.50"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$1.50"_s}));
}

TEST_F(TaxesCollectedReportTest, BothWithoutASecondTaxListsTheFirstAlone) {
    office.settings.ckApply2ndTax = 0;
    OpenWith(State("3/2/2026", "1", "6.25") + County("3/2/2026", "1", "1.5"));
    EXPECT_EQ(Rows(), QStringList{u"State Tax|1|3/2/2026|$6.25"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$6.25"_s, u"$0.00"_s}));
}

TEST_F(TaxesCollectedReportTest, RenamedTaxCutsItsOlderRecordsOff) {
    const QByteArray bytes = State("3/2/2026", "1", "6.25") +
                             TaxBytes("VAT Tax", "3/3/2026", "2", "3") +
                             County("3/4/2026", "3", "1.5");
    office.settings.cboTaxHeading1 = u"VAT Tax"_s;
    OpenWith(bytes);
    EXPECT_EQ(Rows(),
              (QStringList{u"VAT Tax|2|3/3/2026|$3.00"_s, u"County Tax|3|3/4/2026|$1.50"_s}));
    EXPECT_EQ(Totals(), (QStringList{u"$3.00"_s, u"$1.50"_s}));
    for (const auto option : {TaxesCollectedReport::FirstTax, TaxesCollectedReport::SecondTax}) {
        Choose(option);
        EXPECT_EQ(Rows().size(), 1);
    }
}

TEST_F(TaxesCollectedReportTest, TwoHeadingsOfOneTextGoToTheSecondTax) {
    office.settings.cboTaxHeading2 = u"State Tax"_s;
    OpenWith(State("3/2/2026", "1", "6.25") + State("3/2/2026", "1", "1"));
    EXPECT_EQ(Rows().size(), 2);
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$7.25"_s}));
    Choose(TaxesCollectedReport::FirstTax);
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$7.25"_s}));
}

TEST_F(TaxesCollectedReportTest, HeadingOfTheWordBothListsBothTaxes) {
    office.settings.cboTaxHeading1 = u"Both"_s;
    OpenWith(TaxBytes("Both", "3/2/2026", "1", "2") + County("3/2/2026", "1", "1.5"));
    Choose(TaxesCollectedReport::FirstTax);
    EXPECT_EQ(Rows().size(), 2);
}

TEST_F(TaxesCollectedReportTest, HeadingLongerThanTheRecordsFieldIsFoundInNoRecord) {
    office.settings.cboTaxHeading1 = u"Provincial Sales Tax 1"_s;
    OpenWith(TaxBytes("Provincial Sales Tax", "3/2/2026", "1", "2"));
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
}

TEST_F(TaxesCollectedReportTest, BothBoundsBelongToTheRange) {
    OpenWith(State("2/28/2026", "1", "1") + State("3/1/2026", "2", "2") +
             State("3/9/2026", "3", "3") + State("3/10/2026", "4", "4"));
    EXPECT_EQ(Rows(),
              (QStringList{u"State Tax|2|3/1/2026|$2.00"_s, u"State Tax|3|3/9/2026|$3.00"_s}));
    EXPECT_EQ(Totals()[0], u"$5.00"_s);
}

TEST_F(TaxesCollectedReportTest, RangeWithoutRecordsLeavesAnEmptyGridAndTotalsOfZero) {
    OpenWith(State("3/2/2026", "1", "6.25") + County("3/2/2026", "1", "1.5"));
    report.PickDate(RangeBound::Start, {2026, 3, 3});
    report.LoadGrid();
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$0.00"_s}));
}

TEST_F(TaxesCollectedReportTest, MissingFileIsAnEmptyReportAndIsNotMade) {
    const auto before = folder.Contents();
    report.Open();
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(TaxesCollectedReportTest, LostFileComesBackOutOfBackup) {
    folder.Write(copy, State("3/2/2026", "1", "6.25"));
    report.Open();
    EXPECT_EQ(Rows(), QStringList{u"State Tax|1|3/2/2026|$6.25"_s});
    EXPECT_EQ(folder.Read(taxRecords), State("3/2/2026", "1", "6.25"));
}

TEST_F(TaxesCollectedReportTest, TotalIsASumInSinglePrecision) {
    // Beyond 2 to the 24th a single-precision number has no odd whole ones.
    OpenWith(State("3/2/2026", "1", "16777216") + State("3/2/2026", "2", "1") +
             State("3/2/2026", "3", "1"));
    EXPECT_EQ(Totals()[0], u"$16,777,216.00"_s);
    OpenWith(State("3/2/2026", "2", "2") + State("3/2/2026", "1", "16777216"));
    EXPECT_EQ(Totals()[0], u"$16,777,218.00"_s);
}

TEST_F(TaxesCollectedReportTest, AmountsOfTheGridAreNotOfSinglePrecision) {
    OpenWith(State("3/2/2026", "1", "16777217"));
    EXPECT_EQ(Rows(), QStringList{u"State Tax|1|3/2/2026|$16,777,217.00"_s});
    EXPECT_EQ(Totals()[0], u"$16,777,216.00"_s);
}

TEST_F(TaxesCollectedReportTest, NegativeSumShowsAsZero) {
    OpenWith(State("3/2/2026", "1", "-6.25") + State("3/2/2026", "2", "1") +
             County("3/2/2026", "2", "-0"));
    EXPECT_EQ(Rows()[0], u"State Tax|1|3/2/2026|($6.25)"_s);
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$0.00"_s}));
}

TEST_F(TaxesCollectedReportTest, LoadStartsItsSumsAnew) {
    OpenWith(State("3/2/2026", "1", "6.25"));
    report.LoadGrid();
    EXPECT_EQ(Totals()[0], u"$6.25"_s);
}

TEST_F(TaxesCollectedReportTest, DateThatIsNoneStopsTheLoadAndNamesTheRecord) {
    folder.Write(taxRecords, State("3/2/2026", "1", "1") + State("13/2/2026", "2", "2"));
    const RuntimeFailure failure = FailureOf([this] { report.Open(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(),
              u"The text \"13/2/2026\" is not a date (the date in record 2 of TaxRecords.txt)."_s);
}

TEST_F(TaxesCollectedReportTest, DateThatIsNoneStopsTheLoadAlsoInARecordOfAnotherTax) {
    folder.Write(taxRecords, TaxBytes("Luxury Tax", "", "1", "1"));
    EXPECT_EQ(FailureOf([this] { report.Open(); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(TaxesCollectedReportTest, AmountThatIsNoneStopsTheLoadAndNamesTheRecord) {
    folder.Write(taxRecords, State("3/2/2026", "1", "1") + State("3/2/2026", "2", "1.2.3"));
    const RuntimeFailure failure = FailureOf([this] { report.Open(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(),
              u"The text \"1.2.3\" is not a number (the amount in record 2 of TaxRecords.txt)."_s);
}

TEST_F(TaxesCollectedReportTest, AmountThatIsNotListedIsNotRead) {
    OpenWith(State("2/2/2026", "1", "none") + TaxBytes("Luxury Tax", "3/2/2026", "1", "none"));
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
}

TEST_F(TaxesCollectedReportTest, RecordCutInItsAmountStopsTheLoad) {
    const QByteArray record = State("3/2/2026", "1", "6.25");
    folder.Write(taxRecords, record + record.left(67));
    EXPECT_EQ(FailureOf([this] { report.Open(); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(TaxesCollectedReportTest, RecordCutBelowHalfItsLengthDoesNotCount) {
    const QByteArray record = State("3/2/2026", "1", "6.25");
    OpenWith(record + record.left(37));
    EXPECT_EQ(Rows(), QStringList{u"State Tax|1|3/2/2026|$6.25"_s});
}

TEST_F(TaxesCollectedReportTest, EmptyFileIsAnEmptyReport) {
    OpenWith({});
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
}

TEST_F(TaxesCollectedReportTest, LoadTakes32767RecordsAndNotOneMore) {
    const QByteArray record = State("3/2/2026", "1", "1");
    OpenWith(record.repeated(32'767));
    EXPECT_EQ(Rows().size(), 32'767);
    EXPECT_EQ(Totals()[0], u"$32,767.00"_s);
    folder.Write(taxRecords, record.repeated(32'768));
    EXPECT_EQ(FailureOf([this] { report.LoadGrid(); }).Kind(), FailureKind::Overflow);
}

TEST_F(TaxesCollectedReportTest, SumBeyondSinglePrecisionIsAnOverflow) {
    folder.Write(taxRecords, State("3/2/2026", "1", "1E39"));
    EXPECT_EQ(FailureOf([this] { report.Open(); }).Kind(), FailureKind::Overflow);
}

TEST_F(TaxesCollectedReportTest, DatesAndAmountsAreReadAndShownInTheRegionalForm) {
    UseLocale("de_DE.UTF-8");
    office.settings.cboTaxHeading1 = u"Mehrwertsteuer für"_s;
    OpenWith(TaxBytes("Mehrwertsteuer f\xfcr", "05.03.2026", "1", "1234,5"));
    EXPECT_EQ(Rows(), QStringList{u"Mehrwertsteuer für|1|05.03.2026|1.234,50\u00a0€"_s});
    EXPECT_EQ(Totals(), (QStringList{u"1.234,50\u00a0€"_s, u"0,00\u00a0€"_s}));
}

// Print.

class TaxPrintTest : public TaxesCollectedReportTest {
protected:
    TaxPrintTest() {
        office.settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    }

    static QStringList HeadOf(int page) {
        const QStringList head = {u"4650,240 14b Tax Collection Report"_s,
                                  u"5040,576 8b from 3/1/2026 to 3/9/2026"_s,
                                  u"1080,720 12b Tessel Gravel"_s,
                                  u"1080,1008 10 1 Quarry Road"_s,
                                  u"1080,1248 10 Building 2"_s,
                                  u"1080,1488 10 Springfield, IL. 62701"_s,
                                  u"1080,1728 10 Telephone: 555-0100"_s,
                                  u"1080,1968 10 555-0101"_s,
                                  u"1080,2208 10 Tax 99"_s,
                                  u"10080,720 10 3/9/2026"_s,
                                  u"1440,2880 10b Tax"_s,
                                  u"3600,2880 10b Date"_s,
                                  u"5040,2880 10b Reference"_s,
                                  u"9360,2880 10b Amount Collected"_s};
        QStringList drawn;
        for (const QString& text : head)
            drawn += u"%1: "_s.arg(page) + text;
        return drawn;
    }

    QStringList TextsOfPage(int page) const {
        return printer.DrawnTexts().filter(QString::number(page) + u": "_s);
    }
};

TEST_F(TaxPrintTest, PageHasItsHeadTheRowsAndBothTotals) {
    OpenWith(State("3/1/2026", "20260001", "6.25") + County("3/9/2026", "20260002", "12"));
    report.Print();
    EXPECT_EQ(printer.DrawnTexts(),
              HeadOf(1) +
                  QStringList({u"1: 1440,3600 10 State Tax"_s, u"1: 3600,3600 10 3/1/2026"_s,
                               u"1: 5040,3600 10 20260001"_s, u"1: 10300,3600 10 $6.25"_s,
                               u"1: 1440,3840 10 County Tax"_s, u"1: 3600,3840 10 3/9/2026"_s,
                               u"1: 5040,3840 10 20260002"_s, u"1: 10200,3840 10 $12.00"_s,
                               u"1: 5040,4320 10b Total State Tax Collected "_s,
                               u"1: 8500,4320 10b $6.25"_s,
                               u"1: 5040,4560 10b Total County Tax Collected "_s,
                               u"1: 8400,4560 10b $12.00"_s}));
    ASSERT_EQ(printer.Lines.size(), 1U);
    const auto& rule = printer.Lines[0];
    EXPECT_EQ(rule.x1, 720);
    EXPECT_EQ(rule.x2, 13680);
    EXPECT_EQ(rule.y1, 3220);
    EXPECT_EQ(rule.y2, 3220);
    EXPECT_EQ(rule.color, 0U);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Orientations, std::vector{Orientation::Portrait});
    EXPECT_EQ(printer.JobName, u"Tax Collection Report 2026-03-01 to 2026-03-09"_s);
    EXPECT_EQ(Rows().size(), 2);
}

TEST_F(TaxPrintTest, SecondTotalIsLeftOutUnlessItIsAboveZero) {
    OpenWith(State("3/1/2026", "1", "6.25") + County("3/9/2026", "2", "-1"));
    report.Print();
    EXPECT_EQ(printer.DrawnTexts().filter(u" Collected "_s),
              QStringList{u"1: 5040,4320 10b Total State Tax Collected "_s});
}

TEST_F(TaxPrintTest, FirstTotalIsPrintedEvenWhenItIsZero) {
    OpenWith({});
    report.Print();
    // The one empty row prints as an empty line.
    EXPECT_EQ(printer.DrawnTexts(),
              HeadOf(1) + QStringList({u"1: 5040,4080 10b Total State Tax Collected "_s,
                                       u"1: 8500,4080 10b $0.00"_s}));
}

TEST_F(TaxPrintTest, RangeIsCentredOnAFixedSampleWhateverItsLength) {
    office.settings.BusinessData.fill({});
    report.Open();
    report.ApplyPreset(RangePreset::Eternity);
    report.Print();
    EXPECT_EQ(printer.Find(u"from 1/1/2000 to 3/9/2026"_s).x, 5040);
    clock.Date = {2026, 12, 31};
    report.ApplyPreset(RangePreset::LastMonth);
    report.Print();
    EXPECT_EQ(printer.Find(u"from 11/1/2026 to 11/30/2026"_s).x, 5040);
}

TEST_F(TaxPrintTest, RowsGoOnUnderTheHeadOfTheNextPageInPlainType) {
    // 50 lines stand between 3600 and 15840 before the next would reach the bottom.
    OpenWith(State("3/1/2026", "1", "2").repeated(51));
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 14 + 50 * 4);
    EXPECT_EQ(TextsOfPage(1).last(), u"1: 10300,15360 10 $2.00"_s);
    EXPECT_EQ(TextsOfPage(2),
              HeadOf(2) +
                  QStringList({u"2: 1440,3600 10 State Tax"_s, u"2: 3600,3600 10 3/1/2026"_s,
                               u"2: 5040,3600 10 1"_s, u"2: 10300,3600 10 $2.00"_s,
                               u"2: 5040,4080 10b Total State Tax Collected "_s,
                               u"2: 8300,4080 10b $102.00"_s}));
    ASSERT_EQ(printer.Lines.size(), 2U);
    EXPECT_EQ(printer.Lines[1].page, 2);
    EXPECT_EQ(printer.Lines[1].y1, 3220);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(TaxPrintTest, ThreePagesOfRowsHaveTheirHeadOnEach) {
    OpenWith(State("3/1/2026", "1", "2").repeated(120));
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 14 + 50 * 4);
    EXPECT_EQ(TextsOfPage(2).size(), 14 + 50 * 4);
    EXPECT_EQ(TextsOfPage(3).size(), 14 + 20 * 4 + 2);
    EXPECT_EQ(TextsOfPage(3).mid(0, 14), HeadOf(3));
}

TEST_F(TaxPrintTest, TotalsGoOnTheNextPageRatherThanOffThePaper) {
    // Behind 49 rows and the empty line the pen stands at 15600.
    OpenWith(State("3/1/2026", "1", "2").repeated(48) + County("3/1/2026", "1", "3"));
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 14 + 49 * 4);
    EXPECT_EQ(TextsOfPage(2),
              HeadOf(2) + QStringList({u"2: 5040,3600 10b Total State Tax Collected "_s,
                                       u"2: 8400,3600 10b $96.00"_s,
                                       u"2: 5040,3840 10b Total County Tax Collected "_s,
                                       u"2: 8500,3840 10b $3.00"_s}));
}

TEST_F(TaxPrintTest, ColourFlagGoesToThePrinterAndTheRuleStaysBlack) {
    office.settings.ckColor = 1;
    office.settings.TextColor = 0x0000ff;
    office.settings.BorderColor = 0x00ff00;
    OpenWith(State("3/1/2026", "1", "2"));
    report.Print();
    EXPECT_EQ(printer.Colors, std::vector{true});
    EXPECT_EQ(printer.Lines[0].color, 0U);
    EXPECT_EQ(printer.Find(u"Tax Collection Report"_s).color, 0U);
    EXPECT_EQ(printer.Find(u"Tax"_s).color, 0xff0000U);
}

TEST_F(TaxPrintTest, FailureOfThePrinterIsNotHandled) {
    OpenWith(State("3/1/2026", "1", "2"));
    printer.FailingText = 5;
    EXPECT_EQ(FailureOf([this] { report.Print(); }).Kind(), FailureKind::PrinterFailure);
    EXPECT_EQ(user.BusyChanges.back(), false);
}

// Delete by range.

TEST_F(TaxesCollectedReportTest, DeleteTakesTheRangeOutAndKeepsTheRestInOrder) {
    const QByteArray before = State("2/28/2026", "1", "1");
    const QByteArray after = TaxBytes("Luxury Tax", "3/10/2026", "5", "none");
    OpenWith(before + State("3/1/2026", "2", "2") + County("3/5/2026", "3", "3") +
             State("3/9/2026", "4", "4") + after);
    folder.Write(copy, "an older copy");
    folder.Write(u"TemporaryFile.txt"_s, QByteArray(750, 'x'));
    folder.Write(u"Backup/TemporaryFile.txt"_s, "left over");
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(taxRecords), before + after);
    EXPECT_EQ(folder.Read(copy), before + after);
    EXPECT_FALSE(folder.Has(u"TemporaryFile.txt"_s));
    EXPECT_FALSE(folder.Has(u"Backup/TemporaryFile.txt"_s));
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
}

TEST_F(TaxesCollectedReportTest, DeleteOfEveryRecordLeavesAnEmptyFileAndItsCopy) {
    OpenWith(State("3/1/2026", "1", "1") + County("3/9/2026", "2", "2"));
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_TRUE(folder.Has(taxRecords));
    EXPECT_TRUE(folder.Has(copy));
    EXPECT_EQ(folder.Read(taxRecords), QByteArray());
    EXPECT_EQ(folder.Read(copy), QByteArray());
    EXPECT_FALSE(folder.Has(u"TemporaryFile.txt"_s));
    EXPECT_EQ(Rows(), QStringList{u"|||"_s});
    EXPECT_EQ(Totals(), (QStringList{u"$0.00"_s, u"$0.00"_s}));
}

TEST_F(TaxesCollectedReportTest, DeleteGoesByThePickersAndLeavesTheDefaultRange) {
    const QByteArray kept = State("3/2/2026", "3", "3");
    OpenWith(State("2/28/2026", "1", "1") + State("3/1/2026", "2", "2") + kept);
    report.PickDate(RangeBound::Start, {2026, 2, 28});
    report.PickDate(RangeBound::End, {2026, 3, 1});
    user.ExpectQuestion(u"This will delete all Tax Records \nfrom 2/28/2026to 3/1/2026"_s,
                        questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(taxRecords), kept);
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 3, 1));
    EXPECT_EQ(report.DTPicker1[1], QDate(2026, 3, 9));
    EXPECT_EQ(Rows(), QStringList{u"State Tax|3|3/2/2026|$3.00"_s});
}

TEST_F(TaxesCollectedReportTest, DeleteWithoutAFileDoesNothingWithoutAWord) {
    folder.Write(u"TemporaryFile.txt"_s, "left over");
    report.Open();
    const auto before = folder.Contents();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(TaxesCollectedReportTest, NoToEitherQuestionDeletesNoRecords) {
    OpenWith(State("3/1/2026", "1", "1"));
    folder.Write(copy, "an older copy");
    const auto before = folder.Contents();
    user.ExpectQuestion(question, questionTitle, Answer::No);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::No);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Rows().size(), 1);
}

TEST_F(TaxesCollectedReportTest, LeftOverTemporaryFileGoesBeforeTheFirstQuestion) {
    OpenWith(State("3/1/2026", "1", "1"));
    folder.Write(u"TemporaryFile.txt"_s, "left over");
    folder.Write(u"Backup/TemporaryFile.txt"_s, "left over");
    user.ExpectQuestion(question, questionTitle, Answer::No);
    report.DeleteRange();
    EXPECT_FALSE(folder.Has(u"TemporaryFile.txt"_s));
    EXPECT_FALSE(folder.Has(u"Backup/TemporaryFile.txt"_s));
}

TEST_F(TaxesCollectedReportTest, DateThatIsNoneStopsTheDeleteBeforeTheOldFileGoes) {
    OpenWith(State("3/1/2026", "1", "1"));
    const QByteArray damaged = State("3/1/2026", "1", "1") + State("someday", "2", "2");
    folder.Write(taxRecords, damaged);
    folder.Write(copy, "an older copy");
    ExpectDeleteQuestions();
    const RuntimeFailure failure = FailureOf([this] { report.DeleteRange(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(folder.Read(taxRecords), damaged);
    EXPECT_EQ(folder.Read(copy), "an older copy");
}

TEST_F(TaxesCollectedReportTest, DeleteOfMoreThan32767RecordsIsAnOverflowAndDeletesNothing) {
    report.Open();
    folder.Write(taxRecords, State("3/1/2026", "1", "1").repeated(32'768));
    const auto before = folder.Contents();
    ExpectDeleteQuestions();
    EXPECT_EQ(FailureOf([this] { report.DeleteRange(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(TaxesCollectedReportTest, DeleteQuestionsShowTheDatesInTheRegionalForm) {
    UseLocale("de_DE.UTF-8");
    const QByteArray kept = State("28.02.2026", "1", "1");
    OpenWith(kept + State("01.03.2026", "2", "2,5"));
    user.ExpectQuestion(u"This will delete all Tax Records \nfrom 01.03.2026to 09.03.2026"_s,
                        questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(taxRecords), kept);
}
