#pragma once

#include "startup/Office.h"
#include "support/TestFolder.h"

#include <QString>
#include <QStringList>

/// A delivery as its two files hold it; what a test leaves alone is a delivery on Monday, 16 March
/// 2026, with the Flatbed Truck.
struct SampleSlip {
    QString number;
    QString customer = QStringLiteral("Corner Grocery");
    QString time = QStringLiteral("08:30am");
    QString date = QStringLiteral("3/16/2026");
    QString recurring = QStringLiteral("True");
    QString frequency = QStringLiteral("0000001");
    QString vehicle = QStringLiteral("Flatbed Truck");
    QString account = QStringLiteral("4471");
    QStringList soldTo = {QStringLiteral("Corner Grocery"),
                          QStringLiteral("12 Hill Street"),
                          QStringLiteral("Apt 3"),
                          QStringLiteral("Springfield"),
                          QStringLiteral("IL"),
                          QStringLiteral("62701")};
    QStringList shipTo = {
        QStringLiteral("Grocery Depot"), QStringLiteral("9 Mill Lane"), QStringLiteral("Dock B"),
        QStringLiteral("Decatur"),       QStringLiteral("IN"),          QStringLiteral("46733")};
    /// Everything between the number of item lines and the total: four lines an item.
    QStringList itemLines = {QStringLiteral("3"),     QStringLiteral("Gravel"),
                             QStringLiteral("$4.10"), QStringLiteral("$12.30"),
                             QStringLiteral("1"),     QStringLiteral("Sand"),
                             QStringLiteral("$2.35"), QStringLiteral("$2.35")};
    QString itemCount = QStringLiteral("2");
    QString total = QStringLiteral("$14.65");
};

/// The names of a slip's two files.
QString HeaderName(const QString& number);
QString ItemName(const QString& number);

/// Writes both files of the slip, line by line as they are laid down.
void WriteSlip(const TestFolder& folder, const SampleSlip& slip);
/// Writes vehicles of those names and loads them.
void WriteVehicles(Office& office, const QStringList& names);
