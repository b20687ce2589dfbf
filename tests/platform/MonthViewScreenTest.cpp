#include "platform/MonthView.h"
#include "platform/Theme.h"
#include "support/Days.h"
#include "support/TextOutput.h"

#include <QTest>
#include <QTextCharFormat>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class MonthViewTest : public testing::Test {
protected:
    MonthViewTest() {
        QObject::connect(&view, &MonthView::DateClick, [this](QDate date) { told += date; });
        view.SetDate({2026, 3, 9});
        view.show();
    }

    void Press(Qt::Key key) { QTest::keyClick(DaysOf(view), key); }

    /// All events that a double click brings.
    void DoubleClick(QDate date) {
        const QPoint place = PlaceOf(view, date);
        QWidget* viewport = DaysOf(view)->viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, place);
    }

    MonthView view;
    QList<QDate> told;
};

TEST_F(MonthViewTest, SettingADateTurnsToItsMonthWithoutTellingOfIt) {
    view.SetDate({2027, 1, 31});
    EXPECT_EQ(view.selectedDate(), QDate(2027, 1, 31));
    EXPECT_EQ(view.monthShown(), 1);
    EXPECT_EQ(view.yearShown(), 2027);
    view.setCurrentPage(2030, 6);
    view.SetDate({2027, 1, 31});
    EXPECT_EQ(view.monthShown(), 1);
    EXPECT_EQ(view.yearShown(), 2027);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(MonthViewTest, ClickIsToldAlsoOfTheSelectedDay) {
    ClickDay(view, {2026, 3, 9});
    ClickDay(view, {2026, 3, 17});
    ClickDay(view, {2026, 3, 17});
    EXPECT_EQ(told, (QList<QDate>{{2026, 3, 9}, {2026, 3, 17}, {2026, 3, 17}}));
    EXPECT_EQ(view.selectedDate(), QDate(2026, 3, 17));
}

TEST_F(MonthViewTest, ClickOnADayOfTheMonthBesideIsTold) {
    ClickDay(view, {2026, 4, 2});
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 4, 2)});
    EXPECT_EQ(view.monthShown(), 4);
    ClickDay(view, {2026, 3, 31});
    EXPECT_EQ(told, (QList<QDate>{{2026, 4, 2}, {2026, 3, 31}}));
}

TEST_F(MonthViewTest, DoubleClickIsTwoClicks) {
    DoubleClick({2026, 3, 17});
    EXPECT_EQ(told, (QList<QDate>{{2026, 3, 17}, {2026, 3, 17}}));
}

TEST_F(MonthViewTest, DoubleClickThatTurnsTheMonthIsOneClick) {
    DoubleClick({2026, 4, 2});
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 4, 2)});
    EXPECT_EQ(view.monthShown(), 4);
    DoubleClick({2026, 4, 7});
    EXPECT_EQ(told, (QList<QDate>{{2026, 4, 2}, {2026, 4, 7}, {2026, 4, 7}}));
}

TEST_F(MonthViewTest, RightClickIsNotTold) {
    QTest::mouseClick(DaysOf(view)->viewport(), Qt::RightButton, {}, PlaceOf(view, {2026, 3, 17}));
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(MonthViewTest, ClickOnTheNameOfADayIsNotTold) {
    const auto* days = DaysOf(view);
    const QPoint name =
        days->visualRect(days->model()->index(0, days->model()->columnCount() - 1)).center();
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, name);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(MonthViewTest, ArrowsMoveWithoutTelling) {
    Press(Qt::Key_Right);
    Press(Qt::Key_Down);
    EXPECT_EQ(view.selectedDate(), QDate(2026, 3, 17));
    Press(Qt::Key_Left);
    Press(Qt::Key_Up);
    EXPECT_EQ(view.selectedDate(), QDate(2026, 3, 9));
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(MonthViewTest, ArrowsLeadIntoTheNextMonth) {
    view.SetDate({2026, 3, 31});
    Press(Qt::Key_Right);
    Press(Qt::Key_Space);
    EXPECT_EQ(view.monthShown(), 4);
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 4, 1)});
}

TEST_F(MonthViewTest, EnterAndBlankAreClicksOnTheSelectedDay) {
    Press(Qt::Key_Return);
    Press(Qt::Key_Enter);
    Press(Qt::Key_Right);
    Press(Qt::Key_Space);
    EXPECT_EQ(told, (QList<QDate>{{2026, 3, 9}, {2026, 3, 9}, {2026, 3, 10}}));
}

TEST_F(MonthViewTest, TypedDigitsChangeNothing) {
    QTest::keyClicks(DaysOf(view), u"12252026"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 3, 9)});
}

TEST_F(MonthViewTest, MarkedDatesAreTintedAndNoOthers) {
    const QColor tint = Theme::Current().selectedRow;
    const auto isTinted = [&](QDate date) {
        return view.dateTextFormat(date).background().color() == tint;
    };
    view.MarkDates({{2026, 3, 17}, {2026, 12, 25}});
    EXPECT_TRUE(isTinted({2026, 3, 17}));
    EXPECT_TRUE(isTinted({2026, 12, 25}));
    view.MarkDates({QDate(2026, 3, 18)});
    EXPECT_TRUE(isTinted({2026, 3, 18}));
    EXPECT_FALSE(isTinted({2026, 3, 17}));
    EXPECT_FALSE(isTinted({2026, 12, 25}));
}
