#include "markup/arguments.h"
#include "markup/directives.h"
#include "markup/renderer.h"
#include "text/rounding.h"

#include <algorithm>

namespace markup {

namespace {

using page::Surface;

/// Length of "FRAC".
constexpr qsizetype kKeywordLength = 4;

double wholeWidth(const Surface& surface, QStringView text) {
    return text::roundHalfEven(surface.textWidth(text));
}

void printCentred(Surface& surface, QStringView text, double x, double room, double y) {
    surface.setPenY(y);
    surface.setPenX(x + (room - wholeWidth(surface, text)) / 2);
    surface.print(text.toString());
}

} // namespace

void printFraction(Renderer& renderer, QStringView d) {
    Surface& surface = renderer.surface();
    // The last "#" splits, but never one at the very end: a denominator is not empty, meant so.
    const auto parts = splitAtLastSharp(d, kKeywordLength);
    if (!parts)
        return;
    const auto [numerator, denominator] = *parts;

    const double width = std::max(wholeWidth(surface, numerator), wholeWidth(surface, denominator));
    const double x = text::roundHalfEven(surface.penX());
    const double y = surface.penY();
    const double half = surface.textHeight() / 2;
    printCentred(surface, numerator, x, width, y - half);
    printCentred(surface, denominator, x, width, y + half);
    surface.line(x, surface.penY(), x + width, surface.penY());
    surface.setPenY(y);
    surface.setPenX(x + width);
}

// The bracketed form. Nothing checks the order of its three directives; each measures the font of
// its own moment.

void beginNumerator(Renderer& renderer, QStringView) {
    Surface& surface = renderer.surface();
    renderer.store(renderer.state().fracDebutX, surface.penX());
    renderer.movePenYBy(-surface.textHeight() / 2);
}

void beginDenominator(Renderer& renderer, QStringView) {
    Surface& surface = renderer.surface();
    renderer.store(renderer.state().fracFinX, surface.penX());
    surface.setPenX(renderer.state().fracDebutX);
    renderer.movePenYBy(surface.textHeight());
}

void endFraction(Renderer& renderer, QStringView) {
    Surface& surface = renderer.surface();
    DrawingState& state = renderer.state();
    if (surface.penX() > state.fracFinX)
        renderer.store(state.fracFinX, surface.penX());
    // The line leaves the pen at its right end, which is where the text goes on.
    surface.line(state.fracDebutX, surface.penY(), state.fracFinX, surface.penY());
    renderer.movePenYBy(-surface.textHeight() / 2);
}

} // namespace markup
