#include "Probe.h"

#include <QCoreApplication>
#include <QEvent>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>
#include <utility>

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

FirstPaint::FirstPaint(const QString& labelName, std::function<void()> painted)
    : name(labelName), onPainted(std::move(painted)) {
    qApp->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
    if (!isPainted && event->type() == QEvent::Paint && watched->objectName() == name) {
        isPainted = true;
        // The label is about to be painted; the next event comes when the window is done.
        QMetaObject::invokeMethod(this, onPainted, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void TellPeakMemoryAndEnd() {
    std::printf("%ld\n", PeakMemory());
    std::fflush(stdout);
    ::_exit(EXIT_SUCCESS);
}
