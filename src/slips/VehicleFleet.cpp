#include "slips/VehicleFleet.h"

#include "platform/RuntimeFailure.h"
#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString vehiclesFile = u"/Vehicles.txt"_s;
const QString capacityFile = u"/Capacity.txt"_s;

constexpr int mostVehicles = 255;

enum FleetColumn { NameColumn, CapacityColumn, UnitsColumn, MixedColumn, ProductColumn };

} // namespace

VehicleFleet::VehicleFleet(BasicDiskRoutines& diskRoutines)
    : fgItems({u"Vehicle"_s, u"Capacity"_s, u"Units"_s, u"Mixed"_s, u"Product"_s}),
      disk(diskRoutines) {}

void VehicleFleet::Load() {
    LoadCapacityUnits();
    if (disk.FileExists(vehiclesFile))
        LoadVehicles();
}

void VehicleFleet::LoadCapacityUnits() {
    if (!disk.FileExists(capacityFile)) {
        CapacityUnits.setStringList({u"lbs"_s, u"Gallons"_s, u"Cubic Yards"_s, u"Linear Feet"_s,
                                     u"Cubic Meters"_s, u"Units"_s, u"Cartons"_s, u"Square Ft"_s,
                                     u"Pallets"_s});
        return;
    }
    QStringList units;
    disk.OpenForInput(capacityFile);
    TextReader reader(disk);
    while (!reader.AtEnd())
        units += reader.Text();
    disk.CloseAllFiles();
    CapacityUnits.setStringList(units);
}

void VehicleFleet::LoadVehicles() {
    disk.OpenRandom(vehiclesFile, sizeof(VehicleRecord));
    const qint16 count = disk.RecordCount(vehiclesFile, sizeof(VehicleRecord));
    if (count > mostVehicles)
        throw RuntimeFailure(FailureKind::Overflow,
                             u"Reading Vehicles.txt failed: it holds more than 255 vehicles."_s);
    QStringList names;
    QStringList units = CapacityUnits.stringList();
    const GridModel::Refill refill(fgItems);
    fgItems.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
        const auto vehicle = ReadRecord<VehicleRecord>(disk, disk.DiskFile, row);
        const QString unit = vehicle.Units.Trimmed();
        names += vehicle.Name.Trimmed();
        fgItems.SetText(row, NameColumn, vehicle.Name.Trimmed());
        fgItems.SetText(row, CapacityColumn, vehicle.Capacity.Trimmed());
        fgItems.SetText(row, UnitsColumn, unit);
        fgItems.SetText(row, MixedColumn, BooleanWord(vehicle.Mixed.Value()));
        fgItems.SetText(row, ProductColumn, vehicle.Product.Trimmed());
        if (!units.contains(unit))
            units += unit;
    }
    disk.CloseAllFiles();
    Names.setStringList(names);
    CapacityUnits.setStringList(units);
    if (count > 0)
        fgItems.SetCurrent(1, NameColumn);
}
