#include "setup/SetupScreenTest.h"

using namespace Qt::StringLiterals;

// The address style.

class AddressScreen : public SetupScreen {
protected:
    void StartWith(const QByteArray& business) {
        folder.Write(businessFile, business);
        StartSetup();
    }

    QString Style() { return On<QAbstractButton>(u"cmdAddress"_s)->text(); }

    void ExpectStyle(bool isUsa) {
        EXPECT_EQ(Style(), isUsa ? usa : international);
        EXPECT_EQ(Live().cmdAddress, isUsa ? usa : international);
        EXPECT_EQ(IsVisible(u"lblPostal"_s), isUsa);
        EXPECT_EQ(Caption(u"lblAddress(3)"_s), isUsa ? u"City"_s : u"Address 3"_s);
        EXPECT_EQ(Caption(u"lblAddress(4)"_s), isUsa ? u"State"_s : u"Address 4"_s);
        EXPECT_EQ(IsVisible(u"lblAddress(5)"_s), isUsa);
        EXPECT_EQ(BusinessBox(5)->isEnabled(), isUsa);
    }

    /// What the state box takes when so much is typed into it empty.
    qsizetype StateTakes() {
        Enter(Business(4), QString(60, u'x'));
        return Text(Business(4)).size();
    }
};

const QByteArray usaBusiness =
    "\"Corner Dairy\",\"12 Mill Road\",\"\",\"Springfield\",\"IL\",\"62704\",\"217\",\"\",\"\"\r\n";
const QByteArray internationalBusiness =
    "\"Corner Dairy\",\"12 Mill "
    "Road\",\"\",\"Springfield\",\"Illinois\",\"\",\"217\",\"\",\"\"\r\n";

TEST_F(AddressScreen, NameAndNumericPostalCodeShowTheUsaStyle) {
    StartWith(usaBusiness);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"62704"_s);
    EXPECT_EQ(run->screens.Find(setup)->focusWidget(), BusinessBox(5));
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, NameAndEmptyPostalCodeShowTheInternationalStyle) {
    StartWith(internationalBusiness);
    ExpectStyle(false);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    EXPECT_EQ(StateTakes(), 55);
}

TEST_F(AddressScreen, EmptySystemShowsTheUsaStyle) {
    StartSetup();
    ExpectStyle(true);
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, EachClickFlipsTextsWidthsAndLengths) {
    StartWith(usaBusiness);
    const int cityNarrow = BusinessBox(3)->width();
    const int stateNarrow = BusinessBox(4)->width();
    const int wide = BusinessBox(0)->width();
    EXPECT_LT(stateNarrow, cityNarrow);
    EXPECT_LT(cityNarrow, wide);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(false);
    EXPECT_EQ(Text(Business(5)), QString());
    QCoreApplication::sendPostedEvents();
    QApplication::processEvents();
    EXPECT_EQ(BusinessBox(3)->width(), wide);
    EXPECT_EQ(BusinessBox(4)->width(), wide);
    EXPECT_EQ(StateTakes(), 55);
    Enter(Business(4), u"IL"_s);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"62704"_s);
    EXPECT_TRUE(BusinessBox(5)->hasFocus());
    QApplication::processEvents();
    EXPECT_EQ(BusinessBox(3)->width(), cityNarrow);
    EXPECT_EQ(BusinessBox(4)->width(), stateNarrow);
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, WidthsOfCityAndStateFollowTheStyle) {
    StartWith(usaBusiness);
    // City to address as 3,150 to 5,385; the state has room for two capitals.
    const int address = BusinessBox(0)->width();
    EXPECT_NEAR(BusinessBox(3)->width(), address * 3150.0 / 5385.0, 1.0);
    const int capitals = BusinessBox(4)->fontMetrics().horizontalAdvance(u"WW"_s);
    EXPECT_GT(BusinessBox(4)->width(), capitals);
    EXPECT_LT(BusinessBox(4)->width(), 3 * capitals);
    ClickOn(u"cmdAddress"_s);
    QApplication::processEvents();
    EXPECT_EQ(BusinessBox(0)->width(), address);
    EXPECT_EQ(BusinessBox(3)->width(), address);
    EXPECT_EQ(BusinessBox(4)->width(), address);
}

TEST_F(AddressScreen, PastedStateIsCutAtItsLengthToo) {
    StartWith(usaBusiness);
    Enter(Business(4), QString());
    Paste(Business(4), u"Illinois"_s);
    EXPECT_EQ(Text(Business(4)), u"Il"_s);
    EXPECT_EQ(Live().txtBusiness[4], u"Il"_s);
}

TEST_F(AddressScreen, LongerStateIsNeverCutByTheFlipAndCanOnlyBecomeShorter) {
    StartWith(internationalBusiness);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    EXPECT_EQ(Live().txtBusiness[4], u"Illinois"_s);
    ClickInto(Business(4));
    Press(BusinessBox(4), Qt::Key_End);
    Type(BusinessBox(4), u"x"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    Press(BusinessBox(4), Qt::Key_Backspace);
    Type(BusinessBox(4), u"x"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinoi"_s);
    for (int i = 0; i < 6; ++i)
        Press(BusinessBox(4), Qt::Key_Backspace);
    Type(BusinessBox(4), u"Lxx"_s);
    EXPECT_EQ(Text(Business(4)), u"IL"_s);
}

TEST_F(AddressScreen, TypingAmidTheStateLeavesTheCursor) {
    StartWith(internationalBusiness);
    ClickInto(Business(4));
    Press(BusinessBox(4), Qt::Key_Home);
    Type(BusinessBox(4), u"New "_s);
    EXPECT_EQ(Text(Business(4)), u"New Illinois"_s);
    ClickOn(u"cmdAddress"_s);
    ClickInto(Business(4));
    Press(BusinessBox(4), Qt::Key_Home);
    for (int i = 0; i < 4; ++i)
        Press(BusinessBox(4), Qt::Key_Delete);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
}

TEST_F(AddressScreen, FlipToInternationalLosesThePostalCodeAtTheSave) {
    StartWith(usaBusiness);
    ClickOn(u"cmdAddress"_s);
    Enter(Business(4), u"Illinois"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    Save();
    EXPECT_EQ(Saved(businessFile), internationalBusiness);
    Reopen();
    ExpectStyle(false);
    StartSetup();
    ExpectStyle(false);
}

TEST_F(AddressScreen, FlipThereAndBackBeforeTheSaveKeepsThePostalCode) {
    StartWith(usaBusiness);
    ClickOn(u"cmdAddress"_s);
    ClickOn(u"cmdAddress"_s);
    Save();
    EXPECT_EQ(Saved(businessFile), usaBusiness);
}

TEST_F(AddressScreen, PostalCodeTypedInAndSavedShowsTheUsaStyleFromThenOn) {
    StartWith(internationalBusiness);
    ClickOn(u"cmdAddress"_s);
    Enter(Business(5), u"K1A 0B1"_s);
    Save();
    Reopen();
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"K1A 0B1"_s);
}

TEST_F(AddressScreen, WithoutANameAndWithAPostalCodeThatIsNoNumberEachShowingFlips) {
    StartWith("\"\",\"\",\"\",\"\",\"\",\"K1A 0B1\",\"217\",\"\",\"\"\r\n");
    ExpectStyle(false);
    EXPECT_EQ(Text(Business(5)), QString());
    run->screens.Hide(setup);
    run->screens.Show(setup);
    ExpectStyle(true);
    EXPECT_EQ(Text(Business(5)), u"K1A 0B1"_s);
    run->screens.Hide(setup);
    run->screens.Show(setup);
    ExpectStyle(false);
}

TEST_F(AddressScreen, PrintedHeadingFollowsTheStyleAtOnce) {
    StartWith(usaBusiness);
    run->office.printer.PrintBusinessHeading(1, 1, 14);
    printer.Find(u"Springfield, IL. 62704"_s);
    printer.Texts.clear();
    ClickOn(u"cmdAddress"_s);
    run->office.printer.PrintBusinessHeading(1, 1, 14);
    printer.Find(u"Springfield"_s);
    printer.Find(u"IL"_s);
}

// Clearing and reloading.

TEST_F(AddressScreen, ClearAsksFirstAndEmptiesAllNineBoxesButNotTheFile) {
    const QString question = u"Do you want to reset (clear)all Business Data?"_s;
    const QString title = u"Reset Business Data"_s;
    StartWith(usaBusiness);
    const auto before = folder.Contents();
    user.ExpectQuestion(question, title, Answer::No);
    ClickOn(u"Image4"_s);
    EXPECT_EQ(Text(Business(0)), u"Corner Dairy"_s);
    user.ExpectQuestion(question, title, Answer::Yes);
    ClickOn(u"Image4"_s);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(Text(Business(i)), QString()) << i;
        EXPECT_EQ(Live().txtBusiness[size_t(i)], QString()) << i;
    }
    EXPECT_TRUE(BusinessBox(0)->hasFocus());
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Live().BusinessData[0], u"Corner Dairy"_s);
}

TEST_F(AddressScreen, ClearEmptiesAStateLongerThanTwoCharactersToo) {
    StartWith(internationalBusiness);
    ClickOn(u"cmdAddress"_s);
    user.ExpectQuestion(u"Do you want to reset (clear)all Business Data?"_s,
                        u"Reset Business Data"_s, Answer::Yes);
    ClickOn(u"Image4"_s);
    EXPECT_EQ(Text(Business(4)), QString());
    EXPECT_EQ(Live().txtBusiness[4], QString());
    EXPECT_EQ(StateTakes(), 2);
}

TEST_F(AddressScreen, ReloadBringsBackTheFile) {
    StartWith(usaBusiness);
    for (int i = 0; i < 9; ++i)
        Enter(Business(i), u"x"_s);
    ClickOn(u"Image5"_s);
    const QStringList business = {u"Corner Dairy"_s, u"12 Mill Road"_s, QString(),
                                  u"Springfield"_s,  u"IL"_s,           u"62704"_s,
                                  u"217"_s,          QString(),         QString()};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(Text(Business(i)), business[i]) << i;
}

TEST_F(AddressScreen, ReloadBringsBackAStateOfAnyLengthWhole) {
    StartWith(usaBusiness);
    Enter(Business(4), u"x"_s);
    folder.Write(businessFile, internationalBusiness);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    folder.Write(businessFile, usaBusiness);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(4)), u"IL"_s);
    EXPECT_EQ(Live().txtBusiness[4], u"IL"_s);
}

TEST_F(AddressScreen, ReloadWithoutAFileEmptiesTheBoxes) {
    StartSetup();
    Enter(Business(0), u"Corner Dairy"_s);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(0)), QString());
    EXPECT_FALSE(folder.Has(businessFile));
}

TEST_F(AddressScreen, ReloadAfterTheFileHasGoneEmptiesBoxesAndData) {
    StartWith(usaBusiness);
    folder.Remove(businessFile);
    Enter(Business(2), u"Rear"_s);
    ClickOn(u"Image5"_s);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(Text(Business(i)), QString()) << i;
        EXPECT_EQ(Live().BusinessData[size_t(i)], QString()) << i;
        EXPECT_EQ(Live().txtBusiness[size_t(i)], QString()) << i;
    }
    EXPECT_FALSE(folder.Has(businessFile));
    ExpectNoFailure();
}

TEST_F(AddressScreen, ReloadBringsBackAFileOfWhichOnlyTheBackupIsLeft) {
    StartWith(usaBusiness);
    folder.Remove(businessFile);
    folder.Write(u"Backup/MyBusinessData.txt"_s, internationalBusiness);
    ClickOn(u"Image5"_s);
    EXPECT_EQ(Text(Business(0)), u"Corner Dairy"_s);
    EXPECT_EQ(Text(Business(4)), u"Illinois"_s);
    EXPECT_EQ(Text(Business(5)), QString());
    EXPECT_EQ(Live().BusinessData[4], u"Illinois"_s);
    EXPECT_EQ(Saved(businessFile), internationalBusiness);
}

TEST_F(AddressScreen, ReloadInTheInternationalStyleShowsTheFileAndKeepsTheStyle) {
    StartWith(usaBusiness);
    ClickOn(u"cmdAddress"_s);
    ExpectStyle(false);
    Enter(Business(3), u"x"_s);
    Enter(Business(4), u"Illinois"_s);
    ClickOn(u"Image5"_s);
    ExpectStyle(false);
    const QStringList business = {u"Corner Dairy"_s, u"12 Mill Road"_s, QString(),
                                  u"Springfield"_s,  u"IL"_s,           u"62704"_s,
                                  u"217"_s,          QString(),         QString()};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(Text(Business(i)), business[i]) << i;
    EXPECT_EQ(StateTakes(), 55);
}

TEST_F(AddressScreen, ReloadOfADamagedFileFailsByName) {
    StartWith(usaBusiness);
    folder.Write(businessFile, "\"Corner\"");
    ClickOn(u"Image5"_s);
    ExpectFailure(FailureKind::ReadPastEnd, u"Reading MyBusinessData.txt failed"_s);
}
