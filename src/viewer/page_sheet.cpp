#include "viewer/page_sheet.h"

#include "page/surface.h"
#include "page/surface_widths.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

using page::kTwipsPerPixel;
using page::SurfaceId;

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

/// Around the column of a bare source, in pixels.
constexpr double kBareMarginPx = 8;

/// White around a question's area, in pixels.
constexpr int kQuestionMarginPx = 16;

page::PlacedSurface placed(SurfaceId surface, double x, double y, double width, double height) {
    return {surface, x * kTwipsPerPixel, y * kTwipsPerPixel, width * kTwipsPerPixel,
            height * kTwipsPerPixel};
}

/// Down to the lowest thing on a surface, in twips.
double footOf(const std::vector<page::DrawnOperation>& operations, SurfaceId surface,
              const page::TextMetrics& metrics) {
    return std::min(page::drawnHeight(operations, surface, metrics),
                    page::kMaxSurfaceHeightPx * kTwipsPerPixel);
}

double wholePixels(double twips) {
    return std::ceil(twips / kTwipsPerPixel) * kTwipsPerPixel;
}

/// The sheet without places for its surfaces.
page::Sheet collected(const markup::DrawnPage& page, const page::TextMetrics& metrics,
                      const page::FieldPictures& fields = {}) {
    page::Sheet sheet{};
    page::putOnSheet(page.recording, metrics, sheet, fields);
    return sheet;
}

double columnHeight(const markup::DrawnPage& page, const page::Sheet& sheet,
                    const page::TextMetrics& metrics) {
    const double asked = std::ceil(page.heightPx(SurfaceId::PictureTexte)) * kTwipsPerPixel;
    return asked > 0 ? asked : footOf(sheet.operations, SurfaceId::PictureTexte, metrics);
}

/// Gives the surfaces of the main window their places.
void placeAll(double columnHeight, page::Sheet& sheet) {
    const double columnPx = columnHeight / kTwipsPerPixel;
    const double heightPx =
        std::max<double>(kColumnTopPx + columnPx, kIllustrationTopPx + kIllustrationHeightPx) +
        kMarginPx;
    sheet.width = kWidthPx * kTwipsPerPixel;
    sheet.height = heightPx * kTwipsPerPixel;
    sheet.surfaces = {
        placed(SurfaceId::Titre, kTitleLeftPx, kTitleTopPx, page::kTitleWidthPx, kTitleHeightPx),
        placed(SurfaceId::PictureIllus, kIllustrationLeftPx, kIllustrationTopPx,
               page::kIllustrationWidthPx, kIllustrationHeightPx),
        placed(SurfaceId::PictureTexte, kTitleLeftPx, kColumnTopPx, page::kPageWidthPx, columnPx),
    };
}

/// Gives one surface a place with a margin around it.
void placeAlone(SurfaceId surface, double height, double marginPx, page::Sheet& sheet) {
    const double width = page::kPageWidthPx * kTwipsPerPixel;
    const double margin = marginPx * kTwipsPerPixel;
    sheet.width = width + 2 * margin;
    sheet.height = height + 2 * margin;
    sheet.surfaces = {{surface, margin, margin, width, height}};
}

} // namespace

double columnHeight(const markup::DrawnPage& page, const page::TextMetrics& metrics) {
    return columnHeight(page, collected(page, metrics), metrics);
}

page::Sheet pageSheet(const markup::DrawnPage& page, const page::TextMetrics& metrics) {
    page::Sheet sheet = collected(page, metrics);
    placeAll(columnHeight(page, sheet, metrics), sheet);
    return sheet;
}

page::Sheet bareSheet(const markup::DrawnPage& page, const page::TextMetrics& metrics) {
    page::Sheet sheet = collected(page, metrics);
    const double height = wholePixels(columnHeight(page, sheet, metrics));
    if (footOf(sheet.operations, SurfaceId::Titre, metrics) > 0 ||
        footOf(sheet.operations, SurfaceId::PictureIllus, metrics) > 0)
        placeAll(height, sheet);
    else
        placeAlone(SurfaceId::PictureTexte, height, kBareMarginPx, sheet);
    return sheet;
}

page::Sheet questionSheet(const markup::DrawnPage& question, const page::TextMetrics& metrics,
                          const page::FieldPictures& fields) {
    page::Sheet sheet = collected(question, metrics, fields);
    // A control on the last line reaches further down than the pen.
    const double height = std::max(footOf(sheet.operations, SurfaceId::Picture2, metrics),
                                   question.heightPx(SurfaceId::Picture2) * kTwipsPerPixel);
    placeAlone(SurfaceId::Picture2, wholePixels(height), kQuestionMarginPx, sheet);
    return sheet;
}

} // namespace viewer
