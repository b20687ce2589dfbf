#include "support/PlainFiles.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The result of a system call; a failed one ends the benchmarks.
template <typename Result>
Result Checked(Result result, const std::string& name) {
    if (result < 0) {
        std::perror(name.c_str());
        std::exit(EXIT_FAILURE);
    }
    return result;
}

} // namespace

PlainFolder::PlainFolder(const std::string& path)
    : folder(Checked(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), path)) {}

PlainFolder::~PlainFolder() {
    ::close(folder);
}

int PlainFolder::Open(const std::string& name, int flags) const {
    constexpr mode_t newFileMode = 0666;
    return Checked(::openat(folder, name.c_str(), flags | O_CLOEXEC, newFileMode), name);
}

std::vector<std::string> PlainFolder::List(const std::string& below) const {
    DIR* listing = ::fdopendir(Open(below, O_RDONLY | O_DIRECTORY));
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(listing)) {
        if (entry->d_name[0] != '.')
            names.emplace_back(entry->d_name);
    }
    ::closedir(listing);
    std::sort(names.begin(), names.end());
    return names;
}

void PlainFolder::OpenAndClose(const std::string& name) const {
    ::close(Open(name, O_RDONLY));
}

std::string PlainFolder::Read(const std::string& name) const {
    std::array<char, 8192> buffer;
    const int file = Open(name, O_RDONLY);
    const auto count = size_t(Checked(::read(file, buffer.data(), buffer.size()), name));
    ::close(file);
    return {buffer.data(), count};
}

void PlainFolder::Write(const std::string& name, const std::string& bytes) const {
    const int file = Open(name, O_WRONLY | O_CREAT | O_TRUNC);
    Checked(::write(file, bytes.data(), bytes.size()), name);
    Checked(::close(file), name);
}

void PlainFolder::Remove(const std::string& name) const {
    Checked(::unlinkat(folder, name.c_str(), 0), name);
}

void PlainFolder::Rename(const std::string& from, const std::string& to) const {
    Checked(::renameat(folder, from.c_str(), folder, to.c_str()), from);
}
