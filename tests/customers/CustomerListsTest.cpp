#include "customers/CustomerLists.h"

#include "customers/CustomerNames.h"
#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList NamesOf(const AccountNames& accounts) {
    QStringList names;
    for (int row = 0; row < accounts.rowCount(); ++row)
        names += accounts.data(accounts.index(row), Qt::DisplayRole).toString();
    return names;
}

CustomerRecord RecordOf(const QString& type) {
    CustomerRecord customer{};
    customer.BusinessName = u" Corner Grocery"_s;
    customer.Title = u"Mr."_s;
    customer.FirstName = u"Ann "_s;
    customer.MiddleInitial = u" "_s;
    customer.LastName = u" Lee"_s;
    customer.AcctType = type;
    return customer;
}

} // namespace

TEST(CustomerNamesTest, BusinessIsListedByItsNameAlone) {
    EXPECT_EQ(ShortCustomerName(RecordOf(u"Business"_s)), u"Corner Grocery"_s);
}

TEST(CustomerNamesTest, PersonIsListedByLastNameCommaFirstName) {
    EXPECT_EQ(ShortCustomerName(RecordOf(u"Individual"_s)), u"Lee, Ann"_s);
    EXPECT_EQ(ShortCustomerName(RecordOf(u"business"_s)), u"Lee, Ann"_s);
}

TEST(CustomerNamesTest, FullNameJoinsThePartsThatAreNotBlank) {
    EXPECT_EQ(FullPersonalName(u"Mr/Mrs"_s, u"Ann"_s, u"B"_s, u"Lee"_s), u"Mr/Mrs Ann B. Lee"_s);
    EXPECT_EQ(FullPersonalName(u" "_s, u" Ann "_s, u""_s, u"Lee "_s), u"Ann Lee"_s);
    EXPECT_EQ(FullPersonalName(u"Ms"_s, u""_s, u"B"_s, u" "_s), u"Ms B. "_s);
    EXPECT_EQ(FullPersonalName({}, {}, {}, {}), QString());
}

TEST(CustomerNamesTest, FullNameOfARecord) {
    EXPECT_EQ(FullPersonalName(RecordOf(u"Individual"_s)), u"Mr. Ann Lee"_s);
}

TEST(CustomerNamesTest, FieldShowsNothingFromTheFirstNulOn) {
    FixedText<8> field{};
    EXPECT_EQ(ShownText(field), QString());
    std::copy_n(" ab \0cd ", 8, field.bytes.begin());
    EXPECT_EQ(ShownText(field), u"ab"_s);
    field = u"Garc\u00eda"_s;
    EXPECT_EQ(ShownText(field), u"Garc\u00eda"_s);
    field = u"        "_s;
    EXPECT_EQ(ShownText(field), QString());
}

TEST(AccountNamesTest, SortsWithoutRegardToCaseAndKeepsTheRecordNumbers) {
    AccountNames accounts;
    accounts.Fill({{u"mill"_s, 1}, {u"Zebra"_s, 2}, {u"apple"_s, 3}, {u"Mill"_s, 4}, {u"B"_s, 5}});
    EXPECT_EQ(NamesOf(accounts),
              (QStringList{u"apple"_s, u"B"_s, u"mill"_s, u"Mill"_s, u"Zebra"_s}));
    EXPECT_EQ(accounts.At(0).record, 3);
    EXPECT_EQ(accounts.At(2).record, 1) << "of two equal names the earlier record comes first";
    EXPECT_EQ(accounts.At(3).record, 4);
}

TEST(AccountNamesTest, FindsANameInUpperCaseAndTrimmed) {
    AccountNames accounts;
    accounts.Fill({{u"Lee, Ann"_s, 1}, {u"Mill"_s, 2}, {u"MILL"_s, 3}});
    EXPECT_EQ(accounts.Find(u" lee, ann "_s), 0);
    EXPECT_EQ(accounts.Find(u"mill"_s), 1);
    EXPECT_EQ(accounts.Find(u"Mil"_s), -1);
}

TEST(AccountNamesTest, FindsTheFirstNameThatBeginsWithATextInAnyCase) {
    AccountNames accounts;
    accounts.Fill({{u"zebra"_s, 1},
                   {u"Mill Works"_s, 2},
                   {u"MILLER"_s, 3},
                   {u"mill"_s, 4},
                   {u"Milan"_s, 5},
                   {u""_s, 6},
                   {u"Miami, Ann"_s, 7}});
    EXPECT_EQ(NamesOf(accounts), (QStringList{u""_s, u"Miami, Ann"_s, u"Milan"_s, u"mill"_s,
                                              u"Mill Works"_s, u"MILLER"_s, u"zebra"_s}));
    const std::pair<QString, int> rows[] = {
        {u"m"_s, 1},     {u"MIL"_s, 2},          {u"mill"_s, 3}, {u"mill "_s, 4},
        {u"mille"_s, 5}, {u"MILL WORKS"_s, 4},   {u"Z"_s, 6},    {u"zebra"_s, 6},
        {u"a"_s, -1},    {u"mill worksx"_s, -1}, {u"zz"_s, -1},  {QString(), 0}};
    for (const auto& [text, row] : rows)
        EXPECT_EQ(accounts.FirstBeginningWith(text), row) << text.toStdString();
}

TEST(AccountNamesTest, EmptyListBeginsWithNothing) {
    EXPECT_EQ(AccountNames().FirstBeginningWith(u"a"_s), -1);
}

TEST(CityNamesTest, CityThatDiffersInCaseIsAnotherCity) {
    CityNames cities;
    cities.Fill({u"Springfield"_s, u"Decatur"_s, u"springfield"_s, u"Springfield"_s});
    EXPECT_EQ(cities.stringList(), (QStringList{u"Decatur"_s, u"Springfield"_s, u"springfield"_s}));
}

TEST(CityNamesTest, AddedCityFindsItsPlaceOnce) {
    CityNames cities;
    cities.Fill({u"Springfield"_s, u"Decatur"_s});
    cities.Add(u"riverton"_s);
    cities.Add(u"riverton"_s);
    cities.Add(u"Springfield"_s);
    cities.Add(u""_s);
    EXPECT_EQ(cities.stringList(),
              (QStringList{u""_s, u"Decatur"_s, u"riverton"_s, u"Springfield"_s}));
}

TEST(CityNamesTest, FillingAgainForgetsTheCitiesBefore) {
    CityNames cities;
    cities.Fill({u"Springfield"_s});
    cities.Fill({});
    EXPECT_EQ(cities.rowCount(), 0);
    cities.Add(u"Springfield"_s);
    EXPECT_EQ(cities.stringList(), QStringList{u"Springfield"_s});
}
