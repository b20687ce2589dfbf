#include "Probe.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

long PeakMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmHWM:")
        continue;
    long kibibytes = 0;
    status >> kibibytes;
    return kibibytes;
}

} // namespace

QString PaintedLabel() {
    return u"lblProductName"_s;
}

void TellPeakMemoryAndEnd() {
    std::printf("%ld\n", PeakMemory());
    std::fflush(stdout);
    ::_exit(EXIT_SUCCESS);
}
