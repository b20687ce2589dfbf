#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Files as the operating system gives them to any program, by their full paths: the floors of the
/// file benchmarks stand on these. A call that fails ends the benchmarks.

/// The full paths of what is in a folder, in name order, without names that begin with a point.
std::vector<std::string> PlainList(const std::string& folder);
void PlainOpenAndClose(const std::string& path);
/// At most 8,192 bytes: more than any file of the benchmarks has.
std::string PlainRead(const std::string& path);
/// Each record of a file of fixed records, read one by one.
void PlainReadRecords(const std::string& path, size_t recordLength,
                      const std::function<void(const char* record)>& use);
void PlainWrite(const std::string& path, const std::string& bytes);
/// Each of the records behind what is in the file, written one by one.
void PlainAppendRecords(const std::string& path, const std::vector<std::string>& records);
void PlainRemove(const std::string& path);
void PlainRename(const std::string& from, const std::string& to);

/// A file of records of one length, read one by one.
class PlainRecords {
public:
    PlainRecords(const std::string& filePath, size_t length);
    ~PlainRecords();
    PlainRecords(const PlainRecords&) = delete;
    PlainRecords& operator=(const PlainRecords&) = delete;

    /// Records count from 1.
    void Read(int number, void* record) const;

private:
    std::string path;
    size_t recordLength;
    int file;
};
