#include "schedule/InvoiceTotals.h"

#include "slips/DeliverySlipRoutines.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

double TaxOn(Currency subTotal, const QString& rate) {
    return subTotal.ToDouble() * LeadingNumber(rate) / 100.0;
}

void CalculatePlainTaxes(Currency subTotal, const LiveSettings& settings, const TaxOptions& options,
                         SlipCaptions& captions) {
    const bool both = options.IsOn(TaxOption::Both);
    const bool first = both || options.IsOn(TaxOption::PrimaryOnly);
    const bool second = both || options.IsOn(TaxOption::SecondaryOnly);
    captions.lblTax1 = CurrencyText(first ? TaxOn(subTotal, settings.cboRate1) : 0.0);
    captions.lblTax2 = CurrencyText(second ? TaxOn(subTotal, settings.cboRate2) : 0.0);
}

void CalculateGraduatedTaxes(Currency subTotal, const LiveSettings& settings,
                             SlipCaptions& captions) {
    const Currency limit = ToCurrency(settings.txtGradulated[0], u"the primary tax limit"_s);
    if (subTotal > limit) {
        // The whole amount is taxed at the secondary rate, in the first tax's place; the second
        // is the flat surcharge.
        captions.lblTax1 = CurrencyText(TaxOn(subTotal, settings.cboRate2));
        captions.lblTax2 = CurrencyText(settings.txtGradulated[1], u"the tax surcharge"_s);
        return;
    }
    captions.lblTax1 = NumberText(TaxOn(subTotal, settings.cboRate1));
    if (settings.ckApply2ndTax == 1)
        captions.lblTax2 = NumberText(TaxOn(subTotal, settings.cboRate2));
}

} // namespace

void SetTaxOptions(const LiveSettings& settings, TaxOptions& options) {
    const bool first = settings.ckApply1stTax == 1;
    const bool second = settings.ckApply2ndTax == 1;
    const bool both = first && second;
    options[TaxOption::Both] = {both, both};
    if (both)
        return;
    options[TaxOption::PrimaryOnly] = {first, first};
    options[TaxOption::SecondaryOnly] = {second, second};
}

bool IsTaxApplied(const LiveSettings& settings) {
    return settings.ckApply1stTax == 1 || settings.ckApply2ndTax == 1;
}

void CalculateTaxes(Currency subTotal, const LiveSettings& settings, const TaxOptions& options,
                    SlipCaptions& captions) {
    captions.lblTaxHeading1 = settings.cboTaxHeading1;
    captions.lblTaxHeading2 = settings.cboTaxHeading2;
    if (settings.ckApplyGraduated == 0)
        CalculatePlainTaxes(subTotal, settings, options, captions);
    else if (settings.ckApplyGraduated == 1)
        CalculateGraduatedTaxes(subTotal, settings, captions);
    captions.lblGrandtotal =
        CurrencyText(subTotal + ToCurrency(captions.lblTax1, u"the first tax"_s) +
                     ToCurrency(captions.lblTax2, u"the second tax"_s));
}

void UpdateGrandTotal(SlipCaptions& captions) {
    captions.lblGrandtotal = CurrencyText(ToCurrency(captions.lblTotal, u"the sub-total"_s) +
                                          ToCurrency(captions.lblCharge, u"the charge"_s) +
                                          ToCurrency(captions.lblTax1, u"the first tax"_s) +
                                          ToCurrency(captions.lblTax2, u"the second tax"_s));
}

QString ItemTotal(const QString& sellPrice, const QString& quantity) {
    return CurrencyText(ToDouble(sellPrice, u"the sell price"_s) *
                        ToDouble(quantity, u"the quantity"_s));
}

void RecalcSlipTotals(const GridModel& fgItems, const LiveSettings& settings,
                      const TaxOptions& options, SlipCaptions& captions) {
    Currency sum;
    for (int row = 1; row <= fgItems.DataRows(); ++row)
        sum += ToCurrency(fgItems.Text(row, int(SlipItemColumn::LineTotal)), u"an item total"_s);
    captions.lblTotal = CurrencyText(sum);
    if (!IsTaxApplied(settings))
        return;
    captions.fraTax = true;
    CalculateTaxes(ToCurrency(captions.lblTotal, u"the sub-total"_s), settings, options, captions);
}
