#include "platform/FieldWatch.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool LeadsAway(const QKeyEvent& press) {
    switch (press.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return press.modifiers() & (Qt::AltModifier | Qt::MetaModifier);
    }
}

/// Another window in front, or a menu over this one, is no leaving.
bool StaysInWindow(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason &&
           event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason;
}

} // namespace

FieldWatch::FieldWatch(QLineEdit* field) : QObject(field) {
    field->installEventFilter(this);
}

bool FieldWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && !LeadsAway(*static_cast<QKeyEvent*>(event)))
        Q_EMIT KeyDown();
    else if (event->type() == QEvent::FocusOut && StaysInWindow(*static_cast<QFocusEvent*>(event)))
        Q_EMIT Left();
    return QObject::eventFilter(watched, event);
}
