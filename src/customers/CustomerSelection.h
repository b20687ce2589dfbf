#pragma once

#include "customers/AutoAdvance.h"
#include "customers/AuxiliaryData.h"
#include "customers/CustomerFiles.h"
#include "customers/CustomerLists.h"
#include "setup/LiveSettings.h"
#include "slips/DeliveryCustomer.h"

#include <array>
#include <optional>

/// Places in the array txtCustomer; place 4 is not used.
enum class CustomerText {
    AcctNo = 0,
    BusinessName = 1,
    Address1 = 2,
    Address2 = 3,
    PostalCode = 5,
    Phone = 6,
    Email = 7,
    FirstName = 8,
    /// Never stored.
    MiddleInitial = 9,
    LastName = 10,
    Cell = 11,
};

/// The texts of the record area of the customer screen, each under the name of its control.
struct CustomerFields {
    std::array<QString, 12> txtCustomer;
    QString cboTitle;
    QString cboCity;
    QString cboStates;
    QString txtAdd3;
    QString txtAdd4;

    QString& operator[](CustomerText place) { return txtCustomer.at(size_t(place)); }
    const QString& operator[](CustomerText place) const { return txtCustomer.at(size_t(place)); }

    bool operator==(const CustomerFields&) const = default;
};

/// What stands in the place of the name.
enum class NamePlace { BusinessName, PersonalName, AccountList };

/// The control that is to take the focus when an action is done.
enum class FocusOn {
    Nothing,
    AcctNo,
    BusinessName,
    FirstName,
    Phone,
    AccountList,
    SelectButton,
    SearchText,
    FoundGrid,
    AuxText,
};

/// Places of the buttons in the array cmdNav that move through the records.
enum class Move {
    First = 0,
    Previous = 1,
    Next = 2,
    Last = 3,
    Quarter = 4,
    ThreeQuarters = 5,
    Half = 6,
};

/// The customer on the screen, and the way from one to the next. There is no button to save: a
/// record is written back whenever the operator leaves it, and stays on the screen when it can't
/// be.
class CustomerSelection {
public:
    CustomerSelection(BasicDiskRoutines& diskRoutines, CustomerFiles& customerFiles,
                      const LiveSettings& liveSettings, Operator& person,
                      DeliveryCustomer& customerOfDelivery, AuxiliaryData& auxiliaryData);

    CustomerFields Fields;
    /// Captions.
    QString lbLType;
    QString fraAux;
    /// The account of the screen, for captions.
    QString AccountDisplayName;
    NamePlace Name = NamePlace::BusinessName;
    FocusOn Focus = FocusOn::Nothing;
    bool UsaAddressStyle = true;
    /// The search, the list of customers and the auxiliary data lie over the record. At most one of
    /// them and the list of names is in front.
    bool fraSearchVisible = false;
    bool fraCustomersFoundVisible = false;
    bool fraAuxVisible = false;

    AccountNames cboAccounts;
    CityNames cboCity;
    /// StatesList.txt; empty without one.
    QStringList cboStates;
    /// Keeps the completion of a typed name from acting on its own change of the text, and on a
    /// deletion.
    bool TypeAheadBusy = false;
    AutoAdvance Advance;

    /// cmdNav(0) to cmdNav(6) and Command1(0) to Command1(2).
    bool IsNavigationEnabled = false;
    bool mnuAddEnabled = true;
    bool mnuAuxEnabled = true;
    bool mnuDeleteEnabled = true;
    /// cmdCustomer(13). An account that is saved by moving on leaves it visible.
    bool IsCancelVisible = false;

    /// Counted from 1; 0 and below after a cancel that had nothing left to go back to.
    qint32 CurrentRecord = 1;
    /// An add counts as soon as it begins, before its record is in the file.
    qint32 CustomerCount = 0;
    /// The verdict of SaveCustomer.
    bool RecordValid = true;
    /// The operator wants to leave the screen without creating a customer: the screen is to be
    /// destroyed and the menu to be shown.
    bool IsGivenUp = false;

    static const QStringList& Titles();

    /// The screen's load work.
    void Load();
    void TakeAddressStyle();

    /// Reads CurrentRecord and fills the fields. Nothing happens when it is below 1.
    void ShowCustomer();
    void SaveCustomer();
    /// "Business", or anything else for an individual.
    void SetAccountType(const QString& type);
    void ToggleAccountType();
    /// Fills cboAccounts and cboCity; a plain save does not. More than 32,767 customers are an
    /// overflow.
    void ListAccounts();

    /// cmdNew, which also stops the auto advance.
    void cmdNew_Click();
    /// mnuAdd.
    void AddNewCustomer();
    void BeginNewCustomer();
    /// Goes to the last record, wherever the operator came from.
    void CancelAddNew();
    /// Asks first.
    void DeleteCustomer();

    /// Saves, then moves. The quarters all derive from one truncated quarter, and with less than 4
    /// customers they do nothing.
    void MoveTo(Move move);
    /// cmdNav(9): saves, then turns the auto advance on or off.
    void ToggleAutoAdvance();
    /// Shows another record. One that is not saved as it stands on the screen is saved first; false
    /// when it can't be, and so is not left.
    bool LeaveFor(qint32 record);

    /// Command1(1) and Command1(2).
    void FindInNameList();
    void ShowRecordArea();
    /// Puts the record in front of the search, the customers found, the auxiliary data and the list
    /// of names.
    void BringRecordToFront();
    /// What completes the text in the list of names to its first entry that begins with it; nothing
    /// when there is none.
    QString cboAccounts_Change(const QString& text);
    /// Delete or Backspace is going down.
    void cboAccounts_DeleteKeyDown();
    void cboAccounts_Choose(int row);
    /// A text that is no name on the list leads to the first customer.
    void cboAccounts_LostFocus(const QString& text);

    void AcctNo_LostFocus();
    void BusinessName_LostFocus();

    /// cmdCustomer(0), or with `isSelected` cmdCustomer(1), which hands the customer over for a
    /// delivery. False when the operator has to stay.
    bool Leave(bool isSelected);

private:
    bool IsBusiness() const;
    bool SaveAndGoOn();
    bool IsSavedAsShown() const;
    bool HasName();
    bool HasAccountNumber();
    void FillRecord();
    void FillFields();
    void PrefillAddress();
    void LoadStates();
    void LoadFirstCustomer();
    void GoTo(qint32 record);
    void HandOver();

    BasicDiskRoutines& disk;
    CustomerFiles& files;
    const LiveSettings& settings;
    Operator& user;
    DeliveryCustomer& delivery;
    AuxiliaryData& auxiliary;
    qint16 acctState = 0;
    /// What the record on the screen was last saved with; nothing since it has been shown. A second
    /// save would put the defaults over its contract and cycle.
    struct SavedRecord {
        CustomerFields fields;
        QString type;
    };
    std::optional<SavedRecord> saved;
};
