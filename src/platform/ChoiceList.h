#pragma once

#include <QListView>

/// A list to choose from, in which something stays chosen: a click beside the entries doesn't take
/// the choice away.
class ChoiceList : public QListView {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
};
