#pragma once

#include <QByteArray>
#include <QString>

/// The single-byte code page of all data files: Windows-1252. Its five unassigned bytes map to the
/// control characters of the same code, so that every byte read is the same byte written.

/// A character that the code page lacks becomes "?".
QByteArray ToCodePage(QStringView text);
/// The same into `room` bytes: what doesn't fit is cut. Returns how many bytes it takes.
size_t EncodeInto(char* bytes, size_t room, QStringView text);
/// The same, behind what `bytes` holds: for texts of many lines.
void AppendInCodePage(QByteArray& bytes, QStringView text);
QString FromCodePage(QByteArrayView bytes);
/// The same, behind what `text` holds.
void AppendFromCodePage(QString& text, QByteArrayView bytes);
bool IsInCodePage(QStringView text);
