#pragma once

#include "coursetool/report.h"

#include <filesystem>

namespace coursetool {

/// Writes the course in the installation directory `course` as sources into `output`, a directory
/// that does not exist yet or is empty. What stands there all the same is replaced where it has the
/// name of a source, and named where `build` would take it for a part of the course; nothing is
/// written through a link. Building them gives databases with the same field values in
/// the same record order; whatever that cannot be true of is a fault in the report, and all the
/// rest is written nevertheless.
void extract(const std::filesystem::path& course, const std::filesystem::path& output,
             Report& report);

} // namespace coursetool
