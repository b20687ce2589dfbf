#include "customers/CustomerScreen.h"
#include "platform/Grid.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QRadioButton>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const QString nobody = u"No Customer Record meets this Criteria"_s;
const QString nobodyTitle = u"Customer not Found"_s;

} // namespace

class CustomerSearchScreen : public CustomerScreen {
protected:
    void OpenSearch(qint16 menuChoice = 2) {
        OpenThree(menuChoice);
        Click(screen, u"Command1(0)"_s);
    }
    void OpenList() {
        OpenThree();
        Click(screen, u"Command1(3)"_s);
    }
    EntryField* SearchText() { return Find<EntryField>(screen, u"txtSearchfor"_s); }
    Grid* FoundGrid() { return Find<Grid>(screen, u"fgCustomersFound"_s); }
    QRadioButton* Option(int index) {
        return Find<QRadioButton>(screen, u"optSearch(%1)"_s.arg(index));
    }
    QString Cell(int row, int column) {
        return FoundGrid()->model()->index(row - 1, column).data().toString();
    }
    bool IsVisible(const QString& name) { return Control(name)->isVisible(); }
    /// As the machine tells of it, so that the menu comes up.
    void RightClickRow(int row) {
        Grid* grid = FoundGrid();
        const QPoint place = grid->visualRect(grid->model()->index(row - 1, 0)).center();
        RightClick(place);
    }
    void RightClick(QPoint placeInGrid) {
        QWidget* window = screens.Find(screen);
        QTest::mouseClick(window->windowHandle(), Qt::RightButton, Qt::NoModifier,
                          FoundGrid()->viewport()->mapTo(window, placeInGrid));
    }
    QMenu* Popup() { return Find<QMenu>(screen, u"mnupopup"_s); }
    void ChooseSelectCustomer() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return Popup()->isVisible(); }));
        Press(Popup(), Qt::Key_Down);
        Press(Popup(), Qt::Key_Return);
    }
};

TEST_F(CustomerSearchScreen, ControlsCarryTheirCaptionsAndToolTips) {
    OpenSearch();
    const QString options[] = {
        u"by Business Name"_s,    u"by Address #1"_s, u"by Address #2"_s,
        u"by City or Addr #3)"_s, u"by State"_s,      u"by Zip Code (or Addr #4)"_s,
        u"by Telephone Number"_s, u"by Last Name"_s,  u"by Account Number"_s};
    int index = 0;
    for (const QString& caption : options)
        EXPECT_EQ(Option(index++)->text(), caption);
    EXPECT_TRUE(Option(0)->isChecked());
    EXPECT_EQ(Button(u"cmdRetry"_s)->text(), u"&Close/Retry"_s);
    EXPECT_EQ(Button(u"cmdPrintCustomers"_s)->text(), u"&Print"_s);
    EXPECT_EQ(Button(u"cmdPrintCustomers"_s)->toolTip(), u"Prints the Customer Data"_s);
    const QString guide[] = {u"Left Click to Select a Customer"_s, u"Right Click to Load "_s,
                             u"Click Retry if not Found"_s};
    index = 0;
    for (const QString& text : guide)
        EXPECT_EQ(Find<QLabel>(screen, u"Label4(%1)"_s.arg(index++))->text(), text);
    EXPECT_EQ(Item(u"mnuSelect"_s)->text(), u"Select Customer"_s);
    EXPECT_EQ(TextsIn(Control(u"fraCustomersFound"_s)).first(),
              u"Customers Search by Name Results"_s);
    const QAbstractItemModel* grid = FoundGrid()->model();
    EXPECT_EQ(grid->columnCount(), 3);
    EXPECT_EQ(grid->headerData(0, Qt::Horizontal).toString(), u"Customer Name"_s);
    EXPECT_EQ(grid->headerData(1, Qt::Horizontal).toString(), u"Telephone"_s);
    EXPECT_EQ(grid->headerData(2, Qt::Horizontal).toString(), u"Rec"_s);
}

TEST_F(CustomerSearchScreen, OnlyTheRecordIsInFrontAtFirst) {
    OpenThree();
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_FALSE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_TRUE(Text(0)->isVisible());
    for (int index = 0; index <= 3; ++index)
        EXPECT_TRUE(Button(u"Command1(%1)"_s.arg(index))->isEnabled()) << index;
    EXPECT_TRUE(Item(u"mnuPrint"_s)->isEnabled());
}

// The search

TEST_F(CustomerSearchScreen, SearchTakesThePlaceOfTheRecordWithTheFocusInItsText) {
    OpenThree();
    Enter(2, u"1 New Road"_s);
    Click(screen, u"Command1(0)"_s);
    EXPECT_TRUE(IsVisible(u"fraSearch"_s));
    EXPECT_FALSE(Text(0)->isVisible());
    EXPECT_EQ(Focused(), u"txtSearchfor"_s);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
}

TEST_F(CustomerSearchScreen, TypedTextAndEnterShowTheOnlyCustomer) {
    OpenSearch();
    Type(SearchText(), u"anv"_s);
    Press(SearchText(), Qt::Key_Return);
    EXPECT_EQ(Shown(0), u"77"_s);
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_FALSE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_EQ(Focused(), u"cmdCustomer(1)"_s);
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
}

TEST_F(CustomerSearchScreen, SeveralCustomersShowInTheGrid) {
    OpenSearch();
    Type(SearchText(), u"R"_s);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_FALSE(Text(0)->isVisible());
    ASSERT_EQ(FoundGrid()->model()->rowCount(), 2);
    EXPECT_EQ(Cell(1, 0), u"Corner Grocery"_s);
    EXPECT_EQ(Cell(1, 1), u"217-555-0199"_s);
    EXPECT_EQ(Cell(1, 2), u"1"_s);
    EXPECT_EQ(Cell(2, 2), u"3"_s);
    EXPECT_EQ(Focused(), u"fgCustomersFound"_s);
    EXPECT_FALSE(IsVisible(u"cmdPrintCustomers"_s));
}

TEST_F(CustomerSearchScreen, OptionByTelephoneFillsInTheOwnAreaCode) {
    office.settings.BusinessData[6] = u"217-555-0100"_s;
    OpenSearch();
    Type(SearchText(), u"left over"_s);
    Click(screen, u"optSearch(6)"_s);
    EXPECT_EQ(SearchText()->text(), u"217-555-"_s);
    EXPECT_EQ(Focused(), u"txtSearchfor"_s);
    EXPECT_EQ(SearchText()->cursorPosition(), 8);
    Type(SearchText(), u"0199"_s);
    EXPECT_EQ(SearchText()->text(), u"217-555-0199"_s);
    Press(SearchText(), Qt::Key_Return);
    EXPECT_EQ(FoundGrid()->model()->rowCount(), 3);
}

TEST_F(CustomerSearchScreen, OtherOptionsBlankTheText) {
    office.settings.BusinessData[6] = u"217-555-0100"_s;
    OpenSearch();
    for (int index = 0; index <= 8; ++index) {
        SearchText()->setText(u"left over"_s);
        Click(screen, u"optSearch(%1)"_s.arg(index));
        EXPECT_EQ(SearchText()->text(), index < 6 ? QString() : u"217-555-"_s) << index;
        EXPECT_EQ(Focused(), u"txtSearchfor"_s) << index;
    }
}

TEST_F(CustomerSearchScreen, ArrowKeysGoThroughTheOptions) {
    OpenSearch();
    Option(0)->setFocus();
    Press(Option(0), Qt::Key_Down);
    EXPECT_TRUE(Option(1)->isChecked());
    EXPECT_EQ(Focused(), u"optSearch(1)"_s) << "the next arrow goes on";
    Press(Option(1), Qt::Key_Tab);
    EXPECT_EQ(Focused(), u"txtSearchfor"_s);
    Type(SearchText(), u"mill road"_s);
    Press(SearchText(), Qt::Key_Return);
    EXPECT_EQ(FoundGrid()->model()->rowCount(), 3);
}

TEST_F(CustomerSearchScreen, ChosenOptionIsTheFieldSearched) {
    OpenSearch();
    Click(screen, u"optSearch(8)"_s);
    SearchText()->selectAll();
    Type(SearchText(), u"1002"_s);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_EQ(Shown(0), u"1002"_s);
}

TEST_F(CustomerSearchScreen, SearchOpensAgainWithTheOptionOfBeforeAndNoText) {
    OpenSearch();
    Click(screen, u"optSearch(7)"_s);
    Type(SearchText(), u"lee"_s);
    SearchText()->setText(u"lee"_s);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_EQ(Shown(0), u"1002"_s);
    Click(screen, u"Command1(0)"_s);
    EXPECT_EQ(SearchText()->text(), QString());
    EXPECT_TRUE(Option(7)->isChecked());
}

TEST_F(CustomerSearchScreen, ClearBlanksTheTextAndGoesBackToIt) {
    OpenSearch();
    Type(SearchText(), u"anv"_s);
    Click(screen, u"cmdClearSearch"_s);
    EXPECT_EQ(SearchText()->text(), QString());
    EXPECT_EQ(Focused(), u"txtSearchfor"_s);
}

TEST_F(CustomerSearchScreen, HideBringsTheRecordBack) {
    OpenSearch();
    Click(screen, u"cmdHideSearch"_s);
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_EQ(Shown(0), u"4471"_s);
}

TEST_F(CustomerSearchScreen, EmptyTextIsRefused) {
    OpenSearch();
    user.ExpectMessage(u"You must enter some criteria data for the Search"_s);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_TRUE(IsVisible(u"fraSearch"_s));
    EXPECT_EQ(Focused(), u"txtSearchfor"_s);
}

TEST_F(CustomerSearchScreen, WildcardsAndQuotesThatAreTypedAreSearchedAsTheyStand) {
    WriteCustomers({SampleCustomer{}, SampleCustomer{.account = "2", .businessName = "A*B \"C\"?"},
                    SampleCustomer{.account = "3", .businessName = "It's 100% [new] \\d+"}});
    Open(7);
    const std::pair<QString, QString> texts[] = {
        {u"*"_s, u"2"_s},  {u"?"_s, u"2"_s},     {u"\"c\""_s, u"2"_s}, {u"'"_s, u"3"_s},
        {u"0%"_s, u"3"_s}, {u"[new]"_s, u"3"_s}, {u"\\d+"_s, u"3"_s}};
    for (const auto& [text, account] : texts) {
        Click(screen, u"Command1(0)"_s);
        Type(SearchText(), text);
        Press(SearchText(), Qt::Key_Return);
        EXPECT_EQ(Shown(0), account) << text.toStdString();
    }
    for (const QString& text : {u"A*C"_s, u"A?B"_s, u"[a-z]"_s, u"%"_s + u"%"_s, u"' OR '"_s}) {
        Click(screen, u"Command1(0)"_s);
        Type(SearchText(), text);
        user.ExpectMessage(nobody, nobodyTitle);
        Press(SearchText(), Qt::Key_Return);
        user.ExpectNothingLeft();
    }
}

TEST_F(CustomerSearchScreen, PastedTextOfTenThousandCharactersAndLineBreaksFindsNobody) {
    OpenSearch(7);
    QApplication::clipboard()->setText(QString(10'000, u'*') + u"\n\"'"_s);
    QTest::keyClick(SearchText(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(SearchText()->text().size(), 10'003);
    user.ExpectMessage(nobody, nobodyTitle);
    Press(SearchText(), Qt::Key_Return);
    EXPECT_TRUE(IsShown(screen));
}

TEST_F(CustomerSearchScreen, NobodyFoundLeavesTheScreenBehindTheMenu) {
    OpenSearch(2);
    Type(SearchText(), u"no such name"_s);
    user.ExpectMessage(nobody, nobodyTitle);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_TRUE(IsShown(screen));
    EXPECT_TRUE(QTest::qWaitForWindowActive(screens.Find(ScreenName::frmStartup)));
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_EQ(Shown(0), u"4471"_s);
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, QString()) << "no one is handed over";
}

TEST_F(CustomerSearchScreen, NobodyFoundForADeliveryLeavesTheScreenBehindTheDeliveryScreen) {
    OpenSearch(5);
    Type(SearchText(), u"no such name"_s);
    user.ExpectMessage(nobody, nobodyTitle);
    Click(screen, u"cmdStartSearch"_s);
    EXPECT_TRUE(IsShown(ScreenName::frmDelivery));
    EXPECT_TRUE(QTest::qWaitForWindowActive(screens.Find(ScreenName::frmDelivery)));
    EXPECT_FALSE(IsShown(ScreenName::frmStartup));
    EXPECT_TRUE(IsShown(screen));
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_EQ(office.deliveryCustomer.AccountNumber, QString()) << "no one is handed over";
}

TEST_F(CustomerSearchScreen, NobodyFoundWithAnyOtherMenuChoiceStays) {
    OpenSearch(7);
    Type(SearchText(), u"no such name"_s);
    user.ExpectMessage(nobody, nobodyTitle);
    Press(SearchText(), Qt::Key_Return);
    EXPECT_FALSE(IsShown(ScreenName::frmStartup));
    EXPECT_TRUE(IsShown(screen));
}

TEST_F(CustomerSearchScreen, RecordThatCannotBeSavedKeepsTheSearchClosed) {
    OpenThree();
    Text(1)->clear();
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    Click(screen, u"Command1(0)"_s);
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_EQ(Focused(), u"txtCustomer(1)"_s);
}

TEST_F(CustomerSearchScreen, NavigationHidesTheSearch) {
    OpenSearch();
    Click(screen, u"cmdNav(3)"_s);
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_EQ(Shown(0), u"77"_s);
}

TEST_F(CustomerSearchScreen, NamesAndSearchTakeTurns) {
    OpenSearch();
    Click(screen, u"Command1(1)"_s);
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_TRUE(IsVisible(u"cboAccounts"_s));
    Click(screen, u"Command1(0)"_s);
    EXPECT_TRUE(IsVisible(u"fraSearch"_s));
    EXPECT_FALSE(IsVisible(u"cboAccounts"_s));
    Click(screen, u"Command1(2)"_s);
    EXPECT_FALSE(IsVisible(u"fraSearch"_s));
    EXPECT_TRUE(Text(1)->isVisible());
}

// The list

TEST_F(CustomerSearchScreen, LocateListsAllCustomersWithAPrintButton) {
    OpenList();
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_EQ(TextsIn(Control(u"fraCustomersFound"_s)).first(), u"Customer List"_s);
    EXPECT_TRUE(IsVisible(u"cmdPrintCustomers"_s));
    EXPECT_EQ(FoundGrid()->model()->rowCount(), 3);
    EXPECT_EQ(Cell(2, 0), u"Mr/Mrs Ann Lee"_s);
    EXPECT_EQ(Focused(), u"fgCustomersFound"_s);
    EXPECT_FALSE(Text(0)->isVisible());
}

TEST_F(CustomerSearchScreen, NameIsTheColumnThatTakesWhatIsLeft) {
    OpenList();
    QHeaderView* header = FoundGrid()->horizontalHeader();
    EXPECT_EQ(header->sectionResizeMode(0), QHeaderView::Stretch);
    EXPECT_EQ(header->length(), FoundGrid()->viewport()->width());
    // A width that the operator has given to the record number is not the grid's to fit.
    const int wide = header->sectionSize(2) + 40;
    QTest::mousePress(Control(u"cmdRetry"_s), Qt::LeftButton);
    header->resizeSection(2, wide);
    QTest::mouseRelease(Control(u"cmdRetry"_s), Qt::LeftButton, Qt::NoModifier, {-5, -5});
    FoundGrid()->FitColumns();
    EXPECT_EQ(header->sectionSize(2), wide);
}

TEST_F(CustomerSearchScreen, MenuEntryListsAllCustomers) {
    OpenThree();
    Item(u"mnuPrint"_s)->trigger();
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_EQ(FoundGrid()->model()->rowCount(), 3);
}

TEST_F(CustomerSearchScreen, ListWithoutACustomerFileBeeps) {
    OpenEmpty();
    EXPECT_FALSE(Button(u"Command1(0)"_s)->isEnabled());
    EXPECT_TRUE(Button(u"Command1(3)"_s)->isEnabled());
    Click(screen, u"Command1(3)"_s);
    EXPECT_EQ(user.Beeps, 1);
    Item(u"mnuPrint"_s)->trigger();
    EXPECT_EQ(user.Beeps, 2);
    EXPECT_FALSE(IsVisible(u"fraCustomersFound"_s));
}

TEST_F(CustomerSearchScreen, LeftClickOnlySelectsTheRow) {
    OpenList();
    ClickCell(FoundGrid(), 3, 0);
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_EQ(FoundGrid()->currentIndex().row(), 2);
    EXPECT_FALSE(Popup()->isVisible());
    EXPECT_EQ(Where(), u"Corner Grocery  \u00b7  Customer 1 of 3"_s);
}

TEST_F(CustomerSearchScreen, RightClickLoadsTheRowByItsMenu) {
    OpenList();
    RightClickRow(2);
    ChooseSelectCustomer();
    EXPECT_EQ(Shown(0), u"1002"_s);
    EXPECT_FALSE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_EQ(Focused(), u"cmdCustomer(1)"_s);
}

TEST_F(CustomerSearchScreen, RightClickBesideTheRowsLoadsTheRowSelected) {
    OpenList();
    ClickCell(FoundGrid(), 3, 1);
    RightClick(FoundGrid()->viewport()->rect().bottomLeft() + QPoint(20, -5));
    ChooseSelectCustomer();
    EXPECT_EQ(Shown(0), u"77"_s);
}

TEST_F(CustomerSearchScreen, MenuThatIsClosedWithoutAChoiceLoadsNobody) {
    OpenList();
    RightClickRow(2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Popup()->isVisible(); }));
    Press(Popup(), Qt::Key_Escape);
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_EQ(Where(), u"Corner Grocery  \u00b7  Customer 1 of 3"_s);
}

TEST_F(CustomerSearchScreen, ArrowAndEnterLoadARowByKeys) {
    OpenList();
    Press(FoundGrid(), Qt::Key_Down);
    Press(FoundGrid(), Qt::Key_Return);
    EXPECT_EQ(Shown(0), u"1002"_s);
    EXPECT_FALSE(IsVisible(u"fraCustomersFound"_s));
}

TEST_F(CustomerSearchScreen, EmptyListHasNoMenu) {
    WriteMasterFiles();
    Open(2);
    Click(screen, u"Command1(3)"_s);
    ASSERT_TRUE(IsVisible(u"fraCustomersFound"_s));
    RightClick(QPoint(20, 20));
    QTest::qWait(1);
    EXPECT_FALSE(Popup()->isVisible());
    Press(FoundGrid(), Qt::Key_Return);
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
}

TEST_F(CustomerSearchScreen, EntryIsSavedBeforeACustomerOfTheListIsLoaded) {
    OpenThree();
    Enter(2, u"1 New Road"_s);
    Item(u"mnuPrint"_s)->trigger();
    Press(FoundGrid(), Qt::Key_Down);
    Press(FoundGrid(), Qt::Key_Return);
    EXPECT_EQ(Shown(0), u"1002"_s);
    EXPECT_EQ(CustomerOnDisk(1).mid(65, 11), "1 New Road ");
    EXPECT_EQ(folder.Read(contractFile), Siblings(3, 386));
}

TEST_F(CustomerSearchScreen, RecordThatCannotBeSavedComesBackInsteadOfTheChosenOne) {
    OpenThree();
    Text(1)->clear();
    Item(u"mnuPrint"_s)->trigger();
    user.ExpectMessage(u"The Account Name Cannot be Blank"_s);
    Press(FoundGrid(), Qt::Key_Down);
    Press(FoundGrid(), Qt::Key_Return);
    EXPECT_TRUE(Text(1)->isVisible());
    EXPECT_EQ(Focused(), u"txtCustomer(1)"_s);
    EXPECT_EQ(Shown(0), u"4471"_s);
}

TEST_F(CustomerSearchScreen, RetryBringsTheRecordBack) {
    OpenList();
    Click(screen, u"cmdRetry"_s);
    EXPECT_FALSE(IsVisible(u"fraCustomersFound"_s));
    EXPECT_TRUE(Text(0)->isVisible());
    EXPECT_EQ(Shown(0), u"4471"_s);
}

TEST_F(CustomerSearchScreen, RetryAndPrintGoByTheirLetters) {
    OpenList();
    user.ExpectQuestion(u"Click Yes to print a Customer Report"_s, u"Customer Report"_s,
                        Answer::No);
    QTest::keyClick(screens.Find(screen), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Button(u"cmdPrintCustomers"_s)->isDown(); }));
    QTest::keyClick(screens.Find(screen), Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsVisible(u"fraCustomersFound"_s); }));
}

TEST_F(CustomerSearchScreen, TabFollowsTheEyeThroughSearchAndList) {
    OpenSearch();
    const auto tabFrom = [&](QWidget* first, int count) {
        QStringList order;
        first->setFocus();
        for (int i = 0; i < count; ++i) {
            order += Focused();
            Press(screens.Find(screen)->focusWidget(), Qt::Key_Tab);
        }
        return order;
    };
    EXPECT_EQ(tabFrom(Option(0), 6),
              (QStringList{u"optSearch(0)"_s, u"txtSearchfor"_s, u"cmdStartSearch"_s,
                           u"cmdClearSearch"_s, u"cmdHideSearch"_s, u"Command1(0)"_s}));
    Click(screen, u"Command1(3)"_s);
    EXPECT_EQ(
        tabFrom(FoundGrid(), 7),
        (QStringList{u"fgCustomersFound"_s, u"cmdRetry"_s, u"cmdPrintCustomers"_s, u"Command1(0)"_s,
                     u"Command1(1)"_s, u"Command1(2)"_s, u"Command1(3)"_s}));
}

// The report

TEST_F(CustomerSearchScreen, PrintButtonPrintsTheReport) {
    OpenList();
    user.ExpectQuestion(u"Click Yes to print a Customer Report"_s, u"Customer Report"_s,
                        Answer::Yes);
    user.ExpectPrinterDialog(3, PrintDestination{});
    Click(screen, u"cmdPrintCustomers"_s);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(printer.Find(u"Anvil Works"_s).page, 1);
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
}

TEST_F(CustomerSearchScreen, CancelledReportIsToldAndTheListStays) {
    OpenList();
    user.ExpectQuestion(u"Click Yes to print a Customer Report"_s, u"Customer Report"_s,
                        Answer::Yes);
    user.ExpectPrinterDialog(3, std::nullopt);
    user.ExpectMessage(u"The Customer List will not be Printed"_s);
    Click(screen, u"cmdPrintCustomers"_s);
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_TRUE(IsVisible(u"fraCustomersFound"_s));
}
