#pragma once

#include <QByteArray>
#include <QString>
#include <QVarLengthArray>

#include <functional>
#include <map>
#include <sys/types.h>
#include <vector>

/// The name of a data file as messages show it: relative, with single slashes.
QString Shown(const QString& name);

/// The one door to the data files. A `name` is a path under the data folder, beginning with a
/// separator; "/" and "\" both separate, also doubled. A name that would leave the data folder is
/// refused as a failure of kind BadFileName.
///
/// Files are opened on file numbers. Every failure of an open, read, write, rename or copy is a
/// RuntimeFailure that names the operation and the file; a write that does not reach the disk
/// whole is one too.
class BasicDiskRoutines {
public:
    /// Fails when the folder can't be opened.
    explicit BasicDiskRoutines(const QString& dataFolder);
    ~BasicDiskRoutines();
    BasicDiskRoutines(const BasicDiskRoutines&) = delete;
    BasicDiskRoutines& operator=(const BasicDiskRoutines&) = delete;

    const QString& DataFolder() const { return dataFolder; }

    /// The number of the file opened last, and of the one opened last by OpenRandomSecond.
    qint16 DiskFile = 0;
    qint16 DiskFile2 = 0;

    /// Whether a file of that name is there. A lost file that has a copy in Backup is brought back
    /// first, in silence: this is how the program recovers. A name with a wildcard (* or ? in its
    /// last part) matches by pattern, and brings back every copy that matches.
    bool FileExists(const QString& name);
    void CopyDataFile(const QString& from, const QString& to);
    /// In bytes; a missing file is a failure.
    qint64 FileLength(const QString& name) const;
    /// Records in a fixed-record file: its length divided by the record's, rounded to the nearest
    /// whole number, a tie to the even one. 0 when the file is missing; an overflow above 32,767.
    qint16 RecordCount(const QString& name, qint16 recordLength);

    void OpenForInput(const QString& name);
    /// Opens the file for input and closes all files, without reading it: what is asked is whether
    /// it opens.
    void CheckOpens(const QString& name);
    /// Creates the file or empties it.
    void OpenForOutput(const QString& name);
    /// As OpenForOutput, but beside the file on DiskFile, which it leaves as it is. Returns the
    /// file number.
    qint16 OpenForOutputBeside(const QString& name);
    /// Fixed records of `recordLength` bytes, for reading and writing; creates a missing file.
    void OpenRandom(const QString& name, qint16 recordLength);
    void OpenRandomSecond(const QString& name, qint16 recordLength);
    void CloseAllFiles();

    /// KillFile of the copy in Backup, then of the file: so that the copy can't come back as a
    /// stale version of a file about to be saved.
    void DeleteWithBackup(const QString& name);
    /// Closes all open files, whichever they are, then deletes the file if it is there. Writers
    /// lean on the closing.
    void KillFile(const QString& name);
    /// One level; the parent must be there. Nothing happens when the name is taken, even by a
    /// file.
    void MakeFolder(const QString& name);
    /// Fails when `to` is there.
    void RenameDataFile(const QString& from, const QString& to);
    /// Puts TemporaryFile.txt in the place of the file and of its copy in Backup.
    void ReplaceFromTemporary(const QString& name);
    /// The exit's safety copy of eleven files into Backup. A failure skips the file.
    void BackupDataFiles();

    /// Names of the files (not folders) in a folder that match a pattern such as "*.txt", in name
    /// order. A missing folder has none.
    std::vector<QString> ListFiles(const QString& folder, const QString& pattern);

    // What the readers and writers of lines and records stand on. A number without an open file
    // of the right sort is a failure of kind FileNotOpen.

    /// The whole content of a file opened for input, and how far it has been read.
    struct Input {
        QByteArray content;
        qsizetype position = 0;
        QString name;
    };
    Input& InputOn(qint16 fileNumber);
    void Append(qint16 fileNumber, QByteArrayView bytes);
    /// Record numbers count from 1. What lies beyond the end of the file reads as zero bytes. A
    /// `size` beyond the file's record length is a failure of kind BadRecord.
    void ReadRecord(qint16 fileNumber, qint32 recordNumber, void* record, size_t size);
    /// As many records from `first` on in one go, `size` bytes each, which is the file's record
    /// length.
    void ReadRecords(qint16 fileNumber, qint32 first, qint16 count, void* records, size_t size);
    void WriteRecord(qint16 fileNumber, qint32 recordNumber, const void* record, size_t size);

private:
    struct Output {
        int descriptor = -1;
        QByteArray buffer;
        QString name;
    };
    struct Random {
        int descriptor = -1;
        qint16 recordLength = 0;
        QString name;
    };

    /// With the closing zero byte.
    using DiskPath = QVarLengthArray<char, 256>;
    DiskPath PathOf(const QString& name) const;
    int Open(const QString& name, int flags, const char* purpose) const;
    bool IsThere(const QString& name) const;
    bool AnyFileExists(const QString& name);
    qint16 FreeFileNumber() const;
    static void Flush(Output& output);
    /// `operation` is asked only for a failure: a file has thousands of records.
    static off_t StartOf(const Random& random, qint32 recordNumber, size_t size,
                         const std::function<QString()>& operation);
    static void ReadAt(const Random& random, off_t start, void* bytes, size_t size,
                       const std::function<QString()>& operation);
    void Remove(const QString& name);
    qint16 OpenRecords(const QString& name, qint16 recordLength);
    Random& RandomOn(qint16 fileNumber);
    void CopyFilesToBackup();

    QString dataFolder;
    int folder = -1;
    std::map<qint16, Input> inputs;
    std::map<qint16, Output> outputs;
    std::map<qint16, Random> randoms;
};
