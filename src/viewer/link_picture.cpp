#include "viewer/link_picture.h"

#include "look/icon.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "page/twips.h"

#include <QPainter>

#include <algorithm>

namespace viewer {

namespace {

/// Side of the sign in a placeholder, and how much of a frame it leaves free, in logical pixels.
constexpr double kSignPx = 18;
constexpr double kSignMarginPx = 6;

} // namespace

LinkPicture::LinkPicture(int index, const page::FontBook& fonts, QWidget* parent)
    : LinkWidget(index, fonts, parent) {
    setObjectName(QStringLiteral("Imagelien(%1)").arg(index));
}

QSizeF LinkPicture::extent(const page::LinkOperation& link) const {
    return {link.width, link.height};
}

void LinkPicture::draw(QPainter& painter, double ratio) {
    const auto pixel = [ratio](double twips) {
        return qRound(twips / page::kTwipsPerPixel * ratio);
    };
    const page::LinkOperation& shown = link();
    const QRect place(QPoint(pixel(shown.x), pixel(shown.y)),
                      QPoint(pixel(shown.x + shown.width) - 1, pixel(shown.y + shown.height) - 1));
    const QImage& picture = image(place.size());
    if (picture.isNull())
        drawPlaceholder(painter, place, ratio);
    else
        painter.drawImage(place.topLeft(), picture);
}

/// Null when the image list has no such symbol, or it cannot be read.
const QImage& LinkPicture::image(QSize pixels) {
    if (decoded_ != link().picture || decodedSize_ != pixels) {
        decoded_ = link().picture;
        decodedSize_ = pixels;
        image_ = decoded_ && !pixels.isEmpty() ? decoded_->image(pixels) : QImage();
    }
    return image_;
}

void LinkPicture::drawPlaceholder(QPainter& painter, const QRect& place, double ratio) const {
    using namespace look;
    painter.scale(ratio, ratio);
    const QRectF frame(QPointF(place.topLeft()) / ratio, QSizeF(place.size()) / ratio);
    drawFrame(painter, frame, 0, kEdge, QColor::fromRgb(kPaper));
    const double side = std::min(kSignPx, std::min(frame.width(), frame.height()) - kSignMarginPx);
    if (side > 0)
        Icon(QStringLiteral("link"))
            .paint(painter, {frame.center() - QPointF(side, side) / 2, QSizeF(side, side)},
                   Icon::Style::Coloured);
}

} // namespace viewer
