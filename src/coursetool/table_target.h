#pragma once

#include "coursetool/report.h"
#include "coursetool/tables.h"
#include "jet/writer.h"

#include <filesystem>
#include <optional>
#include <span>

namespace coursetool {

/// A database that is being written. A failure is told once, at the database's own place.
class DatabaseTarget {
public:
    DatabaseTarget(std::filesystem::path path, std::string shownAs, Report& report);

    std::optional<jet::TableWriter> addTable(const TableRule& rule);
    void finish();

private:
    void tell(const jet::Failure& failure);

    std::string shownAs_;
    Report& report_;
    std::optional<jet::DatabaseWriter> writer_;
};

/// One table of it. Rows stop being written at the first fault of the course, which cannot be
/// published any more; the sources that follow are still checked.
class TableTarget {
public:
    TableTarget(DatabaseTarget& database, const TableRule& rule, Report& report);

    /// `place` is the source that the record comes from.
    void append(std::span<const jet::Value> values, const Place& place);

private:
    Report& report_;
    std::optional<jet::TableWriter> writer_;
};

} // namespace coursetool
