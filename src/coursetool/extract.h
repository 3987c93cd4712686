#pragma once

#include "coursetool/report.h"

#include <filesystem>

namespace coursetool {

/// Writes the course in the installation directory `course` as sources into `output`, a directory
/// that does not exist yet or is empty. Building them gives databases with the same field values in
/// the same record order; whatever that cannot be true of is a fault in the report, and all the
/// rest is written nevertheless.
void extract(const std::filesystem::path& course, const std::filesystem::path& output,
             Report& report);

} // namespace coursetool
