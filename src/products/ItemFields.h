#pragma once

#include "platform/Operator.h"

#include <QString>

/// How the entry fields of the products screen treat what is typed into them. An amount's field
/// holds a price or cost, a count's a number of units.

/// Brings an amount to its currency text when its field is left. What is no number is emptied with
/// a beep, and the answer is false: the field is to take the focus back. An empty field may be
/// left as it is: a cost left blank is saved as zero.
bool LeaveAmount(QString& text, Operator& user);

/// A zero goes when a key goes down, so that what is typed takes its place.
bool TypingReplacesCount(const QString& text);
/// An empty count becomes "0" when its field is left.
void LeaveCount(QString& text);

/// Where the focus goes after a routine of the products screen.
enum class ItemFocus { Stays, Description, Category, SellPrice, DiscountPrice, Grid };
