#include "jet/byte_writer.h"
#include "jet/changing.h"
#include "jet/database_file.h"
#include "jet/files.h"
#include "jet/format.h"
#include "jet/writing.h"
#include "text/utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <tuple>

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

    /// Changes cells with only so many pages written; gives their number.
    std::size_t cutChange(std::size_t writes, std::size_t position, const jet::CellChange& cell) {
        std::size_t done = 0;
        auto editor = DatabaseEditor::open(path_, std::make_unique<CutSink>(path_, writes, done));
        (void)editor->change(u"T", position, {&cell, 1});
        return done;
    }

    jet::Result<void> change(const std::u16string& table, std::size_t position,
                             const std::vector<jet::CellChange>& cells) {
        std::size_t done = 0;
        return DatabaseEditor::open(path_, std::make_unique<CutSink>(path_, kUncut, done))
            ->change(table, position, cells);
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
        const std::size_t writes = cutChange(kUncut, position, cell);
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
    EXPECT_THAT(shown("mdb-json"), HasSubstr(text::toUtf8(text(12000))));
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

/// Pages beyond those a map in a row has bits for: the maps must name bitmap pages from then on.
TEST_F(CutEditor, survivesTheMapsOutgrowingTheirRow) {
    constexpr std::uint32_t kPagesOfARow = 512;
    NewTable table = memoTable();
    create({table});
    // Pages that are free but were never emptied are not trusted, so the file grows behind them.
    std::filesystem::resize_file(path_, (kPagesOfARow - 2) * 4096);
    const auto isByReference = [&](jet::RowPointer map) {
        const auto source = *jet::openPages(path_);
        return source->page(map.page)->bytes.u8(4096 - 69) == 1; // all map rows have 69 bytes
    };
    EXPECT_FALSE(isByReference(jet::kGlobalMap));
    ASSERT_NO_FATAL_FAILURE(expectWholeAtEachCut(3, {u"memo", text(9000)}));
    EXPECT_TRUE(isByReference(jet::kGlobalMap));
    ASSERT_NO_FATAL_FAILURE(expectWholeAtEachCut(3, {u"memo", u"court"}));
    table.rows[3][2] = u"court";
    expectChanged(path_, table);
}

/// A full disk is told, and leaves the file as it was to the last byte.
TEST_F(Editor, takesBackWhatAFullDiskCutShort) {
    create({memoTable()});
    const FileBytes before = readBytes(path_);
    for (std::size_t failing = 0; failing < 9; ++failing) {
        std::size_t done = 0;
        auto editor = DatabaseEditor::open(
            path_, std::make_unique<CutSink>(path_, failing, done, CutSink::Then::Works));
        const auto changed = editor->changeText(u"T", 3, u"memo", text(12000));
        ASSERT_FALSE(changed) << failing;
        EXPECT_EQ(changed.error().sentence, "coupé");
        ASSERT_EQ(readBytes(path_), before) << failing;
    }
}

/// The system itself refuses to let the file grow.
TEST_F(Editor, leavesTheFileWhenItCannotGrow) {
    create({memoTable()});
    const FileBytes before = readBytes(path_);
    rlimit unlimited{};
    getrlimit(RLIMIT_FSIZE, &unlimited);
    const rlimit limited{before.size() + 2 * 4096 + 100, unlimited.rlim_max};
    const auto ignored = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limited);
    const auto changed = DatabaseEditor::open(path_)->changeText(u"T", 3, u"memo", text(12000));
    setrlimit(RLIMIT_FSIZE, &unlimited);
    signal(SIGXFSZ, ignored);
    ASSERT_FALSE(changed);
    EXPECT_EQ(changed.error().kind, jet::Failure::Kind::System);
    EXPECT_THAT(changed.error().sentence, HasSubstr("« t.mdb » : l’écriture a échoué"));
    EXPECT_EQ(readBytes(path_), before);
}

TEST_F(Editor, saysWhenTheFileCannotBeWritten) {
    const auto expectFailure = [&](const char* words) {
        const auto editor = DatabaseEditor::open(path_);
        ASSERT_FALSE(editor);
        EXPECT_EQ(editor.error().kind, jet::Failure::Kind::System);
        EXPECT_THAT(editor.error().sentence, HasSubstr(words));
    };
    expectFailure("ne peut pas être ouvert");
    create({memoTable()});
    {
        const auto first = DatabaseEditor::open(path_);
        ASSERT_TRUE(first);
        expectFailure("un autre programme");
    }
    writeBytes(scratch_ / "t.ldb", {});
    expectFailure(".ldb");
    std::filesystem::remove(scratch_ / "t.ldb");

    using std::filesystem::perms;
    permissions(path_, perms{0444});
    permissions(scratch_.path(), perms{0755});
    const uid_t user = geteuid();
    ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0); // root may write anything
    expectFailure("ne peut pas être modifié");
    EXPECT_EQ(readTable(path_, u"T"), memoTable().rows);
    ASSERT_EQ(seteuid(user), 0);
}

TEST_F(Editor, refusesWhatItCannotChange) {
    create({memoTable(), everyType()});
    const FileBytes before = readBytes(path_);
    using Kind = jet::Failure::Kind;
    struct Case {
        const char16_t* table;
        std::size_t position;
        std::vector<jet::CellChange> cells;
        Kind kind;
        const char* words;
    };
    const std::vector<Case> cases{
        {u"absente", 0, {{u"memo", u""}}, Kind::NotFound, "pas de table « absente »"},
        {u"T", 12, {{u"memo", u""}}, Kind::NotFound, "table « T » : pas d’enregistrement 12"},
        {u"T", 0, {{u"mémo", u""}}, Kind::NotFound, "pas de colonne « mémo »"},
        {u"T", 0, {{u"memo", u"a"}, {u"Memo", u"b"}}, Kind::Refused, "donnée deux fois"},
        {u"T", 0, {{u"memo", 7}}, Kind::Refused, "n’est pas du type"},
        {u"T", 0, {{u"memo", u"neuf"}, {u"nom", Value(text(256))}}, Kind::Refused, "plus longue"},
        {u"Every type_1", 0, {{u"Long", 8}}, Kind::Refused, "se numérote"}};
    for (const Case& refused : cases) {
        const auto changed = change(refused.table, refused.position, refused.cells);
        ASSERT_FALSE(changed) << refused.words;
        EXPECT_EQ(changed.error().kind, refused.kind) << refused.words;
        EXPECT_THAT(changed.error().sentence, HasSubstr(refused.words));
    }
    EXPECT_EQ(readBytes(path_), before);
}

// Files that were altered before the change. Pages as they are created: the table's rows.
constexpr std::size_t kRows = 18 * 4096;

std::size_t rowStart(const FileBytes& file, std::size_t row) {
    return kRows + (jet::Bytes(file).u16(kRows + 14 + 2 * row) & 0x1FFFu);
}

/// As in rows older than the column.
TEST_F(Editor, teachesARowItsTablesNewerColumns) {
    NewTable table{u"T",
                   {{.name = u"n", .type = ColumnType::Long},
                    {.name = u"nom", .type = ColumnType::Text, .length = 255},
                    {.name = u"réel", .type = ColumnType::Double},
                    {.name = u"oui", .type = ColumnType::Boolean},
                    {.name = u"memo", .type = ColumnType::Memo}},
                   {{1, u"un", 1.5, true, u"court"}, {2, u"deux", 2.5, true, u"long"}}};
    create({table});
    FileBytes bytes = readBytes(path_);
    // Of the second row, 2 columns and 1 variable value are left: n, nom.
    const FileBytes old{2, 0, 2, 0, 0, 0, 'd', 0, 'x', 0, 10, 0, 6, 0, 1, 0, 0xFF};
    const std::size_t start = kRows + jet::Bytes(bytes).u16(kRows + 14) - old.size();
    jet::putBytes(bytes, start, old);
    jet::put16(bytes, kRows + 16, start - kRows);
    writeBytes(path_, bytes);
    table.rows[1] = {2, u"dx", {}, false, {}};
    ASSERT_EQ(readTable(path_, u"T"), table.rows);
    for (const auto& [name, column, value] :
         std::vector<std::tuple<const char16_t*, std::size_t, Value>>{
             {u"memo", 4, u"neuf"}, {u"réel", 2, 7.25}, {u"oui", 3, true}}) {
        ASSERT_TRUE(change(u"T", 1, {{name, value}}));
        table.rows[1][column] = value;
        ASSERT_EQ(readTable(path_, u"T"), table.rows);
    }
}

/// In a damaged file another row's memo may lie on the very pages that a change leaves.
TEST_F(Editor, freesNoPageThatAnotherRowNames) {
    NewTable table = memoTable();
    create({table});
    FileBytes bytes = readBytes(path_);
    const auto headerOf = [&](std::size_t row) { // behind number and name
        return rowStart(bytes, row) + 2 + 4 + std::u16string_view(u"nom").size() + 2;
    };
    const FileBytes header(&bytes[headerOf(11)], &bytes[headerOf(11)] + 12);
    ASSERT_EQ(jet::Bytes(header).u32(0), 24000u);
    jet::putBytes(bytes, headerOf(10), header);
    writeBytes(path_, bytes);
    table.rows[10][2] = table.rows[11][2];
    ASSERT_EQ(readTable(path_, u"T"), table.rows);
    for (const char16_t* memo : {u"court", u""}) {
        ASSERT_TRUE(change(u"T", 11, {{u"memo", memo}}));
        table.rows[11][2] = memo;
        ASSERT_TRUE(change(u"T", 2, {{u"memo", text(9000)}}));
        table.rows[2][2] = text(9000);
        ASSERT_EQ(readTable(path_, u"T"), table.rows);
    }
}

} // namespace
