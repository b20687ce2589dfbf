#include "products/InventoryPrinter.h"

#include "ItemBytes.h"
#include "support/OfficeTest.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString itemsFile = u"NXInventoriedItems.txt"_s;

} // namespace

// At size 10 a character is 100 twips wide and a line 240 high; at size 12 they are 120 and 288.
// Letter paper is 12,240 by 15,840 twips.
class InventoryPrinterTest : public OfficeTest {
protected:
    InventoriedItems& items = office.inventoriedItems;
    std::array<QString, 5>& txtTally = office.tallyLocations.txtTally;

    void Load(const std::vector<ItemBytes>& records) {
        QByteArray bytes;
        for (const ItemBytes& record : records)
            bytes += record.Record();
        folder.Write(itemsFile, bytes);
        items.Load();
    }
    /// "Item 01" and so on.
    void LoadMany(int count) {
        std::vector<ItemBytes> records;
        for (int i = 1; i <= count; ++i)
            records.push_back(
                {.description = "Item " + QByteArray::number(i).rightJustified(2, '0')});
        Load(records);
    }

    void Print(InventoryKind kind) {
        user.ExpectPrinterDialog(3, PrintDestination{.Copies = 3});
        office.inventoryPrinter.PrintInventory(kind);
    }
    void PrintReport() { Print(InventoryKind::Report); }

    /// "page: y" of each item's description.
    QStringList PlacesOfItems() const {
        QStringList places;
        for (const auto& text : printer.Texts) {
            if (text.text.startsWith(u"Item "_s))
                places += u"%1: %2"_s.arg(text.page).arg(text.y);
        }
        return places;
    }
    int TimesPrinted(const QString& wording) const {
        return int(std::count_if(printer.Texts.begin(), printer.Texts.end(),
                                 [&](const auto& text) { return text.text == wording; }));
    }
};

// The report.

TEST_F(InventoryPrinterTest, ReportPrintsEveryCellWhereItBelongs) {
    Load({{.description = "Gravel"}});
    PrintReport();
    EXPECT_EQ(
        printer.DrawnTexts(),
        (QStringList{u"1: 6960,576 12 Inventory Report"_s, u"1: 12960,576 10 Date 3/9/2026"_s,
                     u"1: 1440,2880 10 Description"_s, u"1: 5040,2880 10 Unit Cost"_s,
                     u"1: 6480,2880 10 Sell Price"_s, u"1: 7920,2880 10 On-Hand"_s,
                     u"1: 9360,2880 10 Disc Price"_s, u"1: 11160,2880 10 Disc Qty"_s,
                     u"1: 12240,2880 10 Reorder Qty"_s, u"1: 14040,2880 10 When At"_s,
                     u"1: 1440,3360 10 Gravel"_s, u"1: 5260,3360 10 $1.00"_s,
                     u"1: 6700,3360 10 $2.00"_s, u"1: 8396,3360 10 7"_s, u"1: 9580,3360 10 $1.50"_s,
                     u"1: 11464,3360 10 12"_s, u"1: 12860,3360 10 5"_s, u"1: 14300,3360 10 2"_s}));
    EXPECT_EQ(printer.Orientations, std::vector<Orientation>{Orientation::Landscape});
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.JobNames, std::vector<QString>{u"Inventory Report 2026-03-09"_s});
}

TEST_F(InventoryPrinterTest, ReportOfAGermanOfficeHasItsDateAndAmounts) {
    UseLocale("de_DE.UTF-8");
    Load({{.description = "Kies", .unitCost = 12'345'600}});
    PrintReport();
    EXPECT_EQ(printer.Find(u"Date 09.03.2026"_s).x, 12960);
    // Ten characters, ending at 5,760.
    EXPECT_EQ(printer.Find(u"1.234,56\u00a0€"_s).x, 4760);
    EXPECT_EQ(printer.Find(u"2,00\u00a0€"_s).x, 6600);
    EXPECT_EQ(printer.Find(u"1,50\u00a0€"_s).x, 9480);
}

TEST_F(InventoryPrinterTest, ReportWithAnEmptyGridPrintsTheHeaderOnly) {
    Load({});
    PrintReport();
    EXPECT_EQ(printer.DrawnTexts(),
              (QStringList{u"1: 6960,576 12 Inventory Report"_s, u"1: 12960,576 10 Date 3/9/2026"_s,
                           u"1: 1440,2880 10 Description"_s, u"1: 5040,2880 10 Unit Cost"_s,
                           u"1: 6480,2880 10 Sell Price"_s, u"1: 7920,2880 10 On-Hand"_s,
                           u"1: 9360,2880 10 Disc Price"_s, u"1: 11160,2880 10 Disc Qty"_s,
                           u"1: 12240,2880 10 Reorder Qty"_s, u"1: 14040,2880 10 When At"_s}));
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InventoryPrinterTest, FilteredGridPrintsOnlyThatCategoryInTheOrderOfTheGrid) {
    Load({{.description = "Item 1", .category = "Bulk"},
          {.description = "Item 2", .category = "Tools"},
          {.description = "Item 3", .category = "Bulk"}});
    items.entry.cboCategory = u"Bulk"_s;
    items.ckCategory_Click(true);
    items.ReloadOrSort();
    PrintReport();
    EXPECT_EQ(printer.DrawnTexts().filter(u"Item "_s),
              (QStringList{u"1: 1440,3360 10 Item 1"_s, u"1: 1440,3600 10 Item 3"_s}));
}

TEST_F(InventoryPrinterTest, RowsStandInTheOrderOfTheGridWithoutTheFileBeingRead) {
    Load({{.description = "Item b", .category = "1"}, {.description = "Item a", .category = "2"}});
    folder.Remove(itemsFile);
    items.fgItems.SortAsText(0);
    PrintReport();
    EXPECT_EQ(printer.Find(u"Item a"_s).y, 3360);
    EXPECT_EQ(printer.Find(u"Item b"_s).y, 3600);
    EXPECT_FALSE(folder.Has(itemsFile));
}

TEST_F(InventoryPrinterTest, AfterFiveRowsThereIsABlankLine) {
    LoadMany(12);
    PrintReport();
    EXPECT_EQ(PlacesOfItems(),
              (QStringList{u"1: 3360"_s, u"1: 3600"_s, u"1: 3840"_s, u"1: 4080"_s, u"1: 4320"_s,
                           u"1: 4800"_s, u"1: 5040"_s, u"1: 5280"_s, u"1: 5520"_s, u"1: 5760"_s,
                           u"1: 6240"_s, u"1: 6480"_s}));
}

TEST_F(InventoryPrinterTest, ReportGoesOnWithTheHeaderWhenFiveLinesNoLongerFitAndCountsAnew) {
    // The 28th row stands at 11,040, and five lines below it is the end of the paper exactly.
    LoadMany(34);
    PrintReport();
    const QStringList places = PlacesOfItems();
    ASSERT_EQ(places.size(), 34);
    EXPECT_EQ(places[27], u"1: 11040"_s);
    EXPECT_EQ(places.mid(28), (QStringList{u"2: 3360"_s, u"2: 3600"_s, u"2: 3840"_s, u"2: 4080"_s,
                                           u"2: 4320"_s, u"2: 4800"_s}));
    EXPECT_EQ(TimesPrinted(u"Inventory Report"_s), 2);
    EXPECT_EQ(TimesPrinted(u"Date 3/9/2026"_s), 2);
    EXPECT_EQ(TimesPrinted(u"When At"_s), 2);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InventoryPrinterTest, ReportThatFillsItsPageHasNoOtherOne) {
    LoadMany(28);
    PrintReport();
    EXPECT_EQ(PlacesOfItems().last(), u"1: 11040"_s);
    EXPECT_EQ(TimesPrinted(u"Inventory Report"_s), 1);
}

// The heading.

TEST_F(InventoryPrinterTest, BusinessHeadingStandsOnEveryPageOfABusinessWithData) {
    office.settings.BusinessData = {
        u"Tessel Gravel"_s, u"1 Quarry Road"_s, u"Building 2"_s, u"Springfield"_s, u"IL"_s,
        u"62701"_s,         u"555-0100"_s,      u"555-0101"_s,   u"Tax 99"_s};
    folder.Write(u"MyBusinessData.txt"_s, "its lines are not read here");
    LoadMany(29);
    PrintReport();
    const QStringList drawn = printer.DrawnTexts();
    EXPECT_EQ(
        drawn.mid(0, 9),
        (QStringList{u"1: 1440,936 10b Tessel Gravel"_s, u"1: 1440,1176 10 1 Quarry Road"_s,
                     u"1: 1440,1416 10 Building 2"_s, u"1: 1440,1656 10 Springfield, IL. 62701"_s,
                     u"1: 1440,1896 10 Telephone: 555-0100"_s, u"1: 1440,2136 10 555-0101"_s,
                     u"1: 1440,2376 10 Tax 99"_s, u"1: 6960,576 12 Inventory Report"_s,
                     u"1: 12960,576 10 Date 3/9/2026"_s}));
    EXPECT_TRUE(drawn.contains(u"2: 1440,936 10b Tessel Gravel"_s));
}

TEST_F(InventoryPrinterTest, BusinessHeadingStandsOnEveryPageOfEveryTallySheetToo) {
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    folder.Write(u"MyBusinessData.txt"_s, "its lines are not read here");
    LoadMany(41);
    txtTally = {u"Shed"_s, u"Yard"_s};
    Print(InventoryKind::TallySheet);
    EXPECT_EQ(
        printer.DrawnTexts().filter(u"Tessel Gravel"_s),
        (QStringList{u"1: 1440,936 10b Tessel Gravel"_s, u"2: 1440,936 10b Tessel Gravel"_s,
                     u"1: 1440,936 10b Tessel Gravel"_s, u"2: 1440,936 10b Tessel Gravel"_s}));
    EXPECT_EQ(printer.Jobs, 2);
}

TEST_F(InventoryPrinterTest, NothingOfTheReportOrTheSheetsIsUnderlined) {
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    folder.Write(u"MyBusinessData.txt"_s, "its lines are not read here");
    LoadMany(41);
    txtTally = {u"Shed"_s};
    PrintReport();
    Print(InventoryKind::TallySheet);
    EXPECT_GT(printer.Texts.size(), 8U * 41);
    for (const auto& text : printer.Texts)
        EXPECT_FALSE(text.underline) << text.text.toStdString();
}

TEST_F(InventoryPrinterTest, WithoutTheFileOfTheBusinessThereIsNoBusinessHeading) {
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    Load({});
    PrintReport();
    EXPECT_EQ(TimesPrinted(u"Tessel Gravel"_s), 0);
}

TEST_F(InventoryPrinterTest, LostFileOfTheBusinessComesBackFromBackup) {
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    folder.Write(u"Backup/MyBusinessData.txt"_s, "kept");
    Load({});
    PrintReport();
    EXPECT_EQ(TimesPrinted(u"Tessel Gravel"_s), 1);
    EXPECT_EQ(folder.Read(u"MyBusinessData.txt"_s), "kept");
}

TEST_F(InventoryPrinterTest, PrintSettingsHoldForTheInventoryToo) {
    office.settings.DocumentFont = u"Courier"_s;
    office.settings.ckColor = 1;
    office.settings.BusinessData[0] = u"Tessel Gravel"_s;
    folder.Write(u"MyBusinessData.txt"_s, "x");
    Load({{.description = "Gravel"}});
    PrintReport();
    EXPECT_EQ(printer.Colors, std::vector<bool>{true});
    EXPECT_EQ(printer.Find(u"Gravel"_s).fontName, u"Courier"_s);
    EXPECT_EQ(printer.Find(u"Gravel"_s).color, 0xff0000U);
    office.settings.ckColor = 0;
    printer.Texts.clear();
    PrintReport();
    EXPECT_EQ(printer.Colors, (std::vector<bool>{true, false}));
    EXPECT_EQ(printer.Find(u"Gravel"_s).color, 0U);
}

// Tally sheets.

TEST_F(InventoryPrinterTest, TallySheetPrintsEveryCellWhereItBelongs) {
    Load({{.description = "Gravel", .reorderPoint = 25}});
    txtTally = {u"Shed"_s};
    Print(InventoryKind::TallySheet);
    // The date stands beside the paper, which is 12,240 wide.
    EXPECT_EQ(printer.DrawnTexts(),
              (QStringList{u"1: 4860,576 12 Inventory Tally Sheet"_s,
                           u"1: 8280,576 12 Location: Shed"_s, u"1: 12960,576 10 Date 3/9/2026"_s,
                           u"1: 1440,2880 10 Description"_s, u"1: 5760,2880 10 On-Hand Count"_s,
                           u"1: 8640,2880 10 Reorder When At"_s, u"1: 1440,3360 10 Gravel"_s,
                           u"1: 5760,3360 10 _______________"_s, u"1: 9160,3360 10 25"_s}));
    EXPECT_EQ(printer.Orientations, std::vector<Orientation>{Orientation::Portrait});
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InventoryPrinterTest, EachLocationIsADocumentOfItsOwnInOrderAndABlankOneIsSkipped) {
    Load({{.description = "Gravel"}});
    txtTally = {u"Shed"_s, QString(), u"B"_s, QString(), u"Van 2"_s};
    Print(InventoryKind::TallySheet);
    EXPECT_EQ(printer.Jobs, 3);
    EXPECT_EQ(printer.JobNames,
              (std::vector<QString>{u"Inventory Tally Sheet 2026-03-09 Shed"_s,
                                    u"Inventory Tally Sheet 2026-03-09 B"_s,
                                    u"Inventory Tally Sheet 2026-03-09 Van 2"_s}));
    EXPECT_EQ(printer.DrawnTexts().filter(u"Location"_s),
              (QStringList{u"1: 8280,576 12 Location: Shed"_s, u"1: 8280,576 12 Location: B"_s,
                           u"1: 8280,576 12 Location: Van 2"_s}));
    EXPECT_EQ(printer.DrawnTexts().filter(u"Gravel"_s),
              (QStringList{u"1: 1440,3360 10 Gravel"_s, u"1: 1440,3360 10 Gravel"_s,
                           u"1: 1440,3360 10 Gravel"_s}));
}

TEST_F(InventoryPrinterTest, AllDocumentsOfTheSheetsGoWhereTheOperatorChoseOnce) {
    Load({});
    txtTally = {u"Shed"_s, u"Yard"_s};
    const PrintDestination chosen{.Printer = u"Laser"_s, .Copies = 2};
    user.ExpectPrinterDialog(3, chosen);
    office.inventoryPrinter.PrintInventory(InventoryKind::TallySheet);
    EXPECT_EQ(printer.Destinations, (std::vector<PrintDestination>{chosen, chosen}));
    EXPECT_EQ(printer.Destination(), PrintDestination{.Printer = u"Laser"_s});
    EXPECT_EQ(user.PrinterDialogs, (std::vector<std::pair<QString, QString>>{
                                       {QString(), u"Inventory Tally Sheet 2026-03-09"_s}}));
}

TEST_F(InventoryPrinterTest, WithoutALocationNothingPrints) {
    Load({{.description = "Gravel"}});
    Print(InventoryKind::TallySheet);
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(InventoryPrinterTest, LocationPrintsOnEveryPageOfItsSheet) {
    LoadMany(41);
    txtTally = {u"Shed"_s};
    Print(InventoryKind::TallySheet);
    const QStringList places = PlacesOfItems();
    ASSERT_EQ(places.size(), 41);
    EXPECT_EQ(places[39], u"1: 14400"_s);
    EXPECT_EQ(places[40], u"2: 3360"_s);
    EXPECT_EQ(
        printer.DrawnTexts().filter(u"Location"_s),
        (QStringList{u"1: 8280,576 12 Location: Shed"_s, u"2: 8280,576 12 Location: Shed"_s}));
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InventoryPrinterTest, SheetCountsItsBlankLinesAnewOnEachPage) {
    // The 7th row stands at 5,040, and five lines below it is the end of the paper exactly.
    printer.LongSide = 5040 + 1200;
    LoadMany(13);
    txtTally = {u"Shed"_s};
    Print(InventoryKind::TallySheet);
    EXPECT_EQ(PlacesOfItems(),
              (QStringList{u"1: 3360"_s, u"1: 3600"_s, u"1: 3840"_s, u"1: 4080"_s, u"1: 4320"_s,
                           u"1: 4800"_s, u"1: 5040"_s, u"2: 3360"_s, u"2: 3600"_s, u"2: 3840"_s,
                           u"2: 4080"_s, u"2: 4320"_s, u"2: 4800"_s}));
}

TEST_F(InventoryPrinterTest, LocationOfBlanksIsNotEmptyAndHasItsSheet) {
    Load({});
    txtTally = {u"  "_s};
    Print(InventoryKind::TallySheet);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(TimesPrinted(u"Location:   "_s), 1);
}

TEST_F(InventoryPrinterTest, SheetOfAnEmptyGridPrintsItsHeader) {
    Load({});
    txtTally = {u"Shed"_s};
    Print(InventoryKind::TallySheet);
    EXPECT_EQ(printer.Texts.size(), 6U);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InventoryPrinterTest, SheetCountsItsBlankLinesAnewInEachDocument) {
    LoadMany(6);
    txtTally = {u"Shed"_s, u"Yard"_s};
    Print(InventoryKind::TallySheet);
    const QStringList once = {u"1: 3360"_s, u"1: 3600"_s, u"1: 3840"_s,
                              u"1: 4080"_s, u"1: 4320"_s, u"1: 4800"_s};
    EXPECT_EQ(PlacesOfItems(), once + once);
}

// Failures.

TEST_F(InventoryPrinterTest, CancelledDialogIsToldAndNothingPrints) {
    Load({{.description = "Gravel"}});
    txtTally = {u"Shed"_s};
    for (const InventoryKind kind : {InventoryKind::Report, InventoryKind::TallySheet}) {
        user.ExpectPrinterDialog(3, std::nullopt);
        user.ExpectMessage(u"The Inventory will not be Printed"_s);
        office.inventoryPrinter.PrintInventory(kind);
        user.ExpectNothingLeft();
    }
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_TRUE(printer.Orientations.empty());
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_TRUE(user.BusyChanges.empty());
}

TEST_F(InventoryPrinterTest, PrinterThatFailsInMidPageIsToldAndThePageThrownAway) {
    Load({{.description = "Gravel"}});
    printer.FailingText = 12;
    user.ExpectPrinterDialog(3, PrintDestination{});
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    office.inventoryPrinter.PrintInventory(InventoryKind::Report);
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_EQ(user.BusyChanges, (std::vector<bool>{true, false}));
}

TEST_F(InventoryPrinterTest, FailureAtTheSecondSheetKeepsTheFirstAndPrintsNoThird) {
    Load({});
    txtTally = {u"Shed"_s, u"Yard"_s, u"Van"_s};
    // A header has six texts.
    printer.FailingText = 8;
    user.ExpectPrinterDialog(3, PrintDestination{});
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    office.inventoryPrinter.PrintInventory(InventoryKind::TallySheet);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_EQ(TimesPrinted(u"Location: Van"_s), 0);
}

TEST_F(InventoryPrinterTest, FailureAtTheEndOfTheJobIsToldToo) {
    Load({});
    printer.FailsAtEndOfJob = true;
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    PrintReport();
    EXPECT_EQ(printer.AbandonedJobs, 1);
}

TEST_F(InventoryPrinterTest, PrintingWritesNothing) {
    Load({{.description = "Gravel"}});
    txtTally = {u"Shed"_s};
    const auto before = folder.Contents();
    PrintReport();
    Print(InventoryKind::TallySheet);
    EXPECT_EQ(folder.Contents(), before);
}
