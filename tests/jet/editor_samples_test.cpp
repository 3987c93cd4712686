// Changes in files of the real engine, of both generations, and in damaged ones.

#include "jet/changing.h"
#include "jet/csv_dump.h"
#include "jet/database_file.h"
#include "jet/files.h"
#include "jet/writing.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

using jet::ColumnType;
using jet::DatabaseEditor;

namespace {

std::u16string letters(std::size_t length) {
    std::u16string text(length, u'é');
    for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<char16_t>(u'a' + i * i % 26);
    return text;
}

/// Columns of values of any length, which all readers show the same way.
std::vector<std::size_t> longColumns(const jet::Table& table) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < table.columns().size(); ++i) {
        const ColumnType type = table.columns()[i].type;
        if (type == ColumnType::Text || type == ColumnType::Memo || type == ColumnType::Ole)
            found.push_back(i);
    }
    return found;
}

jet::Value valueOf(std::size_t length, ColumnType type) {
    if (type == ColumnType::Ole)
        return jet::Binary(length, static_cast<std::uint8_t>(length));
    return letters(length);
}

class ChangedFile {
protected:
    explicit ChangedFile(FileBytes sound) : sound_(std::move(sound)) { writeBytes(path_, sound_); }

    /// Gives each such column of the first rows values of several lengths, and calls back with
    /// what was asked and what came of it. Does not wait for the disk.
    template <class Callback>
    void changeCells(std::span<const std::size_t> lengths, std::size_t rows, Callback callback) {
        const auto database = jet::openDatabase(path_);
        if (!database)
            return;
        for (const jet::TableInfo& info : database->tables()) {
            auto table = database->table(info.name);
            if (!table)
                continue;
            for (const std::size_t column : longColumns(*table))
                for (std::size_t row = 0; row < std::min(rows, table->recordCount()); ++row)
                    for (const std::size_t length : lengths) {
                        std::size_t writes = 0;
                        auto editor = DatabaseEditor::open(
                            path_, std::make_unique<CutSink>(path_, kUncut, writes));
                        const jet::Column& declared = table->columns()[column];
                        const jet::CellChange cell{declared.name, valueOf(length, declared.type)};
                        const auto done = editor->change(info.name, row, {&cell, 1});
                        callback(std::pair(info.name, row), column, cell.value, done);
                    }
        }
    }

    /// Changes cells of damaged files: a change succeeds as if nothing were wrong, or fails and
    /// leaves every byte; what could be read before, it leaves alone.
    template <class Damage>
    void expectNoHarm(std::size_t files, std::size_t rows, Damage damage) {
        std::size_t changed = 0;
        std::size_t failed = 0;
        for (std::size_t file = 0; file < files; ++file) {
            FileBytes bytes = sound_;
            damage(bytes, file);
            writeBytes(path_, bytes);
            Snapshot expected = snapshot(path_);
            const auto check = [&](auto record, auto column, const auto& value, const auto& done) {
                (done ? changed : failed) += 1;
                const FileBytes now = readBytes(path_);
                if (!done) {
                    EXPECT_FALSE(done.error().sentence.empty());
                    EXPECT_EQ(now, bytes) << done.error().sentence;
                    return;
                }
                bytes = now;
                expected[record][column] = *dumpCell(value);
            };
            changeCells(kLongThenShort, rows, check);
            ASSERT_EQ(snapshot(path_), expected) << "file " << file;
        }
        EXPECT_GT(changed, files / 4);
        EXPECT_GT(failed, files / 4);
    }

    static constexpr std::array<std::size_t, 2> kLongThenShort{5000, 20};
    std::mt19937 random_{20240301}; // fixed, so that a failure can be looked at
    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }

    ScratchFolder scratch_;
    std::filesystem::path path_ = scratch_ / "t.mdb";
    FileBytes sound_;
};

class SampleEditor : public ChangedFile, public testing::TestWithParam<const char*> {
protected:
    SampleEditor() : ChangedFile(readBytes(samplePath(GetParam()))) {}
};

FileBytes smallFile() {
    const ScratchFolder scratch;
    NewTable table{u"T",
                   {{.name = u"n", .type = ColumnType::Long},
                    {.name = u"nom", .type = ColumnType::Text, .length = 50},
                    {.name = u"memo", .type = ColumnType::Memo}},
                   {{1, u"un", letters(3)},
                    {2, u"deux", letters(1500)},
                    {3, u"trois", letters(10000)},
                    {4, u"quatre", {}}}};
    writeDatabase(scratch / "t.mdb", {table});
    return readBytes(scratch / "t.mdb");
}

class SmallFileEditor : public ChangedFile, public testing::Test {
protected:
    SmallFileEditor() : ChangedFile(smallFile()) {}
};

/// Of ASCII; bytes are shown in capitals by some.
std::string lowerCase(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

/// Rows as a multiset: readers give moved rows at different places.
std::multiset<std::vector<std::string>> cellsShown(const std::filesystem::path& path,
                                                   const std::u16string& name,
                                                   std::span<const std::size_t> columns) {
    std::multiset<std::vector<std::string>> rows;
    const std::string output =
        run("mdb-export -b hex '" + path.string() + "' '" + text::toUtf8(name) + "'").output;
    for (const DumpRow& row : parseDump(output)) {
        std::vector<std::string> texts;
        for (const std::size_t column : columns)
            texts.push_back(lowerCase(row[column].value_or("")));
        rows.insert(texts);
    }
    return rows;
}

TEST_P(SampleEditor, changesCells) {
    constexpr std::array<std::size_t, 4> kLengths{9000, 5, 255, 50};
    Snapshot expected = snapshot(path_);
    std::size_t changed = 0;
    changeCells(kLengths, 4, [&](auto record, auto column, const auto& value, const auto& done) {
        if (!done) {
            EXPECT_EQ(done.error().kind, jet::Failure::Kind::Refused) << done.error().sentence;
            return;
        }
        ++changed;
        expected[record][column] = *dumpCell(value);
    });
    EXPECT_GT(changed, 2u);
    EXPECT_EQ(snapshot(path_), expected);
    expectSoundMaps(path_);

    const auto database = jet::openDatabase(path_);
    for (const jet::TableInfo& info : database->tables()) {
        auto table = database->table(info.name);
        const std::vector<std::size_t> columns = longColumns(*table);
        std::multiset<std::vector<std::string>> ours;
        std::vector<std::string> names;
        for (const std::size_t column : columns)
            names.push_back(lowerCase(text::toUtf8(table->columns()[column].name)));
        ours.insert(names);
        for (std::size_t row = 0; row < table->recordCount(); ++row) {
            std::vector<std::string> texts;
            for (const std::size_t column : columns) {
                const std::string& text = expected[{info.name, row}][column];
                texts.push_back(text == "NULL" ? "" : lowerCase(text));
            }
            ours.insert(texts);
        }
        EXPECT_EQ(cellsShown(path_, info.name, columns), ours);
    }
}

/// Bytes changed at random, most of them where pages have their structure.
TEST_P(SampleEditor, doesNoHarmInDamagedFiles) {
    const std::size_t pageSize = sound_[0x14] == 0 ? 2048 : 4096;
    expectNoHarm(12, 1, [&](FileBytes& bytes, std::size_t file) {
        for (std::size_t i = 0; i < 5 + 15 * file; ++i) {
            const std::size_t page = 1 + below(bytes.size() / pageSize - 1);
            const std::size_t at = below(3) != 0 ? below(64) : below(pageSize);
            bytes[page * pageSize + at] = static_cast<std::uint8_t>(below(256));
        }
    });
}

/// One or two bytes of the pages that a change of the only table depends on: the map of free pages,
/// the definition, the maps, the rows, a long value.
TEST_F(SmallFileEditor, doesNoHarmInDamagedFiles) {
    constexpr std::array<std::size_t, 5> kPages{1, 16, 17, 18, 19};
    constexpr std::array<std::uint8_t, 4> kBytes{0, 1, 0x80, 0xFF};
    expectNoHarm(120, 3, [&](FileBytes& bytes, std::size_t file) {
        for (std::size_t i = 0; i < 1 + file % 2; ++i) {
            const FileBytes::iterator page =
                bytes.begin() + static_cast<std::ptrdiff_t>(kPages[below(kPages.size())] * 4096);
            // Pages are filled from both ends.
            const std::size_t at = below(2) != 0 ? below(250) : 4095 - below(250);
            page[static_cast<std::ptrdiff_t>(at)] = kBytes[below(kBytes.size())];
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Files, SampleEditor,
                         testing::Values("test2V1997", "test2V2000", "overflowTestV2000",
                                         "delColTestV2000", "indexTestV2003", "passwordV2000"),
                         [](const auto& test) { return std::string(test.param); });

} // namespace
