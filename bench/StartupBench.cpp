#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"
#include "support/ProbeRun.h"
#include "support/VirtualDisplay.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const std::string titleScreen = TITLE_SCREEN_PROBE;
const std::string bareWindow = BARE_WINDOW_PROBE;

/// The median of a few runs.
double PeakMebibytes(const QString& folder, const std::vector<std::string>& commandLine) {
    std::vector<double> peaks;
    for (int run = 0; run < 5; ++run)
        peaks.push_back(RunProbe(folder.toStdString(), commandLine).peakMebibytes);
    std::sort(peaks.begin(), peaks.end());
    return peaks[peaks.size() / 2];
}

std::string Mebibytes(double size) {
    char text[64];
    std::snprintf(text, sizeof text, "%.1f MB", size);
    return text;
}

} // namespace

static void StartToTitleScreen(benchmark::State& state) {
    const VirtualDisplay display;
    CompareWithFloor(
        state, {"Start to painted title screen against a bare window", 2.0},
        [] {
            // Each start is the first one on its folder.
            const BenchFolder folder;
            return RunProbe(folder.Path().toStdString(), {titleScreen}).seconds;
        },
        [] {
            const BenchFolder folder;
            return RunProbe(folder.Path().toStdString(), {bareWindow}).seconds;
        });
}
BENCHMARK(StartToTitleScreen)->UseManualTime()->Iterations(31)->Unit(benchmark::kMillisecond);

static void PeakMemoryWithSlips(benchmark::State& state) {
    // The most that the program loads; the target is stated for a number that it doesn't reach.
    constexpr int slips = 32'766;
    constexpr int slipsOfTarget = 50'000;
    constexpr double targetAboveBare = 60;
    constexpr double bytesInMebibyte = 1024.0 * 1024.0;
    const VirtualDisplay display;
    const BenchFolder empty;
    const BenchFolder full;
    {
        BenchOffice office(full.Path());
        for (int number = 1; number <= slips; ++number)
            WriteSlip(office.rules, {.number = SlipNumber(number), .date = u"3/16/2099"_s});
    }
    // Without customers the start would wait for an answer.
    for (const BenchFolder* folder : {&empty, &full})
        PlainWrite(folder->Path().toStdString() + "/CustomerData.txt", {});
    for ([[maybe_unused]] const auto round : state) {
        const double bare = PeakMebibytes(empty.Path(), {bareWindow});
        const double withoutSlips = PeakMebibytes(empty.Path(), {titleScreen, "loaded"});
        const double withSlips = PeakMebibytes(full.Path(), {titleScreen, "loaded"});
        const double bytesOfSlip = (withSlips - withoutSlips) * bytesInMebibyte / slips;
        const double projected = withoutSlips + bytesOfSlip * slipsOfTarget / bytesInMebibyte;
        state.counters["MB_above"] = withSlips - bare;
        state.counters["bytes_per_slip"] = bytesOfSlip;
        AddToSummary({"Peak memory with 32,766 slips loaded against a bare window",
                      Mebibytes(withSlips), Mebibytes(bare), Mebibytes(withSlips - bare) + " above",
                      "at most " + Mebibytes(targetAboveBare) + " above",
                      withSlips - bare <= targetAboveBare});
        AddToSummary({"The same projected to 50,000 slips at " +
                          std::to_string(std::lround(bytesOfSlip)) + " bytes a slip",
                      Mebibytes(projected), Mebibytes(bare), Mebibytes(projected - bare) + " above",
                      "at most " + Mebibytes(targetAboveBare) + " above",
                      projected - bare <= targetAboveBare});
    }
}
BENCHMARK(PeakMemoryWithSlips)->Iterations(1)->Unit(benchmark::kMillisecond);
