#include "platform/MemoBox.h"

#include <QTextDocument>

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    // The Tab key goes on to the next control, as everywhere else.
    setTabChangesFocus(true);
    // It takes the room that its place has to give, rather than the many lines it would like.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

QString MemoBox::Text() const {
    // Shift with Enter parts lines as well, and a pasted text may bring its own separators.
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

void MemoBox::Show(const QString& text) {
    if (Text() != text)
        setPlainText(text);
}

void MemoBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseDoubleClickEvent(event);
    Q_EMIT DoubleClicked();
}
