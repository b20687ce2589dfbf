#include "PrintedPages.h"
#include "platform/PagePrinter.h"
#include "reports/ReportTest.h"
#include "reports/TaxesCollectedReport.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace {

constexpr double nearby = 0.02; // inches

/// A line of size 10 is 2384 of the 2048 units that the font has to its size.
constexpr double lineHeight = 2384.0 / 2048 * 10 / 72;
constexpr double firstLine = 2.5;
/// Lines from 2.5 inches down that don't reach the bottom of the page.
constexpr int linesOfPage = 52;

constexpr int records = 60;

/// Where a text is meant to begin, or, of a right-aligned one, to end; in
/// inches.
struct Place {
    QString word;
    double x;
    double top;
};

void ExpectBeginAt(const PrintedPages& pages, int page, const QList<Place>& places) {
    for (const auto& [word, x, top] : places) {
        const QRectF found = pages.PlaceOf(word, page);
        EXPECT_NEAR(found.left(), x, nearby) << word.toStdString();
        EXPECT_NEAR(found.top(), top, nearby) << word.toStdString();
    }
}

void ExpectEndAt(const PrintedPages& pages, int page, const QList<Place>& places) {
    for (const auto& [word, x, top] : places) {
        const QRectF found = pages.PlaceOf(word, page);
        EXPECT_NEAR(found.right(), x, nearby) << word.toStdString();
        EXPECT_NEAR(found.top(), top, nearby) << word.toStdString();
    }
}

/// Expects a hairline from a place near the left edge to the right edge of the
/// paper.
void ExpectRule(const QImage& picture, double y) {
    for (const double x : {0.5, 4.0, 8.4}) {
        const QRectF ink = InkWithin(picture, {x, y - 0.05, 0.09, 0.1});
        EXPECT_NEAR(ink.center().y(), y, nearby) << x;
        EXPECT_NEAR(ink.height(), 0.004, 0.004) << x;
        EXPECT_NEAR(ink.width(), 0.09, 0.01) << x;
    }
    EXPECT_EQ(ColorAt(picture, 0.45, y), QColor(Qt::white));
}

QByteArray NumberOf(int record) {
    return QByteArray::number(20'260'000 + record);
}

/// Reports as documents, on a machine without a printer.
class ReportPagesTest : public testing::Test {
protected:
    ReportPagesTest() {
        qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
        qputenv("HOME", folder.Path().toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.PathOf(u"config"_s).toUtf8());
        office.settings.DocumentFont = u"DejaVu Sans"_s;
        office.settings.BusinessData = {u"Tessel Pits"_s, u"Quarry Road"_s, u"Annex"_s,
                                        u"Elgin"_s,       u"IL"_s,          u"60120"_s,
                                        u"555-0100"_s,    u"555-0101"_s,    u"Number 99"_s};
    }

    PrintedPages Printed() {
        EXPECT_EQ(opened.size(), 1);
        return PrintedPages(opened.value(0));
    }

    TestFolder folder;
    SetClock clock;
    ScriptedOperator user;
    RecordingBrowser browser;
    FakePictures pictures;
    QStringList opened;
    PagePrinter printer{[this](const QString& path) { opened += path; }};
    Office office{folder.Path(), {clock, user, printer, browser, pictures}};
};

} // namespace

TEST_F(ReportPagesTest, ItemSalesReadBackFromBothPages) {
    QByteArray bytes;
    for (int record = 1; record <= records; ++record)
        bytes += SoldBytes{.invoiceNo = NumberOf(record), .units = 1}.Record();
    folder.Write(u"SoldItems.txt"_s, bytes);
    office.items.ProductNames.setStringList({u"Gravel"_s});
    office.itemSales.selected = {0};
    office.itemSales.Open();
    office.itemSales.Print();
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 2);
    EXPECT_EQ(pages.Property(u"Title"_s), u"Item Sales Report 2026-02-07 to 2026-03-09"_s);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    for (const int page : {1, 2}) {
        ExpectBeginAt(pages, page,
                      {{u"Tessel"_s, 1.0, 0.5},
                       {u"Quarry"_s, 1.0, 0.694},
                       {u"Elgin,"_s, 1.0, 1.018},
                       {u"Number"_s, 1.0, 1.503},
                       {u"Inventoried"_s, 1.0, 2.356}});
    }
    ExpectBeginAt(pages, 1,
                  {{u"20260001"_s, 4.5, firstLine},
                   {u"20260002"_s, 4.5, firstLine + lineHeight},
                   {u"20260052"_s, 4.5, firstLine + (linesOfPage - 1) * lineHeight}});
    EXPECT_EQ(pages.Words(1).count(u"Gravel"_s), linesOfPage);
    // Eight lines, the empty row and an empty line are above the totals.
    constexpr double totals = firstLine + 10 * lineHeight;
    constexpr double largeLine = lineHeight * 1.2;
    ExpectBeginAt(pages, 2, {{u"20260053"_s, 4.5, firstLine}, {u"Total"_s, 1.0, totals}});
    ExpectEndAt(pages, 2, {{u"60"_s, 6.5, totals + 2 * largeLine + lineHeight}});
    EXPECT_EQ(pages.Words(2).count(u"Gravel"_s), records - linesOfPage + 1);
}

TEST_F(ReportPagesTest, TaxesReadBackFromBothPages) {
    office.settings.cboTaxHeading1 = u"State"_s;
    QByteArray bytes;
    for (int record = 1; record <= records; ++record)
        bytes += TaxBytes("State", "3/2/2026", NumberOf(record), "2." + NumberOf(record).right(2));
    folder.Write(u"TaxRecords.txt"_s, bytes);
    TaxesCollectedReport report(office.disk, office.reportPrinter, office.settings, clock, user);
    report.Open();
    report.Print();
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 2);
    EXPECT_EQ(pages.Property(u"Title"_s), u"Tax Collection Report 2026-03-01 to 2026-03-09"_s);
    for (const int page : {1, 2}) {
        ExpectBeginAt(pages, page,
                      {{u"Tessel"_s, 0.75, 0.5},
                       {u"Date"_s, 2.5, 2.0},
                       {u"Reference"_s, 3.5, 2.0},
                       {u"Amount"_s, 6.5, 2.0}});
        ExpectRule(pages.Picture(page), 2.0 + lineHeight + 100.0 / 1440);
    }
    constexpr double lastLine = firstLine + (linesOfPage - 1) * lineHeight;
    ExpectBeginAt(pages, 1, {{u"20260001"_s, 3.5, firstLine}, {u"20260052"_s, 3.5, lastLine}});
    ExpectEndAt(pages, 1, {{u"$2.01"_s, 7.5, firstLine}, {u"$2.52"_s, 7.5, lastLine}});
    EXPECT_EQ(pages.Words(1).count(u"3/2/2026"_s), linesOfPage);
    // The sum of 60 times 2 and of 0.01 to 0.60.
    constexpr double total = firstLine + 9 * lineHeight;
    ExpectBeginAt(pages, 2, {{u"20260053"_s, 3.5, firstLine}, {u"Total"_s, 3.5, total}});
    ExpectEndAt(pages, 2, {{u"$138.30"_s, 6.25, total}});
}

TEST_F(ReportPagesTest, InvoicesReadBackFromBothPages) {
    QByteArray bytes;
    for (int record = 1; record <= records; ++record)
        bytes += JournalBytes{.name = "Depot",
                              .invoiceNo = NumberOf(record),
                              .subTotal = (100 + record) * 1'0000,
                              .tax = record * 1000,
                              .grandTotal = 1000'0000 + record * 1'0000}
                     .Record();
    folder.Write(u"InvoiceSalesJournal.txt"_s, bytes);
    office.invoiceReport.Open();
    office.invoiceReport.Print();
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 2);
    EXPECT_EQ(pages.Property(u"Title"_s), u"General Sales Report 2026-03-01 to 2026-03-09"_s);
    ExpectBeginAt(pages, 1,
                  {{u"Tessel"_s, 0.75, 0.4},
                   {u"Invoice"_s, 0.5, 2.0},
                   {u"SubTotal"_s, 4.1, 2.0},
                   {u"Discount"_s, 5.2, 2.0},
                   {u"Tax"_s, 6.4, 2.0},
                   {u"Total"_s, 7.35, 2.0},
                   {u"20260001"_s, 0.5, firstLine},
                   {u"20260052"_s, 0.5, firstLine + (linesOfPage - 1) * lineHeight}});
    ExpectEndAt(pages, 1,
                {{u"$101.00"_s, 4.7, firstLine},
                 {u"$0.10"_s, 6.7, firstLine},
                 {u"$1,001.00"_s, 7.7, firstLine},
                 {u"$152.00"_s, 4.7, firstLine + (linesOfPage - 1) * lineHeight}});
    // The date of an invoice is not printed: the one date is that of the report,
    // and its range.
    EXPECT_EQ(pages.Words(1).count(u"3/9/2026"_s), 2);
    // Eight lines, an empty one, the rule and another empty line.
    constexpr double rule = firstLine + 9 * lineHeight + 100.0 / 1440;
    ExpectBeginAt(pages, 2,
                  {{u"20260053"_s, 0.5, firstLine},
                   {u"Goods"_s, 4.5, rule + lineHeight},
                   {u"Discounts"_s, 4.5, rule + 2 * lineHeight}});
    ExpectEndAt(pages, 2,
                {{u"$7,830.00"_s, 7.7, rule + lineHeight},
                 {u"$183.00"_s, 7.7, rule + 3 * lineHeight},
                 {u"$61,830.00"_s, 7.7, rule + 4 * lineHeight}});
    ExpectRule(pages.Picture(1), 2.0 + lineHeight + 100.0 / 1440);
    ExpectRule(pages.Picture(2), rule);
}

TEST_F(ReportPagesTest, WithoutColorThePagesAreBlackAndInColorTheTextsAreBlue) {
    folder.Write(u"InvoiceSalesJournal.txt"_s, JournalBytes{}.Record());
    office.invoiceReport.Open();
    const auto hasBlue = [](const QImage& picture) {
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == QColor(0, 0, 255))
                    return true;
            }
        }
        return false;
    };
    office.invoiceReport.Print();
    EXPECT_FALSE(hasBlue(PrintedPages(opened.value(0)).Picture()));
    office.settings.ckColor = 1;
    office.invoiceReport.Print();
    const QImage picture = PrintedPages(opened.value(1)).Picture();
    EXPECT_TRUE(hasBlue(picture));
    // The rule stays black.
    const double y = InkWithin(picture, {4.0, 2.2, 0.1, 0.1}).center().y();
    EXPECT_EQ(ColorAt(picture, 4.0, y), QColor(Qt::black));
}
