#include "reports/ItemSalesReport.h"

#include "reports/ReportTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString soldItems = u"SoldItems.txt"_s;
const QString copy = u"Backup/SoldItems.txt"_s;
const QString question = u"This will delete ALL Sales Item Records dated\n2/7/2026 through "
                         u"3/9/2026\nClick Yess to Delete"_s;
const QString questionTitle = u"Delete Sales Records"_s;

} // namespace

class ItemSalesReportTest : public OfficeTest {
protected:
    ItemSalesReportTest() { SetProducts({u"Gravel"_s, u"Sand"_s, u"Bricks"_s}); }

    void SetProducts(const QStringList& names) { office.items.ProductNames.setStringList(names); }

    void WriteSold(const std::vector<SoldBytes>& records) const {
        folder.Write(soldItems, BytesOf(records));
    }

    static QByteArray BytesOf(const std::vector<SoldBytes>& records) {
        QByteArray bytes;
        for (const SoldBytes& record : records)
            bytes += record.Record();
        return bytes;
    }

    void OpenWith(const QList<int>& selected) {
        report.selected = selected;
        report.Open();
    }

    QStringList Lines() const { return RowsOf(report.fgSalesItems); }
    QStringList Totals() const { return RowsOf(report.fgTotals); }

    void ExpectDeleteQuestions() {
        user.ExpectQuestion(question, questionTitle, Answer::Yes);
        user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    }

    ItemSalesReport& report = office.itemSales;
};

TEST_F(ItemSalesReportTest, RecordsAreReadAtTheirOffsets) {
    EXPECT_EQ(DayBytes(ninthOfMarch), QByteArray("\x00\x00\x00\x00\x40\x81\xe6\x40", 8));
    EXPECT_EQ(SoldBytes{}.Record().size(), 90);
    WriteSold({{.description = "Gravel", .invoiceNo = "20260001", .units = 0x0102}});
    OpenWith({0});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|20260001|258"_s, u"|||"_s}));
}

TEST_F(ItemSalesReportTest, RangeOpensThirtyDaysBeforeToday) {
    report.Open();
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 2, 7));
    EXPECT_EQ(report.DTPicker1[1], QDate(2026, 3, 9));
    EXPECT_EQ(report.RangeStart, QDate(2026, 2, 7));
    EXPECT_EQ(report.RangeEnd, QDate(2026, 3, 9));
    clock.Date = {2028, 3, 1};
    report.Open();
    EXPECT_EQ(report.DTPicker1[0], QDate(2028, 1, 31));
}

TEST_F(ItemSalesReportTest, TitleNamesTheCompany) {
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    EXPECT_EQ(report.Title(), u"Item Sales Report for Tessel Gravel"_s);
}

TEST_F(ItemSalesReportTest, GridsHaveTheirHeadings) {
    const auto headings = [](const GridModel& grid) {
        QStringList texts;
        for (int column = 0; column < grid.Columns(); ++column)
            texts += grid.Text(0, column);
        return texts;
    };
    EXPECT_EQ(headings(report.fgSalesItems),
              (QStringList{u"Description"_s, u"Date"_s, u"Invoice Number"_s, u"Units Sold"_s}));
    EXPECT_EQ(report.fgTotals.Columns(), 2);
    const auto alignment = [this](int column) {
        return report.fgSalesItems.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole)
                   .toInt() &
               int(Qt::AlignHorizontal_Mask);
    };
    EXPECT_EQ(alignment(0), int(Qt::AlignLeft));
    for (const int column : {1, 2, 3})
        EXPECT_EQ(alignment(column), int(Qt::AlignHCenter));
}

TEST_F(ItemSalesReportTest, NothingSelectedLoadsNothingOnAnyRoad) {
    WriteSold({{}});
    OpenWith({0});
    const QStringList lines = Lines();
    const QStringList totals = Totals();
    folder.Remove(soldItems);
    OpenWith({});
    for (const RangePreset preset : {RangePreset::LastMonth, RangePreset::MonthToDate,
                                     RangePreset::YearToDate, RangePreset::Eternity})
        report.ApplyPreset(preset);
    EXPECT_EQ(Lines(), lines);
    EXPECT_EQ(Totals(), totals);
    EXPECT_TRUE(report.isPrintEnabled);
    EXPECT_FALSE(folder.Has(soldItems));
}

TEST_F(ItemSalesReportTest, LinesComeInFileOrderOfSelectedProductsOnly) {
    WriteSold({{.description = "Sand", .invoiceNo = "1", .units = 5},
               {.description = "Gravel", .invoiceNo = "2", .units = 2},
               {.description = "Bricks", .invoiceNo = "3", .units = 7},
               {.description = "Cement", .invoiceNo = "4", .units = 9},
               {.description = "Sand", .invoiceNo = "5", .units = 1}});
    OpenWith({0, 1});
    EXPECT_EQ(Lines(), (QStringList{u"Sand|3/9/2026|1|5"_s, u"Gravel|3/9/2026|2|2"_s,
                                    u"Sand|3/9/2026|5|1"_s, u"|||"_s}));
    EXPECT_EQ(Totals(), (QStringList{u"Gravel|2"_s, u"Sand|6"_s}));
    EXPECT_TRUE(report.isPrintEnabled);
    EXPECT_EQ(report.fgSalesItems.CurrentRow(), 4);
}

TEST_F(ItemSalesReportTest, NamesAreComparedWithoutTheirBlanksButToTheLetter) {
    SetProducts({u"  Gravel "_s, u"sand"_s});
    WriteSold({{.description = " Gravel"}, {.description = "Sand"}});
    OpenWith({0, 1});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|20260001|3"_s, u"|||"_s}));
    EXPECT_EQ(Totals(), QStringList{u"Gravel|3"_s});
}

TEST_F(ItemSalesReportTest, BothBoundsBelongToTheRange) {
    WriteSold({{.day = 46'059, .invoiceNo = "before"},
               {.day = 46'060, .invoiceNo = "start"},
               {.day = ninthOfMarch, .invoiceNo = "end"},
               {.day = ninthOfMarch + 1, .invoiceNo = "after"}});
    OpenWith({0});
    EXPECT_EQ(Lines(),
              (QStringList{u"Gravel|2/7/2026|start|3"_s, u"Gravel|3/9/2026|end|3"_s, u"|||"_s}));
}

TEST_F(ItemSalesReportTest, EternityLeavesOutWhatIsOlderThanTheYear2000) {
    WriteSold({{.day = firstOf2000 - 1}, {.day = firstOf2000}, {.day = ninthOfMarch}});
    OpenWith({0});
    report.ApplyPreset(RangePreset::Eternity);
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|1/1/2000|20260001|3"_s,
                                    u"Gravel|3/9/2026|20260001|3"_s, u"|||"_s}));
}

TEST_F(ItemSalesReportTest, LoadTakesTheRangeFromThePickers) {
    WriteSold({{}});
    OpenWith({0});
    report.PickDate(RangeBound::End, {2026, 3, 1});
    user.ExpectMessage(u"Your Calendar Selection is Invalid"_s);
    report.PickDate(RangeBound::End, {2026, 3, 10});
    EXPECT_EQ(report.RangeEnd, QDate(2026, 3, 1));
    report.LoadGrid();
    EXPECT_EQ(report.RangeEnd, QDate(2026, 3, 9));
}

TEST_F(ItemSalesReportTest, DamagedDateIsInNoRange) {
    QByteArray bytes = SoldBytes{}.Record();
    bytes.replace(60, 8, QByteArray(8, '\xff'));
    folder.Write(soldItems, bytes + SoldBytes{.invoiceNo = "2"}.Record());
    OpenWith({0});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|2|3"_s, u"|||"_s}));
}

TEST_F(ItemSalesReportTest, ProductWithoutSalesLeavesNoGapAmongTheTotals) {
    WriteSold({{.description = "Bricks", .units = 4}, {.description = "Gravel", .units = 2}});
    OpenWith({0, 1, 2});
    EXPECT_EQ(Totals(), (QStringList{u"Gravel|2"_s, u"Bricks|4"_s}));
}

TEST_F(ItemSalesReportTest, ProductSoldNoUnitsHasATotalOfZero) {
    WriteSold({{.units = 3}, {.units = -3}});
    OpenWith({0});
    EXPECT_EQ(Totals(), QStringList{u"Gravel|0"_s});
}

TEST_F(ItemSalesReportTest, AllProductsAndAnEmptyRangeLeaveEmptyRowsAndNothingToPrint) {
    WriteSold({{.day = firstOf2000}});
    OpenWith({0, 1, 2});
    EXPECT_EQ(Lines(), QStringList{u"|||"_s});
    EXPECT_EQ(Totals(), QStringList{u"|"_s});
    EXPECT_FALSE(report.isPrintEnabled);
}

TEST_F(ItemSalesReportTest, NameThatStandsTwiceInTheListDoublesItsLines) {
    SetProducts({u"Gravel"_s, u"Sand"_s, u"Gravel"_s});
    WriteSold({{.invoiceNo = "1", .units = 2},
               {.description = "Sand", .invoiceNo = "2", .units = 1},
               {.invoiceNo = "3", .units = 5}});
    OpenWith({0, 1, 2});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|1|2"_s, u"Gravel|3/9/2026|1|2"_s,
                                    u"Sand|3/9/2026|2|1"_s, u"Gravel|3/9/2026|3|5"_s,
                                    u"Gravel|3/9/2026|3|5"_s, u"|||"_s}));
    // Each of the two entries adds up all four lines.
    EXPECT_EQ(Totals(), (QStringList{u"Gravel|14"_s, u"Sand|1"_s, u"Gravel|14"_s}));
}

TEST_F(ItemSalesReportTest, OneSelectedOfTwoEqualNamesHasItsLinesOnce) {
    SetProducts({u"Gravel"_s, u"Gravel"_s});
    WriteSold({{.units = 2}});
    OpenWith({1});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|20260001|2"_s, u"|||"_s}));
    EXPECT_EQ(Totals(), QStringList{u"Gravel|2"_s});
}

TEST_F(ItemSalesReportTest, TotalHoldsUpTo32767Units) {
    WriteSold({{.units = 32'766}, {.units = 1}});
    OpenWith({0});
    EXPECT_EQ(Totals(), QStringList{u"Gravel|32767"_s});
}

TEST_F(ItemSalesReportTest, TotalAbove32767UnitsIsAnOverflow) {
    WriteSold({{.units = 32'767}, {.units = 1}, {.units = -1}});
    report.selected = {0};
    EXPECT_EQ(FailureOf([this] { report.Open(); }).Kind(), FailureKind::Overflow);
}

TEST_F(ItemSalesReportTest, DoubledLinesCanOverflowAsWell) {
    SetProducts({u"Gravel"_s, u"Gravel"_s});
    WriteSold({{.units = 16'384}});
    report.selected = {0, 1};
    EXPECT_EQ(FailureOf([this] { report.Open(); }).Kind(), FailureKind::Overflow);
    report.selected = {0};
    report.LoadGrid();
    EXPECT_EQ(Totals(), QStringList{u"Gravel|16384"_s});
}

TEST_F(ItemSalesReportTest, MissingFileIsAFailureAndIsNotMade) {
    folder.Write(copy, SoldBytes{}.Record());
    const auto before = folder.Contents();
    report.selected = {0};
    const RuntimeFailure failure = FailureOf([this] { report.Open(); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"SoldItems.txt"_s));
    // The copy in Backup is not brought back either: the load doesn't ask whether the file exists.
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(ItemSalesReportTest, EmptyFileHasNoLines) {
    folder.Write(soldItems, {});
    OpenWith({0});
    EXPECT_EQ(Lines(), QStringList{u"|||"_s});
}

TEST_F(ItemSalesReportTest, CutRecordCountsFromHalfItsLengthOnAndReadsAsZeros) {
    const QByteArray whole = SoldBytes{.invoiceNo = "1"}.Record();
    folder.Write(soldItems, whole + SoldBytes{.invoiceNo = "2"}.Record().left(44));
    OpenWith({0});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|1|3"_s, u"|||"_s}));
    folder.Write(soldItems, whole + SoldBytes{.invoiceNo = "2"}.Record().left(88));
    report.LoadGrid();
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|1|3"_s, u"Gravel|3/9/2026|2|0"_s, u"|||"_s}));
}

TEST_F(ItemSalesReportTest, LoadCountsBeyond32767Records) {
    QByteArray bytes = SoldBytes{.day = firstOf2000}.Record().repeated(32'768);
    folder.Write(soldItems, bytes + SoldBytes{.invoiceNo = "last"}.Record());
    OpenWith({0});
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|last|3"_s, u"|||"_s}));
}

TEST_F(ItemSalesReportTest, LoadShowsTheHourglassAndTakesItBack) {
    WriteSold({{}});
    OpenWith({0});
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(ItemSalesReportTest, ResetAllEmptiesSelectionAndGridsAndLeavesThePrintAsItIs) {
    WriteSold({{}});
    OpenWith({0, 1});
    report.ResetAll();
    EXPECT_TRUE(report.selected.isEmpty());
    EXPECT_EQ(Lines(), QStringList{u"|||"_s});
    EXPECT_EQ(Totals(), QStringList{u"|"_s});
    EXPECT_TRUE(report.isPrintEnabled);
}

TEST_F(ItemSalesReportTest, DatesAreInTheRegionalForm) {
    UseLocale("de_DE.UTF-8");
    WriteSold({{.description = "S\xe4nd"}});
    SetProducts({u"Sänd"_s});
    OpenWith({0});
    EXPECT_EQ(Lines(), (QStringList{u"Sänd|09.03.2026|20260001|3"_s, u"|||"_s}));
}

// Print.

class ItemSalesPrintTest : public ItemSalesReportTest {
protected:
    ItemSalesPrintTest() {
        office.settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    }

    // A character of the recording printer is 10 twips a point wide, a line 24 high.
    static QStringList HeadOf(int page) {
        const QStringList head = {u"4930,240 14b Item Sales Report"_s,
                                  u"10080,1080 10 3/9/2026"_s,
                                  u"1440,720 12b Tessel Gravel"_s,
                                  u"1440,1008 10 1 Quarry Road"_s,
                                  u"1440,1248 10 Building 2"_s,
                                  u"1440,1488 10 Springfield, IL. 62701"_s,
                                  u"1440,1728 10 Telephone: 555-0100"_s,
                                  u"1440,1968 10 555-0101"_s,
                                  u"1440,2208 10 Tax 99"_s,
                                  u"3780,2688 12b Report Date Range: 2/7/2026 to 3/9/2026"_s,
                                  u"1440,2880 12b Item Sales by Invoice"_s,
                                  u"1440,3408 10b Inventoried Item Name"_s,
                                  u"4320,3408 10b Invoice Date"_s,
                                  u"6480,3408 10b Invoice No."_s,
                                  u"8360,3408 10b Units Sold"_s};
        QStringList drawn;
        for (const QString& text : head)
            drawn += u"%1: "_s.arg(page) + text;
        return drawn;
    }

    void LoadRecords(int count) {
        std::vector<SoldBytes> records;
        for (int i = 1; i <= count; ++i)
            records.push_back({.invoiceNo = QByteArray::number(i), .units = 1});
        WriteSold(records);
        OpenWith({0});
    }

    QStringList TextsOfPage(int page) const {
        return printer.DrawnTexts().filter(QString::number(page) + u": "_s);
    }
};

TEST_F(ItemSalesPrintTest, PageHasItsHeadTheLinesAndTheTotals) {
    WriteSold({{.invoiceNo = "20260001", .units = 3},
               {.description = "Sand", .invoiceNo = "20260002", .units = 12}});
    OpenWith({0, 1});
    report.Print();
    EXPECT_EQ(printer.DrawnTexts(),
              HeadOf(1) + QStringList({u"1: 1440,3600 10 Gravel"_s, u"1: 4320,3600 10 3/9/2026"_s,
                                       u"1: 6480,3600 10 20260001"_s, u"1: 9260,3600 10 3"_s,
                                       u"1: 1440,3840 10 Sand"_s, u"1: 4320,3840 10 3/9/2026"_s,
                                       u"1: 6480,3840 10 20260002"_s, u"1: 9160,3840 10 12"_s,
                                       // An empty line for the empty row, and one more.
                                       u"1: 1440,4560 12b Total Items Sold (This Date Range)"_s,
                                       u"1: 1440,5136 10b Item Name"_s, u"1: 1440,5376 10 Gravel"_s,
                                       u"1: 9260,5376 10 3"_s, u"1: 1440,5616 10 Sand"_s,
                                       u"1: 9160,5616 10 12"_s}));
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Orientations, std::vector{Orientation::Portrait});
    EXPECT_EQ(printer.JobName, u"Item Sales Report 2026-02-07 to 2026-03-09"_s);
    EXPECT_TRUE(printer.Lines.empty());
}

TEST_F(ItemSalesPrintTest, OneLoadPrintsOnce) {
    LoadRecords(1);
    report.Print();
    EXPECT_FALSE(report.isPrintEnabled);
    EXPECT_EQ(Lines().size(), 2);
    report.LoadGrid();
    EXPECT_TRUE(report.isPrintEnabled);
}

TEST_F(ItemSalesPrintTest, LinesGoOnUnderTheHeadOfTheNextPageInPlainType) {
    // 51 lines stand between 3600 and 15840; the last would reach the bottom.
    LoadRecords(51);
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 15 + 50 * 4);
    EXPECT_EQ(TextsOfPage(1).last(), u"1: 9260,15360 10 1"_s);
    EXPECT_EQ(TextsOfPage(2),
              HeadOf(2) + QStringList({u"2: 1440,3600 10 Gravel"_s, u"2: 4320,3600 10 3/9/2026"_s,
                                       u"2: 6480,3600 10 51"_s, u"2: 9260,3600 10 1"_s,
                                       u"2: 1440,4320 12b Total Items Sold (This Date Range)"_s,
                                       u"2: 1440,4896 10b Item Name"_s, u"2: 1440,5136 10 Gravel"_s,
                                       u"2: 9160,5136 10 51"_s}));
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(ItemSalesPrintTest, EmptyRowCanTakeTheLastLineOfAPage) {
    // The 50 lines fill the page, and the empty row below them begins the next.
    LoadRecords(50);
    report.Print();
    EXPECT_EQ(TextsOfPage(1).size(), 15 + 50 * 4);
    EXPECT_EQ(TextsOfPage(2),
              HeadOf(2) + QStringList({u"2: 1440,4080 12b Total Items Sold (This Date Range)"_s,
                                       u"2: 1440,4656 10b Item Name"_s, u"2: 1440,4896 10 Gravel"_s,
                                       u"2: 9160,4896 10 50"_s}));
}

TEST_F(ItemSalesPrintTest, HeadingsOfTheTotalsGoOnTheNextPageRatherThanOffThePaper) {
    // Behind 47 lines, the empty row and the empty line the pen stands at 15360.
    LoadRecords(47);
    report.Print();
    EXPECT_EQ(TextsOfPage(1).last(), u"1: 9260,14640 10 1"_s);
    EXPECT_EQ(TextsOfPage(2),
              HeadOf(2) + QStringList({u"2: 1440,3600 12b Total Items Sold (This Date Range)"_s,
                                       u"2: 1440,4176 10b Item Name"_s, u"2: 1440,4416 10 Gravel"_s,
                                       u"2: 9160,4416 10 47"_s}));
}

TEST_F(ItemSalesPrintTest, TotalsGoOnUnderTheHeadOfTheNextPage) {
    QStringList names;
    QList<int> all;
    std::vector<SoldBytes> records;
    for (int i = 0; i < 30; ++i) {
        names += u"Product %1"_s.arg(i);
        all += i;
        records.push_back({.description = names.last().toLatin1(), .units = 1});
    }
    SetProducts(names);
    WriteSold(records);
    OpenWith(all);
    report.Print();
    // 30 lines, an empty row, an empty line and three of headings: the first total stands at 12096.
    EXPECT_EQ(TextsOfPage(1).filter(u"12096 10 "_s),
              (QStringList{u"1: 1440,12096 10 Product 0"_s, u"1: 9260,12096 10 1"_s}));
    EXPECT_EQ(TextsOfPage(1).last(), u"1: 9260,15456 10 1"_s);
    EXPECT_EQ(TextsOfPage(2).mid(0, 17),
              HeadOf(2) + QStringList({u"2: 1440,3600 10 Product 15"_s, u"2: 9260,3600 10 1"_s}));
    EXPECT_EQ(TextsOfPage(2).last(), u"2: 9260,6960 10 1"_s);
}

TEST_F(ItemSalesPrintTest, ColourFlagGoesToThePrinterAndTheTextsTurnBlueWithTheHeading) {
    office.settings.ckColor = 1;
    LoadRecords(1);
    report.Print();
    EXPECT_EQ(printer.Colors, std::vector{true});
    EXPECT_EQ(printer.Find(u"Item Sales Report"_s).color, 0U);
    EXPECT_EQ(printer.Find(u"Gravel"_s).color, 0xff0000U);
    office.settings.ckColor = 0;
    report.Print();
    EXPECT_EQ(printer.Colors, (std::vector{true, false}));
}

TEST_F(ItemSalesPrintTest, TextsAreInTheDocumentFont) {
    office.settings.DocumentFont = u"Courier New"_s;
    LoadRecords(1);
    report.Print();
    for (const auto& text : printer.Texts) {
        EXPECT_EQ(text.fontName, u"Courier New"_s);
        EXPECT_FALSE(text.underline);
    }
}

TEST_F(ItemSalesPrintTest, FailureOfThePrinterAtAnyTextIsToldAndTheReportCanBePrintedAgain) {
    LoadRecords(1);
    for (int text = 1; text <= 23; ++text) {
        printer.Texts.clear();
        printer.FailingText = text;
        user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
        report.Print();
        user.ExpectNothingLeft();
        EXPECT_EQ(printer.AbandonedJobs, text);
        EXPECT_TRUE(report.isPrintEnabled);
    }
    printer.Texts.clear();
    printer.FailingText.reset();
    report.Print();
    EXPECT_EQ(printer.DrawnTexts().size(), 23);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(user.BusyChanges.back(), false);
}

TEST_F(ItemSalesPrintTest, FailureAtTheEndOfTheJobIsTold) {
    LoadRecords(1);
    printer.FailsAtEndOfJob = true;
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    report.Print();
    EXPECT_TRUE(report.isPrintEnabled);
}

TEST_F(ItemSalesPrintTest, CancelledJobIsPassedOver) {
    LoadRecords(1);
    printer.FailsAtEndOfJob = true;
    printer.FailsAsCancelled = true;
    report.Print();
    EXPECT_TRUE(report.isPrintEnabled);
}

// Delete by range.

TEST_F(ItemSalesReportTest, DeleteTakesTheRangeOutAndKeepsTheRestInOrder) {
    const SoldBytes before{.description = "Sand", .day = 46'059, .invoiceNo = "1"};
    const SoldBytes start{.day = 46'060};
    const SoldBytes other{.description = "Bricks", .day = 46'070};
    const SoldBytes end{.day = ninthOfMarch};
    const SoldBytes after{.description = "Cement", .day = ninthOfMarch + 1, .invoiceNo = "2"};
    WriteSold({before, start, other, end, after});
    folder.Write(copy, "an older copy");
    OpenWith({0});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(soldItems), BytesOf({before, after}));
    EXPECT_EQ(folder.Read(copy), BytesOf({before, after}));
    EXPECT_FALSE(folder.Has(u"TemporaryFile.txt"_s));
    // Loaded anew for the default range.
    EXPECT_EQ(Lines(), QStringList{u"|||"_s});
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 2, 7));
}

TEST_F(ItemSalesReportTest, DeleteGoesByTheRangeAndNotByTheSelection) {
    WriteSold({{.description = "Sand", .day = firstOfMarch},
               {.day = firstOfMarch - 1},
               {.day = ninthOfMarch}});
    OpenWith({1});
    report.ApplyPreset(RangePreset::MonthToDate);
    report.PickDate(RangeBound::End, {2026, 3, 8});
    user.ExpectQuestion(u"This will delete ALL Sales Item Records dated\n3/1/2026 through "
                        u"3/8/2026\nClick Yess to Delete"_s,
                        questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(soldItems), BytesOf({{.day = firstOfMarch - 1}, {.day = ninthOfMarch}}));
    EXPECT_EQ(report.DTPicker1[0], QDate(2026, 2, 7));
    EXPECT_EQ(report.DTPicker1[1], QDate(2026, 3, 9));
}

TEST_F(ItemSalesReportTest, DeleteOfEveryRecordRemovesTheFileAndItsCopy) {
    WriteSold({{}, {.description = "Sand"}});
    folder.Write(copy, "an older copy");
    OpenWith({});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::NothingLeft);
    EXPECT_FALSE(folder.Has(soldItems));
    EXPECT_FALSE(folder.Has(copy));
    EXPECT_FALSE(folder.Has(u"TemporaryFile.txt"_s));
}

TEST_F(ItemSalesReportTest, NoToEitherQuestionDeletesNothing) {
    WriteSold({{}});
    folder.Write(copy, "an older copy");
    folder.Write(u"TemporaryFile.txt"_s, "left over");
    OpenWith({0});
    const auto before = folder.Contents();
    user.ExpectQuestion(question, questionTitle, Answer::No);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::No);
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::None);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Lines().size(), 2);
}

TEST_F(ItemSalesReportTest, DeleteWritesOverALeftOverTemporaryFileAndKeepsWhatIsBehind) {
    const SoldBytes kept{.day = firstOf2000};
    const SoldBytes leftOver{.description = "Old", .day = firstOf2000};
    WriteSold({kept, {}});
    folder.Write(u"TemporaryFile.txt"_s, BytesOf({leftOver, leftOver}));
    folder.Write(u"Backup/TemporaryFile.txt"_s, "left over");
    OpenWith({});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(soldItems), BytesOf({kept, leftOver}));
    EXPECT_EQ(folder.Read(copy), BytesOf({kept, leftOver}));
    EXPECT_EQ(folder.Read(u"Backup/TemporaryFile.txt"_s), "left over");
}

TEST_F(ItemSalesReportTest, LeftOverRecordsDoNotCountAsRemaining) {
    WriteSold({{}});
    folder.Write(u"TemporaryFile.txt"_s, BytesOf({{.day = firstOf2000}}));
    OpenWith({});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::NothingLeft);
    EXPECT_FALSE(folder.Has(soldItems));
    EXPECT_FALSE(folder.Has(copy));
}

TEST_F(ItemSalesReportTest, DeleteWithoutAFileAsksAllTheSameAndLeavesNothing) {
    OpenWith({});
    const auto before = folder.Contents();
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::NothingLeft);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(ItemSalesReportTest, DeleteFindsALostFileInBackup) {
    folder.Write(copy, BytesOf({{.day = firstOf2000}, {}}));
    OpenWith({});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(soldItems), BytesOf({{.day = firstOf2000}}));
}

TEST_F(ItemSalesReportTest, DeleteOfMoreThan32767RecordsIsAnOverflowAndDeletesNothing) {
    folder.Write(soldItems, SoldBytes{}.Record().repeated(32'768));
    OpenWith({});
    const auto before = folder.Contents();
    ExpectDeleteQuestions();
    EXPECT_EQ(FailureOf([this] { report.DeleteRange(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(ItemSalesReportTest, CutRecordIsKeptAsAWholeOne) {
    const QByteArray kept = SoldBytes{.day = firstOf2000}.Record();
    folder.Write(soldItems, SoldBytes{}.Record() + kept.left(70));
    OpenWith({});
    ExpectDeleteQuestions();
    EXPECT_EQ(report.DeleteRange(), RangeDeletion::Done);
    EXPECT_EQ(folder.Read(soldItems), kept.left(70) + QByteArray(20, '\0'));
}

TEST_F(ItemSalesReportTest, FullDiskStopsTheDeleteBeforeTheOldFileGoes) {
    WriteSold({{.day = firstOf2000}, {.day = firstOf2000}, {}});
    folder.Write(copy, "an older copy");
    const QByteArray before = folder.Read(soldItems);
    OpenWith({});
    ExpectDeleteQuestions();
    {
        const FullDisk disk(100);
        EXPECT_EQ(FailureOf([this] { report.DeleteRange(); }).Kind(), FailureKind::DiskFull);
    }
    EXPECT_EQ(folder.Read(soldItems), before);
    EXPECT_EQ(folder.Read(copy), "an older copy");
}

TEST_F(ItemSalesReportTest, UnreadableFileStopsTheLoadAndTheDelete) {
    folder.MakeFolder(soldItems);
    report.selected = {0};
    EXPECT_THROW(report.Open(), RuntimeFailure);
    report.selected = {};
    report.Open();
    ExpectDeleteQuestions();
    EXPECT_THROW(report.DeleteRange(), RuntimeFailure);
    EXPECT_TRUE(folder.Has(soldItems));
}
