#include "coursedata/course_pictures.h"

namespace coursedata {

std::shared_ptr<const page::Picture> CoursePictures::load(const QString& path) {
    // What was no name stayed what it was; it is not to be looked for in the current directory.
    return path.trimmed().isEmpty() ? nullptr : files_.load(path);
}

} // namespace coursedata
