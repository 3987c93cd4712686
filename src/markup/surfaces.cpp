#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/reasons.h"
#include "markup/renderer.h"
#include "page/course_name.h"
#include "page/twips.h"

namespace markup {

namespace {

/// How much a "PLOUF" adds to the surface, in pixels.
constexpr double kGrowthPx = 1000;

void drawOn(Renderer& renderer, page::SurfaceId surface) {
    renderer.drawOn(renderer.surface(surface));
    renderer.recording().add(page::SwitchOperation{surface});
}

/// What a name after "OBJ" leads to on screen.
void chooseOnScreen(Renderer& renderer, QStringView name) {
    if (name == kTitleName) {
        drawOn(renderer, page::SurfaceId::Titre);
        // The title stands there already; a page that draws its own wants an empty band.
        renderer.surface().clear();
    } else if (name == kIllustrationName) {
        drawOn(renderer, page::SurfaceId::PictureIllus);
    } else if (name == kColumnName) {
        drawOn(renderer, page::SurfaceId::PictureTexte);
    }
}

/// Paper shows the text column only.
void chooseOnPaper(Renderer& renderer, QStringView name) {
    if (name == kColumnName)
        renderer.drawOn(renderer.surface(page::SurfaceId::Printer));
    else if (name == kTitleName || name == kIllustrationName)
        renderer.drawOn(renderer.nowhere());
}

} // namespace

void refreshAndGrow(Renderer& renderer, QStringView) {
    if (renderer.enImpression())
        return;
    page::Surface& surface = renderer.surface();
    renderer.refresh();
    renderer.check(surface.setHeightPx(surface.heightPx() + kGrowthPx), kHeightRefused);
}

void chooseSurface(Renderer& renderer, QStringView d) {
    const QStringView name = charactersFrom(d, 4);
    if (renderer.enImpression())
        chooseOnPaper(renderer, name);
    else
        chooseOnScreen(renderer, name);
    if (name == kHeightName) {
        page::Surface& surface = renderer.surface();
        renderer.check(surface.setHeightPx(surface.penY() / page::kTwipsPerPixel), kHeightRefused);
    }
    renderer.initecran();
}

void windowCaption(Renderer& renderer, QStringView d) {
    if (!renderer.onCoursePage())
        return;
    // The eighteen blanks keep the page's own words apart from the name of the course.
    const QString caption = page::kCourseName + QString(18, u' ') + charactersFrom(d, 7).toString();
    renderer.recording().add(page::CaptionOperation{caption});
    renderer.page().caption = caption;
}

} // namespace markup
