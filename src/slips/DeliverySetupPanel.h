#pragma once

#include "platform/Screen.h"
#include "slips/DeliveryCreation.h"

#include <functional>
#include <map>

class AddressLabels;
class ChoiceList;
class DatePicker;
class EntryField;
class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// Lets a rule work on what stands in the controls, and shows what it has made of it.
using RuleRunner = std::function<void(const std::function<void()>& rule)>;

/// fraSetup, the first stage of a delivery slip: for whom, when, how often and by which vehicle. It
/// holds no values of its own; what it shows is the form's.
class DeliverySetupPanel : public QWidget {
    Q_OBJECT

public:
    DeliverySetupPanel(DeliveryCreation& deliveryCreation, const DeliveryParts& deliveryParts,
                       const LiveSettings& liveSettings, Operator& person,
                       const RuleRunner& ruleRunner);

    /// Places in the array cmdInvoice; those of the foot are on the screen itself.
    enum Button { Continue = 0, Menu = 1, ReloadNumber = 2, CloseAccept = 3, EnterNewNumber = 4 };
    enum ShipToButton { SameAsSoldTo = 0, ClearDeliverTo = 1 };

    void ReadFields(DeliveryForm& form) const;
    void ShowFields(const DeliveryForm& form);
    void ArrangeAddresses(bool isUsaStyle);
    /// The control, when it is one of this panel.
    QWidget* Control(DeliveryFocus focus) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeSoldTo();
    QWidget* MakeDeliverTo();
    QWidget* MakeNumber();
    QWidget* MakeRecurrence();
    QWidget* MakeDays();
    QWidget* MakeDate();
    QWidget* MakeTime();
    QWidget* MakeVehicle();
    void AddReference(QVBoxLayout* rows);
    EntryField* MakeShipTo(int place, const QString& accessibleName);
    void MakeOption(RecurringOption option, const QString& caption);
    void ConnectDate();
    void ShowRecurrence(const DeliveryForm& form);

    void lstFrequency_Click(int place);

    DeliveryCreation& creation;
    const DeliveryParts parts;
    const LiveSettings& settings;
    Operator& user;
    RuleRunner run;

    QLabel* lblAcctNo = nullptr;
    AddressLabels* soldTo = nullptr;
    QGridLayout* shipToRows = nullptr;
    std::array<EntryField*, addressParts + 1> txtShipto{};
    std::array<QLabel*, addressParts> shipToLabels{};
    EntryField* txtDeliveryNo = nullptr;
    QLabel* nextNumber = nullptr;
    QLabel* lblShipping = nullptr;
    DatePicker* DTShip = nullptr;
    QLabel* weekday = nullptr;
    ChoiceList* lstTime = nullptr;
    ChoiceList* lstVehicles = nullptr;
    std::map<RecurringOption, QRadioButton*> optRecurring;
    QLabel* lblFrequency = nullptr;
    ChoiceList* lstFrequency = nullptr;
    QWidget* fraMulti = nullptr;
    std::array<QCheckBox*, daysOfWeek> ckMulti{};
    QCheckBox* ckCapacity = nullptr;
    QCheckBox* ckProduct = nullptr;
    EntryField* txtReference = nullptr;
};
