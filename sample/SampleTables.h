#pragma once

#include <QLatin1StringView>

#include <array>

// What the sample business consists of, as plain tables. All of it is invented.
//
// Descriptions hold no comma, and no line of a slip comes to a thousand: the lines of a slip are
// read field by field, and a comma would end a field early.

using namespace Qt::StringLiterals;

/// Name, two address lines, city, state, postal code, telephone, web, tax number.
constexpr std::array<QLatin1StringView, 9> sampleBusiness = {"Cutler Bend Builders Yard"_L1,
                                                             "1480 Quarry Road"_L1,
                                                             ""_L1,
                                                             "Springfield"_L1,
                                                             "IL"_L1,
                                                             "62707"_L1,
                                                             "217-555-0142"_L1,
                                                             "www.cutlerbend.example"_L1,
                                                             "FEIN 00-0000000"_L1};

struct SampleAddress {
    QLatin1StringView name;
    QLatin1StringView street;
    QLatin1StringView apartment;
    QLatin1StringView city;
    QLatin1StringView zip;
};

constexpr QLatin1StringView sampleState = "IL"_L1;

enum CustomerIndex {
    TamarindLane,
    Hoskins,
    WhistlingElm,
    BrindleCreek,
    Osterhaus,
    LanternStreet,
    Pickett,
    SundayPorch,
    Whitcomb,
    Okafor,
    Lindqvist,
    Abernathy,
    customerCount,
};

struct SampleCustomer {
    QLatin1StringView account;
    /// Blank for an individual.
    QLatin1StringView businessName;
    QLatin1StringView title;
    QLatin1StringView firstName;
    QLatin1StringView lastName;
    QLatin1StringView street;
    QLatin1StringView apartment;
    QLatin1StringView city;
    QLatin1StringView zip;
    QLatin1StringView phone;
    QLatin1StringView email;
    /// The line of the slip that tells the driver whom to ask for.
    QLatin1StringView attention;
    /// Where the deliveries go; without a street, to the customer's own address.
    SampleAddress site;
};

constexpr SampleAddress ownAddress = {""_L1, ""_L1, ""_L1, ""_L1, ""_L1};

// clang-format off
constexpr std::array<SampleCustomer, customerCount> sampleCustomers = {{
    {"1001"_L1, "Tamarind Lane Builders"_L1, "Mr."_L1, "Curtis"_L1, "Vandermeer"_L1,
     "410 Tamarind Lane"_L1, ""_L1, "Springfield"_L1, "62702"_L1, "217-555-0110"_L1,
     "office@tamarindlane.example"_L1, "Ask for the foreman"_L1,
     {"Tamarind Lane Site 3"_L1, "27 Foundry Way"_L1, ""_L1, "Riverton"_L1, "62561"_L1}},
    {"1002"_L1, "Hoskins and Daughters Masonry"_L1, "Ms"_L1, "Leona"_L1, "Hoskins"_L1,
     "88 Kiln Street"_L1, ""_L1, "Decatur"_L1, "62521"_L1, "217-555-0111"_L1,
     "leona@hoskins.example"_L1, "Unload by the kiln shed"_L1, ownAddress},
    {"1003"_L1, "Whistling Elm Nursery"_L1, "Mr."_L1, "Tobias"_L1, "Greer"_L1,
     "2210 County Road 9"_L1, ""_L1, "Chatham"_L1, "62629"_L1, "217-555-0112"_L1,
     "yard@whistlingelm.example"_L1, "North gate"_L1, ownAddress},
    {"1004"_L1, "Brindle Creek Farm"_L1, "Mrs"_L1, "Adele"_L1, "Sorensen"_L1,
     "745 Creamery Road"_L1, ""_L1, "Rochester"_L1, "62563"_L1, "217-555-0113"_L1,
     "farm@brindlecreek.example"_L1, "Mind the dog"_L1, ownAddress},
    {"1005"_L1, "Osterhaus Roofing"_L1, "Mr."_L1, "Wendell"_L1, "Osterhaus"_L1,
     "19 Ladder Court"_L1, ""_L1, "Springfield"_L1, "62703"_L1, "217-555-0114"_L1,
     "jobs@osterhaus.example"_L1, "Crane on site until noon"_L1,
     {"Osterhaus at Beech Hall"_L1, "600 Beech Hall Drive"_L1, ""_L1, "Auburn"_L1, "62615"_L1}},
    {"1006"_L1, "Lantern Street Lofts"_L1, "Ms"_L1, "Priya"_L1, "Raman"_L1,
     "300 Lantern Street"_L1, "Suite 4"_L1, "Springfield"_L1, "62701"_L1, "217-555-0115"_L1,
     "manager@lanternlofts.example"_L1, "Loading dock B"_L1, ownAddress},
    {"1007"_L1, "Pickett Paving Company"_L1, "Mr."_L1, "Earl"_L1, "Pickett"_L1,
     "5601 Asphalt Avenue"_L1, ""_L1, "Taylorville"_L1, "62568"_L1, "217-555-0116"_L1,
     "dispatch@pickettpaving.example"_L1, "Call 30 minutes ahead"_L1,
     {"Pickett Road Crew"_L1, "County Road 14 at Mile 6"_L1, ""_L1, "Pawnee"_L1, "62558"_L1}},
    {"1008"_L1, "Sunday Porch Decks"_L1, "Mrs"_L1, "Marguerite"_L1, "Sunday"_L1,
     "1204 Larkspur Drive"_L1, ""_L1, "Lincoln"_L1, "62656"_L1, "217-555-0117"_L1,
     "hello@sundayporch.example"_L1, "Back yard"_L1, ownAddress},
    {"1009"_L1, ""_L1, "Mr."_L1, "Dale"_L1, "Whitcomb"_L1,
     "37 Orchard View"_L1, ""_L1, "Athens"_L1, "62613"_L1, "217-555-0118"_L1,
     "dale@whitcomb.example"_L1, "Leave by the barn"_L1, ownAddress},
    {"1010"_L1, ""_L1, "Ms"_L1, "Renata"_L1, "Okafor"_L1,
     "912 Wren Street"_L1, "Apt 2B"_L1, "Springfield"_L1, "62704"_L1, "217-555-0119"_L1,
     "renata@okafor.example"_L1, "Ring twice"_L1, ownAddress},
    {"1011"_L1, ""_L1, "Mr/Mrs"_L1, "Harold"_L1, "Lindqvist"_L1,
     "1450 Old Mill Road"_L1, ""_L1, "Petersburg"_L1, "62675"_L1, "217-555-0120"_L1,
     ""_L1, "Low bridge: come from the west"_L1, ownAddress},
    {"1012"_L1, ""_L1, "Mrs"_L1, "Joan"_L1, "Abernathy"_L1,
     "6 Quail Hollow"_L1, ""_L1, "Sherman"_L1, "62684"_L1, "217-555-0121"_L1,
     ""_L1, ""_L1, ownAddress},
}};
// clang-format on

/// The priced products first, then those without a price.
enum ProductIndex {
    Cement,
    Block,
    Sand,
    Gravel,
    Lumber,
    Plywood,
    Shingles,
    Water,
    pricedCount,
    PalletReturn = pricedCount,
    DrumPickup,
    productCount,
};

/// Amounts are cents.
struct SamplePricedProduct {
    QLatin1StringView description;
    QLatin1StringView category;
    int unitCost;
    int sellPrice;
    int discountPrice;
    int discountQuantity;
    qint16 onHand;
    qint16 reorderAmount;
    qint16 reorderPoint;
};

// clang-format off
constexpr std::array<SamplePricedProduct, pricedCount> pricedProducts = {{
    {"Portland Cement 94 lb Bag"_L1, "Masonry"_L1,     910, 1375, 1290,  40,  620,  280,  140},
    {"Concrete Block 8 inch"_L1,     "Masonry"_L1,     135,  210,  195, 200, 4100, 1800,  900},
    {"Washed Sand per Yard"_L1,      "Aggregates"_L1, 1950, 3400, 3200,  10,   85,   40,   20},
    {"Crushed Gravel per Yard"_L1,   "Aggregates"_L1, 2200, 3850, 3600,  10,   18,   60,   25},
    {"Framing Lumber 2x4x8"_L1,      "Lumber"_L1,      305,  485,  455, 100, 2350, 1200,  500},
    {"Plywood Sheet 4x8"_L1,         "Lumber"_L1,     2440, 3690, 3490,  20,  310,  120,   60},
    {"Roofing Shingle Bundle"_L1,    "Roofing"_L1,    2710, 3950, 3750,  24,  190,   96,   48},
    {"Site Water 100 Gallons"_L1,    "Bulk"_L1,        110,  650,  600,  50,  900,    0,    0},
}};
// clang-format on

struct SampleUnpricedProduct {
    QLatin1StringView description;
    qint16 onHand;
    qint16 reorderAmount;
    qint16 reorderPoint;
};

constexpr std::array<SampleUnpricedProduct, productCount - pricedCount> unpricedProducts = {{
    {"Pallet Return"_L1, 0, 0, 0},
    {"Empty Drum Pickup"_L1, 0, 0, 0},
}};

enum VehicleIndex { FlatbedTruck, Tanker, Van2, vehicleCount };

struct SampleVehicle {
    QLatin1StringView name;
    bool mixed;
    QLatin1StringView capacity;
    QLatin1StringView units;
    QLatin1StringView product;
};

constexpr std::array<SampleVehicle, vehicleCount> sampleVehicles = {{
    {"Flatbed Truck"_L1, true, "12000"_L1, "lbs"_L1, "N/A"_L1},
    {"Tanker"_L1, false, ""_L1, ""_L1, pricedProducts[Water].description},
    {"Van 2"_L1, true, "200"_L1, "Units"_L1, "N/A"_L1},
}};

constexpr QLatin1StringView OneTime = ""_L1;
constexpr QLatin1StringView Weekly = "0000001"_L1;
constexpr QLatin1StringView EveryTwoWeeks = "0000002"_L1;
constexpr QLatin1StringView Monthly = "0000003"_L1;
constexpr QLatin1StringView MonWedFri = "0101010"_L1;

struct SampleLoad {
    int units;
    ProductIndex product;
};

struct SampleOrder {
    QLatin1StringView time;
    VehicleIndex vehicle;
    CustomerIndex customer;
    QLatin1StringView frequency;
    /// The customer's own reference, or blank.
    QLatin1StringView reference;
    /// Up to the first of no units.
    std::array<SampleLoad, 4> loads;
};

enum class PastDay {
    WeekBeforeFirstWorkDay,
    FiveWorkDaysBefore,
    LastMonWedFri,
    TwoWorkDaysBefore,
    WorkDayBefore,
};

struct SamplePastSlip {
    PastDay day;
    SampleOrder order;
};

/// Deliveries that nobody has posted: three recurring ones, to be moved on or deleted as the
/// operator says, and two one-time ones, which the program clears away by itself.
constexpr std::array<SamplePastSlip, 5> pastSlips = {{
    {PastDay::WeekBeforeFirstWorkDay,
     {"09.15am"_L1, FlatbedTruck, BrindleCreek, Weekly, ""_L1, {{{6, Gravel}, {24, Lumber}}}}},
    {PastDay::FiveWorkDaysBefore,
     {"02:30pm"_L1, Van2, Hoskins, Monthly, "Standing order"_L1, {{{20, Cement}, {80, Block}}}}},
    {PastDay::LastMonWedFri,
     {"08:00am"_L1, Tanker, WhistlingElm, MonWedFri, ""_L1, {{{20, Water}}}}},
    {PastDay::TwoWorkDaysBefore,
     {"11:00am"_L1, Van2, Whitcomb, OneTime, ""_L1, {{{12, Lumber}, {1, PalletReturn}}}}},
    {PastDay::WorkDayBefore,
     {"01:00pm"_L1, FlatbedTruck, Okafor, OneTime, ""_L1, {{{8, Shingles}}}}},
}};

struct SamplePlannedSlip {
    /// 0 for the first work day, counted on without the holiday.
    int workDay;
    SampleOrder order;
};

constexpr int lastWorkDay = 9;
/// The work day of this number is a holiday; the one after it bears the number instead.
constexpr int holidayAfterWorkDays = 5;

// The first day's slips are not in the order of their times, so that the board has something to
// sort.
constexpr std::array<SamplePlannedSlip, 55> plannedSlips = {{
    {0,
     {"10:30am"_L1,
      FlatbedTruck,
      LanternStreet,
      Weekly,
      ""_L1,
      {{{96, Lumber}, {8, Plywood}, {14, Cement}}}}},
    {0,
     {"07.15am"_L1,
      FlatbedTruck,
      WhistlingElm,
      OneTime,
      ""_L1,
      {{{2, Sand}, {11, Gravel}, {2, PalletReturn}}}}},
    {0,
     {"02:00pm"_L1,
      FlatbedTruck,
      Pickett,
      EveryTwoWeeks,
      ""_L1,
      {{{11, Sand}, {8, Gravel}, {12, Cement}}}}},
    {0,
     {"08:00am"_L1,
      FlatbedTruck,
      TamarindLane,
      OneTime,
      "PO 4417"_L1,
      {{{16, Plywood}, {48, Lumber}, {20, Cement}, {3, PalletReturn}}}}},
    {0, {"01:00pm"_L1, FlatbedTruck, Hoskins, Weekly, ""_L1, {{{11, Sand}}}}},
    {0, {"09:45am"_L1, FlatbedTruck, Okafor, OneTime, ""_L1, {{{20, Plywood}, {6, Shingles}}}}},
    {0, {"09:00am"_L1, Tanker, Lindqvist, OneTime, ""_L1, {{{55, Water}, {4, DrumPickup}}}}},
    {0, {"07:30am"_L1, Tanker, Pickett, OneTime, "Job 12"_L1, {{{55, Water}}}}},
    {0, {"03.15pm"_L1, Tanker, BrindleCreek, MonWedFri, ""_L1, {{{20, Water}}}}},
    {0, {"11:00am"_L1, Van2, Osterhaus, OneTime, ""_L1, {{{10, Plywood}, {8, Shingles}}}}},
    {0, {"08:30am"_L1, Van2, Whitcomb, OneTime, ""_L1, {{{6, Gravel}}}}},
    {0, {"01:30pm"_L1, Van2, Lindqvist, MonWedFri, ""_L1, {{{24, Cement}}}}},
    {0,
     {"10.15am"_L1,
      Van2,
      BrindleCreek,
      EveryTwoWeeks,
      "PO 88-3"_L1,
      {{{48, Lumber}, {7, Gravel}}}}},
    {1, {"04:00pm"_L1, FlatbedTruck, Abernathy, OneTime, ""_L1, {{{2, Sand}}}}},
    {1,
     {"05:30pm"_L1,
      FlatbedTruck,
      SundayPorch,
      OneTime,
      ""_L1,
      {{{96, Lumber}, {14, Plywood}, {4, PalletReturn}}}}},
    {1, {"03:30pm"_L1, Tanker, Pickett, OneTime, ""_L1, {{{55, Water}, {1, DrumPickup}}}}},
    {1, {"08.15am"_L1, Van2, BrindleCreek, Weekly, ""_L1, {{{5, Gravel}, {30, Lumber}}}}},
    {1, {"08:30am"_L1, Van2, Osterhaus, OneTime, ""_L1, {{{10, Shingles}, {10, Plywood}}}}},
    {2, {"09:30am"_L1, FlatbedTruck, WhistlingElm, EveryTwoWeeks, ""_L1, {{{9, Sand}}}}},
    {2, {"08:30am"_L1, FlatbedTruck, Abernathy, OneTime, ""_L1, {{{2, Sand}, {100, Block}}}}},
    {2, {"10:00am"_L1, Tanker, Pickett, Weekly, ""_L1, {{{55, Water}}}}},
    {2, {"09:30am"_L1, Van2, Pickett, OneTime, ""_L1, {{{6, Sand}, {5, Gravel}}}}},
    {2,
     {"10:45am"_L1,
      Van2,
      Whitcomb,
      OneTime,
      "Lot 9"_L1,
      {{{7, Gravel}, {60, Lumber}, {1, PalletReturn}}}}},
    {3, {"10:30am"_L1, FlatbedTruck, SundayPorch, OneTime, ""_L1, {{{4, Plywood}}}}},
    {3,
     {"03.15pm"_L1,
      FlatbedTruck,
      TamarindLane,
      Weekly,
      ""_L1,
      {{{10, Cement}, {6, Plywood}, {60, Lumber}}}}},
    {3, {"09:45am"_L1, Tanker, BrindleCreek, EveryTwoWeeks, ""_L1, {{{30, Water}}}}},
    {3, {"09:00am"_L1, Van2, Hoskins, Weekly, ""_L1, {{{60, Block}}}}},
    {4,
     {"03:30pm"_L1,
      FlatbedTruck,
      LanternStreet,
      OneTime,
      ""_L1,
      {{{26, Cement}, {108, Lumber}, {8, Plywood}}}}},
    {4, {"03:45pm"_L1, FlatbedTruck, Okafor, OneTime, ""_L1, {{{20, Plywood}}}}},
    {4, {"03:45pm"_L1, Tanker, Lindqvist, OneTime, ""_L1, {{{60, Water}}}}},
    {4, {"01:00pm"_L1, Van2, Lindqvist, Monthly, "PO 4420"_L1, {{{14, Cement}, {100, Block}}}}},
    {4, {"08:30am"_L1, Van2, Whitcomb, OneTime, ""_L1, {{{24, Lumber}, {2, Gravel}}}}},
    {5,
     {"03:45pm"_L1,
      FlatbedTruck,
      Abernathy,
      OneTime,
      ""_L1,
      {{{3, Sand}, {120, Block}, {4, PalletReturn}}}}},
    {5, {"11.15am"_L1, FlatbedTruck, Lindqvist, OneTime, ""_L1, {{{40, Cement}}}}},
    {5, {"10.15am"_L1, Tanker, Lindqvist, OneTime, ""_L1, {{{45, Water}}}}},
    {5,
     {"05:45pm"_L1,
      Van2,
      LanternStreet,
      OneTime,
      ""_L1,
      {{{24, Lumber}, {10, Plywood}, {16, Cement}}}}},
    {5, {"01:45pm"_L1, Van2, BrindleCreek, OneTime, ""_L1, {{{2, Gravel}, {60, Lumber}}}}},
    {6, {"08:30am"_L1, FlatbedTruck, Osterhaus, OneTime, ""_L1, {{{20, Shingles}}}}},
    {6, {"09:45am"_L1, FlatbedTruck, Hoskins, OneTime, "Beech Hall roof"_L1, {{{10, Cement}}}}},
    {6, {"09:45am"_L1, Tanker, WhistlingElm, Weekly, ""_L1, {{{20, Water}}}}},
    {6, {"09.15am"_L1, Van2, Okafor, OneTime, ""_L1, {{{8, Shingles}, {5, PalletReturn}}}}},
    {6,
     {"07:30am"_L1,
      Van2,
      SundayPorch,
      OneTime,
      ""_L1,
      {{{60, Lumber}, {6, Plywood}, {6, PalletReturn}}}}},
    {7, {"01:45pm"_L1, FlatbedTruck, WhistlingElm, OneTime, ""_L1, {{{10, Sand}}}}},
    {7,
     {"03:30pm"_L1,
      FlatbedTruck,
      TamarindLane,
      OneTime,
      ""_L1,
      {{{8, Plywood}, {5, PalletReturn}}}}},
    {7, {"05:30pm"_L1, Tanker, WhistlingElm, Weekly, ""_L1, {{{10, Water}}}}},
    {7, {"04:30pm"_L1, Van2, Pickett, Weekly, ""_L1, {{{6, Gravel}, {2, PalletReturn}}}}},
    {8, {"11:30am"_L1, FlatbedTruck, Whitcomb, OneTime, "PO 4431"_L1, {{{120, Lumber}}}}},
    {8,
     {"07:45am"_L1,
      FlatbedTruck,
      TamarindLane,
      OneTime,
      ""_L1,
      {{{8, Plywood}, {96, Lumber}, {4, PalletReturn}}}}},
    {8, {"08:45am"_L1, Tanker, Pickett, OneTime, ""_L1, {{{60, Water}, {1, DrumPickup}}}}},
    {8, {"04.15pm"_L1, Van2, Hoskins, OneTime, ""_L1, {{{80, Block}}}}},
    {8, {"03.15pm"_L1, Van2, SundayPorch, EveryTwoWeeks, ""_L1, {{{48, Lumber}}}}},
    {9, {"03:30pm"_L1, FlatbedTruck, LanternStreet, OneTime, ""_L1, {{{96, Lumber}}}}},
    {9,
     {"10:45am"_L1,
      FlatbedTruck,
      Osterhaus,
      OneTime,
      ""_L1,
      {{{12, Shingles}, {14, Plywood}, {6, PalletReturn}}}}},
    {9, {"08:45am"_L1, Tanker, Pickett, OneTime, ""_L1, {{{35, Water}}}}},
    {9, {"02:30pm"_L1, Van2, Pickett, OneTime, ""_L1, {{{4, Sand}, {6, Gravel}}}}},
}};

constexpr std::array<QLatin1StringView, 50> sampleStates = {
    "AL"_L1, "AK"_L1, "AZ"_L1, "AR"_L1, "CA"_L1, "CO"_L1, "CT"_L1, "DE"_L1, "FL"_L1, "GA"_L1,
    "HI"_L1, "ID"_L1, "IL"_L1, "IN"_L1, "IA"_L1, "KS"_L1, "KY"_L1, "LA"_L1, "ME"_L1, "MD"_L1,
    "MA"_L1, "MI"_L1, "MN"_L1, "MS"_L1, "MO"_L1, "MT"_L1, "NE"_L1, "NV"_L1, "NH"_L1, "NJ"_L1,
    "NM"_L1, "NY"_L1, "NC"_L1, "ND"_L1, "OH"_L1, "OK"_L1, "OR"_L1, "PA"_L1, "RI"_L1, "SC"_L1,
    "SD"_L1, "TN"_L1, "TX"_L1, "UT"_L1, "VT"_L1, "VA"_L1, "WA"_L1, "WV"_L1, "WI"_L1, "WY"_L1};
