#include "SampleBusiness.h"

#include "startup/DataFolderLayout.h"
#include "store/Conversions.h"
#include "store/TextLines.h"
#include "support/OfficeTest.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// A builders yard laid out in a folder of its own, under United States formats.
class SampleBusinessTest : public OfficeTest {
protected:
    QString yard = folder.PathOf(u"Yard"_s);

    QByteArray Read(const QString& name) const { return folder.Read(u"Yard/"_s + name); }

    QString DateOfSlip(const QString& slipNo) const {
        BasicDiskRoutines disk(yard);
        disk.OpenForInput(u"/TesselDelivery/Deliveries/"_s + slipNo + u".txt"_s);
        TextReader reader(disk);
        reader.SkipLines(1);
        return reader.WholeLine();
    }

    /// What the start does about past slips, with No as the answer to every question.
    void StartOn(QDate today, const QStringList& deletedDates) {
        clock.Date = today;
        Office business(yard, {clock, user, printer, browser, pictures});
        business.setup.LoadAll();
        business.settingsStore.LoadSettings();
        for (int i = 0; i < 3; ++i) {
            user.ExpectQuestion(u"Would you like to DELETE the Recurring Slip?"_s,
                                u"Delete a Recurring Slip"_s, Answer::No);
            user.ExpectMessage(u"The Recurring Delivery Slip has been Rescheduled"_s);
        }
        const QString year = QString::number(today.year());
        user.ExpectMessage(u"Delivery Slip "_s + year + u"0004 scheduled for "_s + deletedDates[0] +
                           u" has been Deleted"_s);
        user.ExpectMessage(u"Delivery Slip "_s + year + u"0005 scheduled for "_s + deletedDates[1] +
                           u" has been Deleted"_s);
        business.slips.LoadSlips(true);
        user.ExpectNothingLeft();
    }
};

} // namespace

TEST_F(SampleBusinessTest, HoldsSixtySlipsAndTheCounterBehindThem) {
    LayOutSampleBusiness(yard, {2026, 3, 9});
    EXPECT_EQ(QDir(yard + u"/TesselDelivery/Deliveries"_s).entryList(QDir::Files).size(), 60);
    EXPECT_EQ(QDir(yard + u"/TesselDelivery/DeliveryItems"_s).entryList(QDir::Files).size(), 60);
    EXPECT_EQ(Read(u"NQDeliveryNo.txt"_s), "20260061\r\n");
}

TEST_F(SampleBusinessTest, PassesTheFirstRunGateAndOpensTheWholeMenu) {
    LayOutSampleBusiness(yard, {2026, 3, 9});
    for (const QString& name :
         {u"MyBusinessData.txt"_s, u"Settings.txt"_s, u"DeliverySettings.txt"_s,
          u"NXInventoriedItems.txt"_s, u"Vehicles.txt"_s, u"CustomerData.txt"_s})
        EXPECT_TRUE(folder.Has(u"Yard/"_s + name)) << name.toStdString();
}

TEST_F(SampleBusinessTest, ASlipLiesAsTheProgramWritesIt) {
    LayOutSampleBusiness(yard, {2026, 3, 9});
    EXPECT_EQ(Read(u"TesselDelivery/Deliveries/20260009.txt"_s),
              "20260009\r\n3/9/2026\r\n08:00am\r\nFalse\r\n\r\nFlatbed Truck\r\n1001\r\n"
              "Tamarind Lane Builders\r\nPO 4417\r\nAsk for the foreman\r\n"
              "\"Tamarind Lane Builders\"\r\n\"410 Tamarind Lane\"\r\n\"\"\r\n"
              "\"Springfield\"\r\n\"IL\"\r\n\"62702\"\r\n"
              "\"Tamarind Lane Site 3\"\r\n\"27 Foundry Way\"\r\n\"\"\r\n"
              "\"Riverton\"\r\n\"IL\"\r\n\"62561\"\r\n");
    EXPECT_EQ(Read(u"TesselDelivery/DeliveryItems/20260009.txt"_s),
              "20260009\r\n4\r\n"
              "16\r\nPlywood Sheet 4x8\r\n$36.90\r\n$590.40\r\n"
              "48\r\nFraming Lumber 2x4x8\r\n$4.85\r\n$232.80\r\n"
              "20\r\nPortland Cement 94 lb Bag\r\n$13.75\r\n$275.00\r\n"
              "3\r\nPallet Return\r\n$0.00\r\n$0.00\r\n"
              "\"$1,098.20\"\r\n");
}

TEST_F(SampleBusinessTest, EveryItemFileReadsFieldByFieldToItsEnd) {
    LayOutSampleBusiness(yard, {2026, 3, 9});
    BasicDiskRoutines disk(yard);
    for (const QString& name : disk.ListFiles(u"/TesselDelivery/DeliveryItems"_s, u"*.txt"_s)) {
        SCOPED_TRACE(name.toStdString());
        disk.OpenForInput(u"/TesselDelivery/DeliveryItems/"_s + name);
        TextReader reader(disk);
        EXPECT_EQ(reader.Text() + u".txt"_s, name);
        const qint16 count = reader.Int16();
        EXPECT_TRUE(count >= 1 && count <= 4) << count;
        Currency sum;
        for (int line = 0; line < count; ++line) {
            EXPECT_GE(reader.Int16(), 1);
            EXPECT_FALSE(IsNumeric(reader.Text()));
            EXPECT_TRUE(IsNumeric(reader.Text()));
            sum += ToCurrency(reader.Text());
        }
        EXPECT_EQ(ToCurrency(reader.Text()), sum);
        EXPECT_TRUE(reader.AtEnd());
        disk.CloseAllFiles();
    }
}

TEST_F(SampleBusinessTest, TheStartAsksThreeTimesAndClearsTwoSlipsAway) {
    LayOutSampleBusiness(yard, {2026, 3, 11});
    StartOn({2026, 3, 11}, {u"3/9/2026"_s, u"3/10/2026"_s});
    EXPECT_EQ(QDir(yard + u"/TesselDelivery/Deliveries"_s).entryList(QDir::Files).size(), 58);
    EXPECT_TRUE(
        Read(u"TesselDelivery/Deliveries/20260001.txt"_s).startsWith("20260001\r\n3/11/2026\r\n"));
    EXPECT_TRUE(
        Read(u"TesselDelivery/Deliveries/20260003.txt"_s).startsWith("20260003\r\n3/11/2026\r\n"));
}

TEST_F(SampleBusinessTest, TheStartAsksTheSameOnAWeekend) {
    LayOutSampleBusiness(yard, {2026, 3, 14});
    StartOn({2026, 3, 14}, {u"3/12/2026"_s, u"3/13/2026"_s});
    EXPECT_TRUE(
        Read(u"TesselDelivery/Deliveries/20260001.txt"_s).startsWith("20260001\r\n3/16/2026\r\n"));
    EXPECT_TRUE(
        Read(u"TesselDelivery/Deliveries/20260006.txt"_s).startsWith("20260006\r\n3/16/2026\r\n"));
}

TEST_F(SampleBusinessTest, OnAnyDayOfTheYearTheStartLeavesNoPastSlipAndMeetsNoHoliday) {
    for (QDate today(2026, 1, 1); today.year() == 2026; today = today.addDays(13)) {
        SCOPED_TRACE(today.toString(Qt::ISODate).toStdString());
        yard = folder.PathOf(u"Yard of "_s + today.toString(Qt::ISODate));
        LayOutSampleBusiness(yard, today);
        StartOn(today, {DateOfSlip(u"20260004"_s), DateOfSlip(u"20260005"_s)});
        for (const QString& name :
             QDir(yard + u"/TesselDelivery/Deliveries"_s).entryList(QDir::Files))
            EXPECT_GE(ToDate(DateOfSlip(name.chopped(4))), today) << name.toStdString();
    }
}

TEST_F(SampleBusinessTest, TheHolidayIsTheSixthWorkDayAndBearsNoSlip) {
    LayOutSampleBusiness(yard, {2026, 3, 11});
    EXPECT_EQ(Read(u"Holidays.txt"_s), "#2026-03-18#\r\n");
    BasicDiskRoutines disk(yard);
    for (const QString& name : disk.ListFiles(u"/TesselDelivery/Deliveries"_s, u"*.txt"_s))
        EXPECT_FALSE(Read(u"TesselDelivery/Deliveries/"_s + name).contains("\r\n3/18/2026\r\n"));
}

TEST_F(SampleBusinessTest, TheThreeCustomerFilesRunInStep) {
    LayOutSampleBusiness(yard, {2026, 3, 11});
    const QByteArray customers = Read(u"CustomerData.txt"_s);
    const QByteArray contracts = Read(u"ContractInfo.txt"_s);
    const QByteArray cycles = Read(u"CycleInfo.txt"_s);
    ASSERT_EQ(customers.size(), 12 * 328);
    ASSERT_EQ(contracts.size(), 12 * 386);
    ASSERT_EQ(cycles.size(), 12 * 69);

    const QByteArray individual = customers.mid(8 * 328, 328);
    EXPECT_EQ(individual.left(20), "1009                ");
    EXPECT_EQ(individual.mid(20, 45), QByteArray(45, ' '));
    EXPECT_EQ(individual.mid(263, 10), "Mr.       ");
    EXPECT_EQ(individual.mid(289, 25), "Whitcomb                 ");
    EXPECT_EQ(individual.mid(314, 14), QByteArray("Individual\x01\x00\x00\x00", 14));

    const QByteArray contract = contracts.left(386);
    EXPECT_EQ(contract.left(35), "None Selected                      ");
    EXPECT_EQ(contract.mid(58, 9), "Wednesday");
    EXPECT_EQ(contract.mid(123, 6), QByteArray("\x00\x00\xff\xff\x00\x00", 6));
    EXPECT_EQ(contract.mid(199, 35), QByteArray(35, '\0'));
    EXPECT_EQ(contract.mid(336, 50), QByteArray(50, ' '));
    EXPECT_EQ(cycles.left(35), "None                               ");
    EXPECT_EQ(cycles.mid(65, 4), QByteArray("\x00\x00\xff\xff", 4));
}

TEST_F(SampleBusinessTest, UnderAnotherRegionDatesAndAmountsAreOfThatRegion) {
    UseLocale("de_DE");
    LayOutSampleBusiness(yard, {2026, 3, 11});
    StartOn({2026, 3, 11}, {u"09.03.2026"_s, u"10.03.2026"_s});
    EXPECT_TRUE(Read(u"DeliverySettings.txt"_s).endsWith("\"25,00\xa0\x80\"\r\n"));
}

TEST_F(SampleBusinessTest, AFolderThatHoldsAnythingIsRefusedAndLeftAsItIs) {
    folder.Write(u"Yard/.hidden"_s, "mine");
    const RuntimeFailure failure =
        FailureOf([&] { LayOutSampleBusiness(yard, QDate(2026, 3, 9)); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileAlreadyExists);
    EXPECT_TRUE(failure.Sentence().contains(yard));
    EXPECT_EQ(QDir(yard).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u".hidden"_s});
    EXPECT_EQ(Read(u".hidden"_s), "mine");
}
