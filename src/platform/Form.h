#pragma once

#include <QGridLayout>

class QLabel;

/// Rows of a label and a field: labels end at their fields, fields begin at one edge and are as
/// wide as what they hold.
class Form : public QGridLayout {
    Q_OBJECT

public:
    Form();

    /// The label names the field to screen readers, unless it has a name of its own.
    void AddRow(QLabel* label, QWidget* field);
    void AddRow(const QString& caption, QWidget* field);
    /// For a field of several controls, of which one is what the label names.
    void AddRow(const QString& caption, QWidget* field, QWidget* named);
    /// A line that stands with the labels and has no field.
    void AddText(const QString& text);
    /// Gives forms that stand one over the other one edge, in heights of the font.
    void SetLabelWidth(double heights);
};

/// A label in the quiet colour, for what explains.
QLabel* SoftLabel(const QString& text);

/// Controls on one line, as one field of a form.
QWidget* InOneLine(std::initializer_list<QWidget*> controls);
