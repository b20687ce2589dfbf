#pragma once

#include <QString>

#include <memory>

class QImage;

/// A picture from a file, or none. Its size is in twips, fifteen to a dot.
struct Picture {
    std::shared_ptr<const QImage> Image;
    double Width = 0;
    double Height = 0;

    bool IsEmpty() const { return Width <= 0 || Height <= 0; }
};

/// Where pictures come from: any file of this machine, by its full path.
class PictureFiles {
public:
    virtual ~PictureFiles() = default;

    virtual bool Exists(const QString& path) const = 0;
    /// A file that is no picture, or too large a one, is a RuntimeFailure of kind BadPicture.
    virtual Picture Load(const QString& path) const = 0;
};
