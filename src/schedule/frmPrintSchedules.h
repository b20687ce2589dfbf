#pragma once

#include "platform/Screen.h"
#include "schedule/ScheduleBoard.h"

#include <array>
#include <map>

class AddItemsPanel;
class Card;
class ChoiceList;
class DatePicker;
class EntryField;
class Grid;
class Office;
class QCheckBox;
class QPushButton;
class QRadioButton;
class Screens;

/// The dispatcher's working screen for one day: the deliveries of a vehicle on a date, which of
/// them to print, and what is on a slip.
class frmPrintSchedules : public Screen {
    Q_OBJECT

public:
    frmPrintSchedules(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Prepares the screen when it is first brought up, not when it is made: it writes the invoice
    /// number, and a mere start of the program writes no data file.
    void Initform();

    /// Places in the array cmdPrint.
    enum Button {
        ReturnToMenu = 0,
        EnterToGrid = 1,
        ClearCharge = 2,
        Print = 3,
        AddItems = 4,
        CloseSlip = 5,
        SelectAll = 6,
        DeselectAll = 7,
        SaveSlip = 8,
        ToggleSlip = 12,
    };

private:
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    void MakeFootButtons();
    QWidget* MakeDateCard();
    QWidget* MakeVehicleCard();
    QWidget* MakeChargeCard();
    QWidget* MakeTaxCard();
    QWidget* MakePrintCard();
    QWidget* MakeWorkScheduleCard();
    QWidget* MakeScheduleGrid();
    QWidget* MakeSlipPanel();
    QWidget* MakeAddItemsPanel();
    QWidget* MakeSlipAddresses();
    QWidget* MakeSlipAmounts();
    QWidget* MakeAmount(const QString& heading, const QString& name);
    QLabel* MakeCaption(const QString& name);
    QLabel* Caption(const QString& name) const;

    void ShowBoard();
    void ShowCharge();
    void ShowSlip();
    void ShowTaxOptions();
    void ShowAddItems(bool areShown);
    void OfferAddItems(bool areOffered);
    void ReadTaxOptions();

    void DTPicker1_Change(QDate date);
    void lstVehicles_Click();
    void lstVehicles_Refill();
    void fgSchedule_Click(int row, int column);
    void fgSchedule_KeyPress(ushort key);
    ushort txtDeliveryCharge_KeyPress(ushort key);
    void cmdPrint_Click(Button index);
    void cmdPrint_EnterToGrid();
    void cmdPrint_ClearCharge();
    void cmdPrint_Print();
    void cmdPrint_ToggleSlip();
    void cmdPrint_SaveSlip();

    Office& office;
    Screens& screens;
    ScheduleBoard& board;
    bool isPrepared = false;

    DatePicker* DTPicker1 = nullptr;
    QLabel* lblWeekday = nullptr;
    ChoiceList* lstVehicles = nullptr;
    ChoiceList* lstWorkSchedule = nullptr;
    EntryField* txtDeliveryCharge = nullptr;
    QCheckBox* ckPopulated = nullptr;
    QCheckBox* ckPrintWorkSchedule = nullptr;
    QCheckBox* ckMInvoices = nullptr;
    std::array<QRadioButton*, 3> optTax{};
    Grid* fgSchedule = nullptr;
    Grid* fgItems = nullptr;
    Card* fraSlip = nullptr;
    AddItemsPanel* fraAddItems = nullptr;
    QWidget* printChoices = nullptr;
    QWidget* fraTax = nullptr;
    std::map<Button, QPushButton*> cmdPrint;
    std::map<QString, QLabel*> captions;
};
