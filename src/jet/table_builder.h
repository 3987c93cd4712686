#pragma once

#include "jet/data_page_builder.h"
#include "jet/definition_encoder.h"
#include "jet/index_builder.h"
#include "jet/long_value_writer.h"
#include "jet/map_pages.h"
#include "jet/output_file.h"
#include "jet/result.h"
#include "jet/row_encoder.h"
#include "jet/value.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// What a table is to be: its columns and indexes, and the pages it has from the start.
struct TablePlan {
    std::u16string name;
    bool system = false;
    std::vector<Column> columns;
    std::vector<std::uint8_t> columnFlags;
    std::vector<RealIndex> realIndexes;
    std::vector<LogicalIndex> logicalIndexes;
    std::vector<std::uint32_t> definitionPages;
    std::uint32_t firstDataPage = 0; ///< 0: allocated with the first row
};

/// Columns of a user's table, as addTable was given them.
TablePlan userTable(std::u16string_view name, std::span<const Column> columns);

/// Writes one table: rows as they come, the rest in the end.
class TableBuilder {
public:
    /// The maps are those of the page that the table's maps are to lie on.
    TableBuilder(TablePlan plan, OutputFile& file, MapPages& maps);
    TableBuilder(const TableBuilder&) = delete;
    TableBuilder& operator=(const TableBuilder&) = delete;

    const std::u16string& name() const { return name_; }
    std::uint32_t definitionPage() const { return definitionPages_.front(); }
    /// One of the table's indexes, to which the caller adds an entry for each row.
    IndexBuilder& index(std::size_t i) { return indexes_[i]; }

    Result<RowPointer> add(std::span<const Value> values);

    /// In the end: rows and long values still held, then indexes.
    void finishPages();
    /// After the maps are written: how many rows there are, and where everything is.
    void writeDefinition();

private:
    Result<void> encodeCells(std::span<const Value> values);
    std::size_t rowSize(std::span<const Value> values, std::size_t longestInline) const;
    void countAutoNumbers(std::span<const Value> values);
    void makeRoom(std::size_t size, std::size_t reserve);
    Bytes encodeRow(std::span<const Value> values, std::size_t longestInline);
    Failure refused(const std::string& what) const;

    OutputFile* file_;
    std::u16string name_;
    NewDefinition definition_;
    std::vector<std::uint32_t> definitionPages_;
    std::uint32_t firstDataPage_;
    RowEncoder encoder_;
    std::vector<std::vector<std::uint8_t>> cells_; ///< of the row at hand, as bytes
    std::vector<LongValueWriter> longValues_;      ///< one for each column, as in cells_
    std::optional<DataPageBuilder> page_;
    PageSet owned_;
    PageSet withRoom_;
    std::vector<IndexBuilder> indexes_;
    std::vector<PageSet> indexPages_;
};

} // namespace jet
