#pragma once

#include "store/BasicDiskRoutines.h"

/// Bytes a record of the three customer files.
constexpr qint16 customerRecordLength = 328;
constexpr qint16 contractRecordLength = 386;
constexpr qint16 cycleRecordLength = 69;

/// The three parallel customer files: record N in each belongs to the same customer.
void OpenCustomerFile(BasicDiskRoutines& disk);
/// Beside an open customer file, on DiskFile2.
void OpenContractInfo(BasicDiskRoutines& disk);
void OpenCycleInfo(BasicDiskRoutines& disk);
