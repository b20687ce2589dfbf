#pragma once

#include <QString>

#include <array>

/// The texts of the slip panel, each under the name of the control that shows it. The amounts of a
/// delivery have no other home: every calculation reads these texts and writes them back.
struct SlipCaptions {
    /// Sold-to name, street, apartment, city, state, zip.
    std::array<QString, 6> lblCustomer;
    /// The same of the deliver-to address.
    std::array<QString, 6> txtShipto;
    QString lblAcctNo;
    QString lblTime;
    /// Currency texts; a tax can also be a plain number.
    QString lblTotal;
    QString lblCharge;
    QString lblTax1;
    QString lblTax2;
    QString lblGrandtotal;
    QString lblTaxHeading1;
    QString lblTaxHeading2;
    /// The next invoice number.
    QString lblInvoice;
    /// Whether the taxes are shown.
    bool fraTax = false;
};
