#include "setup/frmSplash.h"
#include "support/ScreenTest.h"

#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName splash = ScreenName::frmSplash;

} // namespace

class SplashScreen : public ScreenTest {
protected:
    void WriteSetUpFiles() {
        folder.Write(u"MyBusinessData.txt"_s, {});
        folder.Write(u"Settings.txt"_s, {});
        folder.Write(u"DeliverySettings.txt"_s, {});
    }
    bool WelcomeIsShown() { return Find<QWidget>(splash, u"fraWelcome"_s)->isVisible(); }
};

TEST_F(SplashScreen, ButtonToGoOnCarriesItsCaption) {
    screens.Show(splash);
    EXPECT_EQ(Find<QAbstractButton>(splash, u"cmdContinue"_s)->text(), u"Continue"_s);
}

TEST_F(SplashScreen, FolderWithoutTheThreeFilesShowsTheWelcomePanel) {
    screens.Show(splash);
    EXPECT_FALSE(WelcomeIsShown());
    Click(splash, u"cmdContinue"_s);
    EXPECT_TRUE(WelcomeIsShown());
    EXPECT_FALSE(IsShown(ScreenName::frmStartup));
}

TEST_F(SplashScreen, EachOfTheThreeFilesIsNeeded) {
    for (const QString& missing :
         {u"MyBusinessData.txt"_s, u"Settings.txt"_s, u"DeliverySettings.txt"_s}) {
        WriteSetUpFiles();
        folder.Remove(missing);
        screens.Show(splash);
        Find<QWidget>(splash, u"fraWelcome"_s)->hide();
        Click(splash, u"cmdContinue"_s);
        EXPECT_TRUE(WelcomeIsShown()) << missing.toStdString();
    }
}

TEST_F(SplashScreen, FileLostButInBackupIsBroughtBackAndTheMenuOpens) {
    WriteSetUpFiles();
    WriteMasterFiles();
    folder.Remove(u"Settings.txt"_s);
    folder.Write(u"Backup/Settings.txt"_s, "8\r\n");
    screens.Show(splash);
    Click(splash, u"cmdContinue"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_EQ(folder.Read(u"Settings.txt"_s), QByteArray("8\r\n"));
}

TEST_F(SplashScreen, LookForTheThreeFilesEndsAtTheFirstThatIsMissing) {
    folder.Write(u"Backup/Settings.txt"_s, "8\r\n");
    folder.Write(u"Backup/DeliverySettings.txt"_s, "0\r\n");
    screens.Show(splash);
    Click(splash, u"cmdContinue"_s);
    EXPECT_TRUE(WelcomeIsShown());
    EXPECT_FALSE(folder.Has(u"Settings.txt"_s));
    folder.Write(u"MyBusinessData.txt"_s, {});
    folder.Remove(u"Backup/Settings.txt"_s);
    Click(splash, u"cmdContinue"_s);
    EXPECT_FALSE(folder.Has(u"DeliverySettings.txt"_s));
    folder.Write(u"Settings.txt"_s, {});
    WriteMasterFiles();
    Click(splash, u"cmdContinue"_s);
    EXPECT_EQ(folder.Read(u"DeliverySettings.txt"_s), "0\r\n");
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
}

TEST_F(SplashScreen, ContinueOnASetUpSystemShowsTheMenuAndDestroysTheTitle) {
    WriteSetUpFiles();
    WriteMasterFiles();
    screens.Show(splash);
    Click(splash, u"cmdContinue"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_EQ(screens.Find(splash), nullptr);
}

TEST_F(SplashScreen, PictureLeadsToSetup) {
    screens.Show(splash);
    Click(splash, u"Image1(0)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmSetup));
    EXPECT_EQ(screens.Find(splash), nullptr);
}

TEST_F(SplashScreen, PictureOfTheWelcomePanelLeadsTheSameWay) {
    screens.Show(splash);
    Click(splash, u"cmdContinue"_s);
    Click(splash, u"Image1(1)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmSetup));
    EXPECT_EQ(screens.Find(splash), nullptr);
}

TEST_F(SplashScreen, TextsAndToolTips) {
    QCoreApplication::setApplicationVersion(u"1.2.3"_s);
    screens.Show(splash);
    EXPECT_EQ(Find<QLabel>(splash, u"lblProductName"_s)->text(), u"Tessel Delivery"_s);
    EXPECT_EQ(Find<QLabel>(splash, u"lblProductName"_s)->toolTip(), u"The Name of this program"_s);
    EXPECT_EQ(Find<QLabel>(splash, u"lblVersion"_s)->text(), u"Version 1.2.3"_s);
    EXPECT_EQ(Find<QAbstractButton>(splash, u"cmdContinue"_s)->toolTip(), u"Starts the Program"_s);
    EXPECT_EQ(Find<QToolButton>(splash, u"Image1(0)"_s)->toolTip(), u"Shows the Setup Screen"_s);
    EXPECT_EQ(Find<QToolButton>(splash, u"Image1(1)"_s)->toolTip(), u"Yes me, I'm the LOGO"_s);
}

TEST_F(SplashScreen, WelcomePanelTellsItsTextsInOrder) {
    screens.Show(splash);
    QStringList texts;
    for (const QLabel* label : Find<QWidget>(splash, u"fraWelcome"_s)->findChildren<QLabel*>())
        texts += label->text();
    const QStringList expected = {
        u"It has a series of File Folders where information the program requires is stored."_s,
        u"The Setup Screen will be displayed when you click our LOGO."_s,
        u"Enter the information for each Folder."_s,
        u"When you're completed, click on the Menu Button. That's it!"_s,
        u"The program will start.(Unless you forgot something)"_s,
        u"You may return to the Setup Screen at any time and make changes by Selecting Files | "
        u"Create/Modify from the Main Menu Screen."_s,
        u"If you see this screen after initial Setup, one of your files is missing."_s,
        u"An unsuccessful attempt was made to restore it from the Backup Folder. You need to "
        u"recreate it."_s};
    EXPECT_EQ(texts.mid(texts.size() - expected.size()), expected);
}

TEST_F(SplashScreen, ProgressGoesUpByTenATick) {
    screens.Show(splash);
    QList<int> values;
    QObject::connect(Find<QProgressBar>(splash, u"ProgressBar1"_s), &QProgressBar::valueChanged,
                     [&](int value) { values += value; });
    const auto* timer = Find<QTimer>(splash, u"Timer1"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !timer->isActive(); }));
    EXPECT_EQ(values, (QList<int>{10, 20, 30, 40, 50, 60, 70, 80, 90, 100}));
}

TEST_F(SplashScreen, CloseBoxAsksForTheEnd) {
    screens.Show(splash);
    CloseByUser(splash);
    EXPECT_EQ(exitRequests, 1);
}
