#include "jet/writer.h"

#include "jet/database_builder.h"

#include <utility>

namespace jet {

Result<void> TableWriter::append(std::span<const Value> values) {
    const auto added = table_->add(values);
    if (!added)
        return added.error();
    return {};
}

DatabaseWriter DatabaseWriter::create(std::unique_ptr<ByteSink> sink) {
    return DatabaseWriter(
        std::make_unique<DatabaseBuilder>(std::make_unique<OutputFile>(std::move(sink))));
}

DatabaseWriter::DatabaseWriter(std::unique_ptr<DatabaseBuilder> builder)
    : builder_(std::move(builder)) {}
DatabaseWriter::DatabaseWriter(DatabaseWriter&&) noexcept = default;
DatabaseWriter& DatabaseWriter::operator=(DatabaseWriter&&) noexcept = default;
DatabaseWriter::~DatabaseWriter() = default;

Result<TableWriter> DatabaseWriter::addTable(std::u16string_view name,
                                             std::span<const Column> columns) {
    const auto table = builder_->addTable(name, columns);
    if (!table)
        return table.error();
    return TableWriter(*table);
}

Result<void> DatabaseWriter::finish() {
    return builder_->finish();
}

} // namespace jet
