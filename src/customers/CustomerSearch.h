#pragma once

#include "customers/CustomerSelection.h"
#include "platform/GridModel.h"

/// Places in the array optSearch, each with the field of the record that is searched.
enum class SearchField {
    BusinessName = 0,
    Address1 = 1,
    Address2 = 2,
    City = 3,
    State = 4,
    PostalOrAddress4 = 5,
    Phone = 6,
    LastName = 7,
    AcctNo = 8,
    /// No field: all records.
    All = 10,
};

/// Columns of fgCustomersFound.
enum class FoundColumn { Name, Telephone, Record };

/// Finding customers by what stands in a field, and the list of all of them. It works over the
/// customer on the screen and shows the one that is chosen there.
class CustomerSearch {
public:
    CustomerSearch(CustomerSelection& customerSelection, CustomerFiles& customerFiles,
                   const LiveSettings& liveSettings, Operator& person);

    /// The entries of fraSearch.
    QString txtSearchfor;
    SearchField optSearch = SearchField::BusinessName;

    /// Caption of fraCustomersFound.
    QString fraCustomersFound;
    bool cmdPrintCustomersVisible = false;
    GridModel fgCustomersFound;

    /// The search just made has found no one: the auto advance is off, and the screen of the menu
    /// choice comes to the front of the customer screen.
    bool HasFoundNobody = false;

    /// Brings a new screen's entries to what it starts with.
    void Load();

    /// Command1(0): saves the record first, each time anew.
    void SearchByCriteria();
    void optSearch_Click(SearchField field);
    void cmdClearSearch_Click();
    void cmdHideSearch_Click();
    void cmdStartSearch_Click();

    /// Fills the grid with the customers whose field holds the text anywhere, and goes on to the
    /// one found, to the grid with several, or tells that there is none. The text is in capitals
    /// and without blanks at its ends. With `listMode`, which is for All, it only fills the grid; a
    /// field finds nothing then. `foundCount` returns the rows.
    void FindCustomers(SearchField field, const QString& searchText, bool listMode,
                       int& foundCount);

    /// Command1(3).
    void LocateInList();
    /// All customers in the grid; a beep without a customer file.
    void mnuPrint_Click();
    /// Shows the customer of the grid's current row.
    void mnuSelect_Click();
    void cmdRetry_Click();

private:
    void ShowFound(const QString& caption, bool isWholeFile);
    int FillGrid(SearchField field, const QString& searchText, bool listMode);
    qint32 RecordOfRow(int row) const;

    CustomerSelection& customers;
    CustomerFiles& files;
    const LiveSettings& settings;
    Operator& user;
};
