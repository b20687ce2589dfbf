#pragma once

#include "platform/GridModel.h"
#include "store/BasicDiskRoutines.h"
#include "store/FixedRecord.h"

#include <QStringListModel>

#include <cstddef>

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

/// The vehicles and the units their capacity is measured in.
class VehicleFleet {
public:
    explicit VehicleFleet(BasicDiskRoutines& diskRoutines);

    /// What creating the vehicle screen loads: the capacity units, then the vehicles if there are
    /// any.
    void Load();
    /// Reads Vehicles.txt into the grid and the names. More than 255 vehicles are an overflow.
    void LoadVehicles();

    /// The one list of vehicle names; every screen's vehicle list is a view on it.
    QStringListModel Names;
    /// Columns: name, capacity, units, the word True or False for Mixed, product.
    GridModel fgItems;
    /// Capacity.txt, or nine common units when there is no such file.
    QStringListModel CapacityUnits;

private:
    void LoadCapacityUnits();

    BasicDiskRoutines& disk;
};
