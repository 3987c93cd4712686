#include "jet/catalog.h"

#include "jet/names.h"
#include "jet/table_reader.h"
#include "text/utf8.h"

#include <array>
#include <string>
#include <unordered_set>
#include <utility>

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

/// Takes the entries one by one.
class CatalogReader {
public:
    explicit CatalogReader(PageSource& source) : source_(source) {}

    void add(std::span<const Value> cells) {
        if (!isUserTable(cells[2], cells[3]))
            return;
        const auto id = cells[0].integer();
        const std::u16string* name = cells[1].text();
        if (!id || !name || name->empty()) {
            catalog_.problems.add("catalogue : une table sans nom ou sans numéro est passée");
            return;
        }
        const TableInfo table{*name, static_cast<std::uint32_t>(*id) & kPageOfId};
        if (const char* fault = whyNot(table))
            catalog_.problems.add("catalogue : table « " + text::toUtf8(*name) + " » passée, " +
                                  fault);
        else
            catalog_.tables.push_back(table);
    }

    Catalog take() { return std::move(catalog_); }

private:
    /// Why the table cannot be listed; nullptr when it can. Of two entries with the same name or
    /// the same page the first one wins.
    const char* whyNot(const TableInfo& table) {
        const auto page = source_.page(table.definitionPage);
        if (!page || page->type() != PageType::Definition)
            return "sa page n’est pas une définition";
        if (!pages_.insert(table.definitionPage).second)
            return "sa définition est celle d’une autre table";
        return names_.insert(foldedName(table.name)).second ? nullptr
                                                            : "une autre table a le même nom";
    }

    PageSource& source_;
    Catalog catalog_;
    std::unordered_set<std::uint32_t> pages_;
    std::unordered_set<std::u16string> names_;
};

/// Texts of Jet 3 are read in one code page only.
void addForeignCodePage(const PageSource& source, Catalog& catalog) {
    constexpr std::uint16_t kWindows1252 = 1252;
    if (!source.format().wideText && source.header().codePage != kWindows1252)
        catalog.problems.add("en-tête : la page de code " +
                             std::to_string(source.header().codePage) +
                             " est lue comme la page 1252");
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
                           "catalogue : il n’a pas de colonne « " + text::toUtf8(names[i]) + " »"};
        columns[i] = *index;
    }
    CatalogReader entries(*source);
    const Problems met = (*reader)->scan(columns, [&](std::size_t, std::span<const Value> cells) {
        entries.add(cells);
        return true;
    });
    Catalog catalog = entries.take();
    catalog.problems.add(met);
    addForeignCodePage(*source, catalog);
    return catalog;
}

} // namespace jet
