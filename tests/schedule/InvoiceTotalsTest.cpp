#include "schedule/InvoiceTotals.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

/// Amounts of one slip under rates of 6.25 and 1.5, both applied in the plain scheme.
class InvoiceTotalsTest : public OfficeTest {
protected:
    InvoiceTotalsTest() {
        settings.cboTaxHeading1 = u"Sales Tax"_s;
        settings.cboTaxHeading2 = u"County Tax"_s;
        settings.cboRate1 = u"6.25"_s;
        settings.cboRate2 = u"1.5"_s;
        settings.ckApply1stTax = 1;
        settings.ckApply2ndTax = 1;
        settings.ckApplyGraduated = 0;
        settings.txtGradulated = {u"$100.00"_s, u"$2.00"_s};
        options[TaxOption::Both] = {true, true};
        captions.lblTotal = u"$14.65"_s;
        captions.lblCharge = u"$5.00"_s;
        captions.lblTax1 = u"$0.00"_s;
        captions.lblTax2 = u"$0.00"_s;
    }

    void Calculate(qint64 tenThousandths) {
        CalculateTaxes(Currency::OfTenThousandths(tenThousandths), settings, options, captions);
    }
    void TurnOn(TaxOption only) {
        for (const TaxOption option :
             {TaxOption::PrimaryOnly, TaxOption::SecondaryOnly, TaxOption::Both})
            options[option].isOn = option == only;
    }
    FailureKind KindOfGrandTotal() {
        return FailureOf([this] { UpdateGrandTotal(captions); }).Kind();
    }

    LiveSettings& settings = office.settings;
    TaxOptions options;
    SlipCaptions captions;
};

constexpr qint64 workedSubTotal = 146'500;

TEST_F(InvoiceTotalsTest, BothTaxesAppliedTurnOnTheOptionForBothAndLeaveTheOthersAsTheyStand) {
    options[TaxOption::PrimaryOnly] = {true, true};
    options[TaxOption::SecondaryOnly] = {false, false};
    options[TaxOption::Both] = {false, false};
    SetTaxOptions(settings, options);
    EXPECT_TRUE(options[TaxOption::Both].isOn);
    EXPECT_TRUE(options[TaxOption::Both].isEnabled);
    EXPECT_TRUE(options[TaxOption::PrimaryOnly].isOn);
    EXPECT_TRUE(options[TaxOption::PrimaryOnly].isEnabled);
    EXPECT_FALSE(options[TaxOption::SecondaryOnly].isOn);
    EXPECT_FALSE(options[TaxOption::SecondaryOnly].isEnabled);
}

TEST_F(InvoiceTotalsTest, FirstTaxAloneTurnsOnThePrimaryOptionOnly) {
    settings.ckApply2ndTax = 0;
    options[TaxOption::SecondaryOnly] = {true, true};
    SetTaxOptions(settings, options);
    EXPECT_TRUE(options[TaxOption::PrimaryOnly].isOn);
    EXPECT_TRUE(options[TaxOption::PrimaryOnly].isEnabled);
    EXPECT_FALSE(options[TaxOption::SecondaryOnly].isOn);
    EXPECT_FALSE(options[TaxOption::SecondaryOnly].isEnabled);
    EXPECT_FALSE(options[TaxOption::Both].isOn);
    EXPECT_FALSE(options[TaxOption::Both].isEnabled);
}

TEST_F(InvoiceTotalsTest, SecondTaxAloneTurnsOnTheSecondaryOptionOnly) {
    settings.ckApply1stTax = 0;
    options[TaxOption::PrimaryOnly] = {true, true};
    SetTaxOptions(settings, options);
    EXPECT_FALSE(options[TaxOption::PrimaryOnly].isOn);
    EXPECT_FALSE(options[TaxOption::PrimaryOnly].isEnabled);
    EXPECT_TRUE(options[TaxOption::SecondaryOnly].isOn);
    EXPECT_TRUE(options[TaxOption::SecondaryOnly].isEnabled);
    EXPECT_FALSE(options[TaxOption::Both].isOn);
    EXPECT_FALSE(options[TaxOption::Both].isEnabled);
}

TEST_F(InvoiceTotalsTest, NoTaxAppliedTurnsAllOptionsOffAndDisablesThem) {
    settings.ckApply1stTax = 0;
    settings.ckApply2ndTax = 0;
    options.buttons.fill({true, true});
    SetTaxOptions(settings, options);
    for (const TaxOptions::Button& button : options.buttons) {
        EXPECT_FALSE(button.isOn);
        EXPECT_FALSE(button.isEnabled);
    }
}

TEST_F(InvoiceTotalsTest, EitherTaxCountsAsTaxApplied) {
    EXPECT_TRUE(IsTaxApplied(settings));
    settings.ckApply1stTax = 0;
    EXPECT_TRUE(IsTaxApplied(settings));
    settings.ckApply2ndTax = 0;
    EXPECT_FALSE(IsTaxApplied(settings));
    settings.ckApply1stTax = 1;
    EXPECT_TRUE(IsTaxApplied(settings));
}

TEST_F(InvoiceTotalsTest, HeadingsAreThoseOfTheSettings) {
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTaxHeading1, u"Sales Tax"_s);
    EXPECT_EQ(captions.lblTaxHeading2, u"County Tax"_s);
}

TEST_F(InvoiceTotalsTest, WorkedExampleOfThePlainScheme) {
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"$0.92"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.22"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$15.79"_s);
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblGrandtotal, u"$20.79"_s);
}

TEST_F(InvoiceTotalsTest, WorkedExampleAtOrBelowTheLimitKeepsUnroundedPlainNumbers) {
    settings.ckApplyGraduated = 1;
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"0.915625"_s);
    EXPECT_EQ(captions.lblTax2, u"0.21975"_s);
    // 14.65 + 0.9156 + 0.2198 = 15.7854
    EXPECT_EQ(captions.lblGrandtotal, u"$15.79"_s);
    UpdateGrandTotal(captions);
    // 14.65 + 5.00 + 0.9156 + 0.2198 = 20.7854
    EXPECT_EQ(captions.lblGrandtotal, u"$20.79"_s);
}

TEST_F(InvoiceTotalsTest, SubTotalOfZeroBelowTheLimitGivesPlainZeros) {
    settings.ckApplyGraduated = 1;
    Calculate(0);
    EXPECT_EQ(captions.lblTax1, u"0"_s);
    EXPECT_EQ(captions.lblTax2, u"0"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$0.00"_s);
}

TEST_F(InvoiceTotalsTest, TinyTaxIsShownWithAnExponentAndReadBack) {
    settings.ckApplyGraduated = 1;
    settings.cboRate1 = u"0.5"_s;
    settings.cboRate2 = u"0.7"_s;
    Calculate(100);
    EXPECT_EQ(captions.lblTax1, u"5E-05"_s);
    EXPECT_EQ(captions.lblTax2, u"7E-05"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$0.01"_s);
    captions.lblTotal = u"0.0049"_s;
    captions.lblCharge = u"0"_s;
    UpdateGrandTotal(captions);
    // 0.0049 + 0.0000 + 0.0001: half a cent, with the second tax rounded up.
    EXPECT_EQ(captions.lblGrandtotal, u"$0.01"_s);
}

TEST_F(InvoiceTotalsTest, WorkedExampleAboveTheLimit) {
    settings.ckApplyGraduated = 1;
    Calculate(2'000'000);
    EXPECT_EQ(captions.lblTax1, u"$3.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
    EXPECT_EQ(captions.lblTaxHeading1, u"Sales Tax"_s);
    EXPECT_EQ(captions.lblTaxHeading2, u"County Tax"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$205.00"_s);
    captions.lblTotal = u"$200.00"_s;
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblGrandtotal, u"$210.00"_s);
}

TEST_F(InvoiceTotalsTest, PrimaryOptionComputesTheFirstTaxAndZeroesTheSecond) {
    TurnOn(TaxOption::PrimaryOnly);
    captions.lblTax2 = u"$9.99"_s;
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"$0.92"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.00"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$15.57"_s);
}

TEST_F(InvoiceTotalsTest, SecondaryOptionComputesTheSecondTaxAndZeroesTheFirst) {
    TurnOn(TaxOption::SecondaryOnly);
    captions.lblTax1 = u"$9.99"_s;
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"$0.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.22"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$14.87"_s);
}

TEST_F(InvoiceTotalsTest, NoOptionOnGivesTwoZeroTaxes) {
    options.buttons.fill({});
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"$0.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.00"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$14.65"_s);
}

TEST_F(InvoiceTotalsTest, GrandTotalOfTheTaxCalculationLeavesOutTheCharge) {
    captions.lblCharge = u"$1,000.00"_s;
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblGrandtotal, u"$15.79"_s);
}

TEST_F(InvoiceTotalsTest, ChargeIsNotTaxed) {
    captions.lblCharge = u"$1,000.00"_s;
    Calculate(workedSubTotal);
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblTax1, u"$0.92"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$1,015.79"_s);
}

TEST_F(InvoiceTotalsTest, CommaInARateEndsTheNumber) {
    settings.cboRate1 = u"5,0"_s;
    settings.cboRate2 = u"1,5"_s;
    Calculate(1'000'000);
    EXPECT_EQ(captions.lblTax1, u"$5.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$1.00"_s);
}

TEST_F(InvoiceTotalsTest, RateHasAPointAsDecimalMarkInARegionWithTheComma) {
    UseLocale("de_DE");
    settings.cboRate2 = u"1,5"_s;
    Calculate(1'000'000);
    EXPECT_EQ(captions.lblTax1, u"6,25\u00a0\u20ac"_s);
    EXPECT_EQ(captions.lblTax2, u"1,00\u00a0\u20ac"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"107,25\u00a0\u20ac"_s);
}

TEST_F(InvoiceTotalsTest, RateSkipsBlanksAndStopsAtTheFirstOtherCharacter) {
    settings.cboRate1 = u"  6 .2 5 percent 9"_s;
    settings.cboRate2 = u"2%"_s;
    Calculate(1'000'000);
    EXPECT_EQ(captions.lblTax1, u"$6.25"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
}

TEST_F(InvoiceTotalsTest, RateWithoutALeadingNumberIsZero) {
    settings.cboRate1 = u"none"_s;
    settings.cboRate2.clear();
    Calculate(1'000'000);
    EXPECT_EQ(captions.lblTax1, u"$0.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.00"_s);
}

TEST_F(InvoiceTotalsTest, RateWithASignIsZero) {
    settings.cboRate1 = u"-5"_s;
    settings.cboRate2 = u"+5"_s;
    Calculate(1'000'000);
    EXPECT_EQ(captions.lblTax1, u"$0.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.00"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$100.00"_s);
}

TEST_F(InvoiceTotalsTest, TaxIsRoundedHalfAwayFromZeroByItsFormatting) {
    settings.cboRate1 = u"5"_s;
    settings.cboRate2 = u"2.5"_s;
    // 20.10 at 5 is 1.005, and at 2.5 it is 0.5025.
    Calculate(201'000);
    EXPECT_EQ(captions.lblTax1, u"$1.01"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.50"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$21.61"_s);
}

TEST_F(InvoiceTotalsTest, SubTotalOfZeroGivesZeroTaxes) {
    Calculate(0);
    EXPECT_EQ(captions.lblTax1, u"$0.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.00"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$0.00"_s);
}

TEST_F(InvoiceTotalsTest, SubTotalExactlyAtTheLimitIsTaxedAtThePrimaryRate) {
    settings.ckApplyGraduated = 1;
    Calculate(1'000'000);
    EXPECT_EQ(captions.lblTax1, u"6.25"_s);
    EXPECT_EQ(captions.lblTax2, u"1.5"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$107.75"_s);
}

TEST_F(InvoiceTotalsTest, OneTenThousandthAboveTheLimitIsAboveIt) {
    settings.ckApplyGraduated = 1;
    Calculate(1'000'001);
    EXPECT_EQ(captions.lblTax1, u"$1.50"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$103.50"_s);
}

TEST_F(InvoiceTotalsTest, GraduatedSchemeTakesNoNoticeOfTheOptions) {
    settings.ckApplyGraduated = 1;
    options.buttons.fill({});
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"0.915625"_s);
    EXPECT_EQ(captions.lblTax2, u"0.21975"_s);
    Calculate(2'000'000);
    EXPECT_EQ(captions.lblTax1, u"$3.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
}

TEST_F(InvoiceTotalsTest, SecondTaxNotAppliedKeepsTheSurchargeOfTheSlipBefore) {
    settings.ckApplyGraduated = 1;
    settings.ckApply2ndTax = 0;
    Calculate(2'000'000);
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"0.915625"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
    // 14.65 + 0.9156 + 2.00 = 17.5656
    EXPECT_EQ(captions.lblGrandtotal, u"$17.57"_s);
}

TEST_F(InvoiceTotalsTest, GraduatedSchemeTaxesAtBothRatesThoughOnlyTheSecondTaxIsApplied) {
    settings.ckApplyGraduated = 1;
    settings.ckApply1stTax = 0;
    Calculate(workedSubTotal);
    // The scheme asks for the second tax alone, never for the first.
    EXPECT_EQ(captions.lblTax1, u"0.915625"_s);
    EXPECT_EQ(captions.lblTax2, u"0.21975"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$15.79"_s);
    Calculate(2'000'000);
    EXPECT_EQ(captions.lblTax1, u"$3.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
}

TEST_F(InvoiceTotalsTest, SurchargeIsFormattedAsCurrencyText) {
    settings.ckApplyGraduated = 1;
    settings.txtGradulated = {u"100"_s, u"1250.5"_s};
    Calculate(2'000'000);
    EXPECT_EQ(captions.lblTax2, u"$1,250.50"_s);
}

TEST_F(InvoiceTotalsTest, UnroundedTaxIsReadBackInARegionWithTheComma) {
    UseLocale("de_DE");
    settings.ckApplyGraduated = 1;
    settings.txtGradulated = {u"100,00\u00a0\u20ac"_s, u"2,00\u00a0\u20ac"_s};
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"0,915625"_s);
    EXPECT_EQ(captions.lblTax2, u"0,21975"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"15,79\u00a0\u20ac"_s);
}

TEST_F(InvoiceTotalsTest, AnyOtherSchemeSetsNoTaxButTheHeadingsAndTheGrandTotal) {
    settings.ckApplyGraduated = 2;
    captions.lblTax1 = u"$1.11"_s;
    captions.lblTax2 = u"$2.22"_s;
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax1, u"$1.11"_s);
    EXPECT_EQ(captions.lblTax2, u"$2.22"_s);
    EXPECT_EQ(captions.lblTaxHeading1, u"Sales Tax"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$17.98"_s);
}

TEST_F(InvoiceTotalsTest, GrandTotalAddsAllFourCaptionsAsTheyRead) {
    captions.lblTotal = u"$1,250.00"_s;
    captions.lblCharge = u"$5.50"_s;
    captions.lblTax1 = u"0.915625"_s;
    captions.lblTax2 = u"$2.00"_s;
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblGrandtotal, u"$1,258.42"_s);
}

TEST_F(InvoiceTotalsTest, TaxesThatAreNotAppliedStillCountInTheGrandTotal) {
    settings.ckApply1stTax = 0;
    settings.ckApply2ndTax = 0;
    captions.lblTax1 = u"$1.00"_s;
    captions.lblTax2 = u"$2.00"_s;
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblGrandtotal, u"$22.65"_s);
}

TEST_F(InvoiceTotalsTest, GrandTotalCarriesFourDecimals) {
    captions.lblTotal = u"$0.00"_s;
    captions.lblCharge = u"$0.00"_s;
    // To the cent both would be nothing.
    captions.lblTax1 = u"0.0025"_s;
    captions.lblTax2 = u"0.0025"_s;
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblGrandtotal, u"$0.01"_s);
}

TEST_F(InvoiceTotalsTest, UnroundedTaxIsRoundedToFourDecimalsBeforeItIsAdded) {
    captions.lblTotal = u"$0.00"_s;
    captions.lblCharge = u"$0.00"_s;
    captions.lblTax1 = u"0.00499"_s;
    captions.lblTax2 = u"0"_s;
    UpdateGrandTotal(captions);
    EXPECT_EQ(captions.lblGrandtotal, u"$0.01"_s);
}

TEST_F(InvoiceTotalsTest, CaptionThatIsNoAmountIsATypeMismatch) {
    for (QString SlipCaptions::*caption : {&SlipCaptions::lblTotal, &SlipCaptions::lblCharge,
                                           &SlipCaptions::lblTax1, &SlipCaptions::lblTax2}) {
        for (const QString& text : {QString(), u"abc"_s, u"$"_s, u"1.2.3"_s, u"12 apples"_s}) {
            const QString before = std::exchange(captions.*caption, text);
            EXPECT_EQ(KindOfGrandTotal(), FailureKind::TypeMismatch) << text.toStdString();
            captions.*caption = before;
        }
    }
}

TEST_F(InvoiceTotalsTest, GrandTotalBeyondTheCurrencyRangeIsAnOverflow) {
    captions.lblTotal = u"922337203685477.5807"_s;
    captions.lblCharge = u"0.0001"_s;
    EXPECT_EQ(KindOfGrandTotal(), FailureKind::Overflow);
    captions.lblTotal = u"922337203685477.5808"_s;
    captions.lblCharge = u"0"_s;
    EXPECT_EQ(KindOfGrandTotal(), FailureKind::Overflow);
}

TEST_F(InvoiceTotalsTest, TaxBeyondTheCurrencyRangeIsAnOverflow) {
    settings.cboRate1 = u"100"_s;
    EXPECT_EQ(FailureOf([this] { Calculate(9'223'372'036'854'775'807); }).Kind(),
              FailureKind::Overflow);
}

TEST_F(InvoiceTotalsTest, LimitThatIsNoAmountIsATypeMismatch) {
    settings.ckApplyGraduated = 1;
    settings.txtGradulated[0].clear();
    EXPECT_EQ(FailureOf([this] { Calculate(workedSubTotal); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(InvoiceTotalsTest, SurchargeThatIsNoAmountFailsAboveTheLimitOnly) {
    settings.ckApplyGraduated = 1;
    settings.txtGradulated[1] = u"two"_s;
    Calculate(workedSubTotal);
    EXPECT_EQ(captions.lblTax2, u"0.21975"_s);
    EXPECT_EQ(FailureOf([this] { Calculate(2'000'000); }).Kind(), FailureKind::TypeMismatch);
}

// Items that are added to a slip.

TEST_F(InvoiceTotalsTest, ItemTotalIsSellPriceTimesQuantity) {
    EXPECT_EQ(ItemTotal(u"$4.10"_s, u"3"_s), u"$12.30"_s);
    EXPECT_EQ(ItemTotal(u"$2.35"_s, u"1.5"_s), u"$3.53"_s);
    EXPECT_EQ(ItemTotal(u"$0.00"_s, u"7"_s), u"$0.00"_s);
    EXPECT_EQ(ItemTotal(u"$1,250.00"_s, u"1000000000"_s), u"$1,250,000,000,000.00"_s);
}

TEST_F(InvoiceTotalsTest, ItemTotalIsRoundedAsAPersonReadsIt) {
    // 1.005 lies below its half in binary.
    EXPECT_EQ(ItemTotal(u"$2.01"_s, u".5"_s), u"$1.01"_s);
    EXPECT_EQ(ItemTotal(u"$0.01"_s, u".4"_s), u"$0.00"_s);
}

TEST_F(InvoiceTotalsTest, ItemTotalReadsTheRegionsAmounts) {
    UseLocale("de_DE.UTF-8");
    EXPECT_EQ(ItemTotal(u"1.250,50\u00a0\u20ac"_s, u"2,5"_s), u"3.126,25\u00a0\u20ac"_s);
}

TEST_F(InvoiceTotalsTest, ItemTotalOfTextThatIsNoNumberIsATypeMismatch) {
    EXPECT_EQ(FailureOf([] { ItemTotal(u"free"_s, u"3"_s); }).Sentence(),
              u"The text \"free\" is not a number (the sell price)."_s);
    EXPECT_EQ(FailureOf([] { ItemTotal(u"$4.10"_s, u"dozen"_s); }).Sentence(),
              u"The text \"dozen\" is not a number (the quantity)."_s);
    EXPECT_EQ(FailureOf([] { ItemTotal(u"$4.10"_s, {}); }).Kind(), FailureKind::TypeMismatch);
}

/// Item lines of which only the totals are looked at.
class RecalcSlipTotalsTest : public InvoiceTotalsTest {
protected:
    void PutTotals(const QStringList& totals) {
        fgItems.SetRows(int(totals.size()) + 1);
        for (int row = 1; row <= totals.size(); ++row)
            fgItems.SetText(row, 3, totals[row - 1]);
    }
    void Recalculate(const QStringList& totals) {
        PutTotals(totals);
        RecalcSlipTotals(fgItems, settings, options, captions);
    }
    FailureKind KindOf(const QStringList& totals) {
        return FailureOf([&] { Recalculate(totals); }).Kind();
    }

    GridModel fgItems{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};
};

TEST_F(RecalcSlipTotalsTest, SubTotalIsTheSumOfTheItemTotals) {
    Recalculate({u"$12.30"_s, u"$2.35"_s});
    EXPECT_EQ(captions.lblTotal, u"$14.65"_s);
    Recalculate({u"$1,250.50"_s, u"2"_s, u"($3.00)"_s});
    EXPECT_EQ(captions.lblTotal, u"$1,249.50"_s);
    Recalculate({});
    EXPECT_EQ(captions.lblTotal, u"$0.00"_s);
}

TEST_F(RecalcSlipTotalsTest, TaxesFollowAndTheChargeIsLeftOutOfTheGrandTotal) {
    captions.fraTax = false;
    Recalculate({u"$12.30"_s, u"$2.35"_s});
    EXPECT_TRUE(captions.fraTax);
    EXPECT_EQ(captions.lblTaxHeading1, u"Sales Tax"_s);
    EXPECT_EQ(captions.lblTax1, u"$0.92"_s);
    EXPECT_EQ(captions.lblTax2, u"$0.22"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"$15.79"_s);
    EXPECT_EQ(captions.lblCharge, u"$5.00"_s);
}

TEST_F(RecalcSlipTotalsTest, OneTaxIsEnoughForBothToBeComputed) {
    for (qint16* apply : {&settings.ckApply1stTax, &settings.ckApply2ndTax}) {
        settings.ckApply1stTax = 0;
        settings.ckApply2ndTax = 0;
        *apply = 1;
        captions.fraTax = false;
        Recalculate({u"$14.65"_s});
        EXPECT_TRUE(captions.fraTax);
        EXPECT_EQ(captions.lblGrandtotal, u"$15.79"_s);
    }
}

TEST_F(RecalcSlipTotalsTest, WithoutATaxNothingButTheSubTotalChanges) {
    settings.ckApply1stTax = 0;
    settings.ckApply2ndTax = 0;
    captions.lblTax1 = u"$1.11"_s;
    captions.lblGrandtotal = u"$9.99"_s;
    for (const bool isShown : {true, false}) {
        captions.fraTax = isShown;
        Recalculate({u"$14.65"_s});
        EXPECT_EQ(captions.lblTotal, u"$14.65"_s);
        EXPECT_EQ(captions.fraTax, isShown);
        EXPECT_EQ(captions.lblTax1, u"$1.11"_s);
        EXPECT_EQ(captions.lblGrandtotal, u"$9.99"_s);
    }
}

TEST_F(RecalcSlipTotalsTest, FourDecimalsAreSummedAndTheTaxIsOfTheRoundedSum) {
    settings.cboRate1 = u"100"_s;
    Recalculate({u"0.0024"_s, u"0.0026"_s});
    EXPECT_EQ(captions.lblTotal, u"$0.01"_s);
    EXPECT_EQ(captions.lblTax1, u"$0.01"_s);
}

TEST_F(RecalcSlipTotalsTest, SumReachesTheLastAmountAndFailsBeyondIt) {
    settings.ckApply1stTax = 0;
    settings.ckApply2ndTax = 0;
    Recalculate({u"$922,337,203,685,477.00"_s, u"0.5807"_s});
    EXPECT_EQ(captions.lblTotal, u"$922,337,203,685,477.58"_s);
    EXPECT_EQ(KindOf({u"$922,337,203,685,477.00"_s, u"0.5808"_s}), FailureKind::Overflow);
    EXPECT_EQ(KindOf({u"$922,337,203,685,478.00"_s}), FailureKind::Overflow);
    EXPECT_EQ(captions.lblTotal, u"$922,337,203,685,477.58"_s);
}

TEST_F(RecalcSlipTotalsTest, TaxThatTakesTheGrandTotalBeyondTheLastAmountIsAnOverflow) {
    EXPECT_EQ(KindOf({u"$922,337,203,685,477.00"_s}), FailureKind::Overflow);
}

TEST_F(RecalcSlipTotalsTest, CellThatIsNoAmountIsATypeMismatch) {
    for (const QString& total : {QString(), u"free"_s, u"4.10 each"_s, u"1.2.3"_s})
        EXPECT_EQ(KindOf({u"$12.30"_s, total}), FailureKind::TypeMismatch) << total.toStdString();
}

TEST_F(RecalcSlipTotalsTest, AmountsAreInTheRegionsForm) {
    UseLocale("de_DE.UTF-8");
    Recalculate({u"1.250,50\u00a0\u20ac"_s, u"2,35\u00a0\u20ac"_s});
    EXPECT_EQ(captions.lblTotal, u"1.252,85\u00a0\u20ac"_s);
    EXPECT_EQ(captions.lblTax1, u"78,30\u00a0\u20ac"_s);
    EXPECT_EQ(captions.lblTax2, u"18,79\u00a0\u20ac"_s);
    EXPECT_EQ(captions.lblGrandtotal, u"1.349,94\u00a0\u20ac"_s);
}
