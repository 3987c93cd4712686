#include "common/formula.h"

#include "common/qt_text.h"
#include "look/interface_font.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace common {

namespace {

using Node = FormulaPart;
using Row = FormulaRow;

// Proportions of the letters' size, as printed formulas have them.
constexpr double kScriptSize = 0.72;
constexpr double kIndexDrop = 0.22;
constexpr double kExponentRise = 0.38;
constexpr double kRiseAboveIndex = 0.48; ///< of an exponent that stands above an index
constexpr double kAxis = 0.32;           ///< height of fraction bars above the baseline
constexpr double kBarGap = 0.16;
constexpr double kBarMargin = 0.12;
constexpr double kBarThickness = 0.065;
constexpr double kRootWidth = 0.62;
constexpr double kArrowHead = 0.2;
constexpr double kOverlineGap = 0.1;

double riseOf(const Node& node) {
    return node.first.empty() ? kExponentRise : kRiseAboveIndex;
}

struct Extent {
    double width = 0;
    double ascent = 0;
    double descent = 0;
};

QFont fontOf(const Node& node, double pixels) {
    QFont font = look::interfaceFont(look::kLabelPx);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    font.setItalic(node.italic);
    return font;
}

Extent extentOf(const Row& row, double pixels);

Extent extentOf(const Node& node, double pixels) {
    const Extent first =
        extentOf(node.first, node.kind == Node::Kind::Scripts ? pixels * kScriptSize : pixels);
    const Extent second =
        extentOf(node.second, node.kind == Node::Kind::Scripts ? pixels * kScriptSize : pixels);
    switch (node.kind) {
    case Node::Kind::Scripts:
        return {std::max(first.width, second.width) + pixels * 0.06,
                node.second.empty() ? 0 : second.ascent + pixels * riseOf(node),
                node.first.empty() ? 0 : first.descent + pixels * kIndexDrop};
    case Node::Kind::Fraction:
        return {std::max(first.width, second.width) + 2 * pixels * kBarMargin,
                pixels * (kAxis + kBarGap) + first.ascent + first.descent,
                second.ascent + second.descent + pixels * (kBarGap - kAxis)};
    case Node::Kind::Root:
        return {first.width + pixels * (kRootWidth + 0.1), first.ascent + pixels * 0.14,
                first.descent};
    case Node::Kind::Vector:
        return {first.width, first.ascent + pixels * 0.22, first.descent};
    case Node::Kind::Overline:
        return {first.width, first.ascent + pixels * kOverlineGap * 2, first.descent};
    case Node::Kind::Text:
        break;
    }
    const QFontMetricsF metrics(fontOf(node, pixels));
    // A letter's foot is at 0.21, its top at 0.73 of the size in this face; ascent() has room for
    // accents that would part lines of fractions.
    return {metrics.horizontalAdvance(qtText(node.text)), pixels * 0.74, pixels * 0.21};
}

Extent extentOf(const Row& row, double pixels) {
    Extent whole;
    for (const Node& node : row) {
        const Extent one = extentOf(node, pixels);
        whole.width += one.width;
        whole.ascent = std::max(whole.ascent, one.ascent);
        whole.descent = std::max(whole.descent, one.descent);
    }
    return whole;
}

class Setter {
public:
    explicit Setter(QPainter& painter) : painter_(painter) {}

    void set(const Row& row, QPointF at, double pixels) {
        for (const Node& node : row) {
            set(node, at, pixels);
            at.rx() += extentOf(node, pixels).width;
        }
    }

private:
    void set(const Node& node, QPointF at, double pixels) {
        switch (node.kind) {
        case Node::Kind::Text:
            painter_.setFont(fontOf(node, pixels));
            painter_.drawText(at, qtText(node.text));
            return;
        case Node::Kind::Scripts:
            set(node.first, at + QPointF(0, pixels * kIndexDrop), pixels * kScriptSize);
            set(node.second, at + QPointF(pixels * 0.04, -pixels * riseOf(node)),
                pixels * kScriptSize);
            return;
        case Node::Kind::Fraction:
            setFraction(node, at, pixels);
            return;
        case Node::Kind::Root:
            setRoot(node, at, pixels);
            return;
        case Node::Kind::Vector:
            setVector(node, at, pixels);
            return;
        case Node::Kind::Overline:
            setOverline(node, at, pixels);
        }
    }

    void setFraction(const Node& node, QPointF at, double pixels) {
        const double width = extentOf(node, pixels).width;
        const Extent over = extentOf(node.first, pixels);
        const Extent under = extentOf(node.second, pixels);
        const double bar = at.y() - pixels * kAxis;
        set(node.first, {at.x() + (width - over.width) / 2, bar - pixels * kBarGap - over.descent},
            pixels);
        set(node.second,
            {at.x() + (width - under.width) / 2, bar + pixels * kBarGap + under.ascent}, pixels);
        draw({{at.x() + 1, bar}, {at.x() + width - 1, bar}}, pixels);
    }

    void setRoot(const Node& node, QPointF at, double pixels) {
        const Extent inside = extentOf(node.first, pixels);
        const double top = at.y() - inside.ascent - pixels * 0.08;
        const double foot = at.y() + inside.descent;
        const double x = at.x() + pixels * kRootWidth;
        draw({{at.x() + pixels * 0.05, foot - (foot - top) * 0.42},
              {at.x() + pixels * 0.2, foot - (foot - top) * 0.48},
              {at.x() + pixels * 0.38, foot},
              {x - pixels * 0.04, top},
              {x + inside.width + pixels * 0.06, top}},
             pixels);
        set(node.first, {x, at.y()}, pixels);
    }

    void setVector(const Node& node, QPointF at, double pixels) {
        const Extent inside = extentOf(node.first, pixels);
        const bool isLow = isLowerCase(node.first);
        const double y = at.y() - (isLow ? pixels * 0.74 : inside.ascent + pixels * 0.08);
        const double left = at.x() + pixels * 0.02;
        const double right = at.x() + std::max(inside.width, pixels * 0.55);
        const double head = pixels * kArrowHead;
        set(node.first, at, pixels);
        draw({{left, y}, {right, y}}, pixels);
        draw({{right - head, y - head * 0.6}, {right, y}, {right - head, y + head * 0.6}}, pixels);
    }

    void setOverline(const Node& node, QPointF at, double pixels) {
        const Extent inside = extentOf(node.first, pixels);
        const double y = at.y() - inside.ascent - pixels * kOverlineGap;
        set(node.first, at, pixels);
        draw({{at.x() + 1, y}, {at.x() + inside.width - 1, y}}, pixels);
    }

    /// Letters without a stem carry their arrow lower.
    static bool isLowerCase(const Row& row) {
        constexpr std::u16string_view kLow = u"acegmnopqrsuvwxyz";
        return !row.empty() && row.front().kind == Node::Kind::Text &&
               std::all_of(row.front().text.begin(), row.front().text.end(),
                           [=](char16_t c) { return kLow.find(c) != kLow.npos; });
    }

    void draw(const QPolygonF& line, double pixels) {
        const QPen before = painter_.pen();
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(before.color(), std::max(1.0, pixels * kBarThickness), Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        painter_.drawPolyline(line);
        painter_.restore();
    }

    QPainter& painter_;
};

} // namespace

Formula::Formula(const QString& source, double pixels)
    : row_(formulaParts(utf16(source))), pixels_(pixels) {}

double Formula::width() const {
    return extentOf(row_, pixels_).width;
}

double Formula::ascent() const {
    return extentOf(row_, pixels_).ascent;
}

double Formula::descent() const {
    return extentOf(row_, pixels_).descent;
}

void Formula::paint(QPainter& painter, QPointF baseline) const {
    painter.save();
    Setter(painter).set(row_, baseline, pixels_);
    painter.restore();
}

} // namespace common
