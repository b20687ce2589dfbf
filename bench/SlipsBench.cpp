#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::string DeliveriesPath(const BenchFolder& folder) {
    return folder.Path().toStdString() + "/TesselDelivery/Deliveries";
}

void ReadAllFiles(const std::string& folder) {
    for (const std::string& path : PlainList(folder))
        benchmark::DoNotOptimize(PlainRead(path));
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
        WriteSlip(office.rules, {.number = SlipNumber(number)});
    const std::string deliveries = DeliveriesPath(folder);
    CompareWithFloor(
        state, {"Loading 10,000 slips against reading their files", 1.5},
        [&] { return SecondsOf([&] { office.rules.slips.LoadSlips(false); }); },
        [&] { return SecondsOf([&] { ReadAllFiles(deliveries); }); });
}
BENCHMARK(LoadSlips)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

namespace {

/// Weekly slips of last Monday, which a pass moves on. What is measured and its floor take turns on
/// the same files, since what a new file costs hangs on where the disk has put the old ones.
class PastSlips {
public:
    PastSlips() {
        for (int number = 1; number <= count; ++number) {
            WriteSlip(office.rules, {.number = SlipNumber(number),
                                     .date = u"3/2/2026"_s,
                                     .recurring = u"True"_s,
                                     .frequency = u"0000001"_s});
        }
        for (const std::string& path : PlainList(deliveries))
            contents.emplace_back(path, PlainRead(path));
    }

    /// From the first question to the end: what comes before it is the building of the table.
    double MoveOn() {
        PutBack();
        office.user.FirstMessage.reset();
        office.rules.slips.LoadSlips(true);
        return SecondsSince(office.user.FirstMessage.value());
    }

    /// Each slip read, written under another name, and put in its place.
    double Rewrite() {
        PutBack();
        office.rules.slips.LoadSlips(false);
        const std::string temporary = deliveries + "/TempFile.txt";
        return SecondsOf([&] {
            for (const auto& [path, bytes] : contents) {
                PlainWrite(temporary, PlainRead(path));
                PlainRemove(path);
                PlainRename(temporary, path);
            }
        });
    }

    bool AreAllMoved() const {
        const auto isMoved = [](const auto& content) {
            return PlainRead(content.first).find("\r\n3/9/2026\r\n") != std::string::npos;
        };
        return std::all_of(contents.begin(), contents.end(), isMoved);
    }

private:
    void PutBack() const {
        for (const auto& [path, bytes] : contents)
            PlainWrite(path, bytes);
    }

    static constexpr int count = 1000;
    BenchFolder folder;
    BenchOffice office{folder.Path()};
    const std::string deliveries = DeliveriesPath(folder);
    std::vector<std::pair<std::string, std::string>> contents;
};

} // namespace

static void PastDatePass(benchmark::State& state) {
    PastSlips slips;
    slips.MoveOn();
    if (!slips.AreAllMoved()) {
        state.SkipWithError("The pass has left slips in the past.");
        return;
    }
    CompareWithFloor(
        state, {"Moving 1,000 past slips on against rewriting their files", 2.0},
        [&] { return slips.MoveOn(); }, [&] { return slips.Rewrite(); });
}
BENCHMARK(PastDatePass)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

namespace {

constexpr int linesOfSlip = 100;

/// The lines of a full slip.
class FullSlip : public GridModel {
public:
    FullSlip() : GridModel({u"Units"_s, u"Description"_s, u"Price"_s, u"Total"_s}) {
        SetRows(linesOfSlip + 1);
        for (int row = 1; row <= linesOfSlip; ++row) {
            SetText(row, 0, QString::number(row));
            SetText(row, 1, u"Framing Lumber 2x4x8 grade "_s + QString::number(row));
            SetText(row, 2, u"$12.50"_s);
            SetText(row, 3, u"$%1.00"_s.arg(10 * row));
        }
    }
};

/// Slips of 100 lines, stored anew by turns with their floor, under the same names.
class StoredSlips {
public:
    StoredSlips() {
        office.rules.slips.LoadDeliveryNo();
        Store();
        for (const QString& folderName : {u"Deliveries"_s, u"DeliveryItems"_s}) {
            for (const std::string& path :
                 PlainList((folder.Path() + u"/TesselDelivery/"_s + folderName).toStdString()))
                contents.emplace_back(path, PlainRead(path));
        }
    }

    /// All that storing a slip does to the disk: its two files and the counter.
    double Store() {
        TakeAway();
        return SecondsOf([&] {
            for (int number = 1; number <= slips; ++number) {
                header[SlipLine::SlipNumber] = SlipNumber(number);
                office.rules.slips.StoreSlip(header, grid, linesOfSlip, u"$50,500.00"_s);
                office.rules.slips.UpdateDeliveryCounter();
            }
        });
    }

    double Write() {
        TakeAway();
        return SecondsOf([&] {
            for (const auto& [path, bytes] : contents)
                PlainWrite(path, bytes);
        });
    }

    bool AreWhole() const {
        return contents.size() == size_t(2 * slips) &&
               std::all_of(contents.begin(), contents.end(),
                           [](const auto& content) { return !content.second.empty(); });
    }

private:
    void TakeAway() const {
        for (const auto& [path, bytes] : contents)
            PlainRemove(path);
    }

    static constexpr int slips = 100;
    BenchFolder folder;
    BenchOffice office{folder.Path()};
    FullSlip grid;
    SlipHeader header = HeaderOf({});
    std::vector<std::pair<std::string, std::string>> contents;
};

} // namespace

static void StoreSlip(benchmark::State& state) {
    StoredSlips slips;
    if (!slips.AreWhole()) {
        state.SkipWithError("A slip has not been stored.");
        return;
    }
    CompareWithFloor(
        state, {"Storing 100 slips of 100 lines against writing their files", 2.0},
        [&] { return slips.Store(); }, [&] { return slips.Write(); });
}
BENCHMARK(StoreSlip)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);

static void LoadTemplate(benchmark::State& state) {
    constexpr int loads = 100;
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    office.user.Input = u"Weekly order"_s;
    office.rules.templates.SaveTemplate(FullSlip());
    const std::string path = folder.Path().toStdString() + "/Templates/Deliveries/Weekly order.txt";
    GridModel grid({u"Units"_s, u"Description"_s, u"Price"_s, u"Total"_s});
    CompareWithFloor(
        state, {"Loading a template of 100 lines 100 times against reading it", 3.0},
        [&] {
            return SecondsOf([&] {
                for (int load = 0; load < loads; ++load) {
                    grid.ClearGrid();
                    office.rules.templates.LoadTemplate(grid);
                }
            });
        },
        [&] {
            return SecondsOf([&] {
                for (int load = 0; load < loads; ++load)
                    PlainReadRecords(path, sizeof(TemplateRecord),
                                     [](const char* record) { benchmark::DoNotOptimize(record); });
            });
        });
    if (grid.Text(linesOfSlip, 3) != u"$1,250.00"_s)
        state.SkipWithError("The template has not been loaded.");
}
BENCHMARK(LoadTemplate)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);
