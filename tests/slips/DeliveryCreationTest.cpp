#include "slips/DeliveryCreation.h"

#include "slips/DeliveryWriting.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString counterFile = u"NQDeliveryNo.txt"_s;

QString HeaderName(const QString& number) {
    return u"TesselDelivery/Deliveries/"_s + number + u".txt"_s;
}

QString ItemName(const QString& number) {
    return u"TesselDelivery/DeliveryItems/"_s + number + u".txt"_s;
}

constexpr int sandPlace = 2;

} // namespace

class DeliveryCreationTest : public OfficeTest {
protected:
    DeliveryCreationTest() { PutDeliveryBusiness(folder, office); }

    /// The screen comes up for the first time.
    void Begin() {
        creation.Load();
        creation.Activate();
    }
    void PostSand(const QString& units) {
        form.lstItems = sandPlace;
        form.txtUnits = units;
        office.deliveryItems.PostItem();
    }
    void ExpectHoliday(const QString& date) {
        user.ExpectMessage(date +
                           u" is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    }
    void ChooseDays(const QList<int>& days) {
        creation.lstFrequency_Click(7);
        for (const int day : days)
            form.ckMulti[size_t(day) - 1] = true;
        creation.AcceptDays();
    }
    /// The days that can't be ticked.
    QList<int> DisabledDays() const {
        QList<int> days;
        for (int day = 1; day <= 7; ++day) {
            if (!form.ckMultiEnabled[size_t(day) - 1])
                days += day;
        }
        return days;
    }
    QString Line(const QString& number, int line) const {
        return QString::fromLatin1(folder.Read(HeaderName(number)).split('\n')[line - 1]).trimmed();
    }

    DeliveryCreation& creation = office.delivery;
    DeliveryForm& form = office.deliveryForm;
};

// A new slip.

TEST_F(DeliveryCreationTest, NewSlipOffersTheNextNumberAndTheFirstVehicle) {
    folder.Write(counterFile, "20260014\r\n");
    Begin();
    EXPECT_EQ(form.txtDeliveryNo, u"20260014"_s);
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 9));
    EXPECT_EQ(form.leastDate, QDate(2026, 3, 9));
    EXPECT_EQ(form.lstVehicles, 0);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 200.0F);
    EXPECT_EQ(office.deliveryTimes.stringList().value(form.lstTime), u"08:00am"_s);
    EXPECT_EQ(form.txtTotal, u"$0.00"_s);
    EXPECT_EQ(form.lblShipping, u"Delivery Date"_s);
    EXPECT_TRUE(form.fraSetup);
    EXPECT_FALSE(form.fraItems || form.fraNonPriced || form.fraMulti || form.fraCustomer);
    EXPECT_EQ(form.Focus, DeliveryFocus::Attention);
    EXPECT_EQ(folder.Read(counterFile), "20260014\r\n");
}

TEST_F(DeliveryCreationTest, FirstNumberEverStandsOnDiskBeforeAnySlipIsStored) {
    Begin();
    EXPECT_EQ(form.txtDeliveryNo, u"20260001"_s);
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
}

TEST_F(DeliveryCreationTest, NewSlipIsForTheCustomerHandedOver) {
    Begin();
    const DeliveryAddress address = {u"Corner Grocery"_s, u"12 Mill Road"_s, QString(),
                                     u"Springfield"_s,    u"IL"_s,           u"62704"_s};
    EXPECT_EQ(form.lblAcctNo, u"4471"_s);
    EXPECT_EQ(form.lblCustomer, address);
    EXPECT_EQ(form.txtShipto, address);
    form.attention = u"Back door"_s;
    form.txtShipto[0] = u"Depot"_s;
    office.deliveryCustomer.Name = u"Anvil Works"_s;
    creation.Activate();
    EXPECT_EQ(form.lblCustomer[0], u"Anvil Works"_s);
    EXPECT_EQ(form.txtShipto[0], u"Anvil Works"_s);
    EXPECT_EQ(form.attention, QString());
}

TEST_F(DeliveryCreationTest, ListsOfItemsAreReadAnewForEachSlip) {
    Begin();
    EXPECT_EQ(office.items.ProductNames.stringList(),
              (QStringList{u"Gravel, fine"_s, u"Heating Oil"_s, u"Sand"_s}));
    EXPECT_EQ(office.items.NonPricedNames.stringList(), QStringList{u"Empty crates"_s});
    folder.Write(u"NXInventoriedItems.txt"_s, ItemBytes{.description = "Top Soil"}.Record());
    form.lstItems = 0;
    creation.Activate();
    EXPECT_EQ(office.items.ProductNames.stringList(), QStringList{u"Top Soil"_s});
    EXPECT_EQ(form.lstItems, -1);
}

TEST_F(DeliveryCreationTest, SaturdayOpensOnMondayWithoutAMessage) {
    clock.Date = QDate(2026, 3, 14);
    Begin();
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
    EXPECT_EQ(form.leastDate, QDate(2026, 3, 14));
}

TEST_F(DeliveryCreationTest, HolidayTellsAtLoadAndOnceMoreAtTheActivation) {
    folder.Write(u"Holidays.txt"_s, "#2026-03-09#\r\n");
    ExpectHoliday(u"3/9/2026"_s);
    creation.Load();
    user.ExpectNothingLeft();
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 10));
    ExpectHoliday(u"3/9/2026"_s);
    creation.Activate();
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 10));
}

TEST_F(DeliveryCreationTest, WithoutVehiclesNoneIsSelectedAndNoFileMade) {
    folder.Remove(u"Vehicles.txt"_s);
    office.fleet.Names.setStringList({});
    Begin();
    EXPECT_EQ(form.lstVehicles, -1);
    EXPECT_FALSE(folder.Has(u"Vehicles.txt"_s));
}

TEST_F(DeliveryCreationTest, WorkWeekRulesOutTheWrongOneOfTwoDays) {
    const std::pair<qint16, QList<int>> cases[] = {
        {7, {}}, {4, {}}, {61, {7}}, {62, {1}}, {5, {1, 7}}};
    for (const auto& [code, days] : cases) {
        form.ckMultiEnabled.fill(true);
        office.settings.WorkWeek = code;
        creation.Activate();
        EXPECT_EQ(DisabledDays(), days) << code;
    }
}

TEST_F(DeliveryCreationTest, DayOnceRuledOutStaysSoForTheRun) {
    Begin();
    office.settings.WorkWeek = 7;
    creation.Activate();
    EXPECT_EQ(DisabledDays(), (QList<int>{1, 7}));
}

TEST_F(DeliveryCreationTest, NewSlipKeepsWhatTheLastLeftButForItsFlag) {
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    ChooseDays({2});
    form.ckCapacity = true;
    form.ckProduct = true;
    form.lstTime = 7;
    creation.Activate();
    EXPECT_EQ(form.optRecurring, RecurringOption::Recurring);
    EXPECT_EQ(form.lstFrequency, 7);
    EXPECT_TRUE(form.lstFrequencyEnabled);
    EXPECT_EQ(form.lblShipping, u"1st Delivery Date"_s);
    EXPECT_TRUE(form.ckMulti[1]);
    EXPECT_TRUE(form.ckCapacity && form.ckProduct);
    EXPECT_EQ(form.lstTime, 7);
    EXPECT_EQ(form.SlipFrequency, u"0100000"_s);
    EXPECT_FALSE(form.SlipIsRecurring);
    EXPECT_FALSE(form.fraMulti);
}

TEST_F(DeliveryCreationTest, NewSlipOpensBothPostButtonsAgain) {
    Begin();
    office.deliveryItems.cmdPost = {false, false};
    creation.ReDo();
    EXPECT_FALSE(office.deliveryItems.cmdPost[0] || office.deliveryItems.cmdPost[1]);
    creation.Activate();
    EXPECT_TRUE(office.deliveryItems.cmdPost[0] && office.deliveryItems.cmdPost[1]);
}

TEST_F(DeliveryCreationTest, NewSlipSetsTheStateOfTheTemplatesPanel) {
    Begin();
    EXPECT_FALSE(office.templates.fraTemplates);
    folder.Write(u"Templates/Deliveries/Week.txt"_s, {});
    creation.Load();
    creation.Activate();
    EXPECT_TRUE(office.templates.fraTemplates);
    EXPECT_EQ(office.templates.SelectedTemplate, 0);
}

// Recurrence.

TEST_F(DeliveryCreationTest, FrequenciesStandInTheirOrder) {
    EXPECT_EQ(DeliveryCreation::Frequencies(),
              (QStringList{u"Daily"_s, u"Weekly"_s, u"Bi-Monthly"_s, u"Monthly"_s, u"Quarterly"_s,
                           u"Semi-Annually"_s, u"Annually"_s, u"Multiple Week Days"_s}));
}

TEST_F(DeliveryCreationTest, RecurringSlipIsWeeklyUnlessAnotherFrequencyIsChosen) {
    Begin();
    EXPECT_FALSE(form.lstFrequencyEnabled);
    EXPECT_EQ(form.SlipFrequency, QString());
    creation.optRecurring_Click(RecurringOption::Recurring);
    EXPECT_TRUE(form.lstFrequencyEnabled);
    EXPECT_EQ(form.lstFrequency, 1);
    EXPECT_EQ(form.SlipFrequency, u"0000001"_s);
    EXPECT_EQ(form.lblShipping, u"1st Delivery Date"_s);
    EXPECT_TRUE(form.SlipIsRecurring);
    creation.lstFrequency_Click(5);
    creation.optRecurring_Click(RecurringOption::Recurring);
    EXPECT_EQ(form.lstFrequency, 1) << "every click chooses Weekly";
}

TEST_F(DeliveryCreationTest, OneTimeSlipKeepsTheFrequencyOfTheChoiceBefore) {
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    creation.lstFrequency_Click(3);
    creation.optRecurring_Click(RecurringOption::OneTime);
    EXPECT_FALSE(form.lstFrequencyEnabled);
    EXPECT_EQ(form.lblShipping, u"Delivery Date"_s);
    EXPECT_FALSE(form.SlipIsRecurring);
    EXPECT_EQ(form.SlipFrequency, u"0000003"_s);
}

TEST_F(DeliveryCreationTest, EachFrequencyButTheLastIsItsPlaceBehindZeros) {
    Begin();
    for (int place = 0; place < 7; ++place) {
        creation.lstFrequency_Click(place);
        EXPECT_EQ(form.SlipFrequency, u"000000"_s + QChar(u'0' + place));
        EXPECT_FALSE(form.fraMulti);
    }
}

TEST_F(DeliveryCreationTest, MultipleDaysClearTheBoxesAndShowThem) {
    Begin();
    creation.lstFrequency_Click(3);
    form.ckMulti.fill(true);
    creation.lstFrequency_Click(7);
    EXPECT_TRUE(form.fraMulti);
    EXPECT_EQ(form.ckMulti, (std::array<bool, 7>{}));
    EXPECT_EQ(form.SlipFrequency, u"0000003"_s) << "until the days are accepted";
    creation.lstFrequency_Click(2);
    EXPECT_FALSE(form.fraMulti);
}

TEST_F(DeliveryCreationTest, MondayAndThursdayMoveTheDateToTheNextMonday) {
    clock.Date = QDate(2026, 3, 10);
    Begin();
    ChooseDays({2, 5});
    EXPECT_EQ(form.SlipFrequency, u"0100100"_s);
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_FALSE(form.fraMulti);
}

TEST_F(DeliveryCreationTest, DateOnTheFirstTickedDayStays) {
    Begin();
    office.settings.AlarmOn = false;
    ChooseDays({2, 5});
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(DeliveryCreationTest, LowestTickedDayCountsAlsoWhenAnotherIsNearer) {
    clock.Date = QDate(2026, 3, 10);
    Begin();
    ChooseDays({2, 4});
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
}

TEST_F(DeliveryCreationTest, NoTickedDayIsDailyAndAWeekLaterWithoutABeep) {
    Begin();
    ChooseDays({});
    EXPECT_EQ(form.SlipFrequency, u"0000000"_s);
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(DeliveryCreationTest, SaturdayAloneIsWeekly) {
    Begin();
    ChooseDays({7});
    EXPECT_EQ(form.SlipFrequency, u"0000001"_s);
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 14));
}

// The date.

TEST_F(DeliveryCreationTest, DayOffIsMovedOnWithoutAMessageAndAHolidayWithOne) {
    folder.Write(u"Holidays.txt"_s, "#2026-03-13#\r\n");
    Begin();
    creation.DTShip_Change(QDate(2026, 3, 15));
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
    ExpectHoliday(u"3/13/2026"_s);
    creation.DTShip_Change(QDate(2026, 3, 13));
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
    creation.DTShip_Change(QDate(2026, 3, 12));
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 12));
}

TEST_F(DeliveryCreationTest, DateBeforeTodayIsRefusedAndTheLeastDateTaken) {
    clock.Date = QDate(2026, 3, 14);
    Begin();
    user.ExpectMessage(u"Your Calendar Selection is Invalid"_s);
    creation.DTShip_Change(QDate(2026, 3, 12));
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
}

TEST_F(DeliveryCreationTest, ClickOnADateThatHasPassedMeanwhileTellsAndMovesItOn) {
    clock.Date = QDate(2026, 3, 13);
    Begin();
    creation.DTShip_Click();
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 13));
    form.DTShip = QDate(2026, 3, 14);
    clock.Date = QDate(2026, 3, 17);
    user.ExpectMessage(u"Your Calendar Selection is Invalid"_s);
    creation.DTShip_Click();
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16))
        << "to the work day after it, also when that has passed";
}

TEST_F(DeliveryCreationTest, ClosedCalendarMovesADateOffADayOff) {
    Begin();
    ChooseDays({7});
    creation.DTShip_CloseUp();
    EXPECT_EQ(form.DTShip, QDate(2026, 3, 16));
}

// Vehicle.

TEST_F(DeliveryCreationTest, VehicleGivesItsCapacityUnlessProductsAreIgnored) {
    Begin();
    form.ckProduct = true;
    creation.lstVehicles_Click(1);
    EXPECT_EQ(form.lstVehicles, 1);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 200.0F);
    EXPECT_EQ(form.Label4, u"Enter Quantity"_s);
    form.ckProduct = false;
    creation.lstVehicles_Click(1);
    EXPECT_EQ(office.deliveryItems.LoadCapacity, 0.0F);
    EXPECT_EQ(form.Label4, u"Enter "_s);
}

// Deliver to.

TEST_F(DeliveryCreationTest, DeliverToIsClearedAndFilledFromTheCustomer) {
    Begin();
    form.attention = u"Back door"_s;
    creation.ClearDeliverTo();
    EXPECT_EQ(form.txtShipto, DeliveryAddress());
    EXPECT_EQ(form.Focus, DeliveryFocus::ShipToName);
    creation.SameAsSoldTo();
    EXPECT_EQ(form.txtShipto, form.lblCustomer);
    EXPECT_EQ(form.attention, u"Back door"_s);
}

// The number.

TEST_F(DeliveryCreationTest, NumberIsEmptiedForOneOfOnesOwnAndReloaded) {
    Begin();
    creation.EnterNewNumber();
    EXPECT_EQ(form.txtDeliveryNo, QString());
    EXPECT_EQ(form.Focus, DeliveryFocus::SlipNumber);
    creation.ReloadNumber();
    EXPECT_EQ(form.txtDeliveryNo, u"20260001"_s);
}

TEST_F(DeliveryCreationTest, NumberThatIsLeftEmptyIsReloadedWithAMessage) {
    Begin();
    form.txtDeliveryNo = u"500"_s;
    creation.txtDeliveryNo_LostFocus();
    EXPECT_EQ(form.txtDeliveryNo, u"500"_s);
    form.txtDeliveryNo.clear();
    user.ExpectMessage(u"The Delivery Number has been reloaded"_s);
    creation.txtDeliveryNo_LostFocus();
    EXPECT_EQ(form.txtDeliveryNo, u"20260001"_s);
}

TEST_F(DeliveryCreationTest, NumberTakesDigitsAndRefusesEachOtherKeyOnce) {
    const auto press = [this](char16_t key, const QString& text) {
        return QChar(creation.txtDeliveryNo_KeyPress(key, text));
    };
    EXPECT_EQ(press(u'5', u""_s), u'5');
    EXPECT_EQ(press(u'0', u"5"_s), u'0');
    EXPECT_EQ(press(u'\b', u"5"_s), u'\b');
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(press(u'0', u""_s), QChar());
    EXPECT_EQ(press(u'a', u"5"_s), QChar());
    EXPECT_EQ(user.Beeps, 2);
    user.ExpectMessage(u"This character, (/) is invalid for this field"_s, u"Invalid Key entry"_s);
    EXPECT_EQ(press(u'/', u""_s), QChar());
    EXPECT_EQ(user.Beeps, 3);
    EXPECT_EQ(press(u'/', u"5"_s), QChar())
        << "a plain number lets it pass, and digits are all there is";
    EXPECT_EQ(user.Beeps, 4);
}

TEST_F(DeliveryCreationTest, PointBeepsEvenWhereItIsLetThrough) {
    Begin();
    EXPECT_EQ(creation.txtDeliveryNo_KeyPress(u'.', u"12"_s), u'.');
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(creation.txtDeliveryNo_KeyPress(u'.', u"1.2"_s), 0);
    EXPECT_EQ(user.Beeps, 2);
    user.ExpectMessage(u"This character, (.) is invalid for this field"_s, u"Invalid Key entry"_s);
    EXPECT_EQ(creation.txtDeliveryNo_KeyPress(u'.', QString()), 0);
}

// The reference.

TEST_F(DeliveryCreationTest, EmptyReferenceIsPreparedWithTodaysDate) {
    Begin();
    creation.txtReference_LostFocus();
    EXPECT_EQ(form.txtReference, u"Prepared 3/9/2026"_s);
    form.txtReference = u"PO 7"_s;
    creation.txtReference_LostFocus();
    EXPECT_EQ(form.txtReference, u"PO 7"_s);
}

// Going on.

TEST_F(DeliveryCreationTest, ContinueShowsTheItemsAndPreparesTheReference) {
    Begin();
    creation.Continue();
    EXPECT_TRUE(form.fraItems);
    EXPECT_FALSE(form.fraSetup);
    EXPECT_EQ(form.txtReference, u"Prepared 3/9/2026"_s);
    EXPECT_TRUE(office.templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate]);
    EXPECT_EQ(form.Focus, DeliveryFocus::Items);
    EXPECT_EQ(form.lstItems, -1);
}

TEST_F(DeliveryCreationTest, ContinueKeepsAReferenceOfOnesOwn) {
    Begin();
    form.txtReference = u"PO 7"_s;
    creation.Continue();
    EXPECT_EQ(form.txtReference, u"PO 7"_s);
}

TEST_F(DeliveryCreationTest, OneItemAloneIsSelectedByContinue) {
    folder.Write(u"NXInventoriedItems.txt"_s, ItemBytes{.description = "Sand"}.Record());
    Begin();
    creation.Continue();
    EXPECT_EQ(form.lstItems, 0);
    EXPECT_EQ(form.Focus, DeliveryFocus::Units);
}

TEST_F(DeliveryCreationTest, ContinueWantsANumberBeforeAllElse) {
    Begin();
    form.txtDeliveryNo.clear();
    form.txtShipto[0].clear();
    form.lblCustomer[0].clear();
    user.ExpectMessage(u"You have not entered an Delivery Number"_s);
    creation.Continue();
    EXPECT_EQ(form.Focus, DeliveryFocus::SlipNumber);
    EXPECT_TRUE(form.fraSetup);
    EXPECT_FALSE(form.fraItems);
    EXPECT_EQ(form.txtReference, QString());
    EXPECT_FALSE(office.templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate]);
}

TEST_F(DeliveryCreationTest, ContinueWantsADeliverToName) {
    Begin();
    form.txtShipto[0].clear();
    user.ExpectMessage(u"You have not entered Deliver to Data"_s);
    creation.Continue();
    EXPECT_EQ(form.Focus, DeliveryFocus::ShipToName);
    EXPECT_TRUE(form.fraSetup);
    EXPECT_FALSE(form.fraItems);
}

TEST_F(DeliveryCreationTest, CustomerWithoutANameIsToldOfAndTheDeliverToIsLookedAtAllTheSame) {
    office.deliveryCustomer.Name.clear();
    Begin();
    user.ExpectMessage(u"Something is Wrong with your Customer Data"_s);
    user.ExpectMessage(u"You have not entered Deliver to Data"_s);
    creation.Continue();
    form.txtShipto[0] = u"Depot"_s;
    form.Focus = DeliveryFocus::Nothing;
    user.ExpectMessage(u"Something is Wrong with your Customer Data"_s);
    creation.Continue();
    EXPECT_EQ(form.Focus, DeliveryFocus::Nothing);
    EXPECT_TRUE(form.fraSetup);
}

TEST_F(DeliveryCreationTest, RecurringSlipTellsOfItsFirstDelivery) {
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    creation.lstFrequency_Click(5);
    user.ExpectMessage(
        u" The 1st Delivery will be made on 3/9/2026\nand will re-occurr Semi-Annually"_s);
    creation.Continue();
    EXPECT_TRUE(form.fraItems);
}

TEST_F(DeliveryCreationTest, WhatTheOptionShowsIsToldOfThoughTheSlipIsNot) {
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    creation.Activate();
    user.ExpectMessage(u" The 1st Delivery will be made on 3/9/2026\nand will re-occurr Weekly"_s);
    creation.Continue();
    EXPECT_FALSE(form.SlipIsRecurring);
}

// Panels.

TEST_F(DeliveryCreationTest, AccountPanelComesInThePlaceOfSetupAndItemsAlone) {
    Begin();
    creation.mnuAccount_Click();
    EXPECT_TRUE(form.fraCustomer);
    EXPECT_FALSE(form.fraSetup);
    creation.mnuAccount_Click();
    EXPECT_FALSE(form.fraCustomer || form.fraSetup || form.fraItems);
    office.deliveryItems.ShowNonPriced();
    creation.mnuAccount_Click();
    EXPECT_TRUE(form.fraCustomer && form.fraNonPriced);
}

TEST_F(DeliveryCreationTest, SetupAndItemsComeInThePlaceOfAllPanels) {
    Begin();
    form.fraItems = form.fraNonPriced = form.fraMulti = form.fraCustomer = true;
    creation.mnuItems_Click();
    EXPECT_TRUE(form.fraItems);
    EXPECT_FALSE(form.fraSetup || form.fraNonPriced || form.fraMulti || form.fraCustomer);
    creation.mnuSetup_Click();
    EXPECT_TRUE(form.fraSetup);
    EXPECT_FALSE(form.fraItems || form.fraNonPriced || form.fraMulti || form.fraCustomer);
    creation.mnuSetup_Click();
    EXPECT_TRUE(form.fraSetup);
}

TEST_F(DeliveryCreationTest, ReDoTakesTheLinesAndLeavesCustomerAndNumber) {
    Begin();
    form.txtDeliveryNo = u"500"_s;
    form.txtShipto[0] = u"Depot"_s;
    creation.Continue();
    PostSand(u"2"_s);
    creation.ReDo();
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
    EXPECT_EQ(form.txtTotal, u"$0.00"_s);
    EXPECT_EQ(form.txtDeliveryNo, u"500"_s);
    EXPECT_EQ(form.txtShipto[0], u"Depot"_s);
    EXPECT_EQ(form.lblCustomer[0], u"Corner Grocery"_s);
    EXPECT_TRUE(form.fraSetup);
    EXPECT_FALSE(form.fraItems);
}

TEST_F(DeliveryCreationTest, LoadedTemplateGoesOnToTheItemsByTheSameChecks) {
    folder.Write(u"Templates/Deliveries/Week.txt"_s, TemplateLine("3", "Sand", "9.00"));
    Begin();
    form.txtShipto[0].clear();
    user.ExpectMessage(u"You have not entered Deliver to Data"_s);
    creation.LoadTemplate();
    EXPECT_TRUE(form.fraSetup);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
    creation.SameAsSoldTo();
    creation.LoadTemplate();
    EXPECT_TRUE(form.fraItems);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
    EXPECT_EQ(form.txtTotal, u"$27.00"_s);
    EXPECT_EQ(form.txtReference, u"Prepared 3/9/2026"_s);
}

// Storing.

TEST_F(DeliveryCreationTest, RecurringSlipIsStoredInBothFiles) {
    folder.Write(counterFile, "20260014\r\n");
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    creation.DTShip_Change(QDate(2026, 3, 16));
    form.lstTime = 6;
    form.txtShipto = {u"Caf\u00e9 Grün"_s, u"9 Elm Street"_s, u"Apt 4 "_s,
                      u"Springfield"_s,    u"IL"_s,           u"62705"_s};
    form.attention = u" Back door"_s;
    user.ExpectMessage(u" The 1st Delivery will be made on 3/16/2026\nand will re-occurr Weekly"_s);
    creation.Continue();
    PostSand(u"2"_s);
    form.cboNonPricedDescription = u"Crates, \"blue\" \u20ac"_s;
    form.txtNonPriced = u"7"_s;
    office.deliveryItems.PostNonPriced();
    EXPECT_TRUE(creation.Store());
    EXPECT_EQ(folder.Read(HeaderName(u"20260014"_s)),
              "20260014\r\n3/16/2026\r\n08:30am\r\nTrue\r\n0000001\r\nFlatbed Truck\r\n4471\r\n"
              "Corner Grocery\r\nPrepared 3/9/2026\r\nBack door\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Caf\xe9 Gr\xfcn\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n");
    EXPECT_EQ(folder.Read(ItemName(u"20260014"_s)),
              "20260014\r\n2\r\n2\r\nSand\r\n$2.35\r\n$4.70\r\n"
              "7\r\nCrates, \"blue\" \x80\r\n$0.00\r\n$0.00\r\n\"$4.70\"\r\n");
    EXPECT_EQ(folder.Read(counterFile), "20260015\r\n");
}

TEST_F(DeliveryCreationTest, OneTimeSlipOfAGermanOfficeIsStoredInBothFiles) {
    UseLocale("de_DE");
    folder.Write(counterFile, "20260014\r\n");
    office.settings.txtDeliveryCharge = u"0,00"_s;
    Begin();
    form.lstTime = 1;
    creation.lstVehicles_Click(1);
    form.attention = u"Hintert\u00fcr"_s;
    creation.Continue();
    form.lstItems = 1;
    form.txtUnits = u"100"_s;
    office.deliveryItems.PostItem();
    EXPECT_TRUE(creation.Store());
    EXPECT_EQ(folder.Read(HeaderName(u"20260014"_s)),
              "20260014\r\n09.03.2026\r\n07.15am\r\nFalse\r\n\r\nTanker\r\n4471\r\n"
              "Corner Grocery\r\nPrepared 09.03.2026\r\nHintert\xfcr\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n"
              "\"IL\"\r\n\"62704\"\r\n");
    EXPECT_EQ(folder.Read(ItemName(u"20260014"_s)),
              "20260014\r\n1\r\n100\r\nHeating Oil\r\n12,50\xa0\x80\r\n1.250,00\xa0\x80\r\n"
              "\"1.250,00\xa0\x80\"\r\n");
}

TEST_F(DeliveryCreationTest, OneTimeSlipAfterARecurringChoiceKeepsTheCodeOnLineFive) {
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    creation.optRecurring_Click(RecurringOption::OneTime);
    creation.Continue();
    PostSand(u"2"_s);
    creation.Store();
    EXPECT_EQ(Line(u"20260001"_s, 4), u"False"_s);
    EXPECT_EQ(Line(u"20260001"_s, 5), u"0000001"_s);
}

TEST_F(DeliveryCreationTest, NextSlipIsOneTimeUnlessTheOptionIsClickedAgain) {
    Begin();
    creation.optRecurring_Click(RecurringOption::Recurring);
    creation.Activate();
    user.ExpectMessage(u" The 1st Delivery will be made on 3/9/2026\nand will re-occurr Weekly"_s);
    creation.Continue();
    PostSand(u"2"_s);
    creation.Store();
    EXPECT_EQ(Line(u"20260001"_s, 4), u"False"_s);
}

TEST_F(DeliveryCreationTest, WithoutAVehicleLineSixIsBlank) {
    office.fleet.Names.setStringList({});
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    creation.Store();
    EXPECT_EQ(Line(u"20260001"_s, 6), QString());
}

TEST_F(DeliveryCreationTest, SlipWithoutItemsIsNotStored) {
    Begin();
    creation.Continue();
    const auto before = folder.Contents();
    user.ExpectMessage(u"The Delivery contains no Items"_s, u"No Items Entered"_s);
    EXPECT_FALSE(creation.Store());
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(form.txtDeliveryNo, u"20260001"_s);
}

TEST_F(DeliveryCreationTest, TypedNumberLeavesTheCounterAtItsOwnNextValue) {
    Begin();
    form.txtDeliveryNo = u"500"_s;
    creation.Continue();
    PostSand(u"2"_s);
    creation.Store();
    EXPECT_TRUE(folder.Has(HeaderName(u"500"_s)));
    EXPECT_TRUE(folder.Has(ItemName(u"500"_s)));
    EXPECT_EQ(folder.Read(counterFile), "20260002\r\n");
}

TEST_F(DeliveryCreationTest, NumberInUseSilentlyReplacesThatSlip) {
    folder.Write(HeaderName(u"500"_s), SlipHeaderBytes("500", "3/12/2026"));
    folder.Write(ItemName(u"500"_s), "500\r\n0\r\n\"$7.00\"\r\n");
    Begin();
    form.txtDeliveryNo = u"500"_s;
    creation.Continue();
    PostSand(u"2"_s);
    creation.Store();
    EXPECT_EQ(Line(u"500"_s, 2), u"3/9/2026"_s);
    EXPECT_EQ(folder.Read(ItemName(u"500"_s)),
              "500\r\n1\r\n2\r\nSand\r\n$2.35\r\n$4.70\r\n\"$4.70\"\r\n");
}

TEST_F(DeliveryCreationTest, DeletedLineLeavesItsAmountInTheStoredTotal) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    PostSand(u"1"_s);
    office.deliveryItems.fgDelivery.SetCurrent(1, 1);
    user.ExpectQuestion(u"Delete item Sand from Invoice?"_s, u"Item Deletion"_s, Answer::Yes);
    office.deliveryItems.DeleteItem();
    creation.Store();
    EXPECT_EQ(folder.Read(ItemName(u"20260001"_s)),
              "20260001\r\n1\r\n1\r\nSand\r\n$2.35\r\n$2.35\r\n\"$7.05\"\r\n");
}

TEST_F(DeliveryCreationTest, BlankedUnitsAreStoredEmpty) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    office.deliveryItems.fgDelivery.SetCurrent(1, 0);
    office.deliveryItems.EditUnits(u'\b');
    creation.Store();
    EXPECT_EQ(folder.Read(ItemName(u"20260001"_s)),
              "20260001\r\n1\r\n\r\nSand\r\n$2.35\r\n$0.00\r\n\"$4.70\"\r\n");
}

TEST_F(DeliveryCreationTest, StoringEmptiesTheSlipAndSavesTheDeliverySettings) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    office.settings.ckDelete = 0;
    EXPECT_FALSE(folder.Has(u"DeliverySettings.txt"_s));
    creation.Store();
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
    EXPECT_EQ(form.txtDeliveryNo, QString());
    EXPECT_EQ(form.txtTotal, u"$0.00"_s);
    EXPECT_TRUE(folder.Read(u"DeliverySettings.txt"_s).startsWith("0,0,"));
}

TEST_F(DeliveryCreationTest, LeavingWithoutStoringWritesTheSettingsAlone) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    QStringList names = folder.Everything();
    creation.Exit();
    names += u"DeliverySettings.txt"_s;
    names.sort();
    EXPECT_EQ(folder.Everything(), names);
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 0);
}

TEST_F(DeliveryCreationTest, FullDiskLeavesSlipsAndCounterAsTheyWere) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    const auto before = folder.Contents();
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(100);
        creation.Store();
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(office.deliveryItems.SlipItemCount, 1);
    office.slips.LoadSlips(true);
    EXPECT_EQ(office.slips.SlipCount, 0);
}

TEST_F(DeliveryCreationTest, NumberThatNamesNoFileFailsAndNothingElseChanges) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    const auto before = folder.Contents();
    const QString longNumber(300, u'7');
    const std::tuple<QString, FailureKind, QString> cases[] = {
        {u"12/7"_s, FailureKind::FileNotFound,
         u"Renaming TesselDelivery/DeliveryItems/TempFile.txt to "
         "TesselDelivery/DeliveryItems/12/7.txt failed: No such file or directory."_s},
        {u"../7"_s, FailureKind::BadFileName,
         u"The name \"/TesselDelivery/DeliveryItems/../7.txt\" would lead out of the data "
         "folder."_s},
        {longNumber, FailureKind::BadFileName,
         u"Deleting TesselDelivery/DeliveryItems/%1.txt failed: File name too long."_s.arg(
             longNumber)}};
    for (const auto& [number, kind, sentence] : cases) {
        form.txtDeliveryNo = number;
        const RuntimeFailure failure = FailureOf([&] { creation.Store(); });
        EXPECT_EQ(failure.Kind(), kind) << number.toStdString();
        EXPECT_EQ(failure.Sentence(), sentence);
        EXPECT_EQ(folder.Contents(), before) << number.toStdString();
    }
}

TEST_F(DeliveryCreationTest, CounterThatCantBeSavedFailsBehindTheWholeSlip) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([&] { creation.Store(); });
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Deleting NQDeliveryNo.txt failed: Permission denied."_s);
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
    EXPECT_EQ(folder.Read(HeaderName(u"20260001"_s)).count("\r\n"), 22);
    EXPECT_EQ(folder.Read(ItemName(u"20260001"_s)),
              "20260001\r\n1\r\n2\r\nSand\r\n$2.35\r\n$4.70\r\n\"$4.70\"\r\n");
    EXPECT_FALSE(folder.Has(u"DeliverySettings.txt"_s));
    office.slips.LoadSlips(true);
    EXPECT_EQ(office.slips.SlipCount, 1);
}

TEST_F(DeliveryCreationTest, StoredSlipIsOneOfTheSlipsOfItsDayAndVehicle) {
    Begin();
    creation.Continue();
    PostSand(u"2"_s);
    creation.Store();
    office.slips.LoadSlips(false);
    office.board.Initform(u"Flatbed Truck"_s);
    EXPECT_EQ(office.board.Cell(1, ScheduleColumn::SlipNo), u"20260001"_s);
    office.board.LoadSlipPanel(u"20260001"_s);
    EXPECT_EQ(office.board.fraSlip.lblTotal, u"$4.70"_s);
}
