#include "support/VirtualDisplay.h"

#include "support/Comparison.h"

using namespace Qt::StringLiterals;

VirtualDisplay::VirtualDisplay() {
    constexpr int milliSecondsToStart = 10'000;
    // The server finds a free display by itself and writes its number to the given descriptor.
    server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s,
                             u"-nolisten"_s, u"tcp"_s});
    const QByteArray number =
        server.waitForReadyRead(milliSecondsToStart) ? server.readLine().trimmed() : QByteArray();
    if (number.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        AddNote("Windows were painted on the toolkit's offscreen platform.");
        return;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DISPLAY", ':' + number);
    AddNote("Windows were painted on an X server in memory (Xvfb).");
}

VirtualDisplay::~VirtualDisplay() {
    server.terminate();
    server.waitForFinished();
}
