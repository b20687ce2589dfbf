#include "platform/RuntimeFailure.h"

#include "support/TextOutput.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

TEST(RuntimeFailureTest, ReportTellsWhatFailedWhereAndWhatToDo) {
    const RuntimeFailure failure(FailureKind::ReadPastEnd,
                                 u"Reading Settings.txt failed: the file ends early."_s);
    EXPECT_EQ(failure.Report(), u"Read past the end of a file\n\n"
                                "Reading Settings.txt failed: the file ends early.\n\n"
                                "The file is cut short. Repair it, or delete it and enter its "
                                "data again."_s);
}

TEST(RuntimeFailureTest, EveryKindHasAHeadingAndAdviceOfItsOwn) {
    struct Case {
        FailureKind kind;
        QString heading;
    };
    const std::vector<Case> cases = {
        {FailureKind::FileNotFound, u"File not found"_s},
        {FailureKind::PathNotFound, u"Folder not found"_s},
        {FailureKind::PermissionDenied, u"Permission denied"_s},
        {FailureKind::DiskFull, u"Disk full"_s},
        {FailureKind::BadFileName, u"Bad file name"_s},
        {FailureKind::FileAlreadyExists, u"File already exists"_s},
        {FailureKind::FileTooLarge, u"File too large"_s},
        {FailureKind::FileNotOpen, u"File not open"_s},
        {FailureKind::BadRecord, u"Bad record"_s},
        {FailureKind::DeviceFailure, u"Disk error"_s},
        {FailureKind::ReadPastEnd, u"Read past the end of a file"_s},
        {FailureKind::TypeMismatch, u"Type mismatch"_s},
        {FailureKind::Overflow, u"Overflow"_s},
        {FailureKind::Subscript, u"Subscript out of range"_s},
        {FailureKind::PrinterFailure, u"Printer failure"_s},
        {FailureKind::PrintCancelled, u"Printing cancelled"_s},
    };
    for (const Case& one : cases) {
        const QString report = RuntimeFailure(one.kind, u"What happened."_s).Report();
        const QString start = one.heading + u"\n\nWhat happened.\n\n"_s;
        EXPECT_EQ(report.left(start.size()), start);
        EXPECT_GT(report.size(), start.size() + 10);
        EXPECT_TRUE(report.endsWith(u'.')) << report.toStdString();
    }
}

TEST(RuntimeFailureTest, SystemErrorsAreOfTheKindAnOperatorUnderstands) {
    struct Case {
        int error;
        FailureKind kind;
    };
    const std::vector<Case> cases = {
        {ENOENT, FailureKind::FileNotFound},     {ENOTDIR, FailureKind::PathNotFound},
        {EACCES, FailureKind::PermissionDenied}, {EPERM, FailureKind::PermissionDenied},
        {EROFS, FailureKind::PermissionDenied},  {EISDIR, FailureKind::PermissionDenied},
        {ENOSPC, FailureKind::DiskFull},         {EDQUOT, FailureKind::DiskFull},
        {EFBIG, FailureKind::DiskFull},          {ENAMETOOLONG, FailureKind::BadFileName},
        {EINVAL, FailureKind::BadFileName},      {EEXIST, FailureKind::FileAlreadyExists},
        {EIO, FailureKind::DeviceFailure},       {EMFILE, FailureKind::DeviceFailure}};
    for (const Case& one : cases)
        EXPECT_EQ(FailureFromErrno(one.error, u"Opening A.txt"_s).Kind(), one.kind) << one.error;
}

TEST(RuntimeFailureTest, SystemErrorIsToldBehindTheOperation) {
    EXPECT_EQ(FailureFromErrno(ENOSPC, u"Writing Settings.txt"_s).Sentence(),
              u"Writing Settings.txt failed: No space left on device."_s);
}

TEST(RuntimeFailureTest, SentenceIsTheStandardText) {
    const RuntimeFailure failure(FailureKind::Overflow, u"Reading Gem\u00fcse.txt failed."_s);
    EXPECT_EQ(std::string(failure.what()), "Reading Gem\xc3\xbcse.txt failed.");
}

TEST(RuntimeFailureTest, PassOverSkipsAFailedStatementAndSaysSo) {
    bool reached = false;
    EXPECT_TRUE(PassOver([&] { reached = true; }));
    EXPECT_TRUE(reached);
    bool passed = false;
    EXPECT_FALSE(PassOver([&] {
        throw RuntimeFailure(FailureKind::DiskFull, u"Full."_s);
        passed = true;
    }));
    EXPECT_FALSE(passed);
}

TEST(RuntimeFailureTest, PassOverLetsOtherExceptionsThrough) {
    EXPECT_THROW(PassOver([] { throw std::logic_error("a mistake in the program"); }),
                 std::logic_error);
}

TEST(RuntimeFailureTest, PassOverLetsAFailureThroughThatEndsTheProgram) {
    EXPECT_THROW(PassOver([] { throw EndingFailure(FailureKind::Overflow, u"The end."_s); }),
                 EndingFailure);
}
