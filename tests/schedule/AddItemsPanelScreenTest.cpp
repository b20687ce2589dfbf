#include "platform/Grid.h"
#include "platform/Screen.h"
#include "products/ItemBytes.h"
#include "support/SampleSlips.h"
#include "support/ScreenTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName board = ScreenName::frmPrintSchedules;
constexpr int selectColumn = 0;
constexpr int customerColumn = 1;
constexpr int quantityColumn = 1;

} // namespace

/// Two deliveries of today for Van 2, and the products Salt, Gravel and Sand.
class AddItemsPanelScreen : public ScreenTest {
protected:
    void Open() {
        office.settings.ckApply1stTax = 0;
        office.settings.ckApply2ndTax = 0;
        office.settings.ckDelete = 0;
        WriteVehicles(office, {u"Van 2"_s});
        for (const QString& number : {u"501"_s, u"502"_s})
            WriteSlip(folder, {.number = number,
                               .date = u"3/9/2026"_s,
                               .recurring = u"False"_s,
                               .vehicle = u"Van 2"_s});
        folder.Write(u"NXInventoriedItems.txt"_s,
                     ItemBytes{.description = "Salt", .sellPrice = 70'000}.Record() +
                         ItemBytes{.description = "Gravel", .sellPrice = 50'000}.Record() +
                         ItemBytes{.description = "Sand", .sellPrice = 23'500}.Record());
        office.items.RefreshAll();
        screens.Show(board);
        grid = Find<Grid>(board, u"fgSchedule"_s);
        products = Find<Grid>(board, u"fgAddItems"_s);
        quantity = Find<QLineEdit>(board, u"txtQuantity"_s);
        panel = Find<Card>(board, u"fraAddItems"_s);
    }
    void OpenPanel() {
        Open();
        ClickCell(grid, 1, customerColumn);
        Click(board, u"cmdPrint(4)"_s);
    }
    /// A click on a product, a quantity, and "Add to Grid".
    void Enter(int row, const QString& text) {
        ClickCell(products, row, selectColumn);
        Type(quantity, text);
        Click(board, u"cmdPrint(11)"_s);
    }
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(quantity, Qt::Key_V, Qt::ControlModifier);
    }

    QPushButton* Button(int index) {
        return Find<QPushButton>(board, u"cmdPrint(%1)"_s.arg(index));
    }
    QString Caption(const QString& name) { return Find<QLabel>(board, name)->text(); }
    QString Product(int row, int column) { return office.items.fgAddItems.Text(row, column); }
    QWidget* Focus() { return screens.Find(board)->focusWidget(); }

    Grid* grid = nullptr;
    Grid* products = nullptr;
    QLineEdit* quantity = nullptr;
    Card* panel = nullptr;
};

TEST_F(AddItemsPanelScreen, ControlsCarryTheirTexts) {
    Open();
    const std::pair<int, QString> captions[] = {{4, u"Add Items"_s},
                                                {8, u"Save Slip"_s},
                                                {9, u"Add Items to Delivery Slip"_s},
                                                {10, u"Close Window without Adding Items"_s},
                                                {11, u"Add to Grid"_s},
                                                {13, u"Cancel Add Item"_s}};
    for (const auto& [index, caption] : captions)
        EXPECT_EQ(Button(index)->text(), caption);
    EXPECT_EQ(panel->Heading()->text(), u"Add Items to Current Delivery"_s);
    const QStringList texts = TextsIn(panel);
    EXPECT_TRUE(texts.contains(u"Items will be Added to This Delivery Only"_s));
    EXPECT_TRUE(
        texts.contains(u"If Delivery is reucurring, item will not be added to next Delivery"_s));
}

TEST_F(AddItemsPanelScreen, PanelIsHiddenAndNothingCanBeSavedAtTheStart) {
    Open();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(Button(8)->isEnabled());
}

TEST_F(AddItemsPanelScreen, ItemsCanBeAddedOnceADeliveryHasBeenPicked) {
    Open();
    EXPECT_FALSE(Button(4)->isEnabled());
    EXPECT_EQ(Button(4)->toolTip(), u"Pick a delivery first"_s);
    ClickCell(grid, 1, customerColumn);
    EXPECT_TRUE(Button(4)->isEnabled());
    EXPECT_EQ(Button(4)->toolTip(), QString());
}

TEST_F(AddItemsPanelScreen, AddItemsShowsTheProductsWithTheSlipsQuantities) {
    OpenPanel();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(products->isVisible());
    EXPECT_FALSE(quantity->isVisible());
    EXPECT_EQ(Focus(), products);
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_EQ(Product(2, quantityColumn), u"3"_s);
    EXPECT_EQ(quantity->text(), u"0"_s);
}

TEST_F(AddItemsPanelScreen, PanelLeavesTheSlipPanelAsItStands) {
    Open();
    ClickCell(grid, 1, selectColumn);
    Click(board, u"cmdPrint(12)"_s);
    Click(board, u"cmdPrint(4)"_s);
    EXPECT_TRUE(Find<Card>(board, u"fraSlip"_s)->isVisible());
    Click(board, u"cmdPrint(10)"_s);
    EXPECT_TRUE(Find<Card>(board, u"fraSlip"_s)->isVisible());
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(AddItemsPanelScreen, BothPanelsFitIntoASmallWindow) {
    Open();
    Screen* screen = screens.Find(board);
    screen->resize(1024, 768);
    ClickCell(grid, 1, selectColumn);
    Click(board, u"cmdPrint(12)"_s);
    Click(board, u"cmdPrint(4)"_s);
    QCoreApplication::processEvents();
    const QRect window = screen->rect();
    for (QWidget* part : std::initializer_list<QWidget*>{panel, grid, Button(9), Button(3)}) {
        const QRect place(part->mapTo(screen, QPoint()), part->size());
        EXPECT_TRUE(window.contains(place)) << part->objectName().toStdString();
        EXPECT_FALSE(part->visibleRegion().isEmpty());
        EXPECT_EQ(part->visibleRegion().boundingRect(), part->rect())
            << part->objectName().toStdString();
    }
}

TEST_F(AddItemsPanelScreen, ChoicesForThePrintStandBackWhileItemsAreAdded) {
    OpenPanel();
    EXPECT_FALSE(Find<QWidget>(board, u"optTax(0)"_s)->isVisible());
    Click(board, u"cmdPrint(10)"_s);
    EXPECT_TRUE(Find<QWidget>(board, u"optTax(0)"_s)->isVisible());
}

TEST_F(AddItemsPanelScreen, ClickOnAProductHidesTheProductsAndGoesToTheQuantity) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    EXPECT_FALSE(products->isVisible());
    EXPECT_TRUE(quantity->isVisible());
    EXPECT_EQ(Focus(), quantity);
    EXPECT_EQ(quantity->text(), u"0"_s);
    EXPECT_TRUE(TextsIn(panel).contains(u"Salt"_s));
    EXPECT_EQ(Product(1, selectColumn), u" \u00ab"_s);
}

TEST_F(AddItemsPanelScreen, ClickOnAQuantityTakesItAlong) {
    OpenPanel();
    ClickCell(products, 2, quantityColumn);
    EXPECT_EQ(quantity->text(), u"3"_s);
    EXPECT_EQ(Focus(), quantity);
}

TEST_F(AddItemsPanelScreen, ClickInAnotherColumnKeepsTheProducts) {
    OpenPanel();
    ClickCell(products, 2, 2);
    EXPECT_TRUE(products->isVisible());
    EXPECT_EQ(Product(2, selectColumn), QString());
}

TEST_F(AddItemsPanelScreen, SpaceMarksAndEnterGoesToTheQuantity) {
    OpenPanel();
    products->setFocus();
    office.items.fgAddItems.SetCurrent(1, 0);
    Press(products, Qt::Key_Down);
    Press(products, Qt::Key_Space);
    EXPECT_EQ(Product(2, selectColumn), u" \u00ab"_s);
    EXPECT_EQ(quantity->text(), u"0"_s);
    user.ExpectQuestion(u"Do you want to Clear this Item?"_s, u"Clear Item"_s, Answer::No);
    Click(board, u"cmdPrint(13)"_s);
    EXPECT_EQ(Focus(), products);
    Press(products, Qt::Key_Return);
    EXPECT_EQ(quantity->text(), u"3"_s);
    EXPECT_EQ(Focus(), quantity);
}

TEST_F(AddItemsPanelScreen, OtherKeysInTheProductsDoNothing) {
    OpenPanel();
    Type(products, u"x5"_s);
    Press(products, Qt::Key_Backspace);
    EXPECT_TRUE(products->isVisible());
    EXPECT_EQ(Product(1, quantityColumn), QString());
}

TEST_F(AddItemsPanelScreen, TypedQuantityReplacesThe0) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    quantity->deselect();
    quantity->end(false);
    Type(quantity, u"12.5"_s);
    EXPECT_EQ(quantity->text(), u"12.5"_s);
    Click(board, u"cmdPrint(11)"_s);
    EXPECT_EQ(Product(1, quantityColumn), u"12.5"_s);
    EXPECT_EQ(Product(1, 4), u"$87.50"_s);
    EXPECT_TRUE(products->isVisible());
    EXPECT_EQ(Focus(), products);
    EXPECT_EQ(quantity->text(), u"0"_s);
}

TEST_F(AddItemsPanelScreen, QuantityRefusesLettersAZeroInFrontAndASecondPointWithABeep) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    Type(quantity, u"0"_s);
    EXPECT_EQ(quantity->text(), QString());
    EXPECT_EQ(user.Beeps, 1);
    Type(quantity, u"1.5x"_s);
    EXPECT_EQ(quantity->text(), u"1.5"_s);
    EXPECT_EQ(user.Beeps, 2);
    Type(quantity, u"."_s);
    EXPECT_EQ(quantity->text(), u"1.5"_s);
    EXPECT_EQ(user.Beeps, 3);
}

TEST_F(AddItemsPanelScreen, PastedLettersStayOutAndAnEmptyQuantityIsNotEntered) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    Paste(u"dozen"_s);
    EXPECT_EQ(quantity->text(), QString());
    EXPECT_EQ(user.Beeps, 1);
    Click(board, u"cmdPrint(11)"_s);
    EXPECT_EQ(user.Beeps, 2);
    EXPECT_EQ(quantity->text(), u"0"_s);
    EXPECT_EQ(Focus(), quantity);
    EXPECT_EQ(Product(1, quantityColumn), QString());
    Paste(u"7e9"_s);
    EXPECT_EQ(quantity->text(), u"7"_s);
    EXPECT_TRUE(Failures().empty());
}

TEST_F(AddItemsPanelScreen, EnterInTheQuantityEntersIt) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    Type(quantity, u"1000000000"_s);
    Press(quantity, Qt::Key_Return);
    EXPECT_EQ(Product(1, 4), u"$7,000,000,000.00"_s);
    EXPECT_TRUE(products->isVisible());
}

TEST_F(AddItemsPanelScreen, QuantityOf0IsToldOfAndEntered) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    user.ExpectMessage(u" Enter a Quantity"_s);
    Click(board, u"cmdPrint(11)"_s);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Product(1, quantityColumn), u"0"_s);
}

TEST_F(AddItemsPanelScreen, CancelTakesTheMarkAwayAndShowsTheProducts) {
    OpenPanel();
    ClickCell(products, 1, selectColumn);
    Click(board, u"cmdPrint(13)"_s);
    EXPECT_EQ(Product(1, selectColumn), QString());
    EXPECT_TRUE(products->isVisible());
    EXPECT_EQ(Focus(), products);
}

TEST_F(AddItemsPanelScreen, AddingShowsTheNewItemsAndTheirSum) {
    OpenPanel();
    Enter(1, u"2"_s);
    Click(board, u"cmdPrint(9)"_s);
    EXPECT_FALSE(panel->isVisible());
    ASSERT_EQ(office.board.fgItems.DataRows(), 3);
    EXPECT_EQ(office.board.fgItems.Text(3, 1), u"Salt"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), u"$28.65"_s);
    EXPECT_EQ(Caption(u"lblGrandtotal"_s), u"$14.65"_s);
    EXPECT_TRUE(Button(8)->isEnabled());
    EXPECT_TRUE(Find<QWidget>(board, u"optTax(0)"_s)->isVisible());
}

TEST_F(AddItemsPanelScreen, AddingComputesTheTaxes) {
    Open();
    office.settings.ckApply1stTax = 1;
    office.settings.cboRate1 = u"6.25"_s;
    office.board.optTax[TaxOption::PrimaryOnly].isOn = true;
    ClickCell(grid, 1, selectColumn);
    Click(board, u"cmdPrint(12)"_s);
    Click(board, u"cmdPrint(4)"_s);
    Enter(1, u"2"_s);
    Click(board, u"cmdPrint(9)"_s);
    EXPECT_TRUE(Find<QWidget>(board, u"fraTax"_s)->isVisible());
    EXPECT_EQ(Caption(u"lblTax1"_s), u"$1.79"_s);
    EXPECT_EQ(Caption(u"lblGrandtotal"_s), u"$30.44"_s);
}

TEST_F(AddItemsPanelScreen, ClosingWithoutAddingLeavesTheSlip) {
    OpenPanel();
    Enter(1, u"2"_s);
    Click(board, u"cmdPrint(10)"_s);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(office.board.fgItems.DataRows(), 2);
    EXPECT_FALSE(Button(8)->isEnabled());
    Click(board, u"cmdPrint(4)"_s);
    EXPECT_EQ(Product(1, quantityColumn), u"2"_s);
}

TEST_F(AddItemsPanelScreen, SavingHidesTheSlipAndEmptiesTheGrid) {
    OpenPanel();
    ClickCell(grid, 1, selectColumn);
    Enter(1, u"2"_s);
    Click(board, u"cmdPrint(9)"_s);
    Click(board, u"cmdPrint(12)"_s);
    EXPECT_TRUE(Find<Card>(board, u"fraSlip"_s)->isVisible());
    Click(board, u"cmdPrint(8)"_s);
    EXPECT_FALSE(Find<Card>(board, u"fraSlip"_s)->isVisible());
    EXPECT_FALSE(Button(8)->isEnabled());
    EXPECT_FALSE(Button(12)->isEnabled());
    EXPECT_FALSE(Button(4)->isEnabled());
    ASSERT_EQ(office.board.fgSchedule.Rows(), 2);
    EXPECT_EQ(office.board.fgSchedule.Text(1, customerColumn), QString());
    EXPECT_TRUE(folder.Has(HeaderName(u"20260001"_s)));
    EXPECT_TRUE(folder.Has(HeaderName(u"501"_s)));
    EXPECT_TRUE(Failures().empty());
    // A click on the vehicle brings the deliveries back, the new one among them.
    auto* vehicles = Find<QListView>(board, u"lstVehicles"_s);
    EXPECT_EQ(Focus(), vehicles);
    QTest::mouseClick(vehicles->viewport(), Qt::LeftButton, Qt::NoModifier,
                      vehicles->visualRect(vehicles->model()->index(0, 0)).center());
    EXPECT_EQ(office.board.fgSchedule.DataRows(), 3);
}

TEST_F(AddItemsPanelScreen, ChargeAfterSavingIsToldThatNoDeliveryIsSelected) {
    OpenPanel();
    ClickCell(grid, 2, customerColumn);
    Click(board, u"cmdPrint(9)"_s);
    Click(board, u"cmdPrint(8)"_s);
    auto* charge = Find<QLineEdit>(board, u"txtDeliveryCharge"_s);
    charge->setText(u"5"_s);
    user.ExpectMessage(u"You have not selected a Delivery from the Grid"_s);
    Click(board, u"cmdPrint(1)"_s);
    user.ExpectNothingLeft();
    EXPECT_EQ(charge->text(), u"$0.00"_s);
    EXPECT_EQ(Focus(), charge);
}

TEST_F(AddItemsPanelScreen, PanelThatStaysOpenOverASaveAddsAndSavesOnceMore) {
    OpenPanel();
    Enter(1, u"2"_s);
    Click(board, u"cmdPrint(9)"_s);
    Click(board, u"cmdPrint(4)"_s);
    Click(board, u"cmdPrint(8)"_s);
    EXPECT_TRUE(panel->isVisible());
    Click(board, u"cmdPrint(9)"_s);
    EXPECT_TRUE(Button(8)->isEnabled());
    Click(board, u"cmdPrint(8)"_s);
    EXPECT_TRUE(Failures().empty());
    EXPECT_FALSE(Button(8)->isEnabled());
    // The emptied grid's row is the first, and so is the table's entry that is copied.
    EXPECT_TRUE(folder.Read(HeaderName(u"20260002"_s))
                    .startsWith("20260002\r\n3/9/2026\r\n08:30am\r\nFalse\r\n"));
    EXPECT_TRUE(
        folder.Read(ItemName(u"20260002"_s)).startsWith("20260002\r\n3\r\n3\r\nGravel\r\n"));
}

TEST_F(AddItemsPanelScreen, SaveStaysEnabledUntilTheSlipIsSaved) {
    OpenPanel();
    Enter(1, u"2"_s);
    Click(board, u"cmdPrint(9)"_s);
    ClickCell(grid, 2, customerColumn);
    Click(board, u"cmdPrint(4)"_s);
    Click(board, u"cmdPrint(10)"_s);
    EXPECT_TRUE(Button(8)->isEnabled());
}
