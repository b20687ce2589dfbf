#include "customers/CustomerSearch.h"

#include "customers/CustomerTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString customerFile = u"CustomerData.txt"_s;
const QString contractFile = u"ContractInfo.txt"_s;
const QString nobody = u"No Customer Record meets this Criteria"_s;
const QString nobodyTitle = u"Customer not Found"_s;
const QString noName = u"The Account Name Cannot be Blank"_s;

/// A customer in whose record no letter stands but those of the type of account.
SampleCustomer Blank() {
    return {.account = "0",
            .businessName = "0",
            .address1 = "",
            .address2 = "",
            .city = "",
            .cityListEntry = "",
            .state = "",
            .zip = "",
            .postalOrAddress4 = "",
            .phone = "",
            .cell = "",
            .email = ""};
}

/// With the letters "XYZ" in one field each, in the order of the options.
QList<SampleCustomer> OneForEachField() {
    QList<SampleCustomer> records(9, Blank());
    records[0].businessName = "a xyz b";
    records[1].address1 = "a Xyz b";
    records[2].address2 = "a xYz b";
    records[3].city = "a xyz b";
    records[4].state = "xy";
    records[5].postalOrAddress4 = "a xyz b";
    records[6].phone = "a xyz b";
    records[7].lastName = "a xyz b";
    records[8].account = "a xyz b";
    return records;
}

} // namespace

class CustomerSearchTest : public CustomerTest {
protected:
    /// From the entry of the text to the end of the search.
    void SearchFor(const QString& text, SearchField field = SearchField::BusinessName) {
        search.optSearch = field;
        search.txtSearchfor = text;
        search.cmdStartSearch_Click();
    }
    /// A search for a text in capitals finds those records, or tells that there are none.
    void ExpectFound(const QString& text, const QStringList& records,
                     SearchField field = SearchField::BusinessName) {
        int foundCount = -1;
        if (records.isEmpty())
            user.ExpectMessage(nobody, nobodyTitle);
        search.FindCustomers(field, text, false, foundCount);
        user.ExpectNothingLeft();
        EXPECT_EQ(foundCount, records.size()) << text.toStdString();
        EXPECT_EQ(RecordsFound(), records) << text.toStdString();
    }
    /// The rows of the list of all.
    int ListAll() {
        int foundCount = -1;
        search.FindCustomers(SearchField::All, u"All"_s, true, foundCount);
        return foundCount;
    }
    QStringList Row(int row) const {
        return {search.fgCustomersFound.Text(row, 0), search.fgCustomersFound.Text(row, 1),
                search.fgCustomersFound.Text(row, 2)};
    }
    QStringList RecordsFound() const {
        QStringList records;
        for (int row = 1; row <= search.fgCustomersFound.DataRows(); ++row)
            records += search.fgCustomersFound.Text(row, 2);
        return records;
    }
    void LoadTwoGroceries() {
        LoadWith({SampleCustomer{.account = "1", .businessName = "Anvil Works"},
                  SampleCustomer{.account = "2", .businessName = "Corner Grocery"},
                  SampleCustomer{.account = "3", .businessName = "mill grocery"}});
    }

    CustomerSearch& search = office.customerSearch;
};

// What is found

TEST_F(CustomerSearchTest, EachOptionSearchesItsField) {
    LoadWith(OneForEachField());
    for (int option = 0; option <= 8; ++option) {
        const auto field = SearchField(option);
        ExpectFound(field == SearchField::State ? u"XY"_s : u"XYZ"_s, {QString::number(option + 1)},
                    field);
    }
}

TEST_F(CustomerSearchTest, OtherFieldsOfTheRecordAreNotSearched) {
    SampleCustomer customer = Blank();
    customer.cityListEntry = "XYZ";
    customer.zip = "XYZ";
    customer.cell = "XYZ";
    customer.email = "XYZ";
    customer.title = "XYZ";
    customer.firstName = "XYZ";
    LoadWith({customer});
    for (int option = 0; option <= 8; ++option)
        ExpectFound(u"XYZ"_s, {}, SearchField(option));
}

TEST_F(CustomerSearchTest, TextMatchesInTheMiddleOfAWordWhateverItsCase) {
    LoadTwoGroceries();
    SearchFor(u" rOcE "_s);
    EXPECT_EQ(RecordsFound(), (QStringList{u"2"_s, u"3"_s}));
}

TEST_F(CustomerSearchTest, FieldIsComparedByteByByteOnceBothAreInCapitals) {
    LoadTwoGroceries();
    ExpectFound(u"GROCERY"_s, {u"2"_s, u"3"_s});
    // A text that is not in capitals occurs nowhere.
    ExpectFound(u"grocery"_s, {});
}

TEST_F(CustomerSearchTest, AccentedLettersMatchTheirCapitals) {
    LoadWith({SampleCustomer{.businessName = "Caf\xe9 M\xfcller"},
              SampleCustomer{.businessName = "CAF\xc9 M\xdcLLER"},
              SampleCustomer{.businessName = "Cafe Muller"},
              SampleCustomer{.businessName = "\xff\x9a\x9c\x9e Stra\xdf"
                                             "e \xb5 \x80"}});
    search.optSearch = SearchField::BusinessName;
    SearchFor(u"f\u00e9 m\u00fc"_s);
    EXPECT_EQ(RecordsFound(), (QStringList{u"1"_s, u"2"_s}));
    SearchFor(u"F\u00c9 M\u00dcLLER"_s);
    EXPECT_EQ(RecordsFound(), (QStringList{u"1"_s, u"2"_s}));
    for (const QString& text : {u"\u0178\u0160\u0152\u017d"_s, u"\u00ff\u0161\u0153\u017e"_s,
                                u"stra\u00dfe"_s, u"STRA\u00dfE"_s, u"\u00b5"_s, u"\u20ac"_s}) {
        SearchFor(text);
        EXPECT_EQ(RecordsFound(), QStringList{u"4"_s}) << text.toStdString();
    }
}

TEST_F(CustomerSearchTest, CharacterThatNoRecordCanHoldIsNotFoundAsAQuestionMark) {
    LoadWith({SampleCustomer{.businessName = "What?"}, SampleCustomer{}});
    user.ExpectMessage(nobody, nobodyTitle);
    SearchFor(u"\u4e2d"_s);
    EXPECT_EQ(customers.CurrentRecord, 1);
}

TEST_F(CustomerSearchTest, HundredsOfCustomersAreFoundWithTheirOwnTexts) {
    QList<SampleCustomer> records;
    for (int number = 1; number <= 300; ++number)
        records += number % 2 == 0
                       ? SampleCustomer{.businessName = "Shop " + QByteArray::number(number),
                                        .phone = QByteArray::number(number)}
                       : Person("Lee " + QByteArray::number(number), "Ann", "1");
    LoadWith(records);
    QStringList all;
    for (int number = 1; number <= 300; ++number)
        all += QString::number(number);
    ExpectFound(u"SPRING"_s, all, SearchField::City);
    for (const int number : {1, 127, 129, 299})
        EXPECT_EQ(Row(number), (QStringList{u"Ann Lee %1"_s.arg(number), u"217-555-0199"_s,
                                            QString::number(number)}));
    for (const int number : {2, 128, 256, 300})
        EXPECT_EQ(Row(number), (QStringList{u"Shop %1"_s.arg(number), QString::number(number),
                                            QString::number(number)}));
    ExpectFound(u"SHOP 30"_s, {u"30"_s, u"300"_s});
}

TEST_F(CustomerSearchTest, WildcardsAndQuotesAreCharactersLikeOthers) {
    LoadWith({SampleCustomer{}, SampleCustomer{.businessName = "*?%\"'[a-z]\\.^$ Ltd"}});
    for (const QString& text : {u"*"_s, u"?"_s, u"%"_s, u"\""_s, u"'"_s, u"[A-Z]"_s, u"\\"_s,
                                u".^$"_s, u"*?%\"'[a-z]\\.^$ ltd"_s}) {
        SearchFor(text);
        EXPECT_EQ(RecordsFound(), QStringList{u"2"_s}) << text.toStdString();
    }
    for (const QString& text : {u"Corner*"_s, u"C?rner"_s, u"corner%"_s, u".*"_s}) {
        user.ExpectMessage(nobody, nobodyTitle);
        SearchFor(text);
        EXPECT_EQ(RecordsFound(), QStringList()) << text.toStdString();
    }
}

TEST_F(CustomerSearchTest, TenThousandCharactersFindNobody) {
    LoadThree();
    user.ExpectMessage(nobody, nobodyTitle);
    SearchFor(QString(10'000, u'C'));
    EXPECT_TRUE(search.HasFoundNobody);
}

TEST_F(CustomerSearchTest, TextOfBlanksOccursInEveryField) {
    LoadThree();
    SearchFor(u"   "_s);
    EXPECT_EQ(RecordsFound(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(CustomerSearchTest, FieldOfNulCharactersHoldsNothing) {
    LoadBytes(SampleCustomer{}.Bytes() + QByteArray(328, '\0'), 2);
    ExpectFound(u"CORNER"_s, {u"1"_s});
    EXPECT_EQ(ListAll(), 2);
    EXPECT_EQ(Row(2), (QStringList{QString(), QString(), u"2"_s}));
}

TEST_F(CustomerSearchTest, RecordThatIsCutShortIsReadAsFarAsItGoes) {
    const QByteArray cut = SampleCustomer{.businessName = "Anvil Works"}.Bytes().left(210);
    LoadBytes(SampleCustomer{}.Bytes() + cut, 2);
    ExpectFound(u"ANVIL"_s, {u"2"_s});
    LoadBytes(SampleCustomer{}.Bytes() + cut, 2);
    EXPECT_EQ(ListAll(), 2);
    EXPECT_EQ(Row(2), (QStringList{QString(), u"217"_s, u"2"_s})) << "without its type a person";
}

TEST_F(CustomerSearchTest, CustomersOutOfReachAreNotFound) {
    LoadThree();
    customers.CustomerCount = 2;
    ExpectFound(u"ANVIL"_s, {});
    EXPECT_EQ(ListAll(), 2);
}

TEST_F(CustomerSearchTest, AccountThatIsStillBeingEnteredIsNotFound) {
    LoadThree();
    customers.AddNewCustomer();
    ASSERT_EQ(customers.CustomerCount, 4);
    EXPECT_EQ(ListAll(), 3);
    // Nothing occurs in every field.
    ExpectFound(QString(), {u"1"_s, u"2"_s, u"3"_s}, SearchField::LastName);
}

TEST_F(CustomerSearchTest, SearchChangesNoFile) {
    LoadThree();
    const auto before = folder.Contents();
    SearchFor(u"r"_s);
    ListAll();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(folder.Everything().filter(u"TMP"_s), QStringList());
}

TEST_F(CustomerSearchTest, UnreadableFileFailsAndIsNamed) {
    LoadThree();
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(customerFile), QFile::Permissions()));
    DropRootRights(folder);
    const RuntimeFailure failure = FailureOf([&] { SearchFor(u"Corner"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_TRUE(failure.Sentence().contains(customerFile)) << failure.what();
}

// What comes of it

TEST_F(CustomerSearchTest, GridShowsNameTelephoneAndRecordNumber) {
    LoadThree();
    EXPECT_EQ(search.fgCustomersFound.Text(0, 0), u"Customer Name"_s);
    EXPECT_EQ(search.fgCustomersFound.Text(0, 1), u"Telephone"_s);
    EXPECT_EQ(search.fgCustomersFound.Text(0, 2), u"Rec"_s);
    SearchFor(u"217"_s, SearchField::Phone);
    ASSERT_EQ(search.fgCustomersFound.DataRows(), 3);
    EXPECT_EQ(Row(1), (QStringList{u"Corner Grocery"_s, u"217-555-0199"_s, u"1"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"Mr/Mrs Ann Lee"_s, u"217-555-0199"_s, u"2"_s}));
    EXPECT_EQ(Row(3), (QStringList{u"Anvil Works"_s, u"217-555-0199"_s, u"3"_s}));
    EXPECT_EQ(search.fgCustomersFound.CurrentRow(), 1);
}

TEST_F(CustomerSearchTest, TelephoneAndRecordNumberStandInTheMiddleOfTheirColumns) {
    LoadThree();
    search.mnuPrint_Click();
    const auto alignment = [this](int column) {
        const GridModel& grid = search.fgCustomersFound;
        EXPECT_EQ(grid.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole),
                  grid.data(grid.index(0, column), Qt::TextAlignmentRole));
        return grid.data(grid.index(0, column), Qt::TextAlignmentRole).toInt();
    };
    EXPECT_EQ(alignment(0), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(alignment(1), int(Qt::AlignHCenter | Qt::AlignVCenter));
    EXPECT_EQ(alignment(2), int(Qt::AlignHCenter | Qt::AlignVCenter));
}

TEST_F(CustomerSearchTest, SeveralCustomersBringTheGridToTheFront) {
    LoadTwoGroceries();
    search.SearchByCriteria();
    SearchFor(u"grocery"_s);
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(search.fraCustomersFound, u"Customers Search by Name Results"_s);
    EXPECT_FALSE(search.cmdPrintCustomersVisible);
    EXPECT_EQ(customers.Focus, FocusOn::FoundGrid);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_FALSE(search.HasFoundNobody);
}

TEST_F(CustomerSearchTest, TheOnlyCustomerFoundShowsAtOnceWithoutTheGrid) {
    LoadThree();
    search.SearchByCriteria();
    SearchFor(u"anvil"_s);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Anvil Works"_s);
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.Focus, FocusOn::SelectButton);
}

TEST_F(CustomerSearchTest, TheOnlyCustomerFoundComesInFrontOfAListThatWasThere) {
    LoadThree();
    search.mnuPrint_Click();
    ASSERT_TRUE(customers.fraCustomersFoundVisible);
    ExpectFound(u"ANVIL"_s, {u"3"_s});
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.CurrentRecord, 3);
}

TEST_F(CustomerSearchTest, SearchAndItsHitLeaveContractsAndCyclesAsTheyAre) {
    LoadThree();
    search.SearchByCriteria();
    SearchFor(u"anvil"_s);
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
    EXPECT_EQ(folder.Read(u"CycleInfo.txt"_s), Siblings(3, 69));
}

TEST_F(CustomerSearchTest, EntryMadeBesideTheSearchIsSavedBeforeTheHitShows) {
    LoadThree();
    search.SearchByCriteria();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    SearchFor(u"anvil"_s);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
}

TEST_F(CustomerSearchTest, NobodyFoundIsToldAndStopsTheAutoAdvance) {
    LoadThree();
    customers.MoveTo(Move::Next);
    search.SearchByCriteria();
    customers.Advance.IsOn = true;
    user.ExpectMessage(nobody, nobodyTitle);
    SearchFor(u"no such name"_s);
    EXPECT_TRUE(search.HasFoundNobody);
    EXPECT_FALSE(customers.Advance.IsOn);
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.CurrentRecord, 2);
    SearchFor(u"anvil"_s);
    EXPECT_FALSE(search.HasFoundNobody);
}

TEST_F(CustomerSearchTest, SearchStaysInFrontOfItsMessage) {
    LoadThree();
    search.SearchByCriteria();
    bool wasVisible = false;
    user.WhileMessageIsOpen = [&] { wasVisible = customers.fraSearchVisible; };
    user.ExpectMessage(nobody, nobodyTitle);
    SearchFor(u"no such name"_s);
    EXPECT_TRUE(wasVisible);
}

TEST_F(CustomerSearchTest, ListModeOnlyFillsTheGrid) {
    LoadThree();
    EXPECT_EQ(ListAll(), 3);
    EXPECT_EQ(RecordsFound(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_FALSE(search.HasFoundNobody);
}

TEST_F(CustomerSearchTest, ListModeWithAFieldAddsNoRowsAndTellsNothing) {
    LoadThree();
    for (const QString& text : {u"ANVIL"_s, u"R"_s, u"NO SUCH NAME"_s}) {
        int foundCount = -1;
        search.FindCustomers(SearchField::BusinessName, text, true, foundCount);
        EXPECT_EQ(foundCount, 0) << text.toStdString();
        EXPECT_EQ(RecordsFound(), QStringList()) << text.toStdString();
        EXPECT_FALSE(search.HasFoundNobody);
    }
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
}

TEST_F(CustomerSearchTest, EmptyTextIsRefused) {
    LoadThree();
    search.SearchByCriteria();
    user.ExpectMessage(u"You must enter some criteria data for the Search"_s);
    SearchFor(QString());
    EXPECT_TRUE(customers.fraSearchVisible);
    EXPECT_EQ(customers.Focus, FocusOn::SearchText);
    EXPECT_EQ(customers.CurrentRecord, 1);
}

// The entries of the search

TEST_F(CustomerSearchTest, OpeningTheSearchSavesTheRecordAndBlanksTheText) {
    LoadThree();
    search.txtSearchfor = u"left over"_s;
    Text(CustomerText::Address1) = u"1 New Road"_s;
    customers.FindInNameList();
    search.SearchByCriteria();
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
    EXPECT_TRUE(customers.fraSearchVisible);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.Name, NamePlace::BusinessName) << "the list of names is gone";
    EXPECT_EQ(search.txtSearchfor, QString());
    EXPECT_EQ(customers.Focus, FocusOn::SearchText);
}

TEST_F(CustomerSearchTest, SearchDoesNotOpenOverARecordThatCannotBeSaved) {
    LoadThree();
    Text(CustomerText::BusinessName).clear();
    search.txtSearchfor = u"left over"_s;
    user.ExpectMessage(noName);
    search.SearchByCriteria();
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_EQ(search.txtSearchfor, u"left over"_s);
    EXPECT_EQ(customers.Focus, FocusOn::BusinessName);
}

TEST_F(CustomerSearchTest, SecondOpeningPutsTheDefaultsOverTheContract) {
    LoadThree();
    search.SearchByCriteria();
    EXPECT_EQ(ContractOnDisk(1), QByteArray(386, 'A'));
    search.SearchByCriteria();
    EXPECT_TRUE(ContractOnDisk(1).startsWith("None Selected   "));
    EXPECT_EQ(ContractOnDisk(2), QByteArray(386, 'B'));
}

TEST_F(CustomerSearchTest, NoToTheExitQuestionOpensTheSearch) {
    LoadThree();
    Text(CustomerText::AcctNo).clear();
    Text(CustomerText::Phone).clear();
    user.ExpectMessage(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    user.ExpectQuestion(u"Would you like to exit\nwithout creating a Customer?"_s, u"No Customer"_s,
                        Answer::No);
    search.SearchByCriteria();
    EXPECT_TRUE(customers.fraSearchVisible);
}

TEST_F(CustomerSearchTest, YesToTheExitQuestionOpensNothing) {
    LoadThree();
    Text(CustomerText::AcctNo).clear();
    Text(CustomerText::Phone).clear();
    user.ExpectMessage(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    user.ExpectQuestion(u"Would you like to exit\nwithout creating a Customer?"_s, u"No Customer"_s,
                        Answer::Yes);
    search.SearchByCriteria();
    EXPECT_FALSE(customers.fraSearchVisible);
}

TEST_F(CustomerSearchTest, OptionsBlankTheTextOrFillItWithTheOwnTelephone) {
    LoadThree();
    office.settings.BusinessData[6] = u"309-555-0100"_s;
    for (int option = 0; option <= 8; ++option) {
        search.txtSearchfor = u"left over"_s;
        customers.Focus = FocusOn::Nothing;
        search.optSearch_Click(SearchField(option));
        EXPECT_EQ(search.txtSearchfor, option < 6 ? QString() : u"309-555-"_s) << option;
        EXPECT_EQ(int(search.optSearch), option);
        EXPECT_EQ(customers.Focus, FocusOn::SearchText) << option;
    }
}

TEST_F(CustomerSearchTest, ShortOwnTelephoneFillsWhatThereIs) {
    LoadThree();
    office.settings.BusinessData[6] = u"309"_s;
    search.optSearch_Click(SearchField::Phone);
    EXPECT_EQ(search.txtSearchfor, u"309"_s);
    office.settings.BusinessData[6] = QString();
    search.optSearch_Click(SearchField::AcctNo);
    EXPECT_EQ(search.txtSearchfor, QString());
}

TEST_F(CustomerSearchTest, ClearBlanksTheTextAndGoesBackToIt) {
    LoadThree();
    search.SearchByCriteria();
    search.txtSearchfor = u"left over"_s;
    customers.Focus = FocusOn::Nothing;
    search.cmdClearSearch_Click();
    EXPECT_EQ(search.txtSearchfor, QString());
    EXPECT_EQ(customers.Focus, FocusOn::SearchText);
    EXPECT_TRUE(customers.fraSearchVisible);
}

TEST_F(CustomerSearchTest, HideShowsTheRecordAgain) {
    LoadThree();
    search.SearchByCriteria();
    search.cmdHideSearch_Click();
    EXPECT_FALSE(customers.fraSearchVisible);
}

TEST_F(CustomerSearchTest, NewScreenStartsWithTheFirstOptionAndNoText) {
    LoadThree();
    search.optSearch_Click(SearchField::AcctNo);
    search.txtSearchfor = u"left over"_s;
    search.mnuPrint_Click();
    search.Load();
    EXPECT_EQ(search.optSearch, SearchField::BusinessName);
    EXPECT_EQ(search.txtSearchfor, QString());
    EXPECT_EQ(search.fraCustomersFound, u"Customers Search by Name Results"_s);
    EXPECT_FALSE(search.cmdPrintCustomersVisible);
    EXPECT_EQ(search.fgCustomersFound.DataRows(), 0);
}

// The list of all customers

TEST_F(CustomerSearchTest, ListShowsAllCustomersInTheOrderOfTheFile) {
    LoadThree();
    search.mnuPrint_Click();
    EXPECT_EQ(search.fraCustomersFound, u"Customer List"_s);
    EXPECT_TRUE(search.cmdPrintCustomersVisible);
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(RecordsFound(), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"Mr/Mrs Ann Lee"_s, u"217-555-0199"_s, u"2"_s}));
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(CustomerSearchTest, ListWithoutACustomerFileOnlyBeeps) {
    user.ExpectMessage(u"Your Customer File is Empty\nCreate your First Customer Now"_s,
                       u"Create Customers"_s);
    customers.Load();
    const QStringList before = folder.Everything();
    search.mnuPrint_Click();
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    search.LocateInList();
    EXPECT_EQ(user.Beeps, 2);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(CustomerSearchTest, LocateWithoutACustomerFileHidesWhatStandsOverTheRecord) {
    user.ExpectMessage(u"Your Customer File is Empty\nCreate your First Customer Now"_s,
                       u"Create Customers"_s);
    customers.Load();
    customers.fraSearchVisible = true;
    customers.Name = NamePlace::AccountList;
    search.LocateInList();
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_EQ(customers.Name, NamePlace::PersonalName);
}

TEST_F(CustomerSearchTest, ListWithoutACustomerFileBeepsWithSoundsOffToo) {
    user.ExpectMessage(u"Your Customer File is Empty\nCreate your First Customer Now"_s,
                       u"Create Customers"_s);
    customers.Load();
    office.settings.AlarmOn = false;
    search.mnuPrint_Click();
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(CustomerSearchTest, ListOfAnEmptyFileIsEmpty) {
    folder.Write(customerFile, {});
    customers.Load();
    search.mnuPrint_Click();
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(search.fgCustomersFound.DataRows(), 0);
    search.mnuSelect_Click();
    EXPECT_TRUE(customers.fraCustomersFoundVisible) << "there is no one to select";
}

TEST_F(CustomerSearchTest, LocateHidesTheSearchAndTheNamesAndListsAll) {
    LoadThree();
    search.SearchByCriteria();
    search.LocateInList();
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(search.fraCustomersFound, u"Customer List"_s);
    customers.FindInNameList();
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.Name, NamePlace::AccountList);
    search.LocateInList();
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
}

TEST_F(CustomerSearchTest, SearchBehindAListHasItsOwnCaptionAndNoPrintButton) {
    LoadThree();
    search.mnuPrint_Click();
    search.SearchByCriteria();
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    SearchFor(u"217"_s, SearchField::Phone);
    EXPECT_EQ(search.fraCustomersFound, u"Customers Search by Name Results"_s);
    EXPECT_FALSE(search.cmdPrintCustomersVisible);
    search.mnuPrint_Click();
    EXPECT_EQ(search.fraCustomersFound, u"Customer List"_s);
    EXPECT_TRUE(search.cmdPrintCustomersVisible);
}

TEST_F(CustomerSearchTest, NextSearchStartsWithAnEmptyGrid) {
    LoadThree();
    search.mnuPrint_Click();
    SearchFor(u"r"_s);
    EXPECT_EQ(RecordsFound(), (QStringList{u"1"_s, u"3"_s}));
}

// Using the grid

TEST_F(CustomerSearchTest, SelectShowsTheCustomerOfTheCurrentRowAndHidesTheGrid) {
    LoadThree();
    search.mnuPrint_Click();
    search.fgCustomersFound.SetCurrent(3, 0);
    search.mnuSelect_Click();
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Anvil Works"_s);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
}

TEST_F(CustomerSearchTest, SelectTakesTheRecordNumberAndNotTheRow) {
    LoadTwoGroceries();
    SearchFor(u"grocery"_s);
    search.fgCustomersFound.SetCurrent(2, 1);
    search.mnuSelect_Click();
    EXPECT_EQ(customers.CurrentRecord, 3);
}

TEST_F(CustomerSearchTest, SelectFromTheListSavesTheRecordThatIsLeft) {
    LoadThree();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    search.mnuPrint_Click();
    search.fgCustomersFound.SetCurrent(2, 0);
    search.mnuSelect_Click();
    EXPECT_EQ(customers.CurrentRecord, 2);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
}

TEST_F(CustomerSearchTest, SelectFromResultsDoesNotSaveASecondTime) {
    LoadThree();
    search.SearchByCriteria();
    SearchFor(u"217"_s, SearchField::Phone);
    search.fgCustomersFound.SetCurrent(3, 0);
    search.mnuSelect_Click();
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
}

TEST_F(CustomerSearchTest, RecordThatCannotBeSavedIsNotLeftAndComesToTheFront) {
    LoadThree();
    Text(CustomerText::BusinessName).clear();
    search.mnuPrint_Click();
    search.fgCustomersFound.SetCurrent(2, 0);
    user.ExpectMessage(noName);
    search.mnuSelect_Click();
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.Focus, FocusOn::BusinessName);
}

TEST_F(CustomerSearchTest, RetryHidesTheGrid) {
    LoadThree();
    search.mnuPrint_Click();
    search.cmdRetry_Click();
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.CurrentRecord, 1);
}

// What is in front

TEST_F(CustomerSearchTest, ShowingACustomerHidesTheSearchAndNotTheList) {
    LoadThree();
    search.SearchByCriteria();
    customers.ShowCustomer();
    EXPECT_FALSE(customers.fraSearchVisible);
    search.mnuPrint_Click();
    customers.ShowCustomer();
    EXPECT_TRUE(customers.fraCustomersFoundVisible);
}

TEST_F(CustomerSearchTest, RecordAreaComesBackInFrontOfSearchAndList) {
    LoadThree();
    search.SearchByCriteria();
    customers.ShowRecordArea();
    EXPECT_FALSE(customers.fraSearchVisible);
    search.mnuPrint_Click();
    customers.ShowRecordArea();
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
}

TEST_F(CustomerSearchTest, NamesComeToTheFrontOfTheSearch) {
    LoadThree();
    search.SearchByCriteria();
    customers.FindInNameList();
    EXPECT_FALSE(customers.fraSearchVisible);
    EXPECT_EQ(customers.Name, NamePlace::AccountList);
}

TEST_F(CustomerSearchTest, RefusedRecordComesToTheFrontOfTheList) {
    LoadThree();
    search.mnuPrint_Click();
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(noName);
    customers.MoveTo(Move::Next);
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
}

TEST_F(CustomerSearchTest, NewCustomerComesToTheFrontOfTheList) {
    LoadThree();
    search.mnuPrint_Click();
    customers.AddNewCustomer();
    EXPECT_FALSE(customers.fraCustomersFoundVisible);
}

TEST_F(CustomerSearchTest, DeletedCustomerTakesTheListAway) {
    LoadThree();
    search.mnuPrint_Click();
    user.ExpectQuestion(u"Delete this Customer"_s, {}, Answer::Yes);
    customers.DeleteCustomer();
    EXPECT_FALSE(customers.fraCustomersFoundVisible) << "its numbers are those of before";
}

TEST_F(CustomerSearchTest, NameChosenBehindASearchIsNotSavedASecondTime) {
    LoadThree();
    search.SearchByCriteria();
    customers.FindInNameList();
    customers.cboAccounts_Choose(0);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
}

TEST_F(CustomerSearchTest, QuartersBelowFourCustomersSaveTheRecord) {
    LoadThree();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    customers.MoveTo(Move::Half);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
}
