#include "store/Conversions.h"

#include "platform/RegionalFormats.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int currencyValueDecimals = 4;

QString Located(const QString& where) {
    return where.isEmpty() ? QString() : u" ("_s + where + u')';
}

QString Shortened(QStringView text) {
    constexpr qsizetype longestShown = 60;
    return text.size() > longestShown ? text.left(longestShown).toString() + u"..."_s
                                      : text.toString();
}

RuntimeFailure Mismatch(QStringView text, const QString& what, const QString& where) {
    return {FailureKind::TypeMismatch,
            u"The text \"%1\" is not %2%3."_s.arg(Shortened(text), what, Located(where))};
}

RuntimeFailure TooLarge(QStringView number, const QString& where) {
    return {FailureKind::Overflow,
            u"The number %1 is outside its range%2."_s.arg(Shortened(number), Located(where))};
}

template <typename Whole>
Whole RoundedTo(double number, const QString& where) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= double(std::numeric_limits<Whole>::min()) &&
          rounded <= double(std::numeric_limits<Whole>::max())))
        throw TooLarge(NumberText(number), where);
    return Whole(rounded);
}

/// A decimal number as a person reads it: digits, and how many of them follow the point.
struct Decimal {
    bool negative = false;
    QByteArray digits;
    qsizetype places = 0;
};

/// From the plain form "-1234.5E3".
Decimal DecimalOf(const QByteArray& plain) {
    Decimal decimal;
    decimal.negative = plain.startsWith('-');
    const qsizetype exponentMark = plain.indexOf('E');
    const QByteArray number =
        plain.mid(decimal.negative ? 1 : 0,
                  (exponentMark < 0 ? plain.size() : exponentMark) - (decimal.negative ? 1 : 0));
    const qsizetype point = number.indexOf('.');
    decimal.digits = number;
    if (point >= 0) {
        decimal.places = number.size() - point - 1;
        decimal.digits.remove(point, 1);
    }
    if (exponentMark >= 0)
        decimal.places -= plain.mid(exponentMark + 1).toInt();
    return decimal;
}

bool IsAtLeastOne(const Decimal& decimal) {
    const auto first = std::find_if(decimal.digits.begin(), decimal.digits.end(),
                                    [](char digit) { return digit != '0'; });
    return decimal.digits.end() - first > decimal.places;
}

enum class Ties { ToEven, AwayFromZero };

/// The absolute value of the lowest currency value; the highest is one less.
constexpr quint64 largestCount = quint64(1) << 63;

/// The decimal's absolute value as a whole count of 10^-places, or nothing when it exceeds
/// `largestCount`.
std::optional<quint64> CountOf(const Decimal& decimal, int places, Ties ties) {
    QByteArray digits = decimal.digits;
    const qsizetype surplus = decimal.places - places;
    QByteArray cut;
    if (surplus <= 0) {
        if (digits.size() - surplus > 400)
            return {};
        digits += QByteArray(-surplus, '0');
    } else if (surplus > digits.size()) {
        return 0;
    } else {
        cut = digits.right(surplus);
        digits.chop(surplus);
    }
    quint64 count = 0;
    for (const char digit : std::as_const(digits)) {
        if (count > (largestCount - quint64(digit - '0')) / 10)
            return {};
        count = count * 10 + quint64(digit - '0');
    }
    if (cut.isEmpty() || cut[0] < '5')
        return count;
    const bool isTie = cut[0] == '5' && std::all_of(cut.begin() + 1, cut.end(),
                                                    [](char digit) { return digit == '0'; });
    if (isTie && ties == Ties::ToEven && count % 2 == 0)
        return count;
    return count < largestCount ? std::optional(count + 1) : std::nullopt;
}

QByteArray PlainNumberOf(QStringView text, const QString& where) {
    const auto plain = RegionalFormats::Current().PlainNumber(text);
    if (!plain)
        throw Mismatch(text, u"a number"_s, where);
    return *plain;
}

/// Powers of ten that a double holds exactly.
constexpr std::array<double, 16> powersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr int significantDigits = 15;

/// The double of digits with at most one decimal mark, which is what most numbers are. With 15
/// digits at most, they and the power of ten that they are divided by are exact, so one division
/// gives what reading the text would. Nothing for any other text: that may still be a number.
std::optional<double> ShortDouble(QStringView text) {
    const qsizetype mark = text.indexOf(RegionalFormats::Current().DecimalMark());
    const qsizetype places = mark < 0 ? 0 : text.size() - mark - 1;
    const qsizetype length = text.size() - (mark < 0 ? 0 : 1);
    if (length < 1 || length > significantDigits)
        return {};
    quint64 digits = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == mark)
            continue;
        if (text[i] < u'0' || text[i] > u'9')
            return {};
        digits = digits * 10 + quint64(text[i].unicode() - u'0');
    }
    return double(digits) / powersOfTen[size_t(places)];
}

/// The amount's absolute value in units of the currency's last decimal, rounded as its 15
/// significant digits read; nothing when a double can't tell for sure how they read, or for amounts
/// of unusual size.
std::optional<quint64> UsualAmount(double amount, int decimals) {
    const double value = std::abs(amount);
    if (!(value >= 1 && value < 1e9))
        return {};
    const auto above = std::upper_bound(powersOfTen.begin(), powersOfTen.end(), value);
    const auto places = significantDigits - int(above - powersOfTen.begin());
    // Within a sixteenth of the exact product, as it is below 2 to the 50th.
    const double scaled = value * powersOfTen[size_t(places)];
    const double whole = std::floor(scaled);
    const double rest = scaled - whole;
    if (rest > 0.4 && rest < 0.6)
        return {};
    const quint64 digits = quint64(whole) + (rest > 0.5 ? 1 : 0);
    const auto unit = quint64(powersOfTen[size_t(places - decimals)]);
    return digits / unit + (2 * (digits % unit) >= unit ? 1 : 0);
}

/// `number` is what a failure shows.
QString CurrencyTextOf(const Decimal& decimal, QStringView number, const QString& where = {}) {
    const RegionalFormats& formats = RegionalFormats::Current();
    const auto count = CountOf(decimal, formats.CurrencyDecimals(), Ties::AwayFromZero);
    if (!count)
        throw TooLarge(number, where);
    return formats.Currency(*count, decimal.negative && *count > 0);
}

} // namespace

qint16 ToInt16(double number, const QString& where) {
    return RoundedTo<qint16>(number, where);
}

qint32 ToInt32(double number, const QString& where) {
    return RoundedTo<qint32>(number, where);
}

qint16 ToInt16(QStringView text, const QString& where) {
    return RoundedTo<qint16>(ToDouble(text, where), where);
}

qint32 ToInt32(QStringView text, const QString& where) {
    return RoundedTo<qint32>(ToDouble(text, where), where);
}

quint8 ToByte(QStringView text, const QString& where) {
    return RoundedTo<quint8>(ToDouble(text, where), where);
}

float ToSingle(QStringView text, const QString& where) {
    const double number = ToDouble(text, where);
    if (std::abs(number) > double(std::numeric_limits<float>::max()))
        throw TooLarge(NumberText(number), where);
    return float(number);
}

double ToDouble(QStringView text, const QString& where) {
    if (const auto number = ShortDouble(text))
        return *number;
    const QByteArray plain = PlainNumberOf(text, where);
    bool fits = false;
    const double number = plain.toDouble(&fits);
    if (fits)
        return number;
    if (IsAtLeastOne(DecimalOf(plain)))
        throw TooLarge(text, where);
    // Too close to zero for a double to tell from it.
    return 0;
}

Currency ToCurrency(QStringView text, const QString& where) {
    const Decimal decimal = DecimalOf(PlainNumberOf(text, where));
    const auto count = CountOf(decimal, currencyValueDecimals, Ties::ToEven);
    if (!count || (*count == largestCount && !decimal.negative))
        throw TooLarge(text, where);
    return Currency::OfTenThousandths(qint64(decimal.negative ? 0 - *count : *count));
}

QDate ToDate(QStringView text, const QString& where) {
    return ToDate(text, [&] { return where; });
}

QDate ToDate(QStringView text, const std::function<QString()>& where) {
    const auto date = RegionalFormats::Current().ParseDate(text);
    if (!date)
        throw Mismatch(text, u"a date"_s, where());
    return *date;
}

bool IsNumeric(QStringView text) {
    return RegionalFormats::Current().PlainNumber(text).has_value();
}

bool IsDate(QStringView text) {
    return RegionalFormats::Current().ParseDate(text).has_value();
}

QString TrimBlanks(const QString& text) {
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == u' ')
        ++start;
    while (end > start && text[end - 1] == u' ')
        --end;
    return text.mid(start, end - start);
}

double LeadingNumber(QStringView text) {
    QByteArray number;
    number.reserve(text.size());
    bool afterPoint = false;
    for (const QChar character : text) {
        if (character == u' ')
            continue;
        const bool isPoint = character == u'.' && !afterPoint;
        if (!isPoint && (character < u'0' || character > u'9'))
            break;
        afterPoint = afterPoint || isPoint;
        number += char(character.unicode());
    }
    return number.toDouble();
}

QString CurrencyText(Currency amount) {
    const RegionalFormats& formats = RegionalFormats::Current();
    quint64 surplus = 1;
    for (int place = formats.CurrencyDecimals(); place < currencyValueDecimals; ++place)
        surplus *= 10;
    const qint64 value = amount.TenThousandths();
    const quint64 count = value < 0 ? quint64(0) - quint64(value) : quint64(value);
    const bool isRoundedUp = 2 * (count % surplus) >= surplus;
    const quint64 shown = count / surplus + (isRoundedUp ? 1 : 0);
    return formats.Currency(shown, value < 0 && shown > 0);
}

QString CurrencyText(double amount) {
    if (!std::isfinite(amount))
        throw TooLarge(QString::number(amount), {});
    const RegionalFormats& formats = RegionalFormats::Current();
    if (const auto count = UsualAmount(amount, formats.CurrencyDecimals()))
        return formats.Currency(*count, amount < 0);
    return CurrencyTextOf(DecimalOf(QByteArray::number(amount, 'e', significantDigits - 1)
                                        .replace('e', 'E')
                                        .replace("E+", "E")),
                          NumberText(amount));
}

QString CurrencyText(QStringView text, const QString& where) {
    return CurrencyTextOf(DecimalOf(PlainNumberOf(text, where)), text, where);
}

QString ZeroCurrencyText() {
    return CurrencyText(Currency());
}

QString ShortDateText(QDate date) {
    return RegionalFormats::Current().ShortDate(date);
}

QString NumberText(double number) {
    QString text = QString::number(number, 'g', significantDigits).toUpper();
    return text.replace(u'.', RegionalFormats::Current().DecimalMark());
}

QString NumberText(Currency amount) {
    const qint64 value = amount.TenThousandths();
    const quint64 count = value < 0 ? quint64(0) - quint64(value) : quint64(value);
    QString text = QString::number(count / Currency::perUnit);
    QString decimals =
        QString::number(count % Currency::perUnit).rightJustified(currencyValueDecimals, u'0');
    while (decimals.endsWith(u'0'))
        decimals.chop(1);
    if (!decimals.isEmpty())
        text += RegionalFormats::Current().DecimalMark() + decimals;
    return value < 0 ? u'-' + text : text;
}
