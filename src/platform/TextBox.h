#pragma once

#include <QLineEdit>

/// A line of text as the rules of a screen see it: it tells when the operator comes and goes, and
/// limits what he types, but not what the program shows.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    /// No limit when it is 0.
    explicit TextBox(int typedLimit = 0, QWidget* parent = nullptr);

    /// A text longer than the limit stays whole, and may be shortened.
    void Show(const QString& text);

Q_SIGNALS:
    void GotFocus();
    /// The operator has moved on to another control of the screen. It does not come for another
    /// window in front, nor when the program itself moves the focus.
    void LostFocus();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Limit(const QString& text);

    int limit;
};

/// Whether it is the operator who moves the focus from one control to another.
bool IsMovedByOperator(const QFocusEvent& event);
