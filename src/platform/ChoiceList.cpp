#include "platform/ChoiceList.h"

#include "platform/EntryField.h"
#include "platform/Screen.h"

#include <QKeyEvent>
#include <QMouseEvent>

ChoiceList::ChoiceList(QWidget* parent) : QListView(parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && property("enterStops").toBool())
        MoveOnFrom(this);
    else
        QListView::keyPressEvent(event);
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (!pressed.isValid())
        return;
    const bool isChosen = pressed == currentIndex();
    QListView::mousePressEvent(event);
    if (isChosen && event->button() == Qt::LeftButton)
        Q_EMIT ChosenAgain();
}

/// Entries may have been given their places before the program's look had a say in them.
void ChoiceList::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    doItemsLayout();
}

ChoiceList* MakeList(const QString& name, const QString& accessibleName,
                     QAbstractItemModel& entries) {
    auto* list = Named(new ChoiceList, name);
    list->setAccessibleName(accessibleName);
    list->setModel(&entries);
    return list;
}
