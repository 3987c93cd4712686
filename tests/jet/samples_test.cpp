#include "jet/csv_dump.h"
#include "jet/database_file.h"
#include "jet/files.h"
#include "jet/utf16_text.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string>

namespace {

const std::filesystem::path kSamples = JET_SAMPLES;

struct Sample {
    const char* name;
    jet::Engine engine;
    std::size_t tables;
};

constexpr Sample kFiles[] = {{"testV1997", jet::Engine::Jet3, 4},
                             {"test2V1997", jet::Engine::Jet3, 1},
                             {"testIndexCodesV1997", jet::Engine::Jet3, 29},
                             {"adox_jet4", jet::Engine::Jet4, 0},
                             {"overflowTestV2000", jet::Engine::Jet4, 1},
                             {"delTestV2000", jet::Engine::Jet4, 1},
                             {"delColTestV2000", jet::Engine::Jet4, 1},
                             {"test2V2000", jet::Engine::Jet4, 1},
                             {"fixedTextTestV2003", jet::Engine::Jet4, 1},
                             {"indexTestV2003", jet::Engine::Jet4, 3},
                             {"testUnicodeCompV2003", jet::Engine::Jet4, 1},
                             {"passwordV2000", jet::Engine::Jet4, 1}};

class SampleFile : public testing::TestWithParam<Sample> {
protected:
    void SetUp() override {
        auto opened = jet::openDatabase(kSamples / (std::string(GetParam().name) + ".mdb"));
        ASSERT_TRUE(opened) << opened.error().sentence;
        database_.emplace(std::move(*opened));
    }

    std::vector<DumpRow> expected(const jet::TableInfo& table) const {
        std::ifstream file(
            kSamples / (std::string(GetParam().name) + "." + text::toUtf8(table.name) + ".csv"),
            std::ios::binary);
        EXPECT_TRUE(file) << "no dump of table " << text::toUtf8(table.name);
        return parseDump(std::string(std::istreambuf_iterator<char>(file), {}));
    }

    std::optional<jet::Database> database_;
};

void expectSameRow(const DumpRow& expected, std::span<const jet::Value> values) {
    ASSERT_EQ(expected.size(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_TRUE(sameCell(expected[i], values[i]))
            << "column " << i << ": " << expected[i].value_or("NULL") << ", read "
            << dumpCell(values[i]).value_or("NULL");
}

TEST_P(SampleFile, listsItsUserTables) {
    EXPECT_EQ(database_->engine(), GetParam().engine);
    EXPECT_EQ(database_->tables().size(), GetParam().tables);
    EXPECT_TRUE(database_->problems().empty()) << database_->problems().sentences().at(0);
}

TEST_P(SampleFile, holdsTheExpectedRows) {
    for (const jet::TableInfo& info : database_->tables()) {
        SCOPED_TRACE(text::toUtf8(info.name));
        auto table = database_->table(info.name);
        ASSERT_TRUE(table) << table.error().sentence;
        const std::vector<DumpRow> dump = expected(info);
        ASSERT_FALSE(dump.empty());
        ASSERT_EQ(table->columns().size(), dump[0].size());
        for (std::size_t i = 0; i < dump[0].size(); ++i)
            EXPECT_EQ(text::toUtf8(table->columns()[i].name), dump[0][i]);
        ASSERT_EQ(table->recordCount(), dump.size() - 1);
        for (std::size_t i = 1; i < dump.size(); ++i) {
            SCOPED_TRACE("row " + std::to_string(i));
            const auto record = table->record(i - 1);
            ASSERT_TRUE(record) << record.error().sentence;
            expectSameRow(dump[i], *record);
        }
        EXPECT_TRUE(table->problems().empty()) << table->problems().sentences().at(0);
    }
}

/// The three ways through a table give the same values.
TEST_P(SampleFile, scansAndVisitsAsItReads) {
    for (const jet::TableInfo& info : database_->tables()) {
        auto table = database_->table(info.name);
        ASSERT_TRUE(table);
        std::vector<std::size_t> all(table->columns().size());
        std::iota(all.begin(), all.end(), std::size_t{0});
        std::vector<std::vector<jet::Value>> scanned;
        EXPECT_TRUE(table
                        ->scan(all,
                               [&](std::size_t position, std::span<const jet::Value> cells) {
                                   EXPECT_EQ(position, scanned.size());
                                   scanned.emplace_back(cells.begin(), cells.end());
                                   return true;
                               })
                        .empty());
        ASSERT_EQ(scanned.size(), table->recordCount());
        EXPECT_TRUE(table
                        ->visit([&](jet::RecordView& record) {
                            const auto& cells = scanned[record.position()];
                            for (std::size_t i = 0; i < cells.size(); ++i) {
                                EXPECT_EQ(*record.value(i), cells[i]);
                                jet::Value again = u"what was there before";
                                EXPECT_TRUE(record.read(i, again));
                                EXPECT_EQ(again, cells[i]);
                                Utf16Text stored;
                                EXPECT_EQ(*record.readText(i, stored), cells[i].text() != nullptr);
                                EXPECT_EQ(stored.text, cells[i].text() ? *cells[i].text() : u"");
                            }
                            return true;
                        })
                        .empty());
        for (std::size_t i = 0; i < scanned.size(); ++i) {
            EXPECT_EQ(*table->record(i), scanned[i]);
            // A visit of two records from here on.
            std::vector<std::size_t> visited;
            table->visit(
                [&](jet::RecordView& record) {
                    visited.push_back(record.position());
                    return visited.size() < 2;
                },
                i);
            EXPECT_EQ(visited, i + 1 < scanned.size() ? (std::vector{i, i + 1}) : std::vector{i});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleFile, testing::ValuesIn(kFiles),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(SampleFiles, ofAnotherCodePageSaySo) {
    const ScratchFolder scratch;
    FileBytes bytes = readBytes(samplePath("testV1997"));
    bytes[0x3C] ^= 1252 ^ 1251; // under the mask, a change stays a change
    writeBytes(scratch / "t.mdb", bytes);
    const auto database = jet::openDatabase(scratch / "t.mdb");
    ASSERT_TRUE(database);
    ASSERT_EQ(database->problems().count(), 1u);
    EXPECT_NE(database->problems().sentences()[0].find("1251"), std::string::npos);
}

TEST(SampleFiles, eachDumpBelongsToATable) {
    std::size_t dumps = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kSamples))
        dumps += entry.path().extension() == ".csv" ? 1 : 0;
    std::size_t tables = 0;
    for (const Sample& sample : kFiles)
        tables += sample.tables;
    EXPECT_EQ(dumps, tables);
}

} // namespace
