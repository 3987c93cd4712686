#pragma once

#include "platform/picture.h"

#include <memory>

namespace platform {

/// A picture made of pixels. Small ones are kept as pixels, large ones read anew from their bytes.
class RasterPicture : public Picture {
public:
    /// Null when the file cannot be read, or has too many pixels.
    static std::shared_ptr<const RasterPicture> read(const QByteArray& bytes, PictureFormat format);

    RasterPicture(const QByteArray& bytes, PictureFormat format, const QImage& pixels);

    QSize size() const override { return size_; }
    QImage image(QSize pixels) const override;
    PictureFormat format() const override { return format_; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QByteArray bytes_;
    PictureFormat format_;
    QSize size_;
    QImage own_;          ///< in its own size; null when that is large
    mutable QImage last_; ///< in the size asked for last; null when that was large
};

} // namespace platform
