#include "platform/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::SetTip(const QString& newTip) {
    tip = newTip;
    setToolTip(tip);
}

QSize ElidedLabel::minimumSizeHint() const {
    constexpr int fewestCharacters = 6;
    const int shortest = fontMetrics().averageCharWidth() * fewestCharacters;
    return {qMin(shortest, QLabel::minimumSizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    setToolTip(shown == text() ? tip : text());
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}
