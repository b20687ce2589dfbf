#pragma once

#include "platform/Screen.h"

#include <map>

class Card;
class EntryBox;
class EntryField;
class Grid;
class Office;
class QCheckBox;
class QLabel;
class QPushButton;
class Screens;
class VehicleFleet;

/// The list of delivery vehicles and the fields to enter one, apart from the slips that name them.
class frmVehicle : public Screen {
    Q_OBJECT

public:
    /// Loads the fleet.
    frmVehicle(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Places in the array cmdServices.
    enum Button {
        ReturnToMenu = 0,
        ClearCapacity = 1,
        CloseInstructions = 2,
        AddNew = 8,
        Modify = 9,
        Delete = 10,
        ClearDescription = 11,
        Save = 13,
        CancelEntry = 14,
    };

private:
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    void MakeFootButtons();
    void MakeMenu();
    QWidget* MakeEntryCard();
    void MakeFields();
    QWidget* MakeInstructions();
    QWidget* MakeFleetGrid();

    void ReadFields();
    void ShowFields();
    void ShowProductChoice();
    void ShowFleet();
    void ShowWhere();
    void ShowAll();

    void cmdServices_Click(Button index);
    void cmdServices_ReturnToMenu();
    void cmdServices_ClearCapacity();
    void cmdServices_AddNew();
    void cmdServices_Modify();
    void cmdServices_Delete();
    void cmdServices_Save();
    void fgItems_Click(int row);
    void fgItems_KeyPick();
    void ckMixed_Click();
    void mnuInstructions_Click();

    Office& office;
    Screens& screens;
    VehicleFleet& fleet;

    EntryField* txtDescription = nullptr;
    EntryField* txtCapacity = nullptr;
    EntryBox* cboCapacity = nullptr;
    QCheckBox* ckMixed = nullptr;
    EntryBox* cboProducts = nullptr;
    /// The label of cboProducts, Label1(3).
    QLabel* lblProducts = nullptr;
    Grid* fgItems = nullptr;
    Card* fraInstructions = nullptr;
    std::map<Button, QPushButton*> cmdServices;
};
