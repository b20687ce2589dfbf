#pragma once

#include <QDate>

/// The one door to "now", so that a test can set the date.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDate Today() const = 0;
};

class SystemClock : public Clock {
public:
    QDate Today() const override { return QDate::currentDate(); }
};
