// Pages that edits take: never one that something still names, but those that killed edits lost.

#include "jet/byte_writer.h"
#include "jet/changing.h"
#include "jet/files.h"
#include "jet/format.h"
#include "jet/writing.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kPage = 4096;

std::u16string text(std::size_t length, char16_t letter) {
    return std::u16string(length, letter);
}

class EditedPages : public testing::Test {
protected:
    EditedPages() {
        NewTable table{u"T",
                       {{.name = u"n", .type = jet::ColumnType::Long},
                        {.name = u"nom", .type = jet::ColumnType::Text, .length = 255},
                        {.name = u"memo", .type = jet::ColumnType::Memo}},
                       {}};
        for (int i = 0; i < 3; ++i)
            table.rows.push_back({i, u"nom", u"court"});
        for (int i = 0; i < 60; ++i) // the page is full: a longer name makes its row move
            table.rows.push_back({100 + i, text(20, u'é'), u"mémo"});
        writeDatabase(path_, {table, {u"U", table.columns, {{1, u"x", u"court"}}}});
    }

    /// Dies after so many pages; false when it came to its end.
    bool dies(std::size_t writes, std::size_t position, const jet::CellChange& cell) {
        std::size_t done = 0;
        auto editor =
            jet::DatabaseEditor::open(path_, std::make_unique<CutSink>(path_, writes, done));
        (void)editor->change(u"T", position, {&cell, 1});
        return done == writes;
    }
    void change(const char16_t* table, std::size_t position, const std::u16string& memo) {
        std::size_t done = 0;
        auto editor =
            jet::DatabaseEditor::open(path_, std::make_unique<CutSink>(path_, kUncut, done));
        const auto changed = editor->changeText(table, position, u"memo", memo);
        ASSERT_TRUE(changed) << changed.error().sentence;
    }
    std::string memo(const char16_t* table, std::size_t position) {
        return snapshot(path_).at({table, position}).at(2);
    }
    std::size_t pages() const { return std::filesystem::file_size(path_) / kPage; }

    ScratchFolder scratch_;
    std::filesystem::path path_ = scratch_ / "t.mdb";
};

/// Each kill is followed by an edit that comes to its end, as somebody types the text again.
TEST_F(EditedPages, ofKilledEditsAreUsedAgain) {
    const auto killEverywhere = [&](char16_t letter) {
        for (const auto& [column, length] : {std::pair(u"memo", 12000u), std::pair(u"nom", 250u)})
            for (std::size_t writes = 0;
                 dies(writes, 5, {column, jet::Value(text(length, letter))}); ++writes) {
                expectSoundMaps(path_);
                ASSERT_LT(writes, 60u) << "each kill makes the next edit longer";
                ASSERT_FALSE(dies(kUncut, 5, {column, jet::Value(text(20, letter))}));
                expectSoundMaps(path_);
            }
    };
    killEverywhere(u'a');
    const std::size_t enough = pages();
    for (const char16_t letter : {u'b', u'c', u'd'})
        killEverywhere(letter);
    EXPECT_LE(pages(), enough + 1);
    EXPECT_EQ(memo(u"T", 6), "mémo");
}

TEST_F(EditedPages, fillNoChainThatLeadsPastTheEnd) {
    change(u"T", 0, text(9000, u'a'));
    std::filesystem::resize_file(path_, (pages() - 2) * kPage);
    ASSERT_EQ(memo(u"T", 0), "damaged");
    // Of the same form, so that it would pass for the lost one; from another table as well.
    change(u"U", 0, text(9000, u'b'));
    change(u"T", 1, text(9000, u'c'));
    EXPECT_EQ(memo(u"T", 0), "damaged");
    EXPECT_EQ(memo(u"U", 0), std::string(9000, 'b'));
    EXPECT_EQ(memo(u"T", 1), std::string(9000, 'c'));
}

TEST_F(EditedPages, fillNoChainThatLeadsToEmptiedOnes) {
    change(u"T", 0, text(9000, u'a'));
    const FileBytes before = readBytes(path_);
    change(u"T", 0, u"court");
    // The table's page is as it was, the others were emptied since.
    FileBytes bytes = readBytes(path_);
    for (std::size_t at = 0; at < bytes.size(); at += kPage)
        if (bytes[at] == 1 && jet::Bytes(bytes).u32(at + 4) != jet::kLongValueOwner &&
            jet::Bytes(bytes).u32(at + 4) > 1)
            std::copy_n(before.begin() + static_cast<std::ptrdiff_t>(at), kPage,
                        bytes.begin() + static_cast<std::ptrdiff_t>(at));
    writeBytes(path_, bytes);
    ASSERT_EQ(memo(u"T", 0), "damaged");
    change(u"U", 0, text(9000, u'b'));
    change(u"T", 1, text(9000, u'c'));
    EXPECT_EQ(memo(u"T", 0), "damaged");
    EXPECT_EQ(memo(u"T", 1), std::string(9000, 'c'));
}

} // namespace
