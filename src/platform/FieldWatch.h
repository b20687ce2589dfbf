#pragma once

#include <QObject>

class QLineEdit;

/// Tells of two moments in a field's life that the toolkit keeps to itself: a key going down,
/// before it takes effect, and the focus moving on to another control of the window.
///
/// A KeyFilter of the same field has to be made first, so that its turn comes second.
class FieldWatch : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the field.
    explicit FieldWatch(QLineEdit* field);

Q_SIGNALS:
    /// Not for keys that only lead away or stand for nothing alone: Tab, Shift and their like.
    void KeyDown();
    void Left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
