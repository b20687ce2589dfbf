#include "startup/DataFolderLayout.h"

#include "customers/CustomerRecords.h"
#include "platform/ProgramTitle.h"

using namespace Qt::StringLiterals;

namespace {

/// One folder a customer, named by the record's position in the file, not by the account number.
void CreateAccountFolders(BasicDiskRoutines& disk) {
    const QString customers = u"/CustomerData.txt"_s;
    if (!disk.FileExists(customers))
        return;
    const qint16 count = disk.RecordCount(customers, customerRecordLength);
    if (count < 1)
        return;
    OpenCustomerFile(disk);
    for (int number = 1; number <= count; ++number) {
        ReadRecord<CustomerRecord>(disk, disk.DiskFile, number);
        disk.MakeFolder(u"/AuxFiles/AcctNo "_s + QString::number(number));
    }
    disk.CloseAllFiles();
}

} // namespace

void CreateFolders(BasicDiskRoutines& disk, const Clock& clock) {
    disk.MakeFolder(u'/' + QString::number(clock.Today().year()));
    disk.MakeFolder(u"/Backup"_s);
    disk.MakeFolder(u"/NXActiveAccounts"_s);
    disk.MakeFolder(u"/Backup/NXActiveAccounts"_s);
    disk.MakeFolder(u"/Backup/"_s + ProgramName());
    disk.MakeFolder(u"/Templates"_s);
    disk.MakeFolder(u"/AuxFiles"_s);
    CreateAccountFolders(disk);
    CreateDeliveryFolders(disk);
}

void CreateDeliveryFolders(BasicDiskRoutines& disk) {
    disk.MakeFolder(u"/TesselDelivery"_s);
    disk.MakeFolder(u"/TesselDelivery/Deliveries"_s);
    disk.MakeFolder(u"/TesselDelivery/DeliveryItems"_s);
    disk.MakeFolder(u"/Templates/Deliveries"_s);
}
