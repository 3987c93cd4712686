#pragma once

#include "coursedata/data_location.h"
#include "coursedata/image_list.h"
#include "coursedata/picture_cache.h"
#include "coursedata/picture_words.h"
#include "markup/picture_source.h"

#include <QDateTime>

#include <map>

namespace coursedata {

/// The pictures of a course: files in the installation directory and on its discs, and the symbols
/// of the image list.
class CoursePictures : public markup::PictureSource {
public:
    CoursePictures(DataLocation& location, ImageList& symbols)
        : location_(location), symbols_(symbols) {}

    QString locatePicture(const QString& name) override { return location_.locatePicture(name); }
    /// With the words that the course's file of descriptions has for it.
    std::shared_ptr<const page::Picture> load(const QString& path) override;
    std::shared_ptr<const page::Picture> symbol(const QString& key) override {
        return symbols_.symbol(key);
    }

private:
    /// As many as a rich page has.
    static constexpr std::size_t kMostHeld = 32;

    /// Reads the file of descriptions when it has changed.
    void readWords();

    /// A picture with words of its own. One picture stays one, so that writers write it once.
    class Described;

    DataLocation& location_;
    ImageList& symbols_;
    PictureCache files_{kMostHeld};
    PictureWords words_;
    QDateTime wordsRead_; ///< the file's time when it was read; null without a file
    std::map<QString, std::weak_ptr<const Described>> described_; ///< by path
};

} // namespace coursedata
