#include "platform/MonthView.h"

#include "platform/Theme.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr double leastWidth = 18;
constexpr double leastHeight = 14;

bool IsClickKey(const QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

/// Hands the second press of a double click to the receiver as one like the first.
void SendAsPress(QObject* receiver, const QMouseEvent& second) {
    QMouseEvent press(QEvent::MouseButtonPress, second.position(), second.globalPosition(),
                      second.button(), second.buttons(), second.modifiers());
    QCoreApplication::sendEvent(receiver, &press);
}

} // namespace

MonthView::MonthView(QWidget* parent) : QCalendarWidget(parent) {
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Keys belong to the days; typing would open a field of its own.
    setDateEditEnabled(false);
    // The toolkit's own size leaves no room for the months.
    setMinimumSize(Em(leastWidth), Em(leastHeight));
    // Which days are work days is the business's own matter; the toolkit's red Sunday is not.
    QTextCharFormat plain;
    plain.setForeground(Theme::Current().text);
    for (const auto day : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(day, plain);
    // The toolkit's own arrows are coloured pictures.
    findChild<QToolButton*>(u"qt_calendar_prevmonth"_s)->setArrowType(Qt::LeftArrow);
    findChild<QToolButton*>(u"qt_calendar_nextmonth"_s)->setArrowType(Qt::RightArrow);

    auto* days = findChild<QAbstractItemView*>(u"qt_calendar_calendarview"_s);
    days->installEventFilter(this);
    days->viewport()->installEventFilter(this);
    connect(this, &QCalendarWidget::clicked, this, &MonthView::DateClick);
    connect(this, &QCalendarWidget::currentPageChanged, this, [this] { hasTurned = true; });
}

void MonthView::SetDate(QDate date) {
    setSelectedDate(date);
    showSelectedDate();
}

void MonthView::MarkDates(const QList<QDate>& dates) {
    setDateTextFormat({}, {});
    QTextCharFormat marked;
    marked.setBackground(Theme::Current().selectedRow);
    marked.setForeground(Theme::Current().selectedRowText);
    // The weight still shows on the selected day, which has a colour of its own.
    marked.setFontWeight(QFont::Bold);
    for (const QDate date : dates)
        setDateTextFormat(date, marked);
}

bool MonthView::eventFilter(QObject* watched, QEvent* event) {
    if (IsClickKey(event)) {
        Q_EMIT DateClick(selectedDate());
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress)
        hasTurned = false;
    if (event->type() == QEvent::MouseButtonDblClick) {
        // Another day has come under the pointer with the other month; nobody meant that one.
        if (!hasTurned)
            SendAsPress(watched, *static_cast<QMouseEvent*>(event));
        return true;
    }
    return QCalendarWidget::eventFilter(watched, event);
}
