#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/renderer.h"

namespace markup {

namespace {

constexpr char16_t kHeightRefused[] = u"la surface refuse cette hauteur";

/// How much a "PLOUF" adds to the surface, in pixels.
constexpr double kGrowthPx = 1000;

void drawOn(Renderer& renderer, page::Surface& surface) {
    renderer.state().surfaceDessin = &surface;
    renderer.recording().add(page::SwitchOperation{surface.id()});
}

/// What a name after "OBJ" leads to on screen.
void chooseOnScreen(Renderer& renderer, QStringView name) {
    if (name == kTitleName) {
        drawOn(renderer, renderer.window().titre());
        // The title stands there already; a page that draws its own wants an empty band.
        renderer.surface().clear();
    } else if (name == kIllustrationName) {
        drawOn(renderer, renderer.window().pictureIllus());
    } else if (name == kColumnName) {
        drawOn(renderer, renderer.window().pictureTexte());
    }
}

/// Paper shows the text column only.
void chooseOnPaper(Renderer& renderer, QStringView name) {
    if (name == kColumnName)
        renderer.drawOnPaper();
    else if (name == kTitleName || name == kIllustrationName)
        renderer.drawNowhere();
}

} // namespace

void refreshAndGrow(Renderer& renderer, QStringView) {
    if (renderer.state().enImpression)
        return;
    page::Surface& surface = renderer.surface();
    renderer.window().refresh(surface);
    renderer.check(surface.setHeightPx(surface.heightPx() + kGrowthPx), kHeightRefused);
}

void chooseSurface(Renderer& renderer, QStringView d) {
    const QStringView name = charactersFrom(d, 4);
    if (renderer.state().enImpression)
        chooseOnPaper(renderer, name);
    else
        chooseOnScreen(renderer, name);
    if (name == kHeightName) {
        page::Surface& surface = renderer.surface();
        renderer.check(surface.setHeightPx(surface.penY() / renderer.twipsPerPixel()),
                       kHeightRefused);
    }
    renderer.initecran();
}

void windowCaption(Renderer& renderer, QStringView d) {
    if (!renderer.onCoursePage())
        return;
    // The eighteen blanks keep the page's own words apart from the name of the course.
    const QString caption =
        QStringLiteral("Orvalente - KAROPE                  ") + charactersFrom(d, 7).toString();
    renderer.recording().add(page::CaptionOperation{caption});
    renderer.window().setCaption(caption);
}

} // namespace markup
