#pragma once

#include <QCalendarWidget>
#include <QDate>
#include <QTableView>

/// The table of days inside a calendar, which has the keyboard and the mouse.
QTableView* DaysOf(QCalendarWidget& calendar);
/// Where a day stands in that table, in its viewport. A day that is not shown fails the test.
QPoint PlaceOf(QCalendarWidget& calendar, QDate date);
/// A left click on a day that is shown.
void ClickDay(QCalendarWidget& calendar, QDate date);
