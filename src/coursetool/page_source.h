#pragma once

#include "coursetool/markdown_source.h"
#include "coursetool/report.h"
#include "markup/draw_page.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace coursetool {

/// A page or question that stands alone in a file.
struct PageSource {
    markup::PageText text;
    std::vector<int> fileLines; ///< for each line of a text that was compiled; empty otherwise
};

/// What is to be drawn of a file. In Markdown it is compiled, and tells itself whether it is a page
/// or a question. Anything else is a bare page source in UTF-8, its line ends as they stand, a
/// question when its name ends in ".question"; lines that are not UTF-8 are faults, and are read
/// with U+FFFD for each byte that is wrong. A fault, and nothing, when there is no such file.
std::optional<PageSource> readPageSource(const std::filesystem::path& file,
                                         const CompilerSource& compiler, Report& report);

/// Where the pictures of such a file lie: beside it; in the folder of the files when it is one of
/// the sources of a course in Markdown.
std::filesystem::path picturesOf(const std::filesystem::path& file);

} // namespace coursetool
