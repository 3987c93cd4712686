#pragma once

#include "coursetool/report.h"

#include <QString>

#include <filesystem>
#include <optional>

namespace coursetool {

/// A bare page source in a file of UTF-8, its line ends as they stand. Lines that are not UTF-8 are
/// faults; they are read with U+FFFD for each byte that is wrong. A fault, and nothing, when there
/// is no such file.
std::optional<QString> readPageSource(const std::filesystem::path& file, Report& report);

} // namespace coursetool
