#include "coursetool/build.h"

#include "coursetool/course_databases.h"
#include "coursetool/paths.h"
#include "coursetool/staged_course.h"
#include "files/cause.h"
#include "files/whole_file.h"

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

/// Copies all but the file `passedOver`.
void copyTree(const fs::path& from, const FileTree& tree, const fs::path& to,
              const fs::path& passedOver, StagedCourse& course, Report& report) {
    for (const fs::path& path : tree.directories)
        course.addDirectory(to / path);
    for (const fs::path& path : tree.files) {
        if (path == passedOver)
            continue;
        std::error_code error;
        fs::copy_file(from / path, course.pathFor(to / path), error);
        if (error)
            report.failure({shown(from / path)},
                           "le fichier ne peut pas être copié : " + files::causeOf(error));
        course.add(to / path);
    }
}

void writeDescriptions(const PictureDescriptions& descriptions, const fs::path& output,
                       StagedCourse& course, Report& report) {
    const fs::path& name = descriptions.name();
    std::error_code error;
    // One that the course had before would tell of other pictures.
    if (descriptions.isEmpty() && !fs::exists(output / name, error))
        return;
    files::WholeFile file(course.pathFor(name));
    file.write(descriptions.file());
    if (!file.putInPlace())
        report.failure(output / name, files::kFileNotWritten, file.error());
    course.add(name);
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
           const CompilerSource& compiler) {
    PlainSourceReader reader(compiler);
    return build(source, output, report, reader);
}

bool build(const fs::path& source, const fs::path& output, Report& report, SourceReader& reader) {
    StagedCourse course(output);
    if (!course.open(report))
        return false;
    CourseDatabases databases({course.pathFor(kCourseFile), course.pathFor(kExerciseFile), output},
                              report);
    CourseSources sources(source, reader, databases, report);
    sources.readPages();
    sources.readTests();
    sources.listFiles();
    if (report.hasFaults())
        return false;
    copyTree(source / kFilesFolder, sources.files(), {}, sources.descriptions().name(), course,
             report);
    copyTree(source / kDiscFolder, sources.disc(), kDiscFolder, {}, course, report);
    writeDescriptions(sources.descriptions(), output, course, report);
    databases.finish();
    // Last, so that whoever reads the new pages finds what they name.
    course.add(kExerciseFile);
    course.add(kCourseFile);
    return !report.hasFaults() && course.publish(report);
}

} // namespace coursetool
