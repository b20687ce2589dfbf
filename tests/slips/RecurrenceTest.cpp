#include "store/Conversions.h"
#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString header500 = u"TesselDelivery/Deliveries/500.txt"_s;
const QString items500 = u"TesselDelivery/DeliveryItems/500.txt"_s;
const QByteArray itemBytes = "500\r\n1\r\n2\r\nGravel\r\n$5.00\r\n$10.00\r\n\"$10.00\"\r\n";

} // namespace

/// Under United States formats, with a work week of seven days, so that only a test of the work
/// week sees dates move off a weekend.
class RecurrenceTest : public OfficeTest {
protected:
    RecurrenceTest() {
        office.settings.WorkWeek = 7;
        office.settings.ckOnDay = 0;
        office.settings.ckDelete = 0;
    }

    void PutSlip(const QByteArray& date, const QByteArray& recurring, const QByteArray& frequency) {
        folder.Write(header500, SlipHeaderBytes("500", date, recurring, frequency));
        folder.Write(items500, itemBytes);
    }

    void ExpectDeleteQuestion(Answer answer) {
        user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                            u"Delete a Recurring Slip"_s, answer);
    }

    void ExpectRescheduling() {
        ExpectDeleteQuestion(Answer::No);
        user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    }

    QString Next(const QString& date, const QString& frequency) {
        return office.slips.NextDeliveryDate(date, frequency);
    }
};

TEST_F(RecurrenceTest, WeeklySlipMoreThanThreeWeeksBackKeepsItsTuesday) {
    clock.Date = QDate(2026, 3, 12);
    PutSlip("2/10/2026", "True", "0000001");
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/17/2026", "True", "0000001"));
}

TEST_F(RecurrenceTest, WeeklySlipThreeWeeksBackMovesToToday) {
    PutSlip("2/16/2026", "True", "0000001");
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/9/2026", "True", "0000001"));
}

TEST_F(RecurrenceTest, DailySlipOfYesterdayMovesFromSundayToMonday) {
    office.settings.WorkWeek = 5;
    clock.Date = QDate(2026, 3, 8);
    PutSlip("3/7/2026", "True", "0000000");
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/9/2026", "True", "0000000"));
}

TEST_F(RecurrenceTest, MonthlySlipOfThe31stLosesThe31stForGood) {
    clock.Date = QDate(2026, 2, 1);
    EXPECT_EQ(Next(u"1/31/2026"_s, u"0000003"_s), u"2/28/2026"_s);
    clock.Date = QDate(2026, 3, 1);
    EXPECT_EQ(Next(u"2/28/2026"_s, u"0000003"_s), u"3/28/2026"_s);
}

TEST_F(RecurrenceTest, CatchingUpStepsFromTheShortenedMonth) {
    EXPECT_EQ(Next(u"12/31/2025"_s, u"0000003"_s), u"3/28/2026"_s);
}

TEST_F(RecurrenceTest, AnnualSlipOfALeapDayCatchesUpOnFebruary28) {
    EXPECT_EQ(Next(u"2/29/2024"_s, u"0000006"_s), u"2/28/2027"_s);
}

TEST_F(RecurrenceTest, DateAheadOfTodayIsSteppedOnce) {
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000001"_s), u"3/16/2026"_s);
    EXPECT_EQ(Next(u"6/1/2026"_s, u"0000002"_s), u"6/15/2026"_s);
    EXPECT_EQ(Next(u"6/1/2026"_s, u"0000004"_s), u"9/1/2026"_s);
    EXPECT_EQ(Next(u"6/1/2026"_s, u"0000005"_s), u"12/1/2026"_s);
}

TEST_F(RecurrenceTest, WeekdayCorrectionCanLandBeforeToday) {
    // Monday, 9 March steps to Thursday, 9 April, which is today and so not before it.
    office.settings.ckOnDay = 1;
    clock.Date = QDate(2026, 4, 9);
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000003"_s), u"4/5/2026"_s);
}

TEST_F(RecurrenceTest, MondayDeliveryStaysOnMondayInAMondayToFridayWeek) {
    office.settings.ckOnDay = 1;
    office.settings.WorkWeek = 5;
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000003"_s), u"4/6/2026"_s);
}

TEST_F(RecurrenceTest, CorrectionMovesFridayToTheMondayAfterATuesday) {
    office.settings.ckOnDay = 1;
    EXPECT_EQ(Next(u"3/6/2026"_s, u"0010000"_s), u"3/16/2026"_s);
}

TEST_F(RecurrenceTest, CorrectionMovesFridayToThursdayBeforeASaturday) {
    office.settings.ckOnDay = 1;
    EXPECT_EQ(Next(u"11/13/2026"_s, u"0000004"_s), u"2/11/2027"_s);
}

TEST_F(RecurrenceTest, CorrectionIsAppliedFromMonthlyOnly) {
    office.settings.ckOnDay = 1;
    // Daily changes the weekday each time, and would be corrected if it were looked at.
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000000"_s), u"3/10/2026"_s);
    EXPECT_EQ(Next(u"3/10/2026"_s, u"0000001"_s), u"3/17/2026"_s);
    EXPECT_EQ(Next(u"3/10/2026"_s, u"0000002"_s), u"3/24/2026"_s);
    // Monday to Thursday, Tuesday, Wednesday and Tuesday.
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000003"_s), u"4/5/2026"_s);
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000004"_s), u"6/7/2026"_s);
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000005"_s), u"9/6/2026"_s);
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000006"_s), u"3/7/2027"_s);
}

TEST_F(RecurrenceTest, CorrectionMeasuresFromTheLastDateSteppedFrom) {
    // Friday, 9 January to Monday, 9 February to Monday, 9 March, which is today: the last step
    // keeps its weekday, so nothing is corrected.
    office.settings.ckOnDay = 1;
    EXPECT_EQ(Next(u"1/9/2026"_s, u"0000003"_s), u"3/9/2026"_s);
}

TEST_F(RecurrenceTest, TickedMeansTheValueOneAlone) {
    office.settings.ckOnDay = 2;
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000003"_s), u"4/9/2026"_s);
}

TEST_F(RecurrenceTest, MultipleDaysSlipMovesToTheNextTickedDayOfThisWeek) {
    clock.Date = QDate(2026, 3, 11);
    for (const QString& date : {u"1/1/2020"_s, u"3/9/2026"_s, u"12/31/2026"_s})
        EXPECT_EQ(Next(date, u"0100100"_s), u"3/12/2026"_s);
}

TEST_F(RecurrenceTest, MultipleDaysSlipIsCorrectedAgainstItsOldDate) {
    // From Monday, 9 March to Thursday, 12 March: back four days.
    office.settings.ckOnDay = 1;
    clock.Date = QDate(2026, 3, 11);
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0100100"_s), u"3/8/2026"_s);
    // From Friday, 6 March: forward six days.
    EXPECT_EQ(Next(u"3/6/2026"_s, u"0100100"_s), u"3/18/2026"_s);
}

TEST_F(RecurrenceTest, FridayAloneIsCorrectedAsEveryPatternIs) {
    office.settings.ckOnDay = 1;
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000010"_s), u"3/8/2026"_s);
}

TEST_F(RecurrenceTest, TickedWeekdayOfTodayGivesTodayAndStaysUntilTomorrow) {
    clock.Date = QDate(2026, 3, 11);
    PutSlip("3/4/2026", "True", "0001000");
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/11/2026", "True", "0001000"));
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/11/2026", "True", "0001000"));
    clock.Date = QDate(2026, 3, 12);
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/18/2026", "True", "0001000"));
}

TEST_F(RecurrenceTest, HolidayMovesTheDateAndTheNextStepStartsFromThere) {
    folder.Write(u"Holidays.txt"_s, "#2026-03-16#\r\n#2026-03-17#\r\n");
    user.ExpectMessage(
        u"3/16/2026 is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    user.ExpectMessage(
        u"3/17/2026 is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    EXPECT_EQ(Next(u"3/9/2026"_s, u"0000001"_s), u"3/18/2026"_s);
    EXPECT_EQ(Next(u"3/18/2026"_s, u"0000001"_s), u"3/25/2026"_s);
}

TEST_F(RecurrenceTest, HolidayMessageComesBetweenTheQuestionAndTheRescheduling) {
    folder.Write(u"Holidays.txt"_s, "#2026-03-09#\r\n");
    PutSlip("3/2/2026", "True", "0000001");
    ExpectDeleteQuestion(Answer::No);
    user.ExpectMessage(u"3/9/2026 is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/10/2026", "True", "0000001"));
}

TEST_F(RecurrenceTest, DatesAreReadAndWrittenInTheRegionsForm) {
    UseLocale("de_DE");
    EXPECT_EQ(Next(u"02.03.2026"_s, u"0000001"_s), u"09.03.2026"_s);
    PutSlip("02.03.2026", "True", "0000002");
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "16.03.2026", "True", "0000002"));
}

TEST_F(RecurrenceTest, TextThatIsNoDateFails) {
    for (const QString& date : {QString(), u"soon"_s, u"2/30/2026"_s, u"3/9/26"_s, u"13/1/2026"_s})
        EXPECT_EQ(FailureOf([&] { Next(date, u"0000001"_s); }).Kind(), FailureKind::TypeMismatch)
            << date.toStdString();
}

TEST_F(RecurrenceTest, OneTimeSlipIsDeletedWithAMessageWithoutAQuestion) {
    office.settings.ckDelete = 1;
    PutSlip("3/6/2026", "False", "0000001");
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/6/2026 has been Deleted"_s);
    office.slips.LoadSlips(true);
    EXPECT_FALSE(folder.Has(header500));
    EXPECT_FALSE(folder.Has(items500));
}

TEST_F(RecurrenceTest, OneTimeSlipStaysInSilenceWhenDeletionIsOff) {
    PutSlip("3/6/2020", "False", "0000001");
    office.slips.LoadSlips(true);
    office.slips.ProcessPastSlip(u"500"_s, u"3/6/2020"_s, u"False"_s, u"0000001"_s);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/6/2020", "False", "0000001"));
    EXPECT_EQ(folder.Read(items500), itemBytes);
}

TEST_F(RecurrenceTest, DeletionIsOnAtTheValueOneAlone) {
    office.settings.ckDelete = 2;
    PutSlip("3/6/2026", "False", "");
    office.slips.LoadSlips(true);
    EXPECT_TRUE(folder.Has(header500));
}

TEST_F(RecurrenceTest, SettingIsReadAtTheMomentOfNeed) {
    PutSlip("3/6/2026", "False", "");
    office.slips.LoadSlips(true);
    EXPECT_TRUE(folder.Has(header500));
    office.settings.ckDelete = 1;
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/6/2026 has been Deleted"_s);
    office.slips.LoadSlips(true);
    EXPECT_FALSE(folder.Has(header500));
}

TEST_F(RecurrenceTest, YesDeletesTheRecurringSlipAndItsItemsUnderTheOldDate) {
    PutSlip("3/2/2026", "True", "0000001");
    ExpectDeleteQuestion(Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/2/2026 has been Deleted"_s);
    office.slips.LoadSlips(true);
    EXPECT_FALSE(folder.Has(header500));
    EXPECT_FALSE(folder.Has(items500));
}

TEST_F(RecurrenceTest, SlipWithoutItemFileIsDeletedWithoutComplaint) {
    folder.Write(header500, SlipHeaderBytes("500", "3/2/2026", "True", "0000001"));
    ExpectDeleteQuestion(Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/2/2026 has been Deleted"_s);
    office.slips.LoadSlips(true);
    EXPECT_FALSE(folder.Has(header500));
}

TEST_F(RecurrenceTest, AnyTextButFalseCountsAsRecurring) {
    for (const QString& text : {u"True"_s, u"$0.00"_s, u"false"_s, u"False "_s, QString()}) {
        PutSlip("3/2/2026", "True", "0000001");
        ExpectDeleteQuestion(Answer::Yes);
        user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/2/2026 has been Deleted"_s);
        office.slips.ProcessPastSlip(u"500"_s, u"3/2/2026"_s, text, u"0000001"_s);
        EXPECT_FALSE(folder.Has(header500)) << text.toStdString();
    }
}

TEST_F(RecurrenceTest, NoWithTheWordFalseAsFrequencyEndsTheRunAndLeavesTheSlip) {
    for (const QString& word : {u"True"_s, u"False"_s}) {
        PutSlip("3/9/2026", "False", "");
        ExpectDeleteQuestion(Answer::No);
        const RuntimeFailure failure = FailureOf(
            [&] { office.slips.ProcessPastSlip(u"500"_s, u"3/9/2026"_s, u"$0.00"_s, word); });
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
        EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/9/2026", "False", ""));
        EXPECT_EQ(folder.Read(items500), itemBytes);
    }
}

TEST_F(RecurrenceTest, SlipsOfTodayAndLaterAreNotTouched) {
    office.settings.ckDelete = 1;
    PutSlip("3/9/2026", "False", "");
    folder.Write(u"TesselDelivery/Deliveries/501.txt"_s,
                 SlipHeaderBytes("501", "3/10/2026", "True", "0000001"));
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/9/2026", "False", ""));
    EXPECT_EQ(folder.Read(u"TesselDelivery/Deliveries/501.txt"_s),
              SlipHeaderBytes("501", "3/10/2026", "True", "0000001"));
}

TEST_F(RecurrenceTest, ReschedulingChangesTheDateLineAlone) {
    PutSlip("3/2/2026", "True", "0000001");
    const QStringList before = folder.Everything();
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/9/2026", "True", "0000001"));
    EXPECT_EQ(folder.Read(items500), itemBytes);
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(RecurrenceTest, HolidaysThatAreNoDatesStopTheMoveAndLeaveTheSlip) {
    const QList<QByteArray> contents = {"Christmas\r\n", "12/25/2026\r\n", "#2026-02-30#\r\n",
                                        "\r\n", "#2026-01-01#\r\n5\r\n"};
    for (const QByteArray& bytes : contents) {
        folder.Write(u"Holidays.txt"_s, bytes);
        PutSlip("3/2/2026", "True", "0000001");
        ExpectDeleteQuestion(Answer::No);
        const RuntimeFailure failure = FailureOf([&] { office.slips.LoadSlips(true); });
        EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch) << bytes.toStdString();
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading Holidays.txt failed: "_s))
            << failure.what();
        EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/2/2026", "True", "0000001"));
    }
}

TEST_F(RecurrenceTest, DiskFullWhileMovingLeavesTheSlipAsItWas) {
    PutSlip("3/2/2026", "True", "0000001");
    const QStringList before = folder.Everything();
    ExpectDeleteQuestion(Answer::No);
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(100);
        office.slips.LoadSlips(true);
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(),
              u"Writing TesselDelivery/Deliveries/TempFile.txt failed: File too large."_s);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/2/2026", "True", "0000001"));
    EXPECT_EQ(folder.Read(items500), itemBytes);
    QStringList after = folder.Everything();
    EXPECT_TRUE(after.removeOne(u"TesselDelivery/Deliveries/TempFile.txt"_s));
    EXPECT_EQ(after, before);
    // The leftover is swept away by the next scan, and the slip can be moved then.
    ExpectRescheduling();
    office.slips.LoadSlips(true);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/9/2026", "True", "0000001"));
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(RecurrenceTest, NumberThatWouldLeaveTheFolderIsRefused) {
    folder.Write(u"TesselDelivery/x.txt"_s, "kept");
    office.settings.ckDelete = 1;
    const RuntimeFailure failure = FailureOf(
        [&] { office.slips.ProcessPastSlip(u"../x"_s, u"3/2/2026"_s, u"False"_s, QString()); });
    EXPECT_EQ(failure.Kind(), FailureKind::BadFileName);
    EXPECT_TRUE(failure.Sentence().contains(u"../x.txt"_s)) << failure.what();
    EXPECT_EQ(folder.Read(u"TesselDelivery/x.txt"_s), "kept");
}

TEST_F(RecurrenceTest, SlipInAnUnwritableFolderFailsByNameAndStays) {
    PutSlip("3/2/2026", "False", "");
    office.settings.ckDelete = 1;
    DropRootRights(folder);
    const QByteArray deliveries = folder.PathOf(u"TesselDelivery/Deliveries"_s).toUtf8();
    ASSERT_EQ(::chmod(deliveries.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([&] { office.slips.LoadSlips(true); });
    ASSERT_EQ(::chmod(deliveries.constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(),
              u"Deleting TesselDelivery/Deliveries/500.txt failed: Permission denied."_s);
    EXPECT_TRUE(folder.Has(header500));
    EXPECT_TRUE(folder.Has(items500));
}
