#pragma once

#include "platform/Picture.h"

/// Pictures from files of this machine: whatever the toolkit reads (bitmap, icon, cursor, JPEG
/// among them), and enhanced metafiles through a converter that runs as a process of its own, so
/// that a damaged one harms nothing.
class DesktopPictures : public PictureFiles {
public:
    bool Exists(const QString& path) const override;
    Picture Load(const QString& path) const override;
};
