#include "schedule/InvoiceNumber.h"

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
        number = ToInt32(QString::number(clock.Today().year()) + u"0001"_s);
    SaveInvoiceNumber(number);
    return number;
}

void InvoiceNumber::SaveInvoiceNumber(qint32 number) {
    disk.DeleteWithBackup(invoiceNumberFile);
    disk.OpenForOutput(invoiceNumberFile);
    TextWriter(disk).Record(RecordLine().Number(number));
    disk.CloseAllFiles();
}
