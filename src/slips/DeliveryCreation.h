#pragma once

#include "platform/Clock.h"
#include "platform/Operator.h"
#include "products/SalesItemLists.h"
#include "setup/LiveSettings.h"
#include "setup/SettingsStore.h"
#include "slips/DeliveryCustomer.h"
#include "slips/DeliveryForm.h"
#include "slips/DeliveryItems.h"
#include "slips/DeliverySlipRoutines.h"
#include "slips/DeliveryTemplates.h"
#include "slips/VehicleFleet.h"
#include "store/Calendar.h"
#include "store/DeliveryTimes.h"

/// What else the writing of a slip leans on.
struct DeliveryParts {
    DeliverySlipRoutines& slips;
    DeliveryItems& items;
    DeliveryTemplates& templates;
    SalesItemLists& itemLists;
    VehicleFleet& fleet;
    DeliveryTimes& times;
    const DeliveryCustomer& customer;
    Calendar& calendar;
    SettingsStore& settingsStore;
};

/// A delivery slip from its beginning to its storing: number, date, time, vehicle, recurrence and
/// deliver-to address of one customer's delivery. The lines are those of DeliveryItems.
class DeliveryCreation {
public:
    DeliveryCreation(DeliveryForm& deliveryForm, const DeliveryParts& deliveryParts,
                     const LiveSettings& liveSettings, const Clock& machineClock, Operator& person);

    /// The entries of lstFrequency.
    static const QStringList& Frequencies();

    /// The load work of the screen.
    void Load();
    /// Starts a new slip for the customer that was handed over. Recurrence, frequency and check
    /// boxes stay as the last slip left them.
    void Activate();

    /// txtDeliveryNo shows the next number again: cmdInvoice(2).
    void ReloadNumber();
    /// cmdInvoice(4).
    void EnterNewNumber();
    ushort txtDeliveryNo_KeyPress(ushort key, const QString& text);
    void txtDeliveryNo_LostFocus();
    void txtReference_LostFocus();

    void optRecurring_Click(RecurringOption option);
    void lstFrequency_Click(int place);
    /// cmdInvoice(3): the ticked weekdays become the frequency, and the first delivery moves to the
    /// lowest of them.
    void AcceptDays();

    /// Whether the date shown has passed while the screen stood open.
    void DTShip_Click();
    /// A date that the operator has entered. It is moved on to one that can take a delivery.
    void DTShip_Change(QDate date);
    /// The calendar has been closed without a pick.
    void DTShip_CloseUp();

    void lstVehicles_Click(int place);

    /// cmdShipToAddress(0) and (1).
    void SameAsSoldTo();
    void ClearDeliverTo();

    /// cmdInvoice(0): on to the items, unless something is missing.
    void Continue();
    /// cmdTemplate(0).
    void LoadTemplate();

    /// The panel menus.
    void mnuAccount_Click();
    void mnuSetup_Click();
    void mnuItems_Click();

    /// cmdRedo: the lines go; customer and number stay.
    void ReDo();
    /// cmdStore. False when there is nothing to store and the operator has to stay.
    bool Store();
    /// cmdExit, without the change of screens. Saves the delivery settings.
    void Exit();

private:
    void StartNewSlip();
    void DisableDaysOff();
    void FillCustomer();
    void PrepareReference();
    bool CheckDeliveryNumber();
    bool CheckCustomerData();
    void TellFirstDelivery();
    void MoveToFirstTickedDay();
    SlipHeader Header() const;

    DeliveryForm& form;
    DeliveryParts parts;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
};
