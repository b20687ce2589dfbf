#include "customers/CustomerRecords.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

// One field of the record a line.
QByteArray CustomerBytes() {
    return {"4471                "
            "Corner Grocery                               "
            "12 Mill Road                       "
            "Unit 3                   "
            "Springfield              "
            "Springfield         "
            "IL"
            "62704     "
            "62704                    "
            "217-555-0199 "
            "217-555-0142 "
            "orders@cornergrocery.example  "
            "Mr/Mrs    "
            "Jos\xe9           "
            " "
            "Garc\xed"
            "a                   "
            "Business  "
            "\x01\0"
            "\xfe\xff",
            328};
}

QByteArray ContractBytes() {
    return {"None Selected                      "
            "None           "
            "\x20\xbc\xbe\0\0\0\0\0"
            "Wednesday"
            "None Selected                           "
            "\0\0\0\0\x20\x82\xe6\x40"
            "\0\0\0\0\x20\x82\xe6\x40"
            "\0\0"
            "\xff\xff"
            "\0\0"
            "None                "
            "                    "
            "                              "
            "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
            "                         "
            "                    "
            "  "
            "          "
            "             "
            "                              "
            "\x2c\x01"
            "                                                  ",
            386};
}

QByteArray CycleBytes() {
    return {"None                               "
            "\0\0\0\0\0\0\0\0"
            "\x07\0"
            "                    "
            "\0\0"
            "\xff\xff",
            69};
}

/// Bytes that no program would write, each place another.
QByteArray OddBytes(int size) {
    QByteArray bytes;
    for (int i = 0; i < size; ++i)
        bytes += char(i * 37 + 129);
    return bytes;
}

class CustomerRecordsTest : public testing::Test {
protected:
    /// What record 1 of a file is once a program has read it, and has written it to place 2.
    template <typename Record>
    QByteArray Rewritten(const QString& name) {
        WriteRecord(disk, disk.DiskFile2, 2, ReadRecord<Record>(disk, disk.DiskFile2, 1));
        disk.CloseAllFiles();
        return folder.Read(name).mid(qsizetype(sizeof(Record)));
    }

    TestFolder folder;
    BasicDiskRoutines disk{folder.Path()};
};

} // namespace

TEST_F(CustomerRecordsTest, CustomerIsWrittenAs328Bytes) {
    CustomerRecord customer{};
    customer.AcctNo = u"4471"_s;
    customer.BusinessName = u"Corner Grocery"_s;
    customer.Address1 = u"12 Mill Road"_s;
    customer.Address2 = u"Unit 3"_s;
    customer.City = u"Springfield"_s;
    customer.CityListEntry = u"Springfield"_s;
    customer.State = u"IL"_s;
    customer.Zip = u"62704"_s;
    customer.PostalOrAddress4 = u"62704"_s;
    customer.Phone = u"217-555-0199"_s;
    customer.Cell = u"217-555-0142"_s;
    customer.Email = u"orders@cornergrocery.example"_s;
    customer.Title = u"Mr/Mrs"_s;
    customer.FirstName = u"Jos\u00e9"_s;
    customer.MiddleInitial = u""_s;
    customer.LastName = u"Garc\u00eda"_s;
    customer.AcctType = u"Business"_s;
    customer.AcctState = 1;
    customer.Reserved = -2;
    OpenCustomerFile(disk);
    WriteRecord(disk, disk.DiskFile, 1, customer);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), CustomerBytes());
}

TEST_F(CustomerRecordsTest, CustomerComesBackFromItsBytes) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(328, ' ') + CustomerBytes());
    OpenCustomerFile(disk);
    const auto customer = ReadRecord<CustomerRecord>(disk, disk.DiskFile, 2);
    EXPECT_EQ(customer.AcctNo.Trimmed(), u"4471"_s);
    EXPECT_EQ(customer.BusinessName.Trimmed(), u"Corner Grocery"_s);
    EXPECT_EQ(customer.Address1.Trimmed(), u"12 Mill Road"_s);
    EXPECT_EQ(customer.Address2.Trimmed(), u"Unit 3"_s);
    EXPECT_EQ(customer.City.Trimmed(), u"Springfield"_s);
    EXPECT_EQ(customer.CityListEntry.Trimmed(), u"Springfield"_s);
    EXPECT_EQ(customer.State.Trimmed(), u"IL"_s);
    EXPECT_EQ(customer.Zip.Trimmed(), u"62704"_s);
    EXPECT_EQ(customer.PostalOrAddress4.Trimmed(), u"62704"_s);
    EXPECT_EQ(customer.Phone.Trimmed(), u"217-555-0199"_s);
    EXPECT_EQ(customer.Cell.Trimmed(), u"217-555-0142"_s);
    EXPECT_EQ(customer.Email.Trimmed(), u"orders@cornergrocery.example"_s);
    EXPECT_EQ(customer.Title.Trimmed(), u"Mr/Mrs"_s);
    EXPECT_EQ(customer.FirstName.Trimmed(), u"Jos\u00e9"_s);
    EXPECT_EQ(customer.MiddleInitial.Trimmed(), u""_s);
    EXPECT_EQ(customer.LastName.Trimmed(), u"Garc\u00eda"_s);
    EXPECT_EQ(customer.AcctType.Trimmed(), u"Business"_s);
    EXPECT_EQ(customer.AcctState.Value(), 1);
    EXPECT_EQ(customer.Reserved.Value(), -2);
}

TEST_F(CustomerRecordsTest, ReservedBytesAreCarriedThroughARewrite) {
    folder.Write(u"CustomerData.txt"_s, CustomerBytes());
    OpenCustomerFile(disk);
    auto customer = ReadRecord<CustomerRecord>(disk, disk.DiskFile, 1);
    customer.BusinessName = u"Corner Grocery"_s;
    WriteRecord(disk, disk.DiskFile, 1, customer);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), CustomerBytes());
}

TEST_F(CustomerRecordsTest, NameOf46CharactersIsStoredAsItsFirst45) {
    CustomerRecord customer{};
    const QString name = u"The Very Long Name Of A Corner Grocery And Del"_s;
    ASSERT_EQ(name.size(), 46);
    customer.BusinessName = name;
    EXPECT_EQ(customer.BusinessName.Whole(), u"The Very Long Name Of A Corner Grocery And De"_s);
}

TEST_F(CustomerRecordsTest, ContractIsWrittenAs386Bytes) {
    ContractRecord contract{};
    contract.At0 = u"None Selected"_s;
    contract.At35 = u"None"_s;
    contract.At50 = Currency::OfTenThousandths(12'500'000);
    contract.At58 = u"Wednesday"_s;
    contract.At67 = u"None Selected"_s;
    contract.At107 = QDate(2026, 3, 16);
    contract.At115 = QDate(2026, 3, 16);
    contract.At123 = 0;
    contract.At125 = -1;
    contract.At127 = 0;
    contract.At129 = u"None"_s;
    contract.At149 = QString();
    contract.At169 = QString();
    contract.At234 = QString();
    contract.At259 = QString();
    contract.At279 = QString();
    contract.At281 = QString();
    contract.At291 = QString();
    contract.At304 = QString();
    contract.At334 = 300;
    contract.At336 = QString();
    OpenContractInfo(disk);
    WriteRecord(disk, disk.DiskFile2, 1, contract);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"ContractInfo.txt"_s), ContractBytes());
}

TEST_F(CustomerRecordsTest, ContractComesBackFromItsBytes) {
    folder.Write(u"ContractInfo.txt"_s, QByteArray(386, ' ') + ContractBytes());
    OpenContractInfo(disk);
    const auto contract = ReadRecord<ContractRecord>(disk, disk.DiskFile2, 2);
    EXPECT_EQ(contract.At0.Trimmed(), u"None Selected"_s);
    EXPECT_EQ(contract.At35.Trimmed(), u"None"_s);
    EXPECT_EQ(contract.At50.Value().TenThousandths(), 12'500'000);
    EXPECT_EQ(contract.At58.Trimmed(), u"Wednesday"_s);
    EXPECT_EQ(contract.At107.Value(), QDate(2026, 3, 16));
    EXPECT_EQ(contract.At125.Value(), -1);
    EXPECT_EQ(contract.At199.Whole(), QString(35, QChar(u'\0')));
    EXPECT_EQ(contract.At334.Value(), 300);
}

TEST_F(CustomerRecordsTest, CycleIsWrittenAs69Bytes) {
    CycleRecord cycle{};
    cycle.At0 = u"None"_s;
    cycle.At35 = Currency();
    cycle.At43 = 7;
    cycle.At45 = QString();
    cycle.At65 = 0;
    cycle.At67 = -1;
    OpenCycleInfo(disk);
    WriteRecord(disk, disk.DiskFile2, 1, cycle);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"CycleInfo.txt"_s), CycleBytes());
}

TEST_F(CustomerRecordsTest, CycleComesBackFromItsBytes) {
    folder.Write(u"CycleInfo.txt"_s, QByteArray(69, ' ') + CycleBytes());
    OpenCycleInfo(disk);
    const auto cycle = ReadRecord<CycleRecord>(disk, disk.DiskFile2, 2);
    EXPECT_EQ(cycle.At0.Trimmed(), u"None"_s);
    EXPECT_EQ(cycle.At35.Value(), Currency());
    EXPECT_EQ(cycle.At43.Value(), 7);
    EXPECT_EQ(cycle.At45.Whole(), QString(20, u' '));
    EXPECT_EQ(cycle.At65.Value(), 0);
    EXPECT_EQ(cycle.At67.Value(), -1);
}

TEST_F(CustomerRecordsTest, RecordOfAnEmptyFileReadsAsAllZeroBytes) {
    folder.Write(u"CycleInfo.txt"_s, "");
    OpenCycleInfo(disk);
    const auto cycle = ReadRecord<CycleRecord>(disk, disk.DiskFile2, 1);
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(&cycle), sizeof(cycle)),
              QByteArray(69, '\0'));
}

TEST_F(CustomerRecordsTest, ContractOfOddBytesIsWrittenBackUnchanged) {
    QByteArray bytes = OddBytes(386);
    // Day 46097.75: 18 o'clock on 16 March 2026.
    bytes.replace(107, 8, QByteArray("\0\0\0\0\x38\x82\xe6\x40", 8));
    folder.Write(u"ContractInfo.txt"_s, bytes);
    OpenContractInfo(disk);
    EXPECT_EQ(ReadRecord<ContractRecord>(disk, disk.DiskFile2, 1).At107.Value(),
              QDate(2026, 3, 16));
    EXPECT_EQ(Rewritten<ContractRecord>(u"ContractInfo.txt"_s), bytes);
}

TEST_F(CustomerRecordsTest, CycleOfOddBytesIsWrittenBackUnchanged) {
    const QByteArray bytes = OddBytes(69);
    folder.Write(u"CycleInfo.txt"_s, bytes);
    OpenCycleInfo(disk);
    EXPECT_EQ(Rewritten<CycleRecord>(u"CycleInfo.txt"_s), bytes);
}
