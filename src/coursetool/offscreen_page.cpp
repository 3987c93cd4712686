#include "coursetool/offscreen_page.h"

#include "platform/twips.h"
#include "viewer/page_sheet.h"
#include "viewer/page_title.h"
#include "viewer/surface_widths.h"

#include <algorithm>
#include <cmath>

namespace coursetool {

namespace {

/// Around the column of a bare source.
constexpr double kBareMarginPx = 8;

} // namespace

using platform::kTwipsPerPixel;
using platform::SurfaceId;

OffscreenPage::OffscreenPage(const platform::TextMetrics& metrics, markup::PictureShelf& pictures)
    : metrics_(metrics), pictureTexte_(SurfaceId::PictureTexte,
                                       viewer::kPageWidthPx * kTwipsPerPixel, metrics, recording_),
      pictureIllus_(SurfaceId::PictureIllus, viewer::kIllustrationWidthPx * kTwipsPerPixel, metrics,
                    recording_),
      titre_(SurfaceId::Titre, viewer::kTitleWidthPx * kTwipsPerPixel, metrics, recording_),
      renderer_(state_, *this, pictures, recording_) {
    state_.surfaceDessin = &pictureTexte_;
    state_.fenetreSource = this;
}

void OffscreenPage::draw(const QString& source) {
    code_.setText(source);
    renderer_.affichepage();
}

double OffscreenPage::columnHeight() const {
    const double asked = std::ceil(pictureTexte_.heightPx()) * kTwipsPerPixel;
    return asked > 0 ? asked : drawnHeight(SurfaceId::PictureTexte);
}

double OffscreenPage::drawnHeight(SurfaceId surface) const {
    platform::Sheet drawn{};
    platform::putOnSheet(recording_, metrics_, drawn);
    return std::min(platform::drawnHeight(drawn.operations, surface, metrics_),
                    platform::kMaxSurfaceHeightPx * kTwipsPerPixel);
}

platform::Sheet OffscreenPage::bareSheet() const {
    const double height = std::ceil(columnHeight() / kTwipsPerPixel) * kTwipsPerPixel;
    if (drawnHeight(SurfaceId::Titre) > 0 || drawnHeight(SurfaceId::PictureIllus) > 0)
        return viewer::pageSheet(recording_, metrics_, height);
    constexpr double kMargin = kBareMarginPx * kTwipsPerPixel;
    platform::Sheet sheet{};
    platform::putOnSheet(recording_, metrics_, sheet);
    sheet.width = pictureTexte_.scaleWidth() + 2 * kMargin;
    sheet.height = height + 2 * kMargin;
    sheet.surfaces = {
        {SurfaceId::PictureTexte, kMargin, kMargin, pictureTexte_.scaleWidth(), height}};
    return sheet;
}

void OffscreenPage::setTitle(const QString& title) {
    viewer::drawPageTitle(titre_, metrics_, title.simplified());
}

} // namespace coursetool
