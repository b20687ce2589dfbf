#pragma once

#include "slips/DeliveryForm.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

/// A customer's address in six labels, laid out in one of the two address styles.
class AddressLabels : public QWidget {
    Q_OBJECT

public:
    /// The labels are lblCustomer(`firstIndex`) and the five that follow.
    explicit AddressLabels(int firstIndex);

    void Show(const DeliveryAddress& address);
    /// The USA style has street and apartment on one line, and city, state and zip on another; in
    /// the international style each has a line of its own.
    void Arrange(bool isUsaStyle);

private:
    std::array<QHBoxLayout*, addressParts> lines{};
    std::array<QLabel*, addressParts> parts{};
};
