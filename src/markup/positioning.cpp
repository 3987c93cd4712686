#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/reasons.h"
#include "markup/renderer.h"
#include "page/twips.h"
#include "text/rounding.h"

namespace markup {

namespace {

/// A pixel count of a directive in twips. The product is a 16-bit one: nothing beyond 32767.
std::optional<std::int16_t> pixelsToTwips(double pixels) {
    const auto whole = text::toInt16(pixels);
    return whole ? text::toInt16(*whole * page::kTwipsPerPixel) : std::nullopt;
}

} // namespace

void centrePenFor(Renderer& renderer, QStringView d) {
    // The text measured begins with the "C" of "FEINC": pages are laid out with this, so it stays.
    page::Surface& surface = renderer.surface();
    const DrawingState& state = renderer.state();
    const double width = surface.textWidth(charactersFrom(d, 5));
    renderer.check(surface.setPenX((state.margeGauche + state.margeDroite - width) / 2),
                   kPenOutside);
}

void setPenX(Renderer& renderer, QStringView d) {
    const auto twips = pixelsToTwips(lastNumber(d, kPlacePx.count));
    if (renderer.check(twips.has_value(), kPenOutside))
        renderer.surface().setPenX(*twips);
}

void movePenX(Renderer& renderer, QStringView d) {
    page::Surface& surface = renderer.surface();
    const auto twips = pixelsToTwips(lastNumber(d, kPlacePx.count));
    renderer.check(twips && surface.setPenX(surface.penX() + *twips), kPenOutside);
}

void movePenY(Renderer& renderer, QStringView d) {
    page::Surface& surface = renderer.surface();
    const auto twips = pixelsToTwips(lastNumber(d, kPlacePx.count));
    renderer.check(twips && surface.setPenY(surface.penY() + *twips), kPenOutside);
}

void skipLines(Renderer& renderer, QStringView d) {
    static constexpr qsizetype kFirstArgument = 7;
    const double lines = page::leadingNumber(charactersFrom(d, kFirstArgument));
    renderer.movePenYBy(lines * renderer.surface().textHeight());
}

// The shifts of a single line are kept in whole twips; those of the pen are exact.

void shiftNextDownHalf(Renderer& renderer, QStringView) {
    renderer.store(renderer.state().decalageUnique, renderer.surface().textHeight() / 2);
}

void shiftNextDownQuarter(Renderer& renderer, QStringView) {
    renderer.store(renderer.state().decalageUnique, renderer.surface().textHeight() / 4);
}

void shiftNextUpHalf(Renderer& renderer, QStringView) {
    renderer.store(renderer.state().decalageUnique, -renderer.surface().textHeight() / 2);
}

void shiftNextUpQuarter(Renderer& renderer, QStringView) {
    renderer.store(renderer.state().decalageUnique, -renderer.surface().textHeight() / 4);
}

void movePenDownHalf(Renderer& renderer, QStringView) {
    renderer.movePenYBy(renderer.surface().textHeight() / 2);
}

void movePenDownQuarter(Renderer& renderer, QStringView) {
    renderer.movePenYBy(renderer.surface().textHeight() / 4);
}

void movePenUpHalf(Renderer& renderer, QStringView) {
    renderer.movePenYBy(-renderer.surface().textHeight() / 2);
}

void movePenUpQuarter(Renderer& renderer, QStringView) {
    renderer.movePenYBy(-renderer.surface().textHeight() / 4);
}

} // namespace markup
