#include "jet/database_file.h"
#include "jet/files.h"
#include "jet/writing.h"
#include "text/utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using jet::Column;
using jet::ColumnType;
using jet::Failure;
using jet::Value;
using testing::HasSubstr;

namespace {

void expectReadBack(const NewTable& table) {
    const ScratchFolder scratch;
    writeDatabase(scratch / "t.mdb", {table});
    EXPECT_EQ(readTable(scratch / "t.mdb", table.name), table.rows);
}

TEST(RoundTrip, everyTypeAtItsEdges) {
    expectReadBack(everyType());
}

TEST(RoundTrip, memosOfEveryStorage) {
    expectReadBack(memosOfEveryLength());
}

TEST(RoundTrip, columnsAreDeclaredAsTheyWere) {
    const ScratchFolder scratch;
    const NewTable table = everyType();
    writeDatabase(scratch / "t.mdb", {table});
    const auto database = jet::openDatabase(scratch / "t.mdb");
    ASSERT_TRUE(database);
    auto read = database->table(u"EVERY TYPE_1");
    ASSERT_TRUE(read) << read.error().sentence;
    ASSERT_EQ(read->columns().size(), table.columns.size());
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const Column& written = table.columns[i];
        const Column& column = read->columns()[i];
        EXPECT_EQ(column.name, written.name);
        EXPECT_EQ(column.type, written.type);
        EXPECT_EQ(column.autoNumber, written.autoNumber);
        const bool hasLength = written.length != 0;
        EXPECT_EQ(hasLength ? column.length : 0, written.length);
    }
    EXPECT_TRUE(read->columns()[9].fixedLength);
    EXPECT_EQ(read->columns()[14].scale, 3);
    EXPECT_EQ(read->columnIndex(u"RÉEL"), 6u);
    EXPECT_EQ(read->columnIndex(u"Reel"), std::nullopt);
}

TEST(RoundTrip, theLargestTable) {
    NewTable table;
    table.name = std::u16string(64, u'N');
    std::vector<Value> row, absent;
    for (int i = 0; i < 255; ++i) {
        const ColumnType type = i % 5 == 0   ? ColumnType::Boolean
                                : i % 5 == 1 ? ColumnType::Memo
                                : i % 5 == 2 ? ColumnType::Long
                                : i % 5 == 3 ? ColumnType::Text
                                             : ColumnType::Byte;
        std::u16string name = text::toUtf16("colonne " + std::to_string(i));
        name.resize(64, u'_');
        table.columns.push_back({.name = name, .type = type, .length = 255});
        row.push_back(i % 5 == 0   ? Value(i % 2 == 0)
                      : i % 5 == 1 ? Value(std::u16string(static_cast<std::size_t>(2 * i), u'm'))
                      : i % 5 == 2 ? Value(i)
                      : i % 5 == 3 ? Value(u"t")
                                   : Value(static_cast<std::uint8_t>(i)));
        absent.push_back(i % 5 == 0 ? Value(false) : Value());
    }
    table.rows = {row, absent, row};
    expectReadBack(table);
}

/// Rows of all sizes, so that pages end with every amount of room left; then positions are found
/// again out of order.
TEST(RoundTrip, rowsOfEverySizeOverManyPages) {
    const ScratchFolder scratch;
    NewTable table{u"T", {{.name = u"n", .type = ColumnType::Long}}, {}};
    for (int i = 0; i < 8; ++i)
        table.columns.push_back({.name = text::toUtf16("t" + std::to_string(i)),
                                 .type = ColumnType::Text,
                                 .length = 255,
                                 .compressible = false});
    for (int i = 0; i < 2000; ++i) {
        std::vector<Value> row{i};
        const auto length = static_cast<std::size_t>(i * 37 % 251);
        for (int j = 0; j < 8; ++j)
            row.push_back(j < i % 8 ? Value(std::u16string(length, u'x')) : Value());
        table.rows.push_back(row);
    }
    writeDatabase(scratch / "t.mdb", {table});
    EXPECT_EQ(readTable(scratch / "t.mdb", u"T"), table.rows);

    const auto database = jet::openDatabase(scratch / "t.mdb");
    auto read = database->table(u"t");
    for (std::size_t i = 0; i < 2000; i += 77) {
        const std::size_t position = 1999 - i;
        EXPECT_EQ(*read->value(position, 0), Value(static_cast<std::int32_t>(position)));
    }
    EXPECT_EQ(read->value(2000, 0).error().kind, Failure::Kind::NotFound);
    EXPECT_EQ(read->value(0, 9).error().kind, Failure::Kind::NotFound);
}

/// More tables than one leaf of the catalog's indexes or one page of its rows holds, and more pages
/// than a usage map has bits.
TEST(RoundTrip, manyTables) {
    const ScratchFolder scratch;
    std::vector<NewTable> tables;
    for (int i = 0; i < 300; ++i)
        tables.push_back({text::toUtf16("Table_" + std::to_string(i) + " of many"),
                          {{.name = u"n", .type = ColumnType::Long},
                           {.name = u"memo", .type = ColumnType::Memo}},
                          {{i, std::u16string(100, u'm')}}});
    writeDatabase(scratch / "t.mdb", tables);
    const auto database = jet::openDatabase(scratch / "t.mdb");
    ASSERT_TRUE(database) << database.error().sentence;
    EXPECT_TRUE(database->problems().empty());
    ASSERT_EQ(database->tables().size(), tables.size());
    for (const NewTable& table : tables)
        EXPECT_EQ(readTable(scratch / "t.mdb", table.name), table.rows);
}

/// Memos short enough for the row leave it when the row would outgrow its page.
TEST(RoundTrip, aRowThatIsFull) {
    NewTable table{u"T", {}, {{}}};
    for (int i = 0; i < 7; ++i) {
        table.columns.push_back({.name = text::toUtf16("t" + std::to_string(i)),
                                 .type = ColumnType::Text,
                                 .length = 255,
                                 .compressible = false});
        table.rows[0].emplace_back(std::u16string(255, u'x'));
        table.columns.push_back(
            {.name = text::toUtf16("m" + std::to_string(i)), .type = ColumnType::Memo});
        table.rows[0].emplace_back(std::u16string(60, u'm'));
    }
    expectReadBack(table);
}

TEST(RoundTrip, aTableWithoutRows) {
    expectReadBack({u"Vide", {{.name = u"n", .type = ColumnType::Long}}, {}});
}

TEST(RoundTrip, rowsOfSeveralTablesInTurns) {
    const ScratchFolder scratch;
    auto writer = jet::createDatabase(scratch / "t.mdb");
    ASSERT_TRUE(writer);
    const std::vector<Column> columns{{.name = u"n", .type = ColumnType::Long}};
    auto a = writer->addTable(u"A", columns);
    auto b = writer->addTable(u"B", columns);
    ASSERT_TRUE(a && b);
    Rows ofA, ofB;
    for (int i = 0; i < 3000; ++i) {
        const std::vector<Value> row{i};
        ASSERT_TRUE((i % 3 == 0 ? *a : *b).append(row));
        (i % 3 == 0 ? ofA : ofB).push_back(row);
    }
    ASSERT_TRUE(writer->finish());
    EXPECT_EQ(readTable(scratch / "t.mdb", u"A"), ofA);
    EXPECT_EQ(readTable(scratch / "t.mdb", u"B"), ofB);
    EXPECT_EQ(a->append(std::vector<Value>{1}).error().kind, Failure::Kind::Refused);
    EXPECT_EQ(writer->addTable(u"C", columns).error().kind, Failure::Kind::Refused);
    EXPECT_EQ(writer->finish().error().kind, Failure::Kind::Refused);
}

TEST(RoundTrip, theSameRowsGiveTheSameFile) {
    const ScratchFolder scratch;
    writeDatabase(scratch / "a.mdb", {everyType(), memosOfEveryLength()});
    writeDatabase(scratch / "b.mdb", {everyType(), memosOfEveryLength()});
    EXPECT_EQ(readBytes(scratch / "a.mdb"), readBytes(scratch / "b.mdb"));
}

TEST(WriterTarget, keepsItsOldContentUntilTheEnd) {
    const ScratchFolder scratch;
    const auto target = scratch / "course.mdb";
    const FileBytes old{'o', 'l', 'd'};
    writeBytes(target, old);
    {
        auto writer = jet::createDatabase(target);
        ASSERT_TRUE(writer);
        ASSERT_TRUE(writer->addTable(u"A", everyType().columns));
        EXPECT_EQ(readBytes(target), old);
    }
    EXPECT_EQ(readBytes(target), old);
    const auto entries = std::filesystem::directory_iterator(scratch.path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1) << "something was left behind";
    writeDatabase(target, {everyType()});
    EXPECT_EQ(readTable(target, everyType().name).size(), everyType().rows.size());
}

TEST(WriterTarget, thatCannotBeWrittenIsASystemFailure) {
    const ScratchFolder scratch;
    EXPECT_EQ(jet::createDatabase(scratch / "no/such/folder.mdb").error().kind,
              Failure::Kind::System);
    std::filesystem::create_directory(scratch / "folder.mdb");
    writeBytes(scratch / "folder.mdb/kept", {1});
    EXPECT_EQ(jet::createDatabase(scratch / "folder.mdb").error().sentence,
              "base de données « folder.mdb » : le fichier ne peut pas être créé : "
              "un dossier porte ce nom");
    EXPECT_EQ(readBytes(scratch / "folder.mdb/kept"), FileBytes{1});
}

struct RefusedTable {
    const char* why;
    std::u16string name;
    std::vector<Column> columns;
    const char* word;
};

TEST(Refused, tablesThatCannotBeWritten) {
    const Column number{.name = u"n", .type = ColumnType::Long};
    const auto named = [](const char16_t* name) {
        return std::vector<Column>{{.name = name, .type = ColumnType::Long}};
    };
    const std::vector<RefusedTable> rows{
        {"no name", u"", {number}, "64"},
        {"name too long", std::u16string(65, u'a'), {number}, "64"},
        {"accent, for which no index key is known", u"Élèves", {number}, "accent"},
        {"blank at the end", u"A ", {number}, "espace"},
        {"name of the system", u"msysObjects", {number}, "MSys"},
        {"no column", u"A", {}, "255"},
        {"too many columns", u"A", std::vector<Column>(256, number), "255"},
        {"same name twice", u"A", {number, {.name = u"N", .type = ColumnType::Byte}}, "même nom"},
        {"column name with a point", u"A", named(u"a.b"), "point"},
        {"column name with a control character", u"A", named(u"a\tb"), "point"},
        {"unknown type", u"A", {{.name = u"c", .type = ColumnType::Unknown}}, "type"},
        {"text without length", u"A", {{.name = u"c", .type = ColumnType::Text}}, "longueur"},
        {"text too long",
         u"A",
         {{.name = u"c", .type = ColumnType::Text, .length = 256}},
         "longueur"},
        {"decimals beyond the digits",
         u"A",
         {{.name = u"c", .type = ColumnType::Decimal, .precision = 5, .scale = 6}},
         "décimales"},
        {"numbering a Text",
         u"A",
         {{.name = u"c", .type = ColumnType::Text, .length = 5, .autoNumber = true}},
         "Long"}};
    const ScratchFolder scratch;
    auto writer = jet::createDatabase(scratch / "t.mdb");
    ASSERT_TRUE(writer);
    for (const RefusedTable& row : rows) {
        const auto added = writer->addTable(row.name, row.columns);
        ASSERT_FALSE(added) << row.why;
        EXPECT_EQ(added.error().kind, Failure::Kind::Refused) << row.why;
        EXPECT_THAT(added.error().sentence, HasSubstr(row.word)) << row.why;
    }
    ASSERT_TRUE(writer->addTable(u"Pages", {&number, 1}));
    EXPECT_FALSE(writer->addTable(u"PAGES", {&number, 1}));
}

TEST(Refused, valuesThatDoNotFitTheirColumn) {
    const ScratchFolder scratch;
    const NewTable table = everyType();
    auto writer = jet::createDatabase(scratch / "t.mdb");
    auto added = writer->addTable(table.name, table.columns);
    ASSERT_TRUE(added);
    const struct {
        std::size_t column;
        Value value;
    } rows[] = {{0, 1},
                {1, 256},
                {1, -1},
                {2, 32768},
                {3, u"7"},
                {3, true},
                {3, 1.0},
                {4, 1.0},
                {5, (1 << 24) + 1},
                {5, -(1 << 24) - 1},
                {7, 1.0},
                {8, std::u16string(256, u'a')},
                {8, u"\uFEFFa"},
                {9, u"abcdef"},
                {10, jet::Binary(256)},
                {11, u"a"},
                {12, jet::Binary(1)},
                {12, std::u16string(2000, u'\uFEFF')},
                {14, jet::Decimal{false, {}, 2}},
                {14, jet::Decimal{false, {1, 0, 0, 0}, 3}}};
    for (const auto& row : rows) {
        std::vector<Value> values = table.rows[0];
        values[row.column] = row.value;
        const auto appended = added->append(values);
        ASSERT_FALSE(appended) << row.column;
        EXPECT_EQ(appended.error().kind, Failure::Kind::Refused);
        EXPECT_THAT(appended.error().sentence,
                    HasSubstr("« " + text::toUtf8(table.columns[row.column].name) + " »"));
    }
    EXPECT_FALSE(added->append(std::vector<Value>{true}));
    ASSERT_TRUE(added->append(table.rows[0]));
    ASSERT_TRUE(writer->finish());
    EXPECT_EQ(readTable(scratch / "t.mdb", table.name), Rows{table.rows[0]})
        << "a refused row left something behind";
}

TEST(RoundTrip, wholeNumbersThatASingleHoldsExactly) {
    const ScratchFolder scratch;
    const int most = 1 << 24;
    writeDatabase(scratch / "t.mdb",
                  {{u"T", {{.name = u"x", .type = ColumnType::Single}}, {{most}, {-most}}}});
    EXPECT_EQ(readTable(scratch / "t.mdb", u"T"),
              (Rows{{static_cast<float>(most)}, {static_cast<float>(-most)}}));
}

TEST(Refused, aRowLongerThanAPage) {
    const ScratchFolder scratch;
    NewTable table{u"T", {}, {{}}};
    for (int i = 0; i < 9; ++i) {
        table.columns.push_back({.name = text::toUtf16("c" + std::to_string(i)),
                                 .type = ColumnType::Text,
                                 .length = 255,
                                 .compressible = false});
        table.rows[0].emplace_back(std::u16string(255, u'x'));
    }
    auto writer = jet::createDatabase(scratch / "t.mdb");
    auto added = writer->addTable(table.name, table.columns);
    ASSERT_TRUE(added);
    const auto appended = added->append(table.rows[0]);
    ASSERT_FALSE(appended);
    EXPECT_THAT(appended.error().sentence, HasSubstr("page"));
}

} // namespace
