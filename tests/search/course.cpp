#include "search/course.h"

#include "jet/writer.h"
#include "support/memory_database.h"

#include <gtest/gtest.h>

namespace search {

Course::Course(const std::vector<Record>& records, std::u16string_view tableName) {
    using jet::ColumnType;
    const jet::Column columns[] = {{u"Numeropage", ColumnType::Long},
                                   {u"titre", ColumnType::Text, 255},
                                   {u"moteur", ColumnType::Boolean},
                                   {u"fpc", ColumnType::Memo}};
    auto writer = jet::DatabaseWriter::create(std::make_unique<test_support::MemorySink>(bytes));
    auto table = writer.addTable(tableName, columns);
    for (const Record& record : records) {
        const jet::Value values[] = {record.number, record.titre, record.moteur, record.fpc};
        const auto done = table->append(values);
        EXPECT_TRUE(done) << done.error().sentence;
    }
    EXPECT_TRUE(writer.finish());
}

jet::Database Course::database() const {
    return *test_support::openInMemory(bytes);
}

std::vector<Record> withSources(const std::vector<std::u16string>& sources) {
    std::vector<Record> records;
    for (const std::u16string& source : sources)
        records.push_back({std::int32_t{0}, {}, true, source});
    return records;
}

std::vector<int> positions(PageSearch& search) {
    while (search.advance()) {
    }
    std::vector<int> all;
    for (const FoundPage& page : search.found())
        all.push_back(page.position);
    return all;
}

std::vector<int> found(SearchablePages& pages, const Query& query) {
    PageSearch search(pages, query);
    return positions(search);
}

} // namespace search
