#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// The label whose first painting counts as the window being painted, in both probes.
QString PaintedLabel();

/// Calls back once when the application has painted a label of that name for the first time, with
/// the picture of the whole window handed to the display.
class FirstPaint : public QObject {
    Q_OBJECT

public:
    FirstPaint(const QString& labelName, std::function<void()> painted);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString name;
    std::function<void()> onPainted;
    bool isPainted = false;
};

/// Prints the largest size that the process has had in memory, in KiB, and ends it without any
/// clearing up.
[[noreturn]] void TellPeakMemoryAndEnd();
