#include "check/check_pictures.h"

namespace check {

QString CheckPictures::locatePicture(const QString& name) {
    const auto known = paths_.find(name);
    if (known != paths_.end())
        return known->second;
    return paths_[name] = shelf_.locatePicture(name);
}

std::shared_ptr<const page::Picture> CheckPictures::load(const QString& path) {
    // Only those that are no picture are kept in mind: a course may have more pixels than memory.
    if (unreadable_.contains(path))
        return nullptr;
    auto picture = shelf_.load(path);
    if (!picture)
        unreadable_.insert(path);
    return picture;
}

} // namespace check
