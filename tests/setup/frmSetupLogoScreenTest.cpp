#include "startup/StartUp.h"
#include "support/ScreenTest.h"

#include <QImage>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName setup = ScreenName::frmSetup;

const QString find = u"cmdLogo(0)"_s;
const QString store = u"cmdLogo(1)"_s;
const QString clear = u"cmdLogo(2)"_s;
const QString squareByHeight = u"cmdLogo(3)"_s;
const QString squareByWidth = u"cmdLogo(4)"_s;
const QString printSample = u"cmdLogo(5)"_s;
const QString restore = u"cmdLogo(6)"_s;

const QString filter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;
const QString wide = u"/home/dairy/wide.bmp"_s;
const QString red = u"/home/dairy/red.bmp"_s;
const QString letter = u"/home/dairy/letter.txt"_s;

const QString logoFile = u"CompanyLogo.txt"_s;
const QString sizeFile = u"LogoSettings.txt"_s;

} // namespace

class SetupLogoScreen : public ScreenTest {
protected:
    SetupLogoScreen() {
        AddPicture(wide, QSize(400, 60), Qt::blue);
        AddPicture(red, QSize(40, 20), Qt::red);
        pictures.Files[letter] = {};
    }

    /// Fifteen twips to a dot.
    void AddPicture(const QString& path, QSize dots, Qt::GlobalColor color) {
        QImage image(dots, QImage::Format_RGB32);
        image.fill(color);
        pictures.Files[path] = QSizeF(dots) * 15;
        pictures.Images[path] = std::make_shared<const QImage>(image);
    }

    /// A new start on the files that are there, and the way to the tab.
    void ShowTab() {
        office.setup.LoadAll();
        screens.Show(setup);
        const auto* tabs = Find<QTabWidget>(setup, u"tabInfo"_s);
        constexpr int logo = 3;
        EXPECT_EQ(tabs->tabText(logo), u"Logo"_s);
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs->tabBar()->tabRect(logo).center());
        EXPECT_TRUE(Button(find)->isVisible());
    }
    void ShowTabWithLogo(const QByteArray& size) {
        folder.Write(logoFile, "\"/home/dairy/red.bmp\"\r\n");
        folder.Write(sizeFile, size);
        ShowTab();
    }

    QAbstractButton* Button(const QString& name) { return Find<QAbstractButton>(setup, name); }
    void ClickFind(const std::optional<QString>& path) {
        user.ExpectFileDialog(filter, path);
        Click(setup, find);
        user.ExpectNothingLeft();
    }
    void ClickStore() {
        user.ExpectMessage(u"Your Logo has been Stored"_s);
        Click(setup, store);
        user.ExpectNothingLeft();
    }
    void ClickClear(Answer answer) {
        user.ExpectQuestion(u"This will Delete your Company Logo"_s, u"Delete Logo"_s, answer);
        Click(setup, clear);
        user.ExpectNothingLeft();
    }

    QPixmap Shown(const QString& image) { return Find<QLabel>(setup, image)->pixmap(); }
    /// An inch of paper is an inch of the screen, 96 dots.
    void ExpectAdjusted(QSize dots, Qt::GlobalColor color) {
        const QPixmap pixmap = Shown(u"Image3"_s);
        EXPECT_EQ(pixmap.size(), dots);
        EXPECT_EQ(pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2),
                  QColor(color));
    }
    void ExpectNoPicture() {
        EXPECT_TRUE(Shown(u"Image2"_s).isNull());
        EXPECT_TRUE(Shown(u"Image3"_s).isNull());
    }
};

TEST_F(SetupLogoScreen, CaptionsAndToolTips) {
    ShowTab();
    const auto expect = [this](const QString& name, const QString& caption, const QString& tip) {
        EXPECT_EQ(Button(name)->text(), caption);
        EXPECT_EQ(Button(name)->toolTip(), tip);
    };
    expect(find, u"Find"_s, u"Opens up your disk files for locating a Logo File (Image)"_s);
    expect(store, u"&Store"_s, u"Saves your Logo (no need to Click our logo)"_s);
    expect(clear, u"&Clear"_s, u"Clears your current Logo"_s);
    expect(squareByHeight, u"Make Square (Height)"_s, u"Makes Width = to Height"_s);
    expect(squareByWidth, u"Make Square (Width)"_s, u"Makes Height = to Width"_s);
    expect(printSample, u"Print Sample"_s, QString());
    expect(restore, u"Restore"_s, u"Sets the Adjusted Image to Defaults"_s);
    EXPECT_EQ(Find<QLabel>(setup, u"Image2"_s)->toolTip(), u"Displays your Selected Logo"_s);
}

TEST_F(SetupLogoScreen, TextsOfTheTab) {
    ShowTab();
    const QStringList texts = TextsIn(screens.Find(setup));
    for (const QString& text :
         {u"File on Disk"_s, u"Adjusted Logo"_s,
          u"The selected file may overflow in the view Window, thats OK"_s,
          u"BEFORE SELECTING YOUR LOGO: COPY THE FILE INTO YOUR BRACKWELL FOLDER"_s,
          u"Click Find (above), Browse to your BRACKWELL FOLDER"_s,
          u"Select your LOGO File from the BRACKWELL FOLDER"_s, u"Click Store"_s,
          u"Click Height and Width (< >) to adjust LOGO size"_s,
          u"Size is limited based to the space on the form."_s, u"Print a sample to Review"_s,
          u"Do not select your LOGO from a Network Device or a removable device"_s,
          u"Your LOGO must be STORED while diplaying the Logo Screen."_s})
        EXPECT_TRUE(texts.contains(text)) << text.toStdString();
}

TEST_F(SetupLogoScreen, StoreIsDisabledUntilAPictureIsFound) {
    ShowTabWithLogo("1440,1440\r\n");
    EXPECT_FALSE(Button(store)->isEnabled());
    const auto before = folder.Contents();
    Click(setup, store);
    EXPECT_EQ(folder.Contents(), before);
    ClickFind(wide);
    EXPECT_TRUE(Button(store)->isEnabled());
}

TEST_F(SetupLogoScreen, SecondClickOnStoreIsImpossible) {
    ShowTab();
    ClickFind(red);
    ClickStore();
    EXPECT_FALSE(Button(store)->isEnabled());
    Click(setup, store);
    ClickFind(wide);
    EXPECT_TRUE(Button(store)->isEnabled());
}

TEST_F(SetupLogoScreen, StoredLogoIsShownAtItsOwnSizeAndAdjusted) {
    ShowTabWithLogo("1440,720\r\n");
    EXPECT_EQ(Shown(u"Image2"_s).size(), QSize(40, 20));
    EXPECT_EQ(Shown(u"Image2"_s).toImage().pixelColor(20, 10), QColor(Qt::red));
    ExpectAdjusted({96, 48}, Qt::red);
}

TEST_F(SetupLogoScreen, PathOfAFileThatHasGoneShowsNothingAndSaysNothing) {
    folder.Write(logoFile, "\"/home/dairy/gone.bmp\"\r\n");
    ShowTab();
    ExpectNoPicture();
}

TEST_F(SetupLogoScreen, FindShowsThePictureInBothViews) {
    ShowTab();
    ExpectNoPicture();
    ClickFind(wide);
    EXPECT_EQ(Shown(u"Image2"_s).size(), QSize(400, 60));
    ExpectAdjusted({96, 96}, Qt::blue);
    ClickFind(red);
    EXPECT_EQ(Shown(u"Image2"_s).size(), QSize(40, 20));
    ExpectAdjusted({96, 96}, Qt::red);
}

TEST_F(SetupLogoScreen, CancelledFindLeavesPictureAndStoreButtonAsTheyWere) {
    ShowTabWithLogo("1440,720\r\n");
    const auto before = folder.Contents();
    ClickFind(std::nullopt);
    EXPECT_FALSE(Button(store)->isEnabled());
    ExpectAdjusted({96, 48}, Qt::red);
    EXPECT_TRUE(office.commonDialog.RaisesErrorOnCancel);
    ClickFind(wide);
    ClickFind(std::nullopt);
    EXPECT_TRUE(Button(store)->isEnabled());
    ExpectAdjusted({96, 48}, Qt::blue);
    EXPECT_EQ(folder.Contents(), before);
    ClickStore();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
}

TEST_F(SetupLogoScreen, StoreKeepsThePathAndTheAdjustedSize) {
    ShowTab();
    ClickFind(wide);
    Click(setup, u"UpDown3(down)"_s);
    Click(setup, u"UpDown2(up)"_s);
    ClickStore();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
    EXPECT_EQ(folder.Read(sizeFile), "1390,1490\r\n");
}

TEST_F(SetupLogoScreen, ClearAnsweredNoLeavesEverything) {
    ShowTabWithLogo("1440,720\r\n");
    const auto before = folder.Contents();
    ClickClear(Answer::No);
    ExpectAdjusted({96, 48}, Qt::red);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SetupLogoScreen, ClearAnsweredYesEmptiesBothViewsAndKeepsTheSize) {
    ShowTabWithLogo("1440,720\r\n");
    ClickClear(Answer::Yes);
    ExpectNoPicture();
    EXPECT_FALSE(folder.Has(logoFile));
    EXPECT_EQ(folder.Read(sizeFile), "1440,720\r\n");
    ClickFind(wide);
    ExpectAdjusted({96, 48}, Qt::blue);
}

TEST_F(SetupLogoScreen, StoreStaysPossibleAfterFindAndClear) {
    ShowTab();
    ClickFind(wide);
    ClickClear(Answer::Yes);
    ExpectNoPicture();
    EXPECT_TRUE(Button(store)->isEnabled());
    // The path found is stored, without a picture that has a size.
    ClickStore();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/wide.bmp\"\r\n");
    EXPECT_FALSE(folder.Has(sizeFile));
    EXPECT_FALSE(Button(store)->isEnabled());
}

TEST_F(SetupLogoScreen, StepsRepaintTheAdjustedLogoAtItsNewSize) {
    ShowTabWithLogo("1440,1440\r\n");
    // 50 twips are three dots and a third.
    Click(setup, u"UpDown3(down)"_s);
    ExpectAdjusted({93, 96}, Qt::red);
    Click(setup, u"UpDown3(up)"_s);
    Click(setup, u"UpDown3(up)"_s);
    ExpectAdjusted({99, 96}, Qt::red);
    Click(setup, u"UpDown2(down)"_s);
    ExpectAdjusted({99, 93}, Qt::red);
    Click(setup, u"UpDown2(up)"_s);
    Click(setup, u"UpDown2(up)"_s);
    ExpectAdjusted({99, 99}, Qt::red);
    EXPECT_EQ(office.settings.logoWidth, 1490);
    EXPECT_EQ(office.settings.logoHeight, 1490);
    EXPECT_EQ(folder.Read(sizeFile), "1440,1440\r\n");
}

TEST_F(SetupLogoScreen, StepsWrapAtTheEndsWidthHeldHeightNot) {
    ShowTabWithLogo("380,380\r\n");
    Click(setup, u"UpDown3(down)"_s);
    EXPECT_EQ(office.settings.logoWidth, 360);
    Click(setup, u"UpDown3(down)"_s);
    EXPECT_EQ(office.settings.logoWidth, 1800);
    Click(setup, u"UpDown3(up)"_s);
    EXPECT_EQ(office.settings.logoWidth, 360);
    Click(setup, u"UpDown2(down)"_s);
    EXPECT_EQ(office.settings.logoHeight, 330);
    Click(setup, u"UpDown2(down)"_s);
    EXPECT_EQ(office.settings.logoHeight, 1800);
    Click(setup, u"UpDown2(up)"_s);
    EXPECT_EQ(office.settings.logoHeight, 360);
    ExpectAdjusted({24, 24}, Qt::red);
}

TEST_F(SetupLogoScreen, SizesChangeWithoutAPictureToo) {
    ShowTab();
    Click(setup, u"UpDown3(down)"_s);
    Click(setup, squareByWidth);
    EXPECT_EQ(office.settings.logoWidth, 1390);
    EXPECT_EQ(office.settings.logoHeight, 1390);
    ExpectNoPicture();
    EXPECT_FALSE(folder.Has(sizeFile));
}

TEST_F(SetupLogoScreen, MakeSquareAndRestore) {
    ShowTabWithLogo("1440,720\r\n");
    Click(setup, squareByHeight);
    ExpectAdjusted({48, 48}, Qt::red);
    Click(setup, restore);
    ExpectAdjusted({96, 96}, Qt::red);
    Click(setup, u"UpDown3(down)"_s);
    Click(setup, squareByWidth);
    ExpectAdjusted({93, 93}, Qt::red);
    EXPECT_EQ(office.settings.logoWidth, 1390);
    EXPECT_EQ(office.settings.logoHeight, 1390);
}

TEST_F(SetupLogoScreen, ReturnAndSpaceClickTheButtons) {
    ShowTab();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(setup)));
    user.ExpectFileDialog(filter, red);
    Button(find)->setFocus();
    Press(Button(find), Qt::Key_Return);
    user.ExpectNothingLeft();
    user.ExpectMessage(u"Your Logo has been Stored"_s);
    Button(store)->setFocus();
    Press(Button(store), Qt::Key_Space);
    user.ExpectNothingLeft();
    EXPECT_EQ(folder.Read(logoFile), "\"/home/dairy/red.bmp\"\r\n");
}

TEST_F(SetupLogoScreen, PrintSamplePrintsTheLogoAsItIsAdjusted) {
    ShowTabWithLogo("1440,720\r\n");
    Click(setup, u"UpDown2(up)"_s);
    Click(setup, printSample);
    ASSERT_EQ(printer.Pictures.size(), 1U);
    // Half of 12,240 less 600.
    EXPECT_EQ(printer.Pictures[0].x, 5820);
    EXPECT_EQ(printer.Pictures[0].y, 720);
    EXPECT_EQ(printer.Pictures[0].width, 1440);
    EXPECT_EQ(printer.Pictures[0].height, 770);
    EXPECT_EQ(printer.Boxes.size(), 5U);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(SetupLogoScreen, PrintSampleWithoutALogoPrintsTheFramesAlone) {
    ShowTab();
    Click(setup, printSample);
    EXPECT_TRUE(printer.Pictures.empty());
    EXPECT_EQ(printer.Boxes.size(), 5U);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(SetupLogoScreen, FailingPrinterIsToldAndTheProgramGoesOn) {
    ShowTab();
    printer.FailingBox = 3;
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    Click(setup, printSample);
    user.ExpectNothingLeft();
    EXPECT_EQ(printer.AbandonedJobs, 1);
    printer.FailingBox.reset();
    printer.FailsAtEndOfJob = true;
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    Click(setup, printSample);
    user.ExpectNothingLeft();
    EXPECT_EQ(printer.AbandonedJobs, 2);
    printer.FailsAtEndOfJob = false;
    Click(setup, printSample);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_TRUE(Failures().empty());
    EXPECT_TRUE(IsShown(setup));
}

TEST_F(SetupLogoScreen, CancelledPrintIsNotTold) {
    ShowTab();
    printer.FailsAsCancelled = true;
    printer.FailingBox = 1;
    Click(setup, printSample);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_TRUE(Failures().empty());
}

TEST_F(SetupLogoScreen, FoundFileThatIsNoPictureStopsTheProgram) {
    ShowTabWithLogo("1440,720\r\n");
    const auto before = folder.Contents();
    user.ExpectFileDialog(filter, letter);
    Click(setup, find);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures().front().Kind(), FailureKind::BadPicture);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(SetupLogoScreen, StoredFileThatIsNoPictureStopsTheStart) {
    folder.Write(logoFile, "\"/home/dairy/letter.txt\"\r\n");
    const auto before = folder.Contents();
    EXPECT_EQ(FailureOf([this] { Main(office, screens); }).Kind(), FailureKind::BadPicture);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_FALSE(IsShown(ScreenName::frmSplash));
}
