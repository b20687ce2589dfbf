#include "slips/DeliveryTemplates.h"

#include "slips/DeliverySlipRoutines.h"
#include "slips/DeliveryWriting.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString templatesFolder = u"Templates/Deliveries/"_s;
const QString prompt = u"Enter a Name for this Template\nDo not enter /\\,.-:; Characters\n"
                       u"Do not enter .txt (this is done automatically"_s;
const QString title = u"Save Invoice Template"_s;

} // namespace

class DeliveryTemplatesTest : public OfficeTest {
protected:
    DeliveryTemplates& templates = office.templates;
    GridModel fgDelivery{{u"Units"_s, u"Description"_s, u"Unit Price"_s, u"Line Total"_s}};

    DeliveryTemplatesTest() { fgDelivery.ClearGrid(); }

    /// Posts a line: it takes the empty row, and another empty row comes below.
    void Post(const QString& units, const QString& description, const QString& price,
              const QString& total = {}) {
        const int row = fgDelivery.DataRows();
        const QString cells[] = {units, description, price, total};
        for (int column = 0; column < 4; ++column)
            fgDelivery.SetText(row, column, cells[column]);
        fgDelivery.SetRows(row + 2);
    }
    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < fgDelivery.Columns(); ++column)
            cells += fgDelivery.Text(row, column);
        return cells;
    }

    void SaveAs(const QString& name) {
        user.ExpectInputBox(prompt, title, name);
        templates.SaveTemplate(fgDelivery);
    }
    void SaveOver(const QString& name, Answer answer) {
        user.ExpectInputBox(prompt, title, name);
        user.ExpectQuestion(u"A Template Named "_s + name +
                                u"already Exists.\nPress Yes to Replace the Existing Template"_s,
                            u"Template Exists"_s, answer);
        templates.SaveTemplate(fgDelivery);
    }
    void Put(const QString& file, const QByteArray& bytes) const {
        folder.Write(templatesFolder + file, bytes);
    }
    QByteArray Bytes(const QString& file) const { return folder.Read(templatesFolder + file); }

    /// Loads a file as it is listed into a cleared grid.
    qint16 LoadFile(const QString& file) {
        templates.RefreshList();
        templates.SelectTemplate(int(templates.flstDeliveryTemplates.stringList().indexOf(file)));
        fgDelivery.ClearGrid();
        return templates.LoadTemplate(fgDelivery);
    }
    void ExpectLoadFails(const QByteArray& bytes, FailureKind kind, const QString& sentence) {
        Put(u"Week.txt"_s, bytes);
        const auto before = folder.Contents();
        const RuntimeFailure failure = FailureOf([this] { LoadFile(u"Week.txt"_s); });
        EXPECT_EQ(failure.Kind(), kind);
        EXPECT_EQ(failure.Sentence(), sentence);
        EXPECT_EQ(folder.Contents(), before);
    }
    void ExpectSaveFails(const QString& name, FailureKind kind) {
        const auto before = folder.Contents();
        const QStringList names = folder.Everything();
        templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate] = true;
        const RuntimeFailure failure = FailureOf([&] { SaveAs(name); });
        EXPECT_EQ(failure.Kind(), kind) << name.toStdString();
        EXPECT_EQ(folder.Contents(), before);
        EXPECT_EQ(folder.Everything(), names);
        EXPECT_TRUE(templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate]);
    }

    QStringList Listed() const { return templates.flstDeliveryTemplates.stringList(); }
    bool IsEnabled(DeliveryTemplates::Button button) const { return templates.cmdTemplate[button]; }
};

// The panel.

TEST_F(DeliveryTemplatesTest, NothingShowsOrIsEnabledBeforeTheScreenIsLoaded) {
    EXPECT_FALSE(templates.fraTemplates);
    EXPECT_EQ(templates.SelectedTemplate, -1);
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::Delete));
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::SaveAsTemplate));
}

TEST_F(DeliveryTemplatesTest, WithNoTemplateFilesThePanelStaysHidden) {
    templates.RefreshList();
    templates.SetPanelState();
    EXPECT_FALSE(templates.fraTemplates);
    EXPECT_EQ(Listed(), QStringList());
}

TEST_F(DeliveryTemplatesTest, MissingFolderIsAnEmptyList) {
    ASSERT_EQ(::rmdir(folder.PathOf(templatesFolder).toUtf8().constData()), 0);
    templates.RefreshList();
    templates.SetPanelState();
    EXPECT_FALSE(templates.fraTemplates);
}

TEST_F(DeliveryTemplatesTest, ListShowsTheTextFilesInNameOrder) {
    for (const QString& file :
         {u"b.txt"_s, u"A.txt"_s, u"Caf\u00e9.txt"_s, u"notes"_s, u"a.txt.bak"_s, u"B 2.txt"_s})
        Put(file, {});
    folder.MakeFolder(templatesFolder + u"folder.txt"_s);
    templates.RefreshList();
    EXPECT_EQ(Listed(), (QStringList{u"A.txt"_s, u"B 2.txt"_s, u"Caf\u00e9.txt"_s, u"b.txt"_s}));
    EXPECT_EQ(templates.SelectedTemplate, -1);
}

TEST_F(DeliveryTemplatesTest, NewSlipShowsThePanelWithTheFirstFileSelected) {
    Put(u"b.txt"_s, {});
    Put(u"a.txt"_s, {});
    templates.RefreshList();
    templates.SelectTemplate(1);
    templates.SetPanelState();
    EXPECT_TRUE(templates.fraTemplates);
    EXPECT_EQ(templates.SelectedTemplate, 0);
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Delete));
}

TEST_F(DeliveryTemplatesTest, NewSlipLeavesTheSaveButtonAsItStands) {
    Put(u"a.txt"_s, {});
    templates.RefreshList();
    for (const bool isEnabled : {true, false}) {
        templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate] = isEnabled;
        templates.SetPanelState();
        EXPECT_EQ(IsEnabled(DeliveryTemplates::SaveAsTemplate), isEnabled);
    }
}

TEST_F(DeliveryTemplatesTest, ClickOnAFileEnablesLoadAndDelete) {
    Put(u"a.txt"_s, {});
    Put(u"b.txt"_s, {});
    templates.RefreshList();
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::Delete));
    templates.SelectTemplate(1);
    EXPECT_EQ(templates.SelectedTemplate, 1);
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Delete));
}

TEST_F(DeliveryTemplatesTest, PanelIsHiddenWhenTheLastFileHasGone) {
    Put(u"a.txt"_s, {});
    templates.RefreshList();
    templates.SetPanelState();
    folder.Remove(templatesFolder + u"a.txt"_s);
    templates.RefreshList();
    templates.SetPanelState();
    EXPECT_FALSE(templates.fraTemplates);
}

// Saving.

TEST_F(DeliveryTemplatesTest, SlipOfThreeLinesGivesAFileOf210Bytes) {
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s, u"$12.30"_s);
    Post(u"2.5"_s, u"Sand, \"fine\""_s, u"$1,250.00"_s, u"$3,125.00"_s);
    Post(u"1"_s, u"Caf\u00e9 \u20ac \u0142"_s, u"$0.00"_s, u"$0.00"_s);
    SaveAs(u"Week"_s);
    const QByteArray expected =
        "3         Gravel                                       4.10      "
        "True "
        "2.5       Sand, \"fine\"                                 1,250.00  "
        "True "
        "1         Caf\xe9 \x80 ?                                     "
        "0.00      True ";
    EXPECT_EQ(expected.size(), 210);
    EXPECT_EQ(Bytes(u"Week.txt"_s), expected);
}

TEST_F(DeliveryTemplatesTest, SavedTemplateIsListedAndTheFirstOfTheListIsSelected) {
    Put(u"April.txt"_s, {});
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate] = true;
    SaveAs(u"Week"_s);
    EXPECT_EQ(Listed(), (QStringList{u"April.txt"_s, u"Week.txt"_s}));
    EXPECT_TRUE(templates.fraTemplates);
    EXPECT_EQ(templates.SelectedTemplate, 0);
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Delete));
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::SaveAsTemplate));
}

TEST_F(DeliveryTemplatesTest, EmptyNameAndCancelEndTheSave) {
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate] = true;
    const QStringList before = folder.Everything();
    for (const std::optional<QString>& answer :
         {std::optional<QString>(), std::optional<QString>(QString())}) {
        user.ExpectInputBox(prompt, title, answer);
        templates.SaveTemplate(fgDelivery);
        user.ExpectNothingLeft();
    }
    EXPECT_EQ(folder.Everything(), before);
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::SaveAsTemplate));
    EXPECT_FALSE(templates.fraTemplates);
}

TEST_F(DeliveryTemplatesTest, LinesOfUnits0AreLeftOut) {
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    Post(u"0"_s, u"Sand"_s, u"$2.00"_s);
    Post(u"0.0"_s, u"Sand"_s, u"$2.00"_s);
    Post(QString(), u"Blanked"_s, u"$2.00"_s);
    Post(u"-2"_s, u"Negative"_s, u"$2.00"_s);
    Post(u"dozen"_s, u"Letters"_s, u"$2.00"_s);
    Post(u".5"_s, u"Salt"_s, u"$7.00"_s);
    SaveAs(u"Week"_s);
    EXPECT_EQ(Bytes(u"Week.txt"_s),
              TemplateLine("3", "Gravel", "4.10") + TemplateLine(".5", "Salt", "7.00"));
}

TEST_F(DeliveryTemplatesTest, UnitsCountByTheNumberTheyBeginWith) {
    Post(u"3 boxes"_s, u"Gravel"_s, u"$4.10"_s);
    Post(u"1.2.3"_s, u"Sand"_s, u"$2.00"_s);
    SaveAs(u"Week"_s);
    EXPECT_EQ(Bytes(u"Week.txt"_s),
              TemplateLine("3 boxes", "Gravel", "4.10") + TemplateLine("1.2.3", "Sand", "2.00"));
}

TEST_F(DeliveryTemplatesTest, RowsSetTo101ByADeletedLineAreNoLines) {
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    fgDelivery.SetRows(101);
    SaveAs(u"Week"_s);
    EXPECT_EQ(Bytes(u"Week.txt"_s), TemplateLine("3", "Gravel", "4.10"));
}

TEST_F(DeliveryTemplatesTest, SlipWithoutLinesGivesAnEmptyFile) {
    SaveAs(u"Week"_s);
    EXPECT_EQ(Bytes(u"Week.txt"_s), QByteArray());
    EXPECT_EQ(Listed(), QStringList{u"Week.txt"_s});
}

TEST_F(DeliveryTemplatesTest, TextsLongerThanTheirFieldsAreCutAtTheWidth) {
    Post(u"12345678901"_s, u"123456789012345678901234567890123456789012345\u00e9x"_s,
         u"$12345678901"_s);
    SaveAs(u"Week"_s);
    EXPECT_EQ(Bytes(u"Week.txt"_s), "1234567890"
                                    "123456789012345678901234567890123456789012345"
                                    "1234567890"
                                    "True ");
}

TEST_F(DeliveryTemplatesTest, PriceLosesItsFirstCharacterWhateverThatIs) {
    Post(u"1"_s, u"From a template"_s, u"4.10"_s);
    Post(u"1"_s, u"One digit"_s, u"5"_s);
    Post(u"1"_s, u"No price"_s, QString());
    Post(u"1"_s, u"Negative"_s, u"-$2.00"_s);
    SaveAs(u"Week"_s);
    EXPECT_EQ(Bytes(u"Week.txt"_s),
              TemplateLine("1", "From a template", ".10") + TemplateLine("1", "One digit", "") +
                  TemplateLine("1", "No price", "") + TemplateLine("1", "Negative", "$2.00"));
}

TEST_F(DeliveryTemplatesTest, SavingOverATemplateAsksFirst) {
    Put(u"Week.txt"_s, TemplateLine("9", "Old", "1.00"));
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    templates.cmdTemplate[DeliveryTemplates::SaveAsTemplate] = true;
    SaveOver(u"Week"_s, Answer::No);
    EXPECT_EQ(Bytes(u"Week.txt"_s), TemplateLine("9", "Old", "1.00"));
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::SaveAsTemplate));
    SaveOver(u"Week"_s, Answer::Yes);
    EXPECT_EQ(Bytes(u"Week.txt"_s), TemplateLine("3", "Gravel", "4.10"));
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::SaveAsTemplate));
}

TEST_F(DeliveryTemplatesTest, SaveOverALongerTemplateKeepsItsTail) {
    Put(u"Week.txt"_s, TemplateLine("1", "One", "1.00") + TemplateLine("2", "Two", "2.00") +
                           TemplateLine("3", "Three", "3.00"));
    Post(u"7"_s, u"Gravel"_s, u"$4.10"_s);
    SaveOver(u"Week"_s, Answer::Yes);
    EXPECT_EQ(Bytes(u"Week.txt"_s), TemplateLine("7", "Gravel", "4.10") +
                                        TemplateLine("2", "Two", "2.00") +
                                        TemplateLine("3", "Three", "3.00"));
}

TEST_F(DeliveryTemplatesTest, NameIsTakenAsItIsTyped) {
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    SaveAs(u" Caf\u00e9, No. 7-\u0141\u00f3d\u017a:; "_s);
    EXPECT_EQ(Bytes(u" Caf\u00e9, No. 7-\u0141\u00f3d\u017a:; .txt"_s),
              TemplateLine("3", "Gravel", "4.10"));
    EXPECT_EQ(Listed(), QStringList{u" Caf\u00e9, No. 7-\u0141\u00f3d\u017a:; .txt"_s});
    SaveAs(u"Week.txt"_s);
    EXPECT_TRUE(folder.Has(templatesFolder + u"Week.txt.txt"_s));
}

TEST_F(DeliveryTemplatesTest, TemplateLostFromItsFolderComesBackFromBackupWithTheQuestion) {
    folder.MakeFolder(u"Backup/Templates"_s);
    folder.MakeFolder(u"Backup/Templates/Deliveries"_s);
    folder.Write(u"Backup/Templates/Deliveries/Week.txt"_s, TemplateLine("9", "Old", "1.00"));
    SaveOver(u"Week"_s, Answer::No);
    EXPECT_EQ(Bytes(u"Week.txt"_s), TemplateLine("9", "Old", "1.00"));
}

TEST_F(DeliveryTemplatesTest, NameWithASeparatorFailsAndChangesNothing) {
    Put(u"Old.txt"_s, TemplateLine("9", "Old", "1.00"));
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    ExpectSaveFails(u"north/Monday"_s, FailureKind::PathNotFound);
    ExpectSaveFails(u"north\\Monday"_s, FailureKind::PathNotFound);
    ExpectSaveFails(u"north/"_s, FailureKind::PathNotFound);
}

TEST_F(DeliveryTemplatesTest, NameThatLeadsOutOfTheFolderFailsAndChangesNothing) {
    folder.Write(u"Settings.txt"_s, "x");
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    for (const QString& name : {u"../../Settings"_s, u"..\\..\\Settings"_s, u"../Monday"_s,
                                u"../../../../Monday"_s, u"north/../../Monday"_s})
        ExpectSaveFails(name, FailureKind::BadFileName);
}

TEST_F(DeliveryTemplatesTest, NameTooLongForAFileFailsAndChangesNothing) {
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    const auto before = folder.Contents();
    const QString name(300, u'x');
    const RuntimeFailure failure = FailureOf([&] { SaveAs(name); });
    EXPECT_TRUE(failure.Sentence().contains(name));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(DeliveryTemplatesTest, FolderThatCantBeWrittenStopsTheSave) {
    DropRootRights(folder);
    Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    ::chmod(folder.PathOf(templatesFolder).toUtf8().constData(), 0555);
    const RuntimeFailure failure = FailureOf([this] { SaveAs(u"Week"_s); });
    ::chmod(folder.PathOf(templatesFolder).toUtf8().constData(), 0755);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_FALSE(folder.Has(templatesFolder + u"Week.txt"_s));
}

TEST_F(DeliveryTemplatesTest, FullDiskStopsTheSaveAndLeavesOtherTemplatesAlone) {
    Put(u"Old.txt"_s, TemplateLine("9", "Old", "1.00"));
    for (int line = 0; line < 3; ++line)
        Post(u"3"_s, u"Gravel"_s, u"$4.10"_s);
    const RuntimeFailure failure = FailureOf([this] {
        const FullDisk disk(100);
        SaveAs(u"Week"_s);
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(),
              u"Writing record 2 of Templates/Deliveries/Week.txt failed: File too large."_s);
    EXPECT_EQ(Bytes(u"Old.txt"_s), TemplateLine("9", "Old", "1.00"));
}

// Loading.

TEST_F(DeliveryTemplatesTest, LoadFillsARowForEachLineAndKeepsAnEmptyOneBelow) {
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10") +
                           TemplateLine("2.5", "Caf\xe9 \x80", "1,250.00") +
                           TemplateLine(" 1", " Salt", " 0.00"));
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 3);
    ASSERT_EQ(fgDelivery.Rows(), 5);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Gravel"_s, u"4.10"_s, u"$12.30"_s}));
    EXPECT_EQ(Row(2),
              (QStringList{u"2.5"_s, u"Caf\u00e9 \u20ac"_s, u"1,250.00"_s, u"$3,125.00"_s}));
    EXPECT_EQ(Row(3), (QStringList{u"1"_s, u"Salt"_s, u"0.00"_s, u"$0.00"_s}));
    EXPECT_EQ(Row(4), (QStringList{QString(), QString(), QString(), QString()}));
}

TEST_F(DeliveryTemplatesTest, TemplateOfOneLineLoads) {
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 1);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Gravel"_s, u"4.10"_s, u"$12.30"_s}));
}

TEST_F(DeliveryTemplatesTest, EmptyFileLoadsNothing) {
    Put(u"Week.txt"_s, {});
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 0);
    ASSERT_EQ(fgDelivery.Rows(), 2);
    EXPECT_EQ(Row(1), (QStringList{QString(), QString(), QString(), QString()}));
}

TEST_F(DeliveryTemplatesTest, LoadedLinesKeepTheTemplatesPrices) {
    folder.Write(u"NXInventoriedItems.txt"_s,
                 QByteArray("Gravel").leftJustified(50, ' ') + QByteArray(54, '\0'));
    office.items.RefreshAll();
    ASSERT_EQ(office.items.ProductPrices.stringList(), QStringList{u"$0.00"_s});
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    LoadFile(u"Week.txt"_s);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Gravel"_s, u"4.10"_s, u"$12.30"_s}));
}

TEST_F(DeliveryTemplatesTest, TemplateSavedAgainAfterALoadLosesTheFirstDigitOfItsPrices) {
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "14.10"));
    LoadFile(u"Week.txt"_s);
    SaveAs(u"Copy"_s);
    EXPECT_EQ(Bytes(u"Copy.txt"_s), TemplateLine("3", "Gravel", "4.10"));
}

TEST_F(DeliveryTemplatesTest, SavedTailIsLoadedToo) {
    Put(u"Week.txt"_s, TemplateLine("1", "One", "1.00") + TemplateLine("2", "Two", "2.00"));
    Post(u"7"_s, u"Gravel"_s, u"$4.10"_s);
    SaveOver(u"Week"_s, Answer::Yes);
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 2);
    EXPECT_EQ(Row(1), (QStringList{u"7"_s, u"Gravel"_s, u"4.10"_s, u"$28.70"_s}));
    EXPECT_EQ(Row(2), (QStringList{u"2"_s, u"Two"_s, u"2.00"_s, u"$4.00"_s}));
}

TEST_F(DeliveryTemplatesTest, MoreLinesThanASlipTakesAreLoadedAll) {
    QByteArray bytes;
    for (int line = 1; line <= 150; ++line)
        bytes += TemplateLine(QByteArray::number(line), "Gravel", "1.00");
    Put(u"Week.txt"_s, bytes);
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 150);
    EXPECT_EQ(Row(150), (QStringList{u"150"_s, u"Gravel"_s, u"1.00"_s, u"$150.00"_s}));
}

TEST_F(DeliveryTemplatesTest, SelectedFileIsTheOneLoaded) {
    Put(u"April.txt"_s, TemplateLine("1", "Salt", "1.00"));
    Put(u"Caf\u00e9.txt"_s, TemplateLine("2", "Beans", "9.00"));
    LoadFile(u"Caf\u00e9.txt"_s);
    EXPECT_EQ(Row(1), (QStringList{u"2"_s, u"Beans"_s, u"9.00"_s, u"$18.00"_s}));
}

TEST_F(DeliveryTemplatesTest, GermanPriceLosesItsFirstDigitSinceItsSignStandsBehind) {
    UseLocale("de_DE.UTF-8");
    Post(u"3"_s, u"Kies"_s, u"14,10\u00a0\u20ac"_s, u"42,30\u00a0\u20ac"_s);
    SaveAs(u"Woche"_s);
    EXPECT_EQ(Bytes(u"Woche.txt"_s), TemplateLine("3", "Kies", "4,10\xa0\x80"));
    LoadFile(u"Woche.txt"_s);
    EXPECT_EQ(Row(1),
              (QStringList{u"3"_s, u"Kies"_s, u"4,10\u00a0\u20ac"_s, u"12,30\u00a0\u20ac"_s}));
}

TEST_F(DeliveryTemplatesTest, LessThanHalfOfALineAtTheEndIsNoLine) {
    Put(u"Week.txt"_s,
        TemplateLine("3", "Gravel", "4.10") + TemplateLine("2", "Sand", "2.00").left(34));
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 1);
    EXPECT_EQ(fgDelivery.Rows(), 3);
}

TEST_F(DeliveryTemplatesTest, LineWithoutItsFlagIsALine) {
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10").left(65));
    EXPECT_EQ(LoadFile(u"Week.txt"_s), 1);
    EXPECT_EQ(Row(1), (QStringList{u"3"_s, u"Gravel"_s, u"4.10"_s, u"$12.30"_s}));
}

TEST_F(DeliveryTemplatesTest, LineCutInTheMiddleIsAFailureThatNamesTheFile) {
    ExpectLoadFails(TemplateLine("3", "Gravel", "4.10") +
                        TemplateLine("2", "Sand", "2.00").left(50),
                    FailureKind::TypeMismatch,
                    u"The text \""_s + QString(10, QChar(0)) +
                        u"\" is not a number (a line of Templates/Deliveries/Week.txt)."_s);
}

TEST_F(DeliveryTemplatesTest, UnitsOrPriceThatAreNoNumbersAreFailuresThatNameTheFile) {
    const QString tail = u" is not a number (a line of Templates/Deliveries/Week.txt)."_s;
    ExpectLoadFails(TemplateLine("3 boxes", "Gravel", "4.10"), FailureKind::TypeMismatch,
                    u"The text \"3 boxes\""_s + tail);
    ExpectLoadFails(TemplateLine("3", "Gravel", "much"), FailureKind::TypeMismatch,
                    u"The text \"much\""_s + tail);
    ExpectLoadFails(TemplateLine("3", "Gravel", ""), FailureKind::TypeMismatch,
                    u"The text \"\""_s + tail);
}

TEST_F(DeliveryTemplatesTest, LineTotalBeyondAnAmountIsAnOverflow) {
    Put(u"Week.txt"_s, TemplateLine("1e300", "Gravel", "1e300"));
    EXPECT_EQ(FailureOf([this] { LoadFile(u"Week.txt"_s); }).Kind(), FailureKind::Overflow);
}

TEST_F(DeliveryTemplatesTest, FileThatHasGoneSinceItWasListedStopsTheLoadAndIsNotMade) {
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    templates.RefreshList();
    templates.SelectTemplate(0);
    folder.Remove(templatesFolder + u"Week.txt"_s);
    const RuntimeFailure failure = FailureOf([this] { templates.LoadTemplate(fgDelivery); });
    EXPECT_EQ(failure.Kind(), FailureKind::FileNotFound);
    EXPECT_EQ(failure.Sentence(), u"Opening Templates/Deliveries/Week.txt for reading failed: No "
                                  "such file or directory."_s);
    EXPECT_FALSE(folder.Has(templatesFolder + u"Week.txt"_s));
}

TEST_F(DeliveryTemplatesTest, FileThatCantBeReadStopsTheLoad) {
    DropRootRights(folder);
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    ::chmod(folder.PathOf(templatesFolder + u"Week.txt"_s).toUtf8().constData(), 0);
    const RuntimeFailure failure = FailureOf([this] { LoadFile(u"Week.txt"_s); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_TRUE(failure.Sentence().contains(u"Templates/Deliveries/Week.txt"_s));
}

// Deleting.

TEST_F(DeliveryTemplatesTest, DeletionAsksAndCancelKeepsTheFile) {
    Put(u"Caf\u00e9.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    templates.RefreshList();
    templates.SetPanelState();
    user.ExpectWarning(u"This will Delete Template\nCaf\u00e9.txt"_s, u"Template Deletion"_s,
                       Answer::Cancel);
    templates.DeleteTemplate();
    EXPECT_EQ(Listed(), QStringList{u"Caf\u00e9.txt"_s});
    EXPECT_TRUE(folder.Has(templatesFolder + u"Caf\u00e9.txt"_s));
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Load));
}

TEST_F(DeliveryTemplatesTest, DeletionOfTheLastTemplateDisablesLoadAndDelete) {
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    templates.RefreshList();
    templates.SetPanelState();
    user.ExpectWarning(u"This will Delete Template\nWeek.txt"_s, u"Template Deletion"_s,
                       Answer::Ok);
    templates.DeleteTemplate();
    EXPECT_FALSE(folder.Has(templatesFolder + u"Week.txt"_s));
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(templates.SelectedTemplate, -1);
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_FALSE(IsEnabled(DeliveryTemplates::Delete));
    // The panel is set only by a new slip or a save.
    EXPECT_TRUE(templates.fraTemplates);
}

TEST_F(DeliveryTemplatesTest, FileThatTakesThePlaceOfTheDeletedOneIsSelected) {
    for (const QString& file : {u"a.txt"_s, u"b.txt"_s, u"c.txt"_s})
        Put(file, {});
    templates.RefreshList();
    templates.SetPanelState();
    templates.SelectTemplate(1);
    user.ExpectWarning(u"This will Delete Template\nb.txt"_s, u"Template Deletion"_s, Answer::Ok);
    templates.DeleteTemplate();
    EXPECT_EQ(Listed(), (QStringList{u"a.txt"_s, u"c.txt"_s}));
    EXPECT_EQ(templates.SelectedTemplate, 1);
    user.ExpectWarning(u"This will Delete Template\nc.txt"_s, u"Template Deletion"_s, Answer::Ok);
    templates.DeleteTemplate();
    EXPECT_EQ(Listed(), QStringList{u"a.txt"_s});
    EXPECT_EQ(templates.SelectedTemplate, 0);
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Load));
    EXPECT_TRUE(IsEnabled(DeliveryTemplates::Delete));
}

TEST_F(DeliveryTemplatesTest, DeletedTemplateLeavesAllOtherFilesAsTheyWere) {
    Put(u"a.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    auto expected = folder.Contents();
    Put(u"b.txt"_s, TemplateLine("1", "Sand", "2.00"));
    templates.RefreshList();
    templates.SelectTemplate(1);
    user.ExpectWarning(u"This will Delete Template\nb.txt"_s, u"Template Deletion"_s, Answer::Ok);
    templates.DeleteTemplate();
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(DeliveryTemplatesTest, FolderThatCantBeWrittenStopsTheDeletion) {
    DropRootRights(folder);
    Put(u"Week.txt"_s, TemplateLine("3", "Gravel", "4.10"));
    templates.RefreshList();
    templates.SetPanelState();
    ::chmod(folder.PathOf(templatesFolder).toUtf8().constData(), 0555);
    user.ExpectWarning(u"This will Delete Template\nWeek.txt"_s, u"Template Deletion"_s,
                       Answer::Ok);
    const RuntimeFailure failure = FailureOf([this] { templates.DeleteTemplate(); });
    ::chmod(folder.PathOf(templatesFolder).toUtf8().constData(), 0755);
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(Bytes(u"Week.txt"_s), TemplateLine("3", "Gravel", "4.10"));
}
