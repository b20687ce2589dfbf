#pragma once

#include "platform/Clock.h"
#include "store/BasicDiskRoutines.h"

/// The number that the next invoice will bear. NXInvoiceNo.txt holds it as bare digits.
class InvoiceNumber {
public:
    InvoiceNumber(BasicDiskRoutines& diskRoutines, const Clock& machineClock);

    /// Reads the number; a missing file or a 0 starts the current year's series, 20260001 in 2026.
    /// The file is written back in every case.
    qint32 LoadInvoiceNumber();
    void SaveInvoiceNumber(qint32 number);
    /// Saves the number behind the one shown. Fails behind 2,147,483,647, the last.
    void AdvanceInvoiceNumber(const QString& shown);

private:
    BasicDiskRoutines& disk;
    const Clock& clock;
};
