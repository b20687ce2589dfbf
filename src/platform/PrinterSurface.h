#pragma once

#include "platform/Picture.h"

#include <QByteArray>
#include <QString>

#include <optional>

enum class Orientation { Portrait, Landscape };

/// A page to draw on, with a pen position, the way every printing routine of the program sees a
/// printer. All positions and lengths are twips (1,440 to the inch) from the left and upper edge
/// of the paper; colours are 0x00BBGGRR; font sizes are points.
///
/// A failure of the print system is a RuntimeFailure of kind PrinterFailure, and the operator's
/// cancelling one of kind PrintCancelled.
class PrinterSurface {
public:
    virtual ~PrinterSurface() = default;

    double CurrentX = 0;
    double CurrentY = 0;
    QString FontName;
    int FontSize = 10;
    bool FontBold = false;
    bool FontUnderline = false;
    quint32 ForeColor = 0;
    /// Thickness of lines and boxes in dots of 1/300 inch.
    int DrawWidth = 1;
    /// What a job is called in the print queue, or in the folder that it is stored in. To be set
    /// before anything of the job is measured or drawn.
    QString JobName;

    /// The width that PrintCentred goes by: the paper's, until a routine that lays its pages out on
    /// another width says so. SetPage takes it back to the paper's.
    std::optional<double> CentringWidth;

    /// Letter paper the given way round; what is printed from here on is a new job unless one has
    /// been begun.
    void SetPage(Orientation orientation, bool inColor);
    /// Of the paper, the way round it was set.
    virtual double PageWidth() const = 0;
    virtual double PageHeight() const = 0;
    /// 1 on the first page of a job.
    virtual int PageNumber() const = 0;

    virtual double TextWidth(const QString& text) = 0;
    virtual double TextHeight(const QString& text) = 0;

    virtual void Line(double x1, double y1, double x2, double y2, quint32 color) = 0;
    virtual void Box(double x1, double y1, double x2, double y2, quint32 color) = 0;
    virtual void FillBox(double x1, double y1, double x2, double y2, quint32 color) = 0;
    /// Stretches the picture to the width and height given.
    virtual void PaintPicture(const Picture& picture, double x, double y, double width,
                              double height) = 0;

    /// Ends the page and moves the pen to the upper left corner of the next.
    virtual void NewPage() = 0;
    /// Ends the job and sends it off.
    virtual void EndJob() = 0;
    /// Throws away what has been drawn of the job so far.
    virtual void AbandonJob() = 0;

    /// Prints at the pen; the pen goes to the left edge of the next line.
    void PrintLine(const QString& text = {});
    /// Prints at the pen; the pen stays behind the text on the same line.
    void Print(const QString& text);
    /// Prints so that the text ends at `right`; the pen stays behind the text.
    void PrintEndingAt(double right, const QString& text);
    /// Prints in the middle of the centring width, on a line of its own.
    void PrintCentred(const QString& text);

protected:
    virtual void SetPaper(Orientation orientation, bool inColor) = 0;
    virtual void DrawText(double x, double y, const QString& text) = 0;
};
