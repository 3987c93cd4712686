#include "coursetool/offscreen_question.h"

#include "platform/twips.h"
#include "viewer/surface_widths.h"

#include <algorithm>
#include <cmath>

namespace coursetool {

using platform::kTwipsPerPixel;
using platform::SurfaceId;

namespace {

/// Width of a question's area and the white around it on a sheet, in pixels.
constexpr int kQuestionWidthPx = 600;
constexpr int kMarginPx = 16;

} // namespace

OffscreenQuestion::OffscreenQuestion(const platform::TextMetrics& metrics,
                                     markup::PictureShelf& pictures)
    : metrics_(metrics),
      picture2_(SurfaceId::Picture2, kQuestionWidthPx * kTwipsPerPixel, metrics, recording_),
      pictureTexte_(SurfaceId::PictureTexte, viewer::kPageWidthPx * kTwipsPerPixel, metrics,
                    recording_),
      pictureIllus_(SurfaceId::PictureIllus, viewer::kIllustrationWidthPx * kTwipsPerPixel, metrics,
                    recording_),
      titre_(SurfaceId::Titre, viewer::kTitleWidthPx * kTwipsPerPixel, metrics, recording_),
      renderer_(state_, *this, pictures, recording_) {
    state_.surfaceDessin = &picture2_;
    state_.fenetreSource = this;
}

void OffscreenQuestion::draw(const QString& source) {
    code_.setText(source);
    renderer_.affichepage();
}

platform::Sheet OffscreenQuestion::sheet(const platform::FieldPictures& fields) const {
    constexpr double kMargin = kMarginPx * kTwipsPerPixel;
    platform::Sheet sheet{};
    platform::putOnSheet(recording_, metrics_, sheet, fields);
    // A control on the last line reaches further down than the pen.
    const double drawn = std::min(
        platform::drawnHeight(sheet.operations, SurfaceId::Picture2, metrics_) / kTwipsPerPixel,
        platform::kMaxSurfaceHeightPx);
    const double height = std::ceil(std::max(drawn, picture2_.heightPx())) * kTwipsPerPixel;
    sheet.width = picture2_.scaleWidth() + 2 * kMargin;
    sheet.height = height + 2 * kMargin;
    sheet.surfaces = {{SurfaceId::Picture2, kMargin, kMargin, picture2_.scaleWidth(), height}};
    return sheet;
}

} // namespace coursetool
