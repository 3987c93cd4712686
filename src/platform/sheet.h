#pragma once

#include "platform/recording.h"
#include "platform/text_metrics.h"

#include <QString>

#include <vector>

namespace platform {

// A page as files show it: what stands at its end, on a sheet with room for each of its surfaces.

/// Where a surface stands on the sheet, in twips; what reaches beyond is cut.
struct PlacedSurface {
    SurfaceId surface;
    double x, y, width, height;
};

/// A place of the sheet that leads elsewhere, in twips of its surface.
struct LinkArea {
    SurfaceId surface;
    double x, y, width, height;
    QString tag;
    QString tooltip;
};

struct Sheet {
    double width, height; ///< twips
    QString title;        ///< the page's title
    int number = 0;       ///< its fixed number, 0 when it has none
    std::vector<PlacedSurface> surfaces;
    /// Only texts, lines, fills and pictures, in drawing order.
    std::vector<Operation> operations;
    std::vector<LinkArea> links;
};

/// Fills `operations` and `links` of a sheet: what was wiped is gone, links have become their
/// captions and pictures, on top of the drawing as their controls are on screen.
void putOnSheet(const Recording& recording, const TextMetrics& metrics, Sheet& sheet);

} // namespace platform
