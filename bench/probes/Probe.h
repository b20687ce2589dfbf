#pragma once

#include <QEvent>
#include <QObject>
#include <QString>

#include <functional>

/// The label whose first painting counts as the window being painted, in both probes.
QString PaintedLabel();

/// An application that calls back once, when that label has been painted for the first time and the
/// picture of the whole window has been handed to the display.
template <typename Application>
class PaintWatch : public Application {
public:
    using Application::Application;

    std::function<void()> OnPainted;

    bool notify(QObject* receiver, QEvent* event) override {
        const bool isPaint = event->type() == QEvent::Paint;
        if (isPaint && receiver->objectName() == PaintedLabel())
            isLabelPainted = true;
        const bool result = Application::notify(receiver, event);
        // Labels are painted, and then the picture handed over, while an event of the window lasts.
        if (isLabelPainted && !isPaint && !isTold) {
            isTold = true;
            OnPainted();
        }
        return result;
    }

private:
    bool isLabelPainted = false;
    bool isTold = false;
};

/// Prints the largest size that the process has had in memory, in KiB, and ends it without any
/// clearing up.
[[noreturn]] void TellPeakMemoryAndEnd();
