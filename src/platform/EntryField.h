#pragma once

#include <QLineEdit>

/// A field of an entry form. It tells when typing is about to change it and when the user has left
/// it for another control.
class EntryField : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

Q_SIGNALS:
    /// A key that puts a character in or takes one away, before it does so.
    void Typing();
    /// Not for another window's coming to the front, nor for a menu.
    void Left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
