#include "store/TextLines.h"

#include "platform/RegionalFormats.h"
#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

class TextLinesTest : public testing::Test {
protected:
    /// What a file holds after one writer has written to it.
    template <typename Writing>
    QByteArray Written(Writing&& writing) {
        disk.OpenForOutput(u"/T.txt"_s);
        TextWriter writer(disk);
        writing(writer);
        disk.CloseAllFiles();
        return folder.Read(u"T.txt"_s);
    }

    /// A reader on a file with that content.
    TextReader Reading(const QByteArray& content) {
        folder.Write(u"T.txt"_s, content);
        disk.OpenForInput(u"/T.txt"_s);
        return TextReader(disk);
    }

    TestFolder folder;
    BasicDiskRoutines disk{folder.Path()};
};

} // namespace

TEST_F(TextLinesTest, PlainLineIsTheValueAsItStandsWithCrLf) {
    EXPECT_EQ(Written([](TextWriter& writer) {
                  writer.Plain(u"20260014"_s);
                  writer.Plain(u"Gravel, \"fine\""_s);
                  writer.Plain(u""_s);
                  writer.Plain(u"  blanks  "_s);
              }),
              "20260014\r\nGravel, \"fine\"\r\n\r\n  blanks  \r\n");
}

TEST_F(TextLinesTest, QuotedLineStandsBetweenQuotesAndEscapesNothing) {
    EXPECT_EQ(Written([](TextWriter& writer) {
                  writer.Quoted(u"Corner Grocery"_s);
                  writer.Quoted(u""_s);
                  writer.Quoted(u"12\" pipe"_s);
              }),
              "\"Corner Grocery\"\r\n\"\"\r\n\"12\" pipe\"\r\n");
}

TEST_F(TextLinesTest, RecordLineSeparatesItsValuesByCommasWithoutBlanks) {
    EXPECT_EQ(Written([](TextWriter& writer) {
                  writer.Record(RecordLine()
                                    .Number(0)
                                    .Number(1)
                                    .Boolean(true)
                                    .Boolean(false)
                                    .Text(u"$0.00"_s)
                                    .Text(u"$12.50"_s));
              }),
              "0,1,#TRUE#,#FALSE#,\"$0.00\",\"$12.50\"\r\n");
}

TEST_F(TextLinesTest, RecordLineOfOneFieldHasTheSameForms) {
    EXPECT_EQ(Written([](TextWriter& writer) {
                  writer.Record(RecordLine().Date(QDate(2026, 12, 25)));
                  writer.Record(RecordLine().Date(QDate(2027, 1, 2)));
                  writer.Record(RecordLine().Boolean(true));
                  writer.Record(RecordLine().Text(u""_s));
                  writer.Record(RecordLine().Number(-32'768));
                  writer.Record(RecordLine().Number(2'147'483'647));
              }),
              "#2026-12-25#\r\n#2027-01-02#\r\n#TRUE#\r\n\"\"\r\n-32768\r\n2147483647\r\n");
}

TEST_F(TextLinesTest, DateHasATimeOfDayOnlyIfItCarriesOne) {
    const QDate day(2026, 12, 25);
    EXPECT_EQ(Written([&](TextWriter& writer) {
                  writer.Record(RecordLine().Date(QDateTime(day, QTime(18, 5, 9), Qt::UTC)));
                  writer.Record(RecordLine().Date(QDateTime(day, QTime(0, 0, 1), Qt::UTC)));
                  writer.Record(RecordLine().Date(QDateTime(day, QTime(0, 0), Qt::UTC)));
              }),
              "#2026-12-25 18:05:09#\r\n#2026-12-25 00:00:01#\r\n#2026-12-25#\r\n");
}

TEST_F(TextLinesTest, SingleNumbersHaveAPointInEveryRegion) {
    RegionalFormats::SetCurrent({QLocale(u"de_DE"_s), QLocale(u"de_DE"_s)});
    EXPECT_EQ(Written([](TextWriter& writer) {
                  writer.Record(RecordLine().Single(1440.0F).Single(1234.5F));
                  writer.Record(RecordLine().Single(0.25F).Single(-3.0F));
              }),
              "1440,1234.5\r\n0.25,-3\r\n");
}

TEST_F(TextLinesTest, SingleNumbersAreBareDecimalsWithoutAnExponent) {
    EXPECT_EQ(Written([](TextWriter& writer) {
                  for (const float value : {12345678.0F, 0.00001F, 1440.0F, 1440.5F, 0.0F})
                      writer.Record(RecordLine().Single(value));
              }),
              "12345678\r\n0.00001\r\n1440\r\n1440.5\r\n0\r\n");
}

TEST_F(TextLinesTest, RewriteDeletesTheCopyInBackup) {
    folder.Write(u"T.txt"_s, "a longer old content\r\n");
    folder.Write(u"Backup/T.txt"_s, "older");
    RewriteFile(disk, u"/T.txt"_s, {RecordLine().Number(1), RecordLine().Number(2)});
    EXPECT_EQ(folder.Read(u"T.txt"_s), "1\r\n2\r\n");
    EXPECT_FALSE(folder.Has(u"Backup/T.txt"_s));
}

TEST_F(TextLinesTest, WritingRecordLinesLeavesTheCopyInBackup) {
    folder.Write(u"T.txt"_s, "a longer old content\r\n");
    folder.Write(u"Backup/T.txt"_s, "older");
    WriteRecordLines(disk, u"/T.txt"_s, {RecordLine().Number(1), RecordLine().Number(2)});
    EXPECT_EQ(folder.Read(u"T.txt"_s), "1\r\n2\r\n");
    EXPECT_EQ(folder.Read(u"Backup/T.txt"_s), "older");
}

TEST_F(TextLinesTest, TextIsWrittenInTheCodePageAndAQuestionMarkForWhatItLacks) {
    EXPECT_EQ(Written([](TextWriter& writer) {
                  writer.Plain(u"Caf\u00e9 \u20ac5 \u2013 \u0141\u00f3d\u017a \U0001F69A."_s);
              }),
              "Caf\xe9 \x80"
              "5 \x96 ?\xf3"
              "d? ?.\r\n");
}

TEST_F(TextLinesTest, BooleanOfAPlainLineIsEnglish) {
    RegionalFormats::SetCurrent({QLocale(u"de_DE"_s), QLocale(u"de_DE"_s)});
    EXPECT_EQ(BooleanWord(true), u"True"_s);
    EXPECT_EQ(BooleanWord(false), u"False"_s);
}

TEST_F(TextLinesTest, WholeLineTakesEverythingUpToCrLfWithItsQuotes) {
    TextReader reader = Reading("a,\"b\" \r\n\r\n \"quoted\"\r\nlast");
    EXPECT_EQ(reader.WholeLine(), u"a,\"b\" "_s);
    EXPECT_EQ(reader.WholeLine(), u""_s);
    EXPECT_FALSE(reader.AtEnd());
    EXPECT_EQ(reader.WholeLine(), u" \"quoted\""_s);
    EXPECT_EQ(reader.WholeLine(), u"last"_s);
    EXPECT_TRUE(reader.AtEnd());
}

TEST_F(TextLinesTest, CrOrLfAloneEndsNoLineAndNoField) {
    TextReader lines = Reading("a\rb\nc\r\nd\r");
    EXPECT_EQ(lines.WholeLine(), u"a\rb\nc"_s);
    EXPECT_EQ(lines.WholeLine(), u"d\r"_s);
    TextReader fields = Reading("a\rb\nc\r\nd\r");
    EXPECT_EQ(fields.Text(), u"a\rb\nc"_s);
    EXPECT_EQ(fields.Text(), u"d\r"_s);
}

TEST_F(TextLinesTest, LineIsReadInTheCodePage) {
    TextReader reader = Reading("Caf\xe9 \x80\x92\r\n");
    EXPECT_EQ(reader.WholeLine(), u"Caf\u00e9 \u20ac\u2019"_s);
}

TEST_F(TextLinesTest, SkippedLinesAreWholeLines) {
    TextReader reader = Reading("1,2\r\n\"a\r\nthird\r\n");
    reader.SkipLines(2);
    EXPECT_EQ(reader.WholeLine(), u"third"_s);
}

TEST_F(TextLinesTest, FieldsOfARecordLineComeBack) {
    TextReader reader = Reading("0,-5,#TRUE#,#FALSE#,\"Arial, bold\",255,1234.5,#2026-12-25#\r\n");
    EXPECT_EQ(reader.Int16(), 0);
    EXPECT_EQ(reader.Int32(), -5);
    EXPECT_TRUE(reader.Boolean());
    EXPECT_FALSE(reader.Boolean());
    EXPECT_EQ(reader.Text(), u"Arial, bold"_s);
    EXPECT_EQ(reader.Byte(), 255);
    EXPECT_EQ(reader.Single(), 1234.5F);
    EXPECT_EQ(reader.Date().date(), QDate(2026, 12, 25));
    EXPECT_TRUE(reader.AtEnd());
}

TEST_F(TextLinesTest, FieldReaderDoesNotCareAboutLineBreaks) {
    TextReader reader = Reading("8\r\n5\r\n#TRUE#,\"a\"\r\n\"b\"");
    EXPECT_EQ(reader.Int16(), 8);
    EXPECT_EQ(reader.Int16(), 5);
    EXPECT_TRUE(reader.Boolean());
    EXPECT_EQ(reader.Text(), u"a"_s);
    EXPECT_EQ(reader.Text(), u"b"_s);
    EXPECT_TRUE(reader.AtEnd());
}

TEST_F(TextLinesTest, CommaSplitsAPlainLineIntoTwoFields) {
    TextReader reader = Reading("$1,250.00\r\nGravel, fine\r\n");
    EXPECT_EQ(reader.Text(), u"$1"_s);
    EXPECT_EQ(reader.Text(), u"250.00"_s);
    EXPECT_EQ(reader.Text(), u"Gravel"_s);
    EXPECT_EQ(reader.Text(), u"fine"_s);
}

TEST_F(TextLinesTest, FieldSkipsTheBlanksBeforeIt) {
    TextReader reader = Reading("   Back door \r\n  \"  quoted \" , 7\r\n");
    EXPECT_EQ(reader.Text(), u"Back door "_s);
    EXPECT_EQ(reader.Text(), u"  quoted "_s);
    EXPECT_EQ(reader.Int16(), 7);
}

TEST_F(TextLinesTest, QuoteInAQuotedLineEndsTheField) {
    TextReader reader = Reading("\"12\" pipe\"\r\n\"next\"\r\n");
    EXPECT_EQ(reader.Text(), u"12"_s);
    EXPECT_EQ(reader.Text(), u"pipe\""_s);
    EXPECT_EQ(reader.Text(), u"next"_s);
}

TEST_F(TextLinesTest, QuotedFieldRunsAcrossLineEnds) {
    TextReader reader = Reading("\"two\r\nlines, one field\"\r\n\"unclosed\r\n");
    EXPECT_EQ(reader.Text(), u"two\r\nlines, one field"_s);
    EXPECT_EQ(reader.Text(), u"unclosed\r\n"_s);
    EXPECT_TRUE(reader.AtEnd());
}

TEST_F(TextLinesTest, EmptyFieldsAreFields) {
    TextReader reader = Reading(",\"\"\r\n\r\nx\r\n");
    EXPECT_EQ(reader.Text(), u""_s);
    EXPECT_EQ(reader.Text(), u""_s);
    EXPECT_EQ(reader.Text(), u""_s);
    EXPECT_EQ(reader.Text(), u"x"_s);
}

TEST_F(TextLinesTest, WholeLinesAndFieldsMixInOneFile) {
    TextReader reader = Reading("first line, whole\r\n\"quoted\"\r\n7\r\n");
    EXPECT_EQ(reader.WholeLine(), u"first line, whole"_s);
    EXPECT_EQ(reader.Text(), u"quoted"_s);
    EXPECT_EQ(reader.Int16(), 7);
}

TEST_F(TextLinesTest, DateFieldMayCarryATime) {
    TextReader reader = Reading("#2026-12-25 08:30:00#\r\n#2026-12-26#\r\n");
    EXPECT_EQ(reader.Date(), QDateTime({2026, 12, 25}, {8, 30}, Qt::UTC));
    EXPECT_EQ(reader.Date(), QDateTime({2026, 12, 26}, {0, 0}, Qt::UTC));
}

TEST_F(TextLinesTest, ReadingPastTheEndFailsAndNamesTheFile) {
    TextReader reader = Reading("only\r\n");
    reader.WholeLine();
    for (const RuntimeFailure& failure :
         {FailureOf([&] { reader.WholeLine(); }), FailureOf([&] { reader.Text(); }),
          FailureOf([&] { reader.Int16(); }), FailureOf([&] { reader.SkipLines(1); })}) {
        EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
        EXPECT_EQ(failure.Sentence(),
                  u"Reading T.txt failed: the file ends before all of its values were read."_s);
    }
}

TEST_F(TextLinesTest, EmptyFileIsAtItsEnd) {
    TextReader reader = Reading("");
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(FailureOf([&] { reader.WholeLine(); }).Kind(), FailureKind::ReadPastEnd);
}

TEST_F(TextLinesTest, FieldOfTheWrongTypeIsAMismatchThatShowsIt) {
    const RuntimeFailure number = FailureOf([this] { Reading("eight\r\n").Int16(); });
    EXPECT_EQ(number.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(number.Sentence(), u"Reading T.txt failed: \"eight\" is not a number."_s);
    const RuntimeFailure boolean = FailureOf([this] { Reading("True\r\n").Boolean(); });
    EXPECT_EQ(boolean.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(boolean.Sentence(), u"Reading T.txt failed: \"True\" is not #TRUE# or #FALSE#."_s);
    const RuntimeFailure date = FailureOf([this] { Reading("12/25/2026\r\n").Date(); });
    EXPECT_EQ(date.Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(date.Sentence(), u"Reading T.txt failed: \"12/25/2026\" is not a date."_s);
}

TEST_F(TextLinesTest, WhatIsNoDateIsRefused) {
    for (const char* text : {"", "##", "#2026-13-01#", "#2026-02-29#", "#2026-12-25", "2026-12-25",
                             "#2026-12-25 25:00:00#", "#26-12-25#", "#2026-12-25 noon#"})
        EXPECT_EQ(FailureOf([&] { Reading(QByteArray(text) + "\r\n").Date(); }).Kind(),
                  FailureKind::TypeMismatch)
            << text;
}

TEST_F(TextLinesTest, NumberOutsideItsTypeIsAnOverflow) {
    const auto kindOf = [this](const char* text, auto&& reading) {
        return FailureOf([&] {
                   TextReader reader = Reading(text);
                   reading(reader);
               })
            .Kind();
    };
    const auto int16 = [](TextReader& reader) { reader.Int16(); };
    const auto int32 = [](TextReader& reader) { reader.Int32(); };
    const auto byte = [](TextReader& reader) { reader.Byte(); };
    const auto single = [](TextReader& reader) { reader.Single(); };
    EXPECT_EQ(kindOf("32768", int16), FailureKind::Overflow);
    EXPECT_EQ(kindOf("-32769", int16), FailureKind::Overflow);
    EXPECT_EQ(kindOf("32767.5", int16), FailureKind::Overflow);
    EXPECT_EQ(kindOf("2147483648", int32), FailureKind::Overflow);
    EXPECT_EQ(kindOf("256", byte), FailureKind::Overflow);
    EXPECT_EQ(kindOf("-1", byte), FailureKind::Overflow);
    EXPECT_EQ(kindOf("1e39", single), FailureKind::Overflow);
    EXPECT_EQ(kindOf("1e400", int16), FailureKind::Overflow);
    EXPECT_EQ(kindOf("1e400", int32), FailureKind::Overflow);
    EXPECT_EQ(kindOf("1e400", single), FailureKind::Overflow);
    EXPECT_EQ(kindOf("-1e400", int32), FailureKind::Overflow);
    EXPECT_EQ(kindOf("inf", single), FailureKind::Overflow);
    EXPECT_EQ(kindOf("nan", single), FailureKind::TypeMismatch);
    EXPECT_EQ(kindOf("nan", int16), FailureKind::TypeMismatch);
}

TEST_F(TextLinesTest, NumbersAtTheEdgeOfTheirTypeAreRead) {
    TextReader reader = Reading("32767,-32768,2147483647,-2147483648,255,0\r\n2.5,3.5,-0.5\r\n");
    EXPECT_EQ(reader.Int16(), 32'767);
    EXPECT_EQ(reader.Int16(), -32'768);
    EXPECT_EQ(reader.Int32(), 2'147'483'647);
    EXPECT_EQ(reader.Int32(), -2'147'483'647 - 1);
    EXPECT_EQ(reader.Byte(), 255);
    EXPECT_EQ(reader.Byte(), 0);
    EXPECT_EQ(reader.Int16(), 2);
    EXPECT_EQ(reader.Int16(), 4);
    EXPECT_EQ(reader.Byte(), 0);
}

TEST_F(TextLinesTest, BinaryContentIsReadAsTextAndRefusedAsAnythingElse) {
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes += char(i);
    folder.Write(u"T.txt"_s, bytes);
    disk.OpenForInput(u"/T.txt"_s);
    EXPECT_EQ(TextReader(disk).WholeLine().size(), 256);
    EXPECT_EQ(FailureOf([&] { Reading(bytes).Int32(); }).Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(FailureOf([&] { Reading(bytes).Boolean(); }).Kind(), FailureKind::TypeMismatch);
    EXPECT_EQ(FailureOf([&] { Reading(bytes).Date(); }).Kind(), FailureKind::TypeMismatch);
}

TEST_F(TextLinesTest, EveryByteReadIsTheSameByteWritten) {
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes += char(i);
    const QString line = Reading(bytes).WholeLine();
    EXPECT_EQ(Written([&](TextWriter& writer) { writer.Plain(line); }), bytes + "\r\n");
}

TEST_F(TextLinesTest, LongFieldIsShownShortInTheFailure) {
    const RuntimeFailure failure = FailureOf([this] { Reading(QByteArray(100'000, 'x')).Int16(); });
    EXPECT_LT(failure.Sentence().size(), 150);
}

TEST_F(TextLinesTest, SeveralWholeLinesComeWithTheirLineEnds) {
    TextReader lines = Reading("one\r\n\"two\"\r\nthree\r\n");
    EXPECT_EQ(lines.WholeLines(2), u"one\r\n\"two\"\r\n"_s);
    EXPECT_EQ(lines.WholeLine(), u"three"_s);
    TextReader tooFew = Reading("one\r\n");
    EXPECT_EQ(FailureOf([&] { tooFew.WholeLines(2); }).Kind(), FailureKind::ReadPastEnd);
}
