#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

namespace common {

/// An arrow from `from` to `to`, pixels, with the formula `name` beside its head. Vectors shorter
/// than a few pixels are left out.
void paintVector(QPainter& painter, QPointF from, QPointF to, QRgb ink, const QString& name,
                 Qt::PenStyle style = Qt::SolidLine);

} // namespace common
