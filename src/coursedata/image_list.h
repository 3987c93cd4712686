#pragma once

#include "coursedata/picture_cache.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace coursedata {

/// The pictures of the image list (symbol_names.h). Nothing is read before the first symbol is
/// asked for; the course's folder is listed then, once, and each picture read when it is needed.
class ImageList {
public:
    /// Without a course (an empty directory) there are our own symbols alone.
    explicit ImageList(QString courseDirectory) : courseDirectory_(std::move(courseDirectory)) {}

    /// The symbol with this key, in either letter case; null when there is none, or when its file
    /// is no picture.
    std::shared_ptr<const page::Picture> symbol(const QString& key);

    /// Lists the course's folder anew with the next symbol.
    void listAnew() { paths_.reset(); }

private:
    /// Our own, and as many of a course's.
    static constexpr std::size_t kMostHeld = 256;

    std::map<std::string, QString> listFiles() const;

    QString courseDirectory_;
    std::optional<std::map<std::string, QString>> paths_;
    PictureCache pictures_{kMostHeld};
};

} // namespace coursedata
