#include "jet/database_builder.h"

#include "jet/names.h"
#include "jet/schema_check.h"
#include "jet/system_tables.h"
#include "text/utf8.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

Result<void> addObject(TableBuilder& objects, const CatalogObject& object) {
    const auto row = objects.add(rowOf(object));
    if (!row)
        return row.error();
    objects.index(static_cast<std::size_t>(ObjectsIndex::ParentIdName))
        .add(IndexKey().add(object.parent).add(object.name), *row);
    objects.index(static_cast<std::size_t>(ObjectsIndex::Id)).add(IndexKey().add(object.id), *row);
    return {};
}

Result<void> addRights(TableBuilder& rights, const std::vector<ObjectRight>& added) {
    for (const ObjectRight& right : added) {
        const auto row = rights.add(rowOf(right));
        if (!row)
            return row.error();
        rights.index(static_cast<std::size_t>(RightsIndex::ObjectId))
            .add(IndexKey().add(right.object), *row);
    }
    return {};
}

} // namespace

DatabaseBuilder::DatabaseBuilder(std::unique_ptr<OutputFile> file)
    : file_(std::move(file)), systemMaps_(std::make_unique<MapPages>(*file_, kSystemMapPage)) {
    while (file_->pageCount() < kReservedPages)
        file_->allocate();
    for (TablePlan plan : {objectsTable(), rightsTable(), queriesTable(), relationshipsTable()})
        systemTables_.push_back(
            std::make_unique<TableBuilder>(std::move(plan), *file_, *systemMaps_));
}

Result<TableBuilder*> DatabaseBuilder::addTable(std::u16string_view name,
                                                std::span<const Column> columns) {
    if (const auto open = file_->state(); !open)
        return open.error();
    if (const auto fine = checkSchema(name, columns); !fine)
        return fine.error();
    for (const Table& other : tables_)
        if (sameName(other.builder->name(), name))
            return Failure{Failure::Kind::Refused,
                           "table « " + text::toUtf8(name) + " » : une autre table a le même nom"};
    Table table;
    table.maps = std::make_unique<MapPages>(*file_);
    table.builder = std::make_unique<TableBuilder>(userTable(name, columns), *file_, *table.maps);
    tables_.push_back(std::move(table));
    return tables_.back().builder.get();
}

Result<void> DatabaseBuilder::finish() {
    if (auto open = file_->state(); !open)
        return open;
    if (auto listed = listTables(); !listed)
        return listed;
    writePages();
    return file_->putInPlace();
}

/// The catalog and the rights: the engine's own entries, then those of the tables.
Result<void> DatabaseBuilder::listTables() {
    TableBuilder& objects = *systemTables_[0];
    TableBuilder& rights = *systemTables_[1];
    std::vector<CatalogObject> all = engineObjects();
    std::vector<ObjectRight> allRights = engineRights();
    for (const Table& table : tables_) {
        const std::uint32_t page = table.builder->definitionPage();
        all.push_back(userTableObject(page, table.builder->name()));
        const auto added = userTableRights(page);
        allRights.insert(allRights.end(), added.begin(), added.end());
    }
    for (const CatalogObject& object : all)
        if (auto added = addObject(objects, object); !added)
            return added;
    return addRights(rights, allRights);
}

/// Each step takes pages that the next ones tell of: rows and indexes, then the maps, then the
/// definitions with their counts, and the map of free pages when no page is taken any more.
void DatabaseBuilder::writePages() {
    for (Table& table : tables_)
        table.builder->finishPages();
    for (const auto& table : systemTables_)
        table->finishPages();
    for (Table& table : tables_)
        table.maps->write();
    systemMaps_->write();
    for (Table& table : tables_)
        table.builder->writeDefinition();
    for (const auto& table : systemTables_)
        table->writeDefinition();
    writeGlobalMap();
    file_->write(0, headerPage());
}

void DatabaseBuilder::writeGlobalMap() {
    constexpr std::uint32_t kOwner = 1;
    DataPageBuilder page(kGlobalMapPage, kOwner);
    page.add(globalMapRow(*file_));
    page.add(std::vector<std::uint8_t>(kMapRowBytes)); // of no known use
    file_->write(kGlobalMapPage, page.image());
}

} // namespace jet
