#pragma once

#include "page/pictures/drawing_thread.h"

#include <QImage>
#include <QPaintDevice>

#include <memory>

namespace page {

/// A picture that is drawn on with a QPainter, at a bounded cost. Smooth outlines are dear where
/// they are long and cross each other: a path of a few kilobytes can take a minute. So a path that
/// would cost much is drawn without smoothing, which is many times quicker, and when all that
/// a drawing may cost is spent, the rest of it is left out. Dashes that would cost much are drawn
/// as a whole line.
class BoundedCanvas : public QPaintDevice {
public:
    /// Nothing more is drawn once `givenUp` is set.
    BoundedCanvas(QSize size, const GivenUp& givenUp);
    ~BoundedCanvas() override;

    /// Format_ARGB32_Premultiplied. To be asked for when no painter is active.
    const QImage& image() const { return image_; }

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QImage image_;
    std::unique_ptr<Engine> engine_;
};

} // namespace page
