#include "schedule/BoardPrinting.h"

#include "platform/RuntimeFailure.h"
#include "schedule/ScheduleTest.h"

using namespace Qt::StringLiterals;

class BoardPrintingTest : public ScheduleTest {
protected:
    BoardPrintingTest() { office.settings.DocumentFont = u"Arial"_s; }

    void ExpectConfirmation(Answer answer) {
        user.ExpectQuestion(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s,
                            answer);
    }
    void ExpectNoRetry() {
        user.ExpectQuestion(u"Would you like to Retry Printing this Invoice"_s, u"Print Retry"_s,
                            Answer::No);
    }
    void ExpectDeletion(const QString& slipNo) {
        user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                            u"Delete a Recurring Slip"_s, Answer::Yes);
        user.ExpectMessage(u"Delivery Slip "_s + slipNo +
                           u" scheduled for 3/16/2026 has been Deleted"_s);
    }
    void ExpectClosingQuestion(Answer answer) {
        user.ExpectQuestion(u"Would you like to Remove\nDeliveries from the Grid"_s,
                            u"Remove Items"_s, answer);
    }
    void ExpectPrintError() {
        user.ExpectMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
    }

    void Print(const BoardPrinting::Choices& choices) {
        office.boardPrinting.Print(
            choices, {.showSlip = [this] { events += u"slip "_s + board.fraSlip.lblAcctNo; },
                      .returnToMenu = [this] { events += u"menu"_s; },
                      .deselectAll =
                          [this] {
                              events += u"deselect"_s;
                              board.DeselectAll();
                          }});
        user.ExpectNothingLeft();
    }
    void PrintSchedule() { Print({.ckPrintWorkSchedule = true}); }
    void PrintBlankInvoices() { Print({.ckMInvoices = true}); }
    void PrintInvoices() { Print({.ckMInvoices = true, .ckPopulated = true}); }

    /// Three deliveries of the day in the order of their times, of accounts 11, 22 and 33.
    void OpenThree() {
        StoreSlip({.number = u"1"_s, .time = u"09:00am"_s, .account = u"33"_s});
        StoreSlip({.number = u"2"_s, .time = u"08:00am"_s, .account = u"22"_s});
        StoreSlip({.number = u"3"_s, .time = u"07:00am"_s, .account = u"11"_s});
        OpenBoard();
    }
    int TimesPrinted(const QString& text) const {
        int times = 0;
        for (const auto& drawn : printer.Texts)
            times += drawn.text == text ? 1 : 0;
        return times;
    }

    QStringList events;
};

TEST_F(BoardPrintingTest, PrinterIsPreparedUprightInTheColourModeOfTheSettings) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    PrintSchedule();
    office.settings.ckColor = 1;
    PrintSchedule();
    EXPECT_EQ(printer.Orientations,
              (std::vector<Orientation>{Orientation::Portrait, Orientation::Portrait}));
    EXPECT_EQ(printer.Colors, (std::vector<bool>{false, true}));
}

TEST_F(BoardPrintingTest, PrinterIsPreparedAgainForTheInvoices) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    office.settings.ckColor = 1;
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    Print({.ckPrintWorkSchedule = true, .ckMInvoices = true});
    EXPECT_EQ(printer.Orientations,
              (std::vector<Orientation>{Orientation::Portrait, Orientation::Portrait}));
    EXPECT_EQ(printer.Colors, (std::vector<bool>{true, true}));
    EXPECT_EQ(printer.Find(u"INVOICE"_s).fontName, u"Arial"_s);
}

TEST_F(BoardPrintingTest, WithNothingTickedThePrinterIsPreparedAndNothingPrinted) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    Print({});
    EXPECT_EQ(printer.Orientations.size(), 1U);
    EXPECT_EQ(printer.FontName, u"Arial"_s);
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 0);
    EXPECT_TRUE(user.BusyChanges.empty());
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(BoardPrintingTest, NothingMarkedIsToldAndNothingPrinted) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.lstWorkSchedule.setStringList({u"Corner Grocery"_s});
    user.ExpectMessage(u"No Deliveries for Flatbed Truck on 3/16/2026 have been Selected"_s,
                       u"No Deliveries"_s);
    Print({.ckPrintWorkSchedule = true, .ckMInvoices = true, .ckPopulated = true});
    EXPECT_EQ(board.lstWorkSchedule.rowCount(), 0);
    EXPECT_TRUE(printer.Orientations.empty());
    EXPECT_TRUE(printer.Texts.empty());
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(BoardPrintingTest, MessagesOfThePressComeWithPromptsOffToo) {
    office.settings.PromptsOn = false;
    OpenThree();
    user.ExpectMessage(u"No Deliveries for Flatbed Truck on 3/16/2026 have been Selected"_s,
                       u"No Deliveries"_s);
    PrintSchedule();
    board.ToggleMark(1);
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    PrintBlankInvoices();
    printer.FailingText = int(printer.Texts.size()) + 3;
    ExpectPrintError();
    PrintSchedule();
}

TEST_F(BoardPrintingTest, PercentSignInAVehicleNameIsTextInTheMessage) {
    OpenBoard();
    board.ChooseVehicle(u"100%2 Truck"_s);
    user.ExpectMessage(u"No Deliveries for 100%2 Truck on 3/16/2026 have been Selected"_s,
                       u"No Deliveries"_s);
    PrintSchedule();
}

TEST_F(BoardPrintingTest, PrintingRebuildsTheWorkScheduleFromTheMarks) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.lstWorkSchedule.setStringList({u"Somebody Else"_s});
    board.ToggleMark(1);
    PrintSchedule();
    EXPECT_EQ(board.lstWorkSchedule.stringList(), QStringList{u"Corner Grocery"_s});
    EXPECT_EQ(TimesPrinted(u"SCHEDULED DELIVERIES"_s), 1);
    EXPECT_EQ(TimesPrinted(u"Gravel"_s), 1);
}

TEST_F(BoardPrintingTest, PressEndsWithTheScheduleWhenInvoicesAreNotTicked) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    const auto before = folder.Contents();
    Print({.ckPrintWorkSchedule = true, .ckPopulated = true});
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(TimesPrinted(u"INVOICE"_s), 0);
    EXPECT_TRUE(events.isEmpty());
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(BoardPrintingTest, ScheduleAndInvoicesAreJobsOfTheirOwn) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    ExpectConfirmation(Answer::Yes);
    ExpectDeletion(u"20260014"_s);
    ExpectClosingQuestion(Answer::No);
    Print({.ckPrintWorkSchedule = true, .ckMInvoices = true, .ckPopulated = true});
    EXPECT_EQ(printer.Jobs, 2);
    EXPECT_EQ(TimesPrinted(u"SCHEDULED DELIVERIES"_s), 1);
    EXPECT_EQ(TimesPrinted(u"INVOICE"_s), 1);
    EXPECT_EQ(events, (QStringList{u"slip 4471"_s, u"menu"_s}));
}

TEST_F(BoardPrintingTest, ThreeMarkedRowsPrintThreeInvoicesOfTheCurrentRowsSlip) {
    OpenThree();
    board.SelectAll();
    board.fgSchedule.SetCurrent(2, int(ScheduleColumn::Customer));
    for (int invoice = 1; invoice <= 3; ++invoice)
        ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    PrintBlankInvoices();
    EXPECT_EQ(printer.Jobs, 3);
    EXPECT_EQ(TimesPrinted(u"Acct: 22"_s), 3);
    EXPECT_EQ(TimesPrinted(u"Acct: 11"_s) + TimesPrinted(u"Acct: 33"_s), 0);
    EXPECT_EQ(events, (QStringList{u"slip 22"_s, u"menu"_s, u"slip 22"_s, u"menu"_s, u"slip 22"_s,
                                   u"menu"_s}));
    EXPECT_EQ(board.fgSchedule.CurrentRow(), 2);
}

TEST_F(BoardPrintingTest, MarkElsewherePrintsTheCurrentRowsSlipAllTheSame) {
    OpenThree();
    board.ToggleMark(1);
    board.fgSchedule.SetCurrent(3, int(ScheduleColumn::Customer));
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    PrintBlankInvoices();
    EXPECT_EQ(TimesPrinted(u"Acct: 33"_s), 1);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(BoardPrintingTest, EveryInvoiceGivenUpLeavesAllFilesAndGoesOnWithTheNextMark) {
    OpenThree();
    board.SelectAll();
    const auto before = folder.Contents();
    for (int invoice = 1; invoice <= 3; ++invoice) {
        ExpectConfirmation(Answer::No);
        ExpectNoRetry();
    }
    ExpectClosingQuestion(Answer::No);
    PrintInvoices();
    EXPECT_EQ(printer.Jobs, 3);
    EXPECT_EQ(events.count(u"menu"_s), 3);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(BoardPrintingTest, SecondInvoiceOfASlipThatHasBeenDeletedIsAPrintError) {
    OpenThree();
    board.SelectAll();
    board.fgSchedule.SetCurrent(1, int(ScheduleColumn::Customer));
    ExpectConfirmation(Answer::Yes);
    ExpectDeletion(u"3"_s);
    ExpectPrintError();
    PrintInvoices();
    EXPECT_EQ(events, (QStringList{u"slip 11"_s, u"menu"_s}));
    EXPECT_EQ(folder.Read(u"InvoiceSalesJournal.txt"_s).size(), 125);
    EXPECT_TRUE(folder.Has(HeaderName(u"2"_s)));
}

TEST_F(BoardPrintingTest, InvoiceTakesTheChargeOfTheGrid) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.txtDeliveryCharge = u"7.5"_s;
    board.EnterCharge();
    board.SelectAll();
    ExpectConfirmation(Answer::Yes);
    ExpectDeletion(u"20260014"_s);
    ExpectClosingQuestion(Answer::No);
    PrintInvoices();
    printer.Find(u"$7.50"_s);
    printer.Find(u"$22.15"_s);
}

TEST_F(BoardPrintingTest, ClosingYesTakesTheMarksAwayAndThenLooksAtPastSlips) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    StoreSlip({.number = u"7"_s, .date = u"3/2/2026"_s});
    board.SelectAll();
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::Yes);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 7 scheduled for 3/2/2026 has been Deleted"_s);
    PrintBlankInvoices();
    EXPECT_EQ(events, (QStringList{u"slip 4471"_s, u"menu"_s, u"deselect"_s}));
    EXPECT_EQ(Column(ScheduleColumn::Select), QStringList{QString()});
    EXPECT_EQ(Column(ScheduleColumn::SlipNo), QStringList{u"20260014"_s});
    EXPECT_FALSE(folder.Has(HeaderName(u"7"_s)));
}

TEST_F(BoardPrintingTest, ClosingYesReadsTheSlipTableAnew) {
    StoreSlip({.number = u"20260014"_s});
    StoreSlip({.number = u"20260015"_s});
    OpenBoard();
    board.SelectAll();
    board.fgSchedule.SetText(2, int(ScheduleColumn::Select), {});
    board.fgSchedule.SetCurrent(1, 0);
    ExpectConfirmation(Answer::Yes);
    ExpectDeletion(u"20260014"_s);
    ExpectClosingQuestion(Answer::Yes);
    PrintInvoices();
    EXPECT_EQ(office.slips.SlipCount, 1);
    EXPECT_EQ(office.slips.Table.Text(SlipLine::SlipNumber, 1), u"20260015"_s);
}

TEST_F(BoardPrintingTest, ClosingNoLeavesMarksAndTable) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    StoreSlip({.number = u"7"_s, .date = u"3/2/2026"_s});
    board.SelectAll();
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::No);
    PrintBlankInvoices();
    EXPECT_EQ(Column(ScheduleColumn::Select), QStringList{u" \u00ab"_s});
    EXPECT_EQ(office.slips.SlipCount, 1);
}

TEST_F(BoardPrintingTest, SlipWhoseFileHasGoneIsAPrintErrorAndNoQuestionComes) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    folder.Remove(HeaderName(u"20260014"_s));
    ExpectPrintError();
    PrintInvoices();
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(BoardPrintingTest, HeadingAsTheCurrentRowIsAPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    board.fgSchedule.SetCurrent(0, 0);
    ExpectPrintError();
    PrintInvoices();
}

TEST_F(BoardPrintingTest, ChargeInTheGridThatIsNoAmountIsAPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    board.fgSchedule.SetText(1, int(ScheduleColumn::DeliveryCharge), u"$"_s);
    ExpectPrintError();
    PrintInvoices();
}

TEST_F(BoardPrintingTest, FailureWhilePastSlipsAreLookedAtIsAPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    StoreSlip({.number = u"7"_s, .date = u"some day"_s});
    board.SelectAll();
    ExpectConfirmation(Answer::Yes);
    ExpectClosingQuestion(Answer::Yes);
    ExpectPrintError();
    PrintBlankInvoices();
}

TEST_F(BoardPrintingTest, FailedScheduleEndsThePressBeforeTheInvoices) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    printer.FailingText = 3;
    ExpectPrintError();
    Print({.ckPrintWorkSchedule = true, .ckMInvoices = true, .ckPopulated = true});
    EXPECT_EQ(printer.Jobs, 0);
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(BoardPrintingTest, CancelledScheduleEndsThePressInSilence) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    printer.FailingText = 3;
    printer.FailsAsCancelled = true;
    Print({.ckPrintWorkSchedule = true, .ckMInvoices = true, .ckPopulated = true});
    EXPECT_EQ(printer.AbandonedJobs, 1);
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(BoardPrintingTest, PrinterThatFailsInAnInvoiceIsNoPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    printer.FailingText = 3;
    printer.FailsAtEndOfJob = true;
    ExpectConfirmation(Answer::No);
    ExpectNoRetry();
    ExpectClosingQuestion(Answer::No);
    PrintInvoices();
    EXPECT_EQ(events, (QStringList{u"slip 4471"_s, u"menu"_s}));
}

TEST_F(BoardPrintingTest, KeepingTheInvoicedSlipEndsTheProgramAndIsNoPrintError) {
    StoreSlip({.number = u"20260014"_s});
    OpenBoard();
    board.SelectAll();
    ExpectConfirmation(Answer::Yes);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::No);
    EXPECT_THROW(PrintInvoices(), EndingFailure);
    user.ExpectNothingLeft();
    EXPECT_EQ(folder.Read(u"InvoiceSalesJournal.txt"_s).size(), 125);
    EXPECT_TRUE(folder.Has(HeaderName(u"20260014"_s)));
    EXPECT_EQ(events, QStringList{u"slip 4471"_s});
}
