#pragma once

#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "products/SalesItemLists.h"
#include "setup/LiveSettings.h"
#include "slips/DeliveryForm.h"
#include "slips/DeliveryTemplates.h"
#include "slips/VehicleFleet.h"
#include "store/Currency.h"

/// The item lines of the slip that is being written: posting them within the load capacity of the
/// vehicle, and changing them afterwards. A line holds the price of the moment it was posted.
class DeliveryItems {
public:
    DeliveryItems(DeliveryForm& deliveryForm, const SalesItemLists& itemLists,
                  VehicleFleet& vehicleFleet, DeliveryTemplates& deliveryTemplates,
                  const LiveSettings& liveSettings, Operator& person);

    /// Columns as SlipItemColumn; what stands here is what the slip's item file will hold. There is
    /// an empty row below the lines.
    GridModel fgDelivery;
    /// Of the lines posted.
    qint16 SlipItemCount = 0;
    Currency SlipTotal;
    /// In the units of the vehicle; 0 for no limit. Each line may come up to it, they are not added
    /// up.
    float LoadCapacity = 0;
    /// Whether cmdPost(0), for items without a price, and cmdPost(1) are enabled.
    std::array<bool, 2> cmdPost{true, true};

    /// Takes all lines off the slip, and its reference. A button that a full slip has disabled
    /// stays so.
    void ClearInvoice();
    /// Both buttons post again: for a new slip.
    void EnablePosting();
    /// Takes load capacity and caption of the units from the selected vehicle's record.
    void ApplyVehicle();

    /// cmdPost(1): the selected item. Units that are no number, or above 32,767, are a failure.
    void PostItem();
    /// cmdPost(0): a free line without a price.
    void PostNonPriced();
    /// cmdPost(2).
    void LeaveNonPriced();
    /// mnuNonInvoiced.
    void ShowNonPriced();
    void cboNonPricedDescription_Click();
    void txtUnits_LostFocus();

    void RecalculateTotal();
    /// A key pressed in fgDelivery changes the units of the current row. The total stays.
    void EditUnits(ushort key);
    /// Whether the current row of fgDelivery holds an item.
    bool HasItem() const;
    /// mnuDeleteItem: deletes the current row when the operator says so. The total stays.
    void DeleteItem();

    /// Replaces the lines by those of the selected template, at the template's prices.
    void LoadTemplate();

private:
    bool IsPositive(const QString& units, DeliveryFocus field);
    bool FitsVehicle(QString& units, DeliveryFocus field);
    void CallTo(DeliveryFocus field);
    void AddLine(const QString& units, const QString& description, const QString& price,
                 const QString& total);
    void FinishPost(size_t button);
    QString Vehicle() const;

    DeliveryForm& form;
    const SalesItemLists& items;
    VehicleFleet& fleet;
    DeliveryTemplates& templates;
    const LiveSettings& settings;
    Operator& user;
};
