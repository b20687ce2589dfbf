#pragma once

#include <QCalendarWidget>

/// A calendar that shows a month and tells of each day that is clicked: also of the selected one,
/// of one in the month before or after, and of both clicks of a double click. Enter and the blank
/// are the keyboard's click on the selected day.
class MonthView : public QCalendarWidget {
    Q_OBJECT

public:
    explicit MonthView(QWidget* parent = nullptr);

    /// Selects a date and turns to its month, without telling of it.
    void SetDate(QDate date);
    /// Tints these dates and no others.
    void MarkDates(const QList<QDate>& dates);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void DateClick(QDate date);

private:
    /// Whether another month has come up since the last press of the mouse.
    bool hasTurned = false;
};
