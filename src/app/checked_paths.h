#pragma once

#include "app/cours_command_line.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace app {

// Paths of a command line. What is wrong with one is a wrong call, which names it; `what` is the
// thing that is missing when the path is empty, with its article.

std::optional<WrongCall> notADirectory(const std::string& path, const char* what);
std::optional<WrongCall> notAFile(const std::string& path, const char* what);

/// Adds the directories of options "L=DIR" to `drives`, by letter in upper case.
std::optional<WrongCall> readDrives(const std::vector<std::string>& options,
                                    std::map<char, std::filesystem::path>& drives);

} // namespace app
