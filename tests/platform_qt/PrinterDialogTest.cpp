#include "platform/DesktopOperator.h"
#include "support/TestFolder.h"
#include "support/TextOutput.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// The operator at the printer dialog of a machine without a printer, where the user's documents
/// are in "Papers" and the data folder is the current one.
class DialogWithoutPrinterTest : public testing::Test {
protected:
    DialogWithoutPrinterTest() {
        qputenv("HOME", folder.Path().toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.PathOf(u"config"_s).toUtf8());
        folder.Write(u"config/user-dirs.dirs"_s,
                     "XDG_DOCUMENTS_DIR=\"" + folder.PathOf(u"Papers"_s).toUtf8() + "\"\n");
        folder.MakeFolder(u"Data"_s);
        EXPECT_TRUE(QDir::setCurrent(folder.PathOf(u"Data"_s)));
    }

    using Act = std::function<void(QDialog&)>;
    /// A dialog that is still open after the act is cancelled.
    static std::optional<PrintDestination> AnswerAt(const QString& documentName, const Act& act) {
        int shown = 0;
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            ++shown;
            const bool isActive = QTest::qWaitForWindowActive(dialog);
            EXPECT_TRUE(isActive);
            act(*dialog);
            dialog->close();
        });
        DesktopOperator user;
        const auto answer = user.AskForPrinter({.Copies = 3}, documentName);
        EXPECT_EQ(shown, 1);
        return answer;
    }
    static QLineEdit& File(const QDialog& dialog) {
        return *dialog.findChild<QLineEdit*>(u"filename"_s);
    }
    static void TypeFile(const QDialog& dialog, const QString& text) {
        File(dialog).setFocus();
        File(dialog).selectAll();
        QTest::keyClicks(&File(dialog), text);
    }
    /// Clicks on Print; answers the toolkit's own question, if one comes, and gives back its words.
    static QString ClickPrint(const QDialog& dialog, QMessageBox::StandardButton answer) {
        QString words;
        QTimer::singleShot(0, qApp, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                words = box->text();
                box->button(answer)->click();
            }
        });
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QCoreApplication::processEvents();
        return words;
    }

    TestFolder folder;
    const QString documents = folder.PathOf(u"Papers/Tessel Delivery/"_s);
};

TEST_F(DialogWithoutPrinterTest, OnlyAFileIsOfferedAmongTheDocumentsAndItsFolderIsMade) {
    const auto answer = AnswerAt(u"Stock list"_s, [&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>(u"printers"_s)->count(), 1);
        EXPECT_TRUE(File(dialog).isEnabled());
        EXPECT_EQ(File(dialog).text(), documents + u"Stock list.pdf"_s);
        EXPECT_FALSE(dialog.findChild<QSpinBox*>(u"copies"_s)->isEnabled());
        EXPECT_FALSE(dialog.findChild<QWidget*>(u"gbPrintRange"_s)->isVisible());
        EXPECT_EQ(ClickPrint(dialog, QMessageBox::Yes), QString());
    });
    EXPECT_EQ(answer, PrintDestination{.File = documents + u"Stock list.pdf"_s});
    EXPECT_TRUE(folder.Has(u"Papers/Tessel Delivery"_s));
    EXPECT_FALSE(folder.Has(u"Papers/Tessel Delivery/Stock list.pdf"_s));
}

TEST_F(DialogWithoutPrinterTest, ProposedNameIsNotTakenAndHasNoFolderInIt) {
    folder.Write(u"Papers/Tessel Delivery/Stock 3-9-2026.pdf"_s, "kept");
    const auto answer = AnswerAt(u"Stock 3/9/2026"_s, [&](QDialog& dialog) {
        EXPECT_EQ(ClickPrint(dialog, QMessageBox::Yes), QString());
    });
    EXPECT_EQ(answer, PrintDestination{.File = documents + u"Stock 3-9-2026 (2).pdf"_s});
}

TEST_F(DialogWithoutPrinterTest, BareNameIsAFileAmongTheDocumentsNotInTheDataFolder) {
    const auto answer = AnswerAt(u"Stock list"_s, [&](QDialog& dialog) {
        TypeFile(dialog, u"march.pdf"_s);
        EXPECT_EQ(ClickPrint(dialog, QMessageBox::Yes), QString());
    });
    EXPECT_EQ(answer, PrintDestination{.File = documents + u"march.pdf"_s});
    EXPECT_EQ(folder.Everything().filter(u"Data/"_s), QStringList{u"Data/"_s});
}

TEST_F(DialogWithoutPrinterTest, BareNameAndReturnIsThatFileToo) {
    const auto answer = AnswerAt(u"Stock list"_s, [&](QDialog& dialog) {
        TypeFile(dialog, u"march.pdf"_s);
        QTest::keyClick(&File(dialog), Qt::Key_Return);
    });
    EXPECT_EQ(answer, PrintDestination{.File = documents + u"march.pdf"_s});
}

TEST_F(DialogWithoutPrinterTest, FileThatIsThereIsWrittenOverOnlyAfterAYes) {
    folder.Write(u"Papers/Tessel Delivery/march.pdf"_s, "kept");
    const auto typeAndAnswer = [&](QMessageBox::StandardButton button) {
        return AnswerAt(u"Stock list"_s, [&](QDialog& dialog) {
            TypeFile(dialog, u"march.pdf"_s);
            EXPECT_TRUE(ClickPrint(dialog, button).contains(u"march.pdf already exists"_s));
        });
    };
    EXPECT_EQ(typeAndAnswer(QMessageBox::No), std::nullopt);
    EXPECT_EQ(typeAndAnswer(QMessageBox::Yes),
              PrintDestination{.File = documents + u"march.pdf"_s});
    EXPECT_EQ(folder.Read(u"Papers/Tessel Delivery/march.pdf"_s), "kept");
}

TEST_F(DialogWithoutPrinterTest, FileThatCannotBeWrittenIsRefusedInTheDialog) {
    folder.Write(u"Papers"_s, "a file in the way");
    const auto answer = AnswerAt(u"Stock list"_s, [&](QDialog& dialog) {
        EXPECT_TRUE(ClickPrint(dialog, QMessageBox::Ok).contains(u"is not writable"_s));
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(answer, std::nullopt);
    EXPECT_EQ(folder.Read(u"Papers"_s), "a file in the way");
}

TEST_F(DialogWithoutPrinterTest, EscapeGivesNothing) {
    const auto answer = AnswerAt(u"Stock list"_s,
                                 [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(answer, std::nullopt);
}
