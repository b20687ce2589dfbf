#include "platform/MemoBox.h"
#include "support/TextOutput.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <QTextCursor>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class MemoBoxTest : public testing::Test {
protected:
    MemoBoxTest() {
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(&box);
        rows->addWidget(&other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    MemoBox box;
    QLineEdit other;
};

} // namespace

TEST_F(MemoBoxTest, LinesArePartedByALineFeed) {
    box.setFocus();
    QTest::keyClicks(&box, u"one"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClicks(&box, u"two"_s);
    EXPECT_EQ(box.Text(), u"one\ntwo"_s);
}

TEST_F(MemoBoxTest, ShiftWithEnterAndLineSeparatorsPartLinesLikeEnter) {
    box.setFocus();
    QTest::keyClicks(&box, u"one"_s);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&box, u"two"_s);
    EXPECT_EQ(box.Text(), u"one\ntwo"_s);
    box.insertPlainText(u"\u2028three\u2029four"_s);
    EXPECT_EQ(box.Text(), u"one\ntwo\nthree\nfour"_s);
}

TEST_F(MemoBoxTest, TextShownIsTheTextGivenBack) {
    for (const QString& text : {QString(), u"\n"_s, u"one\n\ntwo\n"_s, u"5\u00a0€\ttab  "_s}) {
        box.Show(text);
        EXPECT_EQ(box.Text(), text);
    }
}

TEST_F(MemoBoxTest, ShowingTheSameTextLeavesTheCaret) {
    box.Show(u"one two"_s);
    box.moveCursor(QTextCursor::End);
    box.Show(u"one two"_s);
    EXPECT_EQ(box.textCursor().position(), 7);
    box.Show(u"one"_s);
    EXPECT_EQ(box.textCursor().position(), 0);
}

TEST_F(MemoBoxTest, MegabyteWithoutABlankIsBrokenAnywhereAndWordsBetweenThem) {
    const QString endless(1'000'000, u'x');
    box.Show(endless);
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAnywhere);
    QCoreApplication::processEvents();
    EXPECT_EQ(box.Text(), endless);
    box.Show(u"words "_s.repeated(10'000));
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    EXPECT_EQ(box.Text().size(), 60'000);
}

TEST_F(MemoBoxTest, PastedMegabyteWithoutABlankIsTaken) {
    QApplication::clipboard()->setText(QString(1'000'000, u'x'));
    box.Show(u"before "_s);
    box.setFocus();
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text().size(), 1'000'007);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.Text().size(), 1'000'006);
}

TEST_F(MemoBoxTest, TabGoesOnToTheNextControl) {
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(MemoBoxTest, DoubleClickIsTold) {
    int told = 0;
    QObject::connect(&box, &MemoBox::DoubleClicked, &box, [&told] { ++told; });
    QTest::mouseClick(box.viewport(), Qt::LeftButton);
    EXPECT_EQ(told, 0);
    QTest::mouseDClick(box.viewport(), Qt::LeftButton);
    EXPECT_EQ(told, 1);
}
