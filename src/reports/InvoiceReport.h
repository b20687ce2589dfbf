#pragma once

#include "customers/CustomerFiles.h"
#include "platform/GridModel.h"
#include "reports/ReportFrame.h"
#include "reports/ReportPrinter.h"
#include "store/Currency.h"

#include <QStringListModel>

#include <array>

struct JournalRecord;

/// The invoices posted in a range of dates, of all accounts or of one, with their amounts and the
/// sums of these: what frmInvoiceReport shows of InvoiceSalesJournal.txt.
class InvoiceReport : public ReportFrame {
public:
    InvoiceReport(BasicDiskRoutines& diskRoutines, CustomerFiles& customerFiles,
                  ReportPrinter& reportPrinter, const LiveSettings& liveSettings,
                  const Clock& machineClock, Operator& person);

    /// "Invoice No", "Invoice Date", "Account No", "Account Name", "Sub-total", "Discount", "Tax",
    /// "Grand Total".
    GridModel fgSales;
    /// The account numbers of all customers, in the order of their file.
    QStringListModel lstAccounts;
    /// The row that is selected in the list; below 0 when none is.
    int selectedAccount = -1;

    /// Places in the array optAcct.
    enum AccountOption { AllAccounts = 0, SingleAccount = 1 };
    AccountOption chosen = AllAccounts;

    static constexpr int amounts = 4;
    /// "Sub-Total", "Discounts Offered", "Tax", "Total": currency texts.
    std::array<QString, amounts> lblTotal;

    /// Lists the accounts anew, then loads the default range. The account that was selected stays
    /// so if it is still there, else the first takes its place.
    void Open() override;
    /// Each invoice in the range that is of another account than the one asked for leaves an empty
    /// row at the end of the grid, and so an empty line in print. More than 32,767 records are an
    /// overflow, and so is a sum beyond the range of a currency value.
    void LoadGrid() override;
    /// Both empty the grid; the totals stay until the next load.
    void SelectAccount(int row);
    void ChooseAccounts(AccountOption option);
    /// Fails as the printer fails.
    void Print();
    RangeDeletion DeleteRange();
    /// Asks once, whatever the range. True when the journal and its copy in Backup have gone and
    /// the menu is to be shown.
    bool DeleteAllRecords();

private:
    QString SelectedAccount() const;
    void AddRow(int row, const JournalRecord& record, const QString& date);
    void PrintPageHeading();
    void PrintRows();
    void PrintTotals();

    CustomerFiles& customers;
    ReportPrinter& page;
    const LiveSettings& settings;
    std::array<Currency, amounts> sums;
};
