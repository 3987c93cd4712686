#include "coursetool/new_course.h"

#include "coursetool/paths.h"
#include "coursetool/source_writer.h"
#include "coursetool/staged_course.h"
#include "coursetool/template_files.h"
#include "files/publication.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// Whether a call that was killed has left its folder there, and nothing but directories beside it.
bool isBegun(const fs::path& directory) {
    std::error_code error;
    const fs::path folder = directory / files::Publication::kFolder;
    if (!fs::is_directory(fs::symlink_status(folder, error)))
        return false;
    for (fs::recursive_directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path() == folder)
            entry.disable_recursion_pending();
        else if (!fs::is_directory(entry->symlink_status(error)))
            return false;
    }
    return !error;
}

} // namespace

bool isFreeForCourse(const fs::path& directory) {
    std::error_code error;
    // With a separator behind it a link would be followed.
    const fs::path plain = directory.has_filename() ? directory : directory.parent_path();
    const fs::file_status status = fs::symlink_status(plain, error);
    if (status.type() == fs::file_type::not_found)
        return true;
    return fs::is_directory(status) && (fs::is_empty(plain, error) || isBegun(plain)) && !error;
}

void writeNewCourse(const fs::path& directory, OutputBuffer& out, Report& report) {
    StagedCourse course(directory);
    if (!course.open(report))
        return;
    Report passing; // where files stand until all are there is nobody's matter
    SourceWriter writer(passing);
    for (const TemplateFile& file : kTemplateFiles) {
        const fs::path path = pathFrom(file.path);
        writer.writeFile(std::string(file.text), course.pathFor(path));
        if (passing.hasFailures())
            return report.failure({shown(directory / path)}, passing.remarks().back().sentence);
        course.add(path);
        out.text() += shown(directory / path) + '\n';
    }
    if (!course.publish(report))
        return;
    if (!out.flush())
        report.outputFailure(out.error());
}

} // namespace coursetool
