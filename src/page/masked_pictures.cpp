#include "page/masked_pictures.h"

#include "page/printed_picture.h"
#include "page/twips.h"

#include <QPainter>

#include <cmath>

namespace page {

namespace {

/// Fills that are laid over one picture. Without a bound, the time would grow with the square of
/// the page.
constexpr std::size_t kMostFills = 64;

constexpr QRgb kWhite = 0xffffffff;
constexpr QRgb kOpaque = 0xff000000;

/// Longest side of a picture that can show, in pixels.
constexpr double kFarPx = 1e6;

struct Tint {
    QRectF area; ///< in parts of the picture, from 0 to 1
    QRgb ink;
};

/// The whole pixels of 96 to the inch that an area covers.
QRectF onScreen(double x, double y, double width, double height) {
    const auto pixel = [](double twips) { return std::round(twips / kTwipsPerPixel); };
    return {QPointF(pixel(x), pixel(y)), QPointF(pixel(x + width), pixel(y + height))};
}

QRgb joined(QRgb pixel, QRgb cover, InkUnderMask join) {
    const int alpha = qAlpha(pixel);
    if (alpha == 255)
        return join(pixel, cover) | kOpaque;
    const QRgb ink = join(qUnpremultiply(pixel), cover);
    return qPremultiply(qRgba(qRed(ink), qGreen(ink), qBlue(ink), alpha));
}

class MaskedPicture : public Picture {
public:
    MaskedPicture(std::shared_ptr<const Picture> plain, QSize size, std::vector<Tint> tints,
                  InkUnderMask join)
        : plain_(std::move(plain)), size_(size), tints_(std::move(tints)), join_(join) {}

    QSize size() const override { return size_; }
    PictureFormat format() const override { return PictureFormat::Bmp; }
    const QByteArray& bytes() const override { return bytes_; }

    QImage image(QSize pixels) const override {
        QImage image = plain_->image(pixels);
        if (image.isNull())
            return image;
        const QImage cover = coverOf(image.size());
        for (int y = 0; y < image.height(); ++y) {
            auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
            const auto* over = reinterpret_cast<const QRgb*>(cover.constScanLine(y));
            for (int x = 0; x < image.width(); ++x)
                if (over[x] != kWhite)
                    row[x] = joined(row[x], over[x], join_);
        }
        return image;
    }

private:
    /// White where no fill lies.
    QImage coverOf(QSize size) const {
        QImage cover(size, QImage::Format_RGB32);
        cover.fill(kWhite);
        QPainter painter(&cover);
        painter.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
        const QTransform whole = QTransform::fromScale(size.width(), size.height());
        for (const Tint& tint : tints_)
            painter.fillRect(whole.mapRect(tint.area).toRect(), QColor::fromRgb(tint.ink));
        return cover;
    }

    std::shared_ptr<const Picture> plain_;
    QSize size_;
    std::vector<Tint> tints_;
    InkUnderMask join_;
    QByteArray bytes_;
};

/// Those of `fills` that lie over an area of a surface.
std::vector<Tint> tintsOver(const std::vector<const FillOperation*>& fills, SurfaceId surface,
                            const QRectF& area) {
    std::vector<Tint> tints;
    for (const FillOperation* fill : fills) {
        const QRectF part = onScreen(fill->x, fill->y, fill->width, fill->height) & area;
        if (fill->surface != surface || part.isEmpty() || tints.size() >= kMostFills)
            continue;
        const QRectF moved = part.translated(-area.topLeft());
        tints.push_back({{moved.x() / area.width(), moved.y() / area.height(),
                          moved.width() / area.width(), moved.height() / area.height()},
                         fill->ink});
    }
    return tints;
}

bool isPlaced(const QRectF& area) {
    return area.width() >= 1 && area.height() >= 1 && area.width() < kFarPx &&
           area.height() < kFarPx;
}

} // namespace

std::map<std::size_t, std::shared_ptr<const Picture>>
maskedPictures(const std::vector<DrawnOperation>& operations, InkUnderMask join) {
    std::map<std::size_t, std::shared_ptr<const Picture>> masked;
    std::vector<const FillOperation*> later;
    for (std::size_t i = operations.size(); i-- > 0;) {
        if (const auto* fill = std::get_if<FillOperation>(&operations[i]);
            fill && fill->mode == FillMode::Mask)
            later.push_back(fill);
        const auto* picture = std::get_if<PictureOperation>(&operations[i]);
        if (later.empty() || !picture || !picture->picture)
            continue;
        const QRectF area = onScreen(picture->x, picture->y, picture->width, picture->height);
        if (!isPlaced(area))
            continue;
        auto tints = tintsOver(later, picture->surface, area);
        if (tints.empty())
            continue;
        const QSize drawn = area.size().toSize();
        const QSize size = printedPixels(*picture->picture, drawn).expandedTo(drawn);
        masked[i] = std::make_shared<MaskedPicture>(picture->picture, size, std::move(tints), join);
    }
    return masked;
}

} // namespace page
