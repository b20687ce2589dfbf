#include "PrintedPages.h"
#include "platform/PagePrinter.h"
#include "support/OfficeTest.h"

#include <QColor>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double nearby = 0.02; // inches
const QColor black(0, 0, 0);
const QColor blue(0, 0, 255);
const QColor red(255, 0, 0);
const QColor white(255, 255, 255);

/// Where a text is meant to begin, or, of a right-aligned one, to end; in inches.
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

/// Expects a word within its cell of the form, touching none of the rules.
void ExpectWithin(const PrintedPages& pages, const QString& word, const QRectF& cell) {
    EXPECT_TRUE(cell.contains(pages.PlaceOf(word))) << word.toStdString();
}

QRect DotsOf(const QRectF& inches) {
    constexpr int dotsInInch = 300;
    return {int(inches.x() * dotsInInch), int(inches.y() * dotsInInch),
            int(inches.width() * dotsInInch), int(inches.height() * dotsInInch)};
}

bool HasColor(const QImage& picture, const QRectF& within, const QColor& color) {
    const QRect dots = DotsOf(within);
    for (int y = dots.top(); y <= dots.bottom(); ++y) {
        for (int x = dots.left(); x <= dots.right(); ++x) {
            if (picture.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

/// Expects words in this ink, and no other in their places.
void ExpectInk(const PrintedPages& pages, int page, const QStringList& words, const QColor& color) {
    const QImage picture = pages.Picture(page);
    for (const QString& word : words) {
        const QRectF place = pages.PlaceOf(word, page);
        EXPECT_TRUE(HasColor(picture, place, color)) << word.toStdString();
        for (const QColor& other : {black, blue, red}) {
            if (other != color) {
                EXPECT_FALSE(HasColor(picture, place, other)) << word.toStdString();
            }
        }
    }
}

/// Middles of all rules of the form, inches.
const QList<QPointF> ruleMiddles = {{4.5, 0.35}, {4.5, 3.5},  {0.25, 2.0}, {8.25, 2.0}, {4.5, 4.0},
                                    {4.5, 4.25}, {4.5, 4.5},  {4.5, 4.75}, {4.5, 8.5},  {4.5, 9.5},
                                    {4.5, 10.0}, {6.5, 8.75}, {6.5, 9.0},  {6.5, 9.25}, {6.5, 9.5},
                                    {6.5, 9.75}, {0.25, 7.0}, {1.25, 8.0}, {5.5, 8.0},  {7.0, 8.0},
                                    {8.25, 7.0}, {2.25, 8.0}};

/// Where rules of the form end or are not.
const QList<QPointF> ruleless = {{0.22, 2.0}, {8.28, 2.0},  {4.5, 3.75}, {1.25, 4.4}, {7.0, 4.1},
                                 {2.25, 9.0}, {5.45, 8.75}, {5.45, 9.0}, {4.5, 10.05}};

/// Invoices as documents, on a machine without a printer.
class InvoicePagesTest : public testing::Test {
protected:
    InvoicePagesTest() {
        qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
        qputenv("HOME", folder.Path().toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.PathOf(u"config"_s).toUtf8());
        settings.DocumentFont = u"DejaVu Sans"_s;
        settings.BusinessData = {u"Tessel Gravel"_s, u"Quarry Road"_s, u"Annex"_s,
                                 u"Elgin"_s,         u"IL"_s,          u"60120"_s,
                                 u"555-0100"_s,      u"555-0101"_s,    u"Tax 99"_s};
        settings.ckApply1stTax = 1;
        settings.ckApply2ndTax = 1;
        settings.cboTaxHeading1 = u"State"_s;
        settings.cboTaxHeading2 = u"City"_s;
        slip.lblCustomer = {u"Grocery"_s, u"12 Hill Street"_s, u"Flat C"_s, u"Rockford"_s,
                            u"IL"_s,      u"61101"_s};
        slip.txtShipto = {u"Depot"_s,   u"9 Mill Lane"_s, u"Dock B"_s,
                          u"Decatur"_s, u"IN"_s,          u"46733"_s};
        slip.lblAcctNo = u"4471"_s;
        slip.lblTotal = u"$1,014.65"_s;
        slip.lblTax1 = u"$60.92"_s;
        slip.lblTax2 = u"$0.22"_s;
        slip.lblCharge = u"$5.00"_s;
        slip.lblGrandtotal = u"$1,080.79"_s;
    }

    void SetItems(int lines) {
        fgItems.SetRows(lines + 1);
        for (int line = 1; line <= lines; ++line) {
            const QStringList cells = {QString::number(100 + line), u"Product%1"_s.arg(line),
                                       u"$2.%1"_s.arg(10 + line), u"$4.%1"_s.arg(10 + line)};
            for (int column = 0; column < cells.size(); ++column)
                fgItems.SetText(line, column, cells[column]);
        }
    }

    PrintedPages Printed(bool isPopulated = true) {
        office.printer.PreparePrinter(Orientation::Portrait, settings.ckColor != 0);
        office.invoicePrinter.PrintInvoice({isPopulated ? u"20260014"_s : QString(), slip, fgItems,
                                            u"Flatbed"_s, QDate(2026, 3, 16), isPopulated});
        printer.EndJob();
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
    LiveSettings& settings = office.settings;
    SlipCaptions slip;
    GridModel fgItems{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};
};

} // namespace

TEST_F(InvoicePagesTest, OnePageReadsBackWithEveryTextInItsPlace) {
    SetItems(2);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    EXPECT_EQ(pages.Property(u"Title"_s), u"Invoice 20260014 Grocery"_s);
    // A line is 2384 of the 2048 units that this font has to its size: 0.162 inch at size 10 and
    // 0.194 at size 12.
    ExpectBeginAt(pages, 1, {{u"Tessel"_s, 0.75, 0.5},       {u"Quarry"_s, 0.75, 0.694},
                             {u"Annex"_s, 0.75, 0.856},      {u"Elgin,"_s, 0.75, 1.018},
                             {u"Telephone:"_s, 0.75, 1.179}, {u"555-0101"_s, 0.75, 1.341},
                             {u"Tax"_s, 0.75, 1.503},        {u"Date"_s, 5.0, 0.9},
                             {u"Amount"_s, 5.0, 1.223},      {u"Acct:"_s, 5.0, 1.385},
                             {u"Page"_s, 5.0, 1.547},        {u"SOLD"_s, 0.75, 1.95},
                             {u"Grocery"_s, 0.75, 2.112},    {u"Flat"_s, 0.75, 2.435},
                             {u"Rockford,"_s, 0.75, 2.597},  {u"DELIVERED"_s, 5.0, 1.95},
                             {u"Depot"_s, 5.0, 2.112},       {u"Dock"_s, 5.0, 2.435},
                             {u"Decatur,IN"_s, 5.0, 2.597},  {u"Vehicle"_s, 0.9, 4.05},
                             {u"Flatbed"_s, 2.4, 4.05},      {u"Sheduled"_s, 6.3, 4.3},
                             {u"QTY"_s, 0.6, 4.55},          {u"DESCRIPTION"_s, 3.1, 4.55},
                             {u"PRICE"_s, 6.1, 4.55},        {u"TOTAL"_s, 7.5, 4.55},
                             {u"Product1"_s, 2.3, 4.9},      {u"Product2"_s, 2.3, 5.062},
                             {u"Sub-Total"_s, 5.6, 8.55},    {u"State"_s, 5.6, 8.8},
                             {u"City"_s, 5.6, 9.05},         {u"Delivery"_s, 5.6, 9.3},
                             {u"Total"_s, 5.6, 9.8}});
    ExpectEndAt(pages, 1,
                {{u"101"_s, 0.85, 4.9},
                 {u"102"_s, 0.85, 5.062},
                 {u"$4.11"_s, 8.0, 4.9},
                 {u"$4.12"_s, 8.0, 5.062},
                 {u"$1,014.65"_s, 8.0, 8.55},
                 {u"$60.92"_s, 8.0, 8.8},
                 {u"$0.22"_s, 8.0, 9.05},
                 {u"$5.00"_s, 8.0, 9.3},
                 {u"$1,080.79"_s, 8.0, 9.8}});
    EXPECT_NEAR(pages.PlaceOf(u"$2.11"_s).center().x(), 6.4, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"20260014"_s).top(), 1.062, nearby);
    EXPECT_TRUE(pages.Words(1).filter(u"Detach"_s).isEmpty());
    EXPECT_TRUE(pages.Words(1).filter(u"from"_s).isEmpty());
}

TEST_F(InvoicePagesTest, RulesAreWhereTheFormHasThem) {
    SetItems(2);
    const QImage picture = Printed().Picture();
    for (const QPointF& rule : ruleMiddles)
        EXPECT_EQ(ColorAt(picture, rule.x(), rule.y()), black) << rule.x() << ", " << rule.y();
    for (const QPointF& paper : ruleless)
        EXPECT_EQ(ColorAt(picture, paper.x(), paper.y()), white) << paper.x() << ", " << paper.y();
    // Six dots of a three-hundredth inch.
    EXPECT_NEAR(InkWithin(picture, {4.4, 3.9, 0.1, 0.2}).height(), 0.02, 0.005);
}

TEST_F(InvoicePagesTest, TextsSitWithinTheRulesOfTheirCells) {
    SetItems(2);
    const PrintedPages pages = Printed();
    ExpectWithin(pages, u"Vehicle"_s, {0.26, 4.01, 1.98, 0.23});
    ExpectWithin(pages, u"Flatbed"_s, {2.26, 4.01, 3.23, 0.23});
    ExpectWithin(pages, u"Sheduled"_s, {5.51, 4.26, 2.73, 0.23});
    ExpectWithin(pages, u"QTY"_s, {0.26, 4.51, 0.98, 0.23});
    ExpectWithin(pages, u"DESCRIPTION"_s, {2.26, 4.51, 3.23, 0.23});
    ExpectWithin(pages, u"PRICE"_s, {5.51, 4.51, 1.48, 0.23});
    ExpectWithin(pages, u"TOTAL"_s, {7.01, 4.51, 1.23, 0.23});
    ExpectWithin(pages, u"101"_s, {0.26, 4.76, 0.98, 3.73});
    ExpectWithin(pages, u"Product1"_s, {2.26, 4.76, 3.23, 3.73});
    ExpectWithin(pages, u"$2.11"_s, {5.51, 4.76, 1.48, 3.73});
    ExpectWithin(pages, u"$4.11"_s, {7.01, 4.76, 1.23, 3.73});
    ExpectWithin(pages, u"Sub-Total"_s, {5.51, 8.51, 1.48, 0.23});
    ExpectWithin(pages, u"Charge"_s, {5.51, 9.26, 1.48, 0.23});
    ExpectWithin(pages, u"$1,014.65"_s, {7.01, 8.51, 1.23, 0.23});
    ExpectWithin(pages, u"$60.92"_s, {7.01, 8.76, 1.23, 0.23});
    ExpectWithin(pages, u"$0.22"_s, {7.01, 9.01, 1.23, 0.23});
    ExpectWithin(pages, u"$5.00"_s, {7.01, 9.26, 1.23, 0.23});
    ExpectWithin(pages, u"$1,080.79"_s, {7.01, 9.76, 1.23, 0.24});
}

TEST_F(InvoicePagesTest, WithoutColorTheWholePageIsBlackOrGrey) {
    settings.BorderColor = 0x0000ff;
    settings.optReturn = true;
    SetItems(2);
    const QImage picture = Printed().Picture();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb dot = picture.pixel(x, y);
            ASSERT_TRUE(qRed(dot) == qGreen(dot) && qGreen(dot) == qBlue(dot)) << x << ", " << y;
        }
    }
    // As dark as the red of the border.
    EXPECT_EQ(ColorAt(picture, 4.5, 4.0).name(), u"#575757"_s);
}

TEST_F(InvoicePagesTest, InColorTextIsBlueLabelsOfTotalsBlackGrandTotalRedAndRulesAsChosen) {
    settings.ckColor = 1;
    settings.BorderColor = 0x008000;
    settings.TextColor = 0x808080;
    SetItems(2);
    const PrintedPages pages = Printed();
    ExpectInk(pages, 1,
              {u"Tessel"_s, u"20260014"_s, u"SOLD"_s, u"Depot"_s, u"Flatbed"_s, u"Sheduled"_s,
               u"DESCRIPTION"_s, u"Product2"_s, u"$60.92"_s},
              blue);
    ExpectInk(pages, 1, {u"Sub-Total"_s, u"State"_s, u"City"_s, u"Charge"_s, u"Total"_s}, black);
    ExpectInk(pages, 1, {u"$1,080.79"_s}, red);
    const QImage picture = pages.Picture();
    for (const QPointF& rule : ruleMiddles)
        EXPECT_EQ(ColorAt(picture, rule.x(), rule.y()).name(), u"#008000"_s);
}

TEST_F(InvoicePagesTest, WithARemittanceSlipItSaysWhereToDetachAndFromWhomItCame) {
    settings.optReturn = true;
    SetItems(2);
    const PrintedPages pages = Printed();
    ExpectBeginAt(pages, 1,
                  {{u"Detach"_s, 3.5, 3.6}, {u"SOLD"_s, 0.75, 1.95}, {u"from"_s, 1.3, 10.1}});
}

TEST_F(InvoicePagesTest, BlankInvoiceHasTenRulesBetweenHeadingsAndTotals) {
    const PrintedPages pages = Printed(false);
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Property(u"Title"_s), u"Invoice Grocery"_s);
    EXPECT_TRUE(pages.Words(1).filter(u"20260014"_s).isEmpty());
    EXPECT_TRUE(pages.Words(1).filter(u"Sub-Total"_s).isEmpty());
    const QImage picture = pages.Picture();
    for (const double y : {5.1, 5.43, 5.76, 6.09, 6.419, 6.749, 7.079, 7.409, 7.739, 8.069}) {
        EXPECT_EQ(ColorAt(picture, 4.5, y), black) << y;
        EXPECT_EQ(ColorAt(picture, 4.5, y + 0.16), white) << y;
    }
}

TEST_F(InvoicePagesTest, LogoIsPaintedBetweenTheBusinessAndTheTitle) {
    QImage image(96, 96, QImage::Format_RGB32);
    image.fill(Qt::black);
    settings.logo = {std::make_shared<const QImage>(image), 1440, 1440};
    settings.logoWidth = 1440;
    settings.logoHeight = 720;
    SetItems(2);
    const QRectF ink = InkWithin(Printed().Picture(), {3.0, 0.4, 1.9, 3.0});
    EXPECT_NEAR(ink.left(), 3.75, nearby);
    EXPECT_NEAR(ink.right(), 4.75, nearby);
    EXPECT_NEAR(ink.top(), 0.5, nearby);
    EXPECT_NEAR(ink.bottom(), 1.0, nearby);
}

/// Lines of goods over three pages: twenty, twenty and five.
class LongInvoicePagesTest : public InvoicePagesTest, public testing::WithParamInterface<quint8> {
protected:
    LongInvoicePagesTest() {
        settings.ckColor = GetParam();
        settings.BorderColor = 0x808080;
        SetItems(45);
    }

    QColor TextInk() const { return GetParam() == 1 ? blue : black; }
};

TEST_P(LongInvoicePagesTest, GoOnOnThreePagesWithTheTotalsOnTheLast) {
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 3);
    // The twentieth line is nineteen lines of 0.1617 inch below the first.
    ExpectBeginAt(pages, 1, {{u"Product1"_s, 2.3, 4.9}, {u"Product20"_s, 2.3, 7.972}});
    ExpectBeginAt(pages, 2, {{u"Product21"_s, 2.3, 4.9}, {u"Product40"_s, 2.3, 7.972}});
    ExpectBeginAt(pages, 3, {{u"Product41"_s, 2.3, 4.9}, {u"Product45"_s, 2.3, 5.547}});
    for (const int page : {1, 2, 3}) {
        ExpectBeginAt(pages, page,
                      {{u"Tessel"_s, 0.75, 0.5},
                       {u"Date"_s, 5.0, 0.9},
                       {u"Page"_s, 5.0, 1.547},
                       {u"SOLD"_s, 0.75, 1.95},
                       {u"Rockford,"_s, 0.75, 2.597},
                       {u"Vehicle"_s, 0.9, 4.05}});
        EXPECT_NEAR(pages.PlaceOf(QString::number(page), page).top(), 1.547, nearby);
        ExpectInk(pages, page, {u"Tessel"_s}, TextInk());
        const QImage picture = pages.Picture(page);
        for (const QPointF& rule : ruleMiddles)
            EXPECT_EQ(ColorAt(picture, rule.x(), rule.y()).name(), u"#808080"_s);
    }
    for (const int page : {2, 3}) {
        for (const QString& once : {u"DELIVERED"_s, u"Flatbed"_s, u"Sheduled"_s})
            EXPECT_TRUE(pages.Words(page).filter(once).isEmpty());
    }
    for (const int page : {1, 2}) {
        EXPECT_TRUE(pages.Words(page).filter(u"Sub-Total"_s).isEmpty());
        EXPECT_TRUE(pages.Words(page).filter(u"$1,080.79"_s).isEmpty());
    }
    ExpectBeginAt(pages, 3, {{u"Sub-Total"_s, 5.6, 8.55}});
    ExpectEndAt(pages, 3, {{u"$1,080.79"_s, 8.0, 9.8}});
    ExpectInk(pages, 3, {u"$1,080.79"_s}, GetParam() == 1 ? red : black);
}

TEST_P(LongInvoicePagesTest, HeadingsOfALaterPageAreCleanThoughPrintedTwice) {
    const PrintedPages pages = Printed();
    const QRectF band{2.3, 4.52, 3.1, 0.21};
    const QRectF once = InkWithin(pages.Picture(1), band);
    const QRectF twice = InkWithin(pages.Picture(2), band);
    EXPECT_FALSE(once.isEmpty());
    EXPECT_NEAR(twice.left(), once.left(), 0.004);
    EXPECT_NEAR(twice.right(), once.right(), 0.004);
    EXPECT_NEAR(twice.top(), once.top(), 0.004);
    EXPECT_NEAR(twice.bottom(), once.bottom(), 0.004);
}

INSTANTIATE_TEST_SUITE_P(InBlackAndInColor, LongInvoicePagesTest,
                         testing::Values(quint8(0), quint8(1)));
