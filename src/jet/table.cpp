#include "jet/table.h"

#include "jet/table_reader.h"

#include <utility>

namespace jet {

Table::Table(std::unique_ptr<TableReader> reader) : reader_(std::move(reader)) {}
Table::Table(Table&&) noexcept = default;
Table& Table::operator=(Table&&) noexcept = default;
Table::~Table() = default;

const std::u16string& Table::name() const {
    return reader_->name();
}

const std::vector<Column>& Table::columns() const {
    return reader_->columns();
}

std::optional<std::size_t> Table::columnIndex(std::u16string_view name) const {
    return reader_->columnIndex(name);
}

std::size_t Table::recordCount() {
    return reader_->recordCount();
}

Result<Value> Table::value(std::size_t position, std::size_t column) {
    return reader_->value(position, column);
}

Result<std::vector<Value>> Table::record(std::size_t position) {
    return reader_->record(position);
}

Problems Table::scan(std::span<const std::size_t> columns, const ScanCallback& callback) {
    return reader_->scan(columns, callback);
}

Problems Table::visit(const VisitCallback& callback, std::size_t first) {
    return reader_->visit(callback, first);
}

const Problems& Table::problems() const {
    return reader_->problems();
}

} // namespace jet
