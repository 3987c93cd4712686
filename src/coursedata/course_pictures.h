#pragma once

#include "coursedata/data_location.h"
#include "coursedata/held_pictures.h"
#include "coursedata/image_list.h"
#include "markup/picture_shelf.h"

namespace coursedata {

/// The pictures of a course: files in the installation directory and on its discs, and the symbols
/// of the image list.
class CoursePictures : public markup::PictureShelf {
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
    HeldPictures files_{kMostHeld};
};

} // namespace coursedata
