#include "coursetool/build.h"

#include "coursetool/course_builder.h"
#include "coursetool/paths.h"
#include "coursetool/staged_course.h"

#include <algorithm>

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// Whether `path` is `directory` or stands somewhere in it.
bool isWithin(const fs::path& path, const fs::path& directory) {
    const auto [end, ignored] =
        std::mismatch(directory.begin(), directory.end(), path.begin(), path.end());
    return end == directory.end();
}

} // namespace

bool liesAmongSources(const fs::path& source, const fs::path& output) {
    std::error_code error;
    const auto plain = [&](const fs::path& path) {
        const fs::path result = fs::weakly_canonical(fs::absolute(path), error);
        return result.has_filename() ? result : result.parent_path(); // no trailing separator
    };
    const fs::path from = plain(source);
    const fs::path to = plain(output);
    const auto holds = [&](const char* folder) { return isWithin(to, from / folder); };
    return to == from || holds(kPagesFolder) || holds(kExercisesFolder) || holds(kFilesFolder) ||
           holds(kDiscFolder);
}

bool build(const fs::path& source, const fs::path& output, Report& report,
           const CompilerSource& compiler, BuildParts parts) {
    StagedCourse course(output);
    if (!course.open(report))
        return false;
    CourseBuilder builder(source, course, output, compiler, report);
    builder.compilePages();
    builder.compileExercises();
    builder.checkFiles();
    if (report.hasFaults())
        return false;
    if (parts == BuildParts::All)
        builder.copyFiles();
    builder.finishDatabases();
    return !report.hasFaults() && course.publish(report);
}

} // namespace coursetool
