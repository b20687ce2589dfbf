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

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsInDot = 15;
/// A logo is an inch or two wide; what is larger than this is something else, or a trap.
constexpr qint64 mostDots = 30'000'000;

const QString converter = u"emf2svg-conv"_s;
constexpr int milliSecondsForConverter = 10'000;
constexpr rlim_t converterSeconds = 10;
constexpr rlim_t converterMemory = 512UL << 20;
constexpr rlim_t largestDrawing = 32UL << 20;
/// A drawing has no dots of its own; these are enough for paper.
constexpr double drawingDots = 2000;

RuntimeFailure BadPicture(const QString& path, const QString& reason) {
    return {FailureKind::BadPicture, u"Loading the picture %1 failed: %2"_s.arg(path, reason)};
}

Picture PictureOf(const QImage& image, QSizeF dots) {
    return {std::make_shared<const QImage>(image), dots.width() * twipsInDot,
            dots.height() * twipsInDot};
}

/// An enhanced metafile begins with a header record, which has a signature at its 40th byte.
bool IsMetafile(const QString& path) {
    QFile file(path);
    constexpr int headerBytes = 44;
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(headerBytes);
    return header.startsWith(QByteArrayView("\x01\0\0\0", 4)) && header.endsWith(" EMF");
}

void Limit(int resource, rlim_t most) {
    const rlimit limit{most, most};
    ::setrlimit(__rlimit_resource_t(resource), &limit);
}

/// Turns the metafile into a drawing that the toolkit can show.
QByteArray ConvertedMetafile(const QString& path) {
    const QTemporaryDir folder;
    const QString drawing = folder.filePath(u"logo.svg"_s);
    QProcess process;
    process.setChildProcessModifier([] {
        Limit(RLIMIT_AS, converterMemory);
        Limit(RLIMIT_CPU, converterSeconds);
        Limit(RLIMIT_FSIZE, largestDrawing);
        Limit(RLIMIT_CORE, 0);
    });
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

Picture LoadMetafile(const QString& path) {
    QSvgRenderer renderer(ConvertedMetafile(path));
    const QSizeF size = renderer.defaultSize();
    if (!renderer.isValid() || size.isEmpty())
        throw BadPicture(path, u"Nothing is drawn in it."_s);
    QImage image(
        size.scaled(drawingDots, drawingDots, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1)),
        QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return PictureOf(image, size);
}

} // namespace

bool DesktopPictures::Exists(const QString& path) const {
    return QFileInfo(path).isFile();
}

Picture DesktopPictures::Load(const QString& path) const {
    if (IsMetafile(path))
        return LoadMetafile(path);
    QImageReader reader(path);
    // The name says nothing about what is in a file.
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > mostDots)
        throw BadPicture(path, u"It has %1 by %2 dots, and a logo can have at most %3 in all."_s
                                   .arg(size.width())
                                   .arg(size.height())
                                   .arg(mostDots));
    const QImage image = reader.read();
    if (image.isNull())
        throw BadPicture(path, reader.errorString() + u'.');
    return PictureOf(image, image.size());
}
