#include "platform/GuardedApplication.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

GuardedApplication::GuardedApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments), OnFailure(ReportAndEnd) {}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeFailure& failure) {
        OnFailure(failure);
        return true;
    }
}

void GuardedApplication::ReportAndEnd(const RuntimeFailure& failure) {
    std::fprintf(stderr, "%s\n", failure.Report().toLocal8Bit().constData());
    std::fflush(stderr);
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    QMessageBox box(QMessageBox::Critical, u"Run-time Failure"_s, failure.Report(),
                    QMessageBox::Ok);
    box.setObjectName(u"failureReport"_s);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(u"The program ends now. What was saved before is on disk."_s);
    box.exec();
    // At once: nothing may run any more on what the failure has left half done.
    ::_exit(EXIT_FAILURE);
}
