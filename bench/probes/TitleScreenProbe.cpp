// The program as main.cpp starts it, on the current folder. It ends when the title screen is
// painted, or with the argument "loaded" when the start-up sequence has run to its end as well.
// What is behind the argument "ports" are the devices of its serial ports, in place of the
// machine's.

#include "Probe.h"
#include "platform/DesktopBrowser.h"
#include "platform/DesktopOperator.h"
#include "platform/DesktopPictures.h"
#include "platform/DesktopSerialPort.h"
#include "platform/FolderLock.h"
#include "platform/GuardedApplication.h"
#include "platform/PagePrinter.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "startup/StartUp.h"

#include <QDir>
#include <QTimer>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The first one is that of port 1; the ports behind the last one have none.
DesktopSerialPort::Devices DevicesOf(const QStringList& arguments) {
    const qsizetype ports = arguments.indexOf("ports"_L1);
    if (ports < 0)
        return SerialDevice;
    return [devices = arguments.mid(ports + 1)](qint16 number) {
        return devices.value(number - SerialPort::firstPort);
    };
}

/// The same parts as in main.cpp.
struct Run {
    SystemClock clock;
    DesktopOperator user;
    DesktopBrowser browser;
    DesktopPictures pictures;
    DesktopSerialPort serialPort{DevicesOf(QApplication::arguments())};
    PagePrinter printer{[](const QString&) {}};
    std::unique_ptr<FolderLock> lock;
    std::unique_ptr<Office> office;
    std::unique_ptr<Screens> screens;
};

void Start(Run& run) {
    const QString dataFolder = QDir::currentPath();
    run.lock = std::make_unique<FolderLock>(dataFolder);
    if (!run.lock->IsHeld())
        ::_exit(EXIT_FAILURE);
    run.office =
        std::make_unique<Office>(dataFolder, Machine{run.clock, run.user, run.printer, run.browser,
                                                     run.pictures, run.serialPort});
    run.screens = std::make_unique<Screens>(*run.office);
    Main(*run.office, *run.screens);
}

} // namespace

int main(int argumentCount, char** arguments) {
    std::signal(SIGXFSZ, SIG_IGN);
    PaintWatch<GuardedApplication> application(argumentCount, arguments);
    QApplication::setApplicationName(u"tessel-delivery"_s);
    QApplication::setApplicationVersion(u"0"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    Theme::Apply(application);

    bool isPainted = false;
    bool isDone = !QApplication::arguments().contains("loaded"_L1);
    const auto endWhenBoth = [&] {
        if (isPainted && isDone)
            TellPeakMemoryAndEnd();
    };
    application.OnPainted = [&] {
        isPainted = true;
        endWhenBoth();
    };
    Run run;
    QTimer::singleShot(0, qApp, [&] {
        Start(run);
        isDone = true;
        endWhenBoth();
    });
    return QApplication::exec();
}
