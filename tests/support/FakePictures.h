#pragma once

#include "platform/Picture.h"
#include "platform/RuntimeFailure.h"

#include <QSizeF>

#include <map>

/// Pictures by their paths, given by their size in twips; a size of nothing is a file that is no
/// picture. A test that shows a picture gives its dots as well.
class FakePictures : public PictureFiles {
public:
    std::map<QString, QSizeF> Files;
    std::map<QString, std::shared_ptr<const QImage>> Images;

    bool Exists(const QString& path) const override { return Files.contains(path); }
    Picture Load(const QString& path) const override {
        const auto found = Files.find(path);
        if (found == Files.end() || found->second.isEmpty())
            throw RuntimeFailure(FailureKind::BadPicture, path);
        const auto image = Images.find(path);
        return {image == Images.end() ? nullptr : image->second, found->second.width(),
                found->second.height()};
    }
};
