#include "platform/EntryBox.h"
#include "support/TextOutput.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class EntryBoxTest : public testing::Test {
protected:
    EntryBoxTest() {
        box.addItems({u"Sales Tax"_s, u"5.0"_s});
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(&box);
        rows->addWidget(&other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void TurnWheel() {
        const QPointF place(5, 5);
        QWheelEvent wheel(place, box.mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&box, &wheel);
    }

    QWidget window;
    EntryBox box;
    QLineEdit other;
};

} // namespace

TEST_F(EntryBoxTest, TypedTextStaysAsTyped) {
    box.setFocus();
    for (const QString& text : {u"5"_s, u"sales tax"_s, u"S"_s}) {
        box.clearEditText();
        QTest::keyClicks(&box, text);
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.currentText(), text);
    }
    EXPECT_EQ(box.count(), 2);
}

TEST_F(EntryBoxTest, WheelTurnsItOnlyWhenItHasTheFocus) {
    other.setFocus();
    TurnWheel();
    EXPECT_EQ(box.currentIndex(), 0);
    box.setFocus();
    TurnWheel();
    EXPECT_EQ(box.currentIndex(), 1);
}
