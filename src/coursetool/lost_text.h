#pragma once

#include "coursetool/offscreen_page.h"
#include "coursetool/report.h"

#include <QString>

#include <string>

namespace coursetool {

/// Where a page's source comes from, for what is said about it.
struct SourcePlace {
    std::string file;
    std::string name = {}; ///< of the page in a database ("page 12"); empty for a file of its own
};

/// Warns of what stands after the last CR LF of a source: neither shown nor run.
void reportUnended(const QString& source, const SourcePlace& place, Report& report);

/// Warns of that, and of text that stands below the foot of the drawn page: it has a line, but
/// nothing after it took the pen below that line, as "¶" does.
void reportLost(OffscreenPage& page, const SourcePlace& place, Report& report);

} // namespace coursetool
