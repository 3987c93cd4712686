#include "markup/arguments.h"
#include "markup/directives.h"
#include "markup/renderer.h"
#include "page/twips.h"
#include "text/rounding.h"

#include <QList>

namespace markup {

namespace {

using page::Surface;

// Marks over a text, in twips.
constexpr int kLowMark = 30;
constexpr int kHighMark = 60;
constexpr int kMarkBarb = 60;
constexpr int kMarkBarbRise = 30;

/// Strokes of a sign, each a row of points joined by lines. The unit is the height of "W", the
/// origin the pen, y points down.
using Strokes = QList<QList<QPointF>>;

/// Tall signs reach as far as a fraction: half a line above the line and half a line below.
constexpr double kTallTop = -0.5;
constexpr double kTallBottom = 1.5;
constexpr double kTallMiddle = (kTallTop + kTallBottom) / 2;

/// Room on either side of a tall sign.
constexpr double kSideRoom = 0.1;

/// Lines that make a curve; at 48 points still smooth.
constexpr int kCurveLines = 8;

void drawStrokes(Surface& surface, const Strokes& strokes) {
    const QPointF pen = surface.pen();
    const double unit = surface.textHeight();
    for (const QList<QPointF>& stroke : strokes) {
        for (qsizetype i = 1; i < stroke.size(); ++i) {
            const QPointF from = pen + unit * stroke[i - 1];
            const QPointF to = pen + unit * stroke[i];
            surface.line(from.x(), from.y(), to.x(), to.y());
        }
    }
    surface.setPenX(pen.x());
    surface.setPenY(pen.y());
}

/// Points of a parabola that leaves `from` upright and ends at `to`.
void curve(QList<QPointF>& stroke, QPointF from, QPointF to) {
    for (int i = 0; i <= kCurveLines; ++i) {
        const double t = static_cast<double>(i) / kCurveLines;
        stroke.append({from.x() + (to.x() - from.x()) * t * t, from.y() + (to.y() - from.y()) * t});
    }
}

QList<QPointF> reversed(const QList<QPointF>& stroke) {
    return {stroke.rbegin(), stroke.rend()};
}

/// The stroke that ends at mid-height, and its reflection in the axis of the line.
Strokes withLowerHalf(const QList<QPointF>& upper) {
    QList<QPointF> lower;
    for (const QPointF& point : upper)
        lower.append({point.x(), 2 * kTallMiddle - point.y()});
    return {upper, reversed(lower)};
}

struct TallSign {
    Strokes strokes;
    double width;
};

TallSign bracket() {
    constexpr double kWidth = 0.25;
    return {{{{kWidth, kTallTop}, {0, kTallTop}, {0, kTallBottom}, {kWidth, kTallBottom}}}, kWidth};
}

TallSign brace() {
    constexpr double kWidth = 0.4;
    constexpr double kBend = 0.3;
    constexpr double kSpine = kWidth / 2;
    QList<QPointF> end;
    curve(end, {kSpine, kTallTop + kBend}, {kWidth, kTallTop});
    QList<QPointF> upper = reversed(end);
    curve(upper, {kSpine, kTallMiddle - kBend}, {0, kTallMiddle});
    return {withLowerHalf(upper), kWidth};
}

TallSign parenthesis() {
    constexpr double kWidth = 0.2;
    constexpr double kBend = 0.8;
    QList<QPointF> end;
    curve(end, {0, kTallTop + kBend}, {kWidth, kTallTop});
    QList<QPointF> upper = reversed(end);
    upper.append({0, kTallMiddle});
    return {withLowerHalf(upper), kWidth};
}

enum class Side { Opening, Closing };

void drawTall(Renderer& renderer, TallSign sign, Side side) {
    Surface& surface = renderer.surface();
    for (QList<QPointF>& stroke : sign.strokes)
        for (QPointF& point : stroke)
            point.rx() = kSideRoom + (side == Side::Opening ? point.x() : sign.width - point.x());
    drawStrokes(surface, sign.strokes);
    surface.setPenX(surface.penX() + (sign.width + 2 * kSideRoom) * surface.textHeight());
}

// Reaction arrows: room of 0.2, shaft of 1.6, room of 0.2, in heights of "W". The arrow and the
// double arrow are equally long, so that equations below each other align.
constexpr double kArrowRoom = 0.2;
constexpr double kShaft = 2 * 0.8;
constexpr double kArrowEnd = kArrowRoom + kShaft;
constexpr double kAxis = 0.5;
constexpr double kBarb = 0.25;
constexpr double kBarbWidth = 0.15;

/// Distance of either shaft of the double arrow from the axis.
constexpr double kApart = 0.1;

void drawReactionArrow(Renderer& renderer, const Strokes& strokes) {
    Surface& surface = renderer.surface();
    drawStrokes(surface, strokes);
    // The point of the arrow covers the pixel at its end; the room begins after it.
    surface.setPenX(surface.penX() + (kArrowEnd + kArrowRoom) * surface.textHeight() +
                    surface.lineWidth() * page::kTwipsPerPixel);
}

enum class Mark { Bar, Vector };

void printMarked(Renderer& renderer, QStringView d, Mark mark, int rise) {
    Surface& surface = renderer.surface();
    const double overhang = surface.textWidth(u" ") / 4;
    const double left = surface.penX() - overhang;
    const double penY = surface.penY();
    surface.print(charactersFrom(d, 4).toString());
    const double penX = surface.penX();
    const double right = penX + overhang;
    const double y = penY - rise;
    surface.line(left, y, right, y);
    if (mark == Mark::Vector) {
        surface.line(right, y, right - kMarkBarb, y - kMarkBarbRise);
        surface.line(right, y, right - kMarkBarb, y + kMarkBarbRise);
    }
    surface.setPenX(penX);
    surface.setPenY(penY);
}

} // namespace

void beginRoot(Renderer& renderer, QStringView) {
    Surface& surface = renderer.surface();
    renderer.state().debutRacine = surface.pen();
    surface.setPenX(surface.penX() + 1.5 * surface.textWidth(u"X"));
}

void endRoot(Renderer& renderer, QStringView d) {
    Surface& surface = renderer.surface();
    const double line = surface.textHeight();
    const auto height = text::toInt16(page::leadingNumber(charactersFrom(d, 4)) * line);
    if (!renderer.check(height.has_value(), u"la racine est trop haute"))
        return;
    const QPointF start = renderer.state().debutRacine;
    const double middle = start.y() + line / 2;
    const double half = *height / 2.;
    const double step = surface.textWidth(u"X") / 2;
    const QPointF pen = surface.pen();
    surface.line(start.x(), middle, start.x() + step, middle + half);
    surface.line(start.x() + step, middle + half, start.x() + 2 * step, middle - half);
    surface.line(start.x() + 2 * step, middle - half, pen.x(), middle - half);
    surface.setPenY(pen.y());
}

void barLow(Renderer& renderer, QStringView d) {
    printMarked(renderer, d, Mark::Bar, kLowMark);
}

void barHigh(Renderer& renderer, QStringView d) {
    printMarked(renderer, d, Mark::Bar, kHighMark);
}

void vectorLow(Renderer& renderer, QStringView d) {
    printMarked(renderer, d, Mark::Vector, kLowMark);
}

void vectorHigh(Renderer& renderer, QStringView d) {
    printMarked(renderer, d, Mark::Vector, kHighMark);
}

void openingBracket(Renderer& renderer, QStringView) {
    drawTall(renderer, bracket(), Side::Opening);
}

void closingBracket(Renderer& renderer, QStringView) {
    drawTall(renderer, bracket(), Side::Closing);
}

void openingBrace(Renderer& renderer, QStringView) {
    drawTall(renderer, brace(), Side::Opening);
}

void closingBrace(Renderer& renderer, QStringView) {
    drawTall(renderer, brace(), Side::Closing);
}

void openingParenthesis(Renderer& renderer, QStringView) {
    drawTall(renderer, parenthesis(), Side::Opening);
}

void closingParenthesis(Renderer& renderer, QStringView) {
    drawTall(renderer, parenthesis(), Side::Closing);
}

void equilibriumArrow(Renderer& renderer, QStringView) {
    constexpr double kUpper = kAxis - kApart;
    constexpr double kLower = kAxis + kApart;
    drawReactionArrow(
        renderer,
        {{{kArrowRoom, kUpper}, {kArrowEnd, kUpper}, {kArrowEnd - kBarb, kUpper - kBarbWidth}},
         {{kArrowEnd, kLower}, {kArrowRoom, kLower}, {kArrowRoom + kBarb, kLower + kBarbWidth}}});
}

void reactionArrow(Renderer& renderer, QStringView) {
    drawReactionArrow(renderer, {{{kArrowRoom, kAxis}, {kArrowEnd, kAxis}},
                                 {{kArrowEnd - kBarb, kAxis - kBarbWidth},
                                  {kArrowEnd, kAxis},
                                  {kArrowEnd - kBarb, kAxis + kBarbWidth}}});
}

} // namespace markup
