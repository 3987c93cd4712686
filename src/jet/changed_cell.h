#pragma once

#include "jet/result.h"
#include "jet/table_definition.h"
#include "jet/table_tail.h"
#include "jet/value.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace jet {

/// What a column of a row is to hold, as bytes.
struct ChangedCell {
    std::size_t column = 0; ///< index into the definition's columns
    ColumnPlace place;      ///< a Boolean's takes no room, whatever its definition says
    bool isLong = false;    ///< Memo or OLE: `bytes` are the value, without its header
    bool absent = false;    ///< NULL, or a Boolean that is false
    std::vector<std::uint8_t> bytes;
};

/// Encodes a value for a column of a row that is there already. Refused for columns that an index
/// is made of or that number themselves, and when the column cannot hold the value.
Result<ChangedCell> encodeChangedCell(const TableDefinition& definition, const TableTail& tail,
                                      std::size_t column, const Value& value);

} // namespace jet
