#pragma once

#include "check/course.h"
#include "coursetool/report.h"
#include "page/text_metrics.h"

#include <filesystem>
#include <optional>

namespace check {

/// Whether a directory is an installed course: it holds Zekx.mdb, in any letter case.
bool isInstalledCourse(const std::filesystem::path& directory);

/// Reads the sources in a directory as `build` does, those in Markdown compiled by the widths of
/// `metrics`. What `build` would refuse is reported; what can be read is there all the same.
Course readSources(const std::filesystem::path& directory, const page::TextMetrics& metrics,
                   coursetool::Report& report);

/// Reads an installed course. Columns that the program does not read are nobody's fault.
Course readInstallation(const std::filesystem::path& directory, coursetool::Report& report);

} // namespace check
