#pragma once

#include "products/ItemBytes.h"
#include "support/OfficeTest.h"
#include "support/SampleVehicles.h"

/// The 70 bytes of a line as they lie in a template.
inline QByteArray TemplateLine(const QByteArray& units, const QByteArray& description,
                               const QByteArray& price) {
    return units.leftJustified(10, ' ') + description.leftJustified(45, ' ') +
           price.leftJustified(10, ' ') + "True ";
}

/// A business that can write delivery slips: two vehicles, three products, an item without a price,
/// and Corner Grocery as the customer that was handed over.
inline void PutDeliveryBusiness(const TestFolder& folder, Office& office) {
    using namespace Qt::StringLiterals;
    folder.Write(u"Vehicles.txt"_s, VehicleBytes("Flatbed Truck", "200", trueBytes, "lbs", "N/A") +
                                        VehicleBytes("Tanker", "", falseBytes, "", "Heating Oil"));
    folder.Write(u"NXInventoriedItems.txt"_s,
                 ItemBytes{.description = "Gravel, fine", .sellPrice = 50'000}.Record() +
                     ItemBytes{.description = "Heating Oil", .sellPrice = 125'000}.Record() +
                     ItemBytes{.description = "Sand", .sellPrice = 23'500}.Record());
    folder.Write(u"NonInventoriedItems.txt"_s,
                 NonItemBytes{.description = "Empty crates"}.Record());
    office.setup.LoadAll();
    office.fleet.Load();
    office.deliveryTimes.BuildTimeLists();
    office.deliveryCustomer = {u"4471"_s,  u"Corner Grocery"_s, u"12 Mill Road"_s,
                               QString(),  u"Springfield"_s,    u"IL"_s,
                               u"62704"_s, u"555-0147"_s};
}
