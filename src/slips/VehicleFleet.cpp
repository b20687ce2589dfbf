#include "slips/VehicleFleet.h"

#include "platform/RuntimeFailure.h"
#include "store/TextLines.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QString vehiclesFile = u"/Vehicles.txt"_s;
const QString capacityFile = u"/Capacity.txt"_s;

constexpr int mostVehicles = 255;

enum FleetColumn { NameColumn, CapacityColumn, UnitsColumn, MixedColumn, ProductColumn };

void CheckSize(int vehicles, const QString& operation) {
    if (vehicles > mostVehicles)
        throw RuntimeFailure(FailureKind::Overflow,
                             operation +
                                 u" Vehicles.txt failed: it holds more than 255 vehicles."_s);
}

} // namespace

VehicleFleet::VehicleFleet(BasicDiskRoutines& diskRoutines, const SalesItemLists& itemLists,
                           Operator& person)
    : fgItems({u"Vehicle"_s, u"Capacity"_s, u"Units"_s, u"Mixed"_s, u"Product"_s}),
      disk(diskRoutines), items(itemLists), user(person) {}

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

std::vector<VehicleRecord> VehicleFleet::ReadVehicles() {
    disk.OpenRandom(vehiclesFile, sizeof(VehicleRecord));
    const qint16 count = disk.RecordCount(vehiclesFile, sizeof(VehicleRecord));
    CheckSize(count, u"Reading"_s);
    std::vector<VehicleRecord> vehicles;
    vehicles.reserve(size_t(count));
    for (int record = 1; record <= count; ++record)
        vehicles.push_back(ReadRecord<VehicleRecord>(disk, disk.DiskFile, record));
    disk.CloseAllFiles();
    return vehicles;
}

void VehicleFleet::LoadVehicles() {
    ModifyIsEnabled = false;
    const std::vector<VehicleRecord> vehicles = ReadVehicles();
    const int count = int(vehicles.size());
    QStringList names;
    QStringList units;
    const GridModel::Refill refill(fgItems);
    fgItems.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
        const VehicleRecord& vehicle = vehicles[size_t(row) - 1];
        names += vehicle.Name.Trimmed();
        // A file that is cut leaves NUL characters in its last record, which are part of no unit.
        units += TrimBlanks(vehicle.Units.Trimmed().remove(QChar(u'\0')));
        fgItems.SetText(row, NameColumn, names.last());
        fgItems.SetText(row, CapacityColumn, vehicle.Capacity.Trimmed());
        fgItems.SetText(row, UnitsColumn, vehicle.Units.Trimmed());
        fgItems.SetText(row, MixedColumn, BooleanWord(vehicle.Mixed.Value()));
        fgItems.SetText(row, ProductColumn, vehicle.Product.Trimmed());
    }
    AddCapacityUnits(units);
    Names.setStringList(names);
    if (count > 0)
        fgItems.SetCurrent(1, NameColumn);
    FieldsAreEnabled = false;
    // The first row is the current one now: what was being changed of another vehicle must not be
    // saved over it. A new vehicle that was not saved yet can still be.
    if (!IsAdding)
        ClearFields();
}

/// Those that the list lacks to the letter; also the blank unit of a vehicle with one product.
void VehicleFleet::AddCapacityUnits(const QStringList& units) {
    QStringList list = CapacityUnits.stringList();
    const qsizetype before = list.size();
    QSet<QString> known(list.begin(), list.end());
    for (const QString& unit : units) {
        if (known.contains(unit))
            continue;
        known.insert(unit);
        list += unit;
    }
    if (list.size() > before)
        CapacityUnits.setStringList(list);
}

bool VehicleFleet::IsEmpty() const {
    return fgItems.DataRows() == 1 && fgItems.Text(1, NameColumn).isEmpty();
}

bool VehicleFleet::HasRoom() const {
    return fgItems.DataRows() < mostVehicles;
}

bool VehicleFleet::StartFirstVehicle() {
    if (disk.FileExists(vehiclesFile))
        return false;
    AddNew();
    return true;
}

void VehicleFleet::AddNew() {
    IsAdding = true;
    ClearFields();
    FieldsAreEnabled = true;
}

void VehicleFleet::PickVehicle() {
    ModifyIsEnabled = true;
    DeleteIsEnabled = true;
    ModifyVehicle();
}

void VehicleFleet::ModifyVehicle() {
    const int row = fgItems.CurrentRow();
    IsAdding = false;
    FieldsAreEnabled = true;
    fields.txtDescription = fgItems.Text(row, NameColumn);
    fields.txtCapacity = fgItems.Text(row, CapacityColumn);
    fields.cboCapacity = fgItems.Text(row, UnitsColumn);
    fields.ckMixed = fgItems.Text(row, MixedColumn) == BooleanWord(true);
    // A product that the list doesn't have, or no longer, has to be selected anew: the one of the
    // vehicle picked before must not pass for this one's.
    fields.cboProducts =
        int(items.ProductNames.stringList().indexOf(fgItems.Text(row, ProductColumn)));
}

void VehicleFleet::ClearFields() {
    fields = {};
}

void VehicleFleet::CancelEntry() {
    ClearFields();
    FieldsAreEnabled = false;
}

VehicleFleet::Saving VehicleFleet::SaveVehicle() {
    // A name of blanks comes back empty from the file, and an empty first name would keep the whole
    // fleet from being written.
    if (TrimBlanks(fields.txtDescription).isEmpty()) {
        user.MsgBox(u"Enter a description of the Vehicle"_s);
        return Saving::NoDescription;
    }
    QString product = u"N/A"_s;
    if (!fields.ckMixed) {
        if (fields.cboProducts < 0) {
            user.MsgBox(u"Select the product that loads to this Vehicle"_s);
            return Saving::NoProduct;
        }
        fields.txtCapacity.clear();
        fields.cboCapacity.clear();
        product = items.ProductNames.stringList().at(fields.cboProducts);
    }
    if (IsAdding && !IsEmpty())
        fgItems.SetRows(fgItems.Rows() + 1);
    if (IsAdding)
        fgItems.SetCurrent(fgItems.DataRows(), NameColumn);
    const int row = fgItems.CurrentRow();
    fgItems.SetText(row, NameColumn, fields.txtDescription);
    fgItems.SetText(row, CapacityColumn, fields.txtCapacity);
    fgItems.SetText(row, UnitsColumn, fields.cboCapacity);
    fgItems.SetText(row, MixedColumn, BooleanWord(fields.ckMixed));
    fgItems.SetText(row, ProductColumn, product);
    CancelEntry();
    return Saving::Saved;
}

void VehicleFleet::DeleteVehicle() {
    // The title speaks of a sales item, and is meant so.
    if (user.MsgBox(u"This will DELETE the Selected Vehicle"_s, Buttons::YesNo,
                    u"Delete Sales Item"_s) != Answer::Yes)
        return;
    if (fgItems.DataRows() == 1) {
        disk.DeleteWithBackup(vehiclesFile);
        // A blank row stays in the place of the last vehicle.
        fgItems.ClearGrid();
        fgItems.SetCurrent(1, NameColumn);
    } else {
        fgItems.RemoveRow(fgItems.CurrentRow());
    }
    WriteFleet();
    DeleteIsEnabled = false;
}

VehicleRecord VehicleFleet::RecordOfRow(int row) const {
    VehicleRecord vehicle{};
    vehicle.Name = fgItems.Text(row, NameColumn);
    vehicle.Capacity = fgItems.Text(row, CapacityColumn);
    vehicle.Mixed = fgItems.Text(row, MixedColumn) == BooleanWord(true);
    vehicle.Units = fgItems.Text(row, UnitsColumn);
    vehicle.Product = fgItems.Text(row, ProductColumn);
    return vehicle;
}

void VehicleFleet::WriteFleet() {
    CheckSize(fgItems.DataRows(), u"Writing"_s);
    disk.DeleteWithBackup(vehiclesFile);
    const int count = fgItems.DataRows();
    // A blank first row stands for an empty fleet, whatever comes below it.
    if (count > 0 && !fgItems.Text(1, NameColumn).isEmpty()) {
        disk.OpenRandom(vehiclesFile, sizeof(VehicleRecord));
        for (int row = 1; row <= count; ++row)
            WriteRecord(disk, disk.DiskFile, row, RecordOfRow(row));
        disk.CloseAllFiles();
    }
    // Reading back adds the units typed anew to the list, which is written behind it.
    if (disk.FileExists(vehiclesFile))
        LoadVehicles();
    WriteCapacityUnits();
}

void VehicleFleet::WriteCapacityUnits() {
    disk.DeleteWithBackup(capacityFile);
    disk.OpenForOutput(capacityFile);
    TextWriter writer(disk);
    for (const QString& unit : CapacityUnits.stringList())
        writer.Quoted(unit);
    disk.CloseAllFiles();
}
