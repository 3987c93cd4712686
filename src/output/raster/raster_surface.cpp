#include "output/raster/raster_surface.h"

#include "output/raster/operation_painter.h"
#include "page/ink_area.h"
#include "page/surface.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace output {

namespace {

/// Most memory that one picture may take, whatever the density of the screen: a page taller than
/// this allows is cut at its foot.
constexpr double kMaxImageBytes = 160e6;

constexpr double kBytesPerPixel = 4;

/// A picture starts with room for a page that fits the window, in logical pixels.
constexpr int kFirstRowsPx = 448;

/// A picture no taller than this is used again for the next page, in logical pixels.
constexpr int kKeptRowsPx = 2000;

void fillRows(QImage& image, int first, int count, QRgb colour) {
    if (count > 0)
        QImage(image.scanLine(first), image.width(), count, image.bytesPerLine(), image.format())
            .fill(colour);
}

} // namespace

/// Draws operations on the image, which grows as they need it. Links and fields are controls of
/// their own on a window.
class RasterSurface::Player
    : page::PassOver<page::LinkOperation, page::MenuOperation, page::FieldOperation,
                     page::VideoOperation, page::SwitchOperation, page::CaptionOperation,
                     page::FailedOperation> {
public:
    explicit Player(RasterSurface& target)
        : target_(target), operations_(painter_, target.fonts_, target.ratio_) {}

    using PassOver::operator();
    void operator()(const page::TextOperation& text) { draw(text); }
    void operator()(const page::LineOperation& line) { draw(line); }
    void operator()(const page::FillOperation& fill) { draw(fill); }
    void operator()(const page::PictureOperation& picture) { draw(picture); }
    void operator()(const page::ClearOperation& clear) {
        if (clear.surface != target_.id_)
            return;
        end();
        target_.wipe();
    }

    void end() {
        if (painter_.isActive())
            painter_.end();
    }

private:
    template <class Drawing>
    void draw(const Drawing& drawing) {
        if (drawing.surface != target_.id_)
            return;
        const auto span = operations_.span(drawing);
        const auto ink = operations_.inkSpan(drawing);
        if (!span || !room(*span, ink->bottom))
            return;
        if (!painter_.isActive())
            painter_.begin(&target_.image_);
        operations_.draw(drawing);
    }

    /// Makes the picture tall enough for something, whose ink reaches down to `inkBottom`; false
    /// when nothing of it can show.
    bool room(const OperationPainter::Span& box, double inkBottom) {
        if (box.bottom <= 0 || box.top / page::kTwipsPerPixel >= page::kMaxSurfaceHeightPx)
            return false;
        const int inked = heldPx(inkBottom);
        if (inked * target_.ratio_ > target_.image_.height()) {
            end();
            target_.growTo(inked);
        }
        target_.lowestPx_ = std::max(target_.lowestPx_, heldPx(box.bottom));
        target_.inkedRows_ = std::max(target_.inkedRows_, qCeil(inked * target_.ratio_));
        return true;
    }

    static int heldPx(double twips) {
        return static_cast<int>(
            std::min(std::ceil(twips / page::kTwipsPerPixel), page::kMaxSurfaceHeightPx));
    }

    RasterSurface& target_;
    QPainter painter_;
    OperationPainter operations_;
};

/// Draws what leans out of a surface, of what was drawn since it was wiped last.
class RasterSurface::MarginPlayer
    : page::PassOver<page::LinkOperation, page::MenuOperation, page::FieldOperation,
                     page::VideoOperation, page::SwitchOperation, page::ClearOperation,
                     page::CaptionOperation, page::FailedOperation> {
public:
    MarginPlayer(page::SurfaceId surface, QPainter& painter, const page::FontBook& fonts,
                 double ratio, const QSizeF& size, const QRect& exposed)
        : surface_(surface), painter_(painter), fonts_(fonts), operations_(painter, fonts, ratio),
          ratio_(ratio), size_(size), exposed_(exposed) {
        // The surface itself covers the pixels that it shares with its margin.
        inner_ = QRect(0, 0, qFloor(size.width() / page::kTwipsPerPixel * ratio),
                       qFloor(size.height() / page::kTwipsPerPixel * ratio));
        ring_ = QRegion(pixels(page::withInkMargin(size))) - inner_;
    }

    using PassOver::operator();
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
        painter_.save();
        painter_.setClipRegion(ring_ & pixels(area), Qt::IntersectClip);
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
    QRegion ring_;
};

RasterSurface::RasterSurface(page::SurfaceId id, int widthPx, const page::FontBook& fonts,
                             QRgb background)
    : id_(id), widthPx_(widthPx), fonts_(fonts), background_(background) {}

void RasterSurface::play(const page::Recording& recording) {
    Player player(*this);
    const auto& operations = recording.operations();
    for (; played_ < operations.size(); ++played_)
        std::visit(player, operations[played_]);
    player.end();
}

void RasterSurface::setDevicePixelRatio(double ratio) {
    ratio_ = ratio;
    image_ = QImage();
    lowestPx_ = 0;
    inkedRows_ = 0;
    played_ = 0;
}

void RasterSurface::reset() {
    wipe();
    played_ = 0;
}

void RasterSurface::wipe() {
    // The next page finds the picture of this one in place; that of a very tall page goes.
    if (image_.height() > kKeptRowsPx * ratio_)
        image_ = QImage();
    fillRows(image_, 0, std::min(image_.height(), inkedRows_), background_);
    lowestPx_ = 0;
    inkedRows_ = 0;
}

void RasterSurface::growTo(int heightPx) {
    const int width = qCeil(widthPx_ * ratio_);
    const int most = static_cast<int>(kMaxImageBytes / kBytesPerPixel / width);
    const int wanted = qCeil(heightPx * ratio_);
    const int first = qCeil(kFirstRowsPx * ratio_);
    const int rows = std::min(std::max({wanted, image_.height() * 2, first}), most);
    if (rows <= image_.height())
        return;
    QImage larger(width, rows, QImage::Format_RGB32);
    if (larger.isNull())
        return;
    const auto copied = static_cast<std::size_t>(image_.sizeInBytes());
    if (copied > 0)
        std::memcpy(larger.bits(), image_.constBits(), copied);
    const int kept = image_.height();
    fillRows(larger, kept, rows - kept, background_);
    image_ = std::move(larger);
}

void RasterSurface::paint(QPainter& painter, const QRect& exposed) const {
    painter.fillRect(exposed, QColor::fromRgb(background_));
    if (isBlank() || image_.isNull())
        return;
    const QRect held = QRectF(exposed.x() * ratio_, exposed.y() * ratio_, exposed.width() * ratio_,
                              exposed.height() * ratio_)
                           .toAlignedRect() &
                       image_.rect();
    if (held.isEmpty())
        return;
    // Pixel on pixel, and said in whole pixels: a painter that has to find that out from fractions
    // takes each pixel by itself.
    painter.save();
    painter.scale(1 / ratio_, 1 / ratio_);
    painter.drawImage(held, image_, held);
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

QImage RasterSurface::image(int heightPx) const {
    QImage picture(qCeil(widthPx_ * ratio_), qCeil(heightPx * ratio_), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio_);
    QPainter painter(&picture);
    paint(painter, QRect(0, 0, widthPx_, heightPx));
    return picture;
}

} // namespace output
