#pragma once

#include "store/BasicDiskRoutines.h"

#include <QString>

#include <array>

/// The entries of the ten speed dial buttons. SpeedNumbers.txt keeps the filled ones, a line with
/// the name and a line with the number each, so a place in the file is no button: entries close up
/// when they are loaded.
class SpeedNumbers {
public:
    static constexpr size_t count = 10;

    explicit SpeedNumbers(BasicDiskRoutines& diskRoutines);

    std::array<QString, count> SpeedName;
    std::array<QString, count> SpeedNumber;

    /// A missing file leaves all buttons empty. An odd number of lines is a failure of kind
    /// ReadPastEnd, more than ten entries one of kind Subscript.
    void Load();
    /// Entries without a name are not written.
    void Save();

private:
    BasicDiskRoutines& disk;
};
