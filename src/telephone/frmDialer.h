#pragma once

#include "platform/Screen.h"

#include <array>
#include <map>

class Dialer;
class ElidedLabel;
class EntryField;
class Office;
class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class Screens;

/// Calls a customer, in front of the customer screen, which waits behind it. The screen goes with
/// the end of the call.
class frmDialer : public Screen {
    Q_OBJECT

public:
    /// Opens the port and loads the speed dial entries.
    frmDialer(Office& theOffice, Screens& allScreens);
    /// Hangs up when nothing else has: the close box is a way out like any other.
    ~frmDialer() override;

    void Activate() override;

    /// Places in the array cmdSpeedDialer.
    enum Button {
        SaveEntry = 0,
        CancelEntry = 1,
        DeleteEntry = 2,
        RestoreRecipient = 3,
        LoadRecipient = 4,
    };

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void StayOverCustomer();
    void MakeFoot();
    QWidget* MakeCallCard();
    QWidget* MakeModemCard();
    QWidget* MakeHelp();
    QWidget* MakeSpeedDialCard();
    QGridLayout* MakeSlots();
    QWidget* MakeAddCard();
    QPushButton* MakeButton(const QString& name, const QString& caption);
    QPushButton* MakeSpeedButton(Button index, const QString& caption);
    void SetTabOrder();

    void ShowAll();
    void ShowSlot(size_t slot);

    void ckDial1_Click(bool isTicked);
    void cmdDialer_Click(size_t slot);
    void cmdSpeedDialer_Click(Button index);
    void cmdNewDial_Click();
    void cmdCancel_Click();
    void cmdHangup_Click();
    void cmdHelp_Click();
    void Dialer_Dialed();
    void Unload();

    Office& office;
    Screens& screens;
    Dialer& dialer;
    /// The call is over, and the screen on its way out.
    bool isOver = false;

    ElidedLabel* lblName = nullptr;
    ElidedLabel* lblNumber = nullptr;
    ElidedLabel* lblStatus = nullptr;
    QCheckBox* ckDial1 = nullptr;
    std::array<QPushButton*, 10> cmdDialer{};
    std::array<EntryField*, 2> txtDialer{};
    std::map<Button, QPushButton*> cmdSpeedDialer;
    QPushButton* cmdNewDial = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdHangup = nullptr;
    QPushButton* cmdHelp = nullptr;
    Card* fraSpeedDial = nullptr;
    Card* fraHelp = nullptr;
};
