#pragma once

#include "platform/Screen.h"

#include <array>

class EntryField;
class TallyLocations;

/// fraTallySheets: where the locations of the tally sheets are entered.
class TallyFrame : public Card {
    Q_OBJECT

public:
    explicit TallyFrame(TallyLocations& tallyLocations);

    /// Takes what has been entered over into the locations.
    void Read();
    /// Shows the locations as they are.
    void ShowLocations();
    void GoToFirst();

private:
    TallyLocations& locations;
    std::array<EntryField*, 5> txtTally{};
};
