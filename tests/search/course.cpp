#include "search/course.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace search {

namespace fs = std::filesystem;

Course::Course(const std::vector<Record>& records) {
    std::string name = (fs::temp_directory_path() / "orvalente-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary directory");
    directory_ = name;
    using jet::ColumnType;
    const jet::Column columns[] = {{u"Numeropage", ColumnType::Long},
                                   {u"titre", ColumnType::Text, 255},
                                   {u"moteur", ColumnType::Boolean},
                                   {u"fpc", ColumnType::Memo}};
    auto writer = jet::DatabaseWriter::create(file());
    auto table = writer->addTable(u"cours", columns);
    for (const Record& record : records) {
        const jet::Value values[] = {record.number, record.titre, record.moteur, record.fpc};
        const auto done = table->append(values);
        EXPECT_TRUE(done) << done.error().sentence;
    }
    EXPECT_TRUE(writer->finish());
}

Course::~Course() {
    std::error_code ignored;
    fs::remove_all(directory_, ignored);
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

std::vector<int> found(CoursePages& pages, const Query& query) {
    PageSearch search(pages, query);
    return positions(search);
}

} // namespace search
