#pragma once

#include <QAbstractButton>
#include <QLabel>

/// A clickable label shaped as a card, with a line icon on a tint. A disabled one is pale and says
/// why in its tool tip.
class RoutineLabel : public QAbstractButton {
    Q_OBJECT

public:
    RoutineLabel(const QString& caption, const QString& iconName, QWidget* parent = nullptr);

    /// A second, quieter line under the caption, a control of its own.
    void SetNote(QLabel* note);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QRect CaptionRect() const;

    QString icon;
    QLabel* noteLabel = nullptr;
};

/// A label that tells of a double click, and takes the single ones for itself.
class NoteLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

Q_SIGNALS:
    void DoubleClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
