#pragma once

#include <QWidget>

/// Two small buttons that step a value down or up by one.
class UpDown : public QWidget {
    Q_OBJECT

public:
    /// The tips say what a click does, to screen readers too: "Next day".
    UpDown(const QString& name, const QString& downTip, const QString& upTip,
           QWidget* parent = nullptr);

Q_SIGNALS:
    void UpClick();
    void DownClick();
};
