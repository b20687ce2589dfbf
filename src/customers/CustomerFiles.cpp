#include "customers/CustomerFiles.h"

#include "customers/CustomerNames.h"
#include "platform/RegionalFormats.h"

using namespace Qt::StringLiterals;

namespace {

const QString customerFile = u"/CustomerData.txt"_s;
const QString contractFile = u"/ContractInfo.txt"_s;
const QString cycleFile = u"/CycleInfo.txt"_s;

template <size_t Width>
QByteArrayView WithoutBlanks(const FixedText<Width>& field) {
    QByteArrayView text(field.bytes.data(), qsizetype(Width));
    while (text.startsWith(' '))
        text = text.sliced(1);
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

} // namespace

CustomerFiles::CustomerFiles(BasicDiskRoutines& diskRoutines, const Clock& machineClock,
                             Operator& person)
    : disk(diskRoutines), clock(machineClock), user(person) {}

bool CustomerFiles::AreThere() {
    return disk.FileExists(customerFile);
}

qint16 CustomerFiles::Count() {
    return disk.RecordCount(customerFile, customerRecordLength);
}

void CustomerFiles::ReadCustomer(qint32 number) {
    Customer = {};
    if (!AreThere())
        return;
    OpenCustomerFile(disk);
    Customer = ReadRecord<CustomerRecord>(disk, disk.DiskFile, number);
    disk.CloseAllFiles();
}

void CustomerFiles::ReadContractAndCycle(qint32 number) {
    Contract = {};
    Cycle = {};
    if (disk.FileExists(contractFile)) {
        OpenContractInfo(disk);
        Contract = ReadRecord<ContractRecord>(disk, disk.DiskFile2, number);
        disk.CloseAllFiles();
    }
    if (disk.FileExists(cycleFile)) {
        OpenCycleInfo(disk);
        Cycle = ReadRecord<CycleRecord>(disk, disk.DiskFile2, number);
        disk.CloseAllFiles();
    }
}

QStringList CustomerFiles::AccountNumbers() {
    const CustomerRecord inHand = Customer;
    QStringList numbers;
    VisitAll(Count(), [&](qint32) { numbers += ShownText(Customer.AcctNo); });
    Customer = inHand;
    return numbers;
}

void CustomerFiles::WriteCustomer(qint32 number) {
    OpenCustomerFile(disk);
    WriteRecord(disk, disk.DiskFile, number, Customer);
    disk.CloseAllFiles();
}

void CustomerFiles::WriteContractAndCycle(qint32 number) {
    OpenContractInfo(disk);
    WriteRecord(disk, disk.DiskFile2, number, Contract);
    disk.CloseAllFiles();
    OpenCycleInfo(disk);
    WriteRecord(disk, disk.DiskFile2, number, Cycle);
    disk.CloseAllFiles();
}

void CustomerFiles::ResetContractDefaults() {
    const QDate today = clock.Today();
    const Currency nothing = ToCurrency(ZeroCurrencyText());
    Contract.At0 = u"None Selected"_s;
    Contract.At35 = u"None"_s;
    Contract.At50 = nothing;
    Contract.At58 = RegionalFormats::Current().WeekdayName(today);
    Contract.At67 = u"None Selected"_s;
    Contract.At107 = today;
    Contract.At115 = today;
    Contract.At123 = 0;
    Contract.At125 = -1;
    Contract.At127 = 0;
    Contract.At129 = u"None"_s;
    Contract.At149 = QString();
    Contract.At169 = QString();
    // At199 is left alone: it goes on from the record that was in the buffer before.
    Contract.At234 = QString();
    Contract.At259 = QString();
    Contract.At279 = QString();
    Contract.At281 = QString();
    Contract.At291 = QString();
    Contract.At304 = QString();
    Contract.At334 = 0;
    Contract.At336 = QString();

    Cycle.At0 = u"None"_s;
    Cycle.At35 = nothing;
    Cycle.At43 = 0;
    Cycle.At45 = QString();
    Cycle.At65 = 0;
    Cycle.At67 = -1;
}

void CustomerFiles::BlankCustomer() {
    // Reserved belongs to no one and keeps what a read has left there.
    const LittleInt16 reserved = Customer.Reserved;
    const LittleInt16 state = Customer.AcctState;
    std::fill_n(reinterpret_cast<char*>(&Customer), sizeof(Customer), ' ');
    // Shows the account in the list, as the name "', ", while it is being entered.
    Customer.LastName = u"'"_s;
    Customer.AcctState = state;
    Customer.Reserved = reserved;
}

bool CustomerFiles::IsDuplicate(const QString& accountNumber, qint32 count, qint32 except) {
    // A character that no record can hold makes the number like no other, though it would be
    // written as a question mark.
    if (!AreThere() || !IsInCodePage(accountNumber))
        return false;
    const QByteArray wanted = ToCodePage(accountNumber);
    bool isFound = false;
    OpenCustomerFile(disk);
    for (qint32 number = 1; number <= count && !isFound; ++number) {
        if (number == except)
            continue;
        Customer = ReadRecord<CustomerRecord>(disk, disk.DiskFile, number);
        isFound = WithoutBlanks(Customer.AcctNo) == wanted;
    }
    disk.CloseAllFiles();
    return isFound;
}

bool CustomerFiles::MayRebuild(const QString& message) {
    if (AreThere())
        return true;
    user.MsgBox(u"Your Customer Information File is missing\n"_s + message, Buttons::Ok,
                u"No Customer File Found"_s);
    return false;
}

void CustomerFiles::BuildContractInfo(qint32 recordCount) {
    if (!MayRebuild(u"The Contract File can not be rebuilt"_s))
        return;
    disk.DeleteWithBackup(contractFile);
    OpenContractInfo(disk);
    for (qint32 number = 1; number <= recordCount; ++number)
        WriteRecord(disk, disk.DiskFile2, number, Contract);
    disk.CloseAllFiles();
}

void CustomerFiles::BuildCycleInfo(qint32 recordCount) {
    if (!MayRebuild(u"The Cycle File can not be rebuilt"_s))
        return;
    disk.DeleteWithBackup(cycleFile);
    OpenCycleInfo(disk);
    for (qint32 number = 1; number <= recordCount; ++number)
        WriteRecord(disk, disk.DiskFile2, number, Cycle);
    disk.CloseAllFiles();
}

void CustomerFiles::RebuildMissing(qint32 recordCount) {
    if (recordCount < 1)
        return;
    if (!disk.FileExists(contractFile))
        BuildContractInfo(recordCount);
    if (!disk.FileExists(cycleFile))
        BuildCycleInfo(recordCount);
}

/// Every record of the file counts, also one that the screen does not know of at the moment.
void CustomerFiles::CopyOthers(const QString& name, qint16 recordLength, const QString& temporary,
                               qint32 leftOut) {
    disk.KillFile(temporary);
    const qint16 count = disk.RecordCount(name, recordLength);
    disk.OpenRandom(temporary, recordLength);
    disk.OpenRandomSecond(name, recordLength);
    QByteArray record(recordLength, '\0');
    qint32 copied = 0;
    for (qint32 number = 1; number <= count; ++number) {
        if (number == leftOut)
            continue;
        disk.ReadRecord(disk.DiskFile2, number, record.data(), size_t(recordLength));
        disk.WriteRecord(disk.DiskFile, ++copied, record.constData(), size_t(recordLength));
    }
    disk.CloseAllFiles();
}

void CustomerFiles::ReplaceSibling(const QString& name, qint16 recordLength, qint32 leftOut) {
    const QString temporary = u"\\Temp.txt"_s;
    CopyOthers(name, recordLength, temporary, leftOut);
    disk.DeleteWithBackup(name);
    disk.RenameDataFile(temporary, name);
}

void CustomerFiles::Delete(qint32 number) {
    const QString temporary = u"\\CUSTOMER.TMP"_s;
    CopyOthers(customerFile, customerRecordLength, temporary, number);
    // Its copy in Backup stays as it is, unlike those of the other two.
    disk.KillFile(customerFile);
    disk.RenameDataFile(temporary, customerFile);
    ReplaceSibling(cycleFile, cycleRecordLength, number);
    ReplaceSibling(contractFile, contractRecordLength, number);
}
