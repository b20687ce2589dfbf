#include "support/RecordingPrinter.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

const RecordingPrinter::Text& RecordingPrinter::Find(const QString& text) const {
    const auto found = std::find_if(Texts.begin(), Texts.end(),
                                    [&](const Text& drawn) { return drawn.text == text; });
    if (found != Texts.end())
        return *found;
    ADD_FAILURE() << "Not printed: " << text.toStdString();
    static const Text nothing{};
    return nothing;
}

QStringList RecordingPrinter::DrawnTexts() const {
    QStringList drawn;
    for (const Text& text : Texts)
        drawn += u"%1: %2,%3 %4%5 %6"_s.arg(text.page)
                     .arg(text.x)
                     .arg(text.y)
                     .arg(text.fontSize)
                     .arg(text.bold ? u"b"_s : QString(), text.text);
    return drawn;
}

void RecordingPrinter::SetPaper(Orientation orientation, bool inColor) {
    isAcross = orientation == Orientation::Landscape;
    Orientations.push_back(orientation);
    Colors.push_back(inColor);
}

double RecordingPrinter::TextWidth(const QString& text) {
    return 10.0 * FontSize * double(text.size());
}

double RecordingPrinter::TextHeight(const QString&) {
    return 24.0 * FontSize;
}

void RecordingPrinter::Line(double x1, double y1, double x2, double y2, quint32 color) {
    Order.push_back(Mark::Line);
    Lines.push_back({page, x1, y1, x2, y2, color, DrawWidth});
}

void RecordingPrinter::Box(double x1, double y1, double x2, double y2, quint32 color) {
    if (FailingBox && int(Boxes.size()) + 1 == *FailingBox)
        throw Stopped();
    Order.push_back(Mark::Box);
    Boxes.push_back({page, x1, y1, x2, y2, color, DrawWidth});
}

void RecordingPrinter::FillBox(double x1, double y1, double x2, double y2, quint32 color) {
    Order.push_back(Mark::FilledBox);
    FilledBoxes.push_back({page, x1, y1, x2, y2, color, DrawWidth});
}

void RecordingPrinter::PaintPicture(const Picture&, double x, double y, double width,
                                    double height) {
    Order.push_back(Mark::Picture);
    Pictures.push_back({page, x, y, width, height});
}

void RecordingPrinter::NewPage() {
    ++page;
    CurrentX = 0;
    CurrentY = 0;
}

void RecordingPrinter::EndJob() {
    if (FailsAtEndOfJob)
        throw Stopped();
    ++Jobs;
    JobNames.push_back(JobName);
    Destinations.push_back(Destination());
    page = 1;
    CurrentX = 0;
    CurrentY = 0;
}

void RecordingPrinter::AbandonJob() {
    ++AbandonedJobs;
    page = 1;
    CurrentX = 0;
    CurrentY = 0;
}

void RecordingPrinter::DrawText(double x, double y, const QString& text) {
    if (FailingText && int(Texts.size()) + 1 == *FailingText)
        throw Stopped();
    Order.push_back(Mark::Text);
    Texts.push_back({page, x, y, text, FontName, FontSize, FontBold, FontUnderline, ForeColor});
}

RuntimeFailure RecordingPrinter::Stopped() const {
    return {FailsAsCancelled ? FailureKind::PrintCancelled : FailureKind::PrinterFailure,
            u"The printer stopped."_s};
}
