#include "schedule/WeeklySchedulePrinter.h"

#include "schedule/ScheduleTest.h"

using namespace Qt::StringLiterals;

// The recording printer's characters are 140 twips wide and 336 high at size 14, 120 and 288 at
// size 12, 100 and 240 at size 10. The paper lies on its side: 15840 twips wide, 12240 high. A row
// takes 312 twips, every fifth one 552; the first stands at 2592.

class WeeklySchedulePrinterTest : public ScheduleTest {
protected:
    WeeklySchedulePrinterTest() {
        office.settings.BusinessData = {
            u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
            u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    }

    void StoreSlips(int count) const {
        for (int i = 1; i <= count; ++i)
            StoreSlip({.number = QString::number(1000 + i)});
    }

    void Load() {
        office.weekly.Load();
        office.weekly.LoadGrid();
    }

    void Print() { office.weeklyPrinter.PrintWeeklySchedule(); }

    void LoadAndPrint(int slips) {
        StoreSlips(slips);
        Load();
        Print();
    }

    void ExpectPrintError() {
        user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    }

    QStringList TextsOfPage(int page) const {
        return DrawnTexts().filter(QString::number(page) + u": "_s);
    }

    /// Where the delivery numbers of a page stand.
    QStringList PlacesOfRows(int page) const { return TextsOfPage(page).filter(u": 1584,"_s); }

    static QStringList Heading(int page, const QString& title) {
        QStringList texts;
        for (const char* text :
             {"10080,720 14b Report Date 3/9/2026", "1440,720 12b Tessel Gravel",
              "1440,1008 10 1 Quarry Road", "1440,1248 10 Building 2",
              "1440,1488 10 Springfield, IL. 62701", "1440,1728 10 Telephone: 555-0100",
              "1440,1968 10 555-0101", "1440,2208 10 Tax 99", "5760,720 10 Starting Date ",
              "5760,960 10 Ending Date ", "7560,720 10b 3/9/2026", "7560,960 10b 4/9/2026",
              "1440,2304 10b Delivery No.", "3168,2304 10b Account No",
              "5400,2304 10b Account Name", "7920,2304 10b Delivery Date",
              "9648,2304 10b Time Scheduled", "11808,2304 10b Vehicle"})
            texts += QStringLiteral("%1: %2").arg(page).arg(QString::fromLatin1(text));
        return QStringList{title} + texts;
    }

    // 34 and 33 characters, centred on 12240 twips.
    const QStringList firstHeading =
        Heading(1, u"1: 3740,288 14b Scheduled Deliveries by Date Range"_s);
    const QStringList secondHeading =
        Heading(2, u"2: 3810,288 14b Scheduled Delveries by Date Range"_s);
};

TEST_F(WeeklySchedulePrinterTest, PageHasItsHeadingAndALineForEachDelivery) {
    StoreSlip({.number = u"20260014"_s});
    StoreSlip({.number = u"20260015"_s,
               .customer = u"Baker, Ann"_s,
               .time = u"07.15am"_s,
               .date = u"3/20/2026"_s,
               .vehicle = u"Van 2"_s,
               .account = u"4472"_s});
    Load();
    Print();
    EXPECT_EQ(DrawnTexts(),
              firstHeading +
                  QStringList({u"1: 1584,2592 10 20260014"_s, u"1: 3168,2592 10 4471"_s,
                               u"1: 5400,2592 10 Corner Grocery"_s, u"1: 8064,2592 10 3/16/2026"_s,
                               u"1: 9936,2592 10 08:30am"_s, u"1: 11664,2592 10 Flatbed Truck"_s,
                               u"1: 1584,2904 10 20260015"_s, u"1: 3168,2904 10 4472"_s,
                               u"1: 5400,2904 10 Baker, Ann"_s, u"1: 8064,2904 10 3/20/2026"_s,
                               u"1: 9936,2904 10 07.15am"_s, u"1: 11664,2904 10 Van 2"_s}));
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_TRUE(printer.Lines.empty());
}

TEST_F(WeeklySchedulePrinterTest, PaperLiesOnItsSide) {
    LoadAndPrint(1);
    EXPECT_EQ(printer.Orientations, std::vector<Orientation>{Orientation::Landscape});
    EXPECT_EQ(printer.Colors, std::vector<bool>{false});
}

TEST_F(WeeklySchedulePrinterTest, TextIsBlueWhenColourPrintingIsOn) {
    office.settings.ckColor = 1;
    LoadAndPrint(1);
    EXPECT_EQ(printer.Colors, std::vector<bool>{true});
    for (const auto& text : printer.Texts)
        EXPECT_EQ(text.color, 16711680U) << text.text.toStdString();
}

TEST_F(WeeklySchedulePrinterTest, TextIsBlackAndInTheDocumentFontOtherwise) {
    office.settings.DocumentFont = u"Courier"_s;
    LoadAndPrint(1);
    EXPECT_EQ(printer.Texts.size(), 25U);
    for (const auto& text : printer.Texts) {
        EXPECT_EQ(text.color, 0U) << text.text.toStdString();
        EXPECT_EQ(text.fontName, u"Courier"_s);
    }
}

TEST_F(WeeklySchedulePrinterTest, TitleAndColumnHeadingsOfEveryPageAreUnderlinedAndNothingElse) {
    LoadAndPrint(26);
    QStringList underlined;
    for (const auto& text : printer.Texts) {
        if (text.underline)
            underlined += QString::number(text.page) + u' ' + text.text;
    }
    EXPECT_EQ(underlined,
              (QStringList{u"1 Scheduled Deliveries by Date Range"_s, u"1 Delivery No."_s,
                           u"1 Account No"_s, u"1 Account Name"_s, u"1 Delivery Date"_s,
                           u"1 Time Scheduled"_s, u"1 Vehicle"_s,
                           u"2 Scheduled Delveries by Date Range"_s, u"2 Delivery No."_s,
                           u"2 Account No"_s, u"2 Account Name"_s, u"2 Delivery Date"_s,
                           u"2 Time Scheduled"_s, u"2 Vehicle"_s}));
}

TEST_F(WeeklySchedulePrinterTest, HeadingShowsTheRangeOfTheFieldsAndToday) {
    UseLocale("de_DE.UTF-8");
    Load();
    office.weekly.DTStarting = {2026, 5, 1};
    office.weekly.DTEnding = {2026, 12, 31};
    Print();
    EXPECT_EQ(printer.Find(u"Report Date 09.03.2026"_s).x, 10080);
    EXPECT_EQ(printer.Find(u"01.05.2026"_s).y, 720);
    EXPECT_EQ(printer.Find(u"31.12.2026"_s).y, 960);
}

TEST_F(WeeklySchedulePrinterTest, EmptyRangePrintsItsHeadingAlone) {
    LoadAndPrint(0);
    EXPECT_EQ(DrawnTexts(), firstHeading);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(WeeklySchedulePrinterTest, EveryFifthRowIsFollowedByAnEmptyLine) {
    LoadAndPrint(11);
    EXPECT_EQ(PlacesOfRows(1), (QStringList{u"1: 1584,2592 10 1001"_s, u"1: 1584,2904 10 1002"_s,
                                            u"1: 1584,3216 10 1003"_s, u"1: 1584,3528 10 1004"_s,
                                            u"1: 1584,3840 10 1005"_s, u"1: 1584,4392 10 1006"_s,
                                            u"1: 1584,4704 10 1007"_s, u"1: 1584,5016 10 1008"_s,
                                            u"1: 1584,5328 10 1009"_s, u"1: 1584,5640 10 1010"_s,
                                            u"1: 1584,6192 10 1011"_s}));
}

// 24 rows and the 4 empty lines among them end at 10968, which is 1272 above the page's end: row 25
// stands there. Row 26 would begin at 11520.

TEST_F(WeeklySchedulePrinterTest, PageEndsBeforeARowThatWouldComeTooNearItsEnd) {
    LoadAndPrint(26);
    EXPECT_EQ(PlacesOfRows(1).size(), 25);
    EXPECT_EQ(PlacesOfRows(1).last(), u"1: 1584,11040 10 1025"_s);
    EXPECT_EQ(TextsOfPage(2),
              secondHeading +
                  QStringList({u"2: 1584,2592 10 1026"_s, u"2: 3168,2592 10 4471"_s,
                               u"2: 5400,2592 10 Corner Grocery"_s, u"2: 8064,2592 10 3/16/2026"_s,
                               u"2: 9936,2592 10 08:30am"_s, u"2: 11664,2592 10 Flatbed Truck"_s}));
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(WeeklySchedulePrinterTest, PageThatIsJustFullHasNoEmptyPageBehindIt) {
    LoadAndPrint(25);
    EXPECT_TRUE(TextsOfPage(2).isEmpty());
}

TEST_F(WeeklySchedulePrinterTest, RowThatReachesTheBottomMarginExactlyGoesToTheNextPage) {
    // The second row starts at 2832: with 1080 it reaches 3912.
    printer.ShortSide = 3912;
    LoadAndPrint(2);
    EXPECT_EQ(PlacesOfRows(1).size(), 1);
    EXPECT_EQ(PlacesOfRows(2), QStringList{u"2: 1584,2592 10 1002"_s});
    printer.Texts.clear();
    printer.ShortSide = 3913;
    Print();
    EXPECT_EQ(PlacesOfRows(1).size(), 2);
}

TEST_F(WeeklySchedulePrinterTest, EveryPageButTheFirstHasTheMisspeltTitle) {
    LoadAndPrint(80);
    QStringList titles;
    for (const auto& text : printer.Texts) {
        if (text.text.startsWith("Scheduled Del"_L1))
            titles += QString::number(text.page) + u' ' + text.text;
    }
    EXPECT_EQ(titles, (QStringList{u"1 Scheduled Deliveries by Date Range"_s,
                                   u"2 Scheduled Delveries by Date Range"_s,
                                   u"3 Scheduled Delveries by Date Range"_s,
                                   u"4 Scheduled Delveries by Date Range"_s}));
}

TEST_F(WeeklySchedulePrinterTest, GroupsOfFiveGoOnAcrossPages) {
    // A row begins above 3768: 1 to 4 on the first page, 5 to 8 on the second, with the empty line
    // behind 5.
    printer.ShortSide = 4848;
    LoadAndPrint(9);
    EXPECT_EQ(PlacesOfRows(1).size(), 4);
    EXPECT_EQ(PlacesOfRows(2), (QStringList{u"2: 1584,2592 10 1005"_s, u"2: 1584,3144 10 1006"_s,
                                            u"2: 1584,3456 10 1007"_s, u"2: 1584,3768 10 1008"_s}));
    EXPECT_EQ(PlacesOfRows(3), QStringList{u"3: 1584,2592 10 1009"_s});
}

TEST_F(WeeklySchedulePrinterTest, NoTextOfALongListLeavesThePaper) {
    LoadAndPrint(200);
    int rows = 0;
    for (const auto& text : printer.Texts) {
        EXPECT_LE(text.y + 24.0 * text.fontSize, 12240) << text.text.toStdString();
        rows += text.text == "Corner Grocery"_L1 ? 1 : 0;
    }
    EXPECT_EQ(rows, 200);
}

TEST_F(WeeklySchedulePrinterTest, JobIsNamedAfterTheRange) {
    LoadAndPrint(1);
    EXPECT_EQ(printer.JobName, u"Scheduled deliveries 2026-03-09 to 2026-04-09"_s);
}

TEST_F(WeeklySchedulePrinterTest, PrintChangesNothingOnDisk) {
    StoreSlips(3);
    Load();
    const auto before = folder.Contents();
    Print();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(WeeklySchedulePrinterTest, HourglassShowsWhileTheListIsPrinted) {
    StoreSlips(1);
    Load();
    user.BusyChanges.clear();
    Print();
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(WeeklySchedulePrinterTest, PrinterThatFailsAtAnyTextIsToldAndTheJobAbandoned) {
    StoreSlips(1);
    Load();
    for (int failing = 1; failing <= 25; ++failing) {
        printer.Texts.clear();
        printer.FailingText = failing;
        user.BusyChanges.clear();
        ExpectPrintError();
        Print();
        user.ExpectNothingLeft();
        EXPECT_EQ(printer.AbandonedJobs, failing);
        EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
    }
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(WeeklySchedulePrinterTest, PrintCancelledAtAnyTextIsPassedOverInSilence) {
    StoreSlips(1);
    Load();
    printer.FailsAsCancelled = true;
    for (int failing = 1; failing <= 25; ++failing) {
        printer.Texts.clear();
        printer.FailingText = failing;
        Print();
        EXPECT_EQ(printer.AbandonedJobs, failing);
    }
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(WeeklySchedulePrinterTest, PrinterThatFailsAtTheEndOfTheJobIsTold) {
    StoreSlips(1);
    Load();
    printer.FailsAtEndOfJob = true;
    ExpectPrintError();
    Print();
    EXPECT_EQ(printer.AbandonedJobs, 1);
}

TEST_F(WeeklySchedulePrinterTest, PrintAfterAFailureIsWhole) {
    StoreSlips(30);
    Load();
    printer.FailingText = 190;
    ExpectPrintError();
    Print();
    printer.Texts.clear();
    printer.FailingText.reset();
    Print();
    EXPECT_EQ(TextsOfPage(1).mid(0, firstHeading.size()), firstHeading);
    EXPECT_EQ(PlacesOfRows(1).size() + PlacesOfRows(2).size(), 30);
    EXPECT_EQ(printer.Jobs, 1);
}
