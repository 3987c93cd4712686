#pragma once

#include "jet/byte_sink.h"
#include "jet/column.h"
#include "jet/result.h"
#include "jet/value.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace jet {

class DatabaseBuilder;
class TableBuilder;

/// Adds rows to one table of a DatabaseWriter. A handle, cheap to copy; of no use once the writer
/// is finished or gone. Rows of several tables may be added in turns.
class TableWriter {
public:
    /// One value for each column, in their order. A Value goes with a column of its own type; whole
    /// numbers go with any numeric column that can hold them, a float with Double. A missing,
    /// unfitting or too long value is Refused, naming table, column and row, and nothing is added.
    Result<void> append(std::span<const Value> values);

private:
    friend class DatabaseWriter;
    explicit TableWriter(TableBuilder* table) : table_(table) {}
    TableBuilder* table_;
};

/// Writes a new Jet 4 database, which is one when finish() has succeeded. Memory does not grow with
/// the rows.
class DatabaseWriter {
public:
    /// For files see database_file.h.
    static DatabaseWriter create(std::unique_ptr<ByteSink> sink);

    DatabaseWriter(DatabaseWriter&&) noexcept;
    DatabaseWriter& operator=(DatabaseWriter&&) noexcept;
    ~DatabaseWriter();

    /// A new table. Its name, 1 to 64 characters, may hold the letters A to Z in either case,
    /// digits, spaces (not first) and underscores; names of tables and of the columns of a table
    /// differ in more than letter case. Refused otherwise, and for columns that cannot be written.
    Result<TableWriter> addTable(std::u16string_view name, std::span<const Column> columns);

    /// Completes the file and puts it in place. Nothing can be added afterwards.
    Result<void> finish();

private:
    explicit DatabaseWriter(std::unique_ptr<DatabaseBuilder> builder);
    std::unique_ptr<DatabaseBuilder> builder_;
};

} // namespace jet
