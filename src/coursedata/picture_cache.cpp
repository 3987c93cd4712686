#include "coursedata/picture_cache.h"

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

std::shared_ptr<const page::Picture> PictureCache::load(const QString& path) {
    const QFileInfo file(path);
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.path == path && entry.changed == file.lastModified() &&
               entry.bytes == file.size();
    });
    if (found != entries_.end())
        return found->picture;
    std::erase_if(entries_, [&](const Entry& entry) { return entry.path == path; });
    entries_.push_back({path, file.lastModified(), file.size(), page::loadPicture(path)});
    const auto picture = entries_.back().picture;
    makeRoom();
    return picture;
}

void PictureCache::makeRoom() {
    const auto bytes = [this] {
        return std::accumulate(
            entries_.begin(), entries_.end(), qint64(0),
            [](qint64 sum, const Entry& entry) { return sum + (entry.picture ? entry.bytes : 0); });
    };
    while (entries_.size() > most_ || (entries_.size() > 1 && bytes() > kMostBytes))
        entries_.pop_front();
}

} // namespace coursedata
