#include "customers/CustomerSelection.h"

#include "customers/CustomerNames.h"
#include "platform/RuntimeFailure.h"
#include "setup/AddressStyle.h"
#include "store/TextLines.h"

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString statesFile = u"/StatesList.txt"_s;
constexpr int statesInFile = 50;

/// Places in BusinessData.
enum OwnData { OwnCity = 3, OwnState = 4, OwnPostalCode = 5, OwnTelephone = 6 };

/// Of a telephone number AAA-EEE-NNNN.
constexpr int areaAndExchange = 7;

constexpr int fewestForQuarters = 4;
constexpr int shortestName = 2;

} // namespace

CustomerSelection::CustomerSelection(BasicDiskRoutines& diskRoutines, CustomerFiles& customerFiles,
                                     const LiveSettings& liveSettings, Operator& person,
                                     DeliveryCustomer& customerOfDelivery,
                                     AuxiliaryData& auxiliaryData)
    : disk(diskRoutines), files(customerFiles), settings(liveSettings), user(person),
      delivery(customerOfDelivery), auxiliary(auxiliaryData) {}

const QStringList& CustomerSelection::Titles() {
    static const QStringList titles = {u"Mr/Mrs"_s, u"Mr."_s, u"Mrs"_s, u"Ms"_s, u"Miss"_s};
    return titles;
}

bool CustomerSelection::IsBusiness() const {
    return lbLType == BusinessType();
}

void CustomerSelection::Load() {
    IsGivenUp = false;
    IsCancelVisible = false;
    mnuAddEnabled = true;
    mnuAuxEnabled = true;
    mnuDeleteEnabled = true;
    CurrentRecord = 1;
    TypeAheadBusy = false;
    Advance = {};
    saved.reset();
    LoadStates();
    auxiliary.Load();
    Fields = {};
    lbLType = BusinessType();
    ShowRecordArea();
    TakeAddressStyle();
    if (files.AreThere()) {
        IsNavigationEnabled = true;
        CustomerCount = files.Count();
        ListAccounts();
        files.RebuildMissing(CustomerCount);
        ShowCustomer();
    } else {
        LoadFirstCustomer();
    }
    Focus = FocusOn::AcctNo;
}

void CustomerSelection::LoadStates() {
    cboStates.clear();
    if (!disk.FileExists(statesFile))
        return;
    disk.OpenForInput(statesFile);
    TextReader reader(disk);
    for (int i = 0; i < statesInFile; ++i)
        cboStates += reader.Text();
    disk.CloseAllFiles();
}

/// The proposals are gone with the message: the first customer is entered into empty fields.
void CustomerSelection::LoadFirstCustomer() {
    IsNavigationEnabled = false;
    CustomerCount = 0;
    acctState = 1;
    PrefillAddress();
    Fields[CustomerText::Phone] = settings.BusinessData[OwnTelephone].left(areaAndExchange) + u'-';
    user.MsgBox(u"Your Customer File is Empty\nCreate your First Customer Now"_s, Buttons::Ok,
                u"Create Customers"_s);
    mnuDeleteEnabled = false;
    Fields = {};
    SetAccountType(IndividualType());
}

void CustomerSelection::PrefillAddress() {
    Fields.cboCity = settings.BusinessData[OwnCity];
    Fields[CustomerText::PostalCode] = settings.BusinessData[OwnPostalCode];
    Fields.cboStates = settings.BusinessData[OwnState];
}

void CustomerSelection::TakeAddressStyle() {
    UsaAddressStyle = IsUsaStyle(settings);
}

void CustomerSelection::SetAccountType(const QString& type) {
    Focus = FocusOn::AcctNo;
    if (type == BusinessType()) {
        AccountDisplayName = ShownText(files.Customer.BusinessName);
        Name = NamePlace::BusinessName;
        lbLType = BusinessType();
    } else {
        AccountDisplayName = FullPersonalName(files.Customer);
        Name = NamePlace::PersonalName;
        lbLType = IndividualType();
    }
    fraAux = u"Data for "_s + AccountDisplayName;
}

void CustomerSelection::ToggleAccountType() {
    SetAccountType(IsBusiness() ? IndividualType() : BusinessType());
}

void CustomerSelection::ShowRecordArea() {
    BringRecordToFront();
    SetAccountType(lbLType);
}

void CustomerSelection::BringRecordToFront() {
    fraSearchVisible = false;
    fraCustomersFoundVisible = false;
    fraAuxVisible = false;
    if (Name == NamePlace::AccountList)
        Name = IsBusiness() ? NamePlace::BusinessName : NamePlace::PersonalName;
}

void CustomerSelection::ShowCustomer() {
    if (CurrentRecord < 1)
        return;
    Fields = {};
    fraSearchVisible = false;
    saved.reset();
    files.ReadCustomer(CurrentRecord);
    SetAccountType(ShownText(files.Customer.AcctType));
    FillFields();
    acctState = files.Customer.AcctState.Value();
    Focus = Fields[CustomerText::AcctNo].isEmpty() ? FocusOn::AcctNo : FocusOn::SelectButton;
    // So an individual's record comes to hold his full name as BusinessName with the next save.
    if (Fields[CustomerText::BusinessName].isEmpty())
        Fields[CustomerText::BusinessName] = FullPersonalName(files.Customer);
    auxiliary.LoadAuxData(Fields[CustomerText::AcctNo]);
    files.ReadContractAndCycle(CurrentRecord);
}

void CustomerSelection::FillFields() {
    const CustomerRecord& customer = files.Customer;
    Fields[CustomerText::AcctNo] = ShownText(customer.AcctNo);
    Fields[CustomerText::BusinessName] = ShownText(customer.BusinessName);
    Fields[CustomerText::Address1] = ShownText(customer.Address1);
    Fields[CustomerText::Address2] = ShownText(customer.Address2);
    // Both styles are filled, whichever is shown.
    Fields.cboCity = ShownText(customer.City);
    Fields.txtAdd3 = ShownText(customer.City);
    Fields.cboStates = ShownText(customer.State);
    Fields[CustomerText::PostalCode] = ShownText(customer.Zip);
    if (Fields[CustomerText::PostalCode].isEmpty())
        Fields[CustomerText::PostalCode] = ShownText(customer.PostalOrAddress4);
    Fields.txtAdd4 = ShownText(customer.PostalOrAddress4);
    Fields[CustomerText::Phone] = ShownText(customer.Phone);
    Fields[CustomerText::Email] = ShownText(customer.Email);
    Fields[CustomerText::FirstName] = ShownText(customer.FirstName);
    Fields[CustomerText::MiddleInitial].clear();
    Fields[CustomerText::LastName] = ShownText(customer.LastName);
    Fields[CustomerText::Cell] = ShownText(customer.Cell);
    Fields.cboTitle = ShownText(customer.Title);
}

bool CustomerSelection::HasName() {
    if (IsBusiness()) {
        if (!Fields[CustomerText::BusinessName].isEmpty())
            return true;
        user.MsgBox(u"The Account Name Cannot be Blank"_s);
        BringRecordToFront();
        Focus = FocusOn::BusinessName;
        return false;
    }
    if (!Fields[CustomerText::FirstName].isEmpty() && !Fields[CustomerText::LastName].isEmpty())
        return true;
    user.MsgBox(u"Enter Account Data or\n Click Cancel AddNew if Visible"_s);
    BringRecordToFront();
    Focus = FocusOn::FirstName;
    return false;
}

/// Without a number of its own the account goes by its telephone number.
bool CustomerSelection::HasAccountNumber() {
    if (!Fields[CustomerText::AcctNo].isEmpty())
        return true;
    if (!Fields[CustomerText::Phone].isEmpty()) {
        Fields[CustomerText::AcctNo] = TrimBlanks(Fields[CustomerText::Phone]);
        user.MsgBox(u"Telephone Number will be used as Acct No."_s, Buttons::Ok,
                    u"Account not Entered"_s);
        return true;
    }
    user.MsgBox(u"The Telephone Number cannot be blank"_s, Buttons::Ok, u"No number"_s);
    IsGivenUp = user.MsgBox(u"Would you like to exit\nwithout creating a Customer?"_s,
                            Buttons::YesNo, u"No Customer"_s) == Answer::Yes;
    if (IsGivenUp)
        return false;
    BringRecordToFront();
    Focus = FocusOn::Phone;
    return false;
}

void CustomerSelection::SaveCustomer() {
    RecordValid = HasName();
    // A record without any number stays valid, though it is not written: what the operator was
    // about to do goes on.
    if (!RecordValid || !HasAccountNumber())
        return;
    // What stands on the screen after a cancel with nothing to go back to is the first customer.
    CurrentRecord = std::max(CurrentRecord, 1);
    FillRecord();
    files.WriteCustomer(CurrentRecord);
    // The first customer of all is not counted by an add.
    CustomerCount = std::max(CustomerCount, CurrentRecord);
    cboCity.Add(ShownText(files.Customer.City));
    IsNavigationEnabled = true;
    // A record that is saved twice without being shown in between gets the defaults the second
    // time; this is meant.
    files.WriteContractAndCycle(CurrentRecord);
    files.ResetContractDefaults();
    mnuAuxEnabled = true;
    mnuDeleteEnabled = true;
    mnuAddEnabled = true;
    saved = {Fields, lbLType};
}

void CustomerSelection::FillRecord() {
    CustomerRecord& customer = files.Customer;
    const auto trimmed = [this](CustomerText place) { return TrimBlanks(Fields[place]); };
    customer.AcctNo = trimmed(CustomerText::AcctNo);
    customer.BusinessName = trimmed(CustomerText::BusinessName);
    customer.Address1 = trimmed(CustomerText::Address1);
    customer.Address2 = trimmed(CustomerText::Address2);
    customer.CityListEntry = TrimBlanks(Fields.cboCity);
    // As it stands, in both styles.
    customer.Zip = Fields[CustomerText::PostalCode];
    if (UsaAddressStyle) {
        customer.City = TrimBlanks(Fields.cboCity);
        customer.State = TrimBlanks(Fields.cboStates);
        customer.PostalOrAddress4 = trimmed(CustomerText::PostalCode);
    } else {
        customer.City = TrimBlanks(Fields.txtAdd3);
        customer.State = QString();
        customer.PostalOrAddress4 = TrimBlanks(Fields.txtAdd4);
    }
    customer.Phone = trimmed(CustomerText::Phone);
    customer.Cell = trimmed(CustomerText::Cell);
    customer.Email = trimmed(CustomerText::Email);
    customer.Title = TrimBlanks(Fields.cboTitle);
    customer.FirstName = trimmed(CustomerText::FirstName);
    customer.MiddleInitial = QString();
    customer.LastName = trimmed(CustomerText::LastName);
    customer.AcctType = lbLType;
    customer.AcctState = acctState;
}

bool CustomerSelection::SaveAndGoOn() {
    SaveCustomer();
    return RecordValid && !IsGivenUp;
}

bool CustomerSelection::IsSavedAsShown() const {
    return saved && saved->fields == Fields && saved->type == lbLType;
}

bool CustomerSelection::LeaveFor(qint32 record) {
    if (!IsSavedAsShown() && !SaveAndGoOn())
        return false;
    GoTo(record);
    return true;
}

void CustomerSelection::ListAccounts() {
    if (CustomerCount > std::numeric_limits<qint16>::max())
        throw RuntimeFailure(
            FailureKind::Overflow,
            u"Listing the customers of CustomerData.txt failed: there are more than 32,767."_s);
    std::vector<AccountNames::Entry> accounts;
    accounts.reserve(size_t(std::max(CustomerCount, 0)));
    QStringList cities;
    cities.reserve(std::max(CustomerCount, 0));
    files.VisitAll(CustomerCount, [&](qint32 number) {
        cities += ShownText(files.Customer.City);
        accounts.push_back({ShortCustomerName(files.Customer), number});
    });
    cboCity.Fill(cities);
    cboAccounts.Fill(std::move(accounts));
}

void CustomerSelection::cmdNew_Click() {
    Advance.IsOn = false;
    AddNewCustomer();
}

void CustomerSelection::AddNewCustomer() {
    IsCancelVisible = true;
    BeginNewCustomer();
    if (IsGivenUp)
        return;
    // These also when the record on the screen could not be saved and nothing has begun.
    files.ResetContractDefaults();
    mnuAddEnabled = false;
    mnuAuxEnabled = false;
    mnuDeleteEnabled = false;
}

void CustomerSelection::BeginNewCustomer() {
    if (!SaveAndGoOn())
        return;
    // Behind the records of the file as well: one that a cancel has put out of reach must not be
    // written over.
    CustomerCount = std::max(CustomerCount, qint32(files.Count())) + 1;
    CurrentRecord = CustomerCount;
    files.BlankCustomer();
    acctState = 1;
    Fields = {};
    saved.reset();
    BringRecordToFront();
    SetAccountType(IndividualType());
    ListAccounts();
    PrefillAddress();
    Fields[CustomerText::Phone].clear();
    Focus = FocusOn::AcctNo;
}

void CustomerSelection::CancelAddNew() {
    Advance.IsOn = false;
    IsCancelVisible = false;
    // Also after an add that could not begin or was saved since: then the last customer is out of
    // reach until the screen loads again.
    --CustomerCount;
    GoTo(CustomerCount);
}

void CustomerSelection::DeleteCustomer() {
    // A list of customers in front would go on with the numbers of before.
    BringRecordToFront();
    if (user.MsgBox(u"Delete this Customer"_s, Buttons::YesNo) != Answer::Yes) {
        Focus = FocusOn::AcctNo;
        return;
    }
    files.Delete(CurrentRecord);
    // A count of 1 stays, though the file is empty then.
    if (CustomerCount > 1)
        --CustomerCount;
    ListAccounts();
    GoTo(1);
    Focus = FocusOn::AcctNo;
}

void CustomerSelection::GoTo(qint32 record) {
    CurrentRecord = record;
    ShowCustomer();
}

void CustomerSelection::MoveTo(Move move) {
    if (!SaveAndGoOn())
        return;
    const bool needsQuarters =
        move == Move::Quarter || move == Move::Half || move == Move::ThreeQuarters;
    if (needsQuarters && CustomerCount < fewestForQuarters)
        return;
    const qint32 quarter = CustomerCount / 4;
    switch (move) {
    case Move::First:
        GoTo(1);
        break;
    case Move::Previous:
        GoTo(CurrentRecord > 1 ? CurrentRecord - 1 : CurrentRecord);
        break;
    case Move::Next:
        GoTo(CurrentRecord < CustomerCount ? CurrentRecord + 1 : 1);
        break;
    case Move::Last:
        GoTo(CustomerCount);
        break;
    case Move::Quarter:
        GoTo(quarter);
        break;
    case Move::Half:
        GoTo(2 * quarter);
        break;
    case Move::ThreeQuarters:
        GoTo(3 * quarter);
        break;
    }
}

void CustomerSelection::ToggleAutoAdvance() {
    if (!SaveAndGoOn())
        return;
    Advance.IsOn = !Advance.IsOn;
    ShowCustomer();
}

void CustomerSelection::FindInNameList() {
    if (cboAccounts.rowCount() == 0)
        return;
    BringRecordToFront();
    Name = NamePlace::AccountList;
    Focus = FocusOn::AccountList;
}

QString CustomerSelection::cboAccounts_Change(const QString& text) {
    if (std::exchange(TypeAheadBusy, false))
        return {};
    const int row = cboAccounts.FirstBeginningWith(text);
    // Where nothing has been typed there is nothing to complete.
    if (text.isEmpty() || row < 0)
        return {};
    const QString rest = cboAccounts.At(row).name.mid(text.size());
    TypeAheadBusy = !rest.isEmpty();
    return rest;
}

void CustomerSelection::cboAccounts_DeleteKeyDown() {
    TypeAheadBusy = true;
}

void CustomerSelection::cboAccounts_Choose(int row) {
    ShowRecordArea();
    LeaveFor(cboAccounts.At(row).record);
}

void CustomerSelection::cboAccounts_LostFocus(const QString& text) {
    if (text.isEmpty())
        return;
    const int row = cboAccounts.Find(text);
    if (row >= 0) {
        cboAccounts_Choose(row);
        return;
    }
    user.MsgBox(u"Name Not Found\nFirst Accont is Displayed"_s);
    ShowRecordArea();
    LeaveFor(1);
}

void CustomerSelection::AcctNo_LostFocus() {
    QString& number = Fields[CustomerText::AcctNo];
    if (number == "Enter Account No"_L1) {
        number = Fields[CustomerText::Phone];
        if (number.isEmpty())
            Focus = FocusOn::AcctNo;
        return;
    }
    if (!files.IsDuplicate(number, CustomerCount, CurrentRecord))
        return;
    if (user.MsgBox(u"The Account Number is a duplicate\nClick Yes to Replace it\nEnter a "
                    u"different Number"_s,
                    Buttons::YesNo, u"Duplicate Account Number"_s) != Answer::Yes)
        return;
    // Nothing is replaced but the text on the screen.
    number.clear();
    Focus = FocusOn::AcctNo;
    disk.CloseAllFiles();
}

void CustomerSelection::BusinessName_LostFocus() {
    if (Fields[CustomerText::BusinessName].size() >= shortestName)
        return;
    if (settings.AlarmOn)
        user.Beep();
    user.MsgBox(u"The Name Field Must be at least 2 Characters\nThis is okay if Cancelling a New "
                u"Entry\nClick Cancel AddNew Again"_s,
                Buttons::Ok, u"No Name Entered"_s);
}

bool CustomerSelection::Leave(bool isSelected) {
    Advance.IsOn = false;
    if (IsCancelVisible)
        CancelAddNew();
    if (!SaveAndGoOn())
        return false;
    disk.CloseAllFiles();
    if (isSelected)
        HandOver();
    return true;
}

void CustomerSelection::HandOver() {
    // Texts as they stand on the screen, blanks and all; an empty part of a name leaves its blank.
    delivery.Name = IsBusiness() ? Fields[CustomerText::BusinessName]
                                 : QStringList{Fields.cboTitle, Fields[CustomerText::FirstName],
                                               Fields[CustomerText::MiddleInitial],
                                               Fields[CustomerText::LastName]}
                                       .join(u' ');
    delivery.Address1 = Fields[CustomerText::Address1];
    delivery.Address2 = Fields[CustomerText::Address2];
    if (UsaAddressStyle) {
        delivery.City = Fields.cboCity;
        delivery.State = TrimBlanks(Fields.cboStates);
        delivery.PostalCode = Fields[CustomerText::PostalCode];
    } else {
        delivery.City = Fields.txtAdd3;
        delivery.State = QString();
        delivery.PostalCode = Fields.txtAdd4;
    }
    delivery.Telephone = Fields[CustomerText::Phone];
    delivery.AccountNumber = Fields[CustomerText::AcctNo];
}
