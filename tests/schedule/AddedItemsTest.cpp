#include "schedule/AddedItems.h"

#include "products/ItemBytes.h"
#include "schedule/ScheduleTest.h"

#include <vector>

using namespace Qt::StringLiterals;

/// The board over slip 7 (3 Gravel at $4.10, 1 Sand at $2.35), and five products of which the last
/// has no price.
class AddedItemsTest : public ScheduleTest {
protected:
    AddedItemsTest() {
        office.settings.ckDelete = 0;
        office.settings.ckApply1stTax = 0;
        office.settings.ckApply2ndTax = 0;
        WriteProducts();
        folder.Write(u"NonInventoriedItems.txt"_s, NonItemBytes{.description = "Pallet"}.Record());
        office.items.RefreshAll();
    }

    void WriteProducts() const {
        QByteArray bytes;
        for (const ItemBytes& product : products)
            bytes += product.Record();
        folder.Write(u"NXInventoriedItems.txt"_s, bytes);
    }
    void ChangeProduct(size_t row, const QByteArray& name, qint64 sellPrice) {
        products[row - 1] = {.description = name, .sellPrice = sellPrice};
        WriteProducts();
    }

    /// Slip 7 stands in the panel, and the panel for adding is open.
    void OpenOverSlip(const SampleSlip& slip = {.number = u"7"_s}) {
        StoreSlip(slip);
        OpenBoard();
        board.LoadSlipPanel(slip.number);
        added.Open();
    }
    void Mark(int row) { added.ClickProduct(row, AddItemColumn::Select); }
    void ClickQuantity(int row) { added.ClickProduct(row, AddItemColumn::Quantity); }
    void Enter(int row, const QString& quantity) {
        Mark(row);
        added.txtQuantity = quantity;
        added.EnterQuantity();
    }
    void ExpectClearQuestion(Answer answer) {
        user.ExpectQuestion(u"Do you want to Clear this Item?"_s, u"Clear Item"_s, answer);
    }

    static QStringList RowOf(const GridModel& grid, int row) {
        QStringList cells;
        for (int column = 0; column < grid.Columns(); ++column)
            cells += grid.Text(row, column);
        return cells;
    }
    QStringList Product(int row) const { return RowOf(office.items.fgAddItems, row); }
    QStringList Line(int row) const { return RowOf(board.fgItems, row); }
    int Products() const { return office.items.fgAddItems.DataRows(); }

    AddedItems& added = office.addedItems;
    std::vector<ItemBytes> products = {{.description = "Salt", .sellPrice = 70'000},
                                       {.description = "Gravel", .sellPrice = 50'000},
                                       {.description = "Sand", .sellPrice = 23'500},
                                       {.description = "Caf\xe9 \x80", .sellPrice = 12'500'000}};
    const QString mark = u" \u00ab"_s;
};

// Opening.

TEST_F(AddedItemsTest, ProductsHaveTheirFiveHeadings) {
    EXPECT_EQ(Product(0), (QStringList{u"Sel"_s, u"Qty"_s, u"Description"_s, u"Sell Price"_s,
                                       u"Item Total"_s}));
}

TEST_F(AddedItemsTest, NothingShowsOrCanBeSavedAtTheStart) {
    EXPECT_FALSE(added.fraAddItems);
    EXPECT_TRUE(added.fgAddItems);
    EXPECT_FALSE(added.SaveIsEnabled);
}

TEST_F(AddedItemsTest, OpeningGivesTheProductsOnTheSlipItsQuantitiesAndTotals) {
    added.txtQuantity = u"9"_s;
    OpenOverSlip();
    EXPECT_TRUE(added.fraAddItems);
    EXPECT_EQ(added.txtQuantity, u"0"_s);
    ASSERT_EQ(Products(), 5);
    EXPECT_EQ(Product(1), (QStringList{u""_s, u""_s, u"Salt"_s, u"$7.00"_s, u""_s}));
    // The slip keeps its own prices; the product's is shown.
    EXPECT_EQ(Product(2), (QStringList{u""_s, u"3"_s, u"Gravel"_s, u"$5.00"_s, u"$12.30"_s}));
    EXPECT_EQ(Product(3), (QStringList{u""_s, u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
    EXPECT_EQ(Product(4),
              (QStringList{u""_s, u""_s, u"Caf\u00e9 \u20ac"_s, u"$1,250.00"_s, u""_s}));
    EXPECT_EQ(Product(5), (QStringList{u""_s, u""_s, u"Pallet"_s, u"$0.00"_s, u"$0.00"_s}));
}

TEST_F(AddedItemsTest, LinesAreFoundByTheWholeDescriptionAndOthersArePassedOver) {
    OpenOverSlip({.number = u"7"_s,
                  .itemLines = {u"3"_s, u"gravel"_s, u"$4.10"_s, u"$12.30"_s, u"1"_s, u"San"_s,
                                u"$2.35"_s, u"$2.35"_s}});
    for (int row = 1; row <= 4; ++row) {
        EXPECT_EQ(Product(row)[1], QString());
        EXPECT_EQ(Product(row)[4], QString());
    }
}

TEST_F(AddedItemsTest, FirstOfTwoProductsWithOneNameTakesTheQuantityAndTheLastLineWins) {
    ChangeProduct(4, "Gravel", 10'000);
    office.items.RefreshAll();
    OpenOverSlip({.number = u"7"_s,
                  .itemLines = {u"3"_s, u"Gravel"_s, u"$4.10"_s, u"$12.30"_s, u"1"_s, u"Gravel"_s,
                                u"$2.35"_s, u"$2.35"_s}});
    EXPECT_EQ(Product(2), (QStringList{u""_s, u"1"_s, u"Gravel"_s, u"$5.00"_s, u"$2.35"_s}));
    EXPECT_EQ(Product(4)[1], QString());
}

TEST_F(AddedItemsTest, ClosingKeepsWhatWasEntered) {
    OpenOverSlip();
    Enter(1, u"2"_s);
    added.Close();
    EXPECT_FALSE(added.fraAddItems);
    added.Open();
    EXPECT_EQ(Product(1), (QStringList{mark, u"2"_s, u"Salt"_s, u"$7.00"_s, u"$14.00"_s}));
    EXPECT_FALSE(added.SaveIsEnabled);
}

TEST_F(AddedItemsTest, OpeningShowsTheProductsThoughAQuantityWasBeingEntered) {
    OpenOverSlip();
    Mark(1);
    added.Close();
    EXPECT_FALSE(added.fgAddItems);
    added.Open();
    EXPECT_TRUE(added.fgAddItems);
}

// Marking.

TEST_F(AddedItemsTest, ClickInTheFirstColumnMarksAndGoesToTheQuantity) {
    OpenOverSlip();
    Mark(2);
    EXPECT_EQ(Product(2)[0], mark);
    EXPECT_FALSE(added.fgAddItems);
    // Unlike a click on the quantity, it leaves a quantity of 0 alone.
    EXPECT_EQ(added.txtQuantity, u"0"_s);
    EXPECT_EQ(office.items.fgAddItems.CurrentRow(), 2);
}

TEST_F(AddedItemsTest, ClickInTheFirstColumnTakesTheRowsQuantityUnlessThatIs0) {
    OpenOverSlip();
    added.txtQuantity = u"8"_s;
    Mark(2);
    EXPECT_EQ(added.txtQuantity, u"3"_s);
    added.txtQuantity = u"8"_s;
    Mark(1);
    EXPECT_EQ(added.txtQuantity, QString());
}

TEST_F(AddedItemsTest, ClickOnAQuantityMarksAndTakesIt) {
    OpenOverSlip();
    ClickQuantity(2);
    EXPECT_EQ(Product(2)[0], mark);
    EXPECT_EQ(added.txtQuantity, u"3"_s);
    EXPECT_FALSE(added.fgAddItems);
    ClickQuantity(2);
    EXPECT_EQ(Product(2)[0], mark);
}

TEST_F(AddedItemsTest, EmptyQuantityThatIsClickedOnBecomes0) {
    OpenOverSlip();
    added.txtQuantity = u"8"_s;
    ClickQuantity(1);
    EXPECT_EQ(Product(1)[0], mark);
    EXPECT_EQ(added.txtQuantity, u"0"_s);
}

TEST_F(AddedItemsTest, ClickOnAMarkedRowWithAQuantityAsksAndNoLeavesIt) {
    OpenOverSlip();
    Enter(2, u"5"_s);
    ExpectClearQuestion(Answer::No);
    Mark(2);
    EXPECT_EQ(Product(2), (QStringList{mark, u"5"_s, u"Gravel"_s, u"$5.00"_s, u"$25.00"_s}));
    EXPECT_TRUE(added.fgAddItems);
}

TEST_F(AddedItemsTest, YesClearsTheMarkTheQuantityAndTheTotal) {
    OpenOverSlip();
    Enter(2, u"5"_s);
    ExpectClearQuestion(Answer::Yes);
    Mark(2);
    EXPECT_EQ(Product(2), (QStringList{u""_s, u""_s, u"Gravel"_s, u"$5.00"_s, u""_s}));
    EXPECT_TRUE(added.fgAddItems);
}

TEST_F(AddedItemsTest, MarkedRowWithoutAQuantityIsClearedWithoutAQuestion) {
    OpenOverSlip();
    Mark(5);
    Mark(5);
    EXPECT_EQ(Product(5), (QStringList{u""_s, u""_s, u"Pallet"_s, u"$0.00"_s, u""_s}));
}

TEST_F(AddedItemsTest, ClickInAnotherColumnDoesNothing) {
    OpenOverSlip();
    for (const auto column :
         {AddItemColumn::Description, AddItemColumn::SellPrice, AddItemColumn::ItemTotal})
        added.ClickProduct(2, column);
    EXPECT_EQ(Product(2)[0], QString());
    EXPECT_TRUE(added.fgAddItems);
}

TEST_F(AddedItemsTest, HeadingAndTheBlankRowOfAnEmptyListAreNoProducts) {
    folder.Write(u"NXInventoriedItems.txt"_s, {});
    folder.Remove(u"NonInventoriedItems.txt"_s);
    office.items.fgAddItems.ClearGrid();
    office.items.RefreshAll();
    OpenOverSlip();
    ASSERT_EQ(Products(), 1);
    for (int row = 0; row <= 1; ++row) {
        const QStringList before = Product(row);
        Mark(row);
        ClickQuantity(row);
        EXPECT_EQ(Product(row), before);
        EXPECT_TRUE(added.fgAddItems);
    }
}

// The quantity.

TEST_F(AddedItemsTest, QuantityGoesToTheRowWithSellPriceTimesQuantity) {
    OpenOverSlip();
    Enter(2, u"2.5"_s);
    EXPECT_EQ(Product(2), (QStringList{mark, u"2.5"_s, u"Gravel"_s, u"$5.00"_s, u"$12.50"_s}));
    EXPECT_TRUE(added.fgAddItems);
    EXPECT_EQ(added.txtQuantity, u"0"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(AddedItemsTest, TotalIsRoundedByItsFormatting) {
    ChangeProduct(1, "Salt", 10'050);
    office.items.RefreshAll();
    OpenOverSlip();
    // The grid shows $1.01, and that is what is multiplied.
    Enter(1, u"3"_s);
    EXPECT_EQ(Product(1)[4], u"$3.03"_s);
    Enter(4, u".0005"_s);
    EXPECT_EQ(Product(4)[4], u"$0.63"_s);
}

TEST_F(AddedItemsTest, BillionIsAQuantity) {
    OpenOverSlip();
    Enter(4, u"1000000000"_s);
    EXPECT_EQ(Product(4)[4], u"$1,250,000,000,000.00"_s);
    Enter(1, u"1e9"_s);
    EXPECT_EQ(Product(1)[4], u"$7,000,000,000.00"_s);
}

TEST_F(AddedItemsTest, QuantityOf0BeepsAndTellsAndIsEnteredAllTheSame) {
    OpenOverSlip();
    Enter(2, u"5"_s);
    ClickQuantity(2);
    added.txtQuantity = u"0"_s;
    user.ExpectMessage(u" Enter a Quantity"_s);
    added.EnterQuantity();
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Product(2), (QStringList{mark, u"0"_s, u"Gravel"_s, u"$5.00"_s, u"$0.00"_s}));
    EXPECT_TRUE(added.fgAddItems);
}

TEST_F(AddedItemsTest, QuantityOf0IsEnteredInSilenceWithAlarmAndPromptsOff) {
    OpenOverSlip();
    office.settings.AlarmOn = false;
    office.settings.PromptsOn = false;
    Enter(1, u"0"_s);
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(Product(1), (QStringList{mark, u"0"_s, u"Salt"_s, u"$7.00"_s, u"$0.00"_s}));
}

TEST_F(AddedItemsTest, QuantityOf0OnlyBeepsWithPromptsOff) {
    OpenOverSlip();
    office.settings.PromptsOn = false;
    Enter(1, u"0"_s);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Product(1), (QStringList{mark, u"0"_s, u"Salt"_s, u"$7.00"_s, u"$0.00"_s}));
}

TEST_F(AddedItemsTest, QuantityOf0IsOnlyToldOfWithAlarmOff) {
    OpenOverSlip();
    office.settings.AlarmOn = false;
    user.ExpectMessage(u" Enter a Quantity"_s);
    Enter(1, u"0"_s);
    user.ExpectNothingLeft();
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(Product(1), (QStringList{mark, u"0"_s, u"Salt"_s, u"$7.00"_s, u"$0.00"_s}));
}

TEST_F(AddedItemsTest, ClearQuestionComesWithPromptsOffToo) {
    office.settings.PromptsOn = false;
    OpenOverSlip();
    Enter(2, u"5"_s);
    ExpectClearQuestion(Answer::Yes);
    Mark(2);
    user.ExpectNothingLeft();
    EXPECT_EQ(Product(2)[1], QString());
}

TEST_F(AddedItemsTest, OtherZeroesAreEnteredWithoutAMessage) {
    OpenOverSlip();
    Enter(1, u"0.0"_s);
    EXPECT_EQ(Product(1)[1], u"0.0"_s);
    EXPECT_EQ(Product(1)[4], u"$0.00"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(AddedItemsTest, QuantityThatIsNoNumberIsRefusedWithABeep) {
    OpenOverSlip();
    int beeps = 0;
    for (const QString& text : {QString(), u"."_s, u"dozen"_s, u"1.2.3"_s}) {
        ClickQuantity(1);
        added.txtQuantity = text;
        added.EnterQuantity();
        EXPECT_EQ(user.Beeps, ++beeps) << text.toStdString();
        EXPECT_EQ(added.txtQuantity, u"0"_s);
        EXPECT_FALSE(added.fgAddItems);
        EXPECT_EQ(Product(1), (QStringList{mark, u""_s, u"Salt"_s, u"$7.00"_s, u""_s}));
    }
}

TEST_F(AddedItemsTest, TotalBeyondACurrencyTextIsAnOverflow) {
    OpenOverSlip();
    Mark(1);
    added.txtQuantity = u"1e300"_s;
    EXPECT_EQ(FailureOf([this] { added.EnterQuantity(); }).Kind(), FailureKind::Overflow);
}

TEST_F(AddedItemsTest, QuantityWithoutAProductDoesNothing) {
    office.items.fgAddItems.SetRows(1);
    OpenOverSlip();
    added.txtQuantity = u"5"_s;
    added.EnterQuantity();
    EXPECT_EQ(added.txtQuantity, u"5"_s);
}

TEST_F(AddedItemsTest, CancelAfterAMarkTakesItAway) {
    OpenOverSlip();
    Mark(1);
    added.CancelItem();
    EXPECT_EQ(Product(1)[0], QString());
    EXPECT_TRUE(added.fgAddItems);
}

TEST_F(AddedItemsTest, CancelOfAMarkAsksWhenTheRowHasAQuantity) {
    OpenOverSlip();
    Mark(2);
    ExpectClearQuestion(Answer::No);
    added.CancelItem();
    EXPECT_EQ(Product(2), (QStringList{mark, u"3"_s, u"Gravel"_s, u"$5.00"_s, u"$12.30"_s}));
    EXPECT_TRUE(added.fgAddItems);
}

TEST_F(AddedItemsTest, CancelAfterAClickOnAQuantityLeavesTheMark) {
    OpenOverSlip();
    ClickQuantity(2);
    added.CancelItem();
    EXPECT_EQ(Product(2)[0], mark);
    EXPECT_EQ(added.txtQuantity, u"3"_s);
    EXPECT_TRUE(added.fgAddItems);
}

// Adding to the slip.

TEST_F(AddedItemsTest, LinesOfTheSlipTakeTheNewQuantitiesAndMarkedProductsAreAppended) {
    OpenOverSlip();
    Enter(2, u"10"_s);
    Enter(5, u"4"_s);
    Enter(1, u"2"_s);
    added.AddToSlip();
    ASSERT_EQ(board.fgItems.DataRows(), 4);
    // The unit cost of the line stays the slip's own.
    EXPECT_EQ(Line(1), (QStringList{u"10"_s, u"Gravel"_s, u"$4.10"_s, u"$50.00"_s}));
    EXPECT_EQ(Line(2), (QStringList{u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
    EXPECT_EQ(Line(3), (QStringList{u"2"_s, u"Salt"_s, u"$7.00"_s, u"$14.00"_s}));
    EXPECT_EQ(Line(4), (QStringList{u"4"_s, u"Pallet"_s, u"$0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(board.fraSlip.lblTotal, u"$66.35"_s);
    EXPECT_FALSE(added.fraAddItems);
    EXPECT_TRUE(added.SaveIsEnabled);
}

TEST_F(AddedItemsTest, QuantityEnteredToALineCountsWithoutItsMarkToo) {
    OpenOverSlip();
    office.items.fgAddItems.SetText(3, int(AddItemColumn::Quantity), u"4"_s);
    office.items.fgAddItems.SetText(3, int(AddItemColumn::ItemTotal), u"$9.40"_s);
    added.AddToSlip();
    EXPECT_EQ(Line(2), (QStringList{u"4"_s, u"Sand"_s, u"$2.35"_s, u"$9.40"_s}));
}

TEST_F(AddedItemsTest, OfTwoProductsWithOneNameTheLastGivesTheQuantity) {
    ChangeProduct(4, "Gravel", 10'000);
    office.items.RefreshAll();
    OpenOverSlip();
    Enter(2, u"5"_s);
    Enter(4, u"6"_s);
    added.AddToSlip();
    ASSERT_EQ(board.fgItems.DataRows(), 2);
    EXPECT_EQ(Line(1), (QStringList{u"6"_s, u"Gravel"_s, u"$4.10"_s, u"$6.00"_s}));
}

TEST_F(AddedItemsTest, ProductsAreReadAnewWithoutMarksAndWithoutThoseThatHaveNoPrice) {
    OpenOverSlip();
    Enter(1, u"2"_s);
    ChangeProduct(1, "Rock Salt", 80'000);
    added.AddToSlip();
    ASSERT_EQ(Products(), 4);
    EXPECT_EQ(Product(1), (QStringList{u""_s, u""_s, u"Rock Salt"_s, u"$8.00"_s, u""_s}));
    EXPECT_EQ(Product(2), (QStringList{u""_s, u""_s, u"Gravel"_s, u"$5.00"_s, u""_s}));
    EXPECT_EQ(office.items.ProductNames.stringList()[0], u"Rock Salt"_s);
    office.items.RefreshAll();
    EXPECT_EQ(Products(), 5);
}

TEST_F(AddedItemsTest, WithoutAFileOfProductsTheirGridIsEmptyAfterwards) {
    OpenOverSlip();
    folder.Remove(u"NXInventoriedItems.txt"_s);
    added.AddToSlip();
    ASSERT_EQ(Products(), 1);
    EXPECT_EQ(Product(1), (QStringList{u""_s, u""_s, u""_s, u""_s, u""_s}));
    EXPECT_FALSE(folder.Has(u"NXInventoriedItems.txt"_s));
}

TEST_F(AddedItemsTest, LineWhoseQuantityWasClearedHasNoTotalAndFailsTheSum) {
    OpenOverSlip();
    Enter(2, u"5"_s);
    ExpectClearQuestion(Answer::Yes);
    Mark(2);
    const RuntimeFailure failure = FailureOf([this] { added.AddToSlip(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(), u"The text \"\" is not a number (an item total)."_s);
    EXPECT_FALSE(added.SaveIsEnabled);
}

TEST_F(AddedItemsTest, MarkedProductWithoutATotalFailsTheSum) {
    OpenOverSlip();
    ClickQuantity(1);
    added.CancelItem();
    EXPECT_EQ(FailureOf([this] { added.AddToSlip(); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(AddedItemsTest, TaxesOfTheNewSubTotalAreComputedAndTheChargeIsLeftOut) {
    office.settings.ckApply1stTax = 1;
    office.settings.ckApplyGraduated = 0;
    office.settings.cboRate1 = u"6.25"_s;
    OpenOverSlip();
    board.fraSlip.lblCharge = u"$5.00"_s;
    UpdateGrandTotal(board.fraSlip);
    Enter(1, u"2"_s);
    added.AddToSlip();
    EXPECT_EQ(board.fraSlip.lblTotal, u"$28.65"_s);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$1.79"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$30.44"_s);
}

TEST_F(AddedItemsTest, WithoutATaxTheGrandTotalStaysThatOfTheOldItems) {
    OpenOverSlip();
    Enter(1, u"2"_s);
    added.AddToSlip();
    EXPECT_EQ(board.fraSlip.lblTotal, u"$28.65"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$14.65"_s);
}

TEST_F(AddedItemsTest, AmountsAreInTheRegionsForm) {
    UseLocale("de_DE.UTF-8");
    office.items.RefreshAll();
    StoreSlip(
        {.number = u"7"_s,
         .date = u"16.03.2026"_s,
         .itemLines = {u"3"_s, u"Gravel"_s, u"\"4,10\u00a0\u20ac\""_s, u"\"12,30\u00a0\u20ac\""_s},
         .itemCount = u"1"_s,
         .total = u"12,30"_s});
    OpenBoard();
    board.LoadSlipPanel(u"7"_s);
    board.fgItems.SetText(1, 3, u"12,30\u00a0\u20ac"_s);
    added.Open();
    Enter(4, u"2"_s);
    added.AddToSlip();
    EXPECT_EQ(Line(2), (QStringList{u"2"_s, u"Caf\u00e9 \u20ac"_s, u"1.250,00\u00a0\u20ac"_s,
                                    u"2.500,00\u00a0\u20ac"_s}));
    EXPECT_EQ(board.fraSlip.lblTotal, u"2.512,30\u00a0\u20ac"_s);
}

// Saving the slip.

namespace {

const QByteArray copyBytes =
    "20260001\r\n3/16/2026\r\n08:30am\r\nFalse\r\n0000001\r\nFlatbed Truck\r\n4471\r\n"
    "Corner Grocery\r\nUpdated 3/9/2026\r\nBack door\r\n\"Corner Grocery\"\r\n"
    "\"12 Hill Street\"\r\n\"Apt 3\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
    "\"Grocery Depot\"\r\n\"9 Mill Lane\"\r\n\"Dock B\"\r\n\"Decatur\"\r\n\"IN\"\r\n"
    "\"46733\"\r\n";
const QByteArray copyItemBytes = "20260001\r\n3\r\n3\r\nGravel\r\n$4.10\r\n$12.30\r\n1\r\nSand\r\n"
                                 "$2.35\r\n$2.35\r\n2\r\nSalt\r\n$7.00\r\n$14.00\r\n\"$14.65\"\r\n";

} // namespace

TEST_F(AddedItemsTest, SavingStoresACopyWithTheItemsAndEmptiesTheBoard) {
    OpenOverSlip({.number = u"7"_s, .recurring = u"False"_s});
    board.ToggleMark(1);
    Enter(1, u"2"_s);
    added.AddToSlip();
    added.SaveSlip();
    EXPECT_EQ(folder.Read(HeaderName(u"20260001"_s)), copyBytes);
    // The total is the caption of the grand total, which without a tax is the old one.
    EXPECT_EQ(folder.Read(ItemName(u"20260001"_s)), copyItemBytes);
    EXPECT_TRUE(folder.Has(HeaderName(u"7"_s)));
    EXPECT_EQ(folder.Read(u"NQDeliveryNo.txt"_s), "20260002\r\n");
    ASSERT_EQ(board.fgSchedule.Rows(), 2);
    for (int column = 0; column < board.fgSchedule.Columns(); ++column)
        EXPECT_EQ(board.fgSchedule.Text(1, column), QString());
    EXPECT_FALSE(added.SaveIsEnabled);
    EXPECT_EQ(office.slips.SlipCount, 2);
    EXPECT_EQ(office.slips.Table.Text(SlipLine::SlipNumber, 1), u"20260001"_s);
    board.ChooseVehicle(u"Flatbed Truck"_s);
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), (QStringList{u"20260001"_s, u"7"_s}));
}

TEST_F(AddedItemsTest, SavingLeavesTheEmptyRowAsTheCurrentOne) {
    StoreSlip({.number = u"8"_s, .recurring = u"False"_s});
    OpenOverSlip({.number = u"7"_s, .recurring = u"False"_s});
    board.fgSchedule.SetCurrent(2, int(ScheduleColumn::Customer));
    added.AddToSlip();
    added.SaveSlip();
    EXPECT_EQ(board.fgSchedule.CurrentRow(), 1);
    board.txtDeliveryCharge = u"5"_s;
    user.ExpectMessage(u"You have not selected a Delivery from the Grid"_s);
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::NoDelivery);
    user.ExpectNothingLeft();
}

TEST_F(AddedItemsTest, SecondSaveWithoutANewChoiceCopiesTheFirstEntryOfTheTable) {
    OpenOverSlip({.number = u"7"_s, .recurring = u"False"_s});
    Enter(1, u"2"_s);
    added.AddToSlip();
    added.Open();
    added.SaveSlip();
    added.AddToSlip();
    added.SaveSlip();
    EXPECT_EQ(folder.Read(ItemName(u"20260002"_s)),
              QByteArray(copyItemBytes).replace("20260001", "20260002"));
    EXPECT_EQ(office.slips.SlipCount, 3);
    EXPECT_FALSE(added.SaveIsEnabled);
}

TEST_F(AddedItemsTest, SavingARecurringSlipMovesTheOldOneOn) {
    office.settings.ckOnDay = 0;
    OpenOverSlip();
    Enter(1, u"2"_s);
    added.AddToSlip();
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::No);
    user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    added.SaveSlip();
    EXPECT_EQ(folder.Read(HeaderName(u"20260001"_s)), copyBytes);
    EXPECT_TRUE(
        folder.Read(HeaderName(u"7"_s)).startsWith("7\r\n3/23/2026\r\n08:30am\r\nTrue\r\n"));
    EXPECT_EQ(office.slips.Table.Text(SlipLine::Date, 2), u"3/23/2026"_s);
}

TEST_F(AddedItemsTest, SavingTakesTheTablesEntryAtTheRowNotTheRowsSlip) {
    // In time order slip 8 is in row 1; in folder order slip 7 is entry 1.
    StoreSlip({.number = u"8"_s, .time = u"07:00am"_s, .recurring = u"False"_s});
    OpenOverSlip({.number = u"7"_s, .time = u"05:00pm"_s, .recurring = u"False"_s});
    ASSERT_EQ(Column(ScheduleColumn::SlipNo), (QStringList{u"8"_s, u"7"_s}));
    board.LoadSlipPanel(u"8"_s);
    board.fgSchedule.SetCurrent(1, 0);
    added.AddToSlip();
    office.settings.ckDelete = 1;
    user.ExpectMessage(u"Delivery Slip 7 scheduled for 3/16/2026 has been Deleted"_s);
    added.SaveSlip();
    EXPECT_TRUE(folder.Read(HeaderName(u"20260001"_s))
                    .startsWith("20260001\r\n3/16/2026\r\n05:00pm\r\nFalse\r\n"));
    EXPECT_TRUE(folder.Has(HeaderName(u"8"_s)));
}

TEST_F(AddedItemsTest, SavingRunsThePassOverPastSlips) {
    OpenOverSlip({.number = u"7"_s, .recurring = u"False"_s});
    added.AddToSlip();
    office.settings.ckDelete = 1;
    StoreSlip({.number = u"6"_s, .date = u"3/6/2026"_s, .recurring = u"False"_s});
    user.ExpectMessage(u"Delivery Slip 7 scheduled for 3/16/2026 has been Deleted"_s);
    user.ExpectMessage(u"Delivery Slip 6 scheduled for 3/6/2026 has been Deleted"_s);
    added.SaveSlip();
}

TEST_F(AddedItemsTest, SavedSlipReadsBackWithItsItems) {
    OpenOverSlip({.number = u"7"_s, .recurring = u"False"_s});
    Enter(1, u"2"_s);
    added.AddToSlip();
    added.SaveSlip();
    board.ChooseVehicle(u"Flatbed Truck"_s);
    board.LoadSlipPanel(u"20260001"_s);
    ASSERT_EQ(board.fgItems.DataRows(), 3);
    EXPECT_EQ(Line(3), (QStringList{u"2"_s, u"Salt"_s, u"$7.00"_s, u"$14.00"_s}));
    EXPECT_EQ(board.fraSlip.lblTotal, u"$14.65"_s);
}

TEST_F(AddedItemsTest, SlipWhoseFileHasGoneIsAFailureThatNamesIt) {
    OpenOverSlip();
    added.AddToSlip();
    folder.Remove(HeaderName(u"7"_s));
    const RuntimeFailure failure = FailureOf([this] { added.SaveSlip(); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/7.txt"_s));
    EXPECT_TRUE(added.SaveIsEnabled);
}
