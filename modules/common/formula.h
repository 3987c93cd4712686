#pragma once

#include <QPointF>
#include <QString>

#include <vector>

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

    struct Node;
    using Row = std::vector<Node>;

private:
    Row row_;
    double pixels_ = 0;
};

/// Part of a formula.
struct Formula::Node {
    enum class Kind { Text, Scripts, Fraction, Root, Vector, Overline };

    Kind kind = Kind::Text;
    QString text;        ///< Text
    bool italic = false; ///< Text
    Row first;           ///< index; numerator; what is under root, arrow or bar
    Row second;          ///< exponent; denominator
};

} // namespace common
