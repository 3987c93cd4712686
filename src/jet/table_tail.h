#pragma once

#include "jet/format.h"
#include "jet/result.h"
#include "jet/table_definition.h"

#include <cstddef>
#include <map>
#include <set>

namespace jet {

/// The part of a definition that matters only to those who change rows. Columns go by their
/// numbers.
struct TableTail {
    std::set<std::size_t> indexedColumns;
    std::map<std::size_t, PageMaps> longColumns; ///< maps of the pages of Memo and OLE columns
};

Result<TableTail> readTableTail(const TableDefinition& definition);

} // namespace jet
