#include "support/SampleSlips.h"

using namespace Qt::StringLiterals;

void WriteSlip(Office& office, const SampleSlip& slip) {
    SlipHeader header;
    header[SlipLine::SlipNumber] = slip.number;
    header[SlipLine::Date] = slip.date;
    header[SlipLine::Time] = slip.time;
    header[SlipLine::Recurring] = slip.recurring;
    header[SlipLine::Frequency] = slip.frequency;
    header[SlipLine::Vehicle] = slip.vehicle;
    header[SlipLine::Account] = slip.account;
    header[SlipLine::CustomerName] = slip.customer;
    header[SlipLine::Reference] = u"Prepared 3/2/2026"_s;
    header[SlipLine::Attention] = u"Back door"_s;
    header.soldTo = {slip.customer, u"1 High St"_s, {}, u"Springfield"_s, u"IL"_s, u"62704"_s};
    header.deliverTo = {slip.customer, u"2 Dock Rd"_s, u"Unit 4"_s,
                        u"Riverton"_s, u"IL"_s,        u"62561"_s};
    office.slips.WriteSlipHeader(header);

    GridModel items({u"Units"_s, u"Description"_s, u"Price"_s, u"Total"_s});
    const QString cells[2][4] = {{u"3"_s, u"Milk"_s, u"$4.10"_s, u"$12.30"_s},
                                 {u"1"_s, u"Butter"_s, u"$2.35"_s, u"$2.35"_s}};
    items.SetRows(3);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 4; ++column)
            items.SetText(row + 1, column, cells[row][column]);
    }
    office.slips.WriteSlipItems(items, slip.number, 2, u"$14.65"_s);
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
