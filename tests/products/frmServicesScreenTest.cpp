#include "ItemBytes.h"
#include "platform/EntryField.h"
#include "platform/Grid.h"
#include "products/frmServices.h"
#include "support/ScreenTest.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName products = ScreenName::frmServices;

const QString itemsFile = u"NXInventoriedItems.txt"_s;
const QString nonItemsFile = u"NonInventoriedItems.txt"_s;

} // namespace

class ServicesScreen : public ScreenTest {
protected:
    void Write(const std::vector<ItemBytes>& records) {
        QByteArray bytes;
        for (const ItemBytes& record : records)
            bytes += record.Record();
        folder.Write(itemsFile, bytes);
    }

    void Open() {
        screens.Show(products);
        // Fields are left, and tell of it, in an active window only.
        ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(products)));
        grid = Find<Grid>(products, u"fgItems"_s);
    }

    QPushButton* Button(int index) {
        return Find<QPushButton>(products, u"cmdServices(%1)"_s.arg(index));
    }
    void ClickButton(int index) { Click(products, u"cmdServices(%1)"_s.arg(index)); }
    QLineEdit* Field(const QString& name) { return Find<QLineEdit>(products, name); }
    QComboBox* Category() { return Find<QComboBox>(products, u"cboCategory"_s); }
    QCheckBox* Box(const QString& name) { return Find<QCheckBox>(products, name); }
    QWidget* Part(const QString& name) { return Find<QWidget>(products, name); }
    QWidget* Focus() const { return screens.Find(products)->focusWidget(); }

    /// Goes to a field with the mouse and types into it.
    void Enter(const QString& name, const QString& text) {
        QLineEdit* field = Field(name);
        QTest::mouseClick(field, Qt::LeftButton);
        Type(field, text);
    }

    /// Fills the required fields of an item being entered.
    void EnterItem(const QString& description) {
        Enter(u"txtDescription(1)"_s, description);
        Enter(u"txtCharge(1)"_s, u"2"_s);
        Enter(u"txtCharge(2)"_s, u"1.5"_s);
        Enter(u"txtOnHand"_s, u"7"_s);
    }

    /// Left empty it becomes a zero, and what is typed takes the zero's place.
    void ExpectCountReplacesAZero(const QString& name) {
        QLineEdit* field = Field(name);
        QTest::mouseClick(field, Qt::LeftButton);
        Press(field, Qt::Key_Tab);
        EXPECT_EQ(field->text(), u"0"_s) << name.toStdString();
        Enter(name, u"5"_s);
        EXPECT_EQ(field->text(), u"5"_s) << name.toStdString();
        Type(field, u"0"_s);
        EXPECT_EQ(field->text(), u"50"_s) << name.toStdString();
        field->clear();
        Press(field, Qt::Key_Tab);
        EXPECT_EQ(field->text(), u"0"_s) << name.toStdString();
    }

    static void ClickHeading(const Grid* clicked) {
        const QHeaderView* heading = clicked->horizontalHeader();
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, Qt::NoModifier,
                          {heading->sectionSize(0) / 2, heading->height() / 2});
    }

    static void TurnWheel(QWidget* control, int delta) {
        const QPoint place = control->rect().center();
        QWheelEvent wheel(place, control->mapToGlobal(place), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &wheel);
    }

    QStringList Names() const {
        QStringList names;
        const GridModel& rows = office.inventoriedItems.fgItems;
        for (int row = 1; row <= rows.DataRows(); ++row)
            names += rows.Text(row, 0);
        return names;
    }

    Grid* grid = nullptr;
};

TEST_F(ServicesScreen, ControlsCarryTheirTexts) {
    Open();
    EXPECT_EQ(screens.Find(products)->windowTitle(), u"Inventoried Items"_s);
    const std::pair<int, QString> captions[] = {{0, u"Menu"_s},
                                                {1, u"&Print Inventory Report"_s},
                                                {2, u"&Reload or Sort Grid"_s},
                                                {3, u"Print Inventory Tally Sheets"_s},
                                                {4, u"Print Tally Sheets"_s},
                                                {5, u"Cancel / Hide"_s},
                                                {6, u"Clear Locations"_s},
                                                {7, u"Save Locations to File"_s},
                                                {8, u"Add New"_s},
                                                {9, u"Modify"_s},
                                                {10, u"Delete Item"_s},
                                                {11, u"Clear Item"_s},
                                                {12, u"Modify"_s},
                                                {13, u"Save Item"_s},
                                                {14, u"Cancel Add New or Modify"_s},
                                                {15, u"Add New"_s},
                                                {16, u"Cancel Add New or Modify"_s},
                                                {17, u"Save Item"_s},
                                                {18, u"Clear Item"_s},
                                                {19, u"Delete Item"_s},
                                                {24, u"Clear Prices"_s}};
    for (const auto& [index, caption] : captions)
        EXPECT_EQ(Button(index)->text(), caption);
    for (int index = 20; index <= 23; ++index)
        EXPECT_EQ(screens.Find(products)->findChild<QPushButton*>(u"cmdServices(%1)"_s.arg(index)),
                  nullptr);
    EXPECT_EQ(Box(u"ckClearItem"_s)->text(), u"Retain Current Category between Items"_s);
    EXPECT_EQ(Box(u"ckCategory"_s)->text(), u"Load only Current Category when re-loading grid"_s);
    EXPECT_EQ(Box(u"ckByCategory"_s)->text(), u"Sort Items in grid by"_s);
    EXPECT_EQ(Field(u"txtOnHand"_s)->toolTip(), u"in inventory now (decrements when sold)"_s);
    EXPECT_EQ(Find<QMenu>(products, u"mnuItems"_s)->title(), u"Show Items"_s);
    EXPECT_EQ(Find<QAction>(products, u"mnuInventoried"_s)->text(), u"Show Inventoried Items"_s);
    EXPECT_EQ(Find<QAction>(products, u"mnuNonInventoried"_s)->text(),
              u"Show Non-Inventoried Items"_s);
    const QStringList texts = TextsIn(screens.Find(products));
    for (const QString& text :
         {u"Uninventoried (Not Priced) Items"_s, u"Cost per Unit (what you pay)"_s, u"Sell Price"_s,
          u"Quantity Discount Price"_s, u"Apply Quantity Discount when"_s, u"or more Units Sold"_s})
        EXPECT_EQ(texts.count(text), 1) << text.toStdString();
}

TEST_F(ServicesScreen, SortChoicesStandInTheirListWithTheFirstSelected) {
    Open();
    auto* choices = Find<QComboBox>(products, u"lstSortBy"_s);
    QStringList texts;
    for (int i = 0; i < choices->count(); ++i)
        texts += choices->itemText(i);
    EXPECT_EQ(texts,
              (QStringList{u"Description"_s, u"Category"_s, u"Cost"_s, u"Price"_s, u"On-Hand"_s}));
    EXPECT_EQ(choices->currentIndex(), 0);
}

TEST_F(ServicesScreen, FirstShowingIsIdleOverThePricedItems) {
    Write({{.description = "Gravel"}});
    Open();
    EXPECT_TRUE(Part(u"fraInventoried"_s)->isVisible());
    EXPECT_FALSE(Part(u"fraUnInventoried"_s)->isVisible());
    EXPECT_FALSE(Part(u"fraTallySheets"_s)->isVisible());
    for (const QString& name :
         {u"txtDescription(0)"_s, u"txtDescription(1)"_s, u"txtCharge(1)"_s, u"txtCharge(2)"_s})
        EXPECT_FALSE(Field(name)->isEnabled()) << name.toStdString();
    for (const int index : {9, 10, 12, 13, 17})
        EXPECT_FALSE(Button(index)->isEnabled()) << index;
    for (const int index : {0, 1, 2, 3, 4, 7, 8, 11, 14, 15, 16, 18, 19, 24})
        EXPECT_TRUE(Button(index)->isEnabled()) << index;
    EXPECT_EQ(Names(), QStringList{u"Gravel"_s});
    EXPECT_EQ(Category()->currentText(), QString());
}

TEST_F(ServicesScreen, MenuShowsOneFrameAtATime) {
    Open();
    ClickButton(3);
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    EXPECT_FALSE(Part(u"fraInventoried"_s)->isVisible());
    EXPECT_TRUE(Part(u"fraUnInventoried"_s)->isVisible());
    EXPECT_FALSE(Part(u"fraTallySheets"_s)->isVisible());
    EXPECT_TRUE(Button(17)->isVisible());
    EXPECT_FALSE(Button(13)->isVisible());
    Find<QAction>(products, u"mnuInventoried"_s)->trigger();
    EXPECT_TRUE(Part(u"fraInventoried"_s)->isVisible());
    EXPECT_FALSE(Part(u"fraUnInventoried"_s)->isVisible());
    EXPECT_TRUE(Button(13)->isVisible());
    EXPECT_TRUE(Field(u"txtDescription(1)"_s)->isVisible());
}

TEST_F(ServicesScreen, AddNewOpensTheEntryAndGoesToTheDescription) {
    Open();
    ClickButton(8);
    for (const QString& name : {u"txtDescription(1)"_s, u"txtCharge(1)"_s, u"txtCharge(2)"_s})
        EXPECT_TRUE(Field(name)->isEnabled()) << name.toStdString();
    EXPECT_TRUE(Button(13)->isEnabled());
    EXPECT_EQ(Focus(), Field(u"txtDescription(1)"_s));
    EXPECT_FALSE(Button(17)->isEnabled());
}

TEST_F(ServicesScreen, ItemEnteredWithKeysAloneIsSaved) {
    Open();
    Press(Button(8), Qt::Key_Return);
    for (const QString& text :
         {u"Gravel"_s, u"Bulk"_s, u"1"_s, u"2"_s, u"1.5"_s, u"12"_s, u"7"_s, u"5"_s, u"2"_s}) {
        Type(Focus(), text);
        Press(Focus(), Qt::Key_Return);
    }
    EXPECT_EQ(Focus(), Button(13));
    Press(Focus(), Qt::Key_Return);
    EXPECT_EQ(folder.Read(itemsFile), ItemBytes{.description = "Gravel"}.Record());
    EXPECT_EQ(Names(), QStringList{u"Gravel"_s});
    EXPECT_EQ(Focus(), Button(8));
    EXPECT_EQ(Field(u"txtCost"_s)->text(), QString());
    EXPECT_EQ(Category()->currentText(), QString());
    EXPECT_EQ(Category()->itemText(0), u"Bulk"_s);
}

TEST_F(ServicesScreen, TabGoesDownThePricesThenTheStock) {
    Open();
    ClickButton(8);
    QStringList names;
    for (int i = 0; i < 11; ++i) {
        names += Focus()->objectName();
        Press(Focus(), Qt::Key_Tab);
    }
    EXPECT_EQ(names, (QStringList{u"txtDescription(1)"_s, u"cboCategory"_s, u"ckClearItem"_s,
                                  u"txtCost"_s, u"txtCharge(1)"_s, u"cmdServices(24)"_s,
                                  u"txtCharge(2)"_s, u"txtDiscountQty"_s, u"txtOnHand"_s,
                                  u"txtReorderAmount"_s, u"txtReorderAt"_s}));
}

TEST_F(ServicesScreen, SaveStopsAtEachMissingEntryWithoutAMessage) {
    Open();
    ClickButton(8);
    ClickButton(13);
    EXPECT_EQ(Focus(), Field(u"txtDescription(1)"_s));
    Type(Focus(), u"Gravel"_s);
    ClickButton(13);
    EXPECT_EQ(Focus(), Field(u"txtCharge(1)"_s));
    Type(Focus(), u"2"_s);
    ClickButton(13);
    EXPECT_EQ(Focus(), Field(u"txtCharge(2)"_s));
    EXPECT_EQ(Field(u"txtCharge(1)"_s)->text(), u"$2.00"_s);
    Type(Focus(), u"1.5"_s);
    ClickButton(13);
    EXPECT_EQ(Field(u"txtOnHand"_s)->text(), u"0"_s);
    EXPECT_FALSE(folder.Has(itemsFile));
    ClickButton(13);
    EXPECT_EQ(folder.Read(itemsFile), (ItemBytes{.description = "Gravel",
                                                 .category = "",
                                                 .unitCost = 0,
                                                 .onHand = 0,
                                                 .discountQty = 0,
                                                 .reorderAmount = 0,
                                                 .reorderPoint = 0}
                                           .Record()));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ServicesScreen, StockHoldingTextBecomesZeroAndSavesNothing) {
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    Field(u"txtOnHand"_s)->selectAll();
    Type(Field(u"txtOnHand"_s), u"abc"_s);
    ClickButton(13);
    EXPECT_EQ(Field(u"txtOnHand"_s)->text(), u"0"_s);
    EXPECT_FALSE(folder.Has(itemsFile));
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), u"Gravel"_s);
    EXPECT_TRUE(Button(13)->isEnabled());
}

TEST_F(ServicesScreen, PastedTextInTheStockBecomesZeroAndSavesNothing) {
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    QApplication::clipboard()->setText(u"many"_s);
    Field(u"txtOnHand"_s)->selectAll();
    QTest::keyClick(Field(u"txtOnHand"_s), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Field(u"txtOnHand"_s)->text(), u"many"_s);
    ClickButton(13);
    EXPECT_EQ(Field(u"txtOnHand"_s)->text(), u"0"_s);
    EXPECT_FALSE(folder.Has(itemsFile));
}

TEST_F(ServicesScreen, StockBeyondItsFieldEndsInAFailureAndLeavesTheFile) {
    Write({{.description = "Sand"}});
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    Type(Field(u"txtOnHand"_s), u"99999"_s);
    const auto before = folder.Contents();
    ClickButton(13);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(ServicesScreen, AmountFieldLeftShowsCurrencyText) {
    Open();
    Enter(u"txtCost"_s, u"12.5"_s);
    Press(Focus(), Qt::Key_Tab);
    EXPECT_EQ(Field(u"txtCost"_s)->text(), u"$12.50"_s);
}

TEST_F(ServicesScreen, AmountFieldInAnotherRegion) {
    UseLocale("de_DE.UTF-8");
    Open();
    Enter(u"txtCost"_s, u"1250,5"_s);
    Press(Focus(), Qt::Key_Tab);
    EXPECT_EQ(Field(u"txtCost"_s)->text(), u"1.250,50\u00a0\u20ac"_s);
}

TEST_F(ServicesScreen, TextThatIsNoAmountBeepsIsEmptiedAndKeepsTheFocus) {
    Open();
    ClickButton(8);
    for (const QString& name : {u"txtCost"_s, u"txtCharge(1)"_s, u"txtCharge(2)"_s}) {
        user.Beeps = 0;
        Enter(name, u"abc"_s);
        Press(Focus(), Qt::Key_Tab);
        EXPECT_EQ(user.Beeps, 1) << name.toStdString();
        EXPECT_EQ(Field(name)->text(), QString()) << name.toStdString();
        EXPECT_EQ(Focus(), Field(name)) << name.toStdString();
    }
}

TEST_F(ServicesScreen, EmptyAmountFieldCanBeLeft) {
    Open();
    QTest::mouseClick(Field(u"txtCost"_s), Qt::LeftButton);
    Press(Focus(), Qt::Key_Tab);
    EXPECT_NE(Focus(), Field(u"txtCost"_s));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ServicesScreen, ClickOnSaveWithACostThatIsNoAmountSavesNothing) {
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    Enter(u"txtCost"_s, u"abc"_s);
    ClickButton(13);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Focus(), Field(u"txtCost"_s));
    EXPECT_FALSE(folder.Has(itemsFile));
    // Left blank it is a zero.
    ClickButton(13);
    EXPECT_EQ(folder.Read(itemsFile).mid(70, 8), QByteArray(8, '\0'));
}

TEST_F(ServicesScreen, SavePressedWithoutLeavingTheFieldTakesItsAmount) {
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    Enter(u"txtCost"_s, u"abc"_s);
    Button(13)->click();
    EXPECT_EQ(Focus(), Field(u"txtCost"_s));
    EXPECT_FALSE(folder.Has(itemsFile));
    Type(Field(u"txtCost"_s), u"1"_s);
    Button(13)->click();
    EXPECT_EQ(folder.Read(itemsFile).mid(70, 8), LittleBytes(10'000, 8));
}

TEST_F(ServicesScreen, TypingReplacesAZeroAmount) {
    Open();
    ClickButton(8);
    ClickButton(24);
    EXPECT_EQ(Field(u"txtCharge(1)"_s)->text(), u"$0.00"_s);
    EXPECT_EQ(Field(u"txtCharge(2)"_s)->text(), u"$0.00"_s);
    Enter(u"txtCost"_s, u"0"_s);
    Press(Focus(), Qt::Key_Tab);
    ASSERT_EQ(Field(u"txtCost"_s)->text(), u"$0.00"_s);
    for (const QString& name : {u"txtCost"_s, u"txtCharge(1)"_s, u"txtCharge(2)"_s}) {
        Field(name)->setFocus();
        Type(Field(name), u"12"_s);
        EXPECT_EQ(Field(name)->text(), u"12"_s) << name.toStdString();
    }
}

TEST_F(ServicesScreen, PastedAmountReplacesAZeroAmount) {
    Open();
    ClickButton(8);
    ClickButton(24);
    QApplication::clipboard()->setText(u"4.25"_s);
    QLineEdit* price = Field(u"txtCharge(1)"_s);
    QTest::mouseClick(price, Qt::LeftButton);
    QTest::keyClick(price, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(price->text(), u"4.25"_s);
}

TEST_F(ServicesScreen, CountFieldsReplaceAZeroAndComeBackToIt) {
    Open();
    for (const QString& name :
         {u"txtDiscountQty"_s, u"txtOnHand"_s, u"txtReorderAmount"_s, u"txtReorderAt"_s})
        ExpectCountReplacesAZero(name);
}

TEST_F(ServicesScreen, CountFieldsOfTheItemsWithoutAPriceReplaceAZeroAndComeBackToIt) {
    Open();
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    for (const QString& name : {u"txtOnHandNon"_s, u"txtReorderAmountNon"_s, u"txtReorderAtNon"_s})
        ExpectCountReplacesAZero(name);
}

TEST_F(ServicesScreen, DescriptionTakesFiftyCharactersAndTheCategoryTwenty) {
    Open();
    ClickButton(8);
    Type(Field(u"txtDescription(1)"_s), QString(51, u'd'));
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), QString(50, u'd'));
    Type(Category(), QString(21, u'c'));
    EXPECT_EQ(Category()->currentText(), QString(20, u'c'));
}

TEST_F(ServicesScreen, TypedCategoryStaysAsTyped) {
    Write({{.description = "a", .category = "Dairy"}});
    Open();
    Category()->setFocus();
    Type(Category(), u"dairy"_s);
    Press(Category(), Qt::Key_Tab);
    EXPECT_EQ(Category()->currentText(), u"dairy"_s);
    EXPECT_EQ(Category()->count(), 1);
    Category()->lineEdit()->selectAll();
    Type(Category(), u"Dai"_s);
    Press(Category(), Qt::Key_Return);
    EXPECT_EQ(Category()->currentText(), u"Dai"_s);
    EXPECT_EQ(Category()->count(), 1);
}

TEST_F(ServicesScreen, ClickOnARowOpensModifyAndDeleteAndLeavesTheEntryAlone) {
    Write({{.description = "Gravel"}, {.description = "Sand"}});
    Open();
    ClickButton(8);
    Enter(u"txtDescription(1)"_s, u"Bricks"_s);
    ClickCell(grid, 2, 0);
    EXPECT_TRUE(Button(9)->isEnabled());
    EXPECT_TRUE(Button(10)->isEnabled());
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), u"Bricks"_s);
    EXPECT_EQ(office.inventoriedItems.fgItems.CurrentRow(), 2);
}

TEST_F(ServicesScreen, ClickOnTheHeadingOpensNothing) {
    Write({{.description = "Gravel"}});
    Open();
    ClickHeading(grid);
    EXPECT_FALSE(Button(9)->isEnabled());
    EXPECT_FALSE(Button(10)->isEnabled());
}

TEST_F(ServicesScreen, RowPickedWithTheKeysOpensModifyAndDelete) {
    Write({{.description = "Gravel"}, {.description = "Sand"}});
    Open();
    grid->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(office.inventoriedItems.fgItems.CurrentRow(), 1);
    EXPECT_TRUE(grid->selectionModel()->isRowSelected(0));
    Press(grid, Qt::Key_Down);
    EXPECT_EQ(office.inventoriedItems.fgItems.CurrentRow(), 2);
    EXPECT_TRUE(grid->selectionModel()->isRowSelected(1));
    EXPECT_TRUE(Button(9)->isEnabled());
    EXPECT_TRUE(Button(10)->isEnabled());
    ClickButton(2);
    EXPECT_FALSE(Button(9)->isEnabled());
    Press(grid, Qt::Key_Space);
    EXPECT_TRUE(Button(9)->isEnabled());
}

TEST_F(ServicesScreen, ModifyFillsTheFieldsAndClosesTheGridAndCancelOpensIt) {
    Write({{.description = "Gravel"}, {.description = "Sand", .category = "Fine"}});
    Open();
    ClickCell(grid, 2, 0);
    ClickButton(9);
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), u"Sand"_s);
    EXPECT_EQ(Category()->currentText(), u"Fine"_s);
    EXPECT_EQ(Field(u"txtCost"_s)->text(), u"$1.00"_s);
    EXPECT_EQ(Field(u"txtCharge(1)"_s)->text(), u"$2.00"_s);
    EXPECT_EQ(Field(u"txtCharge(2)"_s)->text(), u"$1.50"_s);
    EXPECT_EQ(Field(u"txtDiscountQty"_s)->text(), u"12"_s);
    EXPECT_EQ(Field(u"txtOnHand"_s)->text(), u"7"_s);
    EXPECT_EQ(Field(u"txtReorderAmount"_s)->text(), u"5"_s);
    EXPECT_EQ(Field(u"txtReorderAt"_s)->text(), u"2"_s);
    EXPECT_FALSE(grid->isEnabled());
    EXPECT_EQ(Focus(), Field(u"txtDescription(1)"_s));
    ClickCell(grid, 1, 0);
    EXPECT_EQ(office.inventoriedItems.fgItems.CurrentRow(), 2);
    ClickButton(14);
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), QString());
    EXPECT_FALSE(Button(13)->isEnabled());
}

TEST_F(ServicesScreen, ReloadOpensTheGridThatModifyClosed) {
    Write({{.description = "Gravel"}});
    Open();
    ClickCell(grid, 1, 0);
    ClickButton(9);
    ASSERT_FALSE(grid->isEnabled());
    ClickButton(2);
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), u"Gravel"_s);
}

TEST_F(ServicesScreen, DownInTheCategoryGoesOnFromTheOneThatIsShown) {
    Write({{.description = "Gravel", .category = "Coarse"},
           {.description = "Sand", .category = "Fine"},
           {.description = "Rocks", .category = "Huge"}});
    Open();
    ClickCell(grid, 2, 0);
    ClickButton(9);
    ASSERT_EQ(Category()->currentText(), u"Fine"_s);
    Category()->setFocus();
    Press(Category(), Qt::Key_Down);
    EXPECT_EQ(Category()->currentText(), u"Huge"_s);
}

TEST_F(ServicesScreen, WheelOverAListWithoutTheFocusChangesNothing) {
    Write({{.description = "Gravel", .category = "Coarse"},
           {.description = "Sand", .category = "Fine"}});
    Open();
    auto* sortBy = Find<QComboBox>(products, u"lstSortBy"_s);
    Button(8)->setFocus();
    TurnWheel(Category(), -120);
    TurnWheel(sortBy, -120);
    EXPECT_EQ(Category()->currentText(), QString());
    EXPECT_EQ(sortBy->currentIndex(), 0);
    EXPECT_EQ(office.inventoriedItems.lstSortBy, 0);
    Category()->setFocus();
    TurnWheel(Category(), -120);
    EXPECT_EQ(Category()->currentText(), u"Coarse"_s);
    sortBy->setFocus();
    TurnWheel(sortBy, -120);
    EXPECT_EQ(sortBy->currentIndex(), 1);
    EXPECT_EQ(office.inventoriedItems.lstSortBy, 1);
}

TEST_F(ServicesScreen, ModifiedItemIsSaved) {
    Write({{.description = "Gravel"}, {.description = "Sand"}});
    Open();
    ClickCell(grid, 2, 0);
    ClickButton(9);
    Field(u"txtCharge(1)"_s)->selectAll();
    Type(Field(u"txtCharge(1)"_s), u"9.99"_s);
    ClickButton(13);
    EXPECT_EQ(folder.Read(itemsFile),
              (ItemBytes{.description = "Gravel"}.Record() +
               ItemBytes{.description = "Sand", .sellPrice = 99'900}.Record()));
}

TEST_F(ServicesScreen, ClearItemKeepsTheCategoryWhenItIsRetained) {
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    Type(Category(), u"Bulk"_s);
    QTest::mouseClick(Box(u"ckClearItem"_s), Qt::LeftButton, Qt::NoModifier, {8, 8});
    ClickButton(11);
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), QString());
    EXPECT_EQ(Category()->currentText(), u"Bulk"_s);
    QTest::mouseClick(Box(u"ckClearItem"_s), Qt::LeftButton, Qt::NoModifier, {8, 8});
    ClickButton(11);
    EXPECT_EQ(Category()->currentText(), QString());
}

TEST_F(ServicesScreen, ReloadOfACategoryAsksForOneThenShowsItAlone) {
    Write({{.description = "Gravel", .category = "Coarse"},
           {.description = "Sand", .category = "Fine"}});
    Open();
    QTest::mouseClick(Box(u"ckCategory"_s), Qt::LeftButton, Qt::NoModifier, {8, 8});
    user.ExpectMessage(u"Select a Category"_s);
    ClickButton(2);
    EXPECT_TRUE(Category()->hasFocus() || Category()->lineEdit()->hasFocus());
    Category()->setCurrentIndex(1);
    ClickButton(2);
    EXPECT_EQ(Names(), QStringList{u"Sand"_s});
    EXPECT_FALSE(Button(8)->isEnabled());
    EXPECT_EQ(Category()->currentText(), u"Fine"_s);
}

TEST_F(ServicesScreen, LoadSalesItemsReloadsTheGridAndLeavesTheEntryAlone) {
    Write({{.description = "Gravel"}});
    Open();
    ClickButton(8);
    Enter(u"txtDescription(1)"_s, u"Bricks"_s);
    Write({{.description = "Sand"}});
    static_cast<frmServices*>(screens.Find(products))->LoadSalesItems();
    EXPECT_EQ(Names(), QStringList{u"Sand"_s});
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), u"Bricks"_s);
}

TEST_F(ServicesScreen, SortBoxSortsTheGridAsTextAndIsCleared) {
    Write({{.description = "a", .unitCost = 90'000}, {.description = "b", .unitCost = 100'000}});
    Open();
    Find<QComboBox>(products, u"lstSortBy"_s)->setCurrentIndex(2);
    QTest::mouseClick(Box(u"ckByCategory"_s), Qt::LeftButton, Qt::NoModifier, {8, 8});
    ClickButton(2);
    EXPECT_EQ(Names(), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_FALSE(Box(u"ckByCategory"_s)->isChecked());
    ClickButton(2);
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(ServicesScreen, SavingClearsBothSortBoxes) {
    Open();
    QTest::mouseClick(Box(u"ckByCategory"_s), Qt::LeftButton, Qt::NoModifier, {8, 8});
    QTest::mouseClick(Box(u"ckCategory"_s), Qt::LeftButton, Qt::NoModifier, {8, 8});
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    ClickButton(13);
    EXPECT_FALSE(Box(u"ckByCategory"_s)->isChecked());
    EXPECT_FALSE(Box(u"ckCategory"_s)->isChecked());
    EXPECT_TRUE(folder.Has(itemsFile));
}

TEST_F(ServicesScreen, DeleteAsksAndTakesTheItemFromFileAndGrid) {
    Write({{.description = "Gravel"}, {.description = "Sand"}});
    Open();
    ClickCell(grid, 1, 0);
    user.ExpectQuestion(u"This will DELETE the Selected Sales Item"_s, u"Delete Sales Item"_s,
                        Answer::Yes);
    ClickButton(10);
    EXPECT_EQ(folder.Read(itemsFile), ItemBytes{.description = "Sand"}.Record());
    EXPECT_EQ(Names(), QStringList{u"Sand"_s});
    EXPECT_FALSE(Button(10)->isEnabled());
}

TEST_F(ServicesScreen, DeletingTheLastItemLeavesThePrintButtonAsItWas) {
    Write({{.description = "Gravel"}});
    Open();
    const bool wasEnabled = Button(1)->isEnabled();
    ClickCell(grid, 1, 0);
    user.ExpectQuestion(u"This will DELETE the Selected Sales Item"_s, u"Delete Sales Item"_s,
                        Answer::Yes);
    ClickButton(10);
    EXPECT_FALSE(folder.Has(itemsFile));
    EXPECT_EQ(Button(1)->isEnabled(), wasEnabled);
}

TEST_F(ServicesScreen, ItemWithoutAPriceIsAddedModifiedAndItsGridClosesOnCancel) {
    Open();
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    auto* nonGrid = Find<Grid>(products, u"fgNonItem"_s);
    ClickButton(15);
    EXPECT_EQ(Focus(), Field(u"txtDescription(0)"_s));
    for (const QString& text : {u"Crate"_s, u"7"_s, u"5"_s, u"2"_s}) {
        Type(Focus(), text);
        Press(Focus(), Qt::Key_Return);
    }
    EXPECT_EQ(Focus(), Button(17));
    Press(Focus(), Qt::Key_Return);
    EXPECT_EQ(folder.Read(nonItemsFile), NonItemBytes{.description = "Crate"}.Record());
    EXPECT_FALSE(Button(12)->isEnabled());
    ClickCell(nonGrid, 1, 0);
    EXPECT_TRUE(Button(12)->isEnabled());
    ClickButton(12);
    EXPECT_TRUE(nonGrid->isEnabled());
    EXPECT_EQ(Field(u"txtOnHandNon"_s)->text(), u"7"_s);
    Enter(u"txtOnHandNon"_s, u"1"_s);
    ClickButton(16);
    EXPECT_FALSE(nonGrid->isEnabled());
    EXPECT_EQ(Field(u"txtDescription(0)"_s)->text(), QString());
    EXPECT_EQ(folder.Read(nonItemsFile), NonItemBytes{.description = "Crate"}.Record());
}

TEST_F(ServicesScreen, ClickOnTheHeadingOfTheItemsWithoutAPriceOpensNothing) {
    folder.Write(nonItemsFile, NonItemBytes{.description = "Crate"}.Record());
    Open();
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    auto* nonGrid = Find<Grid>(products, u"fgNonItem"_s);
    ClickHeading(nonGrid);
    EXPECT_FALSE(Button(12)->isEnabled());
    ClickCell(nonGrid, 1, 0);
    EXPECT_TRUE(Button(12)->isEnabled());
    ClickButton(16);
    office.nonInventoriedItems.fgNonItem.SetCurrent(0, 0);
    ClickButton(12);
    EXPECT_FALSE(Button(17)->isEnabled());
    EXPECT_FALSE(Field(u"txtDescription(0)"_s)->isEnabled());
    EXPECT_EQ(Field(u"txtOnHandNon"_s)->text(), QString());
}

TEST_F(ServicesScreen, ModifiedItemWithoutAPriceThatIsGoneIsNotSaved) {
    folder.Write(nonItemsFile, NonItemBytes{.description = "Crate"}.Record());
    Open();
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    auto* nonGrid = Find<Grid>(products, u"fgNonItem"_s);
    ClickCell(nonGrid, 1, 0);
    ClickButton(12);
    office.nonInventoriedItems.fgNonItem.SetCurrent(0, 0);
    const auto before = folder.Contents();
    Enter(u"txtOnHandNon"_s, u"9"_s);
    ClickButton(17);
    EXPECT_EQ(Focus(), nonGrid);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_TRUE(Button(17)->isEnabled());
    EXPECT_EQ(Field(u"txtDescription(0)"_s)->text(), u"Crate"_s);
}

TEST_F(ServicesScreen, ClearItemOfTheItemsWithoutAPriceClearsItsFieldsAlone) {
    Open();
    Enter(u"txtCost"_s, u"5"_s);
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    Enter(u"txtOnHandNon"_s, u"5"_s);
    ClickButton(18);
    EXPECT_EQ(Field(u"txtOnHandNon"_s)->text(), QString());
    EXPECT_EQ(Field(u"txtCost"_s)->text(), u"$5.00"_s);
}

TEST_F(ServicesScreen, DeleteButtonOfTheItemsWithoutAPriceDoesNothing) {
    folder.Write(nonItemsFile, NonItemBytes{.description = "Crate"}.Record());
    Open();
    Find<QAction>(products, u"mnuNonInventoried"_s)->trigger();
    ClickCell(Find<Grid>(products, u"fgNonItem"_s), 1, 0);
    const auto before = folder.Contents();
    ClickButton(19);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(office.nonInventoriedItems.fgNonItem.DataRows(), 1);
    EXPECT_TRUE(Button(19)->isEnabled());
}

TEST_F(ServicesScreen, MenuRefreshesTheListsAndGoesToTheMenu) {
    WriteMasterFiles();
    Open();
    ClickButton(8);
    EnterItem(u"Gravel"_s);
    ClickButton(13);
    EXPECT_EQ(office.items.ProductNames.rowCount(), 0);
    ClickButton(0);
    EXPECT_EQ(office.items.ProductNames.stringList(), QStringList{u"Gravel"_s});
    EXPECT_EQ(office.items.ProductPrices.stringList(), QStringList{u"$2.00"_s});
    EXPECT_FALSE(IsShown(products));
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
}

TEST_F(ServicesScreen, EntryInProgressIsThereAfterAVisitToTheMenu) {
    WriteMasterFiles();
    Open();
    ClickButton(8);
    Enter(u"txtDescription(1)"_s, u"Gravel"_s);
    ClickButton(0);
    screens.Show(products);
    EXPECT_EQ(Field(u"txtDescription(1)"_s)->text(), u"Gravel"_s);
    EXPECT_TRUE(Button(13)->isEnabled());
}

TEST_F(ServicesScreen, WindowLayoutIsKeptUnderItsOwnKey) {
    QSettings layouts(QSettings::IniFormat, QSettings::UserScope, u"tessel-delivery"_s,
                      u"window-layout"_s);
    layouts.clear();
    layouts.sync();
    Open();
    screens.Hide(products);
    layouts.sync();
    EXPECT_EQ(layouts.allKeys(), QStringList{u"TesselInventory"_s});
}

TEST_F(ServicesScreen, WholeScreenFitsTheSmallestDesktop) {
    Write({{.description = "Gravel"}});
    Open();
    for (const QString& item : {u"mnuInventoried"_s, u"mnuNonInventoried"_s}) {
        Find<QAction>(products, item)->trigger();
        EXPECT_LE(screens.Find(products)->minimumSizeHint().width(), 1024 - 60);
    }
    screens.Find(products)->resize(1024 - 60, 768 - 60);
    Find<QAction>(products, u"mnuInventoried"_s)->trigger();
    QTest::qWait(1);
    EXPECT_LE(Part(u"body"_s)->minimumSizeHint().width(), 1024 - 60);
    EXPECT_LE(Part(u"body"_s)->minimumSizeHint().height(), Part(u"body"_s)->height());
}

TEST_F(ServicesScreen, LargestFileScrollsWithKeysAndWheel) {
    folder.Write(itemsFile, ItemBytes{.description = "Gravel"}.Record().repeated(32'767));
    Open();
    EXPECT_EQ(office.inventoriedItems.fgItems.DataRows(), 32'767);
    grid->setFocus(Qt::TabFocusReason);
    Press(grid, Qt::Key_PageDown);
    const int afterPage = office.inventoriedItems.fgItems.CurrentRow();
    EXPECT_GT(afterPage, 2);
    QTest::keyClick(grid, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(office.inventoriedItems.fgItems.CurrentRow(), 32'767);
    EXPECT_TRUE(grid->viewport()->rect().intersects(grid->visualRect(grid->currentIndex())));
    const int bottom = grid->verticalScrollBar()->value();
    TurnWheel(grid->viewport(), 120);
    EXPECT_LT(grid->verticalScrollBar()->value(), bottom);
}

TEST_F(ServicesScreen, ColumnWidthThatTheUserHasSetStaysThroughASaveAndALoad) {
    Write({{.description = "Gravel"}});
    Open();
    const int width = grid->columnWidth(0);
    QWidget* heading = grid->horizontalHeader()->viewport();
    const QPoint edge(width - 1, heading->height() / 2);
    QTest::mousePress(heading, Qt::LeftButton, Qt::NoModifier, edge);
    QTest::mouseMove(heading, edge + QPoint(40, 0));
    QTest::mouseRelease(heading, Qt::LeftButton, Qt::NoModifier, edge + QPoint(40, 0));
    const int widened = grid->columnWidth(0);
    ASSERT_GT(widened, width);
    const int costWidth = grid->columnWidth(2);
    ClickButton(8);
    EnterItem(u"Gravel from the quarry behind the hill"_s);
    Enter(u"txtCost"_s, u"123456789012.25"_s);
    ClickButton(13);
    ASSERT_EQ(office.inventoriedItems.fgItems.Text(1, 2), u"$123,456,789,012.25"_s);
    EXPECT_EQ(grid->columnWidth(0), widened);
    EXPECT_EQ(grid->columnWidth(2), costWidth);
    ClickButton(2);
    EXPECT_EQ(grid->columnWidth(0), widened);
    EXPECT_EQ(grid->columnWidth(2), costWidth);
}

TEST_F(ServicesScreen, ColumnsFollowTheirContentsUntilTheUserSetsAWidth) {
    Write({{.description = "Gravel"}});
    Open();
    const int costWidth = grid->columnWidth(2);
    ClickButton(8);
    EnterItem(u"Sand"_s);
    Enter(u"txtCost"_s, u"123456789012.25"_s);
    ClickButton(13);
    EXPECT_GT(grid->columnWidth(2), costWidth);
}
