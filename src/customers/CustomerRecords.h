#pragma once

#include "store/CommonDiskRoutines.h"
#include "store/FixedRecord.h"

#include <cstddef>

/// Record of CustomerData.txt.
struct CustomerRecord {
    FixedText<20> AcctNo;
    FixedText<45> BusinessName;
    FixedText<35> Address1;
    FixedText<25> Address2;
    FixedText<25> City;
    FixedText<20> CityListEntry;
    FixedText<2> State;
    FixedText<10> Zip;
    FixedText<25> PostalOrAddress4;
    FixedText<13> Phone;
    FixedText<13> Cell;
    FixedText<30> Email;
    FixedText<10> Title;
    FixedText<15> FirstName;
    FixedText<1> MiddleInitial;
    FixedText<25> LastName;
    /// "Business" or "Individual".
    FixedText<10> AcctType;
    LittleInt16 AcctState;
    LittleInt16 Reserved;
};

static_assert(sizeof(CustomerRecord) == customerRecordLength);
static_assert(offsetof(CustomerRecord, BusinessName) == 20);
static_assert(offsetof(CustomerRecord, Address1) == 65);
static_assert(offsetof(CustomerRecord, Address2) == 100);
static_assert(offsetof(CustomerRecord, City) == 125);
static_assert(offsetof(CustomerRecord, CityListEntry) == 150);
static_assert(offsetof(CustomerRecord, State) == 170);
static_assert(offsetof(CustomerRecord, Zip) == 172);
static_assert(offsetof(CustomerRecord, PostalOrAddress4) == 182);
static_assert(offsetof(CustomerRecord, Phone) == 207);
static_assert(offsetof(CustomerRecord, Cell) == 220);
static_assert(offsetof(CustomerRecord, Email) == 233);
static_assert(offsetof(CustomerRecord, Title) == 263);
static_assert(offsetof(CustomerRecord, FirstName) == 273);
static_assert(offsetof(CustomerRecord, MiddleInitial) == 288);
static_assert(offsetof(CustomerRecord, LastName) == 289);
static_assert(offsetof(CustomerRecord, AcctType) == 314);
static_assert(offsetof(CustomerRecord, AcctState) == 324);
static_assert(offsetof(CustomerRecord, Reserved) == 326);

/// Record of ContractInfo.txt. The file is shared with a program for billing cycles; this one
/// keeps it in step with the customers and gives its fields no meaning, so they are named by
/// their offsets.
struct ContractRecord {
    FixedText<35> At0;
    FixedText<15> At35;
    LittleCurrency At50;
    FixedText<9> At58;
    FixedText<40> At67;
    LittleDate At107;
    LittleDate At115;
    LittleInt16 At123;
    LittleInt16 At125;
    LittleInt16 At127;
    FixedText<20> At129;
    FixedText<20> At149;
    FixedText<30> At169;
    FixedText<35> At199;
    FixedText<25> At234;
    FixedText<20> At259;
    FixedText<2> At279;
    FixedText<10> At281;
    FixedText<13> At291;
    FixedText<30> At304;
    LittleInt16 At334;
    FixedText<50> At336;
};

static_assert(sizeof(ContractRecord) == contractRecordLength);
static_assert(offsetof(ContractRecord, At35) == 35);
static_assert(offsetof(ContractRecord, At50) == 50);
static_assert(offsetof(ContractRecord, At58) == 58);
static_assert(offsetof(ContractRecord, At67) == 67);
static_assert(offsetof(ContractRecord, At107) == 107);
static_assert(offsetof(ContractRecord, At115) == 115);
static_assert(offsetof(ContractRecord, At123) == 123);
static_assert(offsetof(ContractRecord, At125) == 125);
static_assert(offsetof(ContractRecord, At127) == 127);
static_assert(offsetof(ContractRecord, At129) == 129);
static_assert(offsetof(ContractRecord, At149) == 149);
static_assert(offsetof(ContractRecord, At169) == 169);
static_assert(offsetof(ContractRecord, At199) == 199);
static_assert(offsetof(ContractRecord, At234) == 234);
static_assert(offsetof(ContractRecord, At259) == 259);
static_assert(offsetof(ContractRecord, At279) == 279);
static_assert(offsetof(ContractRecord, At281) == 281);
static_assert(offsetof(ContractRecord, At291) == 291);
static_assert(offsetof(ContractRecord, At304) == 304);
static_assert(offsetof(ContractRecord, At334) == 334);
static_assert(offsetof(ContractRecord, At336) == 336);

/// Record of CycleInfo.txt, shared in the same way.
struct CycleRecord {
    FixedText<35> At0;
    LittleCurrency At35;
    LittleInt16 At43;
    FixedText<20> At45;
    LittleInt16 At65;
    LittleInt16 At67;
};

static_assert(sizeof(CycleRecord) == cycleRecordLength);
static_assert(offsetof(CycleRecord, At35) == 35);
static_assert(offsetof(CycleRecord, At43) == 43);
static_assert(offsetof(CycleRecord, At45) == 45);
static_assert(offsetof(CycleRecord, At65) == 65);
static_assert(offsetof(CycleRecord, At67) == 67);
