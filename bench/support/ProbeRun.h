#pragma once

#include <string>
#include <vector>

/// What became of a probe: how long it ran from start to end, and the largest size it has had in
/// memory.
struct ProbeResult {
    double seconds;
    double peakMebibytes;
};

/// Starts a probe in a folder and waits for its end. A probe that fails ends the benchmarks.
ProbeResult RunProbe(const std::string& folder, std::vector<std::string> commandLine);
