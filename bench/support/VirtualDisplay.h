#pragma once

#include <QProcess>

/// A display for the probes, for as long as it lives: an X server in memory where the machine has
/// one, else the toolkit's offscreen platform. It says which in the summary.
class VirtualDisplay {
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    QProcess server;
};
