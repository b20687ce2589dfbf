#include "platform/ChoiceList.h"
#include "platform/EntryField.h"

#include <QStringListModel>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class ChoiceListTest : public testing::Test {
protected:
    ChoiceListTest() {
        list->setModel(&entries);
        list->setCurrentIndex(entries.index(1));
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(first);
        rows->addWidget(list);
        rows->addWidget(last);
        window.show();
        window.activateWindow();
    }

    QStringListModel entries{QStringList{u"Gravel"_s, u"Sand"_s, u"Salt"_s}};
    QWidget window;
    EntryField* first = new EntryField;
    ChoiceList* list = new ChoiceList;
    EntryField* last = new EntryField;
};

TEST_F(ChoiceListTest, EnterPassesAListUnlessItIsOnItsWay) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_TRUE(last->hasFocus());
    list->setProperty("enterStops", true);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_TRUE(list->hasFocus());
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_TRUE(last->hasFocus());
}

TEST_F(ChoiceListTest, EnterOnAListThatIsNotOnItsWayIsTold) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    int told = 0;
    QObject::connect(list, &QListView::activated, [&told] { ++told; });
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(list->hasFocus());
}

TEST_F(ChoiceListTest, OnlyAPressOnTheChosenEntryIsToldAsChosenAgain) {
    int told = 0;
    QObject::connect(list, &ChoiceList::ChosenAgain, [&told] { ++told; });
    const auto press = [this](int row, Qt::MouseButton button) {
        QTest::mouseClick(list->viewport(), button, Qt::NoModifier,
                          list->visualRect(entries.index(row)).center());
    };
    press(2, Qt::LeftButton);
    EXPECT_EQ(list->currentIndex().row(), 2);
    EXPECT_EQ(told, 0);
    press(2, Qt::RightButton);
    EXPECT_EQ(told, 0);
    press(2, Qt::LeftButton);
    EXPECT_EQ(told, 1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualRect(entries.index(2)).bottomLeft() + QPoint(5, 20));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(list->currentIndex().row(), 2);
}

TEST_F(ChoiceListTest, TypingFindsTheEntryThatBeginsSo) {
    list->setFocus();
    QTest::keyClicks(list, u"sal"_s);
    EXPECT_EQ(list->currentIndex().row(), 2);
}

TEST_F(ChoiceListTest, ClickBesideTheEntriesKeepsTheChoice) {
    window.resize(300, 400);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->viewport()->rect().bottomLeft() - QPoint(-5, 5));
    EXPECT_EQ(list->currentIndex().row(), 1);
}
