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

QString FullPersonalName(const QString& title, const QString& first, const QString& middle,
                         const QString& last) {
    QString name;
    const auto append = [&name](const QString& part, QLatin1StringView behind) {
        const QString trimmed = TrimBlanks(part);
        if (trimmed.isEmpty())
            return;
        name += trimmed;
        name += behind;
    };
    append(title, " "_L1);
    append(first, " "_L1);
    append(middle, ". "_L1);
    append(last, {});
    return name;
}

QString FullPersonalName(const CustomerRecord& customer) {
    return FullPersonalName(ShownText(customer.Title), ShownText(customer.FirstName),
                            ShownText(customer.MiddleInitial), ShownText(customer.LastName));
}

QString ShortCustomerName(const CustomerRecord& customer) {
    if (IsBusiness(customer))
        return ShownText(customer.BusinessName);
    QString name = ShownText(customer.LastName);
    name += ", "_L1;
    name += ShownText(customer.FirstName);
    return name;
}
