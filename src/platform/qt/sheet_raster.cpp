#include "platform/qt/sheet_raster.h"

#include "platform/qt/operation_painter.h"
#include "platform/twips.h"

#include <QtMath>

#include <algorithm>

namespace platform {

namespace {

/// A page that fits the window is one band at twice the screen's density.
constexpr int kBandBytes = 16 << 20;
constexpr int kBytesPerPixel = 4;

constexpr QRgb kPaper = 0xffffffff;

/// Draws operations of any surface of a sheet, each clipped to its surface.
class BandPlayer {
public:
    BandPlayer(QPainter& painter, const FontBook& fonts, double scale, int top, int bottom)
        : painter_(painter), operations_(painter, fonts, scale), scale_(scale), top_(top),
          bottom_(bottom) {}

    /// The surface that is drawn on from now, and its place on the sheet in device pixels.
    void enter(const QRect& place) {
        origin_ = place.topLeft();
        painter_.resetTransform();
        painter_.translate(origin_.x(), origin_.y() - top_);
        painter_.setClipRect(QRect(QPoint(0, 0), place.size()));
    }

    template <class Operation>
    void operator()(const Operation& operation) {
        if constexpr (Drawn<Operation>) {
            const auto span = operations_.span(operation);
            if (span && reaches(*span))
                operations_.draw(operation);
        }
    }

private:
    /// Whether something shows in the band, with a line's height of grace for what stands out
    /// above and below: accents, thick lines.
    bool reaches(const OperationPainter::Span& span) const {
        const double grace = (span.bottom - span.top) / kTwipsPerPixel * scale_ + 2;
        return origin_.y() + span.top / kTwipsPerPixel * scale_ - grace < bottom_ &&
               origin_.y() + span.bottom / kTwipsPerPixel * scale_ + grace > top_;
    }

    QPainter& painter_;
    OperationPainter operations_;
    double scale_;
    int top_;
    int bottom_;
    QPoint origin_;
};

} // namespace

QSize SheetRaster::size(const Sheet& sheet) const {
    const auto pixels = [&](double twips) {
        return std::max(1, qCeil(twips / kTwipsPerPixel * scale_));
    };
    return {pixels(sheet.width), pixels(sheet.height)};
}

int SheetRaster::bandRows(const Sheet& sheet) const {
    const QSize whole = size(sheet);
    return std::clamp(kBandBytes / kBytesPerPixel / whole.width(), 1, whole.height());
}

const QImage& SheetRaster::band(const Sheet& sheet, int top) {
    const QSize whole = size(sheet);
    const QSize wanted(whole.width(), std::min(bandRows(sheet), whole.height() - top));
    if (band_.size() != wanted)
        band_ = QImage(wanted, QImage::Format_RGB32);
    band_.fill(kPaper);

    QPainter painter(&band_);
    BandPlayer player(painter, fonts_, scale_, top, top + wanted.height());
    // Surfaces stand beside each other: the order of operations counts within each.
    for (const PlacedSurface& surface : sheet.surfaces) {
        player.enter(place(surface));
        for (const Operation& operation : sheet.operations)
            if (surfaceOf(operation) == surface.surface)
                std::visit(player, operation);
    }
    return band_;
}

QRect SheetRaster::place(const PlacedSurface& surface) const {
    const auto pixel = [&](double twips) { return qRound(twips / kTwipsPerPixel * scale_); };
    const QPoint corner(pixel(surface.x), pixel(surface.y));
    return {corner,
            QPoint(pixel(surface.x + surface.width) - 1, pixel(surface.y + surface.height) - 1)};
}

} // namespace platform
