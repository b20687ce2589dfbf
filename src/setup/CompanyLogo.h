#pragma once

#include "platform/Operator.h"
#include "platform/PrinterSurface.h"
#include "setup/CommonDialog.h"
#include "setup/SettingsStore.h"

/// The picture at the head of printed documents: finding it, storing where it lies, the size it
/// prints in, and painting it. All sizes are twips.
class CompanyLogo {
public:
    CompanyLogo(SettingsStore& settingsStore, LiveSettings& liveSettings,
                const PictureFiles& pictureFiles, CommonDialog& commonDialog, Operator& person);

    /// Asks for a picture and shows it. False when the operator cancels, which changes nothing; a
    /// file that is no picture is a failure of kind BadPicture.
    bool Find();
    /// Keeps the path of the picture found last, and the size. False when none has been found, or
    /// its path has a character that the file could not give back, which is told.
    bool Store();
    /// Asks first. The size stays, on disk as well.
    void Clear();

    void MakeWidthEqualHeight();
    void MakeHeightEqualWidth();
    void RestoreSize();
    // One step of 50 between 360 and 1,800; a step beyond an end goes on from the other end.
    void WidthSmaller();
    void WidthLarger();
    void HeightSmaller();
    void HeightLarger();

    /// Paints the logo, if there is one, at a height of the page. The width of the picture's file
    /// centres it, not the width it prints in, so a stretched logo sits off the middle.
    void PaintOn(PrinterSurface& surface, double y) const;
    /// One page with the frames of an invoice, to judge the logo against.
    void PrintSample(PrinterSurface& surface) const;

private:
    SettingsStore& store;
    LiveSettings& settings;
    const PictureFiles& pictures;
    CommonDialog& dialog;
    Operator& user;
};
