#pragma once

#include "platform/RuntimeFailure.h"
#include "store/BasicDiskRoutines.h"

#include <QDate>
#include <QDateTime>
#include <QString>

/// Reads a text file that is open for input, by whole lines or by fields. Reading past the end is
/// a failure of kind ReadPastEnd, a field of the wrong type one of kind TypeMismatch or Overflow;
/// all name the file.
class TextReader {
public:
    /// Reads the file on DiskFile.
    explicit TextReader(BasicDiskRoutines& disk);

    bool AtEnd() const;

    /// Everything up to CR LF, as it stands.
    QString WholeLine();
    /// So many lines as one text, with the CR LF of each.
    QString WholeLines(int count);
    void SkipLines(int count);

    /// The next field: blanks are skipped; a leading double quote opens a text that runs to the
    /// next double quote; without one the field runs to the next comma or line end, so a comma
    /// splits even a plain line in two.
    QString Text();

    // A bare decimal with a point as decimal mark, in every region.
    qint16 Int16();
    qint32 Int32();
    quint8 Byte();
    float Single();
    /// #TRUE# or #FALSE#.
    bool Boolean();
    /// #yyyy-mm-dd#, with or without hh:mm:ss behind a blank; midnight without it. In UTC, which
    /// stands for no zone at all.
    QDateTime Date();

private:
    QByteArrayView NextLine();
    QByteArray NextField();
    QString Quoted(const QByteArray& field) const;
    double Number(const QByteArray& field) const;
    RuntimeFailure OutOfRange(const QByteArray& field, const char* typeName) const;
    template <typename Whole>
    Whole WholeNumber(const char* typeName);

    BasicDiskRoutines& routines;
    qint16 number;
};

/// One line of several values of different types: texts in quotes, numbers bare, #TRUE#, dates as
/// #yyyy-mm-dd#, separated by commas.
class RecordLine {
public:
    RecordLine& Text(const QString& text);
    RecordLine& Number(qint64 value);
    RecordLine& Single(float value);
    RecordLine& Boolean(bool value);
    RecordLine& Date(QDate date);
    /// The time of day is written only when it isn't midnight.
    RecordLine& Date(const QDateTime& value);

    const QByteArray& Bytes() const { return bytes; }

private:
    RecordLine& Add(const QByteArray& field);

    QByteArray bytes;
};

/// Writes lines, each ended by CR LF, to a text file that is open for output.
class TextWriter {
public:
    /// Writes to the file on DiskFile.
    explicit TextWriter(BasicDiskRoutines& disk);
    TextWriter(BasicDiskRoutines& disk, qint16 fileNumber);

    /// The value as it stands, without quotes or escapes.
    void Plain(const QString& text);
    /// The value between double quotes. A quote inside isn't escaped: it ends the field for a
    /// later reader.
    void Quoted(const QString& text);
    void Record(const RecordLine& line);

private:
    void Line(const QByteArray& bytes);

    BasicDiskRoutines& routines;
    qint16 number;
    /// Kept from line to line for its memory: a slip has hundreds of them.
    QByteArray plainLine;
};

/// Writes a file of record lines over what is there; a copy in Backup stays.
void WriteRecordLines(BasicDiskRoutines& disk, const QString& name, const QList<RecordLine>& lines);
/// The plain rewrite of a small file: the file and its copy in Backup go, then it is written anew.
void RewriteFile(BasicDiskRoutines& disk, const QString& name, const QList<RecordLine>& lines);

/// The same with a plain line for each text.
void RewritePlainLines(BasicDiskRoutines& disk, const QString& name, const QStringList& texts);

/// The words that stand for a Boolean in a plain line, in every language.
QString BooleanWord(bool value);
