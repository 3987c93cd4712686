#include "jet/byte_writer.h"
#include "jet/csv_dump.h"
#include "jet/database_file.h"
#include "jet/files.h"
#include "jet/writing.h"
#include "support/memory_database.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#endif

#include <algorithm>
#include <limits>
#include <memory>
#include <random>
#include <set>

namespace {

/// All that can be read of a file, and whether what could not be read was told.
struct Harvest {
    bool opened = false;
    std::multiset<std::string> rows; ///< table name and all cells
    std::size_t bytes = 0;           ///< of the cells' texts
    bool mute = false;               ///< a failure had no sentence
};

void harvestTable(const jet::Database& database, const jet::TableInfo& info, Harvest& harvest) {
    auto table = database.table(info.name);
    if (!table) {
        harvest.mute |= table.error().sentence.empty();
        return;
    }
    const std::string name = testing::PrintToString(info.name);
    const std::size_t columns = table->columns().size();
    table->visit([&](jet::RecordView& record) {
        std::string row = name;
        for (std::size_t i = 0; i < columns; ++i) {
            const auto value = record.value(i);
            harvest.mute |= !value && value.error().sentence.empty();
            row += '|' + (value ? dumpCell(*value).value_or("NULL") : "damaged");
        }
        harvest.bytes += row.size();
        harvest.rows.insert(row);
        return true;
    });
    EXPECT_EQ(static_cast<bool>(table->record(table->recordCount())), false);
}

Harvest harvest(FileBytes bytes) {
    Harvest harvest;
    const auto database = test_support::openInMemory(std::move(bytes));
    harvest.opened = static_cast<bool>(database);
    if (!database) {
        harvest.mute = database.error().sentence.empty();
        return harvest;
    }
    for (const jet::TableInfo& info : database->tables())
        harvestTable(*database, info, harvest);
    return harvest;
}

class Corruption : public testing::TestWithParam<const char*> {
protected:
    std::size_t pageSize() const { return sound_[0x14] == 0 ? 2048 : 4096; }
    /// What is left of the file when it ends after `length` bytes.
    FileBytes cut(std::size_t length) const {
        return FileBytes(sound_.begin(), sound_.begin() + static_cast<std::ptrdiff_t>(length));
    }

    FileBytes sound_ = readBytes(samplePath(GetParam()));
};

/// A file cut off anywhere gives what is still there, and nothing that was not.
TEST_P(Corruption, truncation) {
    const Harvest whole = harvest(sound_);
    ASSERT_TRUE(whole.opened);
    std::size_t shorter = 0;
    // At every length of the header, and around every end of a page: what is there of a page that
    // is not whole counts for nothing.
    std::set<std::size_t> lengths;
    for (std::size_t length = 0; length < 300; ++length)
        lengths.insert(length);
    for (std::size_t end = pageSize(); end <= sound_.size(); end += pageSize())
        lengths.insert({end - 1, end, std::min(end + 1, sound_.size())});
    lengths.erase(sound_.size());
    for (const std::size_t length : lengths) {
        const Harvest left = harvest(cut(length));
        EXPECT_FALSE(left.mute) << length;
        EXPECT_LE(left.rows.size(), whole.rows.size()) << length;
        shorter += left.rows.size() < whole.rows.size() ? 1 : 0;
        for (const std::string& row : left.rows)
            EXPECT_TRUE(row.find("damaged") != std::string::npos || whole.rows.contains(row))
                << length << ": " << row.substr(0, 200);
    }
    EXPECT_GT(shorter, 10u);
}

/// Bytes changed at random, most of them in the first bytes of pages and in their slots, where the
/// structure is: nothing may crash or hang, nor give out much more than the file holds.
TEST_P(Corruption, changedBytes) {
    constexpr int kFiles = 150;
    constexpr std::size_t kStructureBytes = 256;
    std::mt19937 random(20240229); // fixed, so that a failure can be looked at
    const std::size_t pageSize = this->pageSize();
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    int affected = 0;
    const Harvest whole = harvest(sound_);
    for (int file = 0; file < kFiles; ++file) {
        FileBytes bytes = sound_;
        for (std::size_t i = 0; i < 1 + static_cast<std::size_t>(file) % 40; ++i) {
            const std::size_t page = 1 + below(bytes.size() / pageSize - 1);
            const std::size_t at = below(3) != 0 ? below(kStructureBytes) : below(pageSize);
            bytes[page * pageSize + at] = static_cast<std::uint8_t>(below(256));
        }
        const Harvest left = harvest(bytes);
        EXPECT_FALSE(left.mute) << file;
        EXPECT_LE(left.bytes, 300 * bytes.size()) << file;
        affected += left.rows != whole.rows ? 1 : 0;
    }
    EXPECT_GT(affected, kFiles / 10) << "the changes did not reach what is read";
}

INSTANTIATE_TEST_SUITE_P(Samples, Corruption,
                         testing::Values("testV1997", "test2V1997", "test2V2000",
                                         "overflowTestV2000", "testUnicodeCompV2003"),
                         [](const auto& test) { return std::string(test.param); });

TEST(MemorySource, givesNothingBeyondItsBytes) {
    const jet::MemorySource source({1, 2, 3});
    constexpr std::uint64_t kFar = std::numeric_limits<std::uint64_t>::max();
    const struct {
        std::uint64_t offset;
        std::size_t count;
        bool given;
    } rows[] = {{0, 3, true},  {1, 2, true},  {3, 0, true},     {0, 4, false},
                {2, 2, false}, {3, 1, false}, {kFar, 1, false}, {kFar - 1, 3, false}};
    for (const auto& row : rows) {
        FileBytes bytes(row.count);
        EXPECT_EQ(source.read(row.offset, bytes), row.given) << row.offset << ", " << row.count;
        if (row.given && row.count > 0) {
            EXPECT_EQ(bytes.front(), row.offset + 1);
        }
    }
}

#ifdef __SANITIZE_ADDRESS__
// Without these the sanitizers see no fault of who reads on behind a page or a cell, or after
// giving it back.

TEST(Sanitized, pagesStandApart) {
    const auto pages = jet::PageSource::open(
        std::make_unique<jet::MemorySource>(readBytes(samplePath("test2V1997"))), "pages.mdb");
    ASSERT_TRUE(pages);
    for (std::uint32_t number = 1; number < 8; ++number) { // one after the other: in blocks
        auto page = (*pages)->page(number);
        ASSERT_TRUE(page);
        const std::uint8_t* const end = page->bytes.data() + page->bytes.size();
        EXPECT_FALSE(__asan_address_is_poisoned(end - 1)) << number;
        EXPECT_TRUE(__asan_address_is_poisoned(end)) << number;
        page.reset();
        EXPECT_TRUE(__asan_address_is_poisoned(end - 1)) << number;
    }
}

/// Looks behind the letters that it is given.
class LookingBehind : public jet::TextSink {
public:
    void unit(char16_t) override { isEnd = false; }
    void ascii(const std::uint8_t* bytes, std::size_t count) override {
        isEnd = __asan_address_is_poisoned(bytes + count) != 0;
    }
    void wide(jet::Bytes) override { isEnd = false; }
    bool isEnd = false; ///< whether nothing that may be read stands behind the last of them
};

TEST(Sanitized, cellsStandApart) {
    const auto database = jet::openDatabase(samplePath("test2V1997"));
    ASSERT_TRUE(database);
    auto table = database->table(u"MSP_PROJECTS");
    ASSERT_TRUE(table);
    std::size_t texts = 0;
    table->visit([&](jet::RecordView& record) {
        for (std::size_t column = 0; column < table->columns().size(); ++column) {
            LookingBehind sink;
            EXPECT_TRUE(record.readText(column, sink));
            texts += sink.isEnd ? 1 : 0;
        }
        return true;
    });
    EXPECT_GT(texts, 0u);
}
#endif

TEST(OpeningAFile, thatIsNoDatabase) {
    const ScratchFolder scratch;
    using Kind = jet::Failure::Kind;
    const auto absent = jet::openDatabase(scratch / "absent.mdb");
    EXPECT_EQ(absent.error().kind, Kind::System);
    EXPECT_EQ(absent.error().sentence.find("base de données « absent.mdb » : "), 0u);
    EXPECT_EQ(jet::openDatabase(scratch.path()).error().kind, Kind::System);
    writeBytes(scratch / "empty.mdb", {});
    EXPECT_EQ(jet::openDatabase(scratch / "empty.mdb").error().kind, Kind::NotADatabase);
    writeBytes(scratch / "text.mdb", FileBytes(5000, 'x'));
    EXPECT_EQ(jet::openDatabase(scratch / "text.mdb").error().kind, Kind::NotADatabase);
}

/// All the memos of a record lead to one chain of nearly the whole file.
TEST(DamagedRecords, giveOutNoMoreForOneRecordThanTheyHave) {
    const ScratchFolder scratch;
    NewTable table{u"T", {{.name = u"n", .type = jet::ColumnType::Long}}, {{1}}};
    for (int i = 0; i < 40; ++i) {
        table.columns.push_back(
            {.name = text::toUtf16("m" + std::to_string(i)), .type = jet::ColumnType::Memo});
        table.rows[0].push_back(std::u16string(i == 0 ? 400000 : 1500, u'c'));
    }
    writeDatabase(scratch / "t.mdb", {table});
    FileBytes bytes = readBytes(scratch / "t.mdb");
    // The headers stand one behind the other; the longest value's is the one that names a chain.
    FileBytes longest(8);
    jet::put32(longest, 0, 800000);
    const auto chain =
        std::search(bytes.begin(), bytes.end(), longest.begin(), longest.begin() + 4);
    ASSERT_NE(chain, bytes.end());
    std::copy_n(chain, 8, longest.begin());
    for (int i = 0; i < 40; ++i)
        std::copy_n(longest.begin(), 8, chain + 12 * i);
    auto database = test_support::openInMemory(bytes);
    auto read = database->table(u"T");
    std::size_t total = 0;
    std::size_t given = 0;
    read->visit([&](jet::RecordView& record) {
        for (std::size_t i = 1; i <= 40; ++i) {
            jet::Value memo;
            if (!record.read(i, memo))
                continue;
            ++given;
            total += 2 * memo.as<std::u16string>()->size();
        }
        return true;
    });
    EXPECT_GE(given, 1u);
    EXPECT_LT(given, 3u);
    EXPECT_LE(total, bytes.size());
}

} // namespace
