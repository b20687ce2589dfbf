#include "schedule/InvoiceNumber.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

class InvoiceNumberTest : public OfficeTest {
protected:
    InvoiceNumber invoiceNumber{office.disk, clock};
};

TEST_F(InvoiceNumberTest, MissingFileStartsTheYearsSeriesAndIsCreated) {
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 20260001);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260001\r\n"));
}

TEST_F(InvoiceNumberTest, NumberInTheFileIsTheNextNumber) {
    folder.Write(u"NXInvoiceNo.txt"_s, "20260042\r\n");
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 20260042);
}

TEST_F(InvoiceNumberTest, FileIsWrittenBackInEveryCase) {
    folder.Write(u"NXInvoiceNo.txt"_s, " 00500, and more");
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 500);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("500\r\n"));
}

TEST_F(InvoiceNumberTest, ZeroStartsTheYearsSeries) {
    folder.Write(u"NXInvoiceNo.txt"_s, "0\r\n");
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 20260001);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260001\r\n"));
}

TEST_F(InvoiceNumberTest, LaterYearDoesNotRestartARunningSeries) {
    folder.Write(u"NXInvoiceNo.txt"_s, "20260042\r\n");
    clock.Date = {2027, 1, 4};
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 20260042);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260042\r\n"));
}

TEST_F(InvoiceNumberTest, DeletedFileStartsTheSeriesOfTheYearOfTheNextLoad) {
    invoiceNumber.SaveInvoiceNumber(20260042);
    folder.Remove(u"NXInvoiceNo.txt"_s);
    clock.Date = {2027, 1, 4};
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 20270001);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20270001\r\n"));
}

TEST_F(InvoiceNumberTest, LostFileComesBackFromItsCopy) {
    folder.Write(u"Backup/NXInvoiceNo.txt"_s, "20260077\r\n");
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 20260077);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260077\r\n"));
}

TEST_F(InvoiceNumberTest, SavingWritesOneLineOfBareDigitsAndDropsTheOldCopy) {
    folder.Write(u"NXInvoiceNo.txt"_s, "20260041\r\n");
    folder.Write(u"Backup/NXInvoiceNo.txt"_s, "20260040\r\n");
    invoiceNumber.SaveInvoiceNumber(20260042);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260042\r\n"));
    EXPECT_FALSE(folder.Has(u"Backup/NXInvoiceNo.txt"_s));
}

TEST_F(InvoiceNumberTest, SavingClosesAllFiles) {
    folder.Write(u"Other.txt"_s, "one\r\n");
    office.disk.OpenForInput(u"/Other.txt"_s);
    const qint16 other = office.disk.DiskFile;
    invoiceNumber.SaveInvoiceNumber(7);
    EXPECT_EQ(FailureOf([&] { (void)office.disk.InputOn(other); }).Kind(),
              FailureKind::FileNotOpen);
    EXPECT_EQ(FailureOf([&] { office.disk.Append(office.disk.DiskFile, "more"); }).Kind(),
              FailureKind::FileNotOpen);
}

TEST_F(InvoiceNumberTest, LargestNumberIsReadAndWritten) {
    folder.Write(u"NXInvoiceNo.txt"_s, "2147483647\r\n");
    EXPECT_EQ(invoiceNumber.LoadInvoiceNumber(), 2147483647);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("2147483647\r\n"));
}

TEST_F(InvoiceNumberTest, NumberBeyondThirtyTwoBitsIsAnOverflowAndLeavesTheFileAlone) {
    folder.Write(u"NXInvoiceNo.txt"_s, "2147483648\r\n");
    const RuntimeFailure failure = FailureOf([&] { invoiceNumber.LoadInvoiceNumber(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_TRUE(failure.Sentence().contains(u"NXInvoiceNo.txt"_s));
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("2147483648\r\n"));
}

TEST_F(InvoiceNumberTest, TextInTheFileIsATypeMismatchAndLeavesTheFileAlone) {
    folder.Write(u"NXInvoiceNo.txt"_s, "next one\r\n");
    const RuntimeFailure failure = FailureOf([&] { invoiceNumber.LoadInvoiceNumber(); });
    EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch);
    EXPECT_TRUE(failure.Sentence().contains(u"NXInvoiceNo.txt"_s));
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("next one\r\n"));
}

TEST_F(InvoiceNumberTest, EmptyFileIsReadPastItsEnd) {
    folder.Write(u"NXInvoiceNo.txt"_s, "");
    EXPECT_EQ(FailureOf([&] { invoiceNumber.LoadInvoiceNumber(); }).Kind(),
              FailureKind::ReadPastEnd);
}

TEST_F(InvoiceNumberTest, AdvancingSavesTheNumberBehindTheOneShown) {
    folder.Write(u"NXInvoiceNo.txt"_s, "7\r\n");
    folder.Write(u"Backup/NXInvoiceNo.txt"_s, "6\r\n");
    invoiceNumber.AdvanceInvoiceNumber(u"20260041"_s);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("20260042\r\n"));
    EXPECT_FALSE(folder.Has(u"Backup/NXInvoiceNo.txt"_s));
}

TEST_F(InvoiceNumberTest, LastNumberAndTextCanNotAdvanceAndLeaveTheFileAlone) {
    folder.Write(u"NXInvoiceNo.txt"_s, "2147483647\r\n");
    invoiceNumber.AdvanceInvoiceNumber(u"2147483646"_s);
    EXPECT_EQ(FailureOf([this] { invoiceNumber.AdvanceInvoiceNumber(u"2147483647"_s); }).Kind(),
              FailureKind::Overflow);
    EXPECT_EQ(FailureOf([this] { invoiceNumber.AdvanceInvoiceNumber(u"next"_s); }).Kind(),
              FailureKind::TypeMismatch);
    EXPECT_EQ(FailureOf([this] { invoiceNumber.AdvanceInvoiceNumber({}); }).Kind(),
              FailureKind::TypeMismatch);
    EXPECT_EQ(folder.Read(u"NXInvoiceNo.txt"_s), QByteArray("2147483647\r\n"));
}
