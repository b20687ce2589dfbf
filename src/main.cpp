#include "platform/DesktopBrowser.h"
#include "platform/DesktopOperator.h"
#include "platform/DesktopPictures.h"
#include "platform/DesktopSerialPort.h"
#include "platform/FolderLock.h"
#include "platform/GuardedApplication.h"
#include "platform/PagePrinter.h"
#include "platform/ProgramTitle.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "startup/StartUp.h"

#include <QDesktopServices>
#include <QDir>
#include <QTimer>
#include <QUrl>

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Everything of a run that needs the data folder. It is made inside the event loop, where a
/// failure is caught and reported.
struct Run {
    /// Shows a page that became a document, or at least tells where it is.
    void OpenDocument(const QString& path) {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
            user.MsgBox(u"The printed page is in this file:\n"_s + path, Buttons::Ok, {});
    }

    SystemClock clock;
    DesktopOperator user;
    DesktopBrowser browser;
    DesktopPictures pictures;
    DesktopSerialPort serialPort;
    PagePrinter printer{[this](const QString& path) { OpenDocument(path); }};
    std::unique_ptr<FolderLock> lock;
    std::unique_ptr<Office> office;
    std::unique_ptr<Screens> screens;
};

void Start(Run& run) {
    const QString dataFolder = QDir::currentPath();
    run.lock = std::make_unique<FolderLock>(dataFolder);
    if (!CheckSingleInstance(*run.lock, run.user)) {
        QCoreApplication::exit(EXIT_SUCCESS);
        return;
    }
    run.office =
        std::make_unique<Office>(dataFolder, Machine{run.clock, run.user, run.printer, run.browser,
                                                     run.pictures, run.serialPort});
    run.screens = std::make_unique<Screens>(*run.office);
    QObject::connect(run.screens.get(), &Screens::ExitRequested, qApp,
                     [] { QCoreApplication::exit(EXIT_SUCCESS); });
    Main(*run.office, *run.screens);
}

/// The end of every ordinary run: the screens go, then the safety copy is made.
void ExitProgram(Run& run) {
    run.screens.reset();
    if (run.office)
        run.office->disk.BackupDataFiles();
}

} // namespace

int main(int argumentCount, char** arguments) {
    // A file size limit is a failed write to report, not a reason to be killed.
    std::signal(SIGXFSZ, SIG_IGN);
    GuardedApplication application(argumentCount, arguments);
    QApplication::setApplicationName(ProgramName());
    QApplication::setApplicationVersion(QStringLiteral(TESSEL_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    Theme::Apply(application);

    Run run;
    QTimer::singleShot(0, qApp, [&run] { Start(run); });
    const int status = QApplication::exec();
    ExitProgram(run);
    return status;
}
