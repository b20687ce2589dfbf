#pragma once

#include "platform/PrinterSurface.h"

#include <functional>
#include <memory>

/// Prints on the machine's default printer. Where the machine has no printer, each job becomes a
/// PDF in "Tessel Delivery" under the user's documents folder, and is opened for the operator to
/// look at.
///
/// A job is drawn in memory and leaves the program whole when it ends, so an abandoned or failed
/// one leaves nothing behind. That is why no QPrinter stands here: it can't take back a page that
/// it was given, and it doesn't say when the print system refuses a job.
class PagePrinter : public PrinterSurface {
public:
    using DocumentOpener = std::function<void(const QString& path)>;

    explicit PagePrinter(DocumentOpener documentOpener);
    ~PagePrinter() override;
    PagePrinter(const PagePrinter&) = delete;
    PagePrinter& operator=(const PagePrinter&) = delete;

    double PageWidth() const override;
    double PageHeight() const override;
    int PageNumber() const override { return page; }

    double TextWidth(const QString& text) override;
    double TextHeight(const QString& text) override;

    void Line(double x1, double y1, double x2, double y2, quint32 color) override;
    void Box(double x1, double y1, double x2, double y2, quint32 color) override;
    void FillBox(double x1, double y1, double x2, double y2, quint32 color) override;
    void PaintPicture(const Picture& picture, double x, double y, double width,
                      double height) override;

    void NewPage() override;
    /// Does nothing when nothing has been drawn.
    void EndJob() override;
    void AbandonJob() override;

protected:
    /// A job that has something drawn on it goes on as it is.
    void SetPaper(Orientation orientation, bool inColor) override;
    void DrawText(double x, double y, const QString& text) override;

private:
    class Job;

    Job& JobInHand();
    Job& JobWithFont();
    std::unique_ptr<Job> TakeJob();

    DocumentOpener openDocument;
    Orientation pageOrientation = Orientation::Portrait;
    bool pageInColor = true;
    int page = 1;
    std::unique_ptr<Job> job;
};
