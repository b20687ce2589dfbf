#include "customers/CustomerSelection.h"

#include "customers/SampleCustomers.h"
#include "support/OfficeTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString customerFile = u"CustomerData.txt"_s;
const QString contractFile = u"ContractInfo.txt"_s;
const QString cycleFile = u"CycleInfo.txt"_s;

const QString emptyFile = u"Your Customer File is Empty\nCreate your First Customer Now"_s;
const QString emptyFileTitle = u"Create Customers"_s;
const QString noName = u"The Account Name Cannot be Blank"_s;
const QString noPersonalName = u"Enter Account Data or\n Click Cancel AddNew if Visible"_s;
const QString noTelephone = u"The Telephone Number cannot be blank"_s;
const QString noTelephoneTitle = u"No number"_s;
const QString exitQuestion = u"Would you like to exit\nwithout creating a Customer?"_s;
const QString exitTitle = u"No Customer"_s;
const QString telephoneIsNumber = u"Telephone Number will be used as Acct No."_s;
const QString telephoneIsNumberTitle = u"Account not Entered"_s;
const QString deleteQuestion = u"Delete this Customer"_s;
const QString duplicateQuestion =
    u"The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number"_s;
const QString duplicateTitle = u"Duplicate Account Number"_s;
const QString shortName = u"The Name Field Must be at least 2 Characters\nThis is okay if "
                          u"Cancelling a New Entry\nClick Cancel AddNew Again"_s;
const QString shortNameTitle = u"No Name Entered"_s;

/// What a contract and a cycle record are after a save has put the defaults over them; their
/// first field tells.
bool HasDefaults(const QByteArray& contract, const QByteArray& cycle) {
    return contract.startsWith("None Selected   ") && cycle.startsWith("None      ");
}

/// Looks at the fields at the moment of the first message.
class WatchingOperator : public ScriptedOperator {
public:
    CustomerSelection* Watched = nullptr;
    CustomerFields Seen;

    Answer MsgBox(const QString& text, Buttons buttons, const QString& title) override {
        Seen = Watched->Fields;
        return ScriptedOperator::MsgBox(text, buttons, title);
    }
};

} // namespace

class CustomerSelectionTest : public OfficeTest {
protected:
    CustomerSelectionTest() {
        office.settings.BusinessData[3] = u"Peoria"_s;
        office.settings.BusinessData[4] = u"IL"_s;
        office.settings.BusinessData[5] = u"61602"_s;
        office.settings.BusinessData[6] = u"309-555-0100"_s;
    }

    /// Writes the customers with siblings that can be told apart, and loads the screen.
    void LoadWith(const QList<SampleCustomer>& records) {
        QByteArray bytes;
        for (const SampleCustomer& record : records)
            bytes += record.Bytes();
        folder.Write(customerFile, bytes);
        folder.Write(contractFile, Siblings(int(records.size()), 386));
        folder.Write(cycleFile, Siblings(int(records.size()), 69));
        customers.Load();
    }
    void LoadThree() {
        LoadWith({SampleCustomer{}, Person("Lee", "Ann", "1002", "Mr/Mrs"),
                  SampleCustomer{.account = "77", .businessName = "Anvil Works"}});
    }
    void LoadMany(int count) {
        QList<SampleCustomer> records;
        for (int number = 1; number <= count; ++number)
            records += SampleCustomer{.account = "A" + QByteArray::number(number),
                                      .businessName = "Shop " + QByteArray::number(number)};
        LoadWith(records);
    }
    void LoadEmpty() {
        user.ExpectMessage(emptyFile, emptyFileTitle);
        customers.Load();
    }

    QByteArray CustomerOnDisk(int number) const {
        return folder.Read(customerFile).mid((number - 1) * 328, 328);
    }
    QByteArray ContractOnDisk(int number) const {
        return folder.Read(contractFile).mid((number - 1) * 386, 386);
    }
    QByteArray CycleOnDisk(int number) const {
        return folder.Read(cycleFile).mid((number - 1) * 69, 69);
    }
    QString& Text(CustomerText place) { return customers.Fields[place]; }
    QStringList Accounts() const {
        QStringList names;
        for (int row = 0; row < customers.cboAccounts.rowCount(); ++row)
            names += customers.cboAccounts.At(row).name;
        return names;
    }
    void EnterPerson() {
        Text(CustomerText::AcctNo) = u"2001"_s;
        Text(CustomerText::FirstName) = u"Bo"_s;
        Text(CustomerText::LastName) = u"Cole"_s;
    }

    CustomerSelection& customers = office.customers;
};

// Loading

TEST_F(CustomerSelectionTest, LoadShowsTheFirstRecordOfTheFile) {
    LoadThree();
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(customers.CustomerCount, 3);
    EXPECT_TRUE(customers.IsNavigationEnabled);
    EXPECT_TRUE(customers.mnuDeleteEnabled);
    EXPECT_FALSE(customers.IsCancelVisible);
    EXPECT_EQ(customers.lbLType, u"Business"_s);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"4471"_s);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Corner Grocery"_s);
    EXPECT_EQ(Text(CustomerText::Address1), u"12 Mill Road"_s);
    EXPECT_EQ(Text(CustomerText::Address2), u"Unit 3"_s);
    EXPECT_EQ(customers.Fields.cboCity, u"Springfield"_s);
    EXPECT_EQ(customers.Fields.txtAdd3, u"Springfield"_s);
    EXPECT_EQ(customers.Fields.cboStates, u"IL"_s);
    EXPECT_EQ(Text(CustomerText::PostalCode), u"62704"_s);
    EXPECT_EQ(customers.Fields.txtAdd4, u"62704"_s);
    EXPECT_EQ(Text(CustomerText::Phone), u"217-555-0199"_s);
    EXPECT_EQ(Text(CustomerText::Cell), u"217-555-0142"_s);
    EXPECT_EQ(Text(CustomerText::Email), u"orders@grocery.example"_s);
    EXPECT_EQ(customers.fraAux, u"Data for Corner Grocery"_s);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
}

TEST_F(CustomerSelectionTest, LoadWithoutACustomerFileAsksForTheFirstCustomer) {
    const QStringList before = folder.Everything();
    LoadEmpty();
    user.ExpectNothingLeft();
    EXPECT_FALSE(customers.IsNavigationEnabled);
    EXPECT_FALSE(customers.mnuDeleteEnabled);
    EXPECT_TRUE(customers.mnuAddEnabled);
    EXPECT_EQ(customers.lbLType, u"Individual"_s);
    EXPECT_EQ(customers.Name, NamePlace::PersonalName);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(folder.Everything(), before) << "a load writes no file";
}

TEST_F(CustomerSelectionTest, ProposalsForTheFirstCustomerStandOnlyBehindTheMessage) {
    WatchingOperator watcher;
    Office watched(folder.Path(), {clock, watcher, printer, browser, pictures});
    watched.settings.BusinessData = office.settings.BusinessData;
    watcher.Watched = &watched.customers;
    watcher.ExpectMessage(emptyFile, emptyFileTitle);
    watched.customers.Load();
    EXPECT_EQ(watcher.Seen.cboCity, u"Peoria"_s);
    EXPECT_EQ(watcher.Seen.cboStates, u"IL"_s);
    EXPECT_EQ(watcher.Seen[CustomerText::PostalCode], u"61602"_s);
    EXPECT_EQ(watcher.Seen[CustomerText::Phone], u"309-555-"_s);
    EXPECT_EQ(watched.customers.Fields.cboCity, QString());
    EXPECT_EQ(watched.customers.Fields.cboStates, QString());
    EXPECT_EQ(watched.customers.Fields[CustomerText::PostalCode], QString());
    EXPECT_EQ(watched.customers.Fields[CustomerText::Phone], QString());
}

TEST_F(CustomerSelectionTest, LoadBringsALostCustomerFileBackFromBackup) {
    folder.Write(u"Backup/CustomerData.txt"_s, SampleCustomer{}.Bytes());
    customers.Load();
    EXPECT_EQ(Text(CustomerText::AcctNo), u"4471"_s);
    EXPECT_EQ(folder.Read(customerFile), SampleCustomer{}.Bytes());
}

TEST_F(CustomerSelectionTest, LoadRebuildsAMissingSiblingWithZeroBytes) {
    folder.Write(customerFile, SampleCustomer{}.Bytes() + SampleCustomer{.account = "2"}.Bytes());
    folder.Write(cycleFile, Siblings(2, 69));
    customers.Load();
    EXPECT_EQ(folder.Read(contractFile), QByteArray(2 * 386, '\0'));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(2, 69));
}

TEST_F(CustomerSelectionTest, EmptyCustomerFileShowsABlankRecordAndMakesNoFile) {
    folder.Write(customerFile, {});
    const QStringList before = folder.Everything();
    customers.Load();
    EXPECT_EQ(customers.CustomerCount, 0);
    for (const QString& text : customers.Fields.txtCustomer)
        EXPECT_EQ(text, QString());
    EXPECT_EQ(customers.lbLType, u"Individual"_s);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(CustomerSelectionTest, StatesComeFromTheFirstFiftyValuesOfTheirFile) {
    QByteArray states;
    for (int i = 1; i <= 51; ++i)
        states += "\"S" + QByteArray::number(i) + "\"\r\n";
    folder.Write(u"StatesList.txt"_s, states);
    LoadThree();
    ASSERT_EQ(customers.cboStates.size(), 50);
    EXPECT_EQ(customers.cboStates.first(), u"S1"_s);
    EXPECT_EQ(customers.cboStates.last(), u"S50"_s);
    EXPECT_EQ(folder.Read(u"StatesList.txt"_s), states);
}

TEST_F(CustomerSelectionTest, StatesOnOneLineAreReadValueByValue) {
    QByteArray states = "AK";
    for (int i = 2; i <= 50; ++i)
        states += ",S" + QByteArray::number(i);
    folder.Write(u"StatesList.txt"_s, states + "\r\n");
    LoadThree();
    EXPECT_EQ(customers.cboStates.first(), u"AK"_s);
    EXPECT_EQ(customers.cboStates.last(), u"S50"_s);
}

TEST_F(CustomerSelectionTest, FewerThanFiftyStatesAreAFailureAtTheEndOfTheFile) {
    QByteArray states;
    for (int i = 1; i <= 49; ++i)
        states += "IL\r\n";
    folder.Write(u"StatesList.txt"_s, states);
    const RuntimeFailure failure = FailureOf([&] { customers.Load(); });
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(failure.Sentence().contains(u"StatesList.txt"_s)) << failure.what();
}

TEST_F(CustomerSelectionTest, WithoutStatesTheListIsEmpty) {
    LoadThree();
    EXPECT_TRUE(customers.cboStates.isEmpty());
}

TEST_F(CustomerSelectionTest, TitlesStandInTheirOrder) {
    EXPECT_EQ(CustomerSelection::Titles(),
              (QStringList{u"Mr/Mrs"_s, u"Mr."_s, u"Mrs"_s, u"Ms"_s, u"Miss"_s}));
}

TEST_F(CustomerSelectionTest, AddressStyleFollowsTheCaptionOfTheSetupScreen) {
    LoadThree();
    EXPECT_TRUE(customers.UsaAddressStyle);
    office.settings.cmdAddress = u"International Style Address"_s;
    customers.TakeAddressStyle();
    EXPECT_FALSE(customers.UsaAddressStyle);
    customers.Load();
    EXPECT_FALSE(customers.UsaAddressStyle);
}

// Showing

TEST_F(CustomerSelectionTest, IndividualShowsHisNamePartsAndFillsTheHiddenName) {
    LoadThree();
    customers.MoveTo(Move::Next);
    EXPECT_EQ(customers.lbLType, u"Individual"_s);
    EXPECT_EQ(customers.Name, NamePlace::PersonalName);
    EXPECT_EQ(customers.Fields.cboTitle, u"Mr/Mrs"_s);
    EXPECT_EQ(Text(CustomerText::FirstName), u"Ann"_s);
    EXPECT_EQ(Text(CustomerText::LastName), u"Lee"_s);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Mr/Mrs Ann Lee"_s);
    EXPECT_EQ(customers.AccountDisplayName, u"Mr/Mrs Ann Lee"_s);
    EXPECT_EQ(customers.fraAux, u"Data for Mr/Mrs Ann Lee"_s);
    EXPECT_EQ(customers.Focus, FocusOn::SelectButton);
}

TEST_F(CustomerSelectionTest, IndividualStoresHisFullNameWithTheNextSave) {
    LoadThree();
    customers.MoveTo(Move::Next);
    customers.SaveCustomer();
    EXPECT_EQ(CustomerOnDisk(2).mid(20, 45), QByteArray("Mr/Mrs Ann Lee").leftJustified(45, ' '));
}

TEST_F(CustomerSelectionTest, BlankZipShowsThePostalFieldInstead) {
    LoadWith({SampleCustomer{.zip = "", .postalOrAddress4 = "SW1A 1AA"}});
    EXPECT_EQ(Text(CustomerText::PostalCode), u"SW1A 1AA"_s);
    EXPECT_EQ(customers.Fields.txtAdd4, u"SW1A 1AA"_s);
}

TEST_F(CustomerSelectionTest, RecordWithoutANumberTakesTheFocusToIt) {
    LoadWith({SampleCustomer{}, SampleCustomer{.account = ""}});
    customers.MoveTo(Move::Next);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
}

TEST_F(CustomerSelectionTest, ShowingBelowRecordOneDoesNothing) {
    LoadThree();
    customers.CurrentRecord = 0;
    Text(CustomerText::AcctNo) = u"as it stands"_s;
    customers.ShowCustomer();
    EXPECT_EQ(Text(CustomerText::AcctNo), u"as it stands"_s);
}

TEST_F(CustomerSelectionTest, UnknownAccountTypeIsAnIndividual) {
    LoadWith({SampleCustomer{.type = "business"}});
    EXPECT_EQ(customers.lbLType, u"Individual"_s);
}

TEST_F(CustomerSelectionTest, MiddleInitialIsBlankOnEveryRecord) {
    LoadThree();
    Text(CustomerText::MiddleInitial) = u"Q"_s;
    customers.MoveTo(Move::Next);
    EXPECT_EQ(Text(CustomerText::MiddleInitial), QString());
    Text(CustomerText::MiddleInitial) = u"Q"_s;
    customers.SaveCustomer();
    EXPECT_EQ(CustomerOnDisk(2).mid(288, 1), " ");
}

TEST_F(CustomerSelectionTest, TogglingTheTypeKeepsTheValuesOfTheFields) {
    LoadThree();
    Text(CustomerText::BusinessName) = u"Changed"_s;
    customers.ToggleAccountType();
    EXPECT_EQ(customers.lbLType, u"Individual"_s);
    EXPECT_EQ(customers.Name, NamePlace::PersonalName);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Changed"_s);
    customers.ToggleAccountType();
    EXPECT_EQ(customers.lbLType, u"Business"_s);
    EXPECT_EQ(customers.AccountDisplayName, u"Corner Grocery"_s)
        << "the caption is that of the record, not of the screen";
}

// Saving

TEST_F(CustomerSelectionTest, BusinessWithoutANameStaysOnTheScreen) {
    LoadThree();
    Text(CustomerText::BusinessName).clear();
    const auto before = folder.Contents();
    user.ExpectMessage(noName);
    customers.MoveTo(Move::Next);
    EXPECT_FALSE(customers.RecordValid);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(customers.Focus, FocusOn::BusinessName);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerSelectionTest, IndividualNeedsFirstAndLastName) {
    LoadThree();
    customers.MoveTo(Move::Next);
    const auto before = folder.Contents();
    Text(CustomerText::FirstName).clear();
    user.ExpectMessage(noPersonalName);
    customers.SaveCustomer();
    EXPECT_FALSE(customers.RecordValid);
    EXPECT_EQ(customers.Focus, FocusOn::FirstName);
    Text(CustomerText::FirstName) = u"Ann"_s;
    Text(CustomerText::LastName).clear();
    user.ExpectMessage(noPersonalName);
    customers.SaveCustomer();
    EXPECT_FALSE(customers.RecordValid);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerSelectionTest, SaveWritesTheWholeRecordInTheUsaStyle) {
    LoadThree();
    Text(CustomerText::AcctNo) = u" 4472 "_s;
    Text(CustomerText::BusinessName) = u" Caf\u00e9 M\u00fcller \u20ac "_s;
    Text(CustomerText::Address1) = u" 9 Elm Street "_s;
    Text(CustomerText::Address2) = u" Floor 2 "_s;
    customers.Fields.cboCity = u" Decatur "_s;
    customers.Fields.cboStates = u"INX"_s;
    Text(CustomerText::PostalCode) = u" 46733 "_s;
    customers.Fields.txtAdd3 = u"not used"_s;
    customers.Fields.txtAdd4 = u"not used"_s;
    Text(CustomerText::Phone) = u"260-555-0111"_s;
    Text(CustomerText::Cell) = u"260-555-0122"_s;
    Text(CustomerText::Email) = u"caf\u00e9@example.org"_s;
    customers.Fields.cboTitle = u"Prof. Dr. Dr."_s;
    Text(CustomerText::FirstName) = u"J\u00fcrgen"_s;
    Text(CustomerText::MiddleInitial) = u"X"_s;
    Text(CustomerText::LastName) = u"\u4e2d M\u00fcller"_s;
    customers.SaveCustomer();
    EXPECT_TRUE(customers.RecordValid);
    const QByteArray expected("4472                "
                              "Caf\xe9 M\xfcller \x80                                "
                              "9 Elm Street                       "
                              "Floor 2                  "
                              "Decatur                  "
                              "Decatur             "
                              "IN"
                              " 46733    "
                              "46733                    "
                              "260-555-0111 "
                              "260-555-0122 "
                              "caf\xe9@example.org              "
                              "Prof. Dr. "
                              "J\xfcrgen         "
                              " "
                              "? M\xfcller                 "
                              "Business  "
                              "\x01\0"
                              "\0\0",
                              328);
    EXPECT_EQ(CustomerOnDisk(1), expected);
    EXPECT_EQ(folder.Read(customerFile).size(), 3 * 328);
}

TEST_F(CustomerSelectionTest, SaveInTheInternationalStyleBlanksTheStateAndKeepsTheZip) {
    LoadThree();
    office.settings.cmdAddress = u"International Style Address"_s;
    customers.TakeAddressStyle();
    customers.Fields.txtAdd3 = u" 10 Downing Street "_s;
    customers.Fields.txtAdd4 = u" London SW1A 2AA "_s;
    customers.Fields.cboCity = u" Decatur "_s;
    Text(CustomerText::PostalCode) = u"62704 "_s;
    customers.SaveCustomer();
    const QByteArray record = CustomerOnDisk(1);
    EXPECT_EQ(record.mid(125, 25), "10 Downing Street        ");
    EXPECT_EQ(record.mid(150, 20), "Decatur             ");
    EXPECT_EQ(record.mid(170, 2), "  ");
    EXPECT_EQ(record.mid(172, 10), "62704     ");
    EXPECT_EQ(record.mid(182, 25), "London SW1A 2AA          ");
    EXPECT_TRUE(customers.cboCity.stringList().contains(u"10 Downing Street"_s));
}

TEST_F(CustomerSelectionTest, NewPersonIsWrittenToAllThreeFilesByteByByte) {
    LoadEmpty();
    EnterPerson();
    customers.Fields.cboCity = u"Decatur"_s;
    customers.Fields.cboStates = u"IL"_s;
    Text(CustomerText::PostalCode) = u"62521"_s;
    customers.SaveCustomer();
    const QByteArray customer("2001                "
                              "                                             "
                              "                                   "
                              "                         "
                              "Decatur                  "
                              "Decatur             "
                              "IL"
                              "62521     "
                              "62521                    "
                              "             "
                              "             "
                              "                              "
                              "          "
                              "Bo             "
                              " "
                              "Cole                     "
                              "Individual"
                              "\1\0"
                              "\0\0",
                              328);
    EXPECT_EQ(folder.Read(customerFile), customer);
    // The buffers of the start of the day.
    EXPECT_EQ(folder.Read(contractFile), QByteArray(386, '\0'));
    EXPECT_EQ(folder.Read(cycleFile), QByteArray(69, '\0'));
}

TEST_F(CustomerSelectionTest, FirstSaveOfTheDayOpensNavigationAndMenus) {
    LoadEmpty();
    EnterPerson();
    customers.SaveCustomer();
    EXPECT_TRUE(customers.IsNavigationEnabled);
    EXPECT_TRUE(customers.mnuDeleteEnabled);
    EXPECT_TRUE(customers.mnuAddEnabled);
    EXPECT_TRUE(customers.mnuAuxEnabled);
}

TEST_F(CustomerSelectionTest, SecondCustomerDoesNotOverwriteTheFirstOne) {
    LoadEmpty();
    EnterPerson();
    customers.AddNewCustomer();
    EXPECT_EQ(customers.CurrentRecord, 2);
    EXPECT_EQ(customers.CustomerCount, 2);
    EnterPerson();
    Text(CustomerText::LastName) = u"Dale"_s;
    customers.SaveCustomer();
    ASSERT_EQ(folder.Read(customerFile).size(), 2 * 328);
    EXPECT_EQ(CustomerOnDisk(1).mid(289, 4), "Cole");
    EXPECT_EQ(CustomerOnDisk(2).mid(289, 4), "Dale");
}

TEST_F(CustomerSelectionTest, NameOf46CharactersIsStoredAsItsFirst45) {
    LoadThree();
    Text(CustomerText::BusinessName) = u"The Very Long Name Of A Corner Grocery And Del"_s;
    ASSERT_EQ(Text(CustomerText::BusinessName).size(), 46);
    customers.SaveCustomer();
    EXPECT_EQ(CustomerOnDisk(1).mid(20, 45), "The Very Long Name Of A Corner Grocery And De");
}

TEST_F(CustomerSelectionTest, AccountStateAndReservedBytesAreCarriedThrough) {
    SampleCustomer odd;
    odd.state16 = QByteArray("\x07\0", 2);
    odd.reserved = QByteArray("\xfe\xff", 2);
    LoadWith({odd});
    customers.SaveCustomer();
    EXPECT_EQ(CustomerOnDisk(1), odd.Bytes());
}

TEST_F(CustomerSelectionTest, SaveKeepsTheContractAndCycleOfTheRecord) {
    LoadThree();
    customers.MoveTo(Move::Next);
    customers.MoveTo(Move::Next);
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(3, 69));
}

TEST_F(CustomerSelectionTest, SecondSaveWithoutAShowPutsTheDefaultsOverTheRecord) {
    LoadThree();
    customers.SaveCustomer();
    EXPECT_EQ(ContractOnDisk(1), QByteArray(386, 'A'));
    customers.SaveCustomer();
    EXPECT_TRUE(HasDefaults(ContractOnDisk(1), CycleOnDisk(1)));
    EXPECT_EQ(ContractOnDisk(1).mid(199, 35), QByteArray(35, 'A'));
    EXPECT_EQ(ContractOnDisk(2), QByteArray(386, 'B'));
    EXPECT_EQ(CycleOnDisk(2), QByteArray(69, 'B'));
}

TEST_F(CustomerSelectionTest, TelephoneBecomesTheAccountNumberWithAMessage) {
    LoadThree();
    Text(CustomerText::AcctNo).clear();
    Text(CustomerText::Phone) = u" 217-555-01 "_s;
    user.ExpectMessage(telephoneIsNumber, telephoneIsNumberTitle);
    customers.SaveCustomer();
    EXPECT_TRUE(customers.RecordValid);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"217-555-01"_s);
    EXPECT_EQ(CustomerOnDisk(1).left(20), "217-555-01          ");
}

TEST_F(CustomerSelectionTest, NoToTheExitQuestionMovesOnWithoutSaving) {
    LoadThree();
    Text(CustomerText::AcctNo).clear();
    Text(CustomerText::Phone).clear();
    Text(CustomerText::Address1) = u"never stored"_s;
    const auto before = folder.Contents();
    user.ExpectMessage(noTelephone, noTelephoneTitle);
    user.ExpectQuestion(exitQuestion, exitTitle, Answer::No);
    customers.MoveTo(Move::Next);
    EXPECT_TRUE(customers.RecordValid);
    EXPECT_FALSE(customers.IsGivenUp);
    EXPECT_EQ(customers.CurrentRecord, 2);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerSelectionTest, NoToTheExitQuestionTakesTheFocusToTheTelephone) {
    LoadThree();
    Text(CustomerText::AcctNo).clear();
    Text(CustomerText::Phone).clear();
    user.ExpectMessage(noTelephone, noTelephoneTitle);
    user.ExpectQuestion(exitQuestion, exitTitle, Answer::No);
    customers.SaveCustomer();
    EXPECT_EQ(customers.Focus, FocusOn::Phone);
}

TEST_F(CustomerSelectionTest, YesToTheExitQuestionEndsTheAction) {
    LoadThree();
    Text(CustomerText::AcctNo).clear();
    Text(CustomerText::Phone).clear();
    const auto before = folder.Contents();
    user.ExpectMessage(noTelephone, noTelephoneTitle);
    user.ExpectQuestion(exitQuestion, exitTitle, Answer::Yes);
    customers.MoveTo(Move::Next);
    EXPECT_TRUE(customers.IsGivenUp);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerSelectionTest, SavedCityJoinsTheListOnce) {
    LoadThree();
    customers.Fields.cboCity = u" Decatur "_s;
    customers.SaveCustomer();
    customers.Fields.cboCity = u"SPRINGFIELD"_s;
    customers.SaveCustomer();
    customers.SaveCustomer();
    EXPECT_EQ(customers.cboCity.stringList(),
              (QStringList{u"Decatur"_s, u"Springfield"_s, u"SPRINGFIELD"_s}));
}

TEST_F(CustomerSelectionTest, SaveOnAFullDiskFailsAndNamesTheFile) {
    LoadThree();
    const auto siblings = std::pair(folder.Read(contractFile), folder.Read(cycleFile));
    customers.MoveTo(Move::Last);
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(600);
        customers.SaveCustomer();
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_TRUE(failure.Sentence().contains(u"Writing record 3 of CustomerData.txt"_s))
        << failure.what();
    EXPECT_EQ(folder.Read(contractFile), siblings.first);
    EXPECT_EQ(folder.Read(cycleFile), siblings.second);
}

TEST_F(CustomerSelectionTest, UnwritableContractFileFailsBehindTheCustomersWrite) {
    LoadThree();
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(contractFile), QFile::ReadOwner));
    DropRootRights(folder);
    Text(CustomerText::Address1) = u"1 New Road"_s;
    const RuntimeFailure failure = FailureOf([&] { customers.SaveCustomer(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_TRUE(failure.Sentence().contains(contractFile)) << failure.what();
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 10), "1 New Road");
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
    EXPECT_EQ(folder.Read(cycleFile), Siblings(3, 69));
}

// Lists

TEST_F(CustomerSelectionTest, AccountsAreListedAlphabeticallyWithTheirRecordNumbers) {
    LoadWith({SampleCustomer{.businessName = "zebra Crossing"}, Person("Lee", "Ann", "2"),
              SampleCustomer{.businessName = "anvil Works"}, Person("Adams", "Bo", "4")});
    EXPECT_EQ(Accounts(),
              (QStringList{u"Adams, Bo"_s, u"anvil Works"_s, u"Lee, Ann"_s, u"zebra Crossing"_s}));
    EXPECT_EQ(customers.cboAccounts.At(0).record, 4);
    EXPECT_EQ(customers.cboAccounts.At(3).record, 1);
}

TEST_F(CustomerSelectionTest, CitiesOfDifferentCaseBothAppear) {
    LoadWith({SampleCustomer{.city = "springfield"}, SampleCustomer{.city = "Decatur"},
              SampleCustomer{.city = "Springfield"}, SampleCustomer{.city = "Decatur"}});
    EXPECT_EQ(customers.cboCity.stringList(),
              (QStringList{u"Decatur"_s, u"springfield"_s, u"Springfield"_s}));
}

TEST_F(CustomerSelectionTest, ListingShowsTheNewAccountThatTheFileLacks) {
    LoadThree();
    customers.AddNewCustomer();
    EXPECT_EQ(Accounts(),
              (QStringList{u"', "_s, u"Anvil Works"_s, u"Corner Grocery"_s, u"Lee, Ann"_s}));
    EXPECT_EQ(customers.cboAccounts.At(0).record, 4);
}

TEST_F(CustomerSelectionTest, ChangedNameKeepsItsOldEntryUntilTheNextListing) {
    LoadThree();
    Text(CustomerText::BusinessName) = u"Zenith"_s;
    customers.MoveTo(Move::Next);
    EXPECT_EQ(Accounts(), (QStringList{u"Anvil Works"_s, u"Corner Grocery"_s, u"Lee, Ann"_s}));
    customers.ListAccounts();
    EXPECT_EQ(Accounts(), (QStringList{u"Anvil Works"_s, u"Lee, Ann"_s, u"Zenith"_s}));
}

TEST_F(CustomerSelectionTest, FileOfMoreThan32767CustomersIsAnOverflow) {
    folder.Write(customerFile, QByteArray(qsizetype(32768) * 328, ' '));
    const RuntimeFailure failure = FailureOf([&] { customers.Load(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(customerFile)) << failure.what();
}

TEST_F(CustomerSelectionTest, AddBehind32767CustomersIsAnOverflowWithTheRecordOnTheScreenSaved) {
    folder.Write(customerFile, SampleCustomer{}.Bytes() + QByteArray(qsizetype(32766) * 328, ' '));
    folder.Write(contractFile, "");
    folder.Write(cycleFile, "");
    customers.Load();
    EXPECT_EQ(customers.cboAccounts.rowCount(), 32767);
    Text(CustomerText::Address1) = u"1 New Road"_s;
    const RuntimeFailure failure = FailureOf([&] { customers.AddNewCustomer(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(customerFile)) << failure.what();
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 35), QByteArray("1 New Road").leftJustified(35, ' '));
    EXPECT_EQ(folder.Read(customerFile).size(), qsizetype(32767) * 328);
}

// Adding

TEST_F(CustomerSelectionTest, AddSavesTheRecordAndPreparesABlankIndividual) {
    LoadThree();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    customers.AddNewCustomer();
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 35), QByteArray("1 New Road").leftJustified(35, ' '));
    EXPECT_EQ(customers.CustomerCount, 4);
    EXPECT_EQ(customers.CurrentRecord, 4);
    EXPECT_TRUE(customers.IsCancelVisible);
    EXPECT_EQ(customers.lbLType, u"Individual"_s);
    EXPECT_EQ(Text(CustomerText::AcctNo), QString());
    EXPECT_EQ(Text(CustomerText::LastName), QString());
    EXPECT_EQ(Text(CustomerText::Phone), QString());
    EXPECT_EQ(customers.Fields.cboCity, u"Peoria"_s);
    EXPECT_EQ(customers.Fields.cboStates, u"IL"_s);
    EXPECT_EQ(Text(CustomerText::PostalCode), u"61602"_s);
    EXPECT_FALSE(customers.mnuAddEnabled);
    EXPECT_FALSE(customers.mnuAuxEnabled);
    EXPECT_FALSE(customers.mnuDeleteEnabled);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(folder.Read(customerFile).size(), 3 * 328) << "not on disk before it is saved";
}

TEST_F(CustomerSelectionTest, NewAccountIsWrittenBehindTheLastOneWithItsDefaults) {
    LoadThree();
    customers.AddNewCustomer();
    EnterPerson();
    customers.MoveTo(Move::Next);
    ASSERT_EQ(folder.Read(customerFile).size(), 4 * 328);
    const QByteArray customer("2001                "
                              "                                             "
                              "                                   "
                              "                         "
                              "Peoria                   "
                              "Peoria              "
                              "IL"
                              "61602     "
                              "61602                    "
                              "             "
                              "             "
                              "                              "
                              "          "
                              "Bo             "
                              " "
                              "Cole                     "
                              "Individual"
                              "\x01\0"
                              "\0\0",
                              328);
    EXPECT_EQ(CustomerOnDisk(4), customer);
    EXPECT_TRUE(HasDefaults(ContractOnDisk(4), CycleOnDisk(4)));
    EXPECT_EQ(ContractOnDisk(4).size(), 386);
    EXPECT_EQ(CycleOnDisk(4).size(), 69);
    EXPECT_EQ(customers.CurrentRecord, 1) << "behind the last one comes the first";
    EXPECT_TRUE(customers.mnuAddEnabled);
    EXPECT_TRUE(customers.mnuDeleteEnabled);
}

TEST_F(CustomerSelectionTest, AddThatCannotSaveStopsButResetsDefaultsAndMenus) {
    LoadThree();
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(noName);
    customers.AddNewCustomer();
    EXPECT_EQ(customers.CustomerCount, 3);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_TRUE(customers.IsCancelVisible);
    EXPECT_FALSE(customers.mnuAddEnabled);
    EXPECT_FALSE(customers.mnuDeleteEnabled);
    Text(CustomerText::BusinessName) = u"Corner Grocery"_s;
    customers.SaveCustomer();
    EXPECT_TRUE(HasDefaults(ContractOnDisk(1), CycleOnDisk(1)));
}

TEST_F(CustomerSelectionTest, CancelGoesToTheLastRecordNotToTheOneBefore) {
    LoadThree();
    customers.AddNewCustomer();
    customers.CancelAddNew();
    EXPECT_FALSE(customers.IsCancelVisible);
    EXPECT_EQ(customers.CustomerCount, 3);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"77"_s);
    EXPECT_EQ(customers.cboAccounts.rowCount(), 4) << "the list is not refreshed";
}

TEST_F(CustomerSelectionTest, NextAddDoesNotOverwriteARecordOutOfReach) {
    LoadThree();
    customers.AddNewCustomer();
    EnterPerson();
    customers.MoveTo(Move::First);
    customers.CancelAddNew();
    ASSERT_EQ(customers.CustomerCount, 3);
    const QByteArray outOfReach = CustomerOnDisk(4);
    customers.AddNewCustomer();
    EXPECT_EQ(customers.CurrentRecord, 5);
    EnterPerson();
    Text(CustomerText::AcctNo) = u"2002"_s;
    customers.MoveTo(Move::First);
    EXPECT_EQ(CustomerOnDisk(5).left(4), "2002");
    EXPECT_EQ(CustomerOnDisk(4), outOfReach);
}

TEST_F(CustomerSelectionTest, SavedAddLeavesCancelVisibleAndALaterCancelHidesTheNewestRecord) {
    LoadThree();
    customers.AddNewCustomer();
    EnterPerson();
    customers.MoveTo(Move::First);
    EXPECT_TRUE(customers.IsCancelVisible);
    EXPECT_TRUE(customers.Leave(false));
    EXPECT_FALSE(customers.IsCancelVisible);
    EXPECT_EQ(customers.CustomerCount, 3);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(folder.Read(customerFile).size(), 4 * 328) << "nothing leaves the file";
    customers.MoveTo(Move::Last);
    EXPECT_EQ(customers.CurrentRecord, 3);
    customers.Load();
    EXPECT_EQ(customers.CustomerCount, 4);
    customers.MoveTo(Move::Last);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"2001"_s);
}

TEST_F(CustomerSelectionTest, FirstCustomerCanBeEnteredAfterACancelledAdd) {
    LoadEmpty();
    user.ExpectMessage(noPersonalName);
    customers.AddNewCustomer();
    customers.CancelAddNew();
    EnterPerson();
    EXPECT_TRUE(customers.Leave(false));
    EXPECT_EQ(folder.Read(customerFile).size(), 328);
    EXPECT_EQ(CustomerOnDisk(1).left(4), "2001");
    EXPECT_EQ(customers.CustomerCount, 1);
    EXPECT_EQ(customers.CurrentRecord, 1);
}

// Deleting

TEST_F(CustomerSelectionTest, NoToTheDeletionChangesNothing) {
    LoadThree();
    const auto before = folder.Contents();
    user.ExpectQuestion(deleteQuestion, {}, Answer::No);
    customers.DeleteCustomer();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
}

TEST_F(CustomerSelectionTest, DeletingShowsTheFirstRecordAndRefreshesTheList) {
    LoadThree();
    customers.MoveTo(Move::Next);
    user.ExpectQuestion(deleteQuestion, {}, Answer::Yes);
    customers.DeleteCustomer();
    EXPECT_EQ(customers.CustomerCount, 2);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"4471"_s);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(Accounts(), (QStringList{u"Anvil Works"_s, u"Corner Grocery"_s}));
    EXPECT_EQ(folder.Read(contractFile), QByteArray(386, 'A') + QByteArray(386, 'C'));
}

TEST_F(CustomerSelectionTest, DeletingTheOnlyCustomerLeavesACountOfOneAndABlankRecord) {
    LoadWith({SampleCustomer{}});
    user.ExpectQuestion(deleteQuestion, {}, Answer::Yes);
    customers.DeleteCustomer();
    EXPECT_EQ(customers.CustomerCount, 1);
    EXPECT_EQ(folder.Read(customerFile), "");
    for (const QString& text : customers.Fields.txtCustomer)
        EXPECT_EQ(text, QString());
    EXPECT_EQ(customers.Fields.cboCity, QString());
}

TEST_F(CustomerSelectionTest, NumberOfADeletedCustomerCanBeUsedAgain) {
    LoadThree();
    customers.MoveTo(Move::Next);
    user.ExpectQuestion(deleteQuestion, {}, Answer::Yes);
    customers.DeleteCustomer();
    Text(CustomerText::AcctNo) = u"1002"_s;
    customers.AcctNo_LostFocus();
    EXPECT_EQ(Text(CustomerText::AcctNo), u"1002"_s);
}

// Moving

TEST_F(CustomerSelectionTest, MovesOneByOneAndWrapsOnlyForward) {
    LoadThree();
    Text(CustomerText::MiddleInitial) = u"Q"_s;
    customers.MoveTo(Move::Previous);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"4471"_s);
    EXPECT_EQ(Text(CustomerText::MiddleInitial), QString()) << "shown anew";
    customers.MoveTo(Move::Next);
    EXPECT_EQ(customers.CurrentRecord, 2);
    customers.MoveTo(Move::Last);
    EXPECT_EQ(customers.CurrentRecord, 3);
    customers.MoveTo(Move::Next);
    EXPECT_EQ(customers.CurrentRecord, 1);
    customers.MoveTo(Move::Last);
    customers.MoveTo(Move::Previous);
    EXPECT_EQ(customers.CurrentRecord, 2);
    customers.MoveTo(Move::First);
    EXPECT_EQ(customers.CurrentRecord, 1);
}

TEST_F(CustomerSelectionTest, QuartersOfTenRecordsLandOnTwoFourAndSix) {
    LoadMany(10);
    customers.MoveTo(Move::Quarter);
    EXPECT_EQ(customers.CurrentRecord, 2);
    customers.MoveTo(Move::Half);
    EXPECT_EQ(customers.CurrentRecord, 4);
    customers.MoveTo(Move::ThreeQuarters);
    EXPECT_EQ(customers.CurrentRecord, 6);
    EXPECT_EQ(Text(CustomerText::AcctNo), u"A6"_s);
}

TEST_F(CustomerSelectionTest, QuartersBelowFourCustomersOnlySave) {
    LoadThree();
    customers.MoveTo(Move::Next);
    for (const Move move : {Move::Quarter, Move::Half, Move::ThreeQuarters}) {
        Text(CustomerText::Address1) = u"Jump %1"_s.arg(int(move));
        Text(CustomerText::MiddleInitial) = u"Q"_s;
        customers.MoveTo(move);
        EXPECT_EQ(Text(CustomerText::MiddleInitial), u"Q"_s) << "not shown anew";
        EXPECT_EQ(customers.CurrentRecord, 2);
        EXPECT_EQ(CustomerOnDisk(2).mid(65, 6), "Jump " + QByteArray::number(int(move)));
        EXPECT_EQ(Text(CustomerText::Address1), u"Jump %1"_s.arg(int(move)));
    }
}

TEST_F(CustomerSelectionTest, QuartersOfFourCustomersLandOnOneTwoAndThree) {
    LoadMany(4);
    customers.MoveTo(Move::Last);
    for (const auto& [move, record] :
         {std::pair{Move::Quarter, 1}, {Move::Half, 2}, {Move::ThreeQuarters, 3}}) {
        customers.MoveTo(move);
        EXPECT_EQ(customers.CurrentRecord, record);
    }
}

TEST_F(CustomerSelectionTest, MovingOnSavesTheRecord) {
    LoadThree();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    customers.MoveTo(Move::Next);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 35), QByteArray("1 New Road").leftJustified(35, ' '));
}

// The list of names

TEST_F(CustomerSelectionTest, NameListTakesThePlaceOfTheName) {
    LoadThree();
    customers.FindInNameList();
    EXPECT_EQ(customers.Name, NamePlace::AccountList);
    EXPECT_EQ(customers.Focus, FocusOn::AccountList);
    customers.ShowRecordArea();
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
}

TEST_F(CustomerSelectionTest, RecordComesBackFromTheNameListByTheTypeOnTheScreen) {
    LoadThree();
    customers.ToggleAccountType();
    customers.FindInNameList();
    customers.Focus = FocusOn::Nothing;
    customers.fraAux.clear();
    customers.ShowRecordArea();
    EXPECT_EQ(customers.Name, NamePlace::PersonalName);
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(customers.fraAux, u"Data for "_s) << "no personal name is in the record";
}

TEST_F(CustomerSelectionTest, CaptionsBehindAListAreThoseOfTheRecordReadLast) {
    // One buffer serves every reader, and the caption is taken from it. It is meant so.
    LoadThree();
    office.customerSearch.mnuPrint_Click();
    customers.ShowRecordArea();
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Corner Grocery"_s);
    EXPECT_EQ(customers.fraAux, u"Data for Anvil Works"_s);
}

TEST_F(CustomerSelectionTest, EmptyNameListDoesNotShow) {
    folder.Write(customerFile, {});
    customers.Load();
    customers.FindInNameList();
    EXPECT_NE(customers.Name, NamePlace::AccountList);
}

TEST_F(CustomerSelectionTest, ChosenNameShowsItsRecordAndSavesTheOneBefore) {
    LoadThree();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    customers.FindInNameList();
    customers.cboAccounts_Choose(0);
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(Text(CustomerText::BusinessName), u"Anvil Works"_s);
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 35), QByteArray("1 New Road").leftJustified(35, ' '));
}

TEST_F(CustomerSelectionTest, RecordThatCannotBeSavedIsNotLeftForAChosenName) {
    LoadThree();
    Text(CustomerText::BusinessName).clear();
    customers.FindInNameList();
    user.ExpectMessage(noName);
    customers.cboAccounts_Choose(2);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
}

TEST_F(CustomerSelectionTest, TypedNameIsFoundWithoutRegardToCaseAndBlanks) {
    LoadThree();
    customers.FindInNameList();
    customers.cboAccounts_LostFocus(u" LEE, ann "_s);
    EXPECT_EQ(customers.CurrentRecord, 2);
}

TEST_F(CustomerSelectionTest, BlanksOfAListedNameDoNotCountEither) {
    // Without a first name the entry is "Lee, ".
    LoadWith({SampleCustomer{}, Person("Lee", "", "1002")});
    customers.FindInNameList();
    customers.cboAccounts_LostFocus(u"lee,"_s);
    EXPECT_EQ(customers.CurrentRecord, 2);
}

TEST_F(CustomerSelectionTest, SharpSIsNoDoubleS) {
    LoadWith({SampleCustomer{}, SampleCustomer{.account = "1", .businessName = "Strasse"},
              SampleCustomer{.account = "2",
                             .businessName = "Stra\xdf"
                                             "e"}});
    customers.FindInNameList();
    customers.cboAccounts_LostFocus(u"stra\u00dfe"_s);
    EXPECT_EQ(customers.CurrentRecord, 3);
    customers.FindInNameList();
    customers.cboAccounts_LostFocus(u"STRASSE"_s);
    EXPECT_EQ(customers.CurrentRecord, 2);
}

TEST_F(CustomerSelectionTest, NameThatNoRecordCanHoldIsNotFoundAsAQuestionMark) {
    LoadWith({SampleCustomer{.account = "1", .businessName = "Corner"},
              SampleCustomer{.account = "2", .businessName = "?"}});
    customers.FindInNameList();
    user.ExpectMessage(u"Name Not Found\nFirst Accont is Displayed"_s);
    customers.cboAccounts_LostFocus(u"\u4e2d"_s);
    EXPECT_EQ(customers.CurrentRecord, 1);
}

TEST_F(CustomerSelectionTest, UnknownNameShowsTheFirstRecord) {
    LoadThree();
    customers.MoveTo(Move::Last);
    customers.FindInNameList();
    user.ExpectMessage(u"Name Not Found\nFirst Accont is Displayed"_s);
    customers.cboAccounts_LostFocus(u"Nobody"_s);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(customers.Name, NamePlace::BusinessName);
}

TEST_F(CustomerSelectionTest, LeavingTheListWithoutANameDoesNothing) {
    LoadThree();
    customers.MoveTo(Move::Last);
    customers.FindInNameList();
    customers.cboAccounts_LostFocus(QString());
    EXPECT_EQ(customers.CurrentRecord, 3);
    EXPECT_EQ(customers.Name, NamePlace::AccountList);
}

// Leaving a field

TEST_F(CustomerSelectionTest, DuplicateNumberAnsweredYesEmptiesTheFieldAndNothingInTheFile) {
    LoadThree();
    const auto before = folder.Contents();
    Text(CustomerText::AcctNo) = u"77"_s;
    user.ExpectQuestion(duplicateQuestion, duplicateTitle, Answer::Yes);
    customers.AcctNo_LostFocus();
    EXPECT_EQ(Text(CustomerText::AcctNo), QString());
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerSelectionTest, DuplicateNumberAnsweredNoIsSaved) {
    LoadThree();
    Text(CustomerText::AcctNo) = u"77"_s;
    user.ExpectQuestion(duplicateQuestion, duplicateTitle, Answer::No);
    customers.AcctNo_LostFocus();
    EXPECT_EQ(Text(CustomerText::AcctNo), u"77"_s);
    customers.SaveCustomer();
    EXPECT_EQ(CustomerOnDisk(1).left(20), "77                  ");
}

TEST_F(CustomerSelectionTest, OwnNumberAndANewNumberAreNoDuplicates) {
    LoadThree();
    customers.AcctNo_LostFocus();
    Text(CustomerText::AcctNo) = u"9999"_s;
    customers.AcctNo_LostFocus();
    EXPECT_EQ(Text(CustomerText::AcctNo), u"9999"_s);
}

TEST_F(CustomerSelectionTest, PlaceholderNumberIsReplacedByTheTelephone) {
    LoadThree();
    Text(CustomerText::AcctNo) = u"Enter Account No"_s;
    customers.Focus = FocusOn::Nothing;
    customers.AcctNo_LostFocus();
    EXPECT_EQ(Text(CustomerText::AcctNo), u"217-555-0199"_s);
    EXPECT_EQ(customers.Focus, FocusOn::Nothing);
    Text(CustomerText::AcctNo) = u"Enter Account No"_s;
    Text(CustomerText::Phone).clear();
    customers.AcctNo_LostFocus();
    EXPECT_EQ(Text(CustomerText::AcctNo), QString());
    EXPECT_EQ(customers.Focus, FocusOn::AcctNo);
}

TEST_F(CustomerSelectionTest, CheckOfTheFirstCustomersNumberMakesNoFile) {
    LoadEmpty();
    const QStringList before = folder.Everything();
    Text(CustomerText::AcctNo) = u"1"_s;
    customers.AcctNo_LostFocus();
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(CustomerSelectionTest, NameOfOneCharacterIsToldWithABeep) {
    LoadThree();
    Text(CustomerText::BusinessName) = u"X"_s;
    customers.Focus = FocusOn::Nothing;
    user.ExpectMessage(shortName, shortNameTitle);
    customers.BusinessName_LostFocus();
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(customers.Focus, FocusOn::Nothing) << "the focus is not forced back";
    Text(CustomerText::BusinessName) = u"Xy"_s;
    customers.BusinessName_LostFocus();
}

TEST_F(CustomerSelectionTest, ShortNameWithoutSoundsDoesNotBeep) {
    LoadThree();
    office.settings.AlarmOn = false;
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(shortName, shortNameTitle);
    customers.BusinessName_LostFocus();
    EXPECT_EQ(user.Beeps, 0);
}

// Leaving the screen

TEST_F(CustomerSelectionTest, SelectHandsOverABusiness) {
    LoadThree();
    Text(CustomerText::BusinessName) = u" Corner Grocery "_s;
    customers.Fields.cboStates = u" IL "_s;
    EXPECT_TRUE(customers.Leave(true));
    const DeliveryCustomer& handedOver = office.deliveryCustomer;
    EXPECT_EQ(handedOver.AccountNumber, u"4471"_s);
    EXPECT_EQ(handedOver.Name, u" Corner Grocery "_s);
    EXPECT_EQ(handedOver.Address1, u"12 Mill Road"_s);
    EXPECT_EQ(handedOver.Address2, u"Unit 3"_s);
    EXPECT_EQ(handedOver.City, u"Springfield"_s);
    EXPECT_EQ(handedOver.State, u"IL"_s);
    EXPECT_EQ(handedOver.PostalCode, u"62704"_s);
    EXPECT_EQ(handedOver.Telephone, u"217-555-0199"_s);
}

TEST_F(CustomerSelectionTest, SelectHandsOverAPersonWithTheFourPartsAndThreeBlanks) {
    LoadThree();
    customers.MoveTo(Move::Next);
    EXPECT_TRUE(customers.Leave(true));
    EXPECT_EQ(office.deliveryCustomer.Name, u"Mr/Mrs Ann  Lee"_s);
    Text(CustomerText::MiddleInitial) = u"B"_s;
    EXPECT_TRUE(customers.Leave(true));
    EXPECT_EQ(office.deliveryCustomer.Name, u"Mr/Mrs Ann B Lee"_s);
}

TEST_F(CustomerSelectionTest, SelectInTheInternationalStyleHandsOverAddressThreeAndFour) {
    LoadThree();
    office.settings.cmdAddress = u"International Style Address"_s;
    customers.TakeAddressStyle();
    customers.Fields.txtAdd3 = u"London"_s;
    customers.Fields.txtAdd4 = u"SW1A 2AA"_s;
    office.deliveryCustomer.State = u"XX"_s;
    EXPECT_TRUE(customers.Leave(true));
    EXPECT_EQ(office.deliveryCustomer.City, u"London"_s);
    EXPECT_EQ(office.deliveryCustomer.State, QString());
    EXPECT_EQ(office.deliveryCustomer.PostalCode, u"SW1A 2AA"_s);
}

TEST_F(CustomerSelectionTest, SelectDuringAnAddCancelsItAndHandsOverTheLastRecord) {
    LoadThree();
    customers.AddNewCustomer();
    EnterPerson();
    EXPECT_TRUE(customers.Leave(true));
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, u"77"_s);
    EXPECT_EQ(office.deliveryCustomer.Name, u"Anvil Works"_s);
    EXPECT_EQ(folder.Read(customerFile).size(), 3 * 328);
}

TEST_F(CustomerSelectionTest, MenuHandsNothingOver) {
    LoadThree();
    EXPECT_TRUE(customers.Leave(false));
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, QString());
}

TEST_F(CustomerSelectionTest, InvalidRecordKeepsTheOperatorOnTheScreen) {
    LoadThree();
    Text(CustomerText::BusinessName).clear();
    user.ExpectMessage(noName);
    EXPECT_FALSE(customers.Leave(true));
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, QString());
}

// What a mistake in the order would cost.

TEST_F(CustomerSelectionTest, DeleteRewritesTheCycleFileBeforeTheContractFile) {
    LoadThree();
    folder.Remove(u"ContractInfo.txt"_s);
    folder.MakeFolder(u"ContractInfo.txt"_s);
    user.ExpectQuestion(u"Delete this Customer"_s, {}, Answer::Yes);
    FailureOf([this] { customers.DeleteCustomer(); });
    EXPECT_EQ(folder.Read(customerFile).size(), 2 * 328);
    EXPECT_EQ(folder.Read(cycleFile), Siblings(3, 69).mid(69));
}

TEST_F(CustomerSelectionTest, NameThatIsNotFoundSavesTheRecordBeforeTheFirstIsShown) {
    LoadThree();
    customers.MoveTo(Move::Next);
    customers.FindInNameList();
    Text(CustomerText::Address1) = u"1 New Road"_s;
    user.ExpectMessage(u"Name Not Found\nFirst Accont is Displayed"_s);
    customers.cboAccounts_LostFocus(u"Nobody"_s);
    EXPECT_EQ(customers.CurrentRecord, 1);
    EXPECT_EQ(CustomerOnDisk(2).mid(65, 10), "1 New Road");
}

TEST_F(CustomerSelectionTest, SelectAfterASavedAddHandsOverTheLastRecordInReach) {
    LoadThree();
    customers.AddNewCustomer();
    EnterPerson();
    customers.MoveTo(Move::First);
    EXPECT_TRUE(customers.Leave(true));
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, u"77"_s);
    EXPECT_EQ(customers.CustomerCount, 3);
    EXPECT_EQ(folder.Read(customerFile).size(), 4 * 328);
}

TEST_F(CustomerSelectionTest, RecordOutOfReachSurvivesTheDeleteOfAnother) {
    LoadThree();
    customers.AddNewCustomer();
    EnterPerson();
    customers.MoveTo(Move::First);
    customers.CancelAddNew();
    const QByteArray outOfReach = CustomerOnDisk(4);
    user.ExpectQuestion(u"Delete this Customer"_s, {}, Answer::Yes);
    customers.DeleteCustomer();
    EXPECT_EQ(folder.Read(customerFile).size(), 3 * 328);
    EXPECT_EQ(CustomerOnDisk(3), outOfReach);
}

TEST_F(CustomerSelectionTest, ReservedBytesOfANewAccountAreThoseOfTheRecordReadLast) {
    SampleCustomer last;
    last.account = "99";
    last.reserved = QByteArray("\5\6", 2);
    LoadWith({SampleCustomer{}, last});
    customers.MoveTo(Move::Last);
    customers.AddNewCustomer();
    EnterPerson();
    customers.MoveTo(Move::First);
    EXPECT_EQ(CustomerOnDisk(3).right(2), QByteArray("\5\6", 2));
}
