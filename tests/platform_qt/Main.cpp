#include <QApplication>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
    // The system's own words are part of the failures that tests expect.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // No test may find a printer of the machine that it runs on.
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
