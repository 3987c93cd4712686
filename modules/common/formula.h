#pragma once

#include "common/formula_parts.h"

#include <QPointF>
#include <QString>

class QPainter;

namespace common {

/// A formula set in type: letters in italics, figures, signs and names of functions upright.
///
///   v_0  v_{0x}  v^2      index, exponent (of one character or in braces)
///   \frac{a}{b}  \sqrt{a} fraction, root
///   \vec{v}               vector
///   \overline{a}          bar over it
///   \text{portée}         upright words; \cos, \sin, \tan for short
///
/// Blanks are printed. An unknown or unfinished command stands as it was written.
class Formula {
public:
    Formula() = default;
    /// `pixels`: size of the letters.
    Formula(const QString& source, double pixels);

    double width() const;
    double ascent() const;
    double descent() const;

    /// Paints in the painter's pen, the foot of the first letter at `baseline`.
    void paint(QPainter& painter, QPointF baseline) const;

private:
    FormulaRow row_;
    double pixels_ = 0;
};

} // namespace common
