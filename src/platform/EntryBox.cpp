#include "platform/EntryBox.h"

#include <QWheelEvent>

EntryBox::EntryBox(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setFocusPolicy(Qt::StrongFocus);
}

void EntryBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
