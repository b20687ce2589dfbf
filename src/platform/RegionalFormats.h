#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

#include <optional>

/// The machine's regional short date and currency forms. They are both what the screens show and
/// what the text files hold, so writer and reader are kept side by side here: what one writes,
/// the other reads back. A form that the files' code page can't hold is brought to one it can.
///
/// There is one set of forms a process, as there is one locale a process.
class RegionalFormats {
public:
    RegionalFormats(const QLocale& dateLocale, const QLocale& moneyLocale);

    /// From LC_ALL, LC_TIME, LC_MONETARY and LANG, in the order of precedence the system gives
    /// them. C, POSIX or nothing give 3/16/2026 and $1,250.00.
    static RegionalFormats OfMachine();

    static const RegionalFormats& Current();
    static void SetCurrent(const RegionalFormats& formats);

    /// Year always in four digits.
    QString ShortDate(QDate date) const;
    /// The form of the short date in the toolkit's letters, for example "M/d/yyyy".
    const QString& DateForm() const { return dateForm; }
    /// A date in the regional order, or as yyyy-mm-dd. Nothing when the text is no such date.
    std::optional<QDate> ParseDate(QStringView text) const;

    /// An amount with symbol, grouping and the currency's own number of decimals. `digits` is the
    /// unsigned amount in units of the last decimal.
    QString Currency(quint64 digits, bool negative) const;
    /// Decimals of the currency, 0 to 4.
    int CurrencyDecimals() const { return decimals; }

    /// A number as a person writes it in this region: blanks around it, a sign or parentheses, the
    /// currency symbol, grouping, the regional decimal mark, an exponent. The answer is in the
    /// plain form "-1234.5E3" with a point; nothing when the text is no number.
    std::optional<QByteArray> PlainNumber(QStringView text) const;

    QChar DecimalMark() const { return decimalMark; }

private:
    void TakeDateForm(const QLocale& locale);
    void TakeMoneyForm(const QLocale& locale);
    bool IsGroupMark(QChar character) const;

    QString dateForm;
    QString dateOrder;
    QString symbol;
    QString positivePrefix;
    QString positiveSuffix;
    QString negativePrefix;
    QString negativeSuffix;
    QChar groupMark = u',';
    QChar decimalMark = u'.';
    int decimals = 2;
    int lastGroup = 3;
    int otherGroups = 3;
};
