#pragma once

#include "platform/Screen.h"

#include <map>

class Grid;
class ItemSalesReport;
class Office;
class QListView;
class QPushButton;
class RangeCard;
class Screens;

/// How many units of the products picked were sold, and on which invoices.
class frmSalesReport : public Screen {
    Q_OBJECT

public:
    frmSalesReport(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Places in the array cmdSales.
    enum Button {
        ReturnToMenu = 0,
        SelectAll = 1,
        ResetAll = 2,
        LoadGrid = 3,
        PrintReport = 4,
        CloseInstructions = 5,
    };

private:
    void MakeMenu();
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    QWidget* MakeProductCard();
    QWidget* MakeInstructions();
    QWidget* MakeLineCard();
    QWidget* MakeTotalCard();
    void ShowOpened();
    void ShowReport();
    void ShowLoaded();

    void lstSalesItems_Click();
    void cmdSales_Click(Button index);
    void cmdSales_Menu();
    void mnuDelete_Click();

    Office& office;
    Screens& screens;
    ItemSalesReport& report;
    RangeCard* range = nullptr;
    QListView* lstSalesItems = nullptr;
    Grid* fgSalesItems = nullptr;
    Grid* fgTotals = nullptr;
    QWidget* fraInstructions = nullptr;
    std::map<Button, QPushButton*> cmdSales;
};
