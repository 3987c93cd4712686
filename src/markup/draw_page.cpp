#include "markup/draw_page.h"

#include "markup/renderer.h"
#include "page/face_names.h"
#include "page/twips.h"

namespace markup {

namespace {

/// Size of a title, and the smallest one that a long title is written in, in pixels.
constexpr int kTitlePx = 19;
constexpr int kSmallestTitlePx = 13;

/// Foot of the title's letters, in pixels from the top of its band.
constexpr double kTitleFootPx = 23;

constexpr double kPointsPerPixel = 0.75;

/// No title of more characters fits the band; a longer one is cut before it is measured again and
/// again.
constexpr qsizetype kMostCharacters = 300;

/// Writes a title into its band, in letters as large as fit; what is too long for any is cut. Gives
/// the words that stand there.
QString drawTitle(page::Surface& band, const QString& title) {
    band.setFace(page::kTextFace);
    band.setBold(true);
    band.setItalic(false);
    band.setUnderline(false);
    band.setInk(0xff000000);
    int pixels = kTitlePx;
    band.setFontPoints(pixels * kPointsPerPixel);
    while (band.textWidth(title) > band.scaleWidth() && pixels > kSmallestTitlePx)
        band.setFontPoints(--pixels * kPointsPerPixel);
    QString shown = title.size() > kMostCharacters ? title.first(kMostCharacters) + u'…' : title;
    while (!shown.isEmpty() && band.textWidth(shown) > band.scaleWidth())
        shown = title.first(shown.size() - (shown == title ? 1 : 2)).trimmed() + u'…';
    band.setPenX(0);
    band.setPenY(kTitleFootPx * page::kTwipsPerPixel - band.metrics().ascent(band.font()));
    band.print(shown);
    return shown;
}

/// `page` is as new.
void drawOnto(DrawnPage& page, const PageText& text, const DrawingTools& tools) {
    Renderer renderer(text, tools, page);
    // The renderer resets the pen and the letters of each surface that it comes to.
    if (text.as == DrawnAs::CoursePage)
        page.title = drawTitle(renderer.surface(page::SurfaceId::Titre), text.title.simplified());
    renderer.affichepage();
    renderer.tellEnd();
}

} // namespace

void drawPage(const PageText& text, const DrawingTools& tools, DrawnPage& page) {
    page = {};
    drawOnto(page, text, tools);
}

DrawnPage drawPage(const PageText& text, const DrawingTools& tools) {
    DrawnPage page;
    drawOnto(page, text, tools);
    return page;
}

} // namespace markup
