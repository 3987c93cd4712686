// The search window's searches in one process, beside SQLite over the same texts in memory.
//   search_bench text FILE OUT       writes the page sources as UTF-8, for peers that read text
//   search_bench time FILE WORD...   medians in milliseconds

#include "jet/database_file.h"
#include "search/page_search.h"
#include "search/searchable_pages.h"
#include "text/utf8.h"

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr int kRuns = 7;

double medianOf(
    const std::function<void()>& work, const std::function<void()>& before = [] {}) {
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
        before();
        const auto start = Clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::ranges::sort(times);
    return times[kRuns / 2];
}

struct Page {
    std::string title;
    std::string source;
};

/// What is searched: all pages but the first.
std::vector<Page> pagesOf(const char* file) {
    std::vector<Page> pages;
    auto table = jet::openDatabase(file)->table(u"cours");
    const std::size_t titre = *table->columnIndex(u"titre");
    const std::size_t fpc = *table->columnIndex(u"fpc");
    table->visit(
        [&](jet::RecordView& record) {
            const auto text = [&](std::size_t column) {
                return text::toUtf8(*record.value(column)->text());
            };
            pages.push_back({text(titre), text(fpc)});
            return true;
        },
        1);
    return pages;
}

std::size_t search(search::SearchablePages& pages, const search::Query& query) {
    search::PageSearch search(pages, query);
    while (search.advance()) {
    }
    return search.found().size();
}

/// The peer's table, filled, and its search prepared.
class Sqlite {
public:
    Sqlite(const char* file, std::span<char* const> words) {
        sqlite3_open(":memory:", &database_);
        run("CREATE TABLE cours (number INTEGER, titre TEXT, fpc TEXT); BEGIN");
        sqlite3_stmt* insert = prepared("INSERT INTO cours VALUES (?, ?, ?)");
        int number = 1;
        for (const Page& page : pagesOf(file)) {
            sqlite3_bind_int(insert, 1, ++number);
            sqlite3_bind_text(insert, 2, page.title.data(), static_cast<int>(page.title.size()),
                              SQLITE_TRANSIENT);
            sqlite3_bind_text(insert, 3, page.source.data(), static_cast<int>(page.source.size()),
                              SQLITE_TRANSIENT);
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(insert);
        run("COMMIT");
        std::string sql = "SELECT number, titre FROM cours WHERE 0";
        for (const char* word : words)
            sql += std::string(" OR fpc LIKE '%") + word + "%'";
        select_ = prepared(sql);
    }
    ~Sqlite() {
        sqlite3_finalize(select_);
        sqlite3_close(database_);
    }
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;

    std::size_t search() {
        std::vector<std::string> titles;
        while (sqlite3_step(select_) == SQLITE_ROW)
            titles.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(select_, 1)));
        sqlite3_reset(select_);
        return titles.size();
    }

private:
    void run(const char* sql) { sqlite3_exec(database_, sql, nullptr, nullptr, nullptr); }
    sqlite3_stmt* prepared(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr);
        return statement;
    }

    sqlite3* database_ = nullptr;
    sqlite3_stmt* select_ = nullptr;
};

int writeText(const char* file, const char* to) {
    std::ofstream out(to, std::ios::binary);
    for (const Page& page : pagesOf(file))
        out << page.source;
    return out.flush() ? 0 : 1;
}

int timeSearches(const char* file, std::span<char* const> words) {
    std::string typed;
    for (const char* word : words)
        typed += std::string(word) + ' ';
    search::Query query{search::queryWords(text::toUtf16(typed))};
    std::size_t hits = 0;
    // As a window opens and its first search runs; its closing is not part of that.
    std::optional<search::SearchablePages> pages;
    const auto openAndSearch = [&] {
        pages.emplace(*search::SearchablePages::open(*jet::openDatabase(file)));
        hits = search(*pages, query);
    };
    const auto close = [&] { pages.reset(); };
    query.ignoreAccents = true;
    const double firstPlain = medianOf(openAndSearch, close);
    query.ignoreAccents = false;
    const double first = medianOf(openAndSearch, close);
    const double further = medianOf([&] { search(*pages, query); });
    query.ignoreAccents = true;
    search(*pages, query);
    const double furtherPlain = medianOf([&] { search(*pages, query); });
    Sqlite peer(file, words);
    const std::size_t peerHits = peer.search();
    const double like = medianOf([&] { peer.search(); });
    std::printf("%zu %zu %.3f %.3f %.3f %.3f %.3f\n", hits, peerHits, first, further, firstPlain,
                furtherPlain, like);
    return hits == peerHits ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const std::string what = argc > 3 ? argv[1] : "";
    if (what == "text")
        return writeText(argv[2], argv[3]);
    if (what == "time")
        return timeSearches(argv[2], std::span(argv, static_cast<std::size_t>(argc)).subspan(3));
    return 2;
}
