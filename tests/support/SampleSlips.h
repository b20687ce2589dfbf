#pragma once

#include "startup/Office.h"

#include <QString>

/// A slip as a test needs it: what is not given is plain and the same for all.
struct SampleSlip {
    QString number;
    QString date = QStringLiteral("3/9/2026");
    QString time = QStringLiteral("08:00am");
    QString recurring = QStringLiteral("False");
    QString frequency = {};
    QString vehicle = QStringLiteral("Van 2");
    QString customer = QStringLiteral("Corner Grocery");
    QString account = QStringLiteral("4471");
};

/// Writes both files of the slip, with two items and a total of $14.65.
void WriteSlip(Office& office, const SampleSlip& slip);
/// Writes vehicles of those names and loads them.
void WriteVehicles(Office& office, const QStringList& names);
