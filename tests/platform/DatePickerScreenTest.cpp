#include "platform/DatePicker.h"
#include "platform/RegionalFormats.h"
#include "support/TextOutput.h"

#include <QAction>
#include <QCalendarWidget>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class DatePickerTest : public testing::Test {
protected:
    DatePickerTest() {
        UseLocale("en_US");
        QObject::connect(&picker, &DatePicker::Changed, [this](QDate date) { told += date; });
        QObject::connect(&picker, &DatePicker::Dismissed, [this] { ++dismissals; });
        picker.SetDate({2026, 11, 20});
        picker.show();
    }

    static void UseLocale(const char* name) {
        const QLocale locale(QString::fromLatin1(name));
        RegionalFormats::SetCurrent({locale, locale});
    }

    void Type(const QString& text, Qt::Key last = Qt::Key_Return) {
        picker.selectAll();
        QTest::keyClicks(&picker, text);
        QTest::keyClick(&picker, last);
    }

    DatePicker picker;
    QList<QDate> told;
    int dismissals = 0;
};

TEST_F(DatePickerTest, ShowsTheRegionalShortDateWithoutTellingOfIt) {
    EXPECT_EQ(picker.text(), u"11/20/2026"_s);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(DatePickerTest, WholeDateTypedIsTold) {
    Type(u"12/31/2026"_s);
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 12, 31)});
    EXPECT_EQ(picker.Date(), QDate(2026, 12, 31));
}

TEST_F(DatePickerTest, DateIsTypedInTheRegionalOrder) {
    UseLocale("de_DE");
    Type(u"1.2.2027"_s);
    EXPECT_EQ(told, QList<QDate>{QDate(2027, 2, 1)});
    EXPECT_EQ(picker.text(), u"01.02.2027"_s);
}

TEST_F(DatePickerTest, TextThatIsNoDateIsTakenBack) {
    for (const QString& text : {u"13/40/2026"_s, u"soon"_s, QString(), u"1/2/26"_s}) {
        Type(text.isEmpty() ? u" "_s : text);
        EXPECT_EQ(picker.text(), u"11/20/2026"_s);
    }
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(DatePickerTest, SameDateTypedAgainIsNotTold) {
    Type(u"11/20/2026"_s);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(DatePickerTest, UpAndDownStepByADay) {
    QTest::keyClick(&picker, Qt::Key_Up);
    QTest::keyClick(&picker, Qt::Key_Down);
    QTest::keyClick(&picker, Qt::Key_Down);
    EXPECT_EQ(told, (QList<QDate>{{2026, 11, 21}, {2026, 11, 20}, {2026, 11, 19}}));
}

TEST_F(DatePickerTest, TextTakenIsToldAsIfTheFieldWereLeft) {
    picker.selectAll();
    QTest::keyClicks(&picker, u"12/31/2026"_s);
    EXPECT_TRUE(told.isEmpty());
    picker.TakeTyped();
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 12, 31)});
    picker.TakeTyped();
    EXPECT_EQ(told.size(), 1);
}

TEST_F(DatePickerTest, CalendarOffersNoDayBeforeTheEarliest) {
    picker.SetEarliest({2026, 11, 18});
    QTest::keyClick(&picker, Qt::Key_F4);
    const auto* calendar = picker.findChild<QCalendarWidget*>(u"calendar"_s);
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->minimumDate(), QDate(2026, 11, 18));
    EXPECT_EQ(calendar->selectedDate(), QDate(2026, 11, 20));
}

TEST_F(DatePickerTest, DateTypedBeforeTheEarliestIsToldForTheScreenToCorrect) {
    picker.SetEarliest({2026, 11, 18});
    Type(u"11/17/2026"_s);
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 11, 17)});
}

TEST_F(DatePickerTest, DayPickedFromTheCalendarIsTold) {
    QTest::keyClick(&picker, Qt::Key_F4);
    auto* calendar = picker.findChild<QCalendarWidget*>(u"calendar"_s);
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->selectedDate(), QDate(2026, 11, 20));
    calendar->setSelectedDate({2026, 11, 27});
    QTest::keyClick(calendar->findChild<QWidget*>(u"qt_calendar_calendarview"_s), Qt::Key_Return);
    EXPECT_EQ(told, QList<QDate>{QDate(2026, 11, 27)});
}

TEST_F(DatePickerTest, CalendarTellsOfItsClosingOnlyWithoutAPick) {
    QTest::keyClick(&picker, Qt::Key_F4);
    picker.findChild<QCalendarWidget*>(u"calendar"_s)->window()->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return dismissals == 1; }));
    EXPECT_TRUE(told.isEmpty());
    QTest::keyClick(&picker, Qt::Key_F4);
    auto* calendar = picker.findChild<QCalendarWidget*>(u"calendar"_s);
    QTest::keyClick(calendar->findChild<QWidget*>(u"qt_calendar_calendarview"_s), Qt::Key_Return);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return !picker.findChild<QCalendarWidget*>(u"calendar"_s); }));
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(dismissals, 1);
}
