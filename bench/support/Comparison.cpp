#include "support/Comparison.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

std::vector<std::string> notes;
std::vector<SummaryLine> summary;

double MedianOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::string WithDecimals(double number, int decimals, const char* unit) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f%s", decimals, number, unit);
    return text;
}

std::string MilliSeconds(double seconds) {
    return WithDecimals(seconds * 1000, 2, " ms");
}

struct Medians {
    double measured;
    double floor;
    double Ratio() const { return measured / floor; }
};

Medians RunByTurns(benchmark::State& state, const TimedRun& measured, const TimedRun& floor) {
    // The first run of each finds the caches cold and is not counted.
    floor();
    measured();
    std::vector<double> measuredTimes;
    std::vector<double> floorTimes;
    bool isMeasuredFirst = false;
    for ([[maybe_unused]] const auto round : state) {
        // What runs second can find what the first has left behind; so each is second at times.
        isMeasuredFirst = !isMeasuredFirst;
        if (isMeasuredFirst)
            measuredTimes.push_back(measured());
        floorTimes.push_back(floor());
        if (!isMeasuredFirst)
            measuredTimes.push_back(measured());
        state.SetIterationTime(measuredTimes.back());
    }
    const Medians medians{MedianOf(measuredTimes), MedianOf(floorTimes)};
    state.counters["ratio"] = medians.Ratio();
    return medians;
}

} // namespace

double SecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void CompareWithFloor(benchmark::State& state, const TimeMeasure& measure, const TimedRun& measured,
                      const TimedRun& floor) {
    const Medians medians = RunByTurns(state, measured, floor);
    AddToSummary({measure.what, MilliSeconds(medians.measured), MilliSeconds(medians.floor),
                  WithDecimals(medians.Ratio(), 2, " times"),
                  "at most " + WithDecimals(measure.target, 2, " times"),
                  medians.Ratio() <= measure.target});
}

void CompareWaitWithFloor(benchmark::State& state, const WaitMeasure& measure,
                          const TimedRun& measured, const TimedRun& floor) {
    const Medians medians = RunByTurns(state, measured, floor);
    const double above = medians.measured - medians.floor;
    AddToSummary({measure.what, MilliSeconds(medians.measured), MilliSeconds(medians.floor),
                  WithDecimals(medians.Ratio(), 2, " times, ") + MilliSeconds(above) + " longer",
                  "at most " + MilliSeconds(measure.secondsAbove) + " longer",
                  above <= measure.secondsAbove});
}

void AddToSummary(const SummaryLine& line) {
    summary.push_back(line);
}

void AddNote(const std::string& note) {
    if (std::find(notes.begin(), notes.end(), note) == notes.end())
        notes.push_back(note);
}

void PrintSummary() {
    std::printf("\n");
    for (const std::string& note : notes)
        std::printf("%s\n", note.c_str());
    for (const SummaryLine& line : summary)
        std::printf("%s: measured %s, floor %s, %s, target %s%s\n", line.what.c_str(),
                    line.measured.c_str(), line.floor.c_str(), line.ratio.c_str(),
                    line.target.c_str(), line.isMet ? "" : ", MISSED");
}
