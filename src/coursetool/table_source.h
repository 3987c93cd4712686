#pragma once

#include "coursetool/report.h"
#include "coursetool/tables.h"
#include "jet/database.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace coursetool {

/// One record, its values in the order of the rule's fields.
struct SourceRecord {
    std::size_t position = 0;
    std::vector<jet::Value> values;
    /// Where it stands, for the report: "Zekx.mdb: cours, enregistrement 3".
    Place place;
};

/// One table of a course that is being taken apart.
class TableSource {
public:
    /// Reports columns that no field takes and columns of another kind. A table that is not there
    /// is a fault, and has no records.
    TableSource(const jet::Database& database, const std::filesystem::path& file,
                const TableRule& rule, Report& report);

    std::size_t recordCount();
    /// Reports records and values that cannot be read; a value that cannot be read is NULL.
    void forEach(const std::function<void(SourceRecord&)>& visit);

private:
    void matchColumns();
    void read(jet::RecordView& record, SourceRecord& into);
    Place placeOf(std::size_t position) const;

    std::filesystem::path file_;
    const TableRule& rule_;
    Report& report_;
    std::optional<jet::Table> table_;
    std::vector<std::optional<std::size_t>> columns_; ///< by field of the rule
};

} // namespace coursetool
