#include <QCoreApplication>

#include <gtest/gtest.h>

/// Serial ports are told of what comes in by the event loop.
int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
