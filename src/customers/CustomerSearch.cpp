#include "customers/CustomerSearch.h"

#include "customers/Capitals.h"
#include "customers/CustomerNames.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Place of the telephone number in BusinessData, and what of it is proposed: AAA-EEE-.
constexpr size_t ownTelephone = 6;
constexpr int proposedTelephone = 8;

const QString resultsCaption = u"Customers Search by Name Results"_s;
const QString listCaption = u"Customer List"_s;

QByteArrayView FieldOf(const CustomerRecord& customer, SearchField field) {
    switch (field) {
    case SearchField::BusinessName:
        return ShownBytes(customer.BusinessName);
    case SearchField::Address1:
        return ShownBytes(customer.Address1);
    case SearchField::Address2:
        return ShownBytes(customer.Address2);
    case SearchField::City:
        return ShownBytes(customer.City);
    case SearchField::State:
        return ShownBytes(customer.State);
    case SearchField::PostalOrAddress4:
        return ShownBytes(customer.PostalOrAddress4);
    case SearchField::Phone:
        return ShownBytes(customer.Phone);
    case SearchField::LastName:
        return ShownBytes(customer.LastName);
    case SearchField::AcctNo:
        return ShownBytes(customer.AcctNo);
    case SearchField::All:
        break;
    }
    return {};
}

/// Whether a text in capitals occurs anywhere in the field.
bool Occurs(const QByteArray& wanted, QByteArrayView field) {
    std::array<char, sizeof(CustomerRecord)> capitals;
    const char* const end = WriteCapitals(field, capitals.data());
    return QByteArrayView(capitals.data(), end).contains(wanted);
}

QString DisplayName(const CustomerRecord& customer) {
    return IsBusiness(customer) ? ShownText(customer.BusinessName) : FullPersonalName(customer);
}

} // namespace

CustomerSearch::CustomerSearch(CustomerSelection& customerSelection, CustomerFiles& customerFiles,
                               const LiveSettings& liveSettings, Operator& person)
    : fgCustomersFound({u"Customer Name"_s, u"Telephone"_s, u"Rec"_s}),
      customers(customerSelection), files(customerFiles), settings(liveSettings), user(person) {
    fgCustomersFound.AlignCentre(int(FoundColumn::Telephone));
    fgCustomersFound.AlignCentre(int(FoundColumn::Record));
    Load();
}

void CustomerSearch::Load() {
    txtSearchfor.clear();
    optSearch = SearchField::BusinessName;
    fraCustomersFound = resultsCaption;
    cmdPrintCustomersVisible = false;
    fgCustomersFound.SetRows(1);
}

void CustomerSearch::SearchByCriteria() {
    customers.SaveCustomer();
    if (!customers.RecordValid || customers.IsGivenUp)
        return;
    customers.BringRecordToFront();
    customers.fraSearchVisible = true;
    txtSearchfor.clear();
    customers.Focus = FocusOn::SearchText;
}

void CustomerSearch::optSearch_Click(SearchField field) {
    optSearch = field;
    customers.Focus = FocusOn::SearchText;
    // The own area code and exchange suit the telephone; the last name and the account number
    // behind it have always been filled with them as well.
    const bool isPrefilled = field == SearchField::Phone || field == SearchField::LastName ||
                             field == SearchField::AcctNo;
    txtSearchfor =
        isPrefilled ? settings.BusinessData[ownTelephone].left(proposedTelephone) : QString();
}

void CustomerSearch::cmdClearSearch_Click() {
    txtSearchfor.clear();
    customers.Focus = FocusOn::SearchText;
}

void CustomerSearch::cmdHideSearch_Click() {
    customers.fraSearchVisible = false;
    customers.Focus = FocusOn::SelectButton;
}

void CustomerSearch::cmdStartSearch_Click() {
    if (txtSearchfor.isEmpty()) {
        user.MsgBox(u"You must enter some criteria data for the Search"_s);
        customers.Focus = FocusOn::SearchText;
        return;
    }
    int foundCount = 0;
    FindCustomers(optSearch, TrimBlanks(InCapitals(txtSearchfor)), false, foundCount);
    customers.fraSearchVisible = false;
}

/// Records that the file does not hold yet are none to be found.
int CustomerSearch::FillGrid(SearchField field, const QString& searchText, bool listMode) {
    const GridModel::Refill refill(fgCustomersFound);
    fgCustomersFound.SetRows(1);
    // The list is one of all records: to a field it adds none.
    const bool isSearched = !listMode && IsInCodePage(searchText);
    const QByteArray wanted = ToCodePage(searchText);
    int foundCount = 0;
    const qint32 count = std::min(customers.CustomerCount, qint32(files.Count()));
    files.VisitAll(count, [&](qint32 number) {
        const CustomerRecord& customer = files.Customer;
        if (field != SearchField::All && !(isSearched && Occurs(wanted, FieldOf(customer, field))))
            return;
        ++foundCount;
        // By twice as many each time: adding thousands one by one would take longer than reading
        // their records.
        if (fgCustomersFound.DataRows() < foundCount)
            fgCustomersFound.SetRows(std::min(2 * foundCount, count) + 1);
        fgCustomersFound.SetText(foundCount, int(FoundColumn::Name), DisplayName(customer));
        fgCustomersFound.SetText(foundCount, int(FoundColumn::Telephone),
                                 ShownText(customer.Phone));
        fgCustomersFound.SetText(foundCount, int(FoundColumn::Record), QString::number(number));
    });
    fgCustomersFound.SetRows(foundCount + 1);
    fgCustomersFound.SetCurrent(foundCount > 0 ? 1 : 0, 0);
    return foundCount;
}

void CustomerSearch::FindCustomers(SearchField field, const QString& searchText, bool listMode,
                                   int& foundCount) {
    HasFoundNobody = false;
    foundCount = FillGrid(field, searchText, listMode);
    if (listMode)
        return;
    if (foundCount == 0) {
        user.MsgBox(u"No Customer Record meets this Criteria"_s, Buttons::Ok,
                    u"Customer not Found"_s);
        customers.Advance.IsOn = false;
        HasFoundNobody = true;
    } else if (foundCount == 1) {
        customers.fraCustomersFoundVisible = false;
        customers.LeaveFor(RecordOfRow(1));
    } else {
        ShowFound(resultsCaption, false);
    }
}

void CustomerSearch::ShowFound(const QString& caption, bool isWholeFile) {
    customers.BringRecordToFront();
    fraCustomersFound = caption;
    cmdPrintCustomersVisible = isWholeFile;
    customers.fraCustomersFoundVisible = true;
    customers.Focus = FocusOn::FoundGrid;
}

void CustomerSearch::LocateInList() {
    // Also where there is no file, and so no list to take its place.
    customers.BringRecordToFront();
    mnuPrint_Click();
}

void CustomerSearch::mnuPrint_Click() {
    if (!files.AreThere()) {
        user.Beep();
        return;
    }
    ShowFound(listCaption, true);
    int foundCount = 0;
    FindCustomers(SearchField::All, u"All"_s, true, foundCount);
}

qint32 CustomerSearch::RecordOfRow(int row) const {
    return ToInt32(fgCustomersFound.Text(row, int(FoundColumn::Record)));
}

void CustomerSearch::mnuSelect_Click() {
    const int row = fgCustomersFound.CurrentRow();
    if (row < 1)
        return;
    if (customers.LeaveFor(RecordOfRow(row)))
        customers.fraCustomersFoundVisible = false;
}

void CustomerSearch::cmdRetry_Click() {
    customers.fraCustomersFoundVisible = false;
    customers.Focus = FocusOn::SelectButton;
}
