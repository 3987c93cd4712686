#pragma once

#include "jet/long_values.h"
#include "jet/table.h"
#include "jet/table_definition.h"
#include "jet/table_rows.h"
#include "jet/text_codec.h"

#include <cstdint>
#include <memory>
#include <string>

namespace jet {

/// What a Table does; see there. Also reads the catalog, which is a table like any other.
class TableReader {
public:
    static Result<std::unique_ptr<TableReader>> open(std::shared_ptr<PageSource> source,
                                                     std::uint32_t page, std::u16string name);
    TableReader(const TableReader&) = delete;
    TableReader& operator=(const TableReader&) = delete;

    const std::u16string& name() const { return name_; }
    const std::vector<Column>& columns() const { return definition_.columns; }
    std::optional<std::size_t> columnIndex(std::u16string_view name) const;
    std::size_t recordCount() { return rows_.count(); }
    const Problems& problems() const { return rows_.problems(); }

    Result<Value> value(std::size_t position, std::size_t column);
    Result<std::vector<Value>> record(std::size_t position);
    Problems scan(std::span<const std::size_t> columns, const Table::ScanCallback& callback);
    Problems visit(const Table::VisitCallback& callback, std::size_t first);

private:
    class View;

    TableReader(std::shared_ptr<PageSource> source, TableDefinition definition,
                std::u16string name);
    std::string label() const;
    TextForm textForm(std::size_t column) const;
    bool isNull(const Row& row, std::size_t column) const;
    Result<void> readCell(const LiveRow& live, std::size_t column, Value& into);
    Result<bool> decodeCellText(const LiveRow& live, std::size_t column, TextSink& out);
    std::optional<std::int32_t> longNumber(const Row& row, std::size_t column) const;
    std::optional<Bytes> plainBytes(const Row& row, std::size_t column) const;
    Result<LongValues::Value> cellBytes(const Row& row, std::size_t column);
    Failure cellFailure(const LiveRow& live, std::size_t column, const Failure& failure) const;
    Failure noSuch(std::size_t position, std::size_t column) const;

    std::shared_ptr<PageSource> source_;
    TableDefinition definition_;
    std::u16string name_;
    TableRows rows_;
    LongValues longValues_;
    std::size_t visitEnd_ = 0; ///< where the latest visit ended
};

} // namespace jet
