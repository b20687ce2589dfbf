#include "platform/Grid.h"
#include "support/SampleVehicles.h"
#include "support/ScreenTest.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName vehicles = ScreenName::frmVehicle;

const QString deleteQuestion = u"This will DELETE the Selected Vehicle"_s;
const QString deleteTitle = u"Delete Sales Item"_s;

} // namespace

class VehicleScreen : public ScreenTest {
protected:
    void Open() {
        office.items.ProductNames.setStringList({u"Gravel"_s, u"Milk"_s});
        screens.Show(vehicles);
        ASSERT_TRUE(QTest::qWaitForWindowActive(screens.Find(vehicles)));
        grid = Find<Grid>(vehicles, u"fgItems"_s);
    }
    void OpenWith(const QByteArray& records) {
        folder.Write(u"Vehicles.txt"_s, records);
        Open();
    }
    void OpenFleet() {
        OpenWith(VehicleBytes("Flatbed Truck", "12000", trueBytes, "lbs", "N/A") +
                 VehicleBytes("Tanker", "", falseBytes, "", "Milk") +
                 VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    }

    QPushButton* Button(int index) {
        return Find<QPushButton>(vehicles, u"cmdServices(%1)"_s.arg(index));
    }
    void ClickButton(int index) { Click(vehicles, u"cmdServices(%1)"_s.arg(index)); }
    QLineEdit* Description() { return Find<QLineEdit>(vehicles, u"txtDescription"_s); }
    QLineEdit* Capacity() { return Find<QLineEdit>(vehicles, u"txtCapacity"_s); }
    QComboBox* Units() { return Find<QComboBox>(vehicles, u"cboCapacity"_s); }
    QCheckBox* Mixed() { return Find<QCheckBox>(vehicles, u"ckMixed"_s); }
    QComboBox* Products() { return Find<QComboBox>(vehicles, u"cboProducts"_s); }
    QLabel* ProductsLabel() { return Find<QLabel>(vehicles, u"Label1(3)"_s); }
    QWidget* Instructions() { return Find<QWidget>(vehicles, u"fraInstructions"_s); }
    QWidget* Focused() const { return screens.Find(vehicles)->focusWidget(); }

    /// What stands in the fields: description, capacity, unit, mixed, product.
    QStringList Fields() {
        return {Description()->text(), Capacity()->text(), Units()->currentText(),
                Mixed()->isChecked() ? u"mixed"_s : u"single"_s, Products()->currentText()};
    }
    /// Which of the fields are enabled, as letters.
    QString OpenFields() {
        const std::pair<QWidget*, QChar> fields[] = {{Description(), u'd'},
                                                     {Capacity(), u'c'},
                                                     {Units(), u'u'},
                                                     {Mixed(), u'm'},
                                                     {Products(), u'p'}};
        QString open;
        for (const auto& [field, letter] : fields) {
            if (field->isEnabled())
                open += letter;
        }
        return open;
    }
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < office.fleet.fgItems.Columns(); ++column)
            cells += office.fleet.fgItems.Text(row, column);
        return cells;
    }
    void TypeMixed(const QString& name, const QString& capacity, const QString& unit) {
        Type(Description(), name);
        Click(vehicles, u"ckMixed"_s);
        Type(Capacity(), capacity);
        Type(Units(), unit);
    }
    /// What the end of the program does: the screens go, then the safety copies are made.
    void EndProgram() {
        screens.Destroy(vehicles);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        office.disk.BackupDataFiles();
    }
    /// Which of "Modify Vehicle Specs" and "Delete Vehicle" can be used, as letters.
    QString OpenButtons() {
        return (Button(9)->isEnabled() ? u"m"_s : QString()) +
               (Button(10)->isEnabled() ? u"d"_s : QString());
    }
    void DeletePicked() {
        user.ExpectQuestion(deleteQuestion, deleteTitle, Answer::Yes);
        ClickButton(10);
    }
    void ExpectFields(const QStringList& fields) { EXPECT_EQ(Fields(), fields); }

    const QStringList emptyFields = {u""_s, u""_s, u""_s, u"single"_s, u""_s};
    Grid* grid = nullptr;
};

TEST_F(VehicleScreen, CarriesItsTitleAndCaptions) {
    Open();
    EXPECT_EQ(screens.Find(vehicles)->windowTitle(), u"Vehicle Creation Screen"_s);
    const std::pair<int, QString> captions[] = {{0, u"&Menu"_s},
                                                {1, u"Clear Capacity"_s},
                                                {2, u"Close Window"_s},
                                                {8, u"Add New"_s},
                                                {9, u"Modify Vehicle Specs"_s},
                                                {10, u"Delete Vehicle"_s},
                                                {11, u"Clear Description"_s},
                                                {13, u"Save Vehicle Data"_s},
                                                {14, u"Cancel Add New or Modify"_s}};
    for (const auto& [index, caption] : captions)
        EXPECT_EQ(Button(index)->text(), caption);
    EXPECT_EQ(Mixed()->text(), u"Allow Multiple  Products"_s);
    EXPECT_EQ(Find<QAction>(vehicles, u"mnuInstructions"_s)->text(), u"Toggle Instructions"_s);
}

TEST_F(VehicleScreen, FirstVisitOpensInAddingModeWithNineUnits) {
    Open();
    EXPECT_EQ(OpenFields(), u"dcump"_s);
    ExpectFields(emptyFields);
    EXPECT_EQ(Focused(), Description());
    EXPECT_EQ(Units()->count(), 9);
    EXPECT_EQ(Units()->itemText(0), u"lbs"_s);
    EXPECT_EQ(Units()->itemText(8), u"Pallets"_s);
    EXPECT_FALSE(Button(9)->isEnabled());
    EXPECT_FALSE(Button(10)->isEnabled());
    EXPECT_FALSE(folder.Has(u"Vehicles.txt"_s));
}

TEST_F(VehicleScreen, VisitWithVehiclesOpensWithTheFieldsClosed) {
    OpenFleet();
    EXPECT_EQ(OpenFields(), u""_s);
    ExpectFields(emptyFields);
    EXPECT_EQ(Focused(), grid);
    EXPECT_FALSE(Button(9)->isEnabled());
    EXPECT_EQ(grid->model()->rowCount(), 3);
    EXPECT_EQ(grid->currentIndex().row(), 0);
}

TEST_F(VehicleScreen, ProductsListHasNoSelectionAfterARefresh) {
    Open();
    Products()->setCurrentIndex(1);
    office.items.ProductNames.setStringList({u"Sand"_s, u"Gravel"_s});
    EXPECT_EQ(Products()->currentIndex(), -1);
    EXPECT_EQ(Products()->count(), 2);
}

TEST_F(VehicleScreen, MixedVehicleTypedInIsSavedToTheGridAlone) {
    Open();
    TypeMixed(u"Van 1"_s, u"1500"_s, u"Kegs"_s);
    ClickButton(13);
    EXPECT_EQ(Row(1), (QStringList{u"Van 1"_s, u"1500"_s, u"Kegs"_s, u"True"_s, u"N/A"_s}));
    ExpectFields(emptyFields);
    EXPECT_EQ(OpenFields(), u""_s);
    EXPECT_FALSE(folder.Has(u"Vehicles.txt"_s));
    EXPECT_EQ(grid->currentIndex().row(), 0);
}

TEST_F(VehicleScreen, MenuWritesTheFilesAndShowsTheMenu) {
    WriteMasterFiles();
    folder.Remove(u"Vehicles.txt"_s);
    Open();
    TypeMixed(u"Van 1"_s, u"1500"_s, u"Kegs"_s);
    ClickButton(13);
    ClickButton(0);
    EXPECT_EQ(folder.Read(u"Vehicles.txt"_s),
              VehicleBytes("Van 1", "1500", trueBytes, "Kegs", "N/A"));
    EXPECT_EQ(folder.Read(u"Capacity.txt"_s),
              "\"lbs\"\r\n\"Gallons\"\r\n\"Cubic Yards\"\r\n\"Linear Feet\"\r\n"
              "\"Cubic Meters\"\r\n\"Units\"\r\n\"Cartons\"\r\n\"Square Ft\"\r\n\"Pallets\"\r\n"
              "\"Kegs\"\r\n");
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_FALSE(IsShown(vehicles));
    EXPECT_EQ(office.fleet.Names.stringList(), QStringList{u"Van 1"_s});
}

TEST_F(VehicleScreen, MenuRunsByItsKey) {
    WriteMasterFiles();
    OpenFleet();
    QTest::keyClick(screens.Find(vehicles), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsShown(ScreenName::frmStartup); }));
}

TEST_F(VehicleScreen, CloseBoxWritesNothing) {
    OpenFleet();
    ClickButton(8);
    TypeMixed(u"Van 9"_s, u"1500"_s, u"Kegs"_s);
    ClickButton(13);
    auto expected = folder.Contents();
    CloseByUser(vehicles);
    EXPECT_EQ(exitRequests, 1);
    EXPECT_EQ(folder.Contents(), expected);
    EndProgram();
    // The vehicles are not among what is copied at the end.
    expected[u"Backup/Phone.txt"_s] = expected.at(u"Phone.txt"_s);
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(VehicleScreen, UnitTypedInOtherCaseStaysAsTyped) {
    Open();
    Type(Description(), u"Van"_s);
    Click(vehicles, u"ckMixed"_s);
    Units()->setFocus();
    Type(Units(), u"pallets"_s);
    Press(Units(), Qt::Key_Return);
    ClickButton(13);
    EXPECT_EQ(Row(1)[2], u"pallets"_s);
    user.ExpectMessage(u"Create at least One Deliverable Product Now"_s);
    ClickButton(0);
    EXPECT_EQ(Units()->count(), 10);
    EXPECT_EQ(Units()->itemText(9), u"pallets"_s);
    EXPECT_EQ(Units()->currentText(), u""_s);
}

TEST_F(VehicleScreen, UnitIsPickedFromTheListByKey) {
    Open();
    Units()->setFocus();
    Press(Units(), Qt::Key_Down);
    EXPECT_EQ(Units()->currentText(), u"lbs"_s);
    Press(Units(), Qt::Key_Down);
    EXPECT_EQ(Units()->currentText(), u"Gallons"_s);
}

TEST_F(VehicleScreen, SingleProductVehicleIsSavedWithoutItsCapacity) {
    Open();
    Type(Description(), u"Tanker"_s);
    Type(Capacity(), u"500"_s);
    Type(Units(), u"lbs"_s);
    Products()->setFocus();
    Press(Products(), Qt::Key_M);
    ASSERT_EQ(Products()->currentText(), u"Milk"_s);
    ClickButton(13);
    EXPECT_EQ(Row(1), (QStringList{u"Tanker"_s, u""_s, u""_s, u"False"_s, u"Milk"_s}));
}

TEST_F(VehicleScreen, SaveWithoutADescriptionAsksForOneAndLosesNothing) {
    Open();
    Click(vehicles, u"ckMixed"_s);
    Type(Capacity(), u"500"_s);
    user.ExpectMessage(u"Enter a description of the Vehicle"_s);
    ClickButton(13);
    ExpectFields({u""_s, u"500"_s, u""_s, u"mixed"_s, u""_s});
    EXPECT_EQ(OpenFields(), u"dcum"_s);
    EXPECT_EQ(Focused(), Description());
}

TEST_F(VehicleScreen, SaveWithoutAProductAsksForOneAndLosesNothing) {
    Open();
    Type(Description(), u"Tanker"_s);
    Type(Capacity(), u"500"_s);
    user.ExpectMessage(u"Select the product that loads to this Vehicle"_s);
    ClickButton(13);
    ExpectFields({u"Tanker"_s, u"500"_s, u""_s, u"single"_s, u""_s});
    EXPECT_EQ(Focused(), Products());
}

TEST_F(VehicleScreen, TickingMixedClosesTheProductAndItsLabel) {
    Open();
    Click(vehicles, u"ckMixed"_s);
    EXPECT_FALSE(Products()->isEnabled());
    EXPECT_FALSE(ProductsLabel()->isEnabled());
    Click(vehicles, u"ckMixed"_s);
    EXPECT_TRUE(Products()->isEnabled());
    EXPECT_TRUE(ProductsLabel()->isEnabled());
}

TEST_F(VehicleScreen, ClickOnARowFillsTheFieldsForChangingIt) {
    OpenFleet();
    ClickCell(grid, 3, 1);
    ExpectFields({u"Van 2"_s, u"40"_s, u"Kegs"_s, u"mixed"_s, u""_s});
    EXPECT_EQ(OpenFields(), u"dcum"_s);
    EXPECT_FALSE(ProductsLabel()->isEnabled());
    EXPECT_TRUE(Button(9)->isEnabled());
    EXPECT_TRUE(Button(10)->isEnabled());
    ClickCell(grid, 2, 0);
    ExpectFields({u"Tanker"_s, u""_s, u""_s, u"single"_s, u"Milk"_s});
    EXPECT_EQ(OpenFields(), u"dcump"_s);
    EXPECT_TRUE(ProductsLabel()->isEnabled());
}

TEST_F(VehicleScreen, ClickOnARowWhileAddingChangesThatRowInstead) {
    OpenFleet();
    ClickButton(8);
    Type(Description(), u"New one"_s);
    ClickCell(grid, 1, 0);
    ExpectFields({u"Flatbed Truck"_s, u"12000"_s, u"lbs"_s, u"mixed"_s, u""_s});
    Description()->selectAll();
    Type(Description(), u"Long Truck"_s);
    ClickButton(13);
    EXPECT_EQ(office.fleet.fgItems.DataRows(), 3);
    EXPECT_EQ(Row(1), (QStringList{u"Long Truck"_s, u"12000"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleScreen, ClickOnTheHeadingOrBesideTheRowsKeepsTheEntry) {
    OpenFleet();
    ClickButton(8);
    Type(Description(), u"New one"_s);
    const QHeaderView* heading = grid->horizontalHeader();
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, Qt::NoModifier, {20, 5});
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                      {20, grid->viewport()->height() - 5});
    ExpectFields({u"New one"_s, u""_s, u""_s, u"single"_s, u""_s});
    ClickCell(grid, 2, 0);
    ExpectFields({u"Tanker"_s, u""_s, u""_s, u"single"_s, u"Milk"_s});
}

TEST_F(VehicleScreen, ArrowKeysInTheGridKeepTheEntryAndEnterPicksTheRow) {
    OpenFleet();
    ClickButton(8);
    Type(Description(), u"New one"_s);
    grid->setFocus();
    Press(grid, Qt::Key_Down);
    ExpectFields({u"New one"_s, u""_s, u""_s, u"single"_s, u""_s});
    Press(grid, Qt::Key_Return);
    ExpectFields({u"Tanker"_s, u""_s, u""_s, u"single"_s, u"Milk"_s});
    EXPECT_EQ(Focused(), Description());
    grid->setFocus();
    Press(grid, Qt::Key_Down);
    Press(grid, Qt::Key_Space);
    ExpectFields({u"Van 2"_s, u"40"_s, u"Kegs"_s, u"mixed"_s, u""_s});
}

TEST_F(VehicleScreen, EntryIsSavedToTheRowThatAnArrowKeyHasGoneToAfterThePick) {
    OpenFleet();
    ClickCell(grid, 1, 0);
    Press(grid, Qt::Key_Down);
    Press(grid, Qt::Key_Down);
    ExpectFields({u"Flatbed Truck"_s, u"12000"_s, u"lbs"_s, u"mixed"_s, u""_s});
    ClickButton(13);
    EXPECT_EQ(Row(1)[0], u"Flatbed Truck"_s);
    EXPECT_EQ(Row(2)[0], u"Tanker"_s);
    EXPECT_EQ(Row(3), (QStringList{u"Flatbed Truck"_s, u"12000"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleScreen, WholeScreenFitsTheSmallestDesktop) {
    OpenFleet();
    Screen* screen = screens.Find(vehicles);
    Find<QAction>(vehicles, u"mnuInstructions"_s)->trigger();
    // What the desktop's own bars and the window's frame leave.
    const QSize room(1024 - 60, 768 - 60);
    EXPECT_LE(screen->minimumSizeHint().width(), room.width());
    EXPECT_LE(screen->minimumSizeHint().height(), room.height());
    screen->resize(room);
    QCoreApplication::processEvents();
    ASSERT_EQ(screen->size(), room);
    const auto* body = Find<QWidget>(vehicles, u"body"_s);
    EXPECT_LE(body->minimumSizeHint().width(), body->width());
    EXPECT_LE(body->minimumSizeHint().height(), body->height());
    for (const int index : {0, 1, 8, 9, 10, 11, 13, 14}) {
        const QPushButton* button = Button(index);
        const QRect place(button->mapTo(screen, QPoint()), button->size());
        EXPECT_TRUE(screen->rect().contains(place)) << index;
        EXPECT_GE(place.width(), button->minimumSizeHint().width()) << index;
    }
}

TEST_F(VehicleScreen, MessagesAndBeepsComeWithPromptsAndAlarmOff) {
    office.settings.PromptsOn = false;
    office.settings.AlarmOn = false;
    OpenFleet();
    ClickButton(8);
    user.ExpectMessage(u"Enter a description of the Vehicle"_s);
    ClickButton(13);
    Type(Description(), u"Bus"_s);
    user.ExpectMessage(u"Select the product that loads to this Vehicle"_s);
    ClickButton(13);
    Type(Capacity(), u"x"_s);
    EXPECT_EQ(user.Beeps, 1);
    ClickCell(grid, 2, 0);
    DeletePicked();
    EXPECT_EQ(office.fleet.fgItems.DataRows(), 2);
}

TEST_F(VehicleScreen, ModifyButtonFillsTheFieldsOfTheCurrentRowAgain) {
    OpenFleet();
    ClickCell(grid, 3, 0);
    ClickButton(14);
    ExpectFields(emptyFields);
    EXPECT_EQ(OpenFields(), u""_s);
    ClickButton(9);
    ExpectFields({u"Van 2"_s, u"40"_s, u"Kegs"_s, u"mixed"_s, u""_s});
    EXPECT_EQ(OpenFields(), u"dcum"_s);
}

TEST_F(VehicleScreen, AddNewClearsAndOpensTheFields) {
    OpenFleet();
    ClickCell(grid, 3, 0);
    ClickButton(8);
    ExpectFields(emptyFields);
    EXPECT_EQ(OpenFields(), u"dcump"_s);
    EXPECT_EQ(Focused(), Description());
    TypeMixed(u"Bus"_s, u"7"_s, u"lbs"_s);
    ClickButton(13);
    EXPECT_EQ(office.fleet.fgItems.DataRows(), 4);
    EXPECT_EQ(Row(4)[0], u"Bus"_s);
    EXPECT_EQ(Row(3)[0], u"Van 2"_s);
}

TEST_F(VehicleScreen, ClearCapacityEmptiesItAloneAndTakesTheFocus) {
    OpenFleet();
    ClickCell(grid, 1, 0);
    ClickButton(1);
    ExpectFields({u"Flatbed Truck"_s, u""_s, u"lbs"_s, u"mixed"_s, u""_s});
    EXPECT_EQ(Focused(), Capacity());
}

TEST_F(VehicleScreen, ClearDescriptionClearsAllFieldsAndLeavesThemOpen) {
    OpenFleet();
    ClickCell(grid, 1, 0);
    ClickButton(11);
    ExpectFields(emptyFields);
    EXPECT_EQ(OpenFields(), u"dcump"_s);
}

TEST_F(VehicleScreen, DeleteAsksAndRemovesTheRowAndItsRecord) {
    OpenFleet();
    ClickCell(grid, 2, 0);
    const auto before = folder.Contents();
    user.ExpectQuestion(deleteQuestion, deleteTitle, Answer::No);
    ClickButton(10);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_TRUE(Button(10)->isEnabled());
    user.ExpectQuestion(deleteQuestion, deleteTitle, Answer::Yes);
    ClickButton(10);
    EXPECT_EQ(folder.Read(u"Vehicles.txt"_s),
              VehicleBytes("Flatbed Truck", "12000", trueBytes, "lbs", "N/A") +
                  VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    EXPECT_FALSE(Button(9)->isEnabled());
    EXPECT_FALSE(Button(10)->isEnabled());
    EXPECT_EQ(OpenFields(), u""_s);
    EXPECT_EQ(Focused(), grid);
}

TEST_F(VehicleScreen, DeletingTheLastVehicleRemovesTheFile) {
    OpenWith(VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    ClickCell(grid, 1, 0);
    user.ExpectQuestion(deleteQuestion, deleteTitle, Answer::Yes);
    ClickButton(10);
    EXPECT_FALSE(folder.Has(u"Vehicles.txt"_s));
    EXPECT_EQ(Row(1), (QStringList{u""_s, u""_s, u""_s, u""_s, u""_s}));
    EXPECT_FALSE(Button(10)->isEnabled());
    screens.Show(vehicles);
    EXPECT_EQ(OpenFields(), u"dcump"_s);
    ExpectFields(emptyFields);
}

TEST_F(VehicleScreen, FieldsStayOpenAndFilledJustAfterTheLastVehicleIsDeleted) {
    OpenWith(VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    ClickCell(grid, 1, 0);
    DeletePicked();
    // There is no file to read back, and it is the reading that clears and closes them.
    ExpectFields({u"Van 2"_s, u"40"_s, u"Kegs"_s, u"mixed"_s, u""_s});
    EXPECT_EQ(OpenFields(), u"dcum"_s);
    EXPECT_EQ(OpenButtons(), u"m"_s);
    EXPECT_EQ(Focused(), grid);
    ClickButton(13);
    EXPECT_EQ(office.fleet.fgItems.DataRows(), 1);
    EXPECT_EQ(Row(1), (QStringList{u"Van 2"_s, u"40"_s, u"Kegs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleScreen, VehicleAddedAfterTheLastWasDeletedIsWrittenAndTheMenuGoesOnToCustomers) {
    WriteMasterFiles();
    folder.Remove(u"CustomerData.txt"_s);
    OpenWith(VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    ClickCell(grid, 1, 0);
    DeletePicked();
    ASSERT_FALSE(folder.Has(u"Vehicles.txt"_s));
    ClickButton(8);
    TypeMixed(u"Bus"_s, u"7"_s, u"lbs"_s);
    ClickButton(13);
    ClickButton(0);
    EXPECT_EQ(folder.Read(u"Vehicles.txt"_s), VehicleBytes("Bus", "7", trueBytes, "lbs", "N/A"));
    EXPECT_EQ(office.fleet.Names.stringList(), QStringList{u"Bus"_s});
    EXPECT_FALSE(IsShown(vehicles));
    EXPECT_TRUE(Find<QWidget>(ScreenName::frmStartup, u"fraNoCustomerFound"_s)->isVisible());
}

TEST_F(VehicleScreen, MenuAsksForAVehicleOnceTheLastIsDeleted) {
    WriteMasterFiles();
    OpenWith(VehicleBytes("Van 2", "40", trueBytes, "Kegs", "N/A"));
    ClickCell(grid, 1, 0);
    DeletePicked();
    user.ExpectMessage(u"Create at least One Delivery Vehicle Now"_s);
    ClickButton(0);
    EXPECT_TRUE(IsShown(vehicles));
    EXPECT_FALSE(folder.Has(u"Vehicles.txt"_s));
    ExpectFields(emptyFields);
    EXPECT_EQ(OpenFields(), u"dcump"_s);
    EXPECT_EQ(Focused(), Description());
}

TEST_F(VehicleScreen, ModifyAndDeleteStayAsTheyAreThroughAddNewAndSave) {
    OpenFleet();
    ClickButton(8);
    EXPECT_EQ(OpenButtons(), QString());
    TypeMixed(u"Bus"_s, u"7"_s, u"lbs"_s);
    ClickButton(13);
    EXPECT_EQ(OpenButtons(), QString());
    ClickCell(grid, 4, 0);
    EXPECT_EQ(OpenButtons(), u"md"_s);
    ClickButton(8);
    EXPECT_EQ(OpenButtons(), u"md"_s);
    TypeMixed(u"Bus 2"_s, u"7"_s, u"lbs"_s);
    ClickButton(13);
    EXPECT_EQ(OpenButtons(), u"md"_s);
    // The saved vehicle is the current one, so it is the one that these mean.
    ClickButton(9);
    ExpectFields({u"Bus 2"_s, u"7"_s, u"lbs"_s, u"mixed"_s, u""_s});
    DeletePicked();
    EXPECT_EQ(office.fleet.Names.stringList(),
              (QStringList{u"Flatbed Truck"_s, u"Tanker"_s, u"Van 2"_s, u"Bus"_s}));
    EXPECT_EQ(OpenButtons(), QString());
}

TEST_F(VehicleScreen, CapacityTakesANumberAndRefusesTheRestWithABeep) {
    Open();
    Type(Capacity(), u"0"_s);
    EXPECT_EQ(Capacity()->text(), u""_s);
    EXPECT_EQ(user.Beeps, 1);
    Type(Capacity(), u"1x0.5"_s);
    EXPECT_EQ(Capacity()->text(), u"10.5"_s);
    EXPECT_EQ(user.Beeps, 2);
    Type(Capacity(), u"."_s);
    EXPECT_EQ(Capacity()->text(), u"10.5"_s);
    EXPECT_EQ(user.Beeps, 2);
    Press(Capacity(), Qt::Key_Backspace);
    EXPECT_EQ(Capacity()->text(), u"10."_s);
}

TEST_F(VehicleScreen, CapacityPastedAsTextIsRefused) {
    Open();
    QApplication::clipboard()->setText(u"many"_s);
    QTest::keyClick(Capacity(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Capacity()->text(), u""_s);
    EXPECT_EQ(user.Beeps, 1);
    QApplication::clipboard()->setText(u"12,500 lbs"_s);
    QTest::keyClick(Capacity(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Capacity()->text(), u"12"_s);
    EXPECT_EQ(user.Beeps, 2);
}

TEST_F(VehicleScreen, FieldsTakeNoMoreThanTheirRecordHolds) {
    Open();
    Type(Description(), u"n"_s.repeated(61));
    EXPECT_EQ(Description()->text(), u"n"_s.repeated(60));
    Type(Capacity(), u"1"_s.repeated(31));
    EXPECT_EQ(Capacity()->text(), u"1"_s.repeated(30));
    Type(Units(), u"u"_s.repeated(21));
    EXPECT_EQ(Units()->currentText(), u"u"_s.repeated(20));
}

TEST_F(VehicleScreen, EnterMovesFromFieldToFieldToTheSaveButton) {
    Open();
    const QString name = u"Van 1"_s;
    Type(Description(), name);
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Focused(), Mixed());
    Press(Focused(), Qt::Key_Space);
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Focused(), Capacity());
    Type(Focused(), u"70"_s);
    Press(Focused(), Qt::Key_Enter);
    EXPECT_EQ(Focused(), Units());
    Type(Focused(), u"lbs"_s);
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Focused(), Button(13));
    Press(Focused(), Qt::Key_Return);
    EXPECT_EQ(Row(1), (QStringList{name, u"70"_s, u"lbs"_s, u"True"_s, u"N/A"_s}));
}

TEST_F(VehicleScreen, EnterGoesToTheProductOfASingleProductVehicle) {
    Open();
    Units()->setFocus();
    Press(Units(), Qt::Key_Return);
    EXPECT_EQ(Focused(), Products());
}

TEST_F(VehicleScreen, WheelTurnsAListOnlyWhenItHasTheFocus) {
    Open();
    Products()->setCurrentIndex(0);
    const auto turn = [this] {
        const QPointF place(5, 5);
        QWheelEvent wheel(place, Products()->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Products(), &wheel);
    };
    turn();
    EXPECT_EQ(Products()->currentIndex(), 0);
    Products()->setFocus();
    turn();
    EXPECT_EQ(Products()->currentIndex(), 1);
}

TEST_F(VehicleScreen, ChangeLeftUnsavedAtTheMenuIsNotSavedOverAnotherVehicle) {
    WriteMasterFiles();
    OpenFleet();
    ClickCell(grid, 3, 0);
    Type(Description(), u" old"_s);
    ClickButton(0);
    screens.Hide(ScreenName::frmStartup);
    screens.Show(vehicles);
    ExpectFields(emptyFields);
    user.ExpectMessage(u"Enter a description of the Vehicle"_s);
    ClickButton(13);
    EXPECT_EQ(Row(1)[0], u"Flatbed Truck"_s);
    EXPECT_EQ(Row(3)[0], u"Van 2"_s);
}

TEST_F(VehicleScreen, HeadBandTellsWhatIsBeingEntered) {
    OpenFleet();
    const auto* where = Find<QLabel>(vehicles, u"where"_s);
    EXPECT_EQ(where->text(), u"Vehicles: 3"_s);
    ClickCell(grid, 2, 0);
    EXPECT_EQ(where->text(), u"Changing Tanker"_s);
    grid->setFocus();
    Press(grid, Qt::Key_Down);
    EXPECT_EQ(where->text(), u"Changing Van 2"_s);
    ClickButton(8);
    EXPECT_EQ(where->text(), u"New vehicle"_s);
    ClickButton(14);
    EXPECT_EQ(where->text(), u"Vehicles: 3"_s);
}

TEST_F(VehicleScreen, TabFollowsTheEye) {
    OpenFleet();
    ClickCell(grid, 2, 0);
    Description()->setFocus();
    QWidget* const order[] = {Button(11), Mixed(),    Capacity(), Units(),    Button(1),
                              Products(), grid,       Button(0),  Button(10), Button(9),
                              Button(8),  Button(14), Button(13)};
    for (const QWidget* next : order) {
        Press(Focused(), Qt::Key_Tab);
        EXPECT_EQ(Focused(), next) << Focused()->objectName().toStdString();
    }
}

TEST_F(VehicleScreen, InstructionsAreToggledByTheMenuAndClosedByTheirButton) {
    Open();
    auto* toggle = Find<QAction>(vehicles, u"mnuInstructions"_s);
    EXPECT_FALSE(Instructions()->isVisible());
    toggle->trigger();
    EXPECT_TRUE(Instructions()->isVisible());
    EXPECT_GT(TextsIn(Instructions()).size(), 3);
    toggle->trigger();
    EXPECT_FALSE(Instructions()->isVisible());
    toggle->trigger();
    Type(Description(), u"Van"_s);
    ClickButton(2);
    EXPECT_FALSE(Instructions()->isVisible());
    EXPECT_EQ(Description()->text(), u"Van"_s);
}

TEST_F(VehicleScreen, SavedRowOfALongFleetIsInSight) {
    OpenWith(VehicleBytes("T", "1", trueBytes, "lbs", "N/A").repeated(100));
    ClickButton(8);
    TypeMixed(u"Last"_s, u"1"_s, u"lbs"_s);
    ClickButton(13);
    EXPECT_EQ(grid->currentIndex().row(), 100);
    EXPECT_TRUE(grid->viewport()->rect().contains(grid->visualRect(grid->currentIndex()).center()));
}

TEST_F(VehicleScreen, WidthOfAColumnSetByTheUserStays) {
    OpenFleet();
    const int width = grid->columnWidth(0);
    QWidget* heading = grid->horizontalHeader()->viewport();
    const QPoint edge(width - 1, 5);
    QTest::mousePress(heading, Qt::LeftButton, Qt::NoModifier, edge);
    QTest::mouseMove(heading, edge + QPoint(60, 0));
    QTest::mouseRelease(heading, Qt::LeftButton, Qt::NoModifier, edge + QPoint(60, 0));
    ASSERT_GT(grid->columnWidth(0), width);
    const int widened = grid->columnWidth(0);
    ClickCell(grid, 1, 0);
    ClickButton(13);
    EXPECT_EQ(grid->columnWidth(0), widened);
}

TEST_F(VehicleScreen, FullFleetOffersNoRoomForAnother) {
    OpenWith(VehicleBytes("T", "1", trueBytes, "lbs", "N/A").repeated(254));
    ClickButton(8);
    TypeMixed(u"Last"_s, u"1"_s, u"lbs"_s);
    ClickButton(13);
    EXPECT_FALSE(Button(8)->isEnabled());
    EXPECT_EQ(Button(8)->toolTip(), u"There is no room for more vehicles"_s);
    ClickCell(grid, 255, 0);
    user.ExpectQuestion(deleteQuestion, deleteTitle, Answer::Yes);
    ClickButton(10);
    EXPECT_TRUE(Button(8)->isEnabled());
}

TEST_F(VehicleScreen, FailureOfWritingEndsTheProgramOnTheVehicleScreen) {
    OpenFleet();
    folder.MakeFolder(u"Capacity.txt"_s);
    ClickButton(0);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Sentence(), u"Deleting Capacity.txt failed: Is a directory."_s);
    EXPECT_TRUE(IsShown(vehicles));
    EXPECT_FALSE(IsShown(ScreenName::frmStartup));
}

TEST_F(VehicleScreen, EntryLeftUnsavedAtTheMenuIsThereAgainAndClosed) {
    WriteMasterFiles();
    OpenFleet();
    ClickButton(8);
    TypeMixed(u"Bus"_s, u"7"_s, u"Kegs"_s);
    ClickButton(0);
    screens.Hide(ScreenName::frmStartup);
    screens.Show(vehicles);
    ExpectFields({u"Bus"_s, u"7"_s, u"Kegs"_s, u"mixed"_s, u""_s});
    EXPECT_EQ(OpenFields(), u""_s);
    EXPECT_EQ(office.fleet.fgItems.DataRows(), 3);
}
