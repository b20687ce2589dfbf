#include "slips/VehicleFleet.h"

#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString vehiclesFile = u"Vehicles.txt"_s;
const QString capacityFile = u"Capacity.txt"_s;
const QByteArray trueBytes = "\xff\xff";
const QByteArray falseBytes(2, '\0');

QByteArray VehicleBytes(const QByteArray& name, const QByteArray& capacity, const QByteArray& mixed,
                        const QByteArray& units, const QByteArray& product) {
    return name.leftJustified(60, ' ') + capacity.leftJustified(30, ' ') + mixed +
           units.leftJustified(20, ' ') + product.leftJustified(25, ' ');
}

const QStringList commonUnits = {u"lbs"_s,         u"Gallons"_s,      u"Cubic Yards"_s,
                                 u"Linear Feet"_s, u"Cubic Meters"_s, u"Units"_s,
                                 u"Cartons"_s,     u"Square Ft"_s,    u"Pallets"_s};

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
