#include "jet/editor.h"

#include "jet/catalog.h"
#include "jet/database_file.h"
#include "jet/names.h"
#include "jet/page_changes.h"
#include "jet/page_file.h"
#include "jet/row_change.h"
#include "jet/table_rows.h"
#include "jet/table_tidier.h"
#include "text/utf8.h"

#include <algorithm>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace jet {

namespace {

/// Texts of Jet 3 are written in one code page only.
constexpr std::uint16_t kWindows1252 = 1252;

/// Another program that has the database open for writing keeps such a file beside it.
bool hasLockFile(std::filesystem::path path) {
    std::error_code error;
    return std::filesystem::exists(path.replace_extension(".ldb"), error) ||
           std::filesystem::exists(path.replace_extension(".LDB"), error);
}

/// The table a row is changed in, as the file has it now.
struct OpenTable {
    std::shared_ptr<PageSource> source;
    std::string label;
    TableDefinition definition;
    TableTail tail;

    Failure failure(const Failure& failure) const {
        return {failure.kind, label + " : " + failure.sentence};
    }
};

Result<OpenTable> openTable(const std::filesystem::path& path, std::u16string_view name) {
    auto source = openPages(path);
    if (!source)
        return source.error();
    const auto catalog = readCatalog(*source);
    if (!catalog)
        return catalog.error();
    const auto found = std::find_if(catalog->tables.begin(), catalog->tables.end(),
                                    [&](const TableInfo& t) { return sameName(t.name, name); });
    if (found == catalog->tables.end())
        return Failure{Failure::Kind::NotFound, "pas de table « " + text::toUtf8(name) + " »"};
    OpenTable table{*source, "table « " + text::toUtf8(found->name) + " »", {}, {}};
    auto definition = readTableDefinition(**source, found->definitionPage);
    if (!definition)
        return table.failure(definition.error());
    table.definition = std::move(*definition);
    auto tail = readTableTail(table.definition);
    if (!tail)
        return table.failure(tail.error());
    table.tail = std::move(*tail);
    return table;
}

Result<std::vector<ChangedCell>> encode(const OpenTable& table, std::span<const CellChange> cells) {
    std::vector<ChangedCell> encoded;
    const std::vector<Column>& columns = table.definition.columns;
    for (const CellChange& cell : cells) {
        const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& column) {
            return sameName(column.name, cell.column);
        });
        const auto index = static_cast<std::size_t>(found - columns.begin());
        const std::string name = "colonne « " + text::toUtf8(cell.column) + " »";
        if (found == columns.end())
            return Failure{Failure::Kind::NotFound, "pas de " + name};
        if (std::any_of(encoded.begin(), encoded.end(),
                        [index](const ChangedCell& other) { return other.column == index; }))
            return Failure{Failure::Kind::Refused, name + " donnée deux fois"};
        auto one = encodeChangedCell(table.definition, table.tail, index, cell.value);
        if (!one)
            return one.error();
        encoded.push_back(std::move(*one));
    }
    return encoded;
}

Result<RowPointer> placeOf(const OpenTable& table, std::size_t position) {
    TableRows rows(*table.source, table.definition, table.label);
    RowPointer place;
    RowPointer body;
    const bool found = rows.at(position, [&](const LiveRow& live) {
        place = live.place;
        body = live.body;
        return true;
    });
    if (!found)
        return Failure{Failure::Kind::NotFound, "pas d’enregistrement " + std::to_string(position)};
    // Pointers of a damaged table can lead to one and the same row.
    bool isShared = false;
    if (!(body == place))
        rows.forEach([&](const LiveRow& live) {
            isShared = live.body == body && live.position != position;
            return !isShared;
        });
    if (isShared)
        return Failure{Failure::Kind::Damaged, "l’enregistrement " + std::to_string(position) +
                                                   " en est un autre à la fois"};
    return place;
}

/// The change of one row, planned but not written.
class PlannedChange {
public:
    PlannedChange() = default;
    PlannedChange(const PlannedChange&) = delete;
    PlannedChange& operator=(const PlannedChange&) = delete;

    Result<void> plan(const std::filesystem::path& path, std::u16string_view tableName,
                      std::size_t position, std::span<const CellChange> cells) {
        auto table = openTable(path, tableName);
        if (!table)
            return table.error();
        table_ = std::move(*table);
        auto encoded = encode(table_, cells);
        if (!encoded)
            return table_.failure(encoded.error());
        const auto place = placeOf(table_, position);
        if (!place)
            return table_.failure(place.error());
        changes_.emplace(*table_.source);
        row_.emplace(*changes_, table_.definition, table_.tail);
        if (auto planned = row_->plan(*place, std::move(*encoded)); !planned)
            return table_.failure(
                {planned.error().kind,
                 "enregistrement " + std::to_string(position) + " : " + planned.error().sentence});
        return {};
    }

    Result<void> commit(PageSink& sink) { return changes_->commit(sink); }

    /// Gives back what changes cut short have left in the table. Not to be followed by commit().
    Result<void> clearUp(PageSink& sink) {
        PageChanges changes(*table_.source);
        TableTidier(changes, table_.definition, table_.tail).planLost();
        return changes.commit(sink);
    }

    /// After commit(): gives back what the row had and has no more, as far as that is possible.
    void tidy(const std::filesystem::path& path, PageSink& sink) {
        const auto source = openPages(path);
        if (!source)
            return;
        PageChanges changes(**source);
        TableTidier(changes, table_.definition, table_.tail).plan(row_->leftValues());
        (void)changes.commit(sink);
    }

private:
    OpenTable table_;
    std::optional<PageChanges> changes_;
    std::optional<RowChange> row_;
};

} // namespace

Result<DatabaseEditor> DatabaseEditor::open(const std::filesystem::path& path) {
    auto sink = PageFile::open(path);
    if (!sink)
        return sink.error();
    return open(path, std::move(*sink));
}

Result<DatabaseEditor> DatabaseEditor::open(const std::filesystem::path& path,
                                            std::unique_ptr<PageSink> sink) {
    if (hasLockFile(path))
        return fileFailure(Failure::Kind::System, path,
                           "un autre programme l’a ouverte (fichier .ldb)");
    const auto source = openPages(path);
    if (!source)
        return source.error();
    if (!(*source)->format().wideText && (*source)->header().codePage != kWindows1252)
        return fileFailure(Failure::Kind::Unsupported, path,
                           "sa page de code n’est pas la page 1252, elle n’est que lue");
    return DatabaseEditor(path, std::move(sink));
}

DatabaseEditor::DatabaseEditor(std::filesystem::path path, std::unique_ptr<PageSink> sink)
    : path_(std::move(path)), sink_(std::move(sink)) {}
DatabaseEditor::DatabaseEditor(DatabaseEditor&&) noexcept = default;
DatabaseEditor& DatabaseEditor::operator=(DatabaseEditor&&) noexcept = default;
DatabaseEditor::~DatabaseEditor() = default;

Result<void> DatabaseEditor::change(std::u16string_view tableName, std::size_t position,
                                    std::span<const CellChange> cells) {
    {
        // What is refused leaves the file as it is, so nothing is written before a plan stands.
        PlannedChange rehearsed;
        if (auto planned = rehearsed.plan(path_, tableName, position, cells); !planned)
            return planned;
        // Left to the end, this would never be done where changes are cut short again and again,
        // and the file would grow with each.
        if (auto cleared = rehearsed.clearUp(*sink_); !cleared)
            return cleared;
    }
    PlannedChange change;
    if (auto planned = change.plan(path_, tableName, position, cells); !planned)
        return planned;
    if (auto written = change.commit(*sink_); !written)
        return written;
    // The change stands; room that cannot be given back is lost, nothing else.
    change.tidy(path_, *sink_);
    return {};
}

Result<void> DatabaseEditor::changeText(std::u16string_view table, std::size_t position,
                                        std::u16string_view column, std::u16string_view text) {
    const CellChange cell{column, Value(std::u16string(text))};
    return change(table, position, {&cell, 1});
}

} // namespace jet
