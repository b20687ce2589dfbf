#pragma once

#include <QListView>

/// A list to choose from, in which something stays chosen: a click beside the entries doesn't take
/// the choice away. With the property "enterStops" it is on the way of Enter through a form, and
/// Enter goes on to the next field.
class ChoiceList : public QListView {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

Q_SIGNALS:
    /// A press on the entry that was chosen already, which changes no choice.
    void ChosenAgain();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
};

/// A list of that name over the entries of a model, which are not its own.
ChoiceList* MakeList(const QString& name, const QString& accessibleName,
                     QAbstractItemModel& entries);
