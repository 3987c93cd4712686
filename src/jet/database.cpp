#include "jet/database.h"

#include "jet/catalog.h"
#include "jet/names.h"
#include "jet/page_source.h"
#include "jet/table_reader.h"
#include "text/utf8.h"

#include <algorithm>
#include <utility>

namespace jet {

struct Database::State {
    std::shared_ptr<PageSource> source;
    Catalog catalog;
};

Result<Database> Database::open(std::unique_ptr<ByteSource> source, std::string_view name) {
    auto pages = PageSource::open(std::move(source), name);
    if (!pages)
        return pages.error();
    auto catalog = readCatalog(*pages);
    if (!catalog)
        return catalog.error();
    return Database(std::make_unique<State>(State{std::move(*pages), std::move(*catalog)}));
}

Database::Database(std::unique_ptr<State> state) : state_(std::move(state)) {}
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() = default;

Engine Database::engine() const {
    return &state_->source->format() == &kJet3 ? Engine::Jet3 : Engine::Jet4;
}

const std::vector<TableInfo>& Database::tables() const {
    return state_->catalog.tables;
}

Result<Table> Database::table(std::u16string_view name) const {
    const auto found = std::find_if(tables().begin(), tables().end(), [&](const TableInfo& table) {
        return sameName(table.name, name);
    });
    if (found == tables().end())
        return Failure{Failure::Kind::NotFound, "pas de table « " + text::toUtf8(name) + " »"};
    auto reader = TableReader::open(state_->source, found->definitionPage, found->name);
    if (!reader)
        return reader.error();
    return Table(std::move(*reader));
}

const Problems& Database::problems() const {
    return state_->catalog.problems;
}

} // namespace jet
