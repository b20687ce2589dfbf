#include "customers/CustomerLists.h"

#include "customers/Capitals.h"
#include "store/Conversions.h"

#include <algorithm>

namespace {

bool ComesBefore(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) < 0;
}

/// The first four characters in one case as one number, which decides most comparisons by itself.
quint64 StartOf(const QString& text) {
    constexpr qsizetype characters = 4;
    constexpr int bitsOfCharacter = 16;
    quint64 start = 0;
    for (qsizetype i = 0; i < characters; ++i)
        start =
            start << bitsOfCharacter | (i < text.size() ? text[i].toCaseFolded().unicode() : 0U);
    return start;
}

/// The places of the texts in alphabetical order without regard to case; of equal ones the first
/// stays first.
template <typename TextAt>
std::vector<size_t> AlphabeticalOrder(size_t count, TextAt&& textAt) {
    struct Keyed {
        quint64 start;
        size_t place;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(count);
    for (size_t place = 0; place < count; ++place)
        keyed.push_back({StartOf(textAt(place)), place});
    std::sort(keyed.begin(), keyed.end(), [&](const Keyed& one, const Keyed& other) {
        if (one.start != other.start)
            return one.start < other.start;
        const int comparison = textAt(one.place).compare(textAt(other.place), Qt::CaseInsensitive);
        return comparison < 0 || (comparison == 0 && one.place < other.place);
    });
    std::vector<size_t> order(count);
    std::transform(keyed.begin(), keyed.end(), order.begin(),
                   [](const Keyed& entry) { return entry.place; });
    return order;
}

QString Comparable(const QString& text) {
    return TrimBlanks(InCapitals(text));
}

} // namespace

void AccountNames::Fill(std::vector<Entry> unsorted) {
    const std::vector<size_t> order = AlphabeticalOrder(
        unsorted.size(), [&](size_t place) -> const QString& { return unsorted[place].name; });
    beginResetModel();
    entries.clear();
    entries.reserve(unsorted.size());
    for (const size_t place : order)
        entries.push_back(std::move(unsorted[place]));
    endResetModel();
}

int AccountNames::Find(const QString& text) const {
    const QString wanted = Comparable(text);
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return Comparable(entry.name) == wanted;
    });
    return found == entries.end() ? -1 : int(found - entries.begin());
}

int AccountNames::FirstBeginningWith(const QString& text) const {
    // The names that begin with a text stand together, where the text itself would stand.
    const auto found = std::lower_bound(
        entries.begin(), entries.end(), text,
        [](const Entry& entry, const QString& wanted) { return ComesBefore(entry.name, wanted); });
    const bool isFound =
        found != entries.end() && found->name.startsWith(text, Qt::CaseInsensitive);
    return isFound ? int(found - entries.begin()) : -1;
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
    QStringList once;
    for (const QString& city : cities) {
        const qsizetype before = known.size();
        known.insert(city);
        if (known.size() > before)
            once += city;
    }
    QStringList names;
    names.reserve(once.size());
    for (const size_t place : AlphabeticalOrder(
             size_t(once.size()), [&](size_t at) -> const QString& { return once[qsizetype(at)]; }))
        names += once[qsizetype(place)];
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
