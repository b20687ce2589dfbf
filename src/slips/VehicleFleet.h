#pragma once

#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "products/SalesItemLists.h"
#include "store/BasicDiskRoutines.h"
#include "store/FixedRecord.h"

#include <QStringListModel>

#include <cstddef>
#include <vector>

/// Record of Vehicles.txt.
struct VehicleRecord {
    /// Also line 6 of a slip.
    FixedText<60> Name;
    /// Digits as text; blank for a vehicle that carries one product.
    FixedText<30> Capacity;
    /// True when the vehicle may carry several products.
    LittleBoolean Mixed;
    FixedText<20> Units;
    /// "N/A" when Mixed.
    FixedText<25> Product;
};

static_assert(sizeof(VehicleRecord) == 137);
static_assert(offsetof(VehicleRecord, Capacity) == 60);
static_assert(offsetof(VehicleRecord, Mixed) == 90);
static_assert(offsetof(VehicleRecord, Units) == 92);
static_assert(offsetof(VehicleRecord, Product) == 112);

/// The characters that a vehicle's field has room for in its record.
constexpr int longestVehicleName = sizeof(VehicleRecord::Name);
constexpr int longestCapacity = sizeof(VehicleRecord::Capacity);
constexpr int longestCapacityUnit = sizeof(VehicleRecord::Units);

/// What stands in the input fields of the vehicle screen.
struct VehicleFields {
    QString txtDescription;
    QString txtCapacity;
    QString cboCapacity;
    bool ckMixed = false;
    /// The place of the product in the list of product names; below 0 when none is selected.
    int cboProducts = -1;
};

/// The vehicles and the units their capacity is measured in. The grid is the working copy: saving a
/// vehicle changes the grid, and the file is written when the operator goes back to the menu or
/// deletes a vehicle.
class VehicleFleet {
public:
    VehicleFleet(BasicDiskRoutines& diskRoutines, const SalesItemLists& itemLists,
                 Operator& person);

    /// The load work of the vehicle screen: the capacity units, then the vehicles if there are any.
    void Load();
    /// Reads Vehicles.txt into the grid and the names, and closes the input fields; a vehicle that
    /// is being added stays in them. More than 255 vehicles are an overflow.
    void LoadVehicles();
    /// The records of Vehicles.txt, which is created when it is missing. More than 255 are an
    /// overflow.
    std::vector<VehicleRecord> ReadVehicles();

    /// The one list of vehicle names; every screen's vehicle list is a view on it. It is as of the
    /// last LoadVehicles, so the name of the last vehicle stays when that is deleted.
    QStringListModel Names;
    /// Columns: name, capacity, units, the word True or False for Mixed, product.
    GridModel fgItems;
    /// Capacity.txt, or nine common units when there is no such file.
    QStringListModel CapacityUnits;

    VehicleFields fields;
    /// Whether the input fields are enabled.
    bool FieldsAreEnabled = false;
    /// Whether saving adds a vehicle or changes that of the current row.
    bool IsAdding = false;
    /// "Modify Vehicle Specs" and "Delete Vehicle" wait for a vehicle to be picked.
    bool ModifyIsEnabled = false;
    bool DeleteIsEnabled = false;

    /// The readers count vehicles in a byte: with 255 there is no room for another.
    bool HasRoom() const;
    /// Nothing but the blank row that the last vehicle left. The next one added takes it, lest a
    /// blank first row keep the fleet from being written.
    bool IsEmpty() const;

    /// When there is no Vehicles.txt, the first thing to do is to add a vehicle. True when it is
    /// that.
    bool StartFirstVehicle();
    void AddNew();
    /// A vehicle of the grid is picked: it can be deleted, and its fields are opened.
    void PickVehicle();
    /// Opens the fields with what the current row holds.
    void ModifyVehicle();
    void ClearFields();
    void CancelEntry();

    enum class Saving { NoDescription, NoProduct, Saved };
    /// Takes the fields to the grid, not to the file. Tells the operator what is missing.
    Saving SaveVehicle();
    /// Deletes the current row's vehicle when the operator says so, and writes the file.
    void DeleteVehicle();
    /// Writes Vehicles.txt and Capacity.txt anew from the grid and the list of units. More than 255
    /// vehicles are an overflow, before anything is deleted.
    void WriteFleet();

private:
    void LoadCapacityUnits();
    void AddCapacityUnits(const QStringList& units);
    VehicleRecord RecordOfRow(int row) const;
    void WriteCapacityUnits();

    BasicDiskRoutines& disk;
    const SalesItemLists& items;
    Operator& user;
};
