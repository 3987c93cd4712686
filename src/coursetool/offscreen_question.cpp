#include "coursetool/offscreen_question.h"

#include "look/surface_widths.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace coursetool {

using page::kTwipsPerPixel;
using page::SurfaceId;

namespace {

/// Width of a question's area and the white around it on a sheet, in pixels.
constexpr int kQuestionWidthPx = 600;
constexpr int kMarginPx = 16;

} // namespace

OffscreenQuestion::OffscreenQuestion(const page::TextMetrics& metrics,
                                     markup::PictureShelf& pictures)
    : metrics_(metrics),
      picture2_(SurfaceId::Picture2, kQuestionWidthPx * kTwipsPerPixel, metrics, recording_),
      pictureTexte_(SurfaceId::PictureTexte, look::kPageWidthPx * kTwipsPerPixel, metrics,
                    recording_),
      pictureIllus_(SurfaceId::PictureIllus, look::kIllustrationWidthPx * kTwipsPerPixel, metrics,
                    recording_),
      titre_(SurfaceId::Titre, look::kTitleWidthPx * kTwipsPerPixel, metrics, recording_),
      renderer_(state_, *this, pictures, recording_) {
    state_.surfaceDessin = &picture2_;
    state_.fenetreSource = this;
}

void OffscreenQuestion::draw(const QString& source) {
    code_.setText(source);
    renderer_.affichepage();
}

page::Sheet OffscreenQuestion::sheet(const page::FieldPictures& fields) const {
    constexpr double kMargin = kMarginPx * kTwipsPerPixel;
    page::Sheet sheet{};
    page::putOnSheet(recording_, metrics_, sheet, fields);
    // A control on the last line reaches further down than the pen.
    const double drawn = std::min(
        page::drawnHeight(sheet.operations, SurfaceId::Picture2, metrics_) / kTwipsPerPixel,
        page::kMaxSurfaceHeightPx);
    const double height = std::ceil(std::max(drawn, picture2_.heightPx())) * kTwipsPerPixel;
    sheet.width = picture2_.scaleWidth() + 2 * kMargin;
    sheet.height = height + 2 * kMargin;
    sheet.surfaces = {{SurfaceId::Picture2, kMargin, kMargin, picture2_.scaleWidth(), height}};
    return sheet;
}

} // namespace coursetool
