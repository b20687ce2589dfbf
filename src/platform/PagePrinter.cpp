#include "platform/PagePrinter.h"

#include "platform/ColorNumber.h"
#include "platform/RuntimeFailure.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int twipsInInch = 1440;
constexpr double letterShortSide = 12240;
constexpr double letterLongSide = 15840;
constexpr double twipsInDot = twipsInInch / 300.0;
constexpr int milliSecondsForPrintSystem = 60'000;

const QString programName = u"Tessel Delivery"_s;

RuntimeFailure Failed(const QString& operation, const QString& reason) {
    return {FailureKind::PrinterFailure, operation + u" failed: "_s + reason.trimmed()};
}

QColor PrintedColor(quint32 color, bool inColor) {
    const QColor full = ColorOf(color);
    if (inColor)
        return full;
    const int grey = qGray(full.rgb());
    return {grey, grey, grey};
}

/// What is transparent is the paper's white.
QImage InGrey(const QImage& image) {
    QImage onPaper(image.size(), QImage::Format_RGB32);
    onPaper.fill(Qt::white);
    QPainter(&onPaper).drawImage(0, 0, image);
    return onPaper.convertToFormat(QImage::Format_Grayscale8);
}

/// Empty when the machine has no printer.
QString PrinterToUse() {
    const QString name = QPrinterInfo::defaultPrinterName();
    return name.isEmpty() ? QPrinterInfo::availablePrinterNames().value(0) : name;
}

void SendToPrinter(const QString& printer, const QString& title, bool inColor,
                   const QByteArray& pdf) {
    const QString operation = u"Sending \"%1\" to the printer %2"_s.arg(title, printer);
    QProcess lp;
    lp.start(u"lp"_s, {u"-d"_s, printer, u"-t"_s, title, u"-o"_s, u"media=Letter"_s, u"-o"_s,
                       u"print-scaling=none"_s, u"-o"_s,
                       inColor ? u"print-color-mode=color"_s : u"print-color-mode=monochrome"_s});
    lp.write(pdf);
    lp.closeWriteChannel();
    if (!lp.waitForFinished(milliSecondsForPrintSystem)) {
        const QString reason = lp.errorString();
        lp.kill();
        lp.waitForFinished();
        throw Failed(operation, reason);
    }
    if (lp.exitStatus() != QProcess::NormalExit || lp.exitCode() != 0)
        throw Failed(operation, QString::fromLocal8Bit(lp.readAllStandardError()));
}

/// The first of "name.pdf", "name (2).pdf", "name (3).pdf" ... that is not taken.
QString FreePath(const QString& folder, const QString& title) {
    const QString name = folder + u'/' + QString(title).replace(u'/', u'-');
    QString path = name + u".pdf"_s;
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = name + u" ("_s + QString::number(number) + u").pdf"_s;
    return path;
}

/// Writes the whole of it or fails, with the reason of the first write that came back short.
void WriteWhole(QTemporaryFile& file, const QByteArray& bytes, const QString& operation) {
    const char* from = bytes.constData();
    const char* const end = from + bytes.size();
    while (from < end) {
        const ssize_t written = ::write(file.handle(), from, size_t(end - from));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            throw Failed(operation, QString::fromLocal8Bit(std::strerror(errno)));
        from += written;
    }
    if (::fsync(file.handle()) != 0)
        throw Failed(operation, QString::fromLocal8Bit(std::strerror(errno)));
}

/// Puts the document under the user's documents, and says where. It gets its name when all of it
/// has been written.
QString StoreDocument(const QString& title, const QByteArray& pdf) {
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' + programName;
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    if (error)
        throw Failed(u"Making the folder "_s + folder, QString::fromStdString(error.message()));
    QString path = FreePath(folder, title);
    const QString operation = u"Writing the document "_s + path;
    QTemporaryFile file(folder + u"/.XXXXXX.pdf"_s);
    if (!file.open())
        throw Failed(operation, file.errorString());
    WriteWhole(file, pdf, operation);
    if (!file.rename(path))
        throw Failed(operation, file.errorString());
    file.setAutoRemove(false);
    return path;
}

struct FontLook {
    QString name;
    int size;
    bool bold;
    bool underline;
    bool operator==(const FontLook&) const = default;
};

struct PenLook {
    quint32 color;
    int width;
    bool operator==(const PenLook&) const = default;
};

} // namespace

/// A job being drawn. A change of painter state costs more than most texts, so it is made only
/// where something differs.
class PagePrinter::Job {
public:
    Job(const QString& jobTitle, Orientation orientation, bool color)
        : Title(jobTitle), InColor(color) {
        pdf.open(QIODevice::WriteOnly);
        writer.setTitle(Title);
        writer.setCreator(programName);
        writer.setResolution(twipsInInch);
        writer.setPageLayout(
            {QPageSize(QPageSize::Letter),
             orientation == Orientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape,
             QMarginsF()});
        if (!painter.begin(&writer))
            throw Failed(u"Drawing \"%1\""_s.arg(Title), u"The first page can't be begun."_s);
    }

    const QString Title;
    const bool InColor;

    /// For drawing with; from here on the job has something to print.
    QPainter& Painter() {
        drawnOn = true;
        return painter;
    }
    bool IsDrawnOn() const { return drawnOn; }
    const QFontMetricsF& Metrics() const { return metrics; }

    void UseFont(const FontLook& look) {
        if (look == fontLook)
            return;
        // A name that the machine doesn't know falls back to its plain narrow sans serif.
        QFont font({look.name, u"Arial"_s, u"Liberation Sans"_s}, look.size,
                   look.bold ? QFont::Bold : QFont::Normal);
        font.setUnderline(look.underline);
        painter.setFont(font);
        metrics = QFontMetricsF(font, &writer);
        fontLook = look;
        measuredText.reset();
    }

    void UsePen(const PenLook& look) {
        if (look == penLook)
            return;
        painter.setPen(QPen(PrintedColor(look.color, InColor), look.width * twipsInDot,
                            Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        penLook = look;
    }

    /// A text is mostly measured to place it and again to move the pen behind it.
    double WidthOf(const QString& text) {
        if (text != measuredText) {
            measuredWidth = metrics.horizontalAdvance(text);
            measuredText = text;
        }
        return measuredWidth;
    }

    void NewPage() {
        drawnOn = true;
        if (!writer.newPage())
            throw Failed(u"Drawing \"%1\""_s.arg(Title), u"The next page can't be begun."_s);
    }

    QByteArray Finished() {
        if (!painter.end() || pdf.data().isEmpty())
            throw Failed(u"Drawing \"%1\""_s.arg(Title), u"The last page can't be ended."_s);
        return pdf.data();
    }

private:
    QBuffer pdf;
    QPdfWriter writer{&pdf};
    QPainter painter;
    QFontMetricsF metrics{QFont()};
    std::optional<FontLook> fontLook;
    std::optional<PenLook> penLook;
    std::optional<QString> measuredText;
    double measuredWidth = 0;
    bool drawnOn = false;
};

PagePrinter::PagePrinter(DocumentOpener documentOpener) : openDocument(std::move(documentOpener)) {
    JobName = programName;
}

PagePrinter::~PagePrinter() = default;

void PagePrinter::SetPaper(Orientation orientation, bool inColor) {
    if (job && job->IsDrawnOn())
        return;
    job.reset();
    pageOrientation = orientation;
    pageInColor = inColor;
}

double PagePrinter::PageWidth() const {
    return pageOrientation == Orientation::Portrait ? letterShortSide : letterLongSide;
}

double PagePrinter::PageHeight() const {
    return pageOrientation == Orientation::Portrait ? letterLongSide : letterShortSide;
}

PagePrinter::Job& PagePrinter::JobInHand() {
    if (!job)
        job = std::make_unique<Job>(JobName, pageOrientation, pageInColor);
    return *job;
}

PagePrinter::Job& PagePrinter::JobWithFont() {
    Job& current = JobInHand();
    current.UseFont({FontName, FontSize, FontBold, FontUnderline});
    return current;
}

double PagePrinter::TextWidth(const QString& text) {
    return JobWithFont().WidthOf(text);
}

double PagePrinter::TextHeight(const QString&) {
    return JobWithFont().Metrics().height();
}

void PagePrinter::DrawText(double x, double y, const QString& text) {
    Job& current = JobWithFont();
    current.UsePen({ForeColor, DrawWidth});
    current.Painter().drawText(QPointF(x, y + current.Metrics().ascent()), text);
}

void PagePrinter::Line(double x1, double y1, double x2, double y2, quint32 color) {
    Job& current = JobInHand();
    current.UsePen({color, DrawWidth});
    current.Painter().drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void PagePrinter::Box(double x1, double y1, double x2, double y2, quint32 color) {
    Job& current = JobInHand();
    current.UsePen({color, DrawWidth});
    current.Painter().drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
}

void PagePrinter::FillBox(double x1, double y1, double x2, double y2, quint32 color) {
    Job& current = JobInHand();
    current.Painter().fillRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized(),
                               PrintedColor(color, current.InColor));
}

void PagePrinter::PaintPicture(const Picture& picture, double x, double y, double width,
                               double height) {
    Job& current = JobInHand();
    const QImage& image = *picture.Image;
    current.Painter().drawImage(QRectF(x, y, width, height),
                                current.InColor ? image : InGrey(image));
}

void PagePrinter::NewPage() {
    JobInHand().NewPage();
    ++page;
    CurrentX = 0;
    CurrentY = 0;
}

std::unique_ptr<PagePrinter::Job> PagePrinter::TakeJob() {
    page = 1;
    CurrentX = 0;
    CurrentY = 0;
    return std::move(job);
}

void PagePrinter::EndJob() {
    const std::unique_ptr<Job> ended = TakeJob();
    if (!ended || !ended->IsDrawnOn())
        return;
    const QByteArray pdf = ended->Finished();
    const QString printer = PrinterToUse();
    if (printer.isEmpty())
        openDocument(StoreDocument(ended->Title, pdf));
    else
        SendToPrinter(printer, ended->Title, ended->InColor, pdf);
}

void PagePrinter::AbandonJob() {
    TakeJob();
}
