#include "store/Currency.h"

#include "platform/RuntimeFailure.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

RuntimeFailure AmountOverflow() {
    return {FailureKind::Overflow, u"An amount is outside the range of a currency value."_s};
}

} // namespace

Currency Currency::OfDouble(double amount) {
    const double scaled = amount * double(perUnit);
    constexpr double limit = 0x1p63;
    if (!(scaled >= -limit && scaled < limit))
        throw AmountOverflow();
    return Currency(std::llrint(scaled));
}

Currency Currency::operator+(Currency other) const {
    qint64 sum = 0;
    if (__builtin_add_overflow(tenThousandths, other.tenThousandths, &sum))
        throw AmountOverflow();
    return Currency(sum);
}

Currency Currency::operator-(Currency other) const {
    qint64 difference = 0;
    if (__builtin_sub_overflow(tenThousandths, other.tenThousandths, &difference))
        throw AmountOverflow();
    return Currency(difference);
}
