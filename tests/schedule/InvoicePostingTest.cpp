#include "schedule/InvoicePosting.h"

#include "schedule/InvoiceBytes.h"
#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString soldItems = u"SoldItems.txt"_s;
const QString journal = u"InvoiceSalesJournal.txt"_s;
const QString taxRecords = u"TaxRecords.txt"_s;

constexpr int mostRecords = 32'767;

QByteArray Bytes(const char* bytes, int count) {
    return {bytes, count};
}

Currency Amount(qint64 tenThousandths) {
    return Currency::OfTenThousandths(tenThousandths);
}

} // namespace

class InvoicePostingTest : public OfficeTest {
protected:
    InvoicePosting& posting = office.invoicePosting;
    GridModel fgItems{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};

    void AddLine(const QString& units, const QString& description) {
        const int row = fgItems.Rows();
        fgItems.SetRows(row + 1);
        fgItems.SetText(row, 0, units);
        fgItems.SetText(row, 1, description);
    }
    void SetProducts(const QStringList& names) { office.items.ProductNames.setStringList(names); }
    void PostAll() { posting.PostSoldItems(fgItems, fgItems.DataRows(), u"20260001"_s); }
    void PostToJournal(const QString& invoiceNo = u"20260001"_s) {
        posting.PostJournal(u"Corner Grocery"_s, u"4471"_s, invoiceNo, Amount(146'500),
                            Amount(11'400), Amount(207'900), Amount(0), {2026, 3, 9});
    }
};

TEST_F(InvoicePostingTest, SoldItemIsNinetyBytes) {
    SetProducts({u"Sand"_s, u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems),
              "Gravel                                                      "              // 60
                  + Bytes("\x00\x00\x00\x00\x40\x81\xe6\x40", 8) + "20260001            " // 20
                  + Bytes("\x03\x00", 2));
    EXPECT_EQ(folder.Read(soldItems).size(), 90);
}

TEST_F(InvoicePostingTest, LinesComeInTheirOrderWhateverTheOrderOfTheProducts) {
    SetProducts({u"Sand"_s, u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    AddLine(u"1"_s, u"Sand"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)) +
                                          SoldItemBytes("Sand", "20260001", Bytes("\x01\x00", 2)));
}

TEST_F(InvoicePostingTest, SoldItemsAreAddedBehindThoseThatAreThere) {
    const QByteArray before = SoldItemBytes("Clay", "20250100", Bytes("\x07\x00", 2));
    folder.Write(soldItems, before);
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems),
              before + SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
}

TEST_F(InvoicePostingTest, SoldItemsLostComeBackFromTheirCopyFirst) {
    const QByteArray before = SoldItemBytes("Clay", "20250100", Bytes("\x07\x00", 2));
    folder.Write(u"Backup/SoldItems.txt"_s, before);
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems),
              before + SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
}

TEST_F(InvoicePostingTest, DescriptionsAreComparedWithoutBlanksAtTheirEndsAndExactly) {
    SetProducts({u" Gravel "_s, u"Sand"_s});
    AddLine(u"3"_s, u"  Gravel"_s);
    AddLine(u"1"_s, u"sand"_s);
    AddLine(u"2"_s, u"Sand, fine"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
}

TEST_F(InvoicePostingTest, ProductThatIsNotInventoriedLeavesNoRecord) {
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Pallet"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), QByteArray());
}

TEST_F(InvoicePostingTest, NameListedTwiceGivesTwoRecords) {
    SetProducts({u"Gravel"_s, u"Sand"_s, u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    PostAll();
    const QByteArray record = SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2));
    EXPECT_EQ(folder.Read(soldItems), record + record);
}

TEST_F(InvoicePostingTest, ProductsThatHaveChangedSinceTheLastInvoiceCountAsTheyAreNow) {
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    AddLine(u"1"_s, u"Sand"_s);
    PostAll();
    QByteArray expected = SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2));
    SetProducts({u"Sand"_s});
    PostAll();
    expected += SoldItemBytes("Sand", "20260001", Bytes("\x01\x00", 2));
    EXPECT_EQ(folder.Read(soldItems), expected);
    QStringListModel& names = office.items.ProductNames;
    names.setData(names.index(0), u"Gravel"_s);
    PostAll();
    expected += SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2));
    EXPECT_EQ(folder.Read(soldItems), expected);
    SetProducts({});
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), expected);
}

TEST_F(InvoicePostingTest, SameProductOnTwoLinesGivesARecordForEach) {
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    AddLine(u"5"_s, u"Gravel"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems),
              SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)) +
                  SoldItemBytes("Gravel", "20260001", Bytes("\x05\x00", 2)));
}

TEST_F(InvoicePostingTest, LinesBehindTheCountAreNotPosted) {
    SetProducts({u"Gravel"_s, u"Sand"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    AddLine(u"1"_s, u"Sand"_s);
    posting.PostSoldItems(fgItems, 1, u"20260001"_s);
    EXPECT_EQ(folder.Read(soldItems), SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
}

TEST_F(InvoicePostingTest, FractionOfAQuantityIsRoundedHalfToEven) {
    SetProducts({u"Gravel"_s});
    const std::pair<QString, QByteArray> quantities[] = {
        {u"2.5"_s, Bytes("\x02\x00", 2)},    {u"3.5"_s, Bytes("\x04\x00", 2)},
        {u"0.49"_s, Bytes("\x00\x00", 2)},   {u"1,250"_s, Bytes("\xe2\x04", 2)},
        {u"-3"_s, Bytes("\xfd\xff", 2)},     {u"32767.4"_s, Bytes("\xff\x7f", 2)},
        {u"-32768"_s, Bytes("\x00\x80", 2)},
    };
    QByteArray expected;
    for (const auto& [units, bytes] : quantities) {
        AddLine(units, u"Gravel"_s);
        expected += SoldItemBytes("Gravel", "20260001", bytes);
    }
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), expected);
}

TEST_F(InvoicePostingTest, QuantityHasTheRegionsDecimalMark) {
    UseLocale("de_DE");
    SetProducts({u"Gravel"_s});
    AddLine(u"2,6"_s, u"Gravel"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
}

TEST_F(InvoicePostingTest, UnitsThatAreNo16BitNumberStopThePostingBehindTheLinesAbove) {
    SetProducts({u"Gravel"_s, u"Sand"_s});
    const std::pair<QString, FailureKind> bad[] = {{u"32767.5"_s, FailureKind::Overflow},
                                                   {u"-32769"_s, FailureKind::Overflow},
                                                   {u"1E300"_s, FailureKind::Overflow},
                                                   {u"three"_s, FailureKind::TypeMismatch},
                                                   {QString(), FailureKind::TypeMismatch}};
    for (const auto& [units, kind] : bad) {
        fgItems.SetRows(1);
        folder.Write(soldItems, {});
        AddLine(u"3"_s, u"Gravel"_s);
        AddLine(units, u"Sand"_s);
        AddLine(u"5"_s, u"Gravel"_s);
        EXPECT_EQ(FailureOf([&] { PostAll(); }).Kind(), kind) << units.toStdString();
        EXPECT_EQ(folder.Read(soldItems),
                  SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
    }
}

TEST_F(InvoicePostingTest, BadUnitsOfAProductThatIsNotInventoriedDoNotMatter) {
    SetProducts({u"Gravel"_s});
    AddLine(u"some"_s, u"Pallet"_s);
    AddLine(u"3"_s, u"Gravel"_s);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)));
}

TEST_F(InvoicePostingTest, DescriptionIsCutAtItsWidthAndWrittenInTheCodePage) {
    const QString longName(61, u'x');
    const QString accents = u"Caf\u00e9 \u20ac \u0142"_s;
    SetProducts({longName, accents});
    AddLine(u"1"_s, longName);
    AddLine(u"1"_s, accents);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems),
              SoldItemBytes(QByteArray(60, 'x'), "20260001", Bytes("\x01\x00", 2)) +
                  SoldItemBytes("Caf\xe9 \x80 ?", "20260001", Bytes("\x01\x00", 2)));
}

TEST_F(InvoicePostingTest, SoldItemsGoOnBehindTheCountOf16Bits) {
    const QByteArray before(mostRecords * 90, 'x');
    folder.Write(soldItems, before);
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    AddLine(u"4"_s, u"Gravel"_s);
    PostAll();
    EXPECT_TRUE(folder.Read(soldItems) ==
                before + SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)) +
                    SoldItemBytes("Gravel", "20260001", Bytes("\x04\x00", 2)));
}

TEST_F(InvoicePostingTest, FileCutInARecordIsMeasuredWithItsFraction) {
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    const QByteArray record = SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2));
    // A third of a record counts for nothing, two thirds for a whole one.
    folder.Write(soldItems, QByteArray(90 + 30, 'x'));
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), QByteArray(90, 'x') + record);
    folder.Write(soldItems, QByteArray(90 + 60, 'x'));
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), QByteArray(150, 'x') + QByteArray(30, '\0') + record);
}

TEST_F(InvoicePostingTest, SoldItemsWithoutLinesLeaveTheFileAsItIs) {
    const QByteArray before = SoldItemBytes("Clay", "20250100", Bytes("\x07\x00", 2));
    folder.Write(soldItems, before);
    PostAll();
    EXPECT_EQ(folder.Read(soldItems), before);
}

TEST_F(InvoicePostingTest, PostingClosesAllFiles) {
    folder.Write(u"Other.txt"_s, "one\r\n");
    const auto expectClosed = [this](auto&& post) {
        office.disk.OpenForInput(u"/Other.txt"_s);
        const qint16 other = office.disk.DiskFile;
        post();
        EXPECT_EQ(FailureOf([&] { (void)office.disk.InputOn(other); }).Kind(),
                  FailureKind::FileNotOpen);
    };
    expectClosed([this] { PostAll(); });
    expectClosed([this] { PostToJournal(); });
    expectClosed([this] {
        posting.PostTaxRecord(u"Sales Tax"_s, u"20260001"_s, {2026, 3, 9}, u"0.92"_s);
    });
}

TEST_F(InvoicePostingTest, JournalRecordIs125Bytes) {
    PostToJournal();
    EXPECT_EQ(folder.Read(journal),
              "Corner Grocery                               " // 45
              "4471                "                          // 20
              "20260001            "                          // 20
                  + Bytes("\x00\x00\x00\x00\x40\x81\xe6\x40", 8) +
                  Bytes("\x44\x3c\x02\x00\x00\x00\x00\x00", 8) + // 14.65
                  Bytes("\x88\x2c\x00\x00\x00\x00\x00\x00", 8) + // 1.14
                  Bytes("\x00\x00\x00\x00\x00\x00\x00\x00", 8) +
                  Bytes("\x1c\x2c\x03\x00\x00\x00\x00\x00", 8)); // 20.79
    EXPECT_EQ(folder.Read(journal).size(), 125);
}

TEST_F(InvoicePostingTest, JournalTakesADiscountAndNegativeAmounts) {
    posting.PostJournal(u"A"_s, u"B"_s, u"C"_s, Amount(-1), Amount(0), Amount(0), Amount(20'000),
                        {2026, 3, 9});
    const QByteArray record = folder.Read(journal);
    EXPECT_EQ(record.mid(93, 8), Bytes("\xff\xff\xff\xff\xff\xff\xff\xff", 8));
    EXPECT_EQ(record.mid(109, 8), Bytes("\x20\x4e\x00\x00\x00\x00\x00\x00", 8));
}

TEST_F(InvoicePostingTest, JournalCutsWhatIsWiderThanItsField) {
    posting.PostJournal(QString(46, u'n'), QString(21, u'a'), QString(21, u'i'), Amount(0),
                        Amount(0), Amount(0), Amount(0), {2026, 3, 9});
    EXPECT_EQ(folder.Read(journal).left(85),
              QByteArray(45, 'n') + QByteArray(20, 'a') + QByteArray(20, 'i'));
}

TEST_F(InvoicePostingTest, JournalGrowsByARecordAnInvoice) {
    PostToJournal(u"20260001"_s);
    PostToJournal(u"20260002"_s);
    const QByteArray records = folder.Read(journal);
    ASSERT_EQ(records.size(), 250);
    EXPECT_EQ(records.mid(65, 20), Field("20260001", 20));
    EXPECT_EQ(records.mid(125 + 65, 20), Field("20260002", 20));
}

TEST_F(InvoicePostingTest, JournalTakesItsLastRecordAndFailsBehindIt) {
    folder.Write(journal, QByteArray((mostRecords - 1) * 125, 'x'));
    PostToJournal();
    const QByteArray full = folder.Read(journal);
    EXPECT_EQ(full.size(), mostRecords * 125);
    EXPECT_EQ(full.right(125).left(45), Field("Corner Grocery", 45));
    const RuntimeFailure failure = FailureOf([&] { PostToJournal(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(journal));
    EXPECT_TRUE(folder.Read(journal) == full);
}

TEST_F(InvoicePostingTest, JournalCutInItsLastRecordGoesOnByTheRoundedCount) {
    folder.Write(journal, QByteArray(125 + 62, 'x'));
    PostToJournal();
    EXPECT_EQ(folder.Read(journal).size(), 250);
    EXPECT_EQ(folder.Read(journal).mid(125, 45), Field("Corner Grocery", 45));
    folder.Write(journal, QByteArray(125 + 63, 'x'));
    PostToJournal();
    EXPECT_EQ(folder.Read(journal).size(), 375);
    EXPECT_EQ(folder.Read(journal).mid(250, 45), Field("Corner Grocery", 45));
}

TEST_F(InvoicePostingTest, TaxRecordIs75BytesOfText) {
    posting.PostTaxRecord(u"Sales Tax"_s, u"20260001"_s, {2026, 3, 9}, u"0.92"_s);
    EXPECT_EQ(folder.Read(taxRecords), QByteArray("Sales Tax           "           // 20
                                                  "3/9/2026       "                // 15
                                                  "20260001                      " // 30
                                                  "0.92      "));                  // 10
    EXPECT_EQ(folder.Read(taxRecords).size(), 75);
}

TEST_F(InvoicePostingTest, TaxRecordCutsWhatIsWiderThanItsField) {
    posting.PostTaxRecord(QString(21, u'h'), QString(31, u'i'), {2026, 3, 9}, u"12345678901"_s);
    EXPECT_EQ(folder.Read(taxRecords),
              TaxBytes(QByteArray(20, 'h'), "3/9/2026", QByteArray(30, 'i'), "1234567890"));
}

TEST_F(InvoicePostingTest, EachTaxAboveZeroLeavesARecordInPlainNumbers) {
    posting.PostTaxRecords(Amount(9'200), Amount(12'505'000), u"Sales Tax"_s, u"County Tax"_s,
                           u" 20260001 "_s);
    EXPECT_EQ(folder.Read(taxRecords),
              TaxBytes("Sales Tax", "3/9/2026", " 20260001 ", "0.92") +
                  TaxBytes("County Tax", "3/9/2026", " 20260001 ", "1250.5"));
}

TEST_F(InvoicePostingTest, TaxRecordsOfARegionWithTheCommaHaveItAndItsDate) {
    UseLocale("de_DE");
    posting.PostTaxRecords(Amount(9'200), Amount(12'505'000), u"MwSt"_s, u"Stra\u00dfenmaut"_s,
                           u"20260001"_s);
    EXPECT_EQ(folder.Read(taxRecords), TaxBytes("MwSt", "09.03.2026", "20260001", "0,92") +
                                           TaxBytes("Stra\xdf"
                                                    "enmaut",
                                                    "09.03.2026", "20260001", "1250,5"));
}

TEST_F(InvoicePostingTest, TaxOfZeroOrLessLeavesNoRecord) {
    posting.PostTaxRecords(Amount(0), Amount(0), u"A"_s, u"B"_s, u"1"_s);
    posting.PostTaxRecords(Amount(-1), Amount(-9'200), u"A"_s, u"B"_s, u"1"_s);
    EXPECT_FALSE(folder.Has(taxRecords));
    posting.PostTaxRecords(Amount(0), Amount(1), u"A"_s, u"B"_s, u"1"_s);
    EXPECT_EQ(folder.Read(taxRecords), TaxBytes("B", "3/9/2026", "1", "0.0001"));
}

TEST_F(InvoicePostingTest, TaxOfElevenCharactersLosesItsTail) {
    posting.PostTaxRecords(Amount(12'345'678'901), Amount(9'999'999'999'999'999), u"A"_s, u"B"_s,
                           u"1"_s);
    EXPECT_EQ(folder.Read(taxRecords), TaxBytes("A", "3/9/2026", "1", "1234567.89") +
                                           TaxBytes("B", "3/9/2026", "1", "9999999999"));
}

TEST_F(InvoicePostingTest, TaxRecordsTakeTheirLastRecordAndFailBehindIt) {
    folder.Write(taxRecords, QByteArray((mostRecords - 1) * 75, 'x'));
    const auto post = [this] {
        posting.PostTaxRecords(Amount(9'200), Amount(2'200), u"A"_s, u"B"_s, u"1"_s);
    };
    EXPECT_EQ(FailureOf(post).Kind(), FailureKind::Overflow);
    const QByteArray full = folder.Read(taxRecords);
    EXPECT_EQ(full.size(), mostRecords * 75);
    EXPECT_EQ(full.right(75), TaxBytes("A", "3/9/2026", "1", "0.92"));
}

TEST_F(InvoicePostingTest, CounterIsOneLineOfATextAndANumber) {
    folder.Write(u"Backup/Counter.txt"_s, "old");
    posting.SaveCounter(u"Truck 7"_s, -12);
    EXPECT_EQ(folder.Read(u"Counter.txt"_s), QByteArray("\"Truck 7\",-12\r\n"));
    EXPECT_FALSE(folder.Has(u"Backup/Counter.txt"_s));
    posting.SaveCounter({}, 32'767);
    EXPECT_EQ(folder.Read(u"Counter.txt"_s), QByteArray("\"\",32767\r\n"));
}

TEST_F(InvoicePostingTest, StockIsNotTouched) {
    const QByteArray products(104, 'p');
    folder.Write(u"NXInventoriedItems.txt"_s, products);
    SetProducts({u"Gravel"_s});
    AddLine(u"3"_s, u"Gravel"_s);
    PostAll();
    PostToJournal();
    EXPECT_EQ(folder.Read(u"NXInventoriedItems.txt"_s), products);
}
