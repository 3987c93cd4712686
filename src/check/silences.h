#pragma once

#include "coursetool/report.h"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace check {

// What an author does not want to hear of: codes of rules, for the whole course in a file of its
// root, for one page, question or test in a comment of its front matter:
//
//   # check: ignore L103 R301 – pourquoi

inline constexpr char kSettingsFile[] = "check.toml";

/// The codes in a text, apart from each other by blanks or commas. The first word that is no code
/// ends them. A code that no rule has is warned about.
std::set<std::string> readCodes(std::string_view words, const coursetool::Place& place,
                                coursetool::Report& report);

/// The codes in the comments of a front matter, which starts on `firstLine` of `file`.
std::set<std::string> ignoredIn(std::string_view frontMatter, int firstLine,
                                const std::string& file, coursetool::Report& report);

/// Those of check.toml in a directory: `ignore = "L103 R301"`. None when there is no such file.
std::set<std::string> ignoredInCourse(const std::filesystem::path& directory,
                                      coursetool::Report& report);

} // namespace check
