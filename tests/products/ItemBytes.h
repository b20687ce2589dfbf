#pragma once

#include <QByteArray>

/// A number as the item files hold it: its lowest byte first.
inline QByteArray LittleBytes(qint64 value, int width) {
    QByteArray bytes;
    for (int i = 0; i < width; ++i)
        bytes += char(quint8(quint64(value) >> (8 * i)));
    return bytes;
}

/// A record of NXInventoriedItems.txt; amounts in ten-thousandths.
struct ItemBytes {
    QByteArray description;
    QByteArray category = "Bulk";
    qint64 unitCost = 10'000;
    qint64 sellPrice = 20'000;
    int onHand = 7;
    qint64 discountPrice = 15'000;
    int discountQty = 12;
    int reorderAmount = 5;
    int reorderPoint = 2;

    QByteArray Record() const {
        return description.leftJustified(50, ' ') + category.leftJustified(20, ' ') +
               LittleBytes(unitCost, 8) + LittleBytes(sellPrice, 8) + LittleBytes(onHand, 2) +
               LittleBytes(discountPrice, 8) + LittleBytes(discountQty, 4) +
               LittleBytes(reorderAmount, 2) + LittleBytes(reorderPoint, 2);
    }
};

/// A record of NonInventoriedItems.txt.
struct NonItemBytes {
    QByteArray description;
    int onHand = 7;
    int reorderAmount = 5;
    int reorderPoint = 2;

    QByteArray Record() const {
        return description.leftJustified(50, ' ') + LittleBytes(onHand, 2) +
               LittleBytes(reorderAmount, 2) + LittleBytes(reorderPoint, 2);
    }
};
