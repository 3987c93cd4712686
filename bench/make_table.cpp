// Writes a course database with any number of pages of 1.6 KB: make_table FILE ROWS

#include "jet/database_file.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

const std::vector<jet::Column>& columns() {
    using jet::ColumnType;
    static const std::vector<jet::Column> kColumns = {
        {u"Numeropage", ColumnType::Long}, {u"Index", ColumnType::Long},
        {u"titre", ColumnType::Text, 255}, {u"precedent", ColumnType::Boolean},
        {u"suite", ColumnType::Boolean},   {u"imprimable", ColumnType::Boolean},
        {u"moteur", ColumnType::Boolean},  {u"debutimp", ColumnType::Long},
        {u"finimp", ColumnType::Long},     {u"sommaire", ColumnType::Long},
        {u"fpc", ColumnType::Memo},
    };
    return kColumns;
}

/// 1,600 characters of page source, different on every page.
std::u16string pageSource(int page) {
    std::u16string source =
        u"##SI14\r\n##BOL1\r\nLa réfraction de la lumière¶\r\n##BOL0\r\n##SI12\r\n";
    int word = page;
    while (source.size() < 1560) {
        source += u"Un rayon lumineux change de direction à la surface ";
        for (char digit : std::to_string(++word))
            source += static_cast<char16_t>(digit);
        source += u"¶\r\n";
    }
    return source;
}

int fail(const jet::Failure& failure) {
    std::fprintf(stderr, "%s\n", failure.sentence.c_str());
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const int rows = std::atoi(argv[2]);
    auto writer = jet::createDatabase(argv[1]);
    if (!writer)
        return fail(writer.error());
    auto table = writer->addTable(u"cours", columns());
    if (!table)
        return fail(table.error());
    for (int page = 1; page <= rows; ++page) {
        const std::int32_t number = page;
        const jet::Value values[] = {
            number, number, u"La réfraction", page > 1,        page < rows,     true,
            true,   number, number,           std::int32_t{1}, pageSource(page)};
        if (auto done = table->append(values); !done)
            return fail(done.error());
    }
    auto done = writer->finish();
    return done ? 0 : fail(done.error());
}
