#include "schedule/NXPrint.h"

#include "platform/RuntimeFailure.h"
#include "setup/AddressStyle.h"
#include "slips/DeliverySlipRoutines.h"
#include "store/Conversions.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Twips: the ruling.
constexpr double formLeft = 360;
constexpr double formRight = 11880;
constexpr double formTop = 504;
constexpr double headBottom = 5040;
constexpr double bodyTop = 5760;
constexpr double headingsTop = 6480;
constexpr double goodsBottom = 12240;
constexpr double formBottom = 14400;
constexpr double unitsRule = 1800;
constexpr double vehicleRule = 3240;
constexpr double priceRule = 7920;
constexpr double totalRule = 10080;
constexpr double logoTop = 720;
constexpr int ruleWidth = 6;
constexpr int plainWidth = 1;

// Twips: the goods and the totals.
constexpr double unitsEnd = 1224;
constexpr double unitCostCentre = 9216;
constexpr double amountEnd = 11520;
constexpr int descriptionWidth = 4248;
constexpr int nameWidth = 2520;
constexpr int boxHeight = 360;
constexpr double pageLimit = 11880;
constexpr double totalsLimit = pageLimit - 1440;
constexpr double footerTop = 13824;
constexpr double firstBlankRule = 7344;
constexpr double blankRuleStep = 475.2;
constexpr int blankRules = 10;

// Inches.
constexpr float leftColumn = 0.75F;
constexpr float rightColumn = 5.0F;
constexpr float addressTop = 1.95F;
constexpr float vehicleLine = 4.05F;
constexpr float headingsLine = 4.55F;
constexpr float goodsTop = 4.9F;
constexpr float descriptionColumn = 2.3F;
constexpr float totalsColumn = 5.6F;
constexpr float totalsTop = 8.55F;
constexpr float totalsStep = 0.25F;
constexpr float footerColumn = 1.3F;

// Points.
constexpr int titleSize = 26;
constexpr int businessSize = 12;
constexpr int bodySize = 10;
constexpr int detachSize = 6;
constexpr int grandTotalSize = 12;
constexpr int returnSize = 14;

constexpr quint32 black = 0;
constexpr quint32 red = 255;
constexpr quint32 green = 65280;

const QString invoiceTitle = u"INVOICE"_s;

enum TotalsRow { SubTotalRow, FirstTaxRow, SecondTaxRow, ChargeRow, EmptyRow, GrandTotalRow };

float TotalsLine(int row) {
    return totalsTop + float(row) * totalsStep;
}

} // namespace

NXPrint::NXPrint(PrinterRoutines& printerRoutines, const LiveSettings& liveSettings,
                 const CompanyLogo& companyLogo, const Clock& machineClock)
    : printer(printerRoutines), surface(printerRoutines.Surface()), settings(liveSettings),
      logo(companyLogo), clock(machineClock) {}

void NXPrint::PrintInvoice(const Invoice& invoice) {
    const SlipCaptions& slip = invoice.slip;
    surface.JobName = (u"Invoice "_s + invoice.number + u' ' + slip.lblCustomer[0]).simplified();
    PassOver([&] { PrintInvoiceForm(invoiceTitle); });
    PassOver([&] { PrintRemittanceBlock(slip.lblAcctNo, invoice.number, clock.Today()); });
    if (settings.optReturn)
        PassOver([&] { PrintDetachLine(); });
    PassOver([&] { PrintSoldTo(slip.lblCustomer); });
    PassOver([&] { PrintDeliveredTo(slip.txtShipto, invoice.vehicle, invoice.deliveryDate); });
    if (invoice.isPopulated) {
        PassOver([&] { PrintInvoiceLines(invoice); });
        PassOver([&] { PrintInvoiceTotals(slip, {}); });
    } else {
        PassOver([&] { PrintBlankRuling(); });
    }
    // What is printed next has rules as fine as before.
    surface.DrawWidth = plainWidth;
}

void NXPrint::PrintInvoiceForm(const QString& title) {
    printer.SetPrintColor(PrintColor::Border);
    surface.DrawWidth = ruleWidth;
    // Without colour printing as well: the printer makes a grey of it.
    surface.ForeColor = quint32(settings.BorderColor);
    PrintRules();
    printer.SetPrintColor(PrintColor::Text);
    printer.SetPrintFont(titleSize, true, false);
    PrintAt(rightColumn, 0.5F, title);
    logo.PaintOn(surface, logoTop);
    printer.PrintBusinessHeading(leftColumn, 0.5F, businessSize);
}

void NXPrint::PrintRules() {
    const quint32 color = surface.ForeColor;
    const auto across = [&](double left, double y) { surface.Line(left, y, formRight, y, color); };
    const auto down = [&](double x, double top, double bottom) {
        surface.Line(x, top, x, bottom, color);
    };
    surface.Box(formLeft, formTop, formRight, headBottom, color);
    for (const double y : {bodyTop, 6120.0, headingsTop, 6840.0, goodsBottom, 13680.0, formBottom})
        across(formLeft, y);
    for (const double y : {12600.0, 12960.0, 13320.0, 13680.0, 14040.0})
        across(priceRule, y);
    down(formLeft, bodyTop, formBottom);
    down(unitsRule, headingsTop, formBottom);
    down(priceRule, bodyTop, formBottom);
    down(totalRule, headingsTop, formBottom);
    down(formRight, bodyTop, formBottom);
    down(vehicleRule, bodyTop, goodsBottom);
}

void NXPrint::PrintRemittanceBlock(const QString& account, const QString& invoiceNo, QDate date) {
    printer.SetPrintColor(PrintColor::Text);
    printer.SetPrintFont(bodySize, true, false);
    PrintLineAt(rightColumn, 0.9F, u"Date "_s + ShortDateText(date));
    PrintLineAt(rightColumn, 0, u"INVOICE NO: "_s + invoiceNo);
    PrintLineAt(rightColumn, 0, u"Amount Enclosed              _______________"_s);
    PrintLineAt(rightColumn, 0, u"Acct: "_s + account);
    PrintLineAt(rightColumn, 0, u"Page "_s + QString::number(surface.PageNumber()));
    PrintAt(0.9F, vehicleLine, u"Vehicle"_s);
    PrintColumnHeadings();
}

void NXPrint::PrintColumnHeadings() {
    printer.SetPrintFont(bodySize, true, false);
    PrintAt(0.6F, headingsLine, u"QTY"_s);
    PrintAt(3.1F, headingsLine, u"DESCRIPTION"_s);
    PrintAt(6.1F, headingsLine, u"PRICE"_s);
    PrintAt(7.5F, headingsLine, u"TOTAL"_s);
}

void NXPrint::PrintDetachLine() {
    printer.SetPrintFont(detachSize, true, false);
    PrintAt(3.5F, 3.6F, u"Detach Here and Return Top Section"_s);
    printer.SetPrintFont(bodySize, false, false);
}

void NXPrint::PrintSoldTo(const Address& address) {
    PrintAddress(leftColumn, u"SOLD TO:"_s, address, u", "_s);
}

void NXPrint::PrintDeliveredTo(const Address& address, const QString& vehicle, QDate date) {
    const bool isEmpty = std::all_of(address.begin(), address.end(),
                                     [](const QString& field) { return field.isEmpty(); });
    if (isEmpty)
        return;
    // No blank behind the comma, unlike in the sold-to address. It is meant.
    PrintAddress(rightColumn, u"DELIVERED TO:"_s, address, u","_s);
    if (vehicle == u"None"_s)
        return;
    printer.SetPrintColor(PrintColor::Text);
    PrintAt(2.4F, vehicleLine, vehicle);
    const bool isToCome = date > clock.Today();
    PrintAt(6.3F, 4.3F,
            (isToCome ? u"Sheduled for - "_s : u"Delivered On - "_s) + ShortDateText(date));
    surface.ForeColor = black;
}

void NXPrint::PrintAddress(float x, const QString& heading, const Address& address,
                           const QString& behindCity) {
    const auto& [name, street, apartment, city, state, zip] = address;
    printer.SetPrintColor(PrintColor::Text);
    PrintLineAt(x, addressTop, heading);
    printer.PositionAt(x, 0);
    printer.PrintWrapped(surface.CurrentX, surface.CurrentY, nameWidth, boxHeight, name);
    PrintLineAt(x, 0, street);
    if (!apartment.isEmpty())
        PrintLineAt(x, 0, apartment);
    if (IsUsaStyle(settings)) {
        PrintLineAt(x, 0, city + behindCity + state + u' ' + zip);
    } else {
        PrintLineAt(x, 0, city);
        PrintLineAt(x, 0, zip);
    }
    surface.ForeColor = black;
}

void NXPrint::PrintInvoiceLines(const Invoice& invoice) {
    printer.PositionAt(leftColumn, goodsTop);
    for (int row = 1; row <= invoice.fgItems.DataRows(); ++row) {
        const QString& description = invoice.fgItems.Text(row, int(SlipItemColumn::Description));
        NewPageWhenFull(invoice, description);
        PrintInvoiceLine(invoice.fgItems, row);
        NewPageWhenFull(invoice, description);
    }
    // The page with the totals ends its goods well above them.
    if (surface.CurrentY >= totalsLimit)
        NewPage(invoice);
    surface.ForeColor = black;
}

void NXPrint::PrintInvoiceLine(const GridModel& fgItems, int row) {
    const auto cell = [&](SlipItemColumn column) -> const QString& {
        return fgItems.Text(row, int(column));
    };
    const QString& unitCost = cell(SlipItemColumn::UnitPrice);
    printer.SetPrintColor(PrintColor::Text);
    surface.PrintEndingAt(unitsEnd, cell(SlipItemColumn::Units));
    surface.CurrentX = unitCostCentre - surface.TextWidth(unitCost) / 2;
    surface.Print(unitCost);
    surface.PrintEndingAt(amountEnd, cell(SlipItemColumn::LineTotal));
    printer.PositionAt(descriptionColumn, 0);
    printer.PrintWrapped(surface.CurrentX, surface.CurrentY, descriptionWidth, boxHeight,
                         cell(SlipItemColumn::Description));
}

void NXPrint::NewPageWhenFull(const Invoice& invoice, const QString& description) {
    if (surface.CurrentY + surface.TextHeight(description) >= pageLimit)
        NewPage(invoice);
}

void NXPrint::NewPage(const Invoice& invoice) {
    surface.NewPage();
    PrintInvoiceForm(invoiceTitle);
    // The remittance block prints the headings too, on top of these. It is meant.
    PrintColumnHeadings();
    PrintRemittanceBlock(invoice.slip.lblAcctNo, invoice.number, clock.Today());
    PrintSoldTo(invoice.slip.lblCustomer);
    printer.PositionAt(leftColumn, goodsTop);
}

void NXPrint::PrintInvoiceTotals(const SlipCaptions& slip, const QString& footer) {
    PrintTotalLabels();
    printer.SetPrintFont(bodySize, true, false);
    printer.SetPrintColor(PrintColor::Text);
    PrintAmount(SubTotalRow, CurrencyText(slip.lblTotal, u"the sub-total"_s));
    PrintTax(FirstTaxRow, CurrencyText(slip.lblTax1, u"the first tax"_s));
    PrintTax(SecondTaxRow, CurrencyText(slip.lblTax2, u"the second tax"_s));
    PrintAmount(ChargeRow, CurrencyText(slip.lblCharge, u"the charge"_s));
    printer.SetPrintFont(grandTotalSize, true, false);
    if (InColor())
        surface.ForeColor = red;
    PrintAmount(GrandTotalRow, CurrencyText(slip.lblGrandtotal, u"the grand total"_s));
    if (InColor())
        surface.ForeColor = green;
    printer.PositionAt(footerColumn, 0);
    surface.CurrentY = footerTop;
    surface.Print(footer);
    if (settings.optReturn) {
        printer.SetPrintFont(returnSize, true, false);
        printer.SetPrintColor(PrintColor::Text);
        PrintAt(footerColumn, 10.1F, u"from "_s + settings.BusinessData[0]);
        surface.ForeColor = black;
    }
}

/// The headings of the taxes are those of the settings, not those that the slip panel shows.
void NXPrint::PrintTotalLabels() {
    const auto label = [&](TotalsRow row, const QString& text) {
        PrintAt(totalsColumn, TotalsLine(row), text);
    };
    label(SubTotalRow, u"Sub-Total"_s);
    if (settings.ckApply1stTax == 1)
        label(FirstTaxRow, settings.cboTaxHeading1);
    if (settings.ckApply2ndTax == 1)
        label(SecondTaxRow, settings.cboTaxHeading2);
    label(ChargeRow, u"Delivery Charge"_s);
    label(GrandTotalRow, u"Total"_s);
}

void NXPrint::PrintAmount(int row, const QString& amount) {
    printer.PositionAt(0, TotalsLine(row));
    surface.PrintEndingAt(amountEnd, amount);
}

void NXPrint::PrintTax(int row, const QString& amount) {
    if (amount != ZeroCurrencyText())
        PrintAmount(row, amount);
}

void NXPrint::PrintBlankRuling() {
    double y = firstBlankRule;
    for (int rule = 1; rule <= blankRules; ++rule) {
        surface.Line(formLeft, y, formRight, y, surface.ForeColor);
        // Each starts from the one above as rounded to a whole twip.
        y = std::nearbyint(y + blankRuleStep);
    }
}

void NXPrint::PrintAt(float x, float y, const QString& text) {
    printer.PositionAt(x, y);
    surface.Print(text);
}

void NXPrint::PrintLineAt(float x, float y, const QString& text) {
    printer.PositionAt(x, y);
    surface.PrintLine(text);
}
