#include "support/PlainFiles.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

[[noreturn]] void TellFailure(const std::string& path) {
    std::perror(path.c_str());
    std::exit(EXIT_FAILURE);
}

/// The result of a system call; a failed one ends the benchmarks.
template <typename Result>
Result Checked(Result result, const std::string& path) {
    if (result < 0)
        TellFailure(path);
    return result;
}

int Open(const std::string& path, int flags) {
    constexpr mode_t newFileMode = 0666;
    return Checked(::open(path.c_str(), flags | O_CLOEXEC, newFileMode), path);
}

} // namespace

std::vector<std::string> PlainList(const std::string& folder) {
    DIR* listing = ::opendir(folder.c_str());
    if (!listing)
        TellFailure(folder);
    std::vector<std::string> paths;
    while (const dirent* entry = ::readdir(listing)) {
        if (entry->d_name[0] != '.')
            paths.push_back(folder + '/' + entry->d_name);
    }
    ::closedir(listing);
    std::sort(paths.begin(), paths.end());
    return paths;
}

void PlainOpenAndClose(const std::string& path) {
    ::close(Open(path, O_RDONLY));
}

std::string PlainRead(const std::string& path) {
    std::array<char, 8192> buffer;
    const int file = Open(path, O_RDONLY);
    const auto count = size_t(Checked(::read(file, buffer.data(), buffer.size()), path));
    ::close(file);
    return {buffer.data(), count};
}

void PlainReadRecords(const std::string& path, size_t recordLength,
                      const std::function<void(const char* record)>& use) {
    std::vector<char> record(recordLength);
    const int file = Open(path, O_RDONLY);
    for (off_t start = 0;; start += off_t(recordLength)) {
        const ssize_t count = Checked(::pread(file, record.data(), recordLength, start), path);
        if (size_t(count) < recordLength)
            break;
        use(record.data());
    }
    ::close(file);
}

void PlainWrite(const std::string& path, const std::string& bytes) {
    const int file = Open(path, O_WRONLY | O_CREAT | O_TRUNC);
    Checked(::write(file, bytes.data(), bytes.size()), path);
    Checked(::close(file), path);
}

void PlainAppendRecords(const std::string& path, const std::vector<std::string>& records) {
    const int file = Open(path, O_WRONLY | O_CREAT);
    off_t end = Checked(::lseek(file, 0, SEEK_END), path);
    for (const std::string& record : records)
        end += Checked(::pwrite(file, record.data(), record.size(), end), path);
    Checked(::close(file), path);
}

void PlainRemove(const std::string& path) {
    Checked(::unlink(path.c_str()), path);
}

void PlainRename(const std::string& from, const std::string& to) {
    Checked(::rename(from.c_str(), to.c_str()), from);
}

PlainRecords::PlainRecords(const std::string& filePath, size_t length)
    : path(filePath), recordLength(length), file(Open(filePath, O_RDONLY)) {}

PlainRecords::~PlainRecords() {
    ::close(file);
}

void PlainRecords::Read(int number, void* record) const {
    Checked(::pread(file, record, recordLength, off_t(number - 1) * off_t(recordLength)), path);
}
