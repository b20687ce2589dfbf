#pragma once

#include "customers/CustomerRecords.h"
#include "platform/Clock.h"
#include "platform/Operator.h"

#include <QStringList>

#include <algorithm>

/// The three parallel customer files, CustomerData.txt, ContractInfo.txt and CycleInfo.txt, and one
/// record buffer for each. Nothing of a file stays open between two operations.
class CustomerFiles {
public:
    CustomerFiles(BasicDiskRoutines& diskRoutines, const Clock& machineClock, Operator& person);

    /// Overwritten by whoever reads a customer, the search for a duplicate number too.
    CustomerRecord Customer{};
    /// All zero bytes at the start of the day; what they hold is written with the customer.
    ContractRecord Contract{};
    CycleRecord Cycle{};

    /// Whether there is a customer file, if need be out of Backup.
    bool AreThere();
    /// Customers in the file; 0 without one.
    qint16 Count();

    // A record beyond the end of its file, or of a missing file, reads as zero bytes; a read makes
    // no file.
    void ReadCustomer(qint32 number);
    void ReadContractAndCycle(qint32 number);
    void WriteCustomer(qint32 number);
    void WriteContractAndCycle(qint32 number);

    /// Brings the contract and cycle buffers to what a new account starts with.
    void ResetContractDefaults();
    /// Blanks the texts of the customer buffer for a new account.
    void BlankCustomer();

    /// Reads the customers 1 to `count` into the buffer, one after the other, and calls
    /// `visit(number)` for each. Those beyond the end of the file are accounts still to be entered,
    /// and blank ones.
    template <typename Visit>
    void VisitAll(qint32 count, Visit&& visit) {
        const qint32 onFile = std::min(count, qint32(Count()));
        if (onFile > 0)
            OpenCustomerFile(disk);
        VisitRecords<CustomerRecord>(disk, disk.DiskFile, onFile,
                                     [&](qint32 number, const CustomerRecord& record) {
                                         Customer = record;
                                         visit(number);
                                     });
        for (qint32 number = onFile + 1; number <= count; ++number) {
            BlankCustomer();
            visit(number);
        }
        disk.CloseAllFiles();
    }

    /// The account numbers of all customers, in the order of the file. Leaves the buffer as it is.
    QStringList AccountNumbers();

    /// Whether another of the first `count` customers than `except` has that account number, to
    /// the letter.
    bool IsDuplicate(const QString& accountNumber, qint32 count, qint32 except);

    /// Makes the file anew with as many records of what the buffer holds. Without a customer file
    /// the operator is told, and nothing changes.
    void BuildContractInfo(qint32 recordCount);
    void BuildCycleInfo(qint32 recordCount);
    /// Builds the ones of the two that are missing beside a customer file with records.
    void RebuildMissing(qint32 recordCount);

    /// Rewrites all three files without the record.
    void Delete(qint32 number);

private:
    bool MayRebuild(const QString& message);
    void CopyOthers(const QString& name, qint16 recordLength, const QString& temporary,
                    qint32 leftOut);
    void ReplaceSibling(const QString& name, qint16 recordLength, qint32 leftOut);

    BasicDiskRoutines& disk;
    const Clock& clock;
    Operator& user;
};
