#include "coursetool/offscreen_page.h"

#include "platform/twips.h"
#include "viewer/page_title.h"
#include "viewer/surface_widths.h"

namespace coursetool {

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

void OffscreenPage::setTitle(const QString& title) {
    viewer::drawPageTitle(titre_, metrics_, title.simplified());
}

} // namespace coursetool
