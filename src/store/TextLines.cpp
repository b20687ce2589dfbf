#include "store/TextLines.h"

#include "platform/CodePage.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView lineEnd = "\r\n";

constexpr QStringView dateForm = u"#yyyy-MM-dd#";
constexpr QStringView dateAndTimeForm = u"#yyyy-MM-dd hh:mm:ss#";

RuntimeFailure PastEnd(const BasicDiskRoutines::Input& input) {
    return {FailureKind::ReadPastEnd,
            u"Reading %1 failed: the file ends before all of its values were read."_s.arg(
                Shown(input.name))};
}

bool IsLineEnd(const BasicDiskRoutines::Input& input, qsizetype position) {
    return input.content.size() - position >= lineEnd.size() && input.content[position] == '\r' &&
           input.content[position + 1] == '\n';
}

void SkipBlanks(BasicDiskRoutines::Input& input) {
    while (input.position < input.content.size() && input.content[input.position] == ' ')
        ++input.position;
}

/// The separator behind a field: a comma, a line end, or nothing.
void SkipSeparator(BasicDiskRoutines::Input& input) {
    if (IsLineEnd(input, input.position))
        input.position += lineEnd.size();
    else if (input.position < input.content.size() && input.content[input.position] == ',')
        ++input.position;
}

QByteArray QuotedField(BasicDiskRoutines::Input& input) {
    ++input.position;
    qsizetype end = input.content.indexOf('"', input.position);
    if (end < 0)
        end = input.content.size();
    const QByteArray field = input.content.mid(input.position, end - input.position);
    input.position = std::min(end + 1, input.content.size());
    SkipBlanks(input);
    SkipSeparator(input);
    return field;
}

QByteArray BareField(BasicDiskRoutines::Input& input) {
    qsizetype end = input.position;
    while (end < input.content.size() && input.content[end] != ',' && !IsLineEnd(input, end))
        ++end;
    const QByteArray field = input.content.mid(input.position, end - input.position);
    input.position = end;
    SkipSeparator(input);
    return field;
}

} // namespace

TextReader::TextReader(BasicDiskRoutines& disk) : routines(disk), number(disk.DiskFile) {}

bool TextReader::AtEnd() const {
    const auto& input = routines.InputOn(number);
    return input.position >= input.content.size();
}

QByteArrayView TextReader::NextLine() {
    auto& input = routines.InputOn(number);
    if (AtEnd())
        throw PastEnd(input);
    qsizetype end = input.content.indexOf('\r', input.position);
    while (end >= 0 && !IsLineEnd(input, end))
        end = input.content.indexOf('\r', end + 1);
    if (end < 0)
        end = input.content.size();
    const QByteArrayView line =
        QByteArrayView(input.content).sliced(input.position, end - input.position);
    input.position = std::min(end + lineEnd.size(), input.content.size());
    return line;
}

QString TextReader::WholeLine() {
    return FromCodePage(NextLine());
}

QString TextReader::WholeLines(int count) {
    const auto& input = routines.InputOn(number);
    const qsizetype start = input.position;
    SkipLines(count);
    return FromCodePage(QByteArrayView(input.content).sliced(start, input.position - start));
}

void TextReader::SkipLines(int count) {
    for (int i = 0; i < count; ++i)
        NextLine();
}

QByteArray TextReader::NextField() {
    auto& input = routines.InputOn(number);
    if (AtEnd())
        throw PastEnd(input);
    SkipBlanks(input);
    const bool isQuoted =
        input.position < input.content.size() && input.content[input.position] == '"';
    return isQuoted ? QuotedField(input) : BareField(input);
}

QString TextReader::Text() {
    return FromCodePage(NextField());
}

QString TextReader::Quoted(const QByteArray& field) const {
    return u"Reading %1 failed: \"%2\" is not "_s.arg(Shown(routines.InputOn(number).name),
                                                      FromCodePage(field.left(60)));
}

double TextReader::Number(const QByteArray& field) const {
    bool isNumber = false;
    double value = field.trimmed().toDouble(&isNumber);
    // Bytes that are a number too large for a double are 0 to the toolkit, and text is infinity.
    if (!isNumber)
        value = QString::fromLatin1(field.trimmed()).toDouble();
    if ((!isNumber && !std::isinf(value)) || std::isnan(value))
        throw RuntimeFailure(FailureKind::TypeMismatch, Quoted(field) + u"a number."_s);
    return value;
}

RuntimeFailure TextReader::OutOfRange(const QByteArray& field, const char* typeName) const {
    return {FailureKind::Overflow,
            Quoted(field) + u"in the range of "_s + QString::fromLatin1(typeName) + u'.'};
}

template <typename Whole>
Whole TextReader::WholeNumber(const char* typeName) {
    const QByteArray field = NextField();
    const double value = std::nearbyint(Number(field));
    if (value < double(std::numeric_limits<Whole>::min()) ||
        value > double(std::numeric_limits<Whole>::max()))
        throw OutOfRange(field, typeName);
    return Whole(value);
}

qint16 TextReader::Int16() {
    return WholeNumber<qint16>("a 16-bit integer");
}

qint32 TextReader::Int32() {
    return WholeNumber<qint32>("a 32-bit integer");
}

quint8 TextReader::Byte() {
    return WholeNumber<quint8>("a byte");
}

float TextReader::Single() {
    const QByteArray field = NextField();
    const double value = Number(field);
    if (std::abs(value) > double(std::numeric_limits<float>::max()))
        throw OutOfRange(field, "a single-precision number");
    return float(value);
}

bool TextReader::Boolean() {
    const QByteArray field = NextField();
    const QByteArray word = field.trimmed();
    if (word == "#TRUE#")
        return true;
    if (word == "#FALSE#")
        return false;
    throw RuntimeFailure(FailureKind::TypeMismatch, Quoted(field) + u"#TRUE# or #FALSE#."_s);
}

QDateTime TextReader::Date() {
    const QByteArray field = NextField();
    const QString text = FromCodePage(field.trimmed());
    if (text.startsWith(u'#') && text.endsWith(u'#') && text.size() > 2) {
        const QString value = text.mid(1, text.size() - 2);
        const QDate date = QDate::fromString(value.section(u' ', 0, 0), u"yyyy-MM-dd");
        const QString timeText = value.section(u' ', 1);
        const QTime time =
            timeText.isEmpty() ? QTime(0, 0) : QTime::fromString(timeText, u"hh:mm:ss");
        if (date.isValid() && time.isValid())
            return {date, time, Qt::UTC};
    }
    throw RuntimeFailure(FailureKind::TypeMismatch, Quoted(field) + u"a date."_s);
}

RecordLine& RecordLine::Add(const QByteArray& field) {
    if (!bytes.isEmpty())
        bytes += ',';
    bytes += field;
    return *this;
}

RecordLine& RecordLine::Text(const QString& text) {
    return Add('"' + ToCodePage(text) + '"');
}

RecordLine& RecordLine::Number(qint64 value) {
    return Add(QByteArray::number(value));
}

RecordLine& RecordLine::Single(float value) {
    constexpr int significantDigits = 7;
    const int wholeDigits =
        value == 0.0F ? 1 : int(std::floor(std::log10(std::abs(double(value))))) + 1;
    const int decimals = std::max(0, significantDigits - wholeDigits);
    QByteArray text = QByteArray::number(double(value), 'f', decimals);
    while (decimals > 0 && text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return Add(text);
}

RecordLine& RecordLine::Boolean(bool value) {
    return Add(value ? "#TRUE#" : "#FALSE#");
}

RecordLine& RecordLine::Date(QDate date) {
    return Date(date.startOfDay(Qt::UTC));
}

RecordLine& RecordLine::Date(const QDateTime& value) {
    const bool isMidnight = value.time() == QTime(0, 0);
    return Add(value.toString(isMidnight ? dateForm : dateAndTimeForm).toLatin1());
}

TextWriter::TextWriter(BasicDiskRoutines& disk) : TextWriter(disk, disk.DiskFile) {}

TextWriter::TextWriter(BasicDiskRoutines& disk, qint16 fileNumber)
    : routines(disk), number(fileNumber) {}

void TextWriter::Line(const QByteArray& bytes) {
    routines.Append(number, bytes);
    routines.Append(number, lineEnd);
}

void TextWriter::Plain(const QString& text) {
    plainLine.truncate(0);
    AppendInCodePage(plainLine, text);
    plainLine.append(lineEnd);
    routines.Append(number, plainLine);
}

void TextWriter::Quoted(const QString& text) {
    Line('"' + ToCodePage(text) + '"');
}

void TextWriter::Record(const RecordLine& line) {
    Line(line.Bytes());
}

void WriteRecordLines(BasicDiskRoutines& disk, const QString& name,
                      const QList<RecordLine>& lines) {
    disk.OpenForOutput(name);
    TextWriter writer(disk);
    for (const RecordLine& line : lines)
        writer.Record(line);
    disk.CloseAllFiles();
}

void RewriteFile(BasicDiskRoutines& disk, const QString& name, const QList<RecordLine>& lines) {
    disk.DeleteWithBackup(name);
    WriteRecordLines(disk, name, lines);
}

void RewritePlainLines(BasicDiskRoutines& disk, const QString& name, const QStringList& texts) {
    disk.DeleteWithBackup(name);
    disk.OpenForOutput(name);
    TextWriter writer(disk);
    for (const QString& text : texts)
        writer.Plain(text);
    disk.CloseAllFiles();
}

QString BooleanWord(bool value) {
    return value ? u"True"_s : u"False"_s;
}
