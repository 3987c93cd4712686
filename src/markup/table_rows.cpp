#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/qb_color.h"
#include "markup/renderer.h"
#include "markup/tints.h"
#include "page/twips.h"
#include "text/rounding.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace markup {

namespace {

using page::FillMode;
using page::kTwipsPerPixel;
using page::Surface;

/// Room between the edge of a cell and its text.
constexpr int kCellMargin = 120;

/// Style of "FINTAC" that fills with a gradient.
constexpr int kGradientStyle = 3;

/// Blue of the gradient at the top of the row, how much it gains on the way down, and its value in
/// a row without height.
constexpr int kTopBlue = 200;
constexpr int kBlueRange = 55;
constexpr int kFlatBlue = 100;

/// The blue takes no more values than this, so that more bands would look the same however tall
/// the row is; it bounds the operations of a row.
constexpr double kMaxBands = kBlueRange + 1;

double numberAt(QStringView d, qsizetype position, qsizetype count) {
    const QStringView rest = charactersFrom(d, position);
    return page::leadingNumber(rest.first(qMin(count, rest.size())));
}

void storePenY(Renderer& renderer, std::int32_t& target) {
    const auto y = text::toInt32(renderer.surface().penY());
    if (renderer.check(y.has_value(), u"la position ne tient pas sur 32 bits"))
        target = *y;
}

void growRow(Renderer& renderer) {
    if (renderer.surface().penY() > renderer.state().basRangee)
        storePenY(renderer, renderer.state().basRangee);
}

void chooseBorder(Renderer& renderer, QStringView d, BorderEdge edge) {
    const auto index = text::toInt16(lastNumber(d, kPaletteNumber.count));
    const auto ink = index ? qbColor(*index) : std::nullopt;
    if (renderer.check(ink.has_value(), u"la couleur n’est pas dans la palette"))
        renderer.state().couleursBord.store(edge, *ink);
}

/// Ends the row and gives its box: from the first cell's left edge to the last one's right edge.
/// Either side may be the larger one; a page may put its cells in any order.
QRectF closeRow(Renderer& renderer) {
    DrawingState& state = renderer.state();
    state.dansTableau = false;
    growRow(renderer);
    const QPointF topLeft(state.bordsColonne.valueOr(1, 0), state.hautRangee);
    return {topLeft, QPointF(state.margeDroite + kCellMargin, state.basRangee)};
}

void drawBorder(Renderer& renderer, BorderEdge edge, QPointF from, QPointF to) {
    Surface& surface = renderer.surface();
    const QRgb ink = surface.ink();
    surface.setInk(renderer.state().couleursBord.valueOr(edge, kBlack));
    surface.line(from.x(), from.y(), to.x(), to.y());
    surface.setInk(ink);
}

void drawBorders(Renderer& renderer, const QRectF& row) {
    const DrawingState& state = renderer.state();
    drawBorder(renderer, TopEdge, row.topLeft(), row.topRight());
    drawBorder(renderer, BottomEdge, row.bottomLeft(), row.bottomRight());
    drawBorder(renderer, LeftEdge, row.topLeft(), row.bottomLeft());
    // Cells beyond the table of edges have none.
    const int last = std::min<int>(state.colonneCourante, decltype(state.bordsColonne)::last);
    for (int cell = 2; cell <= last; ++cell) {
        const double x = state.bordsColonne.valueOr(cell, 0);
        drawBorder(renderer, InnerEdge, {x, row.top()}, {x, row.bottom()});
    }
    drawBorder(renderer, RightEdge, row.topRight(), row.bottomRight());
}

/// Back to the whole column, right under the row: the next one shares its border line.
void goBelowRow(Renderer& renderer) {
    DrawingState& state = renderer.state();
    state.margeGauche = 0;
    renderer.store(state.margeDroite, renderer.fullWidth());
    renderer.surface().setPenY(state.basRangee);
    renderer.surface().setPenX(0);
}

QRgb rowInk(int style) {
    if (style == 6)
        return qRgb(255, 150, 150);
    return commonTint(style).value_or(*qbColor(14));
}

/// Bands of a pixel or more, contiguous, paler from top to bottom.
void fillWithGradient(Surface& surface, const QRectF& row) {
    if (row.height() <= 0) {
        surface.fill(row.left(), row.top(), row.width(), kTwipsPerPixel, qRgb(255, 255, kFlatBlue),
                     FillMode::Mask);
        return;
    }
    const int bands =
        static_cast<int>(std::min(kMaxBands, std::ceil(row.height() / kTwipsPerPixel)));
    const double bandHeight = row.height() / bands;
    for (int band = 0; band < bands; ++band) {
        const double distance = band * bandHeight;
        const int blue = kTopBlue + qRound(kBlueRange * distance / row.height());
        surface.fill(row.left(), row.top() + distance, row.width(), bandHeight,
                     qRgb(255, 255, blue), FillMode::Mask);
    }
}

} // namespace

void topBorderColour(Renderer& renderer, QStringView d) {
    chooseBorder(renderer, d, TopEdge);
}

void bottomBorderColour(Renderer& renderer, QStringView d) {
    chooseBorder(renderer, d, BottomEdge);
}

void leftBorderColour(Renderer& renderer, QStringView d) {
    chooseBorder(renderer, d, LeftEdge);
}

void innerBorderColour(Renderer& renderer, QStringView d) {
    chooseBorder(renderer, d, InnerEdge);
}

void rightBorderColour(Renderer& renderer, QStringView d) {
    chooseBorder(renderer, d, RightEdge);
}

void openCell(Renderer& renderer, QStringView d) {
    DrawingState& state = renderer.state();
    Surface& surface = renderer.surface();
    if (state.dansTableau) {
        growRow(renderer);
        surface.setPenY(state.hautRangee);
    } else {
        state.dansTableau = true;
        storePenY(renderer, state.hautRangee);
        state.basRangee = 0;
    }
    renderer.store(state.margeGauche,
                   kTwipsPerPixel * numberAt(d, kCellLeftAt, kCellEdgeLength) + kCellMargin);
    renderer.store(state.margeDroite,
                   kTwipsPerPixel * numberAt(d, kCellRightAt, kCellEdgeLength) - kCellMargin);
    renderer.store(state.colonneCourante, numberAt(d, kCellNumberAt, kCellNumberLength));
    const auto edge = text::toInt16(state.margeGauche - kCellMargin);
    // A cell without a place in the table of edges opens all the same.
    renderer.check(edge && state.bordsColonne.store(state.colonneCourante, *edge),
                   u"le numéro de cellule n’est pas compris entre 0 et 30");
    surface.setPenX(state.margeGauche);
}

void closeRowWithBorders(Renderer& renderer, QStringView) {
    drawBorders(renderer, closeRow(renderer));
    goBelowRow(renderer);
}

void closeRowAndReturn(Renderer& renderer, QStringView) {
    drawBorders(renderer, closeRow(renderer));
    // The text that follows stands in the frame just drawn, with the last cell's right margin:
    // that is what the directive is for.
    DrawingState& state = renderer.state();
    state.margeGauche = 0;
    renderer.surface().setPenX(0);
    renderer.surface().setPenY(state.hautRangee);
}

void closeRowWithoutBorders(Renderer& renderer, QStringView) {
    closeRow(renderer);
    goBelowRow(renderer);
}

void closeRowWithFill(Renderer& renderer, QStringView d) {
    const QRectF row = closeRow(renderer).normalized();
    const int style = text::toInt16(lastNumber(d, kFillStyle.count)).value_or(0);
    Surface& surface = renderer.surface();
    if (style == kGradientStyle)
        fillWithGradient(surface, row);
    else
        surface.fill(row.left(), row.top(), row.width(), row.height(), rowInk(style),
                     FillMode::Mask);
    goBelowRow(renderer);
}

} // namespace markup
