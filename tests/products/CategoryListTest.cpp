#include "products/CategoryList.h"

#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CategoryListTest, CategoriesStandInTheOrderOfTheirComing) {
    CategoryList categories;
    categories.Add({u"Sand"_s, u"Bricks"_s, u"Sand"_s});
    categories.Add({u"Bricks"_s, u"Aggregate"_s});
    EXPECT_EQ(categories.List.stringList(), (QStringList{u"Sand"_s, u"Bricks"_s, u"Aggregate"_s}));
}

TEST(CategoryListTest, ComparisonIsExact) {
    CategoryList categories;
    categories.Add({u"Dairy"_s, u"dairy"_s, u"Dairy "_s, u"Dairy"_s});
    EXPECT_EQ(categories.List.stringList(), (QStringList{u"Dairy"_s, u"dairy"_s, u"Dairy "_s}));
}

TEST(CategoryListTest, BlankCategoriesAreLeftOut) {
    CategoryList categories;
    categories.Add({QString(), u"   "_s});
    EXPECT_EQ(categories.List.rowCount(), 0);
}

TEST(CategoryListTest, ClearedListTakesItsCategoriesAgain) {
    CategoryList categories;
    categories.Add({u"Sand"_s});
    categories.Clear();
    EXPECT_EQ(categories.List.rowCount(), 0);
    categories.Add({u"Sand"_s});
    EXPECT_EQ(categories.List.stringList(), QStringList{u"Sand"_s});
}
