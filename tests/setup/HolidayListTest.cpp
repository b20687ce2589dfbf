#include "setup/HolidayList.h"

#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString holidaysFile = u"Holidays.txt"_s;
const QString copyInBackup = u"Backup/Holidays.txt"_s;
const QDate today(2026, 3, 9);

/// So many lines from 1 January 2027 on, one a day.
QByteArray ManyDates(int count) {
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += QDate(2027, 1, 1).addDays(i).toString(u"'#'yyyy-MM-dd'#'").toLatin1() + "\r\n";
    return bytes;
}

} // namespace

class HolidayListTest : public OfficeTest {
protected:
    QStringList Entries() const { return holidays.lstHolidays.stringList(); }

    void OpenOn(const QByteArray& bytes) {
        folder.Write(holidaysFile, bytes);
        holidays.Open();
    }

    void Click(QDate date) { holidays.MonthView1_DateClick(date); }

    RuntimeFailure FailureOfOpening(const QByteArray& bytes) {
        folder.Write(holidaysFile, bytes);
        return FailureOf([this] { holidays.Open(); });
    }

    HolidayList holidays{office.disk, clock, user};
};

TEST_F(HolidayListTest, OpeningTakesTheDatesInFileOrderAsShortDateText) {
    OpenOn("#2026-12-25#\r\n#2026-07-04#\r\n#2026-11-26#\r\n");
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026"_s, u"7/4/2026"_s, u"11/26/2026"_s}));
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2026-07-04#\r\n#2026-11-26#\r\n");
}

TEST_F(HolidayListTest, GermanListShowsGermanDatesAndTheSameFile) {
    UseLocale("de_DE.UTF-8");
    OpenOn("#2026-12-25#\r\n#2027-01-02#\r\n");
    EXPECT_EQ(Entries(), (QStringList{u"25.12.2026"_s, u"02.01.2027"_s}));
    Click({2026, 5, 1});
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    holidays.Save();
    EXPECT_EQ(Entries(), (QStringList{u"25.12.2026"_s, u"02.01.2027"_s, u"01.05.2026"_s}));
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2027-01-02#\r\n#2026-05-01#\r\n");
}

TEST_F(HolidayListTest, OpeningWithoutAFileCreatesAnEmptyOne) {
    holidays.Open();
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_TRUE(folder.Has(holidaysFile));
    EXPECT_EQ(folder.Read(holidaysFile), "");
}

TEST_F(HolidayListTest, OpeningAnEmptyFileGivesAnEmptyList) {
    OpenOn("");
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_EQ(folder.Read(holidaysFile), "");
}

TEST_F(HolidayListTest, OpeningPurgesPastDatesAndKeepsToday) {
    OpenOn("#2026-03-08#\r\n#2026-12-25#\r\n#2025-12-25#\r\n#2026-03-09#\r\n");
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026"_s, u"3/9/2026"_s}));
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2026-03-09#\r\n");
}

TEST_F(HolidayListTest, OpeningAListOfPastDatesEmptiesTheFileWithoutAMessage) {
    OpenOn("#2026-03-08#\r\n#2025-12-25#\r\n");
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_EQ(folder.Read(holidaysFile), "");
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(HolidayListTest, OpeningBringsALostFileBackAndDeletesTheCopy) {
    folder.Write(copyInBackup, "#2026-12-25#\r\n#2026-01-01#\r\n");
    holidays.Open();
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n");
    EXPECT_FALSE(folder.Has(copyInBackup));
}

TEST_F(HolidayListTest, OpeningDeletesTheOlderCopyInBackup) {
    folder.Write(copyInBackup, "#2026-12-31#\r\n");
    OpenOn("#2026-12-25#\r\n");
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n");
    EXPECT_FALSE(folder.Has(copyInBackup));
}

TEST_F(HolidayListTest, OpeningAgainForgetsWhatWasNotSaved) {
    OpenOn("#2026-12-25#\r\n");
    Click({2026, 7, 4});
    holidays.Open();
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n");
}

TEST_F(HolidayListTest, OpeningTouchesNoOtherFile) {
    folder.Write(u"WorkDays.txt"_s, "5\r\n");
    folder.Write(u"Backup/WorkDays.txt"_s, "7\r\n");
    auto expected = folder.Contents();
    expected[holidaysFile] = "#2026-12-25#\r\n";
    OpenOn("#2026-01-01#\r\n#2026-12-25#\r\n");
    EXPECT_EQ(folder.Contents(), expected);
}

TEST_F(HolidayListTest, LineOfTwoDatesIsTwoFields) {
    OpenOn("#2026-12-25#,#2026-12-26#\r\n");
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026"_s, u"12/26/2026"_s}));
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2026-12-26#\r\n");
}

TEST_F(HolidayListTest, DateWithTimeOfDayKeepsItAndIsNoHolidayOfThatDay) {
    const QByteArray bytes = "#2026-12-25 08:05:09#\r\n#2026-03-09 00:00:01#\r\n";
    OpenOn("#2026-03-08 23:59:59#\r\n" + bytes);
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026 08:05:09"_s, u"3/9/2026 00:00:01"_s}));
    EXPECT_EQ(folder.Read(holidaysFile), bytes);
    Click({2026, 12, 25});
    EXPECT_EQ(user.Beeps, 0);
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    holidays.Save();
    EXPECT_EQ(folder.Read(holidaysFile), bytes + "#2026-12-25#\r\n");
    EXPECT_EQ(holidays.Days(), QList<QDate>{QDate(2026, 12, 25)});
}

TEST_F(HolidayListTest, DateWithTimeOfDaySurvivesInEveryDateForm) {
    for (const char* name : {"de_DE", "cs_CZ", "hu_HU", "sv_SE", "ko_KR", "bg_BG"}) {
        UseLocale(name);
        OpenOn("#2026-12-25 18:05:09#\r\n#2026-12-05#\r\n");
        EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25 18:05:09#\r\n#2026-12-05#\r\n") << name;
        EXPECT_EQ(holidays.Days(), QList<QDate>{QDate(2026, 12, 5)}) << name;
    }
}

TEST_F(HolidayListTest, MidnightIsWrittenWithoutTheTime) {
    OpenOn("#2026-12-25 00:00:00#\r\n");
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n");
}

TEST_F(HolidayListTest, LineThatIsNoDateFailsByNameAndLeavesTheFile) {
    for (const char* line :
         {"Christmas", "12/25/2026", "2026-12-25", "#2026-02-30#", "#2026-12-25", "\"\"",
          "#26-12-25#", "#2026-12-25 25:00:00#", "#TRUE#", "46381", "\xe9t\xe9"}) {
        const QByteArray bytes = "#2026-01-01#\r\n" + QByteArray(line) + "\r\n#2026-12-26#\r\n";
        const RuntimeFailure failure = FailureOfOpening(bytes);
        EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch) << line;
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading Holidays.txt failed: \""_s)) << line;
        EXPECT_EQ(folder.Read(holidaysFile), bytes) << line;
    }
}

TEST_F(HolidayListTest, FailureTellsTheLineThatIsNoDate) {
    EXPECT_EQ(FailureOfOpening("Christmas\r\n").Sentence(),
              u"Reading Holidays.txt failed: \"Christmas\" is not a date."_s);
}

TEST_F(HolidayListTest, EmptyLineIsNoDate) {
    const QByteArray bytes = "#2026-12-25#\r\n\r\n";
    EXPECT_EQ(FailureOfOpening(bytes).Sentence(),
              u"Reading Holidays.txt failed: \"\" is not a date."_s);
    EXPECT_EQ(folder.Read(holidaysFile), bytes);
}

TEST_F(HolidayListTest, FileCutAtAnyByteGivesItsWholeDatesOrFailsUnchanged) {
    const QByteArray whole = "#2026-12-25#\r\n#2026-12-26#\r\n";
    constexpr int dateLength = 12;
    constexpr int lineLength = 14;
    for (int length = 0; length <= whole.size(); ++length) {
        const QByteArray cut = whole.left(length);
        const int restOfLine = length % lineLength;
        if (restOfLine == 0 || restOfLine >= dateLength) {
            OpenOn(cut);
            const int dates = length / lineLength + (restOfLine > 0 ? 1 : 0);
            EXPECT_EQ(folder.Read(holidaysFile), whole.left(dates * lineLength)) << length;
            EXPECT_EQ(Entries(), QStringList({u"12/25/2026"_s, u"12/26/2026"_s}).first(dates))
                << length;
        } else {
            const RuntimeFailure failure = FailureOfOpening(cut);
            EXPECT_EQ(failure.Kind(), FailureKind::TypeMismatch) << length;
            EXPECT_TRUE(failure.Sentence().contains(holidaysFile)) << length;
            EXPECT_EQ(folder.Read(holidaysFile), cut) << length;
        }
    }
}

TEST_F(HolidayListTest, DatesStayInTheOrderOfClicking) {
    OpenOn("#2026-11-26#\r\n");
    Click({2026, 12, 25});
    Click({2026, 7, 4});
    EXPECT_EQ(Entries(), (QStringList{u"11/26/2026"_s, u"12/25/2026"_s, u"7/4/2026"_s}));
    EXPECT_EQ(holidays.Days(), (QList<QDate>{{2026, 11, 26}, {2026, 12, 25}, {2026, 7, 4}}));
    EXPECT_EQ(user.Beeps, 0);
}

TEST_F(HolidayListTest, ClickLeavesTheFileUntilItIsSaved) {
    OpenOn("#2026-11-26#\r\n");
    Click({2026, 12, 25});
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-11-26#\r\n");
}

TEST_F(HolidayListTest, YesterdayBeepsAndIsNotAdded) {
    holidays.Open();
    Click(today.addDays(-1));
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Entries(), QStringList());
}

TEST_F(HolidayListTest, TodayIsAllowed) {
    holidays.Open();
    Click(today);
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(Entries(), QStringList{u"3/9/2026"_s});
}

TEST_F(HolidayListTest, SameDateTwiceIsOneEntryAndABeep) {
    holidays.Open();
    Click({2026, 12, 25});
    Click({2026, 12, 25});
    EXPECT_EQ(user.Beeps, 1);
    EXPECT_EQ(Entries(), QStringList{u"12/25/2026"_s});
}

TEST_F(HolidayListTest, SearchGoesOnBehindAMatchAndBeepsAtEach) {
    OpenOn("#2026-12-25#\r\n#2026-12-26#\r\n#2026-12-25#\r\n#2026-12-25#\r\n");
    Click({2026, 12, 25});
    EXPECT_EQ(user.Beeps, 3);
    EXPECT_EQ(holidays.lstHolidays.rowCount(), 4);
}

TEST_F(HolidayListTest, BeepsWhetherTheAlarmIsOnOrOff) {
    for (const bool isOn : {true, false}) {
        office.settings.AlarmOn = isOn;
        OpenOn("#2026-12-25#\r\n");
        user.Beeps = 0;
        Click(today.addDays(-1));
        Click({2026, 12, 25});
        EXPECT_EQ(user.Beeps, 2) << isOn;
    }
}

TEST_F(HolidayListTest, TwoHundredFiftySixthDateIsTheLastThatCanBeAdded) {
    OpenOn(ManyDates(255));
    Click({2026, 12, 25});
    EXPECT_EQ(holidays.lstHolidays.rowCount(), 256);
    EXPECT_EQ(Entries().last(), u"12/25/2026"_s);
    EXPECT_EQ(FailureOf([this] { Click({2026, 12, 26}); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(holidays.lstHolidays.rowCount(), 256);
}

TEST_F(HolidayListTest, ThreeHundredDatesAreAllShownAndTheNextClickOverflows) {
    OpenOn(ManyDates(300));
    EXPECT_EQ(holidays.lstHolidays.rowCount(), 300);
    EXPECT_EQ(Entries().last(), u"10/27/2027"_s);
    EXPECT_EQ(folder.Read(holidaysFile), ManyDates(300));
    const RuntimeFailure failure = FailureOf([this] { Click({2026, 12, 25}); });
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_EQ(failure.Sentence(),
              u"Looking for a date in the holidays list failed: it holds more than 255 dates."_s);
    EXPECT_EQ(user.Beeps, 0);
    EXPECT_EQ(holidays.lstHolidays.rowCount(), 300);
    EXPECT_EQ(folder.Read(holidaysFile), ManyDates(300));
}

TEST_F(HolidayListTest, FullListOverflowsAlsoOnADateThatItHolds) {
    OpenOn(ManyDates(256));
    EXPECT_EQ(FailureOf([this] { Click({2027, 1, 1}); }).Kind(), FailureKind::Overflow);
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(HolidayListTest, PastDateBeepsEvenWithAFullList) {
    OpenOn(ManyDates(300));
    Click(today.addDays(-1));
    EXPECT_EQ(user.Beeps, 1);
}

TEST_F(HolidayListTest, SaveWritesOneDateALineAndTellsSo) {
    holidays.Open();
    folder.Write(copyInBackup, "#2026-12-31#\r\n");
    Click({2026, 12, 25});
    Click({2026, 7, 4});
    Click(today);
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    holidays.Save();
    user.ExpectNothingLeft();
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n#2026-07-04#\r\n#2026-03-09#\r\n");
    EXPECT_FALSE(folder.Has(copyInBackup));
}

TEST_F(HolidayListTest, SavingAnEmptyListWritesAnEmptyFile) {
    holidays.Open();
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    holidays.Save();
    EXPECT_TRUE(folder.Has(holidaysFile));
    EXPECT_EQ(folder.Read(holidaysFile), "");
}

TEST_F(HolidayListTest, SavedListIsReadBackAsItWas) {
    holidays.Open();
    Click({9999, 12, 31});
    Click(today);
    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    holidays.Save();
    holidays.Open();
    EXPECT_EQ(Entries(), (QStringList{u"12/31/9999"_s, u"3/9/2026"_s}));
}

TEST_F(HolidayListTest, RedoAnsweredYesDeletesListFileAndCopyAtOnce) {
    OpenOn("#2026-12-25#\r\n");
    folder.Write(copyInBackup, "#2026-12-31#\r\n");
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    holidays.Redo();
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_FALSE(folder.Has(holidaysFile));
    EXPECT_FALSE(folder.Has(copyInBackup));
}

TEST_F(HolidayListTest, RedoAnsweredNoLeavesEverything) {
    OpenOn("#2026-12-25#\r\n");
    Click({2026, 7, 4});
    folder.Write(copyInBackup, "#2026-12-31#\r\n");
    const auto before = folder.Contents();
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::No);
    holidays.Redo();
    EXPECT_EQ(Entries(), (QStringList{u"12/25/2026"_s, u"7/4/2026"_s}));
    EXPECT_EQ(folder.Contents(), before);
}

TEST_F(HolidayListTest, RedoOfAnEmptyListAsksTheSame) {
    holidays.Open();
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    holidays.Redo();
    EXPECT_FALSE(folder.Has(holidaysFile));
}

TEST_F(HolidayListTest, EntryOfADateIsFoundByItsTextAndNowhereWhenItIsNotListed) {
    OpenOn("#2026-12-25#\r\n#2026-07-04 08:30:00#\r\n#2026-11-26#\r\n#2026-12-25#\r\n");
    EXPECT_EQ(holidays.EntryOf({2026, 11, 26}).row(), 2);
    EXPECT_EQ(holidays.EntryOf({2026, 12, 25}).row(), 0);
    EXPECT_FALSE(holidays.EntryOf({2026, 7, 4}).isValid());
    EXPECT_FALSE(holidays.EntryOf({2026, 7, 5}).isValid());
}

TEST_F(HolidayListTest, WorkDaysFollowTheListFromTheMomentItIsWritten) {
    office.settings.WorkWeek = 5;
    const auto nextWorkDay = [this](QDate date) {
        return office.calendar.NextAvailableWorkDay(date);
    };
    holidays.Open();
    Click({2026, 12, 24});
    EXPECT_EQ(nextWorkDay({2026, 12, 24}), QDate(2026, 12, 24));

    user.ExpectMessage(u"The Holiday List has been Saved"_s);
    holidays.Save();
    user.ExpectMessage(
        u"12/24/2026 is  a Scheduled Holiday\nA day will be added, then re-checked"_s);
    EXPECT_EQ(nextWorkDay({2026, 12, 24}), QDate(2026, 12, 25));

    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    holidays.Redo();
    EXPECT_EQ(nextWorkDay({2026, 12, 24}), QDate(2026, 12, 24));
}

TEST_F(HolidayListTest, UnreadableFileFailsByNameAndStays) {
    folder.Write(holidaysFile, "#2026-01-01#\r\n");
    DropRootRights(folder);
    const QByteArray path = folder.PathOf(holidaysFile).toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0), 0);
    const RuntimeFailure failure = FailureOf([this] { holidays.Open(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Opening Holidays.txt for reading failed: Permission denied."_s);
    ASSERT_EQ(::chmod(path.constData(), 0644), 0);
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-01-01#\r\n");
}

TEST_F(HolidayListTest, UnwritableFolderFailsByNameAndKeepsTheFile) {
    OpenOn("#2026-12-25#\r\n");
    Click({2026, 7, 4});
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    user.ExpectQuestion(u"This will DELETE all Holidays"_s, u"Clear Holiday List"_s, Answer::Yes);
    const RuntimeFailure failures[] = {FailureOf([this] { holidays.Save(); }),
                                       FailureOf([this] { holidays.Redo(); }),
                                       FailureOf([this] { holidays.Open(); })};
    for (const RuntimeFailure& failure : failures) {
        EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
        EXPECT_EQ(failure.Sentence(), u"Deleting Holidays.txt failed: Permission denied."_s);
    }
    EXPECT_EQ(folder.Read(holidaysFile), "#2026-12-25#\r\n");
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(HolidayListTest, UnwritableFolderWithoutAFileFailsByName) {
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOf([this] { holidays.Open(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Opening Holidays.txt for writing failed: Permission denied."_s);
    EXPECT_FALSE(folder.Has(holidaysFile));
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(HolidayListTest, FullDiskFailsByNameAndTouchesNothingElse) {
    OpenOn("#2026-12-25#\r\n");
    folder.Write(u"WorkDays.txt"_s, "5\r\n");
    auto others = folder.Contents();
    others.erase(holidaysFile);
    const RuntimeFailure failure = FailureOf([this] {
        const FullDisk disk(2);
        holidays.Save();
    });
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_TRUE(failure.Sentence().startsWith(u"Writing Holidays.txt failed"_s));
    auto after = folder.Contents();
    after.erase(holidaysFile);
    EXPECT_EQ(after, others);
}

TEST_F(HolidayListTest, FolderUnderTheNameOfTheFileFailsByName) {
    folder.MakeFolder(holidaysFile);
    const RuntimeFailure failure = FailureOf([this] { holidays.Open(); });
    EXPECT_TRUE(failure.Sentence().startsWith(u"Reading Holidays.txt failed"_s));
    EXPECT_TRUE(folder.Has(holidaysFile));
}
