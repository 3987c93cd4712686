#include "output/raster/raster_surface.h"

#include "output/raster/operation_painter.h"
#include "page/ink_area.h"
#include "page/surface.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace output {

namespace {

/// Rows of a band, in logical pixels: the part of a page that the window shows.
constexpr int kBandRowsPx = 448;

void fillRows(QImage& image, int first, int count, QRgb colour) {
    if (count > 0)
        QImage(image.scanLine(first), image.width(), count, image.bytesPerLine(), image.format())
            .fill(colour);
}

/// Down to a height that a surface can have, in logical pixels.
int heldPx(double twips) {
    return static_cast<int>(
        std::min(std::ceil(twips / page::kTwipsPerPixel), page::kMaxSurfaceHeightPx));
}

/// A sloping line comes out by a shade differently where the picture that it is drawn on cuts it.
template <class Drawing>
bool canBeCut(const Drawing&) {
    return true;
}
bool canBeCut(const page::LineOperation& line) {
    return line.x1 == line.x2 || line.y1 == line.y2;
}

/// Links and fields are controls of their own on a window.
using NoInk = page::PassOver<page::LinkOperation, page::MenuOperation, page::FieldOperation,
                             page::VideoOperation, page::SwitchOperation, page::ClearOperation,
                             page::CaptionOperation, page::FailedOperation>;

/// Draws whatever leaves ink.
struct Inker : NoInk {
    explicit Inker(OperationPainter& painter) : operations(painter) {}

    using NoInk::operator();
    void operator()(const page::TextOperation& text) { operations.draw(text); }
    void operator()(const page::LineOperation& line) { operations.draw(line); }
    void operator()(const page::FillOperation& fill) { operations.draw(fill); }
    void operator()(const page::PictureOperation& picture) { operations.draw(picture); }

    OperationPainter& operations;
};

} // namespace

/// Notes where operations leave ink.
class RasterSurface::Player
    : page::PassOver<page::LinkOperation, page::MenuOperation, page::FieldOperation,
                     page::VideoOperation, page::SwitchOperation, page::CaptionOperation,
                     page::FailedOperation> {
public:
    explicit Player(RasterSurface& target)
        : target_(target), operations_(painter_, target.fonts_, target.ratio_) {}

    using PassOver::operator();
    void operator()(const page::TextOperation& text) { note(text); }
    void operator()(const page::LineOperation& line) { note(line); }
    void operator()(const page::FillOperation& fill) { note(fill); }
    void operator()(const page::PictureOperation& picture) { note(picture); }
    void operator()(const page::ClearOperation& clear) {
        if (clear.surface == target_.id_)
            target_.wipe();
    }

private:
    template <class Drawing>
    void note(const Drawing& drawing) {
        if (drawing.surface != target_.id_)
            return;
        const auto box = operations_.span(drawing);
        const auto ink = operations_.inkSpan(drawing);
        if (!box || !ink || box->bottom <= 0 ||
            box->top / page::kTwipsPerPixel >= page::kMaxSurfaceHeightPx)
            return;
        const int top = qFloor(std::max(0.0, ink->top) / page::kTwipsPerPixel * target_.ratio_);
        const int bottom = qCeil(heldPx(ink->bottom) * target_.ratio_);
        target_.lowestPx_ = std::max(target_.lowestPx_, heldPx(box->bottom));
        target_.inkedRows_ = std::max(target_.inkedRows_, bottom);
        target_.inked_.push_back({target_.played_, top, bottom});
        if (!canBeCut(drawing))
            target_.bands_.join(top, bottom);
    }

    RasterSurface& target_;
    QPainter painter_; // never active: nothing is drawn yet
    OperationPainter operations_;
};

/// Draws what leans out of a surface, of what was drawn since it was wiped last.
class RasterSurface::MarginPlayer : NoInk {
public:
    MarginPlayer(page::SurfaceId surface, QPainter& painter, const page::FontBook& fonts,
                 double ratio, const QSizeF& size, const QRect& exposed)
        : surface_(surface), painter_(painter), fonts_(fonts), operations_(painter, fonts, ratio),
          ratio_(ratio), size_(size), exposed_(exposed) {
        // The surface itself covers the pixels that it shares with its margin.
        inner_ = QRect(0, 0, qFloor(size.width() / page::kTwipsPerPixel * ratio),
                       qFloor(size.height() / page::kTwipsPerPixel * ratio));
        ring_ = (QRegion(pixels(page::withInkMargin(size))) - inner_) &
                pixels({exposed.x() * page::kTwipsPerPixel, exposed.y() * page::kTwipsPerPixel,
                        exposed.width() * page::kTwipsPerPixel,
                        exposed.height() * page::kTwipsPerPixel});
    }

    using NoInk::operator();
    void operator()(const page::TextOperation& text) { draw(text); }
    void operator()(const page::LineOperation& line) { draw(line); }
    void operator()(const page::FillOperation& fill) { draw(fill); }
    void operator()(const page::PictureOperation& picture) { draw(picture); }

private:
    template <class Drawing>
    void draw(const Drawing& drawing) {
        if (drawing.surface != surface_)
            return;
        const std::optional<OperationPainter::Span> ink = operations_.inkSpan(drawing);
        if (!ink || ink->bottom < exposed_.top() * page::kTwipsPerPixel ||
            ink->top > (exposed_.bottom() + 1) * page::kTwipsPerPixel)
            return;
        const QRectF area = page::inkArea(drawing, size_, fonts_);
        if (area.isEmpty() || area == QRectF({}, size_) || staysWithin(drawing))
            return;
        // A clip costs by its rows, be they ever so empty.
        const QRegion clip = ring_ & pixels(area & reach(drawing));
        if (clip.isEmpty())
            return;
        painter_.save();
        painter_.setClipRegion(clip, Qt::IntersectClip);
        operations_.draw(drawing);
        painter_.restore();
    }

    // Drawing a whole text to show nothing of it would take a tenth of a page's time.
    bool staysWithin(const page::TextOperation& text) const {
        return operations_.staysWithin(text, inner_);
    }
    template <class Drawing>
    static bool staysWithin(const Drawing&) {
        return false;
    }

    /// No smaller than what an operation inks, in twips.
    static QRectF reach(const page::LineOperation& line) {
        const auto [left, right] = std::minmax(line.x1, line.x2);
        const auto [top, bottom] = std::minmax(line.y1, line.y2);
        const double beyond = (line.lineWidth + 2) * page::kTwipsPerPixel;
        return QRectF(QPointF(left, top), QPointF(right, bottom))
            .adjusted(-beyond, -beyond, beyond, beyond);
    }
    template <class Drawing>
    QRectF reach(const Drawing&) const {
        return page::withInkMargin(size_);
    }

    QRect pixels(const QRectF& twips) const {
        return QRectF(twips.topLeft() / page::kTwipsPerPixel * ratio_,
                      twips.size() / page::kTwipsPerPixel * ratio_)
            .toAlignedRect();
    }

    page::SurfaceId surface_;
    QPainter& painter_;
    const page::FontBook& fonts_;
    OperationPainter operations_;
    double ratio_;
    QSizeF size_;
    QRect exposed_;
    QRect inner_;
    QRegion ring_; ///< what shows of the margin
};

RasterSurface::RasterSurface(page::SurfaceId id, int widthPx, const page::FontBook& fonts,
                             QRgb background)
    : id_(id), widthPx_(widthPx), fonts_(fonts), background_(background) {
    setDevicePixelRatio(1);
}

void RasterSurface::play(const page::Recording& recording) {
    recording_ = &recording;
    Player player(*this);
    const auto& operations = recording.operations();
    for (; played_ < operations.size(); ++played_)
        std::visit(player, operations[played_]);
}

void RasterSurface::setDevicePixelRatio(double ratio) {
    ratio_ = ratio;
    reset();
    bands_.resize(qCeil(widthPx_ * ratio), qCeil(kBandRowsPx * ratio));
}

void RasterSurface::reset() {
    wipe();
    played_ = 0;
    recording_ = nullptr;
}

void RasterSurface::wipe() {
    bands_.wipe();
    inked_.clear();
    lowestPx_ = 0;
    inkedRows_ = 0;
}

void RasterSurface::drawRest(RasterBands::Band& band) {
    const int ground = std::min(band.bottom, inkedRows_) - band.top;
    fillRows(band.picture, band.ground, ground - band.ground, background_);
    band.ground = std::max(band.ground, ground);
    if (band.drawn == inked_.size())
        return;
    QPainter painter(&band.picture);
    painter.translate(0, -band.top);
    OperationPainter operations(painter, fonts_, ratio_);
    Inker inker(operations);
    for (; band.drawn < inked_.size(); ++band.drawn)
        if (const Inked& each = inked_[band.drawn];
            each.top < band.bottom && each.bottom > band.top)
            std::visit(inker, recording_->operations()[each.operation]);
}

void RasterSurface::paint(QPainter& painter, const QRect& exposed) {
    const QRect shown = QRectF(exposed.x() * ratio_, exposed.y() * ratio_, exposed.width() * ratio_,
                               exposed.height() * ratio_)
                            .toAlignedRect();
    const QRect held = shown & QRect(0, 0, qCeil(widthPx_ * ratio_), inkedRows_);
    // Pixel on pixel, and said in whole pixels: a painter that has to find that out from fractions
    // takes each pixel by itself.
    painter.save();
    painter.scale(1 / ratio_, 1 / ratio_);
    QRegion ground = shown;
    for (int row = held.top(); row <= held.bottom();) {
        RasterBands::Band& band = bands_.at(row);
        row = band.bottom;
        if (band.picture.isNull())
            continue;
        drawRest(band);
        const QRect part = held & band.picture.rect().translated(0, band.top);
        painter.drawImage(part, band.picture, part.translated(0, -band.top));
        ground -= part;
    }
    for (const QRect& part : ground)
        painter.fillRect(part, QColor::fromRgb(background_));
    painter.restore();
}

void RasterSurface::paintMargin(QPainter& painter, const page::Recording& recording, int heightPx,
                                const QRect& exposed) const {
    const QSizeF size(widthPx_ * page::kTwipsPerPixel, heightPx * page::kTwipsPerPixel);
    MarginPlayer player(id_, painter, fonts_, ratio_, size, exposed);
    const auto& operations = recording.operations();
    std::size_t first = 0;
    for (std::size_t i = 0; i < operations.size(); ++i)
        if (const auto* clear = std::get_if<page::ClearOperation>(&operations[i]))
            first = clear->surface == id_ ? i + 1 : first;
    for (std::size_t i = first; i < operations.size(); ++i)
        std::visit(player, operations[i]);
}

QImage RasterSurface::image(int heightPx) {
    QImage picture(qCeil(widthPx_ * ratio_), qCeil(heightPx * ratio_), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio_);
    QPainter painter(&picture);
    paint(painter, QRect(0, 0, widthPx_, heightPx));
    return picture;
}

} // namespace output
