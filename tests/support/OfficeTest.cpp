#include "support/OfficeTest.h"

#include "platform/RegionalFormats.h"
#include "startup/DataFolderLayout.h"

#include <QLocale>

OfficeTest::OfficeTest() : OfficeTest(NoSerialPort::Only()) {}

OfficeTest::OfficeTest(SerialPort& serialPort)
    : office(folder.Path(), {clock, user, printer, browser, pictures, serialPort}) {
    UseLocale("en_US");
    CreateFolders(office.disk, clock);
    office.setup.LoadAll();
}

void OfficeTest::UseLocale(const char* name) const {
    const QLocale locale(QString::fromLatin1(name));
    RegionalFormats::SetCurrent({locale, locale});
}

QByteArray SlipHeaderBytes(const QByteArray& number, const QByteArray& date,
                           const QByteArray& recurring, const QByteArray& frequency) {
    return number + "\r\n" + date + "\r\n08:30am\r\n" + recurring + "\r\n" + frequency +
           "\r\nFlatbed Truck\r\n4471\r\nCorner Grocery\r\nPrepared 3/9/2026\r\nBack door\r\n"
           "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
           "\"62704\"\r\n\"Corner Grocery, store 2\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
           "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n";
}
