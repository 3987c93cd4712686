#pragma once

#include "coursetool/output_buffer.h"
#include "coursetool/report.h"

#include <filesystem>

namespace coursetool {

/// Lists the image list of a course, or that of a course without symbols of its own when `course`
/// is empty: a line a key, in their order, with the key, the file's name, and the folder that it
/// comes from ("Orvalente" for those of the program), tabs between; in JSON an object with "key",
/// "file" and "folder", null for those of the program. Files of the course that are
/// left out are warned about.
void listSymbols(const std::filesystem::path& course, bool json, OutputBuffer& out, Report& report);

} // namespace coursetool
