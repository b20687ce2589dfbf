#pragma once

#include <QString>
#include <QStringListModel>

/// The 44 quarter-hour delivery times, 07:00am to 06:45pm without a twelve o'clock hour. Every
/// screen's time list is a view on this one.
class DeliveryTimes : public QStringListModel {
public:
    /// The entry that every time list starts on: "08:00am".
    static constexpr int firstSelection = 4;

    void BuildTimeLists();
};

/// The place of an hour ("07" to "06") in the delivery day, "1" to "11"; empty for any other text.
QString TimeSortRank(const QString& hour);

/// Puts a day in the order in which it is driven: 08:30am has the key 230am, which sorts as 230.
QString TimeSortKey(const QString& time);
