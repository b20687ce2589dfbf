#pragma once

#include "store/Conversions.h"

#include <QDate>
#include <QString>

/// Short date texts and back, for thousands of records of which most are of the same day as the one
/// before: each day is converted once.
class DateTexts {
public:
    const QString& TextOf(QDate date) {
        if (date != shownDate) {
            shownDate = date;
            shownText = ShortDateText(date);
        }
        return shownText;
    }

    /// `where` is asked only for a text that is no date.
    template <typename Where>
    QDate DateOf(const QString& text, Where&& where) {
        if (text.isEmpty() || text != readText) {
            readDate = ToDate(text, where);
            readText = text;
        }
        return readDate;
    }

private:
    QDate shownDate;
    QString shownText;
    QDate readDate;
    QString readText;
};
