#pragma once

#include "check/course.h"
#include "coursetool/report.h"
#include "coursetool/source_reader.h"

#include <filesystem>

namespace check {

/// Whether a directory is an installed course: it holds Zekx.mdb, in any letter case.
bool isInstalledCourse(const std::filesystem::path& directory);

/// Reads the sources in a directory as `build` does. What `build` would refuse is reported; what
/// can be read is there all the same.
Course readSources(const std::filesystem::path& directory, coursetool::SourceReader& reader,
                   coursetool::Report& report);

// The parts of a course from what was read of their sources. A wrong order to be silent is
// reported.
Page pageOf(const coursetool::ReadSource& read, coursetool::Report& report);
Record testOf(const coursetool::ReadSource& read, coursetool::Report& report);
Question questionOf(const coursetool::ReadSource& read, coursetool::Report& report);

/// Reads an installed course. Columns that the program does not read are nobody's fault.
Course readInstallation(const std::filesystem::path& directory, coursetool::Report& report);

} // namespace check
