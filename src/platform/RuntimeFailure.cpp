#include "platform/RuntimeFailure.h"

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

struct Wording {
    QString heading;
    QString advice;
};

Wording WordingOf(FailureKind kind) {
    switch (kind) {
    case FailureKind::FileNotFound:
        return {u"File not found"_s,
                u"Put the file back, or restore it from the Backup folder, and start again."_s};
    case FailureKind::PathNotFound:
        return {u"Folder not found"_s,
                u"Check that the folder is there and is a folder, not a file, and start again."_s};
    case FailureKind::PermissionDenied:
        return {u"Permission denied"_s,
                u"Check that you may read and write this file and its folder, and start again."_s};
    case FailureKind::DiskFull:
        return {u"Disk full"_s, u"Make room on the disk and start again."_s};
    case FailureKind::BadFileName:
        return {u"Bad file name"_s,
                u"Use a name without folder separators or dots in place of a folder."_s};
    case FailureKind::FileAlreadyExists:
        return {u"File already exists"_s, u"Move or rename the file that is in the way."_s};
    case FailureKind::FileTooLarge:
        return {u"File too large"_s,
                u"This is not a file of this program. Move it out of the data folder."_s};
    case FailureKind::FileNotOpen:
        return {u"File not open"_s, u"Start the program again."_s};
    case FailureKind::BadRecord:
        return {u"Bad record"_s, u"Start the program again."_s};
    case FailureKind::DeviceFailure:
        return {u"Disk error"_s, u"Check the disk, and copy your data to a safe place."_s};
    case FailureKind::ReadPastEnd:
        return {u"Read past the end of a file"_s,
                u"The file is cut short. Repair it, or delete it and enter its data again."_s};
    case FailureKind::TypeMismatch:
        return {u"Type mismatch"_s,
                u"Correct the value, or delete the file and enter its data again."_s};
    case FailureKind::Overflow:
        return {u"Overflow"_s, u"Correct the value so that it fits."_s};
    case FailureKind::Subscript:
        return {u"Subscript out of range"_s, u"Start the program again."_s};
    case FailureKind::PrinterFailure:
        return {u"Printer failure"_s, u"Check the printer and print again."_s};
    case FailureKind::PrintCancelled:
        return {u"Printing cancelled"_s, u"Print again when you are ready."_s};
    case FailureKind::BadPicture:
        return {u"Invalid picture"_s,
                u"Choose another picture for your logo. If the program no longer starts, move this "
                u"picture away and start again."_s};
    }
    return {u"Failure"_s, u"Start the program again."_s};
}

FailureKind KindOfErrno(int error) {
    switch (error) {
    case ENOENT:
        return FailureKind::FileNotFound;
    case ENOTDIR:
        return FailureKind::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return FailureKind::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FailureKind::DiskFull;
    case EINVAL:
    case ENAMETOOLONG:
        return FailureKind::BadFileName;
    case EEXIST:
        return FailureKind::FileAlreadyExists;
    default:
        return FailureKind::DeviceFailure;
    }
}

} // namespace

RuntimeFailure::RuntimeFailure(FailureKind failureKind, const QString& failureSentence)
    : kind(failureKind), sentence(failureSentence), bytes(failureSentence.toUtf8()) {}

QString RuntimeFailure::Report() const {
    const Wording wording = WordingOf(kind);
    return wording.heading + u"\n\n"_s + sentence + u"\n\n"_s + wording.advice;
}

RuntimeFailure FailureFromErrno(int error, const QString& operation) {
    return {KindOfErrno(error),
            operation + u" failed: "_s + QString::fromLocal8Bit(std::strerror(error)) + u'.'};
}
