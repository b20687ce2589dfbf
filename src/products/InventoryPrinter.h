#pragma once

#include "platform/Clock.h"
#include "platform/Operator.h"
#include "products/InventoriedItems.h"
#include "products/TallyLocations.h"
#include "schedule/PrinterRoutines.h"
#include "store/BasicDiskRoutines.h"

enum class InventoryKind { Report, TallySheet };

/// Prints the products as they stand in the grid, in its order and with its category filter: as a
/// list of prices and stock, or as a sheet for counting the stock of each location. The file of the
/// items is not read.
class InventoryPrinter {
public:
    InventoryPrinter(BasicDiskRoutines& diskRoutines, const InventoriedItems& inventoriedItems,
                     const TallyLocations& tallyLocations, PrinterRoutines& printerRoutines,
                     const LiveSettings& liveSettings, const Clock& machineClock, Operator& person);

    /// Asks for the printer first. Each location that is not empty becomes a document of its own;
    /// without any nothing is printed.
    void PrintInventory(InventoryKind kind);

private:
    void SetPage(Orientation orientation);
    void PrintReport();
    void PrintTallySheets();
    void PrintTallySheet(const QString& location);
    void PrintPageHeader(InventoryKind kind, const QString& location);
    void PrintReportLine(int row);
    void PrintTallyLine(int row);
    template <typename PrintLine>
    void PrintRows(InventoryKind kind, const QString& location, PrintLine&& printLine);
    bool IsPageFull() const;
    const QString& Cell(int row, ItemColumn column) const;
    QString JobName(InventoryKind kind) const;

    BasicDiskRoutines& disk;
    const InventoriedItems& items;
    const TallyLocations& locations;
    PrinterRoutines& printer;
    PrinterSurface& surface;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
};
