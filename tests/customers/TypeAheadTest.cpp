#include "customers/CustomerTest.h"

using namespace Qt::StringLiterals;

/// How a typed name is completed.
class TypeAheadTest : public CustomerTest {};

TEST_F(TypeAheadTest, RestOfTheFirstNameThatBeginsWithTheTextIsAppended) {
    LoadThree();
    EXPECT_EQ(customers.cboAccounts_Change(u"Co"_s), u"rner Grocery"_s);
    EXPECT_TRUE(customers.TypeAheadBusy);
}

TEST_F(TypeAheadTest, CaseMakesNoDifferenceAndTheTypedLettersStay) {
    LoadThree();
    EXPECT_EQ(customers.cboAccounts_Change(u"lEE,"_s), u" Ann"_s);
}

TEST_F(TypeAheadTest, OwnChangeOfTheTextIsLeftAlone) {
    LoadThree();
    customers.cboAccounts_Change(u"C"_s);
    EXPECT_EQ(customers.cboAccounts_Change(u"Corner"_s), QString());
    EXPECT_FALSE(customers.TypeAheadBusy);
    EXPECT_EQ(customers.cboAccounts_Change(u"Co"_s), u"rner Grocery"_s);
}

TEST_F(TypeAheadTest, WholeNameNeedsNoCompletion) {
    LoadThree();
    EXPECT_EQ(customers.cboAccounts_Change(u"corner grocery"_s), QString());
    EXPECT_FALSE(customers.TypeAheadBusy);
}

TEST_F(TypeAheadTest, UnknownNameIsNotCompleted) {
    LoadThree();
    for (const QString& text : {u"Cx"_s, u"Corner Groceryx"_s, u"zz"_s, u" C"_s, u"*"_s, u"?"_s,
                                u"\u4e2d"_s, QString(10'000, u'C')}) {
        EXPECT_EQ(customers.cboAccounts_Change(text), QString()) << text.toStdString();
        EXPECT_FALSE(customers.TypeAheadBusy);
    }
}

TEST_F(TypeAheadTest, EmptyTextIsNotCompleted) {
    LoadThree();
    EXPECT_EQ(customers.cboAccounts_Change(QString()), QString());
    EXPECT_FALSE(customers.TypeAheadBusy);
}

TEST_F(TypeAheadTest, DeletionKeepsTheTextFromBeingRefilledOnce) {
    LoadThree();
    customers.cboAccounts_DeleteKeyDown();
    EXPECT_EQ(customers.cboAccounts_Change(u"Co"_s), QString());
    EXPECT_EQ(customers.cboAccounts_Change(u"Cor"_s), u"ner Grocery"_s);
}

TEST_F(TypeAheadTest, DeletionThatDeletesNothingKeepsTheNextKeyFromCompleting) {
    LoadThree();
    customers.cboAccounts_DeleteKeyDown();
    customers.cboAccounts_DeleteKeyDown();
    EXPECT_EQ(customers.cboAccounts_Change(u"C"_s), QString());
    EXPECT_EQ(customers.cboAccounts_Change(u"Co"_s), u"rner Grocery"_s);
}

TEST_F(TypeAheadTest, OfSeveralNamesTheFirstOfTheListCompletes) {
    LoadWith({SampleCustomer{.businessName = "Mill Works"}, SampleCustomer{.businessName = "mill"},
              SampleCustomer{.businessName = "Miller"}, SampleCustomer{.businessName = "Zebra"}});
    EXPECT_EQ(customers.cboAccounts_Change(u"M"_s), u"ill"_s);
    customers.TypeAheadBusy = false;
    EXPECT_EQ(customers.cboAccounts_Change(u"Mille"_s), u"r"_s);
    customers.TypeAheadBusy = false;
    EXPECT_EQ(customers.cboAccounts_Change(u"mill "_s), u"Works"_s);
}

TEST_F(TypeAheadTest, AccentsCompleteInEitherCase) {
    LoadWith({SampleCustomer{.businessName = "Zebra"},
              SampleCustomer{.businessName = "\xc9pic\xe9rie"}});
    EXPECT_EQ(customers.cboAccounts_Change(u"\u00e9P"_s), u"ic\u00e9rie"_s);
}

TEST_F(TypeAheadTest, ListWithoutNamesCompletesNothing) {
    folder.Write(u"CustomerData.txt"_s, {});
    customers.Load();
    EXPECT_EQ(customers.cboAccounts_Change(u"C"_s), QString());
}

TEST_F(TypeAheadTest, LoadForgetsADeletion) {
    LoadThree();
    customers.cboAccounts_DeleteKeyDown();
    customers.Load();
    EXPECT_EQ(customers.cboAccounts_Change(u"C"_s), u"orner Grocery"_s);
}
