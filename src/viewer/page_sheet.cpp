#include "viewer/page_sheet.h"

#include "platform/twips.h"
#include "viewer/surface_widths.h"

#include <algorithm>

namespace viewer {

namespace {

// The main window's places, in pixels, with the toolbar left out. The illustration's border is not
// part of its surface.
constexpr int kWidthPx = 800;
constexpr int kTitleLeftPx = 176;
constexpr int kTitleTopPx = 8;
constexpr int kTitleHeightPx = 32;
constexpr int kIllustrationLeftPx = 9;
constexpr int kIllustrationTopPx = 49;
constexpr int kIllustrationHeightPx = 358;
constexpr int kColumnTopPx = 56;
constexpr int kMarginPx = 16;

platform::PlacedSurface placed(platform::SurfaceId surface, double x, double y, double width,
                               double height) {
    using platform::kTwipsPerPixel;
    return {surface, x * kTwipsPerPixel, y * kTwipsPerPixel, width * kTwipsPerPixel,
            height * kTwipsPerPixel};
}

} // namespace

platform::Sheet pageSheet(const platform::Recording& recording,
                          const platform::TextMetrics& metrics, double columnHeight) {
    using platform::SurfaceId;
    const double columnPx = columnHeight / platform::kTwipsPerPixel;
    const double heightPx =
        std::max<double>(kColumnTopPx + columnPx, kIllustrationTopPx + kIllustrationHeightPx) +
        kMarginPx;
    platform::Sheet sheet;
    sheet.width = kWidthPx * platform::kTwipsPerPixel;
    sheet.height = heightPx * platform::kTwipsPerPixel;
    sheet.surfaces = {
        placed(SurfaceId::Titre, kTitleLeftPx, kTitleTopPx, kTitleWidthPx, kTitleHeightPx),
        placed(SurfaceId::PictureIllus, kIllustrationLeftPx, kIllustrationTopPx,
               kIllustrationWidthPx, kIllustrationHeightPx),
        placed(SurfaceId::PictureTexte, kTitleLeftPx, kColumnTopPx, kPageWidthPx, columnPx),
    };
    platform::putOnSheet(recording, metrics, sheet);
    return sheet;
}

} // namespace viewer
