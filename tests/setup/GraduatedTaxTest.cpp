#include "setup/GraduatedTax.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

class GraduatedTaxTest : public OfficeTest {
protected:
    LiveSettings& live = office.settings;

    std::optional<int> Check(const QString& limit, const QString& surcharge) {
        live.txtGradulated = {limit, surcharge};
        live.ckApplyGraduated = 1;
        user.Beeps = 0;
        return CheckGraduatedScheme(live, user);
    }
};

TEST_F(GraduatedTaxTest, NumbersBecomeCurrencyTexts) {
    EXPECT_EQ(Check(u"1000"_s, u"2.5"_s), std::nullopt);
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$2.50"_s);
    EXPECT_EQ(live.ckApplyGraduated, 1);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(GraduatedTaxTest, CurrencyTextCountsAsANumber) {
    EXPECT_EQ(Check(u"$1,250.00"_s, u"$0.00"_s), std::nullopt);
    EXPECT_EQ(live.txtGradulated[0], u"$1,250.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$0.00"_s);
    EXPECT_EQ(live.ckApplyGraduated, 1);
}

TEST_F(GraduatedTaxTest, AmountsAreThoseOfTheRegion) {
    UseLocale("de_DE");
    EXPECT_EQ(Check(u"1.250,00\u00a0\u20ac"_s, u"2,5"_s), std::nullopt);
    EXPECT_EQ(live.txtGradulated[0], u"1.250,00\u00a0\u20ac"_s);
    EXPECT_EQ(live.txtGradulated[1], u"2,50\u00a0\u20ac"_s);
    EXPECT_EQ(Check(u"$1,250.00"_s, u"2,5"_s), 0);
    EXPECT_EQ(live.txtGradulated[0], u"0,00\u00a0\u20ac"_s);
}

TEST_F(GraduatedTaxTest, LimitOfZeroSwitchesTheSchemeOff) {
    for (const QString& zero : {u"0"_s, u"$0.00"_s, u"0.004"_s}) {
        EXPECT_EQ(Check(zero, u"2.5"_s), std::nullopt);
        EXPECT_EQ(live.txtGradulated[0], u"$0.00"_s) << zero.toStdString();
        EXPECT_EQ(live.ckApplyGraduated, 0) << zero.toStdString();
        EXPECT_EQ(live.txtGradulated[1], u"$2.50"_s);
        EXPECT_EQ(user.Beeps, 0);
    }
}

TEST_F(GraduatedTaxTest, SurchargeOfZeroLeavesTheSchemeOn) {
    EXPECT_EQ(Check(u"100"_s, u"0"_s), std::nullopt);
    EXPECT_EQ(live.ckApplyGraduated, 1);
}

TEST_F(GraduatedTaxTest, SchemeThatIsOffStaysOff) {
    live.txtGradulated = {u"100"_s, u"1"_s};
    live.ckApplyGraduated = 0;
    EXPECT_EQ(CheckGraduatedScheme(live, user), std::nullopt);
    EXPECT_EQ(live.ckApplyGraduated, 0);
}

TEST_F(GraduatedTaxTest, LimitThatIsNoNumberIsResetWithABeepAndNothingFurtherHappens) {
    for (const QString& wrong : {u"abc"_s, QString(), u" "_s, u"1x"_s, u"$"_s}) {
        EXPECT_EQ(Check(wrong, u"2.5"_s), 0) << wrong.toStdString();
        EXPECT_EQ(live.txtGradulated[0], u"$0.00"_s);
        EXPECT_EQ(live.txtGradulated[1], u"2.5"_s);
        EXPECT_EQ(live.ckApplyGraduated, 1);
        EXPECT_EQ(user.Beeps, 1);
    }
}

TEST_F(GraduatedTaxTest, LettersInTheSurchargeWithAValidLimitFormatTheFirstAndResetTheSecond) {
    EXPECT_EQ(Check(u"1000"_s, u"abc"_s), 1);
    EXPECT_EQ(live.txtGradulated[0], u"$1,000.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$0.00"_s);
    EXPECT_EQ(live.ckApplyGraduated, 1);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(GraduatedTaxTest, LimitOfZeroBesideLettersLeavesTheSchemeOnUntilBothAreRight) {
    EXPECT_EQ(Check(u"0"_s, u"abc"_s), 1);
    EXPECT_EQ(live.ckApplyGraduated, 1);
    EXPECT_EQ(CheckGraduatedScheme(live, user), std::nullopt);
    EXPECT_EQ(live.ckApplyGraduated, 0);
}

TEST_F(GraduatedTaxTest, BeepsWhetherAlarmsAreOnOrOff) {
    live.AlarmOn = false;
    EXPECT_EQ(Check(u"abc"_s, u"1"_s), 0);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(GraduatedTaxTest, AmountBeyondTheCurrencyRangeFailsByName) {
    const RuntimeFailure failure = FailureOf([&] { Check(u"9E30"_s, u"1"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"The number 9E30 is outside its range (the graduated tax scheme)."_s);
}

TEST_F(GraduatedTaxTest, NothingIsWrittenToDisk) {
    const auto before = folder.Contents();
    Check(u"1000"_s, u"2.5"_s);
    Check(u"abc"_s, u"2.5"_s);
    ClearGraduatedScheme(live);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(GraduatedTaxTest, ClearSetsBothToZeroAndLeavesTheTick) {
    live.txtGradulated = {u"$5.00"_s, u"abc"_s};
    live.ckApplyGraduated = 1;
    ClearGraduatedScheme(live);
    EXPECT_EQ(live.txtGradulated[0], u"$0.00"_s);
    EXPECT_EQ(live.txtGradulated[1], u"$0.00"_s);
    EXPECT_EQ(live.ckApplyGraduated, 1);
}
