#include "platform/PrinterDialog.h"

#include "platform/PrintedDocuments.h"
#include "platform/Theme.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

/// The toolkit's dialog takes its first values from the printer that it is made with.
QPrinter* SetUp(QPrinter& printer, const PrintDestination& destination) {
    if (!destination.Printer.isEmpty())
        printer.setPrinterName(destination.Printer);
    printer.setCopyCount(destination.Copies);
    return &printer;
}

} // namespace

PrinterDialog::PrinterDialog(QPrinter& printer, const PrintDestination& destination,
                             const QString& documentName, QWidget* parent)
    : QPrintDialog(SetUp(printer, destination), parent), file(findChild<QLineEdit*>(u"filename"_s)),
      copies(findChild<QSpinBox*>(u"copies"_s)) {
    setOptions(PrintToFile);
    ProposeFile(documentName);
    connect(findChild<QComboBox*>(u"printers"_s), &QComboBox::currentIndexChanged, this,
            &PrinterDialog::FollowPrinter);
}

/// Only now has the toolkit put its parts together.
void PrinterDialog::showEvent(QShowEvent* event) {
    ShowOnlyCopies();
    FollowPrinter();
    adjustSize();
    QPrintDialog::showEvent(event);
}

/// The number of copies lies on a page that is folded away, among options that would do nothing.
void PrinterDialog::ShowOnlyCopies() {
    auto* tabs = findChild<QTabWidget*>(u"tabs"_s);
    tabs->removeTab(tabs->indexOf(findChild<QWidget*>(u"optionsTab"_s)));
    tabs->tabBar()->hide();
    tabs->setDocumentMode(true);
    const QStringList withoutEffect = {u"gbPrintRange"_s, u"collate"_s, u"reverse"_s,
                                       u"outputIcon"_s, u"properties"_s};
    for (const QString& name : withoutEffect)
        findChild<QWidget*>(name)->hide();
    tabs->parentWidget()->show();
    auto* buttons = findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : buttons->buttons()) {
        if (buttons->standardButton(button) == QDialogButtonBox::NoButton &&
            buttons->buttonRole(button) == QDialogButtonBox::ResetRole)
            button->hide();
    }
}

void PrinterDialog::ProposeFile(const QString& documentName) {
    constexpr double widthOfPath = 26;
    file->setMinimumWidth(Em(widthOfPath));
    file->setText(FreePath(PrintedDocumentPath(documentName)));
    // The toolkit would take a bare name for a file in the data folder.
    connect(file, &QLineEdit::editingFinished, this, [this] {
        if (!file->text().isEmpty())
            file->setText(QDir(PrintedDocumentsFolder()).absoluteFilePath(file->text()));
    });
}

void PrinterDialog::FollowPrinter() {
    const bool isFile = file->isEnabled();
    copies->setEnabled(!isFile);
    // A file can be named only in a folder that is there. Where it can't be made, the dialog says
    // that the file can't be written.
    if (isFile)
        QDir().mkpath(PrintedDocumentsFolder());
}

PrintDestination PrinterDialog::Destination() {
    if (file->isEnabled())
        return {.File = printer()->outputFileName()};
    return {.Printer = printer()->printerName(), .Copies = copies->value()};
}
