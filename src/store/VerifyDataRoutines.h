#pragma once

#include "platform/Operator.h"

#include <QString>

/// Key filters: a screen gives the character of a key press, and the filter gives back the
/// character to use, 0 when the key is to be swallowed.

constexpr ushort backspaceKey = 8;

/// Digits, one point, Backspace; no zero as the first character. Refusals beep, but for the second
/// point, which is swallowed in silence.
ushort FilterNumericKey(ushort key, const QString& fieldText, Operator& user);

/// As FilterNumericKey, but a second point beeps as well.
ushort FilterAmountKey(ushort key, const QString& fieldText, Operator& user);

/// Digits, points and Backspace; the rest is swallowed in silence.
ushort FilterDigitKey(ushort key);

/// Keeps , & . \\ * / and ? out of what becomes part of a file name, with a beep and a message. A
/// field that holds a plain number so far lets every character pass.
ushort FilterNoSpecial(ushort key, const QString& fieldText, Operator& user);

/// Keeps the double quote, which would end a text of a slip file, out of addresses, with a beep and
/// a message.
ushort FilterAddressKey(ushort key, Operator& user);

/// Brings a field that holds a number to its currency text. Any other text is emptied with a beep,
/// and the answer is false: the field is to take the focus.
bool FormatCurrencyField(QString& fieldText, Operator& user);

/// Tells that a date picked from a calendar can't be used.
void DateIsInvalid(Operator& user);
