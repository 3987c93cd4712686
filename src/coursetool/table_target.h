#pragma once

#include "coursetool/report.h"
#include "coursetool/tables.h"
#include "jet/writer.h"

#include <filesystem>
#include <optional>
#include <span>
#include <unordered_map>

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
    /// Records so far.
    int count() const { return count_; }

private:
    Report& report_;
    std::optional<jet::TableWriter> writer_;
    int count_ = 0;
};

/// The numbers of a key column and where each was given first.
class KeyPlaces {
public:
    explicit KeyPlaces(const FieldRule& key) : key_(key) {}
    /// Reports a fault when another source has the number.
    void take(const jet::Value& number, const Place& place, Report& report);

private:
    const FieldRule& key_;
    std::unordered_map<std::int32_t, Place> places_;
};

} // namespace coursetool
