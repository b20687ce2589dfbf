#pragma once

#include "platform/Operator.h"
#include "platform/PrinterSurface.h"
#include "setup/LiveSettings.h"

enum class PrintColor : qint16 { Text = -1, Border = 0 };

/// What every printing screen shares: preparing the printer, placing the pen, fonts, colours,
/// wrapped text and the business heading.
class PrinterRoutines {
public:
    PrinterRoutines(PrinterSurface& printerSurface, LiveSettings& liveSettings, Operator& person);

    PrinterSurface& Surface() { return surface; }
    /// The colour last chosen, 0x00BBGGRR.
    quint32 CurrentPrintColor() const { return settings.CurrentPrintColor; }

    /// Asks where the command that is about to print is to print, with the copies of the print
    /// settings. To be called within HandlePrintErrors, which ends the choice along with the
    /// command. The operator's Cancel is a failure of kind PrintCancelled.
    void AskForPrinter();
    /// Letter paper, the document font in black, no bold, no underline. Titles are centred on 8.5
    /// inches, also on landscape paper, whose columns stand as if it ended there.
    void PreparePrinter(Orientation orientation, bool inColor);
    /// The same, with titles centred on the paper as it lies.
    void PreparePaper(Orientation orientation, bool inColor);
    /// Inches. A value of zero or less leaves its axis alone.
    void PositionAt(float x, float y);
    /// Prints at an X in inches, on the pen's line; the pen stays behind the text.
    void PrintAt(float x, const QString& text);
    /// The same, and the pen goes to the left edge of the next line.
    void PrintLineAt(float x, const QString& text);
    /// Points; a size of zero or less leaves the size alone.
    void SetPrintFont(int size, bool bold, bool underline);
    /// With colour printing on, text is printed blue whatever the text colour setting says: that
    /// one reaches the page through rules only.
    void SetPrintColor(PrintColor selector);
    /// Prints in lines of at most `width` between the given Y and Y plus `height`, all in twips.
    /// What doesn't fit is dropped; a single word wider than the box is printed whole.
    void PrintWrapped(double x, double y, int width, int height, const QString& text);
    /// The business name and data as a block at a position in inches.
    void PrintBusinessHeading(float x, float y, int size);

private:
    QString TakeLine(QString& rest, int width);
    void PrintHeadingAddress(float x);

    PrinterSurface& surface;
    LiveSettings& settings;
    Operator& user;
};
