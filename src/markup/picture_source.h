#pragma once

#include "page/picture.h"

#include <QString>
#include <QStringView>

#include <memory>

namespace markup {

/// Where a page's pictures come from.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    /// Full path of a picture file of the course, whose disc may have to be inserted first. Empty
    /// when the person gave up; a blank name comes back as it is.
    virtual QString locatePicture(const QString& name) = 0;

    /// Null when the file is no picture that can be shown.
    virtual std::shared_ptr<const page::Picture> load(const QString& path) = 0;

    /// The symbol of the image list with this key of two characters; null when there is none.
    virtual std::shared_ptr<const page::Picture> symbol(const QString& key) = 0;
};

} // namespace markup
