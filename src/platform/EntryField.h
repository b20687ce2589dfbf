#pragma once

#include <QLineEdit>

#include <functional>

/// The line of text of all entry forms. It tells of the moments that the rules of a screen look at,
/// runs what is typed past a rule, limits what is typed but not what the program shows, and lets
/// Enter go on to the next field.
class EntryField : public QLineEdit {
    Q_OBJECT

public:
    /// Given a character that is about to come in, typed, composed or pasted, gives back the one to
    /// use, 0 for none. Backspace (8) is asked about as well.
    using KeyRule = std::function<ushort(ushort key)>;

    explicit EntryField(QWidget* parent = nullptr);

    void SetKeyRule(const KeyRule& keyRule);
    /// The most characters that can be typed.
    void SetTypedLimit(int characters);
    /// A text longer than the limit stays whole, and can only become shorter.
    void Show(const QString& text);

Q_SIGNALS:
    /// A key has gone down, or a text is pasted, and has not taken effect yet. Not for keys that
    /// lead away, command or stand for nothing alone: Tab, Enter, Escape, Shift, Ctrl+C.
    void KeyDown();
    void GotFocus();
    /// The operator has moved on to another control of the screen. It does not come for another
    /// window or a menu in front, nor when the program itself moves the focus.
    void Left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void RunThroughRule(const QString& text);
    void Paste(const QString& text);
    void TypeThroughRule(QKeyEvent* event);
    void LimitAgain(const QString& text);

    KeyRule rule;
    int limit;
};

/// Whether it is the operator who moves the focus from one control to another.
bool IsMovedByOperator(const QFocusEvent& event);

/// Enter goes from a field to the next, past buttons, lists and whatever has the property
/// "enterPasses", and ends on the main button. A button or list with the property "enterStops" is
/// on its way.
void MoveOnFrom(QWidget* field);
