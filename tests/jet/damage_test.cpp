#include "jet/byte_writer.h"
#include "jet/database_file.h"
#include "jet/files.h"
#include "jet/format.h"
#include "jet/utf16_text.h"
#include "jet/writing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using jet::ColumnType;
using testing::HasSubstr;

namespace {

constexpr std::size_t kPage = 4096;

// Pages of the file that the damages are done to; see soundFile().
constexpr std::size_t kCatalogRows = 14 * kPage;
constexpr std::size_t kDefinition = 16 * kPage;
constexpr std::size_t kMaps = 17 * kPage;
constexpr std::size_t kRows = 18 * kPage;
constexpr std::size_t kSingle = 19 * kPage;
constexpr std::size_t kChain = 20 * kPage; ///< and the four pages after it

constexpr std::size_t kColumns = kDefinition + 63; ///< blocks: n, name, memo
constexpr std::size_t kColumnBlock = 25;
constexpr std::size_t kNames = kColumns + 3 * kColumnBlock;

/// Four rows: a memo in the row, one on a page of its own, one on a chain of pages, none.
const NewTable kTable{u"T",
                      {{.name = u"n", .type = ColumnType::Long},
                       {.name = u"name", .type = ColumnType::Text, .length = 50},
                       {.name = u"memo", .type = ColumnType::Memo}},
                      {{1, u"one", u"inline"},
                       {2, u"two", std::u16string(1500, u's')},
                       {3, u"three", std::u16string(10000, u'c')},
                       {4, u"four", {}}}};

FileBytes soundFile() {
    const ScratchFolder scratch;
    writeDatabase(scratch / "t.mdb", {kTable});
    return readBytes(scratch / "t.mdb");
}

using Image = std::span<std::uint8_t>;

std::size_t rowStart(Image image, std::size_t page, std::size_t row) {
    return page + (jet::Bytes(image).u16(page + 14 + 2 * row) & 0x1FFFu);
}
std::size_t rowEnd(Image image, std::size_t page, std::size_t row) {
    return row == 0 ? page + kPage : rowStart(image, page, row - 1);
}

/// Rows of kTable end so: end of the values, offsets of memo and name, their number, the mask.
std::size_t offsetsOf(Image image, std::size_t row) {
    return rowEnd(image, kRows, row) - 9;
}
/// The memo's header within its row.
std::size_t memoOf(Image image, std::size_t row) {
    return rowStart(image, kRows, row) + jet::Bytes(image).u16(offsetsOf(image, row) + 2);
}

void setSlot(Image image, std::size_t row, std::size_t value) {
    jet::put16(image, kRows + 14 + 2 * row, value);
}
void addFlag(Image image, std::size_t row, std::uint16_t flag) {
    setSlot(image, row, jet::Bytes(image).u16(kRows + 14 + 2 * row) | flag);
}
/// Makes a row of kTable a pointer.
void setPointer(Image image, std::size_t row, std::uint32_t pointer) {
    jet::put32(image, rowStart(image, kRows, row), pointer);
    addFlag(image, row, jet::kSlotPointer);
}

enum class Outcome { OpenFails, NoTable, TableFails, Passed };

struct Damage {
    const char* name;
    std::function<void(Image)> doIt;
    Outcome outcome = Outcome::Passed;
    const char* word = ""; ///< of the sentence; none where nothing needs to be said
    std::size_t rows = 4;  ///< that are left
    int damagedMemo = -1;  ///< position of the row whose memo cannot be read
};

void expectOutcome(const Damage& damage, const jet::Result<jet::Database>& database) {
    if (damage.outcome == Outcome::OpenFails) {
        ASSERT_FALSE(database);
        EXPECT_THAT(database.error().sentence, HasSubstr(damage.word));
        return;
    }
    ASSERT_TRUE(database) << database.error().sentence;
    auto table = database->table(u"T");
    if (damage.outcome == Outcome::NoTable) {
        EXPECT_FALSE(table);
        ASSERT_FALSE(database->problems().empty());
        EXPECT_THAT(database->problems().sentences()[0], HasSubstr(damage.word));
        return;
    }
    if (damage.outcome == Outcome::TableFails) {
        ASSERT_FALSE(table);
        EXPECT_EQ(table.error().kind, jet::Failure::Kind::Damaged);
        EXPECT_THAT(table.error().sentence, HasSubstr("table « T »"));
        EXPECT_THAT(table.error().sentence, HasSubstr(damage.word));
        return;
    }
    ASSERT_TRUE(table) << table.error().sentence;
    EXPECT_EQ(table->recordCount(), damage.rows);
    std::string said;
    for (const std::string& sentence : table->problems().sentences())
        said += sentence + "\n";
    for (std::size_t i = 0; i < table->recordCount(); ++i) {
        const auto memo = table->value(i, 2);
        EXPECT_EQ(static_cast<bool>(memo), static_cast<int>(i) != damage.damagedMemo) << i;
        if (!memo)
            said += memo.error().sentence + "\n";
    }
    EXPECT_THAT(said, HasSubstr(damage.word));
    const std::size_t told = table->problems().count();
    EXPECT_EQ(said.empty(), *damage.word == '\0') << said;
    EXPECT_EQ(table->visit([](jet::RecordView&) { return true; }).count(), told);
    EXPECT_EQ(table->problems().count(), told) << "told twice";
}

class DamagedFile : public testing::TestWithParam<Damage> {};

TEST_P(DamagedFile, losesNoMoreThanItMust) {
    const ScratchFolder scratch;
    FileBytes bytes = soundFile();
    GetParam().doIt(bytes);
    writeBytes(scratch / "t.mdb", bytes);
    expectOutcome(GetParam(), jet::openDatabase(scratch / "t.mdb"));
}

std::string nameOf(const testing::TestParamInfo<Damage>& test) {
    return test.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Header, DamagedFile,
    testing::Values(
        Damage{"None", [](Image) {}},
        Damage{"LaterVersion", [](Image i) { i[0x14] = 2; }, Outcome::OpenFails, "2007"},
        Damage{"LaterEngine",
               [](Image i) {
                   jet::putBytes(i, 0x0D, FileBytes{'A', 'C', 'E'});
               },
               Outcome::OpenFails, "2007"},
        Damage{"OtherName", [](Image i) { i[4] = 's'; }, Outcome::OpenFails, "Jet"},
        Damage{"WrongPageKey", [](Image i) { i[0x3E] ^= 1; }, Outcome::OpenFails, "définition"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    DataPage, DamagedFile,
    testing::Values(
        Damage{"OtherType", [](Image i) { i[kRows] = 4; }, Outcome::Passed, "page 18 passée", 0},
        Damage{"OtherOwner", [](Image i) { i[kRows + 4] = 17; }, Outcome::Passed, "page 18 passée",
               0},
        Damage{"SlotCount", [](Image i) { jet::put16(i, kRows + 12, 0xFFFF); }, Outcome::Passed,
               "plus de lignes", 0},
        Damage{"SlotBeyondPage", [](Image i) { setSlot(i, 1, 0x1FFF); }, Outcome::Passed,
               "page 18, ligne 1 passée", 2},
        Damage{"SlotAmongSlots", [](Image i) { setSlot(i, 3, 15); }, Outcome::Passed, "ligne 3", 3},
        Damage{"SlotAboveTheOneBefore", [](Image i) { setSlot(i, 2, 4090); }, Outcome::Passed,
               "ligne 2", 2},
        Damage{"PointerToItself", [](Image i) { setPointer(i, 0, 18 << 8); }, Outcome::Passed,
               "renvoi", 3},
        Damage{"PointersInACircle",
               [](Image i) {
                   setPointer(i, 0, 18 << 8 | 1);
                   setPointer(i, 1, 18 << 8);
               },
               Outcome::Passed, "renvoi", 2},
        Damage{"PointerToPage0", [](Image i) { setPointer(i, 0, 0); }, Outcome::Passed, "renvoi",
               3},
        Damage{"PointerPastTheEnd", [](Image i) { setPointer(i, 0, 0xFFFFFF00); }, Outcome::Passed,
               "renvoi", 3},
        Damage{"PointerToNoSlot", [](Image i) { setPointer(i, 0, 18 << 8 | 99); }, Outcome::Passed,
               "renvoi", 3},
        Damage{"PointerToARowInPlace", [](Image i) { setPointer(i, 0, 18 << 8 | 1); },
               Outcome::Passed, "renvoi", 3},
        Damage{"PointerToAnotherTable", [](Image i) { setPointer(i, 0, 19 << 8); }, Outcome::Passed,
               "renvoi", 3},
        Damage{
            "PointerTooShort",
            [](Image i) { setSlot(i, 3, (rowEnd(i, kRows, 3) - kRows - 3) | jet::kSlotPointer); },
            Outcome::Passed, "renvoi", 3}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Row, DamagedFile,
    testing::Values(
        Damage{"ColumnCount", [](Image i) { i[rowStart(i, kRows, 0)] = 4; }, Outcome::Passed,
               "plus de colonnes", 3},
        Damage{"VariableCount", [](Image i) { jet::put16(i, rowEnd(i, kRows, 1) - 3, 0x7FFF); },
               Outcome::Passed, "longueur variable", 3},
        Damage{"ShorterThanItsMask",
               [](Image i) {
                   const std::size_t start = rowEnd(i, kRows, 3) - kRows - 2;
                   setSlot(i, 3, start);
                   jet::put16(i, kRows + start, 3);
               },
               Outcome::Passed, "masque", 3},
        Damage{"EndBeyondTheRow", [](Image i) { jet::put16(i, offsetsOf(i, 1), 0xFFFF); },
               Outcome::Passed, "longueur variable", 3},
        Damage{"OffsetsDecreasing", [](Image i) { jet::put16(i, offsetsOf(i, 1) + 2, 3); },
               Outcome::Passed, "bornes", 4, 1},
        Damage{"FewerColumnsKnown", // as in rows older than a column
               [](Image i) { i[rowStart(i, kRows, 2)] = 2; }}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Definition, DamagedFile,
    testing::Values(
        Damage{"Cycle",
               [](Image i) {
                   jet::put32(i, kDefinition + 4, 16);
                   jet::put32(i, kDefinition + 8, 100000);
               },
               Outcome::TableFails, "revient"},
        Damage{"NextIsNone",
               [](Image i) {
                   jet::put32(i, kDefinition + 4, 18);
                   jet::put32(i, kDefinition + 8, 100000);
               },
               Outcome::TableFails, "pas une page de définition"},
        Damage{"LengthTooSmall", [](Image i) { jet::put32(i, kDefinition + 8, 20); },
               Outcome::TableFails, "en-tête"},
        Damage{"LengthCutsColumns", [](Image i) { jet::put32(i, kDefinition + 8, 100); },
               Outcome::TableFails, "colonnes"},
        Damage{"LengthTooLarge", [](Image i) { jet::put32(i, kDefinition + 8, 0xFFFFFFFF); }},
        Damage{"ColumnCount", [](Image i) { jet::put16(i, kDefinition + 45, 0xFFFF); },
               Outcome::TableFails, "trop de colonnes"},
        Damage{"IndexCount", [](Image i) { jet::put32(i, kDefinition + 51, 0xFFFFFFFF); },
               Outcome::TableFails, "trop d’index"},
        Damage{"NameOdd", [](Image i) { i[kNames] = 3; }, Outcome::TableFails, "nom de colonne"},
        Damage{"NameEmpty", [](Image i) { i[kNames] = 0; }, Outcome::TableFails, "nom de colonne"},
        Damage{"NameTooLong", [](Image i) { jet::put16(i, kNames, 0xFFFE); }, Outcome::TableFails,
               "nom de colonne"},
        Damage{"ColumnNumber", // the column is NULL everywhere
               [](Image i) { jet::put16(i, kColumns + kColumnBlock + 5, 4000); }},
        Damage{"SameNumberTwice", [](Image i) { jet::put16(i, kColumns + kColumnBlock + 5, 0); }},
        Damage{"FixedOffset", // the Memo is told to lie in the fixed area, past its end
               [](Image i) {
                   jet::put16(i, kColumns + 2 * kColumnBlock + 21, 4000);
                   i[kColumns + 2 * kColumnBlock + 15] = 3;
                   for (const std::size_t row : {1u, 2u}) // leave one that is not NULL
                       i[rowEnd(i, kRows, row) - 1] = 3;
               },
               Outcome::Passed, "bornes", 4, 0},
        Damage{"RowCount", [](Image i) { jet::put32(i, kDefinition + 16, 0xFFFFFFFF); },
               Outcome::Passed, "annonce 4294967295"}),
    nameOf);

/// The first map of the page is that of the table's pages.
std::size_t map(Image image) {
    return rowStart(image, kMaps, 0);
}

INSTANTIATE_TEST_SUITE_P(
    UsageMap, DamagedFile,
    testing::Values(
        Damage{"PointerToNowhere", [](Image i) { jet::put32(i, kDefinition + 55, 0xFFFFFF00); },
               Outcome::Passed, "tout le fichier est parcouru"},
        Damage{"Kind", [](Image i) { i[map(i)] = 7; }, Outcome::Passed,
               "tout le fichier est parcouru"},
        Damage{"FirstPage", [](Image i) { jet::put32(i, map(i) + 1, 0xFFFFFFF8); }, Outcome::Passed,
               "annonce 4 enregistrements, 0", 0},
        Damage{"NoBitmapPage",
               [](Image i) {
                   i[map(i)] = 1;
                   jet::put32(i, map(i) + 1, 18);
               },
               Outcome::Passed, "tout le fichier est parcouru"},
        Damage{"PagesOutsideTheFile",
               [](Image i) { std::fill_n(i.begin() + static_cast<int>(map(i)) + 12, 50, 0xFF); }}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    LongValue, DamagedFile,
    testing::Values(
        Damage{"InlineLength", // what is there is taken
               [](Image i) { jet::put32(i, memoOf(i, 0), 0x80000000 | 5000); }},
        Damage{"LargerThanTheFile", [](Image i) { jet::put32(i, memoOf(i, 1), 0x7FFFFFFF); },
               Outcome::Passed,
               "colonne « memo », page 18, ligne 1 : valeur longue annoncée plus grande", 4, 1},
        Damage{"UnknownKind", [](Image i) { jet::put32(i, memoOf(i, 1), 0xC0000010); },
               Outcome::Passed, "sorte inconnue", 4, 1},
        Damage{"SinglePointsToRows", [](Image i) { jet::put32(i, memoOf(i, 1) + 4, 18 << 8); },
               Outcome::Passed, "absente", 4, 1},
        Damage{"SingleShorter", [](Image i) { jet::put32(i, memoOf(i, 1), 0x40000000 | 4000); },
               Outcome::Passed, "plus courte", 4, 1},
        Damage{"SinglePageOfNoValues", [](Image i) { i[kSingle + 4] = 'X'; }, Outcome::Passed,
               "absente", 4, 1},
        Damage{"ChainInACircle", [](Image i) { jet::put32(i, rowStart(i, kChain, 0), 20 << 8); },
               Outcome::Passed, "en rond", 4, 2},
        Damage{"ChainEndsEarly", [](Image i) { jet::put32(i, rowStart(i, kChain, 0), 0); },
               Outcome::Passed, "plus courte", 4, 2},
        Damage{"ChainLeavesItsPages",
               [](Image i) { jet::put32(i, rowStart(i, kChain, 0), 18 << 8); }, Outcome::Passed,
               "morceau est absent", 4, 2},
        Damage{"ChainWithAnEmptyPiece",
               [](Image i) { jet::put16(i, kChain + kPage + 14, kPage - 4); }, Outcome::Passed,
               "morceau est vide", 4, 2}),
    nameOf);

/// Where the catalog's row of the table has its Id, behind the column count.
std::size_t catalogId(Image image) {
    return rowStart(image, kCatalogRows, 8) + 2;
}

INSTANTIATE_TEST_SUITE_P(
    Catalog, DamagedFile,
    testing::Values(Damage{"NoDefinition", [](Image i) { i[2 * kPage] = 1; }, Outcome::OpenFails,
                           "MSysObjects"},
                    Damage{"NoIdColumn",
                           [](Image i) {
                               const FileBytes name{4, 0, 'I', 0, 'd', 0};
                               const auto page = i.subspan(2 * kPage, kPage);
                               const auto at =
                                   std::search(page.begin(), page.end(), name.begin(), name.end());
                               ASSERT_NE(at, page.end());
                               at[2] = 'J';
                           },
                           Outcome::OpenFails, "« Id »"},
                    Damage{"IdOfNoDefinition", [](Image i) { jet::put32(i, catalogId(i), 18); },
                           Outcome::NoTable, "pas une définition"},
                    Damage{"IdPastTheEnd", [](Image i) { jet::put32(i, catalogId(i), 0xFFFFF); },
                           Outcome::NoTable, "pas une définition"},
                    Damage{"NameAbsent", [](Image i) { i[rowEnd(i, kCatalogRows, 8) - 3] &= 0xFB; },
                           Outcome::NoTable, "sans nom"}),
    nameOf);

/// The first entry wins.
TEST(DamagedCatalog, entriesOfOnePageOrOneName) {
    const ScratchFolder scratch;
    const std::vector<jet::Column> columns{{.name = u"n", .type = ColumnType::Long}};
    writeDatabase(scratch / "t.mdb",
                  {{u"A", columns, {{1}}}, {u"B", columns, {{2}}}, {u"C", columns, {{3}}}});
    FileBytes bytes = readBytes(scratch / "t.mdb");
    jet::put32(bytes, rowStart(bytes, kCatalogRows, 9) + 2,
               jet::Bytes(bytes).u32(catalogId(bytes)));
    const std::size_t nameOfC = rowStart(bytes, kCatalogRows, 10) + 2 + 30;
    ASSERT_EQ(bytes[nameOfC], 'C');
    bytes[nameOfC] = 'a';
    writeBytes(scratch / "t.mdb", bytes);
    const auto database = jet::openDatabase(scratch / "t.mdb");
    ASSERT_TRUE(database);
    ASSERT_EQ(database->tables().size(), 1u);
    EXPECT_EQ(database->tables()[0].name, u"A");
    EXPECT_EQ(database->problems().count(), 2u);
}

/// Rows that all lead to one long chain cannot make the memory or the time grow without end.
TEST(DamagedFiles, giveOutNoMoreThanTheyCanHold) {
    const ScratchFolder scratch;
    NewTable table = kTable;
    for (int i = 0; i < 3000; ++i)
        table.rows.push_back({i, u"x", u"inline"});
    table.rows[2][2] = std::u16string(200000, u'c');
    writeDatabase(scratch / "t.mdb", {table});
    FileBytes bytes = readBytes(scratch / "t.mdb");
    const jet::Bytes chain = jet::Bytes(bytes).part(memoOf(bytes, 2), 8);
    const FileBytes header(chain.data(), chain.data() + chain.size());
    for (std::size_t page = 18; page < bytes.size() / kPage; ++page) {
        if (bytes[page * kPage] != 1 || bytes[page * kPage + 4] != 16)
            continue;
        for (std::size_t row = 0; row < jet::Bytes(bytes).u16(page * kPage + 12); ++row) {
            const std::size_t start = rowStart(bytes, page * kPage, row);
            const std::size_t offset =
                jet::Bytes(bytes).u16(rowEnd(bytes, page * kPage, row) - 9 + 2);
            jet::putBytes(bytes, start + offset, header);
        }
    }
    writeBytes(scratch / "t.mdb", bytes);
    auto database = jet::openDatabase(scratch / "t.mdb");
    auto read = database->table(u"T");
    // In one go, and taken up again and again.
    for (const std::size_t atATime : {std::size_t{3000}, std::size_t{7}}) {
        std::size_t total = 0;
        std::size_t refused = 0;
        for (std::size_t next = 0; next < 3000;) {
            read->visit(
                [&, first = next](jet::RecordView& record) {
                    Utf16Text stored;
                    refused += record.readText(2, stored) ? 0 : 1;
                    total += 2 * stored.text.size();
                    next = record.position() + 1;
                    return next < first + atATime;
                },
                next);
        }
        EXPECT_GT(refused, 0u);
        EXPECT_LE(total, 64 * bytes.size());
    }
}

} // namespace
