#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"
#include "support/ProbeRun.h"
#include "support/VirtualDisplay.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

const std::string titleScreen = TITLE_SCREEN_PROBE;

/// A serial port on which nobody answers. What is sent there, a few bytes a start, stays unread.
class SilentPort {
public:
    SilentPort() : line(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        if (line < 0 || ::grantpt(line) != 0 || ::unlockpt(line) != 0 ||
            ::ptsname_r(line, device.data(), device.size()) != 0) {
            std::fprintf(stderr, "No pseudo-terminal could be opened.\n");
            std::exit(EXIT_FAILURE);
        }
    }
    ~SilentPort() { ::close(line); }
    SilentPort(const SilentPort&) = delete;
    SilentPort& operator=(const SilentPort&) = delete;

    std::string Device() const { return device.data(); }

private:
    int line;
    std::array<char, 64> device{};
};

/// Each start is the first one on its folder.
double SecondsToStart(const std::vector<std::string>& commandLine) {
    const BenchFolder folder;
    return RunProbe(folder.Path().toStdString(), commandLine).seconds;
}

} // namespace

static void StartWithSilentPorts(benchmark::State& state) {
    const std::array<SilentPort, SerialPort::lastPort> ports;
    const std::vector<std::string> withoutPorts = {titleScreen, "ports"};
    std::vector<std::string> withPorts = withoutPorts;
    for (const SilentPort& port : ports)
        withPorts.push_back(port.Device());
    const VirtualDisplay display;
    CompareWaitWithFloor(
        state, {"Start with 16 silent serial ports against one without any", 0.5},
        [&] { return SecondsToStart(withPorts); }, [&] { return SecondsToStart(withoutPorts); });
}
BENCHMARK(StartWithSilentPorts)->UseManualTime()->Iterations(11)->Unit(benchmark::kMillisecond);
