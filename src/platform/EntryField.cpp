#include "platform/EntryField.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr ushort backspaceKey = 8;

bool IsEnter(const QKeyEvent& press) {
    return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

/// A key that puts characters into the field or takes one away, as opposed to one that moves or
/// commands.
bool StandsForCharacters(const QKeyEvent& press) {
    const bool isCommand = press.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !isCommand && !press.text().isEmpty() &&
           (press.text()[0].isPrint() || press.text()[0] == QChar(backspaceKey));
}

/// A copied text often ends in a line break, which no field of a record can hold.
QString AsOneLine(const QString& text) {
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    qsizetype length = text.size();
    while (length > 0 && isControl(text[length - 1]))
        --length;
    QString line = text.left(length);
    std::replace_if(line.begin(), line.end(), isControl, QChar(u' '));
    return line;
}

/// A key that types, erases or moves about in the field, as opposed to one that leads away,
/// commands or stands for nothing alone.
bool WorksInField(const QKeyEvent& press) {
    if (press.matches(QKeySequence::Cut))
        return true;
    if (press.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (press.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return StandsForCharacters(press);
    }
}

/// Something to enter, or the main button.
bool IsStop(const QWidget& control) {
    if (control.property("enterStops").toBool())
        return true;
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    const bool isEntry = qobject_cast<const QLineEdit*>(&control) ||
                         qobject_cast<const QComboBox*>(&control) ||
                         (button && button->isCheckable());
    return (isEntry && !control.property("enterPasses").toBool()) ||
           (button && control.property("mainAction").toBool());
}

bool CanTakeFocus(const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) && !control.focusProxy() && control.isEnabled() &&
           control.isVisibleTo(control.window());
}

} // namespace

EntryField::EntryField(QWidget* parent) : QLineEdit(parent), limit(maxLength()) {
    connect(this, &QLineEdit::textEdited, this, &EntryField::LimitAgain);
}

void EntryField::SetKeyRule(const KeyRule& keyRule) {
    rule = keyRule;
    // A text dropped with the mouse would pass by the rule.
    setAcceptDrops(false);
}

void EntryField::SetTypedLimit(int characters) {
    limit = characters;
    Show(text());
}

void EntryField::Show(const QString& newText) {
    // First, lest the text be cut: what is left of it would look like an entry.
    setMaxLength(std::max(limit, int(std::max(newText.size(), text().size()))));
    if (text() != newText) {
        setText(newText);
        setCursorPosition(0);
    }
    LimitAgain(newText);
}

/// The limit counts as soon as the text is within it; until then the text can't grow.
void EntryField::LimitAgain(const QString& newText) {
    const int length = std::max(limit, int(newText.size()));
    if (maxLength() == length)
        return;
    // A new length takes the cursor to the end.
    const int cursor = cursorPosition();
    setMaxLength(length);
    setCursorPosition(cursor);
}

/// Up to the first character that the rule refuses.
void EntryField::RunThroughRule(const QString& text) {
    for (const QChar character : text) {
        const ushort passed = rule(character.unicode());
        if (passed == 0) {
            setFocus();
            return;
        }
        insert(QChar(passed));
    }
}

void EntryField::Paste(const QString& text) {
    Q_EMIT KeyDown();
    const QString line = AsOneLine(text);
    if (rule)
        RunThroughRule(line);
    else
        insert(line);
}

void EntryField::TypeThroughRule(QKeyEvent* event) {
    if (!StandsForCharacters(*event))
        QLineEdit::keyPressEvent(event);
    else if (event->text()[0] != QChar(backspaceKey))
        RunThroughRule(event->text());
    else if (rule(backspaceKey) != 0)
        QLineEdit::keyPressEvent(event);
}

void EntryField::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste) && !isReadOnly()) {
        Paste(QApplication::clipboard()->text());
        return;
    }
    if (WorksInField(*event))
        Q_EMIT KeyDown();
    static const QMetaMethod entered = QMetaMethod::fromSignal(&QLineEdit::returnPressed);
    if (IsEnter(*event) && !isSignalConnected(entered))
        MoveOnFrom(this);
    else if (rule && !isReadOnly())
        TypeThroughRule(event);
    else
        QLineEdit::keyPressEvent(event);
}

void EntryField::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty())
        Q_EMIT KeyDown();
    if (!rule) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    // What is still being composed shows; what is done comes in by the rule.
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QLineEdit::inputMethodEvent(&composing);
    RunThroughRule(event->commitString());
}

void EntryField::mouseReleaseEvent(QMouseEvent* event) {
    if (!isReadOnly() && event->button() == Qt::MiddleButton)
        Paste(QApplication::clipboard()->text(QClipboard::Selection));
    else
        QLineEdit::mouseReleaseEvent(event);
}

void EntryField::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    // The toolkit gives its entries no names; the one for pasting shows the key that pastes.
    const QString pasteKey = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
    for (QAction* entry : menu->actions()) {
        if (!entry->text().endsWith(pasteKey))
            continue;
        entry->disconnect();
        connect(entry, &QAction::triggered, this,
                [this] { Paste(QApplication::clipboard()->text()); });
    }
    menu->exec(event->globalPos());
}

void EntryField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT GotFocus();
}

void EntryField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (IsMovedByOperator(*event))
        Q_EMIT Left();
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

void MoveOnFrom(QWidget* field) {
    for (QWidget* next = field->nextInFocusChain(); next != field;
         next = next->nextInFocusChain()) {
        if (next->window() == field->window() && IsStop(*next) && CanTakeFocus(*next)) {
            next->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}
