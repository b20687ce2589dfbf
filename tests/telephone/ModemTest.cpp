#include "telephone/Modem.h"

#include "support/OfficeTest.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString phone = u"Phone.txt"_s;
const QString copyOfPhone = u"Backup/Phone.txt"_s;

} // namespace

class ModemTest : public OfficeTest {
protected:
    ModemTest() { folder.Remove(phone); }

    LiveSettings& live = office.settings;

    RuntimeFailure FailureOfSetUp() {
        return FailureOf([&] { office.modem.SetUpModem(); });
    }
};

TEST_F(ModemTest, WithoutAFileItIsCreatedWithoutAPhoneAndWithThePortOfTheProbe) {
    live.ckPhone = true;
    live.PhoneDaisyChained = true;
    live.ComPort = 7;
    office.modem.SetUpModem();
    EXPECT_EQ(folder.Read(phone), "#FALSE#\r\n1\r\n");
    EXPECT_FALSE(live.ckPhone);
    EXPECT_FALSE(live.PhoneDaisyChained);
    EXPECT_EQ(live.ComPort, 1);
    EXPECT_EQ(live.txtModemPort, u"1"_s);
}

TEST_F(ModemTest, PortOfTheFileReplacesTheOneFoundButNotTheOneOnShow) {
    folder.Write(phone, "#FALSE#\r\n5\r\n");
    office.modem.SetUpModem();
    EXPECT_EQ(live.txtModemPort, u"1"_s);
    EXPECT_EQ(live.ComPort, 5);
    EXPECT_EQ(folder.Read(phone), "#FALSE#\r\n5\r\n");
}

TEST_F(ModemTest, PhoneOfTheFileTicksItsBox) {
    folder.Write(phone, "#TRUE#\r\n16\r\n");
    office.modem.SetUpModem();
    EXPECT_TRUE(live.PhoneDaisyChained);
    EXPECT_TRUE(live.ckPhone);
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n16\r\n");
}

TEST_F(ModemTest, TickedPhoneTakesEffectInTheFileOnlyWithASave) {
    office.modem.SetUpModem();
    live.ckPhone = true;
    EXPECT_EQ(folder.Read(phone), "#FALSE#\r\n1\r\n");
    EXPECT_FALSE(live.PhoneDaisyChained);
    office.modem.SavePhoneSettings();
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n1\r\n");
    EXPECT_TRUE(live.PhoneDaisyChained);
    live.ckPhone = false;
    office.modem.SavePhoneSettings();
    EXPECT_EQ(folder.Read(phone), "#FALSE#\r\n1\r\n");
}

TEST_F(ModemTest, WritingDeletesTheBackupCopy) {
    folder.Write(phone, "#TRUE#\r\n5\r\n");
    folder.Write(copyOfPhone, "#FALSE#\r\n9\r\n");
    office.modem.SetUpModem();
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n5\r\n");
    EXPECT_FALSE(folder.Has(copyOfPhone));
}

TEST_F(ModemTest, LostFileIsBroughtBackFromBackup) {
    folder.Write(copyOfPhone, "#TRUE#\r\n9\r\n");
    office.modem.SetUpModem();
    EXPECT_EQ(live.ComPort, 9);
    EXPECT_TRUE(live.ckPhone);
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n9\r\n");
    EXPECT_FALSE(folder.Has(copyOfPhone));
}

TEST_F(ModemTest, CallerIdOnShowsItsLabelAndOffLeavesIt) {
    live.CallerIdOn = false;
    office.modem.SetUpModem();
    EXPECT_FALSE(live.lblCallid);
    live.CallerIdOn = true;
    office.modem.SetUpModem();
    EXPECT_TRUE(live.lblCallid);
}

TEST_F(ModemTest, FileIsTheSameInEveryRegion) {
    UseLocale("de_DE");
    folder.Write(phone, "#TRUE#\r\n32767\r\n");
    office.modem.SetUpModem();
    EXPECT_EQ(live.ComPort, 32767);
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n32767\r\n");
    folder.Write(phone, "#TRUE#,-32768");
    office.modem.SetUpModem();
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n-32768\r\n");
}

TEST_F(ModemTest, FieldsBehindTheTwoAreIgnored) {
    QByteArray bytes = "#TRUE#\r\n5\r\n";
    for (int i = 0; i < 1000; ++i)
        bytes += "\"more\",1\r\n";
    folder.Write(phone, bytes);
    office.modem.SetUpModem();
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n5\r\n");
}

// Bad input.

TEST_F(ModemTest, FileCutAnywhereBeforeThePortFailsAndStaysAsItIs) {
    const QByteArray whole = "#TRUE#\r\n5\r\n";
    const qsizetype startOfPort = whole.indexOf('5');
    for (qsizetype length = 0; length <= startOfPort; ++length) {
        folder.Write(phone, whole.left(length));
        const RuntimeFailure failure = FailureOfSetUp();
        const bool flagIsWhole = length >= 6;
        EXPECT_EQ(failure.Kind(),
                  length == 0 || flagIsWhole ? FailureKind::ReadPastEnd : FailureKind::TypeMismatch)
            << length;
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading Phone.txt failed: "_s))
            << failure.what();
        EXPECT_EQ(folder.Read(phone), whole.left(length));
    }
    for (qsizetype length = startOfPort + 1; length <= whole.size(); ++length) {
        folder.Write(phone, whole.left(length));
        office.modem.SetUpModem();
        EXPECT_EQ(folder.Read(phone), whole) << length;
    }
}

TEST_F(ModemTest, ValueOfTheWrongTypeFailsByNameAndStaysAsItIs) {
    const std::pair<QByteArray, FailureKind> files[] = {
        {"True\r\n5\r\n", FailureKind::TypeMismatch},
        {"1\r\n5\r\n", FailureKind::TypeMismatch},
        {"\"\"\r\n5\r\n", FailureKind::TypeMismatch},
        {"#TRUE#\r\nfive\r\n", FailureKind::TypeMismatch},
        {"#TRUE#\r\n#TRUE#\r\n", FailureKind::TypeMismatch},
        {"#TRUE#\r\n\r\n", FailureKind::TypeMismatch},
        {"#TRUE#\r\n32768\r\n", FailureKind::Overflow},
        {"#TRUE#\r\n-32769\r\n", FailureKind::Overflow},
        {"#TRUE#\r\n9E999\r\n", FailureKind::Overflow}};
    for (const auto& [bytes, kind] : files) {
        folder.Write(phone, bytes);
        const RuntimeFailure failure = FailureOfSetUp();
        EXPECT_EQ(failure.Kind(), kind) << bytes.toStdString();
        EXPECT_TRUE(failure.Sentence().startsWith(u"Reading Phone.txt failed: "_s))
            << failure.what();
        EXPECT_EQ(folder.Read(phone), bytes);
    }
}

TEST_F(ModemTest, UnreadableFileFailsByName) {
    folder.Write(phone, "#TRUE#\r\n5\r\n");
    DropRootRights(folder);
    ASSERT_EQ(::chmod(folder.PathOf(phone).toUtf8().constData(), 0), 0);
    const RuntimeFailure failure = FailureOfSetUp();
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Opening Phone.txt for reading failed: Permission denied."_s);
}

TEST_F(ModemTest, UnwritableFolderFailsByNameAndKeepsTheFile) {
    folder.Write(phone, "#TRUE#\r\n5\r\n");
    DropRootRights(folder);
    const QByteArray path = folder.Path().toUtf8();
    ASSERT_EQ(::chmod(path.constData(), 0555), 0);
    const RuntimeFailure failure = FailureOfSetUp();
    EXPECT_EQ(failure.Kind(), FailureKind::PermissionDenied);
    EXPECT_EQ(failure.Sentence(), u"Deleting Phone.txt failed: Permission denied."_s);
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n5\r\n");
    ASSERT_EQ(::chmod(path.constData(), 0755), 0);
}

TEST_F(ModemTest, FullDiskFailsByName) {
    const FullDisk disk(2);
    const RuntimeFailure failure = FailureOfSetUp();
    EXPECT_EQ(failure.Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure.Sentence(), u"Writing Phone.txt failed: File too large."_s);
}
