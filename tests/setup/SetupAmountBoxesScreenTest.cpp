#include "setup/SetupScreenTest.h"

using namespace Qt::StringLiterals;

// Amount boxes.

class AmountBoxes : public SetupScreen {
protected:
    void OpenCharge() {
        StartSetup();
        GoTo(DeliveriesInvoicing);
        ClickInto(charge);
    }
    void OpenPanel() {
        StartSetup();
        GoTo(Taxation);
        ClickOn(u"cmdGraduatedTax(0)"_s);
    }
    QLineEdit* Box(const QString& name) { return On<QLineEdit>(name); }
};

TEST_F(AmountBoxes, KeyDownEmptiesABoxAtZeroSoThatOneTypesOverIt) {
    OpenCharge();
    Type(Box(charge), u"7"_s);
    EXPECT_EQ(Text(charge), u"7"_s);
    Type(Box(charge), u"5.25"_s);
    EXPECT_EQ(Text(charge), u"75.25"_s);
    Tick(u"ckDelete"_s);
    EXPECT_EQ(Text(charge), u"$75.25"_s);
    EXPECT_EQ(Live().txtDeliveryCharge, u"$75.25"_s);
    ClickInto(charge);
    Press(Box(charge), Qt::Key_End);
    EXPECT_EQ(Text(charge), u"$75.25"_s);
    ExpectNoFailure();
}

TEST_F(AmountBoxes, AnyKeyEmptiesABoxAtZeroButOnesThatLeadAwayDoNot) {
    OpenCharge();
    Press(Box(charge), Qt::Key_Shift);
    EXPECT_EQ(Text(charge), u"$0.00"_s);
    Press(Box(charge), Qt::Key_Tab);
    EXPECT_EQ(Text(charge), u"$0.00"_s);
    ExpectNoFailure();
    ClickInto(charge);
    Press(Box(charge), Qt::Key_Left);
    EXPECT_EQ(Text(charge), QString());
}

TEST_F(AmountBoxes, KeyThatIsRefusedEmptiesTheBoxAllTheSame) {
    OpenCharge();
    Type(Box(charge), u"x"_s);
    EXPECT_EQ(Text(charge), QString());
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(AmountBoxes, ChargeRefusesLettersLeadingZeroAndASecondPoint) {
    OpenCharge();
    Type(Box(charge), u"0"_s);
    EXPECT_EQ(Text(charge), QString());
    EXPECT_EQ(user.Beeps, 1);
    TypeAny(Box(charge), u"1x0-,$\u00e9"_s);
    EXPECT_EQ(Text(charge), u"10"_s);
    EXPECT_EQ(user.Beeps, 6);
    Type(Box(charge), u".5.5"_s);
    EXPECT_EQ(Text(charge), u"10.55"_s);
    EXPECT_EQ(user.Beeps, 6);
    Press(Box(charge), Qt::Key_Backspace);
    EXPECT_EQ(Text(charge), u"10.5"_s);
}

TEST_F(AmountBoxes, PastedChargeGoesThroughTheFilterUpToTheFirstRefusal) {
    OpenCharge();
    Paste(charge, u"12.5 dollars"_s);
    EXPECT_EQ(Text(charge), u"12.5"_s);
    EXPECT_EQ(user.Beeps, 1);
    Replace(Box(charge), QString());
    Paste(charge, u"\u4e2d\u20ac\u00e9"_s);
    EXPECT_EQ(Text(charge), QString());
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(AmountBoxes, LeavingTheChargeWritesItAsCurrency) {
    OpenCharge();
    const std::pair<QString, QString> rows[] = {
        {u"1234.565"_s, u"$1,234.57"_s}, {u"5"_s, u"$5.00"_s}, {u".5"_s, u"$0.50"_s}};
    for (const auto& [typed, shown] : rows) {
        Enter(charge, typed);
        Press(Box(charge), Qt::Key_Tab);
        EXPECT_EQ(Text(charge), shown);
        EXPECT_EQ(Live().txtDeliveryCharge, shown);
    }
    ExpectNoFailure();
}

TEST_F(AmountBoxes, LeavingTheChargeWritesItAsTheRegionsCurrency) {
    UseLocale("de_DE");
    OpenCharge();
    Type(Box(charge), u"1234"_s);
    Tick(u"ckDelete"_s);
    EXPECT_EQ(Text(charge), u"1.234,00\u00a0\u20ac"_s);
}

TEST_F(AmountBoxes, LeavingTheChargeEmptyOrWithoutANumberFails) {
    for (const QString& typed : {QString(), u"."_s}) {
        Failures().clear();
        OpenCharge();
        Enter(charge, typed);
        Press(Box(charge), Qt::Key_Tab);
        ExpectFailure(FailureKind::TypeMismatch, u"(the delivery charge of the setup screen)"_s);
    }
}

TEST_F(AmountBoxes, ChargeBeyondTheCurrencyRangeFailsOnLeaving) {
    OpenCharge();
    Type(Box(charge), QString(30, u'9'));
    Tick(u"ckDelete"_s);
    ExpectFailure(FailureKind::Overflow, u"(the delivery charge of the setup screen)"_s);
}

TEST_F(AmountBoxes, EnterInAChargeOfZeroMovesOnAndLeavesIt) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        OpenCharge();
        EXPECT_EQ(Text(charge), u"$0.00"_s);
        Press(Box(charge), key);
        EXPECT_TRUE(On<QWidget>(u"ckDelete"_s)->hasFocus());
        EXPECT_EQ(Text(charge), u"$0.00"_s);
        EXPECT_EQ(Live().txtDeliveryCharge, u"$0.00"_s);
    }
    EXPECT_EQ(user.Beeps, 0);
    ExpectNoFailure();
}

TEST_F(AmountBoxes, ChargeIsLeftWhenTheTabIsTurned) {
    OpenCharge();
    Type(Box(charge), u"7"_s);
    GoTo(Assistance);
    EXPECT_EQ(Live().txtDeliveryCharge, u"$7.00"_s);
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    GoTo(Assistance);
    ExpectFailure(FailureKind::TypeMismatch, u"the delivery charge"_s);
}

TEST_F(AmountBoxes, SaveFromWithinAnEmptyChargeFailsWithNothingSaved) {
    WriteBusinessFiles();
    OpenCharge();
    const auto before = folder.Contents();
    Enter(charge, QString());
    Failures().clear();
    QTest::mousePress(On<QWidget>(quit), Qt::LeftButton);
    ExpectFailure(FailureKind::TypeMismatch, u"the delivery charge of the setup screen"_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(AmountBoxes, MessageOverTheScreenDoesNotLeaveTheCharge) {
    OpenCharge();
    Enter(charge, QString());
    QWidget message;
    message.show();
    message.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&message));
    ExpectNoFailure();
}

// The graduated tax panel.

TEST_F(AmountBoxes, ButtonShowsThePanelAndGoesToTheLimit) {
    StartSetup();
    GoTo(Taxation);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    ClickOn(u"cmdGraduatedTax(0)"_s);
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
    EXPECT_TRUE(Box(limit)->hasFocus());
}

TEST_F(AmountBoxes, GraduatedBoxesEmptyTheirZeroAndFilterNothing) {
    OpenPanel();
    for (const QString& box : {limit, surcharge}) {
        ClickInto(box);
        EXPECT_EQ(Text(box), u"$0.00"_s);
        TypeAny(Box(box), u"0a.b.c\u00e9"_s);
        EXPECT_EQ(Text(box), u"0a.b.c\u00e9"_s);
    }
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(Live().txtGradulated[0], u"0a.b.c\u00e9"_s);
}

TEST_F(AmountBoxes, EnterInAGraduatedBoxOfZeroMovesOnAndLeavesIt) {
    OpenPanel();
    EXPECT_TRUE(Box(limit)->hasFocus());
    Press(Box(limit), Qt::Key_Return);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_TRUE(Box(surcharge)->hasFocus());
    Press(Box(surcharge), Qt::Key_Enter);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_TRUE(On<QWidget>(quit)->hasFocus());
    EXPECT_EQ(Live().txtGradulated[0], u"$0.00"_s);
    EXPECT_EQ(Live().txtGradulated[1], u"$0.00"_s);
    EXPECT_TRUE(Shows(setup));
    EXPECT_EQ(user.Beeps, 0);
    ExpectNoFailure();
}

TEST_F(AmountBoxes, LeavingAGraduatedBoxLeavesItsText) {
    OpenPanel();
    Type(Box(limit), u"7"_s);
    ClickInto(surcharge);
    EXPECT_EQ(Text(limit), u"7"_s);
    Press(Box(surcharge), Qt::Key_Left);
    EXPECT_EQ(Text(surcharge), QString());
    ClickInto(limit);
    EXPECT_EQ(Text(surcharge), QString());
    ExpectNoFailure();
}

TEST_F(AmountBoxes, CloseFormatsBothAndHidesThePanelAndWritesNothing) {
    OpenPanel();
    Tick(u"ckApplyGraduated"_s);
    const auto before = folder.Contents();
    ClickInto(limit);
    Type(Box(limit), u"1250"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"$2.5"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_EQ(Text(limit), u"$1,250.00"_s);
    EXPECT_EQ(Text(surcharge), u"$2.50"_s);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    EXPECT_TRUE(IsTicked(u"ckApplyGraduated"_s));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(AmountBoxes, CloseWithALimitOfZeroUnticksTheScheme) {
    OpenPanel();
    Tick(u"ckApplyGraduated"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_FALSE(IsTicked(u"ckApplyGraduated"_s));
    EXPECT_EQ(Live().ckApplyGraduated, 0);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(AmountBoxes, LettersInTheSurchargeWithAValidLimitKeepThePanelOpen) {
    OpenPanel();
    Type(Box(limit), u"1000"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"abc"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_EQ(Text(limit), u"$1,000.00"_s);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_TRUE(Box(surcharge)->hasFocus());
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
}

TEST_F(AmountBoxes, LettersInTheLimitLeaveTheSurchargeAsItIs) {
    OpenPanel();
    Type(Box(limit), u"abc"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"xyz"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_EQ(Text(surcharge), u"xyz"_s);
    EXPECT_TRUE(Box(limit)->hasFocus());
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
}

TEST_F(AmountBoxes, ClearSetsBothToZeroAndGoesToTheLimit) {
    OpenPanel();
    Type(Box(limit), u"1000"_s);
    ClickInto(surcharge);
    Type(Box(surcharge), u"abc"_s);
    ClickOn(u"cmdGraduatedTax(2)"_s);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_TRUE(Box(limit)->hasFocus());
    EXPECT_TRUE(IsVisible(u"fraGraduated"_s));
    EXPECT_EQ(Live().txtGradulated[0], u"$0.00"_s);
}

TEST_F(AmountBoxes, GraduatedTextIsSavedAsItStandsAndShownAsCurrency) {
    OpenPanel();
    Type(Box(limit), u"1000"_s);
    EnterNameAndTelephone();
    Save();
    EXPECT_EQ(Saved(deliveryFile), "0,1,0,1,0,0,#TRUE#,#FALSE#,\"1000\",\"$0.00\",\"$0.00\"\r\n");
    Reopen();
    EXPECT_EQ(Text(limit), u"$1,000.00"_s);
}

TEST_F(AmountBoxes, GraduatedAmountOutOfRangeFailsAtTheClose) {
    OpenPanel();
    Type(Box(limit), u"9E30"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    ExpectFailure(FailureKind::Overflow, u"(the graduated tax scheme)"_s);
}
