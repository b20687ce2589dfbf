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
    // A message about the field that this press has left has taken the release of the mouse; the
    // button would stay down.
    if (QApplication::mouseButtons() != Qt::NoButton)
        QPushButton::mousePressEvent(event);
}
