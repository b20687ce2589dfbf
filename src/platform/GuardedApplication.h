#pragma once

#include "platform/RuntimeFailure.h"

#include <QApplication>

#include <functional>

/// The application with the one place that catches a failure nothing else handled: around the
/// delivery of events. The failure is reported once, and the program ends at once with a non-zero
/// status, without the exit's safety copy.
class GuardedApplication : public QApplication {
    Q_OBJECT

public:
    GuardedApplication(int& argumentCount, char** arguments);

    /// What is done with a failure; the program's own way is ReportAndEnd.
    std::function<void(const RuntimeFailure&)> OnFailure;

    bool notify(QObject* receiver, QEvent* event) override;

    [[noreturn]] static void ReportAndEnd(const RuntimeFailure& failure);
};
