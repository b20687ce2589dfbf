#include "schedule/NXPrint.h"

#include "schedule/ScheduleTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 blue = 0xff0000;
constexpr quint32 red = 0x0000ff;
constexpr quint32 green = 0x00ff00;

/// A recording printer with lines of a height of their own, and one that only stumbles: the text
/// it fails at is lost and the next is printed.
class OddPrinter : public RecordingPrinter {
public:
    std::optional<double> LineHeight;
    std::optional<int> LostText;

    double TextHeight(const QString& text) override {
        return LineHeight ? *LineHeight : RecordingPrinter::TextHeight(text);
    }

protected:
    void DrawText(double x, double y, const QString& text) override {
        if (++textsTried == LostText)
            throw RuntimeFailure(FailureKind::PrinterFailure, u"The printer stumbled."_s);
        RecordingPrinter::DrawText(x, y, text);
    }

private:
    int textsTried = 0;
};

QString OnPage(int page, const QString& text) {
    return QString::number(page) + u": "_s + text;
}

} // namespace

// The recording printer's characters are 100 twips wide and 240 high at size 10, 120 and 288 at
// size 12.

class NXPrintTest : public ScheduleTest {
protected:
    NXPrintTest() {
        settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
        settings.BorderColor = 0x112233;
        settings.TextColor = 0x445566;
        settings.ckApply1stTax = 1;
        settings.ckApply2ndTax = 1;
        settings.cboTaxHeading1 = u"State Tax"_s;
        settings.cboTaxHeading2 = u"City Tax"_s;
        slip.lblCustomer = {
            u"Corner Grocery"_s, u"12 Hill Street"_s, u"Apt 3"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s};
        slip.txtShipto = {u"Grocery Depot"_s, u"9 Mill Lane"_s, u"Dock B"_s,
                          u"Decatur"_s,       u"IN"_s,          u"46733"_s};
        slip.lblAcctNo = u"4471"_s;
        slip.lblTotal = u"$14.65"_s;
        slip.lblTax1 = u"$0.92"_s;
        slip.lblTax2 = u"$0.22"_s;
        slip.lblCharge = u"$5.00"_s;
        slip.lblGrandtotal = u"$20.79"_s;
        slip.lblTaxHeading1 = u"Old State Tax"_s;
        slip.lblTaxHeading2 = u"Old City Tax"_s;
        fgItems.SetRows(3);
        SetItem(1, {u"3"_s, u"Gravel"_s, u"$4.10"_s, u"$12.30"_s});
        SetItem(2, {u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s});
    }

    void SetItem(int row, const QStringList& cells) {
        for (int column = 0; column < cells.size(); ++column)
            fgItems.SetText(row, column, cells[column]);
    }

    /// "1", "Product 1", "$2.00", "$2.00" and so on.
    void SetManyItems(int lines) {
        fgItems.SetRows(lines + 1);
        for (int line = 1; line <= lines; ++line)
            SetItem(line, {u"1"_s, u"Product %1"_s.arg(line), u"$2.00"_s, u"$2.00"_s});
    }

    Invoice Filled() const {
        return {u"20260014"_s, slip, fgItems, u"Flatbed Truck"_s, {2026, 3, 16}, true};
    }
    Invoice Blank() const { return {{}, slip, fgItems, u"Flatbed Truck"_s, {2026, 3, 16}, false}; }

    /// In the way of the settings, as the board prepares it.
    void PrintPrepared(const Invoice& invoice) {
        office.printer.PreparePrinter(Orientation::Portrait, settings.ckColor != 0);
        invoices.PrintInvoice(invoice);
    }
    void PrintOn(PrinterSurface& surface) {
        PrinterRoutines routines(surface, settings);
        NXPrint(routines, settings, office.logo, clock).PrintInvoice(Filled());
    }

    QStringList TextsOfPage(int page) const {
        return DrawnTexts().filter(QString::number(page) + u": "_s);
    }
    QStringList TextsWith(const QString& words) const { return DrawnTexts().filter(words); }

    /// The texts in another colour than this one, each with its colour in hexadecimal.
    QStringList TextsNotIn(quint32 color) const {
        QStringList found;
        for (const auto& text : printer.Texts) {
            if (text.color != color)
                found += u"%1 %2"_s.arg(text.color, 6, 16, QChar(u'0')).arg(text.text);
        }
        return found;
    }

    /// The page, the wording and the place of the goods: "page: y product".
    QStringList ProductPlaces() const {
        QStringList places;
        for (const auto& text : printer.Texts) {
            if (text.text.startsWith(u"Product "_s))
                places += u"%1: %2 %3"_s.arg(text.page).arg(text.y).arg(text.text);
        }
        return places;
    }
    int PageOf(const QString& text) const { return printer.Find(text).page; }

    const QStringList form = {
        u"7200,720 26b INVOICE"_s,
        u"1080,720 12b Tessel Gravel"_s,
        u"1080,1008 10 1 Quarry Road"_s,
        u"1080,1248 10 Building 2"_s,
        u"1080,1488 10 Springfield, IL. 62701"_s,
        u"1080,1728 10 Telephone: 555-0100"_s,
        u"1080,1968 10 555-0101"_s,
        u"1080,2208 10 Tax 99"_s,
    };
    const QStringList columnHeadings = {u"864,6552 10b QTY"_s, u"4464,6552 10b DESCRIPTION"_s,
                                        u"8784,6552 10b PRICE"_s, u"10800,6552 10b TOTAL"_s};
    const QStringList remittance =
        QStringList{u"7200,1296 10b Date 3/9/2026"_s,
                    u"7200,1536 10b INVOICE NO: 20260014"_s,
                    u"7200,1776 10b Amount Enclosed              _______________"_s,
                    u"7200,2016 10b Acct: 4471"_s,
                    u"7200,2256 10b Page 1"_s,
                    u"1296,5832 10b Vehicle"_s} +
        columnHeadings;
    const QStringList soldTo = {u"1080,2808 10b SOLD TO:"_s, u"1080,3048 10b Corner Grocery"_s,
                                u"1080,3288 10b 12 Hill Street"_s, u"1080,3528 10b Apt 3"_s,
                                u"1080,3768 10b Springfield, IL 62701"_s};
    const QStringList deliveredTo = {u"7200,2808 10b DELIVERED TO:"_s,
                                     u"7200,3048 10b Grocery Depot"_s,
                                     u"7200,3288 10b 9 Mill Lane"_s,
                                     u"7200,3528 10b Dock B"_s,
                                     u"7200,3768 10b Decatur,IN 46733"_s,
                                     u"3456,5832 10b Flatbed Truck"_s,
                                     u"9072,6192 10b Sheduled for - 3/16/2026"_s};
    const QStringList goods = {u"1124,7056 10b 3"_s,       u"8966,7056 10b $4.10"_s,
                               u"10920,7056 10b $12.30"_s, u"3312,7056 10b Gravel"_s,
                               u"1124,7296 10b 1"_s,       u"8966,7296 10b $2.35"_s,
                               u"11020,7296 10b $2.35"_s,  u"3312,7296 10b Sand"_s};
    const QStringList totals = {u"8064,12312 10b Sub-Total"_s, u"8064,12672 10b State Tax"_s,
                                u"8064,13032 10b City Tax"_s,  u"8064,13392 10b Delivery Charge"_s,
                                u"8064,14112 10b Total"_s,     u"10920,12312 10b $14.65"_s,
                                u"11020,12672 10b $0.92"_s,    u"11020,13032 10b $0.22"_s,
                                u"11020,13392 10b $5.00"_s,    u"10800,14112 12b $20.79"_s};

    static QStringList AllOnPage(int page, const QList<QStringList>& steps) {
        QStringList texts;
        for (const QStringList& step : steps) {
            for (const QString& text : step)
                texts += OnPage(page, text);
        }
        return texts;
    }

    static QStringList RulesOf(int page, const QString& color) {
        QStringList rules;
        for (const QString& place :
             {u"360,5760 - 11880,5760"_s, u"360,6120 - 11880,6120"_s, u"360,6480 - 11880,6480"_s,
              u"360,6840 - 11880,6840"_s, u"360,12240 - 11880,12240"_s,
              u"360,13680 - 11880,13680"_s, u"360,14400 - 11880,14400"_s,
              u"7920,12600 - 11880,12600"_s, u"7920,12960 - 11880,12960"_s,
              u"7920,13320 - 11880,13320"_s, u"7920,13680 - 11880,13680"_s,
              u"7920,14040 - 11880,14040"_s, u"360,5760 - 360,14400"_s, u"1800,6480 - 1800,14400"_s,
              u"7920,5760 - 7920,14400"_s, u"10080,6480 - 10080,14400"_s,
              u"11880,5760 - 11880,14400"_s, u"3240,5760 - 3240,12240"_s})
            rules += OnPage(page, place + u' ' + color);
        return rules;
    }

    static QStringList BlankRules() {
        QStringList rules;
        for (const QString& y : {u"7344"_s, u"7819"_s, u"8294"_s, u"8769"_s, u"9244"_s, u"9719"_s,
                                 u"10194"_s, u"10669"_s, u"11144"_s, u"11619"_s})
            rules += u"1: 360,"_s + y + u" - 11880,"_s + y + u" 000000"_s;
        return rules;
    }

    LiveSettings& settings = office.settings;
    NXPrint& invoices = office.invoicePrinter;
    SlipCaptions slip;
    GridModel fgItems{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};
};

TEST_F(NXPrintTest, PageHasFormRemittanceBlockAddressesGoodsAndTotalsInThisOrder) {
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(), AllOnPage(1, {form, remittance, soldTo, deliveredTo, goods, totals}));
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s));
}

TEST_F(NXPrintTest, BlankInvoiceHasTenRulesInPlaceOfGoodsAndTotals) {
    PrintPrepared(Blank());
    QStringList texts = AllOnPage(1, {form, remittance, soldTo, deliveredTo});
    texts.replaceInStrings(u"INVOICE NO: 20260014"_s, u"INVOICE NO: "_s);
    EXPECT_EQ(DrawnTexts(), texts);
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s) + BlankRules());
}

TEST_F(NXPrintTest, JobIsLeftToBeEndedByTheCaller) {
    PrintPrepared(Filled());
    PrintPrepared(Blank());
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 0);
}

TEST_F(NXPrintTest, JobIsNamedByNumberAndCustomer) {
    PrintPrepared(Filled());
    EXPECT_EQ(printer.JobName, u"Invoice 20260014 Corner Grocery"_s);
    PrintPrepared(Blank());
    EXPECT_EQ(printer.JobName, u"Invoice Corner Grocery"_s);
    slip.lblCustomer[0].clear();
    PrintPrepared(Blank());
    EXPECT_EQ(printer.JobName, u"Invoice"_s);
}

TEST_F(NXPrintTest, EverythingIsInTheDocumentFontAndNothingUnderlined) {
    settings.DocumentFont = u"Courier"_s;
    settings.optReturn = true;
    PrintPrepared(Filled());
    EXPECT_EQ(printer.Texts.size(), 50U);
    for (const auto& text : printer.Texts) {
        EXPECT_EQ(text.fontName, u"Courier"_s);
        EXPECT_FALSE(text.underline);
    }
}

TEST_F(NXPrintTest, FormIsRuledBeforeItsTitleAndTheLogoComesBetweenTitleAndHeading) {
    settings.logo = {nullptr, 2880, 1440};
    PrintPrepared(Blank());
    using Mark = RecordingPrinter::Mark;
    ASSERT_EQ(printer.Order.size(), 60U);
    EXPECT_EQ(printer.Order[0], Mark::Box);
    for (size_t rule = 1; rule <= 18; ++rule)
        EXPECT_EQ(printer.Order[rule], Mark::Line);
    EXPECT_EQ(printer.Order[19], Mark::Text);
    EXPECT_EQ(printer.Order[20], Mark::Picture);
    for (size_t text = 21; text < 50; ++text)
        EXPECT_EQ(printer.Order[text], Mark::Text);
    for (size_t rule = 50; rule < 60; ++rule)
        EXPECT_EQ(printer.Order[rule], Mark::Line);
}

TEST_F(NXPrintTest, HeadOfTheFormIsABox) {
    PrintPrepared(Filled());
    ASSERT_EQ(printer.Boxes.size(), 1U);
    const auto& box = printer.Boxes[0];
    EXPECT_EQ(box.x1, 360);
    EXPECT_EQ(box.y1, 504);
    EXPECT_EQ(box.x2, 11880);
    EXPECT_EQ(box.y2, 5040);
    EXPECT_EQ(box.color, 0x112233U);
    EXPECT_EQ(box.drawWidth, 6);
    EXPECT_TRUE(printer.FilledBoxes.empty());
}

TEST_F(NXPrintTest, AllRulesAreThickAndWhatIsPrintedNextHasFineOnesAgain) {
    PrintPrepared(Blank());
    ASSERT_EQ(printer.Lines.size(), 28U);
    for (const auto& line : printer.Lines)
        EXPECT_EQ(line.drawWidth, 6);
    EXPECT_EQ(printer.DrawWidth, 1);
}

TEST_F(NXPrintTest, LogoHasItsOwnSizeAndIsCentredByTheSizeOfItsFile) {
    settings.logo = {nullptr, 2880, 1440};
    settings.logoWidth = 1000;
    settings.logoHeight = 500;
    PrintPrepared(Filled());
    ASSERT_EQ(printer.Pictures.size(), 1U);
    EXPECT_EQ(printer.Pictures[0].x, 4680);
    EXPECT_EQ(printer.Pictures[0].y, 720);
    EXPECT_EQ(printer.Pictures[0].width, 1000);
    EXPECT_EQ(printer.Pictures[0].height, 500);
}

TEST_F(NXPrintTest, WithoutALogoNoPictureIsPainted) {
    PrintPrepared(Filled());
    EXPECT_TRUE(printer.Pictures.empty());
}

TEST_F(NXPrintTest, WithoutColourAllTextIsBlackAndTheRulesKeepTheBorderColour) {
    settings.optReturn = true;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsNotIn(0), QStringList());
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s));
    EXPECT_EQ(printer.Colors, std::vector<bool>{false});
}

TEST_F(NXPrintTest, InColourTextIsBlueTheLabelsOfTheTotalsBlackAndTheGrandTotalRed) {
    settings.ckColor = 1;
    settings.optReturn = true;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsNotIn(blue),
              (QStringList{u"000000 Sub-Total"_s, u"000000 State Tax"_s, u"000000 City Tax"_s,
                           u"000000 Delivery Charge"_s, u"000000 Total"_s, u"0000ff $20.79"_s}));
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s));
    EXPECT_EQ(printer.ForeColor, 0U);
}

TEST_F(NXPrintTest, InColourTheRulesOfABlankInvoiceAreBlackWhetherOrNotItHasAShipTo) {
    settings.ckColor = 1;
    PrintPrepared(Blank());
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s) + BlankRules());
    printer.Lines.clear();
    slip.txtShipto.fill({});
    PrintPrepared(Blank());
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s) + BlankRules());
}

TEST_F(NXPrintTest, WithARemittanceSlipTheLineToDetachAtIsPrintedAndWhatFollowsIsNotBold) {
    settings.optReturn = true;
    PrintPrepared(Filled());
    QStringList body = AllOnPage(1, {soldTo, deliveredTo, goods, totals.first(5)});
    body.replaceInStrings(u" 10b "_s, u" 10 "_s);
    EXPECT_EQ(
        DrawnTexts(),
        AllOnPage(1, {form, remittance, {u"5040,5184 6b Detach Here and Return Top Section"_s}}) +
            body + AllOnPage(1, {totals.last(5), {u"1872,14544 14b from Tessel Gravel"_s}}));
}

TEST_F(NXPrintTest, WithoutARemittanceSlipTheAddressesAndGoodsStayBold) {
    settings.optReturn = false;
    PrintPrepared(Filled());
    EXPECT_TRUE(printer.Find(u"SOLD TO:"_s).bold);
    EXPECT_TRUE(printer.Find(u"Gravel"_s).bold);
    EXPECT_TRUE(TextsWith(u"Detach"_s).isEmpty());
    EXPECT_TRUE(TextsWith(u"from "_s).isEmpty());
}

TEST_F(NXPrintTest, RemittanceSlipOfABlankInvoiceHasNoName) {
    settings.optReturn = true;
    PrintPrepared(Blank());
    EXPECT_EQ(TextsWith(u"Detach"_s),
              QStringList{u"1: 5040,5184 6b Detach Here and Return Top Section"_s});
    EXPECT_TRUE(TextsWith(u"from "_s).isEmpty());
}

TEST_F(NXPrintTest, BusinessWithoutANameStillSaysFrom) {
    settings.optReturn = true;
    settings.BusinessData[0].clear();
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts().last(), u"1: 1872,14544 14b from "_s);
}

TEST_F(NXPrintTest, DetachLineLeavesBodySizeNotBold) {
    invoices.PrintDetachLine();
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 5040,5184 6b Detach Here and Return Top Section"_s});
    EXPECT_EQ(printer.FontSize, 10);
    EXPECT_FALSE(printer.FontBold);
}

TEST_F(NXPrintTest, InternationalAddressesHaveCityAndPostalCodeOnLinesOfTheirOwnAndNoState) {
    settings.cmdAddress = u"International Style Address"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"Springfield"_s),
              (QStringList{u"1: 1080,1488 10 Springfield"_s, u"1: 1080,3768 10b Springfield"_s}));
    EXPECT_EQ(TextsWith(u"62701"_s), QStringList{u"1: 1080,4008 10b 62701"_s});
    EXPECT_EQ(TextsWith(u"Decatur"_s), QStringList{u"1: 7200,3768 10b Decatur"_s});
    EXPECT_EQ(TextsWith(u"46733"_s), QStringList{u"1: 7200,4008 10b 46733"_s});
    EXPECT_TRUE(TextsWith(u"b IN"_s).filter(u",3"_s).isEmpty());
}

TEST_F(NXPrintTest, AddressStyleIsThatOfTheMomentOfPrinting) {
    settings.cmdAddress = u"International Style Address"_s;
    PrintPrepared(Filled());
    settings.cmdAddress = u"USA Style Address"_s;
    printer.Texts.clear();
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(), AllOnPage(1, {form, remittance, soldTo, deliveredTo, goods, totals}));
}

TEST_F(NXPrintTest, AddressWithoutAnApartmentTakesALineLess) {
    slip.lblCustomer[2].clear();
    slip.txtShipto[2].clear();
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u",3528 "_s), (QStringList{u"1: 1080,3528 10b Springfield, IL 62701"_s,
                                                   u"1: 7200,3528 10b Decatur,IN 46733"_s}));
    EXPECT_TRUE(TextsWith(u",3768 "_s).isEmpty());
}

TEST_F(NXPrintTest, EmptyStreetStillTakesItsLine) {
    slip.lblCustomer[1].clear();
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"Apt 3"_s), QStringList{u"1: 1080,3528 10b Apt 3"_s});
}

TEST_F(NXPrintTest, LongNameIsWrappedInItsBoxAndTheAddressGoesOnBelowIt) {
    slip.lblCustomer[0] = u"Corner Grocery and Delicatessen of Springfield"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u": 1080,3"_s),
              (QStringList{u"1: 1080,3048 10b Corner Grocery and"_s,
                           u"1: 1080,3288 10b Delicatessen of Springfield"_s,
                           u"1: 1080,3528 10b 12 Hill Street"_s, u"1: 1080,3768 10b Apt 3"_s}));
    EXPECT_EQ(TextsWith(u": 1080,4008 "_s),
              QStringList{u"1: 1080,4008 10b Springfield, IL 62701"_s});
}

TEST_F(NXPrintTest, NameLongerThanTwoLinesIsCutAndTheShipToNameIsWrappedLikewise) {
    slip.txtShipto[0] = u"Depot of the Corner Grocery and the Delicatessen of all of Springfield"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u": 7200,3"_s),
              (QStringList{u"1: 7200,3048 10b Depot of the Corner"_s,
                           u"1: 7200,3288 10b Grocery and the"_s, u"1: 7200,3528 10b 9 Mill Lane"_s,
                           u"1: 7200,3768 10b Dock B"_s}));
}

TEST_F(NXPrintTest, EmptySoldToLeavesTheMarksOfItsCityLine) {
    slip.lblCustomer.fill({});
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u": 1080,"_s).filter(u" 10b "_s),
              (QStringList{u"1: 1080,2808 10b SOLD TO:"_s, u"1: 1080,3528 10b ,  "_s}));
}

TEST_F(NXPrintTest, WithoutAnyShipToNeitherVehicleNorDateIsPrintedButTheVehicleCaption) {
    slip.txtShipto.fill({});
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(), AllOnPage(1, {form, remittance, soldTo, goods, totals}));
    EXPECT_EQ(TextsWith(u"Vehicle"_s), QStringList{u"1: 1296,5832 10b Vehicle"_s});
}

TEST_F(NXPrintTest, AnyOneShipToFieldBringsTheBlock) {
    for (size_t field = 0; field < slip.txtShipto.size(); ++field) {
        slip.txtShipto.fill({});
        slip.txtShipto[field] = u"x"_s;
        printer.Texts.clear();
        PrintPrepared(Filled());
        EXPECT_EQ(TextsWith(u"DELIVERED TO:"_s), QStringList{u"1: 7200,2808 10b DELIVERED TO:"_s});
        EXPECT_EQ(TextsWith(u"Flatbed Truck"_s), QStringList{u"1: 3456,5832 10b Flatbed Truck"_s});
    }
}

TEST_F(NXPrintTest, ShipToOfAPostalCodeAloneStandsInTheCityLine) {
    slip.txtShipto.fill({});
    slip.txtShipto[5] = u"46733"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u": 7200,3"_s), QStringList{u"1: 7200,3528 10b , 46733"_s});
}

TEST_F(NXPrintTest, VehicleNoneShowsNeitherItsNameNorTheDateButTheCaption) {
    Invoice invoice = Filled();
    invoice.vehicle = u"None"_s;
    PrintPrepared(invoice);
    EXPECT_EQ(DrawnTexts(),
              AllOnPage(1, {form, remittance, soldTo, deliveredTo.first(5), goods, totals}));
}

TEST_F(NXPrintTest, VehicleNoneIsToldFromOtherNamesToTheLetter) {
    Invoice invoice = Filled();
    invoice.vehicle = u"none"_s;
    PrintPrepared(invoice);
    EXPECT_EQ(TextsWith(u"3456,"_s), QStringList{u"1: 3456,5832 10b none"_s});
}

TEST_F(NXPrintTest, WithoutAVehicleTheDateStands) {
    Invoice invoice = Filled();
    invoice.vehicle.clear();
    PrintPrepared(invoice);
    EXPECT_TRUE(TextsWith(u": 3456,"_s).isEmpty());
    EXPECT_EQ(TextsWith(u": 9072,"_s), QStringList{u"1: 9072,6192 10b Sheduled for - 3/16/2026"_s});
}

TEST_F(NXPrintTest, DeliveryOfTodayOrBeforeIsDeliveredAndALaterOneScheduled) {
    const auto dateLine = [this](QDate date) {
        Invoice invoice = Filled();
        invoice.deliveryDate = date;
        printer.Texts.clear();
        PrintPrepared(invoice);
        return TextsWith(u": 9072,"_s);
    };
    EXPECT_EQ(dateLine({2026, 3, 8}), QStringList{u"1: 9072,6192 10b Delivered On - 3/8/2026"_s});
    EXPECT_EQ(dateLine({2026, 3, 9}), QStringList{u"1: 9072,6192 10b Delivered On - 3/9/2026"_s});
    EXPECT_EQ(dateLine({2026, 3, 10}), QStringList{u"1: 9072,6192 10b Sheduled for - 3/10/2026"_s});
}

TEST_F(NXPrintTest, TheDateOfTheInvoiceIsTodayWhateverTheDateOfDelivery) {
    clock.Date = {2026, 12, 31};
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"Date "_s), QStringList{u"1: 7200,1296 10b Date 12/31/2026"_s});
}

TEST_F(NXPrintTest, GoodsStandByTheirOwnLength) {
    fgItems.SetRows(2);
    SetItem(1, {u"1250"_s, u"Gravel"_s, u"$100.00"_s, u"$125,000.00"_s});
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u",7056 "_s),
              (QStringList{u"1: 824,7056 10b 1250"_s, u"1: 8866,7056 10b $100.00"_s,
                           u"1: 10420,7056 10b $125,000.00"_s, u"1: 3312,7056 10b Gravel"_s}));
}

TEST_F(NXPrintTest, LongDescriptionIsWrappedAndTheNextLineOfGoodsComesBelowIt) {
    SetItem(1, {u"3"_s, u"Crushed gravel for drives and paths, washed and sieved"_s, u"$4.10"_s,
                u"$12.30"_s});
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts().mid(30, 9),
              (QStringList{u"1: 1124,7056 10b 3"_s, u"1: 8966,7056 10b $4.10"_s,
                           u"1: 10920,7056 10b $12.30"_s,
                           u"1: 3312,7056 10b Crushed gravel for drives and paths,"_s,
                           u"1: 3312,7296 10b washed and sieved"_s, u"1: 1124,7536 10b 1"_s,
                           u"1: 8966,7536 10b $2.35"_s, u"1: 11020,7536 10b $2.35"_s,
                           u"1: 3312,7536 10b Sand"_s}));
}

TEST_F(NXPrintTest, DescriptionBreaksAtTheLastBlankWithinItsBoxLessTwentyTwips) {
    // With its blank the first word takes 4,200 twips, and the limit is 4,228.
    const QString word(41, u'a');
    SetItem(1, {u"3"_s, word + u" bb cc"_s, u"$4.10"_s, u"$12.30"_s});
    SetItem(2, {u"1"_s, u"aa "_s + word.left(39) + u" cc"_s, u"$2.35"_s, u"$2.35"_s});
    PrintPrepared(Filled());
    EXPECT_EQ(
        TextsWith(u": 3312,"_s),
        (QStringList{u"1: 3312,7056 10b "_s + word, u"1: 3312,7296 10b bb cc"_s,
                     u"1: 3312,7536 10b aa"_s, u"1: 3312,7776 10b "_s + word.left(39) + u" cc"_s}));
}

TEST_F(NXPrintTest, DescriptionOfMoreThanTwoLinesIsCut) {
    SetItem(1, {u"3"_s,
                u"Crushed gravel for drives and paths, washed and sieved, in sacks of forty "
                "pounds or loose by the ton"_s,
                u"$4.10"_s, u"$12.30"_s});
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u": 3312,"_s),
              (QStringList{u"1: 3312,7056 10b Crushed gravel for drives and paths,"_s,
                           u"1: 3312,7296 10b washed and sieved, in sacks of forty"_s,
                           u"1: 3312,7536 10b Sand"_s}));
}

TEST_F(NXPrintTest, EmptyLineOfGoodsTakesItsPlace) {
    SetItem(1, {QString(), QString(), QString(), QString()});
    PrintPrepared(Filled());
    EXPECT_TRUE(TextsWith(u",7056 "_s).isEmpty());
    EXPECT_EQ(TextsWith(u"Sand"_s), QStringList{u"1: 3312,7296 10b Sand"_s});
}

TEST_F(NXPrintTest, InvoiceWithoutGoodsHasItsTotals) {
    fgItems.SetRows(1);
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(), AllOnPage(1, {form, remittance, soldTo, deliveredTo, totals}));
}

TEST_F(NXPrintTest, FourteenLinesOfGoodsAndTheTotalsFitOnOnePage) {
    SetManyItems(14);
    PrintPrepared(Filled());
    EXPECT_EQ(ProductPlaces().last(), u"1: 10176 Product 14"_s);
    EXPECT_EQ(PageOf(u"Sub-Total"_s), 1);
    EXPECT_EQ(printer.Boxes.size(), 1U);
}

TEST_F(NXPrintTest, FifteenLinesOfGoodsSendTheTotalsToAPageOfTheirOwn) {
    SetManyItems(15);
    PrintPrepared(Filled());
    EXPECT_EQ(ProductPlaces().last(), u"1: 10416 Product 15"_s);
    QStringList secondPage = AllOnPage(2, {form, columnHeadings, remittance, soldTo, totals});
    secondPage.replaceInStrings(u"Page 1"_s, u"Page 2"_s);
    EXPECT_EQ(TextsOfPage(2), secondPage);
}

TEST_F(NXPrintTest, NineteenLinesOfGoodsAreFollowedByTheTotalsOnTheSecondPage) {
    SetManyItems(19);
    PrintPrepared(Filled());
    EXPECT_EQ(ProductPlaces().last(), u"1: 11376 Product 19"_s);
    EXPECT_EQ(PageOf(u"Sub-Total"_s), 2);
    EXPECT_EQ(printer.Boxes.size(), 2U);
}

TEST_F(NXPrintTest, TwentyLinesFillThePageAndNoThirdPageFollows) {
    SetManyItems(20);
    PrintPrepared(Filled());
    EXPECT_EQ(ProductPlaces().last(), u"1: 11616 Product 20"_s);
    EXPECT_EQ(PageOf(u"Sub-Total"_s), 2);
    EXPECT_EQ(printer.Boxes.size(), 2U);
}

TEST_F(NXPrintTest, LinesThatDoNotFitGoOnOnThreePagesAndTheTotalsAreOnTheLast) {
    SetManyItems(45);
    PrintPrepared(Filled());
    const QStringList places = ProductPlaces();
    ASSERT_EQ(places.size(), 45);
    EXPECT_EQ(places[0], u"1: 7056 Product 1"_s);
    EXPECT_EQ(places[19], u"1: 11616 Product 20"_s);
    EXPECT_EQ(places[20], u"2: 7056 Product 21"_s);
    EXPECT_EQ(places[39], u"2: 11616 Product 40"_s);
    EXPECT_EQ(places[40], u"3: 7056 Product 41"_s);
    EXPECT_EQ(places[44], u"3: 8016 Product 45"_s);
    EXPECT_EQ(TextsOfPage(1).size(), 8 + 10 + 5 + 7 + 20 * 4);
    EXPECT_EQ(TextsOfPage(2).size(), 8 + 4 + 10 + 5 + 20 * 4);
    EXPECT_EQ(TextsOfPage(3).last(10), AllOnPage(3, {totals}));
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(NXPrintTest, LaterPagesRepeatTheFormTheRemittanceBlockAndTheSoldToAddressAlone) {
    settings.optReturn = true;
    settings.logo = {nullptr, 1440, 1440};
    SetManyItems(45);
    PrintPrepared(Filled());
    for (const int page : {2, 3}) {
        QStringList head = AllOnPage(page, {form, columnHeadings, remittance, soldTo});
        head.replaceInStrings(u"Page 1"_s, u"Page "_s + QString::number(page));
        EXPECT_EQ(TextsOfPage(page).first(27), head);
    }
    EXPECT_EQ(DrawnLines(),
              RulesOf(1, u"112233"_s) + RulesOf(2, u"112233"_s) + RulesOf(3, u"112233"_s));
    EXPECT_EQ(printer.Boxes.size(), 3U);
    EXPECT_EQ(printer.Pictures.size(), 3U);
    for (const QString& once : {u"DELIVERED TO:"_s, u"Flatbed Truck"_s, u"Sheduled for"_s,
                                u"Detach Here"_s, u"Sub-Total"_s, u"from "_s})
        EXPECT_EQ(TextsWith(once).size(), 1) << once.toStdString();
    EXPECT_EQ(TextsWith(u"Vehicle"_s).size(), 3);
}

TEST_F(NXPrintTest, GoodsOfLaterPagesAreBoldEvenWithARemittanceSlip) {
    settings.optReturn = true;
    SetManyItems(21);
    PrintPrepared(Filled());
    EXPECT_FALSE(printer.Find(u"Product 20"_s).bold);
    EXPECT_TRUE(printer.Find(u"Product 21"_s).bold);
}

TEST_F(NXPrintTest, PageNumberRisesAndStartsAnewWithTheNextJob) {
    SetManyItems(45);
    PrintPrepared(Filled());
    printer.EndJob();
    PrintPrepared(Filled());
    QStringList pages;
    for (const auto& text : printer.Texts) {
        if (text.text.startsWith(u"Page "_s))
            pages += text.text;
    }
    EXPECT_EQ(pages, (QStringList{u"Page 1"_s, u"Page 2"_s, u"Page 3"_s, u"Page 1"_s, u"Page 2"_s,
                                  u"Page 3"_s}));
}

TEST_F(NXPrintTest, WrappedDescriptionsFillThePageSooner) {
    SetManyItems(12);
    for (int row = 1; row <= 12; ++row)
        fgItems.SetText(row, 1,
                        u"Product %1 in sacks of forty pounds, or loose by the ton"_s.arg(row));
    PrintPrepared(Filled());
    const QStringList places = ProductPlaces();
    ASSERT_EQ(places.size(), 12);
    EXPECT_TRUE(places[9].startsWith(u"1: 11376 Product 10 "_s));
    EXPECT_TRUE(places[10].startsWith(u"2: 7056 Product 11 "_s));
}

TEST_F(NXPrintTest, LineThatReachesTheLimitToTheTwipStartsANewPage) {
    OddPrinter odd;
    SetManyItems(20);
    // 17 lines end at 11,612, and one more would end at 11,880.
    odd.LineHeight = 268;
    PrintOn(odd);
    EXPECT_EQ(odd.Find(u"Product 17"_s).page, 1);
    EXPECT_EQ(odd.Find(u"Product 18"_s).page, 2);
}

TEST_F(NXPrintTest, LineThatEndsAboveTheLimitStaysOnThePage) {
    OddPrinter odd;
    SetManyItems(20);
    odd.LineHeight = 267;
    PrintOn(odd);
    EXPECT_EQ(odd.Find(u"Product 18"_s).page, 1);
    EXPECT_EQ(odd.Find(u"Product 19"_s).page, 2);
}

TEST_F(NXPrintTest, GoodsThatEndAtTheTotalsLimitToTheTwipSendThemToANewPage) {
    OddPrinter odd;
    SetManyItems(12);
    // 12 lines end at 10,440.
    odd.LineHeight = 282;
    PrintOn(odd);
    EXPECT_EQ(odd.Find(u"Product 12"_s).page, 1);
    EXPECT_EQ(odd.Find(u"Sub-Total"_s).page, 2);
}

TEST_F(NXPrintTest, GoodsThatEndAboveTheTotalsLimitKeepThemOnThePage) {
    OddPrinter odd;
    SetManyItems(12);
    odd.LineHeight = 281;
    PrintOn(odd);
    EXPECT_EQ(odd.Find(u"Sub-Total"_s).page, 1);
    EXPECT_EQ(odd.Boxes.size(), 1U);
}

TEST_F(NXPrintTest, LettersTooHighForThePageGoToTheNextAndAreStillPrinted) {
    OddPrinter odd;
    SetManyItems(1);
    odd.LineHeight = 5000;
    PrintOn(odd);
    EXPECT_EQ(odd.Find(u"Product 1"_s).page, 2);
    EXPECT_EQ(odd.Find(u"Sub-Total"_s).page, 3);
}

TEST_F(NXPrintTest, TaxOfZeroLeavesItsHeadingWithoutAnAmount) {
    slip.lblTax1 = u"$0.00"_s;
    slip.lblTax2 = u"0"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u",12672 "_s), QStringList{u"1: 8064,12672 10b State Tax"_s});
    EXPECT_EQ(TextsWith(u",13032 "_s), QStringList{u"1: 8064,13032 10b City Tax"_s});
}

TEST_F(NXPrintTest, TaxThatRoundsToZeroIsNotPrinted) {
    slip.lblTax1 = u"0.004"_s;
    slip.lblTax2 = u"0.005"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u",12672 "_s), QStringList{u"1: 8064,12672 10b State Tax"_s});
    EXPECT_EQ(TextsWith(u",13032 "_s),
              (QStringList{u"1: 8064,13032 10b City Tax"_s, u"1: 11020,13032 10b $0.01"_s}));
}

TEST_F(NXPrintTest, ChargeAndTotalsOfZeroArePrinted) {
    for (QString* amount :
         {&slip.lblTotal, &slip.lblTax1, &slip.lblTax2, &slip.lblCharge, &slip.lblGrandtotal})
        *amount = u"$0.00"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"$0.00"_s),
              (QStringList{u"1: 11020,12312 10b $0.00"_s, u"1: 11020,13392 10b $0.00"_s,
                           u"1: 10920,14112 12b $0.00"_s}));
}

TEST_F(NXPrintTest, TaxThatIsNotAppliedHasNoHeadingButAnAmountThatItStillHolds) {
    settings.ckApply1stTax = 0;
    settings.ckApply2ndTax = 0;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"Tax "_s), QStringList{u"1: 1080,2208 10 Tax 99"_s});
    EXPECT_TRUE(TextsWith(u"City Tax"_s).isEmpty());
    EXPECT_EQ(TextsWith(u",12672 "_s), QStringList{u"1: 11020,12672 10b $0.92"_s});
    EXPECT_EQ(TextsWith(u",13032 "_s), QStringList{u"1: 11020,13032 10b $0.22"_s});
}

TEST_F(NXPrintTest, EachTaxHasItsHeadingByItsOwnSetting) {
    settings.ckApply1stTax = 0;
    PrintPrepared(Filled());
    EXPECT_TRUE(TextsWith(u"State Tax"_s).isEmpty());
    EXPECT_EQ(TextsWith(u"City Tax"_s), QStringList{u"1: 8064,13032 10b City Tax"_s});
}

TEST_F(NXPrintTest, CaptionsThatArePlainNumbersArePrintedAsAmounts) {
    slip.lblTotal = u"1234.5"_s;
    slip.lblTax1 = u"0.915625"_s;
    slip.lblTax2 = u"12"_s;
    slip.lblGrandtotal = u"1252.415625"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts().last(5),
              (QStringList{u"1: 10620,12312 10b $1,234.50"_s, u"1: 11020,12672 10b $0.92"_s,
                           u"1: 10920,13032 10b $12.00"_s, u"1: 11020,13392 10b $5.00"_s,
                           u"1: 10440,14112 12b $1,252.42"_s}));
}

TEST_F(NXPrintTest, CaptionThatIsNoAmountEndsTheTotalsAboveIt) {
    slip.lblTax2 = u"none"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(),
              AllOnPage(1, {form, remittance, soldTo, deliveredTo, goods, totals.first(7)}));
    EXPECT_EQ(printer.DrawWidth, 1);
}

TEST_F(NXPrintTest, EmptyCaptionIsNoAmount) {
    slip.lblTotal.clear();
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(),
              AllOnPage(1, {form, remittance, soldTo, deliveredTo, goods, totals.first(5)}));
}

TEST_F(NXPrintTest, TotalsAloneFailAtACaptionThatIsNoAmount) {
    slip.lblGrandtotal = u"much"_s;
    const RuntimeFailure failure = FailureOf([&] { invoices.PrintInvoiceTotals(slip, {}); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_TRUE(failure.Sentence().contains(u"the grand total"_s)) << failure.what();
}

TEST_F(NXPrintTest, FooterStandsBelowTheTotalsInGreenOrWithoutColourInBlack) {
    invoices.PrintInvoiceTotals(slip, u"Thank you"_s);
    EXPECT_EQ(DrawnTexts().last(), u"1: 1872,13824 12b Thank you"_s);
    EXPECT_EQ(printer.Texts.back().color, 0U);
    settings.ckColor = 1;
    invoices.PrintInvoiceTotals(slip, u"Thank you"_s);
    EXPECT_EQ(DrawnTexts().last(), u"1: 1872,13824 12b Thank you"_s);
    EXPECT_EQ(printer.Texts.back().color, green);
    EXPECT_EQ(printer.ForeColor, green);
}

TEST_F(NXPrintTest, GrandTotalIsRedOnlyInColour) {
    settings.ckColor = 1;
    PrintPrepared(Filled());
    EXPECT_EQ(printer.Find(u"$20.79"_s).color, red);
    settings.ckColor = 0;
    printer.Texts.clear();
    PrintPrepared(Filled());
    EXPECT_EQ(printer.Find(u"$20.79"_s).color, 0U);
}

TEST_F(NXPrintTest, DatesAndAmountsAreInTheFormOfTheRegion) {
    UseLocale("de_DE");
    slip.lblTotal = u"1.234,5"_s;
    slip.lblTax1 = u"0,915625"_s;
    slip.lblTax2 = u"0,00 €"_s;
    slip.lblCharge = u"5,00 €"_s;
    slip.lblGrandtotal = u"1.240,42 €"_s;
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"Date "_s), QStringList{u"1: 7200,1296 10b Date 09.03.2026"_s});
    EXPECT_EQ(TextsWith(u"Sheduled"_s),
              QStringList{u"1: 9072,6192 10b Sheduled for - 16.03.2026"_s});
    EXPECT_EQ(DrawnTexts().last(4),
              (QStringList{u"1: 10520,12312 10b 1.234,50\u00a0€"_s,
                           u"1: 10920,12672 10b 0,92\u00a0€"_s, u"1: 10920,13392 10b 5,00\u00a0€"_s,
                           u"1: 10320,14112 12b 1.240,42\u00a0€"_s}));
}

TEST_F(NXPrintTest, StepThatFailsAtAnyOfItsTextsIsLeftThereAndTheNextOneRuns) {
    const QList<QStringList> steps = {form, remittance, soldTo, deliveredTo, goods, totals};
    int lost = 0;
    for (int failing = 0; failing < steps.size(); ++failing) {
        for (int text = 0; text < steps[failing].size(); ++text) {
            OddPrinter odd;
            odd.LostText = ++lost;
            PrintOn(odd);
            QList<QStringList> printed = steps;
            printed[failing] = steps[failing].first(text);
            printer.Texts = odd.Texts;
            EXPECT_EQ(DrawnTexts(), AllOnPage(1, printed)) << "Text " << lost;
            EXPECT_EQ(odd.DrawWidth, 1);
            EXPECT_EQ(odd.Jobs, 0);
            EXPECT_EQ(odd.AbandonedJobs, 0);
        }
    }
    EXPECT_EQ(lost, 48);
}

TEST_F(NXPrintTest, FormThatFailsAtItsFirstRuleIsPassedOver) {
    printer.FailingBox = 1;
    PrintPrepared(Filled());
    EXPECT_EQ(DrawnTexts(), AllOnPage(1, {remittance, soldTo, deliveredTo, goods, totals}));
    EXPECT_TRUE(printer.Lines.empty());
}

TEST_F(NXPrintTest, FormOfALaterPageThatFailsEndsTheGoodsAndTheTotalsComeOnThatPage) {
    SetManyItems(45);
    printer.FailingBox = 2;
    PrintPrepared(Filled());
    EXPECT_EQ(ProductPlaces().size(), 20);
    EXPECT_EQ(TextsOfPage(2), AllOnPage(2, {totals}));
}

TEST_F(NXPrintTest, PrinterThatDiesForTextsStillGetsTheRulesOfABlankInvoice) {
    printer.FailingText = 10;
    PrintPrepared(Blank());
    EXPECT_EQ(DrawnTexts(), AllOnPage(1, {form, remittance.first(1)}));
    EXPECT_EQ(DrawnLines().last(10), BlankRules());
}

TEST_F(NXPrintTest, CancelledPrintIsPassedOverLikeAnyFailure) {
    printer.FailingText = 1;
    printer.FailsAsCancelled = true;
    PrintPrepared(Filled());
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s));
}

TEST_F(NXPrintTest, StepsAloneFailAsThePrinterFails) {
    printer.FailingText = 1;
    EXPECT_EQ(FailureOf([&] { invoices.PrintInvoiceForm(u"INVOICE"_s); }).Kind(),
              FailureKind::PrinterFailure);
    EXPECT_EQ(FailureOf([&] { invoices.PrintRemittanceBlock({}, {}, clock.Date); }).Kind(),
              FailureKind::PrinterFailure);
    EXPECT_EQ(FailureOf([&] { invoices.PrintDetachLine(); }).Kind(), FailureKind::PrinterFailure);
    EXPECT_EQ(FailureOf([&] { invoices.PrintSoldTo(slip.lblCustomer); }).Kind(),
              FailureKind::PrinterFailure);
    EXPECT_EQ(FailureOf([&] { invoices.PrintInvoiceLines(Filled()); }).Kind(),
              FailureKind::PrinterFailure);
}

TEST_F(NXPrintTest, OneInvoiceAfterAnotherIsTheSameOnPaper) {
    settings.ckColor = 1;
    PrintPrepared(Filled());
    const QStringList first = DrawnTexts();
    printer.EndJob();
    printer.Texts.clear();
    printer.Lines.clear();
    invoices.PrintInvoice(Filled());
    EXPECT_EQ(DrawnTexts(), first);
    EXPECT_EQ(DrawnLines(), RulesOf(1, u"112233"_s));
    EXPECT_EQ(TextsNotIn(blue).size(), 6);
}

TEST_F(NXPrintTest, AccentsAndOtherScriptsArePrintedAsTheyStand) {
    slip.lblCustomer[0] = u"Café Łódź"_s;
    SetItem(1, {u"3"_s, u"Kies für Wege 砂利"_s, u"$4.10"_s, u"$12.30"_s});
    PrintPrepared(Filled());
    EXPECT_EQ(TextsWith(u"Café"_s), QStringList{u"1: 1080,3048 10b Café Łódź"_s});
    EXPECT_EQ(TextsWith(u"Kies"_s), QStringList{u"1: 3312,7056 10b Kies für Wege 砂利"_s});
}
