#pragma once

#include "store/Calendar.h"

#include <QDate>
#include <QString>

#include <array>

/// Places in the array optRecurring.
enum class RecurringOption { Recurring = 0, OneTime = 1 };

/// Places in the list lstFrequency; the codes of a slip's frequency end in them, but for the last.
enum class Frequency {
    Daily,
    Weekly,
    BiMonthly,
    Monthly,
    Quarterly,
    SemiAnnually,
    Annually,
    MultipleWeekDays,
};

/// The control that is to take the focus when an action is done.
enum class DeliveryFocus {
    Nothing,
    ShipToName,
    Attention,
    SlipNumber,
    ShipDate,
    Items,
    Units,
    NonPricedDescription,
    NonPricedUnits,
};

constexpr int addressParts = 6;
/// Name, street, apartment, city, state, zip.
using DeliveryAddress = std::array<QString, addressParts>;

/// The delivery slip that is being written, as it stands on the delivery screen: the texts, boxes
/// and selections under the names of their controls. Nothing of it is on disk until it is stored.
/// The lists are given by the place of their selected entry, from 0; below 0 when none is.
struct DeliveryForm {
    /// Also lblAcct.
    QString lblAcctNo;
    /// lblCustomer(0) to (5), and once more as lblCustomer(6) to (11).
    DeliveryAddress lblCustomer;
    /// txtShipto(0) to (5).
    DeliveryAddress txtShipto;
    /// txtShipto(6), to whose attention.
    QString attention;
    QString txtDeliveryNo;
    QDate DTShip;
    /// Today, as of the moment the slip was begun.
    QDate leastDate;
    int lstTime = -1;
    int lstVehicles = -1;
    /// What the screen shows; the slip's own flag is SlipIsRecurring, and the two can differ.
    RecurringOption optRecurring = RecurringOption::OneTime;
    int lstFrequency = -1;
    /// ckMulti(1) to (7), Sunday first.
    std::array<bool, daysOfWeek> ckMulti{};
    bool ckCapacity = false;
    bool ckProduct = false;
    QString txtReference;

    int lstItems = -1;
    QString txtUnits;
    QString cboNonPricedDescription;
    QString txtNonPriced;
    /// Currency text.
    QString txtTotal;

    /// Line 4 of the slip. It follows clicks on the two options, and a new slip clears it without
    /// touching them.
    bool SlipIsRecurring = false;
    /// Line 5 of the slip; empty until a frequency has been chosen.
    QString SlipFrequency;

    /// Captions: of the date, and of the units to post.
    QString lblShipping = QStringLiteral("Delivery Date");
    QString Label4 = QStringLiteral("Enter Quantity");
    /// Whether the frequencies can be chosen; their label, Label3(5), shows only then.
    bool lstFrequencyEnabled = false;
    /// A box once disabled stays so.
    std::array<bool, daysOfWeek> ckMultiEnabled{true, true, true, true, true, true, true};

    /// Which panels show.
    bool fraSetup = false;
    bool fraItems = false;
    bool fraNonPriced = false;
    bool fraMulti = false;
    bool fraCustomer = false;

    DeliveryFocus Focus = DeliveryFocus::Nothing;

    void HideAllPanels() { fraSetup = fraItems = fraNonPriced = fraMulti = fraCustomer = false; }
};
