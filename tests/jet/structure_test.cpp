// What the readers at hand do not look at, but the engine does: indexes, the map of free pages, the
// counts of the definitions.

#include "jet/bytes.h"
#include "jet/files.h"
#include "jet/format.h"
#include "jet/index_builder.h"
#include "jet/writing.h"
#include "support/memory_database.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using jet::Bytes;
using jet::ColumnType;

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kTables = 500;

/// More tables than one index leaf holds, more pages than a map in a row has bits.
FileBytes manyTables() {
    const ScratchFolder scratch;
    std::vector<NewTable> tables;
    for (std::size_t i = 0; i < kTables; ++i)
        tables.push_back({text::toUtf16("Une table assez longue_" + std::to_string(i)),
                          {{.name = u"n", .type = ColumnType::Long}},
                          {{1}}});
    writeDatabase(scratch / "t.mdb", tables);
    return readBytes(scratch / "t.mdb");
}

class Structure : public testing::Test {
protected:
    Bytes page(std::uint32_t number) const { return Bytes(file_).part(number * kPage, kPage); }

    Bytes row(std::uint32_t pointer) const {
        const jet::RowPointer place(pointer);
        const Bytes from = page(place.page);
        const auto slot = [&](std::size_t i) { return from.u16(14 + 2 * i) & 0x1FFFu; };
        const std::size_t end = place.row == 0 ? kPage : slot(place.row - 1u);
        return from.part(slot(place.row), end - slot(place.row));
    }

    /// Entries of an index page; an entry ends at each byte that is marked.
    std::vector<std::string> entries(std::uint32_t number) const {
        const Bytes index = page(number);
        std::vector<std::string> found;
        std::size_t start = 0;
        for (std::size_t at = 1; at <= kPage - 0x1E0; ++at)
            if ((index.u8(27 + at / 8) >> (at % 8) & 1) != 0) {
                const std::uint8_t* from = index.data() + 0x1E0 + start;
                found.emplace_back(from, from + (at - start));
                start = at;
            }
        EXPECT_EQ(index.u16(2), kPage - 0x1E0 - start) << "free bytes of page " << number;
        return found;
    }

    static std::uint32_t bigEndianAtEnd(const std::string& entry) {
        std::uint32_t number = 0;
        for (const char byte : entry.substr(entry.size() - 4))
            number = number << 8 | static_cast<std::uint8_t>(byte);
        return number;
    }

    /// All entries of the leaves below, in order; checks what inner pages say of them.
    std::vector<std::string> leafEntries(std::uint32_t number, std::uint32_t definition) {
        EXPECT_EQ(page(number).u32(4), definition);
        if (page(number).u8(0) == 4) {
            leaves_.push_back(number);
            return entries(number);
        }
        EXPECT_EQ(page(number).u8(0), 3);
        std::vector<std::string> all;
        for (const std::string& entry : entries(number)) {
            const auto below = leafEntries(bigEndianAtEnd(entry), definition);
            EXPECT_EQ(below.back(), entry.substr(0, entry.size() - 4));
            all.insert(all.end(), below.begin(), below.end());
        }
        return all;
    }

    void expectTree(std::uint32_t root, std::uint32_t definition, std::size_t rows) {
        SCOPED_TRACE("index of page " + std::to_string(root));
        leaves_.clear();
        const auto all = leafEntries(root, definition);
        EXPECT_EQ(all.size(), rows);
        EXPECT_TRUE(std::is_sorted(all.begin(), all.end(), [](const auto& a, const auto& b) {
            return std::lexicographical_compare(
                a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
                    return static_cast<std::uint8_t>(x) < static_cast<std::uint8_t>(y);
                });
        }));
        EXPECT_GT(leaves_.size(), 1u) << "too few tables for this test";
        for (std::size_t i = 0; i < leaves_.size(); ++i) {
            EXPECT_EQ(page(leaves_[i]).u32(12), i == 0 ? 0 : leaves_[i - 1]);
            EXPECT_EQ(page(leaves_[i]).u32(16), i + 1 == leaves_.size() ? 0 : leaves_[i + 1]);
        }
    }

    const FileBytes file_ = manyTables();
    std::vector<std::uint32_t> leaves_;
};

TEST_F(Structure, indexesLeadToTheirRows) {
    expectTree(7, 2, 8 + kTables);
    expectTree(8, 2, 8 + kTables);
    expectTree(9, 3, 16 + 2 * kTables);
    for (const auto& [root, definition] : {std::pair(8u, 2u), std::pair(9u, 3u)})
        for (const std::string& entry : leafEntries(root, definition)) {
            std::uint32_t id = 0;
            for (std::size_t i = 1; i < 5; ++i)
                id = id << 8 | static_cast<std::uint8_t>(entry[i]);
            EXPECT_EQ(row(bigEndianAtEnd(entry)).u32(2), id ^ 0x80000000u);
        }
}

TEST_F(Structure, definitionsCountRowsAndKeys) {
    EXPECT_EQ(page(2).u32(16), 8 + kTables);
    EXPECT_EQ(page(2).u32(63 + 4), 8 + kTables);
    EXPECT_EQ(page(3).u32(16), 16 + 2 * kTables);
    EXPECT_EQ(page(3).u32(63 + 4), 8 + kTables) << "rights of one object share a key";
}

TEST_F(Structure, tablesBelongToTheAdministratorAndAllUsers) {
    constexpr std::size_t kTableObject = 0x0F000001;
    const Bytes object = row(14 << 8 | 8);
    EXPECT_EQ(object.u32(6), kTableObject) << "parent";
    EXPECT_EQ(object.u16(10), 1) << "type";
    EXPECT_EQ(object.u32(28), 0u) << "flags";
    for (const auto& [slot, user] : {std::pair(16u, 0x8B64), std::pair(17u, 0x8B65)}) {
        const Bytes right = row(15 << 8 | slot);
        EXPECT_EQ(right.u32(2), object.u32(2));
        EXPECT_EQ(right.u32(6), 0xFFEFFu);
        EXPECT_EQ(right.u16(10), user);
    }
}

TEST_F(Structure, freePagesAreThosePastTheEnd) {
    const std::size_t pages = file_.size() / kPage;
    ASSERT_GT(pages, 512u) << "too few pages for this test";
    const Bytes map = row(1 << 8);
    ASSERT_EQ(map.u8(0), 1);
    const Bytes bits = page(map.u32(1)).from(4);
    ASSERT_EQ(page(map.u32(1)).u8(0), 5);
    for (std::size_t i = 0; i < 8 * bits.size(); ++i)
        ASSERT_EQ(bits.u8(i / 8) >> (i % 8) & 1, i < pages ? 0 : 1) << i;
    EXPECT_EQ(map.u32(5), 0u);
}

/// 226 entries of 16 bytes leave no room on their page; one more needs two leaves and a root.
TEST(IndexPages, areFilledToTheLastByte) {
    for (const auto& [entries, pages] : {std::pair(225, 1u), {226, 1u}, {227, 3u}}) {
        FileBytes written;
        jet::OutputFile file(std::make_unique<test_support::MemorySink>(written));
        const std::uint32_t root = file.allocate();
        jet::IndexBuilder index;
        for (int i = 0; i < entries; ++i)
            index.add(jet::IndexKey().add(std::u16string_view(u"NEUF CARS")),
                      jet::RowPointer(static_cast<std::uint32_t>(i), 0));
        index.write(root, 2, file);
        EXPECT_EQ(file.pageCount(), pages) << entries;
        ASSERT_TRUE(file.putInPlace());
        const Bytes first = Bytes(written).part(0, kPage);
        EXPECT_EQ(first.u8(0), pages == 1 ? 4 : 3) << entries;
        if (pages == 1) {
            EXPECT_EQ(first.u16(2), 16u * static_cast<unsigned>(226 - entries));
        }
    }
}

/// A Memo that is NULL can be given a value later without moving its row.
TEST(PageRoom, staysForMemosThatAreNull) {
    const ScratchFolder scratch;
    NewTable table{u"T",
                   {{.name = u"n", .type = ColumnType::Long},
                    {.name = u"a", .type = ColumnType::Memo},
                    {.name = u"b", .type = ColumnType::Memo}},
                   {}};
    for (int i = 0; i < 1000; ++i)
        table.rows.push_back({i, i % 2 == 0 ? jet::Value(u"text") : jet::Value(), {}});
    writeDatabase(scratch / "t.mdb", {table});
    const FileBytes file = readBytes(scratch / "t.mdb");
    std::size_t position = 0;
    for (std::size_t at = 18 * kPage; at < file.size(); at += kPage) {
        std::size_t absent = 0;
        for (std::size_t i = 0; i < Bytes(file).u16(at + 12); ++i, ++position)
            absent += position % 2 == 0 ? 1 : 2;
        EXPECT_GE(Bytes(file).u16(at + 2), 12 * absent);
    }
    EXPECT_EQ(position, table.rows.size());
}

} // namespace
