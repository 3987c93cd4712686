#pragma once

#include "coursetool/report.h"

#include <filesystem>
#include <optional>

namespace coursetool {

/// The database `name`, kCourseFile or kExerciseFile, of an installed course. A fault, and nothing,
/// when it is not there or the directory cannot be read.
std::optional<std::filesystem::path> findDatabase(const std::filesystem::path& course,
                                                  const char* name, Report& report);

} // namespace coursetool
