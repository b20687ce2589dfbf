#include "platform/ElidedLabel.h"
#include "support/TextOutput.h"

#include <QPixmap>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ElidedLabelTest : public testing::Test {
protected:
    /// The tool tip once the label has been painted in that width.
    QString TipInWidth(const QString& text, int width) {
        label.setText(text);
        label.resize(width, 30);
        label.grab();
        return label.toolTip();
    }

    ElidedLabel label;
    const QString longText = u"Corner Grocery and Delicatessen, Springfield"_s;
};

TEST_F(ElidedLabelTest, TextCutShortIsWholeInTheToolTip) {
    EXPECT_EQ(TipInWidth(longText, 80), longText);
}

TEST_F(ElidedLabelTest, TextThatFitsHasNoToolTip) {
    EXPECT_EQ(TipInWidth(u"Farm"_s, 200), QString());
    EXPECT_EQ(TipInWidth(longText, 2000), QString());
}

TEST_F(ElidedLabelTest, ToolTipGoesWithTheTextThatNeededIt) {
    TipInWidth(longText, 80);
    EXPECT_EQ(TipInWidth(u"Farm"_s, 80), QString());
}

TEST_F(ElidedLabelTest, TipOfItsOwnGivesWayToATextCutShortAndComesBack) {
    label.SetTip(u"Customer"_s);
    EXPECT_EQ(label.toolTip(), u"Customer"_s);
    EXPECT_EQ(TipInWidth(longText, 80), longText);
    EXPECT_EQ(TipInWidth(u"Farm"_s, 200), u"Customer"_s);
}

TEST_F(ElidedLabelTest, LongTextNeedsNoMoreThanAFewCharactersOfRoom) {
    label.setText(longText);
    EXPECT_LE(label.minimumSizeHint().width(), 6 * label.fontMetrics().averageCharWidth());
    EXPECT_GT(label.sizeHint().width(), 20 * label.fontMetrics().averageCharWidth());
    label.setText(u"i"_s);
    EXPECT_LT(label.minimumSizeHint().width(), 3 * label.fontMetrics().averageCharWidth());
}
