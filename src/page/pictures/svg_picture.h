#pragma once

#include "page/picture.h"

#include <atomic>
#include <functional>
#include <memory>

class QSvgRenderer;

namespace page {

/// A drawing, drawn in the size that is asked for. What of it takes too long, reading or drawing,
/// is given up (drawing_thread.h): it is no picture then, or one that shows nothing from there on.
class SvgPicture : public Picture {
public:
    /// Null when it is no SVG that can be drawn.
    static std::shared_ptr<const SvgPicture> read(const QByteArray& bytes);

    explicit SvgPicture(const QByteArray& bytes) : bytes_(bytes) {}
    ~SvgPicture() override;

    QSize size() const override { return size_; }
    QImage image(QSize pixels) const override;
    PictureFormat format() const override { return PictureFormat::Svg; }
    const QByteArray& bytes() const override { return bytes_; }
    /// The title that the drawing has inside.
    QString description() const override;

private:
    struct Drawing;
    using Task = std::function<void(Drawing& drawing, const std::atomic<bool>& givenUp)>;

    /// Hands the drawing, read anew where it is not kept any more, to `task` on another thread.
    /// False when there is none, or it took too long.
    bool use(const Task& task) const;

    QByteArray bytes_;
    QSize size_;
    mutable bool isHopeless_ = false; ///< it has taken too long
};

} // namespace page
