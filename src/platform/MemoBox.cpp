#include "platform/MemoBox.h"

#include <QMimeData>
#include <QTextDocument>

#include <algorithm>

namespace {

/// For each line of a word the toolkit looks for the word's end: a megabyte without a blank would
/// take it minutes.
bool HasEndlessWord(const QString& text) {
    constexpr qsizetype longestWord = 10'000;
    auto start = text.begin();
    while (start != text.end()) {
        const auto end =
            std::find_if(start, text.end(), [](QChar character) { return character.isSpace(); });
        if (end - start > longestWord)
            return true;
        start = end == text.end() ? end : end + 1;
    }
    return false;
}

} // namespace

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
    if (Text() == text)
        return;
    // Nothing is broken into lines twice.
    clear();
    setWordWrapMode(HasEndlessWord(text) ? QTextOption::WrapAnywhere
                                         : QTextOption::WrapAtWordBoundaryOrAnywhere);
    setPlainText(text);
}

void MemoBox::insertFromMimeData(const QMimeData* source) {
    if (HasEndlessWord(source->text()))
        setWordWrapMode(QTextOption::WrapAnywhere);
    QPlainTextEdit::insertFromMimeData(source);
}

void MemoBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseDoubleClickEvent(event);
    Q_EMIT DoubleClicked();
}
