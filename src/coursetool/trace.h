#pragma once

#include "coursetool/drawing_request.h"
#include "coursetool/output_buffer.h"
#include "coursetool/report.h"
#include "platform/text_metrics.h"

namespace coursetool {

// A trace has one JSON object a line: every drawing operation, then the state at the end.

/// Draws the page of the course that a link to its number would show, with all that goes before a
/// page. A fault when there is no course.
void tracePage(const TraceRequest& request, const platform::TextMetrics& metrics, OutputBuffer& out,
               Report& report);

/// Draws the bare page source in a file, its line ends as they stand. Lines that are not UTF-8 are
/// faults; they are drawn with U+FFFD for each byte that is wrong.
void traceSource(const TraceRequest& request, const platform::TextMetrics& metrics,
                 OutputBuffer& out, Report& report);

} // namespace coursetool
