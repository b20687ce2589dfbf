#include "platform/DesktopOperator.h"

#include "platform/ProgramTitle.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace {

QString TitleOr(const QString& title) {
    return title.isEmpty() ? ProgramTitle() : title;
}

} // namespace

Answer DesktopOperator::MsgBox(const QString& text, Buttons buttons, const QString& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("msgBox"));
    box.setWindowTitle(TitleOr(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    if (buttons == Buttons::Ok) {
        box.setIcon(QMessageBox::Information);
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return Answer::Ok;
    }
    box.setIcon(QMessageBox::Question);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    // Questions guard deletions: a key pressed without looking must not say Yes.
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::optional<QString> DesktopOperator::InputBox(const QString& prompt, const QString& title,
                                                 const QString& proposal) {
    bool accepted = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), TitleOr(title), prompt,
                                               QLineEdit::Normal, proposal, &accepted);
    return accepted ? std::optional(text) : std::nullopt;
}

void DesktopOperator::Beep() {
    QApplication::beep();
}

void DesktopOperator::ShowBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}
