#include "preview/previewed_course.h"

#include "coursetool/build.h"
#include "coursetool/course_databases.h"
#include "coursetool/paths.h"
#include "coursetool/tables.h"
#include "files/cause.h"
#include "files/whole_file.h"

namespace preview {

namespace fs = std::filesystem;
using coursetool::CourseSources;
using coursetool::FileTree;
using coursetool::Report;
using coursetool::shown;
using coursetool::SourceKind;

PreviewedCourse::PreviewedCourse(fs::path sources, fs::path installation,
                                 const authoring::Compiler& compiler)
    : sources_(std::move(sources)), installation_(std::move(installation)), compiler_(compiler),
      memory_(compiler) {}

PreviewedCourse::Renewed PreviewedCourse::update() {
    Report report;
    read_ = {};
    CourseSources sources(sources_, memory_, read_, report);
    sources.readPages();
    sources.readTests();
    sources.listFiles();
    memory_.forgetUnused();
    auto renewed = Renewed::Nothing;
    if (!report.hasFaults()) {
        const bool copied = renewFiles(sources, report);
        const bool files = renewDescriptions(sources.descriptions(), report) || copied;
        const bool databases = renewDatabases(report);
        renewed = files ? Renewed::PagesAndFiles : databases ? Renewed::Pages : Renewed::Nothing;
    }
    remarks_ = report.remarks();
    return renewed;
}

void PreviewedCourse::showInstead(std::string_view words) {
    const fs::path sources = installation_ / "attente";
    std::error_code ignored;
    fs::create_directories(sources / coursetool::kPagesFolder, ignored);
    files::WholeFile page(sources / coursetool::kPagesFolder / "1.md");
    page.write("+++\nNumeropage = 1\nIndex = 1\n+++\n");
    page.write(words);
    page.putInPlace();
    Report nobody; // what is wrong with the sources is told already
    coursetool::build(sources, installation_, nobody, [this] { return &compiler_; });
    fs::remove_all(sources, ignored);
}

PreviewedCourse::Copies PreviewedCourse::filesOf(const CourseSources& sources) const {
    Copies files;
    const auto take = [&](const char* folder, const FileTree& tree, const fs::path& to) {
        for (const fs::path& file : tree.files) {
            const fs::path from = sources_ / folder / file;
            files[to / file] = {from, files::stampOf(from)};
        }
    };
    take(coursetool::kFilesFolder, sources.files(), {});
    files.erase(sources.descriptions().name()); // written with what the pages add to it
    take(coursetool::kDiscFolder, sources.disc(), coursetool::kDiscFolder);
    return files;
}

/// Whether a file came, changed or went. One that vanished must not stay: it would hide that a
/// picture is gone.
bool PreviewedCourse::renewFiles(const CourseSources& sources, Report& report) {
    Copies now = filesOf(sources);
    bool renewed = false;
    std::error_code ignored;
    for (const auto& [file, was] : copied_)
        if (const auto still = now.find(file); still == now.end() || still->second != was) {
            renewed = true;
            fs::remove(installation_ / file, ignored);
        }
    for (const fs::path& folder : sources.files().directories)
        fs::create_directories(installation_ / folder, ignored);
    for (const fs::path& folder : sources.disc().directories)
        fs::create_directories(installation_ / coursetool::kDiscFolder / folder, ignored);
    for (auto& [file, copy] : now) {
        const auto known = copied_.find(file);
        if (known != copied_.end() && known->second == copy)
            continue;
        renewed = true;
        fs::create_directories((installation_ / file).parent_path(), ignored);
        std::error_code error;
        fs::copy_file(copy.from, installation_ / file, error);
        if (error) {
            copy.stamp.reset(); // to be tried again
            report.failure({shown(copy.from)},
                           "le fichier ne peut pas être copié : " + files::causeOf(error));
        }
    }
    copied_ = std::move(now);
    return renewed;
}

bool PreviewedCourse::renewDescriptions(const coursetool::PictureDescriptions& descriptions,
                                        Report& report) {
    const std::string text = descriptions.file();
    if (text == descriptions_)
        return false;
    files::WholeFile file(installation_ / descriptions.name());
    file.write(text);
    if (file.putInPlace())
        descriptions_ = text;
    else
        report.failure(installation_ / descriptions.name(), files::kFileNotWritten, file.error());
    return true;
}

/// Nobody but this process reads them, so that nothing need be made sure of on the disk.
bool PreviewedCourse::renewDatabases(Report& report) {
    if (installed_ == read_)
        return false;
    installed_.reset();
    coursetool::CourseDatabases databases({installation_ / coursetool::kCourseFile,
                                           installation_ / coursetool::kExerciseFile,
                                           installation_},
                                          report);
    for (const SharedSource& page : read_.pages)
        databases.take(SourceKind::Page, page);
    for (const SharedSource& test : read_.tests)
        databases.take(SourceKind::Test, test);
    for (const SharedSource& question : read_.questions)
        databases.take(SourceKind::Question, question);
    databases.finish();
    if (report.hasFaults())
        return false;
    installed_ = read_;
    return true;
}

std::optional<coursetool::Place> PreviewedCourse::placeOf(std::int32_t page, int line) const {
    for (const SharedSource& record : read_.pages)
        if (record->fields.values.front().integer() == page)
            return coursetool::Place{record->file, record->text.lineOf(line), 1};
    return std::nullopt;
}

} // namespace preview
