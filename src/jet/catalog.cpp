#include "jet/catalog.h"

#include "jet/table_reader.h"
#include "jet/unicode.h"

#include <algorithm>
#include <array>
#include <string>

namespace jet {

namespace {

constexpr std::int32_t kTableType = 1;
/// Either flag makes an object the system's.
constexpr std::uint32_t kSystemFlags = 0x80000002;
constexpr std::uint32_t kPageOfId = 0x00FFFFFF;

bool isUserTable(const Value& type, const Value& flags) {
    const auto number = type.integer();
    const auto bits = flags.integer();
    return number == kTableType &&
           (static_cast<std::uint32_t>(bits.value_or(0)) & kSystemFlags) == 0;
}

/// Why a table of that name and page cannot be listed; nullptr when it can.
const char* whyNot(const Catalog& catalog, const TableInfo& table, PageSource& source) {
    for (const TableInfo& other : catalog.tables) {
        if (other.definitionPage == table.definitionPage)
            return "sa définition est celle d'une autre table";
        if (sameName(other.name, table.name))
            return "une autre table a le même nom";
    }
    const auto page = source.page(table.definitionPage);
    return page && page->type() == PageType::Definition ? nullptr
                                                        : "sa page n'est pas une définition";
}

void addEntry(std::span<const Value> cells, PageSource& source, Catalog& catalog) {
    const auto id = cells[0].integer();
    const std::u16string* name = cells[1].text();
    if (!isUserTable(cells[2], cells[3]))
        return;
    if (!id || !name || name->empty()) {
        catalog.problems.add("catalogue : une table sans nom ou sans numéro est passée");
        return;
    }
    const TableInfo table{*name, static_cast<std::uint32_t>(*id) & kPageOfId};
    if (const char* fault = whyNot(catalog, table, source))
        catalog.problems.add("catalogue : table « " + toUtf8(table.name) + " » passée, " + fault);
    else
        catalog.tables.push_back(table);
}

} // namespace

Result<Catalog> readCatalog(const std::shared_ptr<PageSource>& source) {
    auto reader = TableReader::open(source, kCatalogPage, u"MSysObjects");
    if (!reader)
        return reader.error();
    std::array<std::size_t, 4> columns{};
    constexpr std::array<std::u16string_view, 4> names{u"Id", u"Name", u"Type", u"Flags"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto index = (*reader)->columnIndex(names[i]);
        if (!index)
            return Failure{Failure::Kind::Damaged,
                           "catalogue : il n'a pas de colonne « " + toUtf8(names[i]) + " »"};
        columns[i] = *index;
    }
    Catalog catalog;
    const Problems met = (*reader)->scan(columns, [&](std::size_t, std::span<const Value> cells) {
        addEntry(cells, *source, catalog);
        return true;
    });
    catalog.problems.add(met);
    return catalog;
}

} // namespace jet
