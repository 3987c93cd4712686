#pragma once

#include "platform/surface.h"
#include "platform/text_metrics.h"

#include <QString>

namespace viewer {

/// Writes a page's title on the emptied title band and returns what was written. A long title is
/// written smaller; one too long even so ends in an ellipsis.
QString drawPageTitle(platform::Surface& band, const platform::TextMetrics& metrics,
                      const QString& title);

} // namespace viewer
