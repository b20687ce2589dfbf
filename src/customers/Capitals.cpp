#include "customers/Capitals.h"

#include "platform/CodePage.h"

#include <algorithm>
#include <array>

namespace {

std::array<char, 256> MakeCapitals() {
    std::array<char, 256> capitals{};
    for (size_t code = 0; code < capitals.size(); ++code) {
        const auto byte = char(code);
        const QString capital(FromCodePage({&byte, 1}).at(0).toUpper());
        capitals[code] = IsInCodePage(capital) ? ToCodePage(capital).at(0) : byte;
    }
    return capitals;
}

} // namespace

char* WriteCapitals(QByteArrayView bytes, char* capitals) {
    static const std::array<char, 256> capitalOf = MakeCapitals();
    return std::transform(bytes.begin(), bytes.end(), capitals,
                          [](char character) { return capitalOf[quint8(character)]; });
}

QString InCapitals(const QString& text) {
    if (!IsInCodePage(text))
        return text;
    QByteArray bytes = ToCodePage(text);
    WriteCapitals(bytes, bytes.data());
    return FromCodePage(bytes);
}
