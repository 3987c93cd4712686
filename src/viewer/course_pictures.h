#pragma once

#include "markup/picture_shelf.h"
#include "shell/data_location.h"
#include "viewer/image_list.h"

#include <QDateTime>

#include <deque>

namespace viewer {

/// The pictures of a course: files in the installation directory and on its discs, and the symbols
/// of the image list.
///
/// The files read last are held, so that a page that shows one many times, or is shown again, reads
/// it once; a file that has changed is read anew.
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
    struct Held {
        QString path;
        QDateTime changed;
        qint64 bytes;
        std::shared_ptr<const platform::Picture> picture; ///< null when it cannot be read
    };

    void makeRoom();

    shell::DataLocation& location_;
    ImageList& symbols_;
    std::deque<Held> held_; ///< the newest at the end
};

} // namespace viewer
