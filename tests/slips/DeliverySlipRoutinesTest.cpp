#include "slips/DeliverySlipRoutines.h"

#include "store/TextLines.h"
#include "support/OfficeTest.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString counterFile = u"NQDeliveryNo.txt"_s;
const QString deliveries = u"TesselDelivery/Deliveries/"_s;
const QString deliveryItems = u"TesselDelivery/DeliveryItems/"_s;

/// The first `count` lines of a file.
QByteArray FirstLines(const QByteArray& bytes, int count) {
    qsizetype end = 0;
    for (int i = 0; i < count; ++i)
        end = bytes.indexOf("\r\n", end) + 2;
    return bytes.left(end);
}

SlipHeader CornerGrocery() {
    SlipHeader header;
    header.table = {u"20260014"_s,          u"3/16/2026"_s,     u"08:30am"_s, u"True"_s,
                    u"0000001"_s,           u"Flatbed Truck"_s, u"4471"_s,    u"Corner Grocery"_s,
                    u"Prepared 3/9/2026"_s, u"Back door"_s};
    header.soldTo = {u"Corner Grocery"_s, u"12 Mill Road"_s, QString(),
                     u"Springfield"_s,    u"IL"_s,           u"62704"_s};
    header.deliverTo = {u"Caf\u00e9 Grün"_s, u"9 Elm Street"_s, u"Apt 4"_s,
                        u"Springfield"_s,    u"IL"_s,           u"62705"_s};
    return header;
}

} // namespace

class DeliverySlipRoutinesTest : public OfficeTest {
protected:
    DeliverySlipRoutinesTest() { office.settings.ckDelete = 0; }

    DeliverySlipRoutines& slips = office.slips;
    GridModel grid{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};

    void PutSlip(const QByteArray& number, const QByteArray& date,
                 const QByteArray& recurring = "False", const QByteArray& frequency = {}) const {
        folder.Write(deliveries + QString::fromLatin1(number) + u".txt"_s,
                     SlipHeaderBytes(number, date, recurring, frequency));
    }

    /// Stores the lines of the grid under a number.
    void Store(const QString& number, qint16 count, const QString& total) {
        SlipHeader header = CornerGrocery();
        header[SlipLine::SlipNumber] = number;
        slips.StoreSlip(header, grid, count, total);
    }

    void AddItem(const QString& units, const QString& description, const QString& price,
                 const QString& total) {
        const int row = grid.Rows();
        grid.SetRows(row + 1);
        grid.SetText(row, 0, units);
        grid.SetText(row, 1, description);
        grid.SetText(row, 2, price);
        grid.SetText(row, 3, total);
    }

    /// What a field reader makes of an item file.
    QStringList FieldsOf(const QString& name) {
        QStringList fields;
        office.disk.OpenForInput(u'/' + name);
        TextReader reader(office.disk);
        while (!reader.AtEnd())
            fields += reader.Text();
        office.disk.CloseAllFiles();
        return fields;
    }
};

// The slip number.

TEST_F(DeliverySlipRoutinesTest, FirstNumberEverIsTheYearAnd0001AndStandsOnDisk) {
    slips.LoadDeliveryNo();
    EXPECT_EQ(slips.NextSlipNumber, 20260001);
    EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
    slips.UpdateDeliveryCounter();
    EXPECT_EQ(slips.NextSlipNumber, 20260002);
    EXPECT_EQ(folder.Read(counterFile), "20260002\r\n");
}

TEST_F(DeliverySlipRoutinesTest, LaterYearDoesNotRestartTheSeries) {
    folder.Write(counterFile, "20250042\r\n");
    slips.LoadDeliveryNo();
    EXPECT_EQ(slips.NextSlipNumber, 20250042);
    EXPECT_EQ(folder.Read(counterFile), "20250042\r\n");
}

TEST_F(DeliverySlipRoutinesTest, CounterHoldingZeroOrTextRestartsFromTheYearsFirstNumber) {
    for (const QByteArray& bytes :
         {QByteArray("0\r\n"), QByteArray("\"none\"\r\n"), QByteArray("abc\r\n"),
          QByteArray("\r\n"), QByteArray("\"\"\r\n"), QByteArray("#TRUE#\r\n"),
          QByteArray("inf\r\n"), QByteArray("-inf\r\n"), QByteArray("nan\r\n")}) {
        folder.Write(counterFile, bytes);
        slips.LoadDeliveryNo();
        EXPECT_EQ(slips.NextSlipNumber, 20260001) << bytes.toStdString();
        EXPECT_EQ(folder.Read(counterFile), "20260001\r\n");
    }
}

TEST_F(DeliverySlipRoutinesTest, CounterIsReadTheSameInARegionWithTheComma) {
    UseLocale("de_DE");
    const std::pair<QByteArray, qint32> cases[] = {
        {"20260014\r\n", 20260014}, {"12.5\r\n", 12}, {"$5\r\n", 20260001}};
    for (const auto& [bytes, number] : cases) {
        folder.Write(counterFile, bytes);
        slips.LoadDeliveryNo();
        EXPECT_EQ(slips.NextSlipNumber, number) << bytes.toStdString();
    }
}

TEST_F(DeliverySlipRoutinesTest, CounterIsBroughtBackFromBackupAndThatCopyGoes) {
    folder.Write(u"Backup/NQDeliveryNo.txt"_s, "777\r\n");
    slips.LoadDeliveryNo();
    EXPECT_EQ(slips.NextSlipNumber, 777);
    EXPECT_EQ(folder.Read(counterFile), "777\r\n");
    EXPECT_FALSE(folder.Has(u"Backup/NQDeliveryNo.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, CounterAboveThirtyTwoBitsFailsByName) {
    folder.Write(counterFile, "2147483648\r\n");
    const RuntimeFailure failure = FailureOf([&] { slips.LoadDeliveryNo(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(u"reading NQDeliveryNo.txt"_s)) << failure.what();
}

TEST_F(DeliverySlipRoutinesTest, EmptyCounterFileFailsByName) {
    folder.Write(counterFile, "");
    const RuntimeFailure failure = FailureOf([&] { slips.LoadDeliveryNo(); });
    EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
    EXPECT_EQ(
        failure.Sentence(),
        u"Reading NQDeliveryNo.txt failed: the file ends before all of its values were read."_s);
}

TEST_F(DeliverySlipRoutinesTest, LastNumberOfThirtyTwoBitsCannotBeAdvanced) {
    folder.Write(counterFile, "2147483647\r\n");
    slips.LoadDeliveryNo();
    EXPECT_EQ(slips.NextSlipNumber, 2147483647);
    const RuntimeFailure failure = FailureOf([&] { slips.UpdateDeliveryCounter(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(u"NQDeliveryNo.txt"_s));
    EXPECT_EQ(slips.NextSlipNumber, 2147483647);
    EXPECT_EQ(folder.Read(counterFile), "2147483647\r\n");
}

TEST_F(DeliverySlipRoutinesTest, SavingWritesTheGivenValue) {
    slips.SaveDeliveryNo(-5);
    EXPECT_EQ(folder.Read(counterFile), "-5\r\n");
}

TEST_F(DeliverySlipRoutinesTest, TypedNumberMovesTheCounterOnByOneAllTheSame) {
    slips.LoadDeliveryNo();
    SlipHeader header = CornerGrocery();
    header[SlipLine::SlipNumber] = u"500"_s;
    slips.StoreSlip(header, grid, 0, {});
    slips.UpdateDeliveryCounter();
    EXPECT_TRUE(folder.Has(deliveries + u"500.txt"_s));
    EXPECT_EQ(folder.Read(counterFile), "20260002\r\n");
}

TEST_F(DeliverySlipRoutinesTest, NumberInUseSilentlyReplacesThatSlip) {
    PutSlip("500", "3/12/2026", "True", "0000001");
    folder.Write(deliveryItems + u"500.txt"_s, "500\r\n0\r\n\"$7.00\"\r\n");
    SlipHeader header = CornerGrocery();
    header[SlipLine::SlipNumber] = u"500"_s;
    slips.StoreSlip(header, grid, 0, u"$9.00"_s);
    EXPECT_TRUE(folder.Read(deliveries + u"500.txt"_s).startsWith("500\r\n3/16/2026\r\n"));
    EXPECT_EQ(folder.Read(deliveryItems + u"500.txt"_s), "500\r\n0\r\n\"$9.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, UnwritableFolderStopsTheCounterByName) {
    folder.Write(counterFile, "20260007\r\n");
    slips.LoadDeliveryNo();
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([&] { slips.UpdateDeliveryCounter(); });
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Deleting NQDeliveryNo.txt failed: Permission denied."_s);
    EXPECT_EQ(folder.Read(counterFile), "20260007\r\n");
}

// The two files of a slip.

TEST_F(DeliverySlipRoutinesTest, HeaderIsTwentyTwoLinesTenPlainAndTwelveQuoted) {
    slips.StoreSlip(CornerGrocery(), grid, 0, {});
    EXPECT_EQ(folder.Read(deliveries + u"20260014.txt"_s),
              "20260014\r\n3/16/2026\r\n08:30am\r\nTrue\r\n0000001\r\nFlatbed Truck\r\n4471\r\n"
              "Corner Grocery\r\nPrepared 3/9/2026\r\nBack door\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Caf\xe9 Gr\xfcn\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, HeaderOfAGermanOfficeHoldsItsDates) {
    UseLocale("de_DE");
    SlipHeader header = CornerGrocery();
    header[SlipLine::Date] = u"16.03.2026"_s;
    header[SlipLine::Time] = u"07.15am"_s;
    header[SlipLine::Recurring] = u"False"_s;
    header[SlipLine::Frequency] = QString();
    header[SlipLine::Vehicle] = QString();
    header[SlipLine::Reference] = u"Prepared 09.03.2026"_s;
    header[SlipLine::CustomerName] = u"Käse, Milch & \"Mehr\" \u20ac \u4e2d"_s;
    slips.StoreSlip(header, grid, 0, {});
    EXPECT_EQ(folder.Read(deliveries + u"20260014.txt"_s),
              "20260014\r\n16.03.2026\r\n07.15am\r\nFalse\r\n\r\n\r\n4471\r\n"
              "K\xe4se, Milch & \"Mehr\" \x80 ?\r\nPrepared 09.03.2026\r\nBack door\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Caf\xe9 Gr\xfcn\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, StoringClosesBothFilesWhole) {
    slips.StoreSlip(CornerGrocery(), grid, 0, {});
    EXPECT_EQ(FailureOf([&] { office.disk.Append(office.disk.DiskFile, ""); }).Kind(),
              FailureKind::FileNotOpen);
    EXPECT_EQ(folder.Read(deliveries + u"20260014.txt"_s).count("\r\n"), 22);
}

TEST_F(DeliverySlipRoutinesTest, HeaderCopyInBackupIsLeftAlone) {
    folder.Write(u"Backup/TesselDelivery/Deliveries/20260014.txt"_s, "old");
    slips.StoreSlip(CornerGrocery(), grid, 0, {});
    EXPECT_EQ(folder.Read(u"Backup/TesselDelivery/Deliveries/20260014.txt"_s), "old");
}

TEST_F(DeliverySlipRoutinesTest, BothFilesBearTheTrimmedNumber) {
    SlipHeader header = CornerGrocery();
    header[SlipLine::SlipNumber] = u"500 "_s;
    slips.StoreSlip(header, grid, 0, u"$1.00"_s);
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s).left(16), "500\r\n3/16/2026\r\n");
    EXPECT_EQ(folder.Read(deliveryItems + u"500.txt"_s), "500\r\n0\r\n\"$1.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, HeaderLinesAreWrittenWithoutBlanksAtTheirEnds) {
    SlipHeader header = CornerGrocery();
    for (QString& line : header.table)
        line = u"  "_s + line + u' ';
    for (auto* address : {&header.soldTo, &header.deliverTo}) {
        for (QString& line : *address)
            line = u' ' + line + u"  "_s;
    }
    slips.StoreSlip(header, grid, 0, {});
    EXPECT_EQ(folder.Read(deliveries + u"20260014.txt"_s),
              "20260014\r\n3/16/2026\r\n08:30am\r\nTrue\r\n0000001\r\nFlatbed Truck\r\n4471\r\n"
              "Corner Grocery\r\nPrepared 3/9/2026\r\nBack door\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Caf\xe9 Gr\xfcn\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, ItemFileHoldsFourLinesAnItemInGridOrder) {
    AddItem(u"2"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$10.00"_s);
    AddItem(u"2.5"_s, u"Sand"_s, u"$500.00"_s, u"$1,250.00"_s);
    AddItem(QString(), u"Empty crates"_s, u"$0.00"_s, u"$0.00"_s);
    Store(u"20260014"_s, 3, u"$1,260.00"_s);
    EXPECT_EQ(folder.Read(deliveryItems + u"20260014.txt"_s),
              "20260014\r\n3\r\n"
              "2\r\nGravel, fine\r\n$5.00\r\n$10.00\r\n"
              "2.5\r\nSand\r\n$500.00\r\n$1,250.00\r\n"
              "\r\nEmpty crates\r\n$0.00\r\n$0.00\r\n"
              "\"$1,260.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, ItemFileOfAGermanOfficeHoldsItsAmounts) {
    UseLocale("de_DE");
    AddItem(u"2"_s, u"Kies für Höfe"_s, u"625,00\u00a0\u20ac"_s, u"1.250,00\u00a0\u20ac"_s);
    Store(u"20260014"_s, 1, QString());
    EXPECT_EQ(folder.Read(deliveryItems + u"20260014.txt"_s),
              "20260014\r\n1\r\n"
              "2\r\nKies f\xfcr H\xf6"
              "fe\r\n625,00\xa0\x80\r\n1.250,00\xa0\x80\r\n"
              "\"0,00\xa0\x80\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, EmptyTotalIsWrittenAsZero) {
    Store(u"5"_s, 0, QString());
    EXPECT_EQ(folder.Read(deliveryItems + u"5.txt"_s), "5\r\n0\r\n\"$0.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, OnlyTheCountedRowsAreWritten) {
    AddItem(u"1"_s, u"Sand"_s, u"$1.00"_s, u"$1.00"_s);
    AddItem(u"9"_s, u"Not on the slip"_s, u"$9.00"_s, u"$81.00"_s);
    Store(u"5"_s, 1, u"$1.00"_s);
    EXPECT_EQ(folder.Read(deliveryItems + u"5.txt"_s),
              "5\r\n1\r\n1\r\nSand\r\n$1.00\r\n$1.00\r\n\"$1.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, DescriptionWithACommaReadsBackShiftedByOneField) {
    AddItem(u"2"_s, u"Gravel, fine"_s, u"$5.00"_s, u"$10.00"_s);
    Store(u"5"_s, 1, u"$10.00"_s);
    EXPECT_EQ(FieldsOf(deliveryItems + u"5.txt"_s),
              QStringList({u"5"_s, u"1"_s, u"2"_s, u"Gravel"_s, u"fine"_s, u"$5.00"_s, u"$10.00"_s,
                           u"$10.00"_s}));
}

TEST_F(DeliverySlipRoutinesTest, AmountOfAThousandReadsBackAsTwoFields) {
    AddItem(u"1"_s, u"Sand"_s, u"$5.00"_s, u"$1,250.00"_s);
    Store(u"5"_s, 1, u"$1,250.00"_s);
    EXPECT_EQ(FieldsOf(deliveryItems + u"5.txt"_s),
              QStringList({u"5"_s, u"1"_s, u"1"_s, u"Sand"_s, u"$5.00"_s, u"$1"_s, u"250.00"_s,
                           u"$1,250.00"_s}));
}

TEST_F(DeliverySlipRoutinesTest, NumberThatWouldLeaveTheFolderIsRefusedByEveryWriter) {
    folder.Write(u"TesselDelivery/x.txt"_s, "kept");
    const QStringList before = folder.Everything();
    for (const QString& number : {u"../x"_s, u"..\\x"_s}) {
        EXPECT_EQ(FailureOf([&] { Store(number, 0, {}); }).Kind(), FailureKind::BadFileName)
            << number.toStdString();
    }
    const RuntimeFailure failure = FailureOf(
        [&] { slips.RewriteSlipHeader(u"../x"_s, true, u"3/9/2026"_s, QString(), QString()); });
    EXPECT_EQ(failure.Kind(), FailureKind::BadFileName);
    EXPECT_TRUE(failure.Sentence().contains(u"../x.txt"_s)) << failure.what();
    EXPECT_EQ(folder.Everything(), before);
    EXPECT_EQ(folder.Read(u"TesselDelivery/x.txt"_s), "kept");
}

// Storing both files of a slip.

TEST_F(DeliverySlipRoutinesTest, StoringWritesBothFilesAndLeavesNothingElse) {
    AddItem(u"2"_s, u"Sand"_s, u"$5.00"_s, u"$10.00"_s);
    QStringList names = folder.Everything();
    slips.StoreSlip(CornerGrocery(), grid, 1, u"$10.00"_s);
    names += {deliveries + u"20260014.txt"_s, deliveryItems + u"20260014.txt"_s};
    names.sort();
    EXPECT_EQ(folder.Everything(), names);
    EXPECT_EQ(folder.Read(deliveries + u"20260014.txt"_s),
              "20260014\r\n3/16/2026\r\n08:30am\r\nTrue\r\n0000001\r\nFlatbed Truck\r\n4471\r\n"
              "Corner Grocery\r\nPrepared 3/9/2026\r\nBack door\r\n"
              "\"Corner Grocery\"\r\n\"12 Mill Road\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n"
              "\"62704\"\r\n\"Caf\xe9 Gr\xfcn\"\r\n\"9 Elm Street\"\r\n\"Apt 4\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62705\"\r\n");
    EXPECT_EQ(folder.Read(deliveryItems + u"20260014.txt"_s),
              "20260014\r\n1\r\n2\r\nSand\r\n$5.00\r\n$10.00\r\n\"$10.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, StoringReplacesTheSlipOfThatNumber) {
    PutSlip("500", "3/12/2026", "True", "0000001");
    folder.Write(deliveryItems + u"500.txt"_s, "500\r\n0\r\n\"$7.00\"\r\n");
    SlipHeader header = CornerGrocery();
    header[SlipLine::SlipNumber] = u" 500"_s;
    slips.StoreSlip(header, grid, 0, u"$9.00"_s);
    EXPECT_TRUE(folder.Read(deliveries + u"500.txt"_s).startsWith("500\r\n3/16/2026\r\n"));
    EXPECT_EQ(folder.Read(deliveryItems + u"500.txt"_s), "500\r\n0\r\n\"$9.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, StoringAfterACrashTakesNothingOfWhatItLeft) {
    folder.Write(deliveries + u"TempFile.txt"_s, "half");
    folder.Write(deliveryItems + u"TempFile.txt"_s, "half");
    slips.StoreSlip(CornerGrocery(), grid, 0, u"$9.00"_s);
    EXPECT_FALSE(folder.Has(deliveries + u"TempFile.txt"_s));
    EXPECT_FALSE(folder.Has(deliveryItems + u"TempFile.txt"_s));
    EXPECT_EQ(folder.Read(deliveryItems + u"20260014.txt"_s), "20260014\r\n0\r\n\"$9.00\"\r\n");
}

TEST_F(DeliverySlipRoutinesTest, FullDiskLeavesEverySlipAsItWas) {
    PutSlip("20260014", "3/12/2026");
    folder.Write(deliveryItems + u"20260014.txt"_s, "20260014\r\n0\r\n\"$7.00\"\r\n");
    for (int i = 0; i < 100; ++i)
        AddItem(u"2"_s, u"Sand"_s, u"$5.00"_s, u"$10.00"_s);
    const auto before = folder.Contents();
    // In the header, and in the item file behind a whole header.
    for (const unsigned room : {0U, 100U, 1000U}) {
        const RuntimeFailure failure = FailureOf([&] {
            const FullDisk disk(room);
            slips.StoreSlip(CornerGrocery(), grid, 100, u"$10.00"_s);
        });
        EXPECT_EQ(failure.Kind(), FailureKind::DiskFull) << room;
        EXPECT_EQ(failure.Sentence(),
                  u"Writing TesselDelivery/%1/TempFile.txt failed: File too "
                  "large."_s.arg(room < 1000 ? u"Deliveries" : u"DeliveryItems"))
            << room;
        EXPECT_EQ(folder.Contents(), before) << room;
    }
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 1);
}

TEST_F(DeliverySlipRoutinesTest, FullDiskLeavesNoHalfNewSlipForTheNextStart) {
    AddItem(u"2"_s, u"Sand"_s, u"$5.00"_s, u"$10.00"_s);
    const QStringList before = folder.Everything();
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(50);
        slips.StoreSlip(CornerGrocery(), grid, 1, u"$10.00"_s);
    });
    EXPECT_EQ(failure.Sentence(),
              u"Writing TesselDelivery/Deliveries/TempFile.txt failed: File too large."_s);
    EXPECT_EQ(folder.Everything(), before);
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 0);
}

TEST_F(DeliverySlipRoutinesTest, StoringMoreLinesThanTheGridHasChangesNothing) {
    PutSlip("20260014", "3/12/2026");
    const auto before = folder.Contents();
    EXPECT_EQ(FailureOf([&] { slips.StoreSlip(CornerGrocery(), grid, 5, u"$10.00"_s); }).Kind(),
              FailureKind::Subscript);
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(DeliverySlipRoutinesTest, NumberThatNamesNoFileChangesNothing) {
    PutSlip("500", "3/12/2026");
    folder.MakeFolder(deliveries + u"12"_s);
    const QStringList before = folder.Everything();
    const QString renaming = u"Renaming TesselDelivery/DeliveryItems/TempFile.txt to "
                             "TesselDelivery/DeliveryItems/%1.txt failed: No such file or "
                             "directory."_s;
    const QString longNumber(300, u'1');
    const std::tuple<QString, FailureKind, QString> cases[] = {
        {u"../x"_s, FailureKind::BadFileName,
         u"The name \"/TesselDelivery/DeliveryItems/../x.txt\" would lead out of the data "
         "folder."_s},
        {u"12/7"_s, FailureKind::FileNotFound, renaming.arg(u"12/7"_s)},
        {u"no/folder"_s, FailureKind::FileNotFound, renaming.arg(u"no/folder"_s)},
        {longNumber, FailureKind::BadFileName,
         u"Deleting TesselDelivery/DeliveryItems/%1.txt failed: File name too long."_s.arg(
             longNumber)}};
    for (const auto& [number, kind, sentence] : cases) {
        const RuntimeFailure failure = FailureOf([&] { Store(number, 0, u"$9.00"_s); });
        EXPECT_EQ(failure.Kind(), kind) << number.toStdString();
        EXPECT_EQ(failure.Sentence(), sentence);
        EXPECT_EQ(folder.Everything(), before) << number.toStdString();
    }
}

TEST_F(DeliverySlipRoutinesTest, UnwritableFolderOfEitherFileChangesNothing) {
    PutSlip("20260014", "3/12/2026");
    folder.Write(deliveryItems + u"20260014.txt"_s, "20260014\r\n0\r\n\"$7.00\"\r\n");
    const auto before = folder.Contents();
    DropRootRights(folder);
    for (const QString& closed : {deliveries, deliveryItems}) {
        const QByteArray path = folder.PathOf(closed).toUtf8();
        ASSERT_EQ(::chmod(path.constData(), 0555), 0);
        const RuntimeFailure failure =
            FailureOf([&] { slips.StoreSlip(CornerGrocery(), grid, 0, u"$9.00"_s); });
        ASSERT_EQ(::chmod(path.constData(), 0755), 0);
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(folder.Contents(), before) << closed.toStdString();
    }
}

TEST_F(DeliverySlipRoutinesTest, ItemFileThatCantBeReplacedLeavesTheOldSlipWhole) {
    PutSlip("20260014", "3/12/2026");
    folder.MakeFolder(deliveryItems + u"20260014.txt"_s);
    const QStringList before = folder.Everything();
    const RuntimeFailure failure =
        FailureOf([&] { slips.StoreSlip(CornerGrocery(), grid, 0, u"$9.00"_s); });
    EXPECT_EQ(failure.Sentence(),
              u"Deleting TesselDelivery/DeliveryItems/20260014.txt failed: Is a directory."_s);
    EXPECT_EQ(folder.Everything(), before);
    EXPECT_EQ(folder.Read(deliveries + u"20260014.txt"_s),
              SlipHeaderBytes("20260014", "3/12/2026"));
}

// Loading the table.

TEST_F(DeliverySlipRoutinesTest, EmptyFolderGivesCountZeroAndKeepsTheOldTexts) {
    PutSlip("500", "3/12/2026");
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 1);
    folder.Remove(deliveries + u"500.txt"_s);
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 0);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 1), u"500"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Attention, 1), u"Back door"_s);
}

TEST_F(DeliverySlipRoutinesTest, EmptyFolderProcessesNoOldEntry) {
    PutSlip("500", "3/12/2026", "True", "0000001");
    slips.LoadSlips(true);
    folder.Remove(deliveries + u"500.txt"_s);
    clock.Date = QDate(2026, 4, 1);
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 0);
}

TEST_F(DeliverySlipRoutinesTest, LeftoverTempFileIsNoSlipAndGoes) {
    folder.Write(deliveries + u"TempFile.txt"_s, "500\r\n");
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 0);
    EXPECT_FALSE(folder.Has(deliveries + u"TempFile.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, LeftoverTempFileBesideSlipsGoesWithoutThePastPassToo) {
    PutSlip("500", "3/12/2026");
    PutSlip("501", "3/13/2026");
    folder.Write(deliveries + u"TempFile.txt"_s, SlipHeaderBytes("500", "3/12/2026"));
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 2);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 2), u"501"_s);
    EXPECT_FALSE(folder.Has(deliveries + u"TempFile.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, LoadingLeavesNoFileOpen) {
    PutSlip("500", "3/12/2026");
    for (const bool processPast : {false, true}) {
        office.disk.DiskFile = 0;
        slips.LoadSlips(processPast);
        EXPECT_NE(office.disk.DiskFile, 0);
        EXPECT_EQ(FailureOf([&] { office.disk.InputOn(office.disk.DiskFile); }).Kind(),
                  FailureKind::FileNotOpen);
    }
}

TEST_F(DeliverySlipRoutinesTest, FolderThatShrankGivesItsNewCountAndFreshEntries) {
    for (const char* number : {"1", "2", "3"})
        PutSlip(number, "3/12/2026");
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 3);
    folder.Remove(deliveries + u"1.txt"_s);
    folder.Remove(deliveries + u"3.txt"_s);
    PutSlip("2", "3/13/2026");
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 1);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 1), u"2"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Date, 1), u"3/13/2026"_s);
}

TEST_F(DeliverySlipRoutinesTest, FreshTableHasNoEntry) {
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 0);
    EXPECT_EQ(FailureOf([&] { (void)slips.Table.Text(SlipLine::Date, 1); }).Kind(),
              FailureKind::Subscript);
    EXPECT_EQ(FailureOf([&] { (void)slips.Table.Text(SlipLine::Date, 0); }).Kind(),
              FailureKind::Subscript);
}

TEST_F(DeliverySlipRoutinesTest, TableHoldsTheFirstTenLinesAsTheyStandInTheFile) {
    folder.Write(deliveries + u"500.txt"_s,
                 "500\r\n03/16/2026 \r\n 08:30am\r\nTrue\r\n0000001\r\n\"Truck\", red\r\n4471\r\n"
                 "Caf\xe9 \x80\r\n\r\n  Back  \r\nrest\r\n");
    slips.LoadSlips(false);
    ASSERT_EQ(slips.SlipCount, 1);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 1), u"500"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Date, 1), u"03/16/2026 "_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Time, 1), u" 08:30am"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Recurring, 1), u"True"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Frequency, 1), u"0000001"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Vehicle, 1), u"\"Truck\", red"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Account, 1), u"4471"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::CustomerName, 1), u"Caf\u00e9 \u20ac"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Reference, 1), QString());
    EXPECT_EQ(slips.Table.Text(SlipLine::Attention, 1), u"  Back  "_s);
}

TEST_F(DeliverySlipRoutinesTest, TableIsInTheListingsOrder) {
    for (const char* number : {"9", "500", "10", "20260001"})
        PutSlip(number, "3/12/2026");
    slips.LoadSlips(false);
    ASSERT_EQ(slips.SlipCount, 4);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 1), u"10"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 2), u"20260001"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 3), u"500"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 4), u"9"_s);
}

TEST_F(DeliverySlipRoutinesTest, OnlyTextFilesAreSlips) {
    PutSlip("500", "3/12/2026");
    folder.Write(deliveries + u"500.txt.bak"_s, "x");
    folder.Write(deliveries + u"notes"_s, "x");
    folder.MakeFolder(deliveries + u"folder.txt"_s);
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 1);
}

TEST_F(DeliverySlipRoutinesTest, HeaderWithoutItemFileIsListed) {
    PutSlip("500", "3/12/2026");
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 1);
}

TEST_F(DeliverySlipRoutinesTest, ItemFileWithoutHeaderStaysUnnoticed) {
    folder.Write(deliveryItems + u"500.txt"_s, "500\r\n0\r\n\"$0.00\"\r\n");
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 0);
    EXPECT_TRUE(folder.Has(deliveryItems + u"500.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, TableIsStaleUntilTheNextLoad) {
    PutSlip("500", "3/12/2026");
    slips.LoadSlips(false);
    slips.StoreSlip(CornerGrocery(), grid, 0, {});
    slips.RewriteSlipHeader(u"500"_s, true, u"4/1/2026"_s, {}, {});
    EXPECT_EQ(slips.SlipCount, 1);
    EXPECT_EQ(slips.Table.Text(SlipLine::Date, 1), u"3/12/2026"_s);
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 2);
}

TEST_F(DeliverySlipRoutinesTest, TableStillShowsASlipThatThePastPassDeletedOrMoved) {
    office.settings.ckDelete = 1;
    office.settings.ckOnDay = 0;
    PutSlip("500", "3/6/2026");
    PutSlip("501", "3/2/2026", "True", "0000001");
    user.ExpectMessage(u"Delivery Slip 500 scheduled for 3/6/2026 has been Deleted"_s);
    user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                        u"Delete a Recurring Slip"_s, Answer::No);
    user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 2);
    EXPECT_EQ(slips.Table.Text(SlipLine::SlipNumber, 1), u"500"_s);
    EXPECT_EQ(slips.Table.Text(SlipLine::Date, 2), u"3/2/2026"_s);
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 1);
    EXPECT_EQ(slips.Table.Text(SlipLine::Date, 1), u"3/9/2026"_s);
}

TEST_F(DeliverySlipRoutinesTest, WithoutThePastPassNoSlipIsProcessed) {
    office.settings.ckDelete = 1;
    PutSlip("500", "3/6/2026");
    PutSlip("501", "not a date", "True", "0000001");
    slips.LoadSlips(false);
    EXPECT_EQ(slips.SlipCount, 2);
    EXPECT_TRUE(folder.Has(deliveries + u"500.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, AllHeadersAreReadBeforeTheFirstSlipIsProcessed) {
    office.settings.ckDelete = 1;
    PutSlip("500", "3/6/2026");
    folder.Write(deliveries + u"501.txt"_s, "501\r\n");
    EXPECT_EQ(FailureOf([&] { slips.LoadSlips(true); }).Kind(), FailureKind::ReadPastEnd);
    EXPECT_TRUE(folder.Has(deliveries + u"500.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, HeaderOfFewerThanTenLinesStopsTheLoadByName) {
    const QByteArray whole = SlipHeaderBytes("500", "3/12/2026", "True", "0000001");
    for (int lines = 0; lines < 10; ++lines) {
        folder.Write(deliveries + u"500.txt"_s, FirstLines(whole, lines));
        const RuntimeFailure failure = FailureOf([&] { slips.LoadSlips(false); });
        EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd) << lines;
        EXPECT_EQ(failure.Sentence(), u"Reading TesselDelivery/Deliveries/500.txt failed: the file "
                                      "ends before all of its values were read."_s)
            << lines;
    }
    folder.Write(deliveries + u"500.txt"_s, FirstLines(whole, 10));
    slips.LoadSlips(false);
    EXPECT_EQ(slips.Table.Text(SlipLine::Attention, 1), u"Back door"_s);
}

TEST_F(DeliverySlipRoutinesTest, DateLineThatIsNoDateStopsThePastPassByName) {
    // The first line disagrees with the file's name, and it is the file that is to be found.
    for (const QByteArray& date :
         {QByteArray(), QByteArray("soon"), QByteArray("2/30/2026"), QByteArray("16.03.2026"),
          QByteArray("3/6/26"), QByteArray("\"3/6/2026\"")}) {
        folder.Write(deliveries + u"500.txt"_s, SlipHeaderBytes("499", date));
        const RuntimeFailure failure = FailureOf([&] { slips.LoadSlips(true); });
        EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch) << date.toStdString();
        EXPECT_EQ(failure.Sentence(), u"The text \""_s + QString::fromLatin1(date) +
                                          u"\" is not a date (reading the delivery date in "
                                          "TesselDelivery/Deliveries/500.txt)."_s);
    }
}

TEST_F(DeliverySlipRoutinesTest, UnreadableSlipStopsTheLoadByName) {
    PutSlip("500", "3/12/2026");
    DropRootRights(folder);
    const QByteArray path = folder.PathOf(deliveries + u"500.txt"_s).toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0), 0);
    const RuntimeFailure failure = FailureOf([&] { slips.LoadSlips(true); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(
        failure.Sentence(),
        u"Opening TesselDelivery/Deliveries/500.txt for reading failed: Permission denied."_s);
}

TEST_F(DeliverySlipRoutinesTest, FirstLineThatWouldLeaveTheFolderIsRefused) {
    office.settings.ckDelete = 1;
    folder.Write(u"TesselDelivery/x.txt"_s, "kept");
    folder.Write(deliveries + u"500.txt"_s, SlipHeaderBytes("../x", "3/6/2026"));
    EXPECT_EQ(FailureOf([&] { slips.LoadSlips(true); }).Kind(), FailureKind::BadFileName);
    EXPECT_EQ(folder.Read(u"TesselDelivery/x.txt"_s), "kept");
}

TEST_F(DeliverySlipRoutinesTest, CountIsSixteenBitsAndGoesOneTooFarWhileListing) {
    PutSlip("0", "3/12/2026");
    // One slip under many names, since so many files would take the disk long to make.
    const QByteArray slip = folder.PathOf(deliveries + u"0.txt"_s).toUtf8();
    for (int i = 1; i < 32766; ++i) {
        const QByteArray name = folder.PathOf(deliveries + QString::number(i) + u".txt"_s).toUtf8();
        ASSERT_EQ(::link(slip.constData(), name.constData()), 0) << i;
    }
    slips.LoadSlips(true);
    EXPECT_EQ(slips.SlipCount, 32766);
    EXPECT_EQ(slips.Table.Text(SlipLine::Attention, 32766), u"Back door"_s);
    PutSlip("one more", "3/12/2026");
    const RuntimeFailure failure = FailureOf([&] { slips.LoadSlips(true); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(
        failure.Sentence().startsWith(u"Listing the folder TesselDelivery/Deliveries failed: "_s))
        << failure.what();
}

// Rewriting a header.

TEST_F(DeliverySlipRoutinesTest, KeepingRewritesTheDateLineAlone) {
    // Every byte value that a line can hold passes unchanged.
    QByteArray everyByte;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n')
            everyByte += char(byte);
    }
    const QByteArray rest = "\r\n 08:30am \r\nTrue\r\n0000001\r\n" + everyByte +
                            "\r\n4471\r\n\r\n\"\"\r\nBack, door\r\n" +
                            ("\"" + everyByte + "\"\r\n").repeated(12);
    folder.Write(deliveries + u"500.txt"_s, "500\r\n3/9/2026" + rest);
    slips.RewriteSlipHeader(u"500"_s, true, u"3/16/2026"_s, u"09:00am"_s, u"0000002"_s);
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s), "500\r\n3/16/2026" + rest);
    EXPECT_FALSE(folder.Has(deliveries + u"TempFile.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, RescheduleWithANewTimeLeavesTheOldTimeInTheFile) {
    PutSlip("500", "3/9/2026");
    slips.RewriteSlipHeader(u"500"_s, true, u"3/10/2026"_s, u"09:45am"_s, u"Other Truck"_s);
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s), SlipHeaderBytes("500", "3/10/2026"));
}

TEST_F(DeliverySlipRoutinesTest, NotKeepingRewritesDateTimeAndTheFifthLine) {
    folder.Write(deliveries + u"500.txt"_s, SlipHeaderBytes("500", "3/9/2026", "True", "0000001"));
    slips.RewriteSlipHeader(u"500"_s, false, u"3/10/2026"_s, u"07.15am"_s, u"Other Truck"_s);
    const QByteArray tail = SlipHeaderBytes("500", "3/9/2026")
                                .mid(SlipHeaderBytes("500", "3/9/2026").indexOf("Flatbed Truck"));
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s),
              "500\r\n3/10/2026\r\n07.15am\r\nTrue\r\nOther Truck\r\n" + tail);
}

TEST_F(DeliverySlipRoutinesTest, RewritingNeverTouchesTheItemFile) {
    PutSlip("500", "3/9/2026");
    folder.Write(deliveryItems + u"500.txt"_s, "anything");
    slips.RewriteSlipHeader(u"500"_s, false, u"3/10/2026"_s, {}, {});
    EXPECT_EQ(folder.Read(deliveryItems + u"500.txt"_s), "anything");
}

TEST_F(DeliverySlipRoutinesTest, OldTempFileIsNotMixedIntoTheRewrittenSlip) {
    PutSlip("500", "3/9/2026");
    folder.Write(deliveries + u"TempFile.txt"_s, QByteArray(5000, 'x'));
    slips.RewriteSlipHeader(u"500"_s, true, u"3/10/2026"_s, {}, {});
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s), SlipHeaderBytes("500", "3/10/2026"));
    EXPECT_FALSE(folder.Has(deliveries + u"TempFile.txt"_s));
}

TEST_F(DeliverySlipRoutinesTest, RewritingAMissingSlipFailsByName) {
    const RuntimeFailure failure =
        FailureOf([&] { slips.RewriteSlipHeader(u"500"_s, true, u"3/10/2026"_s, {}, {}); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_EQ(failure.Sentence(), u"Opening TesselDelivery/Deliveries/500.txt for reading failed: "
                                  "No such file or directory."_s);
}

TEST_F(DeliverySlipRoutinesTest, RewritingACutHeaderFailsAndLeavesIt) {
    const QByteArray whole = SlipHeaderBytes("500", "3/9/2026");
    for (int lines = 0; lines < 22; ++lines) {
        folder.Write(deliveries + u"500.txt"_s, FirstLines(whole, lines));
        EXPECT_EQ(FailureOf([&] {
                      slips.RewriteSlipHeader(u"500"_s, true, u"3/10/2026"_s, {}, {});
                  }).Kind(),
                  FailureKind::ReadPastEnd)
            << lines;
        EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s), FirstLines(whole, lines));
    }
}

TEST_F(DeliverySlipRoutinesTest, DiskFullWhileRewritingChangesNoOtherFile) {
    PutSlip("499", "3/9/2026");
    PutSlip("500", "3/9/2026");
    folder.Write(deliveryItems + u"500.txt"_s, "anything");
    const QStringList before = folder.Everything();
    const RuntimeFailure failure = FailureOf([&] {
        const FullDisk disk(50);
        slips.RewriteSlipHeader(u"500"_s, true, u"3/10/2026"_s, {}, {});
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(),
              u"Writing TesselDelivery/Deliveries/TempFile.txt failed: File too large."_s);
    QStringList after = folder.Everything();
    EXPECT_TRUE(after.removeOne(deliveries + u"TempFile.txt"_s));
    EXPECT_EQ(after, before);
    EXPECT_EQ(folder.Read(deliveries + u"499.txt"_s), SlipHeaderBytes("499", "3/9/2026"));
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s), SlipHeaderBytes("500", "3/9/2026"));
    EXPECT_EQ(folder.Read(deliveryItems + u"500.txt"_s), "anything");
}

TEST_F(DeliverySlipRoutinesTest, RewritingInAnUnwritableFolderFailsAndLeavesTheSlip) {
    PutSlip("500", "3/9/2026");
    DropRootRights(folder);
    const QByteArray path = folder.PathOf(u"TesselDelivery/Deliveries"_s).toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure =
        FailureOf([&] { slips.RewriteSlipHeader(u"500"_s, true, u"3/10/2026"_s, {}, {}); });
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(
        failure.Sentence(),
        u"Opening TesselDelivery/Deliveries/TempFile.txt for writing failed: Permission denied."_s);
    EXPECT_EQ(folder.Read(deliveries + u"500.txt"_s), SlipHeaderBytes("500", "3/9/2026"));
}

// The slot test.

TEST_F(DeliverySlipRoutinesTest, SlotIsFreeWhetherItIsTakenOrNot) {
    EXPECT_TRUE(slips.IsSlotFree(QDate(2026, 3, 12), u"08:30am"_s, u"Flatbed Truck"_s));
    PutSlip("500", "3/12/2026");
    slips.LoadSlips(false);
    EXPECT_TRUE(slips.IsSlotFree(QDate(2026, 3, 12), u"08:30am"_s, u"Flatbed Truck"_s));
    EXPECT_TRUE(slips.IsSlotFree(QDate(2026, 3, 12), u"08:45am"_s, u"Flatbed Truck"_s));
}

TEST_F(DeliverySlipRoutinesTest, SlotWalkStopsAtTheFirstMatch) {
    // The walk reads each date up to the match, so what lies behind it can't fail.
    folder.Write(deliveries + u"1.txt"_s, SlipHeaderBytes("1", "3/12/2026")
                                              .replace("08:30am", " 08:30am ")
                                              .replace("Flatbed Truck", "  Flatbed Truck "));
    PutSlip("2", "no date");
    slips.LoadSlips(false);
    EXPECT_TRUE(slips.IsSlotFree(QDate(2026, 3, 12), u"08:30am"_s, u"Flatbed Truck"_s));
    const RuntimeFailure failure =
        FailureOf([&] { slips.IsSlotFree(QDate(2026, 3, 12), u"08:30am"_s, u"Other Truck"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_TRUE(failure.Sentence().contains(u"TesselDelivery/Deliveries/2.txt"_s));
}
