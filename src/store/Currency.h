#pragma once

#include <QtGlobal>

#include <compare>

/// An amount of money: a signed 64-bit count of ten-thousandths of the currency's unit. Arithmetic
/// beyond the range fails with an overflow.
class Currency {
public:
    static constexpr qint64 perUnit = 10'000;

    constexpr Currency() = default;
    static constexpr Currency OfTenThousandths(qint64 count) { return Currency(count); }
    /// Rounded to four decimals, half to even.
    static Currency OfDouble(double amount);

    constexpr qint64 TenThousandths() const { return tenThousandths; }
    double ToDouble() const { return double(tenThousandths) / double(perUnit); }

    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency& operator+=(Currency other) { return *this = *this + other; }

    auto operator<=>(const Currency&) const = default;

private:
    explicit constexpr Currency(qint64 count) : tenThousandths(count) {}

    qint64 tenThousandths = 0;
};
