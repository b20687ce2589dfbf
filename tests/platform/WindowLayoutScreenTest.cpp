#include "platform/WindowLayout.h"
#include "support/OfficeTest.h"

#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

using namespace Qt::StringLiterals;

/// Layouts in a fresh configuration folder.
class WindowLayoutTest : public testing::Test {
protected:
    WindowLayoutTest() {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.Path());
    }
    ~WindowLayoutTest() override {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    }

    static void Keep(const QRect& place, const QString& key) {
        QWidget window;
        window.setGeometry(place);
        window.show();
        WindowLayout::Save(window, key);
    }
    static QRect Restored(const QString& key) {
        QWidget window;
        WindowLayout::Restore(window, key);
        window.show();
        return window.geometry();
    }

    TestFolder folder;
};

TEST_F(WindowLayoutTest, WindowWithTheSameKeyTakesTheKeptPlace) {
    Keep({70, 80, 410, 320}, u"One"_s);
    Keep({90, 60, 300, 210}, u"Other"_s);
    EXPECT_EQ(Restored(u"One"_s), QRect(70, 80, 410, 320));
    EXPECT_EQ(Restored(u"Other"_s), QRect(90, 60, 300, 210));
}

TEST_F(WindowLayoutTest, LayoutIsKeptInTheUsersConfigurationFolder) {
    EXPECT_EQ(folder.Everything(), QStringList());
    Keep({70, 80, 410, 320}, u"One"_s);
    EXPECT_TRUE(folder.Has(u"tessel-delivery/window-layout.ini"_s));
}

TEST_F(WindowLayoutTest, LayoutLargerThanTheDesktopIsBroughtToFit) {
    Keep({0, 0, 4000, 3000}, u"Large"_s);
    QWidget window;
    const QRect desktop = window.screen()->availableGeometry();
    WindowLayout::Restore(window, u"Large"_s);
    EXPECT_LE(window.width(), desktop.width() - 60);
    EXPECT_LE(window.height(), desktop.height() - 60);
    EXPECT_TRUE(desktop.contains(window.frameGeometry()));
}

TEST_F(WindowLayoutTest, WithoutAKeptLayoutTheWindowFitsTheDesktop) {
    QWidget window;
    const QRect desktop = window.screen()->availableGeometry();
    window.resize(4000, 3000);
    WindowLayout::Restore(window, u"Never kept"_s);
    EXPECT_LE(window.width(), desktop.width() - 60);
    EXPECT_LE(window.height(), desktop.height() - 60);
    EXPECT_GE(window.width(), 400);
    EXPECT_TRUE(desktop.contains(window.frameGeometry()));
}
