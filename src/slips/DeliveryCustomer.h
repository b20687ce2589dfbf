#pragma once

#include <QString>

/// The customer that the next delivery is for. The customer screen hands him over in these eight
/// texts, as they stand there; who writes a delivery never opens the customer file.
struct DeliveryCustomer {
    QString AccountNumber;
    QString Name;
    QString Address1;
    QString Address2;
    QString City;
    /// Blank in the international address style.
    QString State;
    QString PostalCode;
    QString Telephone;
};
