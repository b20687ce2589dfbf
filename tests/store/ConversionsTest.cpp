#include "store/Conversions.h"

#include "platform/CodePage.h"
#include "platform/RegionalFormats.h"
#include "support/OfficeTest.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace {

class ConversionsTest : public testing::Test {
protected:
    ConversionsTest() { Use("en_US"); }

    static void Use(const char* name) { Use(QLocale(QString::fromLatin1(name))); }
    static void Use(const QLocale& locale) { RegionalFormats::SetCurrent({locale, locale}); }
};

Currency Of(qint64 tenThousandths) {
    return Currency::OfTenThousandths(tenThousandths);
}

template <typename Statement>
FailureKind KindOf(Statement&& statement) {
    return FailureOf(statement).Kind();
}

} // namespace

// Whole numbers.

TEST_F(ConversionsTest, WholeNumbersAreRoundedHalfToEven) {
    EXPECT_EQ(ToInt16(u"2.5"_s), 2);
    EXPECT_EQ(ToInt16(u"3.5"_s), 4);
    EXPECT_EQ(ToInt16(u"-2.5"_s), -2);
    EXPECT_EQ(ToInt16(u"2.51"_s), 3);
    EXPECT_EQ(ToInt32(u"2.5"_s), 2);
    EXPECT_EQ(ToInt32(u"1,000,003.5"_s), 1'000'004);
    EXPECT_EQ(ToByte(u"0.5"_s), 0);
    EXPECT_EQ(ToByte(u"1.5"_s), 2);
    EXPECT_EQ(ToInt16(2.5), 2);
    EXPECT_EQ(ToInt32(3.5), 4);
}

TEST_F(ConversionsTest, WholeNumbersReachToTheEdgeOfTheirRange) {
    EXPECT_EQ(ToInt16(u"32767"_s), 32'767);
    EXPECT_EQ(ToInt16(u"32767.4"_s), 32'767);
    EXPECT_EQ(ToInt16(u"-32768.5"_s), -32'768);
    EXPECT_EQ(ToInt32(u"2147483647"_s), 2'147'483'647);
    EXPECT_EQ(ToInt32(u"-2147483648"_s), -2'147'483'647 - 1);
    EXPECT_EQ(ToByte(u"255.4"_s), 255);
    EXPECT_EQ(ToByte(u"-0.5"_s), 0);
}

TEST_F(ConversionsTest, WholeNumbersOutsideTheirRangeOverflow) {
    EXPECT_EQ(KindOf([] { ToInt16(u"32768"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInt16(u"32767.5"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInt16(u"-32769"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInt16(32767.5); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInt32(u"2147483648"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInt32(2147483647.5); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToInt32(std::numeric_limits<double>::quiet_NaN()); }),
              FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToByte(u"256"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToByte(u"255.5"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToByte(u"-1"_s); }), FailureKind::Overflow);
}

TEST_F(ConversionsTest, FailureNamesTheTextAndWhereItComesFrom) {
    const RuntimeFailure mismatch =
        FailureOf([] { ToInt16(u"three"_s, u"line 2 of Settings.txt"_s); });
    EXPECT_EQ(mismatch.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(mismatch.Sentence(),
              u"The text \"three\" is not a number (line 2 of Settings.txt)."_s);
    const RuntimeFailure overflow =
        FailureOf([] { ToInt16(u"40000"_s, u"line 2 of Settings.txt"_s); });
    EXPECT_EQ(overflow.Kind(), FailureKind::Overflow);
    EXPECT_EQ(overflow.Sentence(),
              u"The number 40000 is outside its range (line 2 of Settings.txt)."_s);
    const RuntimeFailure date = FailureOf([] { ToDate(u"soon"_s); });
    EXPECT_EQ(date.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(date.Sentence(), u"The text \"soon\" is not a date."_s);
}

TEST_F(ConversionsTest, LongTextIsShownShortInTheFailure) {
    const RuntimeFailure failure = FailureOf([] { ToInt16(QString(100'000, u'x')); });
    EXPECT_EQ(failure.Sentence(),
              u"The text \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...\" is "
              "not a number."_s);
}

// Fractions.

TEST_F(ConversionsTest, DoublesAreReadInTheRegionalForm) {
    EXPECT_EQ(ToDouble(u"1,250.75"_s), 1250.75);
    EXPECT_EQ(ToDouble(u"1E3"_s), 1000.0);
    EXPECT_EQ(ToDouble(u"-.5"_s), -0.5);
    Use("de_DE");
    EXPECT_EQ(ToDouble(u"1.250,75"_s), 1250.75);
    EXPECT_EQ(ToDouble(u"0,5"_s), 0.5);
}

TEST_F(ConversionsTest, DoublesOutsideTheirRangeOverflow) {
    EXPECT_EQ(KindOf([] { ToDouble(u"1E400"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToDouble(QString(400, u'9')); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToDouble(u"-0.1E400"_s); }), FailureKind::Overflow);
    EXPECT_EQ(ToDouble(u"1E-400"_s), 0.0);
    EXPECT_EQ(ToDouble(u"0."_s + QString(400, u'0') + u'1'), 0.0);
}

TEST_F(ConversionsTest, SinglesAreSinglePrecision) {
    EXPECT_EQ(ToSingle(u"0.1"_s), 0.1F);
    EXPECT_EQ(ToSingle(u"16777217"_s), 16'777'216.0F);
    EXPECT_EQ(KindOf([] { ToSingle(u"1E39"_s); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { ToSingle(u""_s); }), FailureKind::TypeMismatch);
}

TEST_F(ConversionsTest, TextThatIsNoNumberIsAMismatch) {
    EXPECT_EQ(KindOf([] { ToDouble(u""_s); }), FailureKind::TypeMismatch);
    EXPECT_EQ(KindOf([] { ToInt32(u" "_s); }), FailureKind::TypeMismatch);
    EXPECT_EQ(KindOf([] { ToByte(u"nan"_s); }), FailureKind::TypeMismatch);
    EXPECT_EQ(KindOf([] { ToCurrency(u"inf"_s); }), FailureKind::TypeMismatch);
    EXPECT_EQ(KindOf([] { CurrencyText(u"abc"_s); }), FailureKind::TypeMismatch);
}

TEST_F(ConversionsTest, NumericIsWhatAPersonWritesAsANumberInTheRegion) {
    for (const QString& text :
         {u"12"_s, u" 12.5 "_s, u"$12.50"_s, u"$ 12.50"_s, u"-$5"_s, u"$-5"_s, u"($1,250.00)"_s,
          u"5-"_s, u"+5"_s, u".5"_s, u"5."_s, u"1,250"_s, u"1e3"_s, u"2D-1"_s})
        EXPECT_TRUE(IsNumeric(text)) << text.toStdString();
    for (const QString& text :
         {u""_s,        u" "_s,        u"abc"_s, u"12A"_s, u"1.2.3"_s,  u"--5"_s,
          u"(-5)"_s,    u"$"_s,        u"-"_s,   u"."_s,   u"$$5"_s,    u"1$2"_s,
          u"12 50"_s,   u"555 0100"_s, u",5"_s,  u"1e"_s,  u"e3"_s,     u"0x10"_s,
          u"\u20ac5"_s, u"()"_s,       u"("_s,   u"nan"_s, u"\u0661"_s, QString(3, QChar(u'\0'))})
        EXPECT_FALSE(IsNumeric(text)) << text.toStdString();
}

TEST_F(ConversionsTest, BlankGroupsDigitsOnlyWhereTheRegionGroupsByBlanks) {
    Use("sv_SE");
    EXPECT_EQ(ToDouble(u"1 250,5"_s), 1250.5);
    EXPECT_EQ(ToDouble(u"1\u00a0250,5\u00a0kr"_s), 1250.5);
    EXPECT_EQ(ToDouble(u"1\u202f250"_s), 1250.0);
    EXPECT_EQ(ToDouble(u"\u2212250"_s), -250.0);
    Use("de_DE");
    EXPECT_FALSE(IsNumeric(u"1 250"_s));
}

TEST_F(ConversionsTest, LeadingNumberStopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(LeadingNumber(u"6.25"_s), 6.25);
    EXPECT_EQ(LeadingNumber(u"1,5"_s), 1.0);
    EXPECT_EQ(LeadingNumber(u"abc"_s), 0.0);
    EXPECT_EQ(LeadingNumber(u""_s), 0.0);
    EXPECT_EQ(LeadingNumber(u"4.0 %"_s), 4.0);
    EXPECT_EQ(LeadingNumber(u" 6 . 2 5"_s), 6.25);
    EXPECT_EQ(LeadingNumber(u"1.2.3"_s), 1.2);
    EXPECT_EQ(LeadingNumber(u"-5"_s), 0.0);
    EXPECT_EQ(LeadingNumber(u"+5"_s), 0.0);
    EXPECT_EQ(LeadingNumber(u"3-2"_s), 3.0);
    EXPECT_EQ(LeadingNumber(u".5"_s), 0.5);
    EXPECT_EQ(LeadingNumber(u"5."_s), 5.0);
    EXPECT_EQ(LeadingNumber(u"."_s), 0.0);
    EXPECT_EQ(LeadingNumber(u"-"_s), 0.0);
    EXPECT_EQ(LeadingNumber(u"$5"_s), 0.0);
    EXPECT_EQ(LeadingNumber(u"0000061"_s), 61.0);
}

TEST_F(ConversionsTest, LeadingNumberIsTheSameInEveryRegion) {
    Use("de_DE");
    EXPECT_EQ(LeadingNumber(u"6.25"_s), 6.25);
    EXPECT_EQ(LeadingNumber(u"6,25"_s), 6.0);
}

TEST_F(ConversionsTest, NumberTextHasTheRegionalMarkAndNoGrouping) {
    EXPECT_EQ(NumberText(1250.5), u"1250.5"_s);
    EXPECT_EQ(NumberText(-3.0), u"-3"_s);
    EXPECT_EQ(NumberText(0.1 + 0.2), u"0.3"_s);
    EXPECT_EQ(NumberText(100000.0), u"100000"_s);
    EXPECT_EQ(NumberText(123456789012345.0), u"123456789012345"_s);
    EXPECT_EQ(NumberText(1e15), u"1E+15"_s);
    EXPECT_EQ(NumberText(0.0), u"0"_s);
    EXPECT_EQ(NumberText(-0.0), u"0"_s);
    Use("de_DE");
    EXPECT_EQ(NumberText(1250.5), u"1250,5"_s);
}

TEST_F(ConversionsTest, NumberTextOfAnAmountHasAllItsDigits) {
    const std::pair<qint64, QString> amounts[] = {
        {0, u"0"_s},
        {9'200, u"0.92"_s},
        {125'000, u"12.5"_s},
        {12'500'000, u"1250"_s},
        {1, u"0.0001"_s},
        {-1, u"-0.0001"_s},
        {-35'000, u"-3.5"_s},
        {9'999'999'999'999'999, u"999999999999.9999"_s},
        {9'223'372'036'854'775'807, u"922337203685477.5807"_s},
        {std::numeric_limits<qint64>::min(), u"-922337203685477.5808"_s}};
    for (const auto& [count, text] : amounts)
        EXPECT_EQ(NumberText(Of(count)), text);
    Use("de_DE");
    EXPECT_EQ(NumberText(Of(12'505'000)), u"1250,5"_s);
}

// Amounts.

TEST_F(ConversionsTest, CurrencyTextRoundsHalfAwayFromZeroAsThePersonReadsTheNumber) {
    EXPECT_EQ(CurrencyText(1.005), u"$1.01"_s);
    EXPECT_EQ(CurrencyText(-1.005), u"($1.01)"_s);
    EXPECT_EQ(CurrencyText(2.675), u"$2.68"_s);
    EXPECT_EQ(CurrencyText(0.125), u"$0.13"_s);
    EXPECT_EQ(CurrencyText(0.1249), u"$0.12"_s);
    EXPECT_EQ(CurrencyText(1.0049999), u"$1.00"_s);
    EXPECT_EQ(CurrencyText(0.995), u"$1.00"_s);
    EXPECT_EQ(CurrencyText(Of(10'050)), u"$1.01"_s);
    EXPECT_EQ(CurrencyText(Of(10'049)), u"$1.00"_s);
    EXPECT_EQ(CurrencyText(u"1.005"_s), u"$1.01"_s);
    EXPECT_EQ(CurrencyText(u"1.00499999999999999999"_s), u"$1.00"_s);
}

TEST_F(ConversionsTest, CurrencyTextRoundsEveryAmountAsItsFifteenDigitsRead) {
    // Rounded by hand from the digits that the C library gives.
    const auto expected = [](double amount) {
        char text[64];
        std::snprintf(text, sizeof text, "%.14e", amount);
        const std::string digits = text[0] + std::string(text + 2, 14);
        const int wholeDigits = std::atoi(std::strchr(text, 'e') + 1) + 1;
        long long cents = std::stoll(digits.substr(0, size_t(wholeDigits + 2)));
        if (digits[size_t(wholeDigits + 2)] >= '5')
            ++cents;
        std::snprintf(text, sizeof text, "%lld.%02lld", cents / 100, cents % 100);
        return std::string(text);
    };
    std::mt19937_64 numbers(1);
    const auto check = [&](double amount) {
        const std::string shown = CurrencyText(amount).remove(u',').mid(1).toStdString();
        ASSERT_EQ(shown, expected(amount)) << std::hexfloat << amount;
    };
    for (int i = 0; i < 20'000; ++i) {
        const double power = std::pow(10, double(numbers() % 10));
        const double any = power * (1 + 9 * double(numbers() >> 11) / double(1ULL << 53));
        check(any);
        // Halves of a cent, and their neighbours in binary.
        const double half = (std::floor(any * 100) + 0.5) / 100;
        check(half);
        check(std::nextafter(half, 0));
        check(std::nextafter(half, 1e300));
        check(half * (1 - 5e-15));
        check(half * (1 - 5.5e-16));
    }
    for (double power = 1; power < 1e11; power *= 10) {
        check(power);
        check(std::nextafter(power, 1e300));
        check(std::nextafter(power * 10, 0));
    }
}

TEST_F(ConversionsTest, DoubleOfADecimalIsTheNearestOne) {
    std::mt19937_64 numbers(2);
    for (int i = 0; i < 20'000; ++i) {
        QByteArray plain = QByteArray::number(quint64(numbers() >> (numbers() % 60)));
        const auto place = qsizetype(numbers() % size_t(plain.size() + 1));
        plain.insert(place, '.');
        ASSERT_EQ(ToDouble(QString::fromLatin1(plain)), std::strtod(plain.constData(), nullptr))
            << plain.toStdString();
    }
    EXPECT_EQ(ToDouble(u"999999999999999"_s), 999999999999999.0);
    EXPECT_EQ(ToDouble(u".000000000000001"_s), 1e-15);
    EXPECT_EQ(ToDouble(u"0"_s), 0.0);
    EXPECT_EQ(ToDouble(u"5."_s), 5.0);
}

TEST_F(ConversionsTest, AmountThatRoundsToZeroHasNoSign) {
    EXPECT_EQ(CurrencyText(-0.004), u"$0.00"_s);
    EXPECT_EQ(CurrencyText(-0.0), u"$0.00"_s);
    EXPECT_EQ(CurrencyText(Of(-40)), u"$0.00"_s);
    EXPECT_EQ(CurrencyText(u"-0.004"_s), u"$0.00"_s);
    EXPECT_EQ(CurrencyText(-0.005), u"($0.01)"_s);
}

TEST_F(ConversionsTest, CurrencyTextOfEverySize) {
    EXPECT_EQ(CurrencyText(0.0), u"$0.00"_s);
    EXPECT_EQ(CurrencyText(0.01), u"$0.01"_s);
    EXPECT_EQ(CurrencyText(999.99), u"$999.99"_s);
    EXPECT_EQ(CurrencyText(1250.0), u"$1,250.00"_s);
    EXPECT_EQ(CurrencyText(1e-300), u"$0.00"_s);
    EXPECT_EQ(CurrencyText(1234567890.12), u"$1,234,567,890.12"_s);
    EXPECT_EQ(CurrencyText(1e15), u"$1,000,000,000,000,000.00"_s);
    EXPECT_EQ(CurrencyText(u"12.5"_s), u"$12.50"_s);
}

TEST_F(ConversionsTest, CurrencyTextReachesToTheEdgeOfTheRange) {
    EXPECT_EQ(CurrencyText(Of(std::numeric_limits<qint64>::max())), u"$922,337,203,685,477.58"_s);
    EXPECT_EQ(CurrencyText(Of(std::numeric_limits<qint64>::min())), u"($922,337,203,685,477.58)"_s);
}

TEST_F(ConversionsTest, AmountTooLargeToShowOverflows) {
    EXPECT_EQ(KindOf([] { CurrencyText(1e300); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { CurrencyText(std::numeric_limits<double>::infinity()); }),
              FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { CurrencyText(std::numeric_limits<double>::quiet_NaN()); }),
              FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { CurrencyText(u"1E999"_s); }), FailureKind::Overflow);
}

TEST_F(ConversionsTest, FailureShowsTheAmountAsItReads) {
    EXPECT_EQ(FailureOf([] { CurrencyText(1e300); }).Sentence(),
              u"The number 1E+300 is outside its range."_s);
    EXPECT_EQ(FailureOf([] { CurrencyText(u"$1E300"_s, u"field 11"_s); }).Sentence(),
              u"The number $1E300 is outside its range (field 11)."_s);
}

TEST_F(ConversionsTest, ToCurrencyIsExactToTheFourthDecimalHalfToEven) {
    EXPECT_EQ(ToCurrency(u"$1,250.00"_s), Of(12'500'000));
    EXPECT_EQ(ToCurrency(u"0.00015"_s), Of(2));
    EXPECT_EQ(ToCurrency(u"0.00025"_s), Of(2));
    EXPECT_EQ(ToCurrency(u"0.000250000001"_s), Of(3));
    EXPECT_EQ(ToCurrency(u"-0.00035"_s), Of(-4));
    EXPECT_EQ(ToCurrency(u"1.25E2"_s), Of(1'250'000));
    EXPECT_EQ(ToCurrency(u"1E-999"_s), Of(0));
    EXPECT_EQ(ToCurrency(u"0.0000000000000000000000000001"_s), Of(0));
}

TEST_F(ConversionsTest, ToCurrencyReachesToTheEdgeOfTheRange) {
    EXPECT_EQ(ToCurrency(u"922337203685477.5807"_s).TenThousandths(),
              std::numeric_limits<qint64>::max());
    EXPECT_EQ(ToCurrency(u"-922337203685477.5808"_s).TenThousandths(),
              std::numeric_limits<qint64>::min());
    EXPECT_EQ(ToCurrency(u"922337203685477.58074"_s).TenThousandths(),
              std::numeric_limits<qint64>::max());
}

TEST_F(ConversionsTest, AmountBeyondTheRangeOverflows) {
    for (const QString& text :
         {u"922337203685477.5808"_s, u"922337203685477.58075"_s, u"-922337203685477.5809"_s,
          u"-922337203685477.58086"_s, u"1E15"_s, u"99999999999999999999999999"_s, u"1E999"_s})
        EXPECT_EQ(KindOf([&] { ToCurrency(text); }), FailureKind::Overflow) << text.toStdString();
}

TEST_F(ConversionsTest, CurrencyTextOfTheRegions) {
    struct Case {
        const char* locale;
        QString amount;
        QString negative;
        QString million;
    };
    const std::vector<Case> cases = {
        {"en_US", u"$1,250.00"_s, u"($1,250.00)"_s, u"$1,234,567.89"_s},
        {"de_DE", u"1.250,00\u00a0\u20ac"_s, u"-1.250,00\u00a0\u20ac"_s,
         u"1.234.567,89\u00a0\u20ac"_s},
        {"fr_FR", u"1\u00a0250,00\u00a0\u20ac"_s, u"(1\u00a0250,00\u00a0\u20ac)"_s,
         u"1\u00a0234\u00a0567,89\u00a0\u20ac"_s},
        {"de_CH", u"1\u2019250.00\u00a0CHF"_s, u"-1\u2019250.00\u00a0CHF"_s,
         u"1\u2019234\u2019567.89\u00a0CHF"_s},
        {"sv_SE", u"1\u00a0250,00\u00a0kr"_s, u"-1\u00a0250,00\u00a0kr"_s,
         u"1\u00a0234\u00a0567,89\u00a0kr"_s},
        {"ja_JP", u"\u00a51,250"_s, u"(\u00a51,250)"_s, u"\u00a51,234,568"_s},
        {"hi_IN", u"INR1,250.00"_s, u"INR-1,250.00"_s, u"INR12,34,567.89"_s},
        {"ar_EG", u"EGP1,250.00"_s, u"(EGP1,250.00)"_s, u"EGP1,234,567.89"_s},
        {"pl_PL", u"1\u00a0250,00\u00a0PLN"_s, u"(1\u00a0250,00\u00a0PLN)"_s,
         u"1\u00a0234\u00a0567,89\u00a0PLN"_s},
        {"C", u"1250.00"_s, u"-1250.00"_s, u"1234567.89"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.locale);
        Use(one.locale);
        EXPECT_EQ(CurrencyText(Of(12'500'000)), one.amount);
        EXPECT_EQ(CurrencyText(Of(-12'500'000)), one.negative);
        EXPECT_EQ(CurrencyText(1234567.89), one.million);
        EXPECT_EQ(ToCurrency(one.amount), Of(12'500'000));
        EXPECT_EQ(ToCurrency(one.negative), Of(-12'500'000));
    }
}

TEST_F(ConversionsTest, TypedAmountsAreReadByTheMarksOfTheRegion) {
    Use("pl_PL");
    EXPECT_EQ(ToCurrency(u"12,50"_s), Of(125'000));
    EXPECT_EQ(ToCurrency(u"1 250,50 PLN"_s), Of(12'505'000));
    Use("cs_CZ");
    EXPECT_EQ(ToCurrency(u"12,50"_s), Of(125'000));
    Use("de_CH");
    EXPECT_EQ(ToCurrency(u"CHF 12.50"_s), Of(125'000));
    Use("fr_FR");
    EXPECT_EQ(ToCurrency(u"1 250,5 \u20ac"_s), Of(12'505'000));
    Use("fr_SN");
    EXPECT_EQ(ToCurrency(u"1 250 F CFA"_s), Of(12'500'000));
}

// Dates.

TEST_F(ConversionsTest, ShortDateTextOfTheRegionsHasFourDigitsOfTheYear) {
    struct Case {
        const char* locale;
        QString early;
        QString late;
    };
    const std::vector<Case> cases = {
        {"en_US", u"3/9/2026"_s, u"12/25/2026"_s},   {"de_DE", u"09.03.2026"_s, u"25.12.2026"_s},
        {"fr_FR", u"09/03/2026"_s, u"25/12/2026"_s}, {"de_CH", u"09.03.2026"_s, u"25.12.2026"_s},
        {"sv_SE", u"2026-03-09"_s, u"2026-12-25"_s}, {"ja_JP", u"2026/03/09"_s, u"2026/12/25"_s},
        {"hi_IN", u"9/3/2026"_s, u"25/12/2026"_s},   {"ar_EG", u"9/3/2026"_s, u"25/12/2026"_s},
        {"C", u"2026-03-09"_s, u"2026-12-25"_s},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.locale);
        Use(one.locale);
        EXPECT_EQ(ShortDateText(QDate(2026, 3, 9)), one.early);
        EXPECT_EQ(ShortDateText(QDate(2026, 12, 25)), one.late);
        EXPECT_EQ(ToDate(one.early), QDate(2026, 3, 9));
        EXPECT_EQ(ToDate(one.late), QDate(2026, 12, 25));
    }
}

TEST_F(ConversionsTest, DateIsReadInTheRegionalOrderOrYearFirst) {
    EXPECT_EQ(ToDate(u"3/9/2026"_s), QDate(2026, 3, 9));
    EXPECT_EQ(ToDate(u" 03-09-2026 "_s), QDate(2026, 3, 9));
    EXPECT_EQ(ToDate(u"2026-03-09"_s), QDate(2026, 3, 9));
    Use("de_DE");
    EXPECT_EQ(ToDate(u"3.9.2026"_s), QDate(2026, 9, 3));
    EXPECT_EQ(ToDate(u"2026-03-09"_s), QDate(2026, 3, 9));
}

TEST_F(ConversionsTest, WhatIsNoDateIsRefused) {
    for (const QString& text : {u""_s, u"soon"_s, u"13/1/2026"_s, u"2/29/2026"_s, u"3/9/26"_s,
                                u"3/9"_s, u"3/9/2026/1"_s, u"1x2x2026"_s, u"3/9/20261"_s,
                                u"392026"_s, u"0/9/2026"_s, u"3/0/2026"_s, u"1,250.00"_s}) {
        EXPECT_FALSE(IsDate(text)) << text.toStdString();
        EXPECT_EQ(KindOf([&] { ToDate(text); }), FailureKind::TypeMismatch) << text.toStdString();
    }
    EXPECT_TRUE(IsDate(u"2/29/2028"_s));
}

// What one writes, the other reads back.

namespace {

QList<QLocale> AllLocales() {
    return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript,
                                    QLocale::AnyTerritory);
}

/// Writes the text into a data file and takes it out again.
QString ThroughAFile(const QString& text) {
    return FromCodePage(ToCodePage(text));
}

} // namespace

TEST_F(ConversionsTest, DateTextIsReadBackInEveryRegion) {
    const QList<QLocale> locales = AllLocales();
    EXPECT_GT(locales.size(), 500);
    for (const QLocale& locale : locales) {
        SCOPED_TRACE(locale.bcp47Name().toStdString());
        Use(locale);
        for (const QDate date : {QDate(2026, 1, 2), QDate(2026, 12, 31), QDate(2028, 2, 29),
                                 QDate(1950, 11, 1), QDate(100, 1, 1), QDate(9999, 12, 31)}) {
            const QString text = ShortDateText(date);
            EXPECT_EQ(ThroughAFile(text), text);
            EXPECT_TRUE(IsDate(text)) << text.toStdString();
            EXPECT_EQ(ToDate(text), date) << text.toStdString();
        }
    }
}

TEST_F(ConversionsTest, CurrencyTextIsReadBackInEveryRegion) {
    const QList<QLocale> locales = AllLocales();
    EXPECT_GT(locales.size(), 500);
    for (const QLocale& locale : locales) {
        SCOPED_TRACE(locale.bcp47Name().toStdString());
        Use(locale);
        std::vector<qint64> counts = {0,
                                      10'000,
                                      120'000,
                                      12'500'000,
                                      -12'500'000,
                                      1'234'560'000,
                                      12'345'678'900'000,
                                      -9'223'372'036'850'000'000};
        if (RegionalFormats::Current().CurrencyDecimals() >= 2)
            counts.insert(counts.end(), {100, -100, 12'500, 12'345'678'900});
        for (const qint64 count : counts) {
            const QString text = CurrencyText(Of(count));
            EXPECT_EQ(ThroughAFile(text), text);
            EXPECT_TRUE(IsNumeric(text)) << text.toStdString();
            EXPECT_EQ(ToCurrency(text).TenThousandths(), count) << text.toStdString();
        }
    }
}

TEST_F(ConversionsTest, NumberTextIsReadBackInEveryRegion) {
    for (const QLocale& locale : AllLocales()) {
        SCOPED_TRACE(locale.bcp47Name().toStdString());
        Use(locale);
        for (const double number : {0.0, 1.5, -1250.25, 123456789.125, 1e20, 1e-7})
            EXPECT_EQ(ToDouble(NumberText(number)), number) << NumberText(number).toStdString();
    }
}
