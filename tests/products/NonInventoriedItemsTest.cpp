#include "products/NonInventoriedItems.h"

#include "ItemBytes.h"
#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString itemsFile = u"NonInventoriedItems.txt"_s;

constexpr int onHandColumn = 1;
constexpr int recordColumn = 4;

} // namespace

class NonInventoriedItemsTest : public OfficeTest {
protected:
    NonInventoriedItems& items = office.nonInventoriedItems;

    void Write(const std::vector<NonItemBytes>& records) {
        QByteArray bytes;
        for (const NonItemBytes& record : records)
            bytes += record.Record();
        folder.Write(itemsFile, bytes);
    }

    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < office.nonInventoriedItems.fgNonItem.Columns(); ++column)
            cells += office.nonInventoriedItems.fgNonItem.Text(row, column);
        return cells;
    }

    QStringList Column(int column) const {
        QStringList cells;
        for (int row = 1; row <= office.nonInventoriedItems.fgNonItem.DataRows(); ++row)
            cells += office.nonInventoriedItems.fgNonItem.Text(row, column);
        return cells;
    }

    void Pick(int row) {
        items.fgNonItem.SetCurrent(row, 0);
        items.fgNonItem_Click(row);
    }

    void EnterNew(const QString& description) {
        items.AddNew();
        items.entry = {description, u"7"_s, u"5"_s, u"2"_s};
    }
};

TEST_F(NonInventoriedItemsTest, ColumnsHaveTheirHeadings) {
    EXPECT_EQ(Row(0), (QStringList{u"Description"_s, u"On-Hand"_s, u"Reorder"_s, u"When At"_s,
                                   u"Rec #"_s}));
}

TEST_F(NonInventoriedItemsTest, CountsLineUpOnTheRightUnderTheirHeadings) {
    Write({{.description = "Crate"}});
    items.Load();
    const QString alignments = u"lrrrl"_s;
    const GridModel& grid = items.fgNonItem;
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

TEST_F(NonInventoriedItemsTest, WithoutAFileNothingIsLoadedAndNoFileIsMade) {
    items.Load();
    EXPECT_EQ(items.fgNonItem.DataRows(), 0);
    EXPECT_FALSE(folder.Has(itemsFile));
}

TEST_F(NonInventoriedItemsTest, GridIsOrderedByTheStockAsText) {
    Write({{.description = "a", .onHand = 9},
           {.description = "b", .onHand = 10},
           {.description = "c", .onHand = -1},
           {.description = "d", .onHand = 10}});
    items.Load();
    EXPECT_EQ(Column(onHandColumn), (QStringList{u"-1"_s, u"10"_s, u"10"_s, u"9"_s}));
    EXPECT_EQ(Column(recordColumn), (QStringList{u"3"_s, u"2"_s, u"4"_s, u"1"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"b"_s, u"10"_s, u"5"_s, u"2"_s, u"2"_s}));
    EXPECT_EQ(items.fgNonItem.CurrentColumn(), onHandColumn);
    EXPECT_FALSE(items.enabled.modify);
}

TEST_F(NonInventoriedItemsTest, LostFileComesBackFromBackup) {
    const QByteArray bytes = NonItemBytes{.description = "Crate"}.Record();
    folder.Write(u"Backup/"_s + itemsFile, bytes);
    items.Load();
    EXPECT_EQ(Column(0), QStringList{u"Crate"_s});
    EXPECT_EQ(folder.Read(itemsFile), bytes);
}

TEST_F(NonInventoriedItemsTest, TrailingFragmentIsRoundedToARecordOrToNone) {
    const QByteArray one = NonItemBytes{.description = "a"}.Record();
    folder.Write(itemsFile, one + one.left(27));
    items.Load();
    EXPECT_EQ(Column(recordColumn), QStringList{u"1"_s});
    folder.Write(itemsFile, one + one.left(51));
    items.Load();
    // What the file lacks reads as zero, also the upper half of a count that is cut in two.
    EXPECT_EQ(Column(recordColumn), (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"a"_s, u"7"_s, u"0"_s, u"0"_s, u"2"_s}));
}

TEST_F(NonInventoriedItemsTest, MoreThan32767RecordsAreAnOverflow) {
    folder.Write(itemsFile, QByteArray(32'768 * 56, ' '));
    EXPECT_EQ(FailureOf([&] { items.Load(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(items.fgNonItem.DataRows(), 0);
}

TEST_F(NonInventoriedItemsTest, UnreadableFileFailsByName) {
    Write({{.description = "a"}});
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(itemsFile).toUtf8().constData(), 0), 0);
    EXPECT_EQ(
        FailureOf([&] { items.Load(); }).Sentence(),
        u"Opening NonInventoriedItems.txt for reading and writing failed: Permission denied."_s);
}

TEST_F(NonInventoriedItemsTest, ClickOnARowOpensModifyAndOnTheHeadingNothing) {
    Write({{.description = "a"}});
    items.Load();
    items.fgNonItem_Click(0);
    EXPECT_FALSE(items.enabled.modify);
    items.fgNonItem_Click(1);
    EXPECT_TRUE(items.enabled.modify);
}

TEST_F(NonInventoriedItemsTest, WithoutACurrentRowModifyAndSaveGoToTheGrid) {
    Write({{.description = "a"}});
    items.Load();
    EXPECT_EQ(items.Modify(), ItemFocus::Grid);
    EXPECT_FALSE(items.enabled.entry);
    Pick(1);
    items.Modify();
    // The file has been emptied since, and with it the grid.
    folder.Write(itemsFile, {});
    items.LoadNonInventoriedItems();
    ASSERT_EQ(items.fgNonItem.CurrentRow(), 0);
    EXPECT_EQ(items.Save(), ItemFocus::Grid);
    EXPECT_EQ(folder.Read(itemsFile), "");
    EXPECT_EQ(items.entry.txtDescription, u"a"_s);
}

TEST_F(NonInventoriedItemsTest, SavedItemsBytes) {
    EnterNew(u"Palette K\u00e4se"_s);
    items.entry.txtOnHandNon = u"1"_s;
    items.entry.txtReorderAmountNon = u"256"_s;
    items.entry.txtReorderAtNon = u"-1"_s;
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), "Palette K\xe4se                                      " +
                                          QByteArray("\x01\x00\x00\x01\xff\xff", 6));
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_EQ(items.entry.txtDescription, QString());
}

TEST_F(NonInventoriedItemsTest, NewItemIsAppendedBehindTheOthers) {
    Write({{.description = "a"}, {.description = "b"}});
    items.Load();
    EnterNew(u"c"_s);
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), NonItemBytes{.description = "a"}.Record() +
                                          NonItemBytes{.description = "b"}.Record() +
                                          NonItemBytes{.description = "c"}.Record());
    EXPECT_EQ(items.fgNonItem.Text(items.fgNonItem.CurrentRow(), 0), u"c"_s);
}

TEST_F(NonInventoriedItemsTest, ModifiedItemIsWrittenInItsPlaceAndTheGridStaysOpen) {
    Write({{.description = "a", .onHand = 9}, {.description = "b", .onHand = 10}});
    items.Load();
    Pick(1);
    EXPECT_TRUE(items.enabled.modify);
    EXPECT_EQ(items.Modify(), ItemFocus::Description);
    EXPECT_TRUE(items.enabled.grid);
    EXPECT_EQ(items.entry.txtDescription, u"b"_s);
    EXPECT_EQ(items.entry.txtOnHandNon, u"10"_s);
    EXPECT_EQ(items.entry.txtReorderAmountNon, u"5"_s);
    EXPECT_EQ(items.entry.txtReorderAtNon, u"2"_s);
    items.entry.txtOnHandNon = u"11"_s;
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), (NonItemBytes{.description = "a", .onHand = 9}.Record() +
                                       NonItemBytes{.description = "b", .onHand = 11}.Record()));
}

TEST_F(NonInventoriedItemsTest, ModificationIsSavedToTheRowThatIsCurrentThen) {
    Write({{.description = "a", .onHand = 1}, {.description = "b", .onHand = 2}});
    items.Load();
    Pick(1);
    items.Modify();
    Pick(2);
    EXPECT_EQ(items.entry.txtDescription, u"a"_s);
    items.Save();
    EXPECT_EQ(folder.Read(itemsFile), (NonItemBytes{.description = "a", .onHand = 1}.Record() +
                                       NonItemBytes{.description = "a", .onHand = 1}.Record()));
}

TEST_F(NonInventoriedItemsTest, SaveWithoutADescriptionGoesThere) {
    EnterNew({});
    EXPECT_EQ(items.Save(), ItemFocus::Description);
    EXPECT_FALSE(folder.Has(itemsFile));
}

TEST_F(NonInventoriedItemsTest, StockThatIsNoNumberBecomesZeroAndNothingIsSaved) {
    EnterNew(u"Crate"_s);
    items.entry.txtOnHandNon = u"abc"_s;
    EXPECT_EQ(items.Save(), ItemFocus::Stays);
    EXPECT_EQ(items.entry.txtOnHandNon, u"0"_s);
    EXPECT_FALSE(folder.Has(itemsFile));
    EXPECT_TRUE(items.enabled.entry);
}

TEST_F(NonInventoriedItemsTest, EmptyReorderFieldsAreSavedAsZero) {
    EnterNew(u"Crate"_s);
    items.entry.txtReorderAmountNon.clear();
    items.entry.txtReorderAtNon.clear();
    items.Save();
    EXPECT_EQ(
        folder.Read(itemsFile),
        (NonItemBytes{.description = "Crate", .reorderAmount = 0, .reorderPoint = 0}.Record()));
}

TEST_F(NonInventoriedItemsTest, CountsAreRoundedHalfToEvenInTheFileAndTheGrid) {
    EnterNew(u"Crate"_s);
    items.entry.txtOnHandNon = u"2.5"_s;
    items.entry.txtReorderAmountNon = u"3.5"_s;
    items.entry.txtReorderAtNon = u"0.5"_s;
    items.Save();
    EXPECT_EQ(
        folder.Read(itemsFile),
        (NonItemBytes{.description = "Crate", .onHand = 2, .reorderAmount = 4, .reorderPoint = 0}
             .Record()));
    EXPECT_EQ(Row(1), (QStringList{u"Crate"_s, u"2"_s, u"4"_s, u"0"_s, u"1"_s}));
}

TEST_F(NonInventoriedItemsTest, SaveToAFileThatMayNotBeWrittenFailsByName) {
    Write({{.description = "a"}});
    items.Load();
    EnterNew(u"Crate"_s);
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(itemsFile).toUtf8().constData(), 0444), 0);
    const auto before = folder.Contents();
    EXPECT_EQ(
        FailureOf([&] { items.Save(); }).Sentence(),
        u"Opening NonInventoriedItems.txt for reading and writing failed: Permission denied."_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(NonInventoriedItemsTest, SaveOnAFullDiskFailsAndTheOtherRecordsStay) {
    Write({{.description = "a"}});
    const QByteArray before = folder.Read(itemsFile);
    items.Load();
    EnterNew(u"Crate"_s);
    {
        const FullDisk full(80);
        EXPECT_EQ(FailureOf([&] { items.Save(); }).Kind(), FailureKind::DiskFull);
    }
    EXPECT_TRUE(folder.Read(itemsFile).startsWith(before));
    EXPECT_LT(folder.Read(itemsFile).size(), 2 * before.size());
}

TEST_F(NonInventoriedItemsTest, BadNumbersFailAndTheFileStays) {
    Write({{.description = "a"}});
    items.Load();
    struct {
        QString NonInventoriedItems::Entry::*field;
        QString text;
        FailureKind kind;
    } const cases[] = {
        {&NonInventoriedItems::Entry::txtOnHandNon, u"32768"_s, FailureKind::Overflow},
        {&NonInventoriedItems::Entry::txtReorderAmountNon, u"40000"_s, FailureKind::Overflow},
        {&NonInventoriedItems::Entry::txtReorderAtNon, u"ten"_s, FailureKind::TypeMismatch}};
    for (const auto& one : cases) {
        EnterNew(u"Crate"_s);
        items.entry.*one.field = one.text;
        const auto before = folder.Contents();
        EXPECT_EQ(FailureOf([&] { items.Save(); }).Kind(), one.kind);
        EXPECT_EQ(folder.Contents(), before);
    }
}

TEST_F(NonInventoriedItemsTest, ItemNumber32768IsAnOverflow) {
    folder.Write(itemsFile, NonItemBytes{.description = "a"}.Record().repeated(32'767));
    items.Load();
    EnterNew(u"One too many"_s);
    EXPECT_EQ(FailureOf([&] { items.Save(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Read(itemsFile).size(), 32'767 * 56);
}

TEST_F(NonInventoriedItemsTest, CancelClosesTheGridUntilTheNextLoad) {
    Write({{.description = "a"}});
    items.Load();
    EnterNew(u"Crate"_s);
    items.Cancel();
    EXPECT_FALSE(items.enabled.entry);
    EXPECT_FALSE(items.enabled.grid);
    EXPECT_EQ(items.entry.txtDescription, QString());
    items.LoadNonInventoriedItems();
    EXPECT_TRUE(items.enabled.grid);
}
