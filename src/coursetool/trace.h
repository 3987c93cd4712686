#pragma once

#include "coursetool/drawing_request.h"
#include "markup/picture_source.h"
#include "page/text_metrics.h"

namespace coursetool {

/// Writes a trace, one JSON object a line: every drawing operation, then the state at the end.
///
/// Of a course, what a link to the page or the test window would show for the number, with all that
/// goes before it; a fault when there is no course, a warning when the number leads to something
/// else. Of a bare source, its line ends as they stand; lines that are not UTF-8 are faults, and
/// are drawn with U+FFFD for each byte that is wrong.
void trace(const TraceRequest& request, const page::TextMetrics& metrics,
           markup::PictureSource& pictures, OutputBuffer& out, Report& report);

} // namespace coursetool
