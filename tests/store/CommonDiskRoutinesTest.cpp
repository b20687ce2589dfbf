#include "store/CommonDiskRoutines.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

class CommonDiskRoutinesTest : public testing::Test {
protected:
    TestFolder folder;
    BasicDiskRoutines disk{folder.Path()};
};

} // namespace

TEST_F(CommonDiskRoutinesTest, CustomerFileOpensOnDiskFileWithRecordsOf328Bytes) {
    OpenCustomerFile(disk);
    EXPECT_EQ(disk.DiskFile, 1);
    EXPECT_EQ(disk.DiskFile2, 0);
    disk.WriteRecord(disk.DiskFile, 3, "x", 1);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Everything(), QStringList{u"CustomerData.txt"_s});
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), QByteArray(656, '\0') + "x");
}

TEST_F(CommonDiskRoutinesTest, ContractFileOpensBesideItWithRecordsOf386Bytes) {
    OpenCustomerFile(disk);
    OpenContractInfo(disk);
    EXPECT_EQ(disk.DiskFile, 1);
    EXPECT_EQ(disk.DiskFile2, 2);
    disk.WriteRecord(disk.DiskFile2, 3, "x", 1);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"ContractInfo.txt"_s), QByteArray(772, '\0') + "x");
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), "");
}

TEST_F(CommonDiskRoutinesTest, CycleFileOpensBesideItWithRecordsOf69Bytes) {
    OpenCustomerFile(disk);
    OpenCycleInfo(disk);
    EXPECT_EQ(disk.DiskFile, 1);
    EXPECT_EQ(disk.DiskFile2, 2);
    disk.WriteRecord(disk.DiskFile2, 3, "x", 1);
    disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(u"CycleInfo.txt"_s), QByteArray(138, '\0') + "x");
}
