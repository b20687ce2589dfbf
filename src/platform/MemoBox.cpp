#include "platform/MemoBox.h"

#include <QTextDocument>

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    // The Tab key goes on to the next control, as everywhere else.
    setTabChangesFocus(true);
}

QString MemoBox::Text() const {
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void MemoBox::Show(const QString& text) {
    if (Text() != text)
        setPlainText(text);
}

void MemoBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseDoubleClickEvent(event);
    Q_EMIT DoubleClicked();
}
