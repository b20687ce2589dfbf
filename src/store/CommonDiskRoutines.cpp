#include "store/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void OpenCustomerFile(BasicDiskRoutines& disk) {
    disk.OpenRandom(u"/CustomerData.txt"_s, customerRecordLength);
}

void OpenContractInfo(BasicDiskRoutines& disk) {
    disk.OpenRandomSecond(u"/ContractInfo.txt"_s, contractRecordLength);
}

void OpenCycleInfo(BasicDiskRoutines& disk) {
    disk.OpenRandomSecond(u"/CycleInfo.txt"_s, cycleRecordLength);
}
