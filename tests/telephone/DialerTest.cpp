#include "telephone/Dialer.h"

#include "support/LoopPort.h"
#include "support/OfficeTest.h"
#include "support/PlayedPorts.h"
#include "support/ProcessorTime.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Pieces = std::vector<PlayedModem::Piece>;

const QString speedFile = u"SpeedNumbers.txt"_s;
const QString ready = u"Ready to Dial......"_s;
const QString pickUp = u"Pickup Receiver - Then Click Hangup"_s;
/// Milliseconds in which what is going to happen has happened.
constexpr int whileAfter = 400;

} // namespace

/// A dialer for Corner Dairy, with a modem on port 3 that keeps silent until it is told how to
/// answer.
class DialerTest : protected PlayedPorts, public OfficeTest {
protected:
    DialerTest() : OfficeTest(port) {
        devices = {{3, modem.Device()}};
        office.settings.txtModemPort = u"3"_s;
        QObject::connect(&dialer, &Dialer::Dialed, [this] { ++timesDialed; });
        dialer.SetRecipient(u"Corner Dairy"_s, u"217-555-0100"_s);
    }

    bool IsDialed() const {
        return QTest::qWaitFor([this] { return timesDialed > 0; });
    }
    void DialWith(const PlayedModem::Answers& answers) {
        modem.SetAnswers(answers);
        dialer.Load();
        dialer.cmdNewDial_Click();
    }
    /// The modem's answer to the number is not taken for OK.
    void ExpectStillDialing() {
        QTest::qWait(whileAfter);
        EXPECT_EQ(timesDialed, 0);
        EXPECT_EQ(dialer.State, CallState::Dialing);
        EXPECT_EQ(dialer.lblStatus, u"Dialing..... 217-555-0100"_s);
    }
    void ExpectLine(const QString& number, const QByteArray& bytes) {
        dialer.Load();
        dialer.SetRecipient(u"Corner Dairy"_s, number);
        dialer.cmdNewDial_Click();
        EXPECT_EQ(dialer.lblStatus, u"Dialing..... "_s + number);
        EXPECT_TRUE(HasHeard(modem, bytes)) << modem.Heard().toStdString();
    }

    void FillFour() {
        folder.Write(speedFile, "Ann\r\n1\r\nBen\r\n2\r\nCyd\r\n3\r\nDan\r\n4\r\n");
        dialer.Load();
    }
    QStringList Names() const {
        return {dialer.Entries.SpeedName.begin(), dialer.Entries.SpeedName.end()};
    }
    QStringList Numbers() const {
        return {dialer.Entries.SpeedNumber.begin(), dialer.Entries.SpeedNumber.end()};
    }
    static QStringList Ten(QStringList texts) {
        while (texts.size() < 10)
            texts += QString();
        return texts;
    }

    PlayedModem modem{PlayedModem::Silence};
    Dialer& dialer = office.dialer;
    int timesDialed = 0;
};

// The load.

TEST_F(DialerTest, LoadOpensAClosedPortByTheNumberOfTheSetupScreen) {
    dialer.Load();
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(dialer.State, CallState::Ready);
    EXPECT_EQ(dialer.lblStatus, ready);
    EXPECT_EQ(dialer.lblName, u"Corner Dairy"_s);
    EXPECT_EQ(dialer.lblNumber, u"217-555-0100"_s);
    EXPECT_FALSE(dialer.IsEntryChosen);
    EXPECT_FALSE(dialer.fraSpeedDial);
}

TEST_F(DialerTest, LoadUsesThePortOnShowAndNotTheOneOfTheFile) {
    office.settings.ComPort = 5;
    dialer.Load();
    EXPECT_EQ(port.CommPort(), 3);
}

TEST_F(DialerTest, LoadLeavesAnOpenPortAsItIs) {
    OpenPort(3);
    office.settings.txtModemPort = u"4"_s;
    dialer.Load();
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(DialerTest, PortThatIsNoneOpensNothing) {
    OpenPort(3);
    port.Close();
    for (const QString& text : {u""_s, u"three"_s, u"0"_s, u"17"_s, u"-3"_s, u"40000"_s, u"4"_s}) {
        office.settings.txtModemPort = text;
        dialer.Load();
        EXPECT_FALSE(port.PortOpen()) << text.toStdString();
        EXPECT_EQ(dialer.lblStatus, ready);
    }
}

TEST_F(DialerTest, LoadForgetsWhatTheCallBeforeHasLeft) {
    FillFour();
    dialer.cmdDialer_Click(7);
    dialer.txtDialer = {u"half"_s, u"entered"_s};
    dialer.cmdDialer_Click(1);
    dialer.cmdNewDial_Click();
    dialer.HangUp();
    dialer.Load();
    EXPECT_EQ(dialer.lblStatus, ready);
    EXPECT_FALSE(dialer.IsEntryChosen);
    EXPECT_FALSE(dialer.fraSpeedDial);
    EXPECT_EQ(dialer.txtDialer[0], QString());
    EXPECT_EQ(dialer.txtDialer[1], QString());
    EXPECT_EQ(dialer.SelectedSlot, 0u);
    dialer.RestoreRecipient();
    EXPECT_EQ(dialer.lblName, QString());
}

// A call.

TEST_F(DialerTest, NumberGoesOutBetweenTheCommandAndASemicolon) {
    DialWith(PlayedModem::Silence);
    EXPECT_EQ(dialer.State, CallState::Dialing);
    EXPECT_EQ(dialer.lblStatus, u"Dialing..... 217-555-0100"_s);
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0100;\r"));
}

TEST_F(DialerTest, OkBringsTheReceiver) {
    DialWith(PlayedModem::Ok);
    EXPECT_TRUE(IsDialed());
    EXPECT_EQ(dialer.State, CallState::WaitingForReceiver);
    EXPECT_EQ(dialer.lblStatus, pickUp);
    EXPECT_EQ(timesDialed, 1);
}

TEST_F(DialerTest, OkThatComesLateCountsAsWell) {
    DialWith([](const QByteArray&) { return Pieces{{700ms, "\r\nOK\r\n"}}; });
    ExpectStillDialing();
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerTest, OtherRepliesKeepTheDialerWaiting) {
    DialWith([](const QByteArray&) {
        return Pieces{{0ms, "\r\nBUSY\r\n"}, {100ms, "\r\nERROR\r\n"}, {100ms, "ok Ok oK O K"}};
    });
    ExpectStillDialing();
}

TEST_F(DialerTest, OkWithinNoiseCounts) {
    DialWith([](const QByteArray&) {
        return Pieces{{0ms, QByteArray("\x00\xff~~~", 5)}, {150ms, "\xfe\xfdOK\xff"}};
    });
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerTest, CommandSaidBackCountsWhenTheNumberHasOkInIt) {
    dialer.SetRecipient(u"Corner Dairy"_s, u"1-800-BOOKS"_s);
    DialWith([](const QByteArray& command) { return Pieces{{0ms, command + '\r'}}; });
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerTest, DialingThatNeverEndsTakesNoProcessorAndLetsEventsRun) {
    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&ticks] { ++ticks; });
    DialWith(PlayedModem::Silence);
    ticker.start(20);
    const double before = ProcessorSeconds();
    QTest::qWait(1000);
    EXPECT_LT(ProcessorSeconds() - before, 0.1);
    EXPECT_GT(ticks, 20);
    EXPECT_EQ(dialer.State, CallState::Dialing);
}

TEST_F(DialerTest, ReceiverInHandHangsUpTheModemAndClosesThePort) {
    DialWith(PlayedModem::Ok);
    EXPECT_TRUE(IsDialed());
    dialer.cmdCancel_Click();
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0100;\rATH\r"));
    EXPECT_EQ(dialer.State, CallState::Ready);
    EXPECT_EQ(dialer.lblStatus, ready);
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(DialerTest, HangUpInTheMiddleOfDialingEndsTheWait) {
    DialWith([](const QByteArray& command) {
        return command == "ATH" ? Pieces{} : Pieces{{200ms, "OK"}};
    });
    dialer.HangUp();
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0100;\rATH\r"));
    EXPECT_FALSE(port.PortOpen());
    QTest::qWait(whileAfter);
    EXPECT_EQ(timesDialed, 0);
    EXPECT_EQ(dialer.State, CallState::Ready);
}

TEST_F(DialerTest, HangUpBeforeDialingIsSentAsWell) {
    dialer.Load();
    dialer.HangUp();
    EXPECT_TRUE(HasHeard(modem, "ATH\r"));
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(DialerTest, NextCallOpensThePortAgain) {
    DialWith(PlayedModem::Ok);
    EXPECT_TRUE(IsDialed());
    dialer.cmdCancel_Click();
    dialer.Load();
    EXPECT_TRUE(port.PortOpen());
    dialer.cmdNewDial_Click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return timesDialed == 2; }));
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0100;\rATH\rATDT217-555-0100;\r"));
}

TEST_F(DialerTest, WithoutAPortTheStatusStaysAtDialing) {
    devices.clear();
    DialWith(PlayedModem::Ok);
    ExpectStillDialing();
    dialer.HangUp();
    EXPECT_EQ(modem.Heard(), QByteArray());
}

TEST_F(DialerTest, ModemThatVanishesWhileItDialsLeavesTheStatusAndTheHangUp) {
    DialWith(PlayedModem::Silence);
    EXPECT_TRUE(HasHeard(modem, "ATDT217-555-0100;\r"));
    modem.Vanish();
    const double before = ProcessorSeconds();
    ExpectStillDialing();
    EXPECT_LT(ProcessorSeconds() - before, 0.1);
    dialer.HangUp();
    EXPECT_EQ(dialer.State, CallState::Ready);
    const PlayedModem next;
    devices = {{3, next.Device()}};
    dialer.Load();
    dialer.cmdNewDial_Click();
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerTest, ModemThatVanishesBeforeTheReceiverIsInHandLeavesTheEndOfTheCall) {
    DialWith(PlayedModem::Ok);
    EXPECT_TRUE(IsDialed());
    modem.Vanish();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !port.PortOpen(); }));
    dialer.cmdCancel_Click();
    EXPECT_EQ(dialer.State, CallState::Ready);
    EXPECT_EQ(dialer.lblStatus, ready);
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(modem.Heard(), "ATDT217-555-0100;\r");
}

TEST_F(DialerTest, ModemThatMayNotBeOpenedLeavesTheStatusAtDialing) {
    devices = {{3, u"/dev/null"_s}};
    DialWith(PlayedModem::Ok);
    ExpectStillDialing();
}

// Numbers as they come.

TEST_F(DialerTest, NumberOfAThousandCharactersGoesOutWhole) {
    ExpectLine(QString(1000, u'7'), "ATDT" + QByteArray(1000, '7') + ";\r");
}

TEST_F(DialerTest, LettersAndSignsGoOutAsTheyAre) {
    ExpectLine(u"1-800-FLOWERS,,#12*"_s, "ATDT1-800-FLOWERS,,#12*;\r");
}

TEST_F(DialerTest, EmptyNumberGoesOutAsTheBareCommand) {
    ExpectLine({}, "ATDT;\r");
}

TEST_F(DialerTest, AccentsGoOutInTheCodePageAndTheRestAsQuestionMarks) {
    ExpectLine(u"é€寿"_s, "ATDT\xe9\x80?;\r");
}

TEST_F(DialerTest, LineBreakInANumberMakesNoSecondCommand) {
    ExpectLine(u"555\rATH\r\n0100\u008d\u0000"_s, "ATDT555ATH0100;\r");
}

// The prefix.

TEST_F(DialerTest, TickingThePrefixTwiceLeavesTheNumberUnchanged) {
    dialer.ckDial1_Click(true);
    EXPECT_EQ(dialer.lblNumber, u"1-217-555-0100"_s);
    dialer.ckDial1_Click(false);
    EXPECT_EQ(dialer.lblNumber, u"217-555-0100"_s);
}

TEST_F(DialerTest, PrefixIsDialed) {
    dialer.ckDial1_Click(true);
    DialWith(PlayedModem::Silence);
    EXPECT_TRUE(HasHeard(modem, "ATDT1-217-555-0100;\r"));
}

TEST_F(DialerTest, PrefixIsPutInFrontOfOneThatIsThere) {
    dialer.lblNumber = u"1-217"_s;
    dialer.ckDial1_Click(true);
    EXPECT_EQ(dialer.lblNumber, u"1-1-217"_s);
}

TEST_F(DialerTest, ClearingThePrefixStripsOneThatTheBoxHasNotPutThere) {
    dialer.lblNumber = u"1-217"_s;
    dialer.ckDial1_Click(false);
    EXPECT_EQ(dialer.lblNumber, u"217"_s);
    dialer.ckDial1_Click(false);
    EXPECT_EQ(dialer.lblNumber, u"217"_s);
}

TEST_F(DialerTest, EntryChosenWithThePrefixTickedComesWithItsBareNumber) {
    FillFour();
    dialer.ckDial1_Click(true);
    dialer.cmdDialer_Click(2);
    EXPECT_EQ(dialer.lblNumber, u"3"_s);
}

// Speed dial.

TEST_F(DialerTest, EmptyButtonOpensTheFieldsForThatSlotWhicheverSlot) {
    dialer.Load();
    for (size_t slot = 0; slot < 10; ++slot) {
        dialer.CancelEntry();
        EXPECT_FALSE(dialer.cmdDialer_Click(slot));
        EXPECT_TRUE(dialer.fraSpeedDial);
        EXPECT_FALSE(dialer.IsEntryChosen);
        EXPECT_EQ(dialer.SelectedSlot, slot);
        EXPECT_EQ(dialer.lblName, u"Corner Dairy"_s);
    }
}

TEST_F(DialerTest, EntryIsChosenAndNotDialed) {
    FillFour();
    EXPECT_TRUE(dialer.cmdDialer_Click(2));
    EXPECT_EQ(dialer.lblName, u"Cyd"_s);
    EXPECT_EQ(dialer.lblNumber, u"3"_s);
    EXPECT_TRUE(dialer.IsEntryChosen);
    EXPECT_FALSE(dialer.fraSpeedDial);
    EXPECT_EQ(dialer.State, CallState::Ready);
    QTest::qWait(whileAfter);
    EXPECT_EQ(modem.Heard(), QByteArray());
}

TEST_F(DialerTest, EmptyButtonAfterAnEntryClosesTheDelete) {
    FillFour();
    dialer.cmdDialer_Click(2);
    dialer.cmdDialer_Click(5);
    EXPECT_FALSE(dialer.IsEntryChosen);
}

TEST_F(DialerTest, RestoreBringsBackTheRecipientBeforeTheLastChoice) {
    FillFour();
    dialer.cmdDialer_Click(2);
    dialer.RestoreRecipient();
    EXPECT_EQ(dialer.lblName, u"Corner Dairy"_s);
    EXPECT_EQ(dialer.lblNumber, u"217-555-0100"_s);
    dialer.cmdDialer_Click(0);
    dialer.cmdDialer_Click(1);
    dialer.RestoreRecipient();
    EXPECT_EQ(dialer.lblName, u"Ann"_s);
    EXPECT_EQ(dialer.lblNumber, u"1"_s);
}

TEST_F(DialerTest, RestoreAfterAnEmptyButtonBringsBackWhomItWasPressedOver) {
    FillFour();
    dialer.cmdDialer_Click(7);
    dialer.RestoreRecipient();
    EXPECT_EQ(dialer.lblName, u"Corner Dairy"_s);
    EXPECT_EQ(dialer.lblNumber, u"217-555-0100"_s);
    dialer.cmdDialer_Click(2);
    dialer.cmdDialer_Click(7);
    dialer.RestoreRecipient();
    EXPECT_EQ(dialer.lblName, u"Cyd"_s);
    EXPECT_EQ(dialer.lblNumber, u"3"_s);
}

TEST_F(DialerTest, DeleteStaysAsItIsAfterARestoreAndAfterASave) {
    FillFour();
    for (const auto& [slot, isOpen] : {std::pair(size_t(2), true), std::pair(size_t(7), false)}) {
        dialer.cmdDialer_Click(slot);
        dialer.RestoreRecipient();
        EXPECT_EQ(dialer.IsEntryChosen, isOpen) << slot;
        dialer.txtDialer = {u"Eve"_s, u"5"_s};
        dialer.SaveEntry();
        EXPECT_EQ(dialer.IsEntryChosen, isOpen) << slot;
    }
}

TEST_F(DialerTest, RestoreBeforeAnyChoiceLeavesNobodyToCall) {
    dialer.Load();
    dialer.RestoreRecipient();
    EXPECT_EQ(dialer.lblName, QString());
    EXPECT_EQ(dialer.lblNumber, QString());
}

TEST_F(DialerTest, SavedEntryStandsOnItsButtonAndClosesUpInTheFile) {
    FillFour();
    dialer.cmdDialer_Click(8);
    dialer.txtDialer = {u"Büro \"Süd\""_s, u"217-555-0142"_s};
    dialer.SaveEntry();
    EXPECT_EQ(dialer.Entries.SpeedName[8], u"Büro \"Süd\""_s);
    EXPECT_EQ(dialer.Entries.SpeedNumber[8], u"217-555-0142"_s);
    EXPECT_FALSE(dialer.fraSpeedDial);
    EXPECT_EQ(dialer.txtDialer[0], QString());
    EXPECT_EQ(dialer.txtDialer[1], QString());
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nBen\r\n2\r\nCyd\r\n3\r\nDan\r\n4\r\n"
                                      "B\xfcro \"S\xfc"
                                      "d\"\r\n217-555-0142\r\n");
    dialer.Load();
    EXPECT_EQ(Names(), Ten({u"Ann"_s, u"Ben"_s, u"Cyd"_s, u"Dan"_s, u"Büro \"Süd\""_s}));
}

TEST_F(DialerTest, CancelBlanksAndClosesTheFieldsAndSavesNothing) {
    dialer.Load();
    dialer.cmdDialer_Click(0);
    dialer.txtDialer = {u"Ann"_s, u"1"_s};
    dialer.CancelEntry();
    EXPECT_FALSE(dialer.fraSpeedDial);
    EXPECT_EQ(dialer.txtDialer[0], QString());
    EXPECT_EQ(dialer.txtDialer[1], QString());
    EXPECT_EQ(Names(), Ten({}));
    EXPECT_FALSE(folder.Has(speedFile));
}

TEST_F(DialerTest, RecipientIsSavedWithItsPrefix) {
    dialer.Load();
    dialer.cmdDialer_Click(0);
    dialer.ckDial1_Click(true);
    dialer.SaveRecipientAsEntry();
    EXPECT_EQ(folder.Read(speedFile), "Corner Dairy\r\n1-217-555-0100\r\n");
    EXPECT_FALSE(dialer.fraSpeedDial);
    EXPECT_EQ(dialer.txtDialer[0], QString());
}

TEST_F(DialerTest, LineBreakInAnEntryMakesNoFurtherLine) {
    dialer.Load();
    dialer.cmdDialer_Click(0);
    dialer.txtDialer = {u"Ann\r\nBen"_s, u"1\r\n2"_s};
    dialer.SaveEntry();
    EXPECT_EQ(folder.Read(speedFile), "AnnBen\r\n12\r\n");
}

TEST_F(DialerTest, EntrySavedWithoutANameIsNotKept) {
    FillFour();
    dialer.cmdDialer_Click(1);
    dialer.txtDialer = {QString(), u"2"_s};
    dialer.SaveEntry();
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nCyd\r\n3\r\nDan\r\n4\r\n");
}

TEST_F(DialerTest, DeletingEntry2Of4MovesEntries3And4ToButtons2And3) {
    FillFour();
    dialer.cmdDialer_Click(1);
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::Yes);
    dialer.DeleteEntry();
    EXPECT_EQ(Names(), Ten({u"Ann"_s, u"Cyd"_s, u"Dan"_s}));
    EXPECT_EQ(Numbers(), Ten({u"1"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nCyd\r\n3\r\nDan\r\n4\r\n");
}

TEST_F(DialerTest, DeletedEntryIsStillTheOneWhoIsCalled) {
    FillFour();
    dialer.cmdDialer_Click(1);
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::Yes);
    dialer.DeleteEntry();
    EXPECT_EQ(dialer.lblName, u"Ben"_s);
    EXPECT_EQ(dialer.lblNumber, u"2"_s);
}

TEST_F(DialerTest, EntryThatHasComeUpCanBeDeletedNext) {
    FillFour();
    dialer.cmdDialer_Click(1);
    for (const QString& name : {u"Ben"_s, u"Cyd"_s}) {
        user.ExpectQuestion(u"This will delete SpeedDial entry  %1\nAre you Sure"_s.arg(name),
                            u"Delete Speed Dial"_s, Answer::Yes);
        dialer.DeleteEntry();
        EXPECT_TRUE(dialer.IsEntryChosen);
    }
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nDan\r\n4\r\n");
}

TEST_F(DialerTest, NoToTheDeletionKeepsTheEntryAndClosesTheDelete) {
    FillFour();
    dialer.cmdDialer_Click(1);
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::No);
    dialer.DeleteEntry();
    EXPECT_FALSE(dialer.IsEntryChosen);
    EXPECT_EQ(Names(), Ten({u"Ann"_s, u"Ben"_s, u"Cyd"_s, u"Dan"_s}));
    EXPECT_EQ(folder.Read(speedFile), "Ann\r\n1\r\nBen\r\n2\r\nCyd\r\n3\r\nDan\r\n4\r\n");
}

TEST_F(DialerTest, DeletingTheOnlyEntryLeavesAnEmptyFileAndNothingComesBack) {
    folder.Write(speedFile, "Ann\r\n1\r\n");
    folder.Write(u"Backup/SpeedNumbers.txt"_s, "Ann\r\n1\r\n");
    dialer.Load();
    dialer.cmdDialer_Click(0);
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ann\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::Yes);
    dialer.DeleteEntry();
    EXPECT_EQ(folder.Read(speedFile), "");
    EXPECT_EQ(Names(), Ten({}));
    dialer.Load();
    EXPECT_EQ(Names(), Ten({}));
}

TEST_F(DialerTest, ReplyThatComesWhileTheQuestionIsOpenCounts) {
    FillFour();
    dialer.cmdDialer_Click(1);
    modem.SetAnswers(PlayedModem::Ok);
    dialer.cmdNewDial_Click();
    user.WhileMessageIsOpen = [this] { EXPECT_TRUE(IsDialed()); };
    user.ExpectQuestion(u"This will delete SpeedDial entry  Ben\nAre you Sure"_s,
                        u"Delete Speed Dial"_s, Answer::No);
    dialer.DeleteEntry();
    EXPECT_EQ(dialer.lblStatus, pickUp);
}

/// What counts as a reply, on a port where time is kept to the millisecond.
class DialerReplyTest : protected LoopPorts, public OfficeTest {
protected:
    DialerReplyTest() : OfficeTest(port) {
        port.Devices[3] = PlayedModem::Silence;
        office.settings.txtModemPort = u"3"_s;
        dialer.SetRecipient(u"Corner Dairy"_s, u"217-555-0100"_s);
    }

    void DialWith(const PlayedModem::Answers& answers) {
        port.Devices[3] = answers;
        dialer.Load();
        dialer.cmdNewDial_Click();
    }
    /// The dialer has taken all that has come in.
    bool HasRead() {
        return QTest::qWaitFor([this] { return port.InBufferCount() == 0; });
    }
    bool IsDialed() {
        return QTest::qWaitFor([this] { return dialer.State == CallState::WaitingForReceiver; });
    }

    Dialer& dialer = office.dialer;
};

TEST_F(DialerReplyTest, OkThatComesByteByByteAsOnALineIsRecognised) {
    // With one digit more than usual, O is the last byte of a pair.
    dialer.SetRecipient(u"Corner Dairy"_s, u"9217-555-0100"_s);
    DialWith([](const QByteArray&) {
        Pieces bytes;
        for (const char byte : QByteArray("ATDT9217-555-0100;\r\r\nOK\r\n"))
            bytes.push_back({1ms, QByteArray(1, byte)});
        return bytes;
    });
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerReplyTest, OkSplitAcrossTwoReadsIsNotRecognised) {
    DialWith(PlayedModem::Silence);
    for (const char* half : {"\r\nO", "K\r\n"}) {
        port.Say(half);
        EXPECT_TRUE(HasRead());
        EXPECT_EQ(dialer.State, CallState::Dialing);
    }
    port.Say("\r\nOK\r\n");
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerReplyTest, SingleByteIsNotReadAndBelongsToTheNextReply) {
    // The second byte comes long after the look at the first.
    DialWith([](const QByteArray&) { return Pieces{{0ms, "O"}, {250ms, "K"}}; });
    EXPECT_TRUE(IsDialed());
}

TEST_F(DialerReplyTest, WhatCameInBeforeTheDialIsForgotten) {
    dialer.Load();
    port.Say("\r\nOK\r\n");
    port.Devices[3] = [](const QByteArray& command) { return Pieces{{0ms, command + '\r'}}; };
    dialer.cmdNewDial_Click();
    // The modem says the number back, and that alone is the reply.
    EXPECT_TRUE(QTest::qWaitFor([this] { return port.InBufferCount() > 0; }));
    EXPECT_TRUE(HasRead());
    EXPECT_EQ(dialer.State, CallState::Dialing);
}
