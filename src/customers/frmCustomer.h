#pragma once

#include "customers/AuxiliaryWindow.h"
#include "customers/CustomerSearch.h"
#include "platform/Screen.h"

#include <QTimer>

#include <functional>
#include <map>

class AccountBox;
class AutoAdvancePanel;
class AuxiliaryPanel;
class CustomerSearchPanel;
class CustomersFoundPanel;
class EntryBox;
class EntryField;
class Office;
class QLabel;
class QPushButton;
class QToolButton;
class Screens;

/// The customers, one at a time: where they are kept, and where a delivery starts by selecting one.
class frmCustomer : public Screen {
    Q_OBJECT

public:
    frmCustomer(Office& theOffice, Screens& allScreens);

    /// The address style may have changed on the setup screen.
    void Activate() override;

    /// Places in the array cmdCustomer.
    enum Button { Menu = 0, Select = 1, CancelAddNew = 13 };
    /// Places in the array Command1.
    enum FindButton {
        SearchByCriteria = 0,
        FindInNameList = 1,
        SelectFromList = 2,
        LocateInList = 3
    };
    /// The place in the array cmdNav behind those of Move.
    static constexpr int autoAdvance = 9;

private:
    void MakeMenus();
    void MakeFoot();
    QWidget* MakeAccountCard();
    QWidget* MakeTypeRow();
    QWidget* MakeNameRow();
    QWidget* MakePhoneRow();
    QWidget* MakeUsAddress();
    QWidget* MakeInternationalAddress();
    QWidget* MakeFindCard();
    QWidget* MakeMoveCard();
    QWidget* MakeAutoAdvance();
    QWidget* MakeSearch();
    QWidget* MakeFound();
    QWidget* MakeAux();

    EntryField* MakeText(CustomerText place, const QString& accessibleName, double width,
                         int limit);
    EntryBox* MakeCombo(const QString& name, const QString& accessibleName);
    void MakeAccountList();
    QPushButton* MakeButton(const QString& name, const QString& caption,
                            const std::function<void()>& action);
    QPushButton* MakeMove(Move move, const QString& caption, const QString& tip);
    QAction* AddItem(QMenu* menu, const QString& name, const QString& caption,
                     const std::function<void()>& action);
    void SetTabOrder();
    void SetKeyRules();

    /// Lets a rule work on what stands in the controls, and shows what it has made of it.
    void Run(const std::function<void()>& rule);
    void ReadFields();
    void ShowFields();
    void ShowName();
    void ShowWhere();
    void ShowFront();
    void ShowEnabled();
    void MoveFocus();
    void LeaveWithoutCustomer();

    void ReleaseButtons();
    void txtCustomer_LostFocus(CustomerText place);
    void txtCustomer_GotFocus(CustomerText place);
    void cboAccounts_LostFocus();
    void cboAccounts_Click(int row);
    void cmdCustomer_Click(Button index);
    void cmdStartSearch_Click();
    void Image1_Click();
    void Timer1_Timer();

    EntryField* Text(CustomerText place) const { return txtCustomer.at(place); }

    Office& office;
    Screens& screens;
    CustomerSelection& customers;
    CustomerSearch& search;
    AuxiliaryWindow& auxiliary;
    /// A rule is at work; a message of it may be in front.
    bool isRunning = false;
    /// While the screen shows what a rule has done, no field is left by the operator.
    bool isShowing = false;
    QTimer behindLostFocus;

    std::map<CustomerText, EntryField*> txtCustomer;
    EntryField* txtAdd3 = nullptr;
    EntryField* txtAdd4 = nullptr;
    AccountBox* cboAccounts = nullptr;
    EntryBox* cboTitle = nullptr;
    EntryBox* cboCity = nullptr;
    EntryBox* cboStates = nullptr;
    QLabel* lbLType = nullptr;
    QToolButton* Image1 = nullptr;
    QPushButton* cmdAcctType = nullptr;
    QPushButton* cmdNew = nullptr;
    QWidget* fraUSAddress = nullptr;
    QWidget* fraIntAddress = nullptr;
    std::map<Button, QPushButton*> cmdCustomer;
    std::map<Move, QPushButton*> cmdNav;
    std::map<FindButton, QPushButton*> Command1;
    QPushButton* cmdAutoAdvance = nullptr;
    AutoAdvancePanel* autoAdvancePanel = nullptr;
    QWidget* account = nullptr;
    CustomerSearchPanel* fraSearch = nullptr;
    CustomersFoundPanel* fraCustomersFound = nullptr;
    AuxiliaryPanel* fraAux = nullptr;
    QAction* mnuAdd = nullptr;
    QAction* mnuDelete = nullptr;
    QAction* mnuAux = nullptr;
};
