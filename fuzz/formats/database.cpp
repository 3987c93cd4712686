// A database in all ways in which it can be read.

#include "databases.h"
#include "formats/all.h"
#include "jet/named_pages.h"
#include "search/page_search.h"
#include "search/searchable_pages.h"

#include <memory>
#include <numeric>
#include <string>

namespace fuzz {

namespace {

/// Takes a text as it comes, and reads all of it.
class ReadingSink : public jet::TextSink {
public:
    void unit(char16_t unit) override { sum += unit; }
    void ascii(const std::uint8_t* bytes, std::size_t count) override {
        sum = std::accumulate(bytes, bytes + count, sum);
    }
    void wide(jet::Bytes units) override {
        for (std::size_t i = 0; i < units.size(); ++i)
            sum += units.u8(i);
    }
    std::size_t sum = 0;
};

void readRecord(jet::RecordView& record, std::size_t columns) {
    jet::Value value;
    for (std::size_t column = 0; column < columns; ++column) {
        record.isNull(column);
        if (const auto read = record.read(column, value); !read)
            requireWords(read.error());
        ReadingSink text;
        if (const auto read = record.readText(column, text); !read)
            requireWords(read.error());
    }
}

/// By position, at both ends and behind: what is there in a visit is there then too.
void readByPosition(jet::Table& table, std::size_t records) {
    require(table.recordCount() == records, "a visit shows every record");
    for (const std::size_t position : {std::size_t{0}, records / 2, records - 1}) {
        if (position >= records)
            continue;
        if (const auto record = table.record(position); !record)
            requireWords(record.error());
    }
    require(!table.record(records), "no record stands behind the last");
    require(!table.value(0, table.columns().size()), "no column stands behind the last");
}

void readTable(const jet::Database& database, const jet::TableInfo& info) {
    auto table = database.table(info.name);
    if (!table)
        return requireWords(table.error());
    const std::size_t columns = table->columns().size();
    std::size_t records = 0;
    table->visit([&](jet::RecordView& record) {
        require(record.position() == records++, "positions follow each other");
        readRecord(record, columns);
        return true;
    });
    readByPosition(*table, records);
    std::vector<std::size_t> all(columns);
    std::iota(all.begin(), all.end(), std::size_t{0});
    std::size_t scanned = 0;
    table->scan(all, [&](std::size_t, std::span<const jet::Value> cells) {
        require(cells.size() == columns, "a scan gives the cells asked for");
        ++scanned;
        return true;
    });
    require(scanned == records, "a scan shows every record");
}

void searchPages(const jet::Database& database) {
    auto pages = search::SearchablePages::open(database);
    if (!pages)
        return requireWords(pages.error());
    // The second goes through the copy that the first has made.
    for (const bool ignoreAccents : {false, true}) {
        search::PageSearch search(*pages,
                                  {search::queryWords(u"énergie de"), false, ignoreAccents});
        while (search.advance()) {
        }
        require(search.position() <= std::max(0, pages->lastPosition()),
                "a search stays within the pages");
    }
}

void readOne(Input input) {
    const auto bytes = bytesOf(input);
    const auto database =
        jet::Database::open(std::make_unique<jet::MemorySource>(bytes), "cours.mdb");
    if (!database)
        return requireWords(database.error());
    for (const jet::TableInfo& info : database->tables())
        readTable(*database, info);
    searchPages(*database);
    const auto pages =
        jet::PageSource::open(std::make_unique<jet::MemorySource>(bytes), "cours.mdb");
    require(static_cast<bool>(pages), "what opens as a database has pages");
    const jet::NamedPages named(**pages);
    for (const std::uint32_t page : named.lostPages())
        require(page < (*pages)->pageCount(), "a lost page is one of the file");
}

} // namespace

const Format kDatabase{"database",           readOne,      kDatabaseSeeds, kDatabaseWords,
                       std::size_t{4} << 20, kDatabasePage};

} // namespace fuzz
