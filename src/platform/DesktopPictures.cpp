#include "platform/DesktopPictures.h"

#include "platform/RuntimeFailure.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsInDot = 15;
/// A logo is an inch or two wide; what is larger than this is something else, or a trap.
constexpr double mostDots = 30'000'000;
constexpr double mostDotsInSide = 20'000;
/// Megabytes that one picture may take while it is decoded.
constexpr int decodingMemory = 128;

/// The kinds of picture that are nothing but dots. A drawing can name other files, and can take
/// any time to draw.
const QByteArrayList pictureKinds = {"bmp", "ico", "cur", "jpg", "jpeg", "png", "gif"};

const QString converter = u"emf2svg-conv"_s;
constexpr int milliSecondsForConverter = 10'000;
constexpr rlim_t converterSeconds = 10;
constexpr rlim_t converterMemory = 512UL << 20;
/// The limits bind the converter; what it has drawn is shown by this program, and its size is what
/// keeps that quick.
constexpr rlim_t largestDrawing = 1UL << 20;
constexpr int mostImagesInDrawing = 4;
/// A drawing has no dots of its own; these are enough for a logo on paper.
constexpr double drawingDots = 800;

RuntimeFailure BadPicture(const QString& path, const QString& reason) {
    return {FailureKind::BadPicture, u"Loading the picture %1 failed: %2"_s.arg(path, reason)};
}

Picture PictureOf(const QImage& image, QSizeF dots) {
    return {std::make_shared<const QImage>(image), dots.width() * twipsInDot,
            dots.height() * twipsInDot};
}

constexpr int headerBytes = 44;

/// The beginning of a file, as far as an enhanced metafile tells there what it is.
QByteArray HeaderOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(headerBytes) : QByteArray();
}

/// An enhanced metafile begins with a header record, which has a signature at its 40th byte.
bool IsMetafile(const QByteArray& header) {
    return header.size() == headerBytes && header.startsWith(QByteArrayView("\x01\0\0\0", 4)) &&
           header.endsWith(" EMF");
}

/// The size that the header of a metafile gives it. The dots in its drawing are those of the device
/// that it was made for, and may be as fine as a printer's.
QSizeF DotsInFrame(const QByteArray& header) {
    constexpr int left = 24;
    constexpr int top = 28;
    constexpr int right = 32;
    constexpr int bottom = 36;
    constexpr double unitsInInch = 2540;
    constexpr double dotsInInch = 96;
    const auto edge = [&header](int at) {
        return double(qFromLittleEndian<qint32>(header.constData() + at));
    };
    return QSizeF(edge(right) - edge(left), edge(bottom) - edge(top)) * dotsInInch / unitsInInch;
}

void RefuseTooLarge(const QString& path, QSizeF dots) {
    const double longest = std::max(dots.width(), dots.height());
    if (dots.width() * dots.height() > mostDots || longest > mostDotsInSide)
        throw BadPicture(path, u"It has %1 by %2 dots, and a logo can have at most %3 in all and "
                               u"%4 on a side."_s.arg(std::lround(dots.width()))
                                   .arg(std::lround(dots.height()))
                                   .arg(std::lround(mostDots))
                                   .arg(std::lround(mostDotsInSide)));
}

void Limit(int resource, rlim_t most) {
    const rlimit limit{most, most};
    ::setrlimit(__rlimit_resource_t(resource), &limit);
}

/// Turns the metafile into a drawing that the toolkit can show.
QByteArray ConvertedMetafile(const QString& path) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw BadPicture(path, u"There is no room to convert it: "_s + folder.errorString());
    const QString drawing = folder.filePath(u"logo.svg"_s);
    QProcess process;
    process.setChildProcessModifier([] {
        Limit(RLIMIT_AS, converterMemory);
        Limit(RLIMIT_CPU, converterSeconds);
        Limit(RLIMIT_FSIZE, largestDrawing);
        Limit(RLIMIT_CORE, 0);
    });
    // What it has to say is of no use, and would be kept in memory.
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(converter, {u"-i"_s, path, u"-o"_s, drawing});
    if (!process.waitForStarted())
        throw BadPicture(path, u"The program %1 is needed for metafiles and could not be started. "
                               u"Install the package emf2svg."_s.arg(converter));
    if (!process.waitForFinished(milliSecondsForConverter)) {
        process.kill();
        process.waitForFinished();
        throw BadPicture(path, u"It takes too long to convert."_s);
    }
    QFile file(drawing);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        !file.open(QIODevice::ReadOnly))
        throw BadPicture(path, u"It is no metafile that can be converted."_s);
    return file.readAll();
}

/// One of the two kinds of picture that the converter puts into a drawing. What its bytes are
/// counts, not what they are said to be: they could be a drawing again, which the toolkit would
/// read as well.
bool IsPictureOfDots(QStringView link) {
    const bool isPng = link.startsWith(u"data:image/png;base64,iVBORw0KGgo");
    const bool isJpeg = link.startsWith(u"data:image/jpg;base64,/9j/");
    return (isPng || isJpeg) && link.count(u"base64,") == 1;
}

/// The converter passes on what stands in a metafile's texts, so a drawing can hold anything: it
/// may name no file, and no part of itself again and again. It is read as the toolkit reads it, so
/// that no way of writing a name hides it.
bool IsHarmless(const QByteArray& drawing) {
    QXmlStreamReader reader(drawing);
    int images = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.entityDeclarations().isEmpty())
            return false;
        if (!reader.isStartElement())
            continue;
        if (reader.name() == u"image" && ++images > mostImagesInDrawing)
            return false;
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            if (attribute.name() == u"href" && !IsPictureOfDots(attribute.value()))
                return false;
        }
    }
    return !reader.hasError();
}

Picture LoadMetafile(const QString& path, QSizeF dots) {
    if (dots.isEmpty())
        throw BadPicture(path, u"It has no size."_s);
    RefuseTooLarge(path, dots);
    const QByteArray drawing = ConvertedMetafile(path);
    QSvgRenderer renderer;
    if (!IsHarmless(drawing) || !renderer.load(drawing))
        throw BadPicture(path, u"It is no metafile that can be converted."_s);
    QImage image(
        dots.scaled(drawingDots, drawingDots, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1)),
        QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return PictureOf(image, dots);
}

} // namespace

bool DesktopPictures::Exists(const QString& path) const {
    return QFileInfo(path).isFile();
}

Picture DesktopPictures::Load(const QString& path) const {
    // Opening a pipe would wait for its other end.
    if (!Exists(path))
        throw BadPicture(path, u"There is no such file."_s);
    const QByteArray header = HeaderOf(path);
    if (IsMetafile(header))
        return LoadMetafile(path, DotsInFrame(header));
    QImageReader reader(path);
    // The name says nothing about what is in a file.
    reader.setDecideFormatFromContent(true);
    if (reader.canRead() && !pictureKinds.contains(reader.format()))
        throw BadPicture(
            path, u"A logo can't be of the kind %1."_s.arg(QString::fromLatin1(reader.format())));
    RefuseTooLarge(path, reader.size());
    QImageReader::setAllocationLimit(decodingMemory);
    const QImage image = reader.read();
    if (image.isNull())
        throw BadPicture(path, reader.errorString() + u'.');
    // An icon's own word for its size may be wrong.
    RefuseTooLarge(path, image.size());
    return PictureOf(image, image.size());
}
