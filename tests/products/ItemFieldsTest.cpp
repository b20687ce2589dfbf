#include "products/ItemFields.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

class ItemFieldsTest : public OfficeTest {
protected:
    QString Left(const QString& text, bool isTaken) {
        QString amount = text;
        EXPECT_EQ(LeaveAmount(amount, user), isTaken) << text.toStdString();
        return amount;
    }
};

TEST_F(ItemFieldsTest, TypingReplacesAZeroCountAlone) {
    EXPECT_TRUE(TypingReplacesCount(u"0"_s));
    for (const QString& text : {u"00"_s, u"10"_s, u""_s, u"$0.00"_s})
        EXPECT_FALSE(TypingReplacesCount(text)) << text.toStdString();
}

TEST_F(ItemFieldsTest, AmountLeftBecomesCurrencyText) {
    EXPECT_EQ(Left(u"12.5"_s, true), u"$12.50"_s);
    EXPECT_EQ(Left(u"$1,250.00"_s, true), u"$1,250.00"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ItemFieldsTest, AmountLeftInAnotherRegionIsReadByItsMarks) {
    UseLocale("de_DE.UTF-8");
    EXPECT_EQ(Left(u"1250,5"_s, true), u"1.250,50\u00a0\u20ac"_s);
}

TEST_F(ItemFieldsTest, TextThatIsNoAmountBeepsIsEmptiedAndRefused) {
    EXPECT_EQ(Left(u"abc"_s, false), QString());
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Left(u"1.2.3"_s, false), QString());
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(ItemFieldsTest, NumberBeyondAnyAmountIsRefusedLikeNoNumber) {
    EXPECT_EQ(Left(u"1e300"_s, false), QString());
    EXPECT_EQ(Left(u"99999999999999999999"_s, false), QString());
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(ItemFieldsTest, EmptyAmountMayBeLeft) {
    EXPECT_EQ(Left({}, true), QString());
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ItemFieldsTest, EmptyCountLeftBecomesZero) {
    QString count;
    LeaveCount(count);
    EXPECT_EQ(count, u"0"_s);
    count = u"abc"_s;
    LeaveCount(count);
    EXPECT_EQ(count, u"abc"_s);
}
