#include "platform/KeyFilter.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A field that takes letters in capitals and refuses digits.
class KeyFilterTest : public testing::Test {
protected:
    KeyFilterTest() {
        new KeyFilter(&field, [this](ushort key) {
            keys += QChar(key);
            return QChar::isDigit(key) ? ushort(0) : QChar(key).toUpper().unicode();
        });
        field.show();
        field.setFocus();
    }

    QLineEdit field;
    QString keys;
};

} // namespace

TEST_F(KeyFilterTest, TypedCharacterGoesThroughTheRule) {
    QTest::keyClicks(&field, u"a1b"_s);
    EXPECT_EQ(keys, u"a1b"_s);
    EXPECT_EQ(field.text(), u"AB"_s);
}

TEST_F(KeyFilterTest, CharacterReplacesWhatIsSelected) {
    field.setText(u"old"_s);
    field.selectAll();
    QTest::keyClicks(&field, u"n"_s);
    EXPECT_EQ(field.text(), u"N"_s);
}

TEST_F(KeyFilterTest, BackspaceTakesACharacterAwayWhenTheRuleLetsItPass) {
    field.setText(u"old"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(keys, u"\b"_s);
    EXPECT_EQ(field.text(), u"ol"_s);
}

TEST_F(KeyFilterTest, MovingAndDeletingKeysAreNoneOfTheRulesBusiness) {
    field.setText(u"old"_s);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(&field, key);
    EXPECT_EQ(keys, u""_s);
    EXPECT_EQ(field.text(), u"ld"_s);
}

TEST_F(KeyFilterTest, PastedTextGoesThroughTheRuleUpToTheFirstRefusal) {
    QApplication::clipboard()->setText(u"ab1cd"_s);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(keys, u"ab1"_s);
    EXPECT_EQ(field.text(), u"AB"_s);
}

TEST_F(KeyFilterTest, TextPastedFromTheMenuGoesThroughTheRule) {
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

TEST_F(KeyFilterTest, ComposedCharacterGoesThroughTheRule) {
    QInputMethodEvent composed;
    composed.setCommitString(u"\u00e91"_s);
    QApplication::sendEvent(&field, &composed);
    EXPECT_EQ(field.text(), u"\u00c9"_s);
}

TEST_F(KeyFilterTest, NothingIsDroppedIntoTheField) {
    EXPECT_FALSE(field.acceptDrops());
}
