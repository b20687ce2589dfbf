#pragma once

#include "platform/PrinterSurface.h"
#include "platform/RuntimeFailure.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A printer that records what was drawn where. A character is ten twips a point wide (so 100
/// twips at size 10), and a line is 24 twips a point high.
class RecordingPrinter : public PrinterSurface {
public:
    struct Text {
        int page;
        double x;
        double y;
        QString text;
        QString fontName;
        int fontSize;
        bool bold;
        bool underline;
        quint32 color;
    };
    struct Stroke {
        int page;
        double x1, y1, x2, y2;
        quint32 color;
        int drawWidth;
    };
    struct PaintedPicture {
        int page;
        double x, y, width, height;
    };

    std::vector<Text> Texts;
    std::vector<Stroke> Lines;
    std::vector<Stroke> Boxes;
    std::vector<Stroke> FilledBoxes;
    std::vector<PaintedPicture> Pictures;
    enum class Mark { Text, Line, Box, FilledBox, Picture };
    /// Of every text, line, box and picture above, in the order that they were drawn in.
    std::vector<Mark> Order;
    std::vector<Orientation> Orientations;
    std::vector<bool> Colors;
    int Jobs = 0;
    /// What each job that ended was called, and where it went.
    std::vector<QString> JobNames;
    std::vector<PrintDestination> Destinations;
    int AbandonedJobs = 0;
    /// The call of Print (counted from 1) that fails, as a printer that dies in mid-job.
    std::optional<int> FailingText;
    /// The box (counted from 1) that fails.
    std::optional<int> FailingBox;
    /// Of the paper, in twips: letter paper. It stands upright until SetPage turns it, so that a
    /// routine that measures the page before it sets it goes wrong here as well.
    double ShortSide = 12240;
    double LongSide = 15840;
    /// Makes such a failure the operator's cancelling.
    bool FailsAsCancelled = false;
    /// The printer dies when the job is sent off.
    bool FailsAtEndOfJob = false;

    /// The first text of that wording; fails the test when there is none.
    const Text& Find(const QString& text) const;
    /// What was drawn, a text each: "page: x,y size text", with "b" behind a bold size.
    QStringList DrawnTexts() const;

    double PageWidth() const override { return isAcross ? LongSide : ShortSide; }
    double PageHeight() const override { return isAcross ? ShortSide : LongSide; }
    int PageNumber() const override { return page; }
    double TextWidth(const QString& text) override;
    double TextHeight(const QString& text) override;
    void Line(double x1, double y1, double x2, double y2, quint32 color) override;
    void Box(double x1, double y1, double x2, double y2, quint32 color) override;
    void FillBox(double x1, double y1, double x2, double y2, quint32 color) override;
    void PaintPicture(const Picture& picture, double x, double y, double width,
                      double height) override;
    void NewPage() override;
    void EndJob() override;
    void AbandonJob() override;

protected:
    void SetPaper(Orientation orientation, bool inColor) override;
    void DrawText(double x, double y, const QString& text) override;

private:
    RuntimeFailure Stopped() const;

    int page = 1;
    bool isAcross = false;
};
