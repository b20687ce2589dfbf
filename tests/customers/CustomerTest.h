#pragma once

#include "customers/SampleCustomers.h"
#include "support/OfficeTest.h"

/// The rules of the customer screen on customers that a test writes.
class CustomerTest : public OfficeTest {
protected:
    /// Writes the customers with siblings that can be told apart, and loads the screen.
    void LoadWith(const QList<SampleCustomer>& records) {
        QByteArray bytes;
        for (const SampleCustomer& record : records)
            bytes += record.Bytes();
        LoadBytes(bytes, int(records.size()));
    }
    void LoadBytes(const QByteArray& bytes, int count) {
        folder.Write(QStringLiteral("CustomerData.txt"), bytes);
        folder.Write(QStringLiteral("ContractInfo.txt"), Siblings(count, 386));
        folder.Write(QStringLiteral("CycleInfo.txt"), Siblings(count, 69));
        customers.Load();
        office.customerSearch.Load();
    }
    /// A business, a person, a business.
    void LoadThree() {
        LoadWith({SampleCustomer{}, Person("Lee", "Ann", "1002", "Mr/Mrs"),
                  SampleCustomer{.account = "77", .businessName = "Anvil Works"}});
    }

    QByteArray CustomerOnDisk(int number) const {
        return folder.Read(QStringLiteral("CustomerData.txt")).mid((number - 1) * 328, 328);
    }
    QByteArray ContractOnDisk(int number) const {
        return folder.Read(QStringLiteral("ContractInfo.txt")).mid((number - 1) * 386, 386);
    }
    QString& Text(CustomerText place) { return customers.Fields[place]; }

    CustomerSelection& customers = office.customers;
};
