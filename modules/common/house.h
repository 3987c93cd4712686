#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QPainter;

namespace common {

// The colours of all modules, those of the course they belong to. Contrasts are those against
// white; whatever must be read has 4.5 at least on ivory and white.

inline constexpr QRgb kIvory = 0xfffffff0; ///< windows
inline constexpr QRgb kPaper = 0xffffffff; ///< drawings, fields, buttons
inline constexpr QRgb kInk = 0xff23211c;   ///< text (16.1)
inline constexpr QRgb kMuted = 0xff6b6454; ///< secondary text (5.9)
inline constexpr QRgb kEdge = 0xff8c8472;  ///< borders, disabled text (3.7)
inline constexpr QRgb kRule = 0xffd9d3c3;  ///< fine lines
inline constexpr QRgb kGrid = 0xffece8dc;  ///< behind curves
inline constexpr QRgb kBlue = 0xff1d4e89;  ///< what can be acted on (8.4)
inline constexpr QRgb kHoverTint = 0xffe6eff9;
inline constexpr QRgb kPressedTint = 0xffd3e3f6;
inline constexpr QRgb kGreen = 0xff1c7540; ///< right, always with a sign or a word (5.7)
inline constexpr QRgb kGreenTint = 0xffe4f3e8;
inline constexpr QRgb kRed = 0xffb3261e; ///< wrong, always with a sign or a word (6.5)

inline constexpr int kSmallPx = 11; ///< nothing is smaller
inline constexpr int kTextPx = 13;
inline constexpr int kTitlePx = 19;

/// Gap of the grid on which everything stands, in pixels.
inline constexpr int kGap = 8;

/// The face of all text, `pixels` high.
QFont houseFont(int pixels = kTextPx, bool bold = false);

/// French numbers, the house's font, its style sheet and its icon, for the whole application.
void applyHouse(QApplication& application);

enum class Verdict { Right, Wrong };

/// The sign of a verdict, 16 by 16 pixels from (`x`, `y`) on: a round check mark or a square cross,
/// so that it can be told without its colour.
void paintVerdict(QPainter& painter, double x, double y, Verdict verdict);

} // namespace common
