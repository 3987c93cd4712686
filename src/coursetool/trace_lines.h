#pragma once

#include "markup/drawing_state.h"
#include "markup/drawn_page.h"
#include "page/recording.h"

#include <string>

namespace coursetool {

/// Appends the operation as one line of a trace: a JSON object and a line end. Operations that draw
/// nothing and change nothing a trace tells of append nothing.
void appendTraceLine(const page::Operation& operation, std::string& out);

/// Appends the last line of a trace: the pen and the drawing state as the page left them.
void appendTraceEnd(const markup::DrawnPage& page, const markup::DrawingState& state,
                    std::string& out);

} // namespace coursetool
