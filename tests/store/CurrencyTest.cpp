#include "store/Currency.h"

#include "support/OfficeTest.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 highest = std::numeric_limits<qint64>::max();
constexpr qint64 lowest = std::numeric_limits<qint64>::min();

Currency Of(qint64 tenThousandths) {
    return Currency::OfTenThousandths(tenThousandths);
}

template <typename Statement>
void ExpectOverflow(Statement&& statement) {
    const RuntimeFailure failure = FailureOf(statement);
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(), u"An amount is outside the range of a currency value."_s);
}

} // namespace

TEST(CurrencyTest, NewAmountIsZero) {
    EXPECT_EQ(Currency().TenThousandths(), 0);
}

TEST(CurrencyTest, AmountCountsTenThousandths) {
    EXPECT_EQ(Currency::OfDouble(12.5).TenThousandths(), 125'000);
    EXPECT_EQ(Currency::OfDouble(-0.0001).TenThousandths(), -1);
    EXPECT_EQ(Of(12'500'000).ToDouble(), 1250.0);
}

TEST(CurrencyTest, DoubleIsRoundedToFourDecimalsHalfToEven) {
    EXPECT_EQ(Currency::OfDouble(0.00025).TenThousandths(), 2);
    EXPECT_EQ(Currency::OfDouble(0.00035).TenThousandths(), 4);
    EXPECT_EQ(Currency::OfDouble(0.00026).TenThousandths(), 3);
    EXPECT_EQ(Currency::OfDouble(-0.00025).TenThousandths(), -2);
}

TEST(CurrencyTest, SumsAreExactWhereDoublesAreNot) {
    Currency sum;
    for (int i = 0; i < 10; ++i)
        sum += Currency::OfDouble(0.1);
    EXPECT_EQ(sum.TenThousandths(), 10'000);
    EXPECT_EQ((sum - Of(2'500)).TenThousandths(), 7'500);
}

TEST(CurrencyTest, AmountsCompareByValue) {
    EXPECT_EQ(Of(5), Of(5));
    EXPECT_LT(Of(-5), Of(0));
    EXPECT_GT(Of(10'000), Of(9'999));
}

TEST(CurrencyTest, SumAtTheEdgeOfTheRangeIsExact) {
    EXPECT_EQ((Of(highest - 1) + Of(1)).TenThousandths(), highest);
    EXPECT_EQ((Of(lowest + 1) - Of(1)).TenThousandths(), lowest);
    EXPECT_EQ((Of(highest) + Of(lowest)).TenThousandths(), -1);
}

TEST(CurrencyTest, SumBeyondTheRangeOverflows) {
    ExpectOverflow([] { Of(highest) + Of(1); });
    ExpectOverflow([] { Of(lowest) + Of(-1); });
    ExpectOverflow([] { Of(lowest) - Of(1); });
    ExpectOverflow([] { Of(0) - Of(lowest); });
}

TEST(CurrencyTest, FailedSumLeavesTheAmount) {
    Currency amount = Of(highest);
    ExpectOverflow([&] { amount += Of(1); });
    EXPECT_EQ(amount.TenThousandths(), highest);
}

TEST(CurrencyTest, DoubleBeyondTheRangeOverflows) {
    EXPECT_EQ(Currency::OfDouble(-922337203685477.5808).TenThousandths(), lowest);
    ExpectOverflow([] { Currency::OfDouble(922337203685477.5808); });
    ExpectOverflow([] { Currency::OfDouble(-922337203685478.0); });
    ExpectOverflow([] { Currency::OfDouble(1e300); });
    ExpectOverflow([] { Currency::OfDouble(std::numeric_limits<double>::infinity()); });
    ExpectOverflow([] { Currency::OfDouble(std::nan("")); });
}
