#pragma once

#include "markup/drawn_page.h"
#include "page/sheet.h"
#include "page/text_metrics.h"
#include "publish/site_links.h"

#include <QString>

namespace publish {

/// What a page says, as HTML for who does not look at the drawing: headings, paragraphs, lists,
/// tables and the titles of pictures in the order of reading, first the column, then the
/// illustration; and its links, those that are pictures last. Each link tells by "data-link" which
/// of the sheet's it is. Every word of the course is escaped. `surfaces` are read in this order.
QString documentOf(const markup::DrawnPage& page, const page::Sheet& sheet,
                   const std::vector<page::SurfaceId>& surfaces, const page::TextMetrics& metrics,
                   const SiteLinks& links);

} // namespace publish
