#include "platform/KeyFilter.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A key that puts a character into the field or takes one away, as opposed to one that moves or
/// commands.
bool StandsForCharacter(const QKeyEvent& press) {
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Delete:
        return false;
    default:
        return !(press.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
               press.text().size() == 1;
    }
}

} // namespace

KeyFilter::KeyFilter(QLineEdit* filteredField, Rule keyRule)
    : QObject(filteredField), field(filteredField), rule(std::move(keyRule)) {
    field->installEventFilter(this);
    // A text dropped with the mouse would pass by the rule.
    field->setAcceptDrops(false);
}

/// False when the rule refuses the character.
bool KeyFilter::Enter(QChar character) {
    const ushort passed = rule(character.unicode());
    if (passed == 0) {
        field->setFocus();
        return false;
    }
    field->insert(QChar(passed));
    return true;
}

/// Up to the first character that the rule refuses.
void KeyFilter::Paste(const QString& text) {
    for (const QChar character : text) {
        if (!Enter(character))
            return;
    }
}

void KeyFilter::OpenMenu(const QPoint& place) {
    const std::unique_ptr<QMenu> menu(field->createStandardContextMenu());
    // The toolkit gives its entries no names; the one for pasting shows the key that pastes.
    const QString pasteKey = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
    for (QAction* entry : menu->actions()) {
        if (!entry->text().endsWith(pasteKey))
            continue;
        entry->disconnect();
        connect(entry, &QAction::triggered, this,
                [this] { Paste(QApplication::clipboard()->text()); });
    }
    menu->exec(place);
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* press = static_cast<QKeyEvent*>(event);
        if (press->matches(QKeySequence::Paste)) {
            Paste(QApplication::clipboard()->text());
            return true;
        }
        if (StandsForCharacter(*press)) {
            const QChar character = press->text()[0];
            if (character == u'\b')
                return rule(u'\b') == 0;
            Enter(character);
            return true;
        }
    } else if (event->type() == QEvent::InputMethod) {
        // An accent key and its letter, or a whole word of an input method.
        Paste(static_cast<QInputMethodEvent*>(event)->commitString());
        return true;
    } else if (event->type() == QEvent::MouseButtonRelease &&
               static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton) {
        Paste(QApplication::clipboard()->text(QClipboard::Selection));
        return true;
    } else if (event->type() == QEvent::ContextMenu) {
        OpenMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}
