#pragma once

#include "coursetool/exit_code.h"
#include "coursetool/output_buffer.h"
#include "coursetool/report.h"
#include "jet/database.h"

#include <filesystem>
#include <string>

namespace coursetool {

/// Writes one JSON object a line: without a table name, each table with its columns; with one, each
/// record of that table. Of a damaged file, what can be read is written and the rest reported.
ExitCode dump(const std::filesystem::path& file, const std::string& tableName, OutputBuffer& out,
              Report& report);

/// Appends a value other than a text as JSON.
void appendJsonValue(const jet::Value& value, std::string& out);

/// Reports what was passed over while reading `file`.
void reportProblems(const jet::Problems& problems, const std::filesystem::path& file,
                    Report& report);

} // namespace coursetool
