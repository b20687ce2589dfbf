#include "customers/frmCustomer.h"

#include "customers/AccountBox.h"
#include "customers/AutoAdvancePanel.h"
#include "customers/AuxiliaryPanel.h"
#include "customers/CustomerSearchPanel.h"
#include "customers/CustomersFoundPanel.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "store/VerifyDataRoutines.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double labelWidth = 5.5;
constexpr double numberWidth = 13;
constexpr double addressWidth = 21;
constexpr double cityWidth = 16;
constexpr double stateWidth = 4.5;
constexpr double postalWidth = 7;
constexpr double phoneWidth = 9;
constexpr double titleWidth = 6.4;
constexpr double firstNameWidth = 9;
constexpr double lastNameWidth = 12;
constexpr double initialWidth = 2.6;
constexpr double pictureSize = 1.3;
constexpr int namesInPopup = 16;
constexpr int longListStretch = 1000;

/// Values of MenuChoice.
constexpr qint16 maintenance = 2;
constexpr qint16 newDelivery = 5;

/// The place behind the area code and exchange that the program proposes.
constexpr qsizetype proposedPhone = 8;

/// The forms of the card stand one over the other.
Form* MakeForm() {
    auto* form = new Form;
    form->SetLabelWidth(labelWidth);
    return form;
}

void SetUp(EntryBox* combo, const QString& accessibleName) {
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMaxVisibleItems(namesInPopup);
    combo->setAccessibleName(accessibleName);
}

QToolButton* MakeDialButton() {
    auto* dial = Named(new QToolButton, Indexed(u"Image1"_s, 1));
    const QSize size(Em(pictureSize), Em(pictureSize));
    dial->setIcon(LineIcon(u"phone"_s, Theme::Current().softText, size, dial->devicePixelRatioF()));
    dial->setIconSize(size);
    dial->setToolTip(u"Call Selected Account"_s);
    dial->setAccessibleName(dial->toolTip());
    return dial;
}

} // namespace

frmCustomer::frmCustomer(Office& theOffice, Screens& allScreens)
    : Screen(u"frmCustomer"_s, u"Customer Selection       "_s, u"TesselDelivery"_s,
             u"TesselCycleInvoicer"_s),
      office(theOffice), screens(allScreens), customers(theOffice.customers),
      search(theOffice.customerSearch), auxiliary(theOffice.auxiliaryWindow) {
    MakeMenus();
    auto* side = new QVBoxLayout;
    side->setSpacing(cardGap);
    account = MakeAccountCard();
    side->addWidget(MakeFindCard());
    side->addWidget(MakeMoveCard());
    side->addStretch(1);
    auto* main = new QVBoxLayout;
    // One of them is in front. The list and the auxiliary data take all the room there is.
    main->addWidget(account);
    main->addWidget(MakeSearch());
    main->addWidget(MakeFound(), longListStretch);
    main->addWidget(MakeAux(), longListStretch);
    main->addStretch(1);
    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addLayout(main, 1);
    columns->addLayout(side);
    MakeFoot();
    SetTabOrder();
    SetKeyRules();
    // The button goes down only after the field has been left.
    behindLostFocus.setSingleShot(true);
    connect(&behindLostFocus, &QTimer::timeout, this, &frmCustomer::ReleaseButtons);

    customers.Load();
    search.Load();
    auxiliary.Load();
    cboStates->addItems(customers.cboStates);
    ShowFields();
}

void frmCustomer::Activate() {
    Run([this] { customers.TakeAddressStyle(); });
}

QAction* frmCustomer::AddItem(QMenu* menu, const QString& name, const QString& caption,
                              const std::function<void()>& action) {
    QAction* item = Named(menu->addAction(caption), name);
    connect(item, &QAction::triggered, this, [this, action] { Run(action); });
    return item;
}

void frmCustomer::MakeMenus() {
    QMenu* menu = menuBar()->addMenu(u"Customer"_s);
    mnuAdd =
        AddItem(menu, u"mnuAdd"_s, u"Add a New Customer"_s, [this] { customers.AddNewCustomer(); });
    mnuDelete = AddItem(menu, u"mnuDelete"_s, u"DELETE This customer"_s,
                        [this] { customers.DeleteCustomer(); });
    menu->addSeparator();
    AddItem(menu, u"mnuPrint"_s, u"Print Customers"_s, [this] { search.mnuPrint_Click(); });
    mnuAux =
        AddItem(menu, u"mnuAux"_s, u"Toggle Data Window"_s, [this] { auxiliary.mnuAux_Click(); });
}

QPushButton* frmCustomer::MakeButton(const QString& name, const QString& caption,
                                     const std::function<void()>& action) {
    auto* button = Named(new QPushButton(caption), name);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, button, action] {
        // A button that is pressed by its letter leaves the field before it, as a click does.
        button->setFocus(Qt::ShortcutFocusReason);
        // Unless leaving the field has called the operator elsewhere.
        if (focusWidget() == button)
            action();
    });
    return button;
}

void frmCustomer::MakeFoot() {
    const auto make = [this](Button index, const QString& caption) {
        cmdCustomer[index] = MakeButton(Indexed(u"cmdCustomer"_s, index), caption,
                                        [this, index] { cmdCustomer_Click(index); });
        return cmdCustomer[index];
    };
    AddWayBack(make(Menu, u"&Menu"_s));
    AddAction(make(CancelAddNew, u"Cancel Add &New"_s));
    cmdNew = MakeButton(u"cmdNew"_s, u"Add New Customer"_s,
                        [this] { Run([this] { customers.cmdNew_Click(); }); });
    AddAction(cmdNew);
    AddMainAction(make(Select, u"&Select this Account Start Routine"_s));
}

EntryField* frmCustomer::MakeText(CustomerText place, const QString& accessibleName, double width,
                                  int limit) {
    auto* text = Named(new EntryField, Indexed(u"txtCustomer"_s, int(place)));
    text->SetTypedLimit(limit);
    text->setAccessibleName(accessibleName);
    text->setFixedWidth(Em(width));
    connect(text, &EntryField::GotFocus, this, [this, place] { txtCustomer_GotFocus(place); });
    connect(text, &EntryField::Left, this, [this, place] { txtCustomer_LostFocus(place); });
    txtCustomer[place] = text;
    return text;
}

EntryBox* frmCustomer::MakeCombo(const QString& name, const QString& accessibleName) {
    auto* combo = Named(new EntryBox, name);
    SetUp(combo, accessibleName);
    return combo;
}

QWidget* frmCustomer::MakeAccountCard() {
    auto* card = new Card(u"Account Data"_s);
    card->Rows()->addWidget(MakeTypeRow());

    Form* form = MakeForm();
    form->AddRow(u"Account No"_s, MakeText(CustomerText::AcctNo, u"Account No"_s, numberWidth, 20));
    QWidget* names = MakeNameRow();
    form->AddRow(u"Name"_s, names, Text(CustomerText::BusinessName));
    form->AddRow(u"Address 1"_s,
                 MakeText(CustomerText::Address1, u"Address 1"_s, addressWidth, 35));
    form->AddRow(u"Address 2"_s,
                 MakeText(CustomerText::Address2, u"Address 2"_s, addressWidth, 25));
    card->Rows()->addLayout(form);
    card->Rows()->addWidget(MakeUsAddress());
    card->Rows()->addWidget(MakeInternationalAddress());

    Form* reached = MakeForm();
    QWidget* phone = MakePhoneRow();
    reached->AddRow(u"Telephone"_s, phone, Text(CustomerText::Phone));
    reached->AddRow(u"Cell"_s, MakeText(CustomerText::Cell, u"Cell"_s, phoneWidth, 12));
    reached->AddRow(u"E-mail"_s, MakeText(CustomerText::Email, u"E-mail"_s, addressWidth, 30));
    card->Rows()->addLayout(reached);
    return card;
}

QWidget* frmCustomer::MakeTypeRow() {
    auto* block = new QWidget;
    Form* form = MakeForm();
    block->setLayout(form);
    lbLType = Named(new QLabel, u"lbLType"_s);
    lbLType->setProperty("strong", true);
    cmdAcctType = MakeButton(u"cmdAcctType"_s, u"Toggle Account Type"_s,
                             [this] { Run([this] { customers.ToggleAccountType(); }); });
    lbLType->setMinimumWidth(Em(labelWidth));
    form->AddRow(u"Type"_s, InOneLine({lbLType, cmdAcctType}), cmdAcctType);
    return block;
}

QWidget* frmCustomer::MakeNameRow() {
    cboTitle = MakeCombo(u"cboTitle"_s, u"Title"_s);
    cboTitle->addItems(CustomerSelection::Titles());
    cboTitle->setFixedWidth(Em(titleWidth));
    cboTitle->lineEdit()->setPlaceholderText(u"Title"_s);
    auto* first = MakeText(CustomerText::FirstName, u"First name"_s, firstNameWidth, 15);
    auto* middle = MakeText(CustomerText::MiddleInitial, u"Middle initial"_s, initialWidth, 1);
    auto* last = MakeText(CustomerText::LastName, u"Last name"_s, lastNameWidth, 25);
    first->setPlaceholderText(u"First name"_s);
    middle->setPlaceholderText(u"MI"_s);
    last->setPlaceholderText(u"Last name"_s);
    auto* business =
        MakeText(CustomerText::BusinessName, u"Name of the business"_s, addressWidth, 30);
    MakeAccountList();
    QWidget* row = InOneLine({business, cboTitle, first, middle, last, cboAccounts});
    // The fields below stay where they are, whatever stands in the place of the name.
    row->setMinimumHeight(cboAccounts->sizeHint().height());
    return row;
}

void frmCustomer::MakeAccountList() {
    cboAccounts = Named(
        new AccountBox([this](const QString& text) { return customers.cboAccounts_Change(text); }),
        u"cboAccounts"_s);
    SetUp(cboAccounts, u"Customer by name"_s);
    cboAccounts->setModel(&customers.cboAccounts);
    cboAccounts->setFixedWidth(Em(addressWidth));
    cboAccounts->lineEdit()->setPlaceholderText(u"Type the first letters of a name"_s);
    connect(cboAccounts, &QComboBox::activated, this, &frmCustomer::cboAccounts_Click);
    connect(cboAccounts, &AccountBox::Left, this, &frmCustomer::cboAccounts_LostFocus);
    connect(cboAccounts, &AccountBox::DeleteKeyDown, this,
            [this] { customers.cboAccounts_DeleteKeyDown(); });
}

QWidget* frmCustomer::MakeUsAddress() {
    fraUSAddress = Named(new QWidget, u"fraUSAddress"_s);
    cboCity = MakeCombo(u"cboCity"_s, u"City"_s);
    cboCity->setModel(&customers.cboCity);
    cboCity->setFixedWidth(Em(cityWidth));
    cboStates = MakeCombo(u"cboStates"_s, u"State"_s);
    cboStates->setFixedWidth(Em(stateWidth));
    auto* postal = MakeText(CustomerText::PostalCode, u"Zip Code"_s, postalWidth, 10);
    Form* form = MakeForm();
    fraUSAddress->setLayout(form);
    form->AddRow(u"City"_s, cboCity);
    auto* zip = new QLabel(u"Zip Code"_s);
    zip->setBuddy(postal);
    form->AddRow(u"State"_s, InOneLine({cboStates, zip, postal}), cboStates);
    return fraUSAddress;
}

QWidget* frmCustomer::MakeInternationalAddress() {
    fraIntAddress = Named(new QWidget, u"fraIntAddress"_s);
    txtAdd3 = Named(new EntryField, u"txtAdd3"_s);
    txtAdd4 = Named(new EntryField, u"txtAdd4"_s);
    Form* form = MakeForm();
    fraIntAddress->setLayout(form);
    form->AddRow(u"Address 3"_s, txtAdd3);
    form->AddRow(u"Address 4"_s, txtAdd4);
    txtAdd3->setFixedWidth(Em(addressWidth));
    txtAdd4->setFixedWidth(Em(addressWidth));
    return fraIntAddress;
}

QWidget* frmCustomer::MakePhoneRow() {
    Image1 = MakeDialButton();
    connect(Image1, &QToolButton::clicked, this, &frmCustomer::Image1_Click);
    return InOneLine({MakeText(CustomerText::Phone, u"Telephone"_s, phoneWidth, 12), Image1});
}

QWidget* frmCustomer::MakeFindCard() {
    auto* card = new Card(u"Find a Customer"_s);
    const auto add = [&](FindButton index, const QString& caption,
                         const std::function<void()>& rule) {
        Command1[index] =
            MakeButton(Indexed(u"Command1"_s, index), caption, [this, rule] { Run(rule); });
        card->Rows()->addWidget(Command1[index]);
    };
    add(SearchByCriteria, u"&Search by Criteria,such as Street Address"_s,
        [this] { search.SearchByCriteria(); });
    add(FindInNameList, u"&Find Account in Name List Alphbetically"_s,
        [this] { customers.FindInNameList(); });
    add(SelectFromList, u"Select from &Account List"_s, [this] { customers.ShowRecordArea(); });
    add(LocateInList, u"&Locate Account in Name List "_s, [this] { search.LocateInList(); });
    return card;
}

QPushButton* frmCustomer::MakeMove(Move move, const QString& caption, const QString& tip) {
    auto* button = MakeButton(Indexed(u"cmdNav"_s, int(move)), caption,
                              [this, move] { Run([this, move] { customers.MoveTo(move); }); });
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    cmdNav[move] = button;
    return button;
}

QWidget* frmCustomer::MakeMoveCard() {
    auto* card = new Card(u"Customer Records"_s);
    auto* steps = new QHBoxLayout;
    steps->addWidget(MakeMove(Move::First, u"|<<"_s, u"Selects 1st Customer Record"_s));
    steps->addWidget(MakeMove(Move::Previous, u"<"_s, u"Selects Previous Customer Record"_s));
    steps->addWidget(MakeMove(Move::Next, u">"_s, u"Selects Next Customer Record"_s));
    steps->addWidget(MakeMove(Move::Last, u">>|"_s, u"Selects Last Customer Record"_s));
    auto* jumps = new QHBoxLayout;
    jumps->addWidget(MakeMove(Move::Quarter, u">"_s, u"Goes  1/4 into Customer Records"_s));
    jumps->addWidget(MakeMove(Move::Half, u">>"_s, u"Goes 1/2 into Customer Records"_s));
    jumps->addWidget(MakeMove(Move::ThreeQuarters, u">>>"_s, u"Goes 3/4 into Customer Record"_s));
    card->Rows()->addLayout(steps);
    card->Rows()->addWidget(SoftLabel(u"By quarters of the file"_s));
    card->Rows()->addLayout(jumps);
    card->Rows()->addWidget(MakeAutoAdvance());
    return card;
}

QWidget* frmCustomer::MakeAutoAdvance() {
    cmdAutoAdvance = MakeButton(Indexed(u"cmdNav"_s, autoAdvance), customers.Advance.Caption(),
                                [this] { Run([this] { customers.ToggleAutoAdvance(); }); });
    cmdAutoAdvance->setToolTip(u"Increments Customer Record at set rate"_s);
    autoAdvancePanel = new AutoAdvancePanel(customers.Advance);
    connect(autoAdvancePanel, &AutoAdvancePanel::Tick, this, &frmCustomer::Timer1_Timer);
    auto* block = new QWidget;
    auto* rows = new QVBoxLayout(block);
    rows->setContentsMargins({});
    rows->addWidget(cmdAutoAdvance);
    rows->addWidget(autoAdvancePanel);
    return block;
}

QWidget* frmCustomer::MakeSearch() {
    fraSearch = new CustomerSearchPanel(search);
    connect(fraSearch, &CustomerSearchPanel::OptionClicked, this,
            [this](SearchField field) { Run([this, field] { search.optSearch_Click(field); }); });
    connect(fraSearch, &CustomerSearchPanel::StartClicked, this,
            &frmCustomer::cmdStartSearch_Click);
    connect(fraSearch, &CustomerSearchPanel::ClearClicked, this,
            [this] { Run([this] { search.cmdClearSearch_Click(); }); });
    connect(fraSearch, &CustomerSearchPanel::HideClicked, this,
            [this] { Run([this] { search.cmdHideSearch_Click(); }); });
    return fraSearch;
}

QWidget* frmCustomer::MakeFound() {
    fraCustomersFound = new CustomersFoundPanel(search);
    connect(fraCustomersFound, &CustomersFoundPanel::SelectClicked, this,
            [this] { Run([this] { search.mnuSelect_Click(); }); });
    connect(fraCustomersFound, &CustomersFoundPanel::RetryClicked, this,
            [this] { Run([this] { search.cmdRetry_Click(); }); });
    connect(fraCustomersFound, &CustomersFoundPanel::PrintClicked, this,
            [this] { Run([this] { office.customerReport.cmdPrintCustomers_Click(); }); });
    return fraCustomersFound;
}

QWidget* frmCustomer::MakeAux() {
    fraAux = new AuxiliaryPanel(office.auxiliaryData, auxiliary, customers.fraAux);
    connect(fraAux, &AuxiliaryPanel::ButtonClicked, this,
            [this](AuxButton index) { Run([this, index] { auxiliary.cmdSaveAux_Click(index); }); });
    connect(fraAux, &AuxiliaryPanel::BoxDoubleClicked, this,
            [this](int box) { Run([this, box] { auxiliary.txtAux_DblClick(box); }); });
    connect(fraAux, &AuxiliaryPanel::HeadingDoubleClicked, this,
            [this](int box) { Run([this, box] { auxiliary.txtHeading_DblClick(box); }); });
    return fraAux;
}

/// From the top of the record down, then the buttons beside it, then the foot.
void frmCustomer::SetTabOrder() {
    QList<QWidget*> order = {cmdAcctType,
                             Text(CustomerText::AcctNo),
                             Text(CustomerText::BusinessName),
                             cboTitle,
                             Text(CustomerText::FirstName),
                             Text(CustomerText::MiddleInitial),
                             Text(CustomerText::LastName),
                             cboAccounts,
                             Text(CustomerText::Address1),
                             Text(CustomerText::Address2),
                             cboCity,
                             cboStates,
                             Text(CustomerText::PostalCode),
                             txtAdd3,
                             txtAdd4,
                             Text(CustomerText::Phone),
                             Image1,
                             Text(CustomerText::Cell),
                             Text(CustomerText::Email)};
    order << fraSearch->TabStops() << fraCustomersFound->TabStops() << fraAux->TabStops();
    for (const auto& [index, button] : Command1)
        order += button;
    for (const Move move : {Move::First, Move::Previous, Move::Next, Move::Last, Move::Quarter,
                            Move::Half, Move::ThreeQuarters})
        order += cmdNav[move];
    order << cmdAutoAdvance << autoAdvancePanel->Slider() << cmdCustomer[Menu]
          << cmdCustomer[CancelAddNew] << cmdNew << cmdCustomer[Select];
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmCustomer::SetKeyRules() {
    // Account numbers, and the telephone numbers that stand in for them, name folders.
    for (const CustomerText place : {CustomerText::AcctNo, CustomerText::Phone}) {
        Text(place)->SetKeyRule([this, place](ushort key) {
            return FilterNoSpecial(key, Text(place)->text(), office.machine.user);
        });
    }
    auto* name = Text(CustomerText::BusinessName);
    name->SetKeyRule([name](ushort key) {
        if (name->text() == "Enter Name"_L1)
            name->clear();
        return key;
    });
}

void frmCustomer::Run(const std::function<void()>& rule) {
    const QScopedValueRollback running(isRunning, true);
    customers.Focus = FocusOn::Nothing;
    ReadFields();
    rule();
    if (customers.IsGivenUp)
        LeaveWithoutCustomer();
    else
        ShowFields();
}

void frmCustomer::ReadFields() {
    for (const auto& [place, text] : txtCustomer)
        customers.Fields[place] = text->text();
    customers.Fields.cboTitle = cboTitle->currentText();
    customers.Fields.cboCity = cboCity->currentText();
    customers.Fields.cboStates = cboStates->currentText();
    customers.Fields.txtAdd3 = txtAdd3->text();
    customers.Fields.txtAdd4 = txtAdd4->text();
    fraSearch->Read();
    fraAux->Read();
}

void frmCustomer::ShowFields() {
    isShowing = true;
    for (const auto& [place, text] : txtCustomer) {
        if (text->text() != customers.Fields[place])
            text->Show(customers.Fields[place]);
    }
    cboTitle->Show(customers.Fields.cboTitle);
    cboCity->Show(customers.Fields.cboCity);
    cboStates->Show(customers.Fields.cboStates);
    txtAdd3->setText(customers.Fields.txtAdd3);
    txtAdd4->setText(customers.Fields.txtAdd4);
    lbLType->setText(customers.lbLType);
    fraUSAddress->setVisible(customers.UsaAddressStyle);
    fraIntAddress->setVisible(!customers.UsaAddressStyle);
    ShowName();
    ShowWhere();
    ShowFront();
    ShowEnabled();
    MoveFocus();
    isShowing = false;
}

void frmCustomer::ShowName() {
    const bool isPersonal = customers.Name == NamePlace::PersonalName;
    Text(CustomerText::BusinessName)->setVisible(customers.Name == NamePlace::BusinessName);
    cboTitle->setVisible(isPersonal);
    for (const CustomerText part :
         {CustomerText::FirstName, CustomerText::MiddleInitial, CustomerText::LastName})
        Text(part)->setVisible(isPersonal);
    const bool isList = customers.Name == NamePlace::AccountList;
    if (isList && cboAccounts->isHidden())
        cboAccounts->clearEditText();
    cboAccounts->setVisible(isList);
}

void frmCustomer::ShowWhere() {
    const QString place =
        u"Customer %1 of %2"_s.arg(customers.CurrentRecord).arg(customers.CustomerCount);
    const QString& name = customers.Fields[CustomerText::BusinessName];
    if (customers.CurrentRecord < 1 || customers.CustomerCount < 1)
        SetWhere(QString());
    else
        SetWhere(name.isEmpty() ? place : name + u"  \u00b7  "_s + place);
}

void frmCustomer::ShowFront() {
    fraSearch->Show();
    fraCustomersFound->Show();
    fraAux->Show();
    account->setVisible(!customers.fraSearchVisible && !customers.fraCustomersFoundVisible &&
                        !customers.fraAuxVisible);
    fraSearch->setVisible(customers.fraSearchVisible);
    fraCustomersFound->setVisible(customers.fraCustomersFoundVisible);
    fraAux->setVisible(customers.fraAuxVisible);
    cmdAutoAdvance->setText(customers.Advance.Caption());
    autoAdvancePanel->Show();
}

void frmCustomer::ShowEnabled() {
    for (const auto& [move, button] : cmdNav)
        button->setEnabled(customers.IsNavigationEnabled);
    for (const FindButton index : {SearchByCriteria, FindInNameList, SelectFromList})
        Command1[index]->setEnabled(customers.IsNavigationEnabled);
    cmdCustomer[CancelAddNew]->setVisible(customers.IsCancelVisible);
    mnuAdd->setEnabled(customers.mnuAddEnabled);
    mnuDelete->setEnabled(customers.mnuDeleteEnabled);
    mnuAux->setEnabled(customers.mnuAuxEnabled);
}

void frmCustomer::MoveFocus() {
    switch (customers.Focus) {
    case FocusOn::Nothing:
        break;
    case FocusOn::AcctNo:
        Text(CustomerText::AcctNo)->setFocus();
        break;
    case FocusOn::BusinessName:
        Text(CustomerText::BusinessName)->setFocus();
        break;
    case FocusOn::FirstName:
        Text(CustomerText::FirstName)->setFocus();
        break;
    case FocusOn::Phone:
        Text(CustomerText::Phone)->setFocus();
        break;
    case FocusOn::AccountList:
        cboAccounts->setFocus();
        break;
    case FocusOn::SelectButton:
        cmdCustomer[Select]->setFocus();
        break;
    case FocusOn::SearchText:
        fraSearch->FocusText();
        break;
    case FocusOn::FoundGrid:
        fraCustomersFound->FocusGrid();
        break;
    case FocusOn::AuxText:
        fraAux->FocusText();
        break;
    }
}

void frmCustomer::LeaveWithoutCustomer() {
    isShowing = true;
    autoAdvancePanel->Stop();
    screens.Destroy(ScreenName::frmCustomer);
    screens.Show(ScreenName::frmStartup);
}

void frmCustomer::txtCustomer_GotFocus(CustomerText place) {
    // Behind the area code and exchange only the last four digits are to be typed.
    if (place != CustomerText::Phone || Text(place)->text().size() != proposedPhone)
        return;
    Text(place)->end(false);
    // A click that brings the focus places the caret once more, behind this.
    QTimer::singleShot(0, Text(place), [this, place] { Text(place)->end(false); });
}

void frmCustomer::txtCustomer_LostFocus(CustomerText place) {
    if (isShowing)
        return;
    if (place == CustomerText::AcctNo)
        Run([this] { customers.AcctNo_LostFocus(); });
    else if (place == CustomerText::BusinessName)
        Run([this] { customers.BusinessName_LostFocus(); });
    behindLostFocus.start();
}

/// When a click on a button has brought up a message about the field before it, the message has
/// taken the release of the mouse, and the button would stay down.
void frmCustomer::ReleaseButtons() {
    if (QApplication::mouseButtons() != Qt::NoButton)
        return;
    for (auto* button : findChildren<QPushButton*>())
        button->setDown(false);
}

void frmCustomer::cboAccounts_LostFocus() {
    if (isShowing || cboAccounts->isHidden())
        return;
    Run([this] { customers.cboAccounts_LostFocus(cboAccounts->currentText()); });
    behindLostFocus.start();
}

void frmCustomer::cboAccounts_Click(int row) {
    // The toolkit tells a second time when a typed name is left.
    if (isShowing || cboAccounts->isHidden())
        return;
    Run([this, row] { customers.cboAccounts_Choose(row); });
}

void frmCustomer::cmdCustomer_Click(Button index) {
    if (index == CancelAddNew) {
        Run([this] { customers.CancelAddNew(); });
        return;
    }
    bool hasLeft = false;
    Run([this, index, &hasLeft] { hasLeft = customers.Leave(index == Select); });
    if (!hasLeft)
        return;
    if (office.MenuChoice == newDelivery && index == Select)
        screens.GoFrom(ScreenName::frmCustomer, ScreenName::frmDelivery);
    else if (office.MenuChoice == maintenance || office.MenuChoice == newDelivery)
        screens.GoFrom(ScreenName::frmCustomer, ScreenName::frmStartup);
    else
        screens.Hide(ScreenName::frmCustomer);
}

/// The name and number as they stand on the screen, which are not saved for it.
void frmCustomer::Image1_Click() {
    office.dialer.SetRecipient(Text(CustomerText::BusinessName)->text(),
                               Text(CustomerText::Phone)->text());
    screens.Show(ScreenName::frmDialer);
}

/// A search that finds no one leaves this screen where it is, behind the one that comes next.
void frmCustomer::cmdStartSearch_Click() {
    search.HasFoundNobody = false;
    Run([this] { search.cmdStartSearch_Click(); });
    if (!search.HasFoundNobody)
        return;
    if (office.MenuChoice == maintenance)
        screens.Show(ScreenName::frmStartup);
    else if (office.MenuChoice == newDelivery)
        screens.Show(ScreenName::frmDelivery);
}

/// While a message or a menu is in front the customer under it stays, and no message comes up over
/// another one.
void frmCustomer::Timer1_Timer() {
    if (isRunning || QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return;
    Run([this] { customers.MoveTo(Move::Next); });
}
