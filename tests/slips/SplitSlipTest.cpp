#include "slips/DeliverySlipRoutines.h"
#include "support/OfficeTest.h"

#include <functional>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString deliveries = u"TesselDelivery/Deliveries/"_s;
const QString deliveryItems = u"TesselDelivery/DeliveryItems/"_s;
const QString header500 = deliveries + u"500.txt"_s;
const QString items500 = deliveryItems + u"500.txt"_s;
const QString newHeader = deliveries + u"20260001.txt"_s;
const QString newItems = deliveryItems + u"20260001.txt"_s;
const QString counterFile = u"NQDeliveryNo.txt"_s;
const QByteArray itemBytes = "500\r\n1\r\n2\r\nGravel\r\n$4.10\r\n$8.20\r\n\"$8.20\"\r\n";
const QByteArray newItemBytes = "20260001\r\n2\r\n2\r\nGravel\r\n$4.10\r\n$8.20\r\n10\r\n"
                                "Caf\xe9, \"fine\" \x80\r\n$1,250.00\r\n$12,500.00\r\n"
                                "\"$12,508.20\"\r\n";

} // namespace

/// Slip 500 on Monday, 16 March 2026, with one line, and a grid that has another.
class SplitSlipTest : public OfficeTest {
protected:
    SplitSlipTest() {
        office.settings.ckDelete = 0;
        AddItem({u"2"_s, u"Gravel"_s, u"$4.10"_s, u"$8.20"_s});
        AddItem({u"10"_s, u"Caf\u00e9, \"fine\" \u20ac"_s, u"$1,250.00"_s, u"$12,500.00"_s});
    }

    void AddItem(const QStringList& cells) {
        const int row = grid.Rows();
        grid.SetRows(row + 1);
        for (int column = 0; column < 4; ++column)
            grid.SetText(row, column, cells[column]);
    }
    void PutSlip(const QByteArray& recurring = "False", const QByteArray& frequency = {}) {
        folder.Write(header500, SlipHeaderBytes("500", "3/16/2026", recurring, frequency));
        folder.Write(items500, itemBytes);
        office.slips.LoadSlips(false);
    }
    void Split(int entry = 1) { office.slips.SplitSlip(u"500"_s, entry, grid, u"$12,508.20"_s); }
    /// The split fails and has left all slips as they were, for the next start as well. The counter
    /// it has brought up may stand.
    RuntimeFailure ExpectSplitLeavesSlips(const std::function<void()>& split) {
        office.slips.LoadDeliveryNo();
        const auto before = folder.Contents();
        const RuntimeFailure failure = FailureOf(split);
        EXPECT_EQ(folder.Contents(), before) << failure.what();
        return failure;
    }
    void ExpectDeleteQuestion(Answer answer) {
        user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                            u"Delete a Recurring Slip"_s, answer);
    }

    /// The header of the copy of slip 500.
    static QByteArray CopyBytes(const QByteArray& frequency = {}) {
        return "20260001\r\n3/16/2026\r\n08:30am\r\nFalse\r\n" + frequency +
               "\r\nFlatbed Truck\r\n4471\r\nCorner Grocery\r\nUpdated 3/9/2026\r\nBack door\r\n"
               "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
               "\"62704\"\r\n\"Corner Grocery, store 2\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
               "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n";
    }

    GridModel grid{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};
};

TEST_F(SplitSlipTest, OneTimeSlipStaysBesideItsCopy) {
    PutSlip();
    Split();
    EXPECT_EQ(folder.Read(newHeader), CopyBytes());
    EXPECT_EQ(folder.Read(newItems), newItemBytes);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/16/2026"));
    EXPECT_EQ(folder.Read(items500), itemBytes);
    EXPECT_EQ(folder.Read(counterFile), "20260002\r\n");
    EXPECT_EQ(office.slips.NextSlipNumber, 20260002);
}

TEST_F(SplitSlipTest, OneTimeSlipIsDeletedWhenTheSettingSaysSo) {
    office.settings.ckDelete = 1;
    PutSlip();
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/16/2026 has been Deleted"_s);
    Split();
    EXPECT_FALSE(folder.Has(header500));
    EXPECT_FALSE(folder.Has(items500));
    EXPECT_EQ(folder.Read(newHeader), CopyBytes());
    EXPECT_EQ(folder.Read(newItems), newItemBytes);
    EXPECT_EQ(folder.Read(counterFile), "20260002\r\n");
}

TEST_F(SplitSlipTest, RecurringSlipMovesOnAndItsCopyIsOneTimeWithTheOldCode) {
    office.settings.ckOnDay = 0;
    PutSlip("True", "0000001");
    ExpectDeleteQuestion(Answer::No);
    user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    Split();
    EXPECT_EQ(folder.Read(newHeader), CopyBytes("0000001"));
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/23/2026", "True", "0000001"));
    EXPECT_EQ(folder.Read(items500), itemBytes);
    EXPECT_EQ(folder.Read(counterFile), "20260002\r\n");
}

TEST_F(SplitSlipTest, RecurringSlipIsDeletedOnYes) {
    PutSlip("True", "0000001");
    ExpectDeleteQuestion(Answer::Yes);
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/16/2026 has been Deleted"_s);
    Split();
    EXPECT_FALSE(folder.Has(header500));
    EXPECT_FALSE(folder.Has(items500));
    EXPECT_EQ(folder.Read(newHeader), CopyBytes("0000001"));
}

TEST_F(SplitSlipTest, CopyIsStoredBeforeTheQuestionAndCountedAfterIt) {
    PutSlip("True", "later");
    ExpectDeleteQuestion(Answer::No);
    // A frequency without any day finds no next date and ends the run there.
    EXPECT_EQ(FailureOf([this] { Split(); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(folder.Read(newHeader), CopyBytes("later"));
    EXPECT_EQ(folder.Read(newItems), newItemBytes);
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
}

TEST_F(SplitSlipTest, CopyIsOfTheTablesEntryAndTheAddressesAreOfTheOldSlip) {
    folder.Write(deliveries + u"499.txt"_s,
                 "499\r\n3/17/2026\r\n 07.15am\r\nFalse\r\n0100100\r\nVan 2 \r\n17\r\n"
                 "Baker, \"Jo\"\r\nPO 7\r\n\r\n" +
                     QByteArray("\"Baker\"\r\n").repeated(12));
    PutSlip();
    Split(1);
    EXPECT_EQ(folder.Read(newHeader),
              "20260001\r\n3/17/2026\r\n 07.15am\r\nFalse\r\n0100100\r\nVan 2 \r\n17\r\n"
              "Baker, \"Jo\"\r\nUpdated 3/9/2026\r\n\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Corner Grocery, store 2\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n");
}

TEST_F(SplitSlipTest, TableIsTakenAsItWasLoadedLast) {
    PutSlip();
    folder.Write(header500, SlipHeaderBytes("500", "3/20/2026"));
    Split();
    EXPECT_EQ(folder.Read(newHeader), CopyBytes());
}

TEST_F(SplitSlipTest, NumberComesFromTheCounterFileWhateverWasInMemory) {
    PutSlip();
    folder.Write(counterFile, "777\r\n");
    office.slips.NextSlipNumber = 5;
    Split();
    EXPECT_TRUE(folder.Read(deliveries + u"777.txt"_s).startsWith("777\r\n3/16/2026\r\n"));
    EXPECT_TRUE(folder.Read(deliveryItems + u"777.txt"_s).startsWith("777\r\n2\r\n"));
    EXPECT_EQ(folder.Read(counterFile), "778\r\n");
}

TEST_F(SplitSlipTest, SlipThatHasTheNextNumberIsReplaced) {
    PutSlip();
    folder.Write(newHeader, QByteArray(5000, 'x'));
    folder.Write(newItems, QByteArray(5000, 'x'));
    Split();
    EXPECT_EQ(folder.Read(newHeader), CopyBytes());
    EXPECT_EQ(folder.Read(newItems), newItemBytes);
}

TEST_F(SplitSlipTest, EmptyTotalCountsAsZeroAndAnEmptyGridHasNoLines) {
    PutSlip();
    grid.SetRows(1);
    office.slips.SplitSlip(u"500"_s, 1, grid, {});
    EXPECT_EQ(folder.Read(newItems), "20260001\r\n0\r\n\"$0.00\"\r\n");
}

TEST_F(SplitSlipTest, DateAndTotalAreInTheRegionsForm) {
    UseLocale("de_DE.UTF-8");
    folder.Write(header500, SlipHeaderBytes("500", "16.03.2026"));
    office.slips.LoadSlips(false);
    office.slips.SplitSlip(u"500"_s, 1, grid, u"12.508,20\u00a0\u20ac"_s);
    const QByteArray bytes = folder.Read(newHeader);
    EXPECT_TRUE(bytes.startsWith("20260001\r\n16.03.2026\r\n")) << bytes.toStdString();
    EXPECT_TRUE(bytes.contains("\r\nUpdated 09.03.2026\r\n")) << bytes.toStdString();
    EXPECT_TRUE(folder.Read(newItems).endsWith("\r\n\"12.508,20\xa0\x80\"\r\n"));
}

TEST_F(SplitSlipTest, RowWithoutAnEntryFailsBeforeAnySlipIsWritten) {
    PutSlip();
    for (const int entry : {0, 2, -1}) {
        EXPECT_EQ(FailureOf([&] { Split(entry); }).Kind(), FailureKind::Subscript);
        EXPECT_FALSE(folder.Has(newHeader));
        EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/16/2026"));
    }
}

TEST_F(SplitSlipTest, OldSlipWithoutAFileIsAFailureThatNamesIt) {
    PutSlip();
    folder.Remove(header500);
    const RuntimeFailure failure = ExpectSplitLeavesSlips([this] { Split(); });
    office.slips.LoadSlips(true);
    EXPECT_EQ(office.slips.SlipCount, 0);
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/500.txt"_s));
    EXPECT_FALSE(folder.Has(newItems));
    EXPECT_EQ(folder.Read(items500), itemBytes);
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
}

TEST_F(SplitSlipTest, OldSlipCutInItsAddressesIsAFailureThatLeavesIt) {
    PutSlip();
    const QByteArray cut = SlipHeaderBytes("500", "3/16/2026").chopped(9);
    folder.Write(header500, cut);
    const RuntimeFailure failure = ExpectSplitLeavesSlips([this] { Split(); });
    office.slips.LoadSlips(true);
    EXPECT_EQ(office.slips.SlipCount, 1);
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/500.txt"_s));
    EXPECT_EQ(folder.Read(header500), cut);
    EXPECT_EQ(folder.Read(items500), itemBytes);
}

TEST_F(SplitSlipTest, FullDiskLeavesTheOldSlipAndTheCounterAndNoPartOfTheCopy) {
    PutSlip("True", "0000001");
    for (int row = 3; row <= 40; ++row)
        AddItem({u"2"_s, u"Gravel"_s, u"$4.10"_s, u"$8.20"_s});
    // In the header, and in the item file behind a whole header.
    for (const unsigned room : {100U, 500U}) {
        const RuntimeFailure failure = ExpectSplitLeavesSlips([this, room] {
            const FullDisk disk(room);
            Split();
        });
        EXPECT_EQ(failure.Kind(), FailureKind::DiskFull) << room;
        EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/16/2026", "True", "0000001"));
        EXPECT_EQ(folder.Read(items500), itemBytes);
        EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
        office.slips.LoadSlips(true);
        EXPECT_EQ(office.slips.SlipCount, 1);
    }
}

TEST_F(SplitSlipTest, FullDiskLeavesASlipThatHasTheNextNumber) {
    PutSlip();
    folder.Write(newHeader, SlipHeaderBytes("20260001", "3/17/2026"));
    folder.Write(newItems, itemBytes);
    const RuntimeFailure failure = ExpectSplitLeavesSlips([this] {
        const FullDisk disk(100);
        Split();
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(folder.Read(newHeader), SlipHeaderBytes("20260001", "3/17/2026"));
}

TEST_F(SplitSlipTest, FolderThatCantBeWrittenLeavesTheOldSlip) {
    PutSlip();
    DropRootRights(folder);
    const QByteArray path = folder.PathOf(u"TesselDelivery/Deliveries"_s).toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = ExpectSplitLeavesSlips([this] { Split(); });
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(folder.Read(header500), SlipHeaderBytes("500", "3/16/2026"));
    EXPECT_EQ(folder.Read(items500), itemBytes);
}

TEST_F(SplitSlipTest, LastSlipNumberLeavesTheCopyAndFailsAtTheCounter) {
    PutSlip();
    folder.Write(counterFile, "2147483647\r\n");
    EXPECT_EQ(FailureOf([this] { Split(); }).Kind(), FailureKind::Overflow);
    EXPECT_TRUE(folder.Has(deliveries + u"2147483647.txt"_s));
    EXPECT_EQ(folder.Read(counterFile), "2147483647\r\n");
}
