#include "jet/cipher.h"
#include "jet/csv_dump.h"
#include "jet/editor.h"
#include "jet/files.h"
#include "jet/value_text.h"
#include "jet/writing.h"
#include "text/utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>

using jet::ColumnType;
using jet::Value;
using testing::HasSubstr;

namespace {

std::string without(std::string text, std::string_view dropped) {
    std::erase_if(text, [&](char c) { return dropped.find(c) != std::string_view::npos; });
    return text;
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

/// The bytes that hexadecimal digits stand for.
std::string fromHex(const std::string& digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    return bytes;
}

/// What both readers can show: their calendars begin where ours is still counting backwards.
NewTable everyTypeInTheirCalendar() {
    NewTable table = everyType();
    for (auto& row : table.rows)
        if (row[7].as<jet::DateTime>())
            row[7] = jet::DateTime{42329.75};
    return table;
}

/// Cells as a reader printed them, against the values written. `shown` is how the reader prints a
/// value whose text differs from ours.
template <class Shown>
void expectShown(const NewTable& table, const std::string& output, Shown isShownAs) {
    const std::vector<DumpRow> rows = parseDump(output);
    ASSERT_EQ(rows.size(), table.rows.size() + 1) << output.substr(0, 300);
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        EXPECT_EQ(rows[0][i], text::toUtf8(table.columns[i].name));
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        ASSERT_EQ(rows[i + 1].size(), table.columns.size());
        for (std::size_t j = 0; j < table.columns.size(); ++j)
            EXPECT_TRUE(isShownAs(table.rows[i][j], rows[i + 1][j]))
                << "row " << i << ", column " << j << ": "
                << testing::PrintToString(table.rows[i][j]) << " shown as "
                << rows[i + 1][j].value_or("NULL").substr(0, 80);
    }
}

/// Memos of every storage, written, then changed in place: each row has those of the next one.
NewTable changedMemos(const std::filesystem::path& path) {
    NewTable table = memosOfEveryLength();
    writeDatabase(path, {table});
    auto editor = jet::DatabaseEditor::open(path);
    EXPECT_TRUE(editor);
    const Rows before = table.rows;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const auto& next = before[(i + 1) % before.size()];
        const std::vector<jet::CellChange> cells{
            {u"texte", next[1]}, {u"suite", next[2]}, {u"octets", next[3]}};
        EXPECT_TRUE(editor->change(table.name, i, cells));
        std::copy(next.begin() + 1, next.end(), table.rows[i].begin() + 1);
    }
    return table;
}

class Mdbtools : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(
            run("mdb-export --version >/dev/null 2>&1 && mdb-tables --version >/dev/null 2>&1 "
                "&& mdb-schema --version >/dev/null 2>&1")
                .status,
            0)
            << "mdb-export, mdb-tables and mdb-schema of mdbtools are needed for these tests";
    }

    std::string exported(const std::string& file, const std::u16string& table) const {
        return run("mdb-export -b hex -T '%Y-%m-%d %H:%M:%S' -D '%Y-%m-%d %H:%M:%S' '" +
                   (scratch_ / file).string() + "' '" + text::toUtf8(table) + "'")
            .output;
    }

    /// It shows empty texts as it does NULL, bytes in capitals, and a GUID as bytes of its text,
    /// in which a hyphen is missing.
    static bool isShownAs(const Value& value, const DumpCell& cell) {
        const auto ours = dumpCell(value).value_or("");
        if (ours.empty() || !cell)
            return ours.empty() && cell.value_or("").empty();
        if (value.as<jet::Guid>())
            return without(fromHex(*cell), "-") == without(ours, "-");
        return value.as<jet::Binary>() ? lowerCase(*cell) == ours : sameCell(cell, value);
    }

    ScratchFolder scratch_;
};

TEST_F(Mdbtools, readsEveryType) {
    const NewTable table = everyTypeInTheirCalendar();
    writeDatabase(scratch_ / "t.mdb", {table});
    expectShown(table, exported("t.mdb", table.name), isShownAs);
}

TEST_F(Mdbtools, readsMemosOfEveryStorage) {
    const NewTable table = memosOfEveryLength();
    writeDatabase(scratch_ / "t.mdb", {table});
    expectShown(table, exported("t.mdb", table.name), isShownAs);
}

TEST_F(Mdbtools, readsChangedMemos) {
    const NewTable table = changedMemos(scratch_ / "t.mdb");
    expectShown(table, exported("t.mdb", table.name), isShownAs);
}

TEST_F(Mdbtools, listsTablesAndColumns) {
    writeDatabase(scratch_ / "t.mdb", {everyType(), memosOfEveryLength()});
    const std::string file = "'" + (scratch_ / "t.mdb").string() + "'";
    EXPECT_EQ(run("mdb-tables -1 " + file).output, "Every type_1\nMemos\n");
    const std::string schema = run("mdb-schema " + file).output;
    for (const char* line :
         {"[Flag]\t\t\tBoolean", "[Octet]\t\t\tByte", "[Entier]\t\t\tInteger",
          "[Long]\t\t\tLong Integer", "[Prix]\t\t\tCurrency", "[Simple]\t\t\tSingle",
          "[Réel]\t\t\tDouble", "[Date]\t\t\tDateTime", "[Texte]\t\t\tText (255)",
          "[Fixe]\t\t\tText (5)", "[Octets]\t\t\tBinary", "[Image]\t\t\tOLE", "[Memo]\t\t\tMemo",
          "[Clé]\t\t\tReplication ID", "[Décimal]\t\t\tNumeric (28, 3)"})
        EXPECT_THAT(schema, HasSubstr(line));
}

/// More pages than a usage map in a row has bits, so that the maps name bitmap pages.
TEST_F(Mdbtools, readsMapsByReference) {
    NewTable table{
        u"Pages",
        {{.name = u"n", .type = ColumnType::Long}, {.name = u"t", .type = ColumnType::Memo}},
        {}};
    for (int i = 0; i < 2500; ++i)
        table.rows.push_back({i, std::u16string(static_cast<std::size_t>(1200 + i % 90), u'm')});
    writeDatabase(scratch_ / "t.mdb", {table, memosOfEveryLength()});
    EXPECT_GT(readBytes(scratch_ / "t.mdb").size(), 1024u * 4096);
    expectShown(table, exported("t.mdb", table.name), isShownAs);
    expectShown(memosOfEveryLength(), exported("t.mdb", u"Memos"), isShownAs);
}

/// No sample has encoded pages, so one is made here; mdbtools says whether it was made right, and
/// changed right.
TEST_F(Mdbtools, agreesOnEncodedPages) {
    constexpr std::uint32_t kKey = 0x8F3A5C21;
    NewTable table = memosOfEveryLength();
    writeDatabase(scratch_ / "t.mdb", {table});
    FileBytes bytes = readBytes(scratch_ / "t.mdb");
    for (std::uint32_t i = 1; i < bytes.size() / 4096; ++i)
        jet::applyPageKey(kKey, i, std::span(bytes).subspan(i * 4096u, 4096));
    for (std::size_t i = 0; i < 4; ++i) // stored under the mask; XOR with a key of 0 before
        bytes[0x3E + i] ^= static_cast<std::uint8_t>(kKey >> (8 * i));
    writeBytes(scratch_ / "t.mdb", bytes);
    expectShown(table, exported("t.mdb", table.name), isShownAs);
    EXPECT_EQ(readTable(scratch_ / "t.mdb", table.name), table.rows);

    table.rows[3][1] = table.rows.back()[1];
    ASSERT_TRUE(jet::DatabaseEditor::open(scratch_ / "t.mdb")
                    ->changeText(table.name, 3, u"texte", *table.rows[3][1].text()));
    expectShown(table, exported("t.mdb", table.name), isShownAs);
}

/// The package mdb-reader of npm. Its folder is named by ORVALENTE_MDB_READER, as the test script
/// does, or lies in node_modules beside these tests. Only what was not named may be absent.
class MdbReader : public testing::Test {
protected:
    void SetUp() override {
        const char* named = std::getenv("ORVALENTE_MDB_READER");
        package_ = named ? std::filesystem::path(named)
                         : std::filesystem::path(JET_TESTS) / "node_modules/mdb-reader";
        const bool hasNode = run("node --version 2>/dev/null").status == 0;
        if (hasNode && exists(package_ / "package.json"))
            return;
        const std::string lacking =
            hasNode ? "the npm package mdb-reader is not in " + package_.string()
                    : "node is not installed";
        if (named)
            FAIL() << lacking;
        GTEST_SKIP() << lacking;
    }

    void expectRead(const NewTable& table) {
        writeDatabase(scratch_ / "t.mdb", {table});
        expectShownBy(table);
    }

    void expectShownBy(const NewTable& table) {
        const std::string script = std::string(JET_TESTS) + "/mdb_reader.mjs";
        const ProgramRun printed =
            run("node '" + script + "' '" + package_.string() + "' '" +
                (scratch_ / "t.mdb").string() + "' '" + text::toUtf8(table.name) + "'");
        EXPECT_EQ(printed.status, 0);
        expectShown(table, printed.output, isShownAs);
    }

    /// GUIDs come without braces and in small letters.
    static bool isShownAs(const Value& value, const DumpCell& cell) {
        if (value.as<jet::Guid>())
            return cell == lowerCase(without(*dumpCell(value), "{}"));
        return sameCell(cell, value);
    }

    ScratchFolder scratch_;
    std::filesystem::path package_;
};

TEST_F(MdbReader, readsEveryType) {
    expectRead(everyTypeInTheirCalendar());
}

TEST_F(MdbReader, readsMemosOfEveryStorage) {
    expectRead(memosOfEveryLength());
}

TEST_F(MdbReader, readsChangedMemos) {
    expectShownBy(changedMemos(scratch_ / "t.mdb"));
}

} // namespace
