#include "platform/DesktopOperator.h"
#include "support/TestFolder.h"
#include "support/TextOutput.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString filter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

/// What the operator at a dialog does once it stands on the screen. A dialog that is still open
/// afterwards is cancelled.
template <typename Dialog>
void AtTheDialog(const std::function<void(Dialog&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog) {
            ADD_FAILURE() << "This dialog does not show.";
            if (QApplication::activeModalWidget())
                QApplication::activeModalWidget()->close();
            return;
        }
        const bool isActive = QTest::qWaitForWindowActive(dialog);
        EXPECT_TRUE(isActive);
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

void ClickButton(const QDialog& dialog, QDialogButtonBox::StandardButton button) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

/// The data folder is the current one, with files of all kinds in it.
class FileDialogTest : public testing::Test {
protected:
    FileDialogTest() {
        for (const QString& name :
             {u"a.bmp"_s, u"B.BMP"_s, u"c.ico"_s, u"D.ICO"_s, u"e.cur"_s, u"F.CUR"_s, u"g.jpg"_s,
              u"H.JPG"_s, u"ijpg"_s, u"J.EMF"_s, u"k.emf"_s, u"l.png"_s, u"m.jpeg"_s, u"n.txt"_s,
              u"o.bmp.txt"_s, u"p"_s})
            folder.Write(name, "x");
        folder.MakeFolder(u"Inner"_s);
        EXPECT_TRUE(QDir::setCurrent(folder.Path()));
    }

    static QStringList Shown(const QFileDialog& dialog) {
        const auto* list = dialog.findChild<QListView*>(u"listView"_s);
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            names += list->model()->index(row, 0, list->rootIndex()).data().toString();
        names.sort(Qt::CaseInsensitive);
        return names;
    }
    /// The folder is read in the background.
    static void ExpectShown(const QFileDialog& dialog, const QStringList& expected) {
        const bool isShown = QTest::qWaitFor([&] { return Shown(dialog) == expected; });
        EXPECT_TRUE(isShown) << Shown(dialog).join(u' ').toStdString();
    }

    TestFolder folder;
    DesktopOperator user;
};

} // namespace

TEST(MessageBoxTest, ShortMessageIsWiderThanItsTitle) {
    DesktopOperator user;
    for (const Buttons buttons : {Buttons::Ok, Buttons::YesNo, Buttons::OkCancel}) {
        AtTheDialog<QMessageBox>([](QMessageBox& box) {
            const int title = box.fontMetrics().horizontalAdvance(box.windowTitle());
            EXPECT_GE(box.width(), title + 8 * box.fontMetrics().height());
        });
        user.MsgBox(u"Sure?"_s, buttons, u"Delete a Recurring Slip"_s);
    }
}

TEST_F(FileDialogTest, FirstFilterShowsFoldersAndThePicturesItNames) {
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) {
        const auto* types = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
        EXPECT_EQ(types->count(), 2);
        EXPECT_EQ(types->currentIndex(), 0);
        EXPECT_TRUE(types->itemText(0).startsWith(u"Pictures ("_s));
        EXPECT_TRUE(types->itemText(1).startsWith(u"All ("_s));
        ExpectShown(dialog,
                    {u"a.bmp"_s, u"B.BMP"_s, u"c.ico"_s, u"D.ICO"_s, u"e.cur"_s, u"F.CUR"_s,
                     u"g.jpg"_s, u"H.JPG"_s, u"ijpg"_s, u"Inner"_s, u"J.EMF"_s, u"k.emf"_s});
    });
    EXPECT_EQ(user.AskForFile(filter), std::nullopt);
}

TEST_F(FileDialogTest, SecondFilterShowsEverythingAlsoANameWithoutADot) {
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) {
        auto* types = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
        types->setFocus();
        QTest::keyClick(types, Qt::Key_Down);
        EXPECT_EQ(types->currentIndex(), 1);
        ExpectShown(dialog, {u"a.bmp"_s, u"B.BMP"_s, u"c.ico"_s, u"D.ICO"_s, u"e.cur"_s, u"F.CUR"_s,
                             u"g.jpg"_s, u"H.JPG"_s, u"ijpg"_s, u"Inner"_s, u"J.EMF"_s, u"k.emf"_s,
                             u"l.png"_s, u"m.jpeg"_s, u"n.txt"_s, u"o.bmp.txt"_s, u"p"_s});
    });
    EXPECT_EQ(user.AskForFile(filter), std::nullopt);
}

TEST_F(FileDialogTest, TypedNameGivesTheFullPath) {
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
        QTest::keyClicks(name, u"l.png"_s);
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(user.AskForFile(filter), folder.PathOf(u"l.png"_s));
}

TEST_F(FileDialogTest, ClickedFileGivesTheFullPath) {
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) {
        auto* list = dialog.findChild<QListView*>(u"listView"_s);
        QModelIndex file;
        const bool isThere = QTest::qWaitFor([&] {
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
                file = list->model()->index(row, 0, list->rootIndex());
                if (file.data().toString() == u"J.EMF"_s)
                    return true;
            }
            return false;
        });
        ASSERT_TRUE(isThere);
        list->scrollTo(file);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualRect(file).center());
        ClickButton(dialog, QDialogButtonBox::Open);
    });
    EXPECT_EQ(user.AskForFile(filter), folder.PathOf(u"J.EMF"_s));
}

TEST_F(FileDialogTest, CancelAndEscapeGiveNothing) {
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"fileNameEdit"_s), u"a.bmp"_s);
        ClickButton(dialog, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(user.AskForFile(filter), std::nullopt);
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(user.AskForFile(filter), std::nullopt);
}

TEST_F(FileDialogTest, NameOfNoFileIsNotTaken) {
    AtTheDialog<QFileDialog>([](QFileDialog& dialog) {
        // The dialog says so in a message of its own, which waits for its OK.
        QTimer::singleShot(0, qApp, [&dialog] {
            QWidget* message = QApplication::activeModalWidget();
            EXPECT_NE(message, &dialog);
            if (message != &dialog)
                message->close();
        });
        auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
        QTest::keyClicks(name, u"gone.bmp"_s);
        QTest::keyClick(name, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(user.AskForFile(filter), std::nullopt);
}

TEST(ColorDialogTest, OpensAtTheColorGivenAndGivesTheChosenOneWithRedInTheLowestByte) {
    DesktopOperator user;
    AtTheDialog<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(0x20, 0x40, 0x80));
        dialog.setCurrentColor(QColor(0xff, 0x80, 0x01));
        ClickButton(dialog, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(user.AskForColor(0x804020), 0x0180ffU);
}

TEST(ColorDialogTest, CancelGivesNothing) {
    DesktopOperator user;
    AtTheDialog<QColorDialog>([](QColorDialog& dialog) {
        dialog.setCurrentColor(QColor(0xff, 0x80, 0x01));
        ClickButton(dialog, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(user.AskForColor(0), std::nullopt);
}

TEST(FontDialogTest, OpensAtTheFontGivenAndGivesTheNameOfTheChosenOneOnly) {
    DesktopOperator user;
    AtTheDialog<QFontDialog>([](QFontDialog& dialog) {
        EXPECT_EQ(dialog.currentFont().family(), u"DejaVu Sans"_s);
        dialog.setCurrentFont(QFont(u"DejaVu Sans Mono"_s, 36, QFont::Bold, true));
        ClickButton(dialog, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(user.AskForFont(u"DejaVu Sans"_s), u"DejaVu Sans Mono"_s);
}

TEST(FontDialogTest, CancelGivesNothing) {
    DesktopOperator user;
    AtTheDialog<QFontDialog>([](QFontDialog& dialog) {
        dialog.setCurrentFont(QFont(u"DejaVu Sans Mono"_s));
        ClickButton(dialog, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(user.AskForFont(u"DejaVu Sans"_s), std::nullopt);
}

// Messages.

namespace {

const QString question = u"Delete <b>all</b> of it?"_s;

Answer AnswerAt(const std::function<void(QMessageBox&)>& act, Buttons buttons = Buttons::YesNo) {
    DesktopOperator user;
    bool isAsked = false;
    AtTheDialog<QMessageBox>([&](QMessageBox& box) {
        isAsked = true;
        act(box);
        EXPECT_FALSE(box.isVisible());
    });
    const Answer answer = user.MsgBox(question, buttons, u"Delete"_s);
    EXPECT_TRUE(isAsked);
    return answer;
}

} // namespace

TEST(MessageTest, QuestionIsAnsweredByItsTwoButtons) {
    EXPECT_EQ(AnswerAt([](QMessageBox& box) {
                  EXPECT_EQ(box.windowTitle(), u"Delete"_s);
                  EXPECT_EQ(box.text(), question);
                  EXPECT_EQ(box.textFormat(), Qt::PlainText);
                  EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
                  QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
              }),
              Answer::Yes);
    EXPECT_EQ(AnswerAt([](QMessageBox& box) {
                  QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
              }),
              Answer::No);
}

TEST(MessageTest, QuestionIsAnsweredNoByReturnAndSpacePressedWithoutLooking) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        EXPECT_EQ(AnswerAt([key](QMessageBox& box) {
                      EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
                      EXPECT_EQ(box.focusWidget(), box.button(QMessageBox::No));
                      QTest::keyClick(box.focusWidget(), key);
                  }),
                  Answer::No)
            << key;
}

TEST(MessageTest, QuestionIsAnsweredNoByEscapeFromEitherButton) {
    for (const auto button : {QMessageBox::Yes, QMessageBox::No})
        EXPECT_EQ(AnswerAt([button](QMessageBox& box) {
                      box.button(button)->setFocus();
                      QTest::keyClick(box.focusWidget(), Qt::Key_Escape);
                  }),
                  Answer::No);
}

TEST(MessageTest, WarningIsAnsweredByItsTwoButtons) {
    EXPECT_EQ(AnswerAt(
                  [](QMessageBox& box) {
                      EXPECT_EQ(box.windowTitle(), u"Delete"_s);
                      EXPECT_EQ(box.text(), question);
                      EXPECT_EQ(box.textFormat(), Qt::PlainText);
                      EXPECT_EQ(box.icon(), QMessageBox::Warning);
                      EXPECT_EQ(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
                      QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
                  },
                  Buttons::OkCancel),
              Answer::Ok);
    EXPECT_EQ(AnswerAt(
                  [](QMessageBox& box) {
                      QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton);
                  },
                  Buttons::OkCancel),
              Answer::Cancel);
}

TEST(MessageTest, WarningIsCancelledByReturnSpaceAndEscapePressedWithoutLooking) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape})
        EXPECT_EQ(AnswerAt(
                      [key](QMessageBox& box) {
                          EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Cancel));
                          QTest::keyClick(box.focusWidget(), key);
                      },
                      Buttons::OkCancel),
                  Answer::Cancel)
            << key;
}

TEST(MessageTest, MessageHasAnOkWhichReturnAndEscapePressToo) {
    DesktopOperator user;
    const std::function<void(QMessageBox&)> ways[] = {
        [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton); },
        [](QMessageBox& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); },
        [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }};
    for (const auto& way : ways) {
        int shown = 0;
        AtTheDialog<QMessageBox>([&](QMessageBox& box) {
            ++shown;
            EXPECT_EQ(box.text(), u"Stored"_s);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            // The program's own title stands for an empty one.
            EXPECT_EQ(box.windowTitle(), u"Tessel Delivery"_s);
            way(box);
            EXPECT_FALSE(box.isVisible());
        });
        EXPECT_EQ(user.MsgBox(u"Stored"_s, Buttons::Ok, {}), Answer::Ok);
        EXPECT_EQ(shown, 1);
    }
}

TEST(InputTest, OkGivesTheTextTypedOverTheProposal) {
    DesktopOperator user;
    AtTheDialog<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Hide"_s);
        EXPECT_EQ(dialog.labelText(), u"Which one?"_s);
        auto* field = dialog.findChild<QLineEdit*>();
        EXPECT_EQ(field->text(), u"Van 2"_s);
        QTest::keyClicks(field, u"Van 7"_s);
        ClickButton(dialog, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(user.InputBox(u"Which one?"_s, u"Hide"_s, u"Van 2"_s), u"Van 7"_s);
}

TEST(InputTest, ReturnGivesTheProposalAndAnEmptyTextIsATextToo) {
    DesktopOperator user;
    AtTheDialog<QInputDialog>([](QInputDialog& dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_EQ(user.InputBox(u"Which one?"_s, {}, u"Van 2"_s), u"Van 2"_s);
    AtTheDialog<QInputDialog>([](QInputDialog& dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Delete);
        ClickButton(dialog, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(user.InputBox(u"Which one?"_s, {}, u"Van 2"_s), QString());
}

TEST(InputTest, CancelAndEscapeGiveNothing) {
    DesktopOperator user;
    AtTheDialog<QInputDialog>([](QInputDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(), u"Van 7"_s);
        ClickButton(dialog, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(user.InputBox(u"Which one?"_s, {}, u"Van 2"_s), std::nullopt);
    AtTheDialog<QInputDialog>([](QInputDialog& dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Escape);
    });
    EXPECT_EQ(user.InputBox(u"Which one?"_s, {}, u"Van 2"_s), std::nullopt);
}

/// How a long work tells its progress.
class ProgressTest : public testing::Test {
protected:
    static QProgressDialog* Dialog() {
        return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    }

    DesktopOperator user;
};

TEST_F(ProgressTest, ShortWorkShowsNone) {
    user.BeginProgress(u"Working..."_s, 10);
    for (int step = 1; step <= 10; ++step)
        EXPECT_TRUE(user.ShowProgress(step));
    EXPECT_EQ(Dialog(), nullptr);
    user.EndProgress();
}

TEST_F(ProgressTest, LongWorkShowsHowFarItHasGotUntilItEnds) {
    user.BeginProgress(u"Working..."_s, 250);
    user.ShowProgress(1);
    QTest::qSleep(600);
    EXPECT_TRUE(user.ShowProgress(20));
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_EQ(Dialog()->labelText(), u"Working..."_s);
    EXPECT_EQ(Dialog()->maximum(), 250);
    EXPECT_EQ(Dialog()->value(), 20);
    const auto* bar = Dialog()->findChild<QProgressBar*>();
    EXPECT_EQ(bar->maximum(), 250);
    EXPECT_EQ(bar->value(), 20);
    EXPECT_TRUE(user.ShowProgress(250));
    EXPECT_NE(Dialog(), nullptr) << "the end of the work is told by itself";
    user.EndProgress();
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(ProgressTest, CancelStopsTheWork) {
    for (const bool isByKey : {false, true}) {
        user.BeginProgress(u"Working..."_s, 100);
        user.ShowProgress(1);
        QTest::qSleep(600);
        EXPECT_TRUE(user.ShowProgress(20));
        ASSERT_NE(Dialog(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(Dialog()));
        auto* cancel = Dialog()->findChild<QPushButton*>();
        EXPECT_EQ(cancel->text(), u"Cancel"_s);
        if (isByKey)
            QTest::keyClick(Dialog(), Qt::Key_Escape);
        else
            QTest::mouseClick(cancel, Qt::LeftButton);
        EXPECT_FALSE(user.ShowProgress(21));
        user.EndProgress();
    }
}
