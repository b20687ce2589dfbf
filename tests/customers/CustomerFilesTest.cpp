#include "customers/CustomerFiles.h"

#include "customers/SampleCustomers.h"
#include "support/OfficeTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString customerFile = u"CustomerData.txt"_s;
const QString contractFile = u"ContractInfo.txt"_s;
const QString cycleFile = u"CycleInfo.txt"_s;

/// The contract of a new account of Monday, 9 March 2026 (day 46,090), in United States English;
/// what At199 held were NUL characters.
QByteArray NewContract() {
    return {"None Selected                      "
            "None           "
            "\0\0\0\0\0\0\0\0"
            "Monday   "
            "None Selected                           "
            "\0\0\0\0\x40\x81\xe6\x40"
            "\0\0\0\0\x40\x81\xe6\x40"
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
            "\0\0"
            "                                                  ",
            386};
}

QByteArray NewCycle() {
    return {"None                               "
            "\0\0\0\0\0\0\0\0"
            "\0\0"
            "                    "
            "\0\0"
            "\xff\xff",
            69};
}

} // namespace

class CustomerFilesTest : public OfficeTest {
protected:
    void WriteThree() {
        folder.Write(customerFile, first + second + third);
        folder.Write(contractFile, Siblings(3, 386));
        folder.Write(cycleFile, Siblings(3, 69));
    }

    CustomerFiles& files = office.customerFiles;
    const QByteArray first = SampleCustomer{}.Bytes();
    const QByteArray second = Person("Lee", "Ann", "1002").Bytes();
    const QByteArray third = SampleCustomer{.account = "ab7", .businessName = "Mill"}.Bytes();
};

TEST_F(CustomerFilesTest, DefaultsOfANewAccountAreWrittenAs386And69Bytes) {
    files.ResetContractDefaults();
    files.WriteContractAndCycle(1);
    EXPECT_EQ(folder.Read(contractFile), NewContract());
    EXPECT_EQ(folder.Read(cycleFile), NewCycle());
}

TEST_F(CustomerFilesTest, DayOfTheWeekIsInTheSystemsLanguage) {
    UseLocale("de_DE.UTF-8");
    files.ResetContractDefaults();
    files.WriteContractAndCycle(1);
    EXPECT_EQ(folder.Read(contractFile), NewContract().replace("Monday   ", "Montag   "));
    EXPECT_EQ(folder.Read(cycleFile), NewCycle());
}

TEST_F(CustomerFilesTest, LongDayOfTheWeekIsCutAtNineCharacters) {
    UseLocale("de_DE.UTF-8");
    clock.Date = {2026, 3, 12};
    files.ResetContractDefaults();
    files.WriteContractAndCycle(1);
    EXPECT_EQ(folder.Read(contractFile).mid(58, 9), "Donnersta");
    EXPECT_EQ(folder.Read(contractFile).mid(107, 8), QByteArray("\0\0\0\0\xa0\x81\xe6\x40", 8));
}

TEST_F(CustomerFilesTest, WednesdayFillsItsField) {
    clock.Date = {2026, 3, 11};
    files.ResetContractDefaults();
    EXPECT_EQ(files.Contract.At58.Whole(), u"Wednesday"_s);
}

TEST_F(CustomerFilesTest, DefaultsKeepWhatTheUnnamedFieldHeld) {
    WriteThree();
    files.ReadContractAndCycle(2);
    files.ResetContractDefaults();
    files.WriteContractAndCycle(2);
    EXPECT_EQ(folder.Read(contractFile).mid(386, 386),
              NewContract().replace(199, 35, QByteArray(35, 'B')));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(1, 69) + NewCycle() + QByteArray(69, 'C'));
}

TEST_F(CustomerFilesTest, RebuiltFilesHoldZeroBytesForEachCustomer) {
    folder.Write(customerFile, first + second + third);
    files.RebuildMissing(3);
    EXPECT_EQ(folder.Read(contractFile), QByteArray(3 * 386, '\0'));
    EXPECT_EQ(folder.Read(cycleFile), QByteArray(3 * 69, '\0'));
    EXPECT_EQ(folder.Read(customerFile), first + second + third);
}

TEST_F(CustomerFilesTest, RebuildWritesWhatTheBuffersHold) {
    WriteThree();
    files.ReadContractAndCycle(3);
    files.BuildContractInfo(2);
    files.BuildCycleInfo(4);
    EXPECT_EQ(folder.Read(contractFile), QByteArray(2 * 386, 'C'));
    EXPECT_EQ(folder.Read(cycleFile), QByteArray(4 * 69, 'C'));
}

TEST_F(CustomerFilesTest, RebuildDeletesTheCopiesInBackup) {
    folder.Write(customerFile, first);
    folder.Write(u"Backup/ContractInfo.txt"_s, Siblings(1, 386));
    folder.Write(u"Backup/CycleInfo.txt"_s, Siblings(1, 69));
    files.BuildContractInfo(1);
    EXPECT_FALSE(folder.Has(u"Backup/ContractInfo.txt"_s));
    EXPECT_TRUE(folder.Has(u"Backup/CycleInfo.txt"_s));
    files.BuildCycleInfo(1);
    EXPECT_FALSE(folder.Has(u"Backup/CycleInfo.txt"_s));
    EXPECT_EQ(folder.Read(contractFile), QByteArray(386, '\0'));
}

TEST_F(CustomerFilesTest, RebuildWithoutACustomerFileTellsAndChangesNothing) {
    folder.Write(contractFile, Siblings(1, 386));
    folder.Write(u"Backup/CycleInfo.txt"_s, Siblings(1, 69));
    const auto before = folder.Contents();
    user.ExpectMessage(u"Your Customer Information File is missing\nThe Contract File can not be "
                       u"rebuilt"_s,
                       u"No Customer File Found"_s);
    files.BuildContractInfo(3);
    user.ExpectMessage(u"Your Customer Information File is missing\nThe Cycle File can not be "
                       u"rebuilt"_s,
                       u"No Customer File Found"_s);
    files.BuildCycleInfo(3);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerFilesTest, LostSiblingInBackupIsBroughtBackInsteadOfRebuilt) {
    folder.Write(customerFile, first);
    folder.Write(u"Backup/ContractInfo.txt"_s, Siblings(1, 386));
    files.RebuildMissing(1);
    EXPECT_EQ(folder.Read(contractFile), Siblings(1, 386));
    EXPECT_EQ(folder.Read(cycleFile), QByteArray(69, '\0'));
}

TEST_F(CustomerFilesTest, EmptyCycleFileIsNotRebuiltAndReadsAsZeroBytes) {
    WriteThree();
    folder.Write(cycleFile, "");
    files.RebuildMissing(3);
    EXPECT_EQ(folder.Read(cycleFile), "");
    files.Cycle.At0 = u"left over"_s;
    files.ReadContractAndCycle(1);
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(&files.Cycle), 69), QByteArray(69, '\0'));
}

TEST_F(CustomerFilesTest, CustomerFileWithoutRecordsRebuildsNothing) {
    folder.Write(customerFile, "");
    files.RebuildMissing(0);
    EXPECT_FALSE(folder.Has(contractFile));
    EXPECT_FALSE(folder.Has(cycleFile));
}

TEST_F(CustomerFilesTest, ReadingMakesNoFile) {
    const QStringList before = folder.Everything();
    files.ReadCustomer(1);
    files.ReadContractAndCycle(1);
    EXPECT_FALSE(files.IsDuplicate(u"4471"_s, 3, 1));
    files.VisitAll(2, [](qint32) {});
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(CustomerFilesTest, AccountNumbersComeInFileOrderAndLeaveTheBufferAlone) {
    EXPECT_EQ(files.AccountNumbers(), QStringList());
    EXPECT_FALSE(folder.Has(customerFile));
    folder.Write(customerFile, SampleCustomer{.account = "4471"}.Bytes() +
                                   SampleCustomer{.account = " 12"}.Bytes() +
                                   SampleCustomer{.account = "0099"}.Bytes());
    files.ReadCustomer(2);
    EXPECT_EQ(files.AccountNumbers(), (QStringList{u"4471"_s, u"12"_s, u"0099"_s}));
    EXPECT_EQ(files.Customer.AcctNo.Trimmed(), u"12"_s);
}

TEST_F(CustomerFilesTest, DeletingTakesTheRecordOutOfAllThreeFiles) {
    WriteThree();
    files.Delete(2);
    EXPECT_EQ(folder.Read(customerFile), first + third);
    EXPECT_EQ(folder.Read(contractFile), QByteArray(386, 'A') + QByteArray(386, 'C'));
    EXPECT_EQ(folder.Read(cycleFile), QByteArray(69, 'A') + QByteArray(69, 'C'));
    EXPECT_FALSE(folder.Has(u"CUSTOMER.TMP"_s));
    EXPECT_FALSE(folder.Has(u"Temp.txt"_s));
}

TEST_F(CustomerFilesTest, DeletingTheFirstAndTheLastRecord) {
    WriteThree();
    files.Delete(1);
    EXPECT_EQ(folder.Read(customerFile), second + third);
    files.Delete(2);
    EXPECT_EQ(folder.Read(customerFile), second);
    EXPECT_EQ(folder.Read(contractFile), QByteArray(386, 'B'));
    EXPECT_EQ(folder.Read(cycleFile), QByteArray(69, 'B'));
}

TEST_F(CustomerFilesTest, DeletingTheOnlyRecordLeavesEmptyFiles) {
    folder.Write(customerFile, first);
    folder.Write(contractFile, Siblings(1, 386));
    folder.Write(cycleFile, Siblings(1, 69));
    files.Delete(1);
    EXPECT_EQ(folder.Read(customerFile), "");
    EXPECT_EQ(folder.Read(contractFile), "");
    EXPECT_EQ(folder.Read(cycleFile), "");
}

TEST_F(CustomerFilesTest, DeletingLeavesTheCustomersCopyInBackupAloneAndDeletesTheOtherTwo) {
    WriteThree();
    folder.Write(u"Backup/CustomerData.txt"_s, "older customers");
    folder.Write(u"Backup/ContractInfo.txt"_s, "older contracts");
    folder.Write(u"Backup/CycleInfo.txt"_s, "older cycles");
    files.Delete(1);
    EXPECT_EQ(folder.Read(u"Backup/CustomerData.txt"_s), "older customers");
    EXPECT_FALSE(folder.Has(u"Backup/ContractInfo.txt"_s));
    EXPECT_FALSE(folder.Has(u"Backup/CycleInfo.txt"_s));
}

TEST_F(CustomerFilesTest, LeftOverTemporaryFilesAreThrownAway) {
    WriteThree();
    folder.Write(u"CUSTOMER.TMP"_s, QByteArray(5000, 'x'));
    folder.Write(u"Temp.txt"_s, QByteArray(5000, 'x'));
    files.Delete(3);
    EXPECT_EQ(folder.Read(customerFile), first + second);
    EXPECT_EQ(folder.Read(contractFile), Siblings(2, 386));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(2, 69));
}

TEST_F(CustomerFilesTest, DeletingTouchesNothingElse) {
    WriteThree();
    folder.Write(u"TesselDelivery/Deliveries/7.txt"_s, SlipHeaderBytes("7", "3/16/2026"));
    folder.Write(u"NXActiveAccounts/4471.txt"_s, "ledger");
    folder.Write(u"AuxFiles/4471/AuxFile0/Data.txt"_s, "note\r\n");
    auto before = folder.Contents();
    files.Delete(1);
    auto after = folder.Contents();
    for (const QString& name : {customerFile, contractFile, cycleFile}) {
        before.erase(name);
        after.erase(name);
    }
    EXPECT_EQ(after, before);
}

TEST_F(CustomerFilesTest, DeleteOnAFullDiskStopsWithTheCustomersStillThere) {
    WriteThree();
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(400);
        files.Delete(1);
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_TRUE(failure.Sentence().contains(u"Writing record 2 of CUSTOMER.TMP"_s))
        << failure.what();
    EXPECT_EQ(folder.Read(customerFile), first + second + third);
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(3, 69));
}

TEST_F(CustomerFilesTest, TrailingPartOfARecordIsIgnoredOrTakenForAWholeOne) {
    folder.Write(customerFile, first + second.left(164));
    EXPECT_EQ(files.Count(), 2) << "a tie goes to the even number";
    folder.Write(customerFile, first + second.left(163));
    EXPECT_EQ(files.Count(), 1);
    folder.Write(customerFile, first + second.left(200));
    ASSERT_EQ(files.Count(), 2);
    files.ReadCustomer(2);
    EXPECT_EQ(files.Customer.AcctNo.Trimmed(), u"1002"_s);
    EXPECT_EQ(files.Customer.Phone.Whole(), QString(13, QChar(0)));
}

TEST_F(CustomerFilesTest, NumberOfAnotherCustomerIsADuplicate) {
    WriteThree();
    EXPECT_TRUE(files.IsDuplicate(u"1002"_s, 3, 1));
    EXPECT_FALSE(files.IsDuplicate(u"1002"_s, 3, 2)) << "his own number";
    EXPECT_FALSE(files.IsDuplicate(u"1002"_s, 1, 3)) << "beyond the count";
    EXPECT_FALSE(files.IsDuplicate(u"100"_s, 3, 1));
    EXPECT_FALSE(files.IsDuplicate(u"1002 "_s, 3, 1)) << "what was entered is not trimmed";
}

TEST_F(CustomerFilesTest, NumberThatDiffersOnlyInCaseIsNoDuplicate) {
    WriteThree();
    EXPECT_TRUE(files.IsDuplicate(u"ab7"_s, 3, 1));
    EXPECT_FALSE(files.IsDuplicate(u"AB7"_s, 3, 1));
}

TEST_F(CustomerFilesTest, NumberWithACharacterThatNoRecordHoldsIsNoDuplicate) {
    folder.Write(customerFile, first + SampleCustomer{.account = "?1"}.Bytes() +
                                   SampleCustomer{.account = "caf\xe9"}.Bytes());
    EXPECT_FALSE(files.IsDuplicate(u"\u4e2d1"_s, 3, 1));
    EXPECT_TRUE(files.IsDuplicate(u"?1"_s, 3, 1));
    EXPECT_TRUE(files.IsDuplicate(u"caf\u00e9"_s, 3, 1));
}

TEST_F(CustomerFilesTest, SearchForADuplicateOverwritesTheBufferUpToTheFirstHit) {
    WriteThree();
    files.ReadCustomer(1);
    EXPECT_TRUE(files.IsDuplicate(u"1002"_s, 3, 1));
    EXPECT_EQ(files.Customer.LastName.Trimmed(), u"Lee"_s);
}

TEST_F(CustomerFilesTest, UnwritableCustomerFileIsAFailure) {
    WriteThree();
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(customerFile), QFile::ReadOwner));
    DropRootRights(folder);
    const auto before = folder.Contents();
    const RuntimeFailure failure = FailureOf([&] { files.WriteCustomer(1); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_TRUE(failure.Sentence().contains(customerFile)) << failure.what();
    EXPECT_EQ(folder.Contents(), before);
}
