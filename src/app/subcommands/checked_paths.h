#pragma once

#include "app/subcommands/subcommand.h"
#include "coursetool/paths.h"
#include "coursetool/report.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace app {

// Paths of a command line. A refusal names the path; `what` is the thing that is missing when the
// path is empty, with its article.

using coursetool::inQuotes;
using coursetool::pathFrom;

Refusal notADirectory(const std::string& path, const char* what);
Refusal notACourse(const std::string& path); ///< the directory that a course is installed in
Refusal notAFile(const std::string& path, const char* what);

/// Adds the directories of options "L=DIR" to `drives`, by letter in upper case.
Refusal readDrives(const std::vector<std::string>& options,
                   std::map<char, std::filesystem::path>& drives);

} // namespace app
