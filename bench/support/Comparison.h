#pragma once

#include <QString>

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

/// What is measured, and how many times its floor it may take. The floor is the same work on the
/// same bytes with nothing else.
struct TimeMeasure {
    const char* what;
    double target;
};

/// What is measured, and how many seconds longer than its floor it may take.
struct WaitMeasure {
    const char* what;
    double secondsAbove;
};

/// One run of the measured work or of its floor; returns the seconds that count.
using TimedRun = std::function<double()>;

/// The seconds that the work takes.
double SecondsOf(const std::function<void()>& work);

/// Runs the measured work and its floor by turns, as often as the benchmark says, so that what else
/// the machine does hits both. The medians become a line of the summary.
void CompareWithFloor(benchmark::State& state, const TimeMeasure& measure, const TimedRun& measured,
                      const TimedRun& floor);
void CompareWaitWithFloor(benchmark::State& state, const WaitMeasure& measure,
                          const TimedRun& measured, const TimedRun& floor);

/// One line of the summary at the end of the run.
struct SummaryLine {
    std::string what;
    std::string measured;
    std::string floor;
    std::string ratio;
    std::string target;
    bool isMet;
};
void AddToSummary(const SummaryLine& line);
/// Says something about the run as a whole at the head of the summary, once.
void AddNote(const std::string& note);
void PrintSummary();
