#include "customers/AuxiliaryWindow.h"

#include "customers/CustomerNames.h"
#include "store/Conversions.h"

using namespace Qt::StringLiterals;

AuxiliaryWindow::AuxiliaryWindow(CustomerSelection& customerSelection, AuxiliaryData& auxiliaryData)
    : customers(customerSelection), data(auxiliaryData) {}

void AuxiliaryWindow::Load() {
    lblAccount.clear();
    fraBigVisible = false;
    txtBig.clear();
    lblEditing.clear();
    BigBoxIndex = 0;
}

const QString& AuxiliaryWindow::AccountNumber() const {
    return customers.Fields[CustomerText::AcctNo];
}

void AuxiliaryWindow::RefreshAccount() {
    const CustomerFields& fields = customers.Fields;
    lblAccount = fields[CustomerText::BusinessName];
    if (customers.lbLType != BusinessType())
        lblAccount = TrimBlanks(fields.cboTitle) + u' ' +
                     TrimBlanks(fields[CustomerText::FirstName]) + u' ' +
                     TrimBlanks(fields[CustomerText::LastName]);
}

void AuxiliaryWindow::mnuAux_Click() {
    const bool isComing = !customers.fraAuxVisible;
    customers.BringRecordToFront();
    customers.fraAuxVisible = isComing;
    if (isComing)
        RefreshAccount();
    customers.Focus = isComing ? FocusOn::AuxText : FocusOn::AcctNo;
}

void AuxiliaryWindow::cmdSaveAux_Click(AuxButton index) {
    switch (index) {
    case AuxButton::SaveHeadings:
        data.SaveAuxHeadings();
        break;
    case AuxButton::CloseWindow:
        data.SaveAuxData(AccountNumber());
        customers.BringRecordToFront();
        customers.Focus = FocusOn::AcctNo;
        break;
    case AuxButton::ReloadThisAccount:
        data.LoadAuxData(AccountNumber());
        break;
    case AuxButton::HideBig:
        HideBig();
        break;
    case AuxButton::ClearBig:
        txtBig.clear();
        customers.Focus = FocusOn::AuxText;
        break;
    case AuxButton::ReloadBig:
        txtBig = data.txtAux.at(size_t(BigBoxIndex));
        customers.Focus = FocusOn::AuxText;
        break;
    case AuxButton::ShowNextAccount:
        data.SaveAuxData(AccountNumber());
        // Not a test for being the last one alone: before the first customer is saved there are
        // none, and going on would show a record that no file has, over what is being entered.
        if (customers.CurrentRecord < customers.CustomerCount)
            ShowAccount(customers.CurrentRecord + 1);
        break;
    case AuxButton::ShowPreviousAccount:
        data.SaveAuxData(AccountNumber());
        if (customers.CurrentRecord >= 2)
            ShowAccount(customers.CurrentRecord - 1);
        break;
    }
}

/// The record that is left is not saved on this way, unlike on all others.
void AuxiliaryWindow::ShowAccount(qint32 record) {
    customers.CurrentRecord = record;
    customers.ShowCustomer();
    RefreshAccount();
}

void AuxiliaryWindow::HideBig() {
    data.txtAux.at(size_t(BigBoxIndex)) = txtBig;
    fraBigVisible = false;
    customers.Focus = FocusOn::AuxText;
}

void AuxiliaryWindow::txtAux_DblClick(int box) {
    txtBig = data.txtAux.at(size_t(box));
    fraBigVisible = true;
    lblEditing = u"Editing Data Box # "_s + QString::number(box + 1) + u" - "_s +
                 data.txtHeading.at(size_t(box)) + u" - for "_s + lblAccount;
    BigBoxIndex = qint16(box);
    customers.Focus = FocusOn::AuxText;
}

void AuxiliaryWindow::txtHeading_DblClick(int box) {
    data.txtHeading.at(size_t(box)).clear();
}
