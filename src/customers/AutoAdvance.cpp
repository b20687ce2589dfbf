#include "customers/AutoAdvance.h"

using namespace Qt::StringLiterals;

QString AutoAdvance::Caption() const {
    return IsOn ? u"Auto Advance On"_s : u"Auto Advance Off"_s;
}

void AutoAdvance::Faster() {
    if (Interval < longestInterval - step)
        Interval += step;
}

void AutoAdvance::Slower() {
    if (Interval > shortestInterval + step)
        Interval -= step;
}
