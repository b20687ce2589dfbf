#include "schedule/PrinterRoutines.h"

#include "platform/RuntimeFailure.h"
#include "setup/AddressStyle.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsInInch = 1440;
constexpr quint32 black = 0;
constexpr quint32 blue = 0xff0000;
constexpr double pageWidth = 12240;
constexpr int wrapMargin = 20;

} // namespace

PrinterRoutines::PrinterRoutines(PrinterSurface& printerSurface, LiveSettings& liveSettings,
                                 Operator& person)
    : surface(printerSurface), settings(liveSettings), user(person) {}

void PrinterRoutines::AskForPrinter() {
    const QString printer = surface.Destination().Printer;
    std::optional<PrintDestination> chosen = user.AskForPrinter(
        {.Printer = printer, .Copies = std::max<int>(settings.printDialogCopies, 1)},
        surface.JobName);
    if (!chosen)
        throw RuntimeFailure(FailureKind::PrintCancelled,
                             u"Printing \"%1\" was cancelled."_s.arg(surface.JobName));
    // A file is no choice of another printer.
    if (!chosen->File.isEmpty())
        chosen->Printer = printer;
    surface.SendTo(*chosen);
}

void PrinterRoutines::PreparePrinter(Orientation orientation, bool inColor) {
    PreparePaper(orientation, inColor);
    surface.CentringWidth = pageWidth;
}

void PrinterRoutines::PreparePaper(Orientation orientation, bool inColor) {
    surface.SetPage(orientation, inColor);
    surface.FontName = settings.DocumentFont;
    surface.ForeColor = black;
    SetPrintFont(0, false, false);
}

void PrinterRoutines::PositionAt(float x, float y) {
    if (x > 0)
        surface.CurrentX = double(x) * twipsInInch;
    if (y > 0)
        surface.CurrentY = double(y) * twipsInInch;
}

void PrinterRoutines::PrintAt(float x, const QString& text) {
    PositionAt(x, 0);
    surface.Print(text);
}

void PrinterRoutines::PrintLineAt(float x, const QString& text) {
    PositionAt(x, 0);
    surface.PrintLine(text);
}

void PrinterRoutines::SetPrintFont(int size, bool bold, bool underline) {
    if (size > 0)
        surface.FontSize = size;
    surface.FontBold = bold;
    surface.FontUnderline = underline;
}

void PrinterRoutines::SetPrintColor(PrintColor selector) {
    const bool inColor = settings.ckColor == 1;
    if (selector == PrintColor::Text) {
        surface.ForeColor = inColor ? blue : black;
        settings.CurrentPrintColor = inColor ? quint32(settings.TextColor) : black;
    } else if (selector == PrintColor::Border) {
        surface.ForeColor = inColor ? quint32(settings.BorderColor) : black;
        settings.CurrentPrintColor = surface.ForeColor;
    }
}

/// Takes the words that fit off the front of `rest`. The measure is taken at the blanks only, so
/// the last word stays on its line whatever its width.
QString PrinterRoutines::TakeLine(QString& rest, int width) {
    qsizetype end = rest.indexOf(u' ');
    qsizetype blank = end;
    while (blank >= 0 && surface.TextWidth(rest.left(blank + 1)) <= width - wrapMargin) {
        end = blank;
        blank = rest.indexOf(u' ', blank + 1);
    }
    if (blank < 0)
        return std::exchange(rest, {});
    const QString line = rest.left(end);
    qsizetype next = end;
    while (next < rest.size() && rest[next] == u' ')
        ++next;
    rest = rest.mid(next);
    return line;
}

void PrinterRoutines::PrintWrapped(double x, double y, int width, int height, const QString& text) {
    surface.CurrentY = y;
    const double bottom = y + height;
    QString rest = text;
    do {
        const QString line = TakeLine(rest, width);
        surface.CurrentX = x;
        surface.PrintLine(line);
    } while (surface.CurrentY < bottom && !rest.isEmpty());
}

void PrinterRoutines::PrintHeadingAddress(float x) {
    const QString& city = settings.BusinessData[3];
    const QString& state = settings.BusinessData[4];
    const QString& zip = settings.BusinessData[5];
    if (IsUsaStyle(settings)) {
        QString line;
        if (!city.isEmpty())
            line += city + u", "_s;
        if (!state.isEmpty())
            line += state + u". "_s + zip;
        if (!line.isEmpty())
            PrintLineAt(x, line);
        return;
    }
    for (const QString& line : {city, state}) {
        if (!line.isEmpty())
            PrintLineAt(x, line);
    }
}

void PrinterRoutines::PrintBusinessHeading(float x, float y, int size) {
    constexpr int smallSize = 10;
    const auto& business = settings.BusinessData;
    SetPrintColor(PrintColor::Text);
    PositionAt(x, y);
    SetPrintFont(size, true, false);
    surface.PrintLine(business[0]);
    SetPrintFont(smallSize, false, false);
    PrintLineAt(x, business[1]);
    if (!business[2].isEmpty())
        PrintLineAt(x, business[2]);
    PrintHeadingAddress(x);
    if (!business[6].isEmpty())
        PrintLineAt(x, u"Telephone: "_s + business[6]);
    for (const QString& line : {business[7], business[8]}) {
        if (!line.isEmpty())
            PrintLineAt(x, line);
    }
}
