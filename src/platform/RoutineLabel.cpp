#include "platform/RoutineLabel.h"

#include "platform/Theme.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int side = 16;
constexpr int above = 12;
constexpr int gap = 12;
constexpr double corner = 8;
constexpr double tileCorner = 5;
constexpr int lineSpacing = 2;

/// 28 px at the usual font size.
int TileSize() {
    constexpr double heights = 1.75;
    return Em(heights);
}

} // namespace

RoutineLabel::RoutineLabel(const QString& caption, const QString& iconName, QWidget* parent)
    : QAbstractButton(parent), icon(iconName) {
    setText(caption);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void RoutineLabel::SetNote(QLabel* note) {
    noteLabel = note;
    note->setParent(this);
    note->setCursor(Qt::ArrowCursor);
    updateGeometry();
}

QSize RoutineLabel::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    int width = metrics.size(Qt::TextShowMnemonic, text()).width();
    int height = metrics.height();
    if (noteLabel) {
        width = qMax(width, noteLabel->sizeHint().width());
        height += lineSpacing + noteLabel->sizeHint().height();
    }
    return {2 * side + TileSize() + gap + width, 2 * above + qMax(height, TileSize())};
}

QRect RoutineLabel::CaptionRect() const {
    const int left = side + TileSize() + gap;
    QRect area(left, above, width() - left - side, height() - 2 * above);
    if (noteLabel)
        area.setHeight(area.height() - noteLabel->sizeHint().height() - lineSpacing);
    return area;
}

void RoutineLabel::resizeEvent(QResizeEvent* event) {
    QAbstractButton::resizeEvent(event);
    if (noteLabel)
        noteLabel->setGeometry(
            QRect(QPoint(CaptionRect().left(), CaptionRect().bottom() + 1 + lineSpacing),
                  noteLabel->sizeHint()));
}

void RoutineLabel::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void RoutineLabel::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::Current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isHot = isEnabled() && (underMouse() || isDown());
    const double ring = hasFocus() ? 2 : 1;
    painter.setPen(QPen(hasFocus() ? theme.accent : theme.line, ring));
    painter.setBrush(isHot ? theme.iconTint : theme.card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2),
                            corner, corner);

    constexpr double paleness = 0.45;
    painter.setOpacity(isEnabled() ? 1.0 : paleness);
    const QRectF tile(side, (height() - TileSize()) / 2.0, TileSize(), TileSize());
    painter.setPen(Qt::NoPen);
    painter.setBrush(isHot ? theme.card : theme.iconTint);
    painter.drawRoundedRect(tile, tileCorner, tileCorner);
    painter.drawPixmap(tile.topLeft(),
                       LineIcon(icon, theme.accent, {TileSize(), TileSize()}, devicePixelRatioF()));

    painter.setPen(theme.text);
    painter.drawText(CaptionRect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                     text());
}

void NoteLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void NoteLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    Q_EMIT DoubleClicked();
}
