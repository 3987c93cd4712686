#include "output/raster/operation_painter.h"

#include "page/twips.h"

#include <QGlyphRun>

#include <algorithm>
#include <cmath>

namespace output {

namespace {

/// Most device pixels that a picture is prepared in (64 MB): the largest size that a page can give,
/// at four times the density. What is stretched beyond is prepared smaller and enlarged where it
/// shows.
constexpr double kMaxPicturePixels = 16e6;

QSize preparedSize(QSize place) {
    const double pixels = static_cast<double>(place.width()) * place.height();
    if (pixels <= kMaxPicturePixels)
        return place;
    return (QSizeF(place) * std::sqrt(kMaxPicturePixels / pixels)).toSize().expandedTo({1, 1});
}

bool reachable(double x, double y) {
    return std::abs(x) < kFarPx * page::kTwipsPerPixel &&
           std::abs(y) < kFarPx * page::kTwipsPerPixel;
}

} // namespace

std::optional<OperationPainter::Span>
OperationPainter::span(const page::TextOperation& text) const {
    if (!reachable(text.x, text.y))
        return std::nullopt;
    return Span{text.y, text.y + fonts_.height(text.font)};
}

std::optional<OperationPainter::Span>
OperationPainter::span(const page::LineOperation& line) const {
    if (!reachable(line.x1, line.y1) || !reachable(line.x2, line.y2))
        return std::nullopt;
    return Span{std::min(line.y1, line.y2),
                std::max(line.y1, line.y2) + line.lineWidth * page::kTwipsPerPixel};
}

std::optional<OperationPainter::Span>
OperationPainter::span(const page::FillOperation& fill) const {
    if (!reachable(fill.x, fill.y) || !(fill.width > 0) || !(fill.height > 0))
        return std::nullopt;
    return Span{fill.y, fill.y + fill.height};
}

std::optional<OperationPainter::Span>
OperationPainter::span(const page::PictureOperation& picture) const {
    if (!picture.picture || !reachable(picture.x, picture.y))
        return std::nullopt;
    return Span{picture.y, picture.y + picture.height};
}

/// Letters keep within a few ems of their places, so that only those near an edge are measured.
/// What a face measures leaves out underlines, and the slant that it has not itself.
bool OperationPainter::staysWithin(const page::TextOperation& text, const QRectF& area) const {
    const auto rows = inkSpan(text);
    if (!rows)
        return false;
    const double em = page::fontPixels(text.font.points) * ratio_;
    const bool rowsAreInside =
        toDevice(rows->top) >= area.top() && toDevice(rows->bottom) <= area.bottom();
    if (rowsAreInside && toDevice(text.x) - 2 * em >= area.left() &&
        toDevice(text.x + text.width) + 4 * em <= area.right())
        return true;
    if (text.font.italic || text.font.underline)
        return false;
    const QPointF origin(toDevice(text.x), std::round(toDevice(text.y + fonts_.ascent(text.font))));
    for (const page::FontBook::Run& run : fonts_.place(text.font, text.text)) {
        const QRawFont font = fonts_.deviceFont(text.font, run.fallback, em);
        for (qsizetype i = 0; i < run.glyphs.size(); ++i) {
            const QPointF place = origin + QPointF(toDevice(run.offsets[i]), 0);
            if (rowsAreInside && place.x() - 2 * em >= area.left() &&
                place.x() + 4 * em <= area.right())
                continue;
            const QRectF ink = font.boundingRect(run.glyphs[i]).translated(place);
            if (!ink.isEmpty() && !area.contains(ink.adjusted(-1, -1, 1, 1)))
                return false;
        }
    }
    return true;
}

void OperationPainter::draw(const page::TextOperation& text) {
    const double x = toDevice(text.x);
    const double foot = std::round(toDevice(text.y + fonts_.ascent(text.font)));
    painter_.setPen(QColor::fromRgb(text.ink));
    const double pixelSize = page::fontPixels(text.font.points) * ratio_;
    for (const page::FontBook::Run& run : fonts_.place(text.font, text.text))
        drawRun(run, fonts_.deviceFont(text.font, run.fallback, pixelSize), x, foot);
    if (text.font.underline)
        underline(text, x, foot);
}

void OperationPainter::draw(const page::LineOperation& line) {
    const int width = std::max(1, qRound(line.lineWidth * ratio_));
    if (line.y1 == line.y2 || line.x1 == line.x2) {
        straightLine(line, width);
        return;
    }
    painter_.setPen(QPen(QColor::fromRgb(line.ink), width));
    painter_.setRenderHint(QPainter::Antialiasing);
    // A line of one pixel covers the pixel at its position.
    const double centre = ratio_ / 2;
    painter_.drawLine(QPointF(toDevice(line.x1) + centre, toDevice(line.y1) + centre),
                      QPointF(toDevice(line.x2) + centre, toDevice(line.y2) + centre));
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void OperationPainter::draw(const page::FillOperation& fill) {
    const int left = pixel(fill.x);
    const int top = pixel(fill.y);
    // AND of ink and picture: black text stays black, white paper turns into the ink.
    if (fill.mode == page::FillMode::Mask)
        painter_.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
    painter_.fillRect(left, top, farEdge(fill.x + fill.width) - left,
                      farEdge(fill.y + fill.height) - top, QColor::fromRgb(fill.ink));
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void OperationPainter::draw(const page::PictureOperation& picture) {
    const QRect place(
        QPoint(pixel(picture.x), pixel(picture.y)),
        QPoint(farEdge(picture.x + picture.width) - 1, farEdge(picture.y + picture.height) - 1));
    if (!painter_.transform().mapRect(place).intersects(painter_.viewport()))
        return;
    const QImage image = picture.picture->image(preparedSize(place.size()));
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, image.size() != place.size());
    painter_.drawImage(place, image);
}

double OperationPainter::toDevice(double twips) const {
    return twips / page::kTwipsPerPixel * ratio_;
}

int OperationPainter::pixel(double twips) const {
    return qRound(toDevice(twips));
}

int OperationPainter::farEdge(double twips) const {
    return pixel(std::min(twips, kFarPx * page::kTwipsPerPixel));
}

void OperationPainter::drawRun(const page::FontBook::Run& run, const QRawFont& font, double x,
                               double foot) {
    if (!font.isValid())
        return;
    QList<QPointF> positions;
    positions.reserve(run.offsets.size());
    for (const double offset : run.offsets)
        positions.append(QPointF(toDevice(offset), 0));
    QGlyphRun glyphs;
    glyphs.setRawFont(font);
    glyphs.setGlyphIndexes(run.glyphs);
    glyphs.setPositions(positions);
    painter_.drawGlyphRun(QPointF(x, foot), glyphs);
}

void OperationPainter::underline(const page::TextOperation& text, double x, double foot) {
    const double em = page::fontPixels(text.font.points) * ratio_;
    const int thickness = std::max(1, qRound(em * page::kUnderlineThickness));
    painter_.fillRect(qRound(x), qRound(foot + em * page::kUnderlineDrop),
                      qRound(toDevice(text.width)), thickness, QColor::fromRgb(text.ink));
}

void OperationPainter::straightLine(const page::LineOperation& line, int width) {
    const int x1 = pixel(std::min(line.x1, line.x2));
    const int x2 = pixel(std::max(line.x1, line.x2));
    const int y1 = pixel(std::min(line.y1, line.y2));
    const int y2 = pixel(std::max(line.y1, line.y2));
    const bool level = line.y1 == line.y2;
    // Both ends count, so that lines that meet at a corner leave no hole there.
    painter_.fillRect(x1, y1, level ? x2 - x1 + width : width, level ? width : y2 - y1 + width,
                      QColor::fromRgb(line.ink));
}

} // namespace output
