#include "platform/ChoiceList.h"

#include <QMouseEvent>

ChoiceList::ChoiceList(QWidget* parent) : QListView(parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
    if (indexAt(event->position().toPoint()).isValid())
        QListView::mousePressEvent(event);
}
