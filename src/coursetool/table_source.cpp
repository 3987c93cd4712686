#include "coursetool/table_source.h"

#include "coursetool/dump.h"
#include "coursetool/field_text.h"
#include "coursetool/paths.h"
#include "text/utf8.h"

#include <algorithm>

namespace coursetool {

TableSource::TableSource(const jet::Database& database, const std::filesystem::path& file,
                         const TableRule& rule, Report& report)
    : file_(file), rule_(rule), report_(report) {
    auto table = database.table(text::toUtf16(rule.name));
    if (!table) {
        report.fault({shown(file)}, table.error().sentence);
        return;
    }
    table_ = *std::move(table);
    matchColumns();
}

void TableSource::matchColumns() {
    for (const FieldRule& field : rule_.fields)
        columns_.push_back(table_->columnIndex(text::toUtf16(field.name)));
    const auto tell = [&](const jet::Column& column, std::string_view sentence) {
        report_.fault({shown(file_) + ": " + std::string(rule_.name)},
                      "champ " + inQuotes(text::toUtf8(column.name)) + std::string(sentence));
    };
    for (std::size_t i = 0; i < table_->columns().size(); ++i) {
        const jet::Column& column = table_->columns()[i];
        const auto taken = std::find(columns_.begin(), columns_.end(), i);
        if (taken == columns_.end()) {
            tell(column, " non repris : les sources n’ont pas ce champ");
            continue;
        }
        const FieldRule& field = rule_.fields[static_cast<std::size_t>(taken - columns_.begin())];
        if (!isOfSameKind(column.type, field))
            tell(column, std::string(" de type ") + jet::typeName(column.type) +
                             " : build en fera un champ " + jet::typeName(field.type));
    }
}

std::size_t TableSource::recordCount() {
    return table_ ? table_->recordCount() : 0;
}

void TableSource::forEach(const std::function<void(SourceRecord&)>& visit) {
    if (!table_)
        return;
    const jet::Problems passedOver = table_->visit([&](jet::RecordView& view) {
        SourceRecord record;
        read(view, record);
        visit(record);
        return true;
    });
    reportProblems(passedOver, file_, report_);
}

void TableSource::read(jet::RecordView& record, SourceRecord& into) {
    into.position = record.position();
    into.place = placeOf(into.position);
    for (const auto& column : columns_) {
        auto value = column ? record.value(*column) : jet::Result<jet::Value>(jet::Value());
        if (!value)
            report_.fault(into.place, value.error().sentence);
        into.values.push_back(value ? *std::move(value) : jet::Value());
    }
}

Place TableSource::placeOf(std::size_t position) const {
    return {shown(file_) + ": " + std::string(rule_.name) + ", enregistrement " +
            std::to_string(position + 1)};
}

} // namespace coursetool
