#pragma once

#include "coursedata/data_location.h"
#include "coursedata/image_list.h"
#include "coursedata/picture_cache.h"
#include "markup/picture_source.h"

namespace coursedata {

/// The pictures of a course: files in the installation directory and on its discs, and the symbols
/// of the image list.
class CoursePictures : public markup::PictureSource {
public:
    CoursePictures(DataLocation& location, ImageList& symbols)
        : location_(location), symbols_(symbols) {}

    QString locatePicture(const QString& name) override { return location_.locatePicture(name); }
    std::shared_ptr<const page::Picture> load(const QString& path) override;
    std::shared_ptr<const page::Picture> symbol(const QString& key) override {
        return symbols_.symbol(key);
    }

private:
    /// As many as a rich page has.
    static constexpr std::size_t kMostHeld = 32;

    DataLocation& location_;
    ImageList& symbols_;
    PictureCache files_{kMostHeld};
};

} // namespace coursedata
