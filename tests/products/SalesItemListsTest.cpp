#include "products/SalesItemLists.h"

#include "store/Conversions.h"
#include "support/OfficeTest.h"
#include "support/SampleSlips.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString pricedFile = u"NXInventoriedItems.txt"_s;
const QString nonPricedFile = u"NonInventoriedItems.txt"_s;

/// A record of a priced item of which the lists take the name and the price (eight bytes).
QByteArray PricedBytes(const QByteArray& name, const QByteArray& price) {
    return name.leftJustified(50, ' ') + QByteArray(20, ' ') + QByteArray(8, '\x11') + price +
           QByteArray(18, '\x11');
}

QByteArray NonPricedBytes(const QByteArray& name) {
    return name.leftJustified(50, ' ') + QByteArray(6, '\x11');
}

// 50,000 and 12,500,000 ten-thousandths, and one below zero.
const QByteArray fiveDollars("\x50\xc3\x00\x00\x00\x00\x00\x00", 8);
const QByteArray twelveFifty("\x20\xbc\xbe\x00\x00\x00\x00\x00", 8);
const QByteArray minusOneCent("\x9c\xff\xff\xff\xff\xff\xff\xff", 8);

} // namespace

class SalesItemListsTest : public OfficeTest {
protected:
    SalesItemLists& items = office.items;

    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < office.items.fgAddItems.Columns(); ++column)
            cells += office.items.fgAddItems.Text(row, column);
        return cells;
    }
};

TEST_F(SalesItemListsTest, PricedRecordIs104Bytes) {
    SalesItem item{};
    item.Description = u"Käse"_s;
    item.Category = u"Dairy"_s;
    item.UnitCost = Currency::OfTenThousandths(35000);
    item.SellPrice = Currency::OfTenThousandths(-100);
    item.OnHand = qint16(32767);
    item.DiscountPrice = Currency::OfTenThousandths(12500000);
    item.DiscountQty = 100000;
    item.ReorderAmount = qint16(-2);
    item.ReorderPoint = qint16(258);
    office.disk.OpenRandom(u'/' + pricedFile, 104);
    WriteRecord(office.disk, office.disk.DiskFile, 1, item);
    office.disk.CloseAllFiles();
    const QByteArray bytes = folder.Read(pricedFile);
    EXPECT_EQ(bytes.size(), 104);
    EXPECT_EQ(bytes, "K\xe4se" + QByteArray(46, ' ') + "Dairy               " +
                         QByteArray("\xb8\x88\x00\x00\x00\x00\x00\x00"
                                    "\x9c\xff\xff\xff\xff\xff\xff\xff"
                                    "\xff\x7f"
                                    "\x20\xbc\xbe\x00\x00\x00\x00\x00"
                                    "\xa0\x86\x01\x00"
                                    "\xfe\xff"
                                    "\x02\x01",
                                    34));
}

TEST_F(SalesItemListsTest, NonPricedRecordIs56Bytes) {
    NonInventoriedItem item{};
    item.Description = u"Leaflet"_s;
    item.OnHand = qint16(1);
    item.ReorderAmount = qint16(256);
    item.ReorderPoint = qint16(-1);
    office.disk.OpenRandom(u'/' + nonPricedFile, 56);
    WriteRecord(office.disk, office.disk.DiskFile, 1, item);
    office.disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(nonPricedFile), "Leaflet                                           " +
                                              QByteArray("\x01\x00\x00\x01\xff\xff", 6));
}

TEST_F(SalesItemListsTest, SecondRecordFollowsTheFirstWithoutPadding) {
    NonInventoriedItem item{};
    item.Description = u"A"_s;
    office.disk.OpenRandom(u'/' + nonPricedFile, 56);
    WriteRecord(office.disk, office.disk.DiskFile, 1, item);
    WriteRecord(office.disk, office.disk.DiskFile, 2, item);
    office.disk.CloseAllFiles();
    const QByteArray one = "A" + QByteArray(49, ' ') + QByteArray(6, '\0');
    EXPECT_EQ(folder.Read(nonPricedFile), one + one);
}

TEST_F(SalesItemListsTest, DescriptionOf51CharactersIsStoredAsItsFirst50) {
    SalesItem item{};
    item.Description = QString(50, u'd') + u'x';
    EXPECT_EQ(item.Description.Whole(), QString(50, u'd'));
    NonInventoriedItem other{};
    other.Description = QString(50, u'd') + u'x';
    EXPECT_EQ(other.Description.Whole(), QString(50, u'd'));
}

TEST_F(SalesItemListsTest, StockAbove32767CannotBeStored) {
    SalesItem item{};
    item.OnHand = ToInt16(u"32767");
    EXPECT_EQ(item.OnHand.Value(), 32767);
    EXPECT_EQ(FailureOf([&] { item.OnHand = ToInt16(u"32768"); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(item.OnHand.Value(), 32767);
}

TEST_F(SalesItemListsTest, WithoutFilesTheListsStayEmptyAndNoFileIsMade) {
    items.RefreshAll();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList());
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList());
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList());
    EXPECT_EQ(items.fgAddItems.DataRows(), 0);
    EXPECT_FALSE(folder.Has(pricedFile));
    EXPECT_FALSE(folder.Has(nonPricedFile));
}

TEST_F(SalesItemListsTest, FileOf208BytesGivesTwoItemsAndTwoRows) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars) + PricedBytes("Gravel", twelveFifty));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Sand"_s, u"Gravel"_s}));
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList({u"$5.00"_s, u"$1,250.00"_s}));
    ASSERT_EQ(items.fgAddItems.DataRows(), 2);
    EXPECT_EQ(Row(1), QStringList({u""_s, u""_s, u"Sand"_s, u"$5.00"_s, u""_s}));
    EXPECT_EQ(Row(2), QStringList({u""_s, u""_s, u"Gravel"_s, u"$1,250.00"_s, u""_s}));
}

TEST_F(SalesItemListsTest, HeadingsAreSelQtyDescriptionSellPriceAndItemTotal) {
    EXPECT_EQ(Row(0), QStringList({u"Sel"_s, u"Qty"_s, u"Description"_s, u"Sell Price"_s,
                                   u"Item Total"_s}));
}

TEST_F(SalesItemListsTest, PricesAreInTheRegionsCurrencyForm) {
    UseLocale("de_DE");
    folder.Write(pricedFile, PricedBytes("Sand", twelveFifty) + PricedBytes("Pfand", minusOneCent));
    folder.Write(nonPricedFile, NonPricedBytes("Prospekt"));
    items.RefreshAll();
    EXPECT_EQ(items.ProductPrices.stringList(),
              QStringList({u"1.250,00\u00a0\u20ac"_s, u"-0,01\u00a0\u20ac"_s}));
    EXPECT_EQ(Row(3), QStringList({u""_s, u""_s, u"Prospekt"_s, u"0,00\u00a0\u20ac"_s,
                                   u"0,00\u00a0\u20ac"_s}));
}

TEST_F(SalesItemListsTest, ItemsStandInFileOrderWithBlanksTrimmed) {
    folder.Write(pricedFile, PricedBytes("  Zinc", fiveDollars) + PricedBytes("", fiveDollars) +
                                 PricedBytes("Apples", fiveDollars));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Zinc"_s, u""_s, u"Apples"_s}));
    EXPECT_EQ(items.ProductPrices.stringList().size(), 3);
}

TEST_F(SalesItemListsTest, NonPricedItemsFollowThePricedOnesWithZeroAmounts) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet") + NonPricedBytes("Crate"));
    items.RefreshAll();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Sand"_s}));
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList({u"Leaflet"_s, u"Crate"_s}));
    ASSERT_EQ(items.fgAddItems.DataRows(), 3);
    EXPECT_EQ(Row(1), QStringList({u""_s, u""_s, u"Sand"_s, u"$5.00"_s, u""_s}));
    EXPECT_EQ(Row(2), QStringList({u""_s, u""_s, u"Leaflet"_s, u"$0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(Row(3), QStringList({u""_s, u""_s, u"Crate"_s, u"$0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(items.fgAddItems.CurrentRow(), 3);
}

TEST_F(SalesItemListsTest, PricedRefreshLeavesTheLastItemCurrent) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars) + PricedBytes("Gravel", fiveDollars));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.fgAddItems.CurrentRow(), 2);
}

TEST_F(SalesItemListsTest, PricedRefreshAloneDropsTheNonPricedRows) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    items.RefreshAll();
    items.fgAddItems.ClearGrid();
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.fgAddItems.DataRows(), 1);
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList({u"Leaflet"_s}));
}

TEST_F(SalesItemListsTest, NonPricedRefreshAloneAppendsAgain) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    items.RefreshAll();
    items.RefreshNonInventoriedItemLists();
    EXPECT_EQ(items.fgAddItems.DataRows(), 3);
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList({u"Leaflet"_s}));
}

TEST_F(SalesItemListsTest, RefreshShowsAnEditedPrice) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    items.RefreshAll();
    folder.Write(pricedFile, PricedBytes("Sand", twelveFifty));
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList({u"$5.00"_s}));
    items.RefreshAll();
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList({u"$1,250.00"_s}));
    EXPECT_EQ(Row(1), QStringList({u""_s, u""_s, u"Sand"_s, u"$1,250.00"_s, u""_s}));
}

TEST_F(SalesItemListsTest, RefreshLeavesTheSlipsAsTheyAre) {
    // A slip keeps the price it was written with, also when its product costs more now.
    WriteSlip(folder, {.number = u"1"_s});
    folder.Write(pricedFile, PricedBytes("Gravel", twelveFifty));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    const auto before = folder.Contents();
    ASSERT_TRUE(before.contains(ItemName(u"1"_s)));
    items.RefreshAll();
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList({u"$1,250.00"_s}));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SalesItemListsTest, RefreshWithoutTheFileLeavesTheLists) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    items.RefreshAll();
    folder.Remove(pricedFile);
    folder.Remove(nonPricedFile);
    items.RefreshAll();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Sand"_s}));
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList({u"Leaflet"_s}));
    EXPECT_EQ(items.fgAddItems.DataRows(), 2);
}

TEST_F(SalesItemListsTest, EmptyFilesEmptyTheListsAndLeaveOneBlankRow) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    items.RefreshAll();
    items.fgAddItems.ClearGrid();
    folder.Write(pricedFile, "");
    folder.Write(nonPricedFile, "");
    items.RefreshAll();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList());
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList());
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList());
    ASSERT_EQ(items.fgAddItems.DataRows(), 1);
    EXPECT_EQ(Row(1), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s}));
}

TEST_F(SalesItemListsTest, FilesAreBroughtBackFromBackup) {
    folder.Write(u"Backup/NXInventoriedItems.txt"_s, PricedBytes("Sand", fiveDollars));
    folder.Write(u"Backup/NonInventoriedItems.txt"_s, NonPricedBytes("Leaflet"));
    items.RefreshAll();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Sand"_s}));
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList({u"Leaflet"_s}));
    EXPECT_TRUE(folder.Has(pricedFile));
    EXPECT_TRUE(folder.Has(nonPricedFile));
}

TEST_F(SalesItemListsTest, CountIsRoundedAndATrailingFragmentReadOrIgnored) {
    const QByteArray sand = PricedBytes("Sand", fiveDollars);
    const QByteArray gravel = PricedBytes("Gravel", fiveDollars);
    folder.Write(pricedFile, sand + gravel.left(51));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Sand"_s}));
    folder.Write(pricedFile, sand + gravel.left(53));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.ProductNames.stringList(), QStringList({u"Sand"_s, u"Gravel"_s}));
    EXPECT_EQ(items.ProductPrices.stringList(), QStringList({u"$5.00"_s, u"$0.00"_s}));
    // Half a record is a tie, which goes to the even number: 0.5 to none, 1.5 to two.
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet").left(28));
    items.RefreshNonInventoriedItemLists();
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList());
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet") + NonPricedBytes("Crate").left(28));
    items.RefreshNonInventoriedItemLists();
    // The bytes that are missing read as NUL characters, which are no blanks to trim.
    const QString crate = u"Crate"_s + QString(23, u' ') + QString(22, QChar(u'\0'));
    EXPECT_EQ(items.NonPricedNames.stringList(), QStringList({u"Leaflet"_s, crate}));
}

TEST_F(SalesItemListsTest, MoreThan32767RecordsOverflowByName) {
    folder.Write(nonPricedFile, QByteArray(56 * 32768, ' '));
    const RuntimeFailure failure = FailureOf([&] { items.RefreshNonInventoriedItemLists(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(u"NonInventoriedItems.txt"_s)) << failure.what();
}

TEST_F(SalesItemListsTest, PriceBeyondTheCurrencyTextsRangeIsShownInFull) {
    folder.Write(pricedFile,
                 PricedBytes("Dear", QByteArray("\xff\xff\xff\xff\xff\xff\xff\x7f", 8)) +
                     PricedBytes("Cheap", QByteArray("\x00\x00\x00\x00\x00\x00\x00\x80", 8)));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(items.ProductPrices.stringList(),
              QStringList({u"$922,337,203,685,477.58"_s, u"($922,337,203,685,477.58)"_s}));
}

TEST_F(SalesItemListsTest, FilesAreClosedWhenARefreshEnds) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    items.RefreshInventoriedItemLists();
    EXPECT_EQ(
        FailureOf([&] { ReadRecord<SalesItem>(office.disk, office.disk.DiskFile, 1); }).Kind(),
        FailureKind::FileNotOpen);
    items.RefreshNonInventoriedItemLists();
    EXPECT_EQ(FailureOf([&] {
                  ReadRecord<NonInventoriedItem>(office.disk, office.disk.DiskFile, 1);
              }).Kind(),
              FailureKind::FileNotOpen);
}

TEST_F(SalesItemListsTest, UnreadableFilesFailByName) {
    folder.Write(pricedFile, PricedBytes("Sand", fiveDollars));
    folder.Write(nonPricedFile, NonPricedBytes("Leaflet"));
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(pricedFile).toUtf8().constData(), 0), 0);
    ASSERT_EQ(::chmod(folder.PathOf(nonPricedFile).toUtf8().constData(), 0), 0);
    const RuntimeFailure priced = FailureOf([&] { items.RefreshInventoriedItemLists(); });
    EXPECT_EQ(priced.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(
        priced.Sentence(),
        u"Opening NXInventoriedItems.txt for reading and writing failed: Permission denied."_s);
    EXPECT_EQ(
        FailureOf([&] { items.RefreshNonInventoriedItemLists(); }).Sentence(),
        u"Opening NonInventoriedItems.txt for reading and writing failed: Permission denied."_s);
}
