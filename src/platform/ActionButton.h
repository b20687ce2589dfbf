#pragma once

#include <QPushButton>

#include <functional>

/// A button of an entry form. It acts only once the field before it has been left, and not at all
/// when leaving has called the operator elsewhere.
class ActionButton : public QPushButton {
    Q_OBJECT

public:
    ActionButton(const QString& caption, const std::function<void()>& action);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
