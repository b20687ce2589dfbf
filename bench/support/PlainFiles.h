#pragma once

#include <string>
#include <vector>

/// A folder as the operating system gives it: the floors of the file benchmarks stand on this.
/// Names are relative to the folder. A call that fails ends the benchmarks.
class PlainFolder {
public:
    explicit PlainFolder(const std::string& path);
    ~PlainFolder();
    PlainFolder(const PlainFolder&) = delete;
    PlainFolder& operator=(const PlainFolder&) = delete;

    /// The names in a folder below, in name order, without those that begin with a point.
    std::vector<std::string> List(const std::string& below) const;
    void OpenAndClose(const std::string& name) const;
    std::string Read(const std::string& name) const;
    void Write(const std::string& name, const std::string& bytes) const;
    void Remove(const std::string& name) const;
    void Rename(const std::string& from, const std::string& to) const;

private:
    int Open(const std::string& name, int flags) const;

    int folder;
};
