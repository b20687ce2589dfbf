#pragma once

#include "customers/CustomerRecords.h"

#include <QString>

/// What a field shows: nothing from the first NUL character on, since a record that was never
/// written reads as zero bytes, and no blanks at the ends. The bytes are those of the record.
QByteArrayView ShownBytes(QByteArrayView field);
template <size_t Width>
QByteArrayView ShownBytes(const FixedText<Width>& field) {
    return ShownBytes(QByteArrayView(field.bytes.data(), qsizetype(Width)));
}
template <size_t Width>
QString ShownText(const FixedText<Width>& field) {
    return FromCodePage(ShownBytes(field));
}

/// The word in AcctType and on the screen; anything else stands for an individual.
QString BusinessType();
QString IndividualType();

bool IsBusiness(const CustomerRecord& customer);

/// Joins a person's name: each part that is not blank, the title and the first name with a blank
/// behind them, the middle initial with a point and a blank.
QString FullPersonalName(const QString& title, const QString& first, const QString& middle,
                         const QString& last);
QString FullPersonalName(const CustomerRecord& customer);

/// The name for lists: of a business its name, of a person "Last, First".
QString ShortCustomerName(const CustomerRecord& customer);
