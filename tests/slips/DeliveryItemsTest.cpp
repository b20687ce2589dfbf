#include "slips/DeliveryItems.h"

#include "slips/DeliveryWriting.h"

using namespace Qt::StringLiterals;

namespace {

const QString enterUnits = u"Enter Units to Deliver"_s;

enum Item { Gravel, HeatingOil, Sand };
enum Vehicle { FlatbedTruck, Tanker };

} // namespace

class DeliveryItemsTest : public OfficeTest {
protected:
    DeliveryItemsTest() {
        PutDeliveryBusiness(folder, office);
        office.items.RefreshAll();
        items.ClearInvoice();
        form.lstVehicles = FlatbedTruck;
    }

    void Post(Item item, const QString& units) {
        form.lstItems = item;
        form.txtUnits = units;
        items.PostItem();
    }
    void PostFree(const QString& description, const QString& units) {
        form.cboNonPricedDescription = description;
        form.txtNonPriced = units;
        items.PostNonPriced();
    }
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < items.fgDelivery.Columns(); ++column)
            cells += items.fgDelivery.Text(row, column);
        return cells;
    }
    void Edit(int row, const QString& keys) {
        items.fgDelivery.SetCurrent(row, 0);
        for (const QChar key : keys)
            items.EditUnits(key.unicode());
    }
    void Delete(int row, const QString& description, Answer answer = Answer::Yes) {
        items.fgDelivery.SetCurrent(row, 1);
        user.ExpectQuestion(u"Delete item "_s + description + u" from Invoice?"_s,
                            u"Item Deletion"_s, answer);
        items.DeleteItem();
    }
    /// A hundred lines of one unit of gravel, at $5.00 each.
    void FillSlip() {
        for (int i = 0; i < 99; ++i)
            Post(Gravel, u"1"_s);
        user.ExpectMessage(u"The Slip is full"_s);
        Post(Gravel, u"1"_s);
    }
    void ExpectCapacityMessage(const QString& units, const QString& vehicle) {
        user.ExpectMessage(units + u" exceeds the load capacity\nof "_s + vehicle +
                           u"\nEnter a lower delivery amount"_s);
    }
    /// Neither slip nor total has changed.
    void ExpectNothingPosted() {
        EXPECT_EQ(items.SlipItemCount, 0);
        EXPECT_EQ(items.fgDelivery.Rows(), 2);
        EXPECT_EQ(form.txtTotal, u"$0.00"_s);
    }
    void PutVehicle(const QByteArray& record) {
        folder.Write(u"Vehicles.txt"_s, record);
        office.fleet.LoadVehicles();
        form.lstVehicles = 0;
    }

    DeliveryItems& items = office.deliveryItems;
    DeliveryForm& form = office.deliveryForm;
};

// Posting.

TEST_F(DeliveryItemsTest, GridHasItsHeadingsAndOneEmptyRow) {
    EXPECT_EQ(Row(0),
              (QStringList{u"Units"_s, u"Description"_s, u"Unit Price"_s, u"Line Total"_s}));
    EXPECT_EQ(items.fgDelivery.Rows(), 2);
    EXPECT_EQ(items.fgDelivery.CurrentRow(), 1);
}

TEST_F(DeliveryItemsTest, PricedItemTakesUnitsNamePriceAndTheirProduct) {
    Post(HeatingOil, u"3"_s);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Heating Oil"_s, u"$12.50"_s, u"$37.50"_s}));
    EXPECT_EQ(items.SlipItemCount, 1);
    EXPECT_EQ(items.SlipTotal, Currency::OfTenThousandths(375'000));
    EXPECT_EQ(form.txtTotal, u"$37.50"_s);
}

TEST_F(DeliveryItemsTest, GermanOfficePostsItsAmounts) {
    UseLocale("de_DE");
    office.items.RefreshAll();
    Post(HeatingOil, u"100"_s);
    EXPECT_EQ(Row(1), (QStringList{u"100"_s, u"Heating Oil"_s, u"12,50\u00a0\u20ac"_s,
                                   u"1.250,00\u00a0\u20ac"_s}));
    EXPECT_EQ(form.txtTotal, u"1.250,00\u00a0\u20ac"_s);
}

TEST_F(DeliveryItemsTest, EachPostLeavesOneEmptyRowBelowAndMovesToIt) {
    Post(Gravel, u"1"_s);
    EXPECT_EQ(items.fgDelivery.Rows(), 3);
    EXPECT_EQ(items.fgDelivery.CurrentRow(), 2);
    Post(Sand, u"2"_s);
    EXPECT_EQ(items.fgDelivery.Rows(), 4);
    EXPECT_EQ(items.fgDelivery.CurrentRow(), 3);
    EXPECT_EQ(Row(3), (QStringList{QString(), QString(), QString(), QString()}));
    EXPECT_EQ(form.txtTotal, u"$9.70"_s);
}

TEST_F(DeliveryItemsTest, PostMovesOnByOneRowFromWhereverTheOperatorStands) {
    Post(Gravel, u"1"_s);
    Post(Sand, u"2"_s);
    Post(Gravel, u"3"_s);
    items.fgDelivery.SetCurrent(1, 3);
    Post(Sand, u"4"_s);
    EXPECT_EQ(items.fgDelivery.CurrentRow(), 2);
    EXPECT_EQ(items.fgDelivery.CurrentColumn(), 3);
    EXPECT_EQ(Row(4), (QStringList{u"4"_s, u"Sand"_s, u"$2.35"_s, u"$9.40"_s}));
}

TEST_F(DeliveryItemsTest, PostEmptiesTheUnitsAndSelectsTheFirstItem) {
    Post(Sand, u"2"_s);
    EXPECT_EQ(form.txtUnits, QString());
    EXPECT_EQ(form.lstItems, Gravel);
    EXPECT_EQ(form.Focus, DeliveryFocus::Items);
}

TEST_F(DeliveryItemsTest, WithOneItemAloneThePostGoesOnToTheUnits) {
    folder.Write(u"NXInventoriedItems.txt"_s, ItemBytes{.description = "Sand"}.Record());
    office.items.RefreshAll();
    form.lstItems = 0;
    form.txtUnits = u"1"_s;
    items.PostItem();
    EXPECT_EQ(form.Focus, DeliveryFocus::Units);
    EXPECT_EQ(form.lstItems, 0);
}

TEST_F(DeliveryItemsTest, LaterPriceChangeDoesNotReachAPostedLine) {
    Post(Sand, u"2"_s);
    folder.Write(u"NXInventoriedItems.txt"_s,
                 ItemBytes{.description = "Sand", .sellPrice = 990'000}.Record());
    office.items.RefreshAll();
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u"Sand"_s, u"$2.35"_s, u"$4.70"_s}));
}

TEST_F(DeliveryItemsTest, UnitsBelowOneAreAskedForAnew) {
    for (const QString& units : {u"0"_s, u"0.4"_s, u"-3"_s, u".5"_s}) {
        user.ExpectMessage(enterUnits);
        Post(Sand, units);
        EXPECT_EQ(form.Focus, DeliveryFocus::Units);
        EXPECT_EQ(form.txtUnits, units);
        ExpectNothingPosted();
    }
}

TEST_F(DeliveryItemsTest, HalvesCountAsWholeUnitsInTheTestAndStayAsTypedOnTheLine) {
    Post(Gravel, u"2.5"_s);
    EXPECT_EQ(Row(1), (QStringList{u"2.5"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$12.50"_s}));
    // 0.5 is rounded to the even number, and that is 0; 0.6 is one unit.
    Post(Gravel, u"0.6"_s);
    EXPECT_EQ(Row(2), (QStringList{u"0.6"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$3.00"_s}));
}

TEST_F(DeliveryItemsTest, UnitsAbove32767AreAnOverflow) {
    form.ckCapacity = true;
    Post(Gravel, u"32767"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
    for (const QString& units : {u"32768"_s, u"1e9"_s, u"99999999999999999999"_s})
        EXPECT_EQ(FailureOf([&] { Post(Gravel, units); }).Kind(), FailureKind::Overflow)
            << units.toStdString();
    EXPECT_EQ(items.SlipItemCount, 1);
}

TEST_F(DeliveryItemsTest, UnitsThatAreNoNumberOrMissingAreAFailure) {
    for (const QString& units : {QString(), u"abc"_s, u"."_s, u"1.2.3"_s}) {
        const RuntimeFailure failure = FailureOf([&] { Post(Gravel, units); });
        EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch) << units.toStdString();
        EXPECT_TRUE(failure.Sentence().contains(u"the units to deliver"_s)) << failure.what();
        EXPECT_EQ(FailureOf([&] { PostFree(u"Crates"_s, units); }).Kind(),
                  FailureKind::TypeMismatch);
    }
    ExpectNothingPosted();
}

TEST_F(DeliveryItemsTest, PriceThatIsNoNumberIsAFailureByItsItem) {
    office.items.ProductPrices.setStringList({u"$5.00"_s, u"free"_s, u"$2.35"_s});
    const RuntimeFailure failure = FailureOf([&] { Post(HeatingOil, u"1"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(),
              u"The text \"free\" is not a number (the price of Heating Oil)."_s);
    ExpectNothingPosted();
}

TEST_F(DeliveryItemsTest, WithoutASelectedItemItBeepsAndCallsToTheList) {
    for (const bool alarm : {true, false}) {
        office.settings.AlarmOn = alarm;
        user.Beeps = 0;
        form.lstItems = -1;
        form.txtUnits = u"1"_s;
        items.PostItem();
        EXPECT_EQ(user.Beeps, alarm ? 1 : 0);
        EXPECT_EQ(form.Focus, DeliveryFocus::Items);
        EXPECT_EQ(form.txtUnits, u"1"_s);
        ExpectNothingPosted();
    }
}

TEST_F(DeliveryItemsTest, NonPricedLineShowsZeroTwiceAndLeavesTheTotal) {
    Post(Sand, u"2"_s);
    PostFree(u"Crates, 3\" \"blue\""_s, u"7"_s);
    EXPECT_EQ(Row(2), (QStringList{u"7"_s, u"Crates, 3\" \"blue\""_s, u"$0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(items.SlipItemCount, 2);
    EXPECT_EQ(form.txtTotal, u"$4.70"_s);
    EXPECT_EQ(form.Focus, DeliveryFocus::NonPricedDescription);
}

TEST_F(DeliveryItemsTest, NonPricedPostEmptiesTheOtherUnitsAndSelectsTheFirstItem) {
    form.txtUnits = u"9"_s;
    form.lstItems = Sand;
    PostFree(u"Crates"_s, u"7"_s);
    EXPECT_EQ(form.txtUnits, QString());
    EXPECT_EQ(form.lstItems, Gravel);
    EXPECT_EQ(form.txtNonPriced, u"7"_s);
    EXPECT_EQ(form.cboNonPricedDescription, u"Crates"_s);
}

TEST_F(DeliveryItemsTest, NonPricedPostWantsADescriptionBeforeItLooksAtTheUnits) {
    for (const bool alarm : {true, false}) {
        office.settings.AlarmOn = alarm;
        user.Beeps = 0;
        PostFree(QString(), u"0"_s);
        EXPECT_EQ(user.Beeps, alarm ? 1 : 0);
        EXPECT_EQ(form.Focus, DeliveryFocus::NonPricedDescription);
    }
    user.ExpectMessage(enterUnits);
    PostFree(u"Crates"_s, u"0"_s);
    EXPECT_EQ(form.Focus, DeliveryFocus::NonPricedUnits);
    ExpectNothingPosted();
}

TEST_F(DeliveryItemsTest, NonPricedPanelOpensWithEmptyDescriptionAndZeroUnits) {
    form.fraItems = form.fraMulti = form.fraCustomer = true;
    form.cboNonPricedDescription = u"Crates"_s;
    form.txtNonPriced = u"7"_s;
    items.ShowNonPriced();
    EXPECT_TRUE(form.fraNonPriced);
    EXPECT_FALSE(form.fraItems || form.fraSetup || form.fraMulti || form.fraCustomer);
    EXPECT_EQ(form.cboNonPricedDescription, QString());
    EXPECT_EQ(form.txtNonPriced, u"0"_s);
    EXPECT_EQ(form.Focus, DeliveryFocus::NonPricedDescription);
}

TEST_F(DeliveryItemsTest, ListedDescriptionEmptiesTheUnitsAndCallsToThem) {
    items.ShowNonPriced();
    items.cboNonPricedDescription_Click();
    EXPECT_EQ(form.txtNonPriced, QString());
    EXPECT_EQ(form.Focus, DeliveryFocus::NonPricedUnits);
}

TEST_F(DeliveryItemsTest, ExitWithoutPostingGoesBackToTheItemsAndKeepsWhatIsThere) {
    Post(Sand, u"2"_s);
    form.txtUnits = u"9"_s;
    form.lstItems = Sand;
    items.ShowNonPriced();
    items.LeaveNonPriced();
    EXPECT_FALSE(form.fraNonPriced);
    EXPECT_TRUE(form.fraItems);
    EXPECT_EQ(items.SlipItemCount, 1);
    EXPECT_EQ(form.txtUnits, u"9"_s);
    EXPECT_EQ(form.lstItems, Sand);
}

TEST_F(DeliveryItemsTest, UnitsThatAreLeftAsNoNumberBecomeZeroWithABeep) {
    form.txtUnits = u"."_s;
    items.txtUnits_LostFocus();
    EXPECT_EQ(form.txtUnits, u"0"_s);
    EXPECT_EQ(form.Focus, DeliveryFocus::Units);
    EXPECT_EQ(user.Beeps, 1);
    for (const QString& units : {QString(), u"12"_s, u"2.5"_s, u"1,000"_s}) {
        form.Focus = DeliveryFocus::Nothing;
        form.txtUnits = units;
        items.txtUnits_LostFocus();
        EXPECT_EQ(form.txtUnits, units);
        EXPECT_EQ(form.Focus, DeliveryFocus::Nothing);
    }
    EXPECT_EQ(user.Beeps, 1);
}

// Load capacity.

TEST_F(DeliveryItemsTest, UnitsEqualToTheCapacityPassAndOneMoreIsRefused) {
    items.ApplyVehicle();
    EXPECT_EQ(items.LoadCapacity, 200.0F);
    Post(Sand, u"200"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
    ExpectCapacityMessage(u"201"_s, u"Flatbed Truck"_s);
    Post(Sand, u"201"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
    EXPECT_EQ(form.txtUnits, u"0"_s);
    EXPECT_EQ(form.Focus, DeliveryFocus::Units);
    EXPECT_EQ(form.txtTotal, u"$470.00"_s);
}

TEST_F(DeliveryItemsTest, NonPricedUnitsAreTestedAsWell) {
    items.ApplyVehicle();
    ExpectCapacityMessage(u"200.5"_s, u"Flatbed Truck"_s);
    PostFree(u"Crates"_s, u"200.5"_s);
    EXPECT_EQ(form.txtNonPriced, u"0"_s);
    EXPECT_EQ(form.Focus, DeliveryFocus::NonPricedUnits);
    ExpectNothingPosted();
}

TEST_F(DeliveryItemsTest, LinesAreNotAddedUp) {
    items.ApplyVehicle();
    for (int i = 0; i < 5; ++i)
        Post(Sand, u"100"_s);
    EXPECT_EQ(items.SlipItemCount, 5);
}

TEST_F(DeliveryItemsTest, CapacityComesBeforeTheSelectionOfAnItem) {
    items.ApplyVehicle();
    form.lstItems = -1;
    form.txtUnits = u"201"_s;
    ExpectCapacityMessage(u"201"_s, u"Flatbed Truck"_s);
    items.PostItem();
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(DeliveryItemsTest, IgnoringTheCapacityWhenTheVehicleIsTakenLeavesNoLimit) {
    form.ckCapacity = true;
    items.ApplyVehicle();
    EXPECT_EQ(items.LoadCapacity, 0.0F);
    form.ckCapacity = false;
    Post(Sand, u"30000"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
}

TEST_F(DeliveryItemsTest, IgnoringTheCapacityLaterTurnsTheTestOff) {
    items.ApplyVehicle();
    form.ckCapacity = true;
    Post(Sand, u"30000"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
}

TEST_F(DeliveryItemsTest, VehicleOfOneProductRefusesNothingAndAsksForNoUnit) {
    form.lstVehicles = Tanker;
    items.ApplyVehicle();
    EXPECT_EQ(items.LoadCapacity, 0.0F);
    EXPECT_EQ(form.Label4, u"Enter "_s);
    Post(HeatingOil, u"32767"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
    form.lstVehicles = FlatbedTruck;
    items.ApplyVehicle();
    EXPECT_EQ(form.Label4, u"Enter Quantity"_s);
}

TEST_F(DeliveryItemsTest, UnitsOfAVehicleThatIsNotMixedStandInTheCaption) {
    PutVehicle(VehicleBytes("Van", "40", falseBytes, "Kegs", "Milk"));
    items.ApplyVehicle();
    EXPECT_EQ(form.Label4, u"Enter Kegs"_s);
    EXPECT_EQ(items.LoadCapacity, 40.0F);
}

TEST_F(DeliveryItemsTest, CapacityThatIsNoNumberIsNone) {
    PutVehicle(VehicleBytes("Van", "many", trueBytes, "lbs", "N/A"));
    items.LoadCapacity = 7;
    items.ApplyVehicle();
    EXPECT_EQ(items.LoadCapacity, 0.0F);
}

TEST_F(DeliveryItemsTest, CapacityIsANumberOfSinglePrecision) {
    PutVehicle(VehicleBytes("Van", "16777217", trueBytes, "lbs", "N/A"));
    items.ApplyVehicle();
    EXPECT_EQ(items.LoadCapacity, 16777216.0F);
    PutVehicle(VehicleBytes("Van", "9E99", trueBytes, "lbs", "N/A"));
    const RuntimeFailure failure = FailureOf([&] { items.ApplyVehicle(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(u"Vehicles.txt"_s)) << failure.what();
}

TEST_F(DeliveryItemsTest, OfTwoVehiclesOfOneNameTheLastCounts) {
    PutVehicle(VehicleBytes("Van", "40", trueBytes, "lbs", "N/A") +
               VehicleBytes("Van", "90", falseBytes, "Kegs", "Milk"));
    items.ApplyVehicle();
    EXPECT_EQ(items.LoadCapacity, 90.0F);
    EXPECT_EQ(form.Label4, u"Enter Kegs"_s);
}

TEST_F(DeliveryItemsTest, MoreThan255VehiclesAreAnOverflow) {
    folder.Write(u"Vehicles.txt"_s,
                 VehicleBytes("Van", "40", trueBytes, "lbs", "N/A").repeated(256));
    EXPECT_EQ(FailureOf([&] { items.ApplyVehicle(); }).Kind(), FailureKind::Overflow);
}

// The full slip.

TEST_F(DeliveryItemsTest, HundredthLineIsPostedWithTheMessageAndClosesItsButtonAlone) {
    for (int i = 0; i < 99; ++i)
        Post(Gravel, u"1"_s);
    EXPECT_TRUE(items.cmdPost[1]);
    EXPECT_EQ(user.Beeps, 0);
    office.settings.AlarmOn = false;
    user.ExpectMessage(u"The Slip is full"_s);
    Post(Sand, u"1"_s);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(items.SlipItemCount, 100);
    EXPECT_EQ(Row(100), (QStringList{u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
    EXPECT_EQ(form.txtTotal, u"$497.35"_s);
    EXPECT_FALSE(items.cmdPost[1]);
    EXPECT_TRUE(items.cmdPost[0]);
    PostFree(u"Crates"_s, u"1"_s);
    EXPECT_EQ(items.SlipItemCount, 101);
    EXPECT_TRUE(items.cmdPost[0]);
    EXPECT_EQ(items.fgDelivery.Rows(), 103);
}

TEST_F(DeliveryItemsTest, ClearingDoesNotOpenTheButtonOfAFullSlip) {
    for (int i = 0; i < 99; ++i)
        Post(Gravel, u"1"_s);
    user.ExpectMessage(u"The Slip is full"_s);
    PostFree(u"Crates"_s, u"1"_s);
    items.ClearInvoice();
    EXPECT_FALSE(items.cmdPost[0]);
    EXPECT_TRUE(items.cmdPost[1]);
    items.EnablePosting();
    EXPECT_TRUE(items.cmdPost[0]);
}

// Changing lines.

TEST_F(DeliveryItemsTest, DigitTypedBehindTheUnitsMultipliesTheOldLineTotal) {
    Post(Gravel, u"2"_s);
    Edit(1, u"5"_s);
    EXPECT_EQ(Row(1), (QStringList{u"25"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$250.00"_s}));
    Edit(1, u"."_s);
    EXPECT_EQ(Row(1), (QStringList{u"25."_s, u"Gravel, fine"_s, u"$5.00"_s, u"$6,250.00"_s}));
    EXPECT_EQ(form.txtTotal, u"$10.00"_s);
}

TEST_F(DeliveryItemsTest, OtherKeysChangeNoUnits) {
    Post(Gravel, u"2"_s);
    Edit(1, u"a -,x\r\u007f"_s);
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$10.00"_s}));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(DeliveryItemsTest, BackspaceBlanksTheUnitsForGood) {
    Post(Gravel, u"12"_s);
    Edit(1, u"\b"_s);
    EXPECT_EQ(Row(1), (QStringList{QString(), u"Gravel, fine"_s, u"$5.00"_s, u"$0.00"_s}));
    Edit(1, u"5\b"_s);
    EXPECT_EQ(Row(1), (QStringList{QString(), u"Gravel, fine"_s, u"$5.00"_s, u"$0.00"_s}));
    EXPECT_EQ(form.txtTotal, u"$60.00"_s);
}

TEST_F(DeliveryItemsTest, KeysCountInTheUnitsColumnOfALineAlone) {
    Post(Gravel, u"2"_s);
    for (const auto& [row, column] : {std::pair(1, 1), {1, 2}, {1, 3}, {2, 0}, {0, 0}}) {
        items.fgDelivery.SetCurrent(row, column);
        items.EditUnits(u'5');
        items.EditUnits(u'\b');
    }
    EXPECT_EQ(Row(0).front(), u"Units"_s);
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$10.00"_s}));
    EXPECT_EQ(Row(2).front(), QString());
}

TEST_F(DeliveryItemsTest, SecondPointInTheUnitsIsAFailure) {
    Post(Gravel, u"2.5"_s);
    EXPECT_EQ(FailureOf([&] { Edit(1, u"."_s); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(DeliveryItemsTest, LineTotalBeyondAnAmountIsAnOverflow) {
    form.ckCapacity = true;
    Post(HeatingOil, u"30000"_s);
    const RuntimeFailure failure = FailureOf([&] { Edit(1, u"999"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
}

TEST_F(DeliveryItemsTest, NextPricedPostCountsTheChangedLine) {
    Post(Gravel, u"2"_s);
    Edit(1, u"5"_s);
    EXPECT_EQ(form.txtTotal, u"$10.00"_s);
    PostFree(u"Crates"_s, u"1"_s);
    EXPECT_EQ(form.txtTotal, u"$10.00"_s);
    Post(Sand, u"1"_s);
    EXPECT_EQ(form.txtTotal, u"$252.35"_s);
}

TEST_F(DeliveryItemsTest, DeletionRemovesTheLineSetsTheRowsAndLeavesTheTotal) {
    Post(Gravel, u"2"_s);
    Post(Sand, u"1"_s);
    Delete(1, u"Gravel, fine"_s);
    EXPECT_EQ(items.SlipItemCount, 1);
    EXPECT_EQ(items.fgDelivery.Rows(), 101);
    EXPECT_EQ(Row(1), (QStringList{u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
    EXPECT_EQ(Row(2), (QStringList{QString(), QString(), QString(), QString()}));
    EXPECT_EQ(form.txtTotal, u"$12.35"_s);
}

TEST_F(DeliveryItemsTest, PostsAfterADeletionAddToTheHundredRows) {
    Post(Gravel, u"2"_s);
    Delete(1, u"Gravel, fine"_s);
    Post(Sand, u"1"_s);
    EXPECT_EQ(items.fgDelivery.Rows(), 102);
    EXPECT_EQ(Row(1), (QStringList{u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
    EXPECT_EQ(form.txtTotal, u"$2.35"_s);
}

TEST_F(DeliveryItemsTest, DeletionFromASlipBeyondItsHundredLinesLosesNoOtherLine) {
    FillSlip();
    PostFree(u"Crates"_s, u"1"_s);
    PostFree(u"Pallets"_s, u"3"_s);
    Delete(1, u"Gravel, fine"_s);
    EXPECT_EQ(items.SlipItemCount, 101);
    EXPECT_EQ(items.fgDelivery.Rows(), 103);
    EXPECT_EQ(Row(101), (QStringList{u"3"_s, u"Pallets"_s, u"$0.00"_s, u"$0.00"_s}));
    items.RecalculateTotal();
    EXPECT_EQ(form.txtTotal, u"$495.00"_s);
}

TEST_F(DeliveryItemsTest, SlipOfAHundredAndOneLinesTakesAPostAfterADeletion) {
    FillSlip();
    PostFree(u"Crates"_s, u"1"_s);
    Delete(1, u"Gravel, fine"_s);
    EXPECT_EQ(items.fgDelivery.Rows(), 102);
    PostFree(u"Pallets"_s, u"3"_s);
    EXPECT_EQ(items.SlipItemCount, 101);
    EXPECT_EQ(Row(101), (QStringList{u"3"_s, u"Pallets"_s, u"$0.00"_s, u"$0.00"_s}));
}

TEST_F(DeliveryItemsTest, DeletionFromAFullSlipSetsTheRows) {
    FillSlip();
    Delete(1, u"Gravel, fine"_s);
    EXPECT_EQ(items.SlipItemCount, 99);
    EXPECT_EQ(items.fgDelivery.Rows(), 101);
}

TEST_F(DeliveryItemsTest, NoKeepsTheLine) {
    Post(Gravel, u"2"_s);
    Delete(1, u"Gravel, fine"_s, Answer::No);
    EXPECT_EQ(items.SlipItemCount, 1);
    EXPECT_EQ(items.fgDelivery.Rows(), 3);
}

TEST_F(DeliveryItemsTest, EmptyRowsAndTheHeadingHoldNothingToDelete) {
    Post(Gravel, u"2"_s);
    for (const int row : {0, 2}) {
        items.fgDelivery.SetCurrent(row, 1);
        EXPECT_FALSE(items.HasItem());
        items.DeleteItem();
    }
    EXPECT_EQ(items.SlipItemCount, 1);
    items.fgDelivery.SetCurrent(1, 3);
    EXPECT_TRUE(items.HasItem());
}

TEST_F(DeliveryItemsTest, LineWithBlankedUnitsCanBeDeleted) {
    Post(Gravel, u"2"_s);
    Edit(1, u"\b"_s);
    Delete(1, u"Gravel, fine"_s);
    EXPECT_EQ(items.SlipItemCount, 0);
}

TEST_F(DeliveryItemsTest, ClearingTakesLinesUnitsReferenceAndTotalAway) {
    Post(Gravel, u"2"_s);
    form.txtUnits = u"9"_s;
    form.txtReference = u"PO 7"_s;
    form.txtNonPriced = u"5"_s;
    items.ClearInvoice();
    ExpectNothingPosted();
    EXPECT_EQ(Row(1), (QStringList{QString(), QString(), QString(), QString()}));
    EXPECT_EQ(form.txtUnits, QString());
    EXPECT_EQ(form.txtReference, QString());
    EXPECT_EQ(items.SlipTotal, Currency());
    EXPECT_EQ(form.txtNonPriced, u"5"_s);
}

// Templates.

TEST_F(DeliveryItemsTest, TemplateReplacesTheLinesAtItsOwnPrices) {
    Post(Gravel, u"2"_s);
    form.txtReference = u"PO 7"_s;
    folder.Write(u"Templates/Deliveries/Week.txt"_s,
                 TemplateLine("3", "Sand", "9.00") + TemplateLine("1.5", "Heating Oil", "10.00"));
    office.templates.RefreshList();
    office.templates.SelectTemplate(0);
    items.LoadTemplate();
    EXPECT_EQ(items.SlipItemCount, 2);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Sand"_s, u"9.00"_s, u"$27.00"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"1.5"_s, u"Heating Oil"_s, u"10.00"_s, u"$15.00"_s}));
    EXPECT_EQ(form.txtTotal, u"$42.00"_s);
    EXPECT_EQ(form.txtReference, QString());
    Post(Gravel, u"1"_s);
    EXPECT_EQ(Row(3), (QStringList{u"1"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$5.00"_s}));
    EXPECT_EQ(form.txtTotal, u"$47.00"_s);
}
