#include "customers/AutoAdvance.h"

#include "customers/CustomerTest.h"

using namespace Qt::StringLiterals;

TEST(AutoAdvanceTest, CaptionTellsTheState) {
    AutoAdvance advance;
    EXPECT_FALSE(advance.IsOn);
    EXPECT_EQ(advance.Caption(), u"Auto Advance Off"_s);
    advance.IsOn = true;
    EXPECT_EQ(advance.Caption(), u"Auto Advance On"_s);
}

TEST(AutoAdvanceTest, StartsAtTwoAndAHalfSeconds) {
    EXPECT_EQ(AutoAdvance().Interval, 2500);
    EXPECT_EQ(AutoAdvance::shortestInterval, 250);
    EXPECT_EQ(AutoAdvance::longestInterval, 5000);
}

TEST(AutoAdvanceTest, FasterAddsAHundredMilliSecondsBelowTheLongestLessAHundred) {
    AutoAdvance advance;
    advance.Faster();
    EXPECT_EQ(advance.Interval, 2600);
    advance.Interval = 4899;
    advance.Faster();
    EXPECT_EQ(advance.Interval, 4999);
    advance.Interval = 4900;
    advance.Faster();
    EXPECT_EQ(advance.Interval, 4900);
}

TEST(AutoAdvanceTest, SlowerTakesAHundredMilliSecondsAboveTheShortestAndAHundred) {
    AutoAdvance advance;
    advance.Slower();
    EXPECT_EQ(advance.Interval, 2400);
    advance.Interval = 351;
    advance.Slower();
    EXPECT_EQ(advance.Interval, 251);
    advance.Interval = 350;
    advance.Slower();
    EXPECT_EQ(advance.Interval, 350);
}

/// When it goes on and off.
class AutoAdvanceOfCustomersTest : public CustomerTest {};

TEST_F(AutoAdvanceOfCustomersTest, ToggleSavesTheRecordAndShowsItAnew) {
    LoadThree();
    for (const bool isOn : {true, false}) {
        Text(CustomerText::Address1) = u"Road %1"_s.arg(int(isOn));
        Text(CustomerText::MiddleInitial) = u"Q"_s;
        customers.ToggleAutoAdvance();
        EXPECT_EQ(customers.Advance.IsOn, isOn);
        EXPECT_EQ(CustomerOnDisk(1).mid(65, 6), "Road " + QByteArray::number(int(isOn)));
        EXPECT_EQ(Text(CustomerText::MiddleInitial), QString()) << "shown anew";
        EXPECT_EQ(customers.CurrentRecord, 1);
    }
    EXPECT_EQ(folder.Read(u"ContractInfo.txt"_s), Siblings(3, 386));
}

TEST_F(AutoAdvanceOfCustomersTest, ToggleDoesNothingForARecordThatCannotBeSaved) {
    LoadThree();
    for (const bool isOn : {false, true}) {
        customers.Advance.IsOn = isOn;
        Text(CustomerText::BusinessName).clear();
        user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
        customers.ToggleAutoAdvance();
        EXPECT_EQ(customers.Advance.IsOn, isOn);
    }
}

TEST_F(AutoAdvanceOfCustomersTest, NewCustomerByItsButtonStopsIt) {
    LoadThree();
    customers.Advance.IsOn = true;
    customers.cmdNew_Click();
    EXPECT_FALSE(customers.Advance.IsOn);
    EXPECT_EQ(customers.CurrentRecord, 4);
}

TEST_F(AutoAdvanceOfCustomersTest, NewCustomerByItsButtonStopsItThoughTheRecordCannotBeSaved) {
    LoadThree();
    customers.Advance.IsOn = true;
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    customers.cmdNew_Click();
    EXPECT_FALSE(customers.Advance.IsOn);
}

TEST_F(AutoAdvanceOfCustomersTest, NewCustomerByTheMenuLeavesItOn) {
    LoadThree();
    customers.Advance.IsOn = true;
    customers.AddNewCustomer();
    EXPECT_TRUE(customers.Advance.IsOn);
}

TEST_F(AutoAdvanceOfCustomersTest, MenuSelectAndCancelStopIt) {
    LoadThree();
    for (const bool isSelected : {false, true}) {
        customers.Advance.IsOn = true;
        EXPECT_TRUE(customers.Leave(isSelected));
        EXPECT_FALSE(customers.Advance.IsOn);
    }
    customers.Advance.IsOn = true;
    customers.CancelAddNew();
    EXPECT_FALSE(customers.Advance.IsOn);
}

TEST_F(AutoAdvanceOfCustomersTest, MenuStopsItThoughTheOperatorHasToStay) {
    LoadThree();
    customers.Advance.IsOn = true;
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    EXPECT_FALSE(customers.Leave(false));
    EXPECT_FALSE(customers.Advance.IsOn);
}

TEST_F(AutoAdvanceOfCustomersTest, EveryLoadTurnsItOff) {
    LoadThree();
    customers.Advance.IsOn = true;
    customers.Advance.Interval = 300;
    customers.Load();
    EXPECT_FALSE(customers.Advance.IsOn);
    EXPECT_EQ(customers.Advance.Interval, 2500);
}
