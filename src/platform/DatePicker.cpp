#include "platform/DatePicker.h"

#include "platform/RegionalFormats.h"

#include <QSignalBlocker>

DatePicker::DatePicker(QWidget* parent) : QDateEdit(parent) {
    setCalendarPopup(true);
    setKeyboardTracking(false);
    setDisplayFormat(RegionalFormats::Current().DateForm());
    connect(this, &QDateEdit::dateChanged, this, &DatePicker::Changed);
}

void DatePicker::SetDate(QDate date) {
    const QSignalBlocker silence(this);
    setDate(date);
}
