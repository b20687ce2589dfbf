#include "products/TallyLocations.h"

#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString locationsFile = u"/Locations.txt"_s;

} // namespace

TallyLocations::TallyLocations(BasicDiskRoutines& diskRoutines) : disk(diskRoutines) {}

void TallyLocations::Load() {
    Clear();
    if (!disk.FileExists(locationsFile))
        return;
    disk.OpenForInput(locationsFile);
    TextReader reader(disk);
    // By fields, though they are written as whole lines: this is meant.
    for (QString& location : txtTally)
        location = reader.Text();
    disk.CloseAllFiles();
}

void TallyLocations::Save() {
    RewritePlainLines(disk, locationsFile, QStringList(txtTally.begin(), txtTally.end()));
}

void TallyLocations::Clear() {
    txtTally.fill({});
}
