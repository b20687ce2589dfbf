#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const std::string deliveries = "TesselDelivery/Deliveries";

void ReadAllFiles(const PlainFolder& plain) {
    for (const std::string& name : plain.List(deliveries))
        benchmark::DoNotOptimize(plain.Read(deliveries + '/' + name));
}

/// The seconds since a message.
double SecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

static void LoadSlips(benchmark::State& state) {
    constexpr int slips = 10'000;
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    for (int number = 1; number <= slips; ++number)
        WriteHeader(office.rules, {.number = SlipNumber(number)});
    const PlainFolder plain(folder.Path().toStdString());
    CompareWithFloor(
        state, {"Loading 10,000 slips against reading their files", 1.5},
        [&] { return SecondsOf([&] { office.rules.slips.LoadSlips(false); }); },
        [&] { return SecondsOf([&] { ReadAllFiles(plain); }); });
}
BENCHMARK(LoadSlips)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

namespace {

constexpr int pastSlips = 1000;

void WritePastSlips(Office& office) {
    for (int number = 1; number <= pastSlips; ++number)
        WriteHeader(office, {.number = SlipNumber(number),
                             .date = u"3/4/2026"_s,
                             .recurring = u"True"_s,
                             .frequency = u"0000001"_s});
}

/// From the first question to the end: what comes before it is the building of the table.
double MovePastSlips(BenchOffice& office) {
    WritePastSlips(office.rules);
    office.user.FirstMessage.reset();
    office.rules.slips.LoadSlips(true);
    return SecondsSince(office.user.FirstMessage.value());
}

/// Each slip as it is written anew: read, written under another name, and put in its place.
double RewritePastSlips(BenchOffice& office, const PlainFolder& plain) {
    WritePastSlips(office.rules);
    office.rules.slips.LoadSlips(false);
    const std::string temporary = deliveries + "/TempFile.txt";
    std::vector<std::string> names;
    for (int number = 1; number <= pastSlips; ++number)
        names.push_back(deliveries + '/' + SlipNumber(number).toStdString() + ".txt");
    return SecondsOf([&] {
        for (const std::string& name : names) {
            plain.Write(temporary, plain.Read(name));
            plain.Remove(name);
            plain.Rename(temporary, name);
        }
    });
}

} // namespace

static void PastDatePass(benchmark::State& state) {
    const BenchFolder folder;
    const BenchFolder twinFolder;
    BenchOffice office(folder.Path());
    BenchOffice twin(twinFolder.Path());
    const PlainFolder plain(twinFolder.Path().toStdString());
    CompareWithFloor(
        state, {"Moving 1,000 past slips on against rewriting their files", 2.0},
        [&] { return MovePastSlips(office); }, [&] { return RewritePastSlips(twin, plain); });
}
BENCHMARK(PastDatePass)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);
