#include "common/vector_painter.h"

#include "common/formula.h"

#include <QLineF>
#include <QPainter>

namespace common {

namespace {

constexpr double kShortest = 4;
constexpr double kHead = 9;
constexpr double kHeadHalf = 4;
constexpr double kNamePx = 13;

} // namespace

void paintVector(QPainter& painter, QPointF from, QPointF to, QRgb ink, const QString& name,
                 Qt::PenStyle style) {
    const QLineF line(from, to);
    if (line.length() < kShortest)
        return;
    const bool main = style == Qt::SolidLine;
    const QPointF along = QPointF(line.dx(), line.dy()) / line.length();
    const QPointF across(-along.y(), along.x());
    const double head = qMin(kHead, line.length() * 0.6);
    const QPointF neck = to - along * head;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = QColor::fromRgb(ink);
    painter.setPen(QPen(colour, main ? 2.5 : 1.5, style, Qt::FlatCap));
    painter.drawLine(from, neck);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({to, neck + across * kHeadHalf, neck - across * kHeadHalf}));
    painter.setPen(colour);
    const Formula label(name, kNamePx);
    // Beyond the head and to its left, off the path that the vector touches.
    const QPointF middle = to + along * 10 - across * (4 + label.width() / 2);
    label.paint(painter, middle + QPointF(-label.width() / 2, label.ascent() / 2));
    painter.restore();
}

} // namespace common
