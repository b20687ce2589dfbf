#pragma once

#include "store/Currency.h"

#include <QDate>
#include <QString>

#include <functional>

/// Texts to values and back, by the machine's regional formats (platform/RegionalFormats.h).
///
/// A text that is no such value is a failure of kind TypeMismatch, and a value outside the range
/// of the result one of kind Overflow. `where` goes into the failure's sentence: the file, line or
/// field that the text comes from, for example "line 2 of TesselDelivery/Deliveries/7.txt".
/// Whole numbers are rounded half to even.

qint16 ToInt16(QStringView text, const QString& where = {});
qint32 ToInt32(QStringView text, const QString& where = {});
quint8 ToByte(QStringView text, const QString& where = {});
float ToSingle(QStringView text, const QString& where = {});
double ToDouble(QStringView text, const QString& where = {});
/// Exact to the fourth decimal over the whole currency range.
Currency ToCurrency(QStringView text, const QString& where = {});
QDate ToDate(QStringView text, const QString& where = {});
/// For one date of thousands: `where` is asked only for a text that is no date.
QDate ToDate(QStringView text, const std::function<QString()>& where);

qint16 ToInt16(double number, const QString& where = {});
qint32 ToInt32(double number, const QString& where = {});

bool IsNumeric(QStringView text);
bool IsDate(QStringView text);

/// A text without the blanks at its ends; other white space stays.
QString TrimBlanks(const QString& text);

/// The number that a text begins with: blanks skipped, digits with a point as decimal mark; 0
/// when there is none, also for a sign. So "6.25" is 6.25, "1,5" is 1 and "abc" is 0, in every
/// region.
double LeadingNumber(QStringView text);

/// An amount in the regional currency form, rounded half away from zero to the currency's
/// decimals. A double is rounded as its 15 significant digits read, so 1.005 shows as 1.01.
QString CurrencyText(Currency amount);
QString CurrencyText(double amount);
/// The same of a text that holds a number.
QString CurrencyText(QStringView text, const QString& where = {});

/// What an amount that has not been entered shows: the currency text of 0.
QString ZeroCurrencyText();

QString ShortDateText(QDate date);

/// A number without grouping or trailing zeros, at most 15 significant digits, with the regional
/// decimal mark.
QString NumberText(double number);
/// The same of an amount, with all its digits and never an exponent.
QString NumberText(Currency amount);
