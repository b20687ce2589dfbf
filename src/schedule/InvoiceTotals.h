#pragma once

#include "platform/GridModel.h"
#include "schedule/SlipCaptions.h"
#include "setup/LiveSettings.h"
#include "store/Currency.h"

#include <array>

/// Which taxes are computed: the primary only, the secondary only, or both.
enum class TaxOption { PrimaryOnly, SecondaryOnly, Both };

/// The three option buttons, by TaxOption.
struct TaxOptions {
    struct Button {
        bool isOn = false;
        bool isEnabled = true;
    };
    std::array<Button, 3> buttons;

    Button& operator[](TaxOption option) { return buttons[size_t(option)]; }
    bool IsOn(TaxOption option) const { return buttons[size_t(option)].isOn; }
};

/// Sets the options from the two apply settings. With both taxes applied the two single options
/// are left as they stand.
void SetTaxOptions(const LiveSettings& settings, TaxOptions& options);

/// Whether the settings apply any tax to a slip.
bool IsTaxApplied(const LiveSettings& settings);

/// Sets both headings, both taxes and the grand total, which leaves out the delivery charge here.
/// At or below the limit of the graduated scheme the taxes are unrounded plain numbers, and a
/// second tax that isn't applied keeps what it last held.
void CalculateTaxes(Currency subTotal, const LiveSettings& settings, const TaxOptions& options,
                    SlipCaptions& captions);

/// The grand total: sub-total, charge and both taxes, as their captions read.
void UpdateGrandTotal(SlipCaptions& captions);

/// The total of an item that is added to a slip. The sell price is currency text.
QString ItemTotal(const QString& sellPrice, const QString& quantity);

/// Sums the item totals of fgItems into the sub-total, and computes the taxes when one is applied.
/// The grand total leaves out the charge then; without a tax it stays as it was.
void RecalcSlipTotals(const GridModel& fgItems, const LiveSettings& settings,
                      const TaxOptions& options, SlipCaptions& captions);
