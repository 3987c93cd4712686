#include "coursedata/held_pictures.h"

#include "page/pictures/picture_file.h"

#include <QFileInfo>

#include <algorithm>
#include <numeric>

namespace coursedata {

namespace {

/// What is held has no more than one file may have, the bytes of the files counted: what has been
/// decoded of them is bounded for itself (decoded_cache.h).
constexpr qint64 kMostBytes = page::kMaxPictureFileBytes;

} // namespace

std::shared_ptr<const page::Picture> HeldPictures::load(const QString& path) {
    const QFileInfo file(path);
    const auto held = std::find_if(held_.begin(), held_.end(), [&](const Held& entry) {
        return entry.path == path && entry.changed == file.lastModified() &&
               entry.bytes == file.size();
    });
    if (held != held_.end())
        return held->picture;
    std::erase_if(held_, [&](const Held& entry) { return entry.path == path; });
    held_.push_back({path, file.lastModified(), file.size(), page::loadPicture(path)});
    const auto picture = held_.back().picture;
    makeRoom();
    return picture;
}

void HeldPictures::makeRoom() {
    const auto bytes = [this] {
        return std::accumulate(
            held_.begin(), held_.end(), qint64(0),
            [](qint64 sum, const Held& entry) { return sum + (entry.picture ? entry.bytes : 0); });
    };
    while (held_.size() > most_ || (held_.size() > 1 && bytes() > kMostBytes))
        held_.pop_front();
}

} // namespace coursedata
