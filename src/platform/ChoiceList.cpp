#include "platform/ChoiceList.h"

#include <QMouseEvent>

ChoiceList::ChoiceList(QWidget* parent) : QListView(parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
    if (indexAt(event->position().toPoint()).isValid())
        QListView::mousePressEvent(event);
}

/// Entries may have been given their places before the program's look had a say in them. What is
/// chosen is in sight.
void ChoiceList::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    doItemsLayout();
    scrollTo(currentIndex());
}
