#pragma once

#include <QWidget>

/// Two small buttons that step a value down or up by one.
class UpDown : public QWidget {
    Q_OBJECT

public:
    /// `what` is what is stepped, for tool tips and screen readers: "day".
    UpDown(const QString& name, const QString& what, QWidget* parent = nullptr);

Q_SIGNALS:
    void UpClick();
    void DownClick();
};
