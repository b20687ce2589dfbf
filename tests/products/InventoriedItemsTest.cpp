#include "products/InventoriedItems.h"

#include "ItemBytes.h"
#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString itemsFile = u"NXInventoriedItems.txt"_s;
const QString question = u"This will DELETE the Selected Sales Item"_s;
const QString questionTitle = u"Delete Sales Item"_s;

constexpr int descriptionColumn = 0;
constexpr int categoryColumn = 1;
constexpr int costChoice = 2;
constexpr int recordColumn = 9;

} // namespace

class InventoriedItemsTest : public OfficeTest {
protected:
    InventoriedItems& items = office.inventoriedItems;

    void Write(const std::vector<ItemBytes>& records) {
        QByteArray bytes;
        for (const ItemBytes& record : records)
            bytes += record.Record();
        folder.Write(itemsFile, bytes);
    }

    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < office.inventoriedItems.fgItems.Columns(); ++column)
            cells += office.inventoriedItems.fgItems.Text(row, column);
        return cells;
    }

    QStringList Column(int column) const {
        QStringList cells;
        for (int row = 1; row <= office.inventoriedItems.fgItems.DataRows(); ++row)
            cells += office.inventoriedItems.fgItems.Text(row, column);
        return cells;
    }

    /// What a click on the row with that description does.
    void Pick(const QString& description) {
        const int row = items.fgItems.FindRow(descriptionColumn, description);
        ASSERT_GT(row, 0);
        items.fgItems.SetCurrent(row, 0);
        items.fgItems_Click(row);
    }

    /// A new item whose entry is complete.
    void EnterNew(const QString& description) {
        items.AddNew();
        items.entry = {.txtDescription = description,
                       .cboCategory = u"Bulk"_s,
                       .txtCost = u"$1.00"_s,
                       .sellPrice = u"$2.00"_s,
                       .discountPrice = u"$1.50"_s,
                       .txtDiscountQty = u"12"_s,
                       .txtOnHand = u"7"_s,
                       .txtReorderAmount = u"5"_s,
                       .txtReorderAt = u"2"_s};
    }

    /// A save that fails leaves the files as they were.
    void ExpectSaveFails(FailureKind kind) {
        const auto before = folder.Contents();
        EXPECT_EQ(FailureOf([&] { items.Save(); }).Kind(), kind);
        EXPECT_EQ(folder.Contents(), before);
    }
};

TEST_F(InventoriedItemsTest, ColumnsHaveTheirHeadings) {
    EXPECT_EQ(Row(0), (QStringList{u"Description"_s, u"Category"_s, u"Cost (Unit)"_s, u"Price"_s,
                                   u"On-Hand"_s, u"Disc Price"_s, u"Disc Qty"_s, u"Reorder"_s,
                                   u"When At"_s, u"Rec #"_s}));
}

TEST_F(InventoriedItemsTest, AmountsAndCountsLineUpOnTheRightUnderTheirHeadings) {
    Write({{.description = "Gravel"}});
    items.Load();
    const QString alignments = u"llrrrrrrrl"_s;
    const GridModel& grid = items.fgItems;
    ASSERT_EQ(grid.columnCount(), alignments.size());
    for (int column = 0; column < grid.columnCount(); ++column) {
        const int expected =
            Qt::AlignVCenter | (alignments[column] == u'r' ? Qt::AlignRight : Qt::AlignLeft);
        EXPECT_EQ(grid.data(grid.index(0, column), Qt::TextAlignmentRole).toInt(), expected)
            << column;
        EXPECT_EQ(grid.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), expected)
            << column;
    }
}

TEST_F(InventoriedItemsTest, SortChoicesStandInTheOrderOfTheirColumns) {
    EXPECT_EQ(InventoriedItems::SortChoices(),
              (QStringList{u"Description"_s, u"Category"_s, u"Cost"_s, u"Price"_s, u"On-Hand"_s}));
}

TEST_F(InventoriedItemsTest, WithoutAFileNothingIsLoadedAndNoFileIsMade) {
    items.Load();
    EXPECT_EQ(items.fgItems.DataRows(), 0);
    EXPECT_TRUE(items.enabled.addNew);
    EXPECT_FALSE(items.enabled.modify);
    EXPECT_FALSE(items.enabled.deleteItem);
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_FALSE(folder.Has(itemsFile));
}

TEST_F(InventoriedItemsTest, RowShowsTheRecord) {
    Write({{.description = "Gravel",
            .category = "Bulk",
            .unitCost = 12'345'678,
            .sellPrice = 12'500'000,
            .onHand = -3,
            .discountPrice = -100,
            .discountQty = 100'000,
            .reorderAmount = 32'767,
            .reorderPoint = 0}});
    items.Load();
    ASSERT_EQ(items.fgItems.DataRows(), 1);
    EXPECT_EQ(Row(1), (QStringList{u"Gravel"_s, u"Bulk"_s, u"$1,234.57"_s, u"$1,250.00"_s, u"-3"_s,
                                   u"($0.01)"_s, u"100000"_s, u"32767"_s, u"0"_s, u"1"_s}));
}

TEST_F(InventoriedItemsTest, AmountsShowInTheRegionsFormat) {
    UseLocale("de_DE.UTF-8");
    Write({{.description = "K\xe4se", .unitCost = 12'500'000}});
    items.Load();
    EXPECT_EQ(items.fgItems.Text(1, 0), u"K\u00e4se"_s);
    EXPECT_EQ(items.fgItems.Text(1, 2), u"1.250,00\u00a0\u20ac"_s);
}

TEST_F(InventoriedItemsTest, LargestAmountsShowToTheLastDigit) {
    Write({{.description = "Bridge",
            .unitCost = 9'223'372'036'854'775'807,
            .sellPrice = -9'223'372'036'854'775'807}});
    items.Load();
    EXPECT_EQ(items.fgItems.Text(1, 2), u"$922,337,203,685,477.58"_s);
    EXPECT_EQ(items.fgItems.Text(1, 3), u"($922,337,203,685,477.58)"_s);
}

TEST_F(InventoriedItemsTest, LoadSortsByCategoryAsTextAndKeepsTheFilesOrderWithin) {
    Write({{.description = "A", .category = "bulk"},
           {.description = "B", .category = "Bulk"},
           {.description = "C", .category = ""},
           {.description = "D", .category = "Bulk"},
           {.description = "E", .category = "10"},
           {.description = "F", .category = "9"}});
    items.Load();
    EXPECT_EQ(Column(descriptionColumn),
              (QStringList{u"C"_s, u"E"_s, u"F"_s, u"B"_s, u"D"_s, u"A"_s}));
    EXPECT_EQ(Column(recordColumn), (QStringList{u"3"_s, u"5"_s, u"6"_s, u"2"_s, u"4"_s, u"1"_s}));
    EXPECT_EQ(items.fgItems.CurrentColumn(), categoryColumn);
}

TEST_F(InventoriedItemsTest, SortChoiceAppliesToTheLoadOfACheckedBox) {
    Write({{.description = "b", .category = "X", .unitCost = 100'000, .sellPrice = 5, .onHand = 10},
           {.description = "a", .category = "Y", .unitCost = 90'000, .sellPrice = 7, .onHand = -9},
           {.description = "c", .category = "W", .unitCost = -1, .sellPrice = 6, .onHand = 9}});
    items.Load();
    const std::pair<int, QStringList> orders[] = {{0, {u"a"_s, u"b"_s, u"c"_s}},
                                                  {1, {u"c"_s, u"b"_s, u"a"_s}},
                                                  {2, {u"c"_s, u"a"_s, u"b"_s}},
                                                  {3, {u"b"_s, u"c"_s, u"a"_s}},
                                                  {4, {u"a"_s, u"c"_s, u"b"_s}}};
    items.ckByCategory_Click(true);
    items.ckByCategory_Click(false);
    for (const auto& [choice, names] : orders) {
        items.lstSortBy = choice;
        items.ReloadOrSort();
        EXPECT_EQ(Column(descriptionColumn), names) << choice;
        EXPECT_EQ(items.fgItems.CurrentColumn(), choice);
    }
}

TEST_F(InventoriedItemsTest, SortChoiceLiesDormantUntilABoxIsChecked) {
    Write({{.description = "b", .category = "X"}, {.description = "a", .category = "Y"}});
    items.Load();
    items.lstSortBy = 0;
    items.ReloadOrSort();
    EXPECT_EQ(Column(descriptionColumn), (QStringList{u"b"_s, u"a"_s}));
}

TEST_F(InventoriedItemsTest, ClearingTheSortBoxLeavesTheChoiceInForceAndTheCategoryBoxEndsIt) {
    items.ckByCategory_Click(true);
    EXPECT_TRUE(items.ApplySortChoice);
    items.ckByCategory_Click(false);
    EXPECT_TRUE(items.ApplySortChoice);
    items.ckCategory_Click(true);
    EXPECT_TRUE(items.ApplySortChoice);
    items.ckCategory_Click(false);
    EXPECT_FALSE(items.ApplySortChoice);
}

TEST_F(InventoriedItemsTest, CheckedSortBoxSortsTheGridAsTextWithoutReadingTheFile) {
    Write({{.description = "a", .category = "X", .unitCost = 90'000},
           {.description = "b", .category = "X", .unitCost = 100'000},
           {.description = "c", .category = "X", .unitCost = 40'000}});
    items.Load();
    folder.Remove(itemsFile);
    items.lstSortBy = costChoice;
    items.ckByCategory_Click(true);
    items.ReloadOrSort();
    EXPECT_EQ(Column(costChoice), (QStringList{u"$10.00"_s, u"$4.00"_s, u"$9.00"_s}));
    EXPECT_FALSE(items.ckByCategory);
    EXPECT_FALSE(folder.Has(itemsFile));
}

TEST_F(InventoriedItemsTest, ReloadSortsAmountsAsNumbers) {
    Write({{.description = "a", .category = "X", .unitCost = 90'000},
           {.description = "b", .category = "X", .unitCost = 100'000},
           {.description = "c", .category = "X", .unitCost = 40'000}});
    items.Load();
    items.lstSortBy = costChoice;
    items.ckByCategory_Click(true);
    items.ReloadOrSort();
    items.ReloadOrSort();
    EXPECT_EQ(Column(costChoice), (QStringList{u"$4.00"_s, u"$9.00"_s, u"$10.00"_s}));
}

TEST_F(InventoriedItemsTest, PickedItemStaysCurrentThroughASortAndAReload) {
    Write({{.description = "b"}, {.description = "a"}});
    items.Load();
    Pick(u"b"_s);
    items.ckByCategory_Click(true);
    items.ReloadOrSort();
    EXPECT_EQ(items.fgItems.CurrentRow(), 2);
    EXPECT_EQ(items.fgItems.Text(2, descriptionColumn), u"b"_s);
    EXPECT_TRUE(items.enabled.modify);
    items.ckCategory_Click(false);
    items.ReloadOrSort();
    EXPECT_EQ(items.fgItems.CurrentRow(), 1);
    EXPECT_FALSE(items.enabled.modify);
    EXPECT_FALSE(items.enabled.deleteItem);
}

TEST_F(InventoriedItemsTest, CheckedCategoryBoxWithoutACategoryAsksForOne) {
    Write({{.description = "a"}});
    items.Load();
    items.ckCategory_Click(true);
    user.ExpectMessage(u"Select a Category"_s);
    EXPECT_EQ(items.ReloadOrSort(), ItemFocus::Category);
    EXPECT_EQ(items.fgItems.DataRows(), 1);
    EXPECT_TRUE(items.enabled.addNew);
}

TEST_F(InventoriedItemsTest, CategoryBoxLoadsItsCategoryAloneAndClosesAddNew) {
    Write({{.description = "a", .category = "Bulk"},
           {.description = "b", .category = "bulk"},
           {.description = "c", .category = "Bulk"}});
    items.Load();
    items.ckCategory_Click(true);
    items.entry.cboCategory = u"Bulk"_s;
    items.ReloadOrSort();
    EXPECT_EQ(Column(recordColumn), (QStringList{u"1"_s, u"3"_s}));
    EXPECT_FALSE(items.enabled.addNew);
    items.ckCategory_Click(false);
    EXPECT_FALSE(items.enabled.addNew);
    items.ReloadOrSort();
    EXPECT_EQ(Column(recordColumn), (QStringList{u"1"_s, u"3"_s, u"2"_s}));
    EXPECT_TRUE(items.enabled.addNew);
}

TEST_F(InventoriedItemsTest, CategoryThatNoItemHasLeavesNoRows) {
    Write({{.description = "a"}, {.description = "b"}});
    items.Load();
    items.ckCategory_Click(true);
    items.entry.cboCategory = u"Bul"_s;
    items.ReloadOrSort();
    EXPECT_EQ(items.fgItems.Rows(), 1);
    EXPECT_FALSE(items.enabled.addNew);
}

TEST_F(InventoriedItemsTest, CategoryLoadedAloneIsInTheOrderOfTheSortChoice) {
    Write({{.description = "a", .category = "Bulk", .unitCost = 100'000},
           {.description = "b", .category = "Sand", .unitCost = 50'000},
           {.description = "c", .category = "Bulk", .unitCost = 90'000},
           {.description = "d", .category = "Bulk", .unitCost = 40'000}});
    items.Load();
    items.lstSortBy = costChoice;
    items.ckCategory_Click(true);
    items.entry.cboCategory = u"Bulk"_s;
    items.ReloadOrSort();
    // By the category alone, equals would stand as in the file: a, c, d.
    EXPECT_EQ(Column(descriptionColumn), (QStringList{u"d"_s, u"c"_s, u"a"_s}));
    EXPECT_EQ(Column(costChoice), (QStringList{u"$4.00"_s, u"$9.00"_s, u"$10.00"_s}));
    EXPECT_EQ(items.fgItems.CurrentColumn(), costChoice);
}

TEST_F(InventoriedItemsTest, LoadOfTheScreenPutsTheSortChoiceOutOfForce) {
    Write({{.description = "b", .category = "X"}, {.description = "a", .category = "Y"}});
    items.lstSortBy = 0;
    items.ckByCategory_Click(true);
    items.ckByCategory_Click(false);
    items.Load();
    EXPECT_FALSE(items.ApplySortChoice);
    items.ReloadOrSort();
    EXPECT_EQ(Column(descriptionColumn), (QStringList{u"b"_s, u"a"_s}));
}

TEST_F(InventoriedItemsTest, CategoriesAreCollectedFromTheFile) {
    Write({{.description = "a", .category = "Sand"},
           {.description = "b", .category = ""},
           {.description = "c", .category = "sand"},
           {.description = "d", .category = "Sand"}});
    items.Load();
    EXPECT_EQ(items.Categories.List.stringList(), (QStringList{u"Sand"_s, u"sand"_s}));
}

TEST_F(InventoriedItemsTest, LoadWithTheSameFileTwiceListsEachCategoryOnce) {
    Write({{.description = "a", .category = "Sand"}});
    items.Load();
    items.LoadSalesItems();
    EXPECT_EQ(items.Categories.List.stringList(), QStringList{u"Sand"_s});
}

TEST_F(InventoriedItemsTest, TrailingFragmentIsRoundedToARecordOrToNone) {
    const QByteArray one = ItemBytes{.description = "a"}.Record();
    folder.Write(itemsFile, one + one.left(51));
    items.Load();
    EXPECT_EQ(items.fgItems.DataRows(), 1);
    folder.Write(itemsFile, one + one.left(53));
    items.LoadSalesItems();
    ASSERT_EQ(items.fgItems.DataRows(), 2);
    // What the file lacks reads as zero, also behind the first letters of the category.
    EXPECT_EQ(Column(recordColumn), (QStringList{u"2"_s, u"1"_s}));
    EXPECT_EQ(Column(2), (QStringList{u"$0.00"_s, u"$1.00"_s}));
}

TEST_F(InventoriedItemsTest, MoreThan32767RecordsAreAnOverflow) {
    folder.Write(itemsFile, QByteArray(32'768 * 104, ' '));
    EXPECT_EQ(FailureOf([&] { items.Load(); }).Kind(), FailureKind::Overflow);
}

TEST_F(InventoriedItemsTest, LostFileComesBackFromBackup) {
    folder.Write(u"Backup/"_s + itemsFile, ItemBytes{.description = "Gravel"}.Record());
    items.Load();
    EXPECT_EQ(Column(descriptionColumn), QStringList{u"Gravel"_s});
    EXPECT_TRUE(folder.Has(itemsFile));
}

TEST_F(InventoriedItemsTest, UnreadableFileFailsByName) {
    Write({{.description = "a"}});
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(itemsFile).toUtf8().constData(), 0), 0);
    const RuntimeFailure failure = FailureOf([&] { items.Load(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_TRUE(failure.Sentence().contains(itemsFile));
}

TEST_F(InventoriedItemsTest, ClickOnARowOpensModifyAndDeleteAndOnTheHeadingNothing) {
    Write({{.description = "a"}});
    items.Load();
    items.fgItems_Click(0);
    EXPECT_FALSE(items.enabled.modify);
    EXPECT_FALSE(items.enabled.deleteItem);
    items.fgItems_Click(1);
    EXPECT_TRUE(items.enabled.modify);
    EXPECT_TRUE(items.enabled.deleteItem);
}

TEST_F(InventoriedItemsTest, AddNewOpensTheEntryAndClearsIt) {
    items.entry.txtCost = u"5"_s;
    items.entry.cboCategory = u"Bulk"_s;
    EXPECT_EQ(items.AddNew(), ItemFocus::Description);
    EXPECT_TRUE(items.enabled.entry);
    EXPECT_FALSE(items.EditingExisting);
    EXPECT_EQ(items.entry.txtCost, QString());
    EXPECT_EQ(items.entry.cboCategory, QString());
}

TEST_F(InventoriedItemsTest, RetainedCategorySurvivesClearing) {
    items.ckClearItem = true;
    items.entry.cboCategory = u"Bulk"_s;
    items.entry.txtOnHand = u"5"_s;
    items.Clear();
    EXPECT_EQ(items.entry.cboCategory, u"Bulk"_s);
    EXPECT_EQ(items.entry.txtOnHand, QString());
}

TEST_F(InventoriedItemsTest, SavedItemsBytes) {
    EnterNew(u"K\u00e4se"_s);
    items.entry.cboCategory = u"Dairy"_s;
    items.entry.txtCost = u"$3.50"_s;
    items.entry.sellPrice = u"1250"_s;
    items.entry.discountPrice = u"$0.00"_s;
    items.entry.txtDiscountQty = u"100000"_s;
    items.entry.txtOnHand = u"32767"_s;
    items.entry.txtReorderAmount = u"258"_s;
    items.entry.txtReorderAt = u"-2"_s;
    EXPECT_EQ(items.Save(), ItemFocus::Stays);
    EXPECT_EQ(folder.Read(itemsFile), "K\xe4se" + QByteArray(46, ' ') + "Dairy               " +
                                          QByteArray("\xb8\x88\x00\x00\x00\x00\x00\x00"
                                                     "\x20\xbc\xbe\x00\x00\x00\x00\x00"
                                                     "\xff\x7f"
                                                     "\x00\x00\x00\x00\x00\x00\x00\x00"
                                                     "\xa0\x86\x01\x00"
                                                     "\x02\x01"
                                                     "\xfe\xff",
                                                     34));
}

TEST_F(InventoriedItemsTest, SavedItemsBytesInAnotherRegion) {
    UseLocale("de_DE.UTF-8");
    EnterNew(u"Kies"_s);
    items.entry.txtCost = u"3,50 \u20ac"_s;
    items.entry.sellPrice = u"1.250,00\u00a0\u20ac"_s;
    items.entry.discountPrice = u"0,0001"_s;
    items.Save();
    EXPECT_EQ(
        folder.Read(itemsFile),
        (ItemBytes{
            .description = "Kies", .unitCost = 35'000, .sellPrice = 12'500'000, .discountPrice = 1}
             .Record()));
}

TEST_F(InventoriedItemsTest, NewItemIsAppendedBehindTheOthersWhichStayAsTheyAre) {
    Write({{.description = "b", .category = "Z"}, {.description = "a", .category = "Y"}});
    const QByteArray before = folder.Read(itemsFile);
    items.Load();
    EnterNew(u"Gravel"_s);
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), before + ItemBytes{.description = "Gravel"}.Record());
    EXPECT_EQ(Column(recordColumn), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
    EXPECT_EQ(items.fgItems.CurrentRow(), 1);
}

TEST_F(InventoriedItemsTest, SaveEndsTheEntryAndClearsIt) {
    items.ckClearItem = true;
    EnterNew(u"Gravel"_s);
    items.Save();
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_EQ(items.entry.txtDescription, QString());
    EXPECT_EQ(items.entry.sellPrice, QString());
    EXPECT_EQ(items.entry.cboCategory, u"Bulk"_s);
}

TEST_F(InventoriedItemsTest, ModifiedItemIsWrittenInItsPlace) {
    Write({{.description = "a", .category = "X"},
           {.description = "b", .category = "W"},
           {.description = "c", .category = "V"}});
    items.Load();
    Pick(u"b"_s);
    EXPECT_EQ(items.Modify(), ItemFocus::Description);
    EXPECT_FALSE(items.enabled.grid);
    EXPECT_TRUE(items.enabled.entry);
    items.entry.sellPrice = u"$9.99"_s;
    items.entry.txtDescription = u"B"_s;
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile),
              (ItemBytes{.description = "a", .category = "X"}.Record() +
               ItemBytes{.description = "B", .category = "W", .sellPrice = 99'900}.Record() +
               ItemBytes{.description = "c", .category = "V"}.Record()));
    EXPECT_TRUE(items.enabled.grid);
    EXPECT_EQ(items.fgItems.Text(items.fgItems.CurrentRow(), descriptionColumn), u"B"_s);
}

TEST_F(InventoriedItemsTest, ModifyTakesTheRowIntoTheEntry) {
    Write({{.description = "Gravel"}});
    items.Load();
    Pick(u"Gravel"_s);
    items.Modify();
    EXPECT_TRUE(items.EditingExisting);
    EXPECT_EQ(items.entry.txtDescription, u"Gravel"_s);
    EXPECT_EQ(items.entry.cboCategory, u"Bulk"_s);
    EXPECT_EQ(items.entry.txtCost, u"$1.00"_s);
    EXPECT_EQ(items.entry.sellPrice, u"$2.00"_s);
    EXPECT_EQ(items.entry.discountPrice, u"$1.50"_s);
    EXPECT_EQ(items.entry.txtDiscountQty, u"12"_s);
    EXPECT_EQ(items.entry.txtOnHand, u"7"_s);
    EXPECT_EQ(items.entry.txtReorderAmount, u"5"_s);
    EXPECT_EQ(items.entry.txtReorderAt, u"2"_s);
}

TEST_F(InventoriedItemsTest, LoadOfAnItemOpensTheGridThatModifyClosed) {
    Write({{.description = "Gravel"}});
    items.Load();
    Pick(u"Gravel"_s);
    items.Modify();
    ASSERT_FALSE(items.enabled.grid);
    items.ReloadOrSort();
    EXPECT_TRUE(items.enabled.grid);
    EXPECT_TRUE(items.enabled.entry);
    EXPECT_EQ(items.entry.txtDescription, u"Gravel"_s);
}

TEST_F(InventoriedItemsTest, LoadWithoutAnItemLeavesTheGridThatModifyClosed) {
    Write({{.description = "Gravel"}});
    items.Load();
    Pick(u"Gravel"_s);
    items.Modify();
    items.ckCategory_Click(true);
    items.entry.cboCategory = u"Sand"_s;
    items.ReloadOrSort();
    EXPECT_FALSE(items.enabled.grid);
}

TEST_F(InventoriedItemsTest, RetainedCategoryGoesToTheModifiedItem) {
    Write({{.description = "Gravel", .category = "Bulk"}});
    items.Load();
    items.ckClearItem = true;
    items.entry.cboCategory = u"Sand"_s;
    Pick(u"Gravel"_s);
    items.Modify();
    EXPECT_EQ(items.entry.cboCategory, u"Sand"_s);
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile),
              (ItemBytes{.description = "Gravel", .category = "Sand"}.Record()));
}

TEST_F(InventoriedItemsTest, SaveWithoutADescriptionGoesThere) {
    EnterNew({});
    items.entry.cboCategory = u"New one"_s;
    EXPECT_EQ(items.Save(), ItemFocus::Description);
    EXPECT_FALSE(folder.Has(itemsFile));
    // The category comes first.
    EXPECT_EQ(items.Categories.List.stringList(), QStringList{u"New one"_s});
    EXPECT_TRUE(items.enabled.entry);
}

TEST_F(InventoriedItemsTest, SaveWithoutAPriceGoesThereSellPriceFirst) {
    EnterNew(u"Gravel"_s);
    items.entry.sellPrice.clear();
    items.entry.discountPrice.clear();
    items.entry.txtOnHand = u"abc"_s;
    EXPECT_EQ(items.Save(), ItemFocus::SellPrice);
    items.entry.sellPrice = u"1"_s;
    EXPECT_EQ(items.Save(), ItemFocus::DiscountPrice);
    EXPECT_EQ(items.entry.txtOnHand, u"abc"_s);
    EXPECT_FALSE(folder.Has(itemsFile));
    items.ClearPrices();
    EXPECT_EQ(items.entry.sellPrice, u"$0.00"_s);
    EXPECT_EQ(items.entry.discountPrice, u"$0.00"_s);
    EXPECT_EQ(items.Save(), ItemFocus::Stays);
    EXPECT_EQ(items.entry.txtOnHand, u"0"_s);
    EXPECT_FALSE(folder.Has(itemsFile));
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile),
              (ItemBytes{.description = "Gravel", .sellPrice = 0, .onHand = 0, .discountPrice = 0}
                   .Record()));
}

TEST_F(InventoriedItemsTest, StockThatIsNoNumberBecomesZeroAndNothingIsSaved) {
    Write({{.description = "a"}});
    items.Load();
    for (const QString& text : {u"abc"_s, u""_s, u"1.2.3"_s, u"\u0663"_s}) {
        EnterNew(u"Gravel"_s);
        items.entry.txtOnHand = text;
        EXPECT_EQ(items.Save(), ItemFocus::Stays);
        EXPECT_EQ(items.entry.txtOnHand, u"0"_s);
        EXPECT_EQ(folder.Read(itemsFile), ItemBytes{.description = "a"}.Record());
        EXPECT_EQ(items.fgItems.DataRows(), 1);
        EXPECT_TRUE(items.enabled.entry);
    }
}

TEST_F(InventoriedItemsTest, CostAndCountsLeftBlankAreSavedAsZero) {
    EnterNew(u"Gravel"_s);
    items.entry.txtCost.clear();
    items.entry.txtDiscountQty.clear();
    items.entry.txtReorderAmount.clear();
    items.entry.txtReorderAt.clear();
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), (ItemBytes{.description = "Gravel",
                                                 .unitCost = 0,
                                                 .discountQty = 0,
                                                 .reorderAmount = 0,
                                                 .reorderPoint = 0}
                                           .Record()));
}

TEST_F(InventoriedItemsTest, CountsAreRoundedHalfToEven) {
    EnterNew(u"Gravel"_s);
    items.entry.txtOnHand = u"2.5"_s;
    items.entry.txtDiscountQty = u"3.5"_s;
    items.entry.txtReorderAmount = u"1e2"_s;
    items.Save();
    EXPECT_EQ(
        folder.Read(itemsFile),
        (ItemBytes{.description = "Gravel", .onHand = 2, .discountQty = 4, .reorderAmount = 100}
             .Record()));
}

TEST_F(InventoriedItemsTest, NumberBeyondItsFieldIsAnOverflowAndTheFileStays) {
    Write({{.description = "a"}, {.description = "b"}});
    items.Load();
    struct {
        QString SalesItemEntry::*field;
        QString text;
    } const cases[] = {{&SalesItemEntry::txtOnHand, u"32768"_s},
                       {&SalesItemEntry::txtOnHand, u"-32769"_s},
                       {&SalesItemEntry::txtDiscountQty, u"2147483648"_s},
                       {&SalesItemEntry::txtReorderAmount, u"32768"_s},
                       {&SalesItemEntry::txtReorderAt, u"99999999999999999999"_s},
                       {&SalesItemEntry::txtCost, u"922337203685477.5808"_s},
                       {&SalesItemEntry::sellPrice, u"1e300"_s},
                       {&SalesItemEntry::discountPrice, u"-922337203685477.5809"_s}};
    for (const auto& one : cases) {
        EnterNew(u"Gravel"_s);
        items.entry.*one.field = one.text;
        ExpectSaveFails(FailureKind::Overflow);
    }
}

TEST_F(InventoriedItemsTest, NumberBeyondItsFieldLeavesTheModifiedRecordAsItWas) {
    Write({{.description = "a"}, {.description = "b"}});
    items.Load();
    Pick(u"b"_s);
    items.Modify();
    items.entry.txtDescription = u"changed"_s;
    items.entry.txtOnHand = u"40000"_s;
    ExpectSaveFails(FailureKind::Overflow);
}

TEST_F(InventoriedItemsTest, TextWhereANumberBelongsIsAMismatchAndTheFileStays) {
    Write({{.description = "a"}});
    items.Load();
    for (QString SalesItemEntry::*field :
         {&SalesItemEntry::txtDiscountQty, &SalesItemEntry::txtReorderAmount,
          &SalesItemEntry::txtReorderAt, &SalesItemEntry::txtCost, &SalesItemEntry::sellPrice}) {
        EnterNew(u"Gravel"_s);
        items.entry.*field = u"ten"_s;
        ExpectSaveFails(FailureKind::TypeMismatch);
    }
}

TEST_F(InventoriedItemsTest, FailureOfASaveNamesTheField) {
    EnterNew(u"Gravel"_s);
    items.entry.txtOnHand = u"40000"_s;
    EXPECT_EQ(FailureOf([&] { items.Save(); }).Sentence(),
              u"The number 40000 is outside its range (the units on hand)."_s);
}

TEST_F(InventoriedItemsTest, FirstItemBeyondItsFieldLeavesAnEmptyFile) {
    EnterNew(u"Gravel"_s);
    items.entry.txtOnHand = u"40000"_s;
    const RuntimeFailure failure = FailureOf([&] { items.Save(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(u"40000 "_s)) << failure.what();
    EXPECT_TRUE(failure.Sentence().contains(u"the units on hand"_s)) << failure.what();
    // The file is opened before the row is turned into a record.
    EXPECT_EQ(folder.Read(itemsFile), "");
}

TEST_F(InventoriedItemsTest, ItemNumber32768IsAnOverflowAndTheFileStays) {
    folder.Write(itemsFile, ItemBytes{.description = "a"}.Record().repeated(32'767));
    items.Load();
    EnterNew(u"One too many"_s);
    const QByteArray before = folder.Read(itemsFile);
    EXPECT_EQ(FailureOf([&] { items.Save(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Read(itemsFile), before);
}

TEST_F(InventoriedItemsTest, LongTextsAreCutAtTheirWidths) {
    EnterNew(QString(50, u'd') + u'x');
    items.entry.cboCategory = QString(20, u'c') + u'x';
    items.Save();
    EXPECT_EQ(
        folder.Read(itemsFile),
        (ItemBytes{.description = QByteArray(50, 'd'), .category = QByteArray(20, 'c')}.Record()));
    EXPECT_EQ(items.fgItems.Text(1, descriptionColumn), QString(50, u'd'));
}

TEST_F(InventoriedItemsTest, CharactersThatTheFileLacksBecomeQuestionMarks) {
    EnterNew(u"\u20ac \u0416 \U0001F600 \u00e9"_s);
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), ItemBytes{.description = "\x80 ? ? \xe9"}.Record());
    EXPECT_EQ(items.fgItems.Text(1, descriptionColumn), u"\u20ac ? ? \u00e9"_s);
}

TEST_F(InventoriedItemsTest, SavingReturnsTheGridToTheOrderByCategory) {
    Write({{.description = "b", .category = "X"}, {.description = "a", .category = "Y"}});
    items.Load();
    items.lstSortBy = 0;
    items.ckByCategory_Click(true);
    items.ckCategory = true;
    EnterNew(u"c"_s);
    items.entry.cboCategory = u"W"_s;
    items.Save();
    EXPECT_FALSE(items.ckByCategory);
    EXPECT_FALSE(items.ckCategory);
    EXPECT_FALSE(items.ApplySortChoice);
    EXPECT_EQ(Column(descriptionColumn), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    EXPECT_TRUE(items.enabled.addNew);
}

TEST_F(InventoriedItemsTest, SaveToAFileThatMayNotBeWrittenFailsByName) {
    Write({{.description = "a"}});
    items.Load();
    EnterNew(u"Gravel"_s);
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(itemsFile).toUtf8().constData(), 0444), 0);
    const auto before = folder.Contents();
    EXPECT_EQ(
        FailureOf([&] { items.Save(); }).Sentence(),
        u"Opening NXInventoriedItems.txt for reading and writing failed: Permission denied."_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InventoriedItemsTest, SaveOnAFullDiskFailsAndTheOtherRecordsStay) {
    Write({{.description = "a"}});
    const QByteArray before = folder.Read(itemsFile);
    items.Load();
    EnterNew(u"Gravel"_s);
    {
        const FullDisk full(150);
        FailureOf([&] { items.Save(); });
    }
    EXPECT_TRUE(folder.Read(itemsFile).startsWith(before));
    EXPECT_LT(folder.Read(itemsFile).size(), 2 * before.size());
}

TEST_F(InventoriedItemsTest, ModifyingAnItemThatALoadHasLeftOutSavesNothing) {
    Write({{.description = "a", .category = "X"}, {.description = "b", .category = "Y"}});
    items.Load();
    Pick(u"a"_s);
    items.Modify();
    items.ckCategory_Click(true);
    items.entry.cboCategory = u"Y"_s;
    items.ReloadOrSort();
    const auto before = folder.Contents();
    EXPECT_EQ(items.Save(), ItemFocus::Grid);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(items.entry.txtDescription, u"a"_s);
}

TEST_F(InventoriedItemsTest, DeleteAnsweredNoDeletesNothing) {
    Write({{.description = "a"}, {.description = "b"}});
    items.Load();
    Pick(u"a"_s);
    const auto before = folder.Contents();
    user.ExpectQuestion(question, questionTitle, Answer::No);
    items.Delete();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(items.fgItems.DataRows(), 2);
    EXPECT_TRUE(items.enabled.deleteItem);
}

TEST_F(InventoriedItemsTest, DeleteCompactsTheFile) {
    Write({{.description = "a"}, {.description = "b"}, {.description = "c"}});
    folder.Write(u"Backup/"_s + itemsFile, "stale");
    folder.Write(u"Inventory.TMP"_s, "left over from a crash, and longer than nothing");
    items.Load();
    Pick(u"b"_s);
    items.entry.txtCost = u"5"_s;
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    items.Delete();
    EXPECT_EQ(folder.Read(itemsFile),
              ItemBytes{.description = "a"}.Record() + ItemBytes{.description = "c"}.Record());
    EXPECT_FALSE(folder.Has(u"Inventory.TMP"_s));
    EXPECT_FALSE(folder.Has(u"Backup/"_s + itemsFile));
    EXPECT_EQ(items.entry.txtCost, QString());
    EXPECT_FALSE(items.enabled.deleteItem);
}

TEST_F(InventoriedItemsTest, RowsBehindTheDeletedOneKeepTheirNumbersUntilTheNextLoad) {
    Write({{.description = "a"}, {.description = "b"}, {.description = "c"}});
    items.Load();
    Pick(u"a"_s);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    items.Delete();
    EXPECT_EQ(Column(descriptionColumn), (QStringList{u"b"_s, u"c"_s}));
    EXPECT_EQ(Column(recordColumn), (QStringList{u"2"_s, u"3"_s}));
    items.LoadSalesItems();
    EXPECT_EQ(Column(recordColumn), (QStringList{u"1"_s, u"2"_s}));
}

TEST_F(InventoriedItemsTest, SecondDeleteBeforeALoadTakesTheRecordNowAtTheOldNumber) {
    Write({{.description = "a"}, {.description = "b"}, {.description = "c"}, {.description = "d"}});
    items.Load();
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    Pick(u"a"_s);
    items.Delete();
    Pick(u"b"_s);
    items.Delete();
    EXPECT_EQ(folder.Read(itemsFile),
              ItemBytes{.description = "b"}.Record() + ItemBytes{.description = "d"}.Record());
}

TEST_F(InventoriedItemsTest, ModifyBeforeALoadWritesTheRecordNowAtTheOldNumber) {
    Write({{.description = "a"}, {.description = "b"}, {.description = "c"}});
    items.Load();
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    Pick(u"a"_s);
    items.Delete();
    Pick(u"b"_s);
    items.Modify();
    items.entry.txtDescription = u"changed"_s;
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), ItemBytes{.description = "b"}.Record() +
                                          ItemBytes{.description = "changed"}.Record());
}

TEST_F(InventoriedItemsTest, DeletingTheLastItemRemovesTheFile) {
    Write({{.description = "a"}});
    folder.Write(u"Backup/"_s + itemsFile, "stale");
    items.Load();
    Pick(u"a"_s);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    items.Delete();
    EXPECT_FALSE(folder.Has(itemsFile));
    EXPECT_FALSE(folder.Has(u"Backup/"_s + itemsFile));
    EXPECT_EQ(items.fgItems.Rows(), 1);
    EXPECT_EQ(items.fgItems.CurrentRow(), 0);
    EXPECT_FALSE(items.enabled.deleteItem);
    EXPECT_FALSE(items.enabled.modify);
}

TEST_F(InventoriedItemsTest, OnlyRowOfAFilteredGridCountsAsTheLastItem) {
    Write({{.description = "a", .category = "X"}, {.description = "b", .category = "Y"}});
    items.Load();
    items.ckCategory_Click(true);
    items.entry.cboCategory = u"X"_s;
    items.ReloadOrSort();
    Pick(u"a"_s);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    items.Delete();
    EXPECT_FALSE(folder.Has(itemsFile));
    EXPECT_TRUE(items.enabled.addNew);
}

TEST_F(InventoriedItemsTest, DeletingTheItemBeingModifiedEndsTheModification) {
    Write({{.description = "a"}, {.description = "b"}});
    items.Load();
    Pick(u"a"_s);
    items.Modify();
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    items.Delete();
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_TRUE(items.enabled.grid);
}

TEST_F(InventoriedItemsTest, WithoutACurrentRowDeleteAndModifyDoNothing) {
    Write({{.description = "a"}});
    items.Load();
    items.Delete();
    EXPECT_EQ(items.Modify(), ItemFocus::Grid);
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_TRUE(folder.Has(itemsFile));
}

TEST_F(InventoriedItemsTest, DeleteOnAFullDiskFailsAndTheFileStays) {
    Write({{.description = "a"}, {.description = "b"}, {.description = "c"}});
    const QByteArray before = folder.Read(itemsFile);
    items.Load();
    Pick(u"a"_s);
    user.ExpectQuestion(question, questionTitle, Answer::Yes);
    {
        const FullDisk full(150);
        FailureOf([&] { items.Delete(); });
    }
    EXPECT_EQ(folder.Read(itemsFile), before);
}

TEST_F(InventoriedItemsTest, CancelEndsTheEntryClearsItAndOpensTheGrid) {
    Write({{.description = "a"}});
    items.Load();
    Pick(u"a"_s);
    items.Modify();
    items.Cancel();
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_TRUE(items.enabled.grid);
    EXPECT_EQ(items.entry.txtDescription, QString());
    EXPECT_EQ(folder.Read(itemsFile), ItemBytes{.description = "a"}.Record());
}

TEST_F(InventoriedItemsTest, SavedPriceReachesTheOtherScreensWithTheRefresh) {
    Write({{.description = "a"}});
    office.items.RefreshAll();
    items.Load();
    Pick(u"a"_s);
    items.Modify();
    items.entry.sellPrice = u"$9.99"_s;
    items.Save();
    EXPECT_EQ(office.items.ProductPrices.stringList(), QStringList{u"$2.00"_s});
    office.items.RefreshAll();
    EXPECT_EQ(office.items.ProductPrices.stringList(), QStringList{u"$9.99"_s});
    constexpr int priceColumn = 3;
    EXPECT_EQ(office.items.fgAddItems.Text(1, priceColumn), u"$9.99"_s);
}
