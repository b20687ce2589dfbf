#include "setup/SetupScreenTest.h"

using namespace Qt::StringLiterals;

// Every setting from its control to the live value, and to its reader where there is one.

class SettingsTable : public SetupScreen {
protected:
    /// Ticks an unticked box, or the other way round, and back.
    template <typename Flag>
    void ExpectLive(SubTab tab, const QString& box, const Flag& value) {
        StartSetup();
        GoTo(tab);
        const bool before = IsTicked(box);
        EXPECT_EQ(value(), before) << box.toStdString();
        Tick(box);
        EXPECT_EQ(IsTicked(box), !before) << box.toStdString();
        EXPECT_EQ(value(), !before) << box.toStdString();
        Press(On<QWidget>(box), Qt::Key_Space);
        EXPECT_EQ(value(), before) << box.toStdString();
    }

    /// The board as it starts in this run.
    void OpenBoard() {
        run->screens.Show(board);
        ASSERT_TRUE(QTest::qWaitForWindowActive(run->screens.Find(board)));
    }
};

TEST_F(SettingsTable, EachCheckBoxReachesItsSettingAtOnce) {
    ExpectLive(Printing, u"ckColor"_s, [this] { return Live().ckColor == 1; });
    ExpectLive(Taxation, u"ckApply1stTax"_s, [this] { return Live().ckApply1stTax == 1; });
    ExpectLive(Taxation, u"ckApply2ndTax"_s, [this] { return Live().ckApply2ndTax == 1; });
    ExpectLive(Taxation, u"ckApplyGraduated"_s, [this] { return Live().ckApplyGraduated == 1; });
    ExpectLive(PhoneAndModem, u"ckPhone"_s, [this] { return Live().ckPhone; });
    ExpectLive(PhoneAndModem, u"ckCallerID"_s, [this] { return Live().CallerIdOn; });
    ExpectLive(WorkDays, u"ckOnDay"_s, [this] { return Live().ckOnDay == 1; });
    ExpectLive(DeliveriesInvoicing, u"ckPopulateInvoices"_s,
               [this] { return Live().ckPopulateInvoices == 1; });
    ExpectLive(DeliveriesInvoicing, u"ckDeliveryCharge"_s,
               [this] { return Live().ckDeliveryCharge == 1; });
    ExpectLive(DeliveriesInvoicing, u"ckDelete"_s, [this] { return Live().ckDelete == 1; });
    ExpectLive(Assistance, u"ckAlarms"_s, [this] { return Live().ckAlarms; });
    ExpectLive(Assistance, u"ckPrompts"_s, [this] { return Live().ckPrompts; });
}

TEST_F(SettingsTable, EachTextReachesItsSettingAtOnce) {
    StartSetup();
    for (int i = 0; i < 9; ++i) {
        Enter(Business(i), QString::number(i));
        EXPECT_EQ(Live().txtBusiness[size_t(i)], QString::number(i));
        EXPECT_EQ(Live().BusinessData[size_t(i)], QString());
    }
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"gst"_s);
    EnterInList(u"cboTaxHeading2"_s, u"County"_s);
    EnterInList(u"cboRate1"_s, u"5"_s);
    EnterInList(u"cboRate2"_s, u"7,"_s);
    EXPECT_EQ(Live().cboTaxHeading1, u"gst"_s);
    EXPECT_EQ(Live().cboTaxHeading2, u"County"_s);
    EXPECT_EQ(Live().cboRate1, u"5"_s);
    EXPECT_EQ(Live().cboRate2, u"7,"_s);
    GoTo(Printing);
    EnterInList(u"cboCopies"_s, u"12"_s);
    EXPECT_EQ(Live().cboCopies, u"12"_s);
    EXPECT_EQ(Live().PrintCopies, 3);
    GoTo(PhoneAndModem);
    Enter(u"txtModemPort"_s, u"4"_s);
    EXPECT_EQ(Live().txtModemPort, u"4"_s);
    EXPECT_EQ(Live().ComPort, 1);
}

TEST_F(SettingsTable, EntryOfAListIsChosenByKeyFromTheOneOnShow) {
    WriteBusinessFiles();
    StartSetup();
    GoTo(Taxation);
    for (const auto& [name, next] : {std::pair(u"cboTaxHeading1"_s, u"Provincial Tax"_s),
                                     std::pair(u"cboRate2"_s, u"6,0"_s)}) {
        List(name)->setFocus();
        Press(List(name), Qt::Key_Down);
        EXPECT_EQ(List(name)->currentText(), next);
    }
    EXPECT_EQ(Live().cboTaxHeading1, u"Provincial Tax"_s);
    EXPECT_EQ(Live().cboRate2, u"6,0"_s);
    GoTo(Printing);
    List(u"cboCopies"_s)->setFocus();
    Press(List(u"cboCopies"_s), Qt::Key_Down);
    EXPECT_EQ(Live().cboCopies, u"3"_s);
}

TEST_F(SettingsTable, EntryTypedWithEnterStaysAsTypedAndJoinsNoList) {
    StartSetup();
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"vat tax"_s);
    Press(List(u"cboTaxHeading1"_s)->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(Live().cboTaxHeading1, u"vat tax"_s);
    EXPECT_EQ(List(u"cboTaxHeading1"_s)->count(), 7);
}

TEST_F(SettingsTable, BoxesWithoutEffectCannotBeTicked) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    GoTo(Taxation);
    for (const QString& name : {u"ckServices"_s, u"ckSalesItems"_s, u"ckLabor"_s}) {
        EXPECT_FALSE(On<QWidget>(name)->isEnabled()) << name.toStdString();
        Tick(name);
        EXPECT_FALSE(IsTicked(name)) << name.toStdString();
    }
    EXPECT_EQ(folder.Contents(), before);
    Save();
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SettingsTable, WorkWeekOptionSetsTheCodeAtOnceForAllDates) {
    StartSetup();
    GoTo(WorkDays);
    struct Row {
        QString option;
        qint16 code;
        QDate fromSaturday;
        QDate fromSunday;
    };
    const Row rows[] = {{u"optMS"_s, 61, {2026, 3, 14}, {2026, 3, 16}},
                        {u"optSF"_s, 62, {2026, 3, 15}, {2026, 3, 15}},
                        {u"optSS"_s, 7, {2026, 3, 14}, {2026, 3, 15}},
                        {u"optMF"_s, 5, {2026, 3, 16}, {2026, 3, 16}}};
    const auto before = folder.Contents();
    for (const Row& row : rows) {
        Tick(row.option);
        EXPECT_EQ(Live().WorkWeek, row.code);
        QDate saturday(2026, 3, 14);
        QDate sunday(2026, 3, 15);
        EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(saturday), row.fromSaturday);
        EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(sunday), row.fromSunday);
        for (const Row& other : rows)
            EXPECT_EQ(IsTicked(other.option), other.option == row.option);
    }
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SettingsTable, WorkWeekOptionByArrowKey) {
    StartSetup();
    GoTo(WorkDays);
    On<QWidget>(u"optMF"_s)->setFocus();
    Press(On<QWidget>(u"optMF"_s), Qt::Key_Down);
    EXPECT_TRUE(IsTicked(u"optMS"_s));
    EXPECT_EQ(Live().WorkWeek, 61);
}

TEST_F(SettingsTable, UnknownWorkWeekShowsMondayToFridayAndTheNextSaveWritesFive) {
    WriteBusinessFiles();
    folder.Write(workDaysFile, "6\r\n");
    folder.Remove(settingsFile);
    StartSetup();
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    EXPECT_EQ(Live().WorkWeek, 5);
    Save();
    EXPECT_EQ(Saved(workDaysFile), "5\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, WorkWeekOfTheSettingsFileRulesWhileTheOtherIsShown) {
    WriteBusinessFiles();
    folder.Write(workDaysFile, "5\r\n");
    folder.Write(settingsFile, "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    QDate saturday(2026, 3, 14);
    EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(saturday), QDate(2026, 3, 14));
    Save();
    EXPECT_EQ(Saved(workDaysFile), "7\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, ClickOnTheWorkWeekAlreadyShownMakesItTheOneThatRules) {
    WriteBusinessFiles();
    folder.Write(workDaysFile, "5\r\n");
    folder.Write(settingsFile, "8\r\n7\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_EQ(Live().WorkWeek, 7);
    GoTo(WorkDays);
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    Tick(u"optMF"_s);
    EXPECT_TRUE(IsTicked(u"optMF"_s));
    EXPECT_EQ(Live().WorkWeek, 5);
    QDate saturday(2026, 3, 14);
    EXPECT_EQ(run->office.calendar.NextAvailableWorkDay(saturday), QDate(2026, 3, 16));
    Save();
    EXPECT_EQ(Saved(workDaysFile), "5\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, UntickedPromptsSavedOnceShowUntickedAndRuleAgainAfterARestart) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Tick(u"ckPrompts"_s);
    EXPECT_TRUE(Live().PromptsOn);
    Save();
    EXPECT_FALSE(Live().PromptsOn);
    EXPECT_EQ(Saved(promptsFile), "#FALSE#,#TRUE#\r\n");
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_FALSE(IsTicked(u"ckPrompts"_s));
    EXPECT_TRUE(Live().PromptsOn);
}

TEST_F(SettingsTable, SecondSaveInTheSameRunLevelsTheTwoFiles) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Tick(u"ckPrompts"_s);
    Tick(u"ckAlarms"_s);
    Save();
    Reopen();
    Save();
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n");
    StartSetup();
    EXPECT_FALSE(Live().PromptsOn);
    EXPECT_FALSE(Live().AlarmOn);
    EXPECT_FALSE(IsTicked(u"ckPrompts"_s));
    EXPECT_FALSE(IsTicked(u"ckAlarms"_s));
}

TEST_F(SettingsTable, AlarmAndPromptsRuleTheBoardOnlyFromTheSaveOn) {
    WriteVehicles(office, {u"Van 2"_s});
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Assistance);
    Tick(u"ckPrompts"_s);
    Tick(u"ckAlarms"_s);
    ScheduleBoard& rules = run->office.board;
    OpenBoard();
    user.ExpectMessage(u"Date has been Reset to Next Available Work Day"_s, u"Invalid Date"_s);
    rules.ChangeDate({2026, 3, 2});
    EXPECT_EQ(user.Beeps, 1);
    run->screens.Hide(board);
    run->screens.Show(setup);
    WaitForSetup();
    Save();
    rules.ChangeDate({2026, 3, 2});
    EXPECT_EQ(user.Beeps, 1);
    user.ExpectNothingLeft();
}

TEST_F(SettingsTable, CallerIdStartsUntickedWithItsLabelAndFollowsTheClicks) {
    WriteBusinessFiles();
    folder.Write(settingsFile, "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
    StartSetup();
    GoTo(PhoneAndModem);
    EXPECT_FALSE(IsTicked(u"ckCallerID"_s));
    EXPECT_TRUE(IsVisible(u"lblCallid"_s));
    EXPECT_TRUE(Live().CallerIdOn);
    Tick(u"ckCallerID"_s);
    EXPECT_TRUE(IsTicked(u"ckCallerID"_s));
    EXPECT_TRUE(Live().CallerIdOn);
    Tick(u"ckCallerID"_s);
    EXPECT_FALSE(Live().CallerIdOn);
    Save();
    EXPECT_EQ(Saved(settingsFile), "8\r\n5\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n");
}

TEST_F(SettingsTable, CallerIdTickedShowsItsLabelOnlyAfterARestart) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(PhoneAndModem);
    Tick(u"ckCallerID"_s);
    EXPECT_FALSE(IsVisible(u"lblCallid"_s));
    Save();
    StartSetup();
    GoTo(PhoneAndModem);
    EXPECT_TRUE(IsVisible(u"lblCallid"_s));
}

TEST_F(SettingsTable, PhoneReachesItsFileOnlyWithTheSave) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(PhoneAndModem);
    Tick(u"ckPhone"_s);
    EXPECT_EQ(Saved(phoneFile), "#FALSE#\r\n1\r\n");
    Save();
    EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n1\r\n");
    StartSetup();
    EXPECT_TRUE(IsTicked(u"ckPhone"_s));
}

TEST_F(SettingsTable, PortOfTheFileIsKeptWhileTheOneFoundIsShown) {
    WriteBusinessFiles();
    StartSetup();
    EXPECT_EQ(Text(u"txtModemPort"_s), u"1"_s);
    EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n5\r\n");
    Save();
    EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n5\r\n");
}

TEST_F(SettingsTable, PaperIsOneOfTwo) {
    StartSetup();
    GoTo(Printing);
    for (int i = 0; i < 2; ++i) {
        Tick(u"optReturn"_s);
        EXPECT_TRUE(Live().optReturn);
        EXPECT_FALSE(Live().optPlain);
        EXPECT_TRUE(IsTicked(u"optReturn"_s));
        EXPECT_FALSE(IsTicked(u"optPlain"_s));
    }
    Tick(u"optPlain"_s);
    EXPECT_FALSE(Live().optReturn);
    EXPECT_TRUE(Live().optPlain);
    EXPECT_TRUE(IsTicked(u"optPlain"_s));
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
}

TEST_F(SettingsTable, FileWithBothPapersOnShowsAndSavesTheRemittanceSlipAlone) {
    WriteBusinessFiles();
    folder.Write(deliveryFile, "1,0,1,0,1,1,#TRUE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
    StartSetup();
    EXPECT_TRUE(IsTicked(u"optReturn"_s));
    EXPECT_FALSE(IsTicked(u"optPlain"_s));
    EXPECT_TRUE(Live().optReturn);
    EXPECT_FALSE(Live().optPlain);
    Save();
    EXPECT_EQ(Saved(deliveryFile),
              "1,0,1,0,1,1,#FALSE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
}

TEST_F(SettingsTable, FileWithNeitherPaperOnShowsAndSavesNeither) {
    const QByteArray neither = "1,0,1,0,1,1,#FALSE#,#FALSE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n";
    WriteBusinessFiles();
    folder.Write(deliveryFile, neither);
    StartSetup();
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
    EXPECT_FALSE(IsTicked(u"optPlain"_s));
    Save();
    EXPECT_EQ(Saved(deliveryFile), neither);
    Reopen();
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
    EXPECT_FALSE(IsTicked(u"optPlain"_s));
    GoTo(Printing);
    Tick(u"optPlain"_s);
    EXPECT_TRUE(IsTicked(u"optPlain"_s));
    EXPECT_FALSE(IsTicked(u"optReturn"_s));
}

TEST_F(SettingsTable, NameOfAFontIsShownAsItStands) {
    WriteBusinessFiles();
    const QString name = u"<b>Courier</b> <i>New</i> &amp;"_s;
    folder.Write(colorsFile, "0\r\n0\r\n\"<b>Courier</b> <i>New</i> &amp;\"\r\n#TRUE#\r\n3\r\n");
    StartSetup();
    const auto* lblFont = On<QLabel>(u"lblFont"_s);
    EXPECT_EQ(lblFont->text(), name);
    // Marks that were obeyed would take no room.
    EXPECT_GE(lblFont->sizeHint().width(), lblFont->fontMetrics().horizontalAdvance(name));
}

TEST_F(SettingsTable, PrintedTextsTakeFontAndColoursAtOnce) {
    StartSetup();
    GoTo(Printing);
    user.ExpectFontDialog(u"Arial"_s, u"Courier New"_s);
    user.ExpectColorDialog(0, 0x123456);
    user.ExpectColorDialog(0x123456, 0x654321);
    ClickOn(u"cmdChange(2)"_s);
    ClickOn(u"cmdChange(0)"_s);
    ClickOn(u"cmdChange(1)"_s);
    PrinterRoutines& routines = run->office.printer;
    routines.PreparePrinter(Orientation::Portrait, false);
    EXPECT_EQ(printer.FontName, u"Courier New"_s);
    routines.SetPrintColor(PrintColor::Border);
    EXPECT_EQ(printer.ForeColor, 0U);
    Tick(u"ckColor"_s);
    routines.SetPrintColor(PrintColor::Border);
    EXPECT_EQ(printer.ForeColor, 0x123456U);
    routines.SetPrintColor(PrintColor::Text);
    EXPECT_EQ(Live().CurrentPrintColor, 0x654321U);
}

TEST_F(SettingsTable, ChargeOfTheBoardStartsWithTheAmountWhenTicked) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    ClickInto(charge);
    Type(On<QWidget>(charge), u"12.5"_s);
    Tick(u"ckDeliveryCharge"_s);
    OpenBoard();
    EXPECT_EQ(On<QLineEdit>(board, charge)->text(), u"$12.50"_s);
}

TEST_F(SettingsTable, ChargeOfTheBoardStartsAtZeroWhenUnticked) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    ClickInto(charge);
    Type(On<QWidget>(charge), u"12.5"_s);
    OpenBoard();
    EXPECT_EQ(On<QLineEdit>(board, charge)->text(), u"$0.00"_s);
}

TEST_F(SettingsTable, PopulatedInvoicesOfTheBoardStartAsSetUp) {
    StartSetup();
    GoTo(DeliveriesInvoicing);
    Tick(u"ckPopulateInvoices"_s);
    OpenBoard();
    EXPECT_TRUE(On<QAbstractButton>(board, u"ckPopulated"_s)->isChecked());
}

TEST_F(SettingsTable, TaxOptionsOfTheBoardStartAsSetUp) {
    struct Row {
        QStringList ticked;
        int option;
    };
    const Row rows[] = {{{u"ckApply1stTax"_s}, 0},
                        {{u"ckApply2ndTax"_s}, 1},
                        {{u"ckApply1stTax"_s, u"ckApply2ndTax"_s}, 2}};
    for (const Row& row : rows) {
        StartSetup();
        GoTo(Taxation);
        for (const QString& box : row.ticked)
            Tick(box);
        OpenBoard();
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(On<QAbstractButton>(board, u"optTax(%1)"_s.arg(i))->isChecked(),
                      i == row.option)
                << row.option << ' ' << i;
    }
}

TEST_F(SettingsTable, HeadingsAndRatesReachTheInvoiceTotals) {
    StartSetup();
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"VAT"_s);
    EnterInList(u"cboTaxHeading2"_s, u"City Tax"_s);
    EnterInList(u"cboRate1"_s, u"10"_s);
    EnterInList(u"cboRate2"_s, u"1,5"_s);
    Tick(u"ckApply1stTax"_s);
    Tick(u"ckApply2ndTax"_s);
    TaxOptions options;
    SetTaxOptions(Live(), options);
    SlipCaptions captions;
    CalculateTaxes(Currency::OfTenThousandths(2000000), Live(), options, captions);
    EXPECT_EQ(captions.lblTaxHeading1, u"VAT"_s);
    EXPECT_EQ(captions.lblTaxHeading2, u"City Tax"_s);
    EXPECT_EQ(captions.lblTax1, u"$20.00"_s);
    // The comma ends the number.
    EXPECT_EQ(captions.lblTax2, u"$2.00"_s);
}

TEST_F(SettingsTable, GraduatedSchemeReachesTheInvoiceTotals) {
    StartSetup();
    GoTo(Taxation);
    EnterInList(u"cboRate2"_s, u"5"_s);
    Tick(u"ckApply1stTax"_s);
    Tick(u"ckApplyGraduated"_s);
    ClickOn(u"cmdGraduatedTax(0)"_s);
    Type(On<QWidget>(limit), u"100"_s);
    Enter(surcharge, u"3"_s);
    ClickOn(u"cmdGraduatedTax(1)"_s);
    TaxOptions options;
    SetTaxOptions(Live(), options);
    SlipCaptions captions;
    CalculateTaxes(Currency::OfTenThousandths(2000000), Live(), options, captions);
    EXPECT_EQ(captions.lblTax1, u"$10.00"_s);
    EXPECT_EQ(captions.lblTax2, u"$3.00"_s);
}

TEST_F(SettingsTable, ReschedulingFollowsItsBoxAtOnce) {
    StartSetup();
    GoTo(WorkDays);
    Tick(u"optSS"_s);
    // Monthly, from Monday, 9 March to Thursday, 9 April, which the correction takes to Sunday.
    EXPECT_EQ(run->office.slips.NextDeliveryDate(u"3/9/2026"_s, u"0000003"_s), u"4/5/2026"_s);
    Tick(u"ckOnDay"_s);
    EXPECT_EQ(run->office.slips.NextDeliveryDate(u"3/9/2026"_s, u"0000003"_s), u"4/9/2026"_s);
}

TEST_F(SettingsTable, PastDeliveriesFollowTheirBoxAtOnce) {
    StartSetup();
    WriteSlip(folder, {.number = u"7"_s, .date = u"3/6/2026"_s, .recurring = u"False"_s});
    GoTo(DeliveriesInvoicing);
    Tick(u"ckDelete"_s);
    run->office.slips.ProcessPastSlip(u"7"_s, u"3/6/2026"_s, u"False"_s, {});
    EXPECT_TRUE(folder.Has(HeaderName(u"7"_s)));
    Tick(u"ckDelete"_s);
    user.ExpectMessage(u"Delivery Slip 7 scheduled for 3/6/2026 has been Deleted"_s);
    run->office.slips.ProcessPastSlip(u"7"_s, u"3/6/2026"_s, u"False"_s, {});
    EXPECT_FALSE(folder.Has(HeaderName(u"7"_s)));
}

TEST_F(SettingsTable, SavingWithAnUntickedTaxLeavesItsRateStored) {
    WriteBusinessFiles();
    StartSetup();
    GoTo(Taxation);
    Tick(u"ckApply1stTax"_s);
    Tick(u"ckApply2ndTax"_s);
    Save();
    EXPECT_EQ(Saved(taxFile), "\"VAT Tax\",\"Tax Surcharge\",\"6.25\",\"5,0\",0,0\r\n");
}
