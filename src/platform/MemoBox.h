#pragma once

#include <QPlainTextEdit>

/// A text of several lines, as the rules keep it: lines parted by a line feed, and every other
/// character as it is. The toolkit's own would turn hard blanks, which stand in amounts, into
/// plain ones.
class MemoBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit MemoBox(QWidget* parent = nullptr);

    QString Text() const;
    /// Leaves the caret where it is when the text is shown already.
    void Show(const QString& text);

Q_SIGNALS:
    void DoubleClicked();

protected:
    void insertFromMimeData(const QMimeData* source) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
