#include "coursetool/offscreen_page.h"

#include "look/surface_widths.h"
#include "page/twips.h"
#include "viewer/page_sheet.h"
#include "viewer/page_title.h"

#include <algorithm>
#include <cmath>

namespace coursetool {

namespace {

/// Around the column of a bare source.
constexpr double kBareMarginPx = 8;

} // namespace

using page::kTwipsPerPixel;
using page::SurfaceId;

OffscreenPage::OffscreenPage(const page::TextMetrics& metrics, markup::PictureShelf& pictures)
    : metrics_(metrics), pictureTexte_(SurfaceId::PictureTexte, look::kPageWidthPx * kTwipsPerPixel,
                                       metrics, recording_),
      pictureIllus_(SurfaceId::PictureIllus, look::kIllustrationWidthPx * kTwipsPerPixel, metrics,
                    recording_),
      titre_(SurfaceId::Titre, look::kTitleWidthPx * kTwipsPerPixel, metrics, recording_),
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
    page::Sheet drawn{};
    page::putOnSheet(recording_, metrics_, drawn);
    return std::min(page::drawnHeight(drawn.operations, surface, metrics_),
                    page::kMaxSurfaceHeightPx * kTwipsPerPixel);
}

page::Sheet OffscreenPage::bareSheet() const {
    const double height = std::ceil(columnHeight() / kTwipsPerPixel) * kTwipsPerPixel;
    if (drawnHeight(SurfaceId::Titre) > 0 || drawnHeight(SurfaceId::PictureIllus) > 0)
        return viewer::pageSheet(recording_, metrics_, height);
    constexpr double kMargin = kBareMarginPx * kTwipsPerPixel;
    page::Sheet sheet{};
    page::putOnSheet(recording_, metrics_, sheet);
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
