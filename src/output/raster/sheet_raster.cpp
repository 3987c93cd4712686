#include "output/raster/sheet_raster.h"

#include "output/raster/operation_painter.h"
#include "page/ink_area.h"
#include "page/twips.h"

#include <QtMath>

#include <algorithm>

namespace output {

namespace {

/// A page that fits the window is one band at twice the screen's density.
constexpr int kBandBytes = 16 << 20;
constexpr int kBytesPerPixel = 4;

constexpr QRgb kPaper = 0xffffffff;

/// Draws operations of any surface of a sheet, each where it may ink.
class BandPlayer {
public:
    BandPlayer(QPainter& painter, const page::FontBook& fonts, double scale, int top, int bottom)
        : painter_(painter), fonts_(fonts), operations_(painter, fonts, scale), scale_(scale),
          top_(top), bottom_(bottom) {}

    /// The surface that is drawn on from now.
    void enter(const page::PlacedSurface& surface) {
        corner_ = {surface.x, surface.y};
        size_ = {surface.width, surface.height};
        origin_ = {pixel(surface.x), pixel(surface.y)};
        painter_.resetTransform();
        painter_.translate(origin_.x(), origin_.y() - top_);
        clip_ = {};
    }

    void operator()(const page::TextOperation& text) { play(text); }
    void operator()(const page::LineOperation& line) { play(line); }
    void operator()(const page::FillOperation& fill) { play(fill); }
    void operator()(const page::PictureOperation& picture) { play(picture); }

private:
    template <class Drawing>
    void play(const Drawing& drawing) {
        const auto ink = operations_.inkSpan(drawing);
        if (!ink || !reaches(*ink))
            return;
        const QRectF area = page::inkArea(drawing, size_, fonts_);
        if (area.isEmpty())
            return;
        clipTo(area);
        operations_.draw(drawing);
    }

    int pixel(double twips) const { return qRound(twips / page::kTwipsPerPixel * scale_); }

    bool reaches(const OperationPainter::Span& ink) const {
        return origin_.y() + ink.top / page::kTwipsPerPixel * scale_ < bottom_ &&
               origin_.y() + ink.bottom / page::kTwipsPerPixel * scale_ > top_;
    }

    void clipTo(const QRectF& area) {
        if (area == clip_)
            return;
        clip_ = area;
        const QRectF onSheet = area.translated(corner_);
        const QPoint corner(pixel(onSheet.left()), pixel(onSheet.top()));
        const QPoint beyond(pixel(onSheet.right()), pixel(onSheet.bottom()));
        painter_.setClipRect(QRect(corner - origin_, beyond - origin_ - QPoint(1, 1)));
    }

    QPainter& painter_;
    const page::FontBook& fonts_;
    OperationPainter operations_;
    double scale_;
    int top_;
    int bottom_;
    QPointF corner_; ///< of the surface, in twips of the sheet
    QSizeF size_;
    QPoint origin_; ///< the same corner in device pixels
    QRectF clip_;
};

} // namespace

QSize SheetRaster::size(const page::Sheet& sheet) const {
    const auto pixels = [&](double twips) {
        return std::max(1, qCeil(twips / page::kTwipsPerPixel * scale_));
    };
    return {pixels(sheet.width), pixels(sheet.height)};
}

int SheetRaster::bandRows(const page::Sheet& sheet) const {
    const QSize whole = size(sheet);
    return std::clamp(kBandBytes / kBytesPerPixel / whole.width(), 1, whole.height());
}

const QImage& SheetRaster::band(const page::Sheet& sheet, int top) {
    const QSize whole = size(sheet);
    const QSize wanted(whole.width(), std::min(bandRows(sheet), whole.height() - top));
    if (band_.size() != wanted)
        band_ = QImage(wanted, QImage::Format_RGB32);
    band_.fill(kPaper);

    QPainter painter(&band_);
    BandPlayer player(painter, fonts_, scale_, top, top + wanted.height());
    // Surfaces stand beside each other: the order of operations counts within each.
    for (const page::PlacedSurface& surface : sheet.surfaces) {
        player.enter(surface);
        for (const page::DrawnOperation& operation : sheet.operations)
            if (page::surfaceOf(operation) == surface.surface)
                std::visit(player, operation);
    }
    return band_;
}

} // namespace output
