#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <QRgb>

#include <vector>

namespace page {

/// The ink that gives the AND of both, to one level of 255, when `cover` is multiplied with it.
QRgb multipliedInk(QRgb ink, QRgb cover);

/// The AND of both.
QRgb maskedInk(QRgb ink, QRgb cover);

/// Inks for devices that show a mask fill by multiplying, as files do, which know no AND. The two
/// agree where a channel is 0 or 255, so on black, on white and on the paper under a fill; what has
/// another ink and lies under mask fills as a whole gets its multipliedInk(). What a fill covers in
/// part is multiplied as it is; for pictures, see masked_pictures.h.
///
/// One ink for each operation, in their order; black for those that have none.
std::vector<QRgb> multiplyInks(const std::vector<DrawnOperation>& operations,
                               const TextMetrics& metrics);

/// Inks for devices that show mask fills before all else, as paper: what lies under mask fills as a
/// whole gets its maskedInk(). As above for the rest.
std::vector<QRgb> maskedInks(const std::vector<DrawnOperation>& operations,
                             const TextMetrics& metrics);

} // namespace page
