#include "store/VerifyDataRoutines.h"

#include "platform/RegionalFormats.h"
#include "support/ScriptedOperator.h"
#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Under United States formats.
class VerifyDataRoutinesTest : public testing::Test {
protected:
    VerifyDataRoutinesTest() {
        const QLocale american(u"en_US"_s);
        RegionalFormats::SetCurrent({american, american});
    }

    ushort Numeric(char16_t key, const QString& fieldText) {
        return FilterNumericKey(key, fieldText, user);
    }

    ScriptedOperator user;
};

} // namespace

TEST_F(VerifyDataRoutinesTest, NumericKeyRefusesAZeroInAnEmptyFieldWithABeep) {
    EXPECT_EQ(Numeric(u'0', u""_s), 0);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(VerifyDataRoutinesTest, NumericKeyTakesAZeroInAnyOtherField) {
    EXPECT_EQ(Numeric(u'0', u"1"_s), u'0');
    EXPECT_EQ(Numeric(u'0', u"0"_s), u'0');
    EXPECT_EQ(Numeric(u'0', u" "_s), u'0');
    EXPECT_EQ(Numeric(u'0', u"."_s), u'0');
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, NumericKeySwallowsASecondPointInSilence) {
    EXPECT_EQ(Numeric(u'.', u"1.5"_s), 0);
    EXPECT_EQ(Numeric(u'.', u"."_s), 0);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, NumericKeyTakesAFirstPoint) {
    EXPECT_EQ(Numeric(u'.', u""_s), u'.');
    EXPECT_EQ(Numeric(u'.', u"15"_s), u'.');
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, NumericKeyLetsBackspacePass) {
    EXPECT_EQ(Numeric(8, u""_s), 8);
    EXPECT_EQ(Numeric(8, u"1.5"_s), 8);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, NumericKeyTakesEveryDigit) {
    for (const char16_t digit : u"123456789"_s.toStdU16String())
        EXPECT_EQ(Numeric(digit, u""_s), digit);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, NumericKeyRefusesEveryOtherCharacterWithABeep) {
    int refused = 0;
    for (const char16_t key : u"x ,-+$/:eE\r\t\u00bd\u0661\uff11"_s.toStdU16String()) {
        EXPECT_EQ(Numeric(key, u"1"_s), 0);
        EXPECT_EQ(user.Beeps, ++refused);
    }
}

TEST_F(VerifyDataRoutinesTest, DigitKeyTakesDigitsPointsAndBackspace) {
    for (const char16_t key : u"0123456789.\b"_s.toStdU16String())
        EXPECT_EQ(FilterDigitKey(key), key);
}

TEST_F(VerifyDataRoutinesTest, DigitKeyLetsASecondPointAndALeadingZeroThrough) {
    // It doesn't see the field, so it can't tell a second point from a first one.
    EXPECT_EQ(FilterDigitKey(u'.'), u'.');
    EXPECT_EQ(FilterDigitKey(u'.'), u'.');
    EXPECT_EQ(FilterDigitKey(u'0'), u'0');
}

TEST_F(VerifyDataRoutinesTest, DigitKeySwallowsEveryOtherCharacter) {
    for (const char16_t key : u"x ,-+$/:\r\t\u00bd\u0661"_s.toStdU16String())
        EXPECT_EQ(FilterDigitKey(key), 0);
}

namespace {

QString InvalidCharacter(char16_t key) {
    return u"This character, ("_s + QChar(key) + u") is invalid for this field"_s;
}

} // namespace

TEST_F(VerifyDataRoutinesTest, NoSpecialRefusesEachSeparatorWithABeepAndAMessage) {
    for (const char16_t key : u",&.\\*/?"_s.toStdU16String()) {
        user.ExpectMessage(InvalidCharacter(key), u"Invalid Key entry"_s);
        EXPECT_EQ(FilterNoSpecial(key, u""_s, user), 0);
        user.ExpectNothingLeft();
    }
    EXPECT_EQ(user.Beeps, 7);
}

TEST_F(VerifyDataRoutinesTest, NoSpecialLetsTheSlashThroughOnAFieldThatHoldsANumber) {
    EXPECT_EQ(FilterNoSpecial(u'/', u"123"_s, user), u'/');
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, NoSpecialRefusesTheSlashOnAFieldThatHoldsNoPlainNumber) {
    user.ExpectMessage(u"This character, (/) is invalid for this field"_s, u"Invalid Key entry"_s);
    EXPECT_EQ(FilterNoSpecial(u'/', u"12A"_s, user), 0);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(VerifyDataRoutinesTest, NoSpecialLetsAllOtherKeysPass) {
    for (const char16_t key : u"aZ09 -_'\"#:;\u00e9\b"_s.toStdU16String())
        EXPECT_EQ(FilterNoSpecial(key, u"A"_s, user), key);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, AddressKeyRefusesTheDoubleQuoteWithABeepAndAMessage) {
    user.ExpectMessage(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
    EXPECT_EQ(FilterAddressKey(u'"', user), 0);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(VerifyDataRoutinesTest, AddressKeyLetsAllOtherKeysPass) {
    for (const char16_t key : u"aZ09 ,&.\\*/?'\b"_s.toStdU16String())
        EXPECT_EQ(FilterAddressKey(key, user), key);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, CurrencyFieldBringsANumberToItsCurrencyText) {
    QString text = u"12.5"_s;
    EXPECT_TRUE(FormatCurrencyField(text, user));
    EXPECT_EQ(text, u"$12.50"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(VerifyDataRoutinesTest, CurrencyFieldEmptiesAnyOtherTextWithABeep) {
    QString text = u"abc"_s;
    EXPECT_FALSE(FormatCurrencyField(text, user));
    EXPECT_EQ(text, u""_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(VerifyDataRoutinesTest, CurrencyFieldReadsNumbersInTheRegionsForm) {
    const QLocale german(u"de_DE"_s);
    RegionalFormats::SetCurrent({german, german});
    QString text = u"1.234,5"_s;
    EXPECT_TRUE(FormatCurrencyField(text, user));
    EXPECT_EQ(text, u"1.234,50\u00a0\u20ac"_s);
    EXPECT_EQ(FilterNoSpecial(u'/', u"1.234,5"_s, user), u'/');
    EXPECT_EQ(FilterNoSpecial(u'/', u"12 \u20ac"_s, user), u'/');
}

TEST_F(VerifyDataRoutinesTest, CurrencyFieldOfNothingOrOfTooMuchIsEmptiedWithABeep) {
    for (const QString& typed : {QString(), u"1e300"_s}) {
        QString text = typed;
        EXPECT_FALSE(FormatCurrencyField(text, user));
        EXPECT_EQ(text, u""_s);
    }
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(VerifyDataRoutinesTest, NoSpecialTakesAnAmountForAPlainNumber) {
    EXPECT_EQ(FilterNoSpecial(u'/', u"$12"_s, user), u'/');
    EXPECT_EQ(FilterNoSpecial(u'/', u"1,234"_s, user), u'/');
}

TEST_F(VerifyDataRoutinesTest, InvalidDateIsTold) {
    user.ExpectMessage(u"Your Calendar Selection is Invalid"_s);
    DateIsInvalid(user);
}

TEST_F(VerifyDataRoutinesTest, AmountKeyIsANumericKeyThatBeepsForASecondPoint) {
    const auto filter = [this](char16_t key, const QString& fieldText) {
        return FilterAmountKey(key, fieldText, user);
    };
    EXPECT_EQ(filter(u'5', u"1"_s), u'5');
    EXPECT_EQ(filter(u'.', u"1"_s), u'.');
    EXPECT_EQ(filter(8, u"1.5"_s), 8);
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(filter(u'.', u"1.5"_s), 0);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(filter(u'0', QString()), 0);
    EXPECT_EQ(user.Beeps, 2);
    EXPECT_EQ(filter(u'x', u"1"_s), 0);
    EXPECT_EQ(user.Beeps, 3);
}
