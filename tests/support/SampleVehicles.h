#pragma once

#include <QByteArray>

/// How true and false lie in a record.
inline const QByteArray trueBytes = "\xff\xff";
inline const QByteArray falseBytes = QByteArray(2, '\0');

/// The 137 bytes of a vehicle as they lie in Vehicles.txt.
inline QByteArray VehicleBytes(const QByteArray& name, const QByteArray& capacity,
                               const QByteArray& mixed, const QByteArray& units,
                               const QByteArray& product) {
    return name.leftJustified(60, ' ') + capacity.leftJustified(30, ' ') + mixed +
           units.leftJustified(20, ' ') + product.leftJustified(25, ' ');
}
