#pragma once

#include "platform/Screen.h"
#include "reports/TaxesCollectedReport.h"

#include <array>
#include <map>

class Grid;
class Office;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class RangeCard;
class Screens;

/// The taxes that were charged, with a total for each of the two. The screen is destroyed on the
/// way back to the menu.
class frmTaxForm : public Screen {
    Q_OBJECT

public:
    frmTaxForm(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Places in the array cmdTax.
    enum Button {
        ReturnToMenu = 0,
        LoadGrid = 1,
        PrintReport = 2,
        DeleteRange = 3,
    };

private:
    QPushButton* MakeButton(Button index, const QString& caption);
    QWidget* MakeOptionCard();
    QWidget* MakeTotalCard();
    QWidget* MakeGridCard();
    void ShowOpened();
    void ShowLoaded();

    void cmdTax_Click(Button index);
    void cmdTax_Menu();
    void cmdTax_DeleteRange();

    Office& office;
    Screens& screens;
    TaxesCollectedReport report;
    RangeCard* range = nullptr;
    std::array<QRadioButton*, TaxesCollectedReport::OptionCount> optTax{};
    /// Label1(2) and Label1(3).
    std::array<QLabel*, TaxesCollectedReport::taxes> totalHeadings{};
    std::array<QLineEdit*, TaxesCollectedReport::taxes> txtTotal{};
    Grid* fgTax = nullptr;
    std::map<Button, QPushButton*> cmdTax;
};
