#include "schedule/InvoiceNumber.h"

#include "store/Calendar.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString invoiceNumberFile = u"/NXInvoiceNo.txt"_s;

} // namespace

InvoiceNumber::InvoiceNumber(BasicDiskRoutines& diskRoutines, const Clock& machineClock)
    : disk(diskRoutines), clock(machineClock) {}

qint32 InvoiceNumber::LoadInvoiceNumber() {
    qint32 number = 0;
    if (disk.FileExists(invoiceNumberFile)) {
        disk.OpenForInput(invoiceNumberFile);
        number = TextReader(disk).Int32();
        disk.CloseAllFiles();
    }
    if (number == 0)
        number = FirstNumberOfYear(clock.Today());
    SaveInvoiceNumber(number);
    return number;
}

void InvoiceNumber::SaveInvoiceNumber(qint32 number) {
    RewriteFile(disk, invoiceNumberFile, {RecordLine().Number(number)});
}

void InvoiceNumber::AdvanceInvoiceNumber(const QString& shown) {
    const QString where = u"advancing the invoice number"_s;
    SaveInvoiceNumber(ToInt32(ToDouble(shown, where) + 1, where));
}
