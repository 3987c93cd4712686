#include "coursetool/search.h"

#include "coursetool/dump.h"
#include "coursetool/file_list.h"
#include "coursetool/paths.h"
#include "coursetool/tables.h"
#include "files/within.h"
#include "jet/database_file.h"
#include "search/course_pages.h"
#include "search/page_search.h"
#include "text/utf8.h"

#include <optional>

namespace coursetool {

namespace {

namespace fs = std::filesystem;

/// The course database, its name taken in any letter case.
std::optional<fs::path> courseDatabase(const fs::path& course, Report& report) {
    NameTable files;
    for (const fs::directory_entry& entry : entriesOf(course, report)) {
        if (files::isFileWithin(entry.path(), course))
            files.add(entry.path().filename());
    }
    if (const auto name = files.find(kCourseFile))
        return course / *name;
    report.fault({shown(course)}, "aucun cours ici : Zekx.mdb manque");
    return std::nullopt;
}

void appendLine(const search::FoundPage& page, std::string& out) {
    std::string title = text::toUtf8(page.title);
    for (char& c : title)
        if (c == '\t' || c == '\r' || c == '\n')
            c = ' ';
    out += std::to_string(page.number) + '\t' + text::plainLine(title) + '\n';
}

} // namespace

void searchPages(const SearchRequest& request, OutputBuffer& out, Report& report) {
    const auto file = courseDatabase(request.course, report);
    if (!file)
        return;
    const auto database = jet::openDatabase(*file);
    if (!database) {
        report.fault({shown(*file)}, database.error().sentence);
        return;
    }
    auto pages = search::CoursePages::open(*database, 0);
    if (!pages) {
        report.fault({shown(*file)}, pages.error().sentence);
        return;
    }
    const search::Query query{search::queryWords(text::toUtf16(request.words)), request.allWords,
                              request.ignoreAccents};
    if (query.words.empty())
        report.warning({shown(*file)},
                       "rien à chercher : il faut au moins deux caractères en plus des signes");
    search::PageSearch search(*pages, query);
    while (search.advance()) {
    }
    for (const search::FoundPage& page : search.found()) {
        appendLine(page, out.text());
        out.lineDone();
    }
    if (!out.flush())
        report.outputFailure(out.error());
    reportProblems(pages->problems(), *file, report);
}

} // namespace coursetool
