#include "schedule/DeliverySchedulePrinter.h"

#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

// Inches.
constexpr float leftColumn = 1.0F;
constexpr float shipToColumn = 4.0F;
constexpr float chargeHeading = 5.75F;
constexpr float productColumn = 2.5F;
constexpr float unitCostHeading = 5.0F;
constexpr float extensionHeading = 7.0F;

// Twips: the right ends of texts, and of the rules.
constexpr double ruleStart = 1440;
constexpr double ruleEnd = 11520;
constexpr double chargeEnd = 9720;
constexpr double unitsEnd = 2016;
constexpr double unitCostEnd = 7920;
constexpr double itemTotalEnd = 11232;

constexpr int titleSize = 15;
constexpr int bodySize = 10;

/// Text heights that must be left on a page for it to be gone on with.
constexpr int linesNeeded = 3;

QString CityLine(const std::array<QString, 6>& address) {
    return address[3] + u", "_s + address[4] + u' ' + address[5];
}

} // namespace

DeliverySchedulePrinter::DeliverySchedulePrinter(ScheduleBoard& scheduleBoard,
                                                 PrinterRoutines& printerRoutines,
                                                 const LiveSettings& liveSettings, Operator& person)
    : board(scheduleBoard), printer(printerRoutines), surface(printerRoutines.Surface()),
      settings(liveSettings), user(person) {}

void DeliverySchedulePrinter::PrintDeliverySchedule() {
    const BusyPointer busy(user);
    surface.JobName =
        u"Delivery schedule %1 %2"_s.arg(board.DTPicker1.toString(Qt::ISODate), board.lstVehicles);
    PrintScheduleHeading(u"SCHEDULED DELIVERIES"_s);
    PrintScheduleEntries();
    surface.EndJob();
}

void DeliverySchedulePrinter::PrintRule() {
    surface.Line(ruleStart, surface.CurrentY, ruleEnd, surface.CurrentY,
                 printer.CurrentPrintColor());
    surface.PrintLine();
}

void DeliverySchedulePrinter::PrintScheduleHeading(const QString& title) {
    const auto& business = settings.BusinessData;
    // The misspelt name is the one this page has always asked for; every machine answers it with
    // its own plain font.
    surface.FontName = u"Ariel"_s;
    surface.FontSize = titleSize;
    surface.PrintLine();
    surface.PrintCentred(title);
    surface.PrintEndingAt(ruleEnd, ShortDateText(board.DTPicker1));
    surface.PrintLine();
    surface.PrintEndingAt(ruleEnd, board.lstVehicles);
    printer.PrintLineAt(leftColumn, business[0]);
    surface.FontSize = bodySize;
    printer.PrintLineAt(leftColumn, business[1] + u"   "_s + business[2]);
    printer.PrintLineAt(leftColumn, business[3] + u", "_s + business[4] + u". "_s + business[5]);
    printer.PrintLineAt(leftColumn, u"Tel No "_s + business[6]);
    surface.PrintLine();
    printer.PrintAt(leftColumn, u"SOLD TO"_s);
    printer.PrintAt(shipToColumn, u"SHIP TO"_s);
    printer.PrintLineAt(chargeHeading, u"DELIVERY CHARGE"_s);
    PrintRule();
}

void DeliverySchedulePrinter::PrintScheduleEntries() {
    // A name marked once brings up every slip of that customer on the day, marked or not.
    const QStringList customers = board.lstWorkSchedule.stringList();
    for (const QString& customer : customers) {
        for (int row = 1; row <= board.fgSchedule.DataRows(); ++row) {
            if (board.Cell(row, ScheduleColumn::Customer) != customer)
                continue;
            PrintScheduleEntry(board.Cell(row, ScheduleColumn::SlipNo),
                               board.Cell(row, ScheduleColumn::DeliveryCharge));
            NewSchedulePageIfNearBottom();
        }
    }
}

void DeliverySchedulePrinter::PrintScheduleEntry(const QString& slipNo, const QString& chargeText) {
    board.LoadSlipPanel(slipNo);
    surface.FontBold = true;
    printer.PrintLineAt(leftColumn, board.fraSlip.lblTime);
    printer.PrintLineAt(leftColumn, board.fraSlip.lblAcctNo);
    PrintAddresses(chargeText);
    NewSchedulePageIfNearBottom();
    PrintScheduleItemHeadings();
    for (int row = 1; row <= board.fgItems.DataRows(); ++row)
        PrintItemLine(row);
    surface.PrintLine();
    PrintRule();
    NewSchedulePageIfNearBottom();
}

void DeliverySchedulePrinter::PrintAddresses(const QString& chargeText) {
    const auto& soldTo = board.fraSlip.lblCustomer;
    const auto& shipTo = board.fraSlip.txtShipto;
    printer.PrintAt(leftColumn, soldTo[0]);
    printer.PrintAt(shipToColumn, shipTo[0]);
    surface.PrintEndingAt(chargeEnd, chargeText);
    surface.PrintLine();
    printer.PrintAt(leftColumn, soldTo[1]);
    printer.PrintLineAt(shipToColumn, shipTo[1]);
    if (!soldTo[2].isEmpty() || !shipTo[2].isEmpty()) {
        printer.PrintAt(leftColumn, soldTo[2]);
        printer.PrintLineAt(shipToColumn, shipTo[2]);
    }
    printer.PrintAt(leftColumn, CityLine(soldTo));
    printer.PrintLineAt(shipToColumn, CityLine(shipTo));
}

void DeliverySchedulePrinter::PrintScheduleItemHeadings() {
    surface.PrintLine();
    surface.FontBold = true;
    printer.PrintAt(leftColumn, u"UNITS"_s);
    printer.PrintAt(productColumn, u"PRODUCT"_s);
    printer.PrintAt(unitCostHeading, u"UNIT COST"_s);
    printer.PrintLineAt(extensionHeading, u"EXTENSION"_s);
    surface.FontBold = false;
}

void DeliverySchedulePrinter::PrintItemLine(int row) {
    // A long list of goods goes on on the next page rather than off the paper.
    if (surface.CurrentY + surface.TextHeight(u"ABCD"_s) > surface.PageHeight())
        NewSchedulePage();
    const auto cell = [&](SlipItemColumn column) { return board.fgItems.Text(row, int(column)); };
    surface.PrintEndingAt(unitsEnd, cell(SlipItemColumn::Units));
    printer.PrintAt(productColumn, cell(SlipItemColumn::Description));
    surface.PrintEndingAt(unitCostEnd, cell(SlipItemColumn::UnitPrice));
    surface.PrintEndingAt(itemTotalEnd, cell(SlipItemColumn::LineTotal));
    surface.PrintLine();
}

void DeliverySchedulePrinter::NewSchedulePage() {
    surface.NewPage();
    PrintScheduleHeading(u"SCHEDULED DELIVERIES"_s);
}

void DeliverySchedulePrinter::NewSchedulePageIfNearBottom() {
    if (surface.CurrentY + linesNeeded * surface.TextHeight(u"ABCD"_s) >= surface.PageHeight())
        NewSchedulePage();
}
