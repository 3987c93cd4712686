#pragma once

#include "platform/recording.h"
#include "platform/text_metrics.h"

#include <vector>

namespace platform {

/// The same drawing without mask fills, for devices that can only cover what is there, as printers
/// do: it looks the same on white paper. Where a mask fill lay, its colour stands before what it
/// covered; texts and lines that it covered as a whole have the ink that it gave them, and pictures
/// of pixels its colour in them. What it covered in part keeps its ink, and drawings (SVG) stand
/// uncoloured on it.
std::vector<Operation> withoutMasks(const std::vector<Operation>& operations,
                                    const TextMetrics& metrics);

} // namespace platform
