#include "PrintedPages.h"

#include "support/TextOutput.h"

#include <QColor>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double pointsInInch = 72;
constexpr int dotsInInch = 300;
constexpr int paleGrey = 200;

struct Word {
    QString text;
    QRectF place;
};

std::vector<Word> WordsOf(const QString& path, int page) {
    static const QRegularExpression form(
        uR"~(<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">(.*)</word>)~"_s);
    const QString number = QString::number(page);
    const QString boxes =
        OutputOf(u"pdftotext"_s, {u"-bbox"_s, u"-f"_s, number, u"-l"_s, number, path, u"-"_s});
    std::vector<Word> words;
    for (auto found = form.globalMatch(boxes); found.hasNext();) {
        const auto match = found.next();
        const auto inches = [&](int group) {
            return match.captured(group).toDouble() / pointsInInch;
        };
        words.push_back({match.captured(5),
                         QRectF(QPointF(inches(1), inches(2)), QPointF(inches(3), inches(4)))});
    }
    return words;
}

int Dot(double inches) {
    return int(inches * dotsInInch);
}

} // namespace

QString OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    const bool ended = process.waitForFinished();
    EXPECT_TRUE(ended) << program.toStdString() << ": " << process.errorString().toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

int PrintedPages::Count() const {
    return Property(u"Pages"_s).toInt();
}

QStringList PrintedPages::Words(int page) const {
    QStringList words;
    for (const Word& word : WordsOf(path, page))
        words += word.text;
    return words;
}

QRectF PrintedPages::PlaceOf(const QString& word, int page) const {
    std::vector<QRectF> places;
    for (const Word& printed : WordsOf(path, page)) {
        if (printed.text == word)
            places.push_back(printed.place);
    }
    EXPECT_EQ(places.size(), 1U) << "Looked for " << word.toStdString() << " in "
                                 << Words(page).join(u' ').toStdString();
    return places.empty() ? QRectF() : places.front();
}

QStringList PrintedPages::Fonts() const {
    QStringList lines = OutputOf(u"pdffonts"_s, {path}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    for (QString& line : lines)
        line = line.section(u' ', 0, 0).section(u'+', -1);
    return lines;
}

QString PrintedPages::Property(const QString& name) const {
    const QStringList lines = OutputOf(u"pdfinfo"_s, {path}).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith(name + u':'))
            return line.mid(name.size() + 1).trimmed();
    }
    ADD_FAILURE() << "The document doesn't tell its " << name.toStdString();
    return {};
}

QImage PrintedPages::Picture(int page) const {
    const QTemporaryDir folder;
    const QString number = QString::number(page);
    OutputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsInInch), u"-singlefile"_s, u"-f"_s,
                             number, path, folder.filePath(u"page"_s)});
    QImage picture(folder.filePath(u"page.ppm"_s));
    EXPECT_FALSE(picture.isNull());
    return picture;
}

QColor ColorAt(const QImage& picture, double x, double y) {
    return picture.pixelColor(Dot(x), Dot(y));
}

QRectF InkWithin(const QImage& picture, const QRectF& within) {
    QRect ink;
    for (int y = Dot(within.top()); y < Dot(within.bottom()); ++y) {
        for (int x = Dot(within.left()); x < Dot(within.right()); ++x) {
            if (qGray(picture.pixel(x, y)) < paleGrey)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return QRectF(ink.x() / double(dotsInInch), ink.y() / double(dotsInInch),
                  ink.width() / double(dotsInInch), ink.height() / double(dotsInInch));
}
