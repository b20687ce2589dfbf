#include "customers/AccountBox.h"

#include "platform/EntryField.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QListView>
#include <QWheelEvent>

AccountBox::AccountBox(const Completion& completion, QWidget* parent)
    : EntryBox(parent), complete(completion) {
    // All entries have one height; thousands need not be measured.
    static_cast<QListView*>(view())->setUniformItemSizes(true);
    connect(lineEdit(), &QLineEdit::textChanged, this, &AccountBox::Complete);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &AccountBox::Left);
}

/// Selects what has been added, so that the next key replaces it.
void AccountBox::Complete(const QString& text) {
    const QString rest = complete(text);
    if (rest.isEmpty())
        return;
    lineEdit()->end(false);
    lineEdit()->insert(rest);
    lineEdit()->setSelection(int(text.size()), int(rest.size()));
}

void AccountBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        // In the closed list these keys would choose an account each.
        showPopup();
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT DeleteKeyDown();
        break;
    default:
        break;
    }
    EntryBox::keyPressEvent(event);
}

/// A turn of the wheel would choose an account as well.
void AccountBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void AccountBox::focusOutEvent(QFocusEvent* event) {
    // The toolkit then tells once more of a name that stands in the list.
    if (IsMovedByOperator(*event))
        Q_EMIT Left();
    EntryBox::focusOutEvent(event);
}
