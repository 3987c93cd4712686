#pragma once

#include "text/rounding.h"

#include <QRgb>
#include <QString>

namespace exercises {

/// What the title band says, character by character from kTitleLeftTwips.
inline const QString kBandTitle = QStringLiteral("Connaissez-vous votre cours ?");
inline constexpr double kTitleLeftTwips = 30;
inline constexpr int kTitlePoints = 24; ///< bold

/// Ink of character `i`, from 1, of a title of `length` characters: from pale yellow to white.
inline QRgb titleInk(int i, int length) {
    const double blue = static_cast<double>(i) / length * 100 + 155;
    return qRgb(255, 255, text::toInt16(blue).value_or(255));
}

} // namespace exercises
