#include "store/FixedRecord.h"

#include "support/OfficeTest.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

template <typename Field>
QByteArray BytesOf(const Field& field) {
    return {reinterpret_cast<const char*>(&field), qsizetype(sizeof(Field))};
}

/// One field of each sort.
struct SampleRecord {
    FixedText<6> Name;
    LittleInt16 Units;
    LittleBoolean Active;
    LittleInt32 Number;
    LittleCurrency Price;
    LittleDate Day;
};

static_assert(sizeof(SampleRecord) == 30);

class FixedRecordTest : public testing::Test {
protected:
    TestFolder folder;
    BasicDiskRoutines disk{folder.Path()};
};

} // namespace

TEST_F(FixedRecordTest, TextIsLeftJustifiedAndBlankFilled) {
    FixedText<8> text{};
    text = u"Truck"_s;
    EXPECT_EQ(BytesOf(text), "Truck   ");
}

TEST_F(FixedRecordTest, TextIsCutAtTheWidth) {
    FixedText<5> text{};
    text = u"Flatbed"_s;
    EXPECT_EQ(BytesOf(text), "Flatb");
    FixedText<45> name{};
    name = QString(45, u'a') + u'b';
    EXPECT_EQ(BytesOf(name), QByteArray(45, 'a'));
}

TEST_F(FixedRecordTest, NewTextLeavesNothingOfTheOldOne) {
    FixedText<8> text{};
    text = u"Flatbed"_s;
    text = u"Van"_s;
    EXPECT_EQ(BytesOf(text), "Van     ");
    text = QString();
    EXPECT_EQ(BytesOf(text), "        ");
}

TEST_F(FixedRecordTest, TextIsOneByteACharacterInTheCodePage) {
    FixedText<8> text{};
    text = u"\u00c9t\u00e9 \u20ac\u0141"_s;
    EXPECT_EQ(BytesOf(text), "\xc9t\xe9 \x80?  ");
    text = u"\U0001F69A\U0001F69A Lorry"_s;
    EXPECT_EQ(BytesOf(text), "?? Lorry");
}

TEST_F(FixedRecordTest, ReadersTrimTheBlanksOnBothSides) {
    FixedText<12> text{};
    text = u"  Corner 7"_s;
    EXPECT_EQ(text.Trimmed(), u"Corner 7"_s);
    EXPECT_EQ(text.Whole(), u"  Corner 7  "_s);
}

TEST_F(FixedRecordTest, TextNeverAssignedIsNulCharactersWhichTrimmingKeeps) {
    const FixedText<3> text{};
    EXPECT_EQ(BytesOf(text), QByteArray("\0\0\0", 3));
    EXPECT_EQ(text.Whole(), QString(3, QChar(u'\0')));
    EXPECT_EQ(text.Trimmed(), QString(3, QChar(u'\0')));
}

TEST_F(FixedRecordTest, TrimmingTakesNothingButBlanks) {
    FixedText<9> text{};
    text = u" \tVan 2\u00a0"_s;
    EXPECT_EQ(text.Trimmed(), u"\tVan 2\u00a0"_s);
    text = u" a"_s + QChar(u'\0') + u"b "_s;
    EXPECT_EQ(text.Trimmed(), u"a"_s + QChar(u'\0') + u'b');
    text.bytes = {' ', 'V', 'a', 'n', ' ', '\0', ' ', ' ', ' '};
    EXPECT_EQ(text.Trimmed(), u"Van "_s + QChar(u'\0'));
}

TEST_F(FixedRecordTest, IntegersAreLittleEndian) {
    LittleInt16 small{};
    small = 0x1234;
    EXPECT_EQ(BytesOf(small), "\x34\x12");
    small = -2;
    EXPECT_EQ(BytesOf(small), "\xfe\xff");
    EXPECT_EQ(small.Value(), -2);
    LittleInt32 large{};
    large = 0x12345678;
    EXPECT_EQ(BytesOf(large), "\x78\x56\x34\x12");
    EXPECT_EQ(large.Value(), 0x12345678);
}

TEST_F(FixedRecordTest, TrueIsMinusOneInTwoBytes) {
    LittleBoolean flag{};
    EXPECT_FALSE(flag.Value());
    flag = true;
    EXPECT_EQ(BytesOf(flag), "\xff\xff");
    EXPECT_TRUE(flag.Value());
    flag = false;
    EXPECT_EQ(BytesOf(flag), QByteArray("\0\0", 2));
}

TEST_F(FixedRecordTest, AnyOtherBooleanThanZeroIsTrue) {
    LittleBoolean flag{};
    flag.flag = 1;
    EXPECT_TRUE(flag.Value());
    flag.flag = 256;
    EXPECT_TRUE(flag.Value());
}

TEST_F(FixedRecordTest, CurrencyIsTheAmountTimesTenThousandInEightBytes) {
    LittleCurrency amount{};
    amount = Currency::OfTenThousandths(12'500'000);
    EXPECT_EQ(BytesOf(amount), QByteArray("\x20\xbc\xbe\0\0\0\0\0", 8));
    amount = Currency::OfTenThousandths(-1);
    EXPECT_EQ(BytesOf(amount), "\xff\xff\xff\xff\xff\xff\xff\xff");
    EXPECT_EQ(amount.Value(), Currency::OfTenThousandths(-1));
}

TEST_F(FixedRecordTest, DateIsADoubleOfDaysSinceTheThirtiethOfDecember1899) {
    LittleDate day{};
    day = QDate(1900, 1, 1);
    EXPECT_EQ(BytesOf(day), QByteArray("\0\0\0\0\0\0\0\x40", 8));
    day = QDate(2026, 3, 16); // day 46097
    EXPECT_EQ(BytesOf(day), QByteArray("\0\0\0\0\x20\x82\xe6\x40", 8));
    EXPECT_EQ(day.Value(), QDate(2026, 3, 16));
    day = QDate(1899, 12, 30);
    EXPECT_EQ(BytesOf(day), QByteArray(8, '\0'));
}

TEST_F(FixedRecordTest, FractionOfADateIsTheTimeOfDay) {
    LittleDate day{};
    day.days = std::bit_cast<quint64>(46097.75);
    EXPECT_EQ(day.Value(), QDate(2026, 3, 16));
    day.days = std::bit_cast<quint64>(2958465.5);
    EXPECT_EQ(day.Value(), QDate(9999, 12, 31));
}

TEST_F(FixedRecordTest, DamagedDateIsNoDate) {
    LittleDate day{};
    for (const double count :
         {2958466.0, -657435.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        day.days = std::bit_cast<quint64>(count);
        EXPECT_FALSE(day.Value().isValid()) << count;
    }
    day.days = std::bit_cast<quint64>(-657434.0);
    EXPECT_EQ(day.Value(), QDate(100, 1, 1));
}

TEST_F(FixedRecordTest, RecordIsItsFieldsWithoutPaddingOnDisk) {
    SampleRecord record{};
    record.Name = u"Van"_s;
    record.Units = 7;
    record.Active = true;
    record.Number = -1;
    record.Price = Currency::OfTenThousandths(10'000);
    record.Day = QDate(1900, 1, 1);
    disk.OpenRandom(u"/Sample.txt"_s, sizeof(SampleRecord));
    WriteRecord(disk, disk.DiskFile, 1, record);
    disk.CloseAllFiles();
    const QByteArray bytes("Van   "
                           "\x07\0"
                           "\xff\xff"
                           "\xff\xff\xff\xff"
                           "\x10\x27\0\0\0\0\0\0"
                           "\0\0\0\0\0\0\0\x40",
                           30);
    EXPECT_EQ(folder.Read(u"Sample.txt"_s), bytes);
}

TEST_F(FixedRecordTest, RecordComesBackFromItsBytes) {
    folder.Write(u"Sample.txt"_s,
                 QByteArray(30, 'x') + QByteArray("  Van "
                                                  "\x2c\x01"
                                                  "\0\0"
                                                  "\x01\0\0\0"
                                                  "\xf0\xd8\xff\xff\xff\xff\xff\xff"
                                                  "\0\0\0\0\x20\x82\xe6\x40",
                                                  30));
    disk.OpenRandom(u"/Sample.txt"_s, sizeof(SampleRecord));
    const auto record = ReadRecord<SampleRecord>(disk, disk.DiskFile, 2);
    EXPECT_EQ(record.Name.Trimmed(), u"Van"_s);
    EXPECT_EQ(record.Units.Value(), 300);
    EXPECT_FALSE(record.Active.Value());
    EXPECT_EQ(record.Number.Value(), 1);
    EXPECT_EQ(record.Price.Value(), Currency::OfTenThousandths(-10'000));
    EXPECT_EQ(record.Day.Value(), QDate(2026, 3, 16));
}

TEST_F(FixedRecordTest, RecordNeverAssignedIsAllZeroBytes) {
    disk.OpenRandom(u"/Sample.txt"_s, sizeof(SampleRecord));
    WriteRecord(disk, disk.DiskFile, 1, SampleRecord{});
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Sample.txt"_s), QByteArray(30, '\0'));
}

TEST_F(FixedRecordTest, RecordsAreVisitedOneAfterTheOtherHoweverManyAreReadAtOnce) {
    // With the last one cut in the middle of its name.
    QByteArray bytes;
    for (int number = 1; number <= 300; ++number)
        bytes += QByteArray::number(number).leftJustified(30, ' ');
    bytes.chop(29);
    folder.Write(u"Sample.txt"_s, bytes);
    disk.OpenRandom(u"/Sample.txt"_s, sizeof(SampleRecord));
    QStringList names;
    VisitRecords<SampleRecord>(disk, disk.DiskFile, 300,
                               [&](qint32 number, const SampleRecord& record) {
                                   EXPECT_EQ(number, names.size() + 1);
                                   names += record.Name.Trimmed();
                               });
    ASSERT_EQ(names.size(), 300);
    for (const int number : {1, 2, 127, 128, 129, 256, 257, 299})
        EXPECT_EQ(names[number - 1], QString::number(number));
    EXPECT_EQ(names[299].front(), u'3');
    EXPECT_EQ(names[299].back(), QChar::Null);
}

TEST_F(FixedRecordTest, NoRecordsAreVisitedWithoutAFile) {
    VisitRecords<SampleRecord>(disk, disk.DiskFile, 0,
                               [](qint32, const SampleRecord&) { ADD_FAILURE(); });
}

TEST_F(FixedRecordTest, RecordLongerThanTheFilesFails) {
    disk.OpenRandom(u"/Sample.txt"_s, 29);
    EXPECT_EQ(FailureOf([this] { ReadRecord<SampleRecord>(disk, disk.DiskFile, 1); }).Kind(),
              FailureKind::BadRecord);
}

TEST_F(FixedRecordTest, RecordIsAddedBehindTheLastAndAllFilesAreClosed) {
    AppendRecord(disk, u"/Sample.txt"_s, SampleRecord{});
    SampleRecord second{};
    second.Name = u"Van"_s;
    AppendRecord(disk, u"/Sample.txt"_s, second);
    const QByteArray records = folder.Read(u"Sample.txt"_s);
    EXPECT_EQ(records.size(), 60);
    EXPECT_EQ(records.left(30), QByteArray(30, '\0'));
    EXPECT_EQ(records.mid(30, 3), QByteArray("Van"));
    EXPECT_EQ(FailureOf([this] { ReadRecord<SampleRecord>(disk, disk.DiskFile, 1); }).Kind(),
              FailureKind::FileNotOpen);
}

TEST_F(FixedRecordTest, RecordIsAddedToACopyBroughtBack) {
    folder.Write(u"Backup/Sample.txt"_s, QByteArray(30, 'x'));
    AppendRecord(disk, u"/Sample.txt"_s, SampleRecord{});
    EXPECT_EQ(folder.Read(u"Sample.txt"_s), QByteArray(30, 'x') + QByteArray(30, '\0'));
}

TEST_F(FixedRecordTest, AddingBehind32767RecordsIsAnOverflowThatNamesTheFile) {
    const QByteArray full(32'767 * 30, 'x');
    folder.Write(u"Sample.txt"_s, full);
    const RuntimeFailure failure =
        FailureOf([this] { AppendRecord(disk, u"/Sample.txt"_s, SampleRecord{}); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"The number 32768 is outside its range (adding to Sample.txt)."_s);
    EXPECT_TRUE(folder.Read(u"Sample.txt"_s) == full);
}
