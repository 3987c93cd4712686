#pragma once

#include <QImage>
#include <QRegion>

namespace look {

/// The colour that stands for `colour` where the light is reduced: white becomes nearly black and
/// black nearly white, and what has a hue keeps it, dark where it was light.
QRgb withReducedLight(QRgb colour);

/// Gives all pixels of a picture their colours with reduced light. Those in `kept` keep their
/// colours, and are only a fifth darker, as behind grey glass. `image` is Format_RGB32 or
/// Format_ARGB32_Premultiplied.
void reduceLight(QImage& image, const QRegion& kept = {});

} // namespace look
