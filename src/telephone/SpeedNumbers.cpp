#include "telephone/SpeedNumbers.h"

#include "platform/RuntimeFailure.h"
#include "store/TextLines.h"

using namespace Qt::StringLiterals;

namespace {

const QString speedFile = u"/SpeedNumbers.txt"_s;

} // namespace

SpeedNumbers::SpeedNumbers(BasicDiskRoutines& diskRoutines) : disk(diskRoutines) {}

void SpeedNumbers::Load() {
    SpeedName.fill({});
    SpeedNumber.fill({});
    if (!disk.FileExists(speedFile))
        return;
    disk.OpenForInput(speedFile);
    TextReader reader(disk);
    for (size_t slot = 0; !reader.AtEnd(); ++slot) {
        if (slot == count)
            throw RuntimeFailure(
                FailureKind::Subscript,
                u"Reading %1 failed: there is no button for more than %2 entries."_s
                    .arg(Shown(speedFile))
                    .arg(count));
        SpeedName[slot] = reader.WholeLine();
        SpeedNumber[slot] = reader.WholeLine();
    }
    disk.CloseAllFiles();
}

void SpeedNumbers::Save() {
    disk.KillFile(speedFile);
    disk.OpenForOutput(speedFile);
    TextWriter writer(disk);
    for (size_t slot = 0; slot < count; ++slot) {
        if (SpeedName[slot].isEmpty())
            continue;
        writer.Plain(SpeedName[slot]);
        writer.Plain(SpeedNumber[slot]);
    }
    disk.CloseAllFiles();
}
