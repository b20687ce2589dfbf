#include "platform/EntryField.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace {

bool ChangesText(const QKeyEvent& press) {
    if (press.matches(QKeySequence::Paste) || press.key() == Qt::Key_Backspace ||
        press.key() == Qt::Key_Delete)
        return true;
    const bool isCommand = press.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !isCommand && !press.text().isEmpty() && press.text()[0].isPrint();
}

} // namespace

void EntryField::keyPressEvent(QKeyEvent* event) {
    if (ChangesText(*event))
        Q_EMIT Typing();
    QLineEdit::keyPressEvent(event);
}

void EntryField::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty())
        Q_EMIT Typing();
    QLineEdit::inputMethodEvent(event);
}

void EntryField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    switch (event->reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        break;
    default:
        Q_EMIT Left();
    }
}
