#include "viewer/page_sheet.h"

#include "look/surface_widths.h"
#include "page/twips.h"

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

page::PlacedSurface placed(page::SurfaceId surface, double x, double y, double width,
                           double height) {
    using page::kTwipsPerPixel;
    return {surface, x * kTwipsPerPixel, y * kTwipsPerPixel, width * kTwipsPerPixel,
            height * kTwipsPerPixel};
}

} // namespace

page::Sheet pageSheet(const page::Recording& recording, const page::TextMetrics& metrics,
                      double columnHeight) {
    using page::SurfaceId;
    const double columnPx = columnHeight / page::kTwipsPerPixel;
    const double heightPx =
        std::max<double>(kColumnTopPx + columnPx, kIllustrationTopPx + kIllustrationHeightPx) +
        kMarginPx;
    page::Sheet sheet;
    sheet.width = kWidthPx * page::kTwipsPerPixel;
    sheet.height = heightPx * page::kTwipsPerPixel;
    sheet.surfaces = {
        placed(SurfaceId::Titre, kTitleLeftPx, kTitleTopPx, look::kTitleWidthPx, kTitleHeightPx),
        placed(SurfaceId::PictureIllus, kIllustrationLeftPx, kIllustrationTopPx,
               look::kIllustrationWidthPx, kIllustrationHeightPx),
        placed(SurfaceId::PictureTexte, kTitleLeftPx, kColumnTopPx, look::kPageWidthPx, columnPx),
    };
    page::putOnSheet(recording, metrics, sheet);
    return sheet;
}

} // namespace viewer
