#include "platform/ActionButton.h"

#include <QApplication>

ActionButton::ActionButton(const QString& caption, const std::function<void()>& action)
    : QPushButton(caption) {
    setAutoDefault(true);
    connect(this, &QPushButton::clicked, this, [this, action] {
        // A button that is pressed by its letter leaves the field before it, as a click does.
        setFocus(Qt::ShortcutFocusReason);
        if (window()->focusWidget() == this)
            action();
    });
}

void ActionButton::mousePressEvent(QMouseEvent* event) {
    // The press has left the field before it. A message about that has taken the release of the
    // mouse, and the button would stay down; or the operator has been called back to the field.
    if (QApplication::mouseButtons() != Qt::NoButton && window()->focusWidget() == this)
        QPushButton::mousePressEvent(event);
}
