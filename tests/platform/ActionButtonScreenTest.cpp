#include "platform/ActionButton.h"
#include "platform/EntryField.h"

#include <QHBoxLayout>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ActionButtonTest : public testing::Test {
protected:
    ActionButtonTest()
        : button(new ActionButton(u"&Go on"_s, [this] { happened += u"action"_s; })) {
        auto* row = new QHBoxLayout(&window);
        row->addWidget(field);
        row->addWidget(button);
        QObject::connect(field, &EntryField::Left, [this] {
            happened += u"left"_s;
            if (callsBack)
                field->setFocus();
        });
        window.show();
        window.activateWindow();
        field->setFocus();
    }

    QWidget window;
    EntryField* field = new EntryField;
    ActionButton* button;
    QStringList happened;
    bool callsBack = false;
};

TEST_F(ActionButtonTest, FieldIsLeftBeforeTheButtonActs) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button->click();
    EXPECT_EQ(happened, (QStringList{u"left"_s, u"action"_s}));
}

TEST_F(ActionButtonTest, FieldThatCallsTheOperatorBackKeepsTheButtonFromActing) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    callsBack = true;
    button->click();
    EXPECT_EQ(happened, QStringList{u"left"_s});
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(ActionButtonTest, ClickThatCallsTheOperatorBackDoesNotAct) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    callsBack = true;
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(happened, QStringList{u"left"_s});
    callsBack = false;
    happened.clear();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(happened, (QStringList{u"left"_s, u"action"_s}));
}

TEST_F(ActionButtonTest, EnterPressesIt) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(happened, QStringList{u"action"_s});
}

TEST_F(ActionButtonTest, PressWhoseReleaseAMessageHasTakenDoesNotLeaveItDown) {
    const QPointF place = button->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, place, button->mapToGlobal(place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(button, &press);
    EXPECT_FALSE(button->isDown());
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_TRUE(button->isDown());
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_FALSE(button->isDown());
}
