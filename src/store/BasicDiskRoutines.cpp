#include "store/BasicDiskRoutines.h"

#include "platform/RuntimeFailure.h"

#include <QFile>
#include <QStringEncoder>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t newFileMode = 0666;
constexpr mode_t newFolderMode = 0777;
/// No text file of the program comes near this size; a file that does is something else.
constexpr qsizetype largestText = 16 * 1024 * 1024;
constexpr qsizetype readStep = 8192;
constexpr qsizetype flushSize = 65536;

/// An open file that is closed on every way out.
class Descriptor {
public:
    explicit Descriptor(int fileDescriptor) : descriptor(fileDescriptor) {}
    ~Descriptor() {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Get() const { return descriptor; }
    int Release() { return std::exchange(descriptor, -1); }

private:
    int descriptor;
};

/// Brings a name to the one form it has on disk and in messages: relative, with single slashes.
template <typename Text>
void MakeRelative(Text& name) {
    using Character = typename Text::value_type;
    constexpr Character slash(u'/');
    constexpr Character otherSlash(u'\\');
    auto* const start = name.data();
    auto* end = start;
    for (const Character character : std::as_const(name)) {
        const bool isSeparator = character == slash || character == otherSlash;
        if (!isSeparator)
            *end++ = character;
        else if (end > start && end[-1] != slash)
            *end++ = slash;
    }
    name.resize(end - start);
}

QString Reading(const QString& name) {
    return u"Reading "_s + Shown(name);
}

QString Writing(const QString& name) {
    return u"Writing "_s + Shown(name);
}

/// The result of a system call, made again when a signal came in between.
template <typename Call>
ssize_t Uninterrupted(Call&& call) {
    for (;;) {
        const ssize_t result = call();
        if (result >= 0 || errno != EINTR)
            return result;
    }
}

void WriteWhole(int descriptor, QByteArrayView bytes, const QString& name) {
    while (!bytes.isEmpty()) {
        const ssize_t written =
            Uninterrupted([&] { return ::write(descriptor, bytes.data(), size_t(bytes.size())); });
        if (written < 0)
            throw FailureFromErrno(errno, Writing(name));
        bytes = bytes.sliced(written);
    }
}

/// Some disks tell of a lost write only here.
void CloseWritten(int descriptor, const QString& name) {
    if (::close(descriptor) < 0)
        throw FailureFromErrno(errno, Writing(name));
}

/// Reads at most `size` bytes; 0 at the end of the file.
size_t ReadSome(int descriptor, char* buffer, size_t size, const QString& name) {
    const ssize_t count = Uninterrupted([&] { return ::read(descriptor, buffer, size); });
    if (count < 0)
        throw FailureFromErrno(errno, Reading(name));
    return size_t(count);
}

QByteArray ReadText(int descriptor, const QString& name) {
    QByteArray content;
    std::array<char, readStep> buffer;
    for (;;) {
        const auto count = qsizetype(ReadSome(descriptor, buffer.data(), buffer.size(), name));
        content.append(buffer.data(), count);
        if (content.size() > largestText)
            throw RuntimeFailure(FailureKind::FileTooLarge,
                                 Reading(name) + u" failed: the file is larger than 16 MB."_s);
        // A file on disk gives less than was asked for only at its end.
        if (count < readStep)
            return content;
    }
}

bool LeavesFolder(std::string_view path) {
    return path.find("..") != std::string_view::npos &&
           QByteArray(path.data(), qsizetype(path.size())).split('/').contains("..");
}

/// Not every file system tells the type of an entry in the listing.
bool IsFolder(int parent, const dirent& entry) {
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return entry.d_type == DT_DIR;
    struct stat status {};
    return ::fstatat(parent, entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

bool HasWildcard(const QString& name) {
    return name.contains(u'*') || name.contains(u'?');
}

/// The folder and the last part of a relative path.
std::pair<QString, QString> FolderAndLastPart(const QString& name) {
    const QString path = Shown(name);
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? std::pair(QString(), path)
                     : std::pair(path.left(slash), path.mid(slash + 1));
}

/// What is about to be created is missing by nature: what wasn't found is its folder.
RuntimeFailure CreationFailure(int error, const QString& operation) {
    const RuntimeFailure failure = FailureFromErrno(error, operation);
    return error == ENOENT ? RuntimeFailure(FailureKind::PathNotFound, failure.Sentence())
                           : failure;
}

RuntimeFailure NotOpen(qint16 fileNumber) {
    return {FailureKind::FileNotOpen,
            u"File number %1 is not open for this operation."_s.arg(fileNumber)};
}

} // namespace

QString Shown(const QString& name) {
    QString shown = name;
    MakeRelative(shown);
    return shown;
}

BasicDiskRoutines::BasicDiskRoutines(const QString& folderPath) : dataFolder(folderPath) {
    folder = ::open(QFile::encodeName(folderPath).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        throw FailureFromErrno(errno, u"Opening the data folder "_s + folderPath);
}

BasicDiskRoutines::~BasicDiskRoutines() {
    PassOver([this] { CloseAllFiles(); });
    ::close(folder);
}

BasicDiskRoutines::DiskPath BasicDiskRoutines::PathOf(const QString& name) const {
    QStringEncoder toUtf8(QStringEncoder::Utf8);
    DiskPath path(toUtf8.requiredSpace(name.size()));
    path.resize(toUtf8.appendToBuffer(path.data(), name) - path.data());
    MakeRelative(path);
    if (path.contains('\0') || LeavesFolder({path.data(), size_t(path.size())}))
        throw RuntimeFailure(FailureKind::BadFileName,
                             u"The name \"%1\" would lead out of the data folder."_s.arg(name));
    if (path.isEmpty())
        path.append('.');
    path.append('\0');
    return path;
}

int BasicDiskRoutines::Open(const QString& name, int flags, const char* purpose) const {
    // Without O_NONBLOCK a pipe that stands under a data file's name would hold the program up
    // for ever.
    const int descriptor = ::openat(folder, PathOf(name).constData(),
                                    flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, newFileMode);
    if (descriptor >= 0)
        return descriptor;
    const int error = errno;
    const QString operation = u"Opening %1 for %2"_s.arg(Shown(name), QString::fromLatin1(purpose));
    throw(flags & O_CREAT) != 0 ? CreationFailure(error, operation)
                                : FailureFromErrno(error, operation);
}

bool BasicDiskRoutines::IsThere(const QString& name) const {
    struct stat status {};
    if (::fstatat(folder, PathOf(name).constData(), &status, 0) == 0)
        return true;
    if (errno == ENOENT || errno == ENOTDIR)
        return false;
    throw FailureFromErrno(errno, u"Looking for "_s + Shown(name));
}

qint16 BasicDiskRoutines::FreeFileNumber() const {
    qint16 number = 1;
    while (inputs.contains(number) || outputs.contains(number) || randoms.contains(number)) {
        if (number == std::numeric_limits<qint16>::max())
            throw RuntimeFailure(FailureKind::Overflow, u"Too many files are open."_s);
        ++number;
    }
    return number;
}

bool BasicDiskRoutines::FileExists(const QString& name) {
    if (HasWildcard(name))
        return AnyFileExists(name);
    if (IsThere(name))
        return true;
    if (!IsThere(u"/Backup"_s + name))
        return false;
    CopyDataFile(u"/Backup"_s + name, name);
    return true;
}

bool BasicDiskRoutines::AnyFileExists(const QString& name) {
    const auto [parent, pattern] = FolderAndLastPart(name);
    if (!ListFiles(parent, pattern).empty())
        return true;
    const std::vector<QString> copies = ListFiles(u"/Backup/"_s + parent, pattern);
    for (const QString& copy : copies) {
        const QString lost = u'/' + parent + u'/' + copy;
        CopyDataFile(u"/Backup"_s + lost, lost);
    }
    return !copies.empty();
}

void BasicDiskRoutines::CopyDataFile(const QString& from, const QString& to) {
    const Descriptor source(Open(from, O_RDONLY, "reading"));
    Descriptor target(Open(to, O_WRONLY | O_CREAT | O_TRUNC, "writing"));
    try {
        std::array<char, flushSize> buffer;
        while (const size_t count = ReadSome(source.Get(), buffer.data(), buffer.size(), from))
            WriteWhole(target.Get(), {buffer.data(), qsizetype(count)}, to);
        CloseWritten(target.Release(), to);
    } catch (const RuntimeFailure&) {
        // Half a copy would pass for the whole file later on.
        ::unlinkat(folder, PathOf(to).constData(), 0);
        throw;
    }
}

qint64 BasicDiskRoutines::FileLength(const QString& name) const {
    struct stat status {};
    if (::fstatat(folder, PathOf(name).constData(), &status, 0) < 0)
        throw FailureFromErrno(errno, u"Measuring "_s + Shown(name));
    return status.st_size;
}

qint16 BasicDiskRoutines::RecordCount(const QString& name, qint16 recordLength) {
    if (!FileExists(name))
        return 0;
    const double count = std::nearbyint(double(FileLength(name)) / double(recordLength));
    if (count > double(std::numeric_limits<qint16>::max()))
        throw RuntimeFailure(
            FailureKind::Overflow,
            u"Counting the records of %1 failed: there are more than 32,767."_s.arg(Shown(name)));
    return qint16(count);
}

void BasicDiskRoutines::OpenForInput(const QString& name) {
    const qint16 number = FreeFileNumber();
    const Descriptor source(Open(name, O_RDONLY, "reading"));
    inputs.insert({number, {ReadText(source.Get(), name), 0, name}});
    DiskFile = number;
}

void BasicDiskRoutines::CheckOpens(const QString& name) {
    const Descriptor source(Open(name, O_RDONLY, "reading"));
    CloseAllFiles();
}

qint16 BasicDiskRoutines::OpenForOutputBeside(const QString& name) {
    const qint16 number = FreeFileNumber();
    const int descriptor = Open(name, O_WRONLY | O_CREAT | O_TRUNC, "writing");
    outputs.insert({number, {descriptor, {}, Shown(name)}});
    return number;
}

void BasicDiskRoutines::OpenForOutput(const QString& name) {
    DiskFile = OpenForOutputBeside(name);
}

qint16 BasicDiskRoutines::OpenRecords(const QString& name, qint16 recordLength) {
    const qint16 number = FreeFileNumber();
    const int descriptor = Open(name, O_RDWR | O_CREAT, "reading and writing");
    randoms.insert({number, {descriptor, recordLength, Shown(name)}});
    return number;
}

void BasicDiskRoutines::OpenRandom(const QString& name, qint16 recordLength) {
    DiskFile = OpenRecords(name, recordLength);
}

void BasicDiskRoutines::OpenRandomSecond(const QString& name, qint16 recordLength) {
    DiskFile2 = OpenRecords(name, recordLength);
}

void BasicDiskRoutines::Flush(Output& output) {
    const QByteArray pending = std::exchange(output.buffer, {});
    WriteWhole(output.descriptor, pending, output.name);
}

void BasicDiskRoutines::CloseAllFiles() {
    inputs.clear();
    // Every file is closed whatever happens to another; the first failure is the one told.
    std::optional<RuntimeFailure> failure;
    const auto keepFirst = [&failure](auto&& closing) {
        try {
            closing();
        } catch (const RuntimeFailure& caught) {
            if (!failure)
                failure = caught;
        }
    };
    for (const auto& entry : std::exchange(randoms, {}))
        keepFirst([&entry] { CloseWritten(entry.second.descriptor, entry.second.name); });
    for (auto& entry : std::exchange(outputs, {})) {
        keepFirst([&entry] {
            Descriptor closing(entry.second.descriptor);
            Flush(entry.second);
            CloseWritten(closing.Release(), entry.second.name);
        });
    }
    if (failure)
        throw RuntimeFailure(*failure);
}

void BasicDiskRoutines::Remove(const QString& name) {
    if (::unlinkat(folder, PathOf(name).constData(), 0) < 0 && errno != ENOENT && errno != ENOTDIR)
        throw FailureFromErrno(errno, u"Deleting "_s + Shown(name));
}

void BasicDiskRoutines::KillFile(const QString& name) {
    CloseAllFiles();
    Remove(name);
}

void BasicDiskRoutines::DeleteWithBackup(const QString& name) {
    KillFile(u"/Backup"_s + name);
    KillFile(name);
}

void BasicDiskRoutines::MakeFolder(const QString& name) {
    if (::mkdirat(folder, PathOf(name).constData(), newFolderMode) < 0 && errno != EEXIST)
        throw CreationFailure(errno, u"Making the folder "_s + Shown(name));
}

void BasicDiskRoutines::RenameDataFile(const QString& from, const QString& to) {
    const DiskPath source = PathOf(from);
    const DiskPath target = PathOf(to);
    const QString operation = u"Renaming %1 to %2"_s.arg(Shown(from), Shown(to));
    if (::renameat2(folder, source.constData(), folder, target.constData(), RENAME_NOREPLACE) < 0) {
        // Not every file system can refuse an existing target by itself.
        if (errno != EINVAL)
            throw FailureFromErrno(errno, operation);
        if (IsThere(to))
            throw FailureFromErrno(EEXIST, operation);
        if (::renameat(folder, source.constData(), folder, target.constData()) < 0)
            throw FailureFromErrno(errno, operation);
    }
    KillFile(from);
}

void BasicDiskRoutines::ReplaceFromTemporary(const QString& name) {
    DeleteWithBackup(name);
    RenameDataFile(u"/TemporaryFile.txt"_s, name);
}

void BasicDiskRoutines::BackupDataFiles() {
    CopyFilesToBackup();
}

void BasicDiskRoutines::CopyFilesToBackup() {
    static const QStringList baseNames = {u"CompanyLogo"_s,  u"CustomerData"_s, u"AuxHeadings"_s,
                                          u"LogoSettings"_s, u"Phone"_s,        u"MyBusinessData"_s,
                                          u"PrintColors"_s,  u"SoldItems"_s,    u"MyWebSite"_s,
                                          u"TaxRecords"_s,   u"SpeedNumbers"_s};
    for (const QString& baseName : baseNames) {
        const QString name = u'/' + baseName + u".txt"_s;
        const QString copy = u"/Backup"_s + name;
        PassOver([&] { CloseAllFiles(); });
        bool isThere = false;
        PassOver([&] { isThere = IsThere(name); });
        if (!isThere)
            continue;
        PassOver([&] { Remove(copy); });
        PassOver([&] { CopyDataFile(name, copy); });
    }
}

std::vector<QString> BasicDiskRoutines::ListFiles(const QString& folderName,
                                                  const QString& pattern) {
    const QString operation = u"Listing the folder "_s + Shown(folderName);
    const int descriptor =
        ::openat(folder, PathOf(folderName).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            return {};
        throw FailureFromErrno(errno, operation);
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(descriptor), ::closedir);
    if (!listing) {
        const int error = errno;
        ::close(descriptor);
        throw FailureFromErrno(error, operation);
    }
    // Only * and ? are wildcards.
    const QByteArray match = QFile::encodeName(pattern).replace("[", "[[]");
    std::vector<QByteArray> names;
    for (errno = 0; const dirent* entry = ::readdir(listing.get()); errno = 0) {
        if (::fnmatch(match.constData(), entry->d_name, FNM_NOESCAPE) == 0 &&
            !IsFolder(descriptor, *entry))
            names.emplace_back(entry->d_name);
    }
    if (errno != 0)
        throw FailureFromErrno(errno, operation);
    std::sort(names.begin(), names.end());
    std::vector<QString> files;
    files.reserve(names.size());
    std::transform(names.begin(), names.end(), std::back_inserter(files),
                   [](const QByteArray& name) { return QString::fromUtf8(name); });
    return files;
}

BasicDiskRoutines::Input& BasicDiskRoutines::InputOn(qint16 fileNumber) {
    const auto found = inputs.find(fileNumber);
    if (found == inputs.end())
        throw NotOpen(fileNumber);
    return found->second;
}

void BasicDiskRoutines::Append(qint16 fileNumber, QByteArrayView bytes) {
    const auto found = outputs.find(fileNumber);
    if (found == outputs.end())
        throw NotOpen(fileNumber);
    Output& output = found->second;
    output.buffer.append(bytes);
    if (output.buffer.size() >= flushSize)
        Flush(output);
}

BasicDiskRoutines::Random& BasicDiskRoutines::RandomOn(qint16 fileNumber) {
    const auto found = randoms.find(fileNumber);
    if (found == randoms.end())
        throw NotOpen(fileNumber);
    return found->second;
}

off_t BasicDiskRoutines::StartOf(const Random& random, qint32 recordNumber, size_t size,
                                 const std::function<QString()>& operation) {
    if (recordNumber < 1)
        throw RuntimeFailure(FailureKind::BadRecord,
                             operation() + u" failed: records are numbered from 1."_s);
    if (size > size_t(random.recordLength))
        throw RuntimeFailure(FailureKind::BadRecord,
                             operation() + u" failed: the record is longer than the file's."_s);
    return off_t(recordNumber - 1) * random.recordLength;
}

void BasicDiskRoutines::ReadRecord(qint16 fileNumber, qint32 recordNumber, void* record,
                                   size_t size) {
    const Random& random = RandomOn(fileNumber);
    // Put together for a failure alone: thousands of records are read one after the other.
    const auto operation = [&] {
        return u"Reading record %1 of %2"_s.arg(recordNumber).arg(random.name);
    };
    ReadAt(random, StartOf(random, recordNumber, size, operation), record, size, operation);
}

void BasicDiskRoutines::ReadRecords(qint16 fileNumber, qint32 first, qint16 count, void* records,
                                    size_t size) {
    const Random& random = RandomOn(fileNumber);
    const auto operation = [&] {
        return u"Reading %1 records from record %2 of %3"_s.arg(count).arg(first).arg(random.name);
    };
    if (size != size_t(random.recordLength))
        throw RuntimeFailure(FailureKind::BadRecord,
                             operation() + u" failed: a record has another length."_s);
    ReadAt(random, StartOf(random, first, size, operation), records, size_t(count) * size,
           operation);
}

void BasicDiskRoutines::ReadAt(const Random& random, off_t start, void* bytes, size_t size,
                               const std::function<QString()>& operation) {
    auto* const target = static_cast<char*>(bytes);
    size_t done = 0;
    while (done < size) {
        const ssize_t count = Uninterrupted([&] {
            return ::pread(random.descriptor, target + done, size - done, start + off_t(done));
        });
        if (count < 0) {
            const int error = errno;
            throw FailureFromErrno(error, operation());
        }
        if (count == 0)
            break;
        done += size_t(count);
    }
    if (done < size)
        std::memset(target + done, 0, size - done);
}

void BasicDiskRoutines::WriteRecord(qint16 fileNumber, qint32 recordNumber, const void* record,
                                    size_t size) {
    const Random& random = RandomOn(fileNumber);
    const auto operation = [&] {
        return u"Writing record %1 of %2"_s.arg(recordNumber).arg(random.name);
    };
    const off_t start = StartOf(random, recordNumber, size, operation);
    const auto* bytes = static_cast<const char*>(record);
    for (size_t done = 0; done < size;) {
        const ssize_t count = Uninterrupted([&] {
            return ::pwrite(random.descriptor, bytes + done, size - done, start + off_t(done));
        });
        if (count < 0) {
            const int error = errno;
            throw FailureFromErrno(error, operation());
        }
        done += size_t(count);
    }
}
