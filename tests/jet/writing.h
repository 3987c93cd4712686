#pragma once

#include "jet/database.h"
#include "jet/value_text.h"
#include "jet/writer.h"

#include <filesystem>
#include <ostream>
#include <vector>

using Rows = std::vector<std::vector<jet::Value>>;

/// A table as it is given to the writer.
struct NewTable {
    std::u16string name;
    std::vector<jet::Column> columns;
    Rows rows;
};

/// Writes a database with those tables; a failure fails the test.
void writeDatabase(const std::filesystem::path& path, const std::vector<NewTable>& tables);

/// All records of a table, read one by one; a failure fails the test.
Rows readTable(const std::filesystem::path& path, std::u16string_view table);

/// A table with a column of each type that can be written, and rows at the edges of their ranges.
NewTable everyType();

/// A table with one Memo whose texts have the lengths at which its way of storage changes, and an
/// OLE column with as many bytes.
NewTable memosOfEveryLength();

namespace jet {

void PrintTo(const Value& value, std::ostream* out);

} // namespace jet
