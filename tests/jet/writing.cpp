#include "jet/writing.h"

#include "jet/csv_dump.h"
#include "jet/database_file.h"

#include <gtest/gtest.h>

#include <limits>

using jet::Column;
using jet::ColumnType;
using jet::Value;

void writeDatabase(const std::filesystem::path& path, const std::vector<NewTable>& tables) {
    auto writer = jet::createDatabase(path);
    ASSERT_TRUE(writer) << writer.error().sentence;
    for (const NewTable& table : tables) {
        auto added = writer->addTable(table.name, table.columns);
        ASSERT_TRUE(added) << added.error().sentence;
        for (const auto& row : table.rows) {
            const auto appended = added->append(row);
            ASSERT_TRUE(appended) << appended.error().sentence;
        }
    }
    const auto finished = writer->finish();
    ASSERT_TRUE(finished) << finished.error().sentence;
}

Rows readTable(const std::filesystem::path& path, std::u16string_view name) {
    Rows rows;
    const auto database = jet::openDatabase(path);
    EXPECT_TRUE(database) << database.error().sentence;
    if (!database)
        return rows;
    auto table = database->table(name);
    EXPECT_TRUE(table) << table.error().sentence;
    for (std::size_t i = 0; table && i < table->recordCount(); ++i) {
        auto record = table->record(i);
        EXPECT_TRUE(record) << record.error().sentence;
        rows.push_back(record ? std::move(*record) : std::vector<Value>());
    }
    return rows;
}

NewTable everyType() {
    NewTable table;
    table.name = u"Every type_1";
    table.columns = {
        {.name = u"Flag", .type = ColumnType::Boolean},
        {.name = u"Octet", .type = ColumnType::Byte},
        {.name = u"Entier", .type = ColumnType::Integer},
        {.name = u"Long", .type = ColumnType::Long, .autoNumber = true},
        {.name = u"Prix", .type = ColumnType::Currency},
        {.name = u"Simple", .type = ColumnType::Single},
        {.name = u"Réel", .type = ColumnType::Double},
        {.name = u"Date", .type = ColumnType::DateTime},
        {.name = u"Texte", .type = ColumnType::Text, .length = 255},
        {.name = u"Fixe", .type = ColumnType::Text, .length = 5, .fixedLength = true},
        {.name = u"Octets", .type = ColumnType::Binary, .length = 255},
        {.name = u"Image", .type = ColumnType::Ole},
        {.name = u"Memo", .type = ColumnType::Memo},
        {.name = u"Clé", .type = ColumnType::Guid},
        {.name = u"Décimal", .type = ColumnType::Decimal, .precision = 28, .scale = 3}};
    const jet::Guid guid{{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 255}};
    const jet::Decimal decimal{true, {0, 542101086, 1042612833, 268435455}, 3};
    using Limits = std::numeric_limits<std::int32_t>;
    table.rows = {{true, std::uint8_t{255}, std::int16_t{-32768}, Limits::max(),
                   jet::Currency{std::numeric_limits<std::int64_t>::min()}, 3.25f, -1e300,
                   jet::DateTime{-1.75}, u"é€Ωж漢", u"ab   ", jet::Binary(255, 0xFE),
                   jet::Binary{0, 1, 2}, u"court", guid, decimal},
                  {false, std::uint8_t{0}, std::int16_t{32767}, Limits::min(), jet::Currency{-1},
                   -0.0f, std::numeric_limits<double>::denorm_min(), jet::DateTime{2958465.5}, u"",
                   u"     ", jet::Binary{}, jet::Binary{}, u"", jet::Guid{},
                   jet::Decimal{false, {}, 3}},
                  {false, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}},
                  {true,
                   std::uint8_t{1},
                   {},
                   7,
                   {},
                   1.5f,
                   {},
                   jet::DateTime{36526},
                   {},
                   u"fixe5",
                   {},
                   jet::Binary(5000, 7),
                   {},
                   guid,
                   {}}};
    return table;
}

NewTable memosOfEveryLength() {
    NewTable table;
    table.name = u"Memos";
    table.columns = {{.name = u"n", .type = ColumnType::Long},
                     {.name = u"texte", .type = ColumnType::Memo},
                     {.name = u"suite", .type = ColumnType::Memo, .compressible = false},
                     {.name = u"octets", .type = ColumnType::Ole}};
    // Around the lengths, in characters or bytes, where a value is compressed or not, leaves the
    // row, leaves a shared page, or takes one page more.
    for (const int edge :
         {0, 2, 32, 62, 64, 1024, 2036, 2038, 4072, 4076, 6108, 8144, 12216, 70000})
        for (const int length : {edge - 1, edge, edge + 1}) {
            if (length < 0)
                continue;
            const auto size = static_cast<std::size_t>(length);
            std::u16string text(size, u'x');
            for (std::size_t i = 0; i < size; ++i)
                text[i] = static_cast<char16_t>(u'a' + i % 26);
            if (size > 5)
                text[size / 2] = u'é';
            jet::Binary bytes(size);
            for (std::size_t i = 0; i < size; ++i)
                bytes[i] = static_cast<std::uint8_t>(i * 7);
            table.rows.push_back({length, text, text, bytes});
        }
    return table;
}

void jet::PrintTo(const Value& value, std::ostream* out) {
    const std::string text = dumpCell(value).value_or("NULL");
    *out << text.substr(0, 80) << " (" << text.size() << " bytes)";
}
