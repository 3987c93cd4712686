#pragma once

#include "coursetool/report.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace coursetool {

bool isMarkdown(const std::filesystem::path& file);

/// The files of a folder with this ending, and those in Markdown, in file-name order, which is that
/// of the records. What else stands there, hidden files and `alsoExpected` aside, is named: a page
/// that silently is none would be missed late. A link that leads out of `top` is a fault.
std::vector<std::filesystem::path> sourcesIn(const std::filesystem::path& folder,
                                             const std::filesystem::path& top,
                                             std::string_view ending, std::string_view alsoExpected,
                                             Report& report);

} // namespace coursetool
