#include "platform/RegionalFormats.h"

#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDate day(2026, 3, 16);

RegionalFormats Of(const char* name) {
    const QLocale locale(QString::fromLatin1(name));
    return {locale, locale};
}

/// 1,250 units of a currency of two decimals.
QString Amount(const RegionalFormats& formats) {
    return formats.Currency(125'000, false);
}

class RegionalFormatsTest : public testing::Test {
protected:
    RegionalFormatsTest() {
        for (const char* name : {"LC_ALL", "LC_TIME", "LC_MONETARY", "LANG"})
            qunsetenv(name);
    }

    static void ExpectUnitedStates() {
        const RegionalFormats formats = RegionalFormats::OfMachine();
        EXPECT_EQ(formats.ShortDate(day), u"3/16/2026"_s);
        EXPECT_EQ(Amount(formats), u"$1,250.00"_s);
    }
};

} // namespace

TEST_F(RegionalFormatsTest, MachineWithoutALocaleHasUnitedStatesForms) {
    ExpectUnitedStates();
}

TEST_F(RegionalFormatsTest, CAndPosixLocalesHaveUnitedStatesForms) {
    for (const char* name : {"C", "POSIX", "C.UTF-8", "C.utf8"}) {
        SCOPED_TRACE(name);
        qputenv("LANG", name);
        ExpectUnitedStates();
        qputenv("LC_ALL", name);
        ExpectUnitedStates();
        qunsetenv("LC_ALL");
    }
}

TEST_F(RegionalFormatsTest, LangRulesWhereNothingElseIsSet) {
    qputenv("LANG", "de_DE.UTF-8");
    const RegionalFormats formats = RegionalFormats::OfMachine();
    EXPECT_EQ(formats.ShortDate(day), u"16.03.2026"_s);
    EXPECT_EQ(Amount(formats), u"1.250,00\u00a0\u20ac"_s);
}

TEST_F(RegionalFormatsTest, DatesAndMoneyHaveLocalesOfTheirOwn) {
    qputenv("LANG", "fr_FR.UTF-8");
    qputenv("LC_TIME", "sv_SE.UTF-8");
    qputenv("LC_MONETARY", "en_US.UTF-8");
    const RegionalFormats formats = RegionalFormats::OfMachine();
    EXPECT_EQ(formats.ShortDate(day), u"2026-03-16"_s);
    EXPECT_EQ(Amount(formats), u"$1,250.00"_s);
}

TEST_F(RegionalFormatsTest, LcAllOverrulesTheOthers) {
    qputenv("LC_ALL", "de_DE@euro");
    qputenv("LC_TIME", "sv_SE.UTF-8");
    qputenv("LC_MONETARY", "en_US.UTF-8");
    const RegionalFormats formats = RegionalFormats::OfMachine();
    EXPECT_EQ(formats.ShortDate(day), u"16.03.2026"_s);
    EXPECT_EQ(Amount(formats), u"1.250,00\u00a0\u20ac"_s);
}

TEST_F(RegionalFormatsTest, EmptySettingCountsAsNone) {
    qputenv("LC_ALL", "");
    qputenv("LC_TIME", "");
    qputenv("LANG", "de_DE.UTF-8");
    EXPECT_EQ(RegionalFormats::OfMachine().ShortDate(day), u"16.03.2026"_s);
}

TEST_F(RegionalFormatsTest, UnknownLocaleStillReadsWhatItWrites) {
    qputenv("LANG", "xx_YY.UTF-8");
    const RegionalFormats formats = RegionalFormats::OfMachine();
    EXPECT_EQ(formats.ParseDate(formats.ShortDate(day)), day);
    EXPECT_EQ(formats.PlainNumber(Amount(formats)), "1250.00");
}

TEST_F(RegionalFormatsTest, OneSetOfFormsHoldsForTheProcess) {
    RegionalFormats::SetCurrent(Of("de_DE"));
    EXPECT_EQ(RegionalFormats::Current().ShortDate(day), u"16.03.2026"_s);
    RegionalFormats::SetCurrent(Of("en_US"));
    EXPECT_EQ(RegionalFormats::Current().ShortDate(day), u"3/16/2026"_s);
}

TEST_F(RegionalFormatsTest, CurrencyHasItsOwnNumberOfDecimals) {
    EXPECT_EQ(Of("en_US").CurrencyDecimals(), 2);
    EXPECT_EQ(Of("ja_JP").CurrencyDecimals(), 0);
    EXPECT_EQ(Of("ar_KW").CurrencyDecimals(), 3);
    EXPECT_EQ(Of("ja_JP").Currency(1250, false), u"\u00a51,250"_s);
    EXPECT_EQ(Of("ar_KW").Currency(1250, false), u"KWD1.250"_s);
    EXPECT_EQ(Of("en_US").Currency(5, false), u"$0.05"_s);
    EXPECT_EQ(Of("en_US").Currency(0, false), u"$0.00"_s);
}

TEST_F(RegionalFormatsTest, DigitsAreGroupedAsTheRegionGroupsThem) {
    EXPECT_EQ(Of("en_US").Currency(99'999, false), u"$999.99"_s);
    EXPECT_EQ(Of("en_US").Currency(100'000'000, false), u"$1,000,000.00"_s);
    EXPECT_EQ(Of("en_IN").Currency(1'000'000'000, false), u"INR1,00,00,000.00"_s);
}

TEST_F(RegionalFormatsTest, SymbolMissingInTheCodePageGivesWayToTheCurrencysCode) {
    EXPECT_EQ(Amount(Of("pl_PL")), u"1\u00a0250,00\u00a0PLN"_s);
    EXPECT_EQ(Amount(Of("cs_CZ")), u"1\u00a0250,00\u00a0CZK"_s);
    EXPECT_EQ(Amount(Of("hi_IN")), u"INR1,250.00"_s);
}

TEST_F(RegionalFormatsTest, DigitsMissingInTheCodePageGiveWayToWesternOnes) {
    EXPECT_EQ(Amount(Of("ar_EG")), u"EGP1,250.00"_s);
    EXPECT_EQ(Of("ar_EG").DecimalMark(), u'.');
    EXPECT_EQ(Of("fa_IR").Currency(1250, false), u"IRR1,250"_s);
}

TEST_F(RegionalFormatsTest, TypographicCharactersGiveWayToPlainOnes) {
    EXPECT_EQ(Amount(Of("fr_FR")), u"1\u00a0250,00\u00a0\u20ac"_s);
    EXPECT_EQ(Of("sv_SE").Currency(125'000, true), u"-1\u00a0250,00\u00a0kr"_s);
    EXPECT_EQ(Of("ja_JP").Currency(1250, true), u"(\u00a51,250)"_s);
    EXPECT_EQ(Of("ar_EG").ShortDate(day), u"16/3/2026"_s);
}

TEST_F(RegionalFormatsTest, DateFormWithAMonthsNameGivesWayToYearMonthDay) {
    EXPECT_EQ(Of("C").ShortDate(day), u"2026-03-16"_s);
}

TEST_F(RegionalFormatsTest, YearBeforeTheThousandsHasFourDigits) {
    EXPECT_EQ(Of("en_US").ShortDate(QDate(100, 1, 2)), u"1/2/0100"_s);
    EXPECT_EQ(Of("en_US").ParseDate(u"1/2/0100"_s), QDate(100, 1, 2));
}

TEST_F(RegionalFormatsTest, PlainNumberHasAPointAndNothingElse) {
    EXPECT_EQ(Of("en_US").PlainNumber(u" ($1,250.75) "_s), "-1250.75");
    EXPECT_EQ(Of("en_US").PlainNumber(u"-1.5e-3"_s), "-1.5E-3");
    EXPECT_EQ(Of("de_DE").PlainNumber(u"-1.250,75 \u20ac"_s), "-1250.75");
    EXPECT_EQ(Of("de_CH").PlainNumber(u"CHF-1\u2019250.75"_s), "-1250.75");
    EXPECT_EQ(Of("da_DK").PlainNumber(u"1.250,75 kr."_s), "1250.75");
    EXPECT_EQ(Of("en_SZ").PlainNumber(u"E1E3"_s), "1E3");
    EXPECT_EQ(Of("en_US").PlainNumber(u"1.250,75"_s), std::nullopt);
    EXPECT_EQ(Of("C").PlainNumber(u"1,250"_s), std::nullopt);
}

TEST_F(RegionalFormatsTest, LongTextIsAnsweredAtOnce) {
    EXPECT_EQ(Of("en_US").PlainNumber(QString(1'000'000, u'7') + u'x'), std::nullopt);
    EXPECT_EQ(Of("en_US").ParseDate(QString(1'000'000, u'7')), std::nullopt);
}

TEST_F(RegionalFormatsTest, DayOfTheWeekIsInTheLanguageOfTheDates) {
    EXPECT_EQ(Of("en_US").WeekdayName(day), u"Monday"_s);
    EXPECT_EQ(Of("en_US").WeekdayName({2026, 3, 15}), u"Sunday"_s);
    EXPECT_EQ(Of("de_DE").WeekdayName({2026, 3, 18}), u"Mittwoch"_s);
    qputenv("LC_TIME", "fr_FR.UTF-8");
    EXPECT_EQ(RegionalFormats::OfMachine().WeekdayName(day), u"lundi"_s);
    qputenv("LC_TIME", "C");
    EXPECT_EQ(RegionalFormats::OfMachine().WeekdayName(day), u"Monday"_s);
}
