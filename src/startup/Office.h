#pragma once

#include "customers/AuxiliaryData.h"
#include "customers/AuxiliaryWindow.h"
#include "customers/CustomerFiles.h"
#include "customers/CustomerReport.h"
#include "customers/CustomerSearch.h"
#include "customers/CustomerSelection.h"
#include "platform/Clock.h"
#include "platform/NoSerialPort.h"
#include "platform/Operator.h"
#include "platform/Picture.h"
#include "platform/PrinterSurface.h"
#include "platform/WebBrowser.h"
#include "products/InventoriedItems.h"
#include "products/InventoryPrinter.h"
#include "products/NonInventoriedItems.h"
#include "products/SalesItemLists.h"
#include "products/TallyLocations.h"
#include "reports/InvoiceReport.h"
#include "reports/ItemSalesReport.h"
#include "reports/ReportPrinter.h"
#include "schedule/AccountLedger.h"
#include "schedule/AddedItems.h"
#include "schedule/BoardPrinting.h"
#include "schedule/DeliverySchedulePrinter.h"
#include "schedule/InvoicePosting.h"
#include "schedule/InvoiceRun.h"
#include "schedule/NXPrint.h"
#include "schedule/PrinterRoutines.h"
#include "schedule/ScheduleBoard.h"
#include "schedule/WeeklySchedule.h"
#include "schedule/WeeklySchedulePrinter.h"
#include "setup/CommonDialog.h"
#include "setup/CompanyLogo.h"
#include "setup/LiveSettings.h"
#include "setup/PrintLook.h"
#include "setup/SettingsStore.h"
#include "setup/SetupRoutines.h"
#include "slips/DeliveryCreation.h"
#include "slips/DeliveryCustomer.h"
#include "slips/DeliveryForm.h"
#include "slips/DeliveryItems.h"
#include "slips/DeliverySlipRoutines.h"
#include "slips/DeliveryTemplates.h"
#include "slips/VehicleFleet.h"
#include "store/BasicDiskRoutines.h"
#include "store/Calendar.h"
#include "store/DeliveryTimes.h"
#include "telephone/Dialer.h"
#include "telephone/Modem.h"

/// What the machine gives the rules: the date, the person, paper, browser, pictures and serial
/// port.
struct Machine {
    const Clock& clock;
    Operator& user;
    PrinterSurface& printer;
    WebBrowser& browser;
    const PictureFiles& pictures;
    SerialPort& serialPort = NoSerialPort::Only();
};

/// All rule modules of one run, wired together on one data folder. Nothing here knows a screen.
class Office {
public:
    Office(const QString& dataFolder, const Machine& theMachine);

    Machine machine;
    BasicDiskRoutines disk;
    LiveSettings settings;
    CommonDialog commonDialog;
    SettingsStore settingsStore;
    Modem modem;
    Dialer dialer;
    SetupRoutines setup;
    CompanyLogo logo;
    PrintLook printLook;
    Calendar calendar;
    DeliveryTimes deliveryTimes;
    DeliverySlipRoutines slips;
    DeliveryTemplates templates;
    SalesItemLists items;
    VehicleFleet fleet;
    InventoriedItems inventoriedItems;
    NonInventoriedItems nonInventoriedItems;
    ScheduleBoard board;
    AddedItems addedItems;
    PrinterRoutines printer;
    DeliverySchedulePrinter schedulePrinter;
    NXPrint invoicePrinter;
    InvoicePosting invoicePosting;
    AccountLedger accountLedger;
    InvoiceRun invoiceRun;
    BoardPrinting boardPrinting;
    WeeklySchedule weekly;
    WeeklySchedulePrinter weeklyPrinter;
    TallyLocations tallyLocations;
    InventoryPrinter inventoryPrinter;
    CustomerFiles customerFiles;
    DeliveryCustomer deliveryCustomer;
    AuxiliaryData auxiliaryData;
    CustomerSelection customers;
    AuxiliaryWindow auxiliaryWindow;
    CustomerSearch customerSearch;
    CustomerReport customerReport;
    ReportPrinter reportPrinter;
    ItemSalesReport itemSales;
    InvoiceReport invoiceReport;
    DeliveryForm deliveryForm;
    DeliveryItems deliveryItems;
    DeliveryParts deliveryParts;
    DeliveryCreation delivery;
    /// The menu routine clicked last; what comes after selecting a customer depends on it.
    qint16 MenuChoice = 0;
};
