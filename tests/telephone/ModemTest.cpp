#include "telephone/Modem.h"

#include "support/LoopPort.h"
#include "support/OfficeTest.h"
#include "support/PlayedPorts.h"

#include <QElapsedTimer>
#include <QTimer>

#include <array>
#include <limits>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString phone = u"Phone.txt"_s;
const QString copyOfPhone = u"Backup/Phone.txt"_s;

} // namespace

class ModemTest : protected PlayedPorts, public OfficeTest {
protected:
    ModemTest() : OfficeTest(port) { folder.Remove(phone); }

    LiveSettings& live = office.settings;

    RuntimeFailure FailureOfSetUp() {
        return FailureOf([&] { office.modem.SetUpModem(); });
    }

    void ExpectFound(qint16 number) {
        EXPECT_EQ(live.ComPort, number);
        EXPECT_EQ(live.txtModemPort, QString::number(number));
        EXPECT_EQ(office.modem.Text1, u"Your Modem Comm Port Is %1."_s.arg(number));
        EXPECT_EQ(office.modem.Label2, u"COM Port # %1"_s.arg(number));
        EXPECT_EQ(port.CommPort(), number);
        EXPECT_TRUE(port.PortOpen());
    }

    /// What is left of a search without a find: port 1, as if it were there.
    void ExpectNotFound() {
        EXPECT_EQ(live.ComPort, 1);
        EXPECT_EQ(live.txtModemPort, u"1"_s);
        EXPECT_EQ(office.modem.Text1, u"Your Modem Comm Port Is 1."_s);
        EXPECT_EQ(office.modem.Label2, u"COM Port # 1"_s);
        EXPECT_EQ(port.CommPort(), 1);
    }

    /// A modem of that kind on port 4 is not found.
    void ExpectOverheard(const PlayedModem::Answers& answers) {
        const PlayedModem modem(answers);
        devices = {{4, modem.Device()}};
        office.modem.SetUpModem();
        ExpectNotFound();
        EXPECT_FALSE(port.PortOpen());
        EXPECT_TRUE(HasHeard(modem, "AT\r")) << modem.Heard().toStdString();
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

TEST_F(ModemTest, TickedPhoneTakesEffectInTheFileWithTheNextLoadToo) {
    folder.Write(phone, "#FALSE#\r\n5\r\n");
    live.ckPhone = true;
    office.modem.SetUpModem();
    EXPECT_EQ(folder.Read(phone), "#TRUE#\r\n5\r\n");
    EXPECT_TRUE(live.ckPhone);
    EXPECT_TRUE(live.PhoneDaisyChained);
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
    live.CallerIdOn = false;
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

// The search for the modem.

TEST_F(ModemTest, ModemThatAnswersAtOnceIsFoundAndItsPortIsLeftOpenWithCallerIdOn) {
    const PlayedModem modem;
    devices = {{3, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(3);
    EXPECT_TRUE(HasHeard(modem, "AT\rAT#CID=1\r"));
    EXPECT_EQ(folder.Read(phone), "#FALSE#\r\n3\r\n");
}

TEST_F(ModemTest, EachOfSixteenPortsIsAsked) {
    for (qint16 number = 1; number <= 16; ++number) {
        const PlayedModem modem;
        devices = {{number, modem.Device()}};
        office.modem.SetUpModem();
        ExpectFound(number);
        port.Close();
        folder.Remove(phone);
    }
}

TEST_F(ModemTest, SearchStopsAtTheFirstModem) {
    const PlayedModem first;
    const PlayedModem second;
    devices = {{2, first.Device()}, {5, second.Device()}};
    office.modem.SetUpModem();
    ExpectFound(2);
    EXPECT_TRUE(HasHeard(first, "AT\rAT#CID=1\r"));
    EXPECT_EQ(second.Heard(), QByteArray());
}

TEST_F(ModemTest, ModemBehindSilentPortsIsFound) {
    const PlayedModem silent(PlayedModem::Silence);
    const PlayedModem modem;
    devices = {{1, silent.Device()}, {16, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(16);
    EXPECT_TRUE(HasHeard(silent, "AT\r"));
}

TEST_F(ModemTest, SixteenSilentPortsAreAskedOnceEachAndTheFirstIsLeftOpen) {
    std::array<PlayedModem, SerialPort::lastPort> silent;
    for (qint16 number = SerialPort::firstPort; PlayedModem & modem : silent) {
        modem.SetAnswers(PlayedModem::Silence);
        devices[number++] = modem.Device();
    }
    office.modem.SetUpModem();
    ExpectFound(1);
    EXPECT_TRUE(HasHeard(silent.front(), "AT\rAT#CID=1\r"));
    for (size_t i = 1; i < silent.size(); ++i)
        EXPECT_TRUE(HasHeard(silent[i], "AT\r")) << i;
}

TEST_F(ModemTest, SixteenSilentPortsTakeLessThanHalfASecond) {
    std::array<PlayedModem, SerialPort::lastPort> silent;
    for (qint16 number = SerialPort::firstPort; PlayedModem & modem : silent) {
        modem.SetAnswers(PlayedModem::Silence);
        devices[number++] = modem.Device();
    }
    // A busy machine takes longer now and then, but not every time.
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int times = 0; times < 20 && shortest >= 500; ++times) {
        port.Close();
        QElapsedTimer time;
        time.start();
        office.modem.SetUpModem();
        shortest = std::min(shortest, time.elapsed());
    }
    EXPECT_LT(shortest, 500);
    // All of them have been asked.
    EXPECT_TRUE(QTest::qWaitFor([&silent] { return silent.back().Heard().startsWith("AT\r"); }));
}

TEST_F(ModemTest, ModemThatVanishesInTheMiddleOfTheSearchIsPassedOver) {
    PlayedModem vanishing(PlayedModem::Silence);
    const PlayedModem modem;
    devices = {{1, vanishing.Device()}, {2, modem.Device()}};
    QTimer::singleShot(0, &port, [&vanishing] { vanishing.Vanish(); });
    office.modem.SetUpModem();
    ExpectFound(2);
}

TEST_F(ModemTest, PortOfTheFileIsKeptBesideTheOneThatTheProbeFinds) {
    const PlayedModem modem;
    devices = {{3, modem.Device()}};
    folder.Write(phone, "#FALSE#\r\n5\r\n");
    office.modem.SetUpModem();
    EXPECT_EQ(live.txtModemPort, u"3"_s);
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(office.modem.Text1, u"Your Modem Comm Port Is 3."_s);
    EXPECT_EQ(live.ComPort, 5);
    EXPECT_EQ(folder.Read(phone), "#FALSE#\r\n5\r\n");
}

TEST_F(ModemTest, CallerIdIsSwitchedOnWhetherItIsInUseOrNot) {
    for (const bool isInUse : {false, true}) {
        live.CallerIdOn = isInUse;
        const PlayedModem modem;
        devices = {{1, modem.Device()}};
        office.modem.SetUpModem();
        EXPECT_TRUE(HasHeard(modem, "AT\rAT#CID=1\r"));
        port.Close();
    }
}

TEST_F(ModemTest, ModemThatAnswersLateIsNotFound) {
    ExpectOverheard([](const QByteArray& command) {
        return std::vector<PlayedModem::Piece>{{400ms, command + "\r\r\nOK\r\n"}};
    });
}

TEST_F(ModemTest, ModemThatNeverAnswersIsNotFound) {
    ExpectOverheard(PlayedModem::Silence);
}

TEST_F(ModemTest, OneByteInTimeIsNoAnswer) {
    ExpectOverheard([](const QByteArray&) {
        return std::vector<PlayedModem::Piece>{{0ms, "O"}, {400ms, "K\r\n"}};
    });
}

TEST_F(ModemTest, TwoHalvesInTimeAreAnAnswer) {
    const PlayedModem modem([](const QByteArray&) {
        return std::vector<PlayedModem::Piece>{{0ms, "O"}, {2ms, "K"}};
    });
    devices = {{1, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(1);
}

TEST_F(ModemTest, AnyTwoBytesAreAnAnswer) {
    const PlayedModem modem([](const QByteArray&) {
        return std::vector<PlayedModem::Piece>{{0ms, QByteArray("\x00\xff", 2)}};
    });
    devices = {{1, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(1);
}

TEST_F(ModemTest, SilentDeviceOnPort1IsTakenForTheModemWhenNoneIsFound) {
    const PlayedModem silent(PlayedModem::Silence);
    devices = {{1, silent.Device()}};
    office.modem.SetUpModem();
    ExpectFound(1);
    EXPECT_TRUE(HasHeard(silent, "AT\rAT#CID=1\r"));
}

TEST_F(ModemTest, PortThatIsOpenAlreadyIsNotAskedAndNotChanged) {
    const PlayedModem modem;
    devices = {{3, modem.Device()}};
    OpenPort(3);
    office.modem.SetUpModem();
    EXPECT_EQ(live.txtModemPort, u"1"_s);
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_TRUE(port.PortOpen());
    EXPECT_TRUE(HasHeard(modem, "AT#CID=1\r"));
}

TEST_F(ModemTest, WhatLiesUnreadInAnOpenPortIsForgotten) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{3, modem.Device()}};
    OpenPort(3);
    modem.Say("\r\nRING\r\n");
    ASSERT_TRUE(QTest::qWaitFor([this] { return port.InBufferCount() == 8; }));
    office.modem.SetUpModem();
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_TRUE(HasHeard(modem, "AT#CID=1\r"));
}

TEST_F(ModemTest, ReportsOfTheModemAreLeftUnread) {
    const PlayedModem modem([](const QByteArray& command) {
        return command == "AT" ? PlayedModem::Ok(command) : PlayedModem::Silence(command);
    });
    devices = {{1, modem.Device()}};
    office.modem.SetUpModem();
    EXPECT_EQ(port.InBufferCount(), 0);
    modem.Say("\r\nRING\r\n");
    EXPECT_TRUE(QTest::qWaitFor([this] { return port.InBufferCount() == 8; }));
    EXPECT_EQ(port.Input(), "\r\nRING\r\n");
}

TEST_F(ModemTest, DeviceThatIsNoSerialPortIsPassedOver) {
    const PlayedModem modem;
    folder.Write(u"plain file"_s, "AT\r");
    devices = {{1, folder.PathOf(u"plain file"_s)},
               {2, folder.Path()},
               {3, u"/dev/null"_s},
               {4, folder.PathOf(u"missing"_s)},
               {5, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(5);
    EXPECT_EQ(folder.Read(u"plain file"_s), "AT\r");
}

TEST_F(ModemTest, PortThatMayNotBeOpenedIsPassedOver) {
    const PlayedModem forbidden;
    ASSERT_EQ(::chmod(forbidden.Device().toLatin1().constData(), 0), 0);
    DropRootRights(folder);
    const PlayedModem modem;
    devices = {{1, forbidden.Device()}, {2, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(2);
    EXPECT_EQ(forbidden.Heard(), QByteArray());
}

TEST_F(ModemTest, ModemThatVanishesAfterTheSearchLeavesAClosedPortAndTheNextSearchGoesOn) {
    PlayedModem modem;
    devices = {{1, modem.Device()}};
    office.modem.SetUpModem();
    ExpectFound(1);
    modem.Vanish();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !port.PortOpen(); }));
    folder.Remove(phone);
    const PlayedModem next;
    devices = {{7, next.Device()}};
    office.modem.SetUpModem();
    ExpectFound(7);
}

// The search on ports where time is kept to the millisecond.

class ModemSearchTest : protected LoopPorts, public OfficeTest {
protected:
    ModemSearchTest() : OfficeTest(port) { folder.Remove(phone); }

    /// Silent devices on the first fifteen ports, and on the last a modem that answers after a
    /// time.
    void PutModemLast(std::chrono::milliseconds timeToAnswer) {
        for (qint16 number = 1; number <= 15; ++number)
            port.Devices[number] = PlayedModem::Silence;
        port.Devices[16] = [timeToAnswer](const QByteArray& command) {
            std::vector<PlayedModem::Piece> answer = PlayedModem::Ok(command);
            answer.front().pause = timeToAnswer;
            return answer;
        };
    }
    /// Every port was asked, and the last is the modem's.
    void ExpectFoundLast() {
        EXPECT_EQ(office.settings.txtModemPort, u"16"_s);
        EXPECT_EQ(port.CommPort(), 16);
        EXPECT_TRUE(port.PortOpen());
        for (qint16 number = 1; number <= 15; ++number)
            EXPECT_EQ(port.Heard(number), "AT\r") << number;
        EXPECT_EQ(port.Heard(16), "AT\rAT#CID=1\r");
    }
};

TEST_F(ModemSearchTest, ModemOnTheLastPortIsFoundBehindFifteenSilentOnes) {
    PutModemLast(0ms);
    office.modem.SetUpModem();
    ExpectFoundLast();
}

TEST_F(ModemSearchTest, PortBehindSlowOnesHasTheTimeOfAModemOnUsb) {
    // The opening of the ports takes all the time there is for the search.
    port.TimeToOpen = 30ms;
    PutModemLast(21ms);
    office.modem.SetUpModem();
    ExpectFoundLast();
}

TEST_F(ModemSearchTest, AnswerToTheSearchIsForgotten) {
    port.Devices[1] = [](const QByteArray& command) {
        return command == "AT" ? PlayedModem::Ok(command) : PlayedModem::Silence(command);
    };
    office.modem.SetUpModem();
    EXPECT_EQ(office.settings.txtModemPort, u"1"_s);
    EXPECT_EQ(port.Heard(1), "AT\rAT#CID=1\r");
    EXPECT_EQ(port.InBufferCount(), 0);
}

// Bad input.

TEST_F(ModemTest, PortOfTheFileThatIsNoneIsKeptAndNotOpened) {
    const PlayedModem modem;
    for (const QByteArray& number : {QByteArray("0"), QByteArray("17"), QByteArray("-1")}) {
        devices = {{2, modem.Device()}};
        const QByteArray bytes = "#TRUE#\r\n" + number + "\r\n";
        folder.Write(phone, bytes);
        office.modem.SetUpModem();
        EXPECT_EQ(folder.Read(phone), bytes);
        EXPECT_EQ(QByteArray::number(live.ComPort), number);
        EXPECT_EQ(live.txtModemPort, u"2"_s);
        EXPECT_EQ(port.CommPort(), 2);
        port.Close();
    }
}

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
        {"#TRUE#\r\n40000\r\n", FailureKind::Overflow},
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
