#include "schedule/ScheduleBoard.h"

#include "schedule/ScheduleTest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr ushort enterKey = 13;

/// Writes down what it is told, in order.
class ListeningOperator : public Operator {
public:
    QStringList Heard;

    Answer MsgBox(const QString& text, Buttons, const QString& title) override {
        Heard += title + u": "_s + text;
        return Answer::Ok;
    }
    std::optional<QString> InputBox(const QString&, const QString&, const QString&) override {
        return {};
    }
    std::optional<QString> AskForFile(const QString&) override { return {}; }
    std::optional<quint32> AskForColor(quint32) override { return {}; }
    std::optional<QString> AskForFont(const QString&) override { return {}; }
    std::optional<PrintDestination> AskForPrinter(const PrintDestination&,
                                                  const QString&) override {
        return {};
    }
    void Beep() override { Heard += u"Beep"_s; }
    void ShowBusy(bool) override {}
};

} // namespace

class ScheduleBoardTest : public ScheduleTest {
protected:
    LiveSettings& settings = office.settings;

    void ApplyBothTaxes() {
        settings.ckApply1stTax = 1;
        settings.ckApply2ndTax = 1;
        settings.cboRate1 = u"6.25"_s;
        settings.cboRate2 = u"1.5"_s;
        settings.cboTaxHeading1 = u"Sales Tax"_s;
        settings.cboTaxHeading2 = u"County Tax"_s;
    }

    void ExpectHolidayMessage(const QString& date) {
        user.ExpectMessage(date +
                           u" is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    }

    void SetCurrent(int row, ScheduleColumn column) {
        board.fgSchedule.SetCurrent(row, int(column));
    }
    void SetCell(int row, ScheduleColumn column, const QString& text) {
        board.fgSchedule.SetText(row, int(column), text);
    }

    /// Presses keys in a column of row 1 that holds `before`; gives what it holds then.
    QString Edited(ScheduleColumn column, const QString& before,
                   std::initializer_list<ushort> keys) {
        SetCell(1, column, before);
        SetCurrent(1, column);
        for (const ushort key : keys)
            board.EditCell(key);
        return board.Cell(1, column);
    }

    /// Opens the board over one slip whose item file holds these bytes.
    void OpenWithItemFile(const QByteArray& bytes) {
        StoreSlip({.number = u"7"_s});
        folder.Write(ItemName(u"7"_s), bytes);
        OpenBoard();
    }
    void ExpectItemFileFails(const QByteArray& bytes, FailureKind kind) {
        OpenWithItemFile(bytes);
        const RuntimeFailure failure = FailureOf([this] { board.LoadSlipPanel(u"7"_s); });
        EXPECT_EQ(failure.Kind(), kind);
        EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/DeliveryItems/7.txt"_s))
            << failure.Sentence().toStdString();
    }

    QStringList ItemRow(int row) const {
        QStringList cells;
        for (int column = 0; column < board.fgItems.Columns(); ++column)
            cells += board.fgItems.Text(row, column);
        return cells;
    }
};

// The grids

TEST_F(ScheduleBoardTest, ScheduleHasItsNineHeadings) {
    QStringList headings;
    for (int column = 0; column < board.fgSchedule.Columns(); ++column)
        headings += board.fgSchedule.Text(0, column);
    EXPECT_EQ(headings, (QStringList{u"Select"_s, u"Customer"_s, u"Account No"_s,
                                     u"Delivery Slip No"_s, u"Time"_s, u"Delivery Charge"_s,
                                     u"Recurring"_s, u"Frequency"_s, u""_s}));
}

TEST_F(ScheduleBoardTest, ItemsHaveTheirFourHeadings) {
    EXPECT_EQ(ItemRow(0),
              (QStringList{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}));
}

TEST_F(ScheduleBoardTest, MarkIsABlankAndTheCharacterWithCode171) {
    EXPECT_EQ(SelectionMark(), QString(u' ') + QChar(171));
}

TEST_F(ScheduleBoardTest, FourWordsTellOfAnAbsence) {
    for (const QString& text : {u"Vacation"_s, u"Holiday"_s, u"Personal Day"_s, u"Sick Day"_s,
                                u"Joe: Vacation until Friday"_s})
        EXPECT_TRUE(IsAbsence(text)) << text.toStdString();
    for (const QString& text : {QString(), u"Corner Grocery"_s, u"vacation"_s, u"HOLIDAY"_s,
                                u"Personal day"_s, u"Sick"_s, u"SickDay"_s, u"Day"_s})
        EXPECT_FALSE(IsAbsence(text)) << text.toStdString();
}

// Initform

TEST_F(ScheduleBoardTest, NothingIsWrittenBeforeTheScreenIsBroughtUp) {
    EXPECT_FALSE(folder.Has(u"NXInvoiceNo.txt"_s));
    board.Initform({});
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260001\r\n"));
}

TEST_F(ScheduleBoardTest, InitformEmptiesTheWorkScheduleAndGoesToTheNextWorkDayAndFirstVehicle) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .customer = u"Hill School"_s, .vehicle = u"Tanker"_s});
    OpenBoard();
    board.SelectAll();
    clock.Date = {2026, 3, 14};
    board.Initform(u"Tanker"_s);
    EXPECT_EQ(board.lstWorkSchedule.rowCount(), 0);
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 16));
    EXPECT_EQ(board.lstVehicles, u"Tanker"_s);
    EXPECT_EQ(Column(ScheduleColumn::Customer), QStringList{u"Hill School"_s});
}

TEST_F(ScheduleBoardTest, InitformOnAHolidayTellsOnceAndGoesToTheNextDay) {
    clock.Date = {2026, 3, 17};
    folder.Write(u"Holidays.txt"_s, "#2026-03-17#\r\n");
    ExpectHolidayMessage(u"3/17/2026"_s);
    board.Initform({});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 18));
}

TEST_F(ScheduleBoardTest, InitformOnASaturdayBeforeAHolidayTellsOfItAsTheDateChanges) {
    clock.Date = {2026, 3, 14};
    folder.Write(u"Holidays.txt"_s, "#2026-03-16#\r\n");
    ExpectHolidayMessage(u"3/16/2026"_s);
    board.Initform({});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 17));
}

TEST_F(ScheduleBoardTest, InitformStoppedByABrokenHolidayListWritesNoInvoiceNumber) {
    folder.Write(u"Holidays.txt"_s, "never\r\n");
    EXPECT_EQ(FailureOf([&] { board.Initform({}); }).Kind(), FailureKind::TypeMismatch);
    EXPECT_FALSE(folder.Has(u"NXInvoiceNo.txt"_s));
}

TEST_F(ScheduleBoardTest, InitformShowsTheNextInvoiceNumber) {
    folder.Write(u"NXInvoiceNo.txt"_s, "20260042\r\n");
    board.Initform({});
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20260042"_s);
}

TEST_F(ScheduleBoardTest, NumberShownMovesOnlyWithTheLoadBehindTheAdvance) {
    folder.Write(u"NXInvoiceNo.txt"_s, "20260042\r\n");
    board.Initform({});
    board.AdvanceInvoiceNumber();
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20260042"_s);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260043\r\n"));
    board.LoadInvoiceNumber();
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20260043"_s);
}

TEST_F(ScheduleBoardTest, InvoiceNumberDeletedIsStartedAgainByTheNextInitform) {
    board.Initform({});
    folder.Remove(u"NXInvoiceNo.txt"_s);
    clock.Date = {2027, 1, 4};
    board.Initform({});
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20270001"_s);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20270001\r\n"));
}

TEST_F(ScheduleBoardTest, InitformSetsTheTaxOptionsFromTheSettings) {
    settings.ckApply1stTax = 1;
    board.Initform({});
    EXPECT_TRUE(board.optTax.IsOn(TaxOption::PrimaryOnly));
    EXPECT_FALSE(board.optTax.IsOn(TaxOption::SecondaryOnly));
    EXPECT_FALSE(board.optTax.IsOn(TaxOption::Both));
    EXPECT_FALSE(board.optTax[TaxOption::Both].isEnabled);
}

TEST_F(ScheduleBoardTest, InitformTakesTheChargeOfTheSettingsWhenItIsTicked) {
    settings.txtDeliveryCharge = u"$7.50"_s;
    settings.ckDeliveryCharge = 1;
    board.Initform({});
    EXPECT_EQ(board.txtDeliveryCharge, u"$7.50"_s);
    settings.ckDeliveryCharge = 0;
    board.Initform({});
    EXPECT_EQ(board.txtDeliveryCharge, u"$0.00"_s);
}

TEST_F(ScheduleBoardTest, InitformSetsBothTaxesToZero) {
    board.fraSlip.lblTax1 = u"$1.00"_s;
    board.fraSlip.lblTax2 = u"$2.00"_s;
    board.Initform({});
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.00"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.00"_s);
}

// Date and vehicle

TEST_F(ScheduleBoardTest, DateBeforeTodayBecomesTodayWithABeepThenAMessage) {
    ListeningOperator listener;
    ScheduleBoard listened(office.disk, office.slips, office.calendar, settings, clock, listener);
    listened.ChangeDate({2026, 3, 8});
    EXPECT_EQ(listener.Heard,
              (QStringList{u"Beep"_s, u"Invalid Date: Date has been Reset to Next Available Work "
                                      u"Day"_s}));
    EXPECT_EQ(listened.DTPicker1, QDate(2026, 3, 9));
}

TEST_F(ScheduleBoardTest, DateBeforeTodayWithPromptsOffIsCorrectedSilently) {
    settings.PromptsOn = false;
    board.ChangeDate({2026, 3, 8});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(ScheduleBoardTest, DateBeforeTodayWithAlarmsOffDoesNotBeep) {
    settings.AlarmOn = false;
    user.ExpectMessage(u"Date has been Reset to Next Available Work Day"_s, u"Invalid Date"_s);
    board.ChangeDate({2025, 12, 31});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, TodayIsTakenAsItIs) {
    board.ChangeDate({2026, 3, 9});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 9));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, DateMovesToTheNextWorkDaySilently) {
    board.ChangeDate({2026, 3, 14});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 16));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, DateResetToTodayMovesOnToTheNextWorkDay) {
    clock.Date = {2026, 3, 14};
    user.ExpectMessage(u"Date has been Reset to Next Available Work Day"_s, u"Invalid Date"_s);
    board.ChangeDate({2026, 3, 2});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 16));
}

TEST_F(ScheduleBoardTest, HolidayIsToldAndPassedOver) {
    folder.Write(u"Holidays.txt"_s, "#2026-03-16#\r\n");
    settings.PromptsOn = false;
    user.ExpectMessage(u"3/16/2026 is  a Scheduled Holiday\n"
                       u"A day will be added, then re-checked"_s);
    board.ChangeDate({2026, 3, 16});
    EXPECT_EQ(board.DTPicker1, QDate(2026, 3, 17));
}

TEST_F(ScheduleBoardTest, ChangeOfDateReloadsTheGrid) {
    StoreSlip({.number = u"1"_s, .date = u"3/16/2026"_s});
    StoreSlip({.number = u"2"_s, .date = u"3/17/2026"_s});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), QStringList{u"1"_s});
    board.ChangeDate({2026, 3, 17});
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), QStringList{u"2"_s});
}

TEST_F(ScheduleBoardTest, ChangeOfVehicleReloadsTheGrid) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van"_s});
    OpenBoard();
    board.ChooseVehicle(u"Van"_s);
    EXPECT_EQ(board.lstVehicles, u"Van"_s);
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), QStringList{u"2"_s});
}

// LoadScheduleGrid

TEST_F(ScheduleBoardTest, RowHoldsTheSlipColumnByColumn) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    ASSERT_EQ(board.fgSchedule.DataRows(), 1);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Select), u""_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Customer), u"Corner Grocery"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::AccountNo), u"4471"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::SlipNo), u"20260014"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Time), u"08:30am"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$0.00"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Recurring), u"True"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Frequency), u"Weekly"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::TimeSortKey), u"230am"_s);
}

TEST_F(ScheduleBoardTest, ColumnsHaveTheirNumbers) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    const QStringList expected = {u""_s,         u"Corner Grocery"_s, u"4471"_s,
                                  u"20260014"_s, u"08:30am"_s,        u"$0.00"_s,
                                  u"True"_s,     u"Weekly"_s,         u"230am"_s};
    for (int column = 0; column < 9; ++column)
        EXPECT_EQ(board.fgSchedule.Text(1, column), expected[column]);
}

TEST_F(ScheduleBoardTest, FrequencyIsTheLabelOfItsCodeWhateverTheRecurringFlag) {
    StoreSlip(
        {.number = u"1"_s, .time = u"07:00am"_s, .recurring = u"False"_s, .frequency = u""_s});
    StoreSlip({.number = u"2"_s, .time = u"07:30am"_s, .recurring = u"False"_s});
    StoreSlip({.number = u"3"_s, .time = u"07:45am"_s, .frequency = u"0101000"_s});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::Recurring), (QStringList{u"False"_s, u"False"_s, u"True"_s}));
    EXPECT_EQ(Column(ScheduleColumn::Frequency),
              (QStringList{u"One Time"_s, u"Weekly"_s, u"Multiple Days"_s}));
}

TEST_F(ScheduleBoardTest, ChargesStartAtZeroWhateverTheSettingsSay) {
    settings.ckDeliveryCharge = 1;
    settings.txtDeliveryCharge = u"$7.50"_s;
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$0.00"_s);
}

TEST_F(ScheduleBoardTest, OnlySlipsOfTheDateAndTheVehicleAreOnTheBoard) {
    StoreSlip({.number = u"1"_s, .date = u"3/17/2026"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van"_s});
    StoreSlip({.number = u"3"_s});
    StoreSlip({.number = u"4"_s, .vehicle = u"flatbed truck"_s});
    StoreSlip({.number = u"5"_s, .vehicle = u"Flatbed Truck "_s});
    StoreSlip({.number = u"6"_s, .vehicle = u""_s});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), QStringList{u"3"_s});
}

TEST_F(ScheduleBoardTest, DateIsComparedAsADateNotAsText) {
    StoreSlip({.number = u"1"_s, .date = u"03/16/2026"_s});
    StoreSlip({.number = u"2"_s, .time = u"09:00am"_s, .date = u"2026-03-16"_s});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), (QStringList{u"1"_s, u"2"_s}));
}

TEST_F(ScheduleBoardTest, RowsAreInTheOrderOfTheDeliveryDay) {
    // In name order; 10 o'clock and later would come out wrong in a sort as text.
    const QStringList times = {u"06:45pm"_s, u"10:00am"_s, u"05.15pm"_s, u"07:00am"_s,
                               u"01:00pm"_s, u"11:45am"_s, u"07.15am"_s, u"04:30pm"_s};
    for (int i = 0; i < times.size(); ++i)
        StoreSlip({.number = QString::number(i + 1), .time = times[i]});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::Time),
              (QStringList{u"07:00am"_s, u"07.15am"_s, u"10:00am"_s, u"11:45am"_s, u"01:00pm"_s,
                           u"04:30pm"_s, u"05.15pm"_s, u"06:45pm"_s}));
    EXPECT_EQ(Column(ScheduleColumn::TimeSortKey),
              (QStringList{u"100am"_s, u"115am"_s, u"400am"_s, u"545am"_s, u"600pm"_s, u"930pm"_s,
                           u"1015pm"_s, u"1145pm"_s}));
}

TEST_F(ScheduleBoardTest, TimeOfAnUnknownHourHasNoRankAndComesFirst) {
    StoreSlip({.number = u"1"_s, .time = u"07:00am"_s});
    StoreSlip({.number = u"2"_s, .time = u"12:30pm"_s});
    StoreSlip({.number = u"3"_s, .time = u""_s});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
    EXPECT_EQ(Column(ScheduleColumn::TimeSortKey), (QStringList{u""_s, u"30pm"_s, u"100am"_s}));
}

TEST_F(ScheduleBoardTest, DeliveriesOfOneTimeKeepTheOrderOfTheSlips) {
    for (const QString& number : {u"1"_s, u"2"_s, u"3"_s, u"4"_s})
        StoreSlip({.number = number});
    OpenBoard();
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
}

TEST_F(ScheduleBoardTest, LoadingEndsOnTheLastRowInTheSortColumn) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s});
    OpenBoard();
    EXPECT_EQ(board.fgSchedule.CurrentRow(), 2);
    EXPECT_EQ(board.fgSchedule.CurrentColumn(), 8);
}

TEST_F(ScheduleBoardTest, DayWithoutSlipsKeepsOneEmptyRow) {
    StoreSlip({.number = u"1"_s, .vehicle = u"Van"_s});
    OpenBoard();
    ASSERT_EQ(board.fgSchedule.Rows(), 2);
    EXPECT_EQ(board.fgSchedule.CurrentRow(), 1);
    for (int column = 0; column < 9; ++column)
        EXPECT_EQ(board.fgSchedule.Text(1, column), u""_s);
}

TEST_F(ScheduleBoardTest, DayWithoutSlipsTakesNoCharge) {
    OpenBoard();
    board.txtDeliveryCharge = u"5"_s;
    user.ExpectMessage(u"You have not selected a Delivery from the Grid"_s);
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::NoDelivery);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u""_s);
}

TEST_F(ScheduleBoardTest, ReloadClearsMarksAndCharges) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.ToggleMark(1);
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    board.LoadScheduleGrid();
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Select), u""_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$0.00"_s);
}

TEST_F(ScheduleBoardTest, BoardShowsTheSlipTableAsItStandsNotTheFolder) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    StoreSlip({.number = u"2"_s});
    board.LoadScheduleGrid();
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), QStringList{u"1"_s});
}

TEST_F(ScheduleBoardTest, SlipWhoseFileHasGoneFailsTheLoadEvenOfAnotherVehicle) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van"_s});
    OpenBoard();
    folder.Remove(HeaderName(u"2"_s));
    const RuntimeFailure failure = FailureOf([this] { board.LoadScheduleGrid(); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/2.txt"_s));
}

TEST_F(ScheduleBoardTest, SlipDateThatIsNoDateFailsTheLoadEvenOfAnotherVehicle) {
    for (const QString& date : {u"soon"_s, u"3/16/26"_s, u"13/16/2026"_s, u""_s}) {
        StoreSlip({.number = u"2"_s, .date = date, .vehicle = u"Van"_s});
        office.slips.LoadSlips(false);
        const RuntimeFailure failure = FailureOf([this] { board.LoadScheduleGrid(); });
        EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch) << date.toStdString();
        EXPECT_TRUE(failure.Sentence().contains(u"slip 2"_s)) << failure.Sentence().toStdString();
    }
}

TEST_F(ScheduleBoardTest, LoadingLeavesNoFileOpen) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    EXPECT_EQ(FailureOf([this] { (void)office.disk.InputOn(office.disk.DiskFile); }).Kind(),
              FailureKind::FileNotOpen);
    board.LoadSlipPanel(u"1"_s);
    EXPECT_EQ(FailureOf([this] { (void)office.disk.InputOn(office.disk.DiskFile); }).Kind(),
              FailureKind::FileNotOpen);
}

// Marks

TEST_F(ScheduleBoardTest, MarkingARowGivesItTheMarkAndKeepsItsSlipNumber) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s});
    OpenBoard();
    EXPECT_TRUE(board.ToggleMark(2));
    EXPECT_EQ(Column(ScheduleColumn::Select), (QStringList{u""_s, u" \u00ab"_s}));
    EXPECT_EQ(board.SelectedSlip, u"2"_s);
}

TEST_F(ScheduleBoardTest, MarkingAgainTakesTheMarkAway) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    EXPECT_TRUE(board.ToggleMark(1));
    EXPECT_FALSE(board.ToggleMark(1));
    EXPECT_EQ(Column(ScheduleColumn::Select), QStringList{u""_s});
    EXPECT_EQ(board.SelectedSlip, u"1"_s);
    EXPECT_TRUE(board.ToggleMark(1));
}

TEST_F(ScheduleBoardTest, MarkingAnotherRowMovesTheMark) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s});
    StoreSlip({.number = u"3"_s});
    OpenBoard();
    board.ToggleMark(1);
    EXPECT_TRUE(board.ToggleMark(3));
    EXPECT_EQ(Column(ScheduleColumn::Select), (QStringList{u""_s, u""_s, u" \u00ab"_s}));
    EXPECT_EQ(board.SelectedSlip, u"3"_s);
}

TEST_F(ScheduleBoardTest, TakingOneOfManyMarksAwayTakesThemAll) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s});
    OpenBoard();
    board.SelectAll();
    EXPECT_FALSE(board.ToggleMark(1));
    EXPECT_EQ(Column(ScheduleColumn::Select), (QStringList{u""_s, u""_s}));
}

TEST_F(ScheduleBoardTest, MarkingIsAnOverflowWithMoreThan255Rows) {
    OpenBoard();
    board.fgSchedule.SetRows(256);
    EXPECT_TRUE(board.ToggleMark(255));
    board.fgSchedule.SetRows(257);
    EXPECT_EQ(FailureOf([this] { board.ToggleMark(1); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::Select), u""_s);
}

TEST_F(ScheduleBoardTest, SelectAllMarksEveryRowAndListsItsCustomers) {
    StoreSlip({.number = u"1"_s, .customer = u"Bakery"_s, .time = u"09:00am"_s});
    StoreSlip({.number = u"2"_s, .customer = u"Dairy"_s, .time = u"08:00am"_s});
    StoreSlip({.number = u"3"_s, .customer = u"Bakery"_s, .time = u"10:00am"_s});
    OpenBoard();
    board.SelectAll();
    EXPECT_EQ(Column(ScheduleColumn::Select),
              (QStringList{u" \u00ab"_s, u" \u00ab"_s, u" \u00ab"_s}));
    EXPECT_EQ(board.lstWorkSchedule.stringList(),
              (QStringList{u"Dairy"_s, u"Bakery"_s, u"Bakery"_s}));
}

TEST_F(ScheduleBoardTest, SelectAllTakesMoreThan255Rows) {
    OpenBoard();
    board.fgSchedule.SetRows(301);
    board.SelectAll();
    EXPECT_EQ(board.lstWorkSchedule.rowCount(), 300);
    board.DeselectAll();
    EXPECT_EQ(board.Cell(300, ScheduleColumn::Select), u""_s);
}

TEST_F(ScheduleBoardTest, DeselectAllTakesEveryMarkAndEmptiesTheWorkSchedule) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s});
    OpenBoard();
    board.SelectAll();
    board.DeselectAll();
    EXPECT_EQ(Column(ScheduleColumn::Select), (QStringList{u""_s, u""_s}));
    EXPECT_EQ(board.lstWorkSchedule.rowCount(), 0);
}

TEST_F(ScheduleBoardTest, DeselectAllLeavesTheSlipPanelAsItWas) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.ToggleMark(1);
    board.LoadSlipPanel(u"1"_s);
    board.DeselectAll();
    EXPECT_EQ(board.fraSlip.lblCustomer[0], u"Corner Grocery"_s);
    EXPECT_EQ(board.fraSlip.lblTotal, u"$14.65"_s);
    EXPECT_EQ(board.fgItems.DataRows(), 2);
}

TEST_F(ScheduleBoardTest, MarkingLeavesTheWorkScheduleUntilItIsRebuilt) {
    StoreSlip({.number = u"1"_s, .customer = u"Bakery"_s, .time = u"08:00am"_s});
    StoreSlip({.number = u"2"_s, .customer = u"Dairy"_s, .time = u"09:00am"_s});
    OpenBoard();
    board.SelectAll();
    board.ToggleMark(1);
    board.ToggleMark(2);
    EXPECT_EQ(board.lstWorkSchedule.stringList(), (QStringList{u"Bakery"_s, u"Dairy"_s}));
    board.RebuildWorkSchedule();
    EXPECT_EQ(board.lstWorkSchedule.stringList(), QStringList{u"Dairy"_s});
}

TEST_F(ScheduleBoardTest, AnyTextInTheFirstColumnCountsAsAMark) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    SetCell(1, ScheduleColumn::Select, u"x"_s);
    board.RebuildWorkSchedule();
    EXPECT_EQ(board.lstWorkSchedule.stringList(), QStringList{u"Corner Grocery"_s});
    EXPECT_FALSE(board.ToggleMark(1));
}

// The charge

TEST_F(ScheduleBoardTest, ChargeGoesToTheCurrentRowTheBoxAndTheTotals) {
    StoreSlip({.number = u"1"_s, .time = u"08:00am"_s});
    StoreSlip({.number = u"2"_s, .time = u"09:00am"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    SetCurrent(1, ScheduleColumn::Customer);
    board.txtDeliveryCharge = u"1250.5"_s;
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::Entered);
    EXPECT_EQ(Column(ScheduleColumn::DeliveryCharge), (QStringList{u"$1,250.50"_s, u"$0.00"_s}));
    EXPECT_EQ(board.txtDeliveryCharge, u"$1,250.50"_s);
    EXPECT_EQ(board.fraSlip.lblCharge, u"$1,250.50"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$1,265.15"_s);
}

TEST_F(ScheduleBoardTest, ChargeIsReadAndShownInTheRegionsForm) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    UseLocale("de_DE");
    for (QString* caption :
         {&board.fraSlip.lblTotal, &board.fraSlip.lblTax1, &board.fraSlip.lblTax2})
        *caption = u"0,00\u00a0\u20ac"_s;
    board.txtDeliveryCharge = u"1250,5"_s;
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::Entered);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"1.250,50\u00a0\u20ac"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"1.250,50\u00a0\u20ac"_s);
}

TEST_F(ScheduleBoardTest, ChargeBeforeAnySlipWasLookedAtIsEntered) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.txtDeliveryCharge = u"5"_s;
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::Entered);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$5.00"_s);
}

TEST_F(ScheduleBoardTest, ChargeWithoutADataRowDoesNothing) {
    board.txtDeliveryCharge = u"5"_s;
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::NoRow);
    EXPECT_EQ(board.txtDeliveryCharge, u"5"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, ChargeThatIsNoAmountBeepsAndIsNotEntered) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    int beeps = 0;
    for (const QString& text : {u""_s, u"abc"_s, u"."_s, u"$"_s}) {
        board.txtDeliveryCharge = text;
        EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::NoAmount) << text.toStdString();
        EXPECT_EQ(user.Beeps, ++beeps);
        EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$0.00"_s);
    }
}

TEST_F(ScheduleBoardTest, ChargeBeyondTheCurrencyRangeIsAnOverflow) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.txtDeliveryCharge = u"99999999999999999999"_s;
    EXPECT_EQ(FailureOf([this] { board.EnterCharge(); }).Kind(), FailureKind::Overflow);
}

TEST_F(ScheduleBoardTest, ChargeIsNeverWrittenToASlip) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    const QByteArray header = folder.Read(HeaderName(u"1"_s));
    const QByteArray items = folder.Read(ItemName(u"1"_s));
    const QStringList files = folder.Everything();
    board.LoadSlipPanel(u"1"_s);
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    EXPECT_EQ(folder.Read(HeaderName(u"1"_s)), header);
    EXPECT_EQ(folder.Read(ItemName(u"1"_s)), items);
    EXPECT_EQ(folder.Everything(), files);
}

TEST_F(ScheduleBoardTest, ClearingTheChargeShowsZeroAndLeavesTheGrid) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    board.ClearCharge();
    EXPECT_EQ(board.txtDeliveryCharge, u"$0.00"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$5.00"_s);
}

// Keys in the grid

TEST_F(ScheduleBoardTest, BackspaceTakesTheLastCharacterOfAnyCell) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    EXPECT_EQ(Edited(ScheduleColumn::Customer, u"Dairy"_s, {8}), u"Dair"_s);
    EXPECT_EQ(Edited(ScheduleColumn::SlipNo, u"12"_s, {8}), u"1"_s);
    EXPECT_EQ(Edited(ScheduleColumn::Time, u"08:30am"_s, {8, 8}), u"08:30"_s);
    EXPECT_EQ(Edited(ScheduleColumn::DeliveryCharge, u"$0.00"_s, {8}), u"$0.0"_s);
    EXPECT_EQ(Edited(ScheduleColumn::Customer, u""_s, {8}), u""_s);
}

TEST_F(ScheduleBoardTest, DigitsAndPointsAreAddedToSlipNumberAndTime) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    EXPECT_EQ(Edited(ScheduleColumn::SlipNo, u"1"_s, {u'0', u'9', u'.', u'.'}), u"109.."_s);
    EXPECT_EQ(Edited(ScheduleColumn::Time, u""_s, {u'0', u'.', u'5'}), u"0.5"_s);
}

TEST_F(ScheduleBoardTest, OtherKeysAreSwallowedInSilenceInSlipNumberAndTime) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    const std::initializer_list<ushort> keys = {u'a', u'-', u',', u' ', u'$', 27, 0x20ac};
    EXPECT_EQ(Edited(ScheduleColumn::SlipNo, u"1"_s, keys), u"1"_s);
    EXPECT_EQ(Edited(ScheduleColumn::Time, u"08:30am"_s, keys), u"08:30am"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, OtherColumnsTakeNoCharacters) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    for (const ScheduleColumn column :
         {ScheduleColumn::Select, ScheduleColumn::Customer, ScheduleColumn::AccountNo,
          ScheduleColumn::DeliveryCharge, ScheduleColumn::Recurring, ScheduleColumn::Frequency,
          ScheduleColumn::TimeSortKey})
        EXPECT_EQ(Edited(column, u"7"_s, {u'1', u'.', u'a'}), u"7"_s);
}

TEST_F(ScheduleBoardTest, EnterMultipliesSlipNumberAndTimeIntoTheCharge) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    SetCell(1, ScheduleColumn::SlipNo, u"500"_s);
    SetCell(1, ScheduleColumn::Time, u"2.505"_s);
    SetCurrent(1, ScheduleColumn::SlipNo);
    EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::Right);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$1,252.50"_s);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::SlipNo), u"500"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, EnterMovesRightFromTheSlipNumberAndLeftFromTheTime) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    SetCell(1, ScheduleColumn::Time, u"2"_s);
    SetCurrent(1, ScheduleColumn::SlipNo);
    EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::Right);
    SetCurrent(1, ScheduleColumn::Time);
    EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::Left);
    SetCurrent(1, ScheduleColumn::Customer);
    EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::None);
    SetCurrent(1, ScheduleColumn::SlipNo);
    EXPECT_EQ(board.EditCell(u'1'), ScheduleBoard::CursorMove::None);
}

TEST_F(ScheduleBoardTest, EnterInAnyOtherColumnMultipliesAndStays) {
    StoreSlip({.number = u"500"_s});
    OpenBoard();
    SetCell(1, ScheduleColumn::Time, u"2"_s);
    for (const ScheduleColumn column :
         {ScheduleColumn::Select, ScheduleColumn::Customer, ScheduleColumn::AccountNo,
          ScheduleColumn::DeliveryCharge, ScheduleColumn::Recurring, ScheduleColumn::Frequency,
          ScheduleColumn::TimeSortKey}) {
        SetCell(1, ScheduleColumn::DeliveryCharge, u"$0.00"_s);
        SetCurrent(1, column);
        EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::None);
        EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$1,000.00"_s) << int(column);
    }
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, ChargeWithoutADeliveryIsToldOfWithPromptsOffToo) {
    office.settings.PromptsOn = false;
    OpenBoard();
    board.txtDeliveryCharge = u"5"_s;
    user.ExpectMessage(u"You have not selected a Delivery from the Grid"_s);
    EXPECT_EQ(board.EnterCharge(), ScheduleBoard::ChargeEntry::NoDelivery);
    user.ExpectNothingLeft();
}

TEST_F(ScheduleBoardTest, EnterBeepsAndStillMovesWhenTheTwoAreNotNumbers) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    SetCurrent(1, ScheduleColumn::Time);
    EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::Left);
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$0.00"_s);
    SetCell(1, ScheduleColumn::SlipNo, u""_s);
    SetCell(1, ScheduleColumn::Time, u"2"_s);
    SetCurrent(1, ScheduleColumn::SlipNo);
    EXPECT_EQ(board.EditCell(enterKey), ScheduleBoard::CursorMove::Right);
    EXPECT_EQ(user.Beeps, 2);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::DeliveryCharge), u"$0.00"_s);
}

TEST_F(ScheduleBoardTest, KeysWithoutADataRowDoNothing) {
    for (const ushort key : {ushort(8), enterKey, ushort(u'1')})
        EXPECT_EQ(board.EditCell(key), ScheduleBoard::CursorMove::None);
    EXPECT_EQ(board.fgSchedule.Text(0, 0), u"Select"_s);
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(ScheduleBoardTest, KeyCanChangeTheSlipThatTheRowStandsFor) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"12"_s, .vehicle = u"Van"_s, .total = u"$99.00"_s});
    OpenBoard();
    EXPECT_EQ(Edited(ScheduleColumn::SlipNo, u"1"_s, {u'2'}), u"12"_s);
    board.LoadSlipPanel(board.Cell(1, ScheduleColumn::SlipNo));
    EXPECT_EQ(board.fraSlip.lblTotal, u"$99.00"_s);
}

// The slip panel

TEST_F(ScheduleBoardTest, PanelShowsTheSlip) {
    StoreSlip({.number = u"1"_s, .time = u"07:00am"_s, .account = u"11"_s});
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    SetCurrent(2, ScheduleColumn::Customer);
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    board.LoadSlipPanel(u"20260014"_s);
    const SlipCaptions& panel = board.fraSlip;
    EXPECT_EQ(panel.lblTime, u"08:30am"_s);
    EXPECT_EQ(panel.lblAcctNo, u"4471"_s);
    EXPECT_EQ(panel.lblCharge, u"$5.00"_s);
    EXPECT_EQ(panel.lblCustomer,
              (std::array<QString, 6>{u"Corner Grocery"_s, u"12 Hill Street"_s, u"Apt 3"_s,
                                      u"Springfield"_s, u"IL"_s, u"62701"_s}));
    EXPECT_EQ(panel.txtShipto,
              (std::array<QString, 6>{u"Grocery Depot"_s, u"9 Mill Lane"_s, u"Dock B"_s,
                                      u"Decatur"_s, u"IN"_s, u"46733"_s}));
    EXPECT_EQ(panel.lblTotal, u"$14.65"_s);
    EXPECT_EQ(panel.lblGrandtotal, u"$19.65"_s);
    ASSERT_EQ(board.fgItems.DataRows(), 2);
    EXPECT_EQ(ItemRow(1), (QStringList{u"3"_s, u"Gravel"_s, u"$4.10"_s, u"$12.30"_s}));
    EXPECT_EQ(ItemRow(2), (QStringList{u"1"_s, u"Sand"_s, u"$2.35"_s, u"$2.35"_s}));
}

TEST_F(ScheduleBoardTest, CommasInAQuotedAddressStayWhole) {
    SampleSlip slip{.number = u"1"_s};
    slip.soldTo[0] = u"Miller, Sons & Co"_s;
    slip.shipTo[1] = u"9 Mill Lane, Gate 2"_s;
    StoreSlip(slip);
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    EXPECT_EQ(board.fraSlip.lblCustomer[0], u"Miller, Sons & Co"_s);
    EXPECT_EQ(board.fraSlip.txtShipto[1], u"9 Mill Lane, Gate 2"_s);
    EXPECT_EQ(board.fraSlip.txtShipto[5], u"46733"_s);
}

TEST_F(ScheduleBoardTest, PanelOfASlipThatIsNotOnTheBoardKeepsTimeAccountAndCharge) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s, .vehicle = u"Van"_s, .account = u"22"_s, .total = u"$99.00"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    board.LoadSlipPanel(u"2"_s);
    EXPECT_EQ(board.fraSlip.lblTime, u"08:30am"_s);
    EXPECT_EQ(board.fraSlip.lblAcctNo, u"4471"_s);
    EXPECT_EQ(board.fraSlip.lblCharge, u"$0.00"_s);
    EXPECT_EQ(board.fraSlip.lblTotal, u"$99.00"_s);
}

TEST_F(ScheduleBoardTest, PanelCaptionIsTheTablesEntryAtTheCurrentRowNotTheRowsSlip) {
    StoreSlip({.number = u"1"_s, .time = u"10:00am"_s});
    StoreSlip({.number = u"2"_s, .time = u"08:00am"_s});
    OpenBoard();
    SetCurrent(1, ScheduleColumn::Select);
    EXPECT_EQ(board.Cell(1, ScheduleColumn::SlipNo), u"2"_s);
    EXPECT_EQ(board.PanelCaption(), u"Delivery Slip 1"_s);
    SetCurrent(2, ScheduleColumn::Select);
    EXPECT_EQ(board.PanelCaption(), u"Delivery Slip 2"_s);
}

TEST_F(ScheduleBoardTest, PanelCaptionCountsSlipsOfOtherVehicles) {
    StoreSlip({.number = u"1"_s, .vehicle = u"Van"_s});
    StoreSlip({.number = u"2"_s});
    OpenBoard();
    EXPECT_EQ(board.PanelCaption(), u"Delivery Slip 1"_s);
}

TEST_F(ScheduleBoardTest, PanelCaptionWithoutAnySlipHasNoNumber) {
    OpenBoard();
    EXPECT_EQ(board.PanelCaption(), u"Delivery Slip "_s);
}

TEST_F(ScheduleBoardTest, TaxesAreComputedOnTheTotalThenTheChargeIsAdded) {
    ApplyBothTaxes();
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    board.LoadSlipPanel(u"1"_s);
    EXPECT_TRUE(board.fraSlip.fraTax);
    EXPECT_EQ(board.fraSlip.lblTaxHeading1, u"Sales Tax"_s);
    EXPECT_EQ(board.fraSlip.lblTaxHeading2, u"County Tax"_s);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.92"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.22"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$20.79"_s);
}

TEST_F(ScheduleBoardTest, EnteringAChargeChangesTheGrandTotalOnly) {
    ApplyBothTaxes();
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.92"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.22"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$20.79"_s);
}

TEST_F(ScheduleBoardTest, SecondTaxAloneShowsTheTaxes) {
    ApplyBothTaxes();
    settings.ckApply1stTax = 0;
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    EXPECT_TRUE(board.fraSlip.fraTax);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.00"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.22"_s);
}

TEST_F(ScheduleBoardTest, WithoutTaxesTheyAreHiddenStayAsTheyWereAndStillCount) {
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    EXPECT_FALSE(board.fraSlip.fraTax);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.00"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.00"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$14.65"_s);

    board.fraSlip.fraTax = true;
    board.fraSlip.lblTax1 = u"$1.00"_s;
    board.fraSlip.lblTax2 = u"$2.00"_s;
    board.LoadSlipPanel(u"1"_s);
    EXPECT_FALSE(board.fraSlip.fraTax);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$1.00"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$2.00"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$17.65"_s);
}

TEST_F(ScheduleBoardTest, ChangedTaxOptionShowsOnlyWhenTheSlipIsLoadedAgain) {
    ApplyBothTaxes();
    StoreSlip({.number = u"1"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    board.optTax[TaxOption::Both].isOn = false;
    board.optTax[TaxOption::PrimaryOnly].isOn = true;
    board.txtDeliveryCharge = u"5"_s;
    board.EnterCharge();
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.22"_s);
    board.LoadSlipPanel(u"1"_s);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.92"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.00"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$20.57"_s);
}

TEST_F(ScheduleBoardTest, SlipWithoutGoodsHasNoDataRows) {
    OpenWithItemFile("7\r\n0\r\n\"$0.00\"\r\n");
    board.LoadSlipPanel(u"7"_s);
    EXPECT_EQ(board.fgItems.Rows(), 1);
    EXPECT_EQ(board.fraSlip.lblTotal, u"$0.00"_s);
}

TEST_F(ScheduleBoardTest, ShorterSlipLeavesNothingOfTheLongerOne) {
    StoreSlip({.number = u"1"_s});
    StoreSlip({.number = u"2"_s,
               .itemLines = {u"9"_s, u"Lime"_s, u"$1.00"_s, u"$9.00"_s},
               .itemCount = u"1"_s,
               .total = u"$9.00"_s});
    OpenBoard();
    board.LoadSlipPanel(u"1"_s);
    board.LoadSlipPanel(u"2"_s);
    ASSERT_EQ(board.fgItems.DataRows(), 1);
    EXPECT_EQ(ItemRow(1), (QStringList{u"9"_s, u"Lime"_s, u"$1.00"_s, u"$9.00"_s}));
}

TEST_F(ScheduleBoardTest, TotalIsShownAsCurrencyText) {
    OpenWithItemFile("7\r\n0\r\n\"1250.505\"\r\n");
    board.LoadSlipPanel(u"7"_s);
    EXPECT_EQ(board.fraSlip.lblTotal, u"$1,250.51"_s);
}

TEST_F(ScheduleBoardTest, QuotedTotalKeepsItsThousandsSeparator) {
    OpenWithItemFile("7\r\n0\r\n\"$1,250.00\"\r\n");
    board.LoadSlipPanel(u"7"_s);
    EXPECT_EQ(board.fraSlip.lblTotal, u"$1,250.00"_s);
}

// Damaged slips

TEST_F(ScheduleBoardTest, CommaInADescriptionShiftsWhatFollows) {
    OpenWithItemFile("7\r\n2\r\n3\r\nGravel, fine\r\n$4.10\r\n$12.30\r\n1\r\nSand\r\n$2.35\r\n"
                     "$2.36\r\n\"$99.99\"\r\n");
    board.LoadSlipPanel(u"7"_s);
    EXPECT_EQ(ItemRow(1), (QStringList{u"3"_s, u"Gravel"_s, u"fine"_s, u"$4.10"_s}));
    EXPECT_EQ(ItemRow(2), (QStringList{u"$12.30"_s, u"1"_s, u"Sand"_s, u"$2.35"_s}));
    EXPECT_EQ(board.fraSlip.lblTotal, u"$2.36"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$2.36"_s);
}

TEST_F(ScheduleBoardTest, ThousandsSeparatorInALineTotalShiftsTheTotal) {
    OpenWithItemFile("7\r\n1\r\n2\r\nTruck load\r\n$625.00\r\n$1,250.00\r\n\"$1,250.00\"\r\n");
    board.LoadSlipPanel(u"7"_s);
    EXPECT_EQ(ItemRow(1), (QStringList{u"2"_s, u"Truck load"_s, u"$625.00"_s, u"$1"_s}));
    EXPECT_EQ(board.fraSlip.lblTotal, u"$250.00"_s);
}

TEST_F(ScheduleBoardTest, TextThatShiftsIntoTheTotalIsATypeMismatch) {
    ExpectItemFileFails("7\r\n1\r\n3\r\na, b, c, d\r\n$4.10\r\n$12.30\r\n\"$12.30\"\r\n",
                        FailureKind::TypeMismatch);
}

TEST_F(ScheduleBoardTest, MissingItemFileFails) {
    StoreSlip({.number = u"7"_s});
    OpenBoard();
    folder.Remove(ItemName(u"7"_s));
    const RuntimeFailure failure = FailureOf([this] { board.LoadSlipPanel(u"7"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/DeliveryItems/7.txt"_s));
}

TEST_F(ScheduleBoardTest, ItemFileCutShortIsReadPastItsEnd) {
    ExpectItemFileFails("", FailureKind::ReadPastEnd);
    ExpectItemFileFails("7\r\n", FailureKind::ReadPastEnd);
    ExpectItemFileFails("7\r\n2\r\n3\r\nGravel\r\n", FailureKind::ReadPastEnd);
    ExpectItemFileFails("7\r\n1\r\n3\r\nGravel\r\n$4.10\r\n$12.30\r\n", FailureKind::ReadPastEnd);
}

TEST_F(ScheduleBoardTest, ItemCountThatIsNoNumberIsATypeMismatch) {
    ExpectItemFileFails("7\r\nmany\r\n\"$0.00\"\r\n", FailureKind::TypeMismatch);
    ExpectItemFileFails("7\r\n\r\n\"$0.00\"\r\n", FailureKind::TypeMismatch);
}

TEST_F(ScheduleBoardTest, NegativeItemCountIsAnOverflow) {
    ExpectItemFileFails("7\r\n-1\r\n\"$14.65\"\r\n", FailureKind::Overflow);
    ExpectItemFileFails("7\r\n-32768\r\n\"$14.65\"\r\n", FailureKind::Overflow);
}

TEST_F(ScheduleBoardTest, ItemCountBeyondSixteenBitsIsAnOverflow) {
    ExpectItemFileFails("7\r\n32768\r\n\"$0.00\"\r\n", FailureKind::Overflow);
}

TEST_F(ScheduleBoardTest, LargestItemCountWithFewLinesIsReadPastItsEnd) {
    ExpectItemFileFails("7\r\n32767\r\n3\r\nGravel\r\n$4.10\r\n$12.30\r\n\"$12.30\"\r\n",
                        FailureKind::ReadPastEnd);
}

TEST_F(ScheduleBoardTest, HeaderCutShortIsReadPastItsEnd) {
    StoreSlip({.number = u"7"_s});
    OpenBoard();
    const QByteArray header = folder.Read(HeaderName(u"7"_s));
    folder.Write(HeaderName(u"7"_s), header.left(header.indexOf("\"Decatur\"")));
    const RuntimeFailure failure = FailureOf([this] { board.LoadSlipPanel(u"7"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/7.txt"_s));
}

TEST_F(ScheduleBoardTest, PanelOfASlipWhoseFileHasGoneFails) {
    StoreSlip({.number = u"7"_s});
    OpenBoard();
    folder.Remove(HeaderName(u"7"_s));
    EXPECT_EQ(FailureOf([this] { board.LoadSlipPanel(u"7"_s); }).Kind(), FailureKind::FileNotFound);
}

TEST_F(ScheduleBoardTest, ChargeCellThatIsNoAmountIsATypeMismatch) {
    StoreSlip({.number = u"7"_s});
    OpenBoard();
    for (const QString& charge : {u""_s, u"$"_s, u"free"_s}) {
        SetCell(1, ScheduleColumn::DeliveryCharge, charge);
        EXPECT_EQ(FailureOf([this] { board.LoadSlipPanel(u"7"_s); }).Kind(),
                  FailureKind::TypeMismatch)
            << charge.toStdString();
    }
}

TEST_F(ScheduleBoardTest, BoardWorksOnAfterADamagedSlip) {
    ExpectItemFileFails("7\r\n2\r\n3\r\nGravel\r\n", FailureKind::ReadPastEnd);
    StoreSlip({.number = u"7"_s});
    board.LoadScheduleGrid();
    board.LoadSlipPanel(u"7"_s);
    EXPECT_EQ(board.fraSlip.lblTotal, u"$14.65"_s);
    EXPECT_EQ(board.fgItems.DataRows(), 2);
}
