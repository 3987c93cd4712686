#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

namespace common {

/// Part of an axis.
struct Range {
    double from = 0;
    double to = 1;
    double length() const { return to - from; }
};

/// Two axes with their grid, and the way from quantities to pixels.
class Axes {
public:
    Axes() = default;
    /// `area`: where curves are drawn, in pixels; labels stand left of it and below it.
    Axes(const QRectF& area, Range x, Range y) : area_(area), x_(x), y_(y) {}

    /// The same scale on both axes, the least ranges that hold `x` and `y` and fill the area.
    static Axes withEqualScales(const QRectF& area, Range x, Range y);

    const QRectF& area() const { return area_; }
    QPointF pixel(double x, double y) const;
    QPointF value(const QPointF& pixel) const;

    /// Grid, frame and labelled ticks; `xName` and `yName` are formulas with their units.
    void paint(QPainter& painter, const QString& xName, const QString& yName) const;

    /// The lines across and the labels of the upright axis alone, for bars.
    void paintUp(QPainter& painter, const QString& name) const;

    /// Room for labels: left of the area and below it, pixels.
    static constexpr double kLeft = 52;
    static constexpr double kBelow = 40;

private:
    void paintAcross(QPainter& painter, const QString& name) const;

    QRectF area_;
    Range x_;
    Range y_;
};

/// `position` moved to the middle of the nearest pixel of the device, so that a fine line is sharp.
double sharp(const QPainter& painter, double position);

} // namespace common
