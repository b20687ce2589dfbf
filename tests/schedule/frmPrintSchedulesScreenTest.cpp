#include "platform/DatePicker.h"
#include "platform/Grid.h"
#include "schedule/frmPrintSchedules.h"
#include "support/SampleSlips.h"
#include "support/ScreenTest.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr ScreenName board = ScreenName::frmPrintSchedules;

constexpr int selectColumn = 0;
constexpr int customerColumn = 1;
constexpr int slipColumn = 3;
constexpr int timeColumn = 4;
constexpr int chargeColumn = 5;
constexpr int sortColumn = 8;

/// A delivery by Van 2 on the day on which the tests start.
SampleSlip VanSlip(const QString& number, const QString& time = u"08:00am"_s,
                   const QString& customer = u"Corner Grocery"_s) {
    SampleSlip slip{.number = number,
                    .customer = customer,
                    .time = time,
                    .date = u"3/9/2026"_s,
                    .vehicle = u"Van 2"_s};
    slip.soldTo[0] = customer;
    return slip;
}

} // namespace

class PrintSchedulesScreen : public ScreenTest {
protected:
    void WriteBusiness() {
        WriteVehicles(office, {u"Van 2"_s, u"Tanker"_s});
        WriteSlip(folder, VanSlip(u"501"_s, u"01:00pm"_s, u"Baker"_s));
        WriteSlip(folder, VanSlip(u"502"_s, u"07.15am"_s));
        SampleSlip tomorrow = VanSlip(u"503"_s, u"08:30am"_s, u"Hill School"_s);
        tomorrow.date = u"3/10/2026"_s;
        WriteSlip(folder, tomorrow);
        SampleSlip ofTanker = VanSlip(u"504"_s, u"08:00am"_s, u"Farm"_s);
        ofTanker.vehicle = u"Tanker"_s;
        WriteSlip(folder, ofTanker);
    }

    void Open() {
        screens.Show(board);
        grid = Find<Grid>(board, u"fgSchedule"_s);
    }

    QString Cell(int row, int column) { return office.board.fgSchedule.Text(row, column); }
    QPushButton* Button(int index) {
        return Find<QPushButton>(board, u"cmdPrint(%1)"_s.arg(index));
    }
    QString Caption(const QString& name) { return Find<QLabel>(board, name)->text(); }
    QLineEdit* Charge() { return Find<QLineEdit>(board, u"txtDeliveryCharge"_s); }
    DatePicker* Date() { return Find<DatePicker>(board, u"DTPicker1"_s); }
    QRadioButton* TaxOption(int index) {
        return Find<QRadioButton>(board, u"optTax(%1)"_s.arg(index));
    }

    void TypeDate(const QString& text) {
        Date()->setFocus();
        Date()->selectAll();
        Type(Date(), text);
        Press(Date(), Qt::Key_Return);
    }
    void ClickVehicle(int row) {
        auto* vehicles = Find<QListView>(board, u"lstVehicles"_s);
        const QRect place = vehicles->visualRect(vehicles->model()->index(row, 0));
        QTest::mouseClick(vehicles->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }
    /// The board of the business with invoices ticked and the schedule not.
    void OpenForInvoices(bool isPopulated) {
        WriteMasterFiles();
        folder.Remove(u"Vehicles.txt"_s);
        WriteBusiness();
        Open();
        Click(board, u"ckPrintWorkSchedule"_s);
        Click(board, u"ckMInvoices"_s);
        Find<QCheckBox>(board, u"ckPopulated"_s)->setChecked(isPopulated);
    }
    void ExpectConfirmation(Answer answer) {
        user.ExpectQuestion(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s,
                            answer);
    }
    void ExpectDeleteQuestion(Answer answer) {
        user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                            u"Delete a Recurring Slip"_s, answer);
    }
    void ExpectClosingQuestion(Answer answer) {
        user.ExpectQuestion(u"Would you like to Remove\nDeliveries from the Grid"_s,
                            u"Remove Items"_s, answer);
    }
    void ClickHeading(int column) {
        QHeaderView* heading = grid->horizontalHeader();
        QTest::mouseClick(
            heading->viewport(), Qt::LeftButton, Qt::NoModifier,
            {heading->sectionViewportPosition(column) + heading->sectionSize(column) / 2,
             heading->height() / 2});
    }

    Grid* grid = nullptr;
};

TEST_F(PrintSchedulesScreen, VehicleOfTheBoardStaysChosenWhenTheVehiclesAreReadAnew) {
    WriteBusiness();
    Open();
    ClickVehicle(1);
    WriteVehicles(office, {u"Bus"_s, u"Van 2"_s, u"Tanker"_s});
    const auto* vehicles = Find<QListView>(board, u"lstVehicles"_s);
    EXPECT_EQ(vehicles->currentIndex().row(), 2);
    EXPECT_EQ(Caption(u"Label1(14)"_s), u"Tanker - 3/9/2026"_s);
    folder.Remove(u"Vehicles.txt"_s);
    WriteVehicles(office, {u"Bus"_s});
    EXPECT_FALSE(vehicles->currentIndex().isValid());
    EXPECT_EQ(Caption(u"Label1(14)"_s), u"Tanker - 3/9/2026"_s);
}

TEST_F(PrintSchedulesScreen, FirstShowingPicksTheFirstVehicleAndToday) {
    WriteBusiness();
    Open();
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
    EXPECT_EQ(Caption(u"lblWeekday"_s), u"Monday"_s);
    EXPECT_EQ(Caption(u"Label1(14)"_s), u"Van 2 - 3/9/2026"_s);
    ASSERT_EQ(office.board.fgSchedule.Rows(), 3);
    EXPECT_EQ(Cell(1, customerColumn), u"Corner Grocery"_s);
    EXPECT_EQ(Cell(2, customerColumn), u"Baker"_s);
    EXPECT_FALSE(Button(12)->isEnabled());
    EXPECT_EQ(Caption(u"lblTax1"_s), u"$0.00"_s);
    EXPECT_EQ(Caption(u"lblTax2"_s), u"$0.00"_s);
    EXPECT_EQ(Caption(u"lblInvoice"_s), u"20260001"_s);
    EXPECT_FALSE(Find<QWidget>(board, u"fraSlip"_s)->isVisible());
    EXPECT_TRUE(grid->isColumnHidden(sortColumn));
    EXPECT_FALSE(grid->isColumnHidden(sortColumn - 1));
}

TEST_F(PrintSchedulesScreen, ControlsCarryTheirTexts) {
    WriteBusiness();
    Open();
    EXPECT_EQ(screens.Find(board)->windowTitle(), u"Print Delivery Schedules and Invoices"_s);
    const std::pair<int, QString> captions[] = {{0, u"Return to &Menu"_s},
                                                {1, u"Enter to Grid"_s},
                                                {2, u"Clear->"_s},
                                                {3, u"&Print"_s},
                                                {5, u"Close Window without Updating Slip"_s},
                                                {6, u"&Select All"_s},
                                                {7, u"Deselect &All"_s},
                                                {12, u"Toggle Delivery Slip"_s}};
    for (const auto& [index, caption] : captions)
        EXPECT_EQ(Button(index)->text(), caption);
    EXPECT_EQ(TaxOption(0)->text(), u"Calculate Primary Tax ONLY"_s);
    EXPECT_EQ(TaxOption(1)->text(), u"Calculate Secondary Tax ONLY"_s);
    EXPECT_EQ(TaxOption(2)->text(), u"Calculate Both Taxes"_s);
    auto* populated = Find<QCheckBox>(board, u"ckPopulated"_s);
    auto* workSchedule = Find<QCheckBox>(board, u"ckPrintWorkSchedule"_s);
    EXPECT_EQ(populated->text(), u"Populate Invoices"_s);
    EXPECT_EQ(workSchedule->text(), u"Print Delivery Schedule"_s);
    auto* invoices = Find<QCheckBox>(board, u"ckMInvoices"_s);
    EXPECT_EQ(invoices->text(), u"Print Invoices"_s);
    EXPECT_EQ(invoices->toolTip(), u"if checked, Invoices for selected Deliveries"_s);
    EXPECT_TRUE(invoices->isEnabled());
    EXPECT_EQ(populated->toolTip(), u"Unchecked- Prints Blank Invoices"_s);
    EXPECT_EQ(workSchedule->toolTip(), u"If checked, Delivery List will Print"_s);
    EXPECT_EQ(Find<QListView>(board, u"lstVehicles"_s)->toolTip(), u"Select an Assignment"_s);
    EXPECT_EQ(Button(1)->toolTip(), u"Enter Delivery Charge to the Grid"_s);
    EXPECT_EQ(TextsIn(screens.Find(board)).count(u"Scheduled Deliveries"_s), 1);
    EXPECT_TRUE(
        TextsIn(Find<QWidget>(board, u"fraInvoiceNo"_s)).contains(u"Invoice No (if Printed)"_s));
    const QStringList panel = TextsIn(Find<QWidget>(board, u"fraSlip"_s));
    for (const QString& heading : {u"Name"_s, u"Street"_s, u"Apt"_s, u"City"_s, u"St"_s, u"Zip"_s})
        EXPECT_EQ(panel.count(heading), 1) << heading.toStdString();
}

TEST_F(PrintSchedulesScreen, PictureIsThere) {
    Open();
    auto* imgLogo = Find<QLabel>(board, u"imgLogo"_s);
    EXPECT_TRUE(imgLogo->isVisible());
    EXPECT_FALSE(imgLogo->pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(PrintSchedulesScreen, ComingBackFindsTheBoardAsItWasLeft) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, selectColumn);
    screens.Hide(board);
    screens.Show(board);
    EXPECT_EQ(Cell(1, selectColumn), u" \u00ab"_s);
}

TEST_F(PrintSchedulesScreen, SlipDeletedByTheStartsPassDoesNotStopTheBoard) {
    WriteBusiness();
    office.slips.LoadSlips(false);
    office.disk.KillFile(u"/TesselDelivery/Deliveries/503.txt"_s);
    Open();
    EXPECT_TRUE(Failures().empty());
    EXPECT_EQ(office.board.fgSchedule.Rows(), 3);
}

TEST_F(PrintSchedulesScreen, SlipWhoseFileGoesWhileTheBoardIsUpIsAFailure) {
    WriteBusiness();
    Open();
    office.disk.KillFile(u"/TesselDelivery/Deliveries/503.txt"_s);
    Click(board, u"UpDown1(up)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(Failures()[0].Sentence().contains(u"TesselDelivery/Deliveries/503.txt"_s));
}

TEST_F(PrintSchedulesScreen, ClickOnAVehicleLoadsItsDeliveries) {
    WriteBusiness();
    Open();
    ClickVehicle(1);
    ASSERT_EQ(office.board.fgSchedule.Rows(), 2);
    EXPECT_EQ(Cell(1, customerColumn), u"Farm"_s);
    EXPECT_EQ(Caption(u"Label1(14)"_s), u"Tanker - 3/9/2026"_s);
}

TEST_F(PrintSchedulesScreen, ClickOnTheChosenVehicleLoadsItsDeliveriesAnew) {
    WriteBusiness();
    Open();
    ClickVehicle(0);
    ClickCell(grid, 1, selectColumn);
    office.board.fgSchedule.SetText(2, chargeColumn, u"$5.00"_s);
    ClickVehicle(0);
    ASSERT_EQ(office.board.fgSchedule.Rows(), 3);
    EXPECT_EQ(Cell(1, selectColumn), QString());
    EXPECT_EQ(Cell(2, chargeColumn), u"$0.00"_s);
}

TEST_F(PrintSchedulesScreen, ClickOnAVehicleLoadsTheGridOnce) {
    WriteBusiness();
    Open();
    for (const int vehicle : {1, 1, 0}) {
        const QSignalSpy loads(&office.board.fgSchedule, &QAbstractItemModel::modelReset);
        ClickVehicle(vehicle);
        EXPECT_EQ(loads.count(), 1) << vehicle;
    }
}

TEST_F(PrintSchedulesScreen, ArrowKeyInTheVehiclesLoadsTheGridOnce) {
    WriteBusiness();
    Open();
    const QSignalSpy loads(&office.board.fgSchedule, &QAbstractItemModel::modelReset);
    Press(Find<QListView>(board, u"lstVehicles"_s), Qt::Key_Down);
    EXPECT_EQ(loads.count(), 1);
    EXPECT_EQ(Caption(u"Label1(14)"_s), u"Tanker - 3/9/2026"_s);
}

TEST_F(PrintSchedulesScreen, UpDownStepsTheDateByOneDay) {
    WriteBusiness();
    Open();
    Click(board, u"UpDown1(up)"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 10));
    EXPECT_EQ(Caption(u"lblWeekday"_s), u"Tuesday"_s);
    EXPECT_EQ(Caption(u"Label1(14)"_s), u"Van 2 - 3/10/2026"_s);
    EXPECT_EQ(Cell(1, customerColumn), u"Hill School"_s);
    Click(board, u"UpDown1(down)"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
}

TEST_F(PrintSchedulesScreen, StepBeforeTodayIsResetWithBeepAndMessage) {
    Open();
    user.ExpectMessage(u"Date has been Reset to Next Available Work Day"_s, u"Invalid Date"_s);
    Click(board, u"UpDown1(down)"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(PrintSchedulesScreen, DateTypedBeforeTodayWithPromptsOffIsCorrectedSilently) {
    Open();
    office.settings.PromptsOn = false;
    office.settings.AlarmOn = false;
    TypeDate(u"3/2/2026"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(PrintSchedulesScreen, TextThatIsNoDateIsTakenBackWithABeepUnlessAlarmsAreOff) {
    Open();
    TypeDate(u"soon"_s);
    EXPECT_EQ(Date()->text(), u"3/9/2026"_s);
    EXPECT_EQ(user.Beeps, 1);
    office.settings.AlarmOn = false;
    TypeDate(u"soon"_s);
    EXPECT_EQ(Date()->text(), u"3/9/2026"_s);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(PrintSchedulesScreen, SaturdayMovesToMondayInSilence) {
    Open();
    TypeDate(u"3/14/2026"_s);
    EXPECT_EQ(Date()->Date(), QDate(2026, 3, 16));
}

TEST_F(PrintSchedulesScreen, ClickInColumnZeroMarksTheRowAlone) {
    WriteBusiness();
    Open();
    Button(1)->setEnabled(false);
    ClickCell(grid, 1, selectColumn);
    EXPECT_EQ(Cell(1, selectColumn), u" \u00ab"_s);
    EXPECT_TRUE(Button(12)->isEnabled());
    EXPECT_TRUE(Button(1)->isEnabled());
    EXPECT_EQ(office.board.SelectedSlip, u"502"_s);
    ClickCell(grid, 2, selectColumn);
    EXPECT_EQ(Cell(1, selectColumn), QString());
    EXPECT_EQ(Cell(2, selectColumn), u" \u00ab"_s);
}

TEST_F(PrintSchedulesScreen, SecondClickOnTheSameRowRemovesTheMark) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, selectColumn);
    ClickCell(grid, 1, selectColumn);
    EXPECT_EQ(Cell(1, selectColumn), QString());
    EXPECT_FALSE(Button(12)->isEnabled());
    EXPECT_TRUE(Button(1)->isEnabled());
}

TEST_F(PrintSchedulesScreen, RemovingTheMarkLeavesADisabledEnterToGridDisabled) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, selectColumn);
    Button(1)->setEnabled(false);
    ClickCell(grid, 1, selectColumn);
    EXPECT_EQ(Cell(1, selectColumn), QString());
    EXPECT_FALSE(Button(1)->isEnabled());
}

TEST_F(PrintSchedulesScreen, ClickOnARowWhoseSlipFilesHaveGoneIsAFailureThatNamesTheFile) {
    WriteBusiness();
    Open();
    folder.Remove(ItemName(u"502"_s));
    ClickCell(grid, 1, customerColumn);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(Failures()[0].Sentence().contains(u"TesselDelivery/DeliveryItems/502.txt"_s));
    folder.Remove(HeaderName(u"502"_s));
    ClickCell(grid, 1, customerColumn);
    ASSERT_EQ(Failures().size(), 2U);
    EXPECT_EQ(Failures()[1].Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(Failures()[1].Sentence().contains(u"TesselDelivery/Deliveries/502.txt"_s));
}

TEST_F(PrintSchedulesScreen, ClickInAnotherColumnOpensTheSlipAndDisablesTheToggle) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, selectColumn);
    ClickCell(grid, 2, customerColumn);
    EXPECT_FALSE(Button(12)->isEnabled());
    EXPECT_EQ(Cell(1, selectColumn), u" \u00ab"_s);
    EXPECT_EQ(Caption(u"lblCustomer(0)"_s), u"Baker"_s);
}

TEST_F(PrintSchedulesScreen, ClickOnTheHeadingOnlyDisablesTheToggle) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, selectColumn);
    EXPECT_TRUE(Button(12)->isEnabled());
    ClickHeading(chargeColumn);
    EXPECT_FALSE(Button(12)->isEnabled());
    EXPECT_NE(screens.Find(board)->focusWidget(), Charge());
}

TEST_F(PrintSchedulesScreen, ClickInTheChargeColumnClearsTheBoxAndGoesThere) {
    WriteBusiness();
    office.settings.ckDeliveryCharge = 1;
    office.settings.txtDeliveryCharge = u"$12.50"_s;
    Open();
    EXPECT_EQ(Charge()->text(), u"$12.50"_s);
    ClickCell(grid, 1, chargeColumn);
    EXPECT_EQ(Charge()->text(), u"$0.00"_s);
    EXPECT_EQ(screens.Find(board)->focusWidget(), Charge());
}

TEST_F(PrintSchedulesScreen, ClickInTheChargeColumnOpensTheSlipToo) {
    WriteBusiness();
    Open();
    ClickCell(grid, 2, chargeColumn);
    EXPECT_EQ(Caption(u"lblCustomer(0)"_s), u"Baker"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), u"$14.65"_s);
}

TEST_F(PrintSchedulesScreen, EmptyDayKeepsOneRowThatLoadsNothing) {
    WriteVehicles(office, {u"Van 2"_s});
    Open();
    ASSERT_EQ(office.board.fgSchedule.Rows(), 2);
    ClickCell(grid, 1, customerColumn);
    EXPECT_TRUE(Failures().empty());
    user.ExpectMessage(u"You have not selected a Delivery from the Grid"_s);
    Click(board, u"cmdPrint(1)"_s);
    EXPECT_EQ(Charge()->text(), u"$0.00"_s);
    EXPECT_EQ(screens.Find(board)->focusWidget(), Charge());
}

TEST_F(PrintSchedulesScreen, TypedDigitReplacesTheZeroInTheChargeBox) {
    Open();
    EXPECT_EQ(Charge()->text(), u"$0.00"_s);
    Charge()->setFocus();
    Type(Charge(), u"12.5"_s);
    EXPECT_EQ(Charge()->text(), u"12.5"_s);
}

TEST_F(PrintSchedulesScreen, ChargeBoxRefusesLettersLeadingZeroAndSecondPointWithABeep) {
    Open();
    Charge()->setFocus();
    Charge()->clear();
    Type(Charge(), u"0"_s);
    EXPECT_EQ(Charge()->text(), QString());
    EXPECT_EQ(user.Beeps, 1);
    Type(Charge(), u"1.5x"_s);
    EXPECT_EQ(Charge()->text(), u"1.5"_s);
    EXPECT_EQ(user.Beeps, 2);
    Type(Charge(), u"."_s);
    EXPECT_EQ(Charge()->text(), u"1.5"_s);
    EXPECT_EQ(user.Beeps, 3);
}

TEST_F(PrintSchedulesScreen, KeyThatIsRefusedEmptiesAChargeBoxAtZeroAllTheSame) {
    Open();
    int beeps = 0;
    for (const QString& key : {u"."_s, u"x"_s}) {
        Click(board, u"cmdPrint(2)"_s);
        EXPECT_EQ(Charge()->text(), u"$0.00"_s);
        Type(Charge(), key);
        EXPECT_EQ(Charge()->text(), QString()) << key.toStdString();
        EXPECT_EQ(user.Beeps, ++beeps);
    }
}

TEST_F(PrintSchedulesScreen, ZeroTypedIntoAChargeBoxAtZeroStays) {
    Open();
    Charge()->setFocus();
    Type(Charge(), u"0"_s);
    EXPECT_EQ(Charge()->text(), u"0"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(PrintSchedulesScreen, EnterInTheChargeBoxEntersTheCharge) {
    WriteBusiness();
    Open();
    ClickCell(grid, 2, customerColumn);
    Charge()->setFocus();
    Type(Charge(), u"5"_s);
    Press(Charge(), Qt::Key_Return);
    EXPECT_EQ(Cell(2, chargeColumn), u"$5.00"_s);
    EXPECT_EQ(Charge()->text(), u"$5.00"_s);
}

TEST_F(PrintSchedulesScreen, ChargeGoesToTheCurrentRowAndTheSlipPanel) {
    WriteBusiness();
    Open();
    ClickCell(grid, 2, customerColumn);
    Charge()->setFocus();
    Type(Charge(), u"5"_s);
    Click(board, u"cmdPrint(1)"_s);
    EXPECT_EQ(Cell(2, chargeColumn), u"$5.00"_s);
    EXPECT_EQ(Charge()->text(), u"$5.00"_s);
    EXPECT_EQ(Caption(u"lblCharge"_s), u"$5.00"_s);
    EXPECT_EQ(Caption(u"lblGrandtotal"_s), u"$19.65"_s);
}

TEST_F(PrintSchedulesScreen, ClearButtonSetsZeroAndTakesTheFocus) {
    Open();
    Charge()->setText(u"7"_s);
    Click(board, u"cmdPrint(2)"_s);
    EXPECT_EQ(Charge()->text(), u"$0.00"_s);
    EXPECT_EQ(screens.Find(board)->focusWidget(), Charge());
}

TEST_F(PrintSchedulesScreen, SelectAllAndDeselectAllFillAndEmptyTheWorkSchedule) {
    WriteBusiness();
    Open();
    Click(board, u"cmdPrint(6)"_s);
    EXPECT_EQ(office.board.lstWorkSchedule.stringList(),
              (QStringList{u"Corner Grocery"_s, u"Baker"_s}));
    ClickCell(grid, 1, customerColumn);
    const QString shown = Caption(u"lblCustomer(0)"_s);
    Button(6)->setEnabled(false);
    Click(board, u"cmdPrint(7)"_s);
    EXPECT_EQ(Cell(1, selectColumn), QString());
    EXPECT_TRUE(office.board.lstWorkSchedule.stringList().isEmpty());
    EXPECT_EQ(Caption(u"lblCustomer(0)"_s), shown);
    EXPECT_TRUE(Button(6)->isEnabled());
}

TEST_F(PrintSchedulesScreen, ToggleShowsTheRowsSlipUnderTheTablesNumber) {
    WriteBusiness();
    Open();
    // The first row in time order is slip 502; the first in folder order is 501.
    ClickCell(grid, 1, selectColumn);
    EXPECT_FALSE(Find<QWidget>(board, u"fraInvoiceNo"_s)->isVisible());
    Click(board, u"cmdPrint(12)"_s);
    auto* panel = Find<Card>(board, u"fraSlip"_s);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(grid->isEnabled());
    EXPECT_TRUE(Find<QWidget>(board, u"fraInvoiceNo"_s)->isVisible());
    EXPECT_EQ(panel->Heading()->text(), u"Delivery Slip 501"_s);
    EXPECT_EQ(Caption(u"lblTime"_s), u"07.15am"_s);
    EXPECT_EQ(Caption(u"lblAcctNo"_s), u"4471"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), u"$14.65"_s);
    EXPECT_EQ(Caption(u"lblInvoice"_s), u"20260001"_s);
    EXPECT_FALSE(Find<QWidget>(board, u"fraTax"_s)->isVisible());
    EXPECT_EQ(office.board.fgItems.Text(2, 1), u"Sand"_s);
    Click(board, u"cmdPrint(12)"_s);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(PrintSchedulesScreen, EachLineOfTheTwoAddressesHasItsPlace) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, customerColumn);
    const QStringList soldTo = {
        u"Corner Grocery"_s, u"12 Hill Street"_s, u"Apt 3"_s, u"Springfield"_s, u"IL"_s,
        u"62701"_s};
    const QStringList shipTo = {u"Grocery Depot"_s, u"9 Mill Lane"_s, u"Dock B"_s,
                                u"Decatur"_s,       u"IN"_s,          u"46733"_s};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Caption(u"lblCustomer(%1)"_s.arg(i)), soldTo[i]);
        EXPECT_EQ(Caption(u"txtShipto(%1)"_s.arg(i)), shipTo[i]);
    }
}

TEST_F(PrintSchedulesScreen, ToggleWithoutAnySlipShowsThePanelWithoutANumber) {
    WriteVehicles(office, {u"Van 2"_s});
    Open();
    ClickCell(grid, 1, selectColumn);
    Click(board, u"cmdPrint(12)"_s);
    auto* panel = Find<Card>(board, u"fraSlip"_s);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->Heading()->text(), u"Delivery Slip "_s);
    EXPECT_TRUE(Failures().empty());
}

TEST_F(PrintSchedulesScreen, CloseButtonHidesTheSlip) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, selectColumn);
    Click(board, u"cmdPrint(12)"_s);
    Click(board, u"cmdPrint(5)"_s);
    EXPECT_FALSE(Find<Card>(board, u"fraSlip"_s)->isVisible());
}

TEST_F(PrintSchedulesScreen, TaxesAreShownWhenOneIsApplied) {
    WriteBusiness();
    office.settings.ckApply1stTax = 1;
    office.settings.cboRate1 = u"6.25"_s;
    Open();
    EXPECT_TRUE(TaxOption(0)->isChecked());
    EXPECT_FALSE(TaxOption(1)->isEnabled());
    ClickCell(grid, 1, selectColumn);
    Click(board, u"cmdPrint(12)"_s);
    EXPECT_TRUE(Find<QWidget>(board, u"fraTax"_s)->isVisible());
    EXPECT_EQ(Caption(u"lblTax1"_s), u"$0.92"_s);
    EXPECT_EQ(Caption(u"lblGrandtotal"_s), u"$15.57"_s);
}

TEST_F(PrintSchedulesScreen, OtherTaxOptionCountsAtTheNextLoadOfTheSlip) {
    WriteBusiness();
    office.settings.ckApply1stTax = 1;
    office.settings.ckApply2ndTax = 1;
    office.settings.cboRate1 = u"6.25"_s;
    office.settings.cboRate2 = u"1.5"_s;
    Open();
    EXPECT_TRUE(TaxOption(2)->isChecked());
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(TaxOption(i)->isEnabled()) << i;
    ClickCell(grid, 1, customerColumn);
    EXPECT_EQ(Caption(u"lblTax2"_s), u"$0.22"_s);
    Click(board, u"optTax(0)"_s);
    EXPECT_EQ(Caption(u"lblTax2"_s), u"$0.22"_s);
    ClickCell(grid, 1, customerColumn);
    EXPECT_EQ(Caption(u"lblTax2"_s), u"$0.00"_s);
    EXPECT_EQ(Caption(u"lblTax1"_s), u"$0.92"_s);
}

TEST_F(PrintSchedulesScreen, PopulateInvoicesFollowsTheSetting) {
    office.settings.ckPopulateInvoices = 1;
    Open();
    EXPECT_TRUE(Find<QCheckBox>(board, u"ckPopulated"_s)->isChecked());
}

TEST_F(PrintSchedulesScreen, PopulateInvoicesIsUntickedWhenTheSettingIs) {
    office.settings.ckPopulateInvoices = 0;
    Open();
    Find<QCheckBox>(board, u"ckPopulated"_s)->setChecked(true);
    dynamic_cast<frmPrintSchedules&>(*screens.Find(board)).Initform();
    EXPECT_FALSE(Find<QCheckBox>(board, u"ckPopulated"_s)->isChecked());
}

TEST_F(PrintSchedulesScreen, PrintWithNothingMarkedPrintsNothing) {
    WriteBusiness();
    Open();
    user.ExpectMessage(u"No Deliveries for Van 2 on 3/9/2026 have been Selected"_s,
                       u"No Deliveries"_s);
    Click(board, u"cmdPrint(3)"_s);
    EXPECT_TRUE(printer.Texts.empty());
}

TEST_F(PrintSchedulesScreen, PrintLeavesTheLastSlipInThePanel) {
    WriteBusiness();
    Open();
    Click(board, u"cmdPrint(6)"_s);
    Click(board, u"cmdPrint(3)"_s);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(Caption(u"lblCustomer(0)"_s), u"Baker"_s);
}

TEST_F(PrintSchedulesScreen, UntickedScheduleDoesNotPrint) {
    WriteBusiness();
    Open();
    Find<QCheckBox>(board, u"ckPrintWorkSchedule"_s)->setChecked(false);
    Click(board, u"cmdPrint(6)"_s);
    Click(board, u"cmdPrint(3)"_s);
    EXPECT_TRUE(printer.Texts.empty());
}

TEST_F(PrintSchedulesScreen, InvoiceIsPostedTheNextNumberShownAndTheMenuBack) {
    OpenForInvoices(true);
    ClickCell(grid, 1, selectColumn);
    ExpectConfirmation(Answer::Yes);
    ExpectDeleteQuestion(Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 502 scheduled for 3/9/2026 has been Deleted"_s);
    ExpectClosingQuestion(Answer::Yes);
    Click(board, u"cmdPrint(3)"_s);
    user.ExpectNothingLeft();
    EXPECT_TRUE(Failures().empty());
    EXPECT_EQ(printer.Jobs, 1);
    printer.Find(u"INVOICE NO: 20260001"_s);
    EXPECT_EQ(folder.Read(u"InvoiceSalesJournal.txt"_s).size(), 125);
    EXPECT_EQ(folder.Read(u"NXActiveAccounts/4471.txt"_s).size(), 310);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260002\r\n"));
    EXPECT_EQ(Caption(u"lblInvoice"_s), u"20260002"_s);
    EXPECT_FALSE(IsShown(board));
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
    EXPECT_EQ(Cell(1, selectColumn), QString());
    EXPECT_TRUE(office.board.lstWorkSchedule.stringList().isEmpty());
}

TEST_F(PrintSchedulesScreen, ClosingNoLeavesTheMarksForTheNextTime) {
    OpenForInvoices(false);
    Click(board, u"cmdPrint(6)"_s);
    ExpectConfirmation(Answer::Yes);
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    Click(board, u"cmdPrint(3)"_s);
    EXPECT_EQ(printer.Jobs, 2);
    EXPECT_EQ(Cell(1, selectColumn), u" \u00ab"_s);
    EXPECT_EQ(Cell(2, selectColumn), u" \u00ab"_s);
    EXPECT_EQ(Caption(u"lblInvoice"_s), u"20260001"_s);
    EXPECT_FALSE(IsShown(board));
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
}

TEST_F(PrintSchedulesScreen, PanelHoldsTheSlipOfTheInvoice) {
    OpenForInvoices(false);
    Click(board, u"cmdPrint(6)"_s);
    ClickCell(grid, 2, customerColumn);
    office.board.fgSchedule.SetText(1, selectColumn, {});
    office.board.fgSchedule.SetCurrent(1, customerColumn);
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    EXPECT_EQ(Caption(u"lblCustomer(0)"_s), u"Baker"_s);
    QStringList shownAtQuestions;
    user.WhileMessageIsOpen = [&] { shownAtQuestions += Caption(u"lblCustomer(0)"_s); };
    Click(board, u"cmdPrint(3)"_s);
    EXPECT_EQ(shownAtQuestions, (QStringList{u"Corner Grocery"_s, u"Corner Grocery"_s}));
}

TEST_F(PrintSchedulesScreen, KeepingTheInvoicedSlipEndsTheProgramWithTheFailureReport) {
    OpenForInvoices(true);
    ClickCell(grid, 1, selectColumn);
    ExpectConfirmation(Answer::Yes);
    ExpectDeleteQuestion(Answer::No);
    Click(board, u"cmdPrint(3)"_s);
    ASSERT_EQ(Failures().size(), 1U);
    EXPECT_EQ(Failures()[0].Kind(), FailureKind::Overflow);
    EXPECT_TRUE(folder.Has(HeaderName(u"502"_s)));
    EXPECT_EQ(folder.Read(u"InvoiceSalesJournal.txt"_s).size(), 125);
    EXPECT_TRUE(IsShown(board));
}

TEST_F(PrintSchedulesScreen, FailureOnTheWayToAnInvoiceIsToldAndTheBoardStays) {
    OpenForInvoices(true);
    ClickCell(grid, 1, selectColumn);
    folder.Remove(ItemName(u"502"_s));
    user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    Click(board, u"cmdPrint(3)"_s);
    EXPECT_TRUE(Failures().empty());
    EXPECT_TRUE(IsShown(board));
    EXPECT_EQ(printer.Jobs, 0);
}

TEST_F(PrintSchedulesScreen, InvoicesAreNotTickedWhenTheBoardOpens) {
    WriteBusiness();
    Open();
    EXPECT_FALSE(Find<QCheckBox>(board, u"ckMInvoices"_s)->isChecked());
    EXPECT_TRUE(Find<QCheckBox>(board, u"ckPrintWorkSchedule"_s)->isChecked());
}

TEST_F(PrintSchedulesScreen, SpaceMarksTheCurrentRow) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, customerColumn);
    Press(grid, Qt::Key_Down);
    Press(grid, Qt::Key_Space);
    EXPECT_EQ(Cell(2, selectColumn), u" \u00ab"_s);
    EXPECT_TRUE(Button(12)->isEnabled());
    Press(grid, Qt::Key_Space);
    EXPECT_EQ(Cell(2, selectColumn), QString());
}

TEST_F(PrintSchedulesScreen, KeysInTheGridEditTheCellAsItStands) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, slipColumn);
    Press(grid, Qt::Key_Backspace);
    EXPECT_EQ(Cell(1, slipColumn), u"50"_s);
    Type(grid, u"7x"_s);
    EXPECT_EQ(Cell(1, slipColumn), u"507"_s);
    ClickCell(grid, 1, customerColumn);
    Type(grid, u"7"_s);
    EXPECT_EQ(Cell(1, customerColumn), u"Corner Grocery"_s);
}

TEST_F(PrintSchedulesScreen, CellOfTheGridTakesASecondPointAndALeadingZero) {
    WriteBusiness();
    Open();
    office.board.fgSchedule.SetText(1, slipColumn, QString());
    ClickCell(grid, 1, slipColumn);
    Type(grid, u"0.5.-7"_s);
    EXPECT_EQ(Cell(1, slipColumn), u"0.5.7"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(PrintSchedulesScreen, EnterMultipliesSlipNumberAndTimeAndMovesOn) {
    WriteBusiness();
    Open();
    office.board.fgSchedule.SetText(1, timeColumn, u"2"_s);
    ClickCell(grid, 1, slipColumn);
    office.board.fgSchedule.SetCurrent(1, slipColumn);
    Press(grid, Qt::Key_Return);
    EXPECT_EQ(Cell(1, chargeColumn), u"$1,004.00"_s);
    EXPECT_EQ(office.board.fgSchedule.CurrentColumn(), timeColumn);
    Press(grid, Qt::Key_Return);
    EXPECT_EQ(office.board.fgSchedule.CurrentColumn(), slipColumn);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(PrintSchedulesScreen, EnterOnTextBeeps) {
    WriteBusiness();
    Open();
    ClickCell(grid, 1, slipColumn);
    Press(grid, Qt::Key_Return);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Cell(1, chargeColumn), u"$0.00"_s);
}

TEST_F(PrintSchedulesScreen, ReturnToMenuHidesTheBoardAndShowsTheMenu) {
    WriteMasterFiles();
    Open();
    Click(board, u"cmdPrint(0)"_s);
    EXPECT_FALSE(IsShown(board));
    EXPECT_TRUE(IsShown(ScreenName::frmStartup));
}

TEST_F(PrintSchedulesScreen, CloseBoxAsksForTheEndOfTheProgram) {
    Open();
    CloseByUser(board);
    EXPECT_EQ(exitRequests, 1);
    EXPECT_TRUE(IsShown(board));
}

TEST_F(PrintSchedulesScreen, WheelScrollsTheGrid) {
    WriteVehicles(office, {u"Van 2"_s});
    for (int i = 0; i < 60; ++i)
        WriteSlip(folder, VanSlip(QString::number(600 + i)));
    Open();
    QCoreApplication::processEvents();
    grid->scrollToTop();
    QWheelEvent wheel({10, 10}, grid->viewport()->mapToGlobal(QPointF(10, 10)), {}, {0, -240},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(grid->viewport(), &wheel);
    EXPECT_GT(grid->verticalScrollBar()->value(), 0);
}
