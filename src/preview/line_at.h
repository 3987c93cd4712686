#pragma once

#include "markup/drawn_page.h"
#include "page/text_metrics.h"

#include <QPointF>

namespace preview {

/// The line of the page source, from 1, behind what stands at a point (twips) of a surface: what
/// was drawn there last, otherwise the text nearest to it. 0 when the surface is empty.
int lineAt(const markup::DrawnPage& page, page::SurfaceId surface, QPointF point,
           const page::TextMetrics& metrics);

} // namespace preview
