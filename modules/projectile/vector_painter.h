#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

namespace projectile {

// Vectors are drawn in the same scales whatever the flight, so that they can be compared.
inline constexpr double kPixelsPerSpeed = 4;        ///< px for 1 m/s
inline constexpr double kPixelsPerAcceleration = 5; ///< px for 1 m/s²

inline constexpr QRgb kSpeedInk = 0xffb3261e;
inline constexpr QRgb kAccelerationInk = 0xff6a3d9a;

/// An arrow from `from` to `to`, pixels, with the formula `name` beside its head. Vectors shorter
/// than a few pixels are left out.
void paintVector(QPainter& painter, QPointF from, QPointF to, QRgb ink, const QString& name,
                 Qt::PenStyle style = Qt::SolidLine);

} // namespace projectile
