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

/// Slips of 100 lines. What is measured and its floor take turns and write under new names each
/// time: an ordinary disk is slow to make files where others have just been deleted.
class StoredSlips {
public:
    StoredSlips() {
        office.rules.slips.LoadDeliveryNo();
        Write();
    }

    /// The two files of a slip.
    double Write() {
        NextNumber();
        return SecondsOf([&] { WriteFiles(); });
    }

    /// All that storing a slip does to the disk: its files, and the counter anew.
    double Store() {
        NextNumber();
        return SecondsOf([&] {
            WriteFiles();
            office.rules.slips.UpdateDeliveryCounter();
        });
    }

    /// The bytes of the slip written last, under other names.
    double WritePlainly() const {
        const PlainSlip slip(*this);
        return SecondsOf([&] { slip.Write(); });
    }

    /// The same, and the counter's bytes in a new file in its place.
    double StorePlainly() const {
        const PlainSlip slip(*this);
        const std::string counter = folder.Path().toStdString() + "/NQDeliveryNo.txt";
        const std::string counterBytes = PlainRead(counter);
        return SecondsOf([&] {
            slip.Write();
            PlainRemove(counter);
            PlainWrite(counter, counterBytes);
        });
    }

    bool IsWhole() const {
        constexpr size_t leastItemBytes = 5000;
        return !PlainRead(PathOf("Deliveries")).empty() &&
               PlainRead(PathOf("DeliveryItems")).size() > leastItemBytes;
    }

private:
    struct PlainSlip {
        explicit PlainSlip(const StoredSlips& slips)
            : headerFile(slips.PathOf("Deliveries")), itemFile(slips.PathOf("DeliveryItems")),
              headerBytes(PlainRead(headerFile)), itemBytes(PlainRead(itemFile)) {}
        void Write() const {
            PlainWrite(headerFile + "2", headerBytes);
            PlainWrite(itemFile + "2", itemBytes);
        }

        std::string headerFile;
        std::string itemFile;
        std::string headerBytes;
        std::string itemBytes;
    };

    void NextNumber() {
        number = SlipNumber(++slips);
        header[SlipLine::SlipNumber] = number;
    }
    void WriteFiles() { office.rules.slips.StoreSlip(header, grid, linesOfSlip, u"$50,500.00"_s); }
    std::string PathOf(const char* part) const {
        return folder.Path().toStdString() + "/TesselDelivery/" + part + '/' +
               number.toStdString() + ".txt";
    }

    BenchFolder folder;
    BenchOffice office{folder.Path()};
    FullSlip grid;
    SlipHeader header = HeaderOf({});
    QString number;
    int slips = 0;
};

} // namespace

static void WriteSlip(benchmark::State& state) {
    StoredSlips slips;
    if (!slips.IsWhole()) {
        state.SkipWithError("The slip has not been written.");
        return;
    }
    CompareWithFloor(
        state, {"Writing a slip of 100 lines against writing its two files", 2.0},
        [&] { return slips.Write(); }, [&] { return slips.WritePlainly(); });
}
BENCHMARK(WriteSlip)->UseManualTime()->Iterations(101)->Unit(benchmark::kMicrosecond);

static void StoreSlip(benchmark::State& state) {
    StoredSlips slips;
    CompareWithFloor(
        state, {"Storing it, the counter included, against writing the three files", 2.0},
        [&] { return slips.Store(); }, [&] { return slips.StorePlainly(); });
}
BENCHMARK(StoreSlip)->UseManualTime()->Iterations(101)->Unit(benchmark::kMicrosecond);

static void LoadTemplate(benchmark::State& state) {
    // Short runs: on a busy machine a long one always shares the processor with something else.
    constexpr int loads = 10;
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    office.user.Input = u"Weekly order"_s;
    office.rules.templates.SaveTemplate(FullSlip());
    const std::string path = folder.Path().toStdString() + "/Templates/Deliveries/Weekly order.txt";
    GridModel grid({u"Units"_s, u"Description"_s, u"Price"_s, u"Total"_s});
    CompareWithFloor(
        state, {"Loading a template of 100 lines 10 times against reading it", 3.0},
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
BENCHMARK(LoadTemplate)->UseManualTime()->Iterations(101)->Unit(benchmark::kMicrosecond);
