#include "coursedata/course_directory.h"

#include "platform/file_names.h"

namespace coursedata {

std::optional<QString> findCourseDatabase(const QString& directory) {
    return platform::findWithoutCase(directory, kCourseDatabaseName);
}

QString chooseCourseDirectory(const CourseCandidates& candidates) {
    if (candidates.named)
        return *candidates.named;
    if (!findCourseDatabase(candidates.programDirectory) &&
        findCourseDatabase(candidates.demonstration))
        return candidates.demonstration;
    return candidates.programDirectory;
}

} // namespace coursedata
