#include "support/SampleSlips.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Lines(const QStringList& lines) {
    return (lines.join(u"\r\n"_s) + u"\r\n"_s).toLatin1();
}

} // namespace

QString HeaderName(const QString& number) {
    return u"TesselDelivery/Deliveries/"_s + number + u".txt"_s;
}

QString ItemName(const QString& number) {
    return u"TesselDelivery/DeliveryItems/"_s + number + u".txt"_s;
}

void WriteSlip(const TestFolder& folder, const SampleSlip& slip) {
    QStringList header = {
        slip.number,  slip.date,    slip.time,     slip.recurring,         slip.frequency,
        slip.vehicle, slip.account, slip.customer, u"Prepared 3/9/2026"_s, u"Back door"_s};
    for (const QString& line : slip.soldTo + slip.shipTo)
        header += u'"' + line + u'"';
    const QStringList items = QStringList{slip.number, slip.itemCount} + slip.itemLines +
                              QStringList{u'"' + slip.total + u'"'};
    folder.Write(HeaderName(slip.number), Lines(header));
    folder.Write(ItemName(slip.number), Lines(items));
}

void WriteVehicles(Office& office, const QStringList& names) {
    office.disk.OpenRandom(u"/Vehicles.txt"_s, sizeof(VehicleRecord));
    for (int i = 0; i < names.size(); ++i) {
        VehicleRecord vehicle{};
        vehicle.Name = names[i];
        vehicle.Capacity = u"2000"_s;
        vehicle.Mixed = true;
        vehicle.Units = u"lbs"_s;
        vehicle.Product = u"N/A"_s;
        WriteRecord(office.disk, office.disk.DiskFile, i + 1, vehicle);
    }
    office.disk.CloseAllFiles();
    office.fleet.Load();
}
