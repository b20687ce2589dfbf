#include "platform/Form.h"

#include "platform/Theme.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr double rowGap = 0.5;
constexpr double labelGap = 0.6;
constexpr int controlGap = 8;

} // namespace

Form::Form() {
    setContentsMargins({});
    setVerticalSpacing(Em(rowGap));
    setHorizontalSpacing(Em(labelGap));
    // What is left of the width is nobody's.
    setColumnStretch(2, 1);
}

void Form::AddRow(QLabel* label, QWidget* field) {
    const int row = rowCount();
    label->setBuddy(field);
    addWidget(label, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    addWidget(field, row, 1, Qt::AlignLeft | Qt::AlignVCenter);
}

void Form::AddRow(const QString& caption, QWidget* field) {
    AddRow(new QLabel(caption), field);
}

void Form::AddRow(const QString& caption, QWidget* field, QWidget* named) {
    auto* label = new QLabel(caption);
    AddRow(label, field);
    label->setBuddy(named);
}

void Form::AddText(const QString& text) {
    addWidget(new QLabel(text), rowCount(), 0, Qt::AlignRight | Qt::AlignVCenter);
}

void Form::SetLabelWidth(double heights) {
    setColumnMinimumWidth(0, Em(heights));
}

QLabel* SoftLabel(const QString& text) {
    auto* label = new QLabel(text);
    label->setProperty("soft", true);
    return label;
}

QWidget* InOneLine(std::initializer_list<QWidget*> controls) {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins({});
    row->setSpacing(controlGap);
    for (QWidget* control : controls)
        row->addWidget(control);
    return line;
}
