#pragma once

#include "coursetool/output_buffer.h"
#include "coursetool/report.h"

#include <filesystem>
#include <string>

namespace coursetool {

struct SearchRequest {
    std::filesystem::path course; ///< the installation directory
    std::string words;            ///< as they would be typed into the search window
    bool allWords = false;
    bool ignoreAccents = false;
    bool json = false;
};

/// Writes the pages that the search window would list, in its order: a line each, with the fixed
/// page number, a tab and the title, in which tabs and line ends are spaces; in JSON an object with
/// the names of the fields. Finding none is no
/// fault; a query too short to search for is told as a warning.
void searchPages(const SearchRequest& request, OutputBuffer& out, Report& report);

} // namespace coursetool
