#pragma once

#include "platform/picture.h"

#include <memory>

class QPainter;
class QRectF;
class QSvgRenderer;

namespace platform {

/// A drawing, drawn in the size that is asked for.
class SvgPicture : public Picture {
public:
    /// Null when it is no SVG that can be drawn.
    static std::shared_ptr<const SvgPicture> read(const QByteArray& bytes);

    SvgPicture(const QByteArray& bytes, std::unique_ptr<QSvgRenderer> renderer, QSize size);
    ~SvgPicture() override;

    QSize size() const override { return size_; }
    QImage image(QSize pixels) const override;
    PictureFormat format() const override { return PictureFormat::Svg; }
    const QByteArray& bytes() const override { return bytes_; }

    /// Draws it as curves, for devices that keep them.
    void draw(QPainter& painter, const QRectF& place) const;

private:
    QByteArray bytes_;
    std::unique_ptr<QSvgRenderer> renderer_;
    QSize size_;
    mutable QImage last_; ///< in the size asked for last; null when that was large
};

} // namespace platform
