#pragma once

#include "markup/drawn_page.h"
#include "page/field_view.h"
#include "page/sheet.h"
#include "page/text_metrics.h"

namespace viewer {

// Drawn pages as files show them, whole.

/// Height of the text column of a course page as the window scrolls it, in twips: what the page
/// asked for, otherwise down to what was drawn.
double columnHeight(const markup::DrawnPage& page, const page::TextMetrics& metrics);

/// The sheet of a course page: title, illustration and text column stand to each other as in the
/// main window; the column has its full height.
page::Sheet pageSheet(const markup::DrawnPage& page, const page::TextMetrics& metrics);

/// The sheet of a bare source, one that has no record: the column alone, with a margin and as tall
/// as the window has it; the whole page when it drew on its title or its illustration.
page::Sheet bareSheet(const markup::DrawnPage& page, const page::TextMetrics& metrics);

/// The sheet of a question that nobody has answered yet: its area with a margin around it.
page::Sheet questionSheet(const markup::DrawnPage& question, const page::TextMetrics& metrics,
                          const page::FieldPictures& fields);

} // namespace viewer
