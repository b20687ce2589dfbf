#pragma once

#include <QByteArray>

/// A text field of a record as it lies in the file.
inline QByteArray Field(const QByteArray& text, int width) {
    return text.leftJustified(width, ' ', true);
}

/// 9 March 2026, the day on which the tests stand: 46,090 days since 30 December 1899.
inline const QByteArray todayBytes("\x00\x00\x00\x00\x40\x81\xe6\x40", 8);

inline QByteArray SoldItemBytes(const QByteArray& description, const QByteArray& invoiceNo,
                                const QByteArray& units) {
    return Field(description, 60) + todayBytes + Field(invoiceNo, 20) + units;
}

inline QByteArray TaxBytes(const QByteArray& heading, const QByteArray& date,
                           const QByteArray& reference, const QByteArray& amount) {
    return Field(heading, 20) + Field(date, 15) + Field(reference, 30) + Field(amount, 10);
}

inline QByteArray LedgerBytes(const QByteArray& name, const QByteArray& account,
                              const QByteArray& date, const QByteArray& description,
                              const QByteArray& amount) {
    return Field(name, 45) + Field(account, 25) + Field(date, 15) + Field(description, 60) +
           Field(amount, 10);
}
