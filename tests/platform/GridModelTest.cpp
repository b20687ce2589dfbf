#include "platform/GridModel.h"

#include "platform/RuntimeFailure.h"
#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

TEST(GridModel, ClearGridBlanksAndCutsToTwoRows) {
    GridModel grid({u"A"_s, u"B"_s});
    grid.SetRows(5);
    grid.SetText(1, 1, u"x"_s);
    grid.ClearGrid();
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Text(1, 1), QString());
    EXPECT_EQ(grid.Text(0, 1), u"B"_s);
}

TEST(GridModel, ClearGridAddsTheDataRowToAGridWithoutOne) {
    GridModel grid({u"A"_s, u"B"_s});
    grid.ClearGrid();
    ASSERT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Text(1, 1), QString());
}

TEST(GridModel, ClearGridMovesACurrentDataRowToTheRowThatIsLeft) {
    for (const int row : {1, 2, 4}) {
        GridModel grid({u"A"_s, u"B"_s});
        grid.SetRows(5);
        grid.SetCurrent(row, 1);
        grid.ClearGrid();
        EXPECT_EQ(grid.CurrentRow(), 1) << row;
        EXPECT_EQ(grid.CurrentColumn(), 1) << row;
    }
}

TEST(GridModel, ClearGridLeavesTheHeadingCurrent) {
    GridModel grid({u"A"_s});
    grid.SetRows(5);
    grid.ClearGrid();
    EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST(GridModel, CurrentRowMovesUpWhenItsRowGoes) {
    GridModel grid({u"A"_s});
    grid.SetRows(4);
    grid.SetCurrent(3, 0);
    grid.RemoveRow(2);
    EXPECT_EQ(grid.CurrentRow(), 2);
    grid.SetRows(1);
    EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST(GridModel, CellOutsideTheGridIsASubscriptFailure) {
    GridModel grid({u"A"_s});
    EXPECT_EQ(FailureOf([&] { (void)grid.Text(1, 0); }).Kind(), FailureKind::Subscript);
    EXPECT_EQ(FailureOf([&] { grid.SetText(0, 1, {}); }).Kind(), FailureKind::Subscript);
    EXPECT_EQ(FailureOf([&] { grid.RemoveRow(0); }).Kind(), FailureKind::Subscript);
}

TEST(GridModel, RowTakenOutLeavesTheOthersWhole) {
    GridModel grid({u"A"_s, u"B"_s});
    grid.SetRows(4);
    for (int row = 1; row <= 3; ++row) {
        grid.SetText(row, 0, QString::number(row));
        grid.SetText(row, 1, QString(row, u'x'));
    }
    grid.RemoveRow(2);
    ASSERT_EQ(grid.Rows(), 3);
    EXPECT_EQ(grid.Text(0, 1), u"B"_s);
    EXPECT_EQ(grid.Text(1, 0), u"1"_s);
    EXPECT_EQ(grid.Text(1, 1), u"x"_s);
    EXPECT_EQ(grid.Text(2, 0), u"3"_s);
    EXPECT_EQ(grid.Text(2, 1), u"xxx"_s);
    grid.SetRows(4);
    EXPECT_EQ(grid.Text(2, 1), u"xxx"_s);
    EXPECT_EQ(grid.Text(3, 0), QString());
}

TEST(GridModel, SortLeavesTheHeadingAndTheCurrentCellInTheirPlaces) {
    GridModel grid({u"Z"_s, u"A"_s});
    grid.SetRows(3);
    grid.SetText(1, 0, u"m"_s);
    grid.SetText(2, 0, u"k"_s);
    grid.SetCurrent(2, 1);
    grid.SortAsText(0);
    EXPECT_EQ(grid.Text(0, 0), u"Z"_s);
    EXPECT_EQ(grid.Text(0, 1), u"A"_s);
    EXPECT_EQ(grid.Text(1, 0), u"k"_s);
    EXPECT_EQ(grid.Text(2, 0), u"m"_s);
    EXPECT_EQ(grid.CurrentRow(), 2);
    EXPECT_EQ(grid.CurrentColumn(), 1);
}

TEST(GridModel, EqualRowsKeepTheirOrderInASort) {
    GridModel grid({u"Key"_s, u"Name"_s});
    grid.SetRows(4);
    const char* rows[][2] = {{"b", "1"}, {"a", "2"}, {"b", "3"}};
    for (int row = 1; row <= 3; ++row) {
        grid.SetText(row, 0, QString::fromLatin1(rows[row - 1][0]));
        grid.SetText(row, 1, QString::fromLatin1(rows[row - 1][1]));
    }
    grid.Sort(0, [](const QString& one, const QString& other) { return one < other; });
    EXPECT_EQ(grid.Text(1, 1), u"2"_s);
    EXPECT_EQ(grid.Text(2, 1), u"1"_s);
    EXPECT_EQ(grid.Text(3, 1), u"3"_s);
}

TEST(GridModel, SortAsTextComparesCharacterByCharacter) {
    GridModel grid({u"A"_s});
    const QStringList texts = {u"9"_s, u"b"_s, u"10"_s, u"B"_s, u""_s, u"a"_s};
    grid.SetRows(int(texts.size()) + 1);
    for (int row = 1; row <= texts.size(); ++row)
        grid.SetText(row, 0, texts[row - 1]);
    grid.SortAsText(0);
    const QStringList sorted = {u""_s, u"10"_s, u"9"_s, u"B"_s, u"a"_s, u"b"_s};
    for (int row = 1; row <= sorted.size(); ++row)
        EXPECT_EQ(grid.Text(row, 0), sorted[row - 1]);
}

TEST(GridModel, SortAsNumbersLooksAtTheNumbersAndKeepsEqualRowsInTheirOrder) {
    GridModel grid({u"Key"_s, u"Name"_s});
    const std::pair<QString, QString> rows[] = {{u"10"_s, u"ten"_s},
                                                {u"9"_s, u"nine"_s},
                                                {u"x"_s, u"none"_s},
                                                {u"9"_s, u"other nine"_s},
                                                {u""_s, u"empty"_s}};
    grid.SetRows(6);
    int row = 0;
    for (const auto& [key, name] : rows) {
        grid.SetText(++row, 0, key);
        grid.SetText(row, 1, name);
    }
    grid.SortAsNumbers(0, [](QStringView text) { return text.toDouble(); });
    const QStringList sorted = {u"none"_s, u"empty"_s, u"nine"_s, u"other nine"_s, u"ten"_s};
    for (row = 1; row <= sorted.size(); ++row)
        EXPECT_EQ(grid.Text(row, 1), sorted[row - 1]);
    EXPECT_EQ(grid.Text(0, 0), u"Key"_s);
}

TEST(GridModel, FindRowGivesTheFirstDataRowOrNone) {
    GridModel grid({u"x"_s, u"B"_s});
    grid.SetRows(4);
    grid.SetText(2, 0, u"x"_s);
    grid.SetText(3, 0, u"x"_s);
    EXPECT_EQ(grid.FindRow(0, u"x"_s), 2);
    EXPECT_EQ(grid.FindRow(1, u"x"_s), 0);
    EXPECT_EQ(FailureOf([&] { (void)grid.FindRow(2, {}); }).Kind(), FailureKind::Subscript);
}

TEST(GridModel, ColumnAndHeadingLineUpAsTold) {
    GridModel grid({u"A"_s, u"B"_s, u"C"_s});
    grid.SetRows(2);
    grid.AlignRight(1);
    grid.AlignCentre(2);
    const Qt::AlignmentFlag expected[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    for (int column = 0; column < 3; ++column) {
        const int alignment = expected[column] | Qt::AlignVCenter;
        EXPECT_EQ(grid.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
                  alignment);
        EXPECT_EQ(grid.data(grid.index(0, column), Qt::TextAlignmentRole).toInt(), alignment);
    }
}
