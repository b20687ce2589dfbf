#include "store/BasicDiskRoutines.h"

#include "store/TextLines.h"
#include "support/OfficeTest.h"

#include <QFile>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int sixteenMegabytes = 16 * 1024 * 1024;

class BasicDiskRoutinesTest : public testing::Test {
protected:
    /// The statement must fail so, and leave every file as it was.
    template <typename Statement>
    void ExpectFailure(FailureKind kind, const QString& sentenceStart, Statement&& statement) {
        const auto before = folder.Contents();
        const RuntimeFailure failure = FailureOf(statement);
        EXPECT_EQ(failure.Kind(), kind);
        EXPECT_EQ(failure.Sentence().left(sentenceStart.size()), sentenceStart);
        EXPECT_EQ(folder.Contents(), before);
    }

    void WriteLine(const QString& text) { TextWriter(disk).Plain(text); }

    void MakePipe(const QString& name) const {
        ASSERT_EQ(::mkfifo(QFile::encodeName(folder.PathOf(name)).constData(), 0600), 0);
    }

    void Link(const QString& target, const QString& name) const {
        ASSERT_TRUE(QFile::link(target, folder.PathOf(name)));
    }

    void SetRights(const QString& name, mode_t rights) const {
        ASSERT_EQ(::chmod(QFile::encodeName(folder.PathOf(name)).constData(), rights), 0);
    }

    /// A file of that length that takes no room on the disk.
    void WriteHollow(const QString& name, qint64 length) const {
        folder.Write(name, {});
        ASSERT_TRUE(QFile::resize(folder.PathOf(name), length));
    }

    TestFolder folder;
    BasicDiskRoutines disk{folder.Path()};
};

} // namespace

// The test for existence, which restores.

TEST_F(BasicDiskRoutinesTest, FileThatIsThereExists) {
    folder.Write(u"Settings.txt"_s, "8\r\n");
    EXPECT_TRUE(disk.FileExists(u"/Settings.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, FileMissingButInBackupIsBroughtBack) {
    folder.Write(u"Backup/Settings.txt"_s, "8\r\n5\r\n");
    EXPECT_TRUE(disk.FileExists(u"/Settings.txt"_s));
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "8\r\n5\r\n");
    EXPECT_EQ(folder.Read(u"Backup/Settings.txt"_s), "8\r\n5\r\n");
}

TEST_F(BasicDiskRoutinesTest, FileInASubfolderIsBroughtBackFromTheSamePlaceUnderBackup) {
    folder.MakeFolder(u"NXActiveAccounts"_s);
    folder.Write(u"Backup/NXActiveAccounts/4471.txt"_s, "ledger");
    EXPECT_TRUE(disk.FileExists(u"\\NXActiveAccounts/4471.txt"_s));
    EXPECT_EQ(folder.Read(u"NXActiveAccounts/4471.txt"_s), "ledger");
}

TEST_F(BasicDiskRoutinesTest, FileInNeitherPlaceDoesNotExistAndNothingIsCreated) {
    folder.MakeFolder(u"Backup"_s);
    EXPECT_FALSE(disk.FileExists(u"/Settings.txt"_s));
    EXPECT_EQ(folder.Everything(), QStringList{u"Backup/"_s});
}

TEST_F(BasicDiskRoutinesTest, FileInAMissingFolderDoesNotExist) {
    EXPECT_FALSE(disk.FileExists(u"/Templates/Deliveries/Monday.txt"_s));
    EXPECT_EQ(folder.Everything(), QStringList());
}

TEST_F(BasicDiskRoutinesTest, FileThatIsThereIsNotReplacedByItsCopy) {
    folder.Write(u"Settings.txt"_s, "new");
    folder.Write(u"Backup/Settings.txt"_s, "old");
    EXPECT_TRUE(disk.FileExists(u"/Settings.txt"_s));
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "new");
}

TEST_F(BasicDiskRoutinesTest, EmptyFileExistsAndIsNotReplacedByItsCopy) {
    folder.Write(u"Settings.txt"_s, "");
    folder.Write(u"Backup/Settings.txt"_s, "old");
    EXPECT_TRUE(disk.FileExists(u"/Settings.txt"_s));
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "");
}

TEST_F(BasicDiskRoutinesTest, ExistenceTestLooksAtNamesOnly) {
    folder.MakeFolder(u"Settings.txt"_s);
    MakePipe(u"Phone.txt"_s);
    EXPECT_TRUE(disk.FileExists(u"/Settings.txt"_s));
    EXPECT_TRUE(disk.FileExists(u"/Phone.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, NameWithAWildcardMatchesByPattern) {
    folder.Write(u"Templates/Deliveries/Monday.txt"_s, "");
    EXPECT_TRUE(disk.FileExists(u"/Templates/Deliveries/*.txt"_s));
    EXPECT_TRUE(disk.FileExists(u"/Templates/Deliveries/Mon???.txt"_s));
    EXPECT_FALSE(disk.FileExists(u"/Templates/Deliveries/Mon?.txt"_s));
    EXPECT_FALSE(disk.FileExists(u"/Templates/Deliveries/T*.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, WildcardBringsBackEveryCopyThatMatches) {
    folder.Write(u"Backup/Templates/Deliveries/A1.txt"_s, "one");
    folder.Write(u"Backup/Templates/Deliveries/A2.txt"_s, "two");
    folder.Write(u"Backup/Templates/Deliveries/B1.txt"_s, "other");
    folder.MakeFolder(u"Templates/Deliveries"_s);
    EXPECT_TRUE(disk.FileExists(u"/Templates/Deliveries/A*.txt"_s));
    EXPECT_EQ(folder.Read(u"Templates/Deliveries/A1.txt"_s), "one");
    EXPECT_EQ(folder.Read(u"Templates/Deliveries/A2.txt"_s), "two");
    EXPECT_FALSE(folder.Has(u"Templates/Deliveries/B1.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, WildcardThatMatchesAFileLeavesTheCopiesAlone) {
    folder.Write(u"A1.txt"_s, "");
    folder.Write(u"Backup/A2.txt"_s, "");
    EXPECT_TRUE(disk.FileExists(u"/A*.txt"_s));
    EXPECT_FALSE(folder.Has(u"A2.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, RestoreIntoAMissingFolderIsAPathFailure) {
    folder.Write(u"Backup/NXActiveAccounts/4471.txt"_s, "ledger");
    ExpectFailure(FailureKind::PathNotFound,
                  u"Opening NXActiveAccounts/4471.txt for writing failed: "_s,
                  [this] { disk.FileExists(u"/NXActiveAccounts/4471.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, FolderInThePlaceOfTheCopyFailsAndLeavesNoFile) {
    folder.MakeFolder(u"Backup/Settings.txt"_s);
    ExpectFailure(FailureKind::PermissionDenied, u"Reading Backup/Settings.txt failed: "_s,
                  [this] { disk.FileExists(u"/Settings.txt"_s); });
    EXPECT_FALSE(folder.Has(u"Settings.txt"_s));
}

// Copying.

TEST_F(BasicDiskRoutinesTest, CopyReplacesTheTargetWhole) {
    folder.Write(u"Phone.txt"_s, "#FALSE#\r\n");
    folder.Write(u"Backup/Phone.txt"_s, "a far longer text than the new one");
    disk.CopyDataFile(u"/Phone.txt"_s, u"/Backup/Phone.txt"_s);
    EXPECT_EQ(folder.Read(u"Backup/Phone.txt"_s), "#FALSE#\r\n");
    EXPECT_EQ(folder.Read(u"Phone.txt"_s), "#FALSE#\r\n");
}

TEST_F(BasicDiskRoutinesTest, CopyIsByteForByteAtAnySize) {
    QByteArray bytes;
    for (int i = 0; i < 300'001; ++i)
        bytes += char(i % 251);
    folder.Write(u"Big.txt"_s, bytes);
    disk.CopyDataFile(u"/Big.txt"_s, u"/Copy.txt"_s);
    EXPECT_TRUE(folder.Read(u"Copy.txt"_s) == bytes);
}

TEST_F(BasicDiskRoutinesTest, CopyOfAMissingFileFailsAndLeavesTheTarget) {
    folder.Write(u"Copy.txt"_s, "kept");
    ExpectFailure(FailureKind::FileNotFound, u"Opening Missing.txt for reading failed: "_s,
                  [this] { disk.CopyDataFile(u"/Missing.txt"_s, u"/Copy.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, CopyOntoAFullDiskFailsAndLeavesNoHalfFile) {
    folder.Write(u"Big.txt"_s, QByteArray(5000, 'x'));
    ExpectFailure(FailureKind::DiskFull, u"Writing Copy.txt failed: "_s, [this] {
        const FullDisk full(1000);
        disk.CopyDataFile(u"/Big.txt"_s, u"/Copy.txt"_s);
    });
    EXPECT_FALSE(folder.Has(u"Copy.txt"_s));
}

// Counting records.

TEST_F(BasicDiskRoutinesTest, FileLengthIsInBytesAndAMissingFileAFailure) {
    folder.Write(u"Vehicles.txt"_s, QByteArray(205, ' '));
    EXPECT_EQ(disk.FileLength(u"/Vehicles.txt"_s), 205);
    EXPECT_EQ(FailureOf([this] { (void)disk.FileLength(u"/Phone.txt"_s); }).Kind(),
              FailureKind::FileNotFound);
}

TEST_F(BasicDiskRoutinesTest, RecordCountOfAMissingFileIsZeroAndCreatesNothing) {
    EXPECT_EQ(disk.RecordCount(u"/Vehicles.txt"_s, 137), 0);
    EXPECT_EQ(folder.Everything(), QStringList());
}

TEST_F(BasicDiskRoutinesTest, RecordCountBringsTheFileBackFirst) {
    folder.Write(u"Backup/CustomerData.txt"_s, QByteArray(656, ' '));
    EXPECT_EQ(disk.RecordCount(u"/CustomerData.txt"_s, 328), 2);
    EXPECT_TRUE(folder.Has(u"CustomerData.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, RecordCountRoundsToTheNearestAndATieToTheEvenNumber) {
    struct Case {
        qint64 length;
        qint16 recordLength;
        qint16 count;
    };
    const std::vector<Case> cases = {{0, 137, 0},   {137, 137, 1}, {205, 137, 1}, {206, 137, 2},
                                     {250, 100, 2}, {350, 100, 4}, {50, 100, 0},  {51, 100, 1},
                                     {150, 100, 2}, {328, 328, 1}, {164, 328, 0}, {165, 328, 1}};
    for (const Case& one : cases) {
        WriteHollow(u"Records.txt"_s, one.length);
        EXPECT_EQ(disk.RecordCount(u"/Records.txt"_s, one.recordLength), one.count)
            << one.length << " / " << one.recordLength;
    }
}

TEST_F(BasicDiskRoutinesTest, RecordCountOverThirtyTwoThousandIsAnOverflow) {
    WriteHollow(u"Records.txt"_s, qint64(32'767) * 100);
    EXPECT_EQ(disk.RecordCount(u"/Records.txt"_s, 100), 32'767);
    WriteHollow(u"Records.txt"_s, qint64(32'768) * 100);
    const RuntimeFailure failure = FailureOf([this] { disk.RecordCount(u"/Records.txt"_s, 100); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(), u"Counting the records of Records.txt failed: there are more "
                                  "than 32,767."_s);
}

TEST_F(BasicDiskRoutinesTest, HalfARecordAboveTheLastCountRoundsIntoTheOverflow) {
    WriteHollow(u"Records.txt"_s, qint64(32'767) * 100 + 49);
    EXPECT_EQ(disk.RecordCount(u"/Records.txt"_s, 100), 32'767);
    WriteHollow(u"Records.txt"_s, qint64(32'767) * 100 + 50);
    EXPECT_EQ(FailureOf([this] { disk.RecordCount(u"/Records.txt"_s, 100); }).Kind(),
              FailureKind::Overflow);
}

// File numbers.

TEST_F(BasicDiskRoutinesTest, EveryOpenTakesAFreshNumberAndForgetsTheOneBefore) {
    folder.Write(u"A.txt"_s, "a");
    disk.OpenForInput(u"/A.txt"_s);
    EXPECT_EQ(disk.DiskFile, 1);
    disk.OpenForInput(u"/A.txt"_s);
    EXPECT_EQ(disk.DiskFile, 2);
    disk.OpenForOutput(u"/B.txt"_s);
    EXPECT_EQ(disk.DiskFile, 3);
    disk.OpenRandom(u"/C.txt"_s, 10);
    EXPECT_EQ(disk.DiskFile, 4);
    disk.CloseAllFiles();
    disk.OpenForInput(u"/A.txt"_s);
    EXPECT_EQ(disk.DiskFile, 1);
}

TEST_F(BasicDiskRoutinesTest, SecondRandomFileLeavesTheFirstOnItsNumber) {
    disk.OpenRandom(u"/CustomerData.txt"_s, 328);
    disk.OpenRandomSecond(u"/ContractInfo.txt"_s, 386);
    EXPECT_EQ(disk.DiskFile, 1);
    EXPECT_EQ(disk.DiskFile2, 2);
}

TEST_F(BasicDiskRoutinesTest, OutputBesideLeavesTheFileOnDiskFile) {
    folder.Write(u"Old.txt"_s, "first\r\n");
    disk.OpenForInput(u"/Old.txt"_s);
    const qint16 beside = disk.OpenForOutputBeside(u"/New.txt"_s);
    EXPECT_EQ(disk.DiskFile, 1);
    TextWriter(disk, beside).Plain(TextReader(disk).WholeLine());
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"New.txt"_s), "first\r\n");
}

TEST_F(BasicDiskRoutinesTest, ForgottenFileStaysOpenUntilTheNextCloseOfAll) {
    disk.OpenForOutput(u"/A.txt"_s);
    WriteLine(u"one"_s);
    disk.OpenForOutput(u"/B.txt"_s);
    WriteLine(u"two"_s);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"A.txt"_s), "one\r\n");
    EXPECT_EQ(folder.Read(u"B.txt"_s), "two\r\n");
}

TEST_F(BasicDiskRoutinesTest, ClosedNumberIsOpenForNothing) {
    folder.Write(u"A.txt"_s, "a");
    disk.OpenForInput(u"/A.txt"_s);
    disk.CloseAllFiles();
    char record[10] = {};
    EXPECT_EQ(FailureOf([this] { disk.InputOn(1); }).Kind(), FailureKind::FileNotOpen);
    EXPECT_EQ(FailureOf([this] { disk.Append(1, "x"); }).Kind(), FailureKind::FileNotOpen);
    EXPECT_EQ(FailureOf([&] { disk.ReadRecord(1, 1, record, 10); }).Kind(),
              FailureKind::FileNotOpen);
    EXPECT_EQ(FailureOf([&] { disk.WriteRecord(1, 1, record, 10); }).Kind(),
              FailureKind::FileNotOpen);
    EXPECT_EQ(folder.Read(u"A.txt"_s), "a");
}

// Opening.

TEST_F(BasicDiskRoutinesTest, OpenForInputOfAMissingFileFailsEvenWithACopyInBackup) {
    folder.Write(u"Backup/Settings.txt"_s, "8");
    ExpectFailure(FailureKind::FileNotFound, u"Opening Settings.txt for reading failed: "_s,
                  [this] { disk.OpenForInput(u"/Settings.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, OpenForOutputCreatesTheFile) {
    disk.OpenForOutput(u"/Settings.txt"_s);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "");
}

TEST_F(BasicDiskRoutinesTest, OpenForOutputEmptiesTheFile) {
    folder.Write(u"Settings.txt"_s, "a long old content");
    disk.OpenForOutput(u"/Settings.txt"_s);
    WriteLine(u"new"_s);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), "new\r\n");
}

TEST_F(BasicDiskRoutinesTest, OutputInAMissingFolderIsAPathFailure) {
    ExpectFailure(FailureKind::PathNotFound, u"Opening AuxFiles/7/Data.txt for writing failed: "_s,
                  [this] { disk.OpenForOutput(u"/AuxFiles/7/Data.txt"_s); });
    ExpectFailure(FailureKind::PathNotFound,
                  u"Opening AuxFiles/7/Data.txt for reading and writing failed: "_s,
                  [this] { disk.OpenRandom(u"/AuxFiles/7/Data.txt"_s, 10); });
}

TEST_F(BasicDiskRoutinesTest, OpenRandomOfAMissingFileLeavesAnEmptyFileBehind) {
    disk.OpenRandom(u"/Vehicles.txt"_s, 137);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Vehicles.txt"_s), "");
    EXPECT_EQ(disk.RecordCount(u"/Vehicles.txt"_s, 137), 0);
}

TEST_F(BasicDiskRoutinesTest, OpenRandomKeepsTheRecords) {
    folder.Write(u"Vehicles.txt"_s, "0123456789");
    disk.OpenRandom(u"/Vehicles.txt"_s, 5);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Vehicles.txt"_s), "0123456789");
}

// Records.

TEST_F(BasicDiskRoutinesTest, RecordsAreNumberedFromOne) {
    folder.Write(u"Records.txt"_s, "AAABBBCCC");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    char record[3] = {};
    disk.ReadRecord(disk.DiskFile, 1, record, 3);
    EXPECT_EQ(QByteArray(record, 3), "AAA");
    disk.ReadRecord(disk.DiskFile, 3, record, 3);
    EXPECT_EQ(QByteArray(record, 3), "CCC");
}

TEST_F(BasicDiskRoutinesTest, WritingARecordLeavesTheOthers) {
    folder.Write(u"Records.txt"_s, "AAABBBCCC");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    disk.WriteRecord(disk.DiskFile, 2, "xyz", 3);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Records.txt"_s), "AAAxyzCCC");
}

TEST_F(BasicDiskRoutinesTest, WritingBehindTheLastRecordExtendsTheFile) {
    folder.Write(u"Records.txt"_s, "AAA");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    disk.WriteRecord(disk.DiskFile, 2, "BBB", 3);
    disk.WriteRecord(disk.DiskFile, 4, "DDD", 3);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"Records.txt"_s), QByteArray("AAABBB\0\0\0DDD", 12));
}

TEST_F(BasicDiskRoutinesTest, WhatLiesBeyondTheEndReadsAsZeroBytes) {
    folder.Write(u"Records.txt"_s, "AAABB");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    char record[3] = {'x', 'x', 'x'};
    disk.ReadRecord(disk.DiskFile, 2, record, 3);
    EXPECT_EQ(QByteArray(record, 3), QByteArray("BB\0", 3));
    disk.ReadRecord(disk.DiskFile, 3, record, 3);
    EXPECT_EQ(QByteArray(record, 3), QByteArray("\0\0\0", 3));
}

TEST_F(BasicDiskRoutinesTest, RecordsAreReadInOneGoWithZeroBytesBeyondTheEnd) {
    folder.Write(u"Records.txt"_s, "AAABBBCC");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    QByteArray records(13, 'x');
    disk.ReadRecords(disk.DiskFile, 1, 2, records.data(), 3);
    EXPECT_EQ(records, QByteArray("AAABBBxxxxxxx", 13));
    disk.ReadRecords(disk.DiskFile, 1, 4, records.data(), 3);
    EXPECT_EQ(records, QByteArray("AAABBBCC\0\0\0\0x", 13));
    disk.ReadRecords(disk.DiskFile, 2, 1, records.data(), 3);
    EXPECT_EQ(records.first(3), "BBB");
    disk.ReadRecords(disk.DiskFile, 1, 4, records.data(), 3);
    disk.ReadRecords(disk.DiskFile, 1, 0, records.data(), 3);
    EXPECT_EQ(records, QByteArray("AAABBBCC\0\0\0\0x", 13));
}

TEST_F(BasicDiskRoutinesTest, RecordsReadInOneGoHaveTheFilesRecordLength) {
    folder.Write(u"Records.txt"_s, "AAABBB");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    char records[8] = {};
    for (const size_t size : {2, 4})
        ExpectFailure(FailureKind::BadRecord,
                      u"Reading 2 records from record 1 of Records.txt failed: "_s,
                      [&] { disk.ReadRecords(disk.DiskFile, 1, 2, records, size); });
    ExpectFailure(FailureKind::BadRecord,
                  u"Reading 1 records from record 0 of Records.txt failed: "_s,
                  [&] { disk.ReadRecords(disk.DiskFile, 0, 1, records, 3); });
    EXPECT_EQ(FailureOf([&] { disk.ReadRecords(99, 1, 1, records, 3); }).Kind(),
              FailureKind::FileNotOpen);
}

TEST_F(BasicDiskRoutinesTest, RecordThatDoesNotFitTheFilesRecordLengthFails) {
    folder.Write(u"Records.txt"_s, "AAABBB");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    char record[4] = {};
    ExpectFailure(FailureKind::BadRecord, u"Writing record 1 of Records.txt failed: "_s,
                  [&] { disk.WriteRecord(disk.DiskFile, 1, record, 4); });
    ExpectFailure(FailureKind::BadRecord, u"Reading record 1 of Records.txt failed: "_s,
                  [&] { disk.ReadRecord(disk.DiskFile, 1, record, 4); });
}

TEST_F(BasicDiskRoutinesTest, ThereIsNoRecordZero) {
    folder.Write(u"Records.txt"_s, "AAABBB");
    disk.OpenRandom(u"/Records.txt"_s, 3);
    char record[3] = {};
    ExpectFailure(FailureKind::BadRecord, u"Reading record 0 of Records.txt failed: "_s,
                  [&] { disk.ReadRecord(disk.DiskFile, 0, record, 3); });
    ExpectFailure(FailureKind::BadRecord, u"Writing record -1 of Records.txt failed: "_s,
                  [&] { disk.WriteRecord(disk.DiskFile, -1, record, 3); });
}

// Deleting.

TEST_F(BasicDiskRoutinesTest, KillFileDeletesTheFileAndLeavesItsCopy) {
    folder.Write(u"Prompts.txt"_s, "new");
    folder.Write(u"Backup/Prompts.txt"_s, "old");
    disk.KillFile(u"/Prompts.txt"_s);
    EXPECT_EQ(folder.Everything(), (QStringList{u"Backup/"_s, u"Backup/Prompts.txt"_s}));
}

TEST_F(BasicDiskRoutinesTest, KillFileOfAnyNameClosesTheFileBeingWritten) {
    disk.OpenForOutput(u"/Slip.txt"_s);
    WriteLine(u"20260014"_s);
    disk.KillFile(u"/Another.txt"_s);
    EXPECT_EQ(folder.Read(u"Slip.txt"_s), "20260014\r\n");
    ExpectFailure(FailureKind::FileNotOpen, u"File number 1 is not open for this operation."_s,
                  [this] { WriteLine(u"3/16/2026"_s); });
}

TEST_F(BasicDiskRoutinesTest, KillFileInAMissingFolderDoesNothing) {
    disk.KillFile(u"/TesselDelivery/Deliveries/7.txt"_s);
    EXPECT_EQ(folder.Everything(), QStringList());
}

TEST_F(BasicDiskRoutinesTest, KillFileOfAFolderFailsAndLeavesIt) {
    folder.Write(u"Templates/A.txt"_s, "a");
    ExpectFailure(FailureKind::PermissionDenied, u"Deleting Templates failed: "_s,
                  [this] { disk.KillFile(u"/Templates"_s); });
}

TEST_F(BasicDiskRoutinesTest, DeleteWithBackupDeletesTheFileAndItsCopyAndNothingElse) {
    folder.Write(u"Settings.txt"_s, "new");
    folder.Write(u"Prompts.txt"_s, "other");
    folder.Write(u"Backup/Settings.txt"_s, "old");
    folder.Write(u"Backup/Prompts.txt"_s, "other");
    disk.DeleteWithBackup(u"/Settings.txt"_s);
    EXPECT_EQ(folder.Everything(),
              (QStringList{u"Backup/"_s, u"Backup/Prompts.txt"_s, u"Prompts.txt"_s}));
    EXPECT_FALSE(disk.FileExists(u"/Settings.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, DeleteWithBackupOfAMissingFileOnlyClosesAllFiles) {
    disk.OpenForOutput(u"/Slip.txt"_s);
    WriteLine(u"20260014"_s);
    disk.DeleteWithBackup(u"/Missing.txt"_s);
    EXPECT_EQ(folder.Everything(), QStringList{u"Slip.txt"_s});
    EXPECT_EQ(folder.Read(u"Slip.txt"_s), "20260014\r\n");
    EXPECT_EQ(FailureOf([this] { WriteLine(u"more"_s); }).Kind(), FailureKind::FileNotOpen);
}

// Folders and renaming.

TEST_F(BasicDiskRoutinesTest, MakeFolderMakesOneLevel) {
    disk.MakeFolder(u"/TesselDelivery"_s);
    disk.MakeFolder(u"/TesselDelivery//Deliveries"_s);
    EXPECT_EQ(folder.Everything(),
              (QStringList{u"TesselDelivery/"_s, u"TesselDelivery/Deliveries/"_s}));
    ExpectFailure(FailureKind::PathNotFound, u"Making the folder A/B failed: "_s,
                  [this] { disk.MakeFolder(u"/A/B"_s); });
    EXPECT_FALSE(folder.Has(u"A"_s));
}

TEST_F(BasicDiskRoutinesTest, MakeFolderOfAFolderThatIsThereLeavesItsFiles) {
    folder.Write(u"Templates/A.txt"_s, "a");
    disk.MakeFolder(u"/Templates"_s);
    EXPECT_EQ(folder.Read(u"Templates/A.txt"_s), "a");
}

TEST_F(BasicDiskRoutinesTest, FileInTheWayOfAFolderIsPassedOverAndTheFirstWriteBelowItFails) {
    folder.Write(u"Templates"_s, "a file");
    disk.MakeFolder(u"/Templates"_s);
    EXPECT_EQ(folder.Read(u"Templates"_s), "a file");
    ExpectFailure(FailureKind::PathNotFound, u"Opening Templates/A.txt for writing failed: "_s,
                  [this] { disk.OpenForOutput(u"/Templates/A.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, RenameMovesTheFileAndClosesAllFiles) {
    disk.OpenForOutput(u"/TempFile.txt"_s);
    WriteLine(u"kept"_s);
    disk.RenameDataFile(u"/TempFile.txt"_s, u"\\7.txt"_s);
    EXPECT_EQ(folder.Everything(), QStringList{u"7.txt"_s});
    EXPECT_EQ(folder.Read(u"7.txt"_s), "kept\r\n");
    EXPECT_EQ(FailureOf([this] { WriteLine(u"more"_s); }).Kind(), FailureKind::FileNotOpen);
}

TEST_F(BasicDiskRoutinesTest, RenameOntoAFileThatIsThereFails) {
    folder.Write(u"A.txt"_s, "a");
    folder.Write(u"B.txt"_s, "b");
    ExpectFailure(FailureKind::FileAlreadyExists, u"Renaming A.txt to B.txt failed: "_s,
                  [this] { disk.RenameDataFile(u"/A.txt"_s, u"/B.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, RenameOfAMissingFileFails) {
    ExpectFailure(FailureKind::FileNotFound, u"Renaming A.txt to B.txt failed: "_s,
                  [this] { disk.RenameDataFile(u"/A.txt"_s, u"/B.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, ReplaceFromTemporaryTakesThePlaceOfFileAndCopy) {
    folder.Write(u"TemporaryFile.txt"_s, "kept records");
    folder.Write(u"TaxRecords.txt"_s, "all records");
    folder.Write(u"Backup/TaxRecords.txt"_s, "old records");
    disk.ReplaceFromTemporary(u"/TaxRecords.txt"_s);
    EXPECT_EQ(folder.Everything(), (QStringList{u"Backup/"_s, u"TaxRecords.txt"_s}));
    EXPECT_EQ(folder.Read(u"TaxRecords.txt"_s), "kept records");
}

TEST_F(BasicDiskRoutinesTest, ReplaceDeletesBeforeItFindsTheTemporaryMissing) {
    folder.Write(u"TaxRecords.txt"_s, "all records");
    const RuntimeFailure failure =
        FailureOf([this] { disk.ReplaceFromTemporary(u"/TaxRecords.txt"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_EQ(folder.Everything(), QStringList());
}

// The exit's safety copy.

TEST_F(BasicDiskRoutinesTest, ElevenFilesAreCopiedToBackupAtExit) {
    const QStringList names = {
        u"AuxHeadings.txt"_s,  u"CompanyLogo.txt"_s,    u"CustomerData.txt"_s,
        u"LogoSettings.txt"_s, u"MyBusinessData.txt"_s, u"MyWebSite.txt"_s,
        u"Phone.txt"_s,        u"PrintColors.txt"_s,    u"SoldItems.txt"_s,
        u"SpeedNumbers.txt"_s, u"TaxRecords.txt"_s};
    for (const QString& name : names)
        folder.Write(name, "content of " + name.toLatin1());
    for (const char* other : {"Vehicles.txt", "ContractInfo.txt", "CycleInfo.txt", "Settings.txt",
                              "NXInventoriedItems.txt", "NQDeliveryNo.txt", "MyWebSite.html",
                              "TesselDelivery/Deliveries/7.txt"})
        folder.Write(QString::fromLatin1(other), "x");
    folder.Write(u"Backup/Phone.txt"_s, "an older and longer copy of the telephone file");
    disk.BackupDataFiles();
    QStringList copied;
    for (const auto& [name, bytes] : folder.Contents()) {
        if (!name.startsWith("Backup/"_L1))
            continue;
        copied += name.mid(7);
        EXPECT_EQ(bytes, "content of " + copied.last().toLatin1());
    }
    EXPECT_EQ(copied, names);
}

TEST_F(BasicDiskRoutinesTest, FileMissingAtExitLeavesItsOlderCopyAndDoesNotComeBack) {
    folder.Write(u"Backup/CustomerData.txt"_s, "older");
    disk.BackupDataFiles();
    EXPECT_EQ(folder.Everything(), (QStringList{u"Backup/"_s, u"Backup/CustomerData.txt"_s}));
    EXPECT_EQ(folder.Read(u"Backup/CustomerData.txt"_s), "older");
}

TEST_F(BasicDiskRoutinesTest, SafetyCopyClosesAllFilesFirst) {
    folder.MakeFolder(u"Backup"_s);
    disk.OpenForOutput(u"/SpeedNumbers.txt"_s);
    WriteLine(u"555-0100"_s);
    disk.BackupDataFiles();
    EXPECT_EQ(folder.Read(u"Backup/SpeedNumbers.txt"_s), "555-0100\r\n");
    EXPECT_EQ(FailureOf([this] { WriteLine(u"more"_s); }).Kind(), FailureKind::FileNotOpen);
}

TEST_F(BasicDiskRoutinesTest, FailureOfOneCopyIsIgnoredAndTheNextFileIsTried) {
    folder.Write(u"CompanyLogo.txt"_s, "logo");
    folder.MakeFolder(u"Backup/CompanyLogo.txt"_s);
    folder.MakeFolder(u"CustomerData.txt"_s);
    folder.Write(u"SpeedNumbers.txt"_s, "numbers");
    disk.BackupDataFiles();
    EXPECT_EQ(folder.Read(u"Backup/SpeedNumbers.txt"_s), "numbers");
    EXPECT_FALSE(folder.Has(u"Backup/CustomerData.txt"_s));
}

TEST_F(BasicDiskRoutinesTest, LostCloseDoesNotCostTheFirstFileItsCopy) {
    folder.Write(u"CompanyLogo.txt"_s, "logo");
    folder.MakeFolder(u"Backup"_s);
    Link(u"/dev/full"_s, u"Settings.txt"_s);
    disk.OpenForOutput(u"/Settings.txt"_s);
    WriteLine(u"8"_s);
    disk.BackupDataFiles();
    EXPECT_EQ(folder.Read(u"Backup/CompanyLogo.txt"_s), "logo");
}

TEST_F(BasicDiskRoutinesTest, SafetyCopyWithoutABackupFolderDoesNothing) {
    folder.Write(u"CompanyLogo.txt"_s, "logo");
    disk.BackupDataFiles();
    EXPECT_EQ(folder.Everything(), QStringList{u"CompanyLogo.txt"_s});
}

TEST_F(BasicDiskRoutinesTest, SafetyCopyOntoAFullDiskLeavesNoHalfFile) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(3280, 'c'));
    folder.Write(u"SpeedNumbers.txt"_s, "numbers");
    folder.MakeFolder(u"Backup"_s);
    {
        const FullDisk full(1000);
        disk.BackupDataFiles();
    }
    EXPECT_FALSE(folder.Has(u"Backup/CustomerData.txt"_s));
    EXPECT_EQ(folder.Read(u"Backup/SpeedNumbers.txt"_s), "numbers");
}

// Listing.

TEST_F(BasicDiskRoutinesTest, ListingHoldsMatchingFilesInNameOrderAndNoFolders) {
    for (const char* name : {"10.txt", "9.txt", "B.txt", "a.txt", "9.bak", "[1].txt"})
        folder.Write(u"Slips/"_s + QString::fromLatin1(name), "");
    folder.MakeFolder(u"Slips/Folder.txt"_s);
    EXPECT_EQ(
        disk.ListFiles(u"/Slips"_s, u"*.txt"_s),
        (std::vector<QString>{u"10.txt"_s, u"9.txt"_s, u"B.txt"_s, u"[1].txt"_s, u"a.txt"_s}));
    EXPECT_EQ(disk.ListFiles(u"/Slips"_s, u"[1]*"_s), std::vector<QString>{u"[1].txt"_s});
    EXPECT_EQ(disk.ListFiles(u"/Slips"_s, u"?.txt"_s),
              (std::vector<QString>{u"9.txt"_s, u"B.txt"_s, u"a.txt"_s}));
}

TEST_F(BasicDiskRoutinesTest, ListingOfAMissingFolderIsEmpty) {
    EXPECT_TRUE(disk.ListFiles(u"/Missing"_s, u"*.txt"_s).empty());
}

TEST_F(BasicDiskRoutinesTest, ListingOfAFileIsEmpty) {
    folder.Write(u"Slips"_s, "a file");
    EXPECT_TRUE(disk.ListFiles(u"/Slips"_s, u"*"_s).empty());
}

TEST_F(BasicDiskRoutinesTest, ListingTakesALinkForWhatItLeadsTo) {
    folder.Write(u"Elsewhere/Target.txt"_s, "x");
    folder.MakeFolder(u"Slips/Folder.txt"_s);
    Link(folder.PathOf(u"Elsewhere"_s), u"Slips/LinkToFolder.txt"_s);
    Link(folder.PathOf(u"Elsewhere/Target.txt"_s), u"Slips/LinkToFile.txt"_s);
    EXPECT_EQ(disk.ListFiles(u"/Slips"_s, u"*.txt"_s), std::vector<QString>{u"LinkToFile.txt"_s});
}

TEST_F(BasicDiskRoutinesTest, ListedNameWithAccentsOpensTheFile) {
    folder.Write(u"Templates/Gem\u00fcse.txt"_s, "x");
    const std::vector<QString> names = disk.ListFiles(u"/Templates"_s, u"*.txt"_s);
    ASSERT_EQ(names, std::vector<QString>{u"Gem\u00fcse.txt"_s});
    EXPECT_TRUE(disk.FileExists(u"/Templates/"_s + names[0]));
}

// Names.

TEST_F(BasicDiskRoutinesTest, BothSeparatorsAndDoubledOnesNameTheSameFile) {
    folder.Write(u"Templates/Deliveries/A.txt"_s, "a");
    for (const QString& name :
         {u"/Templates/Deliveries/A.txt"_s, u"\\Templates\\Deliveries\\A.txt"_s,
          u"\\Templates/Deliveries\\A.txt"_s, u"//Templates//Deliveries//A.txt"_s,
          u"\\\\Templates/\\Deliveries\\/A.txt"_s})
        EXPECT_TRUE(disk.FileExists(name)) << name.toStdString();
}

TEST_F(BasicDiskRoutinesTest, NameThatLeavesTheDataFolderIsRefusedByEveryOperation) {
    for (const QString& name : {u"/../Outside.txt"_s, u"\\..\\Outside.txt"_s, u"/.."_s,
                                u"/Templates/../../Outside.txt"_s, u"/Templates\\..\\A.txt"_s}) {
        const std::vector<std::function<void()>> operations = {
            [&] { disk.FileExists(name); },
            [&] { disk.CopyDataFile(name, u"/A.txt"_s); },
            [&] { disk.CopyDataFile(u"/Inside.txt"_s, name); },
            [&] { disk.RecordCount(name, 10); },
            [&] { disk.OpenForInput(name); },
            [&] { disk.OpenForOutput(name); },
            [&] { disk.OpenForOutputBeside(name); },
            [&] { disk.OpenRandom(name, 10); },
            [&] { disk.OpenRandomSecond(name, 10); },
            [&] { disk.KillFile(name); },
            [&] { disk.MakeFolder(name); },
            [&] { disk.RenameDataFile(u"/Inside.txt"_s, name); },
            [&] { disk.RenameDataFile(name, u"/A.txt"_s); },
            [&] { disk.ListFiles(name, u"*"_s); }};
        folder.Write(u"Inside.txt"_s, "kept");
        for (size_t i = 0; i < operations.size(); ++i) {
            SCOPED_TRACE(i);
            ExpectFailure(FailureKind::BadFileName, u"The name \"%1\" would lead out"_s.arg(name),
                          operations[i]);
        }
        ExpectFailure(FailureKind::BadFileName,
                      u"The name \"/Backup%1\" would lead out"_s.arg(name),
                      [&] { disk.DeleteWithBackup(name); });
    }
}

TEST_F(BasicDiskRoutinesTest, NameWithANulIsRefused) {
    folder.Write(u"A"_s, "kept");
    const QString name = u"/A"_s + QChar(u'\0') + u".txt"_s;
    EXPECT_EQ(FailureOf([&] { disk.FileExists(name); }).Kind(), FailureKind::BadFileName);
    EXPECT_EQ(FailureOf([&] { disk.OpenForOutput(name); }).Kind(), FailureKind::BadFileName);
    EXPECT_EQ(FailureOf([&] { disk.KillFile(name); }).Kind(), FailureKind::BadFileName);
    EXPECT_EQ(folder.Read(u"A"_s), "kept");
}

TEST_F(BasicDiskRoutinesTest, DotsInsideANameAreOrdinaryCharacters) {
    disk.OpenForOutput(u"/Invoice..2026...txt"_s);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Everything(), QStringList{u"Invoice..2026...txt"_s});
}

TEST_F(BasicDiskRoutinesTest, NameTooLongForTheDiskIsABadName) {
    const QString name = u'/' + QString(300, u'x') + u".txt"_s;
    EXPECT_EQ(FailureOf([&] { disk.FileExists(name); }).Kind(), FailureKind::BadFileName);
    EXPECT_EQ(FailureOf([&] { disk.OpenForOutput(name); }).Kind(), FailureKind::BadFileName);
}

// What else can stand in the way.

TEST_F(BasicDiskRoutinesTest, MissingDataFolderIsAFailureThatNamesIt) {
    const QString path = folder.PathOf(u"Gone"_s);
    const RuntimeFailure failure = FailureOf([&] { const BasicDiskRoutines other(path); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    const QString start = u"Opening the data folder "_s + path + u" failed: "_s;
    EXPECT_EQ(failure.Sentence().left(start.size()), start);
}

TEST_F(BasicDiskRoutinesTest, FileInThePlaceOfTheDataFolderIsAFailure) {
    folder.Write(u"A.txt"_s, "a");
    EXPECT_EQ(FailureOf([&] { const BasicDiskRoutines other(folder.PathOf(u"A.txt"_s)); }).Kind(),
              FailureKind::PathNotFound);
}

TEST_F(BasicDiskRoutinesTest, UnreadableFileFailsOnEveryWayOfReading) {
    folder.Write(u"Settings.txt"_s, "8");
    DropRootRights(folder);
    SetRights(u"Settings.txt"_s, 0200);
    EXPECT_TRUE(disk.FileExists(u"/Settings.txt"_s));
    const auto expectDenied = [](const QString& start, auto&& statement) {
        const RuntimeFailure failure = FailureOf(statement);
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(failure.Sentence().left(start.size()), start);
    };
    expectDenied(u"Opening Settings.txt for reading failed: "_s,
                 [this] { disk.OpenForInput(u"/Settings.txt"_s); });
    expectDenied(u"Opening Settings.txt for reading failed: "_s,
                 [this] { disk.CopyDataFile(u"/Settings.txt"_s, u"/Copy.txt"_s); });
    expectDenied(u"Opening Settings.txt for reading and writing failed: "_s,
                 [this] { disk.OpenRandom(u"/Settings.txt"_s, 10); });
    EXPECT_EQ(folder.Everything(), QStringList{u"Settings.txt"_s});
}

TEST_F(BasicDiskRoutinesTest, UnwritableFileFailsAndKeepsItsContent) {
    folder.Write(u"Settings.txt"_s, "8");
    folder.Write(u"New.txt"_s, "9");
    DropRootRights(folder);
    SetRights(u"Settings.txt"_s, 0400);
    ExpectFailure(FailureKind::PermissionDenied, u"Opening Settings.txt for writing failed: "_s,
                  [this] { disk.OpenForOutput(u"/Settings.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied, u"Opening Settings.txt for writing failed: "_s,
                  [this] { disk.CopyDataFile(u"/New.txt"_s, u"/Settings.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied,
                  u"Opening Settings.txt for reading and writing failed: "_s,
                  [this] { disk.OpenRandom(u"/Settings.txt"_s, 10); });
}

TEST_F(BasicDiskRoutinesTest, UnwritableFolderFailsAndKeepsItsFiles) {
    folder.Write(u"Slips/7.txt"_s, "seven");
    DropRootRights(folder);
    SetRights(u"Slips"_s, 0500);
    ExpectFailure(FailureKind::PermissionDenied, u"Opening Slips/8.txt for writing failed: "_s,
                  [this] { disk.OpenForOutput(u"/Slips/8.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied, u"Deleting Slips/7.txt failed: "_s,
                  [this] { disk.KillFile(u"/Slips/7.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied, u"Renaming Slips/7.txt to Slips/8.txt failed: "_s,
                  [this] { disk.RenameDataFile(u"/Slips/7.txt"_s, u"/Slips/8.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied, u"Making the folder Slips/New failed: "_s,
                  [this] { disk.MakeFolder(u"/Slips/New"_s); });
    SetRights(u"Slips"_s, 0700);
}

TEST_F(BasicDiskRoutinesTest, UnreadableFolderFailsRatherThanLookingEmpty) {
    folder.Write(u"Slips/7.txt"_s, "seven");
    DropRootRights(folder);
    SetRights(u"Slips"_s, 0000);
    const RuntimeFailure listing = FailureOf([this] { disk.ListFiles(u"/Slips"_s, u"*.txt"_s); });
    EXPECT_EQ(listing.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(listing.Sentence().left(32), u"Listing the folder Slips failed:"_s);
    const RuntimeFailure looking = FailureOf([this] { disk.FileExists(u"/Slips/7.txt"_s); });
    EXPECT_EQ(looking.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(looking.Sentence().left(31), u"Looking for Slips/7.txt failed:"_s);
    SetRights(u"Slips"_s, 0700);
}

TEST_F(BasicDiskRoutinesTest, UnreadableFileIsSkippedByTheSafetyCopy) {
    folder.Write(u"CompanyLogo.txt"_s, "logo");
    folder.Write(u"TaxRecords.txt"_s, "taxes");
    folder.MakeFolder(u"Backup"_s);
    DropRootRights(folder);
    SetRights(u"CompanyLogo.txt"_s, 0000);
    disk.BackupDataFiles();
    EXPECT_FALSE(folder.Has(u"Backup/CompanyLogo.txt"_s));
    EXPECT_EQ(folder.Read(u"Backup/TaxRecords.txt"_s), "taxes");
}

TEST_F(BasicDiskRoutinesTest, UnreadableFileLosesItsOlderSafetyCopy) {
    folder.Write(u"CompanyLogo.txt"_s, "logo");
    folder.Write(u"Backup/CompanyLogo.txt"_s, "older");
    DropRootRights(folder);
    SetRights(u"CompanyLogo.txt"_s, 0000);
    // The older copy is deleted first, and then the file can't be copied.
    disk.BackupDataFiles();
    EXPECT_EQ(folder.Everything(), (QStringList{u"Backup/"_s, u"CompanyLogo.txt"_s}));
}

TEST_F(BasicDiskRoutinesTest, FolderUnderAFilesNameFailsAndStays) {
    folder.Write(u"Settings.txt/Inside.txt"_s, "kept");
    ExpectFailure(FailureKind::PermissionDenied, u"Reading Settings.txt failed: "_s,
                  [this] { disk.OpenForInput(u"/Settings.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied, u"Opening Settings.txt for writing failed: "_s,
                  [this] { disk.OpenForOutput(u"/Settings.txt"_s); });
    ExpectFailure(FailureKind::PermissionDenied,
                  u"Opening Settings.txt for reading and writing failed: "_s,
                  [this] { disk.OpenRandom(u"/Settings.txt"_s, 10); });
    ExpectFailure(FailureKind::PermissionDenied, u"Deleting Settings.txt failed: "_s,
                  [this] { disk.DeleteWithBackup(u"/Settings.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, PipeUnderAFilesNameHoldsNothingUp) {
    MakePipe(u"Settings.txt"_s);
    disk.OpenForInput(u"/Settings.txt"_s);
    EXPECT_EQ(FailureOf([this] { TextReader(disk).WholeLine(); }).Kind(), FailureKind::ReadPastEnd);
    const RuntimeFailure writing = FailureOf([this] { disk.OpenForOutput(u"/Settings.txt"_s); });
    EXPECT_EQ(writing.Kind(), FailureKind::DeviceFailure);
    EXPECT_EQ(writing.Sentence().left(40), u"Opening Settings.txt for writing failed:"_s);
    disk.OpenRandom(u"/Settings.txt"_s, 4);
    char record[4] = {};
    EXPECT_EQ(FailureOf([&] { disk.ReadRecord(disk.DiskFile, 1, record, 4); }).Kind(),
              FailureKind::DeviceFailure);
    EXPECT_EQ(FailureOf([&] { disk.WriteRecord(disk.DiskFile, 1, record, 4); }).Kind(),
              FailureKind::DeviceFailure);
}

TEST_F(BasicDiskRoutinesTest, TextFileOfSixteenMegabytesIsReadAndOneByteMoreIsNot) {
    WriteHollow(u"Settings.txt"_s, sixteenMegabytes);
    disk.OpenForInput(u"/Settings.txt"_s);
    EXPECT_EQ(disk.InputOn(disk.DiskFile).content.size(), sixteenMegabytes);
    disk.CloseAllFiles();
    WriteHollow(u"Settings.txt"_s, sixteenMegabytes + 1);
    const RuntimeFailure failure = FailureOf([this] { disk.OpenForInput(u"/Settings.txt"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileTooLarge);
    EXPECT_EQ(failure.Sentence(), u"Reading Settings.txt failed: the file is larger than 16 MB."_s);
}

TEST_F(BasicDiskRoutinesTest, EndlessFileIsTooLarge) {
    Link(u"/dev/zero"_s, u"Settings.txt"_s);
    EXPECT_EQ(FailureOf([this] { disk.OpenForInput(u"/Settings.txt"_s); }).Kind(),
              FailureKind::FileTooLarge);
}

// A disk that fills up.

TEST_F(BasicDiskRoutinesTest, TextThatDoesNotReachAFullDeviceFailsAtTheClose) {
    folder.Write(u"Other.txt"_s, "kept");
    Link(u"/dev/full"_s, u"Settings.txt"_s);
    disk.OpenForOutput(u"/Settings.txt"_s);
    WriteLine(u"8"_s);
    ExpectFailure(FailureKind::DiskFull, u"Writing Settings.txt failed: "_s,
                  [this] { disk.CloseAllFiles(); });
    disk.CloseAllFiles();
}

TEST_F(BasicDiskRoutinesTest, LongTextThatDoesNotReachAFullDeviceFailsAtTheWrite) {
    Link(u"/dev/full"_s, u"Settings.txt"_s);
    disk.OpenForOutput(u"/Settings.txt"_s);
    ExpectFailure(FailureKind::DiskFull, u"Writing Settings.txt failed: "_s,
                  [this] { WriteLine(QString(100'000, u'x')); });
}

TEST_F(BasicDiskRoutinesTest, RecordThatDoesNotReachAFullDeviceFails) {
    folder.Write(u"Other.txt"_s, "kept");
    Link(u"/dev/full"_s, u"Vehicles.txt"_s);
    disk.OpenRandom(u"/Vehicles.txt"_s, 3);
    ExpectFailure(FailureKind::DiskFull, u"Writing record 2 of Vehicles.txt failed: "_s,
                  [this] { disk.WriteRecord(disk.DiskFile, 2, "xyz", 3); });
}

TEST_F(BasicDiskRoutinesTest, CopyOntoAFullDeviceFails) {
    folder.Write(u"Settings.txt"_s, "8");
    folder.MakeFolder(u"Backup"_s);
    Link(u"/dev/full"_s, u"Backup/Settings.txt"_s);
    ExpectFailure(FailureKind::DiskFull, u"Writing Backup/Settings.txt failed: "_s,
                  [this] { disk.CopyDataFile(u"/Settings.txt"_s, u"/Backup/Settings.txt"_s); });
}

TEST_F(BasicDiskRoutinesTest, TextThatFindsTheDiskFullFailsAndLeavesOtherFiles) {
    folder.Write(u"Other.txt"_s, "kept");
    disk.OpenForOutput(u"/Settings.txt"_s);
    WriteLine(QString(5000, u'x'));
    RuntimeFailure failure(FailureKind::Subscript, {});
    {
        const FullDisk full(1000);
        failure = FailureOf([this] { disk.CloseAllFiles(); });
    }
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence().left(28), u"Writing Settings.txt failed:"_s);
    EXPECT_EQ(folder.Read(u"Other.txt"_s), "kept");
}

TEST_F(BasicDiskRoutinesTest, RecordThatFindsTheDiskFullFailsAndLeavesTheRecordsBefore) {
    folder.Write(u"Vehicles.txt"_s, QByteArray(1370, 'v'));
    disk.OpenRandom(u"/Vehicles.txt"_s, 137);
    const QByteArray record(137, 'n');
    RuntimeFailure failure(FailureKind::Subscript, {});
    {
        const FullDisk full(1400);
        failure = FailureOf([&] { disk.WriteRecord(disk.DiskFile, 11, record.constData(), 137); });
    }
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence().left(39), u"Writing record 11 of Vehicles.txt faile"_s);
    EXPECT_EQ(folder.Read(u"Vehicles.txt"_s).left(1370), QByteArray(1370, 'v'));
}

TEST_F(BasicDiskRoutinesTest, FailureOfOneFileStillWritesAndClosesTheOthers) {
    Link(u"/dev/full"_s, u"A.txt"_s);
    disk.OpenForOutput(u"/A.txt"_s);
    WriteLine(u"lost"_s);
    disk.OpenForOutput(u"/B.txt"_s);
    WriteLine(u"kept"_s);
    EXPECT_EQ(FailureOf([this] { disk.CloseAllFiles(); }).Sentence().left(21),
              u"Writing A.txt failed:"_s);
    EXPECT_EQ(folder.Read(u"B.txt"_s), "kept\r\n");
    EXPECT_EQ(FailureOf([this] { WriteLine(u"more"_s); }).Kind(), FailureKind::FileNotOpen);
}

TEST_F(BasicDiskRoutinesTest, OpenFileIsWrittenWhenTheRoutinesEnd) {
    {
        BasicDiskRoutines other(folder.Path());
        other.OpenForOutput(u"/A.txt"_s);
        TextWriter(other).Plain(u"kept"_s);
    }
    EXPECT_EQ(folder.Read(u"A.txt"_s), "kept\r\n");
}

TEST_F(BasicDiskRoutinesTest, CheckOpensClosesAllFilesAndFailsForAMissingOne) {
    folder.Write(u"a.txt"_s, "a\r\n");
    disk.OpenForInput(u"/a.txt"_s);
    disk.CheckOpens(u"/a.txt"_s);
    EXPECT_EQ(FailureOf([&] { disk.InputOn(disk.DiskFile); }).Kind(), FailureKind::FileNotOpen);
    const RuntimeFailure failure = FailureOf([&] { disk.CheckOpens(u"/gone.txt"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"gone.txt"_s));
}
