#include "platform/PagePrinter.h"

#include "PrintedPages.h"
#include "support/OfficeTest.h"

#include <QColor>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double nearby = 0.02; // inches

/// A machine without a printer, where the user's documents are in "Papers".
class PagePrinterTest : public testing::Test {
protected:
    PagePrinterTest() {
        qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
        qputenv("HOME", folder.Path().toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.PathOf(u"config"_s).toUtf8());
        folder.Write(u"config/user-dirs.dirs"_s,
                     "XDG_DOCUMENTS_DIR=\"" + folder.PathOf(u"Papers"_s).toUtf8() + "\"\n");
    }

    QString PathOfDocument(const QString& name) const {
        return folder.PathOf(u"Papers/Tessel Delivery/"_s + name);
    }

    QStringList Documents() const {
        QStringList names = folder.Everything().filter(u"Papers/Tessel Delivery/"_s);
        names.removeAll(u"Papers/Tessel Delivery/"_s);
        for (QString& name : names)
            name = name.section(u'/', -1);
        return names;
    }

    /// Ends the job and reads its pages back.
    PrintedPages Printed() {
        printer.EndJob();
        EXPECT_EQ(opened.size(), 1);
        return PrintedPages(opened.value(0));
    }

    void PrintOnePage() {
        printer.PrintLine(u"Page"_s);
        printer.EndJob();
    }

    /// The sentence of the printer failure that ending the job ends in.
    QString FailureOfEndJob() {
        const RuntimeFailure failure = FailureOf([this] { printer.EndJob(); });
        EXPECT_EQ(failure.Kind(), FailureKind::PrinterFailure);
        return failure.Sentence();
    }

    TestFolder folder;
    QStringList opened;
    PagePrinter printer{[this](const QString& path) { opened += path; }};
};

} // namespace

TEST_F(PagePrinterTest, TextStandsWithItsUpperLeftCornerAtThePen) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.CurrentX = 1440;
    printer.CurrentY = 2880;
    printer.Print(u"Upper"_s);
    printer.CurrentX = 7200;
    printer.CurrentY = 14400;
    printer.Print(u"Lower"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_NEAR(pages.PlaceOf(u"Upper"_s).left(), 1.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Upper"_s).top(), 2.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Lower"_s).left(), 5.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Lower"_s).top(), 10.0, nearby);
}

TEST_F(PagePrinterTest, NewPageGoesOnInTheUpperLeftCornerOfTheNextPage) {
    printer.FontName = u"DejaVu Sans"_s;
    EXPECT_EQ(printer.PageNumber(), 1);
    printer.CurrentX = 1440;
    printer.CurrentY = 1440;
    printer.Print(u"First"_s);
    printer.NewPage();
    EXPECT_EQ(printer.PageNumber(), 2);
    printer.Print(u"Second"_s);
    printer.NewPage();
    EXPECT_EQ(printer.PageNumber(), 3);
    printer.CurrentX = 4320;
    printer.CurrentY = 5760;
    printer.Print(u"Third"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 3);
    EXPECT_EQ(pages.Words(1), QStringList{u"First"_s});
    EXPECT_EQ(pages.Words(2), QStringList{u"Second"_s});
    EXPECT_EQ(pages.Words(3), QStringList{u"Third"_s});
    EXPECT_NEAR(pages.PlaceOf(u"First"_s, 1).left(), 1.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"First"_s, 1).top(), 1.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Second"_s, 2).left(), 0.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Second"_s, 2).top(), 0.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Third"_s, 3).left(), 3.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Third"_s, 3).top(), 4.0, nearby);
    EXPECT_EQ(pages.Fonts(), QStringList{u"DejaVuSans"_s});
}

TEST_F(PagePrinterTest, PortraitIsLetterPaperUpright) {
    printer.SetPage(Orientation::Portrait, true);
    EXPECT_EQ(printer.PageWidth(), 12240);
    EXPECT_EQ(printer.PageHeight(), 15840);
    printer.Print(u"Page"_s);
    EXPECT_EQ(Printed().Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
}

TEST_F(PagePrinterTest, LandscapeIsLetterPaperOnItsSide) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.SetPage(Orientation::Landscape, true);
    EXPECT_EQ(printer.PageWidth(), 15840);
    EXPECT_EQ(printer.PageHeight(), 12240);
    printer.CurrentX = 14400;
    printer.CurrentY = 11520;
    printer.Print(u"Corner"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Property(u"Page size"_s), u"792 x 612 pts (letter)"_s);
    EXPECT_NEAR(pages.PlaceOf(u"Corner"_s).left(), 10.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Corner"_s).top(), 8.0, nearby);
}

TEST_F(PagePrinterTest, SetPageLeavesAJobThatWasBegunAsItIs) {
    printer.SetPage(Orientation::Landscape, true);
    printer.Print(u"One"_s);
    printer.SetPage(Orientation::Portrait, true);
    EXPECT_EQ(printer.PageWidth(), 15840);
    printer.Print(u"Two"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"792 x 612 pts (letter)"_s);
}

TEST_F(PagePrinterTest, PrintingGoesOnBehindThePrintedText) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.CurrentX = 1440;
    printer.Print(u"Before"_s);
    const double width = printer.TextWidth(u"Before"_s) / 1440;
    EXPECT_DOUBLE_EQ(printer.CurrentX / 1440, 1.0 + width);
    printer.CurrentX += 1440;
    printer.Print(u"Behind"_s);
    const PrintedPages pages = Printed();
    EXPECT_NEAR(pages.PlaceOf(u"Before"_s).width(), width, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Behind"_s).left(), pages.PlaceOf(u"Before"_s).right() + 1.0,
                nearby);
}

TEST_F(PagePrinterTest, RightAlignedTextEndsWhereAsked) {
    printer.PrintEndingAt(11520, u"$1,250.00"_s);
    EXPECT_NEAR(Printed().PlaceOf(u"$1,250.00"_s).right(), 8.0, nearby);
}

TEST_F(PagePrinterTest, CentredTextStandsInTheMiddleOfThePage) {
    printer.PrintCentred(u"TITLE"_s);
    EXPECT_NEAR(Printed().PlaceOf(u"TITLE"_s).center().x(), 4.25, nearby);
}

TEST_F(PagePrinterTest, CentredTextOnPaperOnItsSideGoesByTheCentringWidth) {
    printer.SetPage(Orientation::Landscape, true);
    printer.PrintCentred(u"PAPER"_s);
    printer.CentringWidth = 12240;
    printer.PrintCentred(u"COLUMNS"_s);
    const PrintedPages pages = Printed();
    EXPECT_NEAR(pages.PlaceOf(u"PAPER"_s).center().x(), 5.5, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"COLUMNS"_s).center().x(), 4.25, nearby);
}

TEST_F(PagePrinterTest, LinesFollowEachOtherATextHeightApart) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.CurrentY = 1440;
    printer.PrintLine(u"One"_s);
    const double height = printer.TextHeight(u"One"_s) / 1440;
    printer.PrintLine();
    printer.PrintLine(u"Three"_s);
    const PrintedPages pages = Printed();
    EXPECT_NEAR(pages.PlaceOf(u"Three"_s).top(), 1.0 + 2 * height, nearby);
}

TEST_F(PagePrinterTest, FontSizeIsInPoints) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.FontSize = 10;
    // Ascent 1901 and descent 483 of the 2048 units that this font has to its size.
    EXPECT_NEAR(printer.TextHeight(u"H"_s), 200 * 2384.0 / 2048, 1.0);
    printer.FontSize = 72;
    EXPECT_NEAR(printer.TextHeight(u"H"_s), 1440 * 2384.0 / 2048, 1.0);
    printer.CurrentX = 1440;
    printer.CurrentY = 1440;
    printer.Print(u"H"_s);
    // A capital letter of this font is 1493 units high.
    const QRectF ink = InkWithin(Printed().Picture(), {0, 0, 8, 8});
    EXPECT_NEAR(ink.height(), 1493.0 / 2048, nearby);
    EXPECT_NEAR(ink.bottom(), 1.0 + 1901.0 / 2048, nearby);
}

TEST_F(PagePrinterTest, TheFontAskedForIsUsed) {
    printer.FontName = u"DejaVu Sans Mono"_s;
    printer.Print(u"Page"_s);
    EXPECT_EQ(Printed().Fonts(), QStringList{u"DejaVuSansMono"_s});
}

TEST_F(PagePrinterTest, BoldIsTheBoldFontAndEndsWhenTurnedOff) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.FontBold = true;
    const double boldWidth = printer.TextWidth(u"Heading"_s);
    printer.PrintLine(u"Heading"_s);
    printer.FontBold = false;
    EXPECT_LT(printer.TextWidth(u"Heading"_s), boldWidth);
    printer.PrintLine(u"Body"_s);
    QStringList fonts = Printed().Fonts();
    fonts.sort();
    EXPECT_EQ(fonts, (QStringList{u"DejaVuSans"_s, u"DejaVuSans-Bold"_s}));
}

TEST_F(PagePrinterTest, UnderlineIsDrawnBelowTheWholeText) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.FontSize = 36;
    printer.CurrentX = 1440;
    printer.CurrentY = 1440;
    printer.FontUnderline = true;
    const double width = printer.TextWidth(u"HHH"_s) / 1440;
    printer.PrintLine(u"HHH"_s);
    printer.FontUnderline = false;
    printer.CurrentX = 1440;
    printer.CurrentY = 4320;
    printer.PrintLine(u"HHH"_s);
    const QImage picture = Printed().Picture();
    // The letters end at the baseline, 0.464 inch below the pen.
    const QRectF below = InkWithin(picture, {0, 1.48, 8, 0.5});
    EXPECT_NEAR(below.left(), 1.0, nearby);
    EXPECT_NEAR(below.width(), width, nearby);
    EXPECT_TRUE(InkWithin(picture, {0, 3.48, 8, 0.5}).isEmpty());
}

TEST_F(PagePrinterTest, AnUnknownFontFallsBackOnOneThatReads) {
    printer.FontName = u"Ariel"_s;
    printer.FontSize = 15;
    printer.PrintLine(u"SCHEDULED DELIVERIES"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Words(1), (QStringList{u"SCHEDULED"_s, u"DELIVERIES"_s}));
    EXPECT_EQ(pages.Fonts().size(), 1);
}

TEST_F(PagePrinterTest, ColorsHoldRedInTheLowestByte) {
    printer.FillBox(1440, 1440, 2880, 2880, 0x0000ff);
    printer.FillBox(2880, 1440, 4320, 2880, 0x00ff00);
    printer.FillBox(4320, 1440, 5760, 2880, 0xff0000);
    printer.FillBox(5760, 1440, 7200, 2880, 0x804020);
    const QImage picture = Printed().Picture();
    EXPECT_EQ(ColorAt(picture, 1.5, 1.5).name(), u"#ff0000"_s);
    EXPECT_EQ(ColorAt(picture, 2.5, 1.5).name(), u"#00ff00"_s);
    EXPECT_EQ(ColorAt(picture, 3.5, 1.5).name(), u"#0000ff"_s);
    EXPECT_EQ(ColorAt(picture, 4.5, 1.5).name(), u"#204080"_s);
}

TEST_F(PagePrinterTest, WithoutColorEverythingIsGreyAsDarkAsTheColor) {
    printer.SetPage(Orientation::Portrait, false);
    printer.FillBox(1440, 1440, 2880, 2880, 0x0000ff);
    printer.FillBox(2880, 1440, 4320, 2880, 0x00ff00);
    printer.FillBox(4320, 1440, 5760, 2880, 0x000000);
    printer.FillBox(5760, 1440, 7200, 2880, 0xffffff);
    const QImage picture = Printed().Picture();
    EXPECT_EQ(ColorAt(picture, 1.5, 1.5).name(), u"#575757"_s);
    EXPECT_EQ(ColorAt(picture, 2.5, 1.5).name(), u"#7f7f7f"_s);
    EXPECT_EQ(ColorAt(picture, 3.5, 1.5).name(), u"#000000"_s);
    EXPECT_EQ(ColorAt(picture, 4.5, 1.5).name(), u"#ffffff"_s);
}

TEST_F(PagePrinterTest, TextIsPrintedInTheForeColor) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.FontSize = 72;
    printer.FontBold = true;
    printer.CurrentX = 1440;
    printer.ForeColor = 0xff0000;
    printer.PrintLine(u"I"_s);
    printer.CurrentX = 1440;
    printer.ForeColor = 0x0000ff;
    printer.PrintLine(u"I"_s);
    const QImage picture = Printed().Picture();
    // The stem of the letter, half its width right of the pen and half a capital's height down.
    EXPECT_EQ(ColorAt(picture, 1.186, 0.6).name(), u"#0000ff"_s);
    EXPECT_EQ(ColorAt(picture, 1.186, 1.764).name(), u"#ff0000"_s);
}

TEST_F(PagePrinterTest, ALineIsInItsOwnColorAndAsThickAsDrawWidth) {
    printer.ForeColor = 0x0000ff;
    printer.DrawWidth = 30;
    printer.Line(1440, 2880, 5760, 2880, 0xff0000);
    printer.DrawWidth = 60;
    printer.Line(7200, 1440, 7200, 5760, 0);
    const QImage picture = Printed().Picture();
    EXPECT_EQ(ColorAt(picture, 2.0, 2.0).name(), u"#0000ff"_s);
    const QRectF lying = InkWithin(picture, {0, 0, 4.5, 8});
    EXPECT_NEAR(lying.left(), 1.0, nearby);
    EXPECT_NEAR(lying.right(), 4.0, nearby);
    EXPECT_NEAR(lying.center().y(), 2.0, nearby);
    EXPECT_NEAR(lying.height(), 0.1, 0.01);
    const QRectF standing = InkWithin(picture, {4.5, 0, 3.5, 8});
    EXPECT_NEAR(standing.top(), 1.0, nearby);
    EXPECT_NEAR(standing.bottom(), 4.0, nearby);
    EXPECT_NEAR(standing.center().x(), 5.0, nearby);
    EXPECT_NEAR(standing.width(), 0.2, 0.01);
}

TEST_F(PagePrinterTest, ABoxIsDrawnRoundItsInsideFromAnyTwoCorners) {
    printer.DrawWidth = 15;
    printer.Box(1440, 1440, 4320, 2880, 0x0000ff);
    printer.Box(4320, 7200, 1440, 5760, 0x0000ff);
    const QImage picture = Printed().Picture();
    for (const double top : {1.0, 4.0}) {
        EXPECT_EQ(ColorAt(picture, 2.0, top).name(), u"#ff0000"_s);
        EXPECT_EQ(ColorAt(picture, 2.0, top + 1).name(), u"#ff0000"_s);
        EXPECT_EQ(ColorAt(picture, 1.0, top + 0.5).name(), u"#ff0000"_s);
        EXPECT_EQ(ColorAt(picture, 3.0, top + 0.5).name(), u"#ff0000"_s);
        EXPECT_EQ(ColorAt(picture, 2.0, top + 0.5).name(), u"#ffffff"_s);
    }
}

TEST_F(PagePrinterTest, AFilledBoxReachesItsCornersFromAnyTwo) {
    printer.FillBox(4320, 2880, 1440, 1440, 0);
    const QRectF ink = InkWithin(Printed().Picture(), {0, 0, 8.5, 11});
    EXPECT_NEAR(ink.left(), 1.0, nearby);
    EXPECT_NEAR(ink.top(), 1.0, nearby);
    EXPECT_NEAR(ink.right(), 3.0, nearby);
    EXPECT_NEAR(ink.bottom(), 2.0, nearby);
}

/// The document keeps pictures with a small loss.
void ExpectColorNear(const QColor& color, const QColor& expected) {
    EXPECT_NEAR(color.red(), expected.red(), 3);
    EXPECT_NEAR(color.green(), expected.green(), 3);
    EXPECT_NEAR(color.blue(), expected.blue(), 3);
}

/// A picture of three stripes: red, red that is half transparent, nothing.
Picture Stripes() {
    QImage image(90, 30, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 30; ++x) {
            image.setPixelColor(x, y, QColor(255, 0, 0));
            image.setPixelColor(x + 30, y, QColor(255, 0, 0, 128));
        }
    }
    return {std::make_shared<const QImage>(image), 1350, 450};
}

TEST_F(PagePrinterTest, APictureIsStretchedToItsPlaceWhateverItsOwnSize) {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(QColor(0, 0, 255));
    printer.PaintPicture({std::make_shared<const QImage>(image), 150, 150}, 1440, 2880, 4320, 720);
    const QRectF ink = InkWithin(Printed().Picture(), {0, 0, 8.5, 11});
    EXPECT_NEAR(ink.left(), 1.0, nearby);
    EXPECT_NEAR(ink.top(), 2.0, nearby);
    EXPECT_NEAR(ink.right(), 4.0, nearby);
    EXPECT_NEAR(ink.bottom(), 2.5, nearby);
}

TEST_F(PagePrinterTest, APictureIsPaintedInItsColorsAndWhereItIsTransparentThePaperStaysWhite) {
    printer.SetPage(Orientation::Portrait, true);
    printer.PaintPicture(Stripes(), 1440, 1440, 4320, 1440);
    const QImage picture = Printed().Picture();
    ExpectColorNear(ColorAt(picture, 1.5, 1.5), {255, 0, 0});
    ExpectColorNear(ColorAt(picture, 2.5, 1.5), {255, 127, 127});
    EXPECT_EQ(ColorAt(picture, 3.5, 1.5).name(), u"#ffffff"_s);
}

TEST_F(PagePrinterTest, WithoutColorAPictureIsGreyAndWhereItIsTransparentThePaperStaysWhite) {
    printer.SetPage(Orientation::Portrait, false);
    printer.PaintPicture(Stripes(), 1440, 1440, 4320, 1440);
    const QImage picture = Printed().Picture();
    // Each as light as the eye sees the color.
    ExpectColorNear(ColorAt(picture, 1.5, 1.5), {130, 130, 130});
    ExpectColorNear(ColorAt(picture, 2.5, 1.5), {167, 167, 167});
    EXPECT_EQ(ColorAt(picture, 3.5, 1.5).name(), u"#ffffff"_s);
}

TEST_F(PagePrinterTest, APictureAloneIsAJobAndAPictureBesideThePageIsCutOff) {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::black);
    printer.PaintPicture({std::make_shared<const QImage>(image), 150, 150}, -720, 1440, 1440, 1440);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 1);
    const QRectF ink = InkWithin(pages.Picture(), {0, 0, 8.5, 11});
    EXPECT_NEAR(ink.left(), 0.0, nearby);
    EXPECT_NEAR(ink.right(), 0.5, nearby);
}

TEST_F(PagePrinterTest, TextOutsideOneByteCharactersIsPrinted) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.PrintLine(u"Café 12 €"_s);
    EXPECT_EQ(Printed().Words(1), (QStringList{u"Café"_s, u"12"_s, u"€"_s}));
}

TEST_F(PagePrinterTest, WithoutAPrinterTheJobBecomesADocumentThatIsOpened) {
    printer.JobName = u"Delivery schedule 2026-03-09"_s;
    PrintOnePage();
    EXPECT_EQ(Documents(), QStringList{u"Delivery schedule 2026-03-09.pdf"_s});
    EXPECT_EQ(opened, QStringList{PathOfDocument(u"Delivery schedule 2026-03-09.pdf"_s)});
    EXPECT_EQ(PrintedPages(opened.value(0)).Property(u"Title"_s),
              u"Delivery schedule 2026-03-09"_s);
}

TEST_F(PagePrinterTest, AJobWithoutANameIsNamedAfterTheProgram) {
    PrintOnePage();
    EXPECT_EQ(Documents(), QStringList{u"Tessel Delivery.pdf"_s});
}

TEST_F(PagePrinterTest, ATakenNameGetsTheNextNumber) {
    folder.Write(u"Papers/Tessel Delivery/Invoice %1.pdf"_s, "kept");
    printer.JobName = u"Invoice %1"_s;
    PrintOnePage();
    PrintOnePage();
    EXPECT_EQ(Documents(),
              (QStringList{u"Invoice %1 (2).pdf"_s, u"Invoice %1 (3).pdf"_s, u"Invoice %1.pdf"_s}));
    EXPECT_EQ(folder.Read(u"Papers/Tessel Delivery/Invoice %1.pdf"_s), "kept");
    EXPECT_EQ(opened, (QStringList{PathOfDocument(u"Invoice %1 (2).pdf"_s),
                                   PathOfDocument(u"Invoice %1 (3).pdf"_s)}));
}

TEST_F(PagePrinterTest, ASlashInTheNameIsNoFolder) {
    printer.JobName = u"Schedule 3/9/2026"_s;
    PrintOnePage();
    EXPECT_EQ(Documents(), QStringList{u"Schedule 3-9-2026.pdf"_s});
}

TEST_F(PagePrinterTest, AFileThatWasChosenIsWrittenAndNotOpened) {
    folder.MakeFolder(u"Own"_s);
    printer.JobName = u"Invoice 7"_s;
    printer.SendTo({.File = folder.PathOf(u"Own/chosen.pdf"_s), .Copies = 3});
    PrintOnePage();
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_FALSE(folder.Has(u"Papers"_s));
    const PrintedPages pages(folder.PathOf(u"Own/chosen.pdf"_s));
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Words(1), QStringList{u"Page"_s});
    EXPECT_EQ(pages.Property(u"Title"_s), u"Invoice 7"_s);
    EXPECT_EQ(folder.Everything().filter(u"Own/"_s), (QStringList{u"Own/"_s, u"Own/chosen.pdf"_s}));
}

TEST_F(PagePrinterTest, AFileThatWasChosenIsWrittenOver) {
    folder.Write(u"chosen.pdf"_s, QByteArray(100'000, 'x'));
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    PrintOnePage();
    EXPECT_TRUE(folder.Read(u"chosen.pdf"_s).startsWith("%PDF-"));
    EXPECT_LT(folder.Read(u"chosen.pdf"_s).size(), 100'000);
    EXPECT_FALSE(folder.Has(u"chosen (2).pdf"_s));
}

TEST_F(PagePrinterTest, FurtherDocumentsOfTheCommandStandBesideItAndOverwriteNothing) {
    folder.Write(u"chosen (3).pdf"_s, "kept");
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    for (const QString& text : {u"One"_s, u"Two"_s, u"Three"_s}) {
        printer.Print(text);
        printer.EndJob();
    }
    EXPECT_EQ(PrintedPages(folder.PathOf(u"chosen.pdf"_s)).Words(1), QStringList{u"One"_s});
    EXPECT_EQ(PrintedPages(folder.PathOf(u"chosen (2).pdf"_s)).Words(1), QStringList{u"Two"_s});
    EXPECT_EQ(folder.Read(u"chosen (3).pdf"_s), "kept");
    EXPECT_EQ(PrintedPages(folder.PathOf(u"chosen (4).pdf"_s)).Words(1), QStringList{u"Three"_s});
}

TEST_F(PagePrinterTest, AFileWithoutADotIsNumberedBehindItsName) {
    folder.MakeFolder(u"Own.papers"_s);
    printer.SendTo({.File = folder.PathOf(u"Own.papers/chosen"_s)});
    PrintOnePage();
    PrintOnePage();
    EXPECT_TRUE(folder.Has(u"Own.papers/chosen"_s));
    EXPECT_TRUE(folder.Has(u"Own.papers/chosen (2)"_s));
}

TEST_F(PagePrinterTest, TheSameFileChosenByTheNextCommandIsWrittenOver) {
    for (const QString& text : {u"One"_s, u"Two"_s}) {
        printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
        printer.Print(text);
        printer.EndJob();
        printer.EndCommand();
    }
    EXPECT_EQ(PrintedPages(folder.PathOf(u"chosen.pdf"_s)).Words(1), QStringList{u"Two"_s});
    EXPECT_FALSE(folder.Has(u"chosen (2).pdf"_s));
}

TEST_F(PagePrinterTest, BehindTheCommandTheNextJobIsADocumentAgain) {
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    PrintOnePage();
    printer.EndCommand();
    PrintOnePage();
    EXPECT_EQ(Documents(), QStringList{u"Tessel Delivery.pdf"_s});
    EXPECT_EQ(opened.size(), 1);
}

TEST_F(PagePrinterTest, ADocumentHasTheRightsOfTheUsersOtherFiles) {
    folder.Write(u"other"_s, "x");
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    PrintOnePage();
    EXPECT_EQ(QFile::permissions(folder.PathOf(u"chosen.pdf"_s)),
              QFile::permissions(folder.PathOf(u"other"_s)));
}

TEST_F(PagePrinterTest, AChosenFileInAFolderThatIsGoneFails) {
    printer.SendTo({.File = folder.PathOf(u"Gone/chosen.pdf"_s)});
    printer.Print(u"Page"_s);
    EXPECT_EQ(FailureOfEndJob(), u"Writing the document %1 failed: No such file or directory"_s.arg(
                                     folder.PathOf(u"Gone/chosen.pdf"_s)));
    EXPECT_FALSE(folder.Has(u"Gone"_s));
}

TEST_F(PagePrinterTest, AFullDiskLeavesTheChosenFileAsItWas) {
    folder.Write(u"chosen.pdf"_s, "kept");
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    printer.Print(u"Page"_s);
    const QStringList before = folder.Everything();
    {
        const FullDisk disk(1000);
        EXPECT_EQ(FailureOfEndJob(), u"Writing the document %1 failed: File too large"_s.arg(
                                         folder.PathOf(u"chosen.pdf"_s)));
    }
    EXPECT_EQ(folder.Read(u"chosen.pdf"_s), "kept");
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(PagePrinterTest, AFolderInThePlaceOfTheChosenFileFailsAndStays) {
    folder.Write(u"chosen.pdf/inside"_s, "kept");
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    printer.Print(u"Page"_s);
    const QStringList before = folder.Everything();
    EXPECT_EQ(FailureOfEndJob(), u"Writing the document %1 failed: Is a directory"_s.arg(
                                     folder.PathOf(u"chosen.pdf"_s)));
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(PagePrinterTest, AChosenPrinterOnAMachineWithoutOneFails) {
    printer.SendTo({.Printer = u"Laser"_s});
    printer.Print(u"Page"_s);
    const QString failure = FailureOfEndJob();
    EXPECT_TRUE(failure.startsWith(u"Sending \"Tessel Delivery\" to the printer Laser failed: "_s))
        << failure.toStdString();
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_FALSE(folder.Has(u"Papers"_s));
}

TEST_F(PagePrinterTest, NothingIsStoredBeforeTheJobEnds) {
    printer.Print(u"Page"_s);
    printer.NewPage();
    EXPECT_FALSE(folder.Has(u"Papers"_s));
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(PagePrinterTest, AnAbandonedJobLeavesNothing) {
    printer.Print(u"One"_s);
    printer.NewPage();
    printer.Print(u"Two"_s);
    printer.AbandonJob();
    EXPECT_FALSE(folder.Has(u"Papers"_s));
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_EQ(printer.PageNumber(), 1);
    EXPECT_EQ(printer.CurrentX, 0);
    EXPECT_EQ(printer.CurrentY, 0);
}

TEST_F(PagePrinterTest, AJobAfterAnAbandonedOneHasOnlyItsOwnPages) {
    printer.Print(u"Thrown"_s);
    printer.NewPage();
    printer.AbandonJob();
    printer.Print(u"Kept"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Words(1), QStringList{u"Kept"_s});
}

TEST_F(PagePrinterTest, AJobAfterAnEndedOneStartsAfresh) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.SetPage(Orientation::Landscape, true);
    printer.Print(u"One"_s);
    printer.NewPage();
    printer.EndJob();
    EXPECT_EQ(printer.PageNumber(), 1);
    EXPECT_EQ(printer.CurrentX, 0);
    EXPECT_EQ(printer.CurrentY, 0);
    printer.SetPage(Orientation::Portrait, true);
    printer.FontBold = true;
    printer.ForeColor = 0x0000ff;
    printer.Print(u"Two"_s);
    printer.EndJob();
    ASSERT_EQ(opened.size(), 2);
    const PrintedPages pages(opened[1]);
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Words(1), QStringList{u"Two"_s});
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    EXPECT_EQ(pages.Fonts(), QStringList{u"DejaVuSans-Bold"_s});
}

TEST_F(PagePrinterTest, EndingAJobWithNothingOnItPrintsNothing) {
    printer.SetPage(Orientation::Portrait, true);
    printer.EndJob();
    EXPECT_FALSE(folder.Has(u"Papers"_s));
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(PagePrinterTest, MeasuringAloneBeginsNoJob) {
    EXPECT_GT(printer.TextWidth(u"Page"_s), 0);
    printer.EndJob();
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_GT(printer.TextHeight(u"Page"_s), 0);
    printer.SetPage(Orientation::Landscape, true);
    printer.Print(u"Page"_s);
    EXPECT_EQ(Printed().Property(u"Page size"_s), u"792 x 612 pts (letter)"_s);
}

TEST_F(PagePrinterTest, AnEmptyPageIsPrintedWhenAnotherFollows) {
    printer.NewPage();
    printer.EndJob();
    EXPECT_EQ(PrintedPages(opened.value(0)).Count(), 2);
}

TEST_F(PagePrinterTest, ADocumentsFolderThatCannotBeMadeFails) {
    folder.Write(u"Papers"_s, "a file in the way");
    printer.Print(u"Page"_s);
    EXPECT_EQ(FailureOfEndJob(), u"Making the folder %1 failed: Not a directory"_s.arg(
                                     folder.PathOf(u"Papers/Tessel Delivery"_s)));
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_EQ(folder.Read(u"Papers"_s), "a file in the way");
}

TEST_F(PagePrinterTest, ADocumentsFolderThatMayNotBeWrittenFails) {
    folder.MakeFolder(u"Papers/Tessel Delivery"_s);
    DropRootRights(folder);
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(u"Papers/Tessel Delivery"_s),
                                      QFile::ReadOwner | QFile::ExeOwner));
    printer.Print(u"Page"_s);
    EXPECT_EQ(FailureOfEndJob(), u"Writing the document %1 failed: Permission denied"_s.arg(
                                     PathOfDocument(u"Tessel Delivery.pdf"_s)));
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(Documents().isEmpty());
}

TEST_F(PagePrinterTest, AFullDiskFailsAndLeavesNoPartOfTheDocument) {
    printer.Print(u"Page"_s);
    {
        const FullDisk disk(1000);
        EXPECT_EQ(FailureOfEndJob(), u"Writing the document %1 failed: File too large"_s.arg(
                                         PathOfDocument(u"Tessel Delivery.pdf"_s)));
    }
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(Documents().isEmpty());
}

TEST_F(PagePrinterTest, AJobAfterAFailedOneIsPrinted) {
    printer.Print(u"Failed"_s);
    printer.NewPage();
    {
        const FullDisk disk(1000);
        FailureOfEndJob();
    }
    EXPECT_EQ(printer.PageNumber(), 1);
    printer.AbandonJob();
    printer.Print(u"Printed"_s);
    const PrintedPages pages = Printed();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Words(1), QStringList{u"Printed"_s});
}

/// The sample page of the logo, which isn't set up: it comes out the way the last document of the
/// run did.
class SamplePageTest : public PagePrinterTest {
protected:
    SamplePageTest() {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(QColor(255, 0, 0));
        office.settings.logo = {std::make_shared<const QImage>(image), 1440, 1440};
        office.settings.logoWidth = 1440;
        office.settings.logoHeight = 720;
        office.settings.PrintInColorFlag = true;
    }

    /// A document the given way, and the sample page after it.
    PrintedPages PrintedAfter(Orientation orientation, bool inColor) {
        printer.SetPage(orientation, inColor);
        PrintOnePage();
        return PrintedNext();
    }
    PrintedPages PrintedNext() {
        office.logo.PrintSample(printer);
        EXPECT_EQ(Documents().filter(u"Print Sample"_s).size(), 1);
        return PrintedPages(opened.value(opened.size() - 1));
    }

    SetClock clock;
    ScriptedOperator user;
    RecordingBrowser browser;
    FakePictures pictures;
    Office office{folder.Path(), {clock, user, printer, browser, pictures}};
};

TEST_F(SamplePageTest, FirstOfARunIsUprightAndInColor) {
    const PrintedPages pages = PrintedNext();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    const QImage picture = pages.Picture();
    // The logo begins at half of 12,240 less 1,440, and is half an inch high.
    ExpectColorNear(ColorAt(picture, 3.8, 0.6), {255, 0, 0});
    ExpectColorNear(ColorAt(picture, 4.7, 0.95), {255, 0, 0});
    EXPECT_EQ(ColorAt(picture, 3.7, 0.6).name(), u"#ffffff"_s);
    EXPECT_EQ(ColorAt(picture, 3.8, 1.05).name(), u"#ffffff"_s);
    EXPECT_EQ(ColorAt(picture, 2.0, 1.5).name(), u"#0000ff"_s);
    EXPECT_EQ(ColorAt(picture, 2.0, 9.5).name(), u"#000080"_s);
}

TEST_F(SamplePageTest, AfterALandscapePageItLiesOnItsSideTooAndTheLowestFrameIsCutOff) {
    const PrintedPages pages = PrintedAfter(Orientation::Landscape, true);
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"792 x 612 pts (letter)"_s);
    const QImage picture = pages.Picture();
    // The logo begins at half of 15,840 less 1,440.
    ExpectColorNear(ColorAt(picture, 5.05, 0.6), {255, 0, 0});
    EXPECT_EQ(ColorAt(picture, 4.95, 0.6).name(), u"#ffffff"_s);
    EXPECT_EQ(ColorAt(picture, 2.0, 1.5).name(), u"#0000ff"_s);
    // The lowest frame begins 8.25 inches down and would end at 9.5; the paper ends at 8.5.
    EXPECT_EQ(ColorAt(picture, 2.0, 8.25).name(), u"#000080"_s);
    EXPECT_NEAR(InkWithin(picture, {0, 8.3, 11, 0.2}).bottom(), 8.5, nearby);
    EXPECT_NEAR(InkWithin(picture, {0, 0, 11, 8.5}).right(), 7.5, nearby);
}

TEST_F(SamplePageTest, AfterAPageWithoutColorItIsGreyThoughTheFlagSaysColor) {
    const PrintedPages pages = PrintedAfter(Orientation::Portrait, false);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    const QImage picture = pages.Picture();
    ExpectColorNear(ColorAt(picture, 3.8, 0.6), {130, 130, 130});
    EXPECT_EQ(ColorAt(picture, 2.0, 1.5).name(), u"#272727"_s);
    EXPECT_EQ(ColorAt(picture, 2.0, 9.5).name(), u"#141414"_s);
}
