#pragma once

#include "customers/AuxiliaryData.h"
#include "customers/CustomerSelection.h"

/// Places in the array cmdSaveAux.
enum class AuxButton {
    SaveHeadings = 0,
    CloseWindow = 2,
    ReloadThisAccount = 3,
    HideBig = 4,
    ClearBig = 5,
    ReloadBig = 6,
    ShowNextAccount = 7,
    ShowPreviousAccount = 8,
};

/// The window fraAux over the record of a customer: his auxiliary texts, one of them at a time in
/// a larger size. Texts are saved by its buttons and by nothing else; leaving the customer in
/// another way discards what has been changed.
class AuxiliaryWindow {
public:
    AuxiliaryWindow(CustomerSelection& customerSelection, AuxiliaryData& auxiliaryData);

    /// Caption: whose texts these are. It follows the customer only when the window opens, and by
    /// the buttons that show the next and the previous account.
    QString lblAccount;

    /// The larger size stands over the boxes.
    bool fraBigVisible = false;
    QString txtBig;
    QString lblEditing;
    /// The box shown in the larger size, from 0.
    qint16 BigBoxIndex = 0;

    /// Brings a new screen's window to what it starts with.
    void Load();
    /// Shows the window, or hides it.
    void mnuAux_Click();
    /// The ways to the next and the previous account save the texts but not the record.
    void cmdSaveAux_Click(AuxButton index);
    void txtAux_DblClick(int box);
    /// Blanks the heading, on the screen only.
    void txtHeading_DblClick(int box);

private:
    const QString& AccountNumber() const;
    void RefreshAccount();
    void ShowAccount(qint32 record);
    void HideBig();

    CustomerSelection& customers;
    AuxiliaryData& data;
};
