#pragma once

#include "coursetool/output_buffer.h"
#include "coursetool/report.h"

#include <filesystem>

namespace coursetool {

/// Whether a new course may be written there: there is nothing, or an empty directory, what a call
/// that was killed has begun aside. What a link leads to is never one.
bool isFreeForCourse(const std::filesystem::path& directory);

/// Writes the course that authors start from: a home page, two chapters, a test, a drawing and a
/// word to its author. `directory` is free for a course. The paths written go to `out`, a line
/// each. All of it is there in the end, or nothing.
void writeNewCourse(const std::filesystem::path& directory, OutputBuffer& out, Report& report);

} // namespace coursetool
