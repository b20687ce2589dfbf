#include "startup/Office.h"

Office::Office(const QString& dataFolder, const Machine& theMachine)
    : machine(theMachine), disk(dataFolder), settingsStore(disk, settings),
      calendar(disk, machine.user, settings.WorkWeek),
      slips(disk, calendar, settings, machine.clock, machine.user), fleet(disk), items(disk),
      board(disk, slips, calendar, settings, machine.clock, machine.user),
      printer(machine.printer, settings), schedulePrinter(board, printer, settings, machine.user),
      customerFiles(disk, machine.clock, machine.user),
      customers(disk, customerFiles, settings, machine.user, deliveryCustomer) {}
