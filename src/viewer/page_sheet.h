#pragma once

#include "page/recording.h"
#include "page/sheet.h"
#include "page/text_metrics.h"

namespace viewer {

/// The sheet of a course page: title, illustration and text column stand to each other as in the
/// main window; the column has its full height. `columnHeight` in twips.
page::Sheet pageSheet(const page::Recording& recording, const page::TextMetrics& metrics,
                      double columnHeight);

} // namespace viewer
