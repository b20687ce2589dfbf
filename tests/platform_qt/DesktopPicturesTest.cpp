#include "platform/DesktopPictures.h"

#include "support/OfficeTest.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb red = 0xffff0000;
constexpr QRgb green = 0xff00ff00;
constexpr QRgb blue = 0xff0000ff;
constexpr QRgb white = 0xffffffff;

QByteArray Number(quint32 value, int bytes) {
    QByteArray number;
    for (int i = 0; i < bytes; ++i)
        number += char(value >> (8 * i) & 0xff);
    return number;
}

/// The fields of a little-endian structure, four bytes each.
QByteArray Longs(std::initializer_list<qint64> values) {
    QByteArray bytes;
    for (const qint64 value : values)
        bytes += Number(quint32(value), 4);
    return bytes;
}

/// Three dots by two: red, green, blue over white, black, red.
QImage SmallImage() {
    QImage image(3, 2, QImage::Format_RGB32);
    image.setPixel(0, 0, red);
    image.setPixel(1, 0, green);
    image.setPixel(2, 0, blue);
    image.setPixel(0, 1, white);
    image.setPixel(1, 1, 0xff000000);
    image.setPixel(2, 1, red);
    return image;
}

/// An icon (type 1) or a cursor (type 2) of two dots by two: red and green over blue and nothing.
QByteArray IconBytes(int type) {
    const QByteArray bitmap = Longs({40, 2, 4}) + Number(1, 2) + Number(32, 2) +
                              Longs({0, 0, 0, 0, 0, 0}) + // no compression
                              // Rows from the bottom, each dot blue, green, red, alpha.
                              QByteArray::fromHex("ff0000ff00000000"
                                                  "0000ffff00ff00ff") +
                              // A bit for each transparent dot, rows of four bytes.
                              QByteArray::fromHex("40000000"
                                                  "00000000");
    return Number(0, 2) + Number(quint32(type), 2) + Number(1, 2) + // one picture
           QByteArray::fromHex("02020000") +                        // its size
           Number(1, 2) + Number(type == 1 ? 32 : 1, 2) +           // planes and depth, or hot spot
           Longs({bitmap.size(), 22}) + bitmap;
}

/// What a metafile's header says: bounds in dots of the device, frame in hundredths of a
/// millimetre. One inch by half an inch, drawn at 300 dots an inch, unless told otherwise.
struct MetafileHeader {
    std::initializer_list<qint64> bounds = {0, 0, 300, 150};
    std::initializer_list<qint64> frame = {0, 0, 2540, 1270};
};

/// A metafile with the left third filled red, the middle third left blank and the right filled
/// blue.
QByteArray MetafileBytes(const MetafileHeader& said = {}) {
    constexpr qint64 noPen = 0x80000008;
    const auto brush = [](qint64 handle, qint64 color) {
        return Longs({39, 24, handle, 0, color, 0}) + Longs({37, 12, handle});
    };
    const auto rectangle = [](qint64 left, qint64 right) {
        return Longs({43, 24, left, 0, right, 150});
    };
    const QByteArray records = Longs({37, 12, noPen}) + brush(1, 0x0000ff) + rectangle(0, 100) +
                               brush(2, 0xff0000) + rectangle(200, 300) +
                               Longs({14, 20, 0, 16, 20});
    constexpr int headerBytes = 88;
    constexpr int recordCount = 9;
    constexpr int handles = 3;
    return Longs({1, headerBytes}) + Longs(said.bounds) + Longs(said.frame) + " EMF" +
           Longs({0x10000, headerBytes + records.size(), recordCount}) + Number(handles, 2) +
           Number(0, 2) + Longs({0, 0, 0}) + Longs({3000, 3000, 254, 254}) + records;
}

/// The check sum of PNG and gzip files.
quint32 CheckSum(const QByteArray& checked) {
    quint32 sum = 0xffffffff;
    for (const char byte : checked) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~sum;
}

/// One part of a PNG file, with its check sum.
QByteArray PngPart(const QByteArray& name, const QByteArray& data) {
    const QByteArray checked = name + data;
    QByteArray numbers(8, '\0');
    qToBigEndian(quint32(data.size()), numbers.data());
    qToBigEndian(CheckSum(checked), numbers.data() + 4);
    return numbers.left(4) + checked + numbers.mid(4);
}

/// A gzip file of what is given.
QByteArray Zipped(const QByteArray& bytes) {
    // Four bytes of size and two of a header stand before the compressed bytes, a sum of four
    // behind them.
    const QByteArray compressed = qCompress(bytes).mid(6).chopped(4);
    return QByteArray::fromHex("1f8b0800000000000003") + compressed + Number(CheckSum(bytes), 4) +
           Number(quint32(bytes.size()), 4);
}

/// An icon that gives itself two dots by two and holds a PNG.
QByteArray IconWithPng(const QByteArray& png) {
    return QByteArray::fromHex("000001000100"
                               "0202000001002000") +
           Longs({png.size(), 22}) + png;
}

/// A drawing of a blue square with what is given behind it.
QByteArray DrawingWith(const QByteArray& inside, const QByteArray& before = {}) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + before +
           "<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"100\" height=\"50\">\n"
           "<rect x=\"0\" y=\"0\" width=\"50\" height=\"50\" fill=\"#0000ff\"/>\n" +
           inside + "</svg>\n";
}

/// Red dots of a kind, stretched over the right half of the drawing above.
QByteArray DataImage(const QByteArray& kind = "png") {
    QImage dots(8, 8, QImage::Format_RGB32);
    dots.fill(red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(dots.save(&buffer, kind.constData()));
    return "<image x=\"50\" y=\"0\" width=\"50\" height=\"50\" preserveAspectRatio=\"none\" "
           "xlink:href=\"data:image/" +
           kind + ";base64," + bytes.toBase64() + "\"/>\n";
}

/// A PNG of one bit, or of four times sixteen, for a dot; its rows are as given.
QByteArray PngBytes(quint32 width, quint32 height, bool isDeep, const QByteArray& rows) {
    QByteArray header(8, '\0');
    qToBigEndian(width, header.data());
    qToBigEndian(height, header.data() + 4);
    header += QByteArray::fromHex(isDeep ? "1006000000" : "0100000000");
    // Four bytes of size stand before what the toolkit compresses.
    return QByteArray::fromHex("89504e470d0a1a0a") + PngPart("IHDR", header) +
           PngPart("IDAT", qCompress(rows).mid(4)) + PngPart("IEND", {});
}

/// The most memory that this process ever held, in megabytes.
long MegabytesHeld() {
    rusage usage{};
    EXPECT_EQ(::getrusage(RUSAGE_SELF, &usage), 0);
    return usage.ru_maxrss / 1024;
}

constexpr long fewMegabytes = 64;
/// A file whose size is refused is not even unpacked.
constexpr qint64 quickly = 2000;

/// A folder of pictures, beside it the one for temporary files and one for programs.
class DesktopPicturesTest : public testing::Test {
protected:
    DesktopPicturesTest() {
        folder.MakeFolder(u"temporary"_s);
        qputenv("TMPDIR", folder.PathOf(u"temporary"_s).toUtf8());
    }

    Picture LoadBytes(const QString& name, const QByteArray& bytes) const {
        folder.Write(name, bytes);
        return pictures.Load(folder.PathOf(name));
    }

    /// The sentence of the failure that loading a file ends in.
    QString FailureOfLoading(const QString& name) const {
        const QString path = folder.PathOf(name);
        const RuntimeFailure failure = FailureOf([&] { pictures.Load(path); });
        EXPECT_EQ(failure.Kind(), FailureKind::BadPicture);
        EXPECT_TRUE(failure.Sentence().startsWith(u"Loading the picture %1 failed: "_s.arg(path)))
            << failure.Sentence().toStdString();
        ExpectNothingLeftBehind();
        return failure.Sentence().section(u" failed: "_s, 1);
    }
    QString FailureOfLoading(const QString& name, const QByteArray& bytes) const {
        folder.Write(name, bytes);
        return FailureOfLoading(name);
    }

    void ExpectNothingLeftBehind() const {
        EXPECT_EQ(QDir(folder.PathOf(u"temporary"_s))
                      .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList());
    }

    /// Puts a program in the converter's place, a script of one command.
    void ReplaceConverter(const QByteArray& command) const {
        const QString name = u"programs/emf2svg-conv"_s;
        folder.Write(name, "#!/bin/sh\n" + command + "\n");
        ASSERT_TRUE(QFile::setPermissions(folder.PathOf(name), QFile::ReadOwner | QFile::ExeOwner));
        qputenv("PATH", folder.PathOf(u"programs"_s).toUtf8() + ":" + qgetenv("PATH"));
    }

    /// Puts a program in the converter's place that hands out one drawing.
    void ConvertTo(const QByteArray& drawing) const {
        folder.Write(u"drawing.svg"_s, drawing);
        ReplaceConverter("exec cp '" + folder.PathOf(u"drawing.svg"_s).toUtf8() + "' \"$4\"");
    }
    void ExpectDrawingRefused(const QByteArray& drawing) const {
        ConvertTo(drawing);
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()),
                  u"It is no metafile that can be converted."_s)
            << drawing.toStdString();
        EXPECT_LT(timer.elapsed(), quickly);
    }
    /// The path of a pipe that nobody writes to: who opens it waits for ever.
    QByteArray Pipe() const {
        const QByteArray path = QFile::encodeName(folder.PathOf(u"pipe"_s));
        EXPECT_EQ(::mkfifo(path.constData(), 0600), 0);
        return path;
    }

    TestFolder folder;
    DesktopPictures pictures;
};

void ExpectSmallImage(const Picture& picture) {
    EXPECT_EQ(picture.Width, 45);
    EXPECT_EQ(picture.Height, 30);
    ASSERT_TRUE(picture.Image);
    ASSERT_EQ(picture.Image->size(), QSize(3, 2));
    const QImage expected = SmallImage();
    for (int x = 0; x < 3; ++x) {
        for (int y = 0; y < 2; ++y)
            EXPECT_EQ(picture.Image->pixel(x, y), expected.pixel(x, y)) << x << ' ' << y;
    }
}

void ExpectIcon(const Picture& picture) {
    EXPECT_EQ(picture.Width, 30);
    EXPECT_EQ(picture.Height, 30);
    ASSERT_TRUE(picture.Image);
    EXPECT_EQ(picture.Image->pixel(0, 0), red);
    EXPECT_EQ(picture.Image->pixel(1, 0), green);
    EXPECT_EQ(picture.Image->pixel(0, 1), blue);
    EXPECT_EQ(qAlpha(picture.Image->pixel(1, 1)), 0);
}

} // namespace

// What is a picture.

TEST_F(DesktopPicturesTest, BitmapAndPortableGraphicAreFifteenTwipsADot) {
    for (const char* format : {"bmp", "png"}) {
        const QString name = u"small."_s + QString::fromLatin1(format);
        ASSERT_TRUE(SmallImage().save(folder.PathOf(name), format));
        ExpectSmallImage(pictures.Load(folder.PathOf(name)));
    }
}

TEST_F(DesktopPicturesTest, ResolutionThatAFileTellsDoesNotCount) {
    QImage image = SmallImage();
    image.setDotsPerMeterX(11811); // 300 an inch
    image.setDotsPerMeterY(11811);
    ASSERT_TRUE(image.save(folder.PathOf(u"fine.bmp"_s), "bmp"));
    ExpectSmallImage(pictures.Load(folder.PathOf(u"fine.bmp"_s)));
}

TEST_F(DesktopPicturesTest, Jpeg) {
    QImage image(64, 16, QImage::Format_RGB32);
    image.fill(blue);
    ASSERT_TRUE(image.save(folder.PathOf(u"logo.jpg"_s), "jpg"));
    const Picture picture = pictures.Load(folder.PathOf(u"logo.jpg"_s));
    EXPECT_EQ(picture.Width, 960);
    EXPECT_EQ(picture.Height, 240);
    const QColor color = picture.Image->pixelColor(30, 8);
    EXPECT_GT(color.blue(), 240);
    EXPECT_LT(color.red() + color.green(), 20);
}

TEST_F(DesktopPicturesTest, IconAndCursor) {
    ExpectIcon(LoadBytes(u"logo.ico"_s, IconBytes(1)));
    ExpectIcon(LoadBytes(u"logo.cur"_s, IconBytes(2)));
}

TEST_F(DesktopPicturesTest, ContentCountsNotTheName) {
    ASSERT_TRUE(SmallImage().save(folder.PathOf(u"bitmap.jpg"_s), "bmp"));
    ExpectSmallImage(pictures.Load(folder.PathOf(u"bitmap.jpg"_s)));
    ASSERT_TRUE(SmallImage().save(folder.PathOf(u"xjpg"_s), "png"));
    ExpectSmallImage(pictures.Load(folder.PathOf(u"xjpg"_s)));
    EXPECT_EQ(LoadBytes(u"drawing.bmp"_s, MetafileBytes()).Width, 1440);
}

TEST_F(DesktopPicturesTest, FileOfAnyNameIsLoaded) {
    const QString name = u"a b/Logo, gr\u00fcn \u041b \"15\".bmp"_s;
    folder.MakeFolder(u"a b"_s);
    ASSERT_TRUE(SmallImage().save(folder.PathOf(name), "bmp"));
    ExpectSmallImage(pictures.Load(folder.PathOf(name)));
    EXPECT_EQ(LoadBytes(u"a b/-i \u041b \"15\".EMF"_s, MetafileBytes()).Width, 1440);
}

TEST_F(DesktopPicturesTest, OnlyAFileExists) {
    folder.Write(u"logo.bmp"_s, {});
    EXPECT_TRUE(pictures.Exists(folder.PathOf(u"logo.bmp"_s)));
    EXPECT_FALSE(pictures.Exists(folder.PathOf(u"gone.bmp"_s)));
    EXPECT_FALSE(pictures.Exists(folder.Path()));
    EXPECT_FALSE(pictures.Exists(QString()));
}

// Metafiles.

TEST_F(DesktopPicturesTest, MetafileIsAsLargeAsItsFrameWhateverTheDotsOfItsDevice) {
    const Picture picture = LoadBytes(u"logo.emf"_s, MetafileBytes());
    EXPECT_EQ(picture.Width, 1440);
    EXPECT_EQ(picture.Height, 720);
    ExpectNothingLeftBehind();
}

TEST_F(DesktopPicturesTest, FrameOfAMetafileMayBeginAnywhere) {
    const Picture picture =
        LoadBytes(u"logo.emf"_s, MetafileBytes({{0, 0, 300, 150}, {-1270, 2540, 1270, 5080}}));
    EXPECT_EQ(picture.Width, 1440);
    EXPECT_EQ(picture.Height, 1440);
}

TEST_F(DesktopPicturesTest, MetafileIsDrawnFineEnoughForPaperAndTransparentWhereNothingIsDrawn) {
    const Picture picture = LoadBytes(u"logo.emf"_s, MetafileBytes());
    ASSERT_TRUE(picture.Image);
    ASSERT_EQ(picture.Image->size(), QSize(800, 400));
    for (const int y : {3, 200, 396}) {
        EXPECT_EQ(picture.Image->pixel(3, y), red);
        EXPECT_EQ(picture.Image->pixel(260, y), red);
        EXPECT_EQ(qAlpha(picture.Image->pixel(273, y)), 0);
        EXPECT_EQ(qAlpha(picture.Image->pixel(527, y)), 0);
        EXPECT_EQ(picture.Image->pixel(540, y), blue);
        EXPECT_EQ(picture.Image->pixel(796, y), blue);
    }
}

TEST_F(DesktopPicturesTest, MetafileCutAnywhereIsABadPicture) {
    const QByteArray whole = MetafileBytes();
    for (qsizetype length = 0; length < whole.size(); length += 4)
        EXPECT_NE(FailureOfLoading(u"cut.emf"_s, whole.left(length)), QString()) << length;
    EXPECT_EQ(FailureOfLoading(u"cut.emf"_s, whole.left(120)),
              u"It is no metafile that can be converted."_s);
}

TEST_F(DesktopPicturesTest, MetafileWithARecordOfAFalseLengthIsABadPicture) {
    for (const qint64 length : {0LL, 4LL, 1'000'000LL, 0x7fffffffLL, 0xffffffffLL}) {
        QByteArray bytes = MetafileBytes();
        constexpr int lengthOfFirstRecord = 92;
        bytes.replace(lengthOfFirstRecord, 4, Number(quint32(length), 4));
        EXPECT_EQ(FailureOfLoading(u"bad.emf"_s, bytes),
                  u"It is no metafile that can be converted."_s)
            << length;
    }
}

TEST_F(DesktopPicturesTest, MetafileWithoutSizeIsABadPicture) {
    EXPECT_EQ(FailureOfLoading(u"flat.emf"_s, MetafileBytes({{0, 0, 300, 150}, {0, 0, 0, 1270}})),
              u"It has no size."_s);
    EXPECT_EQ(
        FailureOfLoading(u"turned.emf"_s, MetafileBytes({{0, 0, 300, 150}, {2540, 0, 0, 1270}})),
        u"It has no size."_s);
}

TEST_F(DesktopPicturesTest, HugeMetafileIsRefusedWithoutConvertingIt) {
    ReplaceConverter("exec sleep 60");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(FailureOfLoading(u"huge.emf"_s,
                               MetafileBytes({{0, 0, 300, 150}, {0, 0, 254'000'000, 127'000'000}})),
              u"It has 9600000 by 4800000 dots, and a logo can have at most 30000000 in all "
              u"and 20000 on a side."_s);
    EXPECT_LT(timer.elapsed(), quickly);
}

TEST_F(DesktopPicturesTest, HugeBoundsInTheFrameOfALogoCostLittle) {
    const long before = MegabytesHeld();
    const Picture picture = LoadBytes(
        u"bounds.emf"_s, MetafileBytes({{0, 0, 0x7fffffff, 0x7fffffff}, {0, 0, 2540, 2540}}));
    EXPECT_EQ(picture.Width, 1440);
    EXPECT_LT(MegabytesHeld() - before, fewMegabytes);
}

TEST_F(DesktopPicturesTest, WithoutTheConverterTheFailureTellsWhatToInstall) {
    qputenv("PATH", folder.PathOf(u"programs"_s).toUtf8());
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()),
              u"The program emf2svg-conv is needed for metafiles and could not be started. Install "
              u"the package emf2svg."_s);
    // Nothing else needs it.
    ASSERT_TRUE(SmallImage().save(folder.PathOf(u"small.bmp"_s), "bmp"));
    ExpectSmallImage(pictures.Load(folder.PathOf(u"small.bmp"_s)));
}

TEST_F(DesktopPicturesTest, ConverterThatHangsIsEndedAfterTenSeconds) {
    ReplaceConverter("exec sleep 60");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()), u"It takes too long to convert."_s);
    EXPECT_GE(timer.elapsed(), 9'900);
    EXPECT_LT(timer.elapsed(), 15'000);
}

TEST_F(DesktopPicturesTest, ConverterThatEatsMemoryIsEndedByItsLimit) {
    // It holds the whole of its endless input.
    ReplaceConverter("tail /dev/zero; rc=$?; echo $rc > '" + folder.PathOf(u"status"_s).toUtf8() +
                     "'; exit $rc");
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()),
              u"It is no metafile that can be converted."_s);
    EXPECT_EQ(folder.Read(u"status"_s), "1\n");
}

TEST_F(DesktopPicturesTest, ConverterThatWritesWithoutEndIsEndedByItsLimit) {
    // The second argument pair names the drawing.
    ReplaceConverter("yes > \"$4\"; stat -c %s \"$4\" > '" + folder.PathOf(u"size"_s).toUtf8() +
                     "'");
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()),
              u"It is no metafile that can be converted."_s);
    EXPECT_EQ(folder.Read(u"size"_s), "1048576\n");
}

TEST_F(DesktopPicturesTest, WhatTheConverterSaysTakesNoMemory) {
    ReplaceConverter("head -c 400000000 /dev/zero; head -c 400000000 /dev/zero >&2; exit 3");
    const long before = MegabytesHeld();
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()),
              u"It is no metafile that can be converted."_s);
    EXPECT_LT(MegabytesHeld() - before, fewMegabytes);
}

TEST_F(DesktopPicturesTest, ConverterThatFailsOrWritesNoDrawingIsABadPicture) {
    const QString expected = u"It is no metafile that can be converted."_s;
    ReplaceConverter("exit 1");
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()), expected);
    ReplaceConverter("exit 0");
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()), expected);
    ReplaceConverter("echo '<svg' > \"$4\"");
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()), expected);
    ReplaceConverter("kill -SEGV $$");
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, MetafileBytes()), expected);
}

// What a converted drawing may hold.

TEST_F(DesktopPicturesTest, DrawingWithAnImageOfItsOwnIsShown) {
    ConvertTo(DrawingWith(DataImage()));
    const Picture picture = LoadBytes(u"logo.emf"_s, MetafileBytes());
    ASSERT_TRUE(picture.Image);
    EXPECT_EQ(picture.Width, 1440);
    EXPECT_EQ(picture.Image->pixel(200, 200), blue);
    EXPECT_EQ(picture.Image->pixel(600, 200), red);
    ConvertTo(DrawingWith(DataImage("jpg")));
    const QColor photo = LoadBytes(u"photo.emf"_s, MetafileBytes()).Image->pixelColor(600, 200);
    EXPECT_GT(photo.red(), 240);
    EXPECT_LT(photo.green() + photo.blue(), 20);
}

TEST_F(DesktopPicturesTest, DrawingMayHoldFourImagesAndNoMore) {
    ConvertTo(DrawingWith(DataImage().repeated(4)));
    EXPECT_EQ(LoadBytes(u"logo.emf"_s, MetafileBytes()).Image->pixel(600, 200), red);
    ExpectDrawingRefused(DrawingWith(DataImage().repeated(5)));
}

TEST_F(DesktopPicturesTest, DrawingThatNamesAFileIsRefusedWithoutOpeningIt) {
    const QByteArray pipe = Pipe();
    const QByteArray place = " width=\"9\" height=\"9\"/>";
    ExpectDrawingRefused(DrawingWith("<image href=\"" + pipe + "\"" + place));
    ExpectDrawingRefused(DrawingWith("<image xlink:href=\"" + pipe + "\"" + place));
    ExpectDrawingRefused(DrawingWith("<image xlink:href='file:" + pipe + "'" + place));
    ExpectDrawingRefused(DrawingWith("<image xlink:href\n = \n'" + pipe + "'" + place));
    ExpectDrawingRefused(DrawingWith(DataImage() + "<image xlink:href='" + pipe + "'" + place));
}

TEST_F(DesktopPicturesTest, DrawingInsideADrawingIsRefused) {
    const QByteArray pipe = Pipe();
    const QByteArray inner =
        DrawingWith("<image xlink:href=\"" + pipe + "\" width=\"9\" height=\"9\"/>");
    const auto image = [](const QByteArray& link) {
        return DrawingWith("<image width=\"9\" height=\"9\" xlink:href=\"" + link + "\"/>");
    };
    ExpectDrawingRefused(image("data:image/svg+xml;base64," + inner.toBase64()));
    // What the bytes are counts, not what they are said to be.
    ExpectDrawingRefused(image("data:image/png;base64," + inner.toBase64()));
    ExpectDrawingRefused(image("data:image/png;base64,iVBORw0KGgo=;base64," + inner.toBase64()));
    ExpectDrawingRefused(
        image("data:image/png;base64,iVBORw0KGgo=;&#98;ase64," + inner.toBase64()));
}

TEST_F(DesktopPicturesTest, BytesThatBeginAsAPictureOfDotsAreNotReadAsADrawing) {
    const QByteArray inner =
        DrawingWith("<image xlink:href=\"" + Pipe() + "\" width=\"9\" height=\"9\"/>");
    const std::pair<QByteArray, QByteArray> beginnings[] = {
        {"png", QByteArray::fromHex("89504e470d0a1a0a0000000d49484452")},
        {"jpg", QByteArray::fromHex("ffd8ff")}};
    for (const auto& [kind, beginning] : beginnings) {
        ConvertTo(DrawingWith("<image width=\"9\" height=\"9\" xlink:href=\"data:image/" + kind +
                              ";base64," + (beginning + inner).toBase64() + "\"/>"));
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(LoadBytes(u"logo.emf"_s, MetafileBytes()).Image->pixel(200, 200), blue);
        EXPECT_LT(timer.elapsed(), quickly);
    }
}

TEST_F(DesktopPicturesTest, ImagesCountWhateverTheirPrefix) {
    QByteArray images = DataImage().repeated(5);
    images.replace("<image", "<s:image xmlns:s=\"http://www.w3.org/2000/svg\"");
    ExpectDrawingRefused(DrawingWith(images));
}

TEST_F(DesktopPicturesTest, DrawingThatUsesAPartOfItselfIsRefused) {
    ExpectDrawingRefused(DrawingWith("<g id=\"a\"/><use href=\"#a\"/>"));
    ExpectDrawingRefused(DrawingWith("<g id=\"a\"/><use xlink:href='#a'/>"));
}

TEST_F(DesktopPicturesTest, DrawingWithAnEntityIsRefused) {
    for (const char* word : {"<!ENTITY", "<!entity"})
        ExpectDrawingRefused(
            DrawingWith("<text>&a;</text>", "<!DOCTYPE svg [" + QByteArray(word) + " a \"b\">]>"));
}

// What is no picture.

TEST_F(DesktopPicturesTest, DrawingIsNoLogo) {
    const QByteArray drawing = DrawingWith({});
    EXPECT_EQ(FailureOfLoading(u"logo.svg"_s, drawing), u"A logo can't be of the kind svg."_s);
    EXPECT_EQ(FailureOfLoading(u"logo.bmp"_s, drawing), u"A logo can't be of the kind svg."_s);
    EXPECT_EQ(FailureOfLoading(u"logo.svgz"_s, Zipped(drawing)),
              u"A logo can't be of the kind svgz."_s);
}

TEST_F(DesktopPicturesTest, MetafileNeedsTheSignatureInItsPlace) {
    ReplaceConverter("touch '" + folder.PathOf(u"started"_s).toUtf8() + "'; exit 1");
    const QByteArray beginning("\1\0\0\0", 4);
    for (const int between : {0, 35})
        EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, beginning + QByteArray(between, 0) + " EMF"),
                  u"Unsupported image format."_s)
            << between;
    EXPECT_FALSE(folder.Has(u"started"_s));
    // With the signature in its place the header is looked at.
    EXPECT_EQ(FailureOfLoading(u"logo.emf"_s, beginning + QByteArray(36, 0) + " EMF"),
              u"It has no size."_s);
    EXPECT_FALSE(folder.Has(u"started"_s));
}

TEST_F(DesktopPicturesTest, WithoutAPlaceForTemporaryFilesAMetafileIsABadPicture) {
    qputenv("TMPDIR", "/proc");
    EXPECT_TRUE(FailureOfLoading(u"logo.emf"_s, MetafileBytes())
                    .startsWith(u"There is no room to convert it: "_s));
}

TEST_F(DesktopPicturesTest, FileThatIsNoPictureIsABadPicture) {
    for (const char* name : {"logo.bmp", "logo.ico", "logo.cur", "logo.jpg", "logo.EMF", "logo"}) {
        for (const QByteArray& bytes :
             {QByteArray(), QByteArray("Dear customer,\r\nthank you.\r\n"), QByteArray("BM"),
              QByteArray(5000, '\0'), QByteArray(5000, '\xff')})
            EXPECT_NE(FailureOfLoading(QString::fromLatin1(name), bytes), QString()) << name;
    }
}

TEST_F(DesktopPicturesTest, PictureCutBeforeItsDotsIsABadPicture) {
    ASSERT_TRUE(SmallImage().save(folder.PathOf(u"whole.bmp"_s), "bmp"));
    ASSERT_TRUE(SmallImage().save(folder.PathOf(u"whole.png"_s), "png"));
    constexpr qsizetype headerOfBitmap = 54;
    for (const QString& name : {u"whole.bmp"_s, u"whole.png"_s}) {
        const QByteArray whole = folder.Read(name);
        for (qsizetype length = 0; length < headerOfBitmap; ++length)
            EXPECT_NE(FailureOfLoading(u"cut"_s, whole.left(length)), QString()) << length;
    }
    for (const int type : {1, 2}) {
        const QByteArray whole = IconBytes(type);
        constexpr qsizetype beginOfDots = 62;
        for (qsizetype length = 0; length < beginOfDots; ++length)
            EXPECT_NE(FailureOfLoading(u"cut"_s, whole.left(length)), QString()) << type << length;
    }
}

TEST_F(DesktopPicturesTest, MissingFileFolderAndPipeAreBadPictures) {
    folder.MakeFolder(u"folder.bmp"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.PathOf(u"pipe.bmp"_s)).constData(), 0600), 0);
    for (const QString& name : {u"gone.bmp"_s, u"folder.bmp"_s, u"pipe.bmp"_s})
        EXPECT_EQ(FailureOfLoading(name), u"There is no such file."_s);
}

TEST_F(DesktopPicturesTest, UnreadableFileIsABadPicture) {
    ASSERT_TRUE(SmallImage().save(folder.PathOf(u"secret.bmp"_s), "bmp"));
    folder.Write(u"secret.emf"_s, MetafileBytes());
    DropRootRights(folder);
    for (const QString& name : {u"secret.bmp"_s, u"secret.emf"_s}) {
        ASSERT_TRUE(QFile::setPermissions(folder.PathOf(name), {}));
        EXPECT_NE(FailureOfLoading(name), QString());
    }
}

// What is too large.

TEST_F(DesktopPicturesTest, BitmapThatClaims200MillionDotsIsRefusedQuicklyInLittleMemory) {
    const QByteArray bytes = "BM" + Longs({54 + 4, 0, 54}) + Longs({40, 20000, 10000}) +
                             Number(1, 2) + Number(24, 2) + Longs({0, 0, 0, 0, 0, 0}) + Longs({0});
    const long before = MegabytesHeld();
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(FailureOfLoading(u"huge.bmp"_s, bytes),
              u"It has 20000 by 10000 dots, and a logo can have at most 30000000 in all "
              u"and 20000 on a side."_s);
    EXPECT_LT(timer.elapsed(), quickly);
    EXPECT_LT(MegabytesHeld() - before, fewMegabytes);
}

TEST_F(DesktopPicturesTest, SmallFileOf200MillionDotsIsRefusedQuicklyInLittleMemory) {
    const QByteArray bytes = PngBytes(20000, 10000, false, QByteArray(2501 * 10000, '\0'));
    ASSERT_LT(bytes.size(), 100'000);
    const long before = MegabytesHeld();
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(FailureOfLoading(u"huge.png"_s, bytes),
              u"It has 20000 by 10000 dots, and a logo can have at most 30000000 in all "
              u"and 20000 on a side."_s);
    EXPECT_LT(timer.elapsed(), quickly);
    EXPECT_LT(MegabytesHeld() - before, fewMegabytes);
}

TEST_F(DesktopPicturesTest, FewDotsOfManyBytesEachAreRefusedInLittleMemory) {
    const QByteArray bytes = PngBytes(5000, 5900, true, {});
    const long before = MegabytesHeld();
    EXPECT_NE(FailureOfLoading(u"deep.png"_s, bytes), QString());
    EXPECT_LT(MegabytesHeld() - before, fewMegabytes);
}

TEST_F(DesktopPicturesTest, ThirtyMillionDotsAreTheMost) {
    const auto blank = [](quint32 width, quint32 height) {
        return PngBytes(width, height, false, QByteArray(((width + 7) / 8 + 1) * height, '\0'));
    };
    EXPECT_EQ(LoadBytes(u"most.png"_s, blank(6000, 5000)).Width, 90000);
    EXPECT_EQ(FailureOfLoading(u"more.png"_s, blank(6000, 5001)),
              u"It has 6000 by 5001 dots, and a logo can have at most 30000000 in all "
              u"and 20000 on a side."_s);
}

TEST_F(DesktopPicturesTest, SideOf20000DotsIsTheMost) {
    const auto bitmap = [](qint64 width, qint64 height) {
        return "BM" + Longs({54, 0, 54}) + Longs({40, width, height}) + Number(1, 2) +
               Number(24, 2) + Longs({0, 0, 0, 0, 0, 0});
    };
    const std::pair<QByteArray, QString> rows[] = {{bitmap(1, 30'000'000), u"1 by 30000000"_s},
                                                   {bitmap(30'000'000, 1), u"30000000 by 1"_s},
                                                   {bitmap(1, 20'001), u"1 by 20001"_s},
                                                   {bitmap(20'001, 1), u"20001 by 1"_s}};
    const long before = MegabytesHeld();
    for (const auto& [bytes, size] : rows) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(
            FailureOfLoading(u"long.bmp"_s, bytes),
            u"It has %1 dots, and a logo can have at most 30000000 in all and 20000 on a side."_s
                .arg(size));
        EXPECT_LT(timer.elapsed(), quickly);
    }
    EXPECT_LT(MegabytesHeld() - before, fewMegabytes);
    EXPECT_EQ(LoadBytes(u"long.png"_s, PngBytes(1, 20'000, false, QByteArray(40'000, '\0'))).Height,
              300'000);
}

TEST_F(DesktopPicturesTest, IconThatSaysItIsSmallIsRefusedByWhatItHolds) {
    constexpr quint32 side = 5790;
    constexpr int bytesInRow = 725;
    const QByteArray png = PngBytes(side, side, false, QByteArray(bytesInRow * int(side), '\0'));
    EXPECT_EQ(FailureOfLoading(u"logo.ico"_s, IconWithPng(png)),
              u"It has 5790 by 5790 dots, and a logo can have at most 30000000 in all and 20000 on "
              u"a side."_s);
    // The same icon with a small picture is one.
    const Picture small =
        LoadBytes(u"small.ico"_s, IconWithPng(PngBytes(16, 16, false, QByteArray(48, '\0'))));
    EXPECT_EQ(small.Width, 240);
}
