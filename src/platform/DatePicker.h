#pragma once

#include <QDate>
#include <QLineEdit>

/// A date field in the regional short date form, to type in or to pick from a calendar; Up and Down
/// step it by a day. It tells of a date once the user has finished entering it, and not while a
/// program sets it. A text that is no date is taken back.
class DatePicker : public QLineEdit {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* parent = nullptr);

    QDate Date() const { return date; }
    /// Shows a date without telling of it.
    void SetDate(QDate newDate);
    /// The earliest date that the calendar offers. An earlier one that is typed is told of all the
    /// same.
    void SetLeastDate(QDate newLeast) { least = newLeast; }

Q_SIGNALS:
    void Changed(QDate date);
    void Refused();
    /// The calendar has been closed without a pick.
    void Dismissed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void TakeTyped();
    void Enter(QDate newDate);
    void OpenCalendar();

    QDate date;
    QDate least;
};
