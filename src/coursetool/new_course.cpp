#include "coursetool/new_course.h"

#include "coursetool/paths.h"
#include "coursetool/source_writer.h"
#include "coursetool/template_files.h"
#include "files/cause.h"

#include <vector>

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// What has been made, to be taken away again unless all is well.
class Made {
public:
    ~Made() {
        std::error_code ignored; // what is not empty is not ours alone
        for (auto path = paths_.rbegin(); path != paths_.rend(); ++path)
            fs::remove(*path, ignored);
    }
    void add(const fs::path& path) { paths_.push_back(path); }
    void keep() { paths_.clear(); }

private:
    std::vector<fs::path> paths_;
};

/// Makes the directory and those it lies in, and notes those that were not there.
bool makeDirectories(const fs::path& directory, Made& made, Report& report) {
    std::error_code error;
    if (directory.empty() || fs::is_directory(directory, error))
        return true;
    if (!makeDirectories(directory.parent_path(), made, report))
        return false;
    if (fs::create_directory(directory, error))
        made.add(directory);
    if (error)
        report.failure(directory, files::kFolderNotCreated, error);
    return !error;
}

} // namespace

bool isFreeForCourse(const fs::path& directory) {
    std::error_code error;
    // With a separator behind it a link would be followed.
    const fs::path plain = directory.has_filename() ? directory : directory.parent_path();
    const fs::file_status status = fs::symlink_status(plain, error);
    return status.type() == fs::file_type::not_found ||
           (fs::is_directory(status) && fs::is_empty(plain, error) && !error);
}

void writeNewCourse(const fs::path& directory, OutputBuffer& out, Report& report) {
    Made made;
    SourceWriter writer(report);
    for (const TemplateFile& file : kTemplateFiles) {
        const fs::path path = directory / pathFrom(file.path);
        if (!makeDirectories(path.parent_path(), made, report))
            return;
        writer.writeFile(std::string(file.text), path);
        if (report.hasFailures())
            return;
        made.add(path);
        out.text() += shown(path) + '\n';
    }
    made.keep();
    if (!out.flush())
        report.outputFailure(out.error());
}

} // namespace coursetool
