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
    /// Shows a date without telling of it. What is being typed is not disturbed by the date that
    /// stands already.
    void SetDate(QDate newDate);
    /// The calendar offers no day before it. What is typed is for the screen to correct.
    void SetEarliest(QDate earliestDate) { earliest = earliestDate; }
    /// Takes what is typed, as leaving the field does: a button that is pressed by its key works on
    /// what the field shows. False when it is no date.
    bool TakeTyped();

Q_SIGNALS:
    void Changed(QDate date);
    void Refused();
    /// The calendar has been closed without a pick.
    void Dismissed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowDate(QDate newDate);
    void Enter(QDate newDate);
    void OpenCalendar();

    QDate date;
    QDate earliest;
};
