#include "support/Days.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int daysInWeek = 7;

/// The cell of the first of the month: the first that shows a 1, below the names of the days.
QModelIndex FirstOfMonth(const QAbstractItemModel& model) {
    for (int row = 1; row < model.rowCount(); ++row) {
        for (int column = model.columnCount() - daysInWeek; column < model.columnCount();
             ++column) {
            const QModelIndex cell = model.index(row, column);
            if (cell.data().toInt() == 1)
                return cell;
        }
    }
    return {};
}

} // namespace

QTableView* DaysOf(QCalendarWidget& calendar) {
    return calendar.findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"));
}

QPoint PlaceOf(QCalendarWidget& calendar, QDate date) {
    const QTableView* days = DaysOf(calendar);
    const QAbstractItemModel& model = *days->model();
    const QModelIndex first = FirstOfMonth(model);
    const int firstColumn = model.columnCount() - daysInWeek;
    const QDate firstDate(calendar.yearShown(), calendar.monthShown(), 1);
    const int cell =
        (first.row() - 1) * daysInWeek + first.column() - firstColumn + int(firstDate.daysTo(date));
    const QModelIndex day = model.index(1 + cell / daysInWeek, firstColumn + cell % daysInWeek);
    EXPECT_EQ(day.data().toInt(), date.day()) << "The day is not shown.";
    return days->visualRect(day).center();
}

void ClickDay(QCalendarWidget& calendar, QDate date) {
    QTest::mouseClick(DaysOf(calendar)->viewport(), Qt::LeftButton, Qt::NoModifier,
                      PlaceOf(calendar, date));
}
