#include "support/TextOutput.h"

void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"';
    for (const char byte : bytes) {
        if (byte >= ' ' && byte <= '~')
            *out << byte;
        else
            *out << "\\x" << QByteArray(1, byte).toHex().toStdString();
    }
    *out << '"';
}

void PrintTo(QDate date, std::ostream* out) {
    *out << date.toString(Qt::ISODate).toStdString();
}
