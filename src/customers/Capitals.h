#pragma once

#include <QByteArrayView>
#include <QString>

/// Capitals by which names and texts of records are compared: a character stays one character, so
/// that a sharp s is no double s, and one whose capital the code page lacks stays as it is.

/// Writes the capitals of bytes of the code page, as many as there are, and returns their end.
char* WriteCapitals(QByteArrayView bytes, char* capitals);

/// A text with a character that the code page lacks, and so no record holds, comes back as it is.
QString InCapitals(const QString& text);
