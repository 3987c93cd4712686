// The search through the pages of a course, whose database the browser has in memory.

#include "browser/exchange.h"
#include "search/page_search.h"
#include "search/searchable_pages.h"
#include "text/utf8.h"

#include <memory>
#include <optional>

namespace {

std::optional<search::SearchablePages> pages;

} // namespace

/// Opens the database that stands in the buffer; gives why it could not, nothing when it could.
ORVALENTE_EXPORTED(searchOpen) std::size_t searchOpen(std::size_t bytes) {
    const std::span<const std::uint8_t> taken = browser::takenBytes(bytes);
    const auto database = jet::Database::open(
        std::make_unique<jet::MemorySource>(std::vector<std::uint8_t>(taken.begin(), taken.end())),
        "cours");
    if (!database)
        return browser::give(text::toUtf16(database.error().sentence));
    auto opened = search::SearchablePages::open(*database);
    if (!opened)
        return browser::give(text::toUtf16(opened.error().sentence));
    pages.emplace(*std::move(opened));
    return browser::give({});
}

/// Searches for what was typed; gives a record for each page found: number, title, and 1 when the
/// words stand in directives only. Nothing when there is nothing to search: "0", otherwise "1",
/// comes first as a record of its own.
ORVALENTE_EXPORTED(searchFor)
std::size_t searchFor(std::size_t units, int allWords, int ignoreAccents) {
    const search::Query query{search::queryWords(browser::takenText(units)), allWords != 0,
                              ignoreAccents != 0};
    std::u16string found = query.words.empty() ? u"0" : u"1";
    found += browser::kRecordEnd;
    if (pages) {
        search::PageSearch search(*pages, query);
        while (search.advance()) {
        }
        for (const search::FoundPage& page : search.found()) {
            found.append(browser::decimal(page.number)).append(1, browser::kFieldEnd);
            found.append(page.title).append(1, browser::kFieldEnd);
            found.append(page.hidden ? u"1" : u"0").append(1, browser::kRecordEnd);
        }
    }
    return browser::give(found);
}
