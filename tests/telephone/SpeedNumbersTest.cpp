#include "telephone/SpeedNumbers.h"

#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString speedFile = u"SpeedNumbers.txt"_s;

} // namespace

class SpeedNumbersTest : public OfficeTest {
protected:
    SpeedNumbers entries{office.disk};

    void ExpectSlot(size_t slot, const QString& name, const QString& number) {
        EXPECT_EQ(entries.SpeedName[slot], name) << slot;
        EXPECT_EQ(entries.SpeedNumber[slot], number) << slot;
    }
    void ExpectEmptyFrom(size_t first) {
        for (size_t slot = first; slot < SpeedNumbers::count; ++slot)
            ExpectSlot(slot, {}, {});
    }
};

TEST_F(SpeedNumbersTest, WithoutAFileAllTenAreEmptyAndNoneIsMade) {
    entries.SpeedName.fill(u"left over"_s);
    entries.SpeedNumber.fill(u"1"_s);
    entries.Load();
    ExpectEmptyFrom(0);
    EXPECT_FALSE(folder.Has(speedFile));
}

TEST_F(SpeedNumbersTest, PairsOfLinesGoIntoTheSlotsFromTheFirstOn) {
    folder.Write(speedFile, "Corner Dairy\r\n217-555-0100\r\nB\xfcro S\xfc"
                            "d, Nord\r\n1-217-555-0101\r\n");
    entries.Load();
    ExpectSlot(0, u"Corner Dairy"_s, u"217-555-0100"_s);
    ExpectSlot(1, u"Büro Süd, Nord"_s, u"1-217-555-0101"_s);
    ExpectEmptyFrom(2);
}

TEST_F(SpeedNumbersTest, TenPairsFillAllSlots) {
    QByteArray bytes;
    for (char digit = '0'; digit <= '9'; ++digit)
        bytes += QByteArray("Name ") + digit + "\r\n555-010" + digit + "\r\n";
    folder.Write(speedFile, bytes);
    entries.Load();
    ExpectSlot(0, u"Name 0"_s, u"555-0100"_s);
    ExpectSlot(9, u"Name 9"_s, u"555-0109"_s);
}

TEST_F(SpeedNumbersTest, FilledSlotsAreWrittenAsPlainLinesAndCloseUpWithTheNextLoad) {
    entries.SpeedName[1] = u"Büro \"Süd\", Nord"_s;
    entries.SpeedNumber[1] = u"217-555-0100"_s;
    entries.SpeedName[9] = u"  Last "_s;
    entries.SpeedNumber[9] = u""_s;
    entries.Save();
    EXPECT_EQ(folder.Read(speedFile), "B\xfcro \"S\xfc"
                                      "d\", Nord\r\n217-555-0100\r\n  Last \r\n\r\n");
    ExpectSlot(9, u"  Last "_s, {});
    entries.Load();
    ExpectSlot(0, u"Büro \"Süd\", Nord"_s, u"217-555-0100"_s);
    ExpectSlot(1, u"  Last "_s, {});
    ExpectEmptyFrom(2);
}

TEST_F(SpeedNumbersTest, NumberWithoutANameIsNotWritten) {
    entries.SpeedNumber[0] = u"217-555-0100"_s;
    entries.Save();
    EXPECT_EQ(folder.Read(speedFile), "");
}

TEST_F(SpeedNumbersTest, CharactersOutsideTheCodePageAreWrittenAsQuestionMarks) {
    entries.SpeedName[0] = u"寿司 Łódź"_s;
    entries.SpeedNumber[0] = u"٣"_s;
    entries.Save();
    EXPECT_EQ(folder.Read(speedFile), "?? ?\xf3"
                                      "d?\r\n?\r\n");
}

TEST_F(SpeedNumbersTest, FileIsTheSameInEveryRegion) {
    UseLocale("de_DE");
    entries.SpeedName[0] = u"1.000,50 €"_s;
    entries.SpeedNumber[0] = u"03581 555 0199"_s;
    entries.Save();
    EXPECT_EQ(folder.Read(speedFile), "1.000,50 \x80\r\n03581 555 0199\r\n");
    entries.Load();
    ExpectSlot(0, u"1.000,50 €"_s, u"03581 555 0199"_s);
}

TEST_F(SpeedNumbersTest, SavingLeavesACopyInBackup) {
    folder.Write(u"Backup/SpeedNumbers.txt"_s, "Old\r\n1\r\n");
    entries.SpeedName[0] = u"New"_s;
    entries.Save();
    EXPECT_EQ(folder.Read(u"Backup/SpeedNumbers.txt"_s), "Old\r\n1\r\n");
    EXPECT_EQ(folder.Read(speedFile), "New\r\n\r\n");
}

TEST_F(SpeedNumbersTest, LostFileIsBroughtBackFromBackup) {
    folder.Write(u"Backup/SpeedNumbers.txt"_s, "Old\r\n1\r\n");
    entries.Load();
    ExpectSlot(0, u"Old"_s, u"1"_s);
    EXPECT_EQ(folder.Read(speedFile), "Old\r\n1\r\n");
}

TEST_F(SpeedNumbersTest, EntryOfAThousandCharactersIsKeptWhole) {
    entries.SpeedName[0] = QString(1000, u'n');
    entries.SpeedNumber[0] = QString(1000, u'7');
    entries.Save();
    EXPECT_EQ(folder.Read(speedFile),
              QByteArray(1000, 'n') + "\r\n" + QByteArray(1000, '7') + "\r\n");
    entries.Load();
    ExpectSlot(0, QString(1000, u'n'), QString(1000, u'7'));
}

// Bad input.

TEST_F(SpeedNumbersTest, OddNumberOfLinesFailsAtTheReadPastTheEndAndKeepsTheFile) {
    for (const QByteArray& bytes : {QByteArray("A\r\n1\r\nB\r\n"), QByteArray("A"),
                                    QByteArray("A\r\n1\r\nB"), QByteArray("\r\n")}) {
        folder.Write(speedFile, bytes);
        const RuntimeFailure failure = FailureOf([this] { entries.Load(); });
        EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading SpeedNumbers.txt failed: "_s))
            << failure.what();
        EXPECT_EQ(folder.Read(speedFile), bytes);
    }
}

TEST_F(SpeedNumbersTest, LastLineNeedsNoLineEnd) {
    folder.Write(speedFile, "A\r\n1");
    entries.Load();
    ExpectSlot(0, u"A"_s, u"1"_s);
}

TEST_F(SpeedNumbersTest, ElevenPairsFailAndKeepTheFile) {
    QByteArray bytes;
    for (int pair = 0; pair < 11; ++pair)
        bytes += "Name\r\n555-0100\r\n";
    folder.Write(speedFile, bytes);
    const RuntimeFailure failure = FailureOf([this] { entries.Load(); });
    EXPECT_EQ(failure.Kind(), FailureKind::Subscript);
    EXPECT_EQ(failure.Sentence(),
              u"Reading SpeedNumbers.txt failed: there is no button for more than 10 entries."_s);
    EXPECT_EQ(folder.Read(speedFile), bytes);
}

TEST_F(SpeedNumbersTest, UnreadableFileFailsByName) {
    folder.Write(speedFile, "A\r\n1\r\n");
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(speedFile).toUtf8().constData(), 0), 0);
    const RuntimeFailure failure = FailureOf([this] { entries.Load(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(),
              u"Opening SpeedNumbers.txt for reading failed: Permission denied."_s);
}

TEST_F(SpeedNumbersTest, UnwritableFolderFailsByNameAndKeepsTheFile) {
    folder.Write(speedFile, "A\r\n1\r\n");
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([this] { entries.Save(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Deleting SpeedNumbers.txt failed: Permission denied."_s);
    EXPECT_EQ(folder.Read(speedFile), "A\r\n1\r\n");
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(SpeedNumbersTest, FullDiskFailsByName) {
    entries.SpeedName[0] = u"A"_s;
    const FullDisk full(2);
    const RuntimeFailure failure = FailureOf([this] { entries.Save(); });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(), u"Writing SpeedNumbers.txt failed: File too large."_s);
}
