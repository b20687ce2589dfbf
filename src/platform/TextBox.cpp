#include "platform/TextBox.h"

#include <QFocusEvent>

#include <algorithm>

namespace {

/// The toolkit's own: as good as none.
constexpr int noLimit = 32767;

} // namespace

TextBox::TextBox(int typedLimit, QWidget* parent)
    : QLineEdit(parent), limit(typedLimit > 0 ? typedLimit : noLimit) {
    setMaxLength(limit);
    connect(this, &QLineEdit::textEdited, this, &TextBox::Limit);
}

/// Once a longer text has been shortened to it, the limit counts again.
void TextBox::Limit(const QString& text) {
    if (maxLength() == limit || text.size() > limit)
        return;
    const int caret = cursorPosition();
    setMaxLength(limit);
    setCursorPosition(caret);
}

void TextBox::Show(const QString& text) {
    setMaxLength(std::max(limit, int(text.size())));
    setText(text);
    setCursorPosition(0);
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT GotFocus();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (IsMovedByOperator(*event))
        Q_EMIT LostFocus();
}

bool IsMovedByOperator(const QFocusEvent& event) {
    switch (event.reason()) {
    case Qt::MouseFocusReason:
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    default:
        return false;
    }
}
