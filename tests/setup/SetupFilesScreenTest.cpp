#include "setup/SetupScreenTest.h"

using namespace Qt::StringLiterals;

// All files after values entered by hand.

class FullSetup : public SetupScreen {
protected:
    void EnterBusiness() {
        const QStringList business = {u"Gr\u00fcn Dairy"_s, u"12 Mill Road"_s, u"Rear"_s,
                                      u"Springfield"_s,     u"IL"_s,           u"62704"_s,
                                      u"217-555-0199"_s,    u"fax@dairy"_s,    u"FEIN 1"_s};
        for (int i = 0; i < business.size(); ++i)
            Enter(Business(i), business[i]);
    }

    void EnterPrintLook() {
        user.ExpectFontDialog(u"Arial"_s, u"Courier New"_s);
        user.ExpectColorDialog(0, 0x0000ff);
        user.ExpectColorDialog(0x0000ff, 0xff0000);
        GoTo(Printing);
        ClickOn(u"cmdChange(2)"_s);
        ClickOn(u"cmdChange(1)"_s);
        ClickOn(u"cmdChange(0)"_s);
        Tick(u"ckColor"_s);
        EnterInList(u"cboCopies"_s, u"7"_s);
        Tick(u"optReturn"_s);
    }

    void EnterTaxes(const QString& typedLimit, const QString& typedSurcharge) {
        GoTo(Taxation);
        EnterInList(u"cboTaxHeading1"_s, u"VAT"_s);
        EnterInList(u"cboTaxHeading2"_s, u"Tax Surcharge"_s);
        EnterInList(u"cboRate1"_s, u"6"_s);
        EnterInList(u"cboRate2"_s, u"5,"_s);
        Tick(u"ckApply1stTax"_s);
        Tick(u"ckApply2ndTax"_s);
        Tick(u"ckApplyGraduated"_s);
        ClickOn(u"cmdGraduatedTax(0)"_s);
        Type(On<QWidget>(limit), typedLimit);
        Enter(surcharge, typedSurcharge);
        ClickOn(u"cmdGraduatedTax(1)"_s);
    }

    void EnterOptions(const QString& typedCharge) {
        GoTo(PhoneAndModem);
        Tick(u"ckCallerID"_s);
        Tick(u"ckPhone"_s);
        GoTo(WorkDays);
        Tick(u"optSF"_s);
        Tick(u"ckOnDay"_s);
        GoTo(DeliveriesInvoicing);
        Tick(u"ckPopulateInvoices"_s);
        Tick(u"ckDeliveryCharge"_s);
        ClickInto(charge);
        Type(On<QWidget>(charge), typedCharge);
        Tick(u"ckDelete"_s);
        GoTo(Assistance);
        Tick(u"ckAlarms"_s);
    }

    void StoreLogo() {
        user.ExpectFileDialog(pictureFilter, logoPath);
        user.ExpectMessage(u"Your Logo has been Stored"_s);
        GoTo(Logo);
        ClickOn(u"cmdLogo(0)"_s);
        ClickOn(u"UpDown3(up)"_s);
        ClickOn(u"cmdLogo(1)"_s);
    }

    /// A value other than the default into every control, amounts as a person of the region types
    /// them, and the save.
    void EnterEverythingAndSave(const QString& typedLimit, const QString& typedSurcharge,
                                const QString& typedCharge) {
        StartSetup();
        EnterBusiness();
        EnterPrintLook();
        EnterTaxes(typedLimit, typedSurcharge);
        EnterOptions(typedCharge);
        StoreLogo();
        Save();
        ExpectNoFailure();
    }

    void ExpectTheFilesWithoutAmounts() const {
        EXPECT_EQ(Saved(businessFile),
                  "\"Gr\xfcn Dairy\",\"12 Mill Road\",\"Rear\",\"Springfield\",\"IL\",\"62704\","
                  "\"217-555-0199\",\"fax@dairy\",\"FEIN 1\"\r\n");
        EXPECT_EQ(Saved(settingsFile), "8\r\n62\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n");
        EXPECT_EQ(Saved(taxFile), "\"VAT\",\"Tax Surcharge\",\"6\",\"5,\",1,1\r\n");
        EXPECT_EQ(Saved(colorsFile), "16711680\r\n255\r\n\"Courier New\"\r\n#TRUE#\r\n7\r\n");
        EXPECT_EQ(Saved(promptsFile), "#TRUE#,#FALSE#\r\n");
        EXPECT_EQ(Saved(workDaysFile), "62\r\n");
        EXPECT_EQ(Saved(logoFile), "\"/home/dairy/Logo, gr\xfcn.bmp\"\r\n");
        EXPECT_EQ(Saved(logoSizeFile), "1490,1440\r\n");
        EXPECT_EQ(Saved(phoneFile), "#TRUE#\r\n1\r\n");
    }

    void ExpectEverythingOnTheControls(const QString& shownLimit, const QString& shownSurcharge,
                                       const QString& shownCharge) {
        const QStringList business = {u"Gr\u00fcn Dairy"_s, u"12 Mill Road"_s, u"Rear"_s,
                                      u"Springfield"_s,     u"IL"_s,           u"62704"_s,
                                      u"217-555-0199"_s,    u"fax@dairy"_s,    u"FEIN 1"_s};
        for (int i = 0; i < business.size(); ++i)
            EXPECT_EQ(BusinessBox(i)->text(), business[i]);
        EXPECT_EQ(On<QAbstractButton>(u"cmdAddress"_s)->text(), usa);
        for (const char* name :
             {"ckColor", "optReturn", "ckApply1stTax", "ckApply2ndTax", "ckApplyGraduated",
              "ckPhone", "optSF", "ckPopulateInvoices", "ckDeliveryCharge", "ckPrompts"})
            EXPECT_TRUE(IsTicked(QString::fromLatin1(name))) << name;
        for (const char* name : {"optPlain", "optMF", "optMS", "optSS", "ckOnDay", "ckDelete",
                                 "ckAlarms", "ckCallerID"})
            EXPECT_FALSE(IsTicked(QString::fromLatin1(name))) << name;
        EXPECT_EQ(Caption(u"lblFont"_s), u"Courier New"_s);
        EXPECT_EQ(On<QLineEdit>(u"txtBorders"_s)->accessibleDescription(), u"#0000ff"_s);
        EXPECT_EQ(On<QLineEdit>(u"txtData"_s)->accessibleDescription(), u"#ff0000"_s);
        EXPECT_EQ(List(u"cboCopies"_s)->currentText(), u"7"_s);
        EXPECT_EQ(List(u"cboTaxHeading1"_s)->currentText(), u"VAT"_s);
        EXPECT_EQ(List(u"cboTaxHeading2"_s)->currentText(), u"Tax Surcharge"_s);
        EXPECT_EQ(List(u"cboRate1"_s)->currentText(), u"6"_s);
        EXPECT_EQ(List(u"cboRate2"_s)->currentText(), u"5,"_s);
        EXPECT_EQ(Text(limit), shownLimit);
        EXPECT_EQ(Text(surcharge), shownSurcharge);
        EXPECT_EQ(Text(charge), shownCharge);
        EXPECT_FALSE(Live().logo.IsEmpty());
        EXPECT_EQ(Live().logoWidth, 1490);
    }
};

TEST_F(FullSetup, AllFilesOfAUnitedStatesOffice) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    ExpectTheFilesWithoutAmounts();
    EXPECT_EQ(Saved(deliveryFile),
              "1,0,1,0,1,1,#FALSE#,#TRUE#,\"$1,000.00\",\"$2.50\",\"$12.50\"\r\n");
}

TEST_F(FullSetup, AllFilesOfAGermanOffice) {
    UseLocale("de_DE");
    EnterEverythingAndSave(u"1000"_s, u"2,5"_s, u"1234"_s);
    ExpectTheFilesWithoutAmounts();
    EXPECT_EQ(Saved(deliveryFile), "1,0,1,0,1,1,#FALSE#,#TRUE#,\"1.000,00\xa0\x80\","
                                   "\"2,50\xa0\x80\",\"1.234,00\xa0\x80\"\r\n");
}

TEST_F(FullSetup, EverythingStandsAsSavedAfterARestart) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    StartSetup();
    ExpectEverythingOnTheControls(u"$1,000.00"_s, u"$2.50"_s, u"$12.50"_s);
    EXPECT_EQ(Live().WorkWeek, 62);
    EXPECT_TRUE(Live().CallerIdOn);
    GoTo(PhoneAndModem);
    EXPECT_TRUE(IsVisible(u"lblCallid"_s));
}

TEST_F(FullSetup, EverythingStandsAsSavedAfterAGermanRestart) {
    UseLocale("de_DE");
    EnterEverythingAndSave(u"1000"_s, u"2,5"_s, u"1234"_s);
    StartSetup();
    ExpectEverythingOnTheControls(u"1.000,00\u00a0\u20ac"_s, u"2,50\u00a0\u20ac"_s,
                                  u"1.234,00\u00a0\u20ac"_s);
}

TEST_F(FullSetup, EverythingStandsAsSavedAfterComingBackByTheMenu) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    Reopen();
    GoTo(PhoneAndModem);
    EXPECT_TRUE(IsTicked(u"ckCallerID"_s));
    Tick(u"ckCallerID"_s);
    ExpectEverythingOnTheControls(u"$1,000.00"_s, u"$2.50"_s, u"$12.50"_s);
}

TEST_F(FullSetup, SaveWithNothingChangedAfterARestartLevelsTheAlarmInMemoryAndASecondOnDisk) {
    EnterEverythingAndSave(u"1000"_s, u"2.5"_s, u"12.5"_s);
    StartSetup();
    EXPECT_TRUE(Live().AlarmOn);
    const auto before = folder.Contents();
    Save();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_FALSE(Live().AlarmOn);
    Reopen();
    Save();
    auto levelled = before;
    levelled[settingsFile] = "8\r\n62\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n";
    EXPECT_EQ(folder.Contents(), levelled);
}

TEST_F(FullSetup, SaveWithNothingEnteredWritesWhatWasThere) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    Save();
    EXPECT_EQ(folder.Contents(), before);
}

// The check at the save.

TEST_F(SetupScreen, SaveWithoutNameOrTelephoneIsRefusedAndTheScreenStays) {
    WriteBusinessFiles();
    StartSetup();
    const auto before = folder.Contents();
    for (const int missing : {0, 6}) {
        Enter(Business(missing), QString());
        user.ExpectMessage(u"Name and Telephone are Required"_s, u"Missing Name or Telphone"_s);
        ClickOn(quit);
        user.ExpectNothingLeft();
        EXPECT_TRUE(Shows(setup));
        EXPECT_FALSE(Shows(menu));
        EXPECT_EQ(folder.Contents(), before);
        Enter(Business(missing), u"217"_s);
    }
    Save();
}

TEST_F(SetupScreen, SaveByItsKey) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(DeliveriesInvoicing);
    ClickInto(charge);
    Type(On<QWidget>(charge), u"7"_s);
    QTest::keyClick(On<QWidget>(charge), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shows(menu); }));
    EXPECT_EQ(Saved(deliveryFile), "0,1,0,1,0,0,#TRUE#,#FALSE#,\"$0.00\",\"$0.00\",\"$7.00\"\r\n");
    // The box was left before the save: only that writes the amount in it anew.
    EXPECT_EQ(Text(charge), u"$7.00"_s);
}

TEST_F(SetupScreen, SaveByItsKeyFromAnEmptyAmountBoxFailsWithNothingSaved) {
    WriteBusinessFiles();
    StartSetup();
    Enter(Business(0), u"Another"_s);
    GoTo(DeliveriesInvoicing);
    Enter(charge, QString());
    const auto before = folder.Contents();
    ExpectNoFailure();
    // The program ends in the middle of the click, at the first failure; what is on disk then
    // counts. Only the test goes on.
    std::map<QString, QByteArray> atTheFailure;
    auto* application = qobject_cast<GuardedApplication*>(qApp);
    const auto take = application->OnFailure;
    application->OnFailure = [&](const RuntimeFailure& failure) {
        if (Failures().empty())
            atTheFailure = folder.Contents();
        take(failure);
    };
    QTest::keyClick(On<QWidget>(charge), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return !Failures().empty(); }));
    application->OnFailure = take;
    ExpectFailure(FailureKind::TypeMismatch, u"(the delivery charge of the setup screen)"_s);
    EXPECT_EQ(atTheFailure, before);
}

TEST_F(SetupScreen, CopiesTypedFromNothingTo255AreSaved) {
    StartSetup();
    EnterNameAndTelephone();
    for (const char* copies : {"0", "255"}) {
        GoTo(Printing);
        EnterInList(u"cboCopies"_s, QString::fromLatin1(copies));
        Save();
        EXPECT_EQ(Saved(colorsFile),
                  QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n") + copies + "\r\n");
        EXPECT_EQ(Live().PrintCopies, QByteArray(copies).toInt());
        Reopen();
        EXPECT_EQ(List(u"cboCopies"_s)->currentText(), QString::fromLatin1(copies));
    }
}

TEST_F(SetupScreen, CopiesTypedThatAreNoByteFailWithNothingSaved) {
    WriteBusinessFiles();
    StartSetup();
    Enter(Business(0), u"Another"_s);
    const auto before = folder.Contents();
    const std::pair<QString, FailureKind> rows[] = {{u"256"_s, FailureKind::Overflow},
                                                    {u"-1"_s, FailureKind::Overflow},
                                                    {u"x"_s, FailureKind::TypeMismatch},
                                                    {QString(), FailureKind::TypeMismatch}};
    for (const auto& [copies, kind] : rows) {
        Failures().clear();
        GoTo(Printing);
        EnterInList(u"cboCopies"_s, copies);
        ClickOn(quit);
        ExpectFailure(kind, u"the number of print copies"_s);
        EXPECT_TRUE(Shows(setup));
        EXPECT_EQ(folder.Contents(), before) << copies.toStdString();
    }
}

// A double quote in a text ends its field for the next reader.

TEST_F(SetupScreen, DoubleQuoteInARateIsSavedAndStopsTheNextStart) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Taxation);
    EnterInList(u"cboRate1"_s, u"5\""_s);
    Save();
    ExpectNoFailure();
    EXPECT_EQ(Saved(taxFile), "\"Sales Tax\",\"Tax\",\"5\"\",\"4.0\",0,0\r\n");
    // The second rate runs from the quote left over to the next one, and the first of the two
    // numbers is what follows it.
    const RuntimeFailure failure = FailureOf([&] { Start(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(failure.Sentence(), u"Reading TaxSettings.txt failed: \"4.0\"\" is not a number."_s);
}

TEST_F(SetupScreen, DoubleQuoteInAHeadingShiftsTheFieldsBehindIt) {
    StartSetup();
    EnterNameAndTelephone();
    GoTo(Taxation);
    EnterInList(u"cboTaxHeading1"_s, u"A\"B"_s);
    Tick(u"ckApply1stTax"_s);
    Save();
    EXPECT_EQ(Saved(taxFile), "\"A\"B\",\"Tax\",\"4.0\",\"4.0\",1,0\r\n");
    StartSetup();
    EXPECT_EQ(Live().cboTaxHeading1, u"A"_s);
    EXPECT_EQ(Live().cboTaxHeading2, u"B\""_s);
    EXPECT_EQ(Live().cboRate1, u"Tax"_s);
    EXPECT_EQ(Live().cboRate2, u"4.0"_s);
    EXPECT_EQ(Live().ckApply1stTax, 4);
    EXPECT_EQ(Live().ckApply2ndTax, 1);
    ExpectNoFailure();
}

// Files that can't be read or written.

TEST_F(SetupScreen, UnreadableFileStopsTheStartByName) {
    DropRootRights(folder);
    for (const auto& [name, bytes] : BusinessFiles()) {
        WriteBusinessFiles();
        const QByteArray path = folder.PathOf(name).toUtf8();
        ASSERT_EQ(::chmod(path.constData(), 0), 0);
        const RuntimeFailure failure = FailureOf([&] { Start(); });
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(failure.Sentence(),
                  u"Opening "_s + name + u" for reading failed: Permission denied."_s);
        ASSERT_EQ(::chmod(path.constData(), 0644), 0);
    }
}

TEST_F(SetupScreen, EmptyFileStopsTheStartByNameAndTheOthersStay) {
    for (const auto& [name, bytes] : BusinessFiles()) {
        WriteBusinessFiles();
        folder.Write(name, {});
        const auto before = folder.Contents();
        const RuntimeFailure failure = FailureOf([&] { Start(); });
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading "_s + name)) << failure.what();
        for (const auto& [other, content] : before)
            EXPECT_EQ(folder.Read(other), content) << other.toStdString();
    }
}

TEST_F(SetupScreen, UnwritableFolderStopsTheSaveByNameWithNothingChanged) {
    WriteBusinessFiles();
    DropRootRights(folder);
    StartSetup();
    Enter(Business(0), u"Another"_s);
    const auto before = folder.Contents();
    const QByteArray path = folder.Path().toUtf8();
    for (const auto& [name, bytes] : BusinessFiles())
        ASSERT_EQ(::chmod(folder.PathOf(name).toUtf8().constData(), 0444), 0);
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    ClickOn(quit);
    ExpectFailure(FailureKind::PermissionDenied, u"Opening MyBusinessData.txt for writing"_s);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_TRUE(Shows(setup));
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(SetupScreen, FullDiskStopsTheSaveByName) {
    WriteBusinessFiles();
    StartSetup();
    {
        const FullDisk disk(2);
        ClickOn(quit);
    }
    ExpectFailure(FailureKind::DiskFull, u"Writing MyBusinessData.txt failed"_s);
    EXPECT_TRUE(Shows(setup));
    std::map<QString, QByteArray> others = BusinessFiles();
    others.erase(businessFile);
    for (const auto& [name, bytes] : others)
        EXPECT_EQ(Saved(name), bytes) << name.toStdString();
}
