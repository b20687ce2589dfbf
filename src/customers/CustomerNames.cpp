#include "customers/CustomerNames.h"

using namespace Qt::StringLiterals;

QByteArrayView ShownBytes(QByteArrayView field) {
    const qsizetype nul = field.indexOf('\0');
    if (nul >= 0)
        field.truncate(nul);
    while (field.startsWith(' '))
        field = field.sliced(1);
    while (field.endsWith(' '))
        field.chop(1);
    return field;
}

QString BusinessType() {
    return u"Business"_s;
}

QString IndividualType() {
    return u"Individual"_s;
}

bool IsBusiness(const CustomerRecord& customer) {
    return ShownBytes(customer.AcctType) == "Business";
}

namespace {

void Append(QString& name, QStringView part) {
    name += part;
}

void Append(QString& name, QByteArrayView part) {
    AppendFromCodePage(name, part);
}

/// The parts have no blanks at their ends.
template <typename Part>
QString JoinedName(const Part& title, const Part& first, const Part& middle, const Part& last) {
    constexpr qsizetype roomForMost = 56;
    QString name;
    name.reserve(roomForMost);
    const auto append = [&name](const Part& part, QLatin1StringView behind) {
        if (part.isEmpty())
            return;
        Append(name, part);
        name += behind;
    };
    append(title, " "_L1);
    append(first, " "_L1);
    append(middle, ". "_L1);
    append(last, {});
    return name;
}

} // namespace

QString FullPersonalName(const QString& title, const QString& first, const QString& middle,
                         const QString& last) {
    return JoinedName(TrimBlanks(title), TrimBlanks(first), TrimBlanks(middle), TrimBlanks(last));
}

QString FullPersonalName(const CustomerRecord& customer) {
    return JoinedName(ShownBytes(customer.Title), ShownBytes(customer.FirstName),
                      ShownBytes(customer.MiddleInitial), ShownBytes(customer.LastName));
}

QString ShortCustomerName(const CustomerRecord& customer) {
    if (IsBusiness(customer))
        return ShownText(customer.BusinessName);
    QString name = ShownText(customer.LastName);
    name += ", "_L1;
    name += ShownText(customer.FirstName);
    return name;
}
