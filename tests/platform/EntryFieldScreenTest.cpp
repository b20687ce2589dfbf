#include "platform/EntryField.h"
#include "support/TextOutput.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A field that takes letters in capitals and refuses digits.
class EntryFieldRuleTest : public testing::Test {
protected:
    EntryFieldRuleTest() {
        field.SetKeyRule([this](ushort key) {
            keys += QChar(key);
            return QChar::isDigit(key) ? ushort(0) : QChar(key).toUpper().unicode();
        });
        field.show();
        field.setFocus();
    }

    EntryField field;
    QString keys;
};

/// A field with a rule, and another field beside it.
class EntryFieldMomentsTest : public testing::Test {
protected:
    EntryFieldMomentsTest() {
        field.SetKeyRule([this](ushort key) {
            moments += u"rule"_s;
            return key;
        });
        QObject::connect(&field, &EntryField::KeyDown, [this] { moments += u"down"_s; });
        QObject::connect(&field, &EntryField::Left, [this] { moments += u"left"_s; });
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
    EntryField field{&window};
    EntryField other{&window};
};

} // namespace

TEST_F(EntryFieldRuleTest, TypedCharacterGoesThroughTheRule) {
    QTest::keyClicks(&field, u"a1b"_s);
    EXPECT_EQ(keys, u"a1b"_s);
    EXPECT_EQ(field.text(), u"AB"_s);
}

TEST_F(EntryFieldRuleTest, CharacterReplacesWhatIsSelected) {
    field.setText(u"old"_s);
    field.selectAll();
    QTest::keyClicks(&field, u"n"_s);
    EXPECT_EQ(field.text(), u"N"_s);
}

TEST_F(EntryFieldRuleTest, BackspaceTakesACharacterAwayWhenTheRuleLetsItPass) {
    field.setText(u"old"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(keys, u"\b"_s);
    EXPECT_EQ(field.text(), u"ol"_s);
}

TEST_F(EntryFieldRuleTest, MovingAndDeletingKeysAreNoneOfTheRulesBusiness) {
    field.setText(u"old"_s);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(&field, key);
    EXPECT_EQ(keys, u""_s);
    EXPECT_EQ(field.text(), u"ld"_s);
}

TEST_F(EntryFieldRuleTest, PastedTextGoesThroughTheRuleUpToTheFirstRefusal) {
    QApplication::clipboard()->setText(u"ab1cd"_s);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(keys, u"ab1"_s);
    EXPECT_EQ(field.text(), u"AB"_s);
}

TEST_F(EntryFieldRuleTest, TextPastedFromTheMenuGoesThroughTheRule) {
    QApplication::clipboard()->setText(u"ab1cd"_s);
    QTimer::singleShot(0, &field, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* entry : menu->actions()) {
            if (entry->text().endsWith(u"Ctrl+V"_s))
                entry->trigger();
        }
        menu->close();
    });
    QContextMenuEvent opening(QContextMenuEvent::Mouse, {1, 1}, field.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&field, &opening);
    EXPECT_EQ(field.text(), u"AB"_s);
}

TEST_F(EntryFieldRuleTest, ComposedCharacterGoesThroughTheRule) {
    QInputMethodEvent composed;
    composed.setCommitString(u"\u00e91"_s);
    QApplication::sendEvent(&field, &composed);
    EXPECT_EQ(field.text(), u"\u00c9"_s);
}

TEST_F(EntryFieldRuleTest, NothingIsDroppedIntoTheField) {
    EXPECT_FALSE(field.acceptDrops());
}

TEST_F(EntryFieldRuleTest, RefusedBackspaceTakesNothingAway) {
    field.SetKeyRule([](ushort) { return ushort(0); });
    field.setText(u"old"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u"old"_s);
}

TEST_F(EntryFieldRuleTest, NothingIsPastedIntoAClosedField) {
    QApplication::clipboard()->setText(u"ab"_s);
    field.setEnabled(false);
    QContextMenuEvent opening(QContextMenuEvent::Mouse, {1, 1}, field.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&field, &opening);
    QTest::mouseClick(&field, Qt::MiddleButton);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u""_s);
}

TEST_F(EntryFieldMomentsTest, KeyDownComesBeforeTheRuleAndTheCharacter) {
    QString before = u"not asked"_s;
    QObject::connect(&field, &EntryField::KeyDown, [&] { before = field.text(); });
    QTest::keyClicks(&field, u"7"_s);
    EXPECT_EQ(moments, (QStringList{u"down"_s, u"rule"_s}));
    EXPECT_EQ(before, QString());
    EXPECT_EQ(field.text(), u"7"_s);
}

TEST_F(EntryFieldMomentsTest, EveryKeyThatStaysInTheFieldIsADown) {
    for (const Qt::Key key :
         {Qt::Key_7, Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Backspace}) {
        moments.clear();
        QTest::keyClick(&field, key);
        EXPECT_EQ(moments.count(u"down"_s), 1) << key;
    }
    moments.clear();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(moments.count(u"down"_s), 1);
}

TEST_F(EntryFieldMomentsTest, KeysThatLeadAwayOrStandForNothingAloneAreNoDown) {
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr,
                              Qt::Key_Meta, Qt::Key_CapsLock, Qt::Key_NumLock})
        QTest::sendKeyEvent(QTest::Click, &field, key, QString(), Qt::NoModifier);
    QTest::keyClick(&field, Qt::Key_S, Qt::AltModifier);
    QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Escape);
    QTest::keyClick(&field, Qt::Key_F5);
    EXPECT_EQ(moments, QStringList());
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(moments, QStringList{u"left"_s});
    field.setFocus();
    moments.clear();
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_EQ(moments, QStringList{u"left"_s});
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(moments, (QStringList{u"left"_s, u"left"_s}));
}

TEST_F(EntryFieldMomentsTest, KeyGoingUpIsNoDown) {
    QTest::keyRelease(&field, Qt::Key_7);
    EXPECT_EQ(moments, QStringList());
}

TEST_F(EntryFieldMomentsTest, FocusMovingOnIsALeaving) {
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(moments, QStringList{u"left"_s});
    other.clearFocus();
    EXPECT_EQ(moments, QStringList{u"left"_s});
}

TEST_F(EntryFieldMomentsTest, FieldThatIsHiddenOrDisabledIsLeft) {
    field.hide();
    EXPECT_EQ(moments, QStringList{u"left"_s});
    field.show();
    field.setFocus();
    field.setEnabled(false);
    EXPECT_EQ(moments, (QStringList{u"left"_s, u"left"_s}));
}

TEST_F(EntryFieldMomentsTest, AnotherWindowInFrontIsNoLeaving) {
    QWidget front;
    front.show();
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    EXPECT_FALSE(field.hasFocus());
    EXPECT_EQ(moments, QStringList());
}

TEST_F(EntryFieldMomentsTest, MenuOverTheWindowIsNoLeaving) {
    QMenu menu;
    menu.addAction(u"entry"_s);
    menu.popup(window.mapToGlobal(QPoint(1, 1)));
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    EXPECT_EQ(moments, QStringList());
}

TEST_F(EntryFieldMomentsTest, WindowThatClosesIsNoLeaving) {
    window.hide();
    EXPECT_EQ(moments, QStringList());
}

TEST_F(EntryFieldMomentsTest, FieldCanTakeTheFocusBack) {
    QObject::connect(&field, &EntryField::Left, &field, [this] { field.setFocus(); });
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_FALSE(other.hasFocus());
}

TEST_F(EntryFieldMomentsTest, RefusalTakesTheFocusBackFromWhereverItHasGone) {
    field.SetKeyRule([this](ushort) {
        other.setFocus();
        return ushort(0);
    });
    QTest::keyClicks(&field, u"1"_s);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.text(), QString());
    field.SetKeyRule([](ushort) { return ushort(0); });
    other.setFocus();
    QTest::keyClicks(&field, u"1"_s);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_FALSE(other.hasFocus());
}

TEST_F(EntryFieldMomentsTest, CharacterThatIsTakenLeavesTheFocusWhereItHasGone) {
    field.SetKeyRule([this](ushort key) {
        other.setFocus();
        return key;
    });
    QTest::keyClicks(&field, u"1"_s);
    EXPECT_EQ(field.text(), u"1"_s);
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(EntryFieldMomentsTest, ComposedCharacterIsADownOnceItIsDone) {
    QInputMethodEvent begun(u"e"_s, {});
    QApplication::sendEvent(&field, &begun);
    EXPECT_EQ(moments, QStringList());
    QInputMethodEvent done;
    done.setCommitString(u"\u00e9"_s);
    QApplication::sendEvent(&field, &done);
    EXPECT_EQ(moments, (QStringList{u"down"_s, u"rule"_s}));
    EXPECT_EQ(field.text(), u"\u00e9"_s);
}

TEST(EntryFieldLimitTest, TypingStopsAtTheLimit) {
    EntryField box;
    box.SetTypedLimit(3);
    QTest::keyClicks(&box, u"abcdef"_s);
    EXPECT_EQ(box.text(), u"abc"_s);
}

TEST(EntryFieldLimitTest, LongerTextOfTheProgramStaysWholeAndTakesNoMore) {
    EntryField box;
    box.SetTypedLimit(3);
    box.Show(u"abcdef"_s);
    EXPECT_EQ(box.text(), u"abcdef"_s);
    box.end(false);
    QTest::keyClicks(&box, u"g"_s);
    EXPECT_EQ(box.text(), u"abcdef"_s);
}

TEST(EntryFieldLimitTest, LimitCountsAgainOnceALongerTextIsShortenedToIt) {
    EntryField box;
    box.SetTypedLimit(3);
    box.Show(u"abcde"_s);
    box.setCursorPosition(3);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), u"ade"_s);
    EXPECT_EQ(box.cursorPosition(), 1);
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_EQ(box.text(), u"ade"_s);
}

TEST(EntryFieldLimitTest, WithoutALimitAnyLengthIsTyped) {
    EntryField box;
    QTest::keyClicks(&box, QString(100, u'a'));
    EXPECT_EQ(box.text(), QString(100, u'a'));
}

TEST(EntryFieldFocusTest, TellsOfTheOperatorsComingAndGoingAlone) {
    QWidget window;
    auto* first = new EntryField(&window);
    auto* second = new EntryField(&window);
    second->move(0, 40);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    const QSignalSpy left(first, &EntryField::Left);
    const QSignalSpy entered(second, &EntryField::GotFocus);
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

TEST(EntryFieldLimitTest, LimitSetUnderALongerTextCutsNothing) {
    EntryField box;
    box.Show(u"Illinois"_s);
    box.SetTypedLimit(2);
    EXPECT_EQ(box.text(), u"Illinois"_s);
    box.Show(u"IL"_s);
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_EQ(box.text(), u"IL"_s);
}

namespace {

/// A form: field, button, box to tick, field, main button.
class EnterTest : public testing::Test {
protected:
    EnterTest() {
        auto* rows = new QVBoxLayout(&window);
        for (QWidget* control : std::initializer_list<QWidget*>{&first, &aside, &box, &last, &save})
            rows->addWidget(control);
        save.setProperty("mainAction", true);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        first.setFocus();
    }

    QWidget window;
    EntryField first;
    QPushButton aside;
    QCheckBox box;
    EntryField last;
    QPushButton save;
};

} // namespace

TEST_F(EnterTest, EnterGoesFromFieldToFieldPastButtonsAndEndsOnTheMainOne) {
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_TRUE(box.hasFocus());
    last.setFocus();
    QTest::keyClick(&last, Qt::Key_Enter);
    EXPECT_TRUE(save.hasFocus());
}

TEST_F(EnterTest, EnterPassesWhatIsClosedOrHidden) {
    box.setEnabled(false);
    last.hide();
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_TRUE(save.hasFocus());
}

TEST_F(EnterTest, EnterStaysWhereItActs) {
    QSignalSpy entered(&first, &QLineEdit::returnPressed);
    QTest::keyClick(&first, Qt::Key_Return);
    EXPECT_EQ(entered.count(), 1);
    EXPECT_TRUE(first.hasFocus());
}

TEST_F(EntryFieldRuleTest, LineBreaksAndTabsOfAPastedTextStayOut) {
    QApplication::clipboard()->setText(u"a\tb\r\n"_s);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u"A B"_s);
    EntryField plain;
    QTest::keyClick(&plain, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(plain.text(), u"a b"_s);
}

TEST(EntryFieldPasteTest, PastedTextReplacesWhatAKeyDownEmpties) {
    EntryField box;
    box.setText(u"$0.00"_s);
    QObject::connect(&box, &EntryField::KeyDown, &box, &QLineEdit::clear);
    QApplication::clipboard()->setText(u"12.5"_s);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), u"12.5"_s);
}
