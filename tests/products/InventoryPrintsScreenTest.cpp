#include "ItemBytes.h"
#include "platform/EntryField.h"
#include "platform/Grid.h"
#include "products/frmServices.h"
#include "support/ScreenTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName products = ScreenName::frmServices;

const QString itemsFile = u"NXInventoriedItems.txt"_s;
const QString locationsFile = u"Locations.txt"_s;

} // namespace

/// The products screen over two items, of which each has a category of its own.
class InventoryPrintsScreen : public ScreenTest {
protected:
    InventoryPrintsScreen() {
        folder.Write(itemsFile,
                     ItemBytes{.description = "Gravel"}.Record() +
                         ItemBytes{.description = "Shovel", .category = "Tools"}.Record());
    }

    void Open() {
        screens.Show(products);
        ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(products)));
    }

    QPushButton* Button(int index) {
        return Find<QPushButton>(products, u"cmdServices(%1)"_s.arg(index));
    }
    void ClickButton(int index) { Click(products, u"cmdServices(%1)"_s.arg(index)); }
    EntryField* Tally(int index) {
        return Find<EntryField>(products, u"txtTally(%1)"_s.arg(index));
    }
    QStringList Locations() {
        QStringList texts;
        for (int i = 0; i < 5; ++i)
            texts += Tally(i)->text();
        return texts;
    }
    void EnterLocation(int index, const QString& text) {
        QTest::mouseClick(Tally(index), Qt::LeftButton);
        Type(Tally(index), text);
    }
    QWidget* Frame() { return Find<QWidget>(products, u"fraTallySheets"_s); }
    QWidget* Focus() const { return screens.Find(products)->focusWidget(); }
    void Tick(const QString& box) {
        QTest::mouseClick(Find<QCheckBox>(products, box), Qt::LeftButton, Qt::NoModifier, {8, 8});
    }
    QStringList PlacesOfItems() const { return printer.DrawnTexts().filter(u"Item "_s); }
    bool HasPrinted(const QString& wording) const {
        return std::any_of(printer.Texts.begin(), printer.Texts.end(),
                           [&](const auto& text) { return text.text == wording; });
    }
};

TEST_F(InventoryPrintsScreen, ReportPrintsTheGridAsItStands) {
    Open();
    user.ExpectPrinterDialog(3, PrintDestination{.Copies = 2});
    ClickButton(1);
    EXPECT_EQ(printer.Orientations, std::vector<Orientation>{Orientation::Landscape});
    EXPECT_EQ(
        printer.DrawnTexts().mid(10),
        (QStringList{u"1: 1440,3360 10 Gravel"_s, u"1: 5260,3360 10 $1.00"_s,
                     u"1: 6700,3360 10 $2.00"_s, u"1: 8396,3360 10 7"_s, u"1: 9580,3360 10 $1.50"_s,
                     u"1: 11464,3360 10 12"_s, u"1: 12860,3360 10 5"_s, u"1: 14300,3360 10 2"_s,
                     u"1: 1440,3600 10 Shovel"_s, u"1: 5260,3600 10 $1.00"_s,
                     u"1: 6700,3600 10 $2.00"_s, u"1: 8396,3600 10 7"_s, u"1: 9580,3600 10 $1.50"_s,
                     u"1: 11464,3600 10 12"_s, u"1: 12860,3600 10 5"_s, u"1: 14300,3600 10 2"_s}));
    EXPECT_EQ(printer.Destinations, std::vector<PrintDestination>{{.Copies = 2}});
}

TEST_F(InventoryPrintsScreen, ReportHasTheOrderThatTheGridHasBeenSortedIn) {
    folder.Write(itemsFile, ItemBytes{.description = "Item b", .category = "1"}.Record() +
                                ItemBytes{.description = "Item c", .category = "2"}.Record() +
                                ItemBytes{.description = "Item a", .category = "3"}.Record());
    Open();
    Tick(u"ckByCategory"_s);
    Find<QComboBox>(products, u"lstSortBy"_s)->setCurrentText(u"Description"_s);
    ClickButton(2);
    user.ExpectPrinterDialog(3, PrintDestination{});
    ClickButton(1);
    EXPECT_EQ(PlacesOfItems(),
              (QStringList{u"1: 1440,3360 10 Item a"_s, u"1: 1440,3600 10 Item b"_s,
                           u"1: 1440,3840 10 Item c"_s}));
}

TEST_F(InventoryPrintsScreen, ReportHasTheCategoryThatTheGridHasBeenReloadedWith) {
    folder.Write(itemsFile, ItemBytes{.description = "Item b", .category = "Bulk"}.Record() +
                                ItemBytes{.description = "Item c", .category = "Tools"}.Record() +
                                ItemBytes{.description = "Item a", .category = "Bulk"}.Record());
    Open();
    Tick(u"ckCategory"_s);
    Find<QComboBox>(products, u"cboCategory"_s)->setCurrentText(u"Bulk"_s);
    ClickButton(2);
    user.ExpectPrinterDialog(3, PrintDestination{});
    ClickButton(1);
    EXPECT_EQ(PlacesOfItems(),
              (QStringList{u"1: 1440,3360 10 Item a"_s, u"1: 1440,3600 10 Item b"_s}));
}

TEST_F(InventoryPrintsScreen, ReportIsPrintedWithItsLetterToo) {
    Open();
    user.ExpectPrinterDialog(3, PrintDestination{});
    QTest::keyClick(screens.Find(products), Qt::Key_P, Qt::AltModifier);
    // The button goes down and up again.
    EXPECT_TRUE(QTest::qWaitFor([this] { return printer.Jobs == 1; }));
}

TEST_F(InventoryPrintsScreen, CancelledDialogIsToldAndNothingPrints) {
    Open();
    user.ExpectPrinterDialog(3, std::nullopt);
    user.ExpectMessage(u"The Inventory will not be Printed"_s);
    ClickButton(1);
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(InventoryPrintsScreen, ReportIsClosedWithoutAFileOfItemsUntilTheNextLoad) {
    folder.Remove(itemsFile);
    Open();
    EXPECT_FALSE(Button(1)->isEnabled());
    ClickButton(8);
    for (const auto& [name, text] : {std::pair{u"txtDescription(1)"_s, u"Gravel"_s},
                                     {u"txtCharge(1)"_s, u"2"_s},
                                     {u"txtCharge(2)"_s, u"1"_s},
                                     {u"txtOnHand"_s, u"7"_s}}) {
        auto* field = Find<EntryField>(products, name);
        QTest::mouseClick(field, Qt::LeftButton);
        Type(field, text);
    }
    ClickButton(13);
    EXPECT_TRUE(folder.Has(itemsFile));
    EXPECT_FALSE(Button(1)->isEnabled());
    screens.Destroy(products);
    Open();
    EXPECT_TRUE(Button(1)->isEnabled());
}

TEST_F(InventoryPrintsScreen, ReportStaysOpenWhenTheLastItemIsDeleted) {
    folder.Write(itemsFile, ItemBytes{.description = "Gravel"}.Record());
    Open();
    auto* grid = Find<Grid>(products, u"fgItems"_s);
    ClickCell(grid, 1, 0);
    user.ExpectQuestion(u"This will DELETE the Selected Sales Item"_s, u"Delete Sales Item"_s,
                        Answer::Yes);
    ClickButton(10);
    EXPECT_FALSE(folder.Has(itemsFile));
    EXPECT_TRUE(Button(1)->isEnabled());
    user.ExpectPrinterDialog(3, PrintDestination{});
    ClickButton(1);
    EXPECT_TRUE(HasPrinted(u"Inventory Report"_s));
    EXPECT_FALSE(HasPrinted(u"Gravel"_s));
}

TEST_F(InventoryPrintsScreen, TallyFrameOpensAtTheFirstLocationAndCloses) {
    Open();
    EXPECT_FALSE(Frame()->isVisible());
    ClickButton(3);
    EXPECT_TRUE(Frame()->isVisible());
    EXPECT_TRUE(Find<QWidget>(products, u"fraInventoried"_s)->isVisible());
    EXPECT_EQ(Focus(), Tally(0));
    for (const int index : {4, 5, 6, 7})
        EXPECT_TRUE(Button(index)->isVisible()) << index;
    ClickButton(5);
    EXPECT_FALSE(Frame()->isVisible());
    EXPECT_TRUE(Button(13)->isVisible());
}

TEST_F(InventoryPrintsScreen, TallyFrameCarriesItsTexts) {
    Open();
    const QStringList texts = TextsIn(Frame());
    EXPECT_TRUE(texts.contains(
        u"Enter the name of up to five locations where Inventory is located. Tally Sheets will be "
        "printed with these locations as headings. These can be anything; a warehouse, storage "
        "bins or work vehicles. You can create additional Tally Sheets by Clearing the Locations "
        "and re-entering new locations and printing again."_s));
    for (int i = 1; i <= 5; ++i)
        EXPECT_TRUE(texts.contains(u"Search Location #%1"_s.arg(i))) << i;
}

TEST_F(InventoryPrintsScreen, LocationsOfTheFileStandInTheFrame) {
    folder.Write(locationsFile, "Shed\r\n\r\nYard, back\r\nVan\r\nx\r\n");
    Open();
    EXPECT_EQ(Locations(), (QStringList{u"Shed"_s, QString(), u"Yard"_s, u"back"_s, u"Van"_s}));
}

TEST_F(InventoryPrintsScreen, LocationsFileWithTooFewLinesStopsTheProgram) {
    folder.Write(locationsFile, "Shed\r\n");
    EXPECT_EQ(FailureOf([this] { screens.Show(products); }).Kind(), FailureKind::ReadPastEnd);
    EXPECT_EQ(folder.Read(locationsFile), "Shed\r\n");
}

TEST_F(InventoryPrintsScreen, LocationsAreEnteredWithKeysAndPrintedWithoutBeingSaved) {
    Open();
    ClickButton(3);
    for (const QString& text : {u"Shed"_s, QString(), u"B"_s, QString(), u"Van 2"_s}) {
        Type(Focus(), text);
        Press(Focus(), Qt::Key_Return);
    }
    EXPECT_EQ(Focus(), Button(4));
    user.ExpectPrinterDialog(3, PrintDestination{});
    Press(Focus(), Qt::Key_Return);
    EXPECT_EQ(printer.Jobs, 3);
    for (const QString& location : {u"Location: Shed"_s, u"Location: B"_s, u"Location: Van 2"_s})
        EXPECT_TRUE(HasPrinted(location)) << location.toStdString();
    EXPECT_FALSE(folder.Has(locationsFile));
}

TEST_F(InventoryPrintsScreen, LocationsAreSavedByTheirButtonAndComeBackWithTheScreen) {
    Open();
    ClickButton(3);
    EnterLocation(0, u"Shed"_s);
    QApplication::clipboard()->setText(u"Lager Süd"_s);
    QTest::mouseClick(Tally(4), Qt::LeftButton);
    QTest::keyClick(Tally(4), Qt::Key_V, Qt::ControlModifier);
    ClickButton(7);
    EXPECT_EQ(folder.Read(locationsFile), "Shed\r\n\r\n\r\n\r\nLager S\xfc"
                                          "d\r\n");
    screens.Destroy(products);
    Open();
    EXPECT_EQ(Locations(),
              (QStringList{u"Shed"_s, QString(), QString(), QString(), u"Lager Süd"_s}));
}

TEST_F(InventoryPrintsScreen, ClearBlanksTheLocationsAndLeavesTheFile) {
    folder.Write(locationsFile, "1\r\n2\r\n3\r\n4\r\n5\r\n");
    Open();
    ClickButton(3);
    ClickButton(6);
    EXPECT_EQ(Locations(), (QStringList{QString(), QString(), QString(), QString(), QString()}));
    EXPECT_EQ(folder.Read(locationsFile), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    user.ExpectPrinterDialog(3, PrintDestination{});
    ClickButton(4);
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(InventoryPrintsScreen, LocationsStayWhenTheFrameIsHidden) {
    Open();
    ClickButton(3);
    EnterLocation(0, u"Shed"_s);
    ClickButton(5);
    ClickButton(3);
    EXPECT_EQ(Tally(0)->text(), u"Shed"_s);
}

TEST_F(InventoryPrintsScreen, DiskThatIsFullStopsTheProgramAtTheSave) {
    Open();
    ClickButton(3);
    EnterLocation(0, QString(200, u'x'));
    const FullDisk disk(10);
    ClickButton(7);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::DiskFull);
    Failures().clear();
}
