#include "products/TallyLocations.h"

#include "support/OfficeTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString locationsFile = u"Locations.txt"_s;

} // namespace

class TallyLocationsTest : public OfficeTest {
protected:
    TallyLocations& locations = office.tallyLocations;

    QStringList Texts() const {
        const auto& texts = office.tallyLocations.txtTally;
        return {texts.begin(), texts.end()};
    }
    QStringList Loaded(const QByteArray& bytes) {
        folder.Write(locationsFile, bytes);
        locations.Load();
        return Texts();
    }
};

TEST_F(TallyLocationsTest, LocationsAreFivePlainLines) {
    locations.txtTally = {u"Shed"_s, QString(), u"Van \"2\", left"_s, u"Lager Süd €"_s, u" x "_s};
    locations.Save();
    EXPECT_EQ(folder.Read(locationsFile), "Shed\r\n\r\nVan \"2\", left\r\nLager S\xfc"
                                          "d \x80\r\n x \r\n");
}

TEST_F(TallyLocationsTest, CharacterThatTheFileCannotHoldBecomesAQuestionMark) {
    locations.txtTally = {u"倉庫"_s};
    locations.Save();
    EXPECT_EQ(folder.Read(locationsFile), "??\r\n\r\n\r\n\r\n\r\n");
}

TEST_F(TallyLocationsTest, SavedLocationsComeBack) {
    locations.txtTally = {u"Shed"_s, QString(), u"Yard"_s, u"Lager Süd €"_s, u"Van 2"_s};
    locations.Save();
    locations.Clear();
    EXPECT_EQ(Texts(), (QStringList{QString(), QString(), QString(), QString(), QString()}));
    locations.Load();
    EXPECT_EQ(Texts(),
              (QStringList{u"Shed"_s, QString(), u"Yard"_s, u"Lager Süd €"_s, u"Van 2"_s}));
}

TEST_F(TallyLocationsTest, CommaSplitsALocationAndShiftsTheOthers) {
    EXPECT_EQ(Loaded("Shed, back\r\nYard\r\nVan\r\n\r\nBin\r\n"),
              (QStringList{u"Shed"_s, u"back"_s, u"Yard"_s, u"Van"_s, QString()}));
}

TEST_F(TallyLocationsTest, QuotesAndBlanksInFrontAreLost) {
    EXPECT_EQ(Loaded("\"Shed, back\"\r\n   Yard \r\n\r\n\r\n\r\n"),
              (QStringList{u"Shed, back"_s, u"Yard "_s, QString(), QString(), QString()}));
}

TEST_F(TallyLocationsTest, LinesBehindTheFifthAreNotLookedAt) {
    EXPECT_EQ(Loaded("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n"),
              (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
}

TEST_F(TallyLocationsTest, LastLineNeedsNoEnd) {
    EXPECT_EQ(Loaded("1\r\n2\r\n3\r\n4\r\n5"),
              (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
}

TEST_F(TallyLocationsTest, WithoutAFileTheLocationsAreBlank) {
    locations.txtTally = {u"Shed"_s};
    locations.Load();
    EXPECT_EQ(Texts(), (QStringList{QString(), QString(), QString(), QString(), QString()}));
    EXPECT_FALSE(folder.Has(locationsFile));
}

TEST_F(TallyLocationsTest, LostFileComesBackFromBackup) {
    folder.Write(u"Backup/Locations.txt"_s, "Shed\r\n\r\n\r\n\r\n\r\n");
    locations.Load();
    EXPECT_EQ(locations.txtTally[0], u"Shed"_s);
    EXPECT_TRUE(folder.Has(locationsFile));
}

TEST_F(TallyLocationsTest, SaveDeletesTheCopyInBackup) {
    folder.Write(locationsFile, "old\r\n");
    folder.Write(u"Backup/Locations.txt"_s, "older\r\n");
    locations.Save();
    EXPECT_EQ(folder.Read(locationsFile), "\r\n\r\n\r\n\r\n\r\n");
    EXPECT_FALSE(folder.Has(u"Backup/Locations.txt"_s));
}

TEST_F(TallyLocationsTest, FileWithTooFewLinesFails) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("Shed\r\n"), QByteArray("1\r\n2\r\n3\r\n4\r\n"),
          QByteArray("1\r\n2\r\n\"3\r\n4\r\n5\r\n")}) {
        folder.Write(locationsFile, bytes);
        const RuntimeFailure failure = FailureOf([this] { locations.Load(); });
        EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd) << bytes.toStdString();
        EXPECT_EQ(
            failure.Sentence(),
            u"Reading Locations.txt failed: the file ends before all of its values were read."_s);
        EXPECT_EQ(folder.Read(locationsFile), bytes);
    }
}

TEST_F(TallyLocationsTest, FileThatCannotBeReadFails) {
    folder.Write(locationsFile, "1\r\n2\r\n3\r\n4\r\n5\r\n");
    DropRootRights(folder);
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(locationsFile), QFile::WriteOwner));
    EXPECT_EQ(FailureOf([this] { locations.Load(); }).Kind(), FailureKind::PermissionDenied);
}

TEST_F(TallyLocationsTest, FullDiskFails) {
    locations.txtTally = {QString(100, u'x')};
    const FullDisk disk(10);
    EXPECT_EQ(FailureOf([this] { locations.Save(); }).Kind(), FailureKind::DiskFull);
}

TEST_F(TallyLocationsTest, FolderThatCannotBeWrittenFailsAndKeepsTheFile) {
    folder.Write(locationsFile, "1\r\n2\r\n3\r\n4\r\n5\r\n");
    DropRootRights(folder);
    ASSERT_TRUE(QFile::setPermissions(folder.Path(), QFile::ReadOwner | QFile::ExeOwner));
    const RuntimeFailure failure = FailureOf([this] { locations.Save(); });
    ASSERT_TRUE(QFile::setPermissions(folder.Path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(folder.Read(locationsFile), "1\r\n2\r\n3\r\n4\r\n5\r\n");
}
