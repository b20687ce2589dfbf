#include "support/Comparison.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdlib>

int main(int argumentCount, char** arguments) {
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments))
        return EXIT_FAILURE;
    // Dates and amounts in United States form, and nothing printed, stored or remembered outside
    // the benchmark's own folder.
    const QTemporaryDir home(QStringLiteral("/var/tmp/tessel-bench-home-XXXXXX"));
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    PrintSummary();
    return EXIT_SUCCESS;
}
