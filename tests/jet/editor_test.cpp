#include "jet/changing.h"
#include "jet/cipher.h"
#include "jet/csv_dump.h"
#include "jet/files.h"
#include "jet/format.h"
#include "jet/unicode.h"
#include "jet/writing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

using jet::ColumnType;
using jet::DatabaseEditor;
using jet::Value;
using testing::HasSubstr;

namespace {

std::u16string text(std::size_t length, char16_t first = u'a') {
    std::u16string all(length, first);
    for (std::size_t i = 0; i < length; ++i)
        all[i] = static_cast<char16_t>(first + i % 23);
    return all;
}

/// Every way a memo can be stored, at the lengths where one changes into the next.
const std::vector<Value> kMemos{{},         u"",        u"é",       text(62),
                                text(63),   text(1000), text(1024), text(2038),
                                text(2039), text(4072), text(4073), text(12000)};

/// Rows around the one that is changed have a memo of each storage themselves.
NewTable memoTable() {
    NewTable table{u"T",
                   {{.name = u"n", .type = ColumnType::Long},
                    {.name = u"nom", .type = ColumnType::Text, .length = 255},
                    {.name = u"memo", .type = ColumnType::Memo},
                    {.name = u"oui", .type = ColumnType::Boolean},
                    {.name = u"image", .type = ColumnType::Ole}},
                   {}};
    for (int i = 0; i < 12; ++i)
        table.rows.push_back({i, u"nom", kMemos[static_cast<std::size_t>(i)], i % 2 == 0,
                              jet::Binary(static_cast<std::size_t>(i) * 100, 7)});
    return table;
}

void expectChanged(const std::filesystem::path& path, const NewTable& expected) {
    EXPECT_EQ(readTable(path, expected.name), expected.rows);
    expectSoundMaps(path);
}

class Editor : public testing::Test {
protected:
    void create(const std::vector<NewTable>& tables) { writeDatabase(path_, tables); }

    jet::Result<void> change(const std::u16string& table, std::size_t position,
                             const std::vector<jet::CellChange>& cells) {
        auto editor = DatabaseEditor::open(path_);
        if (!editor)
            return editor.error();
        return editor->change(table, position, cells);
    }

    /// The same with only so many pages written; gives their number.
    std::size_t cutChange(std::size_t writes, std::size_t position, const jet::CellChange& cell) {
        std::size_t done = 0;
        auto editor = DatabaseEditor::open(path_, std::make_unique<CutSink>(path_, writes, done));
        (void)editor->change(u"T", position, {&cell, 1});
        return done;
    }

    std::string shown(const char* program) const {
        return run(std::string(program) + " '" + path_.string() + "' T 2>&1").output;
    }

    ScratchFolder scratch_;
    std::filesystem::path path_ = scratch_ / "t.mdb";
};

TEST_F(Editor, changesAMemoFromEveryStorageToEveryOther) {
    NewTable table = memoTable();
    create({table});
    // Each change begins where the one before ended, so that all pairs occur.
    for (const Value& from : kMemos)
        for (const Value& to : kMemos)
            for (const Value& memo : {from, to}) {
                ASSERT_TRUE(change(u"t", 5, {{u"MEMO", memo}}));
                table.rows[5][2] = memo;
                ASSERT_EQ(readTable(path_, u"T"), table.rows);
            }
    expectChanged(path_, table);
    // What it took is given back: the longest memo takes six pages, an old one may lie beside it.
    EXPECT_LE(readBytes(path_).size(), 50u * 4096);
}

TEST_F(Editor, changesSeveralCellsAtOnce) {
    NewTable table = everyType();
    create({table});
    const NewTable fresh = everyType();
    for (const std::size_t from : {0u, 1u, 2u, 0u})
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            std::vector<jet::CellChange> cells;
            for (std::size_t i = 0; i < table.columns.size(); ++i)
                if (!table.columns[i].autoNumber) {
                    cells.push_back({table.columns[i].name, fresh.rows[from][i]});
                    table.rows[row][i] = fresh.rows[from][i];
                }
            const auto changed = change(table.name, row, cells);
            ASSERT_TRUE(changed) << changed.error().sentence;
            expectChanged(path_, table);
        }
}

/// The file after each single write: the row is as it was or as it is to become, all others are
/// untouched, no page belongs to two; and the next change goes through.
class CutEditor : public Editor {
protected:
    void expectWholeAtEachCut(std::size_t position, const jet::CellChange& cell) {
        const FileBytes before = readBytes(path_);
        const Snapshot old = snapshot(path_);
        const std::string oldShown = shown("mdb-export");
        const std::size_t writes = cutChange(1000, position, cell);
        const Snapshot changed = snapshot(path_);
        const std::string newShown = shown("mdb-export");
        const FileBytes after = readBytes(path_);
        ASSERT_NE(old, changed);
        bool isChanged = false;
        for (std::size_t i = 0; i <= writes; ++i) {
            writeBytes(path_, before);
            ASSERT_EQ(cutChange(i, position, cell), i);
            const Snapshot cut = snapshot(path_);
            isChanged = isChanged || cut == changed; // once it is, it stays so
            ASSERT_EQ(cut, isChanged ? changed : old) << i << " writes of " << writes;
            expectSoundMaps(path_);
            if (!mayShowTwice_) {
                ASSERT_EQ(shown("mdb-export"), isChanged ? newShown : oldShown) << i << " writes";
            }
            ASSERT_TRUE(change(u"T", position, {cell}));
            ASSERT_EQ(snapshot(path_), changed);
            expectSoundMaps(path_);
            EXPECT_EQ(shown("mdb-export"), newShown);
        }
        EXPECT_TRUE(isChanged);
        writeBytes(path_, after);
    }

    bool mayShowTwice_ = false;
};

TEST_F(CutEditor, leavesTheOldMemoOrTheNew) {
    create({memoTable()});
    for (const std::size_t from : {0u, 1u, 3u, 5u, 11u})
        for (const std::size_t to : {0u, 1u, 4u, 7u, 11u}) {
            if (from == to)
                continue;
            ASSERT_TRUE(change(u"T", 3, {{u"memo", kMemos[from]}}));
            ASSERT_NO_FATAL_FAILURE(expectWholeAtEachCut(3, {u"memo", kMemos[to]}))
                << from << " to " << to;
        }
    EXPECT_THAT(shown("mdb-json"), HasSubstr(jet::toUtf8(text(12000))));
}

/// Rows fill their page: a longer name makes its row move, later from there to elsewhere and, once
/// it is short again, the room is of use.
TEST_F(CutEditor, leavesTheOldRowOrTheMovedOne) {
    NewTable table = memoTable();
    for (int i = 0; i < 200; ++i)
        table.rows.push_back({100 + i, u"court", u"mémo", true, {}});
    create({table});
    mayShowTwice_ = true; // that reader takes a moved row where it lies, without its pointer
    for (const std::size_t length : {200u, 255u, 3u}) {
        const std::u16string name(length, u'Ω');
        ASSERT_NO_FATAL_FAILURE(expectWholeAtEachCut(50, {u"nom", Value(name)}));
        table.rows[50][1] = name;
    }
    expectChanged(path_, table);
}

/// More pages than a map in a row has bits: the maps must name bitmap pages from then on.
TEST_F(CutEditor, survivesTheMapsOutgrowingTheirRow) {
    NewTable table = memoTable();
    table.rows[6][2] = text(940000);
    create({table});
    ASSERT_LT(readBytes(path_).size(), 512u * 4096);
    ASSERT_TRUE(change(u"T", 3, {{u"memo", text(10000)}}));
    ASSERT_LT(readBytes(path_).size(), 512u * 4096);
    ASSERT_NO_FATAL_FAILURE(expectWholeAtEachCut(3, {u"memo", text(90000)}));
    EXPECT_GT(readBytes(path_).size(), 512u * 4096);
    ASSERT_TRUE(change(u"T", 3, {{u"memo", u"court"}}));
    ASSERT_TRUE(change(u"T", 4, {{u"memo", text(30000)}}));
    table.rows[3][2] = u"court";
    table.rows[4][2] = text(30000);
    expectChanged(path_, table);
}

/// A full disk is told, and leaves the file as it was to the last byte.
TEST_F(Editor, takesBackWhatAFullDiskCutShort) {
    class FullDisk : public jet::PageSink {
    public:
        FullDisk(const std::filesystem::path& path, std::size_t failing)
            : file_(std::move(*jet::PageFile::open(path))), left_(failing) {}
        jet::Result<void> write(std::uint32_t number, jet::Bytes page) override {
            if (left_-- == 0)
                return jet::Failure{jet::Failure::Kind::System, "disque plein"};
            return file_->write(number, page);
        }
        jet::Result<void> sync() override { return file_->sync(); }
        void cutBack() override { file_->cutBack(); }

    private:
        std::unique_ptr<jet::PageSink> file_;
        std::size_t left_;
    };
    create({memoTable()});
    const FileBytes before = readBytes(path_);
    for (std::size_t failing = 0; failing < 9; ++failing) {
        auto editor = DatabaseEditor::open(path_, std::make_unique<FullDisk>(path_, failing));
        const auto changed = editor->changeText(u"T", 3, u"memo", text(12000));
        ASSERT_FALSE(changed) << failing;
        EXPECT_EQ(changed.error().sentence, "disque plein");
        ASSERT_EQ(readBytes(path_), before) << failing;
    }
}

} // namespace
