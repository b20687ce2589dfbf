#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>

/// What a command prints. Fails the test when it can't be run or ends with an error.
QString OutputOf(const QString& program, const QStringList& arguments);

/// A PDF as a reader sees it. Positions are inches from the upper left corner of the paper, and
/// pages are counted from 1.
class PrintedPages {
public:
    explicit PrintedPages(const QString& pdfPath) : path(pdfPath) {}

    int Count() const;
    /// The texts of a page in reading order, one word each.
    QStringList Words(int page) const;
    /// Where a word of a page stands; fails the test unless it is there exactly once.
    QRectF PlaceOf(const QString& word, int page = 1) const;
    /// Names of the fonts used, without the mark of a font in part.
    QStringList Fonts() const;
    /// A value that the document tells of itself, such as "Title" or "Page size".
    QString Property(const QString& name) const;
    /// A page as a picture of 300 dots to the inch.
    QImage Picture(int page = 1) const;

private:
    QString path;
};

/// The colour of a picture of 300 dots to the inch at a position in inches.
QColor ColorAt(const QImage& picture, double x, double y);
/// The part of a picture of 300 dots to the inch, in inches, that isn't white. Looks in `within`.
QRectF InkWithin(const QImage& picture, const QRectF& within);
