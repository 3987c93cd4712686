// Changes of a record, in a file that may be damaged: what was asked for stands there afterwards,
// and every other record as it stood.

#include "databases.h"
#include "formats/all.h"
#include "jet/database_file.h"
#include "jet/editor.h"
#include "seeds.h"

#include <optional>
#include <string>

namespace fuzz {

namespace {

/// Cells of a table, nothing for those that cannot be read.
using Cells = std::vector<std::vector<std::optional<jet::Value>>>;

struct Content {
    std::vector<jet::Column> columns;
    Cells records;
};

std::optional<Content> readContent(const std::filesystem::path& file, std::u16string_view name) {
    const auto database = jet::openDatabase(file);
    if (!database)
        return std::nullopt;
    auto table = database->table(name);
    if (!table)
        return std::nullopt;
    Content content{table->columns(), {}};
    table->visit([&](jet::RecordView& record) {
        auto& cells = content.records.emplace_back();
        for (std::size_t column = 0; column < content.columns.size(); ++column) {
            auto value = record.value(column);
            cells.push_back(value ? std::optional(std::move(*value)) : std::nullopt);
        }
        return true;
    });
    return content;
}

/// A number of the input's own, so that the same input is changed in the same place.
std::size_t numberOf(Input input) {
    std::size_t number = input.size();
    for (const std::byte byte : input)
        number = number * 31 + static_cast<std::size_t>(byte);
    return number;
}

std::optional<std::size_t> textColumn(const Content& content, std::size_t number) {
    for (std::size_t i = 0; i < content.columns.size(); ++i) {
        const std::size_t column = (number + i) % content.columns.size();
        const jet::ColumnType type = content.columns[column].type;
        if (type == jet::ColumnType::Text || type == jet::ColumnType::Memo)
            return column;
    }
    return std::nullopt;
}

bool isSame(const std::optional<jet::Value>& before, const std::optional<jet::Value>& after) {
    // What is no number is not itself either: as texts they are the same.
    if (before && after && before->as<double>() && after->as<double>())
        return std::to_string(*before->as<double>()) == std::to_string(*after->as<double>());
    if (before && after && before->as<float>() && after->as<float>())
        return std::to_string(*before->as<float>()) == std::to_string(*after->as<float>());
    if (before && after && before->as<jet::DateTime>() && after->as<jet::DateTime>())
        return std::to_string(before->as<jet::DateTime>()->days) ==
               std::to_string(after->as<jet::DateTime>()->days);
    return before == after;
}

/// `text`: what was put into a cell; nothing when the change was refused.
void requireOthersSame(const Content& before, const Content& after, std::size_t position,
                       std::size_t column, const std::optional<std::u16string>& text) {
    require(before.records.size() == after.records.size(), "a change keeps the number of records");
    for (std::size_t i = 0; i < before.records.size(); ++i)
        for (std::size_t j = 0; j < before.columns.size(); ++j) {
            if (text && i == position && j == column) {
                require(after.records[i][j] == jet::Value(*text), "what was changed reads back");
                continue;
            }
            if (before.records[i][j])
                require(isSame(before.records[i][j], after.records[i][j]),
                        "a change leaves the other cells");
        }
}

void changeOnce(const std::filesystem::path& file, const jet::TableInfo& info, std::size_t number) {
    const auto before = readContent(file, info.name);
    if (!before || before->records.empty())
        return;
    const auto column = textColumn(*before, number);
    if (!column)
        return;
    const std::size_t position = number / 7 % before->records.size();
    const std::u16string text(number / 11 % 4 == 0 ? 9000 : number / 13 % 40, u'é');
    auto editor = jet::DatabaseEditor::open(file);
    if (!editor)
        return requireWords(editor.error());
    const auto changed =
        editor->changeText(info.name, position, before->columns[*column].name, text);
    if (!changed)
        requireWords(changed.error());
    const auto after = readContent(file, info.name);
    require(after.has_value(), "a table can be read after a change");
    requireOthersSame(*before, *after, position, *column,
                      changed ? std::optional(text) : std::nullopt);
}

void readOne(Input input) {
    const auto file = scratchFolder() / "cours.mdb";
    writeBytes(file, input);
    std::vector<jet::TableInfo> tables;
    if (const auto database = jet::openDatabase(file))
        tables = database->tables();
    const std::size_t number = numberOf(input);
    // Two changes one after the other: the second meets what the first has left.
    for (std::size_t i = 0; i < 2 && !tables.empty(); ++i)
        changeOnce(file, tables[(number + i) % tables.size()], number + i);
}

} // namespace

const Format kDatabaseEdit{"database-edit",      readOne,      kDatabaseSeeds, kDatabaseWords,
                           std::size_t{4} << 20, kDatabasePage};

} // namespace fuzz
