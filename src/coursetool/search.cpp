#include "coursetool/search.h"

#include "coursetool/dump.h"
#include "coursetool/installed_course.h"
#include "coursetool/json_string.h"
#include "coursetool/paths.h"
#include "coursetool/tables.h"
#include "jet/database_file.h"
#include "search/page_search.h"
#include "search/searchable_pages.h"
#include "text/utf8.h"

namespace coursetool {

namespace {

void appendJson(const search::FoundPage& page, std::string& out) {
    out += "{\"Numeropage\":" + std::to_string(page.number) + ",\"titre\":";
    appendJsonString(text::toUtf8(page.title), out);
    out += "}\n";
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
    const auto file = findDatabase(request.course, kCourseFile, report);
    if (!file)
        return;
    const auto database = jet::openDatabase(*file);
    if (!database) {
        report.fault({shown(*file)}, database.error().sentence);
        return;
    }
    auto pages = search::SearchablePages::open(*database, 0);
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
        (request.json ? appendJson : appendLine)(page, out.text());
        out.lineDone();
    }
    if (!out.flush())
        report.outputFailure(out.error());
    reportProblems(pages->problems(), *file, report);
}

} // namespace coursetool
