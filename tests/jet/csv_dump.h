#pragma once

#include "jet/column.h"
#include "jet/value.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A cell of a dump: its text without the quotes, nothing for NULL.
using DumpCell = std::optional<std::string>;
using DumpRow = std::vector<DumpCell>;

/// Rows of comma-separated values, the first with the column names. Unquoted empty cells are NULL.
std::vector<DumpRow> parseDump(std::string_view text);

/// The value as such a dump shows it.
DumpCell dumpCell(const jet::Value& value);

/// Whether both stand for the same value; Single and Double compare as numbers.
bool sameCell(const DumpCell& expected, const jet::Value& value);
