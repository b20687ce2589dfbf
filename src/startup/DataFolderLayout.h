#pragma once

#include "platform/Clock.h"
#include "store/BasicDiskRoutines.h"

/// Makes the folders of the data folder that are missing; no file. One more year folder each year.
void CreateFolders(BasicDiskRoutines& disk, const Clock& clock);
/// The folders of the slips and templates.
void CreateDeliveryFolders(BasicDiskRoutines& disk);
