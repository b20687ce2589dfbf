#include "PrintedPages.h"
#include "platform/PagePrinter.h"
#include "support/OfficeTest.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double nearby = 0.02; // inches
constexpr int milliSecondsForServer = 60'000;

/// A machine whose default printer is the queue of a print server of its own. The server's shell
/// waits for orders, one a line, and stops the server when the orders end, however the test does.
/// The print system's library reads CUPS_SERVER once a process, so each test needs its own process.
class PrintServerTest : public testing::Test {
protected:
    PrintServerTest() {
        qputenv("HOME", folder.Path().toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.PathOf(u"config"_s).toUtf8());
        qputenv("CUPS_SERVER", QFile::encodeName(folder.PathOf(u"cups.sock"_s)));
        for (const char* chosen : {"LPDEST", "PRINTER"})
            qunsetenv(chosen);
        server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        server.start(u"bash"_s, {u"-c"_s,
                                 u". \"$0\"\n"
                                 "trap StopPrintServer EXIT\n"
                                 "StartPrintServer \"$1\" || exit\n"
                                 "echo done\n"
                                 "while read -r order; do $order && echo done; done"_s,
                                 QStringLiteral(PRINT_SERVER_LIBRARY), folder.Path()});
        WaitForServer();
    }

    ~PrintServerTest() override {
        server.closeWriteChannel();
        EXPECT_TRUE(server.waitForFinished(milliSecondsForServer));
    }

    void Order(const QByteArray& order) {
        server.write(order + '\n');
        WaitForServer();
    }

    void WaitForServer() {
        while (!server.canReadLine() && server.waitForReadyRead(milliSecondsForServer)) {
        }
        EXPECT_EQ(server.readLine(), "done\n");
    }

    QStringList PrintedJobs() const {
        return QDir(folder.PathOf(u"printed"_s)).entryList({u"*.pdf"_s});
    }

    /// The pages that came out of the printer as its only job.
    PrintedPages OnlyPrintedJob() {
        Order("WaitForPrintedJobs 1");
        EXPECT_EQ(PrintedJobs().size(), 1);
        return PrintedPages(folder.PathOf(u"printed/"_s + PrintedJobs().value(0)));
    }

    QStringList OptionsOfJob(int job) const {
        return QString::fromUtf8(folder.Read(u"printed/%1.options"_s.arg(job)))
            .simplified()
            .split(u' ');
    }

    /// The reason that the failure to send the job in hand gives.
    QString ReasonOfFailedSending() {
        const RuntimeFailure failure = FailureOf([this] { printer.EndJob(); });
        EXPECT_EQ(failure.Kind(), FailureKind::PrinterFailure);
        const QString operation = u"Sending \"Tessel Delivery\" to the printer PDF failed: "_s;
        EXPECT_TRUE(failure.Sentence().startsWith(operation)) << failure.what();
        return failure.Sentence().mid(operation.size());
    }

    TestFolder folder;
    QProcess server;
    QStringList opened;
    PagePrinter printer{[this](const QString& path) { opened += path; }};
};

} // namespace

TEST_F(PrintServerTest, PagesComeOutOfTheDefaultPrinterWhereTheyWereDrawn) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.JobName = u"Delivery schedule 3/9/2026"_s;
    printer.SetPage(Orientation::Portrait, true);
    printer.CurrentX = 1440;
    printer.CurrentY = 2880;
    printer.Print(u"First"_s);
    printer.FillBox(1440, 5760, 2880, 7200, 0x0000ff);
    printer.NewPage();
    printer.CurrentX = 7200;
    printer.CurrentY = 14400;
    printer.Print(u"Second"_s);
    printer.EndJob();
    const PrintedPages pages = OnlyPrintedJob();
    EXPECT_EQ(PrintedJobs(), QStringList{u"1 Delivery schedule 3-9-2026.pdf"_s});
    EXPECT_EQ(pages.Count(), 2);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    EXPECT_NEAR(pages.PlaceOf(u"First"_s, 1).left(), 1.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"First"_s, 1).top(), 2.0, nearby);
    EXPECT_EQ(ColorAt(pages.Picture(1), 1.5, 4.5).name(), u"#ff0000"_s);
    EXPECT_NEAR(pages.PlaceOf(u"Second"_s, 2).left(), 5.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Second"_s, 2).top(), 10.0, nearby);
}

TEST_F(PrintServerTest, WithAPrinterNothingIsStoredOrOpened) {
    printer.Print(u"Page"_s);
    printer.EndJob();
    Order("WaitForPrintedJobs 1");
    EXPECT_FALSE(folder.Has(u"Documents"_s));
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(PrintServerTest, AnAbandonedJobNeverReachesThePrinter) {
    printer.Print(u"Thrown"_s);
    printer.NewPage();
    printer.AbandonJob();
    printer.Print(u"Kept"_s);
    printer.EndJob();
    const PrintedPages pages = OnlyPrintedJob();
    EXPECT_EQ(PrintedJobs(), QStringList{u"1 Tessel Delivery.pdf"_s});
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Words(1), QStringList{u"Kept"_s});
}

TEST_F(PrintServerTest, APrinterThatRefusesJobsFails) {
    Order("cupsreject PDF");
    // More than fits into a pipe, so that the job is refused while it is being sent.
    for (int page = 0; page < 300; ++page) {
        printer.Print(u"Page"_s);
        printer.NewPage();
    }
    const QString reason = ReasonOfFailedSending();
    EXPECT_TRUE(reason.endsWith(u"Destination \"PDF\" is not accepting jobs."_s))
        << reason.toStdString();
    EXPECT_TRUE(opened.isEmpty());
    Order("cupsaccept PDF");
    printer.Print(u"Again"_s);
    printer.EndJob();
    EXPECT_EQ(OnlyPrintedJob().Words(1), QStringList{u"Again"_s});
}

TEST_F(PrintServerTest, WithoutTheProgramThatSendsJobsPrintingFails) {
    printer.Print(u"Page"_s);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nonexistent");
    const QString reason = ReasonOfFailedSending();
    qputenv("PATH", path);
    EXPECT_TRUE(reason.endsWith(u"No such file or directory"_s)) << reason.toStdString();
    EXPECT_TRUE(PrintedJobs().isEmpty());
}

TEST_F(PrintServerTest, PaperColorAndTrueSizeAreAskedFor) {
    printer.SetPage(Orientation::Portrait, false);
    printer.Print(u"Grey"_s);
    printer.EndJob();
    printer.SetPage(Orientation::Portrait, true);
    printer.Print(u"Colored"_s);
    printer.EndJob();
    Order("WaitForPrintedJobs 2");
    EXPECT_TRUE(OptionsOfJob(1).contains(u"print-color-mode=monochrome"_s));
    EXPECT_TRUE(OptionsOfJob(1).contains(u"media=Letter"_s));
    EXPECT_TRUE(OptionsOfJob(1).contains(u"print-scaling=none"_s));
    EXPECT_TRUE(OptionsOfJob(2).contains(u"print-color-mode=color"_s));
    EXPECT_TRUE(OptionsOfJob(2).contains(u"media=Letter"_s));
}

TEST_F(PrintServerTest, ALandscapePageComesOutOnPaperTurnedToTheRight) {
    printer.FontName = u"DejaVu Sans"_s;
    printer.SetPage(Orientation::Landscape, true);
    printer.CurrentX = 14400;
    printer.CurrentY = 11520;
    printer.Print(u"Corner"_s);
    printer.EndJob();
    const PrintedPages pages = OnlyPrintedJob();
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.Property(u"Page size"_s), u"612 x 792 pts (letter)"_s);
    EXPECT_NEAR(pages.PlaceOf(u"Corner"_s).top(), 10.0, nearby);
    EXPECT_NEAR(pages.PlaceOf(u"Corner"_s).right(), 0.5, nearby);
}
