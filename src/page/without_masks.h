#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <vector>

namespace page {

/// The same drawing without mask fills, for devices that can only cover what is there, as printers
/// do: it looks the same on white paper. Where a mask fill lay, its colour stands before what it
/// covered; texts and lines that it covered as a whole have the ink that it gave them, and pictures
/// its colour in them. What else it covered in part keeps its ink.
std::vector<DrawnOperation> withoutMasks(const std::vector<DrawnOperation>& operations,
                                         const TextMetrics& metrics);

} // namespace page
