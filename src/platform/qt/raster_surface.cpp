#include "platform/qt/raster_surface.h"

#include "platform/surface.h"
#include "platform/twips.h"

#include <QGlyphRun>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {

namespace {

/// Most memory that one picture may take, whatever the density of the screen: a page taller than
/// this allows is cut at its foot.
constexpr double kMaxImageBytes = 160e6;

constexpr double kBytesPerPixel = 4;

/// A picture starts with room for a page that fits the window, in logical pixels.
constexpr int kFirstRowsPx = 448;

/// A picture no taller than this is used again for the next page, in logical pixels.
constexpr int kKeptRowsPx = 2000;

/// Most device pixels that a picture is prepared in (64 MB): the largest size that a page can give,
/// at four times the density. What is stretched beyond is prepared smaller and enlarged where it
/// shows.
constexpr double kMaxPicturePixels = 16e6;

/// Positions beyond this many logical pixels are outside any picture.
constexpr double kFarPx = 1e6;

} // namespace

/// Draws operations on the image, in device pixels. Lines and fills keep to whole pixels, so that
/// they are crisp at any density.
class RasterSurface::Player {
public:
    explicit Player(RasterSurface& target) : target_(target) {}

    void operator()(const TextOperation& text) {
        if (text.surface != target_.id_ || !reachable(text.x, text.y))
            return;
        const double bottom = text.y + target_.fonts_.height(text.font);
        if (!room(text.y, bottom))
            return;
        const double x = toDevice(text.x);
        const double foot = std::round(toDevice(text.y + target_.fonts_.ascent(text.font)));
        painter().setPen(QColor::fromRgb(text.ink));
        const double pixelSize = fontPixels(text.font.points) * target_.ratio_;
        for (const FontBook::Run& run : target_.fonts_.place(text.font, text.text))
            drawRun(run, target_.fonts_.deviceFont(text.font, run.stage, pixelSize), x, foot);
        if (text.font.underline)
            underline(text, x, foot);
    }

    void operator()(const LineOperation& line) {
        if (line.surface != target_.id_ || !reachable(line.x1, line.y1) ||
            !reachable(line.x2, line.y2))
            return;
        const double half = line.lineWidth * kTwipsPerPixel;
        if (!room(std::min(line.y1, line.y2), std::max(line.y1, line.y2) + half))
            return;
        const int width = std::max(1, qRound(line.lineWidth * target_.ratio_));
        if (line.y1 == line.y2 || line.x1 == line.x2) {
            straightLine(line, width);
            return;
        }
        painter().setPen(QPen(QColor::fromRgb(line.ink), width));
        painter().setRenderHint(QPainter::Antialiasing);
        // A line of one pixel covers the pixel at its position.
        const double centre = target_.ratio_ / 2;
        painter().drawLine(QPointF(toDevice(line.x1) + centre, toDevice(line.y1) + centre),
                           QPointF(toDevice(line.x2) + centre, toDevice(line.y2) + centre));
        painter().setRenderHint(QPainter::Antialiasing, false);
    }

    void operator()(const FillOperation& fill) {
        if (fill.surface != target_.id_ || !reachable(fill.x, fill.y) || fill.width <= 0 ||
            fill.height <= 0 || !room(fill.y, fill.y + fill.height))
            return;
        const int left = pixel(fill.x);
        const int top = pixel(fill.y);
        const int right = pixel(std::min(fill.x + fill.width, kFarPx * kTwipsPerPixel));
        const int bottom = pixel(std::min(fill.y + fill.height, kFarPx * kTwipsPerPixel));
        // AND of ink and picture: black text stays black, white paper turns into the ink.
        if (fill.mode == FillMode::Mask)
            painter().setCompositionMode(QPainter::RasterOp_SourceAndDestination);
        painter().fillRect(left, top, right - left, bottom - top, QColor::fromRgb(fill.ink));
        painter().setCompositionMode(QPainter::CompositionMode_SourceOver);
    }

    void operator()(const ClearOperation& clear) {
        if (clear.surface != target_.id_)
            return;
        end();
        target_.wipe();
    }

    void operator()(const PictureOperation& picture) {
        if (picture.surface != target_.id_ || !reachable(picture.x, picture.y) ||
            !room(picture.y, picture.y + picture.height))
            return;
        const QRect place(
            QPoint(pixel(picture.x), pixel(picture.y)),
            QPoint(pixel(std::min(picture.x + picture.width, kFarPx * kTwipsPerPixel)) - 1,
                   pixel(std::min(picture.y + picture.height, kFarPx * kTwipsPerPixel)) - 1));
        if (!place.intersects(target_.image_.rect()))
            return;
        const QImage image = picture.picture->image(preparedSize(place.size()));
        painter().setRenderHint(QPainter::SmoothPixmapTransform, image.size() != place.size());
        painter().drawImage(place, image);
    }

    // Links and answers are controls of their own on the window.
    void operator()(const LinkOperation&) {}
    void operator()(const MenuOperation&) {}
    void operator()(const FieldOperation&) {}
    void operator()(const VideoOperation&) {}
    void operator()(const SwitchOperation&) {}
    void operator()(const CaptionOperation&) {}
    void operator()(const FailedOperation&) {}

    void end() {
        if (painter_.isActive())
            painter_.end();
    }

private:
    static bool reachable(double x, double y) {
        return std::abs(x) < kFarPx * kTwipsPerPixel && std::abs(y) < kFarPx * kTwipsPerPixel;
    }

    static QSize preparedSize(QSize place) {
        const double pixels = static_cast<double>(place.width()) * place.height();
        if (pixels <= kMaxPicturePixels)
            return place;
        return (QSizeF(place) * std::sqrt(kMaxPicturePixels / pixels)).toSize().expandedTo({1, 1});
    }

    double toDevice(double twips) const { return twips / kTwipsPerPixel * target_.ratio_; }
    int pixel(double twips) const { return qRound(toDevice(twips)); }

    QPainter& painter() {
        if (!painter_.isActive())
            painter_.begin(&target_.image_);
        return painter_;
    }

    /// Makes the picture tall enough for something between two heights; false when nothing of it
    /// can show.
    bool room(double top, double bottom) {
        if (bottom <= 0)
            return false;
        const double wanted = std::ceil(bottom / kTwipsPerPixel);
        const int held = static_cast<int>(std::min(wanted, kMaxSurfaceHeightPx));
        if (top / kTwipsPerPixel >= kMaxSurfaceHeightPx)
            return false;
        if (held * target_.ratio_ > target_.image_.height()) {
            end();
            target_.growTo(held);
        }
        target_.lowestPx_ = std::max(target_.lowestPx_, held);
        return true;
    }

    void drawRun(const FontBook::Run& run, const QRawFont& font, double x, double foot) {
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
        painter().drawGlyphRun(QPointF(x, foot), glyphs);
    }

    void underline(const TextOperation& text, double x, double foot) {
        const double em = fontPixels(text.font.points) * target_.ratio_;
        // A tenth of the em below the foot, a fourteenth thick: where the text face has it.
        const int thickness = std::max(1, qRound(em / 14));
        painter().fillRect(qRound(x), qRound(foot + em / 10), qRound(toDevice(text.width)),
                           thickness, QColor::fromRgb(text.ink));
    }

    void straightLine(const LineOperation& line, int width) {
        const int x1 = pixel(std::min(line.x1, line.x2));
        const int x2 = pixel(std::max(line.x1, line.x2));
        const int y1 = pixel(std::min(line.y1, line.y2));
        const int y2 = pixel(std::max(line.y1, line.y2));
        const bool level = line.y1 == line.y2;
        painter().fillRect(x1, y1, level ? std::max(x2 - x1, width) : width,
                           level ? width : std::max(y2 - y1, width), QColor::fromRgb(line.ink));
    }

    RasterSurface& target_;
    QPainter painter_;
};

RasterSurface::RasterSurface(SurfaceId id, int widthPx, const FontBook& fonts, QRgb background)
    : id_(id), widthPx_(widthPx), fonts_(fonts), background_(background) {}

void RasterSurface::play(const Recording& recording) {
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
    const int rows = std::min(image_.height(), qCeil(lowestPx_ * ratio_));
    if (rows > 0)
        std::fill_n(reinterpret_cast<QRgb*>(image_.bits()),
                    static_cast<std::size_t>(rows) * static_cast<std::size_t>(image_.width()),
                    background_);
    lowestPx_ = 0;
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
    std::fill_n(reinterpret_cast<QRgb*>(larger.scanLine(kept)),
                static_cast<std::size_t>(rows - kept) * static_cast<std::size_t>(width),
                background_);
    image_ = std::move(larger);
}

void RasterSurface::paint(QPainter& painter, const QRect& exposed) const {
    painter.fillRect(exposed, QColor::fromRgb(background_));
    if (isBlank() || image_.isNull())
        return;
    const QRectF source(exposed.x() * ratio_, exposed.y() * ratio_, exposed.width() * ratio_,
                        exposed.height() * ratio_);
    const QRectF held = source & QRectF(image_.rect());
    if (held.isEmpty())
        return;
    painter.drawImage(
        QRectF(held.x() / ratio_, held.y() / ratio_, held.width() / ratio_, held.height() / ratio_),
        image_, held);
}

QImage RasterSurface::image(int heightPx) const {
    QImage picture(qCeil(widthPx_ * ratio_), qCeil(heightPx * ratio_), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio_);
    QPainter painter(&picture);
    paint(painter, QRect(0, 0, widthPx_, heightPx));
    return picture;
}

} // namespace platform
