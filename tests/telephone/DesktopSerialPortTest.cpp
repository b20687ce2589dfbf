#include "support/PlayedPorts.h"
#include "support/ProcessorTime.h"
#include "support/TextOutput.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Half a second in the event loop takes next to no processor.
void ExpectRest() {
    const double before = ProcessorSeconds();
    QTest::qWait(500);
    EXPECT_LT(ProcessorSeconds() - before, 0.1);
}

} // namespace

class DesktopSerialPortTest : protected PlayedPorts, public testing::Test {
protected:
    QString SentenceOf(const std::function<void()>& operation) {
        try {
            operation();
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.Kind(), FailureKind::DeviceFailure);
            return failure.Sentence();
        }
        return u"no failure"_s;
    }
    bool Receives(const QByteArray& bytes) {
        return QTest::qWaitFor([&] { return port.InBufferCount() == bytes.size(); }) &&
               port.Input() == bytes;
    }
};

TEST(SerialDeviceTest, NumbersStandForDevicesOfFourKinds) {
    EXPECT_EQ(SerialDevice(1), u"/dev/ttyS0"_s);
    EXPECT_EQ(SerialDevice(4), u"/dev/ttyS3"_s);
    EXPECT_EQ(SerialDevice(5), u"/dev/ttyACM0"_s);
    EXPECT_EQ(SerialDevice(8), u"/dev/ttyACM3"_s);
    EXPECT_EQ(SerialDevice(9), u"/dev/ttyUSB0"_s);
    EXPECT_EQ(SerialDevice(12), u"/dev/ttyUSB3"_s);
    EXPECT_EQ(SerialDevice(13), u"/dev/rfcomm0"_s);
    EXPECT_EQ(SerialDevice(16), u"/dev/rfcomm3"_s);
}

TEST_F(DesktopSerialPortTest, BytesGoBothWaysAsTheyAre) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += char(byte);
    port.Output(everyByte);
    EXPECT_TRUE(HasHeard(modem, everyByte));
    modem.Say(everyByte);
    EXPECT_TRUE(Receives(everyByte));
    EXPECT_EQ(port.InBufferCount(), 0);
}

TEST_F(DesktopSerialPortTest, ItTellsOfWhatHasComeIn) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    int times = 0;
    QObject::connect(&port, &SerialPort::Received, [&times] { ++times; });
    modem.Say("RING");
    EXPECT_TRUE(QTest::qWaitFor([&times] { return times > 0; }));
}

TEST_F(DesktopSerialPortTest, WhatIsSentLastStillGoesOutWhenThePortCloses) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    port.Output("ATH\r");
    port.Close();
    EXPECT_FALSE(port.PortOpen());
    EXPECT_TRUE(HasHeard(modem, "ATH\r"));
}

TEST_F(DesktopSerialPortTest, ClosingDoesNotWaitForADeviceThatTakesNothing) {
    const PlayedModem modem([](const QByteArray&) {
        return std::vector<PlayedModem::Piece>{{std::chrono::minutes(1), "OK"}};
    });
    devices = {{1, modem.Device()}};
    OpenPort(1);
    port.Output("\r");
    EXPECT_TRUE(HasHeard(modem, "\r"));
    port.Output(QByteArray(1'000'000, '7'));
    QElapsedTimer time;
    time.start();
    port.Close();
    EXPECT_LT(time.elapsed(), 2000);
}

TEST_F(DesktopSerialPortTest, ClearedInputIsForgottenAndMoreComesIn) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    modem.Say("NOISE");
    EXPECT_TRUE(QTest::qWaitFor([this] { return port.InBufferCount() == 5; }));
    port.ClearInput();
    EXPECT_EQ(port.InBufferCount(), 0);
    modem.Say("OK");
    EXPECT_TRUE(Receives("OK"));
}

TEST_F(DesktopSerialPortTest, NoiseNobodyReadsFillsNoMemoryAndTakesNoProcessor) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    for (int round = 0; round < 20; ++round) {
        modem.Say(QByteArray(1000, '~'));
        QTest::qWait(5);
    }
    EXPECT_EQ(port.InBufferCount(), 1024);
    ExpectRest();
    port.ClearInput();
    EXPECT_EQ(port.InBufferCount(), 0);
    modem.Say("OK");
    EXPECT_TRUE(Receives("OK"));
}

TEST_F(DesktopSerialPortTest, OpenPortAtRestTakesNoProcessor) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    ExpectRest();
}

TEST_F(DesktopSerialPortTest, DeviceThatVanishesClosesThePortAndTakesNoProcessor) {
    PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    modem.Vanish();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !port.PortOpen(); }));
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_EQ(port.Input(), QByteArray());
    ExpectRest();
    EXPECT_EQ(SentenceOf([this] { port.Output("ATH\r"); }),
              u"Sending to serial port 1 failed: it is not open."_s);
    port.Close();
    const PlayedModem next(PlayedModem::Silence);
    devices = {{1, next.Device()}};
    OpenPort(1);
    port.Output("AT\r");
    EXPECT_TRUE(HasHeard(next, "AT\r"));
}

TEST_F(DesktopSerialPortTest, SendingToADeviceThatHasJustVanishedEndsWithAClosedPort) {
    PlayedModem modem(PlayedModem::Silence);
    devices = {{1, modem.Device()}};
    OpenPort(1);
    modem.Vanish();
    PassOver([this] { port.Output("ATDT5550100;\r"); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !port.PortOpen(); }));
}

TEST_F(DesktopSerialPortTest, ErrorOfTheOpeningBeforeLeavesTheNextOneOpen) {
    PlayedModem modem(PlayedModem::Silence);
    const PlayedModem next(PlayedModem::Silence);
    devices = {{1, modem.Device()}, {2, next.Device()}};
    OpenPort(1);
    modem.Vanish();
    PassOver([this] { port.Output("AT\r"); });
    port.Close();
    OpenPort(2);
    QCoreApplication::processEvents();
    EXPECT_TRUE(port.PortOpen());
    next.Say("OK");
    EXPECT_TRUE(Receives("OK"));
}

TEST_F(DesktopSerialPortTest, NumberStaysWhileThePortIsOpen) {
    const PlayedModem modem(PlayedModem::Silence);
    devices = {{3, modem.Device()}};
    OpenPort(3);
    EXPECT_EQ(SentenceOf([this] { port.SetCommPort(4); }),
              u"Leaving serial port 3 failed: it is open."_s);
    EXPECT_EQ(port.CommPort(), 3);
    port.Close();
    port.SetCommPort(4);
    EXPECT_EQ(port.CommPort(), 4);
}

TEST_F(DesktopSerialPortTest, NumbersOutsideTheSixteenAreRefused) {
    port.SetCommPort(16);
    for (const qint16 number : std::initializer_list<qint16>{-1, 0, 17, 32767})
        EXPECT_EQ(SentenceOf([this, number] { port.SetCommPort(number); }),
                  u"There is no serial port %1."_s.arg(number));
    EXPECT_EQ(port.CommPort(), 16);
}

TEST_F(DesktopSerialPortTest, WhatCantBeOpenedFailsAndStaysClosed) {
    EXPECT_EQ(SentenceOf([this] { port.Open(); }),
              u"Opening serial port 1 failed: there is no such device."_s);
    devices = {{1, u"/dev/null"_s}};
    EXPECT_TRUE(
        SentenceOf([this] { port.Open(); }).startsWith(u"Opening serial port 1 failed: "_s));
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(port.InBufferCount(), 0);
    port.ClearInput();
    port.Close();
}
