#include "common/axes.h"

#include "common/formula.h"
#include "common/french_number.h"
#include "common/qt_text.h"
#include "common/ticks.h"
#include "look/interface_font.h"
#include "look/palette.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace common {

namespace {

/// Between two labels, so that they do not touch.
constexpr double kPixelsPerTickAcross = 56;
constexpr double kPixelsPerTickUp = 34;

constexpr double kLabelGap = 6;
constexpr double kNamePx = 13;

int mostTicks(double pixels, double each) {
    return std::max(1, static_cast<int>(pixels / each));
}

} // namespace

Axes Axes::withEqualScales(const QRectF& area, Range x, Range y) {
    const double perPixel = std::max(x.length() / area.width(), y.length() / area.height());
    x.to = x.from + perPixel * area.width();
    y.to = y.from + perPixel * area.height();
    return {area, x, y};
}

QPointF Axes::pixel(double x, double y) const {
    return {area_.left() + (x - x_.from) / x_.length() * area_.width(),
            area_.bottom() - (y - y_.from) / y_.length() * area_.height()};
}

QPointF Axes::value(const QPointF& pixel) const {
    return {x_.from + (pixel.x() - area_.left()) / area_.width() * x_.length(),
            y_.from + (area_.bottom() - pixel.y()) / area_.height() * y_.length()};
}

void Axes::paint(QPainter& painter, const QString& xName, const QString& yName) const {
    paintAcross(painter, xName);
    paintUp(painter, yName);
}

void Axes::paintAcross(QPainter& painter, const QString& name) const {
    painter.save();
    painter.setFont(look::interfaceFont(look::kSmallPx));
    const double step = tickStep(x_.length(), mostTicks(area_.width(), kPixelsPerTickAcross));
    for (const double value : ticks(x_.from, x_.to, step)) {
        const double x = sharp(painter, pixel(value, 0).x());
        painter.setPen(QColor::fromRgb(look::kGrid));
        painter.drawLine(QPointF(x, area_.top()), QPointF(x, area_.bottom()));
        painter.setPen(QColor::fromRgb(look::kMuted));
        painter.drawText(QRectF(x - 40, area_.bottom() + kLabelGap, 80, 14), Qt::AlignHCenter,
                         qtText(frenchNumber(value, tickDecimals(step))));
    }
    painter.setPen(QColor::fromRgb(look::kInk));
    const Formula formula(name, kNamePx);
    formula.paint(painter, {area_.right() - formula.width(), area_.bottom() + kBelow - 6});
    painter.restore();
}

void Axes::paintUp(QPainter& painter, const QString& name) const {
    painter.save();
    painter.setFont(look::interfaceFont(look::kSmallPx));
    const double step = tickStep(y_.length(), mostTicks(area_.height(), kPixelsPerTickUp));
    for (const double value : ticks(y_.from, y_.to, step)) {
        const double y = sharp(painter, pixel(0, value).y());
        painter.setPen(QColor::fromRgb(look::kGrid));
        painter.drawLine(QPointF(area_.left(), y), QPointF(area_.right(), y));
        painter.setPen(QColor::fromRgb(look::kMuted));
        painter.drawText(QRectF(0, y - 8, area_.left() - kLabelGap, 16),
                         Qt::AlignRight | Qt::AlignVCenter,
                         qtText(frenchNumber(value, tickDecimals(step))));
    }
    painter.setPen(QColor::fromRgb(look::kInk));
    const Formula formula(name, kNamePx);
    formula.paint(painter, {kLabelGap, area_.top() - 10});
    painter.restore();
}

double sharp(const QPainter& painter, double position) {
    const double ratio = painter.device()->devicePixelRatioF();
    return (std::floor(position * ratio) + 0.5) / ratio;
}

} // namespace common
