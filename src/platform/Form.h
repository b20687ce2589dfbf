#pragma once

#include <QString>

class QFormLayout;
class QLabel;

/// Rows of a label and a field: labels end at their fields, fields begin at one edge and are as
/// wide as what they hold.
QFormLayout* MakeForm();

/// A label in the quiet colour, for what explains.
QLabel* SoftLabel(const QString& text);
