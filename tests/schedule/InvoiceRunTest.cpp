#include "schedule/InvoiceRun.h"

#include "schedule/InvoiceBytes.h"
#include "schedule/ScheduleTest.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QString soldItems = u"SoldItems.txt"_s;
const QString journal = u"InvoiceSalesJournal.txt"_s;
const QString taxRecords = u"TaxRecords.txt"_s;
const QString ledger = u"NXActiveAccounts/4471.txt"_s;
const QString ledgerCopy = u"Backup/NXActiveAccounts/4471.txt"_s;
const QString nextNumber = u"NXInvoiceNo.txt"_s;
const QString slipNo = u"20260014"_s;

constexpr int mostRecords = 32'767;

QByteArray Bytes(const char* bytes, int count) {
    return {bytes, count};
}

QByteArray JournalBytes(const QByteArray& subTotal, const QByteArray& tax,
                        const QByteArray& grandTotal) {
    return Field("Corner Grocery", 45) + Field("4471", 20) + Field("20260001", 20) + todayBytes +
           subTotal + tax + QByteArray(8, '\0') + grandTotal;
}

const QByteArray subTotalBytes = Bytes("\x44\x3c\x02\x00\x00\x00\x00\x00", 8);   // 14.65
const QByteArray grandTotalBytes = Bytes("\x1c\x2c\x03\x00\x00\x00\x00\x00", 8); // 20.79

} // namespace

/// One slip of 3 Gravel at 4.10 and 1 Sand at 2.35 in the panel, with rates of 6.25 and 1.5 and a
/// charge of 5.00. Gravel and Sand are products of the business.
class InvoiceRunTest : public ScheduleTest {
protected:
    InvoiceRunTest() {
        office.settings.cboTaxHeading1 = u"Sales Tax"_s;
        office.settings.cboTaxHeading2 = u"County Tax"_s;
        office.settings.cboRate1 = u"6.25"_s;
        office.settings.cboRate2 = u"1.5"_s;
        office.settings.ckApply1stTax = 1;
        office.settings.ckApply2ndTax = 1;
        office.items.ProductNames.setStringList({u"Sand"_s, u"Clay"_s, u"Gravel"_s});
        StoreSlip({.number = slipNo});
        OpenBoard();
        board.LoadSlipPanel(slipNo);
        board.txtDeliveryCharge = u"5"_s;
        board.EnterCharge();
    }

    void ExpectConfirmation(Answer answer) {
        user.ExpectQuestion(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s,
                            answer);
    }
    void ExpectRetry(Answer answer) {
        user.ExpectQuestion(u"Would you like to Retry Printing this Invoice"_s, u"Print Retry"_s,
                            answer);
    }
    void ExpectDeleteQuestion(Answer answer) {
        user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                            u"Delete a Recurring Slip"_s, answer);
    }
    /// What the operator sees of an invoice that is right, and the slip deleted.
    void ExpectPosting() {
        ExpectConfirmation(Answer::Yes);
        ExpectDeleteQuestion(Answer::Yes);
        user.ExpectMessage(u"Delivery Slip 20260014 scheduled for 3/16/2026 has been Deleted"_s);
    }
    void Print(bool isPopulated = true) {
        office.invoiceRun.PrintOneInvoice(isPopulated, [this] { ++menus; });
        user.ExpectNothingLeft();
    }
    bool HasSlip() const { return folder.Has(HeaderName(slipNo)) && folder.Has(ItemName(slipNo)); }
    QByteArray ReadIfThere(const QString& name) const {
        return folder.Has(name) ? folder.Read(name) : QByteArray();
    }
    /// What follows the four posting steps happened: the number moved on, the slip is gone and the
    /// menu is back.
    void ExpectRestOfTheRun() {
        EXPECT_EQ(folder.Read(nextNumber), QByteArray("20260002\r\n"));
        EXPECT_EQ(board.fraSlip.lblInvoice, u"20260002"_s);
        EXPECT_FALSE(HasSlip());
        EXPECT_EQ(menus, 1);
    }
    enum Step { NoStep, SoldItems, Journal, Ledger, TaxRecords };
    /// All records but those of one step are there, each behind what stood in its file.
    void ExpectRecordsBut(Step failed, const QByteArray& before = {}) {
        const auto expectFile = [&](Step step, const QString& name, const QByteArray& records) {
            if (step == failed)
                EXPECT_TRUE(ReadIfThere(name) == before) << name.toStdString();
            else
                EXPECT_EQ(folder.Read(name), records);
        };
        expectFile(SoldItems, soldItems, soldBytes);
        expectFile(Journal, journal, journalBytes);
        expectFile(Ledger, ledger, ledgerBytes);
        expectFile(TaxRecords, taxRecords, taxBytes);
        ExpectRestOfTheRun();
    }
    void ExpectNothingPosted() {
        for (const QString& name : {soldItems, journal, taxRecords, ledger, ledgerCopy})
            EXPECT_FALSE(folder.Has(name)) << name.toStdString();
        EXPECT_EQ(folder.Read(nextNumber), QByteArray("20260001\r\n"));
        EXPECT_EQ(board.fraSlip.lblInvoice, u"20260001"_s);
        EXPECT_TRUE(HasSlip());
    }

    int menus = 0;
    const QByteArray soldBytes = SoldItemBytes("Gravel", "20260001", Bytes("\x03\x00", 2)) +
                                 SoldItemBytes("Sand", "20260001", Bytes("\x01\x00", 2));
    const QByteArray journalBytes = JournalBytes(
        subTotalBytes, Bytes("\x88\x2c\x00\x00\x00\x00\x00\x00", 8), grandTotalBytes); // 1.14
    const QByteArray taxBytes = TaxBytes("Sales Tax", "3/9/2026", "20260001", "0.92") +
                                TaxBytes("County Tax", "3/9/2026", "20260001", "0.22");
    const QByteArray ledgerBytes =
        LedgerBytes("Corner Grocery", "4471", "3/9/2026", "Previous Balance", "$0.00") +
        LedgerBytes("Corner Grocery", "4471", "3/9/2026", "20260001", "20.79");
};

TEST_F(InvoiceRunTest, CaptionsAreThoseOfTheWorkedExample) {
    EXPECT_EQ(board.fraSlip.lblTotal, u"$14.65"_s);
    EXPECT_EQ(board.fraSlip.lblTax1, u"$0.92"_s);
    EXPECT_EQ(board.fraSlip.lblTax2, u"$0.22"_s);
    EXPECT_EQ(board.fraSlip.lblCharge, u"$5.00"_s);
    EXPECT_EQ(board.fraSlip.lblGrandtotal, u"$20.79"_s);
}

TEST_F(InvoiceRunTest, ConfirmedInvoiceIsPostedToAllFilesAndItsSlipDeleted) {
    ExpectPosting();
    Print();
    ExpectRecordsBut(NoStep);
    EXPECT_EQ(folder.Read(ledgerCopy), ledgerBytes);
    EXPECT_EQ(printer.Jobs, 1);
}

TEST_F(InvoiceRunTest, InvoicePrintedBearsTheNumberBeforeItMovesOn) {
    ExpectPosting();
    Print();
    EXPECT_EQ(printer.Find(u"INVOICE NO: 20260001"_s).page, 1);
    EXPECT_TRUE(printer.JobName.contains(u"20260001"_s));
}

TEST_F(InvoiceRunTest, PageHasVehicleAndDateOfTheBoardAndTheGoods) {
    ExpectPosting();
    Print();
    printer.Find(u"Flatbed Truck"_s);
    printer.Find(u"Sheduled for - 3/16/2026"_s);
    printer.Find(u"Gravel"_s);
    printer.Find(u"$20.79"_s);
}

TEST_F(InvoiceRunTest, SecondInvoiceBearsTheNextNumber) {
    ExpectPosting();
    Print();
    StoreSlip({.number = slipNo});
    ExpectPosting();
    Print();
    EXPECT_EQ(folder.Read(nextNumber), QByteArray("20260003\r\n"));
    EXPECT_EQ(folder.Read(journal).mid(125 + 65, 20), Field("20260002", 20));
    EXPECT_EQ(folder.Read(soldItems).mid(180 + 68, 20), Field("20260002", 20));
    EXPECT_EQ(folder.Read(taxRecords).mid(150 + 35, 30), Field("20260002", 30));
    EXPECT_EQ(folder.Read(ledger).mid(310 + 85, 60), Field("20260002", 60));
}

namespace {

/// Notes which of some files are there each time that a step asks for the date.
class WatchingClock : public Clock {
public:
    WatchingClock(const TestFolder& testFolder, QStringList fileNames)
        : folder(testFolder), names(std::move(fileNames)) {}

    QDate Today() const override {
        QStringList there;
        for (const QString& name : names) {
            if (folder.Has(name))
                there += name;
        }
        if (Seen.isEmpty() || Seen.last() != there)
            Seen += there;
        return {2026, 3, 9};
    }

    mutable QList<QStringList> Seen;

private:
    const TestFolder& folder;
    const QStringList names;
};

} // namespace

TEST_F(InvoiceRunTest, StepsFollowEachOtherFromSoldItemsToTheSlip) {
    const WatchingClock watch(folder, {soldItems, journal, ledger, ledgerCopy, taxRecords});
    Office watched(folder.Path(), {watch, user, printer, browser, pictures});
    watched.settings = office.settings;
    watched.items.ProductNames.setStringList({u"Gravel"_s});
    watched.slips.LoadSlips(false);
    watched.board.Initform(u"Flatbed Truck"_s);
    watched.board.ChangeDate({2026, 3, 16});
    watched.board.LoadSlipPanel(slipNo);
    watch.Seen.clear();
    ExpectPosting();
    watched.invoiceRun.PrintOneInvoice(true, [this] {
        ++menus;
        EXPECT_FALSE(HasSlip());
    });
    user.ExpectNothingLeft();
    EXPECT_EQ(menus, 1);
    EXPECT_EQ(watch.Seen,
              (QList<QStringList>{{},
                                  {soldItems},
                                  {soldItems, journal},
                                  {soldItems, journal, ledger, ledgerCopy},
                                  {soldItems, journal, ledger, ledgerCopy, taxRecords}}));
}

TEST_F(InvoiceRunTest, NoThenNoLeavesEveryFileAndTheNumberAndGoesToTheMenu) {
    const auto before = folder.Contents();
    ExpectConfirmation(Answer::No);
    ExpectRetry(Answer::No);
    Print();
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20260001"_s);
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(menus, 1);
}

TEST_F(InvoiceRunTest, NoYesYesPrintsTwoPagesUnderOneNumberAndPostsOnce) {
    ExpectConfirmation(Answer::No);
    ExpectRetry(Answer::Yes);
    ExpectPosting();
    Print();
    EXPECT_EQ(printer.Jobs, 2);
    int numbers = 0;
    for (const auto& text : printer.Texts)
        numbers += text.text == u"INVOICE NO: 20260001"_s ? 1 : 0;
    EXPECT_EQ(numbers, 2);
    ExpectRecordsBut(NoStep);
}

TEST_F(InvoiceRunTest, RetryCanBeGivenUpLater) {
    const auto before = folder.Contents();
    for (int retry = 1; retry <= 3; ++retry) {
        ExpectConfirmation(Answer::No);
        ExpectRetry(retry < 3 ? Answer::Yes : Answer::No);
    }
    Print();
    EXPECT_EQ(printer.Jobs, 3);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceRunTest, BlankInvoiceIsConfirmedButPostsNothing) {
    const auto before = folder.Contents();
    ExpectConfirmation(Answer::Yes);
    Print(false);
    EXPECT_EQ(folder.Contents(), before);
    ExpectNothingPosted();
    EXPECT_EQ(printer.Jobs, 1);
    EXPECT_EQ(menus, 1);
}

TEST_F(InvoiceRunTest, BlankInvoiceHasNoNumberAndNoGoods) {
    ExpectConfirmation(Answer::Yes);
    Print(false);
    printer.Find(u"INVOICE NO: "_s);
    for (const auto& text : printer.Texts) {
        EXPECT_NE(text.text, u"Gravel"_s);
        EXPECT_FALSE(text.text.contains(u"20260001"_s));
    }
}

TEST_F(InvoiceRunTest, BlankInvoiceCanBeRetried) {
    ExpectConfirmation(Answer::No);
    ExpectRetry(Answer::Yes);
    ExpectConfirmation(Answer::Yes);
    Print(false);
    EXPECT_EQ(printer.Jobs, 2);
    ExpectNothingPosted();
}

TEST_F(InvoiceRunTest, QuestionsDoNotDependOnThePrompts) {
    office.settings.PromptsOn = false;
    ExpectPosting();
    Print();
}

TEST_F(InvoiceRunTest, GoodsThatAreNotInventoriedLeaveJournalAndChargeButNoSoldItem) {
    office.items.ProductNames.setStringList({u"Clay"_s});
    ExpectPosting();
    Print();
    ExpectRecordsBut(SoldItems);
}

TEST_F(InvoiceRunTest, SlipWithoutGoodsIsPostedWithoutSoldItems) {
    board.fgItems.SetRows(1);
    ExpectPosting();
    Print();
    ExpectRecordsBut(SoldItems);
}

TEST_F(InvoiceRunTest, BothTaxesAtZeroLeaveNoTaxRecord) {
    board.fraSlip.lblTax1 = u"$0.00"_s;
    board.fraSlip.lblTax2 = u"0"_s;
    ExpectPosting();
    Print();
    EXPECT_FALSE(folder.Has(taxRecords));
    EXPECT_EQ(folder.Read(journal),
              JournalBytes(subTotalBytes, QByteArray(8, '\0'), grandTotalBytes));
    ExpectRestOfTheRun();
}

TEST_F(InvoiceRunTest, UnroundedTaxesArePostedWithFourDecimals) {
    office.settings.ckApplyGraduated = 1;
    office.settings.txtGradulated = {u"$100.00"_s, u"$2.00"_s};
    board.LoadSlipPanel(slipNo);
    EXPECT_EQ(board.fraSlip.lblTax1, u"0.915625"_s);
    ExpectPosting();
    Print();
    EXPECT_EQ(folder.Read(taxRecords),
              TaxBytes("Sales Tax", "3/9/2026", "20260001", "0.9156") +
                  TaxBytes("County Tax", "3/9/2026", "20260001", "0.2198"));
    // 0.9156 + 0.2198 = 1.1354
    EXPECT_EQ(
        folder.Read(journal),
        JournalBytes(subTotalBytes, Bytes("\x5a\x2c\x00\x00\x00\x00\x00\x00", 8), grandTotalBytes));
}

TEST_F(InvoiceRunTest, SurchargeIsPostedUnderTheSecondHeading) {
    office.settings.ckApplyGraduated = 1;
    office.settings.txtGradulated = {u"$10.00"_s, u"$2.00"_s};
    board.LoadSlipPanel(slipNo);
    ExpectPosting();
    Print();
    // 1.5 percent of 14.65, in the first tax's place.
    EXPECT_EQ(folder.Read(taxRecords), TaxBytes("Sales Tax", "3/9/2026", "20260001", "0.22") +
                                           TaxBytes("County Tax", "3/9/2026", "20260001", "2"));
}

TEST_F(InvoiceRunTest, TaxRateWithACommaCountsUpToIt) {
    office.settings.cboRate1 = u"1,5"_s;
    office.settings.cboRate2 = u"5,0"_s;
    board.LoadSlipPanel(slipNo);
    ExpectPosting();
    Print();
    EXPECT_EQ(folder.Read(taxRecords), TaxBytes("Sales Tax", "3/9/2026", "20260001", "0.15") +
                                           TaxBytes("County Tax", "3/9/2026", "20260001", "0.73"));
}

TEST_F(InvoiceRunTest, TaxesThatAreNotAppliedAnyMoreAreStillPosted) {
    office.settings.ckApply1stTax = 0;
    office.settings.ckApply2ndTax = 0;
    board.LoadSlipPanel(slipNo);
    ExpectPosting();
    Print();
    ExpectRecordsBut(NoStep);
}

TEST_F(InvoiceRunTest, RegionWithTheCommaKeepsItsFormsInTextsAndTheSameBytesInAmounts) {
    UseLocale("de_DE");
    SlipCaptions& slip = board.fraSlip;
    slip.lblTotal = u"14,65\u00a0\u20ac"_s;
    slip.lblTax1 = u"0,92\u00a0\u20ac"_s;
    slip.lblTax2 = u"0,22\u00a0\u20ac"_s;
    slip.lblCharge = u"5,00\u00a0\u20ac"_s;
    slip.lblGrandtotal = u"20,79\u00a0\u20ac"_s;
    ExpectConfirmation(Answer::Yes);
    ExpectDeleteQuestion(Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 20260014 scheduled for 16.03.2026 has been Deleted"_s);
    Print();
    EXPECT_EQ(folder.Read(soldItems), soldBytes);
    EXPECT_EQ(folder.Read(journal), journalBytes);
    EXPECT_EQ(folder.Read(taxRecords),
              TaxBytes("Sales Tax", "09.03.2026", "20260001", "0,92") +
                  TaxBytes("County Tax", "09.03.2026", "20260001", "0,22"));
    EXPECT_EQ(
        folder.Read(ledger),
        LedgerBytes("Corner Grocery", "4471", "09.03.2026", "Previous Balance", "0,00\xa0\x80") +
            LedgerBytes("Corner Grocery", "4471", "09.03.2026", "20260001", "20,79"));
    EXPECT_EQ(folder.Read(nextNumber), QByteArray("20260002\r\n"));
}

TEST_F(InvoiceRunTest, OneTimeSlipBringsUpTheQuestionToo) {
    StoreSlip({.number = slipNo, .recurring = u"False"_s, .frequency = u""_s});
    OpenBoard();
    board.LoadSlipPanel(slipNo);
    ExpectPosting();
    Print();
    EXPECT_FALSE(HasSlip());
}

TEST_F(InvoiceRunTest, SlipHandedOnIsThatOfTheCurrentRow) {
    StoreSlip({.number = u"20260015"_s, .time = u"07:00am"_s});
    OpenBoard();
    board.LoadSlipPanel(slipNo);
    board.fgSchedule.SetCurrent(1, 0);
    ExpectConfirmation(Answer::Yes);
    ExpectDeleteQuestion(Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 20260015 scheduled for 3/16/2026 has been Deleted"_s);
    Print();
    EXPECT_TRUE(HasSlip());
    EXPECT_FALSE(folder.Has(HeaderName(u"20260015"_s)));
}

TEST_F(InvoiceRunTest, KeepingTheSlipEndsTheProgramWithAllPostedAndTheSlipAsItWas) {
    for (const QString& recurring : {u"True"_s, u"False"_s, QString()}) {
        for (const QString& name : {soldItems, journal, taxRecords, ledger, ledgerCopy})
            QFile::remove(folder.PathOf(name));
        folder.Write(nextNumber, "20260001\r\n");
        board.LoadInvoiceNumber();
        board.fgSchedule.SetText(1, int(ScheduleColumn::Recurring), recurring);
        const QByteArray header = folder.Read(HeaderName(slipNo));
        const QByteArray items = folder.Read(ItemName(slipNo));
        ExpectConfirmation(Answer::Yes);
        ExpectDeleteQuestion(Answer::No);
        EXPECT_THROW(Print(), EndingFailure) << recurring.toStdString();
        user.ExpectNothingLeft();
        EXPECT_EQ(folder.Read(HeaderName(slipNo)), header);
        EXPECT_EQ(folder.Read(ItemName(slipNo)), items);
        EXPECT_EQ(folder.Read(soldItems), soldBytes);
        EXPECT_EQ(folder.Read(journal), journalBytes);
        EXPECT_EQ(folder.Read(ledger), ledgerBytes);
        EXPECT_EQ(folder.Read(taxRecords), taxBytes);
        EXPECT_EQ(folder.Read(nextNumber), QByteArray("20260002\r\n"));
    }
    EXPECT_EQ(menus, 0);
}

TEST_F(InvoiceRunTest, ReportOfAKeptSlipTellsOfTheEndOfTheCalendar) {
    ExpectConfirmation(Answer::Yes);
    ExpectDeleteQuestion(Answer::No);
    const RuntimeFailure failure = FailureOf([this] { Print(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"Finding a delivery date failed: the calendar ends on 31 December 9999."_s);
}

TEST_F(InvoiceRunTest, OtherFailureWithTheSlipIsPassedOver) {
    // The items' file can't be deleted, since it is a folder.
    folder.Remove(ItemName(slipNo));
    folder.MakeFolder(ItemName(slipNo));
    ExpectConfirmation(Answer::Yes);
    ExpectDeleteQuestion(Answer::Yes);
    Print();
    EXPECT_FALSE(folder.Has(HeaderName(slipNo)));
    EXPECT_EQ(menus, 1);
}

TEST_F(InvoiceRunTest, MenuThatFailsIsPassedOver) {
    ExpectConfirmation(Answer::Yes);
    office.invoiceRun.PrintOneInvoice(
        false, [] { throw RuntimeFailure(FailureKind::FileNotFound, u"No menu."_s); });
    user.ExpectNothingLeft();
}

TEST_F(InvoiceRunTest, PrinterThatFailsAtAnyTextIsPassedOverAndTheQuestionAsked) {
    const auto before = folder.Contents();
    for (const int failing : {1, 2, 5, 20}) {
        printer.Texts.clear();
        printer.FailingText = failing;
        ExpectConfirmation(Answer::No);
        ExpectRetry(Answer::No);
        Print();
    }
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(menus, 4);
    EXPECT_EQ(printer.Jobs, 4);
}

TEST_F(InvoiceRunTest, PrinterThatCanNotSendTheJobIsPassedOverAndTheJobThrownAway) {
    const auto before = folder.Contents();
    for (const bool isCancelled : {false, true}) {
        printer.FailsAtEndOfJob = true;
        printer.FailsAsCancelled = isCancelled;
        printer.AbandonedJobs = 0;
        ExpectConfirmation(Answer::No);
        ExpectRetry(Answer::Yes);
        ExpectConfirmation(Answer::No);
        ExpectRetry(Answer::No);
        Print();
        EXPECT_EQ(printer.AbandonedJobs, 2);
        EXPECT_EQ(printer.Jobs, 0);
    }
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(InvoiceRunTest, InvoiceOfAFailedPrinterIsPostedWhenTheOperatorSaysSo) {
    printer.FailingText = 3;
    printer.FailsAtEndOfJob = true;
    ExpectPosting();
    Print();
    ExpectRecordsBut(NoStep);
}

TEST_F(InvoiceRunTest, HourglassShowsWhileThePageIsPrinted) {
    ExpectConfirmation(Answer::No);
    ExpectRetry(Answer::No);
    user.BusyChanges.clear();
    std::vector<std::vector<bool>> atQuestions;
    user.WhileMessageIsOpen = [&] { atQuestions.push_back(user.BusyChanges); };
    Print();
    const std::vector<bool> onAndOff = {true, false};
    // It is off again by the first question, and the questions leave it so.
    EXPECT_EQ(atQuestions, (std::vector<std::vector<bool>>{onAndOff, onAndOff}));
    EXPECT_EQ(user.BusyChanges, onAndOff);
}

TEST_F(InvoiceRunTest, FullDiskAtTheSoldItemsSkipsThemAlone) {
    const QByteArray before(23 * 90, 'x');
    folder.Write(soldItems, before);
    ExpectPosting();
    {
        const FullDisk full(2'000);
        Print();
    }
    ExpectRecordsBut(SoldItems, before);
}

TEST_F(InvoiceRunTest, FullDiskAtTheJournalSkipsItAlone) {
    const QByteArray before(17 * 125, 'x');
    folder.Write(journal, before);
    ExpectPosting();
    {
        const FullDisk full(2'000);
        Print();
    }
    ExpectRecordsBut(Journal, before);
}

TEST_F(InvoiceRunTest, FullDiskAtTheLedgerSkipsItAndItsCopyAlone) {
    const QByteArray before(13 * 155, 'x');
    folder.Write(ledger, before);
    ExpectPosting();
    {
        const FullDisk full(2'000);
        Print();
    }
    ExpectRecordsBut(Ledger, before);
    EXPECT_FALSE(folder.Has(ledgerCopy));
}

TEST_F(InvoiceRunTest, FullDiskAtTheTaxRecordsSkipsThemAlone) {
    const QByteArray before(27 * 75, 'x');
    folder.Write(taxRecords, before);
    ExpectPosting();
    {
        const FullDisk full(2'000);
        Print();
    }
    ExpectRecordsBut(TaxRecords, before);
}

TEST_F(InvoiceRunTest, DiskThatFillsUpInARecordLeavesWhatWentOnIt) {
    ExpectPosting();
    {
        // The first sold item fits, and ten bytes of the second.
        const FullDisk full(100);
        Print();
    }
    EXPECT_EQ(folder.Read(soldItems), soldBytes.left(100));
    EXPECT_EQ(folder.Read(journal), journalBytes.left(100));
    EXPECT_EQ(folder.Read(taxRecords), taxBytes.left(100));
    EXPECT_EQ(folder.Read(ledger), ledgerBytes.left(100));
    ExpectRestOfTheRun();
}

TEST_F(InvoiceRunTest, FullDiskAtTheNumberLeavesTheOneShownAndTheSlipIsHandedOn) {
    ExpectPosting();
    {
        const FullDisk full(0);
        Print();
    }
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20260001"_s);
    for (const QString& name : {soldItems, journal, taxRecords, ledger, nextNumber})
        EXPECT_EQ(folder.Read(name), QByteArray()) << name.toStdString();
    EXPECT_FALSE(HasSlip());
    EXPECT_EQ(menus, 1);
}

TEST_F(InvoiceRunTest, NumberThatCanNotBeWrittenLeavesTheOneShownWithAllPosted) {
    folder.Remove(nextNumber);
    folder.MakeFolder(nextNumber);
    ExpectPosting();
    Print();
    EXPECT_EQ(board.fraSlip.lblInvoice, u"20260001"_s);
    EXPECT_EQ(folder.Read(journal), journalBytes);
    EXPECT_EQ(folder.Read(taxRecords), taxBytes);
    EXPECT_FALSE(HasSlip());
    EXPECT_EQ(menus, 1);
}

TEST_F(InvoiceRunTest, LastNumberCanNotMoveOnAndTheRestHappens) {
    folder.Write(nextNumber, "2147483647\r\n");
    board.LoadInvoiceNumber();
    ExpectPosting();
    Print();
    EXPECT_EQ(folder.Read(nextNumber), QByteArray("2147483647\r\n"));
    EXPECT_EQ(board.fraSlip.lblInvoice, u"2147483647"_s);
    EXPECT_EQ(folder.Read(journal).mid(65, 20), Field("2147483647", 20));
    EXPECT_FALSE(HasSlip());
    EXPECT_EQ(menus, 1);
}

TEST_F(InvoiceRunTest, FullJournalOf32767RecordsIsSkipped) {
    const QByteArray full(mostRecords * 125, 'x');
    folder.Write(journal, full);
    ExpectPosting();
    Print();
    ExpectRecordsBut(Journal, full);
}

TEST_F(InvoiceRunTest, FullTaxRecordsAreSkipped) {
    const QByteArray full(mostRecords * 75, 'x');
    folder.Write(taxRecords, full);
    ExpectPosting();
    Print();
    ExpectRecordsBut(TaxRecords, full);
}

TEST_F(InvoiceRunTest, MissingLedgerFolderSkipsTheLedgerAlone) {
    ASSERT_TRUE(QDir(folder.Path()).rmdir(u"NXActiveAccounts"_s));
    ExpectPosting();
    Print();
    ExpectRecordsBut(Ledger);
    EXPECT_FALSE(folder.Has(u"NXActiveAccounts"_s));
}

TEST_F(InvoiceRunTest, AccountThatCanNotBeAFileNameSkipsTheLedgerAlone) {
    for (const QString& account : {u"44/71"_s, u"../44"_s}) {
        board.fraSlip.lblAcctNo = account;
        StoreSlip({.number = slipNo});
        ExpectPosting();
        Print();
        EXPECT_FALSE(HasSlip());
        EXPECT_EQ(folder.Read(journal).right(125).mid(45, 20), Field(account.toLatin1(), 20));
    }
    EXPECT_EQ(folder.Read(journal).size(), 250);
    EXPECT_EQ(folder.Read(soldItems).size(), 360);
    EXPECT_EQ(folder.Read(taxRecords).size(), 300);
    EXPECT_TRUE(QDir(folder.PathOf(u"NXActiveAccounts"_s)).isEmpty());
    EXPECT_FALSE(folder.Has(u"44.txt"_s));
    EXPECT_EQ(menus, 2);
}

TEST_F(InvoiceRunTest, CaptionThatIsNoAmountSkipsTheStepsThatReadIt) {
    struct Case {
        QString SlipCaptions::*caption;
        bool hasJournal;
        bool hasLedger;
        bool hasTaxes;
    };
    const Case cases[] = {{&SlipCaptions::lblTotal, false, true, true},
                          {&SlipCaptions::lblTax1, false, true, false},
                          {&SlipCaptions::lblTax2, false, true, false},
                          {&SlipCaptions::lblGrandtotal, false, false, true}};
    const SlipCaptions good = board.fraSlip;
    for (const Case& tried : cases) {
        for (const QString& text : {u"abc"_s, QString(), u"922337203685477.5808"_s}) {
            for (const QString& name : {soldItems, journal, taxRecords, ledger, ledgerCopy})
                QFile::remove(folder.PathOf(name));
            StoreSlip({.number = slipNo});
            board.fraSlip = good;
            board.fraSlip.*tried.caption = text;
            ExpectPosting();
            Print();
            EXPECT_EQ(folder.Read(soldItems), soldBytes);
            EXPECT_EQ(folder.Has(journal), tried.hasJournal);
            EXPECT_EQ(folder.Has(ledger), tried.hasLedger);
            EXPECT_EQ(folder.Has(taxRecords), tried.hasTaxes);
            EXPECT_FALSE(HasSlip());
        }
    }
}

TEST_F(InvoiceRunTest, UnitsThatAreNoNumberSkipTheRestOfTheSoldItemsAlone) {
    board.fgItems.SetText(2, 0, u"one"_s);
    ExpectPosting();
    Print();
    ExpectRecordsBut(SoldItems, soldBytes.left(90));
}

TEST_F(InvoiceRunTest, LargestAmountIsPostedAndOneMoreIsNot) {
    board.fraSlip.lblTotal = u"922337203685477.5807"_s;
    board.fraSlip.lblGrandtotal = u"-922337203685477.5808"_s;
    ExpectPosting();
    Print();
    EXPECT_EQ(folder.Read(journal), JournalBytes(Bytes("\xff\xff\xff\xff\xff\xff\xff\x7f", 8),
                                                 Bytes("\x88\x2c\x00\x00\x00\x00\x00\x00", 8),
                                                 Bytes("\x00\x00\x00\x00\x00\x00\x00\x80", 8)));
    EXPECT_EQ(folder.Read(ledger).mid(155 + 145), QByteArray("-922337203"));
}

TEST_F(InvoiceRunTest, TaxesWhoseSumIsBeyondTheRangeSkipTheJournalAndArePostedEach) {
    board.fraSlip.lblTax1 = u"922337203685477.5807"_s;
    board.fraSlip.lblTax2 = u"0.0001"_s;
    ExpectPosting();
    Print();
    EXPECT_FALSE(folder.Has(journal));
    EXPECT_EQ(folder.Read(taxRecords),
              TaxBytes("Sales Tax", "3/9/2026", "20260001", "9223372036") +
                  TaxBytes("County Tax", "3/9/2026", "20260001", "0.0001"));
    EXPECT_EQ(folder.Read(ledger), ledgerBytes);
    ExpectRestOfTheRun();
}

TEST_F(InvoiceRunTest, TextsOutsideTheCodePageArePostedWithQuestionMarks) {
    board.fraSlip.lblCustomer[0] = u"\u0141\u00f3d\u017a Caf\u00e9"_s;
    ExpectPosting();
    Print();
    EXPECT_EQ(folder.Read(journal).left(45), Field("?\xf3"
                                                   "d? Caf\xe9",
                                                   45));
    EXPECT_EQ(folder.Read(ledger).left(45), Field("?\xf3"
                                                  "d? Caf\xe9",
                                                  45));
}
