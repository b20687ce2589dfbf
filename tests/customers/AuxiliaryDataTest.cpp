#include "customers/AuxiliaryData.h"

#include "support/OfficeTest.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString headingsFile = u"AuxHeadings.txt"_s;

QString BoxFile(const QString& account, int box) {
    return u"AuxFiles/%1/AuxFile%2/Data.txt"_s.arg(account).arg(box);
}

} // namespace

class AuxiliaryDataTest : public OfficeTest {
protected:
    AuxiliaryData& data = office.auxiliaryData;

    QStringList Boxes() const {
        const auto& texts = office.auxiliaryData.txtAux;
        return {texts.begin(), texts.end()};
    }
    QStringList Headings() const {
        const auto& texts = office.auxiliaryData.txtHeading;
        return {texts.begin(), texts.end()};
    }
    /// What the first box shows of a file of those bytes.
    QString Loaded(const QByteArray& bytes) {
        folder.Write(BoxFile(u"4471"_s, 0), bytes);
        data.LoadAuxData(u"4471"_s);
        return data.txtAux[0];
    }
    /// What the first box's file holds of a text.
    QByteArray Saved(const QString& text) {
        data.txtAux[0] = text;
        data.SaveAuxData(u"4471"_s);
        return folder.Read(BoxFile(u"4471"_s, 0));
    }
};

// Headings.

TEST_F(AuxiliaryDataTest, HeadingsAreNumberedUntilTheOperatorNamesThem) {
    data.Load();
    EXPECT_EQ(Headings(), (QStringList{u"Heading #1"_s, u"Heading #2"_s, u"Heading #3"_s,
                                       u"Heading #4"_s, u"Heading #5"_s, u"Heading #6"_s}));
    EXPECT_FALSE(folder.Has(headingsFile));
}

TEST_F(AuxiliaryDataTest, HeadingsAreSixPlainLines) {
    data.txtHeading = {u"Gate code"_s, QString(), u"Dog, \"Rex\""_s,
                       u"Öffnung €"_s, u" x "_s,  u"倉"_s};
    data.SaveAuxHeadings();
    EXPECT_EQ(folder.Read(headingsFile), "Gate code\r\n\r\nDog, \"Rex\"\r\n\xd6"
                                         "ffnung \x80\r\n x \r\n?\r\n");
}

TEST_F(AuxiliaryDataTest, HeadingsComeBackAsWholeLines) {
    folder.Write(headingsFile, "Gate code\r\n\r\nDog, \"Rex\"\r\n\xd6"
                               "ffnung \x80\r\n x \r\n6\r\n7\r\n");
    data.Load();
    EXPECT_EQ(Headings(), (QStringList{u"Gate code"_s, QString(), u"Dog, \"Rex\""_s, u"Öffnung €"_s,
                                       u" x "_s, u"6"_s}));
}

TEST_F(AuxiliaryDataTest, SavingHeadingsDeletesTheCopyInBackup) {
    data.Load();
    folder.Write(u"Backup/AuxHeadings.txt"_s, "old\r\n");
    data.SaveAuxHeadings();
    EXPECT_FALSE(folder.Has(u"Backup/AuxHeadings.txt"_s));
    EXPECT_EQ(
        folder.Read(headingsFile),
        "Heading #1\r\nHeading #2\r\nHeading #3\r\nHeading #4\r\nHeading #5\r\nHeading #6\r\n");
}

TEST_F(AuxiliaryDataTest, LostHeadingsComeBackFromBackup) {
    folder.Write(u"Backup/AuxHeadings.txt"_s, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    data.Load();
    EXPECT_EQ(Headings().join(u' '), u"1 2 3 4 5 6"_s);
}

TEST_F(AuxiliaryDataTest, HeadingsFileWithFewerThanSixLinesFails) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("1\r\n2\r\n3\r\n4\r\n5\r\n")}) {
        folder.Write(headingsFile, bytes);
        const RuntimeFailure failure = FailureOf([this] { data.Load(); });
        EXPECT_EQ(failure.Kind(), FailureKind::ReadPastEnd);
        EXPECT_EQ(failure.Sentence(), u"Reading AuxHeadings.txt failed: the file ends before all "
                                      u"of its values were read."_s);
        EXPECT_EQ(folder.Read(headingsFile), bytes);
    }
}

TEST_F(AuxiliaryDataTest, HeadingsOnAFullDiskFail) {
    data.Load();
    const FullDisk disk(10);
    EXPECT_EQ(FailureOf([this] { data.SaveAuxHeadings(); }).Kind(), FailureKind::DiskFull);
}

TEST_F(AuxiliaryDataTest, HeadingsOfAProtectedFolderFailAndStay) {
    folder.Write(headingsFile, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    DropRootRights(folder);
    ASSERT_TRUE(QFile::setPermissions(folder.Path(), QFile::ReadOwner | QFile::ExeOwner));
    const RuntimeFailure failure = FailureOf([this] { data.SaveAuxHeadings(); });
    ASSERT_TRUE(QFile::setPermissions(folder.Path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(folder.Read(headingsFile), "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
}

// Texts.

TEST_F(AuxiliaryDataTest, SavingMakesTheFoldersAndAFileForEveryBoxAlsoAnEmptyOne) {
    data.txtAux = {
        u"Key under the mat"_s, QString(), u"Closed Mondays"_s, QString(), QString(), u"last"_s};
    data.SaveAuxData(u" 4471 "_s);
    EXPECT_EQ(folder.Everything().filter(u"AuxFiles/"_s),
              (QStringList{u"AuxFiles/"_s, u"AuxFiles/4471/"_s, u"AuxFiles/4471/AuxFile0/"_s,
                           u"AuxFiles/4471/AuxFile0/Data.txt"_s, u"AuxFiles/4471/AuxFile1/"_s,
                           u"AuxFiles/4471/AuxFile1/Data.txt"_s, u"AuxFiles/4471/AuxFile2/"_s,
                           u"AuxFiles/4471/AuxFile2/Data.txt"_s, u"AuxFiles/4471/AuxFile3/"_s,
                           u"AuxFiles/4471/AuxFile3/Data.txt"_s, u"AuxFiles/4471/AuxFile4/"_s,
                           u"AuxFiles/4471/AuxFile4/Data.txt"_s, u"AuxFiles/4471/AuxFile5/"_s,
                           u"AuxFiles/4471/AuxFile5/Data.txt"_s}));
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), "Key under the mat\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 1)), "\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 2)), "Closed Mondays\r\n");
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 5)), "last\r\n");
}

TEST_F(AuxiliaryDataTest, SavingMakesTheFolderOfAllToo) {
    ASSERT_TRUE(QDir(folder.Path()).rmdir(u"AuxFiles"_s));
    EXPECT_EQ(Saved(u"text"_s), "text\r\n");
}

TEST_F(AuxiliaryDataTest, TextIsWrittenAsItStandsWithItsLineBreaks) {
    EXPECT_EQ(Saved(u"One, \"two\"\n\n  three\n"_s), "One, \"two\"\r\n\r\n  three\r\n\r\n");
    EXPECT_EQ(Saved(u"Süd 5\u00a0€ 倉"_s), "S\xfc"
                                           "d 5\xa0\x80 ?\r\n");
}

TEST_F(AuxiliaryDataTest, SavingAgainReplacesTheFiles) {
    Saved(u"a long text that was there before"_s);
    EXPECT_EQ(Saved(u"short"_s), "short\r\n");
    EXPECT_EQ(Saved(QString()), "\r\n");
}

TEST_F(AuxiliaryDataTest, SavingDeletesTheFilesFirstSoThatAProtectedOneIsReplaced) {
    folder.Write(BoxFile(u"4471"_s, 0), "old\r\n");
    DropRootRights(folder);
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(BoxFile(u"4471"_s, 0)), QFile::ReadOwner));
    EXPECT_EQ(Saved(u"new"_s), "new\r\n");
}

TEST_F(AuxiliaryDataTest, SaveThatFailsAtTheFirstBoxHasDeletedAllSix) {
    for (int box = 0; box < 6; ++box)
        folder.Write(BoxFile(u"4471"_s, box), "old\r\n");
    data.txtAux[0] = QString(5'000, u'x');
    {
        const FullDisk disk(100);
        EXPECT_EQ(FailureOf([this] { data.SaveAuxData(u"4471"_s); }).Kind(), FailureKind::DiskFull);
    }
    for (int box = 1; box < 6; ++box)
        EXPECT_FALSE(folder.Has(BoxFile(u"4471"_s, box))) << box;
}

TEST_F(AuxiliaryDataTest, TextComesBackWithALineBreakBehindIt) {
    EXPECT_EQ(Loaded("Key under the mat\r\n"), u"Key under the mat\n"_s);
    // Of an empty text that was saved, the line break is all there is.
    EXPECT_EQ(Loaded("\r\n"), u"\n"_s);
}

TEST_F(AuxiliaryDataTest, EverySaveAndReloadAddsALineBreak) {
    data.txtAux[0] = u"text"_s;
    for (const QString& expected : {u"text\n"_s, u"text\n\n"_s, u"text\n\n\n"_s}) {
        data.SaveAuxData(u"4471"_s);
        data.LoadAuxData(u"4471"_s);
        EXPECT_EQ(data.txtAux[0], expected);
    }
}

TEST_F(AuxiliaryDataTest, CommaComesBackAsALineBreak) {
    Saved(u"Monday, Tuesday,Friday"_s);
    data.LoadAuxData(u"4471"_s);
    EXPECT_EQ(data.txtAux[0], u"Monday\nTuesday\nFriday\n"_s);
}

TEST_F(AuxiliaryDataTest, QuotesAndBlanksAtTheBeginningOfALineAreLost) {
    EXPECT_EQ(Loaded("\"Rex, the dog\"\r\n   bites\r\n"), u"Rex, the dog\nbites\n"_s);
    EXPECT_EQ(Loaded("a \"quoted\" word\r\n"), u"a \"quoted\" word\n"_s);
    EXPECT_EQ(Loaded("\"never closed, and\r\nso on\r\n"), u"never closed, and\nso on\n\n"_s);
}

TEST_F(AuxiliaryDataTest, LastLineNeedsNoEnd) {
    EXPECT_EQ(Loaded("one\r\ntwo"), u"one\ntwo\n"_s);
    EXPECT_EQ(Loaded(""), QString());
}

TEST_F(AuxiliaryDataTest, MegabyteOfTextIsLoadedAndSaved) {
    QByteArray lines;
    for (int i = 0; i < 20'000; ++i)
        lines += QByteArray::number(i).rightJustified(50, '.') + "\r\n";
    ASSERT_GT(lines.size(), 1'000'000);
    EXPECT_EQ(Loaded(lines), QString::fromLatin1(lines).replace(u"\r\n"_s, u"\n"_s));
    data.SaveAuxData(u"4471"_s);
    EXPECT_EQ(folder.Read(BoxFile(u"4471"_s, 0)), lines + "\r\n");
}

TEST_F(AuxiliaryDataTest, MegabyteOfCommasIsLoaded) {
    EXPECT_EQ(Loaded(QByteArray(1'000'000, ',')), QString(1'000'000, u'\n'));
}

TEST_F(AuxiliaryDataTest, LoadingBlanksTheBoxesOfAnAccountWithoutTexts) {
    data.txtAux.fill(u"of another account"_s);
    const QStringList before = folder.Everything();
    data.LoadAuxData(u"77"_s);
    EXPECT_EQ(Boxes(), QStringList(6, QString()));
    EXPECT_EQ(folder.Everything(), before);
}

TEST_F(AuxiliaryDataTest, BoxWithoutAFileIsBlankAndTheOthersAreLoaded) {
    folder.Write(BoxFile(u"4471"_s, 2), "third\r\n");
    data.txtAux.fill(u"old"_s);
    data.LoadAuxData(u"4471"_s);
    EXPECT_EQ(Boxes(),
              (QStringList{QString(), QString(), u"third\n"_s, QString(), QString(), QString()}));
}

TEST_F(AuxiliaryDataTest, LostTextComesBackFromBackup) {
    folder.MakeFolder(u"AuxFiles/4471/AuxFile0"_s);
    folder.Write(u"Backup/"_s + BoxFile(u"4471"_s, 0), "kept\r\n");
    data.LoadAuxData(u"4471"_s);
    EXPECT_EQ(data.txtAux[0], u"kept\n"_s);
}

TEST_F(AuxiliaryDataTest, RetainLeavesTheBoxesAsTheyAre) {
    folder.Write(BoxFile(u"4471"_s, 0), "of the account\r\n");
    data.txtAux.fill(u"retained"_s);
    data.ckSaveAux = true;
    data.LoadAuxData(u"4471"_s);
    EXPECT_EQ(Boxes(), QStringList(6, u"retained"_s));
    data.ckSaveAux = false;
    data.LoadAuxData(u"4471"_s);
    EXPECT_EQ(data.txtAux[0], u"of the account\n"_s);
}

TEST_F(AuxiliaryDataTest, BlanksAroundANumberNameNoOtherFolderAndACharacterMoreDoes) {
    data.txtAux[0] = u"text"_s;
    data.SaveAuxData(u"4471"_s);
    data.LoadAuxData(u"4471a"_s);
    EXPECT_EQ(data.txtAux[0], QString());
    data.LoadAuxData(u"  4471"_s);
    EXPECT_EQ(data.txtAux[0], u"text\n"_s);
}

TEST_F(AuxiliaryDataTest, NewScreenStartsWithBlankBoxesAndWithoutRetain) {
    data.txtAux.fill(u"old"_s);
    data.ckSaveAux = true;
    data.Load();
    EXPECT_EQ(Boxes(), QStringList(6, QString()));
    EXPECT_FALSE(data.ckSaveAux);
}

TEST_F(AuxiliaryDataTest, AccountNumberThatLeadsOutOfItsFolderFailsAndWritesNothing) {
    data.txtAux.fill(u"text"_s);
    const auto before = folder.Contents();
    const QStringList everything = folder.Everything();
    for (const QString& account :
         {u".."_s, u" .. "_s, u"."_s, u"../.."_s, u"a/b"_s, u"a\\b"_s, u"/tmp"_s, u"../Backup"_s,
          u"a"_s + QChar(QChar::Null) + u"b"_s}) {
        const RuntimeFailure failure = FailureOf([&] { data.SaveAuxData(account); });
        EXPECT_EQ(failure.Kind(), FailureKind::BadFileName) << account.toStdString();
        EXPECT_EQ(failure.Sentence(), u"Saving the data of the account \"%1\" failed: the account "
                                      u"number can't name a folder."_s.arg(account));
    }
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(folder.Everything(), everything);
}

TEST_F(AuxiliaryDataTest, AccountNumberThatLeadsOutOfItsFolderHasNoTexts) {
    folder.Write(u"AuxFile0/Data.txt"_s, "outside\r\n");
    folder.Write(u"AuxFiles/a/b/AuxFile0/Data.txt"_s, "elsewhere\r\n");
    for (const QString& account : {u".."_s, u"a/b"_s, u"a\\b"_s, u"."_s}) {
        data.txtAux.fill(u"old"_s);
        data.LoadAuxData(account);
        EXPECT_EQ(Boxes(), QStringList(6, QString())) << account.toStdString();
    }
}

TEST_F(AuxiliaryDataTest, AccountNumberOfDotsOrWildcardsIsANameLikeAnyOther) {
    for (const QString& account : {u"..."_s, u"*"_s, u"a?"_s, u"Süd 1"_s}) {
        data.txtAux[0] = account;
        data.SaveAuxData(account);
        data.LoadAuxData(account);
        EXPECT_EQ(data.txtAux[0], account + u'\n');
        EXPECT_TRUE(folder.Has(BoxFile(account, 0)));
    }
}

TEST_F(AuxiliaryDataTest, FileInThePlaceOfTheAccountsFolderFailsAndStays) {
    folder.Write(u"AuxFiles/4471"_s, "in the way");
    const RuntimeFailure failure = FailureOf([this] { data.SaveAuxData(u"4471"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::PathNotFound);
    EXPECT_EQ(folder.Read(u"AuxFiles/4471"_s), "in the way");
}

TEST_F(AuxiliaryDataTest, FullDiskFails) {
    data.txtAux[0] = QString(5'000, u'x');
    const FullDisk disk(100);
    EXPECT_EQ(FailureOf([this] { data.SaveAuxData(u"4471"_s); }).Kind(), FailureKind::DiskFull);
}

TEST_F(AuxiliaryDataTest, ProtectedTextFailsAtTheLoad) {
    folder.Write(BoxFile(u"4471"_s, 0), "text\r\n");
    DropRootRights(folder);
    ASSERT_TRUE(QFile::setPermissions(folder.PathOf(BoxFile(u"4471"_s, 0)), QFile::WriteOwner));
    EXPECT_EQ(FailureOf([this] { data.LoadAuxData(u"4471"_s); }).Kind(),
              FailureKind::PermissionDenied);
}
