#pragma once

#include <QLabel>

/// A label that gives way when there is little room: it cuts its text short with an ellipsis, and
/// shows the whole of it as its tool tip. Uncut it has the tip that it was given.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void SetTip(const QString& newTip);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString tip;
};
