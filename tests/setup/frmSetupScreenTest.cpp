#include "setup/SetupScreenTest.h"

using namespace Qt::StringLiterals;

// What stands on the screen.

TEST_F(SetupScreen, TitleTabsAndTheirCaptions) {
    StartSetup();
    EXPECT_EQ(run->screens.Find(setup)->windowTitle(), u"Tessel Delivery Setup"_s);
    const QStringList tabs = {u"Business Info"_s, u"Setup Help"_s, u"Options"_s, u"Logo"_s};
    ASSERT_EQ(Tabs()->count(), tabs.size());
    for (int i = 0; i < tabs.size(); ++i)
        EXPECT_EQ(Tabs()->tabText(i), tabs[i]);
    const QStringList subTabs = {u"Printing"_s,
                                 u"Taxation"_s,
                                 u"Phone and Modem"_s,
                                 u"Work Days"_s,
                                 u"Deliveries/Invoicing"_s,
                                 u"Program Assistance"_s};
    ASSERT_EQ(SubTabs()->count(), subTabs.size());
    for (int i = 0; i < subTabs.size(); ++i)
        EXPECT_EQ(SubTabs()->tabText(i), subTabs[i]);
}

TEST_F(SetupScreen, EachTabHoldsItsControls) {
    StartSetup();
    struct Place {
        QWidget* tab;
        QStringList controls;
    };
    QStringList business = {u"cmdAddress"_s, u"Image4"_s, u"Image5"_s};
    for (int i = 0; i < 9; ++i)
        business += Business(i);
    const Place places[] = {
        {Tabs()->widget(BusinessInfo), business},
        {Tabs()->widget(Options), {u"SSTab2"_s}},
        {SubTabs()->widget(Printing),
         {u"lblFont"_s, u"txtData"_s, u"txtBorders"_s, u"ckColor"_s, u"cboCopies"_s, u"optPlain"_s,
          u"optReturn"_s}},
        {SubTabs()->widget(Taxation),
         {u"cboTaxHeading1"_s, u"cboRate1"_s, u"ckApply1stTax"_s, u"cboTaxHeading2"_s,
          u"cboRate2"_s, u"ckApply2ndTax"_s, u"ckApplyGraduated"_s, u"cmdGraduatedTax(0)"_s,
          u"fraGraduated"_s, limit, surcharge, u"cmdGraduatedTax(1)"_s, u"cmdGraduatedTax(2)"_s,
          u"ckServices"_s, u"ckSalesItems"_s, u"ckLabor"_s}},
        {SubTabs()->widget(PhoneAndModem),
         {u"ckCallerID"_s, u"ckPhone"_s, u"txtModemPort"_s, u"lblCallid"_s}},
        {SubTabs()->widget(WorkDays),
         {u"fraWDOptions"_s, u"optMF"_s, u"optMS"_s, u"optSF"_s, u"optSS"_s, u"ckOnDay"_s}},
        {SubTabs()->widget(DeliveriesInvoicing),
         {u"ckPopulateInvoices"_s, u"ckDeliveryCharge"_s, charge, u"ckDelete"_s}},
        {SubTabs()->widget(Assistance), {u"fraAlarms"_s, u"ckAlarms"_s, u"ckPrompts"_s}}};
    for (const Place& place : places) {
        for (const QString& name : place.controls)
            EXPECT_NE(place.tab->findChild<QWidget*>(name), nullptr) << name.toStdString();
    }
}

TEST_F(SetupScreen, ControlsCarryTheirCaptions) {
    StartSetup();
    const std::pair<QString, QString> captions[] = {
        {quit, u"&Save Settings / Return to Menu"_s},
        {u"Image1(0)"_s, u"Advance Tab  >"_s},
        {u"Image1(1)"_s, u"Advance Sub Tab  >"_s},
        {u"ckServices"_s, u"Tax Services"_s},
        {u"ckSalesItems"_s, u"Tax Sales Items"_s},
        {u"ckLabor"_s, u"Tax Labor"_s},
        {u"ckApplyGraduated"_s, u"Apply Graduated Tax Scheme"_s},
        {u"cmdGraduatedTax(0)"_s, u"View/Create a Graduated Tax Scheme"_s},
        {u"cmdGraduatedTax(1)"_s, u"Save Graduated Tax Scheme and Close Window"_s},
        {u"cmdGraduatedTax(2)"_s, u"Clear/Redo"_s},
        {u"ckCallerID"_s, u"Using Caller ID"_s},
        {u"ckPhone"_s, u"A Phone is Daisy-Chained  downstream from the Computer"_s},
        {u"optMF"_s, u"Monday thru Friday"_s},
        {u"optMS"_s, u"Monday thru Saturday"_s},
        {u"optSF"_s, u"Sunday thru Friday"_s},
        {u"optSS"_s, u"Sunday thru Saturday"_s},
        {u"ckOnDay"_s, u"Delivery Rescheduling"_s},
        {u"ckPopulateInvoices"_s, u"Print Populated Invoices"_s},
        {u"ckDeliveryCharge"_s, u"Add a Delivery Charge to invoices"_s},
        {u"ckDelete"_s, u"Automatically DELETE deliveries Past Date"_s},
        {u"ckAlarms"_s, u"Sound Alarm on Errors"_s},
        {u"ckPrompts"_s, u"Show Prompts and Confirmations"_s}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(On<QAbstractButton>(name)->text(), caption);
    const QStringList labels = {
        u"Company Name"_s,  u"Address 1"_s,       u"Address 2"_s, u"City"_s,
        u"State"_s,         u"Postal Zip Code"_s, u"Telephone"_s, u"Fax No,email or Web"_s,
        u"FEIN, VAT, ABN"_s};
    for (int i = 0; i < labels.size(); ++i)
        EXPECT_EQ(Caption(u"lblAddress(%1)"_s.arg(i)), labels[i]);
}

TEST_F(SetupScreen, NotesStandBesideTheirControls) {
    StartSetup();
    const std::pair<QWidget*, QStringList> places[] = {
        {On<QWidget>(u"fraGraduated"_s),
         {u"Graduated Tax Levels"_s, u"Apply Primary Tax Rate to all Sales up to  a Total of:"_s,
          u"Apply Secondary Tax Rate when exceeded"_s, u"when Primary Amount is exceeded"_s,
          u"Apply a Surcharge of:"_s}},
        {On<QWidget>(u"fraWDOptions"_s), {u"Allow Deliveries These Days"_s}},
        {SubTabs()->widget(WorkDays),
         {u"Example: Ticked always on Monday"_s, u"Unticked always on the 3rd"_s}},
        {SubTabs()->widget(DeliveriesInvoicing),
         {u"(Set to 0 if charge may vary)"_s,
          u"The invoice will contain all products on the delivery slip"_s,
          u"The total and taxes will be calculated automatically"_s,
          u"Unticked, the invoices will only be headed up"_s,
          u"Invoice Numbers are not used, Inventory is NOT updated"_s, u"Sale is not recorderd"_s}},
        {On<QWidget>(u"fraAlarms"_s), {u"Program Assistance"_s}}};
    for (const auto& [part, notes] : places) {
        const QStringList texts = TextsIn(part);
        for (const QString& note : notes)
            EXPECT_EQ(texts.count(note), 1) << note.toStdString();
    }
}

TEST_F(SetupScreen, ToolTips) {
    StartSetup();
    const std::pair<QString, QString> tips[] = {
        {quit, u"Returns to Main Menu"_s},
        {u"Image1(0)"_s, u"Toggles the Tab Selection"_s},
        {u"Image1(1)"_s, u"Toggles the Sub-Tab Selection"_s},
        {u"cmdAddress"_s, u"Toggle Address Style (USA or Intl)"_s},
        {u"Image4"_s, u"Clear All business Data"_s},
        {u"Image5"_s, u"Reload Business Data"_s},
        {u"cmdGraduatedTax(0)"_s, u"International Users only"_s},
        {u"fraGraduated"_s, u"A specialized Tax system"_s},
        {limit, u"Max amount of primary rate"_s},
        {surcharge, u"Flat surcharge when 1st total is exceeded"_s},
        {u"ckApplyGraduated"_s, u"A specialized Tax System used in some countries"_s}};
    for (const auto& [name, tip] : tips)
        EXPECT_EQ(On<QWidget>(name)->toolTip(), tip) << name.toStdString();
}

TEST_F(SetupScreen, ListsHoldTheirEntriesInOrderAndAllowFreeEntry) {
    StartSetup();
    const QStringList rates = {u"4.0"_s, u"5.0"_s, u"6.0"_s, u"7.0"_s,
                               u"5,0"_s, u"6,0"_s, u"7,0"_s};
    const QStringList headings = {u"Sales Tax"_s, u"County Tax"_s,     u"Tax"_s, u"Taxes"_s,
                                  u"VAT Tax"_s,   u"Provincial Tax"_s, u"GST"_s};
    const std::pair<QString, QStringList> lists[] = {
        {u"cboRate1"_s, rates},
        {u"cboRate2"_s, rates},
        {u"cboTaxHeading1"_s, headings},
        {u"cboTaxHeading2"_s, headings + QStringList(u"Tax Surcharge"_s)},
        {u"cboCopies"_s, {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}}};
    for (const auto& [name, entries] : lists) {
        QStringList texts;
        for (int i = 0; i < List(name)->count(); ++i)
            texts += List(name)->itemText(i);
        EXPECT_EQ(texts, entries) << name.toStdString();
        EXPECT_TRUE(List(name)->isEditable()) << name.toStdString();
    }
}

// Going from tab to tab.

TEST_F(SetupScreen, SteppersGoOnAndFromTheLastTabToTheFirst) {
    StartSetup();
    for (const int tab : {1, 2, 3, 0, 1}) {
        ClickOn(u"Image1(0)"_s);
        EXPECT_EQ(Tabs()->currentIndex(), tab);
        EXPECT_EQ(SubTabs()->currentIndex(), 0);
    }
    GoTo(Options);
    for (const int tab : {1, 2, 3, 4, 5, 0, 1}) {
        ClickOn(u"Image1(1)"_s);
        EXPECT_EQ(SubTabs()->currentIndex(), tab);
        EXPECT_EQ(Tabs()->currentIndex(), Options);
    }
}

TEST_F(SetupScreen, SubTabIsResetAtEachShowingWhileTheTabStays) {
    StartSetup();
    GoTo(Assistance);
    run->screens.Hide(setup);
    run->screens.Show(setup);
    EXPECT_EQ(Tabs()->currentIndex(), Options);
    EXPECT_EQ(SubTabs()->currentIndex(), Printing);
}

TEST_F(SetupScreen, MenuOpensItOnItsFirstTab) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Save();
    Reopen();
    EXPECT_TRUE(Shows(setup));
    EXPECT_FALSE(Shows(menu));
    EXPECT_EQ(Tabs()->currentIndex(), BusinessInfo);
    EXPECT_EQ(SubTabs()->currentIndex(), Printing);
}

// The road from the title screen and on.

TEST_F(SetupScreen, SetupIsMadeUnseenAtTheStartAndFolderWithoutFilesShowsTheWelcomePanel) {
    Start();
    EXPECT_NE(run->screens.Find(setup), nullptr);
    EXPECT_FALSE(Shows(setup));
    ClickOn(splash, u"cmdContinue"_s);
    EXPECT_TRUE(On<QWidget>(splash, u"fraWelcome"_s)->isVisible());
    EXPECT_FALSE(Shows(menu));
    ClickOn(splash, u"Image1(1)"_s);
    EXPECT_TRUE(Shows(setup));
    EXPECT_EQ(run->screens.Find(splash), nullptr);
}

TEST_F(SetupScreen, AfterAFullSaveAndARestartContinueGoesStraightToTheMenu) {
    StartSetup();
    EnterNameAndTelephone();
    Save();
    Start();
    ClickOn(splash, u"cmdContinue"_s);
    EXPECT_TRUE(Shows(menu));
    EXPECT_EQ(run->screens.Find(splash), nullptr);
}

TEST_F(SetupScreen, CloseBoxEndsTheProgramWithoutSaving) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    Enter(Business(0), u"Another"_s);
    GoTo(WorkDays);
    Tick(u"optSS"_s);
    CloseSetup();
    EXPECT_EQ(exits, 1);
    run.reset();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SetupScreen, CloseBoxInAnEmptyAmountBoxIsOneEndOfTheProgramAndNoFailure) {
    WriteBusinessFiles();
    StartSetup();
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    const auto before = folder.Contents();
    CloseSetup();
    EXPECT_EQ(exits, 1);
    run.reset();
    EXPECT_EQ(exits, 1);
    ExpectNoFailure();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SetupScreen, EndOfTheProgramInAnEmptyAmountBoxIsNoFailure) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    run.reset();
    ExpectNoFailure();
}

// Defaults.

TEST_F(SetupScreen, FolderWithoutFilesShowsTheDefaults) {
    StartSetup();
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(BusinessBox(i)->text(), QString()) << i;
    EXPECT_EQ(On<QAbstractButton>(u"cmdAddress"_s)->text(), usa);
    const QStringList ticked = {u"ckDelete"_s,  u"ckOnDay"_s,  u"ckAlarms"_s,
                                u"ckPrompts"_s, u"optPlain"_s, u"optMF"_s};
    for (const QString& name : ticked)
        EXPECT_TRUE(IsTicked(name)) << name.toStdString();
    const QStringList unticked = {u"ckColor"_s,
                                  u"ckApplyGraduated"_s,
                                  u"ckPopulateInvoices"_s,
                                  u"ckDeliveryCharge"_s,
                                  u"optReturn"_s,
                                  u"ckApply1stTax"_s,
                                  u"ckApply2ndTax"_s,
                                  u"ckCallerID"_s,
                                  u"ckPhone"_s,
                                  u"optMS"_s,
                                  u"optSF"_s,
                                  u"optSS"_s};
    for (const QString& name : unticked)
        EXPECT_FALSE(IsTicked(name)) << name.toStdString();
    EXPECT_EQ(List(u"cboTaxHeading1"_s)->currentText(), u"Sales Tax"_s);
    EXPECT_EQ(List(u"cboTaxHeading2"_s)->currentText(), u"Tax"_s);
    EXPECT_EQ(List(u"cboRate1"_s)->currentText(), u"4.0"_s);
    EXPECT_EQ(List(u"cboRate2"_s)->currentText(), u"4.0"_s);
    EXPECT_EQ(List(u"cboCopies"_s)->currentText(), u"3"_s);
    EXPECT_EQ(Text(charge), u"$0.00"_s);
    EXPECT_EQ(Text(limit), u"$0.00"_s);
    EXPECT_EQ(Text(surcharge), u"$0.00"_s);
    EXPECT_EQ(Text(u"txtModemPort"_s), u"1"_s);
    EXPECT_EQ(Caption(u"lblFont"_s), u"Arial"_s);
    EXPECT_EQ(On<QLineEdit>(u"txtBorders"_s)->accessibleDescription(), u"#000000"_s);
    EXPECT_EQ(On<QLineEdit>(u"txtData"_s)->accessibleDescription(), u"#000000"_s);
    GoTo(PhoneAndModem);
    EXPECT_FALSE(IsVisible(u"lblCallid"_s));
    GoTo(Taxation);
    EXPECT_FALSE(IsVisible(u"fraGraduated"_s));
    EXPECT_EQ(Live().WorkWeek, 5);
    EXPECT_TRUE(Live().AlarmOn);
    EXPECT_TRUE(Live().PromptsOn);
    EXPECT_FALSE(Live().CallerIdOn);
    EXPECT_EQ(Live().logoWidth, 1440);
    EXPECT_EQ(Live().logoHeight, 1440);
    EXPECT_EQ(Live().logoFile, QString());
}

TEST_F(SetupScreen, DefaultsSavedWithNameAndTelephone) {
    StartSetup();
    EnterNameAndTelephone();
    Save();
    EXPECT_EQ(Saved(businessFile),
              "\"Corner Dairy\",\"\",\"\",\"\",\"\",\"\",\"217-555-0199\",\"\",\"\"\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    EXPECT_EQ(Saved(deliveryFile), "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
    EXPECT_EQ(Saved(taxFile), "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    EXPECT_EQ(Saved(colorsFile), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    EXPECT_EQ(Saved(promptsFile), "#TRUE#,#TRUE#\r\n");
    EXPECT_EQ(Saved(workDaysFile), "5\r\n");
    EXPECT_EQ(Saved(phoneFile), "#FALSE#\r\n1\r\n");
    EXPECT_FALSE(folder.Has(logoFile));
    EXPECT_FALSE(folder.Has(logoSizeFile));
}
