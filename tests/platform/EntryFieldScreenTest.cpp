#include "platform/EntryField.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// Two fields in a window.
class EntryFieldTest : public testing::Test {
protected:
    EntryFieldTest() {
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(field);
        rows->addWidget(other);
        window.show();
        field->setFocus();
    }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); }

    QWidget window;
    EntryField* field = new EntryField;
    EntryField* other = new EntryField;
    QSignalSpy typing{field, &EntryField::Typing};
    QSignalSpy left{field, &EntryField::Left};
};

TEST_F(EntryFieldTest, KeysThatChangeTheTextTellOfTyping) {
    field->setText(u"old"_s);
    QApplication::clipboard()->setText(u"new"_s);
    QTest::keyClick(field, Qt::Key_X);
    EXPECT_EQ(typing.count(), 1);
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_EQ(typing.count(), 2);
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_EQ(typing.count(), 3);
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(typing.count(), 4);
    EXPECT_EQ(field->text(), u"oldnew"_s);
}

TEST_F(EntryFieldTest, KeysThatMoveOrCommandDoNot) {
    field->setText(u"old"_s);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Return, Qt::Key_Escape,
                              Qt::Key_Shift, Qt::Key_Control, Qt::Key_F1})
        QTest::keyClick(field, key);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(typing.count(), 0);
    EXPECT_EQ(field->text(), u"old"_s);
}

TEST_F(EntryFieldTest, ComposedCharactersTellOfTypingOnceTheyComeIn) {
    QInputMethodEvent begun(u"e"_s, {});
    QApplication::sendEvent(field, &begun);
    EXPECT_EQ(typing.count(), 0);
    QInputMethodEvent done;
    done.setCommitString(u"\u00e9"_s);
    QApplication::sendEvent(field, &done);
    EXPECT_EQ(typing.count(), 1);
    EXPECT_EQ(field->text(), u"\u00e9"_s);
}

TEST_F(EntryFieldTest, TypingIsToldBeforeTheCharacterIsIn) {
    field->setText(u"0"_s);
    QObject::connect(field, &EntryField::Typing, field, &QLineEdit::clear);
    QTest::keyClicks(field, u"5"_s);
    EXPECT_EQ(field->text(), u"5"_s);
}

TEST_F(EntryFieldTest, LeavingForAnotherControlIsTold) {
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(left.count(), 1);
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(EntryFieldTest, AnotherWindowOrAMenuInFrontIsNoLeaving) {
    for (const Qt::FocusReason reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(field, &out);
    }
    EXPECT_EQ(left.count(), 0);
}

TEST_F(EntryFieldTest, FieldCanTakeTheFocusBack) {
    QObject::connect(field, &EntryField::Left, field, [this] { field->setFocus(); });
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_FALSE(other->hasFocus());
}
