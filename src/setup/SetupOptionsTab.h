#pragma once

#include "platform/Operator.h"
#include "setup/LiveSettings.h"
#include "setup/PrintLook.h"
#include "setup/SettingsBinder.h"

#include <QTabWidget>

class Card;
class EntryField;
class SetupPrintingTab;
class SetupTaxationTab;

/// The setup screen's tab of options, a tab for each group of them.
class SetupOptionsTab : public QWidget {
    Q_OBJECT

public:
    SetupOptionsTab(LiveSettings& liveSettings, PrintLook& look, Operator& person);

    QTabWidget* SubTabs() const { return SSTab2; }
    /// At each showing: sample words in their colour, and the first tab in front.
    void Activate();
    /// Brings back to the controls what a rule has changed.
    void ShowAll() const;

private:
    QWidget* MakePhoneTab();
    QWidget* MakeWorkDaysTab();
    Card* MakeWorkDaysCard();
    void AddWorkDays(Card* card, const QString& name, const QString& caption, qint16 code);
    QWidget* MakeDeliveriesTab();
    QWidget* MakeDeliveryChargeField();
    QWidget* MakeAssistanceTab();
    template <typename Flag>
    QCheckBox* MakeCheck(const QString& name, const QString& caption, Flag& value);

    void txtDeliveryCharge_LostFocus(EntryField* box);

    LiveSettings& settings;
    Operator& user;
    SettingsBinder binder;
    SetupPrintingTab* printing = nullptr;
    SetupTaxationTab* taxation = nullptr;
    QTabWidget* SSTab2 = nullptr;
};
