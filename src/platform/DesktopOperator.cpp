#include "platform/DesktopOperator.h"

#include "platform/ColorNumber.h"
#include "platform/PrinterDialog.h"
#include "platform/ProgramTitle.h"
#include "platform/Theme.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrinter>
#include <QProgressBar>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace {

/// "Pictures |(*.bmp; *.ico)|All|*.*" as the toolkit wants it: a line for each pair, the patterns
/// parted by blanks, and a bare star for all files.
QString ToolkitFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList lines;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.remove(u'(').remove(u')').replace(u';', u' ').replace(u"*.*"_s, u"*"_s);
        lines += u"%1 (%2)"_s.arg(parts[i].trimmed(), patterns.simplified());
    }
    return lines.join(u";;"_s);
}

QString TitleOr(const QString& title) {
    return title.isEmpty() ? ProgramTitle() : title;
}

/// A few words alone would leave too little room for the title between the icons of a window's
/// frame. An icon that is set later takes the room away again.
int Show(QMessageBox& box) {
    constexpr double frameIcons = 10;
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + Em(frameIcons);
    auto* rows = qobject_cast<QGridLayout*>(box.layout());
    rows->addItem(new QSpacerItem(width, 0), rows->rowCount(), 0, 1, rows->columnCount());
    return box.exec();
}

/// Shows a message with these two buttons. Questions guard deletions: a key pressed without looking
/// must not accept.
bool Accepts(QMessageBox& box, QMessageBox::StandardButton accept,
             QMessageBox::StandardButton decline) {
    box.setStandardButtons(accept | decline);
    box.setDefaultButton(decline);
    box.setEscapeButton(decline);
    return Show(box) == accept;
}

} // namespace

DesktopOperator::DesktopOperator() = default;

DesktopOperator::~DesktopOperator() = default;

Answer DesktopOperator::MsgBox(const QString& text, Buttons buttons, const QString& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("msgBox"));
    box.setWindowTitle(TitleOr(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    if (buttons == Buttons::Ok) {
        box.setIcon(QMessageBox::Information);
        box.setStandardButtons(QMessageBox::Ok);
        Show(box);
        return Answer::Ok;
    }
    if (buttons == Buttons::OkCancel) {
        box.setIcon(QMessageBox::Warning);
        return Accepts(box, QMessageBox::Ok, QMessageBox::Cancel) ? Answer::Ok : Answer::Cancel;
    }
    box.setIcon(QMessageBox::Question);
    return Accepts(box, QMessageBox::Yes, QMessageBox::No) ? Answer::Yes : Answer::No;
}

std::optional<QString> DesktopOperator::InputBox(const QString& prompt, const QString& title,
                                                 const QString& proposal) {
    bool accepted = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), TitleOr(title), prompt,
                                               QLineEdit::Normal, proposal, &accepted);
    return accepted ? std::optional(text) : std::nullopt;
}

std::optional<QString> DesktopOperator::AskForFile(const QString& filter) {
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setObjectName(u"fileDialog"_s);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setDirectory(QDir::currentPath());
    dialog.setNameFilters(ToolkitFilter(filter).split(u";;"_s));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.selectedFiles().value(0);
}

std::optional<quint32> DesktopOperator::AskForColor(quint32 color) {
    QColorDialog dialog(ColorOf(color), QApplication::activeWindow());
    dialog.setObjectName(u"colorDialog"_s);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return NumberOf(dialog.selectedColor());
}

std::optional<QString> DesktopOperator::AskForFont(const QString& name) {
    QFontDialog dialog(QFont(name), QApplication::activeWindow());
    dialog.setObjectName(u"fontDialog"_s);
    dialog.setOption(QFontDialog::ScalableFonts);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.selectedFont().family();
}

std::optional<PrintDestination> DesktopOperator::AskForPrinter(const PrintDestination& destination,
                                                               const QString& documentName) {
    QPrinter printer;
    PrinterDialog dialog(printer, destination, documentName, QApplication::activeWindow());
    dialog.setObjectName(u"printerDialog"_s);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Destination();
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

void DesktopOperator::BeginProgress(const QString& work, int steps) {
    constexpr int milliSecondsUnshown = 500;
    constexpr double progressWidth = 24;
    progress = std::make_unique<QProgressDialog>(work, u"Cancel"_s, 0, steps,
                                                 QApplication::activeWindow());
    // The bar is too flat for its percentage.
    auto* bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setRange(0, steps);
    progress->setBar(bar);
    progress->setMinimumWidth(Em(progressWidth));
    progress->setObjectName(u"progressDialog"_s);
    progress->setWindowTitle(ProgramTitle());
    // Nothing else of the program can be used meanwhile.
    progress->setWindowModality(Qt::ApplicationModal);
    progress->setMinimumDuration(milliSecondsUnshown);
    progress->setAutoReset(false);
    progress->setAutoClose(false);
    progress->setValue(0);
}

bool DesktopOperator::ShowProgress(int stepsDone) {
    progress->setValue(stepsDone);
    return !progress->wasCanceled();
}

void DesktopOperator::EndProgress() {
    progress.reset();
}
