#include "support/ProcessorTime.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

double ProcessorSeconds() {
    rusage usage{};
    EXPECT_EQ(::getrusage(RUSAGE_THREAD, &usage), 0);
    constexpr double microseconds = 1e6;
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / microseconds;
}
