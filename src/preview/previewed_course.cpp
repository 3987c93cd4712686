#include "preview/previewed_course.h"

#include "coursetool/file_list.h"
#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/source_parts.h"
#include "coursetool/source_text.h"
#include "coursetool/tables.h"
#include "files/whole_file.h"

namespace preview {

namespace fs = std::filesystem;
using coursetool::Report;
using coursetool::shown;

PreviewedCourse::PreviewedCourse(fs::path sources, fs::path installation,
                                 const authoring::Compiler& compiler)
    : sources_(std::move(sources)), installation_(std::move(installation)), compiler_(compiler) {}

PreviewedCourse::Renewed PreviewedCourse::update() {
    const Stamps now = stampFiles();
    const bool sameFiles = files_ == now;
    Report report;
    const bool built = coursetool::build(
        sources_, installation_, report, [this] { return &compiler_; },
        sameFiles ? coursetool::BuildParts::Databases : coursetool::BuildParts::All);
    remarks_ = report.remarks();
    if (!built)
        return Renewed::Nothing;
    compiler_.forgetUnused();
    removeVanished(now);
    files_ = now;
    return sameFiles ? Renewed::Pages : Renewed::PagesAndFiles;
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

PreviewedCourse::Stamps PreviewedCourse::stampFiles() const {
    Stamps stamps;
    const auto stamp = [&](const char* folder, const fs::path& to) {
        std::error_code error;
        const fs::path from = sources_ / folder;
        if (!fs::is_directory(from, error))
            return;
        Report nobody; // the build tells
        for (const fs::path& file : coursetool::listTree(from, sources_, nobody).files) {
            const auto size = fs::file_size(from / file, error);
            stamps[to / file] = {size, fs::last_write_time(from / file, error)};
        }
    };
    stamp(coursetool::kFilesFolder, {});
    stamp(coursetool::kDiscFolder, coursetool::kDiscFolder);
    return stamps;
}

/// A build leaves files that the sources do not have; here they would hide that a picture is gone.
void PreviewedCourse::removeVanished(const Stamps& now) {
    std::error_code ignored;
    if (files_)
        for (const auto& [file, stamp] : *files_)
            if (!now.contains(file))
                fs::remove(installation_ / file, ignored);
}

std::optional<coursetool::Place> PreviewedCourse::placeOf(std::int32_t page, int line) const {
    using namespace coursetool;
    Report nobody;
    for (const fs::path& file :
         sourcesIn(sources_ / kPagesFolder, sources_, kPageEnding, "", nobody)) {
        const auto source = readSource(file, nobody);
        const auto parts = source ? splitFrontMatter(*source, shown(file), nobody) : std::nullopt;
        if (!parts)
            continue;
        const Fields fields =
            readFields(parts->frontMatter, 2, shown(file), frontMatterFields(coursTable()), nobody);
        if (fields.values.front().integer() != page)
            continue;
        if (!isMarkdown(file))
            return Place{shown(file), parts->bodyLine + std::max(line, 1) - 1, 1};
        const auto compiled = compileMarkdownPage(file, compiler_, nobody);
        const bool known = compiled && compiled->text && line > 0;
        return Place{shown(file), known ? compiled->text->lineOf(line) : 1, 1};
    }
    return std::nullopt;
}

} // namespace preview
