#include "platform/RegionalFormats.h"

#include "platform/CodePage.h"

#include <QRegularExpression>
#include <QStringBuilder>
#include <QStringList>
#include <QVarLengthArray>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QString FirstOf(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        const QString value = qEnvironmentVariable(name);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

QLocale LocaleNamed(const QString& name) {
    const QString language = name.section(u'.', 0, 0);
    if (language.isEmpty() || language == "C"_L1 || language == "POSIX"_L1)
        return {QLocale::English, QLocale::UnitedStates};
    return QLocale(language);
}

/// Typographic blanks and signs in the form that the files' code page holds.
QString InPlainCharacters(const QString& text) {
    QString plain;
    for (const QChar character : text) {
        switch (character.unicode()) {
        case 0x202f: // narrow no-break space
        case 0x2009: // thin space
            plain += QChar(0xa0);
            break;
        case 0x2212: // minus sign
            plain += u'-';
            break;
        case 0xffe5: // full-width yen sign
            plain += QChar(0xa5);
            break;
        case 0x200e: // marks of the writing direction
        case 0x200f:
        case 0x061c:
            break;
        default:
            plain += character;
        }
    }
    return plain;
}

/// A person types the common blank for any other.
QString WithPlainBlanks(QString text) {
    return text.replace(QChar(0xa0), u' ');
}

bool IsAsciiDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

qsizetype FirstDigit(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (IsAsciiDigit(text[i]))
            return i;
    }
    return -1;
}

qsizetype LastDigit(const QString& text) {
    for (qsizetype i = text.size(); i-- > 0;) {
        if (IsAsciiDigit(text[i]))
            return i;
    }
    return -1;
}

bool IsAsciiBlank(QChar character) {
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

/// What can stand between the parts of a date: anything but letters, digits and the underline.
bool IsDateMark(QChar character) {
    const bool isLetter =
        (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
    return !isLetter && !IsAsciiDigit(character) && character != u'_';
}

/// Takes the characters that meet a condition off the front of a text.
template <bool (*Meets)(QChar)>
QStringView TakeWhile(QStringView& text) {
    const auto* end = std::find_if_not(text.begin(), text.end(), Meets);
    const QStringView taken = text.first(end - text.begin());
    text = text.sliced(taken.size());
    return taken;
}

/// Three runs of digits with one to three marks between them, blanks around them, and one more
/// mark behind the last, with which the dates of some regions end. Nothing for any other text.
std::optional<std::array<QStringView, 3>> DateParts(QStringView text) {
    constexpr qsizetype mostMarks = 3;
    std::array<QStringView, 3> parts;
    TakeWhile<IsAsciiBlank>(text);
    parts[0] = TakeWhile<IsAsciiDigit>(text);
    for (size_t i = 1; i < parts.size(); ++i) {
        const qsizetype marks = TakeWhile<IsDateMark>(text).size();
        parts[i] = TakeWhile<IsAsciiDigit>(text);
        if (marks < 1 || marks > mostMarks)
            return {};
    }
    if (!text.isEmpty() && IsDateMark(text.front()))
        text = text.sliced(1);
    TakeWhile<IsAsciiBlank>(text);
    return text.isEmpty() ? std::optional(parts) : std::nullopt;
}

int NumberOf(QStringView digits) {
    int number = 0;
    for (const QChar digit : digits)
        number = 10 * number + (digit.unicode() - u'0');
    return number;
}

/// Takes a part off the front or the back of a text, with the blanks beside it.
bool TakeFromEnds(QString& text, const QString& part) {
    if (text.startsWith(part))
        text.remove(0, part.size());
    else if (text.endsWith(part))
        text.chop(part.size());
    else
        return false;
    text = text.trimmed();
    return true;
}

RegionalFormats& CurrentFormats() {
    static RegionalFormats formats = RegionalFormats::OfMachine();
    return formats;
}

} // namespace

RegionalFormats::RegionalFormats(const QLocale& dateLocale, const QLocale& moneyLocale) {
    TakeDateForm(dateLocale);
    TakeMoneyForm(moneyLocale);
}

RegionalFormats RegionalFormats::OfMachine() {
    return {LocaleNamed(FirstOf({"LC_ALL", "LC_TIME", "LANG"})),
            LocaleNamed(FirstOf({"LC_ALL", "LC_MONETARY", "LANG"}))};
}

const RegionalFormats& RegionalFormats::Current() {
    return CurrentFormats();
}

void RegionalFormats::SetCurrent(const RegionalFormats& formats) {
    CurrentFormats() = formats;
}

void RegionalFormats::TakeDateForm(const QLocale& locale) {
    QString form = InPlainCharacters(locale.dateFormat(QLocale::ShortFormat));
    if (!form.contains("yyyy"_L1))
        form.replace("yy"_L1, "yyyy"_L1);
    static const QRegularExpression namedMonth(u"M{3,}|d{3,}|'"_s);
    const bool numeric = !form.contains(namedMonth) && form.contains(u'd') && form.contains(u'M') &&
                         form.contains("yyyy"_L1);
    if (!numeric || !IsInCodePage(form))
        form = u"yyyy-MM-dd"_s;
    dateForm = form;
    for (size_t i = 0; i < weekdays.size(); ++i)
        weekdays[i] = locale.dayName(int(i) + 1);

    QList<std::pair<qsizetype, QChar>> places;
    for (const QChar part : {u'd', u'M', u'y'})
        places.append({form.indexOf(part), part});
    std::sort(places.begin(), places.end());
    for (const auto& [place, part] : places)
        dateOrder += part;
}

void RegionalFormats::TakeMoneyForm(const QLocale& locale) {
    // Where the code page lacks the currency's symbol, its international code says the same, and
    // where it lacks the digits, western ones do.
    struct Way {
        QLocale locale;
        QString symbol;
    };
    const QString code = locale.currencySymbol(QLocale::CurrencyIsoCode);
    const std::array<Way, 3> ways = {
        {{locale, {}}, {locale, code}, {QLocale(QLocale::English, QLocale::UnitedStates), code}}};
    const int places = int(locale.toCurrencyString(0.0).count(locale.zeroDigit())) - 1;
    // The sample's last digits show how many decimals the currency has, and its length shows
    // both group sizes (3 and 2 in India, 3 and 3 elsewhere).
    const auto sample = [places](const Way& way, double sign) {
        return InPlainCharacters(
            way.locale.toCurrencyString(sign * 123456789.0, way.symbol, places));
    };
    const Way& way = *std::find_if(ways.begin(), ways.end() - 1, [&](const Way& candidate) {
        const QString text = sample(candidate, 1) + sample(candidate, -1);
        return text.contains(u'1') && IsInCodePage(text);
    });
    const QString positive = sample(way, 1);
    const QString negative = sample(way, -1);

    const auto body = [](const QString& text) {
        const qsizetype first = FirstDigit(text);
        return text.mid(first, LastDigit(text) - first + 1);
    };
    const QString digits = body(positive);
    positivePrefix = positive.left(FirstDigit(positive));
    positiveSuffix = positive.mid(LastDigit(positive) + 1);
    symbol = WithPlainBlanks(positivePrefix + positiveSuffix).trimmed();
    negativePrefix = negative.left(FirstDigit(negative));
    negativeSuffix = negative.mid(LastDigit(negative) + 1);

    const qsizetype nine = digits.indexOf(u'9');
    decimals = int(digits.size() - nine - 1);
    decimalMark = InPlainCharacters(way.locale.decimalPoint()).at(0);
    if (decimals > 0) {
        decimalMark = digits[nine + 1];
        --decimals;
    }

    const QString whole = digits.left(nine + 1);
    groupMark = QChar::Null;
    for (const QChar character : whole) {
        if (!IsAsciiDigit(character))
            groupMark = character;
    }
    if (!groupMark.isNull()) {
        const QStringList groups = whole.split(groupMark);
        lastGroup = int(groups.last().size());
        otherGroups = int(groups[groups.size() - 2].size());
    }
}

const QString& RegionalFormats::WeekdayName(QDate date) const {
    return weekdays.at(size_t(date.dayOfWeek() - 1));
}

QString RegionalFormats::ShortDate(QDate date) const {
    const auto padded = [](int number, qsizetype width) {
        return QString::number(number).rightJustified(width, u'0');
    };
    QString text;
    for (qsizetype i = 0; i < dateForm.size();) {
        const QChar part = dateForm[i];
        qsizetype width = 1;
        while (i + width < dateForm.size() && dateForm[i + width] == part)
            ++width;
        if (part == u'd')
            text += padded(date.day(), width);
        else if (part == u'M')
            text += padded(date.month(), width);
        else if (part == u'y')
            text += padded(date.year(), 4);
        else
            text += dateForm.mid(i, width);
        i += width;
    }
    return text;
}

std::optional<QDate> RegionalFormats::ParseDate(QStringView text) const {
    const auto parts = DateParts(text);
    if (!parts)
        return {};
    const QStringView order = parts->front().size() == 4 ? u"yMd" : QStringView(dateOrder);
    int year = 0;
    int month = 0;
    int day = 0;
    for (size_t i = 0; i < parts->size(); ++i) {
        const QStringView digits = (*parts)[i];
        const bool isYear = order[qsizetype(i)] == u'y';
        if (digits.isEmpty() || isYear != (digits.size() == 4) || (!isYear && digits.size() > 2))
            return {};
        (isYear ? year : order[qsizetype(i)] == u'M' ? month : day) = NumberOf(digits);
    }
    const QDate date(year, month, day);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QString RegionalFormats::Currency(quint64 digits, bool negative) const {
    constexpr qsizetype mostCharacters = 48;
    QVarLengthArray<QChar, mostCharacters> fromTheEnd;
    for (int place = 0; digits > 0 || place <= decimals; ++place) {
        const int wholePlace = place - decimals;
        if (wholePlace == 0 && decimals > 0)
            fromTheEnd.append(decimalMark);
        const int pastLastGroup = wholePlace - lastGroup;
        if (!groupMark.isNull() && pastLastGroup >= 0 && pastLastGroup % otherGroups == 0)
            fromTheEnd.append(groupMark);
        fromTheEnd.append(QChar(char16_t(u'0' + digits % 10)));
        digits /= 10;
    }
    std::reverse(fromTheEnd.begin(), fromTheEnd.end());
    const QStringView number(fromTheEnd.data(), fromTheEnd.size());
    return negative ? QString(negativePrefix % number % negativeSuffix)
                    : QString(positivePrefix % number % positiveSuffix);
}

bool RegionalFormats::IsGroupMark(QChar character) const {
    if (groupMark.isNull())
        return false;
    return groupMark.isSpace() ? character.isSpace() : character == groupMark;
}

std::optional<QByteArray> RegionalFormats::PlainNumber(QStringView text) const {
    // Most numbers are counts, with nothing regional about them.
    if (!text.isEmpty() && std::all_of(text.begin(), text.end(), IsAsciiDigit))
        return text.toLatin1();
    QString rest = WithPlainBlanks(InPlainCharacters(text.toString())).trimmed();
    const bool inParentheses = rest.startsWith(u'(') && rest.endsWith(u')');
    if (inParentheses)
        rest = rest.mid(1, rest.size() - 2).trimmed();
    bool negative = inParentheses;
    bool signTaken = inParentheses;
    bool symbolTaken = symbol.isEmpty();
    // Symbol and sign stand on either side of the number and in either order, once each.
    for (bool taken = true; taken;) {
        taken = false;
        if (!symbolTaken && TakeFromEnds(rest, symbol))
            taken = symbolTaken = true;
        if (!signTaken && TakeFromEnds(rest, u"-"_s))
            taken = signTaken = negative = true;
        if (!signTaken && TakeFromEnds(rest, u"+"_s))
            taken = signTaken = true;
    }

    QByteArray plain;
    bool afterMark = false;
    qsizetype digitCount = 0;
    qsizetype i = 0;
    for (; i < rest.size(); ++i) {
        const QChar character = rest[i];
        if (IsAsciiDigit(character)) {
            plain += char(character.unicode());
            ++digitCount;
        } else if (character == decimalMark && !afterMark) {
            plain += '.';
            afterMark = true;
        } else if (IsGroupMark(character) && !afterMark && digitCount > 0) {
            continue;
        } else {
            break;
        }
    }
    if (digitCount == 0)
        return {};
    if (i < rest.size()) {
        static const QRegularExpression exponent(u"^[eEdD]([+-]?\\d{1,3})$"_s);
        const QRegularExpressionMatch match = exponent.match(rest.mid(i));
        if (!match.hasMatch())
            return {};
        plain += 'E' + match.captured(1).toLatin1();
    }
    return negative ? '-' + plain : plain;
}
