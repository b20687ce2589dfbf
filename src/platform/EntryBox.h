#pragma once

#include <QComboBox>

/// A combo box to type in or to choose from. What is typed stays as typed: the toolkit's own would
/// turn "5" into the "5.0" of its list. The wheel turns it only when it has the focus, so that
/// scrolling a screen changes nothing that happens to lie under the pointer, and Enter goes on to
/// the next field.
class EntryBox : public QComboBox {
    Q_OBJECT

public:
    explicit EntryBox(QWidget* parent = nullptr);

    /// Shows a text, and lets the arrow keys go on from its entry, if it has one.
    void Show(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
