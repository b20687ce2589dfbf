#include "customers/AuxiliaryWindow.h"

#include "customers/CustomerTest.h"

using namespace Qt::StringLiterals;

namespace {

QString BoxFile(const QString& account, int box) {
    return u"AuxFiles/%1/AuxFile%2/Data.txt"_s.arg(account).arg(box);
}

} // namespace

/// Three customers: 4471 Corner Grocery, 1002 Mr/Mrs Ann Lee, 77 Anvil Works.
class AuxiliaryWindowTest : public CustomerTest {
protected:
    AuxiliaryWindowTest() {
        folder.Write(BoxFile(u"4471"_s, 0), "of the grocery\r\n");
        folder.Write(BoxFile(u"1002"_s, 0), "of Ann Lee\r\n");
        LoadThree();
        window.Load();
    }

    void Click(AuxButton button) { window.cmdSaveAux_Click(button); }

    AuxiliaryData& data = office.auxiliaryData;
    AuxiliaryWindow& window = office.auxiliaryWindow;
};

TEST_F(AuxiliaryWindowTest, CustomerShownBringsHisTexts) {
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
    customers.MoveTo(Move::Next);
    EXPECT_EQ(data.txtAux[0], u"of Ann Lee\n"_s);
    customers.MoveTo(Move::Next);
    EXPECT_EQ(data.txtAux[0], QString());
}

TEST_F(AuxiliaryWindowTest, MovingOnDiscardsWhatWasChanged) {
    data.txtAux[0] = u"changed"_s;
    customers.MoveTo(Move::Next);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "of the grocery\r\n");
    customers.MoveTo(Move::First);
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
}

TEST_F(AuxiliaryWindowTest, MenuShowsTheWindowWithTheAccountAndHidesItAgain) {
    EXPECT_FALSE(customers.fraAuxVisible);
    window.mnuAux_Click();
    EXPECT_TRUE(customers.fraAuxVisible);
    EXPECT_EQ(window.lblAccount, u"Corner Grocery"_s);
    EXPECT_EQ(customers.fraAux, u"Data for Corner Grocery"_s);
    EXPECT_EQ(customers.Focus, FocusOn::AuxText);
    window.mnuAux_Click();
    EXPECT_FALSE(customers.fraAuxVisible);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
}

TEST_F(AuxiliaryWindowTest, HidingByTheMenuSavesNothingAndKeepsTheTexts) {
    window.mnuAux_Click();
    data.txtAux[0] = u"changed"_s;
    window.mnuAux_Click();
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "of the grocery\r\n");
    window.mnuAux_Click();
    EXPECT_EQ(data.txtAux[0], u"changed"_s);
}

TEST_F(AuxiliaryWindowTest, AccountIsTheTextOfTheNameOrThePartsOfAPersonsOne) {
    Text(CustomerText::BusinessName) = u" Grocery "_s;
    window.mnuAux_Click();
    EXPECT_EQ(window.lblAccount, u" Grocery "_s);
    window.mnuAux_Click();
    customers.MoveTo(Move::Next);
    customers.Fields.cboTitle = u" Ms "_s;
    Text(CustomerText::FirstName) = u" Ann  "_s;
    Text(CustomerText::LastName) = u"Lee-Park "_s;
    window.mnuAux_Click();
    EXPECT_EQ(window.lblAccount, u"Ms Ann Lee-Park"_s);
}

TEST_F(AuxiliaryWindowTest, PersonWithoutATitleKeepsItsBlank) {
    customers.MoveTo(Move::Next);
    customers.Fields.cboTitle.clear();
    window.mnuAux_Click();
    EXPECT_EQ(window.lblAccount, u" Ann Lee"_s);
}

TEST_F(AuxiliaryWindowTest, AccountStaysWhenTheCustomerIsLeftByTheScreensOwnButtons) {
    window.mnuAux_Click();
    customers.MoveTo(Move::Next);
    EXPECT_TRUE(customers.fraAuxVisible);
    EXPECT_EQ(window.lblAccount, u"Corner Grocery"_s);
    EXPECT_EQ(customers.fraAux, u"Data for Mr/Mrs Ann Lee"_s);
}

TEST_F(AuxiliaryWindowTest, CloseWindowSavesTheTextsAndHides) {
    window.mnuAux_Click();
    data.txtAux[0] = u"changed"_s;
    Click(AuxButton::CloseWindow);
    EXPECT_FALSE(customers.fraAuxVisible);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "changed\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 5)), "\r\n");
}

TEST_F(AuxiliaryWindowTest, ReloadBringsTheTextsOfTheFilesBack) {
    data.txtAux.fill(u"changed"_s);
    Click(AuxButton::ReloadThisAccount);
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
    EXPECT_EQ(data.txtAux[5], QString());
}

TEST_F(AuxiliaryWindowTest, ReloadWithRetainTickedLeavesTheTexts) {
    data.txtAux.fill(u"changed"_s);
    data.ckSaveAux = true;
    Click(AuxButton::ReloadThisAccount);
    EXPECT_EQ(data.txtAux[0], u"changed"_s);
}

TEST_F(AuxiliaryWindowTest, ShowNextAccountSavesTheTextsAndMovesOnWithoutSavingTheRecord) {
    window.mnuAux_Click();
    const QByteArray records = folder.Read(u"CustomerData.txt"_s);
    data.txtAux[1] = u"second"_s;
    Text(CustomerText::BusinessName) = u"Grocery"_s;
    Click(AuxButton::ShowNextAccount);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 1)), "second\r\n");
    EXPECT_EQ(customers.CurrentRecord, 2);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"1002"_s);
    EXPECT_EQ(data.txtAux[0], u"of Ann Lee\n"_s);
    EXPECT_EQ(data.txtAux[1], QString());
    EXPECT_EQ(window.lblAccount, u"Mr/Mrs Ann Lee"_s);
    EXPECT_TRUE(customers.fraAuxVisible);
    EXPECT_EQ(folder.Read(u"CustomerData.txt"_s), records);
}

TEST_F(AuxiliaryWindowTest, ShowNextAccountAtTheLastOneSavesAndStays) {
    customers.MoveTo(Move::Last);
    window.mnuAux_Click();
    data.txtAux[0] = u"of the anvils"_s;
    Click(AuxButton::ShowNextAccount);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(folder.Read(BoxFile(u"77"_s, 0)), "of the anvils\r\n");
    // Not read anew, so without the line break of a reload.
    EXPECT_EQ(data.txtAux[0], u"of the anvils"_s);
}

TEST_F(AuxiliaryWindowTest, ShowPreviousAccountSavesTheTextsAndMovesBack) {
    customers.MoveTo(Move::Next);
    window.mnuAux_Click();
    data.txtAux[0] = u"changed"_s;
    Click(AuxButton::ShowPreviousAccount);
    EXPECT_EQ(folder.Read(BoxFile(u"1002"_s, 0)), "changed\r\n");
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
    EXPECT_EQ(window.lblAccount, u"Corner Grocery"_s);
}

TEST_F(AuxiliaryWindowTest, ShowPreviousAccountAtTheFirstOneSavesAndStays) {
    data.txtAux[0] = u"changed"_s;
    Click(AuxButton::ShowPreviousAccount);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "changed\r\n");
    EXPECT_EQ(data.txtAux[0], u"changed"_s);
}

TEST_F(AuxiliaryWindowTest, RetainedTextsAreStoredUnderTheNextAccountByTheNextSave) {
    window.mnuAux_Click();
    data.txtAux = {u"same for all"_s};
    data.ckSaveAux = true;
    Click(AuxButton::ShowNextAccount);
    EXPECT_EQ(data.txtAux[0], u"same for all"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"1002"_s, 0)), "of Ann Lee\r\n");
    Click(AuxButton::ShowNextAccount);
    Click(AuxButton::CloseWindow);
    for (const QString& account : {u"4471"_s, u"1002"_s, u"77"_s})
        EXPECT_EQ(folder.Read(BoxFile(account, 0)), "same for all\r\n") << account.toStdString();
}

TEST_F(AuxiliaryWindowTest, RetainHoldsOnTheScreensOwnWaysToo) {
    data.txtAux = {u"same for all"_s};
    data.ckSaveAux = true;
    customers.MoveTo(Move::Next);
    EXPECT_EQ(data.txtAux[0], u"same for all"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"1002"_s, 0)), "of Ann Lee\r\n");
}

TEST_F(AuxiliaryWindowTest, AccountWhoseNumberChangesLosesSightOfItsTexts) {
    Text(CustomerText::AcctNo) = u"9000"_s;
    Click(AuxButton::ReloadThisAccount);
    EXPECT_EQ(data.txtAux[0], QString());
    data.txtAux[0] = u"new"_s;
    Click(AuxButton::CloseWindow);
    EXPECT_EQ(folder.Read(BoxFile(u"9000"_s, 0)), "new\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "of the grocery\r\n");
}

TEST_F(AuxiliaryWindowTest, DeletedCustomersTextsStayForTheNextOfThatNumber) {
    user.ExpectQuestion(u"Delete this Customer"_s, {}, Answer::Yes);
    customers.DeleteCustomer();
    EXPECT_EQ(data.txtAux[0], u"of Ann Lee\n"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "of the grocery\r\n");
    customers.AddNewCustomer();
    Text(CustomerText::AcctNo) = u"4471"_s;
    Text(CustomerText::FirstName) = u"Bo"_s;
    Text(CustomerText::LastName) = u"Diaz"_s;
    customers.MoveTo(Move::Last);
    EXPECT_EQ(Text(CustomerText::LastName), u"Diaz"_s);
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
}

TEST_F(AuxiliaryWindowTest, AccountsOfOneNumberShareTheirTexts) {
    LoadWith({SampleCustomer{}, SampleCustomer{.account = "77", .businessName = "Anvil Works"},
              SampleCustomer{.businessName = "Grocery Depot"}});
    data.txtAux[0] = u"of both"_s;
    Click(AuxButton::ShowNextAccount);
    EXPECT_EQ(data.txtAux[0], QString());
    Click(AuxButton::ShowNextAccount);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Grocery Depot"_s);
    EXPECT_EQ(data.txtAux[0], u"of both\n"_s);
    data.txtAux[0] = u"of the depot as well"_s;
    Click(AuxButton::CloseWindow);
    customers.MoveTo(Move::First);
    EXPECT_EQ(data.txtAux[0], u"of the depot as well\n"_s);
}

TEST_F(AuxiliaryWindowTest, HeadingsAreSavedByTheirButtonForAllAccounts) {
    data.txtHeading[0] = u"Gate code"_s;
    Click(AuxButton::SaveHeadings);
    EXPECT_EQ(
        folder.Read(u"AuxHeadings.txt"_s),
        "Gate code\r\nHeading #2\r\nHeading #3\r\nHeading #4\r\nHeading #5\r\nHeading #6\r\n");
    customers.MoveTo(Move::Next);
    EXPECT_EQ(data.txtHeading[0], u"Gate code"_s);
    EXPECT_EQ(data.txtAux[0], u"of Ann Lee\n"_s);
}

TEST_F(AuxiliaryWindowTest, DoubleClickBlanksAHeadingOnTheScreenOnly) {
    data.txtHeading[2] = u"Dog"_s;
    Click(AuxButton::SaveHeadings);
    window.txtHeading_DblClick(2);
    EXPECT_EQ(data.txtHeading[2], QString());
    EXPECT_TRUE(folder.Read(u"AuxHeadings.txt"_s).contains("Dog\r\n"));
    Click(AuxButton::SaveHeadings);
    EXPECT_EQ(folder.Read(u"AuxHeadings.txt"_s),
              "Heading #1\r\nHeading #2\r\n\r\nHeading #4\r\nHeading #5\r\nHeading #6\r\n");
}

// The larger size.

TEST_F(AuxiliaryWindowTest, DoubleClickShowsABoxInTheLargerSize) {
    window.mnuAux_Click();
    data.txtAux[2] = u"bites"_s;
    data.txtHeading[2] = u"Dog"_s;
    window.txtAux_DblClick(2);
    EXPECT_TRUE(window.fraBigVisible);
    EXPECT_EQ(window.txtBig, u"bites"_s);
    EXPECT_EQ(window.lblEditing, u"Editing Data Box # 3 - Dog - for Corner Grocery"_s);
    EXPECT_EQ(window.BigBoxIndex, 2);
    EXPECT_EQ(customers.Focus, FocusOn::AuxText);
}

TEST_F(AuxiliaryWindowTest, HidingTheLargerSizePutsItsTextIntoTheBoxAndSavesNothing) {
    window.mnuAux_Click();
    window.txtAux_DblClick(0);
    window.txtBig = u"changed"_s;
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
    Click(AuxButton::HideBig);
    EXPECT_FALSE(window.fraBigVisible);
    EXPECT_TRUE(customers.fraAuxVisible);
    EXPECT_EQ(data.txtAux[0], u"changed"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "of the grocery\r\n");
}

TEST_F(AuxiliaryWindowTest, ClearingTheLargerSizeLeavesTheBoxUntilItIsHidden) {
    window.txtAux_DblClick(0);
    Click(AuxButton::ClearBig);
    EXPECT_EQ(window.txtBig, QString());
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
    EXPECT_TRUE(window.fraBigVisible);
    Click(AuxButton::ReloadBig);
    EXPECT_EQ(window.txtBig, u"of the grocery\n"_s);
    Click(AuxButton::ClearBig);
    Click(AuxButton::HideBig);
    EXPECT_EQ(data.txtAux[0], QString());
}

TEST_F(AuxiliaryWindowTest, LargerSizeGoesIntoTheBoxOfWhicheverCustomerIsThere) {
    window.mnuAux_Click();
    window.txtAux_DblClick(0);
    customers.MoveTo(Move::Next);
    Click(AuxButton::HideBig);
    EXPECT_EQ(data.txtAux[0], u"of the grocery\n"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"1002"_s, 0)), "of Ann Lee\r\n");
}

// Beside the rest of the screen.

TEST_F(AuxiliaryWindowTest, WindowAndSearchAreNeverInFrontTogether) {
    window.mnuAux_Click();
    office.customerSearch.SearchByCriteria();
    EXPECT_TRUE(customers.fraSearchVisible);
    EXPECT_FALSE(customers.fraAuxVisible);
    window.mnuAux_Click();
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_TRUE(customers.fraAuxVisible);
    office.customerSearch.mnuPrint_Click();
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
    EXPECT_FALSE(customers.fraAuxVisible);
    window.mnuAux_Click();
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    customers.FindInNameList();
    EXPECT_FALSE(customers.fraAuxVisible);
    EXPECT_EQ(customers.Name, NamePlace::AccountList);
    window.mnuAux_Click();
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
}

TEST_F(AuxiliaryWindowTest, RecordThatCannotBeSavedComesInFrontOfTheWindow) {
    window.mnuAux_Click();
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    customers.MoveTo(Move::Next);
    EXPECT_FALSE(customers.fraAuxVisible);
    EXPECT_EQ(customers.Focus, FocusOn::BusinessName);
}

TEST_F(AuxiliaryWindowTest, AddClosesTheWindowAndItsMenuEntryUntilTheRecordIsSaved) {
    window.mnuAux_Click();
    customers.AddNewCustomer();
    EXPECT_FALSE(customers.fraAuxVisible);
    EXPECT_FALSE(customers.mnuAuxEnabled);
    Text(CustomerText::AcctNo) = u"9000"_s;
    Text(CustomerText::FirstName) = u"Bo"_s;
    Text(CustomerText::LastName) = u"Diaz"_s;
    customers.SaveCustomer();
    EXPECT_TRUE(customers.mnuAuxEnabled);
}

TEST_F(AuxiliaryWindowTest, AccountNumberThatLeadsOutOfItsFolderStopsTheSaveAndChangesNothing) {
    customers.fraAuxVisible = true;
    Text(CustomerText::AcctNo) = u".."_s;
    data.txtAux[0] = u"changed"_s;
    const auto before = folder.Contents();
    for (const AuxButton button :
         {AuxButton::CloseWindow, AuxButton::ShowNextAccount, AuxButton::ShowPreviousAccount})
        EXPECT_EQ(FailureOf([&] { Click(button); }).Kind(), FailureKind::BadFileName);
    EXPECT_TRUE(customers.fraAuxVisible);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(AuxiliaryWindowTest, RecordWhoseNumberLeadsOutOfItsFolderIsShownWithoutTexts) {
    folder.Write(u"AuxFile0/Data.txt"_s, "outside\r\n");
    LoadWith({SampleCustomer{.account = ".."}, SampleCustomer{.account = "a/b"}});
    EXPECT_EQ(Text(CustomerText::AcctNo), u".."_s);
    EXPECT_EQ(data.txtAux[0], QString());
    customers.MoveTo(Move::Next);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"a/b"_s);
    EXPECT_EQ(data.txtAux[0], QString());
}

/// Before there is a customer.
class AuxiliaryWindowOfNoCustomerTest : public CustomerTest {
protected:
    AuxiliaryWindowOfNoCustomerTest() {
        user.ExpectMessage(u"Your Customer File is Empty\nCreate your First Customer Now"_s,
                           u"Create Customers"_s);
        customers.Load();
        office.auxiliaryWindow.Load();
    }
};

TEST_F(AuxiliaryWindowOfNoCustomerTest, ThereIsNoNextAccount) {
    office.auxiliaryWindow.mnuAux_Click();
    Text(CustomerText::AcctNo) = u"1"_s;
    for (const AuxButton button : {AuxButton::ShowNextAccount, AuxButton::ShowPreviousAccount}) {
        office.auxiliaryWindow.cmdSaveAux_Click(button);
        EXPECT_EQ(customers.CurrentRecord, 1);
        EXPECT_EQ(Text(CustomerText::AcctNo), u"1"_s) << "what is being entered stays";
    }
    EXPECT_FALSE(folder.Has(u"CustomerData.txt"_s));
    EXPECT_TRUE(folder.Has(BoxFile(u"1"_s, 0)));
}
