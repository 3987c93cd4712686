#include "coursetool/new_course.h"

#include "coursetool/paths.h"
#include "coursetool/source_writer.h"
#include "coursetool/staged_course.h"
#include "coursetool/template_files.h"
#include "files/publication.h"

#include <algorithm>

namespace coursetool {

namespace fs = std::filesystem;

bool isFreeForCourse(const fs::path& directory) {
    std::error_code error;
    // With a separator behind it a link would be followed.
    const fs::path plain = directory.has_filename() ? directory : directory.parent_path();
    const fs::file_status status = fs::symlink_status(plain, error);
    if (status.type() == fs::file_type::not_found)
        return true;
    // What a call that was killed has begun is no course yet.
    const auto isBegun = [](const fs::directory_entry& entry) {
        return entry.path().filename() == files::Publication::kFolder;
    };
    const fs::directory_iterator entries(plain, error);
    return fs::is_directory(status) && !error && std::all_of(begin(entries), end(entries), isBegun);
}

void writeNewCourse(const fs::path& directory, OutputBuffer& out, Report& report) {
    StagedCourse course(directory);
    if (!course.open(report))
        return;
    SourceWriter writer(report);
    for (const TemplateFile& file : kTemplateFiles) {
        const fs::path path = pathFrom(file.path);
        writer.writeFile(std::string(file.text), course.pathFor(path));
        course.add(path);
        out.text() += shown(directory / path) + '\n';
    }
    if (report.hasFailures() || !course.publish(report))
        return;
    if (!out.flush())
        report.outputFailure(out.error());
}

} // namespace coursetool
