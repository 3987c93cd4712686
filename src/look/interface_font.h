#pragma once

#include <QFont>

namespace look {

// Sizes of interface text, in pixels.
inline constexpr int kSmallPx = 11;  ///< under icons; nothing is smaller
inline constexpr int kButtonPx = 12; ///< in buttons
inline constexpr int kLabelPx = 13;  ///< in labels, fields and lists
inline constexpr int kTitlePx = 19;  ///< titles of pages and forms

enum class Weight { Regular, Bold };

/// The face of all interface text.
inline QFont interfaceFont(int pixels, Weight weight = Weight::Regular) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(pixels);
    font.setBold(weight == Weight::Bold);
    // As the page's own text: letters keep their distances at every density.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace look
