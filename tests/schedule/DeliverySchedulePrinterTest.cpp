#include "schedule/DeliverySchedulePrinter.h"

#include "schedule/ScheduleTest.h"

using namespace Qt::StringLiterals;

// The recording printer's characters are 150 twips wide and 360 high at size 15, 100 and 240 at
// size 10. So a page's head takes the first 2880 twips, and a delivery without apartments 2160
// and 240 for each line of goods.

class DeliverySchedulePrinterTest : public ScheduleTest {
protected:
    DeliverySchedulePrinterTest() {
        office.settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    }

    static SampleSlip SlipWithoutApartments(const QString& number, const QString& time,
                                            int itemLines) {
        SampleSlip slip{.number = number};
        slip.time = time;
        slip.soldTo[2].clear();
        slip.shipTo[2].clear();
        slip.itemCount = QString::number(itemLines);
        slip.itemLines.clear();
        for (int line = 1; line <= itemLines; ++line)
            slip.itemLines += {u"1"_s, u"Product %1"_s.arg(line), u"$2.00"_s, u"$2.00"_s};
        return slip;
    }

    void Print() { office.boardPrinting.Print({.ckPrintWorkSchedule = true}, {}); }

    void PrintAll() {
        board.SelectAll();
        Print();
    }

    void ExpectPrintError() {
        user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    }

    QStringList TextsOfPage(int page) const {
        return DrawnTexts().filter(QString::number(page) + u": "_s);
    }

    /// The texts drawn whose wording or place contains these words.
    QStringList TextsWith(const QString& words) const { return DrawnTexts().filter(words); }

    const QStringList head = {u"1: 4620,360 15 SCHEDULED DELIVERIES"_s,
                              u"1: 10170,720 15 3/16/2026"_s,
                              u"1: 9570,1080 15 Flatbed Truck"_s,
                              u"1: 1440,1080 15 Tessel Gravel"_s,
                              u"1: 1440,1440 10 1 Quarry Road   Building 2"_s,
                              u"1: 1440,1680 10 Springfield, IL. 62701"_s,
                              u"1: 1440,1920 10 Tel No 555-0100"_s,
                              u"1: 1440,2400 10 SOLD TO"_s,
                              u"1: 5760,2400 10 SHIP TO"_s,
                              u"1: 8280,2400 10 DELIVERY CHARGE"_s};

    const QStringList firstEntry = {
        u"1: 1440,2880 10b 08:30am"_s,
        u"1: 1440,3120 10b 4471"_s,
        u"1: 1440,3360 10b Corner Grocery"_s,
        u"1: 5760,3360 10b Grocery Depot"_s,
        u"1: 9220,3360 10b $0.00"_s,
        u"1: 1440,3600 10b 12 Hill Street"_s,
        u"1: 5760,3600 10b 9 Mill Lane"_s,
        u"1: 1440,3840 10b Apt 3"_s,
        u"1: 5760,3840 10b Dock B"_s,
        u"1: 1440,4080 10b Springfield, IL 62701"_s,
        u"1: 5760,4080 10b Decatur, IN 46733"_s,
        u"1: 1440,4560 10b UNITS"_s,
        u"1: 3600,4560 10b PRODUCT"_s,
        u"1: 7200,4560 10b UNIT COST"_s,
        u"1: 10080,4560 10b EXTENSION"_s,
        u"1: 1916,4800 10 3"_s,
        u"1: 3600,4800 10 Gravel"_s,
        u"1: 7420,4800 10 $4.10"_s,
        u"1: 10632,4800 10 $12.30"_s,
        u"1: 1916,5040 10 1"_s,
        u"1: 3600,5040 10 Sand"_s,
        u"1: 7420,5040 10 $2.35"_s,
        u"1: 10732,5040 10 $2.35"_s,
    };
};

TEST_F(DeliverySchedulePrinterTest, PageHasItsHeadAndABlockForTheDelivery) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnTexts(), head + firstEntry);
    EXPECT_EQ(DrawnLines(), (QStringList{u"1: 1440,2640 - 11520,2640 000000"_s,
                                         u"1: 1440,5520 - 11520,5520 000000"_s}));
    EXPECT_TRUE(printer.Boxes.empty());
    EXPECT_TRUE(printer.FilledBoxes.empty());
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.AbandonedJobs, 0);
}

TEST_F(DeliverySchedulePrinterTest, AllTextIsInTheMisspeltFontInBlack) {
    office.settings.ckColor = 1;
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(printer.Texts.size(), 33U);
    for (const auto& text : printer.Texts) {
        EXPECT_EQ(text.fontName, u"Ariel"_s);
        EXPECT_EQ(text.color, 0U);
        EXPECT_FALSE(text.underline);
    }
}

TEST_F(DeliverySchedulePrinterTest, RulesAreInTheColourLastChosen) {
    office.settings.ckColor = 1;
    office.settings.BorderColor = 0x0000ff;
    office.printer.SetPrintColor(PrintColor::Border);
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnLines(), (QStringList{u"1: 1440,2640 - 11520,2640 0000ff"_s,
                                         u"1: 1440,5520 - 11520,5520 0000ff"_s}));
}

TEST_F(DeliverySchedulePrinterTest, RulesAreInTheBorderColourAsLoadedEvenWithoutColourPrinting) {
    folder.Write(u"PrintColors.txt"_s, "65280\r\n255\r\n\"Arial\"\r\n#FALSE#\r\n3\r\n");
    office.settingsStore.LoadPrintColors();
    EXPECT_EQ(office.settings.ckColor, 0);
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnLines(), (QStringList{u"1: 1440,2640 - 11520,2640 00ff00"_s,
                                         u"1: 1440,5520 - 11520,5520 00ff00"_s}));
}

TEST_F(DeliverySchedulePrinterTest, BusinessWithoutDataLeavesTheMarksBetweenItsParts) {
    office.settings.BusinessData.fill({});
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(TextsWith(u": 1440,1"_s),
              (QStringList{u"1: 1440,1440 10    "_s, u"1: 1440,1680 10 , . "_s,
                           u"1: 1440,1920 10 Tel No "_s}));
}

TEST_F(DeliverySchedulePrinterTest, AddressStyleChangesNothing) {
    office.settings.cmdAddress = u"International Style Address"_s;
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnTexts(), head + firstEntry);
}

TEST_F(DeliverySchedulePrinterTest, JobIsNamedByDateAndVehicle) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(printer.JobName, u"Delivery schedule 2026-03-16 Flatbed Truck"_s);
}

TEST_F(DeliverySchedulePrinterTest, TwoSlipsOfOneCustomerPrintEachItsOwnCharge) {
    StoreSlip({.number = u"1"_s, .time = u"07:00am"_s});
    StoreSlip({.number = u"2"_s, .time = u"01:00pm"_s});
    OpenBoard();
    board.fgSchedule.SetText(1, int(ScheduleColumn::DeliveryCharge), u"$7.00"_s);
    board.fgSchedule.SetText(2, int(ScheduleColumn::DeliveryCharge), u"$1.50"_s);
    board.ToggleMark(1);
    Print();
    EXPECT_EQ(TextsWith(u": 9220,"_s),
              (QStringList{u"1: 9220,3360 10b $7.00"_s, u"1: 9220,6240 10b $1.50"_s}));
}

TEST_F(DeliverySchedulePrinterTest, BlocksComeInTimeOrder) {
    StoreSlip({.number = u"1"_s, .customer = u"Afternoon Bakery"_s, .time = u"01:00pm"_s});
    StoreSlip({.number = u"2"_s, .customer = u"Morning Dairy"_s, .time = u"07.15am"_s});
    StoreSlip({.number = u"3"_s, .customer = u"Noon Florist"_s, .time = u"11:45am"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(TextsWith(u"07.15am"_s), QStringList{u"1: 1440,2880 10b 07.15am"_s});
    EXPECT_EQ(TextsWith(u"11:45am"_s), QStringList{u"1: 1440,5760 10b 11:45am"_s});
    EXPECT_EQ(TextsWith(u"01:00pm"_s), QStringList{u"1: 1440,8640 10b 01:00pm"_s});
}

TEST_F(DeliverySchedulePrinterTest, DeliveryWithoutAMarkIsNotPrinted) {
    StoreSlip({.number = u"1"_s, .customer = u"Afternoon Bakery"_s, .time = u"01:00pm"_s});
    StoreSlip({.number = u"2"_s, .customer = u"Morning Dairy"_s, .time = u"07.15am"_s});
    OpenBoard();
    board.ToggleMark(2);
    Print();
    EXPECT_EQ(TextsWith(u"10b 01:00pm"_s), QStringList{u"1: 1440,2880 10b 01:00pm"_s});
    EXPECT_TRUE(TextsWith(u"07.15am"_s).isEmpty());
}

TEST_F(DeliverySchedulePrinterTest, OneMarkPrintsEverySlipOfTheCustomerMarkedOrNot) {
    StoreSlip({.number = u"1"_s, .time = u"01:00pm"_s});
    StoreSlip({.number = u"2"_s, .time = u"07:00am"_s});
    OpenBoard();
    board.ToggleMark(2);
    Print();
    EXPECT_EQ(TextsWith(u"10b 07:00am"_s), QStringList{u"1: 1440,2880 10b 07:00am"_s});
    EXPECT_EQ(TextsWith(u"10b 01:00pm"_s), QStringList{u"1: 1440,5760 10b 01:00pm"_s});
}

TEST_F(DeliverySchedulePrinterTest, TwoMarkedSlipsOfOneCustomerArePrintedOnceForEachMark) {
    StoreSlip({.number = u"1"_s, .time = u"01:00pm"_s});
    StoreSlip({.number = u"2"_s, .time = u"07:00am"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(TextsWith(u"10b 07:00am"_s),
              (QStringList{u"1: 1440,2880 10b 07:00am"_s, u"1: 1440,8640 10b 07:00am"_s}));
    EXPECT_EQ(TextsWith(u"10b 01:00pm"_s),
              (QStringList{u"1: 1440,5760 10b 01:00pm"_s, u"1: 1440,11520 10b 01:00pm"_s}));
}

TEST_F(DeliverySchedulePrinterTest, ChargeIsThatOfTheGridAndEndsAtItsPlace) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.txtDeliveryCharge = u"1250.5"_s;
    ASSERT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::Entered);
    PrintAll();
    EXPECT_EQ(TextsWith(u"$1,250.50"_s), QStringList{u"1: 8820,3360 10b $1,250.50"_s});
}

TEST_F(DeliverySchedulePrinterTest, DeliveryWithoutShipToPrintsTheSoldToSideAlone) {
    SampleSlip slip{.number = u"20260014"_s};
    slip.soldTo[2].clear();
    slip.shipTo = {u""_s, u""_s, u""_s, u""_s, u""_s, u""_s};
    StoreSlip(slip);
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnTexts().mid(12, 6),
              (QStringList{u"1: 1440,3360 10b Corner Grocery"_s, u"1: 9220,3360 10b $0.00"_s,
                           u"1: 1440,3600 10b 12 Hill Street"_s,
                           u"1: 1440,3840 10b Springfield, IL 62701"_s, u"1: 5760,3840 10b ,  "_s,
                           u"1: 1440,4320 10b UNITS"_s}));
}

TEST_F(DeliverySchedulePrinterTest, ApartmentOnEitherSideTakesALine) {
    SampleSlip slip{.number = u"20260014"_s};
    slip.soldTo[2].clear();
    StoreSlip(slip);
    OpenBoard();
    PrintAll();
    EXPECT_EQ(TextsWith(u",3840 "_s), QStringList{u"1: 5760,3840 10b Dock B"_s});
    EXPECT_EQ(TextsWith(u"10b UNITS"_s), QStringList{u"1: 1440,4560 10b UNITS"_s});

    slip.soldTo[2] = u"Apt 3"_s;
    slip.shipTo[2].clear();
    StoreSlip(slip);
    printer.Texts.clear();
    Print();
    EXPECT_EQ(TextsWith(u",3840 "_s), QStringList{u"1: 1440,3840 10b Apt 3"_s});
    EXPECT_EQ(TextsWith(u"10b UNITS"_s), QStringList{u"1: 1440,4560 10b UNITS"_s});
}

TEST_F(DeliverySchedulePrinterTest, EmptyTimeAndAccountStillTakeTheirLines) {
    StoreSlip({.number = u"20260014"_s, .time = u""_s, .account = u""_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnTexts().mid(10, 1), QStringList{u"1: 1440,3360 10b Corner Grocery"_s});
}

TEST_F(DeliverySchedulePrinterTest, DeliveryWithoutGoodsHasTheHeadingsAlone) {
    StoreSlip(SlipWithoutApartments(u"1"_s, u"08:00am"_s, 0));
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnTexts().last(), u"1: 10080,4320 10b EXTENSION"_s);
    EXPECT_EQ(DrawnLines().last(), u"1: 1440,4800 - 11520,4800 000000"_s);
}

TEST_F(DeliverySchedulePrinterTest, GoodsAreRightAlignedByTheirOwnLength) {
    SampleSlip slip = SlipWithoutApartments(u"1"_s, u"08:00am"_s, 1);
    slip.itemLines = {u"1250"_s, u"Gravel"_s, u"$100.00"_s, u"$99999.00"_s};
    StoreSlip(slip);
    OpenBoard();
    PrintAll();
    EXPECT_EQ(TextsWith(u",4560 "_s),
              (QStringList{u"1: 1616,4560 10 1250"_s, u"1: 3600,4560 10 Gravel"_s,
                           u"1: 7220,4560 10 $100.00"_s, u"1: 10332,4560 10 $99999.00"_s}));
}

TEST_F(DeliverySchedulePrinterTest, BlockThatEndsThreeLinesAboveTheBottomIsFollowedByANewPage) {
    // 2880 + 2160 + 42 * 240 = 15120, and three lines below that the paper ends.
    StoreSlip(SlipWithoutApartments(u"1"_s, u"08:00am"_s, 42));
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnLines(), (QStringList{u"1: 1440,2640 - 11520,2640 000000"_s,
                                         u"1: 1440,14880 - 11520,14880 000000"_s,
                                         u"2: 1440,2640 - 11520,2640 000000"_s}));
    ASSERT_EQ(TextsOfPage(2).size(), 10);
    EXPECT_EQ(TextsOfPage(2).first(), u"2: 4620,360 15 SCHEDULED DELIVERIES"_s);
    EXPECT_EQ(TextsOfPage(2).last(), u"2: 8280,2400 10 DELIVERY CHARGE"_s);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(DeliverySchedulePrinterTest, BlockThatEndsFourLinesAboveTheBottomEndsThePrint) {
    StoreSlip(SlipWithoutApartments(u"1"_s, u"08:00am"_s, 41));
    OpenBoard();
    PrintAll();
    EXPECT_EQ(DrawnLines().last(), u"1: 1440,14640 - 11520,14640 000000"_s);
    EXPECT_TRUE(TextsOfPage(2).isEmpty());
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(DeliverySchedulePrinterTest, GoodsHeadingsMoveToANewPageWhenTheAddressEndsNearTheBottom) {
    // The second block starts at 2880 + 2160 + 37 * 240 = 13920; its addresses end at 15120.
    StoreSlip(SlipWithoutApartments(u"1"_s, u"08:00am"_s, 37));
    StoreSlip(SlipWithoutApartments(u"2"_s, u"09:00am"_s, 1));
    OpenBoard();
    board.fgSchedule.SetText(2, int(ScheduleColumn::Customer), u"Other"_s);
    PrintAll();
    EXPECT_EQ(TextsWith(u"09:00am"_s), QStringList{u"1: 1440,13920 10b 09:00am"_s});
    EXPECT_EQ(TextsWith(u"1: 1440,14880 "_s),
              QStringList{u"1: 1440,14880 10b Springfield, IL 62701"_s});
    // The head of this page is bold, as the block is that it breaks.
    EXPECT_EQ(
        TextsOfPage(2),
        (QStringList{u"2: 4620,360 15b SCHEDULED DELIVERIES"_s, u"2: 10170,720 15b 3/16/2026"_s,
                     u"2: 9570,1080 15b Flatbed Truck"_s, u"2: 1440,1080 15b Tessel Gravel"_s,
                     u"2: 1440,1440 10b 1 Quarry Road   Building 2"_s,
                     u"2: 1440,1680 10b Springfield, IL. 62701"_s,
                     u"2: 1440,1920 10b Tel No 555-0100"_s, u"2: 1440,2400 10b SOLD TO"_s,
                     u"2: 5760,2400 10b SHIP TO"_s, u"2: 8280,2400 10b DELIVERY CHARGE"_s,
                     u"2: 1440,3120 10b UNITS"_s, u"2: 3600,3120 10b PRODUCT"_s,
                     u"2: 7200,3120 10b UNIT COST"_s, u"2: 10080,3120 10b EXTENSION"_s,
                     u"2: 1916,3360 10 1"_s, u"2: 3600,3360 10 Product 1"_s,
                     u"2: 7420,3360 10 $2.00"_s, u"2: 10732,3360 10 $2.00"_s}));
    EXPECT_EQ(DrawnLines().last(), u"2: 1440,3840 - 11520,3840 000000"_s);
}

TEST_F(DeliverySchedulePrinterTest, GoodsHeadingsStayWhenTheAddressEndsFourLinesAboveTheBottom) {
    // The second block starts at 13680; its addresses end at 14880.
    StoreSlip(SlipWithoutApartments(u"1"_s, u"08:00am"_s, 36));
    StoreSlip(SlipWithoutApartments(u"2"_s, u"09:00am"_s, 3));
    OpenBoard();
    board.fgSchedule.SetText(2, int(ScheduleColumn::Customer), u"Other"_s);
    PrintAll();
    EXPECT_EQ(TextsWith(u": 1440,15120 "_s), QStringList{u"1: 1440,15120 10b UNITS"_s});
    EXPECT_EQ(TextsWith(u",15360 10 Product"_s), QStringList{u"1: 3600,15360 10 Product 1"_s});
    EXPECT_EQ(TextsWith(u",15600 10 Product"_s), QStringList{u"1: 3600,15600 10 Product 2"_s});
    EXPECT_EQ(TextsWith(u"2: 3600,2880 "_s), QStringList{u"2: 3600,2880 10 Product 3"_s});
}

TEST_F(DeliverySchedulePrinterTest, GoodsThatWouldRunOffThePaperGoOnOnANewPage) {
    StoreSlip(SlipWithoutApartments(u"1"_s, u"08:00am"_s, 48));
    OpenBoard();
    PrintAll();
    EXPECT_EQ(TextsWith(u"Product 47"_s), QStringList{u"1: 3600,15600 10 Product 47"_s});
    EXPECT_EQ(TextsOfPage(2),
              (QStringList{u"2: 4620,360 15 SCHEDULED DELIVERIES"_s, u"2: 10170,720 15 3/16/2026"_s,
                           u"2: 9570,1080 15 Flatbed Truck"_s, u"2: 1440,1080 15 Tessel Gravel"_s,
                           u"2: 1440,1440 10 1 Quarry Road   Building 2"_s,
                           u"2: 1440,1680 10 Springfield, IL. 62701"_s,
                           u"2: 1440,1920 10 Tel No 555-0100"_s, u"2: 1440,2400 10 SOLD TO"_s,
                           u"2: 5760,2400 10 SHIP TO"_s, u"2: 8280,2400 10 DELIVERY CHARGE"_s,
                           u"2: 1916,2880 10 1"_s, u"2: 3600,2880 10 Product 48"_s,
                           u"2: 7420,2880 10 $2.00"_s, u"2: 10732,2880 10 $2.00"_s}));
    EXPECT_EQ(DrawnLines(), (QStringList{u"1: 1440,2640 - 11520,2640 000000"_s,
                                         u"2: 1440,2640 - 11520,2640 000000"_s,
                                         u"2: 1440,3360 - 11520,3360 000000"_s}));
}

TEST_F(DeliverySchedulePrinterTest, NoTextOfALongDayLeavesThePaper) {
    for (int slip = 1; slip <= 40; ++slip)
        StoreSlip(SlipWithoutApartments(QString::number(100 + slip), u"08:00am"_s, slip));
    OpenBoard();
    for (int row = 1; row <= 40; ++row)
        board.fgSchedule.SetText(row, int(ScheduleColumn::Customer), QString::number(row));
    PrintAll();
    int goods = 0;
    for (const auto& text : printer.Texts) {
        EXPECT_LE(text.y + 24.0 * text.fontSize, 15840) << text.text.toStdString();
        goods += text.text.startsWith("Product "_L1) ? 1 : 0;
    }
    // 1 + 2 + ... + 40
    EXPECT_EQ(goods, 820);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(DeliverySchedulePrinterTest, PanelHoldsTheLastSlipPrinted) {
    StoreSlip({.number = u"1"_s, .customer = u"Early"_s, .time = u"07:00am"_s, .account = u"11"_s});
    StoreSlip({.number = u"2"_s, .customer = u"Late"_s, .time = u"06:45pm"_s, .account = u"22"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    PrintAll();
    EXPECT_EQ(board.fraSlip.lblTime, u"06:45pm"_s);
    EXPECT_EQ(board.fraSlip.lblAcctNo, u"22"_s);
    EXPECT_EQ(board.fgItems.Text(2, 1), u"Sand"_s);
}

TEST_F(DeliverySchedulePrinterTest, HourglassShowsWhileTheScheduleIsPrinted) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    PrintAll();
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(DeliverySchedulePrinterTest, PrinterThatFailsAtAnyTextIsToldAndTheJobAbandoned) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    for (int failing = 1; failing <= 33; ++failing) {
        printer.Texts.clear();
        printer.FailingText = failing;
        user.BusyChanges.clear();
        ExpectPrintError();
        PrintAll();
        user.ExpectNothingLeft();
        EXPECT_EQ(printer.AbandonedJobs, failing);
        EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
    }
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(DeliverySchedulePrinterTest, PrintCancelledAtAnyTextIsPassedOverInSilence) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    printer.FailsAsCancelled = true;
    for (int failing = 1; failing <= 33; ++failing) {
        printer.Texts.clear();
        printer.FailingText = failing;
        user.BusyChanges.clear();
        PrintAll();
        EXPECT_EQ(printer.AbandonedJobs, failing);
        EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
    }
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(DeliverySchedulePrinterTest, PrinterThatFailsAtTheEndOfTheJobIsTold) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    printer.FailsAtEndOfJob = true;
    ExpectPrintError();
    PrintAll();
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(DeliverySchedulePrinterTest, PrintAfterAFailureIsWhole) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    printer.FailingText = 15;
    ExpectPrintError();
    PrintAll();
    printer.Texts.clear();
    printer.FailingText.reset();
    PrintAll();
    EXPECT_EQ(DrawnTexts(), head + firstEntry);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(DeliverySchedulePrinterTest, SlipWhoseFileHasGoneIsAPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    folder.Remove(HeaderName(u"20260014"_s));
    ExpectPrintError();
    PrintAll();
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(DeliverySchedulePrinterTest, ItemFileThatIsMissingOrBrokenIsAPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    folder.Remove(ItemName(u"20260014"_s));
    ExpectPrintError();
    PrintAll();
    folder.Write(ItemName(u"20260014"_s), "20260014\r\n2\r\n3\r\nGravel\r\n");
    ExpectPrintError();
    PrintAll();
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 2);
}

TEST_F(DeliverySchedulePrinterTest, ChargeInTheGridThatIsNoAmountIsAPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.fgSchedule.SetText(1, int(ScheduleColumn::DeliveryCharge), u"$"_s);
    ExpectPrintError();
    PrintAll();
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
}

TEST_F(DeliverySchedulePrinterTest, MarkedEmptyRowOfADayWithoutDeliveriesIsAPrintError) {
    OpenBoard();
    ExpectPrintError();
    PrintAll();
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
}
