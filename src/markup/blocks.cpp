#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/renderer.h"
#include "markup/tints.h"
#include "page/twips.h"
#include "text/rounding.h"

#include <algorithm>
#include <optional>

namespace markup {

namespace {

using page::kTwipsPerPixel;
using page::Surface;

/// The gradient of a page runs down what the main window shows of it, in bands of whole pixels, so
/// that no device leaves a seam between two; 53 fills whatever the page.
constexpr int kBands = 53;
constexpr double kBandHeight = 8 * kTwipsPerPixel;

constexpr int kWhite = 255;

/// Colour of the gradient at the top of the page: the tints of filled table rows, paler where a
/// whole page of them would be heavy.
std::optional<QRgb> pageTint(int style) {
    switch (style) {
    case 3:
        return qRgb(255, 255, 200);
    case 6:
        return qRgb(255, 225, 225);
    default:
        return commonTint(style);
    }
}

/// The tint on its way to the white of the paper: `done` of all bands lie above.
QRgb faded(QRgb tint, int done) {
    const auto channel = [done](int start) { return start + (kWhite - start) * done / kBands; };
    return qRgb(channel(qRed(tint)), channel(qGreen(tint)), channel(qBlue(tint)));
}

/// Fills the surface from `top` with bands that fade from `tint` to white. What was drawn already
/// stays visible.
void fonddegrade(Surface& surface, double top, double width, QRgb tint) {
    for (int band = 0; band < kBands; ++band)
        surface.fill(0, top + band * kBandHeight, width, kBandHeight, faded(tint, band),
                     page::FillMode::Mask);
}

} // namespace

void backgroundGradient(Renderer& renderer, QStringView d) {
    const int style = text::toInt16(lastNumber(d, kTintStyle.count)).value_or(0);
    if (const auto tint = pageTint(style))
        fonddegrade(renderer.surface(), renderer.page().hauteurPage, renderer.fullWidth(), *tint);
}

void frameWidth(Renderer& renderer, QStringView d) {
    renderer.store(renderer.state().largeurCadre,
                   kTwipsPerPixel * lastNumber(charactersFrom(d, 8), kLengthPx.count));
}

void drawFrame(Renderer& renderer, QStringView d) {
    DrawingState& state = renderer.state();
    Surface& surface = renderer.surface();
    std::int16_t height = 0;
    if (!renderer.store(height, kTwipsPerPixel * lastNumber(charactersFrom(d, 5), kLengthPx.count)))
        return;
    const QPointF pen = surface.pen();
    const double width =
        state.largeurCadre > 0 ? state.largeurCadre : state.margeDroite - state.margeGauche;
    const double left =
        alignedX(state, width, state.largeurCadre > 0 ? pen.x() : state.margeGauche);
    // The lines lie within the box, so that one as wide as the surface shows its right side.
    const double right = left + std::max(0., width - kTwipsPerPixel);
    const double bottom = pen.y() + std::max(0., height - kTwipsPerPixel);
    surface.line(left, pen.y(), right, pen.y());
    surface.line(left, bottom, right, bottom);
    surface.line(left, pen.y(), left, bottom);
    surface.line(right, pen.y(), right, bottom);
    surface.setPenX(pen.x());
    surface.setPenY(pen.y());
    state.largeurCadre = 0;
}

} // namespace markup
