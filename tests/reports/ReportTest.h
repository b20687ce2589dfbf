#pragma once

#include "platform/GridModel.h"
#include "products/ItemBytes.h"
#include "schedule/InvoiceBytes.h"
#include "support/OfficeTest.h"

#include <QStringList>

#include <bit>

/// A date as a record holds it; `day` counts from 30 December 1899, so 46,090 is 9 March 2026.
inline QByteArray DayBytes(int day) {
    return LittleBytes(qint64(std::bit_cast<quint64>(double(day))), 8);
}

constexpr int firstOf2000 = 36'526;
constexpr int firstOfMarch = 46'082;
constexpr int ninthOfMarch = 46'090;

/// A record of SoldItems.txt; what a test leaves alone was sold today.
struct SoldBytes {
    QByteArray description = "Gravel";
    int day = ninthOfMarch;
    QByteArray invoiceNo = "20260001";
    int units = 3;

    QByteArray Record() const {
        return Field(description, 60) + DayBytes(day) + Field(invoiceNo, 20) +
               LittleBytes(units, 2);
    }
};

/// A record of InvoiceSalesJournal.txt; amounts in ten-thousandths.
struct JournalBytes {
    QByteArray name = "Corner Grocery";
    QByteArray account = "4471";
    QByteArray invoiceNo = "20260001";
    int day = ninthOfMarch;
    qint64 subTotal = 100'0000;
    qint64 tax = 6'2500;
    qint64 discount = 0;
    qint64 grandTotal = 106'2500;

    QByteArray Record() const {
        return Field(name, 45) + Field(account, 20) + Field(invoiceNo, 20) + DayBytes(day) +
               LittleBytes(subTotal, 8) + LittleBytes(tax, 8) + LittleBytes(discount, 8) +
               LittleBytes(grandTotal, 8);
    }
};

/// The data rows of a grid, a text each, its cells parted by "|".
inline QStringList RowsOf(const GridModel& grid) {
    QStringList rows;
    for (int row = 1; row <= grid.DataRows(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.Columns(); ++column)
            cells += grid.Text(row, column);
        rows += cells.join(QLatin1Char('|'));
    }
    return rows;
}
