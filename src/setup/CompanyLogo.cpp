#include "setup/CompanyLogo.h"

#include "platform/CodePage.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString pictureFilter =
    u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s;

constexpr float smallestSize = 360;
constexpr float largestSize = 1800;
constexpr float sizeStep = 50;

// Of the palette of sixteen colours.
constexpr quint32 black = 0;
constexpr quint32 paletteBlue = 0x800000;
constexpr quint32 paletteLightBlue = 0xff0000;

void DrawBox(PrinterSurface& surface, const double (&corners)[4], quint32 color) {
    surface.Box(corners[0], corners[1], corners[2], corners[3], color);
}

} // namespace

CompanyLogo::CompanyLogo(SettingsStore& settingsStore, LiveSettings& liveSettings,
                         const PictureFiles& pictureFiles, CommonDialog& commonDialog,
                         Operator& person)
    : store(settingsStore), settings(liveSettings), pictures(pictureFiles), dialog(commonDialog),
      user(person) {}

bool CompanyLogo::Find() {
    dialog.RaisesErrorOnCancel = true;
    const std::optional<QString> path = user.AskForFile(pictureFilter);
    if (!path)
        return false;
    dialog.FileName = *path;
    const BusyPointer busy(user);
    settings.logo = pictures.Load(*path);
    return true;
}

bool CompanyLogo::Store() {
    if (dialog.FileName.isEmpty())
        return false;
    if (!IsInCodePage(dialog.FileName) || dialog.FileName.contains(u'"')) {
        user.MsgBox(u"The name of this picture or of its folder has a character that can't be "
                    u"stored.\nRename it or move it to your data folder, and find it again."_s);
        return false;
    }
    settings.logoFile = dialog.FileName;
    store.SaveCompanyLogo();
    store.SaveLogoSettings();
    user.MsgBox(u"Your Logo has been Stored"_s);
    return true;
}

void CompanyLogo::Clear() {
    if (user.MsgBox(u"This will Delete your Company Logo"_s, Buttons::YesNo, u"Delete Logo"_s) !=
        Answer::Yes)
        return;
    settings.logo = {};
    settings.logoFile.clear();
    store.DeleteCompanyLogo();
}

void CompanyLogo::MakeWidthEqualHeight() {
    settings.logoWidth = settings.logoHeight;
}

void CompanyLogo::MakeHeightEqualWidth() {
    settings.logoHeight = settings.logoWidth;
}

void CompanyLogo::RestoreSize() {
    settings.logoWidth = defaultLogoSize;
    settings.logoHeight = defaultLogoSize;
}

void CompanyLogo::WidthSmaller() {
    float& width = settings.logoWidth;
    width = width <= smallestSize ? largestSize : std::max(width - sizeStep, smallestSize);
}

void CompanyLogo::WidthLarger() {
    float& width = settings.logoWidth;
    width = width >= largestSize ? smallestSize : std::min(width + sizeStep, largestSize);
}

void CompanyLogo::HeightSmaller() {
    float& height = settings.logoHeight;
    // A step may end below the smallest size here, and the next one goes on from the largest.
    height = height <= smallestSize ? largestSize : height - sizeStep;
}

void CompanyLogo::HeightLarger() {
    float& height = settings.logoHeight;
    // Likewise above the largest.
    height = height < largestSize ? height + sizeStep : smallestSize;
}

void CompanyLogo::PaintOn(PrinterSurface& surface, double y) const {
    if (settings.logo.IsEmpty())
        return;
    const double x = (surface.PageWidth() - settings.logo.Width) / 2;
    surface.PaintPicture(settings.logo, x, y, double(settings.logoWidth),
                         double(settings.logoHeight));
}

void CompanyLogo::PrintSample(PrinterSurface& surface) const {
    constexpr double logoTop = 720;
    constexpr int frameWidth = 2;
    const bool inColor = settings.PrintInColorFlag;
    surface.JobName = u"Print Sample"_s;
    PaintOn(surface, logoTop);
    surface.DrawWidth = frameWidth;
    const quint32 frameColor = inColor ? paletteLightBlue : black;
    DrawBox(surface, {1080, 2160, 5400, 3600}, frameColor);
    DrawBox(surface, {5760, 2160, 10800, 3600}, frameColor);
    DrawBox(surface, {1080, 3960, 10800, 11520}, frameColor);
    const quint32 edgeColor = inColor ? paletteBlue : black;
    DrawBox(surface, {8640, 720, 10800, 1800}, edgeColor);
    DrawBox(surface, {1080, 11880, 10800, 13680}, edgeColor);
    surface.DrawWidth = 1;
    surface.EndJob();
}
