#pragma once

#include <QDate>
#include <QString>

/// Lays out the data folder of a sample business, a builders yard as it stands on the morning of
/// `today`: settings, customers, products, vehicles, and 60 delivery slips, five of them of days
/// gone by, on which the program has questions to ask at its start.
///
/// The folder is made when it is missing. One that already holds anything is refused as a failure
/// of kind FileAlreadyExists, and stays as it is.
void LayOutSampleBusiness(const QString& folder, QDate today);
