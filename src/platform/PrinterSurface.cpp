#include "platform/PrinterSurface.h"

void PrinterSurface::SetPage(Orientation orientation, bool inColor) {
    SetPaper(orientation, inColor);
    CentringWidth.reset();
}

void PrinterSurface::PrintLine(const QString& text) {
    Print(text);
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

void PrinterSurface::Print(const QString& text) {
    if (text.isEmpty())
        return;
    DrawText(CurrentX, CurrentY, text);
    CurrentX += TextWidth(text);
}

void PrinterSurface::PrintEndingAt(double right, const QString& text) {
    CurrentX = right - TextWidth(text);
    Print(text);
}

void PrinterSurface::PrintCentred(const QString& text) {
    CurrentX = (CentringWidth.value_or(PageWidth()) - TextWidth(text)) / 2;
    PrintLine(text);
}
