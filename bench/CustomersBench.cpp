#include "customers/AccountBox.h"
#include "customers/CustomerRecords.h"
#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The most that the program takes.
constexpr int customers = 32'767;
/// Thousands of cities, as a business with customers all over the country has.
constexpr quint32 cities = 4'000;

/// Every second one a person, with names in no order.
CustomerRecord RecordOf(int number, QRandomGenerator& random) {
    CustomerRecord record{};
    const auto name = [&random] {
        return u"N"_s + QString::number(random.bounded(1'000'000'000), 36) + u" Trading"_s;
    };
    record.AcctNo = QString::number(100'000 + number);
    record.BusinessName = name();
    record.Address1 = u"12 Mill Road"_s;
    record.City = u"City "_s + QString::number(random.bounded(cities));
    record.FirstName = u"Ann"_s;
    record.LastName = name();
    record.AcctType = number % 2 == 0 ? u"Individual"_s : u"Business"_s;
    return record;
}

/// A data folder with as many customers as can be, loaded.
class ManyCustomers {
public:
    ManyCustomers() {
        QRandomGenerator random(7);
        BasicDiskRoutines& disk = office.rules.disk;
        OpenCustomerFile(disk);
        for (int number = 1; number <= customers; ++number)
            WriteRecord(disk, disk.DiskFile, number, RecordOf(number, random));
        disk.CloseAllFiles();
        office.rules.customers.Load();
    }

    CustomerSelection& Screen() { return office.rules.customers; }
    CustomerFiles& Files() { return office.rules.customerFiles; }
    CustomerSearch& Search() { return office.rules.customerSearch; }
    const std::string& Path() const { return path; }

private:
    BenchFolder folder;
    BenchOffice office{folder.Path()};
    const std::string path = folder.Path().toStdString() + "/CustomerData.txt";
};

void ReadAndSortNames(const std::string& path) {
    std::vector<std::string> names;
    names.reserve(customers);
    PlainReadRecords(path, sizeof(CustomerRecord), [&](const char* bytes) {
        const auto* record = reinterpret_cast<const CustomerRecord*>(bytes);
        names.emplace_back(record->BusinessName.bytes.data(), record->BusinessName.bytes.size());
    });
    std::sort(names.begin(), names.end());
    benchmark::DoNotOptimize(names.data());
}

} // namespace

static void ListAccounts(benchmark::State& state) {
    ManyCustomers many;
    if (many.Screen().cboAccounts.rowCount() != customers) {
        state.SkipWithError("The list has not all customers.");
        return;
    }
    CompareWithFloor(
        state,
        {"Listing 32,767 accounts against reading their records and sorting their names", 3.0},
        [&] { return SecondsOf([&] { many.Screen().ListAccounts(); }); },
        [&] { return SecondsOf([&] { ReadAndSortNames(many.Path()); }); });
}
BENCHMARK(ListAccounts)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

static void FindDuplicateAccount(benchmark::State& state) {
    ManyCustomers many;
    const QString none = u"no such number"_s;
    if (many.Files().IsDuplicate(none, customers, 1) ||
        !many.Files().IsDuplicate(QString::number(100'000 + customers), customers, 1)) {
        state.SkipWithError("The search does not tell a duplicate from none.");
        return;
    }
    CompareWithFloor(
        state, {"Searching 32,767 accounts for a duplicate against reading their records", 1.5},
        [&] {
            return SecondsOf(
                [&] { benchmark::DoNotOptimize(many.Files().IsDuplicate(none, customers, 1)); });
        },
        [&] {
            return SecondsOf([&] {
                PlainReadRecords(many.Path(), sizeof(CustomerRecord),
                                 [](const char* bytes) { benchmark::DoNotOptimize(*bytes); });
            });
        });
}
BENCHMARK(FindDuplicateAccount)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

static void SearchCustomers(benchmark::State& state) {
    ManyCustomers many;
    int found = 0;
    const auto search = [&] {
        many.Search().FindCustomers(SearchField::BusinessName, u"ZZ"_s, true, found);
    };
    search();
    if (found < 2 || found > customers / 100) {
        state.SkipWithError("The search does not find a few customers.");
        return;
    }
    CompareWithFloor(
        state, {"Searching 32,767 customers, a few found, against reading their records", 2.0},
        [&] { return SecondsOf(search); },
        [&] {
            return SecondsOf([&] {
                PlainReadRecords(many.Path(), sizeof(CustomerRecord),
                                 [](const char* bytes) { benchmark::DoNotOptimize(*bytes); });
            });
        });
}
BENCHMARK(SearchCustomers)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

static void SearchThatFindsAll(benchmark::State& state) {
    ManyCustomers many;
    int found = 0;
    const auto search = [&] {
        many.Search().FindCustomers(SearchField::BusinessName, u"TRADING"_s, true, found);
    };
    search();
    if (found != customers) {
        state.SkipWithError("The search does not find all customers.");
        return;
    }
    CompareWithFloor(
        state, {"Searching 32,767 customers, all found, against reading their records", 2.0},
        [&] { return SecondsOf(search); },
        [&] {
            return SecondsOf([&] {
                PlainReadRecords(many.Path(), sizeof(CustomerRecord),
                                 [](const char* bytes) { benchmark::DoNotOptimize(*bytes); });
            });
        });
}
BENCHMARK(SearchThatFindsAll)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

namespace {

template <size_t Width>
std::string TextOf(const FixedText<Width>& field) {
    return {field.bytes.data(), field.bytes.size()};
}

/// What a list of customers has to hold: a name, a telephone number and a number for each.
void ReadAndKeepTexts(const std::string& path) {
    std::vector<std::array<std::string, 3>> rows;
    rows.reserve(customers);
    PlainReadRecords(path, sizeof(CustomerRecord), [&](const char* bytes) {
        const auto* record = reinterpret_cast<const CustomerRecord*>(bytes);
        rows.push_back(
            {TextOf(record->BusinessName), TextOf(record->Phone), std::to_string(rows.size() + 1)});
    });
    benchmark::DoNotOptimize(rows.data());
}

} // namespace

static void ListCustomers(benchmark::State& state) {
    ManyCustomers many;
    int found = 0;
    const auto list = [&] { many.Search().FindCustomers(SearchField::All, u"All"_s, true, found); };
    list();
    if (found != customers) {
        state.SkipWithError("The list has not all customers.");
        return;
    }
    CompareWithFloor(
        state,
        {"Listing 32,767 customers in the grid against reading their records and keeping the texts",
         3.0},
        [&] { return SecondsOf(list); },
        [&] { return SecondsOf([&] { ReadAndKeepTexts(many.Path()); }); });
}
BENCHMARK(ListCustomers)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

namespace {

void PressKey(QWidget& control, char16_t letter) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(letter)));
    QCoreApplication::sendEvent(&control, &press);
}

/// Types a name letter by letter; returns the seconds of the slowest key.
double SlowestKey(AccountBox& box, const QString& name) {
    box.clearEditText();
    double slowest = 0;
    for (const QChar letter : name) {
        slowest = std::max(slowest, SecondsOf([&] { PressKey(box, letter.unicode()); }));
    }
    return slowest;
}

std::string MilliSeconds(double seconds) {
    char text[64];
    std::snprintf(text, sizeof text, "%.3f ms", seconds * 1000);
    return text;
}

} // namespace

/// Held to the time of a picture on the screen, not to a multiple: typing into an empty list takes
/// next to nothing.
static void TypeAhead(benchmark::State& state) {
    constexpr double targetSeconds = 0.016;
    ManyCustomers many;
    CustomerSelection& screen = many.Screen();
    AccountBox box([&](const QString& text) { return screen.cboAccounts_Change(text); });
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setModel(&screen.cboAccounts);
    box.show();
    AccountBox empty([](const QString&) { return QString(); });
    empty.show();
    const QString name = screen.cboAccounts.At(customers / 2).name;
    SlowestKey(box, name);
    if (box.currentText() != name) {
        state.SkipWithError("The name was not typed.");
        return;
    }
    double slowest = 0;
    double floor = 0;
    for ([[maybe_unused]] const auto round : state) {
        const double seconds = SlowestKey(box, name);
        slowest = std::max(slowest, seconds);
        floor = std::max(floor, SlowestKey(empty, name));
        state.SetIterationTime(seconds);
    }
    AddToSummary({"Slowest key of a name typed into a list of 32,767 against an empty list",
                  MilliSeconds(slowest), MilliSeconds(floor),
                  std::to_string(state.iterations()) + " names typed",
                  "at most " + MilliSeconds(targetSeconds), slowest <= targetSeconds});
}
BENCHMARK(TypeAhead)->UseManualTime()->Iterations(51)->Unit(benchmark::kMillisecond);
