#include "platform/FieldWatch.h"
#include "platform/KeyFilter.h"

#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A watched field that is filtered as well, with another field beside it.
class FieldWatchTest : public testing::Test {
protected:
    FieldWatchTest() {
        new KeyFilter(&field, [this](ushort key) {
            moments += u"rule"_s;
            return key;
        });
        auto* watch = new FieldWatch(&field);
        QObject::connect(watch, &FieldWatch::KeyDown, [this] { moments += u"down"_s; });
        QObject::connect(watch, &FieldWatch::Left, [this] { moments += u"left"_s; });
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(&field);
        rows->addWidget(&other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
        moments.clear();
    }

    QStringList moments;
    QWidget window;
    QLineEdit field{&window};
    QLineEdit other{&window};
};

} // namespace

TEST_F(FieldWatchTest, KeyDownComesBeforeTheRuleAndTheCharacter) {
    QString before = u"not asked"_s;
    QObject::connect(field.findChild<FieldWatch*>(), &FieldWatch::KeyDown,
                     [&] { before = field.text(); });
    QTest::keyClicks(&field, u"7"_s);
    EXPECT_EQ(moments, (QStringList{u"down"_s, u"rule"_s}));
    EXPECT_EQ(before, QString());
    EXPECT_EQ(field.text(), u"7"_s);
}

TEST_F(FieldWatchTest, EveryKeyThatStaysInTheFieldIsADown) {
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Backspace,
                              Qt::Key_Return, Qt::Key_Escape, Qt::Key_F5}) {
        moments.clear();
        QTest::keyClick(&field, key);
        EXPECT_EQ(moments.count(u"down"_s), 1) << key;
    }
    moments.clear();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(moments.count(u"down"_s), 1);
}

TEST_F(FieldWatchTest, KeysThatLeadAwayOrStandForNothingAloneAreNoDown) {
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr,
                              Qt::Key_Meta, Qt::Key_CapsLock, Qt::Key_NumLock})
        QTest::sendKeyEvent(QTest::Click, &field, key, QString(), Qt::NoModifier);
    QTest::keyClick(&field, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(moments, QStringList());
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_EQ(moments, QStringList{u"left"_s});
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(moments, (QStringList{u"left"_s, u"left"_s}));
}

TEST_F(FieldWatchTest, KeyGoingUpIsNoDown) {
    QTest::keyRelease(&field, Qt::Key_7);
    EXPECT_EQ(moments, QStringList());
}

TEST_F(FieldWatchTest, FocusMovingOnIsALeaving) {
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(moments, QStringList{u"left"_s});
    other.clearFocus();
    EXPECT_EQ(moments, QStringList{u"left"_s});
}

TEST_F(FieldWatchTest, FieldThatIsHiddenOrDisabledIsLeft) {
    field.hide();
    EXPECT_EQ(moments, QStringList{u"left"_s});
    field.show();
    field.setFocus();
    field.setEnabled(false);
    EXPECT_EQ(moments, (QStringList{u"left"_s, u"left"_s}));
}

TEST_F(FieldWatchTest, AnotherWindowInFrontIsNoLeaving) {
    QWidget front;
    front.show();
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    EXPECT_FALSE(field.hasFocus());
    EXPECT_EQ(moments, QStringList());
}

TEST_F(FieldWatchTest, MenuOverTheWindowIsNoLeaving) {
    QMenu menu;
    menu.addAction(u"entry"_s);
    menu.popup(window.mapToGlobal(QPoint(1, 1)));
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    EXPECT_EQ(moments, QStringList());
}

TEST_F(FieldWatchTest, WindowThatClosesIsNoLeaving) {
    window.hide();
    EXPECT_EQ(moments, QStringList());
}
