#include "PrintedPages.h"
#include "platform/DesktopOperator.h"
#include "platform/PagePrinter.h"
#include "support/OfficeTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include <functional>
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

// The operator's choice.

TEST_F(PrintServerTest, AJobGoesToTheChosenPrinterWithItsCopies) {
    printer.SendTo({.Printer = u"Laser"_s, .Copies = 3});
    printer.Print(u"Page"_s);
    printer.EndJob();
    const PrintedPages pages = OnlyPrintedJob();
    EXPECT_TRUE(OptionsOfJob(1).contains(u"printer=Laser"_s));
    // The filters make the copies, one page after the other.
    EXPECT_EQ(pages.Count(), 3);
}

TEST_F(PrintServerTest, WithoutAChoiceAJobGoesOnceToTheDefaultPrinter) {
    printer.Print(u"Page"_s);
    printer.EndJob();
    const PrintedPages pages = OnlyPrintedJob();
    EXPECT_TRUE(OptionsOfJob(1).contains(u"printer=PDF"_s));
    EXPECT_EQ(pages.Count(), 1);
}

TEST_F(PrintServerTest, BehindTheCommandJobsGoOnceToTheSamePrinter) {
    printer.SendTo({.Printer = u"Laser"_s, .Copies = 2});
    printer.Print(u"Asked"_s);
    printer.EndJob();
    printer.EndCommand();
    printer.Print(u"Unasked"_s);
    printer.EndJob();
    Order("WaitForPrintedJobs 2");
    EXPECT_TRUE(OptionsOfJob(2).contains(u"printer=Laser"_s));
    const PrintedPages unasked(folder.PathOf(u"printed/2 Tessel Delivery.pdf"_s));
    EXPECT_EQ(unasked.Count(), 1);
    EXPECT_EQ(unasked.Words(1), QStringList{u"Unasked"_s});
}

TEST_F(PrintServerTest, AChosenFileIsWrittenThoughThereIsAPrinter) {
    printer.SendTo({.File = folder.PathOf(u"chosen.pdf"_s)});
    printer.Print(u"Page"_s);
    printer.EndJob();
    EXPECT_EQ(PrintedPages(folder.PathOf(u"chosen.pdf"_s)).Words(1), QStringList{u"Page"_s});
    EXPECT_TRUE(PrintedJobs().isEmpty());
}

TEST_F(PrintServerTest, AChosenPrinterThatIsGoneFails) {
    printer.SendTo({.Printer = u"Gone"_s});
    printer.Print(u"Page"_s);
    const RuntimeFailure failure = FailureOf([this] { printer.EndJob(); });
    EXPECT_EQ(failure.Kind(), FailureKind::PrinterFailure);
    EXPECT_TRUE(failure.Sentence().startsWith(
        u"Sending \"Tessel Delivery\" to the printer Gone failed: "_s))
        << failure.what();
    EXPECT_TRUE(PrintedJobs().isEmpty());
}

/// The operator at the printer dialog of a machine with two printers.
class PrinterDialogTest : public PrintServerTest {
protected:
    PrinterDialogTest() {
        folder.Write(u"config/user-dirs.dirs"_s,
                     "XDG_DOCUMENTS_DIR=\"" + folder.PathOf(u"Papers"_s).toUtf8() + "\"\n");
    }

    using Act = std::function<void(QDialog&)>;
    static std::optional<PrintDestination> AnswerAt(const PrintDestination& openedWith,
                                                    const Act& act) {
        int shown = 0;
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog) {
                ++shown;
                act(*dialog);
                dialog->close();
            }
        });
        DesktopOperator user;
        const auto answer = user.AskForPrinter(openedWith, u"Stock list"_s);
        EXPECT_EQ(shown, 1);
        return answer;
    }
    static void Press(const QDialog& dialog, QDialogButtonBox::ButtonRole role) {
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == role)
                button->click();
        }
    }
    static QComboBox& Printers(const QDialog& dialog) {
        return *dialog.findChild<QComboBox*>(u"printers"_s);
    }
};

TEST_F(PrinterDialogTest, OpensAtTheDefaultPrinterWithTheCopiesAndOffersNothingWithoutEffect) {
    const auto answer = AnswerAt({.Copies = 4}, [](QDialog& dialog) {
        EXPECT_EQ(Printers(dialog).currentText(), u"PDF"_s);
        EXPECT_GE(Printers(dialog).findText(u"Laser"_s), 0);
        auto* copies = dialog.findChild<QSpinBox*>(u"copies"_s);
        EXPECT_TRUE(copies->isVisible());
        EXPECT_TRUE(copies->isEnabled());
        EXPECT_EQ(copies->value(), 4);
        for (const QString& name : {u"gbPrintRange"_s, u"collate"_s, u"reverse"_s, u"properties"_s,
                                    u"colorMode"_s, u"duplex"_s})
            EXPECT_FALSE(dialog.findChild<QWidget*>(name)->isVisible()) << name.toStdString();
        int visibleButtons = 0;
        for (const QAbstractButton* button : dialog.findChild<QDialogButtonBox*>()->buttons())
            visibleButtons += button->isVisible() ? 1 : 0;
        EXPECT_EQ(visibleButtons, 2);
        Press(dialog, QDialogButtonBox::AcceptRole);
    });
    EXPECT_EQ(answer, (PrintDestination{.Printer = u"PDF"_s, .Copies = 4}));
    EXPECT_FALSE(folder.Has(u"Papers"_s));
}

TEST_F(PrinterDialogTest, OpensAtThePrinterChosenLast) {
    const auto answer = AnswerAt({.Printer = u"Laser"_s}, [](QDialog& dialog) {
        EXPECT_EQ(Printers(dialog).currentText(), u"Laser"_s);
        Press(dialog, QDialogButtonBox::AcceptRole);
    });
    EXPECT_EQ(answer, (PrintDestination{.Printer = u"Laser"_s, .Copies = 1}));
}

TEST_F(PrinterDialogTest, OpensAtTheDefaultPrinterWhenTheOneChosenLastIsGone) {
    const auto answer = AnswerAt({.Printer = u"Gone"_s}, [](QDialog& dialog) {
        EXPECT_EQ(Printers(dialog).currentText(), u"PDF"_s);
        Press(dialog, QDialogButtonBox::AcceptRole);
    });
    EXPECT_EQ(answer, (PrintDestination{.Printer = u"PDF"_s, .Copies = 1}));
}

TEST_F(PrinterDialogTest, AnotherPrinterAndOtherCopiesAreTheAnswer) {
    const auto answer = AnswerAt({.Copies = 3}, [](QDialog& dialog) {
        Printers(dialog).setCurrentIndex(Printers(dialog).findText(u"Laser"_s));
        dialog.findChild<QSpinBox*>(u"copies"_s)->setValue(6);
        Press(dialog, QDialogButtonBox::AcceptRole);
    });
    EXPECT_EQ(answer, (PrintDestination{.Printer = u"Laser"_s, .Copies = 6}));
}

TEST_F(PrinterDialogTest, PrintingIntoAFileProposesOneAmongTheDocumentsAndHasNoCopies) {
    const QString proposed = folder.PathOf(u"Papers/Tessel Delivery/Stock list.pdf"_s);
    const auto answer = AnswerAt({.Copies = 3}, [&](QDialog& dialog) {
        Printers(dialog).setCurrentIndex(Printers(dialog).count() - 1);
        EXPECT_EQ(dialog.findChild<QLineEdit*>(u"filename"_s)->text(), proposed);
        EXPECT_FALSE(dialog.findChild<QSpinBox*>(u"copies"_s)->isEnabled());
        Press(dialog, QDialogButtonBox::AcceptRole);
    });
    EXPECT_EQ(answer, PrintDestination{.File = proposed});
}

TEST_F(PrinterDialogTest, BackFromAFileThePrinterIsTheAnswer) {
    const auto answer = AnswerAt({.Copies = 3}, [](QDialog& dialog) {
        Printers(dialog).setCurrentIndex(Printers(dialog).count() - 1);
        Printers(dialog).setCurrentIndex(Printers(dialog).findText(u"Laser"_s));
        EXPECT_TRUE(dialog.findChild<QSpinBox*>(u"copies"_s)->isEnabled());
        Press(dialog, QDialogButtonBox::AcceptRole);
    });
    EXPECT_EQ(answer, (PrintDestination{.Printer = u"Laser"_s, .Copies = 3}));
}

TEST_F(PrinterDialogTest, CancelGivesNothing) {
    const auto answer =
        AnswerAt({}, [](QDialog& dialog) { Press(dialog, QDialogButtonBox::RejectRole); });
    EXPECT_EQ(answer, std::nullopt);
}
