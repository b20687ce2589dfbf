#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <ostream>

// How a failed expectation prints the toolkit's values.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);
void PrintTo(QDate date, std::ostream* out);
