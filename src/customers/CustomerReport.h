#pragma once

#include "customers/CustomerFiles.h"
#include "schedule/PrinterRoutines.h"

#include <vector>

/// The customer list on paper: name, address and telephone of every customer, in the order of the
/// file, three to a row.
class CustomerReport {
public:
    CustomerReport(BasicDiskRoutines& diskRoutines, CustomerFiles& customerFiles,
                   PrinterRoutines& printerRoutines, const LiveSettings& liveSettings,
                   const Clock& machineClock, Operator& person);

    /// Asks first, and then for the printer. The operator can stop a long report while it is being
    /// drawn; nothing of it is printed then.
    void cmdPrintCustomers_Click();

private:
    void Print();
    void PrintAll();
    void PrintHeader();
    void PrintBlock(float x, const QStringList& block);
    void EndRow();
    QStringList BlockOf(const CustomerRecord& customer) const;
    double LineHeight();

    BasicDiskRoutines& disk;
    CustomerFiles& files;
    PrinterRoutines& printer;
    PrinterSurface& surface;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
    /// Upper edge of the row in hand, in twips.
    double rowTop = 0;
};
