#pragma once

#include "page/surface.h"
#include "page/text_metrics.h"

#include <QString>

namespace viewer {

/// Writes a page's title on the emptied title band and returns what was written. A long title is
/// written smaller; one too long even so ends in an ellipsis.
QString drawPageTitle(page::Surface& band, const page::TextMetrics& metrics, const QString& title);

} // namespace viewer
