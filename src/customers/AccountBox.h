#pragma once

#include "platform/EntryBox.h"

#include <functional>

/// The list of account names to type into: it completes what is typed to a name, and nothing is
/// chosen by keys or the wheel before the operator has seen the list.
class AccountBox : public EntryBox {
    Q_OBJECT

public:
    /// What completes a text; nothing when there is no such name.
    using Completion = std::function<QString(const QString& text)>;

    explicit AccountBox(const Completion& completion, QWidget* parent = nullptr);

Q_SIGNALS:
    /// Delete or Backspace has gone down and has not taken effect yet.
    void DeleteKeyDown();
    /// The operator has moved on to another control of the screen, or has pressed Enter.
    void Left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Complete(const QString& text);

    Completion complete;
};
