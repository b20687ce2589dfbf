#include "startup/Office.h"

Office::Office(const QString& dataFolder, const Machine& theMachine)
    : machine(theMachine), disk(dataFolder), settingsStore(disk, settings, theMachine.pictures),
      modem(disk, settings), setup(settingsStore, modem, settings, machine.user),
      logo(settingsStore, settings, machine.pictures, commonDialog, machine.user),
      printLook(settings, commonDialog, machine.user),
      calendar(disk, machine.user, settings.WorkWeek),
      slips(disk, calendar, settings, machine.clock, machine.user), templates(disk, machine.user),
      items(disk), fleet(disk, items, machine.user), inventoriedItems(disk, machine.user),
      nonInventoriedItems(disk),
      board(disk, slips, calendar, settings, machine.clock, machine.user),
      addedItems(board, items, slips, settings, machine.user), printer(machine.printer, settings),
      schedulePrinter(board, printer, settings, machine.user),
      customerFiles(disk, machine.clock, machine.user),
      customers(disk, customerFiles, settings, machine.user, deliveryCustomer),
      deliveryItems(deliveryForm, items, fleet, templates, settings, machine.user),
      deliveryParts{slips,         deliveryItems,    templates, items,        fleet,
                    deliveryTimes, deliveryCustomer, calendar,  settingsStore},
      delivery(deliveryForm, deliveryParts, settings, machine.clock, machine.user) {}
