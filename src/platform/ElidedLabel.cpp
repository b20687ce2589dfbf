#include "platform/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    constexpr int fewestCharacters = 6;
    const int shortest = fontMetrics().averageCharWidth() * fewestCharacters;
    return {qMin(shortest, QLabel::minimumSizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    setToolTip(shown == text() ? QString() : text());
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}
