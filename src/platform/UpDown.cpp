#include "platform/UpDown.h"

#include <QHBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 4;

QToolButton* MakeButton(const QString& name, Qt::ArrowType arrow, const QString& tip) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

UpDown::UpDown(const QString& name, const QString& downTip, const QString& upTip, QWidget* parent)
    : QWidget(parent) {
    setObjectName(name);
    auto* down = MakeButton(name + u"(down)"_s, Qt::LeftArrow, downTip);
    auto* up = MakeButton(name + u"(up)"_s, Qt::RightArrow, upTip);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(gap);
    row->addWidget(down);
    row->addWidget(up);
    connect(down, &QToolButton::clicked, this, &UpDown::DownClick);
    connect(up, &QToolButton::clicked, this, &UpDown::UpClick);
}
