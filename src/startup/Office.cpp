#include "startup/Office.h"

Office::Office(const QString& dataFolder, const Machine& theMachine)
    : machine(theMachine), disk(dataFolder), settingsStore(disk, settings, theMachine.pictures),
      modem(disk, settings), setup(settingsStore, modem, settings, machine.user),
      logo(settingsStore, settings, machine.pictures, commonDialog, machine.user),
      printLook(settings, commonDialog, machine.user),
      calendar(disk, machine.user, settings.WorkWeek),
      slips(disk, calendar, settings, machine.clock, machine.user), items(disk),
      fleet(disk, items, machine.user), inventoriedItems(disk, machine.user),
      nonInventoriedItems(disk),
      board(disk, slips, calendar, settings, machine.clock, machine.user),
      printer(machine.printer, settings), schedulePrinter(board, printer, settings, machine.user),
      invoicePrinter(printer, settings, logo, machine.clock),
      invoicePosting(disk, items.ProductNames, machine.clock), accountLedger(disk, machine.clock),
      invoiceRun(board, invoicePrinter, machine.printer, invoicePosting, accountLedger, slips,
                 machine.clock, machine.user),
      boardPrinting(board, printer, schedulePrinter, invoiceRun, slips, settings, machine.user),
      customerFiles(disk, machine.clock, machine.user),
      customers(disk, customerFiles, settings, machine.user, deliveryCustomer),
      reportPrinter(printer, settings, machine.clock),
      itemSales(disk, items.ProductNames, reportPrinter, settings, machine.clock, machine.user),
      invoiceReport(disk, customerFiles, reportPrinter, settings, machine.clock, machine.user) {}
