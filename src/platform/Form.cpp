#include "platform/Form.h"

#include "platform/Theme.h"

#include <QFormLayout>
#include <QLabel>

namespace {

constexpr double rowGap = 0.5;
constexpr double labelGap = 0.6;

} // namespace

QFormLayout* MakeForm() {
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->setVerticalSpacing(Em(rowGap));
    form->setHorizontalSpacing(Em(labelGap));
    return form;
}

QLabel* SoftLabel(const QString& text) {
    auto* label = new QLabel(text);
    label->setProperty("soft", true);
    return label;
}
