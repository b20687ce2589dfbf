#pragma once

#include "platform/Operator.h"

#include <QString>

/// How the entry fields of the products screen treat what is typed into them. An amount's field
/// holds a price or cost, a count's a number of units.

/// A zero goes when typing starts, so that what is typed takes its place.
bool TypingReplacesAmount(const QString& text);
bool TypingReplacesCount(const QString& text);

/// Brings an amount to its currency text when its field is left. What is no number is emptied with
/// a beep, and the answer is false: the field is to take the focus back. An empty field may be
/// left as it is, since an empty cost is saved as zero.
bool LeaveAmount(QString& text, Operator& user);
/// An empty count becomes "0".
void LeaveCount(QString& text);

/// Where the focus goes after a routine of the products screen.
enum class ItemFocus { Stays, Description, Category, SellPrice, DiscountPrice, Grid };
