#include "slips/VehicleFleet.h"

#include "support/OfficeTest.h"
#include "support/SampleVehicles.h"

#include <QElapsedTimer>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString vehiclesFile = u"Vehicles.txt"_s;
const QString capacityFile = u"Capacity.txt"_s;
const QStringList commonUnits = {u"lbs"_s,         u"Gallons"_s,      u"Cubic Yards"_s,
                                 u"Linear Feet"_s, u"Cubic Meters"_s, u"Units"_s,
                                 u"Cartons"_s,     u"Square Ft"_s,    u"Pallets"_s};

const QByteArray commonUnitLines =
    "\"lbs\"\r\n\"Gallons\"\r\n\"Cubic Yards\"\r\n\"Linear Feet\"\r\n\"Cubic Meters\"\r\n"
    "\"Units\"\r\n\"Cartons\"\r\n\"Square Ft\"\r\n\"Pallets\"\r\n";

const QString deleteQuestion = u"This will DELETE the Selected Vehicle"_s;

} // namespace

class VehicleFleetTest : public OfficeTest {
protected:
    VehicleFleet& fleet = office.fleet;

    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < office.fleet.fgItems.Columns(); ++column)
            cells += office.fleet.fgItems.Text(row, column);
        return cells;
    }

    void SaveMixed(const QString& name, const QString& capacity, const QString& unit) {
        fleet.fields = {name, capacity, unit, true, -1};
        EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::Saved);
    }
    void AddMixed(const QString& name, const QString& capacity = u"100"_s,
                  const QString& unit = u"lbs"_s) {
        fleet.AddNew();
        SaveMixed(name, capacity, unit);
    }
    void Pick(int row) {
        fleet.fgItems.SetCurrent(row, 0);
        fleet.PickVehicle();
    }
    void DeletePicked() {
        user.ExpectQuestion(deleteQuestion, u"Delete Sales Item"_s, Answer::Yes);
        fleet.DeleteVehicle();
    }
};

TEST_F(VehicleFleetTest, RecordIs137Bytes) {
    VehicleRecord vehicle{};
    vehicle.Name = u"Grüner Laster"_s;
    vehicle.Capacity = u"12000"_s;
    vehicle.Mixed = true;
    vehicle.Units = u"lbs"_s;
    vehicle.Product = u"N/A"_s;
    office.disk.OpenRandom(u'/' + vehiclesFile, 137);
    WriteRecord(office.disk, office.disk.DiskFile, 1, vehicle);
    vehicle.Mixed = false;
    WriteRecord(office.disk, office.disk.DiskFile, 2, vehicle);
    office.disk.CloseAllFiles();
    const QByteArray name = "Gr\xfcner Laster" + QByteArray(47, ' ');
    const QByteArray capacity = "12000                         ";
    const QByteArray units = "lbs                 ";
    const QByteArray product = "N/A                      ";
    const QByteArray bytes = folder.Read(vehiclesFile);
    EXPECT_EQ(bytes.size(), 274);
    EXPECT_EQ(bytes, name + capacity + "\xff\xff" + units + product + name + capacity +
                         QByteArray(2, '\0') + units + product);
}

TEST_F(VehicleFleetTest, FieldsAreCutAtTheirWidth) {
    VehicleRecord vehicle{};
    vehicle.Name = QString(61, u'n');
    vehicle.Capacity = QString(31, u'1');
    vehicle.Units = QString(21, u'u');
    vehicle.Product = QString(26, u'p');
    office.disk.OpenRandom(u'/' + vehiclesFile, 137);
    WriteRecord(office.disk, office.disk.DiskFile, 1, vehicle);
    office.disk.CloseAllFiles();
    EXPECT_EQ(folder.Read(vehiclesFile), QByteArray(60, 'n') + QByteArray(30, '1') +
                                             QByteArray(2, '\0') + QByteArray(20, 'u') +
                                             QByteArray(25, 'p'));
}

TEST_F(VehicleFleetTest, FirstUseOffersNineUnitsAndNoVehicle) {
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), commonUnits);
    EXPECT_EQ(fleet.Names.stringList(), QStringList());
    EXPECT_EQ(fleet.fgItems.DataRows(), 0);
    EXPECT_FALSE(folder.Has(vehiclesFile));
    EXPECT_FALSE(folder.Has(capacityFile));
}

TEST_F(VehicleFleetTest, CapacityFileReplacesTheCommonUnits) {
    folder.Write(capacityFile, "\"lbs\"\r\n\"Kegs, full\"\r\n\"\"\r\n\"F\xe4sser\"\r\n");
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(),
              QStringList({u"lbs"_s, u"Kegs, full"_s, QString(u""_s), u"Fässer"_s}));
}

TEST_F(VehicleFleetTest, EmptyCapacityFileGivesNoUnits) {
    folder.Write(capacityFile, "");
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), QStringList());
}

TEST_F(VehicleFleetTest, BothFilesAreBroughtBackFromBackup) {
    folder.Write(u"Backup/Capacity.txt"_s, "\"Kegs\"\r\n");
    folder.Write(u"Backup/Vehicles.txt"_s, VehicleBytes("Truck", "5", trueBytes, "Kegs", "N/A"));
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), QStringList({u"Kegs"_s}));
    EXPECT_EQ(fleet.Names.stringList(), QStringList({u"Truck"_s}));
    EXPECT_TRUE(folder.Has(capacityFile));
    EXPECT_TRUE(folder.Has(vehiclesFile));
}

TEST_F(VehicleFleetTest, GridShowsNameCapacityUnitsMixedAndProduct) {
    folder.Write(vehiclesFile,
                 VehicleBytes(" Flatbed Truck", "12000", trueBytes, "lbs", "N/A") +
                     VehicleBytes("Tanker", "", falseBytes, "", "Milk") +
                     VehicleBytes("Old Truck", "many", QByteArray("\x01\x00", 2), "Kegs", "N/A"));
    fleet.Load();
    ASSERT_EQ(fleet.fgItems.Rows(), 4);
    EXPECT_EQ(Row(1), QStringList({u"Flatbed Truck"_s, u"12000"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
    EXPECT_EQ(Row(2), QStringList({u"Tanker"_s, u""_s, u""_s, u"False"_s, u"Milk"_s}));
    EXPECT_EQ(Row(3), QStringList({u"Old Truck"_s, u"many"_s, u"Kegs"_s, u"True"_s, u"N/A"_s}));
    EXPECT_EQ(fleet.Names.stringList(),
              QStringList({u"Flatbed Truck"_s, u"Tanker"_s, u"Old Truck"_s}));
}

TEST_F(VehicleFleetTest, CurrentCellIsTheFirstVehiclesName) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("B", "1", trueBytes, "lbs", "N/A"));
    fleet.Load();
    fleet.fgItems.SetCurrent(2, 3);
    fleet.LoadVehicles();
    EXPECT_EQ(fleet.fgItems.CurrentRow(), 1);
    EXPECT_EQ(fleet.fgItems.CurrentColumn(), 0);
}

TEST_F(VehicleFleetTest, UnitsOfVehiclesJoinTheListWhenItLacksThemToTheLetter) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "Pallets", "N/A") +
                                   VehicleBytes("B", "1", trueBytes, "pallets", "N/A") +
                                   VehicleBytes("C", "1", trueBytes, "Kegs", "N/A") +
                                   VehicleBytes("D", "1", trueBytes, "Kegs", "N/A") +
                                   VehicleBytes("E", "", falseBytes, "", "Milk"));
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(),
              commonUnits + QStringList({u"pallets"_s, u"Kegs"_s, u""_s}));
}

TEST_F(VehicleFleetTest, UnitKeptInTheCapacityFileIsOfferedAgainOnce) {
    folder.Write(capacityFile, "\"lbs\"\r\n\"Kegs\"\r\n");
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "Kegs", "N/A"));
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), QStringList({u"lbs"_s, u"Kegs"_s}));
}

TEST_F(VehicleFleetTest, LoadingAgainReplacesNamesAndRows) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("B", "2", trueBytes, "lbs", "N/A"));
    fleet.Load();
    folder.Write(vehiclesFile, VehicleBytes("C", "3", trueBytes, "lbs", "N/A"));
    fleet.LoadVehicles();
    EXPECT_EQ(fleet.Names.stringList(), QStringList({u"C"_s}));
    ASSERT_EQ(fleet.fgItems.Rows(), 2);
    EXPECT_EQ(Row(1), QStringList({u"C"_s, u"3"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleFleetTest, TwoVehiclesOfOneNameStandTwice) {
    const QByteArray truck = VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A");
    folder.Write(vehiclesFile, truck + truck);
    fleet.Load();
    EXPECT_EQ(fleet.Names.stringList(), QStringList({u"Truck"_s, u"Truck"_s}));
}

TEST_F(VehicleFleetTest, PartRecordOfHalfOrMoreIsAPartlyFilledLastVehicle) {
    const QByteArray truck = VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A");
    folder.Write(vehiclesFile, (truck + truck).left(205));
    fleet.Load();
    EXPECT_EQ(fleet.fgItems.Rows(), 2);
    folder.Write(vehiclesFile,
                 (truck + VehicleBytes("Van", "7", trueBytes, "lbs", "N/A")).left(206));
    fleet.LoadVehicles();
    ASSERT_EQ(fleet.fgItems.Rows(), 3);
    // The bytes that are missing read as NUL characters, which are no blanks to trim.
    const auto nuls = [](int count) { return QString(count, QChar(u'\0')); };
    EXPECT_EQ(Row(2),
              QStringList({u"Van"_s, u"7        "_s + nuls(21), nuls(20), u"False"_s, nuls(25)}));
}

TEST_F(VehicleFleetTest, EmptyFileIsAFleetWithoutVehicles) {
    folder.Write(vehiclesFile, "");
    fleet.Load();
    EXPECT_EQ(fleet.fgItems.DataRows(), 0);
    EXPECT_EQ(fleet.Names.stringList(), QStringList());
}

TEST_F(VehicleFleetTest, FileEmptiedSinceLeavesTheHeadingCurrent) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("B", "2", trueBytes, "lbs", "N/A"));
    fleet.Load();
    fleet.fgItems.SetCurrent(2, 3);
    folder.Write(vehiclesFile, "");
    fleet.LoadVehicles();
    EXPECT_EQ(fleet.fgItems.CurrentRow(), 0);
    EXPECT_EQ(fleet.fgItems.DataRows(), 0);
    EXPECT_EQ(fleet.Names.stringList(), QStringList());
}

TEST_F(VehicleFleetTest, LoadingWithoutAFileLeavesAnEmptyOne) {
    fleet.LoadVehicles();
    EXPECT_EQ(folder.Read(vehiclesFile), "");
}

TEST_F(VehicleFleetTest, FleetIsLimitedTo255Vehicles) {
    const QByteArray truck = VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A");
    folder.Write(vehiclesFile, truck.repeated(255));
    fleet.Load();
    EXPECT_EQ(fleet.fgItems.DataRows(), 255);
    folder.Write(vehiclesFile, truck.repeated(256));
    const RuntimeFailure failure = FailureOf([&] { fleet.LoadVehicles(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"Reading Vehicles.txt failed: it holds more than 255 vehicles."_s);
}

TEST_F(VehicleFleetTest, CutCapacityFileGivesTheUnitAsFarAsItGoes) {
    folder.Write(capacityFile, "\"lbs\"\r\n\"Gal");
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), (QStringList{u"lbs"_s, u"Gal"_s}));
}

TEST_F(VehicleFleetTest, QuoteInsideAUnitEndsItForTheReader) {
    folder.Write(capacityFile, "\"5\" pipe\"\r\n\"lbs\"\r\n");
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), (QStringList{u"5"_s, u"pipe\""_s, u"lbs"_s}));
}

TEST_F(VehicleFleetTest, LoadingClosesModifyAndTheFieldsOfAVehicleBeingChanged) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A"));
    fleet.Load();
    Pick(1);
    ASSERT_TRUE(fleet.FieldsAreEnabled);
    fleet.LoadVehicles();
    EXPECT_FALSE(fleet.FieldsAreEnabled);
    EXPECT_FALSE(fleet.ModifyIsEnabled);
    EXPECT_TRUE(fleet.DeleteIsEnabled);
    EXPECT_EQ(fleet.fields.txtDescription, u""_s);
}

TEST_F(VehicleFleetTest, LoadingLeavesAVehicleBeingAddedInTheClosedFields) {
    fleet.AddNew();
    fleet.fields = {u"Bus"_s, u"7"_s, u"lbs"_s, true, -1};
    fleet.LoadVehicles();
    EXPECT_FALSE(fleet.FieldsAreEnabled);
    EXPECT_EQ(fleet.fields.txtDescription, u"Bus"_s);
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::Saved);
    EXPECT_EQ(Row(1), (QStringList{u"Bus"_s, u"7"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleFleetTest, WhatWasBeingChangedIsNotSavedOverTheFirstVehicle) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("B", "2", trueBytes, "lbs", "N/A"));
    fleet.Load();
    Pick(2);
    fleet.WriteFleet();
    user.ExpectMessage(u"Enter a description of the Vehicle"_s);
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::NoDescription);
    EXPECT_EQ(Row(1)[0], u"A"_s);
}

// Entering.

TEST_F(VehicleFleetTest, WithoutAFileTheFirstVehicleIsAddedAtOnce) {
    fleet.Load();
    EXPECT_TRUE(fleet.StartFirstVehicle());
    EXPECT_TRUE(fleet.IsAdding);
    EXPECT_TRUE(fleet.FieldsAreEnabled);
    EXPECT_FALSE(folder.Has(vehiclesFile));
}

TEST_F(VehicleFleetTest, WithAFileNothingIsStarted) {
    folder.Write(vehiclesFile, "");
    fleet.Load();
    EXPECT_FALSE(fleet.StartFirstVehicle());
    EXPECT_FALSE(fleet.IsAdding);
    EXPECT_FALSE(fleet.FieldsAreEnabled);
}

TEST_F(VehicleFleetTest, AddNewClearsAndOpensTheFields) {
    fleet.fields = {u"Old"_s, u"7"_s, u"lbs"_s, true, 3};
    fleet.AddNew();
    EXPECT_TRUE(fleet.IsAdding);
    EXPECT_TRUE(fleet.FieldsAreEnabled);
    EXPECT_EQ(fleet.fields.txtDescription, u""_s);
    EXPECT_EQ(fleet.fields.txtCapacity, u""_s);
    EXPECT_EQ(fleet.fields.cboCapacity, u""_s);
    EXPECT_FALSE(fleet.fields.ckMixed);
    EXPECT_EQ(fleet.fields.cboProducts, -1);
}

TEST_F(VehicleFleetTest, CancelClearsAndClosesTheFields) {
    fleet.AddNew();
    fleet.fields.txtDescription = u"Van"_s;
    fleet.CancelEntry();
    EXPECT_EQ(fleet.fields.txtDescription, u""_s);
    EXPECT_FALSE(fleet.FieldsAreEnabled);
}

TEST_F(VehicleFleetTest, PickedMixedVehicleFillsTheFields) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("Truck", "1200", trueBytes, "Kegs", "N/A"));
    fleet.Load();
    fleet.IsAdding = true;
    Pick(2);
    EXPECT_FALSE(fleet.IsAdding);
    EXPECT_TRUE(fleet.ModifyIsEnabled);
    EXPECT_TRUE(fleet.DeleteIsEnabled);
    EXPECT_EQ(fleet.fields.txtDescription, u"Truck"_s);
    EXPECT_EQ(fleet.fields.txtCapacity, u"1200"_s);
    EXPECT_EQ(fleet.fields.cboCapacity, u"Kegs"_s);
    EXPECT_TRUE(fleet.fields.ckMixed);
    EXPECT_EQ(fleet.fields.cboProducts, -1);
}

TEST_F(VehicleFleetTest, PickedSingleProductVehicleSelectsItsProduct) {
    office.items.ProductNames.setStringList({u"Gravel"_s, u"milk"_s, u"Milk"_s});
    folder.Write(vehiclesFile, VehicleBytes("Tanker", "", falseBytes, "", "Milk"));
    fleet.Load();
    Pick(1);
    EXPECT_FALSE(fleet.fields.ckMixed);
    EXPECT_EQ(fleet.fields.cboProducts, 2);
}

TEST_F(VehicleFleetTest, ProductThatTheListLacksIsNotSelected) {
    office.items.ProductNames.setStringList({u"Gravel"_s, u"Milk"_s});
    folder.Write(vehiclesFile, VehicleBytes("Tanker", "", falseBytes, "", "Milk") +
                                   VehicleBytes("Tipper", "", falseBytes, "", "Sand"));
    fleet.Load();
    Pick(1);
    Pick(2);
    EXPECT_EQ(fleet.fields.cboProducts, -1);
}

// Saving.

TEST_F(VehicleFleetTest, SavingWithoutADescriptionAsksForOneAndChangesNothing) {
    fleet.AddNew();
    fleet.fields = {u""_s, u"7"_s, u"lbs"_s, true, -1};
    user.ExpectMessage(u"Enter a description of the Vehicle"_s);
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::NoDescription);
    EXPECT_EQ(fleet.fgItems.DataRows(), 0);
    EXPECT_EQ(fleet.fields.txtCapacity, u"7"_s);
    EXPECT_TRUE(fleet.FieldsAreEnabled);
}

TEST_F(VehicleFleetTest, DescriptionOfBlanksIsNone) {
    fleet.AddNew();
    fleet.fields = {u"   "_s, u"7"_s, u"lbs"_s, true, -1};
    user.ExpectMessage(u"Enter a description of the Vehicle"_s);
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::NoDescription);
}

TEST_F(VehicleFleetTest, SavingWithoutAProductAsksForOneAndKeepsTheCapacity) {
    fleet.AddNew();
    fleet.fields = {u"Tanker"_s, u"7"_s, u"lbs"_s, false, -1};
    user.ExpectMessage(u"Select the product that loads to this Vehicle"_s);
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::NoProduct);
    EXPECT_EQ(fleet.fgItems.DataRows(), 0);
    EXPECT_EQ(fleet.fields.txtCapacity, u"7"_s);
    EXPECT_EQ(fleet.fields.cboCapacity, u"lbs"_s);
}

TEST_F(VehicleFleetTest, MixedVehicleIsSavedWithItsCapacityAndNoProduct) {
    office.items.ProductNames.setStringList({u"Milk"_s});
    fleet.AddNew();
    fleet.fields = {u"Truck"_s, u"12000"_s, u"lbs"_s, true, 0};
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::Saved);
    EXPECT_EQ(Row(1), (QStringList{u"Truck"_s, u"12000"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleFleetTest, SingleProductVehicleSavedWithACapacityTypedInStoresItBlank) {
    office.items.ProductNames.setStringList({u"Gravel"_s, u"Milk"_s});
    fleet.AddNew();
    fleet.fields = {u"Tanker"_s, u"12000"_s, u"lbs"_s, false, 1};
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::Saved);
    EXPECT_EQ(Row(1), (QStringList{u"Tanker"_s, u""_s, u""_s, u"False"_s, u"Milk"_s}));
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Tanker", "", falseBytes, "", "Milk"));
}

TEST_F(VehicleFleetTest, SavingWhileAddingAppendsAndMakesTheNewRowCurrent) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("B", "2", trueBytes, "lbs", "N/A"));
    fleet.Load();
    AddMixed(u"C"_s, u"3"_s);
    ASSERT_EQ(fleet.fgItems.DataRows(), 3);
    EXPECT_EQ(Row(1)[0], u"A"_s);
    EXPECT_EQ(Row(3), (QStringList{u"C"_s, u"3"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
    EXPECT_EQ(fleet.fgItems.CurrentRow(), 3);
}

TEST_F(VehicleFleetTest, SavingWhileModifyingChangesTheCurrentRow) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A") +
                                   VehicleBytes("B", "2", trueBytes, "lbs", "N/A"));
    fleet.Load();
    Pick(2);
    SaveMixed(u"Bus"_s, u"9"_s, u"Units"_s);
    ASSERT_EQ(fleet.fgItems.DataRows(), 2);
    EXPECT_EQ(Row(2), (QStringList{u"Bus"_s, u"9"_s, u"Units"_s, u"True"_s, u"N/A"_s}));
    EXPECT_EQ(Row(1)[0], u"A"_s);
}

TEST_F(VehicleFleetTest, SavingClearsAndClosesTheFieldsAndWritesNothing) {
    fleet.Load();
    const auto before = folder.Contents();
    AddMixed(u"Truck"_s);
    EXPECT_EQ(fleet.fields.txtDescription, u""_s);
    EXPECT_FALSE(fleet.fields.ckMixed);
    EXPECT_FALSE(fleet.FieldsAreEnabled);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(fleet.Names.stringList(), QStringList());
}

TEST_F(VehicleFleetTest, TwoVehiclesOfOneNameAreTaken) {
    AddMixed(u"Truck"_s, u"1"_s);
    AddMixed(u"Truck"_s, u"2"_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A") +
                                             VehicleBytes("Truck", "2", trueBytes, "lbs", "N/A"));
    EXPECT_EQ(fleet.Names.stringList(), (QStringList{u"Truck"_s, u"Truck"_s}));
}

TEST_F(VehicleFleetTest, FleetOf255HasNoRoom) {
    folder.Write(vehiclesFile, VehicleBytes("T", "1", trueBytes, "lbs", "N/A").repeated(254));
    fleet.Load();
    EXPECT_TRUE(fleet.HasRoom());
    AddMixed(u"Last"_s);
    EXPECT_FALSE(fleet.HasRoom());
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile).size(), 255 * 137);
    EXPECT_EQ(fleet.Names.rowCount(), 255);
}

// Writing.

TEST_F(VehicleFleetTest, WritingLaysDownBothFilesAndReadsTheFleetBack) {
    office.items.ProductNames.setStringList({u"Milk"_s});
    fleet.Load();
    AddMixed(u"Flatbed Truck"_s, u"12000"_s, u"lbs"_s);
    fleet.AddNew();
    fleet.fields = {u"Tanker"_s, u""_s, u""_s, false, 0};
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::Saved);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile),
              VehicleBytes("Flatbed Truck", "12000", trueBytes, "lbs", "N/A") +
                  VehicleBytes("Tanker", "", falseBytes, "", "Milk"));
    EXPECT_EQ(folder.Read(capacityFile), commonUnitLines + "\"\"\r\n");
    EXPECT_EQ(fleet.Names.stringList(), (QStringList{u"Flatbed Truck"_s, u"Tanker"_s}));
    EXPECT_EQ(fleet.fgItems.CurrentRow(), 1);
}

TEST_F(VehicleFleetTest, CapacityStaysAsTypedUnderGermanFormats) {
    UseLocale("de_DE.UTF-8");
    fleet.Load();
    AddMixed(u"Laster"_s, u"1250.5"_s, u"lbs"_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Laster", "1250.5", trueBytes, "lbs", "N/A"));
    EXPECT_EQ(folder.Read(capacityFile), commonUnitLines);
}

TEST_F(VehicleFleetTest, UnitTypedAnewComesBackAtTheNextStartAndIsOfferedOnce) {
    fleet.Load();
    AddMixed(u"Truck"_s, u"5"_s, u"Kegs"_s);
    AddMixed(u"Van"_s, u"6"_s, u"Kegs"_s);
    EXPECT_EQ(fleet.CapacityUnits.stringList(), commonUnits);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(capacityFile), commonUnitLines + "\"Kegs\"\r\n");
    Office next(folder.Path(), {clock, user, printer, browser, pictures});
    next.fleet.Load();
    EXPECT_EQ(next.fleet.CapacityUnits.stringList(), commonUnits + QStringList{u"Kegs"_s});
}

TEST_F(VehicleFleetTest, CopiesInBackupGoWithTheOldFiles) {
    folder.Write(u"Backup/Vehicles.txt"_s, VehicleBytes("Old", "1", trueBytes, "lbs", "N/A"));
    folder.Write(u"Backup/Capacity.txt"_s, "\"lbs\"\r\n");
    AddMixed(u"Truck"_s);
    fleet.WriteFleet();
    EXPECT_FALSE(folder.Has(u"Backup/Vehicles.txt"_s));
    EXPECT_FALSE(folder.Has(u"Backup/Capacity.txt"_s));
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Truck", "100", trueBytes, "lbs", "N/A"));
}

TEST_F(VehicleFleetTest, EmptyFleetWritesTheUnitsAlone) {
    fleet.Load();
    fleet.WriteFleet();
    EXPECT_FALSE(folder.Has(vehiclesFile));
    EXPECT_EQ(folder.Read(capacityFile), commonUnitLines);
}

TEST_F(VehicleFleetTest, VehicleAddedAfterTheLastWasDeletedTakesItsBlankRow) {
    AddMixed(u"Truck"_s);
    fleet.WriteFleet();
    Pick(1);
    DeletePicked();
    EXPECT_TRUE(fleet.IsEmpty());
    AddMixed(u"Van"_s);
    ASSERT_EQ(fleet.fgItems.DataRows(), 1);
    EXPECT_FALSE(fleet.IsEmpty());
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Van", "100", trueBytes, "lbs", "N/A"));
}

TEST_F(VehicleFleetTest, BlankFirstRowKeepsTheFleetFromBeingWritten) {
    folder.Write(vehiclesFile, VehicleBytes("", "", falseBytes, "", "") +
                                   VehicleBytes("Van", "100", trueBytes, "lbs", "N/A"));
    fleet.Load();
    EXPECT_FALSE(fleet.IsEmpty());
    fleet.WriteFleet();
    EXPECT_FALSE(folder.Has(vehiclesFile));
    EXPECT_EQ(Row(2)[0], u"Van"_s);
}

TEST_F(VehicleFleetTest, BlankRowLeftByTheLastVehicleCanBeFilledIn) {
    AddMixed(u"Truck"_s);
    fleet.WriteFleet();
    Pick(1);
    DeletePicked();
    Pick(1);
    SaveMixed(u"Van"_s, u"4"_s, u"lbs"_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Van", "4", trueBytes, "lbs", "N/A"));
}

TEST_F(VehicleFleetTest, NamesOf60CharactersAreKeptAndLongerOnesCut) {
    const QString sixty = u"n"_s.repeated(59) + u'x';
    AddMixed(sixty);
    AddMixed(sixty + u'y');
    fleet.WriteFleet();
    const QByteArray record = VehicleBytes(sixty.toLatin1(), "100", trueBytes, "lbs", "N/A");
    EXPECT_EQ(folder.Read(vehiclesFile), record + record);
    EXPECT_EQ(fleet.Names.stringList(), (QStringList{sixty, sixty}));
    EXPECT_EQ(Row(2)[0], sixty);
}

TEST_F(VehicleFleetTest, LongCapacityUnitAndProductAreCutAtTheirWidths) {
    const QString longProduct = u"p"_s.repeated(50);
    office.items.ProductNames.setStringList({longProduct});
    fleet.Load();
    AddMixed(u"Truck"_s, u"1"_s.repeated(31), u"u"_s.repeated(21));
    fleet.AddNew();
    fleet.fields = {u"Tanker"_s, u""_s, u""_s, false, 0};
    EXPECT_EQ(fleet.SaveVehicle(), VehicleFleet::Saving::Saved);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile),
              VehicleBytes("Truck", QByteArray(30, '1'), trueBytes, QByteArray(20, 'u'), "N/A") +
                  VehicleBytes("Tanker", "", falseBytes, "", QByteArray(25, 'p')));
    EXPECT_EQ(folder.Read(capacityFile), commonUnitLines + "\"uuuuuuuuuuuuuuuuuuuu\"\r\n\"\"\r\n");
    // What was cut is not the name in the list any more.
    Pick(2);
    EXPECT_EQ(fleet.fields.cboProducts, -1);
}

TEST_F(VehicleFleetTest, QuotesCommasSeparatorsAndAccentsInNamesAreKept) {
    AddMixed(u"The \"Beast\", No/7\\B"_s);
    AddMixed(u"Großer Käfer à l’œuvre €"_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile),
              VehicleBytes("The \"Beast\", No/7\\B", "100", trueBytes, "lbs", "N/A") +
                  VehicleBytes("Gro\xdf"
                               "er K\xe4"
                               "fer \xe0 l\x92\x9c"
                               "uvre \x80",
                               "100", trueBytes, "lbs", "N/A"));
    EXPECT_EQ(fleet.Names.stringList(),
              (QStringList{u"The \"Beast\", No/7\\B"_s, u"Großer Käfer à l’œuvre €"_s}));
}

TEST_F(VehicleFleetTest, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    AddMixed(u"Truck Łódź"_s, u"5"_s, u"кг"_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("Truck ?\xf3"
                                                      "d?",
                                                      "5", trueBytes, "??", "N/A"));
    EXPECT_EQ(Row(1)[0], u"Truck ?ód?"_s);
    EXPECT_EQ(fleet.CapacityUnits.stringList().last(), u"??"_s);
}

TEST_F(VehicleFleetTest, BlanksAroundANameGoWhenItIsReadBack) {
    AddMixed(u"  Truck "_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("  Truck", "100", trueBytes, "lbs", "N/A"));
    EXPECT_EQ(Row(1)[0], u"Truck"_s);
}

TEST_F(VehicleFleetTest, UnitWithAQuoteIsWrittenAsItStandsAndReadInParts) {
    folder.Write(capacityFile, "\"lbs\"\r\n");
    fleet.Load();
    AddMixed(u"Truck"_s, u"5"_s, u"5\" pipe"_s);
    AddMixed(u"Van"_s, u"5"_s, u"Bags, big"_s);
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(capacityFile), "\"lbs\"\r\n\"5\" pipe\"\r\n\"Bags, big\"\r\n");
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(),
              (QStringList{u"lbs"_s, u"5"_s, u"pipe\""_s, u"Bags, big"_s, u"5\" pipe"_s}));
}

TEST_F(VehicleFleetTest, ThousandsOfUnitsAreKeptInOrderAndQuickly) {
    QByteArray lines;
    for (int i = 0; i < 20000; ++i)
        lines += "\"unit " + QByteArray::number(i) + "\"\r\n";
    folder.Write(capacityFile, lines);
    QByteArray vehicles;
    for (int i = 0; i < 255; ++i)
        vehicles += VehicleBytes("T", "1", trueBytes, "own " + QByteArray::number(i), "N/A");
    folder.Write(vehiclesFile, vehicles);
    QElapsedTimer timer;
    timer.start();
    fleet.Load();
    fleet.WriteFleet();
    EXPECT_LT(timer.elapsed(), 2000);
    ASSERT_EQ(fleet.CapacityUnits.rowCount(), 20255);
    EXPECT_EQ(fleet.CapacityUnits.stringList().last(), u"own 254"_s);
    EXPECT_EQ(folder.Read(vehiclesFile), vehicles);
    EXPECT_TRUE(folder.Read(capacityFile).startsWith(lines + "\"own 0\"\r\n\"own 1\"\r\n"));
}

TEST_F(VehicleFleetTest, CutVehiclesFileIsWrittenWholeAgain) {
    const QByteArray truck = VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A");
    folder.Write(vehiclesFile, (truck + truck).left(205));
    fleet.Load();
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(vehiclesFile), truck);
}

TEST_F(VehicleFleetTest, UnitOfACutVehicleReachesTheUnitsWithoutWhatIsMissing) {
    const QByteArray truck = VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A");
    folder.Write(capacityFile, "\"lbs\"\r\n");
    // Cut within the unit, behind its fourth letter and a blank.
    folder.Write(vehiclesFile,
                 (truck + VehicleBytes("Van", "7", trueBytes, "Kegs", "N/A")).left(137 + 92 + 5));
    fleet.Load();
    EXPECT_EQ(fleet.CapacityUnits.stringList(), (QStringList{u"lbs"_s, u"Kegs"_s}));
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(capacityFile), "\"lbs\"\r\n\"Kegs\"\r\n");
    // Cut before the unit: it is a blank one, like that of a vehicle with one product.
    folder.Write(vehiclesFile,
                 (truck + VehicleBytes("Van", "7", trueBytes, "Kegs", "N/A")).left(137 + 80));
    fleet.Load();
    fleet.WriteFleet();
    EXPECT_EQ(folder.Read(capacityFile), "\"lbs\"\r\n\"Kegs\"\r\n\"\"\r\n");
}

TEST_F(VehicleFleetTest, MoreThan255VehiclesAreNotWrittenAndNothingIsDeleted) {
    folder.Write(vehiclesFile, VehicleBytes("T", "1", trueBytes, "lbs", "N/A").repeated(255));
    folder.Write(capacityFile, "\"lbs\"\r\n");
    fleet.Load();
    AddMixed(u"One too many"_s);
    const auto before = folder.Contents();
    const RuntimeFailure failure = FailureOf([&] { fleet.WriteFleet(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"Writing Vehicles.txt failed: it holds more than 255 vehicles."_s);
    EXPECT_EQ(folder.Contents(), before);
}

// Deleting.

TEST_F(VehicleFleetTest, DeletingTheLastVehicleRemovesTheFile) {
    folder.Write(vehiclesFile, VehicleBytes("Truck", "1", trueBytes, "lbs", "N/A"));
    folder.Write(u"Backup/Vehicles.txt"_s, "old");
    fleet.Load();
    Pick(1);
    DeletePicked();
    EXPECT_FALSE(folder.Has(vehiclesFile));
    EXPECT_FALSE(folder.Has(u"Backup/Vehicles.txt"_s));
    EXPECT_EQ(folder.Read(capacityFile), commonUnitLines);
    ASSERT_EQ(fleet.fgItems.Rows(), 2);
    EXPECT_EQ(Row(1), (QStringList{u""_s, u""_s, u""_s, u""_s, u""_s}));
    EXPECT_EQ(fleet.fgItems.CurrentRow(), 1);
    EXPECT_FALSE(fleet.DeleteIsEnabled);
    // The lists were not filled anew: there is no file to fill them from.
    EXPECT_EQ(fleet.Names.stringList(), QStringList{u"Truck"_s});
}

TEST_F(VehicleFleetTest, DeletingOneOfSeveralRemovesItsRecord) {
    const QByteArray first = VehicleBytes("A", "1", trueBytes, "lbs", "N/A");
    const QByteArray last = VehicleBytes("C", "3", trueBytes, "lbs", "N/A");
    folder.Write(vehiclesFile, first + VehicleBytes("B", "2", trueBytes, "lbs", "N/A") + last);
    fleet.Load();
    Pick(2);
    DeletePicked();
    EXPECT_EQ(folder.Read(vehiclesFile), first + last);
    EXPECT_EQ(fleet.Names.stringList(), (QStringList{u"A"_s, u"C"_s}));
    EXPECT_FALSE(fleet.DeleteIsEnabled);
    EXPECT_FALSE(fleet.ModifyIsEnabled);
    EXPECT_EQ(fleet.fgItems.CurrentRow(), 1);
}

TEST_F(VehicleFleetTest, DeletingWritesWhatWasSavedBefore) {
    const QByteArray first = VehicleBytes("A", "1", trueBytes, "lbs", "N/A");
    folder.Write(vehiclesFile, first + VehicleBytes("B", "2", trueBytes, "lbs", "N/A"));
    fleet.Load();
    AddMixed(u"C"_s, u"3"_s);
    Pick(2);
    DeletePicked();
    EXPECT_EQ(folder.Read(vehiclesFile), first + VehicleBytes("C", "3", trueBytes, "lbs", "N/A"));
}

TEST_F(VehicleFleetTest, DeletionRefusedChangesNothing) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A"));
    fleet.Load();
    Pick(1);
    const auto before = folder.Contents();
    user.ExpectQuestion(deleteQuestion, u"Delete Sales Item"_s, Answer::No);
    fleet.DeleteVehicle();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(Row(1)[0], u"A"_s);
    EXPECT_TRUE(fleet.DeleteIsEnabled);
}

// Failures.

TEST_F(VehicleFleetTest, UnwritableFolderFailsAndLosesNothing) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A"));
    folder.Write(capacityFile, "\"lbs\"\r\n");
    fleet.Load();
    AddMixed(u"B"_s);
    const auto before = folder.Contents();
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.Path().toUtf8().constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([&] { fleet.WriteFleet(); });
    ASSERT_EQ(::chmod(folder.Path().toUtf8().constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Deleting Vehicles.txt failed: Permission denied."_s);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(VehicleFleetTest, VehiclesAreWrittenBeforeTheUnits) {
    folder.MakeFolder(capacityFile);
    AddMixed(u"A"_s);
    const RuntimeFailure failure = FailureOf([&] { fleet.WriteFleet(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Deleting Capacity.txt failed: Is a directory."_s);
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("A", "100", trueBytes, "lbs", "N/A"));
}

TEST_F(VehicleFleetTest, FullDiskStopsTheVehiclesAndLeavesTheUnitsAlone) {
    folder.Write(capacityFile, "\"lbs\"\r\n");
    fleet.Load();
    AddMixed(u"A"_s);
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(100);
        fleet.WriteFleet();
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(), u"Writing record 1 of Vehicles.txt failed: File too large."_s);
    EXPECT_EQ(folder.Read(capacityFile), "\"lbs\"\r\n");
}

TEST_F(VehicleFleetTest, FullDiskStopsTheUnitsBehindTheVehicles) {
    folder.Write(capacityFile, "\"" + QByteArray(200, 'u') + "\"\r\n");
    fleet.Load();
    AddMixed(u"A"_s);
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(150);
        fleet.WriteFleet();
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(), u"Writing Capacity.txt failed: File too large."_s);
    EXPECT_EQ(folder.Read(vehiclesFile), VehicleBytes("A", "100", trueBytes, "lbs", "N/A"));
}

TEST_F(VehicleFleetTest, FilesAreClosedWhenLoadingEnds) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A"));
    folder.Write(capacityFile, "\"lbs\"\r\n");
    fleet.Load();
    EXPECT_EQ(
        FailureOf([&] { ReadRecord<VehicleRecord>(office.disk, office.disk.DiskFile, 1); }).Kind(),
        FailureKind::FileNotOpen);
}

TEST_F(VehicleFleetTest, UnreadableFilesFailByName) {
    folder.Write(vehiclesFile, VehicleBytes("A", "1", trueBytes, "lbs", "N/A"));
    folder.Write(capacityFile, "\"lbs\"\r\n");
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(vehiclesFile).toUtf8().constData(), 0), 0);
    EXPECT_EQ(FailureOf([&] { fleet.Load(); }).Sentence(),
              u"Opening Vehicles.txt for reading and writing failed: Permission denied."_s);
    ASSERT_EQ(::chmod(folder.PathOf(capacityFile).toUtf8().constData(), 0), 0);
    EXPECT_EQ(FailureOf([&] { fleet.Load(); }).Sentence(),
              u"Opening Capacity.txt for reading failed: Permission denied."_s);
}
