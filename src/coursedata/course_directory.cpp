#include "coursedata/course_directory.h"

#include "coursedata/databases.h"
#include "platform/file_names.h"

#include <QDir>

namespace coursedata {

namespace {

/// In the words of the caller's path, which need not be UTF-8.
std::optional<QString> find(const QString& directory, const char* name) {
    const auto found = findDatabase(platform::standardPath(directory), name);
    if (!found)
        return std::nullopt;
    return QDir(directory).filePath(QString::fromStdU16String(found->filename().u16string()));
}

} // namespace

std::optional<QString> findCourseDatabase(const QString& directory) {
    return find(directory, kCourseFile);
}

std::optional<QString> findExerciseDatabase(const QString& directory) {
    return find(directory, kExerciseFile);
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
