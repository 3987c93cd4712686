#pragma once

#include "coursedata/recordset.h"
#include "coursetool/report.h"
#include "coursetool/tables.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace coursetool {

/// A table of an installed course.
struct CourseRecords {
    std::string file; ///< the database, for messages
    std::unique_ptr<coursedata::Recordset> records;
};

/// Opens a table of the database `fileName` in an installation directory, its name taken without
/// regard to case. A fault, and nothing, when it is not there or cannot be read.
std::optional<CourseRecords> openRecords(const std::filesystem::path& course, const char* fileName,
                                         const TableRule& table, Report& report);

} // namespace coursetool
