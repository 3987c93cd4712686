#pragma once

#include "page/field_view.h"
#include "page/recording.h"
#include "page/text_metrics.h"

#include <QString>

#include <vector>

namespace page {

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
    QString caption = {}; ///< what the place says, on one line; empty for pictures
    /// Number of the link among the pictures of a course page that lead elsewhere: a floating menu
    /// has that of its picture. -1 for other links.
    int picture = -1;
};

struct Sheet {
    double width, height; ///< twips
    QString title;        ///< the page's title
    int number = 0;       ///< its fixed number, 0 when it has none
    std::vector<PlacedSurface> surfaces;
    std::vector<DrawnOperation> operations; ///< in drawing order
    std::vector<LinkArea> links;
};

/// Fills `operations` and `links` of a sheet: what was wiped is gone; links have become their
/// captions and pictures, answer controls what shows them, on top of the drawing as the controls
/// are on screen.
void putOnSheet(const Recording& recording, const TextMetrics& metrics, Sheet& sheet,
                const FieldPictures& fields = {});

/// The surface that an operation of a sheet draws on.
SurfaceId surfaceOf(const DrawnOperation& operation);

/// The operation further to the right and further down, in twips.
DrawnOperation moved(DrawnOperation operation, double right, double down);

/// Foot of the lowest operation on a surface, in twips; 0 when nothing stands there.
double drawnHeight(const std::vector<DrawnOperation>& operations, SurfaceId surface,
                   const TextMetrics& metrics);

} // namespace page
