#include "store/VerifyDataRoutines.h"

#include "support/ScriptedOperator.h"
#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class VerifyDataRoutinesTest : public testing::Test {
protected:
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
