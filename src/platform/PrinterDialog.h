#pragma once

#include "platform/PrintDestination.h"

#include <QPrintDialog>

class QLineEdit;
class QSpinBox;

/// The toolkit's print dialog, cut down to what this program's pages can do: which printer and how
/// many copies, or which file. Paper, colours and which pages to print are the document's own.
class PrinterDialog : public QPrintDialog {
    Q_OBJECT

public:
    /// `printer` is what the toolkit's dialog works on, and has to outlive this one.
    PrinterDialog(QPrinter& printer, const PrintDestination& destination,
                  const QString& documentName, QWidget* parent = nullptr);

    /// What the dialog was left with.
    PrintDestination Destination();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowOnlyCopies();
    void ProposeFile(const QString& documentName);
    void FollowPrinter();

    QLineEdit* file;
    QSpinBox* copies;
};
