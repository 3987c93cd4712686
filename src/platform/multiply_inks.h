#pragma once

#include "platform/recording.h"
#include "platform/text_metrics.h"

#include <QRgb>

#include <vector>

namespace platform {

/// Inks for devices that show a mask fill by multiplying, as files do, which know no AND. The two
/// agree where a channel is 0 or 255, so on black, on white and on the paper under a fill; what has
/// another ink and lies under mask fills as a whole gets the one whose product with them is the AND
/// (to one level of 255). What a fill covers in part, and pictures, are multiplied as they are.
///
/// One ink for each operation, in their order; black for those that have none.
std::vector<QRgb> multiplyInks(const std::vector<Operation>& operations,
                               const TextMetrics& metrics);

/// Inks for devices that show mask fills before all else, as paper: what lies under mask fills as a
/// whole gets the AND of their inks and its own. As above for the rest.
std::vector<QRgb> maskedInks(const std::vector<Operation>& operations, const TextMetrics& metrics);

} // namespace platform
