#pragma once

#include "jet/column.h"
#include "jet/format.h"
#include "jet/output_file.h"
#include "jet/table_definition.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace jet {

struct RealIndex {
    std::vector<std::uint16_t> columns; ///< numbers, at most 10
    std::uint8_t flags = 0;
    std::uint32_t root = 0;
    RowPointer map;
    std::uint32_t differentKeys = 0;
};

struct LogicalIndex {
    std::u16string name;
    std::uint32_t number = 0; ///< its own and that of its real index
    bool primaryKey = false;
};

/// All that the definition of a Jet 4 table says.
struct NewDefinition {
    bool system = false;
    std::uint32_t rowCount = 0;
    std::uint32_t lastAutoNumber = 0;
    std::vector<Column> columns;
    std::vector<ColumnPlace> places;
    std::vector<std::uint8_t> flags;       ///< one for each column
    std::vector<std::size_t> listingOrder; ///< of the columns in the definition
    PageMaps maps;
    std::vector<PageMaps> columnMaps; ///< one for each column, used for Memo and OLE only
    std::vector<RealIndex> realIndexes;
    std::vector<LogicalIndex> logicalIndexes;
};

/// Content of the definition, page headers of continued pages aside.
std::vector<std::uint8_t> encodeDefinition(const NewDefinition& definition);

/// Pages the content takes.
std::size_t definitionPageCount(std::size_t contentBytes);

/// Writes the content to `pages`, of which there are as many as it takes.
void writeDefinition(std::vector<std::uint8_t> content, const std::vector<std::uint32_t>& pages,
                     OutputFile& file);

} // namespace jet
