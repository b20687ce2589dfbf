#include "platform/TextBox.h"
#include "support/TextOutput.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TextBoxTest, TypingStopsAtTheLimit) {
    TextBox box(3);
    QTest::keyClicks(&box, u"abcdef"_s);
    EXPECT_EQ(box.text(), u"abc"_s);
}

TEST(TextBoxTest, LongerTextOfTheProgramStaysWholeAndTakesNoMore) {
    TextBox box(3);
    box.Show(u"abcdef"_s);
    EXPECT_EQ(box.text(), u"abcdef"_s);
    box.end(false);
    QTest::keyClicks(&box, u"g"_s);
    EXPECT_EQ(box.text(), u"abcdef"_s);
}

TEST(TextBoxTest, LimitCountsAgainOnceALongerTextIsShortenedToIt) {
    TextBox box(3);
    box.Show(u"abcde"_s);
    box.setCursorPosition(3);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), u"ade"_s);
    EXPECT_EQ(box.cursorPosition(), 1);
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_EQ(box.text(), u"ade"_s);
}

TEST(TextBoxTest, WithoutALimitAnyLengthIsTyped) {
    TextBox box;
    QTest::keyClicks(&box, QString(100, u'a'));
    EXPECT_EQ(box.text(), QString(100, u'a'));
}

TEST(TextBoxTest, TellsOfTheOperatorsComingAndGoingAlone) {
    QWidget window;
    auto* first = new TextBox(0, &window);
    auto* second = new TextBox(0, &window);
    second->move(0, 40);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    const QSignalSpy left(first, &TextBox::LostFocus);
    const QSignalSpy entered(second, &TextBox::GotFocus);
    second->setFocus();
    EXPECT_EQ(left.count(), 0) << "moved by the program";
    EXPECT_EQ(entered.count(), 1);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_EQ(left.count(), 1);
    first->setFocus();
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_EQ(left.count(), 2);
}
