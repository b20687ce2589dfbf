#pragma once

#include "platform/Screen.h"
#include "products/ItemFields.h"

#include <initializer_list>
#include <map>
#include <vector>

class Card;
class EntryBox;
class EntryField;
class Grid;
class InventoriedItems;
class NonInventoriedItems;
class Office;
class QCheckBox;
class QHBoxLayout;
class QPushButton;
class Screens;
class TallyFrame;
enum class InventoryKind;

/// Where the products are kept: one frame for the priced items with their stock, one for the items
/// without a price, shown one at a time.
class frmServices : public Screen {
    Q_OBJECT

public:
    frmServices(Office& theOffice, Screens& allScreens);

    /// Reloads fgItems.
    void LoadSalesItems();

    /// Places in the array cmdServices; those of the frame without prices end in Non.
    enum Button {
        ReturnToMenu = 0,
        PrintReport = 1,
        ReloadOrSort = 2,
        ShowTally = 3,
        PrintTally = 4,
        HideTally = 5,
        ClearLocations = 6,
        SaveLocations = 7,
        AddNew = 8,
        Modify = 9,
        DeleteItem = 10,
        ClearItem = 11,
        ModifyNon = 12,
        SaveItem = 13,
        Cancel = 14,
        AddNewNon = 15,
        CancelNon = 16,
        SaveItemNon = 17,
        ClearItemNon = 18,
        DeleteItemNon = 19,
        ClearPrices = 24,
    };

private:
    /// An entry field and the text of the rules that it shows.
    struct BoundField {
        EntryField* field;
        QString* text;
    };

    void MakeMenus();
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    QWidget* MakeFootGroup(std::initializer_list<QPushButton*> buttons);
    void MakeFoot();
    QWidget* MakeInventoriedFrame();
    Grid* MakeItemGrid();
    QHBoxLayout* MakeGridChoices();
    QWidget* MakeItemForm();
    QWidget* MakeNonInventoriedFrame();
    Grid* MakeNonItemGrid();
    QWidget* MakeNonItemForm();
    void SetKeyOrder();
    EntryBox* MakeCategoryBox();
    EntryField* MakeField(std::vector<BoundField>& fields, const QString& name,
                          const QString& accessibleName, QString& text);
    EntryField* MakeAmountField(const QString& name, const QString& accessibleName, QString& text);
    EntryField* MakeCountField(std::vector<BoundField>& fields, const QString& name,
                               const QString& accessibleName, QString& text);

    void ShowLoadedGrids();
    void ShowWhere();
    void ReadEntries();
    void ShowEntries();
    void EnableControls();
    void SetFocusTo(ItemFocus focus);
    void SetFocusToNon(ItemFocus focus);
    bool FinishField();

    void mnuInventoried_Click();
    void mnuNonInventoried_Click();
    void cmdServices_Click(Button index);
    void RunInventoried(Button index);
    ItemFocus Run(Button index);
    void RunNonInventoried(Button index);
    ItemFocus RunNon(Button index);
    void PrintInventory(InventoryKind kind);
    void RunTally(Button index);
    void cmdServices_Menu();
    void fgItems_Click(int row);
    void fgItems_KeyPress(ushort key);
    void fgNonItem_Click(int row);
    void fgNonItem_KeyPress(ushort key);
    void Amount_Left(EntryField* field);

    Office& office;
    Screens& screens;
    InventoriedItems& items;
    NonInventoriedItems& nonItems;
    std::vector<BoundField> itemFields;
    std::vector<BoundField> nonItemFields;
    /// The field that was left last held no amount and has taken the focus back.
    bool hasRefusedAmount = false;

    Card* fraInventoried = nullptr;
    Card* fraUnInventoried = nullptr;
    TallyFrame* fraTallySheets = nullptr;
    QWidget* itemForm = nullptr;
    QWidget* footInventoried = nullptr;
    QWidget* footUnInventoried = nullptr;
    QWidget* footTallySheets = nullptr;
    Grid* fgItems = nullptr;
    Grid* fgNonItem = nullptr;
    EntryBox* cboCategory = nullptr;
    EntryBox* lstSortBy = nullptr;
    QCheckBox* ckClearItem = nullptr;
    QCheckBox* ckCategory = nullptr;
    QCheckBox* ckByCategory = nullptr;
    EntryField* txtDescription = nullptr;
    EntryField* txtDescriptionNon = nullptr;
    EntryField* txtCost = nullptr;
    EntryField* sellPrice = nullptr;
    EntryField* discountPrice = nullptr;
    std::map<Button, QPushButton*> cmdServices;
};
