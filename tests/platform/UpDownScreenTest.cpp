#include "platform/UpDown.h"
#include "support/TextOutput.h"

#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class UpDownTest : public testing::Test {
protected:
    UpDownTest() {
        QObject::connect(&upDown, &UpDown::UpClick, [this] { ++steps; });
        QObject::connect(&upDown, &UpDown::DownClick, [this] { --steps; });
        upDown.show();
    }

    QToolButton* Button(const QString& name) { return upDown.findChild<QToolButton*>(name); }

    UpDown upDown{u"UpDown1"_s, u"Previous day"_s, u"Next day"_s};
    int steps = 0;
};

TEST_F(UpDownTest, EachButtonStepsByOneInItsDirection) {
    QTest::mouseClick(Button(u"UpDown1(up)"_s), Qt::LeftButton);
    QTest::mouseClick(Button(u"UpDown1(up)"_s), Qt::LeftButton);
    EXPECT_EQ(steps, 2);
    QTest::mouseClick(Button(u"UpDown1(down)"_s), Qt::LeftButton);
    EXPECT_EQ(steps, 1);
}

TEST_F(UpDownTest, ButtonsWorkByKeyboard) {
    for (const QString& name : {u"UpDown1(up)"_s, u"UpDown1(down)"_s})
        EXPECT_EQ(Button(name)->focusPolicy() & Qt::TabFocus, Qt::TabFocus);
    QTest::keyClick(Button(u"UpDown1(up)"_s), Qt::Key_Space);
    EXPECT_EQ(steps, 1);
}

TEST_F(UpDownTest, ButtonsSayWhatTheyStep) {
    EXPECT_EQ(upDown.objectName(), u"UpDown1"_s);
    for (const auto& [name, tip] : {std::pair(u"UpDown1(up)"_s, u"Next day"_s),
                                    std::pair(u"UpDown1(down)"_s, u"Previous day"_s)}) {
        EXPECT_EQ(Button(name)->toolTip(), tip);
        EXPECT_EQ(Button(name)->accessibleName(), tip);
    }
}
