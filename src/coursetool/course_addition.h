#pragma once

#include "coursetool/output_buffer.h"
#include "coursetool/report.h"

#include <filesystem>
#include <string>
#include <vector>

namespace coursetool {

/// What an author wants to have more of.
struct Addition {
    /// Each a title, for the next free number, or the number of the page (1 to 999).
    std::vector<std::string> pages;
    /// The chapters of the tests that get a question each, 1 to 999; a test that is not there yet
    /// is begun.
    std::vector<std::string> questions;
};

/// Adds pages and questions to the sources in `course`, in Markdown, their fields filled in. A page
/// comes last in the reading order: the page that was last so far leads to it. A question comes
/// last in its test, whose number of questions follows. No file is replaced but those two, in one
/// line. The paths of new files go to `out`, a line each. With a fault in the fields of the sources
/// nothing is written: numbers could be taken twice.
void addToCourse(const std::filesystem::path& course, const Addition& addition, OutputBuffer& out,
                 Report& report);

} // namespace coursetool
