#include "coursetool/dump.h"
#include "coursetool/json_number.h"
#include "coursetool/json_string.h"
#include "coursetool/workspace.h"
#include "jet/text_codec.h"
#include "text/utf8.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

namespace {

using jet::ColumnType;
using testing::ElementsAre;
using testing::HasSubstr;

std::string json(const jet::Value& value) {
    std::string out;
    coursetool::appendJsonValue(value, out);
    return out;
}

TEST(JsonValues, haveTheirFormats) {
    const auto infinity = std::numeric_limits<double>::infinity();
    const std::pair<jet::Value, const char*> rows[] = {
        {{}, "null"},
        {true, "true"},
        {std::uint8_t{255}, "255"},
        {std::int16_t{-32768}, "-32768"},
        {std::int32_t{-2147483647 - 1}, "-2147483648"},
        {jet::Currency{-125000}, "\"-12.5000\""},
        {0.1f, "0.1"},
        {0.1, "0.1"},
        {1e300, "1e+300"},
        {infinity, "\"Infinity\""},
        {-infinity, "\"-Infinity\""},
        {std::numeric_limits<double>::quiet_NaN(), "\"NaN\""},
        {jet::DateTime{2.5}, "\"1900-01-01T12:00:00\""},
        {jet::DateTime{1e9}, "1e+09"},
        {jet::Binary{0x00, 0xAB}, "\"00ab\""},
        {u"é\u0001", "\"é\\u0001\""},
        {jet::Guid{{0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 0x88, 0x99, 0xAA, 0xBB, 0xCC,
                    0xDD, 0xEE, 0xFF}},
         "\"{00112233-4455-6677-8899-AABBCCDDEEFF}\""},
        {jet::Decimal{true, {0, 0, 0, 5}, 2}, "\"-0.05\""},
    };
    for (const auto& [value, expected] : rows)
        EXPECT_EQ(json(value), expected);
}

TEST(JsonStrings, areEscapedWhereverTheCharacterStands) {
    // Blocks of sixteen bytes and pieces of two thousand: each place in them, and each neighbour.
    for (const auto& [c, escape] : {std::pair{'"', "\\\""},
                                    {'\\', "\\\\"},
                                    {'\n', "\\n"},
                                    {'\r', "\\r"},
                                    {'\t', "\\t"},
                                    {'\0', "\\u0000"},
                                    {'\x1F', "\\u001f"}}) {
        for (std::size_t place = 0; place < 2080; place += place < 40 || place > 2020 ? 1 : 97) {
            const std::string before(place, '\x20');
            const std::string after = "!#[]\x7F\xC3\xA9\xFF";
            std::string out;
            coursetool::appendJsonString(before + c + c + after, out);
            ASSERT_EQ(out, '"' + before + escape + escape + after + '"') << place;
        }
    }
}

std::string fromStored(const std::vector<std::uint8_t>& bytes, jet::TextForm form) {
    std::string out;
    coursetool::JsonString text(out);
    jet::decodeText(bytes, form, text);
    text.close();
    return out;
}

TEST(JsonStrings, takePairsOfSurrogatesAndReplaceTheRest) {
    const std::vector<std::uint8_t> bytes{0x3D, 0xD8, 0x3D, 0xD8, 0x00, 0xDE,
                                          'x',  0,    0x00, 0xDE, 0x3D, 0xD8};
    EXPECT_EQ(fromStored(bytes, jet::TextForm::Utf16), "\"\uFFFD\U0001F600x\uFFFD\uFFFD\"");
    // The halves of a pair may come in two pieces, and one without the other before ASCII.
    const std::vector<std::uint8_t> compressed{0xFF, 0xFE, 0,   0x3D, 0xD8, 0,    0, 0x01,
                                               0xDE, 0,    'a', 0,    0x3D, 0xD8, 0, 'b'};
    EXPECT_EQ(fromStored(compressed, jet::TextForm::Compressible), "\"\U0001F601a\uFFFDb\"");
}

TEST(JsonStrings, areTheSameFromUtf16AsFromUtf8) {
    const std::u16string_view kinds[] = {u"une page sans rien d'autre ",
                                         u"éàç\r\n",
                                         u"\"\\\t",
                                         u"\u0080\u07FF\u0800\uFFFF",
                                         u"œ€’Ω漢ж",
                                         u"\xD83D\xDE00",
                                         u"\u0100a\u8022\u8041\u5C5C",
                                         std::u16string_view(u"\0b", 2)};
    std::mt19937 random(11);
    for (int i = 0; i < 3000; ++i) {
        std::u16string text;
        const std::size_t length = random() % 2500;
        while (text.size() < length)
            text += kinds[random() % (i % 2 == 0 ? 3 : 8)].substr(0, 1 + random() % 30);
        const auto stored = jet::encodeText(text, i % 3 != 0);
        ASSERT_TRUE(stored);
        std::string expected;
        coursetool::appendJsonString(text::toUtf8(text), expected);
        ASSERT_EQ(fromStored(*stored, jet::TextForm::Compressible), expected);
    }
}

struct Dump : testing::Test {
    Workspace work;
    coursetool::Report report;

    coursetool::ExitCode dump(const std::string& file, const std::string& table) {
        std::FILE* nowhere = std::tmpfile();
        coursetool::OutputBuffer out(nowhere);
        const auto code = coursetool::dump(work.path(file), table, out, report);
        std::fclose(nowhere);
        return code;
    }
};

TEST_F(Dump, listsTablesAndColumns) {
    writeDatabase(work.path("a.mdb"),
                  {{u"Un", {{u"n", ColumnType::Long}, {u"é", ColumnType::Text, 20}}, {}},
                   {u"Deux", {{u"m", ColumnType::Memo}}, {}}});
    EXPECT_THAT(work.rows("a.mdb", ""),
                testing::UnorderedElementsAre(
                    R"({"table":"Un","columns":[{"name":"n","type":"Long"},)"
                    R"({"name":"é","type":"Text","length":20}]})",
                    R"({"table":"Deux","columns":[{"name":"m","type":"Memo"}]})"));
}

TEST_F(Dump, tellsWhatIsWrong) {
    writeDatabase(work.path("a.mdb"), {{u"Un", {{u"n", ColumnType::Long}}, {}}});
    EXPECT_EQ(dump("a.mdb", "Trois"), coursetool::ExitCode::WrongCall);
    EXPECT_THAT(textOf(report), HasSubstr("Trois"));
    work.write("b.mdb", "no database");
    EXPECT_EQ(dump("b.mdb", ""), coursetool::ExitCode::Faults);
    EXPECT_THAT(textOf(report), HasSubstr("b.mdb: "));
}

TEST_F(Dump, ofADamagedFileGivesTheRowsThatAreLeft) {
    std::vector<std::vector<jet::Value>> rows;
    for (std::int32_t i = 0; i < 500; ++i)
        rows.push_back({i, std::u16string(100, u'y')});
    writeDatabase(work.path("a.mdb"),
                  {{u"t", {{u"n", ColumnType::Long}, {u"x", ColumnType::Text, 100}}, rows}});
    std::string bytes = work.read("a.mdb");
    work.write("a.mdb", bytes.substr(0, bytes.size() - 4 * 4096));
    std::FILE* stream = std::tmpfile();
    coursetool::OutputBuffer out(stream);
    EXPECT_EQ(coursetool::dump(work.path("a.mdb"), "t", out, report), coursetool::ExitCode::Faults);
    EXPECT_GT(std::ftell(stream), 1000);
    EXPECT_TRUE(report.hasFaults());
    std::fclose(stream);
}

} // namespace
