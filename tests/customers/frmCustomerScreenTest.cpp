#include "customers/CustomerScreen.h"
#include "platform/WindowLayout.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QSettings>
#include <QSlider>
#include <QToolButton>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

TEST_F(CustomerScreen, ControlsCarryTheirCaptionsAndToolTips) {
    OpenThree();
    EXPECT_EQ(screens.Find(screen)->windowTitle(), u"Customer Selection       "_s);
    const std::pair<QString, QString> captions[] = {
        {u"cmdCustomer(0)"_s, u"&Menu"_s},
        {u"cmdCustomer(1)"_s, u"&Select this Account Start Routine"_s},
        {u"cmdCustomer(13)"_s, u"Cancel Add &New"_s},
        {u"cmdNew"_s, u"Add New Customer"_s},
        {u"cmdAcctType"_s, u"Toggle Account Type"_s},
        {u"Command1(0)"_s, u"&Search by Criteria,such as Street Address"_s},
        {u"Command1(1)"_s, u"&Find Account in Name List Alphbetically"_s},
        {u"Command1(2)"_s, u"Select from &Account List"_s},
        {u"Command1(3)"_s, u"&Locate Account in Name List "_s},
        {u"cmdNav(9)"_s, u"Auto Advance Off"_s}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(Button(name)->text(), caption);
    const std::tuple<int, QString, QString> moves[] = {
        {0, u"|<<"_s, u"Selects 1st Customer Record"_s},
        {1, u"<"_s, u"Selects Previous Customer Record"_s},
        {2, u">"_s, u"Selects Next Customer Record"_s},
        {3, u">>|"_s, u"Selects Last Customer Record"_s},
        {4, u">"_s, u"Goes  1/4 into Customer Records"_s},
        {5, u">>>"_s, u"Goes 3/4 into Customer Record"_s},
        {6, u">>"_s, u"Goes 1/2 into Customer Records"_s}};
    for (const auto& [index, caption, tip] : moves) {
        EXPECT_EQ(Button(u"cmdNav(%1)"_s.arg(index))->text(), caption);
        EXPECT_EQ(Button(u"cmdNav(%1)"_s.arg(index))->toolTip(), tip);
    }
    EXPECT_EQ(Control(u"Image1(1)"_s)->toolTip(), u"Call Selected Account"_s);
    EXPECT_EQ(Item(u"mnuAdd"_s)->text(), u"Add a New Customer"_s);
    EXPECT_EQ(Item(u"mnuDelete"_s)->text(), u"DELETE This customer"_s);
    EXPECT_EQ(Item(u"mnuPrint"_s)->text(), u"Print Customers"_s);
    EXPECT_EQ(Item(u"mnuAux"_s)->text(), u"Toggle Data Window"_s);
    EXPECT_EQ(Find<QLabel>(screen, u"Label2(35)"_s)->text(), u"Slower"_s);
    EXPECT_EQ(Find<QLabel>(screen, u"Label2(36)"_s)->text(), u"Faster"_s);
    EXPECT_EQ(Find<QSlider>(screen, u"Slider1"_s)->minimum(), 250);
    EXPECT_EQ(Find<QSlider>(screen, u"Slider1"_s)->maximum(), 5000);
    const QComboBox* titles = Combo(u"cboTitle"_s);
    ASSERT_EQ(titles->count(), 5);
    EXPECT_EQ(titles->itemText(0), u"Mr/Mrs"_s);
    EXPECT_EQ(titles->itemText(4), u"Miss"_s);
}

TEST_F(CustomerScreen, OpensOnTheFirstCustomerWithTheFocusInTheNumber) {
    OpenThree();
    EXPECT_EQ(Shown(0), u"4471"_s);
    EXPECT_EQ(Shown(1), u"Corner Grocery"_s);
    EXPECT_EQ(Combo(u"cboCity"_s)->currentText(), u"Springfield"_s);
    EXPECT_EQ(Combo(u"cboStates"_s)->currentText(), u"IL"_s);
    EXPECT_EQ(Find<QLabel>(screen, u"lbLType"_s)->text(), u"Business"_s);
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
    EXPECT_EQ(Where(), u"Corner Grocery  \u00b7  Customer 1 of 3"_s);
    EXPECT_TRUE(Text(1)->isVisible());
    for (const QString& name :
         {u"cboTitle"_s, u"txtCustomer(8)"_s, u"txtCustomer(9)"_s, u"txtCustomer(10)"_s,
          u"cboAccounts"_s, u"cmdCustomer(13)"_s, u"fraIntAddress"_s})
        EXPECT_FALSE(Control(name)->isVisible()) << name.toStdString();
}

TEST_F(CustomerScreen, EmptyFileOpensForThePersonOfTheFirstRecord) {
    OpenEmpty();
    user.ExpectNothingLeft();
    EXPECT_EQ(Find<QLabel>(screen, u"lbLType"_s)->text(), u"Individual"_s);
    EXPECT_TRUE(Text(8)->isVisible());
    EXPECT_FALSE(Text(1)->isVisible());
    for (int index = 0; index <= 6; ++index)
        EXPECT_FALSE(Button(u"cmdNav(%1)"_s.arg(index))->isEnabled()) << index;
    for (int index = 0; index <= 2; ++index)
        EXPECT_FALSE(Button(u"Command1(%1)"_s.arg(index))->isEnabled()) << index;
    EXPECT_FALSE(Item(u"mnuDelete"_s)->isEnabled());
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
    EXPECT_EQ(Where(), QString());
}

TEST_F(CustomerScreen, FirstCustomerIsTypedAndKeptByLeavingForTheMenu) {
    OpenEmpty();
    Enter(0, u"2001"_s);
    Enter(8, u"Bo"_s);
    Enter(10, u"Cole"_s);
    Click(screen, u"cmdCustomer(0)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_FALSE(IsShown(screen));
    ASSERT_EQ(folder.Read(customerFile).size(), 328);
    EXPECT_EQ(CustomerOnDisk(1).left(20), "2001                ");
    EXPECT_EQ(CustomerOnDisk(1).mid(314, 10), "Individual");
    EXPECT_EQ(folder.Read(contractFile).size(), 386);
    EXPECT_EQ(folder.Read(cycleFile).size(), 69);
}

TEST_F(CustomerScreen, PersonShowsThePartsOfHisName) {
    OpenThree();
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_EQ(Shown(0), u"1002"_s);
    EXPECT_EQ(Combo(u"cboTitle"_s)->currentText(), u"Mr/Mrs"_s);
    EXPECT_EQ(Shown(8), u"Ann"_s);
    EXPECT_EQ(Shown(10), u"Lee"_s);
    EXPECT_FALSE(Text(1)->isVisible());
    EXPECT_TRUE(Text(10)->isVisible());
    EXPECT_EQ(Focused(), u"cmdCustomer(1)"_s);
    EXPECT_EQ(Where(), u"Mr/Mrs Ann Lee  \u00b7  Customer 2 of 3"_s);
}

TEST_F(CustomerScreen, LongFullNameOfAPersonIsKeptWholeThoughLessCanBeTyped) {
    WriteCustomers({Person("Featherstonehaugh-Cholmo", "Bartholomew-Jam", "1", "Mr/Mrs")});
    Open(2);
    EXPECT_EQ(CustomerOnDisk(1).mid(20, 45), QByteArray(45, ' '));
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_EQ(CustomerOnDisk(1).mid(20, 45), "Mr/Mrs Bartholomew-Jam Featherstonehaugh-Chol");
}

TEST_F(CustomerScreen, TypedTextStopsAtItsLimit) {
    OpenThree();
    const std::pair<int, int> limits[] = {{0, 20}, {1, 30}, {2, 35}, {3, 25},
                                          {5, 10}, {6, 12}, {7, 30}, {11, 12}};
    for (const auto& [index, limit] : limits) {
        Enter(index, QString(50, u'7'));
        EXPECT_EQ(Shown(index), QString(limit, u'7')) << index;
    }
    Click(screen, u"cmdAcctType"_s);
    for (const auto& [index, limit] : {std::pair(8, 15), std::pair(9, 1), std::pair(10, 25)}) {
        Enter(index, QString(50, u'a'));
        EXPECT_EQ(Shown(index), QString(limit, u'a')) << index;
    }
}

TEST_F(CustomerScreen, PastedTextStopsAtItsLimit) {
    OpenThree();
    QApplication::clipboard()->setText(QString(50, u'7'));
    for (const auto& [index, limit] : {std::pair(0, 20), std::pair(2, 35), std::pair(6, 12)}) {
        Text(index)->setFocus();
        Text(index)->selectAll();
        QTest::keyClick(Text(index), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Shown(index), QString(limit, u'7')) << index;
    }
}

TEST_F(CustomerScreen, ForbiddenCharactersStayOutOfNumberAndTelephone) {
    OpenThree();
    for (const int index : {0, 6}) {
        Text(index)->clear();
        Text(index)->setFocus();
        Type(Text(index), u"A"_s);
        user.ExpectMessage(u"This character, (/) is invalid for this field"_s,
                           u"Invalid Key entry"_s);
        Type(Text(index), u"/"_s);
        EXPECT_EQ(Shown(index), u"A"_s) << index;
    }
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(CustomerScreen, FirstKeyClearsThePlaceholderName) {
    OpenThree();
    Text(1)->setText(u"Enter Name"_s);
    Text(1)->setFocus();
    Type(Text(1), u"Mill"_s);
    EXPECT_EQ(Shown(1), u"Mill"_s);
}

TEST_F(CustomerScreen, CaretGoesBehindAProposedAreaCodeAndExchange) {
    OpenThree();
    Text(6)->setText(u"309-555-"_s);
    Text(3)->setFocus();
    Text(6)->setFocus(Qt::TabFocusReason);
    Type(Text(6), u"0100"_s);
    EXPECT_EQ(Shown(6), u"309-555-0100"_s);
}

TEST_F(CustomerScreen, CaretGoesBehindAProposedAreaCodeAfterAClickToo) {
    OpenThree();
    Text(6)->setText(u"309-555-"_s);
    QTest::mouseClick(Text(6), Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
    QTest::qWait(1);
    EXPECT_EQ(Text(6)->cursorPosition(), 8);
    Text(3)->setFocus();
    Text(6)->setText(u"309-5556"_s + u"7"_s);
    QTest::mouseClick(Text(6), Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
    QTest::qWait(1);
    EXPECT_LT(Text(6)->cursorPosition(), 9) << "not exactly eight characters";
}

TEST_F(CustomerScreen, WheelAndPageKeysChooseNoAccount) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    accounts->setFocus();
    const QString before = Shown(0);
    const QPointF place(5, 5);
    QWheelEvent wheel(place, accounts->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(accounts, &wheel);
    EXPECT_EQ(Shown(0), before);
    Press(accounts, Qt::Key_PageDown);
    EXPECT_EQ(Shown(0), before);
}

TEST_F(CustomerScreen, FailedValidationBringsTheNameBackBeforeTheList) {
    OpenThree();
    Text(1)->clear();
    Click(screen, u"Command1(1)"_s);
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_TRUE(Text(1)->isVisible());
    EXPECT_EQ(screens.Find(screen)->focusWidget(), Text(1));
}

TEST_F(CustomerScreen, NumberIsCheckedWhenTheOperatorLeavesItsField) {
    OpenThree();
    Enter(0, u"77"_s);
    user.ExpectQuestion(
        u"The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number"_s,
        u"Duplicate Account Number"_s, Answer::Yes);
    Press(Text(0), Qt::Key_Tab);
    EXPECT_EQ(Shown(0), QString());
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
    Type(Text(0), u"78"_s);
    Press(Text(0), Qt::Key_Tab);
    EXPECT_EQ(Shown(0), u"78"_s);
    EXPECT_EQ(Focused(), u"txtCustomer(1)"_s);
}

TEST_F(CustomerScreen, NumberIsCheckedBeforeAButtonThatIsPressedByItsLetter) {
    OpenThree();
    Enter(0, u"77"_s);
    user.ExpectQuestion(
        u"The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number"_s,
        u"Duplicate Account Number"_s, Answer::No);
    QTest::keyClick(screens.Find(screen), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsShown(ScreenName::frmStartup); }));
    EXPECT_EQ(CustomerOnDisk(1).left(20), "77                  ");
}

TEST_F(CustomerScreen, ButtonThatAMessageHasLeftDownComesUp) {
    OpenThree();
    Enter(0, u"77"_s);
    user.ExpectQuestion(
        u"The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number"_s,
        u"Duplicate Account Number"_s, Answer::Yes);
    // As when the message takes the release of the mouse.
    Button(u"cmdNav(2)"_s)->setDown(true);
    Press(Text(0), Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Button(u"cmdNav(2)"_s)->isDown(); }));
    EXPECT_EQ(Shown(1), u"Corner Grocery"_s);
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
}

TEST_F(CustomerScreen, ShortNameIsToldWhenItsFieldIsLeft) {
    OpenThree();
    Enter(1, u"X"_s);
    user.ExpectMessage(u"The Name Field Must be at least 2 Characters\nThis is okay if Cancelling "
                       u"a New Entry\nClick Cancel AddNew Again"_s,
                       u"No Name Entered"_s);
    Press(Text(1), Qt::Key_Tab);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Focused(), u"txtCustomer(2)"_s);
}

TEST_F(CustomerScreen, MovingAwayFromABusinessWithoutANameStays) {
    OpenThree();
    Text(1)->clear();
    const auto before = folder.Contents();
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_EQ(Shown(0), u"4471"_s);
    EXPECT_EQ(Focused(), u"txtCustomer(1)"_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerScreen, ToggleOfTheTypeShowsTheOtherNameFields) {
    OpenThree();
    Click(screen, u"cmdAcctType"_s);
    EXPECT_EQ(Find<QLabel>(screen, u"lbLType"_s)->text(), u"Individual"_s);
    EXPECT_TRUE(Text(8)->isVisible());
    EXPECT_FALSE(Text(1)->isVisible());
    EXPECT_EQ(Shown(1), u"Corner Grocery"_s);
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
}

TEST_F(CustomerScreen, AddressStyleIsReadEachTimeTheScreenComesToTheFront) {
    OpenThree();
    office.settings.cmdAddress = u"International Style Address"_s;
    screens.Show(screen);
    EXPECT_FALSE(Control(u"fraUSAddress"_s)->isVisible());
    EXPECT_TRUE(Control(u"fraIntAddress"_s)->isVisible());
    EXPECT_EQ(Find<EntryField>(screen, u"txtAdd3"_s)->text(), u"Springfield"_s);
    EXPECT_EQ(Find<EntryField>(screen, u"txtAdd4"_s)->text(), u"62704"_s);
    office.settings.cmdAddress = u"USA Style Address"_s;
    screens.Show(screen);
    EXPECT_TRUE(Control(u"fraUSAddress"_s)->isVisible());
}

TEST_F(CustomerScreen, InternationalAddressIsTypedAndSaved) {
    OpenThree();
    office.settings.cmdAddress = u"International Style Address"_s;
    screens.Show(screen);
    auto* third = Find<EntryField>(screen, u"txtAdd3"_s);
    third->setFocus();
    third->selectAll();
    Type(third, u"London"_s);
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_EQ(CustomerOnDisk(1).mid(125, 25), QByteArray("London").leftJustified(25, ' '));
    EXPECT_EQ(CustomerOnDisk(1).mid(170, 2), "  ");
}

TEST_F(CustomerScreen, StatesOfTheFileAreOffered) {
    QByteArray states;
    for (int i = 1; i <= 50; ++i)
        states += "S" + QByteArray::number(i) + "\r\n";
    folder.Write(u"StatesList.txt"_s, states);
    OpenThree();
    EXPECT_EQ(Combo(u"cboStates"_s)->count(), 50);
    EXPECT_EQ(Combo(u"cboStates"_s)->itemText(49), u"S50"_s);
    EXPECT_EQ(Combo(u"cboStates"_s)->currentText(), u"IL"_s);
}

TEST_F(CustomerScreen, TypedCityStaysAsTypedThoughAListedOneBeginsWithIt) {
    OpenThree();
    QComboBox* cities = Combo(u"cboCity"_s);
    cities->setFocus();
    cities->lineEdit()->selectAll();
    Type(cities, u"Spring"_s);
    Press(cities, Qt::Key_Tab);
    EXPECT_EQ(cities->currentText(), u"Spring"_s);
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_EQ(CustomerOnDisk(1).mid(125, 25), QByteArray("Spring").leftJustified(25, ' '));
}

TEST_F(CustomerScreen, TurningTheWheelOverAListWithoutTheFocusChangesNothing) {
    OpenThree();
    Text(0)->setFocus();
    for (const QString& name : {u"cboCity"_s, u"cboStates"_s}) {
        QComboBox* list = Combo(name);
        const QString before = list->currentText();
        const QPointF place = list->rect().center();
        QWheelEvent turn(place, list->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(list, &turn);
        EXPECT_EQ(list->currentText(), before);
    }
}

TEST_F(CustomerScreen, ArrowKeysGoOnFromTheTitleThatIsShown) {
    OpenThree();
    Click(screen, u"cmdNav(2)"_s);
    QComboBox* titles = Combo(u"cboTitle"_s);
    ASSERT_EQ(titles->currentText(), u"Mr/Mrs"_s);
    titles->setFocus();
    Press(titles, Qt::Key_Down);
    EXPECT_EQ(titles->currentText(), u"Mr."_s);
}

TEST_F(CustomerScreen, AddShowsCancelAndClosesTheMenuEntries) {
    OpenThree();
    Click(screen, u"cmdNew"_s);
    EXPECT_TRUE(Button(u"cmdCustomer(13)"_s)->isVisible());
    EXPECT_FALSE(Item(u"mnuAdd"_s)->isEnabled());
    EXPECT_FALSE(Item(u"mnuDelete"_s)->isEnabled());
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
    EXPECT_EQ(Where(), u"Customer 4 of 4"_s);
    Click(screen, u"cmdCustomer(13)"_s);
    EXPECT_FALSE(Button(u"cmdCustomer(13)"_s)->isVisible());
    EXPECT_EQ(Shown(0), u"77"_s);
    EXPECT_EQ(folder.Read(customerFile).size(), 3 * 328);
}

TEST_F(CustomerScreen, AddFromTheMenuIsTypedAndSavedByMovingOn) {
    OpenThree();
    Item(u"mnuAdd"_s)->trigger();
    Enter(0, u"2001"_s);
    Press(Text(0), Qt::Key_Tab);
    Combo(u"cboTitle"_s)->setFocus();
    Type(Combo(u"cboTitle"_s), u"Prof."_s);
    Text(8)->insert(u"J\u00fcrgen"_s);
    Enter(10, u"Cole"_s);
    Click(screen, u"cmdNav(0)"_s);
    ASSERT_EQ(folder.Read(customerFile).size(), 4 * 328);
    EXPECT_EQ(CustomerOnDisk(4).mid(263, 25), "Prof.     J\xfcrgen         ");
    EXPECT_TRUE(folder.Read(contractFile).mid(3 * 386).startsWith("None Selected"));
    EXPECT_TRUE(Button(u"cmdCustomer(13)"_s)->isVisible());
    EXPECT_TRUE(Item(u"mnuAdd"_s)->isEnabled());
}

TEST_F(CustomerScreen, DeleteAsksAndShowsTheFirstRecord) {
    OpenThree();
    Click(screen, u"cmdNav(3)"_s);
    user.ExpectQuestion(u"Delete this Customer"_s, {}, Answer::No);
    Item(u"mnuDelete"_s)->trigger();
    EXPECT_EQ(folder.Read(customerFile).size(), 3 * 328);
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
    user.ExpectQuestion(u"Delete this Customer"_s, {}, Answer::Yes);
    Item(u"mnuDelete"_s)->trigger();
    EXPECT_EQ(folder.Read(customerFile).size(), 2 * 328);
    EXPECT_EQ(Shown(0), u"4471"_s);
    EXPECT_EQ(Where(), u"Corner Grocery  \u00b7  Customer 1 of 2"_s);
}

TEST_F(CustomerScreen, MoveButtonsReachEachRecord) {
    QList<SampleCustomer> ten;
    for (int number = 1; number <= 10; ++number)
        ten += SampleCustomer{.account = "A" + QByteArray::number(number)};
    WriteCustomers(ten);
    Open(2);
    const std::pair<int, QString> moves[] = {{1, u"A1"_s}, {2, u"A2"_s}, {3, u"A10"_s},
                                             {2, u"A1"_s}, {4, u"A2"_s}, {6, u"A4"_s},
                                             {5, u"A6"_s}, {1, u"A5"_s}, {0, u"A1"_s}};
    for (const auto& [index, account] : moves) {
        Click(screen, u"cmdNav(%1)"_s.arg(index));
        EXPECT_EQ(Shown(0), account) << index;
    }
}

TEST_F(CustomerScreen, FindShowsTheListInThePlaceOfTheName) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    EXPECT_TRUE(accounts->isVisible());
    EXPECT_FALSE(Text(1)->isVisible());
    EXPECT_EQ(accounts->currentText(), QString());
    EXPECT_EQ(Focused(), u"cboAccounts"_s);
    Click(screen, u"Command1(2)"_s);
    EXPECT_FALSE(accounts->isVisible());
    EXPECT_TRUE(Text(1)->isVisible());
}

TEST_F(CustomerScreen, FindHidesThePartsOfAPersonsNameAndSelectBringsThemBack) {
    OpenThree();
    Click(screen, u"cmdNav(2)"_s);
    const QString parts[] = {u"cboTitle"_s, u"txtCustomer(8)"_s, u"txtCustomer(9)"_s,
                             u"txtCustomer(10)"_s};
    Click(screen, u"Command1(1)"_s);
    EXPECT_TRUE(Control(u"cboAccounts"_s)->isVisible());
    for (const QString& part : parts)
        EXPECT_FALSE(Control(part)->isVisible()) << part.toStdString();
    Click(screen, u"Command1(2)"_s);
    EXPECT_FALSE(Control(u"cboAccounts"_s)->isVisible());
    EXPECT_FALSE(Text(1)->isVisible());
    for (const QString& part : parts)
        EXPECT_TRUE(Control(part)->isVisible()) << part.toStdString();
    EXPECT_EQ(Focused(), u"txtCustomer(0)"_s);
}

TEST_F(CustomerScreen, FirstLettersBringTheWholeNameWithTheRestSelected) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Type(accounts, u"co"_s);
    EXPECT_EQ(accounts->currentText().toLower(), u"corner grocery"_s);
    EXPECT_EQ(accounts->lineEdit()->selectedText(), u"rner Grocery"_s);
    Press(accounts, Qt::Key_Backspace);
    EXPECT_EQ(accounts->currentText(), u"co"_s);
}

TEST_F(CustomerScreen, FurtherLettersReplaceTheRest) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Type(accounts, u"cO"_s);
    EXPECT_EQ(accounts->currentText(), u"cOrner Grocery"_s) << "the letters typed stay";
    Type(accounts, u"rx"_s);
    EXPECT_EQ(accounts->currentText(), u"cOrx"_s);
    EXPECT_EQ(accounts->lineEdit()->selectedText(), QString());
    EXPECT_EQ(accounts->lineEdit()->cursorPosition(), 4);
    Press(accounts, Qt::Key_Backspace);
    EXPECT_EQ(accounts->currentText(), u"cOr"_s);
    Type(accounts, u"n"_s);
    EXPECT_EQ(accounts->currentText(), u"cOrner Grocery"_s);
}

TEST_F(CustomerScreen, DeleteKeyKeepsTheRestAway) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Type(accounts, u"l"_s);
    EXPECT_EQ(accounts->lineEdit()->selectedText(), u"ee, Ann"_s);
    Press(accounts, Qt::Key_Delete);
    EXPECT_EQ(accounts->currentText(), u"l"_s);
    Press(accounts, Qt::Key_Delete);
    Type(accounts, u"e"_s);
    EXPECT_EQ(accounts->currentText(), u"le"_s) << "nothing was deleted; the next key pays";
    Type(accounts, u"e"_s);
    EXPECT_EQ(accounts->currentText(), u"lee, Ann"_s);
}

TEST_F(CustomerScreen, PastedNameIsCompletedLikeATypedOne) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    QApplication::clipboard()->setText(u"anv"_s);
    QTest::keyClick(accounts, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(accounts->currentText(), u"anvil Works"_s);
    EXPECT_EQ(accounts->lineEdit()->selectedText(), u"il Works"_s);
}

TEST_F(CustomerScreen, TypedNameIsChosenByLeavingTheList) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Type(accounts, u"le"_s);
    Press(accounts, Qt::Key_Tab);
    EXPECT_EQ(Shown(0), u"1002"_s);
    EXPECT_FALSE(accounts->isVisible());
    EXPECT_TRUE(Text(8)->isVisible());
}

TEST_F(CustomerScreen, TypedNameIsChosenByEnter) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Type(accounts, u"an"_s);
    Press(accounts, Qt::Key_Return);
    EXPECT_EQ(Shown(0), u"77"_s);
    EXPECT_FALSE(accounts->isVisible());
}

TEST_F(CustomerScreen, UnknownNameShowsTheFirstRecord) {
    OpenThree();
    Click(screen, u"cmdNav(3)"_s);
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Type(accounts, u"Nobody"_s);
    user.ExpectMessage(u"Name Not Found\nFirst Accont is Displayed"_s);
    Press(accounts, Qt::Key_Tab);
    EXPECT_EQ(Shown(0), u"4471"_s);
    EXPECT_FALSE(accounts->isVisible());
}

TEST_F(CustomerScreen, TypedNameIsChosenByAClickIntoAnotherField) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    Type(Combo(u"cboAccounts"_s), u"le"_s);
    QTest::mouseClick(Text(2), Qt::LeftButton);
    EXPECT_EQ(Shown(0), u"1002"_s);
    EXPECT_FALSE(Combo(u"cboAccounts"_s)->isVisible());
}

TEST_F(CustomerScreen, UnknownNameShowsTheFirstRecordAtAClickIntoAnotherField) {
    OpenThree();
    Click(screen, u"cmdNav(3)"_s);
    Click(screen, u"Command1(1)"_s);
    Type(Combo(u"cboAccounts"_s), u"Nobody"_s);
    user.ExpectMessage(u"Name Not Found\nFirst Accont is Displayed"_s);
    QTest::mouseClick(Text(2), Qt::LeftButton);
    EXPECT_EQ(Shown(0), u"4471"_s);
    EXPECT_FALSE(Combo(u"cboAccounts"_s)->isVisible());
}

TEST_F(CustomerScreen, TypedNameIsChosenBeforeTheButtonThatIsClicked) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    Type(Combo(u"cboAccounts"_s), u"le"_s);
    Click(screen, u"cmdNav(2)"_s);
    EXPECT_EQ(Shown(0), u"77"_s) << "the next one behind the name";
}

TEST_F(CustomerScreen, NameChosenWithTheMouseShowsItsRecord) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    ChooseFromPopup(0);
    EXPECT_EQ(Shown(0), u"77"_s) << "the first name is that of the third record";
    EXPECT_FALSE(Combo(u"cboAccounts"_s)->isVisible());
}

TEST_F(CustomerScreen, ArrowKeyOpensTheListAndEnterChooses) {
    OpenThree();
    Click(screen, u"Command1(1)"_s);
    QComboBox* accounts = Combo(u"cboAccounts"_s);
    Press(accounts, Qt::Key_Down);
    EXPECT_TRUE(accounts->view()->isVisible());
    EXPECT_EQ(Shown(0), u"4471"_s) << "nothing is chosen by opening";
    accounts->view()->setCurrentIndex(accounts->model()->index(0, 0));
    QTest::keyClick(accounts->view(), Qt::Key_Return);
    EXPECT_EQ(Shown(0), u"77"_s);
}

TEST_F(CustomerScreen, MenuFromEitherMenuChoiceLeadsToTheMenu) {
    for (const qint16 choice : {qint16(2), qint16(5)}) {
        WriteMasterFiles();
        OpenThree(choice);
        Click(screen, u"cmdCustomer(0)"_s);
        EXPECT_TRUE(IsShown(ScreenName::frmStartup));
        EXPECT_FALSE(IsShown(screen));
    }
}

TEST_F(CustomerScreen, SelectInMaintenanceLeadsToTheMenuAndHandsOver) {
    OpenThree(2);
    Click(screen, u"cmdCustomer(1)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_FALSE(IsShown(screen));
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, u"4471"_s);
    EXPECT_EQ(office.deliveryCustomer.Name, u"Corner Grocery"_s);
}

TEST_F(CustomerScreen, SelectForADeliveryLeadsToTheDeliveryScreen) {
    OpenThree(5);
    Click(screen, u"cmdNav(2)"_s);
    Click(screen, u"cmdCustomer(1)"_s);
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, u"1002"_s);
    EXPECT_EQ(office.deliveryCustomer.Name, u"Mr/Mrs Ann  Lee"_s);
    EXPECT_FALSE(IsShown(screen));
    EXPECT_TRUE(IsShown(ScreenName::frmDelivery));
    EXPECT_EQ(Find<QLabel>(ScreenName::frmDelivery, u"lblAcctNo"_s)->text(), u"1002"_s);
}

TEST_F(CustomerScreen, AnyOtherMenuChoiceShowsNothing) {
    OpenThree(7);
    Click(screen, u"cmdCustomer(1)"_s);
    EXPECT_FALSE(IsShown(screen));
    EXPECT_FALSE(IsShown(ScreenName::frmStartup));
}

TEST_F(CustomerScreen, YesToTheExitQuestionDestroysTheScreenAndShowsTheMenu) {
    OpenThree(5);
    Text(0)->clear();
    Text(6)->clear();
    const auto before = folder.Contents();
    user.ExpectMessage(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    user.ExpectQuestion(u"Would you like to exit\nwithout creating a Customer?"_s, u"No Customer"_s,
                        Answer::Yes);
    Click(screen, u"cmdCustomer(1)"_s);
    EXPECT_EQ(screens.Find(screen), nullptr);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_EQ(folder.Contents(), before);
    Open(2);
    EXPECT_EQ(Shown(0), u"4471"_s) << "a new screen loads anew";
}

TEST_F(CustomerScreen, NoToTheExitQuestionOnLeavingGoesOnToTheMenu) {
    OpenThree();
    Text(0)->clear();
    Text(6)->clear();
    user.ExpectMessage(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    user.ExpectQuestion(u"Would you like to exit\nwithout creating a Customer?"_s, u"No Customer"_s,
                        Answer::No);
    Click(screen, u"cmdCustomer(0)"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
}

TEST_F(CustomerScreen, CloseBoxAsksForTheEndWithoutSaving) {
    OpenThree();
    Enter(2, u"1 New Road"_s);
    const auto before = folder.Contents();
    CloseByUser(screen);
    EXPECT_EQ(exitRequests, 1);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(CustomerScreen, LayoutIsRestoredFromOneKeyAndSavedUnderAnother) {
    const auto layout = [](const QString& key) {
        return QSettings(QSettings::IniFormat, QSettings::UserScope, u"tessel-delivery"_s,
                         u"window-layout"_s)
            .value(key)
            .toByteArray();
    };
    QWidget other;
    other.setGeometry(40, 30, 610, 420);
    WindowLayout::Save(other, u"TesselDelivery"_s);
    const QByteArray kept = layout(u"TesselDelivery"_s);
    WriteMasterFiles();
    screens.Create(screen);
    screens.Show(screen);
    EXPECT_EQ(screens.Find(screen)->size(), QSize(610, 420));
    screens.Find(screen)->resize(640, 460);
    screens.Hide(screen);
    EXPECT_EQ(layout(u"TesselDelivery"_s), kept);
    QWidget restored;
    WindowLayout::Restore(restored, u"TesselCycleInvoicer"_s);
    EXPECT_EQ(restored.size(), QSize(640, 460));
}

TEST_F(CustomerScreen, TabFollowsTheEye) {
    OpenThree();
    QStringList order;
    QWidget* control = Button(u"cmdAcctType"_s);
    control->setFocus();
    for (int i = 0; i < 13; ++i) {
        order += Focused();
        Press(screens.Find(screen)->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              (QStringList{u"cmdAcctType"_s, u"txtCustomer(0)"_s, u"txtCustomer(1)"_s,
                           u"txtCustomer(2)"_s, u"txtCustomer(3)"_s, u"cboCity"_s, u"cboStates"_s,
                           u"txtCustomer(5)"_s, u"txtCustomer(6)"_s, u"Image1(1)"_s,
                           u"txtCustomer(11)"_s, u"txtCustomer(7)"_s, u"Command1(0)"_s}));
}

TEST_F(CustomerScreen, UnreadableCustomerFileStopsTheProgram) {
    OpenThree();
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(customerFile), QFile::Permissions()));
    DropRootRights(folder);
    // From no field that would be checked first.
    Button(u"cmdNav(2)"_s)->setFocus();
    Click(screen, u"cmdNav(2)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::PermissionDenied);
    EXPECT_TRUE(Failures()[0].Sentence().contains(customerFile)) << Failures()[0].what();
}
