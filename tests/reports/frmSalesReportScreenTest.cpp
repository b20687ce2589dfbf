#include "platform/Grid.h"
#include "reports/ReportScreenTest.h"

#include <QAction>
#include <QListView>

using namespace Qt::StringLiterals;

namespace {

const QString soldItems = u"SoldItems.txt"_s;

} // namespace

class SalesReportScreen : public ReportScreenTest {
protected:
    SalesReportScreen() : ReportScreenTest(ScreenName::frmSalesReport) {
        office.items.ProductNames.setStringList({u"Gravel"_s, u"Sand"_s, u"Bricks"_s});
        folder.Write(soldItems, SoldBytes{}.Record() +
                                    SoldBytes{.description = "Sand", .units = 5}.Record() +
                                    SoldBytes{.day = firstOf2000 + 200, .units = 7}.Record());
    }

    QListView* Products() { return Find<QListView>(report, u"lstSalesItems"_s); }

    void ClickProduct(int row) {
        QListView* list = Products();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualRect(list->model()->index(row, 0)).center());
    }

    void Trigger(const QString& item) { Find<QAction>(report, item)->trigger(); }
    QStringList Lines() { return RowsOf(office.itemSales.fgSalesItems); }
    QStringList Totals() { return RowsOf(office.itemSales.fgTotals); }
    bool InstructionsAreShown() { return Find<QWidget>(report, u"fraInstructions"_s)->isVisible(); }

    void ExpectDeleteQuestions(const QString& range) {
        user.ExpectQuestion(u"This will delete ALL Sales Item Records dated\n"_s + range +
                                u"\nClick Yess to Delete"_s,
                            u"Delete Sales Records"_s, Answer::Yes);
        user.ExpectQuestion(u"Are you Sure?"_s, u"Delete Verification"_s, Answer::Yes);
    }

    const QString emptyLine = u"|||"_s;
};

TEST_F(SalesReportScreen, OpensWithThirtyDaysAndTheCompanyInItsTitle) {
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    screens.Show(report);
    EXPECT_EQ(screens.Find(report)->windowTitle(), u"Item Sales Report for Tessel Gravel"_s);
    EXPECT_EQ(Range(), u"2/7/2026 - 3/9/2026"_s);
    EXPECT_EQ(Lines(), QStringList{emptyLine});
    EXPECT_FALSE(IsEnabled(u"cmdSales(4)"_s));
}

TEST_F(SalesReportScreen, ButtonsCarryTheirCaptionsAndTips) {
    screens.Show(report);
    const QStringList captions = {u"&Menu"_s,      u"Select All"_s,   u"Reset All"_s,
                                  u"Load &Grid"_s, u"Print Report"_s, u"&Close Window"_s};
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(CaptionOf(u"cmdSales(%1)"_s.arg(i)), captions[i]);
    const std::pair<QString, QString> presets[] = {
        {u"&L M"_s, u"Generates a Report for last Month"_s},
        {u"M&TD"_s, u"Generates a Report for this Month"_s},
        {u"&YTD"_s, u"Generates a Report for Current Year"_s},
        {u"&Eternity"_s, u"Generates a Report for all time"_s}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(CaptionOf(u"cmdIncome(%1)"_s.arg(i)), presets[i].first);
        EXPECT_EQ(TipOf(u"cmdIncome(%1)"_s.arg(i)), presets[i].second);
    }
    const QStringList texts = TextsIn(screens.Find(report));
    for (const QString& text :
         {u"Select the products to include in the Report"_s,
          u"Sales for Selected Products by Invoice"_s, u"Total Sales for Selected Products"_s})
        EXPECT_EQ(texts.count(text), 1) << text.toStdString();
}

TEST_F(SalesReportScreen, ClickedProductsAreLoaded) {
    screens.Show(report);
    ClickProduct(1);
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(Lines(), (QStringList{u"Sand|3/9/2026|20260001|5"_s, emptyLine}));
    ClickProduct(0);
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(Lines(), (QStringList{u"Gravel|3/9/2026|20260001|3"_s, u"Sand|3/9/2026|20260001|5"_s,
                                    emptyLine}));
    // A second click takes the product out again.
    ClickProduct(1);
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(Totals(), QStringList{u"Gravel|3"_s});
    EXPECT_TRUE(IsEnabled(u"cmdSales(4)"_s));
}

TEST_F(SalesReportScreen, ProductsAreSelectedByKeyAsWell) {
    screens.Show(report);
    ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(report)));
    EXPECT_TRUE(Products()->hasFocus());
    Press(Products(), Qt::Key_Down);
    Press(Products(), Qt::Key_Space);
    PressAlt(Qt::Key_G);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Totals() != QStringList{u"|"_s}; }));
    EXPECT_EQ(Totals(), QStringList{u"Sand|5"_s});
}

TEST_F(SalesReportScreen, WithoutAProductNothingChangesOnTheScreen) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdSales(3)"_s);
    const QStringList lines = Lines();
    Products()->clearSelection();
    for (const QString& button : {u"cmdSales(3)"_s, u"cmdIncome(0)"_s, u"cmdIncome(1)"_s,
                                  u"cmdIncome(2)"_s, u"cmdIncome(3)"_s}) {
        Click(report, button);
        EXPECT_EQ(Lines(), lines);
        EXPECT_TRUE(IsEnabled(u"cmdSales(4)"_s));
    }
}

TEST_F(SalesReportScreen, SelectAllTakesEveryProductAndResetAllNone) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdIncome(3)"_s);
    EXPECT_EQ(Range(), u"1/1/2000 - 3/9/2026"_s);
    EXPECT_EQ(Totals(), (QStringList{u"Gravel|10"_s, u"Sand|5"_s}));
    Click(report, u"cmdSales(2)"_s);
    EXPECT_EQ(Products()->selectionModel()->selectedRows().size(), 0);
    EXPECT_EQ(Lines(), QStringList{emptyLine});
    EXPECT_EQ(Totals(), QStringList{u"|"_s});
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(Lines(), QStringList{emptyLine});
}

TEST_F(SalesReportScreen, ListThatIsFilledAnewHasNothingSelected) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    office.items.ProductNames.setStringList({u"Cement"_s});
    EXPECT_TRUE(office.itemSales.selected.isEmpty());
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(Lines(), QStringList{emptyLine});
}

TEST_F(SalesReportScreen, PresetsShowTheirRanges) {
    screens.Show(report);
    const QStringList ranges = {u"2/1/2026 - 2/28/2026"_s, u"3/1/2026 - 3/9/2026"_s,
                                u"1/1/2026 - 3/9/2026"_s, u"1/1/2000 - 3/9/2026"_s};
    for (int i = 0; i < ranges.size(); ++i) {
        Click(report, u"cmdIncome(%1)"_s.arg(i));
        EXPECT_EQ(Range(), ranges[i]);
    }
}

TEST_F(SalesReportScreen, EndDateTomorrowIsRefusedAndSetBack) {
    screens.Show(report);
    user.ExpectMessage(invalid);
    TypeDate(1, u"3/10/2026"_s);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Range(), u"2/7/2026 - 3/9/2026"_s);
}

TEST_F(SalesReportScreen, StartLaterThanTheEndBecomesTheEnd) {
    screens.Show(report);
    TypeDate(1, u"3/4/2026"_s);
    user.ExpectMessage(invalid);
    TypeDate(0, u"3/5/2026"_s);
    EXPECT_EQ(Range(), u"3/4/2026 - 3/4/2026"_s);
}

TEST_F(SalesReportScreen, TextThatIsNoDateIsTakenBack) {
    screens.Show(report);
    TypeDate(0, u"someday"_s);
    EXPECT_EQ(Range(), u"2/7/2026 - 3/9/2026"_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(SalesReportScreen, DateChangedLoadsNothingUntilTheButtonIsPressed) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdSales(3)"_s);
    TypeDate(1, u"3/8/2026"_s);
    EXPECT_EQ(Lines().size(), 3);
    Click(report, u"cmdSales(3)"_s);
    EXPECT_EQ(Lines(), QStringList{emptyLine});
}

TEST_F(SalesReportScreen, KeyOfTheLoadButtonTakesTheDateThatIsBeingTyped) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    auto* end = Find<QLineEdit>(report, u"DTPicker1(1)"_s);
    end->setFocus();
    end->selectAll();
    Type(end, u"3/8/2026"_s);
    PressAlt(Qt::Key_G);
    EXPECT_TRUE(QTest::qWaitFor([&] { return office.itemSales.RangeEnd == QDate(2026, 3, 8); }));
    EXPECT_EQ(Lines(), QStringList{emptyLine});
}

TEST_F(SalesReportScreen, OneLoadPrintsOnce) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdSales(3)"_s);
    Click(report, u"cmdSales(4)"_s);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_FALSE(IsEnabled(u"cmdSales(4)"_s));
    EXPECT_EQ(Lines().size(), 3);
}

TEST_F(SalesReportScreen, PrinterThatFailsIsToldAndTheScreenStays) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdSales(3)"_s);
    printer.FailsAtEndOfJob = true;
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    Click(report, u"cmdSales(4)"_s);
    EXPECT_TRUE(IsShown(report));
    EXPECT_TRUE(IsEnabled(u"cmdSales(4)"_s));
    EXPECT_TRUE(Failures().empty());
}

TEST_F(SalesReportScreen, MissingFileEndsTheProgramAtTheLoad) {
    folder.Remove(soldItems);
    screens.Show(report);
    Click(report, u"cmdSales(3)"_s);
    EXPECT_TRUE(Failures().empty());
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdSales(3)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::FileNotFound);
    EXPECT_FALSE(folder.Has(soldItems));
}

TEST_F(SalesReportScreen, InstructionsComeByTheMenuAndGoByTheirButton) {
    screens.Show(report);
    EXPECT_FALSE(InstructionsAreShown());
    Trigger(u"mnuInstructions"_s);
    EXPECT_TRUE(InstructionsAreShown());
    Trigger(u"mnuInstructions"_s);
    EXPECT_TRUE(InstructionsAreShown());
    Click(report, u"cmdSales(5)"_s);
    EXPECT_FALSE(InstructionsAreShown());
}

TEST_F(SalesReportScreen, DeleteThatLeavesRecordsStaysOnTheScreenWithTheDefaultRange) {
    screens.Show(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdIncome(1)"_s);
    ExpectDeleteQuestions(u"3/1/2026 through 3/9/2026"_s);
    Trigger(u"mnuDelete"_s);
    EXPECT_TRUE(IsShown(report));
    EXPECT_EQ(Range(), u"2/7/2026 - 3/9/2026"_s);
    EXPECT_EQ(Lines(), QStringList{emptyLine});
    EXPECT_EQ(folder.Read(soldItems), (SoldBytes{.day = firstOf2000 + 200, .units = 7}.Record()));
}

TEST_F(SalesReportScreen, DeleteOfEveryRecordLeadsBackToTheMenu) {
    screens.Show(report);
    Click(report, u"cmdIncome(3)"_s);
    ExpectDeleteQuestions(u"1/1/2000 through 3/9/2026"_s);
    Trigger(u"mnuDelete"_s);
    EXPECT_FALSE(IsShown(report));
    EXPECT_TRUE(IsShown(menu));
    EXPECT_FALSE(folder.Has(soldItems));
    EXPECT_FALSE(folder.Has(u"Backup/SoldItems.txt"_s));
}

TEST_F(SalesReportScreen, MenuHidesTheScreenAndEachShowingTakesTheRangeBack) {
    screens.Show(report);
    Screen* made = screens.Find(report);
    Click(report, u"cmdSales(1)"_s);
    Click(report, u"cmdIncome(3)"_s);
    Click(report, u"cmdSales(0)"_s);
    EXPECT_FALSE(IsShown(report));
    EXPECT_TRUE(IsShown(menu));
    screens.Show(report);
    EXPECT_EQ(screens.Find(report), made);
    EXPECT_EQ(Range(), u"2/7/2026 - 3/9/2026"_s);
    // The products are still selected, and are loaded anew.
    EXPECT_EQ(Totals(), (QStringList{u"Gravel|3"_s, u"Sand|5"_s}));
}

TEST_F(SalesReportScreen, CloseBoxAsksForTheEnd) {
    screens.Show(report);
    CloseByUser(report);
    EXPECT_EQ(exitRequests, 1);
    EXPECT_TRUE(IsShown(report));
}
