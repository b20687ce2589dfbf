#pragma once

#include "store/BasicDiskRoutines.h"

#include <QString>

#include <array>

/// The storage locations that tally sheets are printed for, as the operator keeps them in
/// Locations.txt: five plain lines, of which any may be blank.
class TallyLocations {
public:
    explicit TallyLocations(BasicDiskRoutines& diskRoutines);

    std::array<QString, 5> txtTally;

    /// What creating the products screen loads; five blank ones without a file. A comma in a
    /// location splits it into two and shifts those behind it. A file of less than five values is
    /// a failure of kind ReadPastEnd.
    void Load();
    void Save();
    void Clear();

private:
    BasicDiskRoutines& disk;
};
