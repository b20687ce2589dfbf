#pragma once

#include "platform/Operator.h"

#include <QString>

/// Key filters: a screen gives the character of a key press, and the filter gives back the
/// character to use, 0 when the key is to be swallowed.

constexpr ushort backspaceKey = 8;

/// Digits, one point, Backspace; no zero as the first character. Refusals beep, but for the second
/// point, which is swallowed in silence.
ushort FilterNumericKey(ushort key, const QString& fieldText, Operator& user);

/// Digits, points and Backspace; the rest is swallowed in silence.
ushort FilterDigitKey(ushort key);
