#include "store/DeliveryTimes.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList& Hours() {
    static const QStringList hours = {u"07"_s, u"08"_s, u"09"_s, u"10"_s, u"11"_s, u"01"_s,
                                      u"02"_s, u"03"_s, u"04"_s, u"05"_s, u"06"_s};
    return hours;
}

constexpr int morningHours = 5;

} // namespace

void DeliveryTimes::BuildTimeLists() {
    // The quarter past has a point where the others have a colon: that is how the times lie in
    // the slip files, and a slip's time must be found in this list to the letter.
    const QStringList minutes = {u":00"_s, u".15"_s, u":30"_s, u":45"_s};
    QStringList times;
    for (int i = 0; i < Hours().size(); ++i) {
        for (const QString& minute : minutes)
            times += Hours()[i] + minute + (i < morningHours ? u"am"_s : u"pm"_s);
    }
    setStringList(times);
}

QString TimeSortRank(const QString& hour) {
    const qsizetype place = Hours().indexOf(hour);
    return place < 0 ? QString() : QString::number(place + 1);
}

QString TimeSortKey(const QString& time) {
    return TimeSortRank(time.left(2)) + time.mid(3);
}
