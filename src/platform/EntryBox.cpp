#include "platform/EntryBox.h"

#include "platform/EntryField.h"

#include <QKeyEvent>
#include <QWheelEvent>

EntryBox::EntryBox(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setFocusPolicy(Qt::StrongFocus);
}

void EntryBox::Show(const QString& text) {
    setCurrentIndex(findText(text));
    setEditText(text);
}

void EntryBox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QComboBox::keyPressEvent(event);
    if (!isEnter)
        return;
    event->accept();
    // Unless what has been entered has led elsewhere.
    if (hasFocus())
        MoveOnFrom(this);
}

void EntryBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
