#include "markup/arguments.h"
#include "markup/directives.h"
#include "markup/reasons.h"
#include "markup/renderer.h"
#include "page/face_names.h"
#include "text/rounding.h"

#include <algorithm>

namespace markup {

namespace {

using page::Surface;

/// Distance of indices and exponents from their line, and of the stacked pair of "POLY", in twips
/// for each point of the size. An em is 20 twips a point.
constexpr int kShift = 6;
constexpr int kStackedLower = 9;

/// How far a hat is raised, in twips for each point of its own size.
constexpr int kHatRise = 7;

/// Smaller text is not reduced further: it could no longer be read. Meant so.
constexpr int kSmallestReduced = 10;
constexpr int kReduction = 2;

/// The size in whole points; surfaces refuse sizes that would not fit 16 bits.
int wholePoints(const Surface& surface) {
    return text::toInt16(surface.font().points).value_or(0);
}

void reduceFrom(Surface& surface, int points) {
    if (points >= kSmallestReduced)
        surface.setFontPoints(points - kReduction);
}

void printShifted(Surface& surface, QStringView text, int twipsPerPoint) {
    const int points = wholePoints(surface);
    const int shift = twipsPerPoint * points;
    surface.setPenY(surface.penY() + shift);
    reduceFrom(surface, points);
    surface.print(text.toString());
    surface.setPenY(surface.penY() - shift);
    surface.setFontPoints(points);
}

void printSymbol(Surface& surface, const QString& codes) {
    const QString face = surface.font().face;
    surface.setFace(page::kSymbolFace);
    surface.print(codes);
    surface.setFace(face);
}

} // namespace

void printIndex(Renderer& renderer, QStringView d) {
    printShifted(renderer.surface(), charactersFrom(d, 4), kShift);
}

void printExponent(Renderer& renderer, QStringView d) {
    printShifted(renderer.surface(), charactersFrom(d, 4), -kShift);
}

void printStacked(Renderer& renderer, QStringView d) {
    Surface& surface = renderer.surface();
    // The upper sign is the last character, wherever it stands: a lone one is both.
    const QString lower = characterAt(d, 5).toString();
    const QString upper = lastCharacters(d, 1).toString();
    const int points = wholePoints(surface);
    const double x = text::roundHalfEven(surface.penX());

    surface.setPenY(surface.penY() + kStackedLower * points);
    reduceFrom(surface, points);
    surface.print(lower);
    surface.setPenX(x);
    // The lower sign hangs further from the line than the upper one rises, meant so.
    surface.setPenY(surface.penY() - (kStackedLower + kShift) * points);
    surface.print(upper);
    surface.setPenY(surface.penY() + kShift * points);
    const double width = std::max(surface.textWidth(lower), surface.textWidth(upper));
    surface.setFontPoints(points);
    surface.setPenX(x + width);
}

void printHat(Renderer& renderer, QStringView) {
    Surface& surface = renderer.surface();
    const double x = text::roundHalfEven(surface.penX());
    const double points = surface.font().points;
    if (!renderer.check(surface.setFontPoints(points + kReduction), kFontSizeRefused))
        return;
    const double rise = kHatRise * surface.font().points;
    surface.setPenY(surface.penY() - rise);
    surface.print(QStringLiteral("^"));
    surface.setPenY(surface.penY() + rise);
    surface.setFontPoints(points);
    surface.setPenX(x);
}

void printPoint(Renderer& renderer, QStringView) {
    printSymbol(renderer.surface(), QStringLiteral("\u00B7"));
}

void printArrow(Renderer& renderer, QStringView) {
    // A dash and an arrow that join in this face.
    printSymbol(renderer.surface(), QStringLiteral("\u00BE\u00AE"));
}

void stay(Renderer&, QStringView) {
    // Old pages hold it; it has nothing to remember beyond its own line.
}

} // namespace markup
