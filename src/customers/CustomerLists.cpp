#include "customers/CustomerLists.h"

#include "store/Conversions.h"

#include <algorithm>

namespace {

bool ComesBefore(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) < 0;
}

QString Comparable(const QString& text) {
    return TrimBlanks(text.toUpper());
}

} // namespace

void AccountNames::Fill(std::vector<Entry> unsorted) {
    struct Keyed {
        QString key;
        size_t place;
    };
    // Names are brought to one case once each, not at each of the many comparisons.
    std::vector<Keyed> order;
    order.reserve(unsorted.size());
    for (size_t place = 0; place < unsorted.size(); ++place)
        order.push_back({unsorted[place].name.toCaseFolded(), place});
    std::sort(order.begin(), order.end(), [](const Keyed& one, const Keyed& other) {
        const int comparison = one.key.compare(other.key);
        return comparison < 0 || (comparison == 0 && one.place < other.place);
    });
    beginResetModel();
    entries.clear();
    entries.reserve(unsorted.size());
    for (const Keyed& entry : order)
        entries.push_back(std::move(unsorted[entry.place]));
    endResetModel();
}

int AccountNames::Find(const QString& text) const {
    const QString wanted = Comparable(text);
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return Comparable(entry.name) == wanted;
    });
    return found == entries.end() ? -1 : int(found - entries.begin());
}

int AccountNames::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(entries.size());
}

QVariant AccountNames::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return At(index.row()).name;
}

void CityNames::Fill(const QStringList& cities) {
    known.clear();
    QStringList names;
    for (const QString& city : cities) {
        if (!known.contains(city)) {
            known.insert(city);
            names += city;
        }
    }
    std::stable_sort(names.begin(), names.end(), ComesBefore);
    setStringList(names);
}

void CityNames::Add(const QString& city) {
    if (known.contains(city))
        return;
    known.insert(city);
    const QStringList names = stringList();
    const auto row =
        int(std::upper_bound(names.begin(), names.end(), city, ComesBefore) - names.begin());
    insertRow(row);
    setData(index(row), city);
}
