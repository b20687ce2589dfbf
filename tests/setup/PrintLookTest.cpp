#include "setup/PrintLook.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString filter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

} // namespace

class PrintLookTest : public OfficeTest {
protected:
    void CancelFind() {
        user.ExpectFileDialog(filter, std::nullopt);
        office.logo.Find();
    }

    LiveSettings& live = office.settings;
    PrintLook& look = office.printLook;
};

TEST_F(PrintLookTest, ChosenColorGoesToTheBoxWhoseButtonWasClicked) {
    user.ExpectColorDialog(0, 0x0000ff);
    EXPECT_TRUE(look.ChangeBorderColor());
    EXPECT_EQ(live.BorderColor, 0x0000ff);
    EXPECT_EQ(live.TextColor, 0);
    user.ExpectColorDialog(0x0000ff, 0x804020);
    EXPECT_TRUE(look.ChangeTextColor());
    EXPECT_EQ(live.BorderColor, 0x0000ff);
    EXPECT_EQ(live.TextColor, 0x804020);
}

TEST_F(PrintLookTest, ColorDialogOpensAtTheColorItWasLastLeftWithNotAtTheBoxes) {
    live.BorderColor = 0x111111;
    live.TextColor = 0x222222;
    user.ExpectColorDialog(0, 0x333333);
    look.ChangeTextColor();
    user.ExpectColorDialog(0x333333, 0x444444);
    look.ChangeBorderColor();
}

TEST_F(PrintLookTest, CancelBeforeAnyFindGivesTheBoxTheColorLastHeldBlackAtFirst) {
    live.BorderColor = 0x111111;
    live.TextColor = 0x222222;
    user.ExpectColorDialog(0, std::nullopt);
    EXPECT_TRUE(look.ChangeBorderColor());
    EXPECT_EQ(live.BorderColor, 0);
    EXPECT_EQ(live.TextColor, 0x222222);
    user.ExpectColorDialog(0, 0x00ff00);
    EXPECT_TRUE(look.ChangeBorderColor());
    user.ExpectColorDialog(0x00ff00, std::nullopt);
    EXPECT_TRUE(look.ChangeTextColor());
    EXPECT_EQ(live.TextColor, 0x00ff00);
    EXPECT_EQ(live.BorderColor, 0x00ff00);
}

TEST_F(PrintLookTest, CancelAfterAFindChangesNothingEvenWhenTheFindWasCancelled) {
    live.BorderColor = 0x111111;
    live.TextColor = 0x222222;
    CancelFind();
    user.ExpectColorDialog(0, std::nullopt);
    EXPECT_FALSE(look.ChangeBorderColor());
    user.ExpectColorDialog(0, std::nullopt);
    EXPECT_FALSE(look.ChangeTextColor());
    EXPECT_EQ(live.BorderColor, 0x111111);
    EXPECT_EQ(live.TextColor, 0x222222);
}

TEST_F(PrintLookTest, ColorIsChosenAfterAFindAsBefore) {
    CancelFind();
    user.ExpectColorDialog(0, 0x0000ff);
    EXPECT_TRUE(look.ChangeBorderColor());
    EXPECT_EQ(live.BorderColor, 0x0000ff);
}

TEST_F(PrintLookTest, RaisingOnCancelEndsWithTheRun) {
    CancelFind();
    Office next(folder.Path(), {clock, user, printer, browser, pictures});
    next.settings.BorderColor = 0x111111;
    user.ExpectColorDialog(0, std::nullopt);
    EXPECT_TRUE(next.printLook.ChangeBorderColor());
    EXPECT_EQ(next.settings.BorderColor, 0);
}

TEST_F(PrintLookTest, ColorsReachBoxesOnlyAndWaitForTheSave) {
    live.txtBusiness[0] = u"Corner Dairy"_s;
    live.txtBusiness[6] = u"217-555-0199"_s;
    live.CurrentPrintColor = 0x0000aa;
    user.ExpectColorDialog(0, 0xff8000);
    look.ChangeBorderColor();
    user.ExpectColorDialog(0xff8000, 0xffffff);
    look.ChangeTextColor();
    user.ExpectFontDialog(u"Arial"_s, u"Courier New"_s);
    look.ChangeFont();
    EXPECT_EQ(live.CurrentPrintColor, 0x0000aaU);
    EXPECT_FALSE(folder.Has(u"PrintColors.txt"_s));
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(u"PrintColors.txt"_s),
              "16744448\r\n16777215\r\n\"Courier New\"\r\n#TRUE#\r\n3\r\n");
}

TEST_F(PrintLookTest, PrintColorsHaveTheSameBytesInAGermanOffice) {
    UseLocale("de_DE.UTF-8");
    live.txtBusiness[0] = u"Corner Dairy"_s;
    live.txtBusiness[6] = u"217-555-0199"_s;
    user.ExpectColorDialog(0, 0xff8000);
    look.ChangeBorderColor();
    user.ExpectFontDialog(u"Arial"_s, u"D\u00fcnn, eng"_s);
    look.ChangeFont();
    office.settingsStore.LoadDeliverySettings();
    EXPECT_TRUE(office.setup.SaveAll());
    EXPECT_EQ(folder.Read(u"PrintColors.txt"_s),
              "16744448\r\n0\r\n\"D\xfcnn, eng\"\r\n#TRUE#\r\n3\r\n");
    live.BorderColor = 1;
    live.DocumentFont.clear();
    office.settingsStore.LoadPrintColors();
    EXPECT_EQ(live.BorderColor, 0xff8000);
    EXPECT_EQ(live.DocumentFont, u"D\u00fcnn, eng"_s);
}

TEST_F(PrintLookTest, ChosenFontNameIsTaken) {
    user.ExpectFontDialog(u"Arial"_s, u"DejaVu Serif"_s);
    EXPECT_TRUE(look.ChangeFont());
    EXPECT_EQ(live.DocumentFont, u"DejaVu Serif"_s);
}

TEST_F(PrintLookTest, CancelledFontDialogLeavesTheFont) {
    user.ExpectFontDialog(u"Arial"_s, std::nullopt);
    EXPECT_TRUE(look.ChangeFont());
    EXPECT_EQ(live.DocumentFont, u"Arial"_s);
    CancelFind();
    user.ExpectFontDialog(u"Arial"_s, std::nullopt);
    EXPECT_FALSE(look.ChangeFont());
    EXPECT_EQ(live.DocumentFont, u"Arial"_s);
    user.ExpectFontDialog(u"Arial"_s, u"DejaVu Sans"_s);
    EXPECT_TRUE(look.ChangeFont());
    EXPECT_EQ(live.DocumentFont, u"DejaVu Sans"_s);
}
