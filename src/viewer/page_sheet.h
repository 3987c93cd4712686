#pragma once

#include "platform/recording.h"
#include "platform/sheet.h"
#include "platform/text_metrics.h"

namespace viewer {

/// The sheet of a course page: title, illustration and text column stand to each other as in the
/// main window; the column has its full height. `columnHeight` in twips.
platform::Sheet pageSheet(const platform::Recording& recording,
                          const platform::TextMetrics& metrics, double columnHeight);

} // namespace viewer
