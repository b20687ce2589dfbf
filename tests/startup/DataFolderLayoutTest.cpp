#include "startup/DataFolderLayout.h"

#include "support/OfficeTest.h"

#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList foldersOf2026 = {
    u"2026/"_s,
    u"AuxFiles/"_s,
    u"Backup/"_s,
    u"Backup/NXActiveAccounts/"_s,
    u"Backup/tessel-delivery/"_s,
    u"NXActiveAccounts/"_s,
    u"Templates/"_s,
    u"Templates/Deliveries/"_s,
    u"TesselDelivery/"_s,
    u"TesselDelivery/Deliveries/"_s,
    u"TesselDelivery/DeliveryItems/"_s,
};

class DataFolderLayoutTest : public testing::Test {
protected:
    void Create() { CreateFolders(disk, clock); }

    QStringList AccountFolders() const { return folder.Everything().filter(u"AuxFiles/AcctNo"_s); }

    TestFolder folder;
    SetClock clock;
    BasicDiskRoutines disk{folder.Path()};
};

} // namespace

TEST_F(DataFolderLayoutTest, EmptyDataFolderGetsAllFoldersAndNoFile) {
    Create();
    EXPECT_EQ(folder.Everything(), foldersOf2026);
}

TEST_F(DataFolderLayoutTest, SecondStartChangesNothing) {
    Create();
    folder.Write(u"Templates/Deliveries/Monday.txt"_s, "kept");
    const QStringList before = folder.Everything();
    Create();
    EXPECT_EQ(folder.Everything(), before);
    EXPECT_EQ(folder.Read(u"Templates/Deliveries/Monday.txt"_s), "kept");
}

TEST_F(DataFolderLayoutTest, NewYearAddsAFolderAndLeavesTheOldOnes) {
    Create();
    clock.Date = QDate(2027, 1, 1);
    Create();
    EXPECT_EQ(folder.Everything(), QStringList({u"2026/"_s, u"2027/"_s}) + foldersOf2026.mid(1));
}

TEST_F(DataFolderLayoutTest, EachCustomerRecordGetsAFolderByItsPosition) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(328, '9') + QByteArray(656, ' '));
    Create();
    EXPECT_EQ(AccountFolders(), (QStringList{u"AuxFiles/AcctNo 1/"_s, u"AuxFiles/AcctNo 2/"_s,
                                             u"AuxFiles/AcctNo 3/"_s}));
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), QByteArray(328, '9') + QByteArray(656, ' '));
}

TEST_F(DataFolderLayoutTest, CustomerFolderThatIsThereIsKept) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(656, ' '));
    folder.Write(u"AuxFiles/AcctNo 2/Note.txt"_s, "kept");
    Create();
    EXPECT_EQ(folder.Read(u"AuxFiles/AcctNo 2/Note.txt"_s), "kept");
    EXPECT_TRUE(folder.Has(u"AuxFiles/AcctNo 1"_s));
}

TEST_F(DataFolderLayoutTest, PartRecordCountsFromHalfOn) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(328 + 164, ' '));
    Create();
    EXPECT_EQ(AccountFolders(), (QStringList{u"AuxFiles/AcctNo 1/"_s, u"AuxFiles/AcctNo 2/"_s}));
}

TEST_F(DataFolderLayoutTest, EmptyCustomerFileMakesNoAccountFolder) {
    folder.Write(u"CustomerData.txt"_s, "");
    Create();
    EXPECT_EQ(AccountFolders(), QStringList());
    EXPECT_TRUE(folder.Has(u"TesselDelivery/DeliveryItems"_s));
    EXPECT_TRUE(folder.Has(u"Templates/Deliveries"_s));
}

TEST_F(DataFolderLayoutTest, CustomerFileComesBackFromBackupFirst) {
    folder.Write(u"Backup/CustomerData.txt"_s, QByteArray(656, ' '));
    Create();
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), QByteArray(656, ' '));
    EXPECT_EQ(AccountFolders(), (QStringList{u"AuxFiles/AcctNo 1/"_s, u"AuxFiles/AcctNo 2/"_s}));
}

TEST_F(DataFolderLayoutTest, AllFilesAreClosedAfterTheAccountFolders) {
    folder.Write(u"CustomerData.txt"_s, QByteArray(328, ' '));
    Create();
    char record[328] = {};
    EXPECT_EQ(FailureOf([&] { disk.ReadRecord(disk.DiskFile, 1, record, 328); }).Kind(),
              FailureKind::FileNotOpen);
}

TEST_F(DataFolderLayoutTest, FileInTheWayOfAFolderIsNotReported) {
    folder.Write(u"2026"_s, "a file");
    folder.Write(u"NXActiveAccounts"_s, "another");
    Create();
    EXPECT_EQ(folder.Read(u"2026"_s), "a file");
    EXPECT_EQ(folder.Read(u"NXActiveAccounts"_s), "another");
    EXPECT_TRUE(folder.Has(u"Backup/NXActiveAccounts"_s));
    EXPECT_TRUE(folder.Has(u"Templates/Deliveries"_s));
}

TEST_F(DataFolderLayoutTest, FileInTheWayOfAParentFolderFailsAtTheFolderBelow) {
    folder.Write(u"Backup"_s, "a file");
    const RuntimeFailure failure = FailureOf([this] { Create(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PathNotFound);
    const QString start = u"Making the folder Backup/NXActiveAccounts failed: "_s;
    EXPECT_EQ(failure.Sentence().left(start.size()), start);
    // What came before it in the order stands, and nothing behind it.
    EXPECT_EQ(folder.Everything(), (QStringList{u"2026/"_s, u"Backup"_s, u"NXActiveAccounts/"_s}));
}

TEST_F(DataFolderLayoutTest, UnwritableDataFolderFailsAtTheFirstFolder) {
    DropRootRights(folder);
    ASSERT_EQ(::chmod(QFile::encodeName(folder.Path()).constData(), 0500), 0);
    const RuntimeFailure failure = FailureOf([this] { Create(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence().left(31), u"Making the folder 2026 failed: "_s);
    EXPECT_EQ(folder.Everything(), QStringList());
    ASSERT_EQ(::chmod(QFile::encodeName(folder.Path()).constData(), 0700), 0);
}

TEST_F(DataFolderLayoutTest, TooManyCustomersIsAnOverflow) {
    folder.Write(u"CustomerData.txt"_s, "");
    ASSERT_TRUE(QFile::resize(folder.PathOf(u"CustomerData.txt"_s), qint64(32'768) * 328));
    EXPECT_EQ(FailureOf([this] { Create(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(AccountFolders(), QStringList());
    EXPECT_TRUE(folder.Has(u"AuxFiles"_s));
    EXPECT_FALSE(folder.Has(u"TesselDelivery"_s));
}

TEST_F(DataFolderLayoutTest, DeliveryFoldersAreTheFourOfSlipsAndTemplates) {
    folder.MakeFolder(u"Templates"_s);
    CreateDeliveryFolders(disk);
    EXPECT_EQ(folder.Everything(),
              (QStringList{u"Templates/"_s, u"Templates/Deliveries/"_s, u"TesselDelivery/"_s,
                           u"TesselDelivery/Deliveries/"_s, u"TesselDelivery/DeliveryItems/"_s}));
}
