#pragma once

#include "coursetool/report.h"
#include "markup/draw_page.h"
#include "page/text_metrics.h"

#include <QString>

#include <string>
#include <vector>

namespace coursetool {

/// Where a page's source comes from, for what is said about it.
struct SourcePlace {
    std::string file;
    std::string name = {}; ///< of the page in a database ("page 12"); empty for a file of its own
    std::vector<int> lines = {}; ///< of the file, for each line of a text that was compiled
};

/// Warns of what stands after the last CR LF of a source, neither shown nor run; and of text that
/// stands below the foot of a course page: it has a line, but nothing after it took the pen below
/// that line, as "¶" does. The area of a question has room for such text.
/// A file without any CR LF is a fault: nothing of it is drawn, and nobody asks for a blank page
/// so.
void reportLost(const markup::PageText& text, const markup::DrawnPage& page,
                const page::TextMetrics& metrics, const SourcePlace& place, Report& report);

} // namespace coursetool
