#include "schedule/PrinterRoutines.h"

#include "schedule/PrintErrors.h"
#include "schedule/ScheduleTest.h"

using namespace Qt::StringLiterals;

class PrinterRoutinesTest : public ScheduleTest {
protected:
    PrinterRoutinesTest() {
        settings.BorderColor = 0x112233;
        settings.TextColor = 0x445566;
        settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    }

    LiveSettings& settings = office.settings;
    PrinterRoutines& routines = office.printer;
};

TEST_F(PrinterRoutinesTest, PreparingSetsOrientationAndColourMode) {
    routines.PreparePrinter(Orientation::Portrait, false);
    routines.PreparePrinter(Orientation::Landscape, true);
    EXPECT_EQ(printer.Orientations,
              (std::vector<Orientation>{Orientation::Portrait, Orientation::Landscape}));
    EXPECT_EQ(printer.Colors, (std::vector<bool>{false, true}));
}

TEST_F(PrinterRoutinesTest, PreparingSetsTheDocumentFontInBlackAndLeavesItsSize) {
    settings.DocumentFont = u"Courier"_s;
    printer.FontName = u"Other"_s;
    printer.FontSize = 17;
    printer.FontBold = true;
    printer.FontUnderline = true;
    printer.ForeColor = 0xff;
    routines.PreparePrinter(Orientation::Portrait, true);
    EXPECT_EQ(printer.FontName, u"Courier"_s);
    EXPECT_EQ(printer.FontSize, 17);
    EXPECT_FALSE(printer.FontBold);
    EXPECT_FALSE(printer.FontUnderline);
    EXPECT_EQ(printer.ForeColor, 0U);
}

// At size 10 a character is 100 twips wide.

TEST_F(PrinterRoutinesTest, PreparedLandscapePageIsCentredOnTheWidthOfAnUprightOne) {
    routines.PreparePrinter(Orientation::Landscape, false);
    printer.PrintCentred(u"abcd"_s);
    EXPECT_EQ(printer.Find(u"abcd"_s).x, 5920);
    EXPECT_EQ(printer.PageWidth(), 15840);
    EXPECT_EQ(printer.PageHeight(), 12240);
}

TEST_F(PrinterRoutinesTest, PreparedUprightPageIsCentredOnThePaper) {
    routines.PreparePrinter(Orientation::Portrait, false);
    printer.PrintCentred(u"abcd"_s);
    EXPECT_EQ(printer.Find(u"abcd"_s).x, 5920);
}

TEST_F(PrinterRoutinesTest, PagesBehindThePreparedOneAreCentredAlike) {
    routines.PreparePrinter(Orientation::Landscape, false);
    printer.NewPage();
    printer.PrintCentred(u"abcd"_s);
    EXPECT_EQ(printer.Find(u"abcd"_s).x, 5920);
}

TEST_F(PrinterRoutinesTest, PageThatIsOnlySetIsCentredOnItsOwnWidthAlsoAfterAPreparedOne) {
    routines.PreparePrinter(Orientation::Landscape, false);
    printer.EndJob();
    printer.SetPage(Orientation::Landscape, false);
    printer.PrintCentred(u"abcd"_s);
    EXPECT_EQ(printer.Find(u"abcd"_s).x, 7720);
}

TEST_F(PrinterRoutinesTest, TextAtAPlaceStaysOnThePensLine) {
    printer.CurrentY = 1000;
    routines.PrintAt(2.0F, u"abc"_s);
    EXPECT_EQ(printer.CurrentX, 3180);
    EXPECT_EQ(printer.CurrentY, 1000);
    routines.PrintLineAt(5.0F, u"de"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 2880,1000 10 abc"_s, u"1: 7200,1000 10 de"_s}));
    EXPECT_EQ(printer.CurrentX, 0);
    EXPECT_EQ(printer.CurrentY, 1240);
}

TEST_F(PrinterRoutinesTest, PreparingLeavesTheColourLastChosen) {
    settings.ckColor = 1;
    routines.SetPrintColor(PrintColor::Text);
    routines.PreparePrinter(Orientation::Portrait, true);
    EXPECT_EQ(routines.CurrentPrintColor(), 0x445566U);
}

TEST_F(PrinterRoutinesTest, PositionIsInInches) {
    routines.PositionAt(5.75F, 1.5F);
    EXPECT_EQ(printer.CurrentX, 8280);
    EXPECT_EQ(printer.CurrentY, 2160);
}

TEST_F(PrinterRoutinesTest, PositionAtZeroAndZeroDoesNothing) {
    printer.CurrentX = 123;
    printer.CurrentY = 456;
    routines.PositionAt(0, 0);
    EXPECT_EQ(printer.CurrentX, 123);
    EXPECT_EQ(printer.CurrentY, 456);
}

TEST_F(PrinterRoutinesTest, NegativePositionLeavesItsAxisAlone) {
    printer.CurrentX = 123;
    printer.CurrentY = 456;
    routines.PositionAt(-1, 2);
    EXPECT_EQ(printer.CurrentX, 123);
    EXPECT_EQ(printer.CurrentY, 2880);
    routines.PositionAt(1, -2);
    EXPECT_EQ(printer.CurrentX, 1440);
    EXPECT_EQ(printer.CurrentY, 2880);
}

TEST_F(PrinterRoutinesTest, FontSizeOfZeroOrLessLeavesTheSize) {
    routines.SetPrintFont(12, true, false);
    EXPECT_EQ(printer.FontSize, 12);
    routines.SetPrintFont(0, true, false);
    EXPECT_EQ(printer.FontSize, 12);
    routines.SetPrintFont(-3, true, false);
    EXPECT_EQ(printer.FontSize, 12);
}

TEST_F(PrinterRoutinesTest, BoldAndUnderlineAreAlwaysSet) {
    routines.SetPrintFont(0, true, false);
    EXPECT_TRUE(printer.FontBold);
    EXPECT_FALSE(printer.FontUnderline);
    routines.SetPrintFont(0, false, true);
    EXPECT_FALSE(printer.FontBold);
    EXPECT_TRUE(printer.FontUnderline);
}

TEST_F(PrinterRoutinesTest, TextInColourIsBlueAndTheTextColourReachesTheRulesOnly) {
    settings.ckColor = 1;
    routines.SetPrintColor(PrintColor::Text);
    EXPECT_EQ(printer.ForeColor, 16711680U);
    EXPECT_EQ(routines.CurrentPrintColor(), 0x445566U);
}

TEST_F(PrinterRoutinesTest, TextWithoutColourIsBlack) {
    settings.ckColor = 1;
    routines.SetPrintColor(PrintColor::Text);
    settings.ckColor = 0;
    routines.SetPrintColor(PrintColor::Text);
    EXPECT_EQ(printer.ForeColor, 0U);
    EXPECT_EQ(routines.CurrentPrintColor(), 0U);
}

TEST_F(PrinterRoutinesTest, BordersInColourTakeTheBorderColour) {
    settings.ckColor = 1;
    routines.SetPrintColor(PrintColor::Border);
    EXPECT_EQ(printer.ForeColor, 0x112233U);
    EXPECT_EQ(routines.CurrentPrintColor(), 0x112233U);
}

TEST_F(PrinterRoutinesTest, BordersWithoutColourAreBlack) {
    settings.ckColor = 1;
    routines.SetPrintColor(PrintColor::Border);
    settings.ckColor = 0;
    routines.SetPrintColor(PrintColor::Border);
    EXPECT_EQ(printer.ForeColor, 0U);
    EXPECT_EQ(routines.CurrentPrintColor(), 0U);
}

TEST_F(PrinterRoutinesTest, SelectorsHaveTheirNumbers) {
    EXPECT_EQ(PrintColor(-1), PrintColor::Text);
    EXPECT_EQ(PrintColor(0), PrintColor::Border);
}

TEST_F(PrinterRoutinesTest, AnyOtherColourSelectorDoesNothing) {
    settings.ckColor = 1;
    routines.SetPrintColor(PrintColor::Border);
    for (const qint16 selector : {qint16(1), qint16(2), qint16(-2)}) {
        routines.SetPrintColor(PrintColor(selector));
        EXPECT_EQ(printer.ForeColor, 0x112233U);
        EXPECT_EQ(routines.CurrentPrintColor(), 0x112233U);
    }
}

// At size 10 a character is 100 twips wide and a line 240 twips high.

TEST_F(PrinterRoutinesTest, WrappedTextBreaksAtTheLastBlankThatFitsWidthLessTwenty) {
    routines.PrintWrapped(500, 1000, 620, 5000, u"aa bb cc dd"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 10 aa bb"_s, u"1: 500,1240 10 cc dd"_s}));
    EXPECT_EQ(printer.CurrentX, 0);
    EXPECT_EQ(printer.CurrentY, 1480);
}

TEST_F(PrinterRoutinesTest, WrappedTextBreaksEarlierWhenTheBlankIsOneTwipTooFar) {
    routines.PrintWrapped(500, 1000, 619, 5000, u"aa bb cc dd"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 10 aa"_s, u"1: 500,1240 10 bb"_s,
                                         u"1: 500,1480 10 cc dd"_s}));
}

TEST_F(PrinterRoutinesTest, LastWordStaysOnItsLineSinceNoBlankFollowsIt) {
    routines.PrintWrapped(500, 1000, 620, 5000, u"aa bb cccccccccc"_s);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 500,1000 10 aa bb cccccccccc"_s});
}

TEST_F(PrinterRoutinesTest, SingleWordWiderThanTheBoxIsPrintedWhole) {
    routines.PrintWrapped(500, 1000, 320, 5000, u"wwwwwwwwww"_s);
    routines.PrintWrapped(500, 3000, 320, 5000, u"wwwwwwwwww a b"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 10 wwwwwwwwww"_s,
                                         u"1: 500,3000 10 wwwwwwwwww"_s, u"1: 500,3240 10 a b"_s}));
}

TEST_F(PrinterRoutinesTest, RestOfWrappedTextIsTrimmedOnItsLeft) {
    routines.PrintWrapped(500, 1000, 320, 5000, u"aa   bb   cc"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 10 aa"_s, u"1: 500,1240 10 bb"_s,
                                         u"1: 500,1480 10 cc"_s}));
}

TEST_F(PrinterRoutinesTest, WrappedTextLeftOverAtTheBottomIsDropped) {
    routines.PrintWrapped(500, 1000, 320, 480, u"aa bb cc dd ee"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 10 aa"_s, u"1: 500,1240 10 bb"_s}));
}

TEST_F(PrinterRoutinesTest, LineThatBeginsAboveTheBottomIsPrinted) {
    routines.PrintWrapped(500, 1000, 320, 481, u"aa bb cc dd ee"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 10 aa"_s, u"1: 500,1240 10 bb"_s,
                                         u"1: 500,1480 10 cc"_s}));
}

TEST_F(PrinterRoutinesTest, BoxWithoutHeightTakesOneLine) {
    routines.PrintWrapped(500, 1000, 320, 0, u"aa bb cc"_s);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 500,1000 10 aa"_s});
}

TEST_F(PrinterRoutinesTest, EmptyWrappedTextPrintsOneEmptyLineAndStops) {
    routines.PrintWrapped(500, 1000, 320, 5000, {});
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_EQ(printer.CurrentX, 0);
    EXPECT_EQ(printer.CurrentY, 1240);
}

TEST_F(PrinterRoutinesTest, WrappedTextThatEndsInABlankHasNoLineBehindIt) {
    routines.PrintWrapped(500, 1000, 320, 5000, u"wwwwwwwwww "_s);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 500,1000 10 wwwwwwwwww"_s});
    EXPECT_EQ(printer.CurrentY, 1240);
}

TEST_F(PrinterRoutinesTest, WrappedTextInABoxNarrowerThanABlankComesToAnEnd) {
    routines.PrintWrapped(500, 1000, 0, 5000, u" a b"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1240 10 a"_s, u"1: 500,1480 10 b"_s}));
}

TEST_F(PrinterRoutinesTest, WrappedTextIsMeasuredInTheFontInForce) {
    printer.FontSize = 20;
    // 200 twips a character: "aa " takes 600, "aa bb " 1200.
    routines.PrintWrapped(500, 1000, 1219, 5000, u"aa bb cc"_s);
    EXPECT_EQ(DrawnTexts(), (QStringList{u"1: 500,1000 20 aa"_s, u"1: 500,1480 20 bb cc"_s}));
}

TEST_F(PrinterRoutinesTest, BusinessHeadingInTheUnitedStatesStyle) {
    routines.PrintBusinessHeading(2.0F, 0.5F, 14);
    EXPECT_EQ(
        DrawnTexts(),
        (QStringList{u"1: 2880,720 14b Tessel Gravel"_s, u"1: 2880,1056 10 1 Quarry Road"_s,
                     u"1: 2880,1296 10 Building 2"_s, u"1: 2880,1536 10 Springfield, IL. 62701"_s,
                     u"1: 2880,1776 10 Telephone: 555-0100"_s, u"1: 2880,2016 10 555-0101"_s,
                     u"1: 2880,2256 10 Tax 99"_s}));
}

TEST_F(PrinterRoutinesTest, BusinessHeadingInTheInternationalStyle) {
    settings.cmdAddress = u"International Style Address"_s;
    routines.PrintBusinessHeading(2.0F, 0.5F, 14);
    EXPECT_EQ(DrawnTexts(),
              (QStringList{u"1: 2880,720 14b Tessel Gravel"_s, u"1: 2880,1056 10 1 Quarry Road"_s,
                           u"1: 2880,1296 10 Building 2"_s, u"1: 2880,1536 10 Springfield"_s,
                           u"1: 2880,1776 10 IL"_s, u"1: 2880,2016 10 Telephone: 555-0100"_s,
                           u"1: 2880,2256 10 555-0101"_s, u"1: 2880,2496 10 Tax 99"_s}));
}

TEST_F(PrinterRoutinesTest, EmptyFieldsOfTheHeadingTakeNoLineButTheSecond) {
    settings.BusinessData = {};
    settings.BusinessData[0] = u"Tessel Gravel"_s;
    settings.BusinessData[8] = u"Tax 99"_s;
    routines.PrintBusinessHeading(2.0F, 0.5F, 10);
    // The empty second field takes the line at 960.
    EXPECT_EQ(DrawnTexts(),
              (QStringList{u"1: 2880,720 10b Tessel Gravel"_s, u"1: 2880,1200 10 Tax 99"_s}));
}

TEST_F(PrinterRoutinesTest, EmptyFieldsOfTheInternationalAddressTakeNoLine) {
    settings.cmdAddress = u"International Style Address"_s;
    settings.BusinessData = {};
    settings.BusinessData[4] = u"Region"_s;
    routines.PrintBusinessHeading(2.0F, 0.5F, 10);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 2880,1200 10 Region"_s});
}

TEST_F(PrinterRoutinesTest, CityAloneKeepsItsComma) {
    settings.BusinessData = {};
    settings.BusinessData[3] = u"Springfield"_s;
    settings.BusinessData[5] = u"62701"_s;
    routines.PrintBusinessHeading(2.0F, 0.5F, 10);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 2880,1200 10 Springfield, "_s});
}

TEST_F(PrinterRoutinesTest, StateAloneKeepsItsPointAndPostalCode) {
    settings.BusinessData = {};
    settings.BusinessData[4] = u"IL"_s;
    settings.BusinessData[5] = u"62701"_s;
    routines.PrintBusinessHeading(2.0F, 0.5F, 10);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 2880,1200 10 IL. 62701"_s});
}

TEST_F(PrinterRoutinesTest, PostalCodeAloneIsNotPrinted) {
    settings.BusinessData = {};
    settings.BusinessData[5] = u"62701"_s;
    settings.BusinessData[6] = u"555-0100"_s;
    routines.PrintBusinessHeading(2.0F, 0.5F, 10);
    EXPECT_EQ(DrawnTexts(), QStringList{u"1: 2880,1200 10 Telephone: 555-0100"_s});
}

TEST_F(PrinterRoutinesTest, BusinessHeadingAtNoHeightStartsAtThePen) {
    printer.CurrentY = 3000;
    routines.PrintBusinessHeading(2.0F, 0, 10);
    EXPECT_EQ(printer.Find(u"Tessel Gravel"_s).y, 3000);
    EXPECT_EQ(printer.Find(u"Tessel Gravel"_s).x, 2880);
}

TEST_F(PrinterRoutinesTest, BusinessHeadingIsPrintedInTheTextColour) {
    settings.ckColor = 1;
    printer.FontUnderline = true;
    routines.PrintBusinessHeading(2.0F, 0.5F, 14);
    for (const auto& text : printer.Texts) {
        EXPECT_EQ(text.color, 16711680U);
        EXPECT_FALSE(text.underline);
    }
    EXPECT_EQ(printer.Texts.size(), 7U);
    EXPECT_EQ(routines.CurrentPrintColor(), 0x445566U);
}

// The printer dialog.

TEST_F(PrinterRoutinesTest, DialogOpensWithTheCopiesOfThePrintSettingsAndTheNameOfTheJob) {
    settings.printDialogCopies = 5;
    printer.JobName = u"Stock list"_s;
    user.ExpectPrinterDialog(5, PrintDestination{.Printer = u"Laser"_s, .Copies = 2});
    routines.AskForPrinter();
    EXPECT_EQ(user.PrinterDialogs,
              (std::vector<std::pair<QString, QString>>{{QString(), u"Stock list"_s}}));
    EXPECT_EQ(printer.Destination(), (PrintDestination{.Printer = u"Laser"_s, .Copies = 2}));
}

TEST_F(PrinterRoutinesTest, DialogTakesItsCopiesFromTheFileAsItWasReadNotFromTheBox) {
    settings.cboCopies = u"4"_s;
    settings.PrintCopies = 4;
    settings.printDialogCopies = 3;
    user.ExpectPrinterDialog(3, PrintDestination{});
    routines.AskForPrinter();
}

TEST_F(PrinterRoutinesTest, NoCopiesInTheSettingsIsOneInTheDialog) {
    settings.printDialogCopies = 0;
    user.ExpectPrinterDialog(1, PrintDestination{});
    routines.AskForPrinter();
}

TEST_F(PrinterRoutinesTest, MostCopiesOfTheSettingsReachTheDialog) {
    settings.printDialogCopies = 255;
    user.ExpectPrinterDialog(255, PrintDestination{.Copies = 255});
    routines.AskForPrinter();
    EXPECT_EQ(printer.Destination().Copies, 255);
}

TEST_F(PrinterRoutinesTest, CancelInTheDialogIsACancelledPrintAndChangesNoDestination) {
    printer.SendTo({.Printer = u"Laser"_s});
    user.ExpectPrinterDialog(3, std::nullopt);
    const RuntimeFailure failure = FailureOf([this] { routines.AskForPrinter(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PrintCancelled);
    EXPECT_EQ(printer.Destination(), PrintDestination{.Printer = u"Laser"_s});
}

TEST_F(PrinterRoutinesTest, PrinterChosenStaysForTheRunAndTheDialogOpensWithIt) {
    user.ExpectPrinterDialog(3, PrintDestination{.Printer = u"Laser"_s, .Copies = 7});
    user.ExpectPrinterDialog(3, PrintDestination{.Printer = u"PDF"_s});
    HandlePrintErrors(printer, user, [this] { routines.AskForPrinter(); });
    EXPECT_EQ(printer.Destination(), PrintDestination{.Printer = u"Laser"_s});
    HandlePrintErrors(printer, user, [this] { routines.AskForPrinter(); });
    ASSERT_EQ(user.PrinterDialogs.size(), 2U);
    EXPECT_EQ(user.PrinterDialogs[1].first, u"Laser"_s);
    EXPECT_EQ(printer.Destination(), PrintDestination{.Printer = u"PDF"_s});
}

TEST_F(PrinterRoutinesTest, FileHoldsForItsCommandAndIsNoChoiceOfAPrinter) {
    printer.SendTo({.Printer = u"Laser"_s});
    user.ExpectPrinterDialog(3, PrintDestination{.File = u"/tmp/a.pdf"_s});
    HandlePrintErrors(printer, user, [this] {
        routines.AskForPrinter();
        EXPECT_EQ(printer.Destination().File, u"/tmp/a.pdf"_s);
    });
    EXPECT_EQ(printer.Destination(), PrintDestination{.Printer = u"Laser"_s});
}

TEST_F(PrinterRoutinesTest, WhatPrintsWithoutAskingGoesToThePrinterChosenLastOnce) {
    user.ExpectPrinterDialog(3, PrintDestination{.Printer = u"Laser"_s, .Copies = 3});
    HandlePrintErrors(printer, user, [this] {
        routines.AskForPrinter();
        printer.EndJob();
        printer.EndJob();
    });
    HandlePrintErrors(printer, user, [this] { printer.EndJob(); });
    EXPECT_EQ(printer.Destinations,
              (std::vector<PrintDestination>{{.Printer = u"Laser"_s, .Copies = 3},
                                             {.Printer = u"Laser"_s, .Copies = 3},
                                             {.Printer = u"Laser"_s, .Copies = 1}}));
}

TEST_F(PrinterRoutinesTest, ChoiceEndsAlsoWithACommandThatFails) {
    user.ExpectPrinterDialog(3, PrintDestination{.File = u"/tmp/a.pdf"_s});
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    printer.FailsAtEndOfJob = true;
    HandlePrintErrors(printer, user, [this] {
        routines.AskForPrinter();
        printer.EndJob();
    });
    EXPECT_EQ(printer.Destination(), PrintDestination{});
    EXPECT_EQ(printer.AbandonedJobs, 1);
}

TEST_F(PrinterRoutinesTest, CancelIsToldOnlyWhereTheCommandHasWordsForIt) {
    const auto ask = [this] { routines.AskForPrinter(); };
    user.ExpectPrinterDialog(3, std::nullopt);
    HandlePrintErrors(printer, user, ask);
    user.ExpectPrinterDialog(3, std::nullopt);
    user.ExpectMessage(u"The List will not be Printed"_s);
    HandlePrintErrors(printer, user, ask, u"The List will not be Printed"_s);
    EXPECT_EQ(printer.Jobs, 0);
}
