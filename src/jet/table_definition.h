#pragma once

#include "jet/column.h"
#include "jet/page_source.h"
#include "jet/result.h"
#include "jet/row.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace jet {

/// Where the rows of a table keep a column.
struct ColumnPlace {
    std::size_t number = 0;        ///< bit of the null mask
    std::size_t variableIndex = 0; ///< of columns without fixed length
    std::size_t fixedOffset = 0;   ///< of columns with fixed length, within the fixed area
    std::size_t size = 0;          ///< of columns with fixed length, bytes
    bool fixed = false;
};

/// What a definition page and those that continue it say of a table. Columns are in the order of
/// their numbers.
struct TableDefinition {
    std::uint32_t page = 0;
    RowShape shape{};
    std::uint32_t rowCount = 0;      ///< as the file says; not to be relied on
    RowPointer ownedPages;           ///< map of the table's data pages
    RowPointer pagesWithRoom;        ///< map of those that take further rows
    std::size_t variableColumns = 0; ///< those deleted since are counted
    std::size_t realIndexes = 0;
    std::size_t logicalIndexes = 0;
    /// What stands behind the column names: indexes, and the maps of Memo and OLE columns. Reading
    /// does without, so it is not looked at.
    std::vector<std::uint8_t> rest;
    std::vector<Column> columns;
    std::vector<ColumnPlace> places; ///< one for each column
};

/// The failure's sentence begins with the definition; its table is for the caller to name.
Result<TableDefinition> readTableDefinition(PageSource& source, std::uint32_t page);

/// Bytes a value of a type with fixed size takes; 0 for types without.
std::size_t fixedSizeOf(ColumnType type);

} // namespace jet
