#pragma once

#include <QString>

#include <exception>

/// What kind of thing went wrong; it chooses the heading and the advice of the report.
enum class FailureKind {
    FileNotFound,
    PathNotFound,
    PermissionDenied,
    DiskFull,
    BadFileName,
    FileAlreadyExists,
    FileTooLarge,
    FileNotOpen,
    BadRecord,
    DeviceFailure,
    ReadPastEnd,
    TypeMismatch,
    Overflow,
    Subscript,
    PrinterFailure,
    PrintCancelled,
    BadPicture,
};

/// The one exception of the program: something that stops it. It carries a sentence that names
/// the operation and, where a file is concerned, the file.
class RuntimeFailure : public std::exception {
public:
    RuntimeFailure(FailureKind failureKind, const QString& failureSentence);

    FailureKind Kind() const { return kind; }
    const QString& Sentence() const { return sentence; }

    /// The run-time failure report: what failed, the sentence, and what the operator can do.
    QString Report() const;

    const char* what() const noexcept override { return bytes.constData(); }

private:
    FailureKind kind;
    QString sentence;
    QByteArray bytes;
};

/// A failure that nothing passes over and no road handles: it ends the program wherever it comes
/// up.
class EndingFailure : public RuntimeFailure {
public:
    using RuntimeFailure::RuntimeFailure;
};

/// The failure that a failed system call stands for. `operation` is a sentence without its full
/// stop that names the file, for example "Opening Settings.txt for reading".
RuntimeFailure FailureFromErrno(int error, const QString& operation);

/// Runs one statement whose failure is to be passed over, and says whether it succeeded. An
/// EndingFailure goes through.
template <typename Statement>
bool PassOver(Statement&& statement) {
    try {
        statement();
        return true;
    } catch (const EndingFailure&) {
        throw;
    } catch (const RuntimeFailure&) {
        return false;
    }
}
