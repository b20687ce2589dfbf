#pragma once

#include "platform/Screen.h"
#include "reports/InvoiceReport.h"

#include <array>
#include <map>

class Grid;
class Office;
class QLabel;
class QListView;
class QPushButton;
class QRadioButton;
class RangeCard;
class Screens;

/// The invoices that were posted, of all accounts or of one, with the sums of their amounts.
class frmInvoiceReport : public Screen {
    Q_OBJECT

public:
    frmInvoiceReport(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Places in the array cmdSales.
    enum Button {
        ReturnToMenu = 0,
        LoadGrid = 1,
        DeleteRange = 2,
        PrintReport = 3,
        DeleteAll = 4,
    };

private:
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    QWidget* MakeAccountCard();
    QWidget* MakeTotalCard();
    QWidget* MakeGridCard();
    void ShowOpened();
    void ShowLoaded();
    void ShowAccounts();
    void ShowEmptied();

    void lstAccounts_Click();
    void optAcct_Click(InvoiceReport::AccountOption option);
    void cmdSales_Click(Button index);
    void cmdSales_Menu();
    void cmdSales_DeleteRange();

    Office& office;
    Screens& screens;
    InvoiceReport& report;
    RangeCard* range = nullptr;
    QListView* lstAccounts = nullptr;
    std::array<QRadioButton*, 2> optAcct{};
    std::array<QLabel*, InvoiceReport::amounts> lblTotal{};
    Grid* fgSales = nullptr;
    std::map<Button, QPushButton*> cmdSales;
};
