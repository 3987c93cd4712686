#pragma once

#include <QRgb>

namespace look {

// The colours of all windows. Contrasts are those against white.

inline constexpr QRgb kIvory = 0xfffffff0; ///< windows, around the page
inline constexpr QRgb kPaper = 0xffffffff; ///< page, fields, buttons
inline constexpr QRgb kInk = 0xff23211c;   ///< interface text (16.1)
inline constexpr QRgb kMuted = 0xff6b6454; ///< secondary text (5.9)
inline constexpr QRgb kEdge = 0xff8c8472;  ///< borders, scroll thumb, disabled text (3.7)
inline constexpr QRgb kRule = 0xffd9d3c3;  ///< fine lines, border of the page
inline constexpr QRgb kGrid = 0xffece8dc;  ///< behind curves and in tables
inline constexpr QRgb kScrollTrack = 0xfff1eddf;
inline constexpr QRgb kVideoTrack = 0xffe9e5d9;  ///< also the disabled main button
inline constexpr QRgb kBlue = 0xff1d4e89;        ///< what can be acted on (8.4)
inline constexpr QRgb kHoverBlue = 0xff2a629f;   ///< the main button under the pointer
inline constexpr QRgb kDarkBlue = 0xff163d6c;    ///< pressed
inline constexpr QRgb kHoverTint = 0xffe6eff9;   ///< a button under the pointer
inline constexpr QRgb kPressedTint = 0xffd3e3f6; ///< a pressed button; accent of the icons
inline constexpr QRgb kGreen = 0xff1c7540;       ///< right, with the check mark or a word (5.7)
inline constexpr QRgb kGreenTint = 0xffe4f3e8;   ///< the ground around it
inline constexpr QRgb kRed = 0xffb3261e;         ///< wrong, with the square cross or a word (6.5)

// Words found on a page, multiplied with what is there: red ink (0xffc80000) keeps 5.3 on the first
// and 4.5 on the second, black and the blue of links more than 13.
inline constexpr QRgb kMarkTint = 0xfffff0a0;
inline constexpr QRgb kSelectionTint = 0xffbcd6f2;   ///< multiplied with the text of a page
inline constexpr QRgb kSpokenTint = 0xffdfeedd;      ///< the same, of what is being read aloud
inline constexpr QRgb kCurrentMarkTint = 0xffffdb80; ///< the one in turn, which has a frame

/// `top` at `share` (0 to 1) over `below`.
constexpr QRgb blend(QRgb top, QRgb below, double share) {
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a * share + b * (1 - share) + 0.5);
    };
    return qRgb(mix(qRed(top), qRed(below)), mix(qGreen(top), qGreen(below)),
                mix(qBlue(top), qBlue(below)));
}

} // namespace look
