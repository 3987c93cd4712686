#pragma once

#include "page/picture.h"

#include <memory>

namespace page {

/// A picture made of pixels. They are read anew from the bytes when they are not kept any more
/// (decoded_cache.h).
class RasterPicture : public Picture {
public:
    /// Null when the file cannot be read, or has too many pixels.
    static std::shared_ptr<const RasterPicture> read(const QByteArray& bytes, PictureFormat format);

    /// Its size as the file tells it, before anything else of it is read; empty when the file does
    /// not, or has too many pixels.
    static QSize toldSize(const QByteArray& bytes, PictureFormat format);

    /// Whether there are pixels to be read.
    static bool isReadable(const QByteArray& bytes, PictureFormat format);

    RasterPicture(const QByteArray& bytes, PictureFormat format, const QImage& pixels);
    ~RasterPicture() override;

    QSize size() const override { return size_; }
    QImage image(QSize pixels) const override;
    PictureFormat format() const override { return format_; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QImage own() const;

    QByteArray bytes_;
    PictureFormat format_;
    QSize size_;
};

} // namespace page
