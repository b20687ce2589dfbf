#pragma once

#include <QDateEdit>

/// A date field with a calendar to pick from, in the regional short date form. It tells of a date
/// once the user has finished entering it, and not while a program sets it.
class DatePicker : public QDateEdit {
    Q_OBJECT

public:
    explicit DatePicker(QWidget* parent = nullptr);

    /// Shows a date without telling of it.
    void SetDate(QDate date);

Q_SIGNALS:
    void Changed(QDate date);
};
