#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/qb_color.h"
#include "markup/reasons.h"
#include "markup/renderer.h"
#include "page/face_names.h"
#include "text/rounding.h"

#include <cmath>

namespace markup {

namespace {

/// Inks of "C000" to "C014".
std::optional<QRgb> pageInk(int number) {
    switch (number) {
    case 0:
        return qbColor(0);
    case 1:
        return qbColor(1);
    case 2:
        return qRgb(0, 0, 200);
    case 3:
        return qbColor(9);
    case 4:
        return qbColor(2);
    case 5:
        return qbColor(4);
    case 6:
        return qRgb(90, 90, 210);
    case 7:
        return qbColor(10);
    case 8:
        return qRgb(180, 100, 0);
    case 9:
        return qRgb(30, 180, 80);
    case 10:
        return qbColor(8);
    case 11:
        return qbColor(12);
    case 12:
        return qRgb(0, 192, 0);
    case 13:
        return qRgb(128, 128, 255);
    case 14:
        return qRgb(0, 192, 192);
    default:
        return std::nullopt;
    }
}

QString pageFace(int number) {
    switch (number) {
    case 0:
        return page::kTextFace;
    case 1:
        return page::kSymbolFace;
    case 2:
        return page::kBookFace;
    case 3:
        return page::kWingdingsFace;
    case 4:
        return page::kComicFace;
    default:
        return {};
    }
}

} // namespace

void fontSize(Renderer& renderer, QStringView d) {
    // Sizes are written with two digits: in "SI9" the last two characters are "I9", which is 0.
    renderer.check(renderer.surface().setFontPoints(lastNumber(d, kFontSize.count)),
                   kFontSizeRefused);
}

void boldOn(Renderer& renderer, QStringView) {
    renderer.surface().setBold(true);
}

void boldOff(Renderer& renderer, QStringView) {
    renderer.surface().setBold(false);
}

void italicOn(Renderer& renderer, QStringView) {
    renderer.surface().setItalic(true);
}

void italicOff(Renderer& renderer, QStringView) {
    renderer.surface().setItalic(false);
}

void underlineOn(Renderer& renderer, QStringView) {
    renderer.surface().setUnderline(true);
}

void underlineOff(Renderer& renderer, QStringView) {
    renderer.surface().setUnderline(false);
}

void alignLeft(Renderer& renderer, QStringView) {
    renderer.state().alignement = 0;
}

void alignCentre(Renderer& renderer, QStringView) {
    renderer.state().alignement = 1;
}

void alignRight(Renderer& renderer, QStringView) {
    renderer.state().alignement = 2;
}

void inkColour(Renderer& renderer, QStringView d) {
    const auto number = text::toInt16(lastNumber(d, kInkNumber.count));
    if (!renderer.check(number.has_value(), u"le numéro de couleur est hors limites"))
        return;
    if (const auto ink = pageInk(*number))
        renderer.surface().setInk(*ink);
}

void fontFace(Renderer& renderer, QStringView d) {
    const auto number = text::toInt16(lastNumber(d, kFaceNumber.count));
    if (!renderer.check(number.has_value(), u"le numéro de police est hors limites"))
        return;
    const QString face = pageFace(*number);
    if (face.isEmpty())
        return;
    // Faces of one size differ in height; the pen moves so that the text keeps its foot.
    page::Surface& surface = renderer.surface();
    const double before = surface.textHeight();
    surface.setFace(face);
    surface.setPenY(surface.penY() + before - surface.textHeight());
}

void textShadow(Renderer& renderer, QStringView d) {
    DrawingState& state = renderer.state();
    renderer.store(state.reliefDecalage, page::leadingNumber(characterAt(d, kShadowWidthAt)));
    renderer.store(state.reliefCouleur, lastNumber(d, kPaletteNumber.count));
}

void lineSpacing(Renderer& renderer, QStringView d) {
    const float factor = static_cast<float>(lastNumber(d, kLineFactor.count));
    if (renderer.check(std::isfinite(factor), u"l’interligne est hors limites"))
        renderer.state().interligne = factor;
}

} // namespace markup
