#include "platform/CodePage.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace {

// The characters of bytes 0x80 to 0x9f; everywhere else the code page equals Latin-1.
constexpr std::array<char16_t, 32> middleCharacters = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178};

constexpr unsigned firstMiddleByte = 0x80;
constexpr unsigned lastMiddleByte = 0x9f;

bool IsMiddleByte(unsigned byte) {
    return byte >= firstMiddleByte && byte <= lastMiddleByte;
}

std::optional<char> ByteOf(QChar character) {
    const unsigned code = character.unicode();
    if (code < firstMiddleByte)
        return char(code);
    if (code <= 0xff && !IsMiddleByte(code))
        return char(code);
    const auto found =
        std::find(middleCharacters.begin(), middleCharacters.end(), character.unicode());
    if (found == middleCharacters.end())
        return {};
    return char(firstMiddleByte + unsigned(std::distance(middleCharacters.begin(), found)));
}

} // namespace

size_t EncodeInto(char* bytes, size_t room, QStringView text) {
    char* next = bytes;
    char* const end = bytes + room;
    for (qsizetype i = 0; i < text.size() && next < end; ++i) {
        // The two halves of a rare character are one character.
        const bool isSecondHalf =
            text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate();
        if (!isSecondHalf)
            *next++ = ByteOf(text[i]).value_or('?');
    }
    return size_t(next - bytes);
}

void AppendInCodePage(QByteArray& bytes, QStringView text) {
    const qsizetype start = bytes.size();
    bytes.resize(start + text.size());
    bytes.truncate(start + qsizetype(EncodeInto(bytes.data() + start, size_t(text.size()), text)));
}

QByteArray ToCodePage(QStringView text) {
    QByteArray bytes;
    AppendInCodePage(bytes, text);
    return bytes;
}

QString FromCodePage(QByteArrayView bytes) {
    QString text;
    AppendFromCodePage(text, bytes);
    return text;
}

void AppendFromCodePage(QString& text, QByteArrayView bytes) {
    const qsizetype start = text.size();
    text += QLatin1StringView(bytes);
    std::for_each(text.begin() + start, text.end(), [](QChar& character) {
        if (IsMiddleByte(character.unicode()))
            character = middleCharacters[character.unicode() - firstMiddleByte];
    });
}

bool IsInCodePage(QStringView text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return ByteOf(character).has_value(); });
}
