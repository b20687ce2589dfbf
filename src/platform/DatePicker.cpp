#include "platform/DatePicker.h"

#include "platform/MonthView.h"
#include "platform/RegionalFormats.h"
#include "platform/Theme.h"

#include <QAction>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 28;

QPoint WithinDesktop(const QWidget& field, QSize size) {
    const QRect desktop = field.screen()->availableGeometry();
    QPoint place = field.mapToGlobal(QPoint(0, field.height()));
    if (place.y() + size.height() > desktop.bottom())
        place.setY(field.mapToGlobal(QPoint()).y() - size.height());
    place.setX(qBound(desktop.left(), place.x(), desktop.right() - size.width()));
    return place;
}

} // namespace

DatePicker::DatePicker(QWidget* parent) : QLineEdit(parent) {
    const QIcon icon(LineIcon(u"calendar"_s, Theme::Current().softText, {iconSize, iconSize},
                              devicePixelRatioF()));
    QAction* open = addAction(icon, QLineEdit::TrailingPosition);
    open->setObjectName(u"openCalendar"_s);
    open->setToolTip(u"Pick from a calendar (F4)"_s);
    connect(open, &QAction::triggered, this, &DatePicker::OpenCalendar);
    connect(this, &QLineEdit::editingFinished, this, &DatePicker::TakeTyped);
}

void DatePicker::SetDate(QDate newDate) {
    // A screen shows its values anew while the operator stands in the field, at each click into it
    // for example: caret and half a date stay.
    if (newDate != date || !hasFocus())
        ShowDate(newDate);
}

void DatePicker::ShowDate(QDate newDate) {
    date = newDate;
    setText(RegionalFormats::Current().ShortDate(date));
}

void DatePicker::Enter(QDate newDate) {
    ShowDate(newDate);
    selectAll();
    Q_EMIT Changed(newDate);
}

bool DatePicker::TakeTyped() {
    const auto typed = RegionalFormats::Current().ParseDate(text());
    if (!typed) {
        ShowDate(date);
        Q_EMIT Refused();
        return false;
    }
    if (*typed != date)
        Enter(*typed);
    return true;
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        Enter(date.addDays(1));
        break;
    case Qt::Key_Down:
        Enter(date.addDays(-1));
        break;
    case Qt::Key_F4:
        OpenCalendar();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void DatePicker::OpenCalendar() {
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setProperty("card", true);
    auto* calendar = new MonthView;
    calendar->setObjectName(u"calendar"_s);
    if (earliest.isValid())
        calendar->setMinimumDate(earliest);
    calendar->SetDate(date);
    auto* rows = new QVBoxLayout(popup);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->addWidget(calendar);
    // Queued, since the calendar also goes when the field itself does.
    connect(popup, &QObject::destroyed, this, &DatePicker::Dismissed, Qt::QueuedConnection);
    connect(calendar, &MonthView::DateClick, this, [this, popup](QDate picked) {
        popup->disconnect(this);
        popup->close();
        Enter(picked);
    });
    popup->move(WithinDesktop(*this, popup->sizeHint()));
    popup->show();
    calendar->setFocus();
}
