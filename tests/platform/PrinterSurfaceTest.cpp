#include "platform/PrinterSurface.h"

#include "support/RecordingPrinter.h"
#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// At size 10 a character is 100 twips wide and a line 240 twips high; the page is 12240 wide.

class PrinterSurfaceTest : public testing::Test {
protected:
    PrinterSurfaceTest() {
        printer.CurrentX = 700;
        printer.CurrentY = 1000;
    }

    void ExpectDrawn(double x, double y, const QString& text) const {
        ASSERT_EQ(printer.Texts.size(), 1U);
        EXPECT_EQ(printer.Texts[0].x, x);
        EXPECT_EQ(printer.Texts[0].y, y);
        EXPECT_EQ(printer.Texts[0].text, text);
    }
    void ExpectPenAt(double x, double y) const {
        EXPECT_EQ(printer.CurrentX, x);
        EXPECT_EQ(printer.CurrentY, y);
    }

    RecordingPrinter printer;
};

TEST_F(PrinterSurfaceTest, LineIsPrintedAtThePenWhichGoesToTheLeftEdgeOfTheNextLine) {
    printer.PrintLine(u"abc"_s);
    ExpectDrawn(700, 1000, u"abc"_s);
    ExpectPenAt(0, 1240);
}

TEST_F(PrinterSurfaceTest, EmptyLineMovesThePenAndDrawsNothing) {
    printer.PrintLine();
    EXPECT_TRUE(printer.Texts.empty());
    ExpectPenAt(0, 1240);
}

TEST_F(PrinterSurfaceTest, LineHeightIsThatOfTheFontInForce) {
    printer.FontSize = 15;
    printer.PrintLine(u"abc"_s);
    ExpectPenAt(0, 1360);
}

TEST_F(PrinterSurfaceTest, TextWithoutLineEndLeavesThePenBehindItOnTheSameLine) {
    printer.Print(u"abc"_s);
    ExpectDrawn(700, 1000, u"abc"_s);
    ExpectPenAt(1000, 1000);
}

TEST_F(PrinterSurfaceTest, TextsWithoutLineEndFollowEachOther) {
    printer.Print(u"abc"_s);
    printer.Print(u"de"_s);
    ASSERT_EQ(printer.Texts.size(), 2U);
    EXPECT_EQ(printer.Texts[1].x, 1000);
    EXPECT_EQ(printer.Texts[1].y, 1000);
    ExpectPenAt(1200, 1000);
}

TEST_F(PrinterSurfaceTest, EmptyTextWithoutLineEndLeavesThePen) {
    printer.Print({});
    EXPECT_TRUE(printer.Texts.empty());
    ExpectPenAt(700, 1000);
}

TEST_F(PrinterSurfaceTest, TextEndsAtTheGivenPlaceOnTheSameLine) {
    printer.PrintEndingAt(5000, u"abcde"_s);
    ExpectDrawn(4500, 1000, u"abcde"_s);
    ExpectPenAt(5000, 1000);
}

TEST_F(PrinterSurfaceTest, EmptyTextEndingAtAPlaceDrawsNothing) {
    printer.PrintEndingAt(5000, {});
    EXPECT_TRUE(printer.Texts.empty());
    ExpectPenAt(5000, 1000);
}

TEST_F(PrinterSurfaceTest, CentredTextStandsInTheMiddleOfThePageOnALineOfItsOwn) {
    printer.PrintCentred(u"abcd"_s);
    ExpectDrawn(5920, 1000, u"abcd"_s);
    ExpectPenAt(0, 1240);
}

TEST_F(PrinterSurfaceTest, CentredTextGoesByTheCentringWidthUntilThePageIsSet) {
    printer.CentringWidth = 10000;
    printer.PrintCentred(u"abcd"_s);
    ExpectDrawn(4800, 1000, u"abcd"_s);
    printer.SetPage(Orientation::Portrait, true);
    printer.PrintCentred(u"efgh"_s);
    EXPECT_EQ(printer.Find(u"efgh"_s).x, 5920);
}

TEST_F(PrinterSurfaceTest, TextWiderThanThePageRunsOffBothItsEdgesWhenCentred) {
    printer.PrintCentred(QString(124, u'w'));
    ExpectDrawn(-80, 1000, QString(124, u'w'));
}

TEST_F(PrinterSurfaceTest, TextIsDrawnInTheFontInForce) {
    printer.FontName = u"Arial"_s;
    printer.FontSize = 15;
    printer.FontBold = true;
    printer.FontUnderline = true;
    printer.ForeColor = 0x123456;
    printer.Print(u"abc"_s);
    ASSERT_EQ(printer.Texts.size(), 1U);
    EXPECT_EQ(printer.Texts[0].fontName, u"Arial"_s);
    EXPECT_EQ(printer.Texts[0].fontSize, 15);
    EXPECT_TRUE(printer.Texts[0].bold);
    EXPECT_TRUE(printer.Texts[0].underline);
    EXPECT_EQ(printer.Texts[0].color, 0x123456U);
    ExpectPenAt(1150, 1000);
}
