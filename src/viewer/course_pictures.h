#pragma once

#include "markup/picture_shelf.h"
#include "shell/data_location.h"
#include "viewer/held_pictures.h"
#include "viewer/image_list.h"

namespace viewer {

/// The pictures of a course: files in the installation directory and on its discs, and the symbols
/// of the image list.
class CoursePictures : public markup::PictureShelf {
public:
    CoursePictures(shell::DataLocation& location, ImageList& symbols)
        : location_(location), symbols_(symbols) {}

    QString locatePicture(const QString& name) override { return location_.locatePicture(name); }
    std::shared_ptr<const platform::Picture> load(const QString& path) override;
    std::shared_ptr<const platform::Picture> symbol(const QString& key) override {
        return symbols_.symbol(key);
    }

private:
    /// As many as a rich page has.
    static constexpr std::size_t kMostHeld = 32;

    shell::DataLocation& location_;
    ImageList& symbols_;
    HeldPictures files_{kMostHeld};
};

} // namespace viewer
